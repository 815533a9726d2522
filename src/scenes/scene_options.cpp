// The options screen: both players move one cursor over thirteen rows, change the settings
// with left and right, give each attack slot the button they press, and leave by the exit row,
// which saves the settings and returns to the title.
#include <cstdio>

#include "audio/audio.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "input/input.h"
#include "platform/platform.h"
#include "render/render_state.h"
#include "scenes/scene_pictures.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"

OptionsState Options;

namespace {

// A setting that steps by `step` between `low` and `high`; past an end it wraps to `wrap_down`
// (stepping down) or `wrap_up` (stepping up).
struct Range {
  std::int32_t low, high, step, wrap_down, wrap_up;
};
constexpr Range kDifficulty = {1, 5, 1, 5, 1};
constexpr Range kTime = {5001, 9000, 1000, 9000, 6000};  // 60..90 seconds
constexpr Range kLife = {1, 3, 1, 3, 1};
constexpr Range kRounds = {1, 3, 1, 3, 1};
constexpr Range kCoins = {1, 5, 1, 5, 1};

void step_range(std::int32_t& v, const Range& r, int dir) {
  v += dir < 0 ? -r.step : r.step;
  if (v < r.low) v = r.wrap_down;
  if (v > r.high) v = r.wrap_up;
}

// The frame rate steps by 5 between 40 and 80 and wraps round at both ends.
void step_rate(int dir) {
  std::int32_t& v = Settings.frame_rate;
  if (dir < 0)
    v = v > 40 ? v - 5 : 80;
  else
    v = v < 80 ? v + 5 : 40;
}

void toggle(std::int32_t& v) { v = v == 0 ? 1 : 0; }

bool any_attack_pressed(const PlayerInput& in) {
  return in.attack1_pressed || in.attack2_pressed || in.attack3_pressed || in.attack4_pressed;
}

// The attack slot (0..3) whose button was pressed first in slot order.
int pressed_slot(const PlayerInput& in) {
  if (in.attack1_pressed) return 0;
  if (in.attack2_pressed) return 1;
  if (in.attack3_pressed) return 2;
  return 3;
}

void leave_options() {
  Play_Sound(SND_START);
  Settings_Save();
  Shell.TitleEnter = 1;
  Shell.GameMode = MODE_TITLE;
}

void options_enter() {
  if (!Load_OptionsPictures()) {
    Plat_DebugOut("053");
    std::printf("Option Texture Error\n");
    Plat_Exit(0);
  }
  Options.OptionsRow = 0;
}

void player_step(int p) {
  Input_Clear(p);
  Input_Read(p);
  const PlayerInput& in = Players[p];
  if (in.left_tap >= 1) {
    Play_Sound(SND_CURSOR);
    Options_Step(Options.OptionsRow, -1);
  } else if (in.right_tap > 0) {
    Play_Sound(SND_CURSOR);
    Options_Step(Options.OptionsRow, +1);
  }
  if (in.up_tap >= 1) {
    Play_Sound(SND_CURSOR);
    if (--Options.OptionsRow < 0) Options.OptionsRow = OPTION_ROWS - 1;
  } else if (in.down_tap > 0) {
    Play_Sound(SND_CURSOR);
    if (++Options.OptionsRow >= OPTION_ROWS) Options.OptionsRow = 0;
  }
  if (!any_attack_pressed(in)) return;
  const int row = Options.OptionsRow;
  if (row == OPT_EXIT)
    leave_options();
  else if (row >= OPT_BUTTON_1 && row <= OPT_BUTTON_4)
    Assign_Button(p, row - OPT_BUTTON_1, pressed_slot(in));
}

}  // namespace

void Options_Step(int row, int dir) {
  switch (row) {
    case OPT_DIFFICULTY: step_range(Settings.difficulty, kDifficulty, dir); break;
    case OPT_TIME: step_range(Match.time_limit, kTime, dir); break;
    case OPT_LIFE: step_range(Match.life_setting, kLife, dir); break;
    case OPT_ROUNDS: step_range(Match.rounds_to_win, kRounds, dir); break;
    case OPT_EXTRA: toggle(Settings.extra_characters); break;
    case OPT_SOUND: toggle(Settings.sound); break;
    case OPT_COINS: step_range(Settings.coins_per_credit, kCoins, dir); break;
    case OPT_RATE: step_rate(dir); break;
    default: break;  // the button rows and the exit have no value to step
  }
}

void Assign_Button(int player, int slot, int button) {
  if (player < 0 || player > 1 || slot < 0 || slot > 3 || button < 0 || button > 3) return;
  if (slot == button) return;
  std::int16_t* mask = ButtonMask[player];
  const std::int16_t old = mask[slot];
  mask[slot] = mask[button];
  mask[button] = old;
}

void Options_Update() {
  for (int p = 0; p < 2; ++p) player_step(p);
}

void Options_Scene() {
  if (Shell.OptionsEnter == 1) {
    Shell.OptionsEnter = 0;
    options_enter();
  }
  Options_Update();
  Clear_Depth();
  Clear_Screen(0, 0, 0);
  Set_DrawMode(40);
  DrawOptionsScreen(Options.OptionsRow);
  Swap_Buffers();
}
