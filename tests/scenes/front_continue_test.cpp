// Continue and game over: the count-down's seconds, a coin restarting it, buttons hurrying it,
// the game-over picture and the return to the title, and a continue into a fresh match.
#include "audio/audio.h"
#include "scenes/front_fixture.h"

namespace {

using namespace front_test;

class ContinueScreen : public FrontTest {
 protected:
  void SetUp() override {
    FrontTest::SetUp();
    // The computer (side 1) has won the match against player 1.
    Match.human[0] = 1;
    Match.human[1] = 0;
    Match.winner = 1;
    Match.character[1] = 5;
    fighters[0].wins = 1;
    fighters[1].wins = Match.rounds_to_win;
    fighters[0].gauge = fighters[1].gauge = 250;
    Shell.GameMode = MODE_CONTINUE;
    ContinueTimer = 0;
    Continue_Begin(0);
  }
};

}  // namespace

TEST_F(ContinueScreen, TheWinnerLeavesAndTheLoserStandsAlone) {
  EXPECT_EQ(fighters[1].pos_x, 100.0f);
  EXPECT_EQ(fighters[1].height, 100.0f);
  EXPECT_EQ(fighters[0].yaw, 180);
  EXPECT_EQ(fighters[0].busy, 1);
  EXPECT_EQ(MusicTrack, TRACK_CONTINUE);
  frames(1);
  EXPECT_FLOAT_EQ(FightCamera.distance, 10.01f);  // zooming out from 10
  frames(600);
  EXPECT_FLOAT_EQ(FightCamera.distance, 15.0f);  // and no further than 15
}

TEST_F(ContinueScreen, TheCountDownStepsOnceASecondAndACoinRestartsIt) {
  frames(SECOND_FRAMES - 1);
  EXPECT_EQ(ContinueTimer, 0);
  frames(1);
  EXPECT_EQ(ContinueTimer, 1);
  frames(3 * SECOND_FRAMES);
  EXPECT_EQ(ContinueTimer, 4);
  press({VK_F1_});  // a coin: the count shows 9 again
  EXPECT_EQ(ContinueTimer, 0);
  EXPECT_EQ(Shell.GameMode, MODE_CONTINUE);
}

TEST_F(ContinueScreen, WhenTheCountEndsGameOverShowsForThreeSecondsThenTheTitle) {
  frames(CONTINUE_GAME_OVER * SECOND_FRAMES);
  EXPECT_EQ(ContinueTimer, CONTINUE_GAME_OVER);
  EXPECT_EQ(Continue.ContinueCall, 0);  // the game-over call has sounded
  EXPECT_EQ(Shell.GameMode, MODE_CONTINUE);
  frames(3 * SECOND_FRAMES - 1);
  EXPECT_EQ(Shell.GameMode, MODE_CONTINUE);
  frames(1);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_EQ(Shell.TitleEnter, 1);
}

TEST_F(ContinueScreen, AttackButtonsHurryTheCountDown) {
  for (int k = 0; k < CONTINUE_GAME_OVER; ++k) press({P1_A1});
  EXPECT_EQ(ContinueTimer, CONTINUE_GAME_OVER);  // game over at once
  EXPECT_EQ(Shell.GameMode, MODE_CONTINUE);
}

TEST_F(ContinueScreen, StartDuringGameOverStillContinuesIntoAFreshMatch) {
  for (int k = 0; k < 11; ++k) press({P1_A1});
  ASSERT_EQ(ContinueTimer, 11);
  Headless_SetKey(P1_START, true);
  frames(1);
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
  EXPECT_EQ(Match.human[0], 1);
  EXPECT_EQ(Match.human[1], 0);
  for (const Fighter& f : fighters) {
    EXPECT_EQ(f.gauge, 100);
    EXPECT_EQ(f.gauge_spend, 0);
    EXPECT_EQ(f.wins, 0);
  }
  EXPECT_EQ(MusicTrack, Music_StageTrack(5));  // the winner's stage plays again
  EXPECT_EQ(Match.credits, 99);
}
