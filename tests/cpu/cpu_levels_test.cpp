// The computer's level at the start of a fight.
#include <gtest/gtest.h>

#include "cpu/cpu.h"
#include "fight/fight_state.h"
#include "settings/settings.h"

TEST(CpuLevels, GameLevelFallsWithTheStageFasterAtTheTopDifficulty) {
  struct Case {
    int difficulty, stage, level;
  };
  const Case cases[] = {
      {1, 0, 200}, {2, 0, 200}, {3, 0, 180}, {4, 0, 170}, {5, 0, 170},  // the first opponent
      {2, 1, 150}, {3, 1, 150}, {5, 1, 145}, {2, 5, 70},  {5, 4, 70},
      {1, 6, 50},  {4, 6, 50},  {4, 10, 50}, {5, 5, 50},  {5, 10, 50},  // the floor
  };
  for (const Case& c : cases) {
    Settings.difficulty = c.difficulty;
    Match.stage_count = c.stage;
    CpuSetupLevels(1);
    EXPECT_EQ(Cpu.CpuLevel[1], c.level) << c.difficulty << " " << c.stage;
    EXPECT_EQ(Cpu.CpuBaseLevel[1], c.level);
  }
  // A difficulty outside 1..5 leaves the level alone; the other fighter is never touched.
  Cpu.CpuLevel[0] = 33;
  Settings.difficulty = 0;
  CpuSetupLevels(1);
  EXPECT_EQ(Cpu.CpuLevel[1], 50);
  EXPECT_EQ(Cpu.CpuLevel[0], 33);
  Settings.difficulty = 2;
  Match.stage_count = 0;
}

TEST(CpuLevels, DemonstrationLevelFollowsItsOwnStage) {
  const int expected[10] = {90, 85, 80, 75, 70, 65, 60, 55, 50, 50};
  for (int s = 0; s < 10; ++s) {
    Match.stage_count = s;
    CpuSetupDemoLevels(0);
    EXPECT_EQ(Cpu.CpuLevel[0], expected[s]);
    EXPECT_EQ(Cpu.CpuBaseLevel[0], expected[s]);
  }
  Match.stage_count = 0;
}
