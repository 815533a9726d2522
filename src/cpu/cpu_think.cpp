// The computer's frame: the chance value, the character routine, and the post-processing that
// keeps it from repeating itself; the level tuning and memories fed by the hit processing.
#include <algorithm>

#include "cpu/cpu.h"
#include "cpu/cpu_private.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "settings/settings.h"

CpuMindState CpuMind;

namespace {

constexpr int COUNTER_WRAP = 10001;  // the second frame counter runs 0..10001
constexpr int RANDOM_RANGE = 1333;
constexpr int RANDOM_OFFSET_1 = 1555;  // fighter 1's values lie above fighter 0's

// Character -> routine, one entry per character.
constexpr std::int8_t RoutineOfCharacter[15] = {
    1,   // 0
    2,   // 1
    3,   // 2
    4,   // 3
    5,   // 4
    6,   // 5
    7,   // 6
    8,   // 7
    9,   // 8
    10,  // 9
    4,   // 10: plays as 3
    1,   // 11: plays as 0
    8,   // 12: plays as 7
    10,  // 13: plays as 9
    1,   // 14: plays as 0
};

void next_random(int p) {
  const Fighter& f = fighters[p];
  Cpu.CpuRandom[p] = (frame_count + f.gauge + Match.clock) % RANDOM_RANGE;
  if (Cpu.CpuRandom[p] < 0) Cpu.CpuRandom[p] += RANDOM_RANGE;
  if (p == 1) Cpu.CpuRandom[p] += RANDOM_OFFSET_1;
}

bool plain_attack(int action) { return cpu_in(action, {180, 240, 210, 290, 37, 38, 39, 40}); }

// From stage 4 on, a plain attack past its middle frees the computer at once.
void late_stage_recovery(int p) {
  const Fighter& f = fighters[p];
  if (Match.stage_count < 4 || !plain_attack(f.action)) return;
  if (f.frame > (f.act_first[f.action] + f.act_last[f.action]) / 2 + 3)
    Cpu.CpuReady[p] = Cpu.CpuLevel[p];
}

// The fourth identical command in a row is not pressed.
void repeat_guard(int p) {
  const std::int32_t cmd = fighters[p].cmd_code;
  if (!cpu_any_button(p) || cmd < 0) return;
  const std::int32_t* mem = CpuMind.cmd_memory[p];
  if (mem[0] == cmd && mem[1] == cmd && mem[2] == cmd)
    cpu_release_all(p);
  else
    cpu_remember(CpuMind.cmd_memory[p], cmd);
}

// At low life no special move is started against an idle or walking opponent.
void low_life_caution(int p) {
  Fighter& f = fighters[p];
  if (!cpu_any_button(p) || f.cmd_code < 3) return;
  if (f.life >= (220 - Cpu.CpuBaseLevel[p]) / 2) return;
  if (!cpu_in(fighters[opponent(p)].action, {0, 1, 2, 22, 23, 24, 25, 26})) return;
  cpu_release_all(p);
  f.cmd_code = -1;
  if (cpu_separation() < 11.5f) {
    cpu_down(p);
    cpu_press(p, 4);
  }
}

void count_readiness(int p) {
  const PlayerInput& in = Players[p];
  if (in.attack1_pressed || in.attack2_pressed || in.attack3_pressed)
    Cpu.CpuReady[p] = 0;
  else if (!in.attack4_pressed)
    Cpu.CpuReady[p] = std::min(Cpu.CpuReady[p] + 1, Cpu.CpuLevel[p]);
  else
    Cpu.CpuReady[p] = 0;
}

void advance_counter() {
  if (Cpu.CpuCounter <= COUNTER_WRAP - 1)
    ++Cpu.CpuCounter;
  else
    Cpu.CpuCounter = 0;
}

}  // namespace

void cpu_remember(std::int32_t (&memory)[CPU_MEMORY], std::int32_t value) {
  memory[2] = memory[1];
  memory[1] = memory[0];
  memory[0] = value;
}

int Cpu_RoutineOf(int character) {
  if (character < 0 || character >= 15) return 1;
  return RoutineOfCharacter[character];
}

void CpuThink(int p, int character) {
  if (p != 0 && p != 1) return;
  next_random(p);
  Input_Clear(p);
  // The computer's command lasts the frame it is written in, as a player's is read afresh.
  fighters[p].cmd_code = -1;
  if (Match.ko_state != 0 || fighters[p].action == 3) return;
  late_stage_recovery(p);
  Cpu_RunRoutine(p, Cpu_RoutineOf(character));
  CpuDownHold(p);
  repeat_guard(p);
  low_life_caution(p);
  count_readiness(p);
  advance_counter();
}

// ---- level tuning and memories ---------------------------------------------------------------

void CpuAdjustLevel(int p, int strength, int attacker) {
  if (p != 0 && p != 1) return;
  const Fighter& a = fighters[attacker];
  std::int32_t& level = Cpu.CpuLevel[p];
  const std::int32_t base = Cpu.CpuBaseLevel[p];
  if (strength <= 3 && !a.in_special)
    --level;
  else if (strength >= 4 && a.in_special)
    ++level;
  else if (strength >= 10)
    --level;
  const std::int32_t floor = std::max(20, base - 30);
  if (level > base) level = base;
  if (level < floor) level = floor;

  if (fighters[p].action == 219 || fighters[p].action == 229) Cpu.CpuReady[p] = level;
  if (a.in_special && a.hit_height == 1)
    Cpu.CpuReady[p] = 0;
  else
    Cpu.CpuReady[p] /= 2;
}

void CpuRememberHit(int p, int attacker_action) {
  if (p != 0 && p != 1) return;
  cpu_remember(CpuMind.hit_by[p], attacker_action);
}

void CpuRememberInterrupted(int p) {
  if (p != 0 && p != 1) return;
  Fighter& f = fighters[p];
  if (!f.hit_live || f.in_special) return;
  cpu_remember(CpuMind.interrupted_cmd[p], CpuMind.last_cmd[p]);
  cpu_remember(CpuMind.interrupted_stance[p], CpuMind.last_stance[p]);
  f.hit_live = 0;
}

int CpuKnowsMove(int p, int action) {
  if (p != 0 && p != 1) return 0;
  const std::int32_t random = Cpu.CpuRandom[p];
  const std::int32_t level = Cpu.CpuLevel[p];
  const std::int32_t d = std::min(3, Settings.difficulty);
  if (Cpu.CpuBaseLevel[p] > 50 && (level + 3 - 5 * d) / 10 > random % 50) return 0;
  const std::int32_t* seen = CpuMind.hit_by[p];
  if (action == seen[0]) return 1;
  if (action == seen[1] && random % 10 >= 3) return 1;
  if (action == seen[2] && random % 10 >= 6) return 1;
  return 0;
}

// ---- readiness writes of the action machine -------------------------------------------------

void CpuReadyAtOnce(int p) {
  if (p == 0 || p == 1) Cpu.CpuReady[p] = Cpu.CpuLevel[p];
}

void CpuReadyAfterRising(int p) {
  if (p != 0 && p != 1) return;
  std::int32_t& ready = Cpu.CpuReady[p];
  if (ready < 100)
    ready /= 2;
  else if (ready < 150)
    ready = static_cast<std::int32_t>(ready / 1.5);
  else
    ready = static_cast<std::int32_t>(ready / 1.3);
}

void CpuRoundStart() { Cpu.CpuReady[0] = Cpu.CpuReady[1] = 0; }
