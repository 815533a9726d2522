// Two fighters set up by hand for the computer's tests: every action has frames, both stand
// idle facing each other, fighter 1 is the computer and fighter 0 a player.
#pragma once
#include <gtest/gtest.h>

#include "cpu/cpu.h"
#include "cpu/cpu_private.h"
#include "fight/fight.h"
#include "fight/fight_moves.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "settings/settings.h"

namespace test {

// Two bare fighters standing idle `sep` apart about the middle and facing each other, every
// action twelve frames long: fighter 0 a player on the left, fighter 1 the computer playing
// `character`.
inline void Cpu_BareFighters(int character, float sep) {
  static const Fighter blank{};
  for (int i = 0; i < 2; ++i) {
    fighters[i] = blank;
    Fighter& f = fighters[i];
    for (int a = 0; a < MAX_ACTIONS; ++a) {
      f.act_first[a] = 10 + 12 * a;
      f.act_last[a] = 10 + 12 * a + 11;
    }
    f.life = 85;
    f.action = 22;
    f.frame = f.act_first[22] + 5;
    f.cmd_code = -1;
    f.first_part = 2;
    f.last_part = 16;
    Players[i] = PlayerInput{};
  }
  fighters[0].yaw = fighters[0].face_yaw = 90;
  fighters[1].yaw = fighters[1].face_yaw = 270;
  Match = MatchState{};
  Match.human[0] = 1;
  Match.character[1] = character;
  Match.clock_left = 6000;
  Effects = EffectState{};
  Cpu = CpuState{};
  CpuMind = CpuMindState{};
  Settings.difficulty = 2;
  fighters[0].pos_x = Draw.Body_Centre[0][0] = -sep / 2;
  fighters[1].pos_x = Draw.Body_Centre[1][0] = sep / 2;
  update_distance();
}

class CpuFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    Cpu_BareFighters(0, 20.0f);
    fighters[0].gauge = fighters[1].gauge = 50;
    frame_count = 0;
  }
  void TearDown() override {
    Match = MatchState{};
    Cpu = CpuState{};
    CpuMind = CpuMindState{};
    frame_count = 0;
  }

  // The two fighters `sep` apart about the middle, fighter 0 on the left.
  static void place(float sep) {
    fighters[0].pos_x = Draw.Body_Centre[0][0] = -sep / 2;
    fighters[1].pos_x = Draw.Body_Centre[1][0] = sep / 2;
    update_distance();
  }
  // The computer's frame value with the gauge and clock as set: fighter 1's range.
  static int random_of(int p) {
    const int r = (frame_count + fighters[p].gauge + Match.clock) % 1333;
    return p == 1 ? r + 1555 : r;
  }
  // Sets fighter p's life so that (life + random + level) mod n is k.
  static void set_k(int p, int n, int k) {
    fighters[p].life = 85;
    const int now = (fighters[p].life + random_of(p) + Cpu.CpuLevel[p]) % n;
    fighters[p].life += ((k - now) % n + n) % n;
  }
  static void make_ready(int p) { Cpu.CpuReady[p] = Cpu.CpuLevel[p]; }
  // Back and forward of the computer on the right-hand side.
  static int holds_back() { return Players[1].right; }
  static int holds_forward() { return Players[1].left; }
  // The button the computer presses for a move of the 1-2 or 3-4 pair in a stance: in stance
  // 23 the second of the pair.
  static int pair_button(int button, int stance) {
    return stance == 23 && (button == 1 || button == 3) ? button + 1 : button;
  }
  static int pressed(int b) {
    const PlayerInput& in = Players[1];
    const int flags[] = {0, in.attack1_pressed, in.attack2_pressed, in.attack3_pressed,
                         in.attack4_pressed};
    return flags[b];
  }
};

}  // namespace test
