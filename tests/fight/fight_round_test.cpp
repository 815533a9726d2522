// Rounds and match rules: the round clock, time-over verdicts and draws, the ending wait after
// the deciding blow, and where a finished match sends the game.
#include <gtest/gtest.h>

#include <cstring>

#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_ranking.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/headless/headless.h"
#include "render/render_effect.h"
#include "scenes/scenes.h"
#include "shell/shell.h"

namespace {

class Round : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_ranks_ = Ranks;
    Shell = ShellState{};
    Shell.GameMode = MODE_FIGHT;
    Match = MatchState{};
    std::memset(Players, 0, sizeof Players);
    std::memset(&Effects, 0, sizeof Effects);
    std::memset(&Hits, 0, sizeof Hits);
    frame_count = 0;
    for (int i = 0; i < 2; ++i) {
      Fighter& f = fighters[i];
      for (int a = 0; a < MAX_ACTIONS; ++a) {
        f.act_first[a] = a * 10 + 1;
        f.act_last[a] = a * 10 + 9;
      }
      f.wins = f.streak = 0;
    }
    reset_round();
    Match.intro = -1;
  }
  void TearDown() override { Ranks = saved_ranks_; }

  // The last round of a two-round match, drawn on the bars when the clock ran out.
  static void drawn_last_round(int human0, int human1) {
    Match.human[0] = human0;
    Match.human[1] = human1;
    fighters[0].wins = fighters[1].wins = 1;
    fighters[0].life = fighters[1].life = 40;
    Match.time_over = 1;
    Match.time_over_frames = 59;
    resolve_time_over();
  }

  Rankings saved_ranks_;
};

TEST_F(Round, TheClockRunsOutAfterThreeThousandFrames) {
  Match.time_limit = 6000;
  Match.clock_reset = 1;
  update_clock();  // the restart frame
  EXPECT_EQ(Match.clock, 0);
  for (int i = 0; i < 3000; ++i) update_clock();
  EXPECT_EQ(Match.clock_left, 0);
  EXPECT_EQ(Match.time_over, 0);
  update_clock();
  EXPECT_EQ(Match.time_over, 1);
  EXPECT_EQ(Match.clock_reset, 1);  // the clock stops
  update_clock();
  EXPECT_EQ(Match.clock, 0);
  EXPECT_EQ(Match.clock_left, 0);

  Match = MatchState{};  // while the intro or the "fight" call runs the clock stays at 0
  Match.intro = 1;
  for (int i = 0; i < 10; ++i) update_clock();
  EXPECT_EQ(Match.clock, 0);
}

TEST_F(Round, TimeOverGoesToTheFullerBarAndNeverCountsAsPerfect) {
  Match.human[0] = Match.human[1] = 1;
  fighters[0].life = 30;
  fighters[1].life = 31;
  Match.time_over = 1;
  Match.time_over_frames = 58;
  resolve_time_over();
  EXPECT_EQ(Match.ko_state, 0);  // the verdict comes on the sixtieth frame
  resolve_time_over();
  EXPECT_EQ(Match.winner, 1);
  EXPECT_EQ(fighters[1].wins, 1);
  EXPECT_EQ(fighters[1].perfect, 0);
  EXPECT_TRUE(fighters[1].action == 12 || fighters[1].action == 13);
  EXPECT_EQ(fighters[0].action, 50);
  EXPECT_EQ(Match.frozen, 1);
  EXPECT_EQ(Match.ko_state, 2);
}

TEST_F(Round, ADrawnLastRoundIsLostByTheHumanAgainstTheComputer) {
  drawn_last_round(1, 0);
  EXPECT_EQ(Match.winner, 1);
  EXPECT_EQ(fighters[0].wins, 1);  // its extra win taken back
  EXPECT_EQ(fighters[1].wins, 2);

  SetUp();
  drawn_last_round(0, 1);
  EXPECT_EQ(Match.winner, 0);
  EXPECT_EQ(fighters[1].wins, 1);
}

TEST_F(Round, TwoHumansDrawingTheLastRoundWithoutStreaksBothLose) {
  drawn_last_round(1, 1);
  EXPECT_EQ(Match.human[0] + Match.human[1], 0);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_EQ(Match.frozen, 0);

  SetUp();  // a streak decides it
  fighters[1].streak = 2;
  drawn_last_round(1, 1);
  EXPECT_EQ(Match.winner, 1);
  EXPECT_EQ(fighters[0].wins, 1);
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
}

TEST_F(Round, ADrawnEarlierRoundCountsForBothAndStartsTheNext) {
  Match.human[0] = Match.human[1] = 1;
  fighters[0].life = fighters[1].life = 40;
  Match.time_over = 1;
  Match.time_over_frames = 59;
  resolve_time_over();
  EXPECT_EQ(fighters[0].wins, 1);
  EXPECT_EQ(fighters[1].wins, 1);
  EXPECT_EQ(fighters[0].life, 85);  // a fresh round
  EXPECT_EQ(Match.frozen, 0);
}

TEST_F(Round, AFinishedMatchSendsTheGameOn) {
  Match.rounds_to_win = 2;
  Match.human[0] = 1;  // the human beats the computer: the next opponent
  fighters[0].wins = 2;
  end_round();
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT_LOAD);
  EXPECT_EQ(Match.stage_count, 1);

  SetUp();  // the computer wins: continue
  Match.human[0] = 1;
  fighters[1].wins = 2;
  end_round();
  EXPECT_EQ(Shell.GameMode, MODE_CONTINUE);

  SetUp();  // between two humans the winner's streak grows and the loser leaves
  Match.human[0] = Match.human[1] = 1;
  fighters[1].wins = 2;
  end_round();
  EXPECT_EQ(fighters[1].streak, 1);
  EXPECT_EQ(Match.human[0], 0);
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT_LOAD);

  SetUp();  // the eleventh opponent beaten: the ending
  Match.human[1] = 1;
  Match.stage_count = 10;
  fighters[1].wins = 2;
  end_round();
  EXPECT_EQ(Shell.GameMode, MODE_ENDING);

  SetUp();  // no one has won the match yet: the next round
  fighters[0].wins = 1;
  fighters[0].damage = 40;
  end_round();
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
  EXPECT_EQ(fighters[0].damage, 0);
}

TEST_F(Round, AStartPressOnTheComputersSideCallsAChallenger) {
  Headless_ResetInput();
  Input_Init();
  Match.human[0] = 1;
  Match.credits = 3;
  Match.hit_stop = 5;  // the fighters stay as they are
  Headless_SetKey('A', true);  // player 1's start: a player in the match does not interrupt it
  Fight_Update();
  EXPECT_EQ(Match.challenger, 0);
  Headless_SetKey('K', true);  // player 2's start on the computer's side
  Fight_Update();
  Headless_ResetInput();
  EXPECT_EQ(Match.challenger, 2);
  EXPECT_EQ(Match.credits, 2);
  EXPECT_EQ(Match.challenger_phase, 3);
}

}  // namespace
