// Camera path files.
#include "camera/camera_path.h"

#include <bit>
#include <cstdio>

#include "assets/asset_report.h"
#include "camera/camera_fight.h"
#include "fight/fight_state.h"
#include "platform/platform.h"
#include "render/render_math.h"
#include "render/render_view.h"

CameraPathRecord CameraPath[CAMERA_PATHS];

namespace {

constexpr int kRecordBytes = 12;

// The file's points before they replace a slot; written only by LoadCameraPath.
float Incoming[CAMERA_PATH_FRAMES][3];

float lef32(const std::uint8_t* p) {
  return std::bit_cast<float>(std::uint32_t(p[0]) | (std::uint32_t(p[1]) << 8) |
                              (std::uint32_t(p[2]) << 16) | (std::uint32_t(p[3]) << 24));
}

// Reads the count and the records into Incoming. A file longer than a path is refused
// rather than cut: the two files of a path must stay frame for frame together, and a flight
// stopped short at 1350 would end the scene that plays it in mid-air.
int read_points(std::FILE* f, const char* file) {
  std::uint8_t head[2];
  if (std::fread(head, 1, 2, f) != 2) {
    Load_Refused(file, "too short: no frame count");
    return -1;
  }
  const int frames = static_cast<std::int16_t>(head[0] | (head[1] << 8));
  if (frames < 0) {
    Load_Refused(file, "damaged: %d frames", frames);
    return -1;
  }
  if (frames > CAMERA_PATH_FRAMES) {
    Load_Refused(file, "%d frames are past the capacity of a path (0 to %d)", frames,
                 CAMERA_PATH_FRAMES);
    return -1;
  }
  for (int k = 0; k < frames; ++k) {
    std::uint8_t rec[kRecordBytes];
    if (std::fread(rec, 1, kRecordBytes, f) != kRecordBytes) {
      Load_Refused(file, "too short: it ends at frame %d of %d", k, frames);
      return -1;
    }
    for (int axis = 0; axis < 3; ++axis) Incoming[k][axis] = lef32(rec + 4 * axis) / 5.0f;
  }
  return frames;
}

}  // namespace

int LoadCameraPath(const char* file, int path, int slot) {
  if (path < 0 || path >= CAMERA_PATHS || slot < 0 || slot > 1) {
    Load_Refused(file, "there is no camera path %d slot %d", path, slot);
    Report_GoesOn("the file is not read");
    return 0;
  }
  std::FILE* f = Plat_OpenFile(file, "rb");
  if (f == nullptr) {
    Load_NotOpened(file);
    Report_GoesOn("camera path %d keeps what it held", path);
    return 0;
  }
  const int frames = read_points(f, file);
  std::fclose(f);
  if (frames < 0) {
    Report_GoesOn("camera path %d keeps what it held", path);
    return 0;
  }
  CameraPathRecord& P = CameraPath[path];
  for (int k = 0; k < frames; ++k) {
    P.x[k][slot] = Incoming[k][0];
    P.height[k][slot] = Incoming[k][1];
    P.z[k][slot] = Incoming[k][2];
  }
  P.frame_count = frames;
  return 1;
}

namespace {

// A path point turned to the anchor's facing and moved to its position.
void anchored(const Mat43& turn, const Fighter& f, const CameraPathRecord& p, int k, int slot,
              float* x, float* y, float* z) {
  Mat_Apply(&turn, p.x[k][slot], p.height[k][slot], p.z[k][slot], x, y, z);
  *x += f.pos_x;
  *y += f.pos_y;
  *z += f.pos_z;
}

}  // namespace

int PlayCameraPath(int path, int fighter, int end_action) {
  (void)end_action;  // the only path the game plays asks for nothing at its end
  const int k = (path >= 0 && path < CAMERA_PATHS) ? CameraPath[path].current_frame : -1;
  if (k < 0 || k >= CAMERA_PATH_FRAMES || fighter < 0 || fighter > 1) {
    std::printf("\r\r\rCamera ERROR!!!\r\r\r");
    return 1;
  }
  CameraPathRecord& p = CameraPath[path];
  const Fighter& f = fighters[fighter];
  Mat43 turn;
  Mat_RotY(&turn, Wrap_Angle(f.yaw + 270));
  FightCameraState& c = FightCamera;
  anchored(turn, f, p, k, CAMERA_PATH_LOOK_AT, &c.target_x, &c.target_y, &c.target_z);
  anchored(turn, f, p, k, CAMERA_PATH_EYE, &c.eye_x, &c.eye_y, &c.eye_z);
  c.look_x = c.target_x;
  c.look_y = c.target_y;
  c.look_z = c.target_z;
  c.distance = AnglesFromEye();
  c.pitch_target = c.pitch;
  c.heading_target = c.heading;
  c.roll_target = c.roll;
  ++p.current_frame;
  return p.frame_count > p.current_frame ? 0 : 1;
}
