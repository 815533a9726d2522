// A fight driven without a window: both fighters with a frame range for every action, keys
// through the headless backend and the real input reader, and the steps run in the fight
// update's order. The "drawing" puts each body point where a standing model's hips are.
#pragma once
#include <gtest/gtest.h>

#include <cstring>

#include "fight/fight.h"
#include "fight/fight_moves.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "render/render_fighter.h"
#include "render/render_math.h"
#include "shell/shell.h"

namespace fightfix {

constexpr int kSpan = 13;  // frames per action: 12 to play and one to spare
constexpr int kJumpFirst = 13020;
constexpr int kDiagonalFirst = 13080;
constexpr int kJumpLength = 45;

// Player keys: 1 is player 1's side, 2 player 2's.
struct Keys {
  int left, right, up, down, b1, b2, b3, b4;
};
constexpr Keys kKeys[2] = {
    {'D', 'G', 'R', 'F', VK_TAB_, 'Q', VK_CAPITAL_, 'A'},          // player 1
    {VK_LEFT_, VK_RIGHT_, VK_UP_, VK_DOWN_, 'U', 'I', 'J', 'K'},  // player 2
};

inline void give_frames(Fighter& f) {
  for (int a = 0; a < MAX_ACTIONS; ++a) {
    f.act_first[a] = 2 + a * kSpan;
    f.act_last[a] = f.act_first[a] + 11;
    f.act_win_first[a] = 0;
    f.act_win_last[a] = 0;
  }
  f.act_first[9] = kJumpFirst;
  f.act_last[9] = kJumpFirst + kJumpLength;
  f.act_first[21] = kDiagonalFirst;
  f.act_last[21] = kDiagonalFirst + kJumpLength;
  std::memset(f.frame_part, 0, sizeof f.frame_part);
  std::memset(f.frame_hit, 0, sizeof f.frame_hit);
  std::memset(f.frame_offset, 0, sizeof f.frame_offset);
}

// What the drawing reports: the body point at the position (the hips sit a quarter unit
// behind it, as the root synchronisation expects), the head's box above it.
inline void draw() {
  for (int i = 0; i < 2; ++i) {
    Fighter& f = fighters[i];
    const float behind = StepSinTable[f.yaw % 360] > 0 ? -0.25f : 0.25f;
    Draw.Body_Centre[i][0] = f.pos_x + behind;
    Draw.Body_Centre[i][1] = f.height;
    Draw.Body_Centre[i][2] = f.pos_z;
    f.part_box[BOX_X_MIN][2] = f.pos_x - 0.5f, f.part_box[BOX_X_MAX][2] = f.pos_x + 0.5f;
    f.part_box[BOX_Y_MIN][2] = f.height + 3.0f, f.part_box[BOX_Y_MAX][2] = f.height + 4.0f;
    f.part_box[BOX_Z_MIN][2] = f.pos_z - 0.5f, f.part_box[BOX_Z_MAX][2] = f.pos_z + 0.5f;
  }
}

class FightTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Build_AngleTables();
    build_move_tables();
    Headless_ResetInput();
    std::memset(Players, 0, sizeof Players);
    std::memset(Joy, 0, sizeof Joy);
    Input_Init();
    Shell.GameMode = MODE_FIGHT;
    Match = MatchState{};
    Match.character[0] = 0;
    Match.character[1] = 1;
    Match.human[0] = Match.human[1] = 1;
    for (Fighter& f : fighters) {
      give_frames(f);
      f.wins = 0;
      f.gain_a = f.gain_b = 0;
      f.model_flag = 0;
      f.step_timer = 0;
    }
    clear_commands(0);
    clear_commands(1);
    reset_match_fighters();
    reset_round();
    Match.intro = -1;
    frame_count = 0;
    draw();
  }

  // One fight frame in the update's order, then the drawing's report.
  static void step() {
    Input_Read(0);
    Input_Read(1);
    fighter_input(0);
    fighter_input(1);
    fighter_animate(0);
    fighter_animate(1);
    move_step();
    if (++frame_count == 30000) frame_count = 0;
    draw();
  }
  static void steps(int n) {
    for (int k = 0; k < n; ++k) step();
  }
  // A button pressed for one frame.
  static void tap(int vk) {
    Headless_SetKey(vk, true);
    step();
    Headless_SetKey(vk, false);
  }
};

}  // namespace fightfix
