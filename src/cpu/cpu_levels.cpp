// The computer's skill level at the start of a fight.
#include <algorithm>

#include "cpu/cpu.h"
#include "fight/fight_state.h"
#include "settings/settings.h"

CpuState Cpu;

namespace {

bool valid_fighter(int fighter) { return fighter == 0 || fighter == 1; }

void set_level(int fighter, std::int32_t level) {
  Cpu.CpuLevel[fighter] = level;
  Cpu.CpuBaseLevel[fighter] = level;
}

}  // namespace

std::int32_t Cpu_GameLevel(std::int32_t difficulty, std::int32_t stage) {
  const std::int32_t ramp = 170 - std::min(120, 20 * stage);
  switch (difficulty) {
    case 1:
    case 2:
      return stage == 0 ? 200 : ramp;  // the first opponent waits longest
    case 3:
      return stage == 0 ? 180 : ramp;
    case 4:
      return ramp;
    case 5:
      return 170 - std::min(120, 25 * stage);
    default:
      return -1;
  }
}

void CpuSetupLevels(int fighter) {
  if (!valid_fighter(fighter)) return;
  const std::int32_t level = Cpu_GameLevel(Settings.difficulty, Match.stage_count);
  if (level >= 0) set_level(fighter, level);
}

void CpuSetupDemoLevels(int fighter) {
  if (!valid_fighter(fighter)) return;
  set_level(fighter, 90 - std::min(40, 5 * Match.stage_count));
}
