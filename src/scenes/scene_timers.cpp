// Counters the frame loop and several scenes share.
#include "scenes/scenes.h"

std::int32_t TitleTimer = 0;
std::int32_t ContinueTimer = 0;

namespace {

// Frames counted toward the next second. Written by Second_Tick only.
std::int32_t SecondFrames = 0;

}  // namespace

int Second_Tick(int run) {
  if (run == 0) {
    SecondFrames = 0;
    return 0;
  }
  if (++SecondFrames < SECOND_FRAMES) return 0;
  SecondFrames = 0;
  return 1;
}
