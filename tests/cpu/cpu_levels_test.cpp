// The computer's level at the start of a fight.
#include <gtest/gtest.h>

#include "cpu/cpu.h"
#include "fight/fight_state.h"
#include "settings/settings.h"

TEST(CpuLevels, LevelsFallWithTheStageToTheirFloor) {
  const int cases[][3] = {{2, 0, 200}, {3, 0, 180}, {4, 0, 170}, {3, 1, 150},
                          {5, 1, 145}, {1, 6, 50},  {5, 5, 50},  {0, 3, 50}};  // 0: unchanged
  for (const auto& c : cases) {
    Settings.difficulty = c[0];
    Match.stage_count = c[1];
    CpuSetupLevels(1);
    EXPECT_EQ(Cpu.CpuBaseLevel[1], c[2]) << c[0] << " " << c[1];
  }
  Match.stage_count = 9;
  CpuSetupDemoLevels(0);
  EXPECT_EQ(Cpu.CpuLevel[0], 50);
  EXPECT_EQ(Cpu.CpuLevel[1], 50);
  Cpu = CpuState{};
  Settings.difficulty = 2;
  Match.stage_count = 0;
}
