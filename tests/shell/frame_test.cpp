// The frame loop and the mode machine: system keys, coin counting, the frame counter, the
// fight frame's white flashes and hidden first picture, and start-up without data.
#include <gtest/gtest.h>

#include <cstring>

#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/headless/headless.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"
#include "support/test_support.h"

namespace {

// Scenes that the frame loop runs load their pictures, so the loop runs in the generated data
// set (skipped where the build has none).
class FrameLoop : public ::testing::Test {
 protected:
  void SetUp() override {
    char cwd[1024];
    ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
    old_dir_ = cwd;
    if (access(VALDRUNE_DATA_DIR "/OPEN_POS.CAM", R_OK) != 0) GTEST_SKIP() << "no data set";
    ASSERT_EQ(chdir(VALDRUNE_DATA_DIR), 0);
    test::ensure_gl();
    Headless_ResetInput();
    Shell = ShellState{};
    Match = MatchState{};
    Settings = SettingsState{};
    std::memset(Players, 0, sizeof Players);
    std::memset(Joy, 0, sizeof Joy);
    Input_Init();
    frame_count = 0;
    Set_FrameRate(65);
  }
  void TearDown() override { ASSERT_EQ(chdir(old_dir_.c_str()), 0); }
  // What a scene does each frame before the next frame's system keys look at start.
  static void read_players() {
    for (int p = 0; p < 2; ++p) {
      Input_Clear(p);
      Input_Read(p);
    }
  }
  std::string old_dir_;
};

}  // namespace

TEST_F(FrameLoop, FreePlayRefillsCreditsAndCoinsCountPerCredit) {
  Shell.GameMode = 4;  // a value no scene uses: only the steps before the dispatch run
  Settings.coins_per_credit = 2;
  Run_Frame();
  EXPECT_EQ(Match.credits, 100);
  Headless_SetKey(VK_F1_, true);
  Run_Frame();
  EXPECT_EQ(Shell.CoinCount, 1);
  EXPECT_EQ(Match.credits, 100);
  Run_Frame();  // still held: counted once
  EXPECT_EQ(Shell.CoinCount, 1);
  Headless_SetKey(VK_F1_, false);
  Run_Frame();
  EXPECT_EQ(Shell.StartLatch, 0);
  Headless_SetKey(VK_F1_, true);
  Run_Frame();
  EXPECT_EQ(Shell.CoinCount, 0);
  EXPECT_EQ(Match.credits, 101);  // the second coin made a credit
}

TEST_F(FrameLoop, StartPressDuringTheAttractSequenceGoesToTheTitle) {
  const std::int32_t attract[] = {MODE_OPENING, MODE_ENDING, MODE_RANKING, MODE_DEMO_LOAD};
  for (std::int32_t mode : attract) {
    Shell.GameMode = mode;
    Shell.TitleEnter = 0;
    Shell.StartLatch = 0;
    TitleTimer = 321;
    Players[1].start_pressed = 1;  // as left by the scene's last input read
    Run_Frame();
    // The title takes over in the same frame: entered afresh, its wait started again.
    EXPECT_EQ(Shell.GameMode, MODE_TITLE) << mode;
    EXPECT_EQ(Shell.TitleEnter, 0) << mode;
    EXPECT_EQ(TitleTimer, 1) << mode;
    Players[1].start_pressed = 0;
    Run_Frame();
  }
  // The demonstration fight too, but not a fight a person plays.
  Shell.GameMode = MODE_FIGHT;
  Match.demo = 1;
  Headless_SetJoyButton(1, 4, true);  // the fourth button is start
  read_players();
  Run_Frame();
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  Headless_SetJoyButton(1, 4, false);
  read_players();
  Run_Frame();
  Shell.GameMode = MODE_FIGHT;
  Match.demo = 0;
  Headless_SetJoyButton(1, 4, true);
  read_players();
  Run_Frame();
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
}

TEST_F(FrameLoop, OptionsKeyWorksFromEveryMode) {
  const std::int32_t modes[] = {MODE_TITLE,   MODE_SELECT,  MODE_FIGHT,   MODE_CONTINUE,
                                MODE_OPENING, MODE_ENDING,  MODE_RANKING, MODE_DEMO_LOAD};
  for (std::int32_t mode : modes) {
    Shell.GameMode = mode;
    Shell.OptionsEnter = 0;
    Headless_SetKey(VK_F2_, true);
    Run_Frame();
    EXPECT_EQ(Shell.GameMode, MODE_OPTIONS) << mode;
    EXPECT_EQ(Shell.OptionsEnter, 0) << mode;  // the options were entered in the same frame
    Headless_SetKey(VK_F2_, false);
  }
  Shell.OptionsEnter = 0;  // already in the options: the entry is not repeated
  Headless_SetKey(VK_F2_, true);
  Run_Frame();
  EXPECT_EQ(Shell.OptionsEnter, 0);
}

TEST_F(FrameLoop, FrameCounterWrapsAt30000) {
  Shell.GameMode = 4;  // a value no scene uses: only the steps before the dispatch run
  frame_count = 29998;
  Run_Frame();
  EXPECT_EQ(frame_count, 29999);
  Run_Frame();
  EXPECT_EQ(frame_count, 0);
}

TEST_F(FrameLoop, TitleClearsBothStreaks) {
  fighters[0].streak = 3;
  fighters[1].streak = 1;
  Shell.GameMode = MODE_TITLE;
  Run_Frame();
  EXPECT_EQ(fighters[0].streak, 0);
  EXPECT_EQ(fighters[1].streak, 0);
}

TEST_F(FrameLoop, EscapeQuitsWithStatusZero) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // the GL driver runs threads
  Shell.GameMode = 4;
  Headless_SetKey(VK_ESCAPE_, true);
  EXPECT_EXIT(Run_Frame(), ::testing::ExitedWithCode(0), "");
}

TEST_F(FrameLoop, HeldCoinKeyHidesEscape) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  Shell.GameMode = 4;
  Headless_SetKey(VK_F1_, true);
  Run_Frame();
  Headless_SetKey(VK_ESCAPE_, true);
  Run_Frame();  // F1 still held: Escape is not looked at, the process goes on
  Run_Frame();
  EXPECT_EQ(Shell.StartLatch, 1);
  Headless_SetKey(VK_F1_, false);
  EXPECT_EXIT(Run_Frame(), ::testing::ExitedWithCode(0), "");
}

TEST_F(FrameLoop, WhiteFramesAreShownThenTheFirstRoundPictureIsHidden) {
  Shell.GameMode = MODE_FIGHT;
  Shell.WhiteFrames = 2;
  const long presented = Headless_Presented();
  Run_Frame();
  Run_Frame();
  EXPECT_EQ(Headless_Presented(), presented + 2);
  EXPECT_EQ(Shell.WhiteFrames, 0);
  const std::uint8_t* px = Headless_Pixels();
  EXPECT_EQ(px[0], 255);
  EXPECT_EQ(px[(240 * 640 + 320) * 4 + 1], 255);
  Shell.SkipPresent = 1;
  Run_Frame();  // drawn but not shown
  EXPECT_EQ(Headless_Presented(), presented + 2);
  EXPECT_EQ(Shell.SkipPresent, 0);
  Run_Frame();
  EXPECT_EQ(Headless_Presented(), presented + 3);
}

TEST_F(FrameLoop, UndrawnFightFramesPresentNothing) {
  Shell.GameMode = MODE_FIGHT;
  Match.intro = -1;  // the round runs (the intro keeps setting the frame rate afresh)
  Run_Frame();
  const long presented = Headless_Presented();
  Headless_AdvanceClock(200);  // a long stall: the following frames are behind
  Run_Frame();
  Run_Frame();
  EXPECT_EQ(Headless_Presented(), presented);
}

class StartUp : public test::TempDirTest {};

TEST_F(StartUp, WithoutDataItStopsAtTheSharedAnimationFile) {
  ::testing::internal::CaptureStdout();
  const int status = Game_Main();
  const std::string out = ::testing::internal::GetCapturedStdout();
  EXPECT_EQ(status, 1);
  EXPECT_EQ(out, "Preload FX3 Error ");
}
