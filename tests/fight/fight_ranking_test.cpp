// The rankings: placement above equal entries, the spill slot, the places the time entry
// reports, and the start-up adjustment to the life setting.
#include <gtest/gtest.h>

#include "fight/fight_ranking.h"
#include "fight/fight_state.h"

namespace {

class Ranking : public ::testing::Test {
 protected:
  void SetUp() override { saved_ = Ranks; }
  void TearDown() override { Ranks = saved_; }
  Rankings saved_;
};

TEST_F(Ranking, StreakGoesAboveEqualEntriesAndPushesTheTenthIntoTheSpillSlot) {
  fighters[0].streak = 4;
  Match.character[0] = 12;
  Enter_StreakRanking(0);
  EXPECT_EQ(fighters[0].streak, 0);
  const RankEntry* t = Ranks.StreakRanking;
  EXPECT_EQ(t[1].value, 5);  // still under the two fives
  EXPECT_EQ(t[2].value, 4);
  EXPECT_EQ(t[2].character, 12);  // above the old fours
  EXPECT_EQ(t[3].character, 2);
  EXPECT_EQ(t[10].value, 2);  // the old tenth fell into the spill slot
  EXPECT_EQ(t[10].character, 9);

  fighters[1].streak = 1;  // below every shown entry: no place, streak still cleared
  Enter_StreakRanking(1);
  EXPECT_EQ(fighters[1].streak, 0);
  EXPECT_EQ(t[9].value, 2);
}

TEST_F(Ranking, TimeEntryReportsOnlyTheTopFivePlaces) {
  Match.character[1] = 3;
  Match.clock = 1000;  // best of all
  EXPECT_EQ(Enter_TimeRanking(1), 1);
  EXPECT_EQ(Ranks.TimeRanking[0].value, 1000);
  Match.clock = 2100;  // equal to the old second: placed above it, third now
  EXPECT_EQ(Enter_TimeRanking(1), 3);
  EXPECT_EQ(Ranks.TimeRanking[2].character, 3);
  Match.clock = 2450;  // lands eighth: ranked but no place reported
  EXPECT_EQ(Enter_TimeRanking(1), 0);
  EXPECT_EQ(Ranks.TimeRanking[7].value, 2450);
  Match.clock = 9000;  // slower than the tenth: not ranked
  const RankEntry tenth = Ranks.TimeRanking[9];
  EXPECT_EQ(Enter_TimeRanking(1), 0);
  EXPECT_EQ(Ranks.TimeRanking[9].value, tenth.value);
}

TEST_F(Ranking, StartUpRaisesTheTimesWithTheLifeSetting) {
  Adjust_TimeRanking(1);
  EXPECT_EQ(Ranks.TimeRanking[0].value, 2000);
  Ranks = saved_;
  Adjust_TimeRanking(3);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(Ranks.TimeRanking[i].value, 4000 + 100 * i);
  EXPECT_EQ(Ranks.TimeRanking[10].value, 4600);
}

}  // namespace
