// The options screen: each row's range and wrap, both players on one screen, the button rows,
// and leaving by the exit row, which saves what the screen showed.
#include <vector>

#include "scenes/front_fixture.h"

namespace {

using namespace front_test;

class OptionsScreen : public FrontTest {
 protected:
  void SetUp() override {
    FrontTest::SetUp();
    scene_test::write_set(PICS_OPTIONS);
  }
  // F2 from wherever the game is.
  static void open_options() {
    press({VK_F2_});
    ASSERT_EQ(Shell.GameMode, MODE_OPTIONS);
  }
  static void to_row(int row) {
    while (Options.OptionsRow != row) press({P1_DOWN});
  }
};

// The values a row runs through, stepping one way from a start, until it is back.
std::vector<int> run_round(int row, int dir, std::int32_t* value) {
  std::vector<int> seen;
  const std::int32_t start = *value;
  do {
    Options_Step(row, dir);
    seen.push_back(*value);
  } while (*value != start && seen.size() < 20);
  return seen;
}

}  // namespace

TEST_F(OptionsScreen, EachRowStepsWithinItsRangeAndWraps) {
  using V = std::vector<int>;
  Settings.difficulty = 1;
  EXPECT_EQ(run_round(OPT_DIFFICULTY, -1, &Settings.difficulty), (V{5, 4, 3, 2, 1}));
  EXPECT_EQ(run_round(OPT_DIFFICULTY, +1, &Settings.difficulty), (V{2, 3, 4, 5, 1}));
  Match.time_limit = 6000;
  EXPECT_EQ(run_round(OPT_TIME, -1, &Match.time_limit), (V{9000, 8000, 7000, 6000}));
  EXPECT_EQ(run_round(OPT_TIME, +1, &Match.time_limit), (V{7000, 8000, 9000, 6000}));
  Match.life_setting = 2;
  EXPECT_EQ(run_round(OPT_LIFE, +1, &Match.life_setting), (V{3, 1, 2}));
  Match.rounds_to_win = 1;
  EXPECT_EQ(run_round(OPT_ROUNDS, -1, &Match.rounds_to_win), (V{3, 2, 1}));
  Settings.coins_per_credit = 5;
  EXPECT_EQ(run_round(OPT_COINS, +1, &Settings.coins_per_credit), (V{1, 2, 3, 4, 5}));
  Settings.frame_rate = 40;
  EXPECT_EQ(run_round(OPT_RATE, -1, &Settings.frame_rate),
            (V{80, 75, 70, 65, 60, 55, 50, 45, 40}));
  Settings.frame_rate = 80;
  Options_Step(OPT_RATE, +1);
  EXPECT_EQ(Settings.frame_rate, 40);
  Settings.sound = 1;
  EXPECT_EQ(run_round(OPT_SOUND, -1, &Settings.sound), (V{0, 1}));
  EXPECT_EQ(run_round(OPT_EXTRA, +1, &Settings.extra_characters), (V{1, 0}));
  // The button rows and the exit have no value.
  const SettingsState before = Settings;
  const MatchState match_before = Match;
  for (int row = OPT_BUTTON_1; row <= OPT_EXIT; ++row) Options_Step(row, +1);
  EXPECT_EQ(Settings.difficulty, before.difficulty);
  EXPECT_EQ(Match.time_limit, match_before.time_limit);
}

TEST_F(OptionsScreen, TheCursorWrapsAndBothPlayersDriveTheSameScreen) {
  open_options();
  EXPECT_EQ(Options.OptionsRow, 0);
  press({P1_UP});
  EXPECT_EQ(Options.OptionsRow, OPT_EXIT);
  press({P1_DOWN});
  EXPECT_EQ(Options.OptionsRow, 0);
  press({VK_DOWN_});  // player 2's down
  EXPECT_EQ(Options.OptionsRow, OPT_TIME);
  press({P1_RIGHT, P2_RIGHT});  // both in one frame: two steps
  EXPECT_EQ(Match.time_limit, 8000);
}

TEST_F(OptionsScreen, AButtonRowTakesThePressedButtonAndGivesItsOwnAway) {
  open_options();
  to_row(OPT_BUTTON_1 + 1);  // slot 2, on button B
  press({P1_A1});            // button A, slot 1's
  EXPECT_EQ(ButtonMask[0][1], 0x10);
  EXPECT_EQ(ButtonMask[0][0], 0x20);
  EXPECT_EQ(ButtonMask[1][0], 0x10);  // player 2's are their own
  press({P1_A2});  // button B, now slot 1's: the two change back
  EXPECT_EQ(ButtonMask[0][1], 0x20);
  EXPECT_EQ(ButtonMask[0][0], 0x10);
  // Pressing the button a slot already has changes nothing.
  press({P1_A2});
  EXPECT_EQ(ButtonMask[0][1], 0x20);
  EXPECT_EQ(ButtonMask[0][0], 0x10);
  EXPECT_EQ(Shell.GameMode, MODE_OPTIONS);  // attack buttons elsewhere do not leave
}

TEST_F(OptionsScreen, FromAFightTheExitRowSavesWhatTheScreenShowedAndGoesToTheTitle) {
  Shell.GameMode = MODE_FIGHT;  // F2 works from a running fight too
  open_options();
  press({P1_RIGHT});  // difficulty 3
  to_row(OPT_LIFE);
  press({P1_LEFT});  // life 1
  to_row(OPT_SOUND);
  press({P1_LEFT});  // sound off
  to_row(OPT_RATE);
  press({P1_RIGHT});  // 70 frames a second
  to_row(OPT_BUTTON_1 + 3);
  press({P1_A1});  // kick 2 on button A
  const SettingsState shown = Settings;
  const MatchState shown_match = Match;
  std::int16_t shown_buttons[2][4];
  std::memcpy(shown_buttons, ButtonMask, sizeof shown_buttons);

  to_row(OPT_EXIT);
  Headless_SetKey(P1_A1, true);
  frames(1);
  Headless_SetKey(P1_A1, false);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_EQ(Shell.TitleEnter, 1);
  ASSERT_EQ(read_all("OPTION.CFG").size(), static_cast<std::size_t>(SETTINGS_FILE_SIZE));

  // Read back into a fresh game: the same values.
  initial();
  Settings_Load();
  EXPECT_EQ(Settings.difficulty, 3);
  EXPECT_EQ(Settings.difficulty, shown.difficulty);
  EXPECT_EQ(Settings.sound, shown.sound);
  EXPECT_EQ(Settings.frame_rate, 70);
  EXPECT_EQ(Settings.frame_rate, shown.frame_rate);
  EXPECT_EQ(Settings.extra_characters, shown.extra_characters);
  EXPECT_EQ(Settings.coins_per_credit, shown.coins_per_credit);
  EXPECT_EQ(Match.life_setting, 1);
  EXPECT_EQ(Match.life_setting, shown_match.life_setting);
  EXPECT_EQ(Match.time_limit, shown_match.time_limit);
  EXPECT_EQ(Match.rounds_to_win, shown_match.rounds_to_win);
  EXPECT_EQ(ButtonMask[0][3], 0x10);
  EXPECT_EQ(std::memcmp(ButtonMask, shown_buttons, sizeof shown_buttons), 0);
}
