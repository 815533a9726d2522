// Computer opponent: the state that plays a fighter by writing its input record.
#pragma once
#include <cstdint>

// Per-fighter skill and the dispatcher's own counter. The levels are written by the fight
// set-up (CpuSetupLevels, CpuSetupDemoLevels) and by the level tuning on hits; the counter by
// the dispatcher only.
struct CpuState {
  // Reaction delay in frames after an attack before the next may start; lower is stronger.
  std::int32_t CpuLevel[2] = {70, 70};
  // The level set at fight start; CpuLevel stays within [max(20, base - 30), base].
  std::int32_t CpuBaseLevel[2] = {70, 70};
  // The second frame counter, 0..10001, advanced once per computer step.
  std::int32_t CpuCounter = 0;
};
extern CpuState Cpu;

// Fight start of a game: the level of computer-played fighter `fighter` from the difficulty
// setting and the stage (computer opponents beaten so far). Level and base take one value; a
// difficulty outside 1..5 leaves both as they are.
void CpuSetupLevels(int fighter);
// Demonstration fight: level and base 90 - min(40, 5 x stage) for `fighter`, from the stage
// the demonstration set-up has just written for that side.
void CpuSetupDemoLevels(int fighter);

// The level a game's computer opponent gets at `difficulty` on `stage`, or -1 when the
// difficulty leaves the level alone.
std::int32_t Cpu_GameLevel(std::int32_t difficulty, std::int32_t stage);
