// Frame pacing: keeps the simulation at a fixed number of frames per second of real time.
// The game counts time only in frames; this module alone reads the wall clock.
#pragma once
#include <cstdint>

// Pacer state. Written only by Set_FrameRate and Pacer_Due.
struct PacerState {
  std::int32_t PaceRate = 0;    // frames per second, as last passed to Set_FrameRate
  std::int32_t PacePeriod = 0;  // milliseconds per frame: 1000 / PaceRate (integer division)
  std::int32_t PaceDebt = 0;    // ms real time is ahead (+) or behind (-) of the schedule
  std::int32_t PaceLast = 0;    // Tick() at which the last frame was accounted
};
extern PacerState Pacer;

// The 15-bit millisecond clock: 0..32767, wrapping every 32.768 s.
std::int32_t Tick();

// Starts a new schedule at `rate` frames per second with no debt. `rate` must be above 0.
void Set_FrameRate(std::int32_t rate);

// Called once per frame by a paced scene. Waits out the rest of the frame period when the
// frame is early; returns 1 when the frame is to be drawn, 0 when the game is behind and the
// frame is to be simulated without drawing.
int Pacer_Due();

// Blocks for `ms` milliseconds (1 <= ms). Called only by Pacer_Due.
void Wait_Ms(std::int32_t ms);
