// Recorded camera paths: per frame a look-at point and an eye point relative to a fighter.
//
// A path file is i16 N, then N records of three f32 (x, height, z) in fifths of a world
// unit. One path is two files: the look-at points (slot 0) and the eye points (slot 1).
#pragma once
#include <cstdint>

constexpr int CAMERA_PATHS = 2;
constexpr int CAMERA_PATH_FRAMES = 1350;
constexpr int CAMERA_PATH_LOOK_AT = 0;  // slot of the look-at points
constexpr int CAMERA_PATH_EYE = 1;      // slot of the eye points

// One path. Written by LoadCameraPath (frames and count) and by the path playback (current
// frame); the opening scene rewinds current_frame before it plays the path.
struct CameraPathRecord {
  std::int32_t frame_count;    // N of the file read last
  std::int32_t current_frame;  // next frame to play
  float x[CAMERA_PATH_FRAMES][2];       // [frame][slot]
  float height[CAMERA_PATH_FRAMES][2];
  float z[CAMERA_PATH_FRAMES][2];
};
static_assert(sizeof(CameraPathRecord) == 8 + 3 * CAMERA_PATH_FRAMES * 2 * 4);
extern CameraPathRecord CameraPath[CAMERA_PATHS];

// Reads a path file into one slot of a path, each value divided by 5. Returns 1, or 0 with
// the path left as it was: silently when the file cannot be opened, with a message naming
// the file when it holds more than 1350 frames, a negative count, or fewer records than it
// says.
int LoadCameraPath(const char* file, int path, int slot);

// Plays the current frame of a path anchored on a fighter: both points turned by the
// fighter's yaw + 270 and moved to its position become the camera's look-at target and eye,
// and the camera looks from that eye at once. Returns 0 while frames remain, 1 when the frame
// just played was the last. `end_action` says what follows the last frame; the opening passes
// 3, nothing further. A path, fighter or frame out of range prints a message, plays nothing
// and reports the end.
int PlayCameraPath(int path, int fighter, int end_action);
