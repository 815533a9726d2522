// The fight camera's record: where the 3D view of the fight looks from.
//
// Written by the fight camera each frame (and reset when a round starts); the view set-up
// reads the current look-at point, distance, pitch, heading and roll every drawn frame, and
// path playback writes the eye point.
#pragma once
#include <cstdint>

struct FightCameraState {
  float target_x = 0, target_y = 0, target_z = 0;  // the point the camera wants to look at
  float look_x = 0, look_y = 0, look_z = 0;        // the point it looks at now
  float distance = 15.0f;                          // the eye sits 2 x distance away
  float distance_target = 15.0f;
  float desired_distance = 20.0f;  // scratch value of the mode logic
  std::int32_t pitch_target = 0, pitch = 0;  // degrees; positive looks down from above
  std::int32_t heading_target = 0, heading = 0;  // degrees 0..359
  std::int32_t roll_target = 0, roll = 0;        // always 0
  float eye_x = 0, eye_y = 0, eye_z = 0;         // path playback's eye point
  std::int32_t heading_base = 0;
  std::int32_t shot_frame = 0;     // frames since the current throw shot began
  std::int32_t program_frame = 0;  // frame counter of the sweeps, the win pose and paths
};
extern FightCameraState FightCamera;
