// The title screen: the attract cycle it hands over to, the start press that begins a game,
// the hidden unlock, and the pulsing prompt.
#include "audio/audio.h"
#include "hud/hud_screens.h"
#include "scenes/front_fixture.h"

namespace {

using front_test::P1_A1;
using front_test::P1_A2;
using front_test::P1_A3;
using front_test::P1_START;

class TitleScreen : public front_test::FrontTest {
 protected:
  void SetUp() override {
    FrontTest::SetUp();
    for (const PictureEntry& e : scene_test::entries(PICS_TITLE))
      scene_test::write_colour(e.file, 0, 0, 0, 16, 16);
    Shell.GameMode = MODE_TITLE;
    Shell.TitleEnter = 1;
  }
  // Back at the title, as every attract item returns to it.
  static void back_to_title() {
    Shell.GameMode = MODE_TITLE;
    Shell.TitleEnter = 1;
  }
};

}  // namespace

TEST_F(TitleScreen, AQuietTitleHandsOverToTheAttractItemsInTurnAfter700Frames) {
  struct Item {
    std::int32_t mode;
    std::int32_t page;  // the ranking shown, for a ranking
  };
  // After the opening at start-up: demonstration, ranking (streaks first), demonstration,
  // opening, demonstration, ranking (times), ...
  const Item cycle[] = {{MODE_DEMO_LOAD, -1}, {MODE_RANKING, RANKING_STREAK},
                        {MODE_DEMO_LOAD, -1}, {MODE_OPENING, -1},
                        {MODE_DEMO_LOAD, -1}, {MODE_RANKING, RANKING_TIME},
                        {MODE_DEMO_LOAD, -1}};
  bool first = true;
  for (const Item& item : cycle) {
    fighters[0].streak = 4;
    if (first) {
      frames(TITLE_WAIT - 1);
    } else {  // the later waits run their last frames only
      frames(1);
      TitleTimer = TITLE_WAIT - 2;
      frames(1);
    }
    first = false;
    ASSERT_EQ(Shell.GameMode, MODE_TITLE);
    EXPECT_EQ(fighters[0].streak, 0);  // leaving for the title ends a streak
    frames(1);
    ASSERT_EQ(Shell.GameMode, item.mode);
    if (item.mode == MODE_RANKING) {
      EXPECT_EQ(Shell.RankingEnter, 1);
      EXPECT_EQ(Title.RankingPage, item.page);
    }
    if (item.mode == MODE_OPENING) {
      EXPECT_EQ(Shell.OpeningEnter, 1);
    }
    back_to_title();
  }
}

TEST_F(TitleScreen, StartOnThe699thFrameBeginsAGameAndTheCycleStays) {
  frames(1);
  TitleTimer = TITLE_WAIT - 3;  // the title's 697th frame has run
  frames(1);
  Headless_SetKey(P1_START, true);
  frames(1);
  EXPECT_EQ(Shell.GameMode, MODE_SELECT);
  EXPECT_EQ(Shell.SelectEnter, 1);
  EXPECT_EQ(Match.human[0], 1);
  EXPECT_EQ(Match.human[1], 0);
  EXPECT_EQ(Match.credits, 99);
  EXPECT_EQ(Title.AttractStep, 1);  // the attract cycle has not moved
  EXPECT_EQ(Settings.extra_characters, 0);
}

TEST_F(TitleScreen, StartWithAllFourAttacksHeldUnlocksTheExtraCharacters) {
  // Attacks 1 to 3 held first; the fourth is the start button itself.
  for (int vk : {P1_A1, P1_A2, P1_A3}) Headless_SetKey(vk, true);
  frames(1);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  Headless_SetKey(P1_START, true);
  frames(1);
  EXPECT_EQ(Shell.GameMode, MODE_SELECT);
  EXPECT_EQ(Settings.extra_characters, 1);
}

TEST_F(TitleScreen, ThePromptPulsesOver128Frames) {
  scene_test::write_colour("pstrt1.bmp", 255, 255, 255, 64, 16);
  frames(1);  // entry: the pictures load
  // The prompt's level rises by 4 a frame to 252 and falls back to 0.
  for (int f = 0; f < 128; ++f) {
    const int expected = f < 64 ? 4 * f : 4 * (127 - f);
    ASSERT_EQ(Title_PromptLevel(f), expected) << f;
    ASSERT_EQ(Title_PromptLevel(f + 128), expected) << f;
  }
  // On the screen: bright at the top of the pulse, gone at its end.
  frame_count = 62;  // the next frame is 63
  frames(1);
  EXPECT_TRUE(shows(150, 290, 249, 249, 249));
  frame_count = 126;
  frames(1);
  EXPECT_TRUE(shows(150, 290, 0, 0, 0));
}

TEST_F(TitleScreen, AStartPressDuringTheAttractItemsReturnsWithTheTimerAtZero) {
  frames(1);
  TitleTimer = TITLE_WAIT - 1;
  frames(1);
  ASSERT_EQ(Shell.GameMode, MODE_DEMO_LOAD);
  Shell.GameMode = MODE_RANKING;  // as if the item were running; its input read saw start
  Players[0].start_pressed = 1;
  Shell.RankingEnter = 0;
  System_Keys();
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_EQ(TitleTimer, 0);
  Players[0].start_pressed = 0;
  frames(1);
  EXPECT_EQ(TitleTimer, 1);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
}
