// The small behaviours the character routines are built from, and the controls they write.
#include <algorithm>
#include <cmath>

#include "audio/audio.h"
#include "cpu/cpu.h"
#include "cpu/cpu_private.h"
#include "fight/fight.h"
#include "fight/fight_moves.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "settings/settings.h"

namespace {

Fighter& me(int p) { return fighters[p]; }
Fighter& them(int p) { return fighters[opponent(p)]; }

// Past the first frame after the start of the running action.
bool settled(const Fighter& f) { return f.frame > f.act_first[f.action] + 1; }

void play_jump_voice(int p) {
  const int c = Match.character[p];
  if (c < 0 || c >= VOICE_CHARACTERS) return;
  const int voice = CharacterVoices[c].jump;
  if (voice >= 0) Queue_Sound(2 * p + 1, voice);
}

// The level is slow enough that the computer sometimes overlooks a threat.
bool overlooks(int p) {
  const std::int32_t level = Cpu.CpuLevel[p];
  return level > 170 && level / 5 > Cpu.CpuRandom[p] % 100;
}

void press_dodge(int p, bool down_tap, bool side_tap) {
  PlayerInput& in = Players[p];
  if (down_tap) in.down_tap = 1;
  if (side_tap) {
    if (Match.side_a != 1)
      in.left_tap = 1;
    else
      in.right_tap = 1;
  }
  cpu_press(p, 3);
  cpu_press(p, 4);
}

}  // namespace

// ---- what the computer sees ----------------------------------------------------------------

float cpu_separation() { return Spacing.distance; }
float cpu_body_x(int fighter) { return Draw.Body_Centre[fighter][0]; }
float cpu_body_height(int fighter) { return body_height(fighter); }

int cpu_ready(int p) { return Cpu.CpuReady[p] >= Cpu.CpuLevel[p]; }

int cpu_k(int p, int n) {
  const int v = me(p).life + Cpu.CpuRandom[p] + Cpu.CpuLevel[p];
  const int k = v % n;
  return k < 0 ? k + n : k;
}

int cpu_even(int p) { return Cpu.CpuRandom[p] % 2 == 0; }

bool cpu_in(int action, std::initializer_list<int> actions) {
  return std::find(actions.begin(), actions.end(), action) != actions.end();
}

// ---- controls ------------------------------------------------------------------------------

void cpu_forward(int p) {
  if (Match.side_a == p)
    Players[p].right = 1;
  else
    Players[p].left = 1;
}

void cpu_back(int p) {
  if (Match.side_a == p)
    Players[p].left = 1;
  else
    Players[p].right = 1;
}

void cpu_down(int p) { Players[p].down = 1; }

void cpu_press(int p, int button) {
  PlayerInput& in = Players[p];
  switch (button) {
    case 1: in.attack1_pressed = 1; break;
    case 2: in.attack2_pressed = 1; break;
    case 3: in.attack3_pressed = 1; break;
    case 4: in.attack4_pressed = 1; break;
    default: break;
  }
}

// The fight takes a command's move by the button's pair and the stance the button leaves:
// in stance 23 the computer presses the other button of the pair, so that the stance it chose
// stands and the move of that stance is the one taken.
void cpu_press_cmd(int p, int c, int s, int button) {
  Fighter& f = me(p);
  if (c >= 0) f.cmd_code = c;
  if (s >= 0) f.stance = s;
  if (f.cmd_code >= 0 && f.stance == 23 && (button == 1 || button == 3)) ++button;
  cpu_press(p, button);
}

int cpu_any_button(int p) {
  const PlayerInput& in = Players[p];
  return in.attack1_pressed || in.attack2_pressed || in.attack3_pressed || in.attack4_pressed;
}

void cpu_release_all(int p) {
  PlayerInput& in = Players[p];
  in.attack1_pressed = in.attack2_pressed = in.attack3_pressed = in.attack4_pressed = 0;
  in.down = 0;
  in.down_tap = 0;
}

void cpu_end_action(int p) {
  Fighter& f = me(p);
  if (f.root_track) root_track_end(p);
  f.hit_class = 0;
  f.hit_live = 0;
  f.crouching = 0;
  f.guarding = 0;
  f.action = f.stance == 23 ? 23 : 22;
  f.frame = f.act_first[f.action];
}

// ---- readiness -------------------------------------------------------------------------------

int CpuCanAct(int p) {
  const Fighter& f = me(p);
  const bool free = is_neutral(p) != 0;
  const bool attacking = cpu_in(f.action, {180, 240, 210, 290});
  if (attacking && Cpu.CpuLevel[p] <= 50) {
    const int first = f.act_first[f.action], last = f.act_last[f.action];
    if (f.frame > last - (last - first) / 2) Cpu.CpuReady[p] = Cpu.CpuLevel[p];
  }
  return (free || attacking) && cpu_ready(p);
}

int CpuCanActCrouching(int p) {
  const Fighter& f = me(p);
  return is_crouch_neutral(p) && f.frame > f.act_first[f.action] && cpu_ready(p);
}

int CpuCanActAny(int p) { return CpuCanAct(p) || CpuCanActCrouching(p); }

int CpuAirAttackChance(int p) {
  const Fighter& f = me(p);
  if (f.action != 9 && f.action != 21) return 0;
  if (!f.jump_flag || f.jump_count < 16 || f.jump_count > 35) return 0;
  const float reach = cpu_in(them(p).action, {32, 37, 38, 39, 40}) ? 6.5f : 10.0f;
  return cpu_separation() < reach;
}

// ---- movement ------------------------------------------------------------------------------

void CpuWalkForward(int p) {
  if (!cpu_in(me(p).action, {2, 26, 21, 3, 4})) cpu_forward(p);
}

void CpuWalkBack(int p) {
  if (!cpu_in(me(p).action, {1, 25, 21, 3, 4})) cpu_back(p);
}

void CpuJumpIn(int p) {
  const Fighter& f = me(p);
  if (!cpu_in(f.action, {0, 1, 2, 8, 22, 23, 24, 25, 26, 35}) || !settled(f)) return;
  cpu_end_action(p);
  cpu_forward(p);
  Players[p].up = 1;
  me(p).jump_flag = 1;
  play_jump_voice(p);
}

namespace {
void dash(int p, int action) {
  const Fighter& f = me(p);
  if ((f.action != 0 && f.action != 23) || !settled(f)) return;
  cpu_end_action(p);
  start_action(p, action, 1);
  play_jump_voice(p);
}
}  // namespace

void CpuDashIn(int p) { dash(p, 3); }
void CpuDashOut(int p) { dash(p, 4); }

void CpuWalkIn(int p) {
  start_action(p, me(p).stance == 23 ? 25 : 1, 1);
  CpuMind.walk_in[p] = 1;
  CpuMind.walk_in_frames[p] = 50 + frame_count % 50;
}

void CpuWalkInStep(int p) {
  if (!cpu_in(me(p).action, {1, 25})) {
    CpuMind.walk_in[p] = 0;
    return;
  }
  if (!CpuMind.walk_in[p]) return;
  cpu_forward(p);
  if (--CpuMind.walk_in_frames[p] <= 0) CpuMind.walk_in[p] = 0;
  if (cpu_separation() < 5.5f) {
    cpu_press(p, 2);
    CpuMind.walk_in[p] = 0;
  }
}

void CpuToggleStance(int p) { me(p).stance = me(p).stance == 23 ? 0 : 23; }

// ---- defence -------------------------------------------------------------------------------

void CpuDodge(int p) {
  const float sep = cpu_separation();
  const int r = Cpu.CpuRandom[p];
  if (sep >= 10.0f) {
    if (sep <= 25.0f && r % 4 <= 2)
      CpuJumpIn(p);
    else
      press_dodge(p, false, true);
  } else {
    press_dodge(p, r % 3 <= 1, r % 3 == 2);
  }
}

int CpuLowAttackReaction(int p) {
  const Fighter& o = them(p);
  const float sep = cpu_separation();
  const bool early_low = o.frame < o.act_first[40] + 3;
  if (o.crouching && cpu_in(o.action, {37, 38, 39, 40}) &&
      (CpuCanAct(p) || CpuCanActCrouching(p) || Cpu.CpuLevel[p] < frame_count % 200)) {
    if (sep < 16.0f && early_low) {
      CpuDodge(p);
      return 1;
    }
  }
  if (o.action == 40 && early_low && sep < 16.0f && !overlooks(p)) {
    CpuDodge(p);
    CpuReadyAtOnce(p);
    return 1;
  }
  return 0;
}

namespace {

// Moves that throw something at once, by the thrower's character.
struct ThrowingMove {
  std::int16_t character, action;
};
constexpr ThrowingMove ThrowingMoves[] = {
    {6, 190},   // character 6
    {1, 190},   // character 1
    {11, 190},  // character 11
    {13, 194},  // character 13
    {2, 201},   // character 2
};

bool opponent_throws(int p) {
  const Fighter& o = them(p);
  const int c = Match.character[opponent(p)];
  for (const ThrowingMove& m : ThrowingMoves)
    if (m.character == c && m.action == o.action) return o.frame < o.act_first[m.action] + 12;
  return false;
}

bool projectile_near(int p) {
  for (const ProjectileSlot& s : Effects.Projectile)
    if (s.active && s.owner == opponent(p) && std::fabs(s.x - cpu_body_x(p)) < 16.0f)
      return true;
  return false;
}

}  // namespace

int CpuProjectileReaction(int p) {
  if (overlooks(p)) return 0;
  if (projectile_near(p) || (opponent_throws(p) && cpu_separation() < 16.0f)) {
    CpuDodge(p);
    CpuReadyAtOnce(p);
    return 1;
  }
  return 0;
}

int CpuDashReaction(int p) {
  if (!CpuCanAct(p) || cpu_separation() >= 8.5f || them(p).action != 3) return 0;
  const std::int32_t level = Cpu.CpuLevel[p];
  const std::int32_t d = std::min(3, Settings.difficulty);
  if (level > 50 && (level + 3 - 40 * d) / 4 > Cpu.CpuRandom[p] % 100) return 0;
  cpu_end_action(p);
  press_dodge(p, true, false);
  return 1;
}

// ---- far away ------------------------------------------------------------------------------

void CpuChargeOrWalk(int p) {
  Fighter& f = me(p);
  if (f.turning) return;
  PlayerInput& in = Players[p];
  if (is_neutral(p)) {
    if (Cpu.CpuRandom[p] % 100 <= 50 && Match.clock_left >= 1550 && Match.human[opponent(p)]) {
      if (f.gauge < 200) {
        cpu_end_action(p);
        start_action(p, 599, 1);
        in.attack1 = in.attack2 = in.attack3 = in.attack4 = 1;
      }
      return;
    }
    CpuWalkIn(p);
    Cpu.CpuReady[p] = 0;
  } else if (f.action == 599 && f.gauge < 200 && Match.clock_left >= 1551) {
    in.attack1 = in.attack2 = in.attack3 = in.attack4 = 1;
  }
}

void CpuRisingAttack(int p) {
  const Fighter& f = me(p);
  const Fighter& o = them(p);
  if (cpu_separation() < 8.5f) {
    bool q = f.gauge > 100 && f.life < 30;
    if (!q && f.gauge >= 176) q = cpu_even(p);
    if ((q && o.reacting) || (!o.reacting && o.hit_live)) {
      cpu_press(p, 3);
      cpu_press(p, 4);
      return;
    }
  }
  cpu_forward(p);
  if (!o.reacting && (o.crouching || cpu_in(o.action, {30, 37, 38, 39, 40}))) cpu_down(p);
}

// ---- links ---------------------------------------------------------------------------------

namespace {

// Presses the follow-up that command slot k gives; false when the slot gives none.
bool press_slot(int p, int k) {
  if (k < 0 || k >= 32) return false;
  const int cmd = k < 12 ? k / 4 : 3 + (k - 12) / 4;
  const int button = k % 4 <= 1 ? 1 : 3;
  cpu_press_cmd(p, cmd, k % 2 == 0 ? 23 : 0, button);
  return true;
}

// The slot as the computer reads it: the super slots need a full gauge point bar.
int read_slot(int p, int k) { return (k <= 9 && me(p).gauge < 100) ? k - 12 : k; }

int link_count(int c) {
  int n = 0;
  while (n < CHAIN_LINKS && MoveTables.Chain_Table[c][n].running != NO_LINK) ++n;
  return n;
}

}  // namespace

int CpuComboLink(int p) {
  const Fighter& f = me(p);
  if (f.frame < 0 || f.frame >= MAX_FRAMES || f.frame_part[f.frame] != 1) return 0;
  if (f.yaw != f.face_yaw || !f.in_special) return 0;
  const int c = Match.character[p];
  if (c < 0 || c >= MOVE_CHARACTERS) return 0;
  const ChainLink* links = MoveTables.Chain_Table[c];
  const int n = link_count(c);
  const int r = Cpu.CpuRandom[p];
  if ((f.life + r) % 2 != 0) {
    for (int i = n - 1; i >= 0; --i)
      if (links[i].running == f.action) return press_slot(p, read_slot(p, links[i].slot));
    return 0;
  }
  for (int i = 0; i < n; ++i) {
    if (links[i].running != f.action) continue;
    int k = read_slot(p, links[i].slot);
    if ((Cpu.CpuLevel[p] + f.life) / 4 >= r % 100) k = links[i].slot - 12;
    if (press_slot(p, k)) return 1;
    if (r % 2 != 0) return 0;  // an odd value stops at the first link found
  }
  return 0;
}

// ---- after the routine ---------------------------------------------------------------------

void CpuAvoidInterrupted(int p) {
  const int cmd = me(p).cmd_code, stance = me(p).stance;
  const int r = Cpu.CpuRandom[p] % 10;
  constexpr int Needed[CPU_MEMORY] = {2, 5, 7};  // newest, second, third
  for (int i = 0; i < CPU_MEMORY; ++i) {
    if (CpuMind.interrupted_cmd[p][i] == cmd && CpuMind.interrupted_stance[p][i] == stance) {
      if (r >= Needed[i]) {
        cpu_release_all(p);
        return;
      }
      break;
    }
  }
  CpuMind.last_cmd[p] = cmd;
  CpuMind.last_stance[p] = stance;
}

void CpuDownHold(int p) {
  if (Players[p].down) CpuMind.down_hold[p] = 4;
  if (CpuMind.down_hold[p] > 0) {
    cpu_down(p);
    --CpuMind.down_hold[p];
  }
}
