// A fight run without drawing on the generated data set: two fighters loaded as the match
// preparation loads them, stepped frame by frame as an undrawn fight frame steps them, with
// keys pressed from a fixed pattern. Shared by the determinism tests and the simulation
// benchmark.
#pragma once
#include <unistd.h>

#include <cstddef>
#include <cstdint>

#include "assets/asset_anim.h"
#include "assets/asset_character.h"
#include "camera/camera_fight.h"
#include "cpu/cpu.h"
#include "cpu/cpu_private.h"
#include "fight/fight_hit.h"
#include "fight/fight_replay.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "render/render_math.h"
#include "fight/fight.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "shell/shell.h"

namespace sim {

// Loads characters c0 and c1 from the data set at `data_dir` (the working directory becomes
// it) and starts a two-player round past its intro. False when the data set is missing.
inline bool load_fight(const char* data_dir, int c0, int c1) {
  static int opened = 0;
  if (chdir(data_dir) != 0) return false;
  if (!opened) {
    if (!Plat_OpenWindow("sim")) return false;
    Set_FixedGLState();
    Window_Reshape(HEADLESS_WIDTH, HEADLESS_HEIGHT);
    Build_SinCosTables();
    if (!Load_PreloadFA("PRELOAD.FA")) return false;
    Build_AngleTables();
    Input_Init();
    opened = 1;
  }
  Shell.GameMode = MODE_FIGHT;
  select_slot[0] = c0;
  select_slot[1] = c1;
  Match.character[0] = c0;
  Match.character[1] = c1;
  Match.human[0] = Match.human[1] = 1;
  Match.demo = 0;
  reset_match_fighters();
  if (!Load_Character(0) || !Load_Character(1)) return false;
  fighters[0].wins = fighters[1].wins = 0;
  reset_round();
  Match.intro = -1;  // straight into the fight
  Match.clock_reset = 1;
  return true;
}

// The keys of one frame of the pattern: player 1 walks in and attacks with every button in
// turn; player 2 steps about, crouches and guards now and then.
inline void press_pattern(long frame) {
  const int f = static_cast<int>(frame % 240);
  Headless_SetKey('G', f < 40 || (f > 120 && f < 140));  // player 1 forward
  Headless_SetKey(VK_TAB_, f % 20 == 5);                  // attack 1
  Headless_SetKey('Q', f % 36 == 17);                     // attack 2
  Headless_SetKey(VK_CAPITAL_, f % 28 == 9);              // attack 3
  Headless_SetKey('A', f % 44 == 30);                     // attack 4
  Headless_SetKey(VK_RIGHT_, f > 60 && f < 90);           // player 2 back
  Headless_SetKey(VK_DOWN_, f > 150 && f < 180);          // crouch
  Headless_SetKey('J', f % 50 == 45);                     // player 2 attack 3
}

// One fight frame as a drawn one runs it, the pictures left out.
inline void step() {
  if (++frame_count == 30000) frame_count = 0;
  Fight_Step(1);
}

inline std::uint64_t fnv(std::uint64_t h, const void* data, std::size_t size) {
  const auto* p = static_cast<const unsigned char*>(data);
  for (std::size_t i = 0; i < size; ++i) h = (h ^ p[i]) * 1099511628211ull;
  return h;
}

// Hash of what the fight decides: both fighters' scoring, posture and fight flags, and the
// match record.
inline std::uint64_t hash_state() {
  std::uint64_t h = 1469598103934665603ull;
  for (const Fighter& f : fighters) {
    const auto* base = reinterpret_cast<const unsigned char*>(&f);
    h = fnv(h, base, offsetof(Fighter, act_first));
    h = fnv(h, &f.frame, sizeof f.frame);
    h = fnv(h, &f.face_yaw, sizeof f.face_yaw);
    h = fnv(h, base + offsetof(Fighter, root_track),
            offsetof(Fighter, attach) - offsetof(Fighter, root_track));
  }
  return fnv(h, &Match, sizeof Match);
}

// Everything a fight frame reads and writes from one frame to the next, drawn or not.
struct Saved {
  Fighter fighters[2];
  MatchState match;
  EffectState effects;
  HitState hits;
  ReplayState replay;
  PlayerInput players[2];
  JoyState joy[2];
  CpuState cpu;
  CpuMindState mind;
  SpacingState spacing;
  MoveSave move;
  FightCameraState camera;
  FighterDraw draw;
  ShellState shell;
  std::int32_t frame_count;
};

inline void save(Saved& s) {
  s.fighters[0] = fighters[0], s.fighters[1] = fighters[1];
  s.match = Match, s.effects = Effects, s.hits = Hits, s.replay = Replay;
  s.players[0] = Players[0], s.players[1] = Players[1];
  s.joy[0] = Joy[0], s.joy[1] = Joy[1];
  s.cpu = Cpu, s.mind = CpuMind, s.spacing = Spacing, s.camera = FightCamera, s.draw = Draw;
  s.shell = Shell, s.frame_count = frame_count;
  Move_Save(&s.move);
}

inline void restore(const Saved& s) {
  fighters[0] = s.fighters[0], fighters[1] = s.fighters[1];
  Match = s.match, Effects = s.effects, Hits = s.hits, Replay = s.replay;
  Players[0] = s.players[0], Players[1] = s.players[1];
  Joy[0] = s.joy[0], Joy[1] = s.joy[1];
  Cpu = s.cpu, CpuMind = s.mind, Spacing = s.spacing, FightCamera = s.camera, Draw = s.draw;
  Shell = s.shell, frame_count = s.frame_count;
  Move_Restore(s.move);
}

}  // namespace sim
