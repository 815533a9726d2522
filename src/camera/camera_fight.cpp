// The fight camera's frame: the mode's targets (follow, orbit or KO replay), then the
// approach toward them, then the set piece that overrides both (opening sweep or win pose).
#include <algorithm>

#include "camera/camera_fight.h"
#include "camera/camera_path.h"
#include "camera/camera_scene.h"
#include "fight/fight.h"
#include "fight/fight_state.h"
#include "render/render_fighter.h"
#include "render/render_view.h"

namespace {

constexpr float kNearDistance = 15.0f;   // the follow distance while the fighters are close
constexpr float kNearSeparation = 14.0f;
constexpr float kFarDistance = 45.0f;    // the farthest the camera ever pulls back
constexpr float kLiftPerUnit = 2.6f;     // pulling back past 15 raises the look-at 1 per 2.6
constexpr float kStageRadius = 25.0f;
constexpr float kStageMargin = 8.0f;     // the look-at keeps this far inside the stage edge
constexpr float kOrbitNear = 11.0f;
constexpr float kOrbitStretch = 1.1f;
constexpr float kFlashDistance = 7.0f;   // the orbit closes in on a super move's flash
constexpr float kReplayDistance = 14.0f;
constexpr int kReplayPitch = 30;
constexpr int kOrbitCycle = 1750;
constexpr int kOrbitBand = 250;
constexpr int kTurning = -1;  // an orbit band whose heading follows the cycle round

// The knock-out close-ups: on the fighter still standing, or on the one that went down.
struct CloseUp {
  bool on_down;       // whose body the camera looks at
  int yaw_offset;     // added to that fighter's yaw for the heading base
  float separation;   // the distance the close-up stands off
};
constexpr CloseUp kCloseUps[2] = {
    {false, 45, 9.0f},  // variant 1: the winner, from 45 degrees round
    {true, 0, 13.0f},   // variant 2: the fighter lying beaten
};

// The orbit's angles through its cycle of 1750 frames, one row per 250.
struct OrbitBand {
  int pitch;
  int heading;  // kTurning: the frame of the cycle, mod 360
};
constexpr OrbitBand kOrbitBands[kOrbitCycle / kOrbitBand] = {
    {15, 30},         // 0-249: low, from the front-right
    {30, kTurning},   // 250-499: circling
    {50, kTurning},   // 500-749: circling from high above
    {30, kTurning},   // 750-999: circling
    {15, 30},         // 1000-1249
    {-4, 30},         // 1250-1499: from just below the heads
    {-4, 330},        // 1500-1749: the same from the other side
};

bool is_down(int i) { return fighters[i].life - fighters[i].damage < 1; }

// The body point of a fighter: where its drawing put the hips on the floor plan, at the
// height the fight has lifted it.
CameraScene gather() {
  CameraScene s;
  s.mid_x = (Spacing.track_x[0] + Spacing.track_x[1]) / 2.0f;
  s.mid_z = (Spacing.track_z[0] + Spacing.track_z[1]) / 2.0f;
  s.separation = Spacing.distance;
  s.height_gap = Spacing.height_gap;
  for (int i = 0; i < 2; ++i) {
    s.body[i][0] = Draw.Body_Centre[i][0];
    s.body[i][1] = fighters[i].height;
    s.body[i][2] = Draw.Body_Centre[i][2];
  }
  return s;
}

// A throw or hold with camera work picks one of the four throw angles as it starts; the angle
// holds until neither fighter is in such a move any more.
void track_throw() {
  const bool running = fighters[0].special_cam != 0 || fighters[1].special_cam != 0;
  if (!running)
    FightCamera.throw_mode = 0;
  else if (FightCamera.throw_mode == 0)
    FightCamera.throw_mode = frame_count % 4 + 1;
}

bool closing_orbit() { return Match.after_ko != 0 && Match.after_ko_frames >= 50; }

// The look-at height that frames both bodies: their mean, never below the floor line,
// and level while one of them is knocked about and not yet held.
float follow_height(const CameraScene& s) {
  for (const Fighter& f : fighters)
    if (f.reacting != 0 && f.busy == 0) return 0.0f;
  return std::max(0.0f, (s.body[0][1] + s.body[1][1]) / 2.0f);
}

float follow_distance(float separation) {
  if (separation <= kNearSeparation) return kNearDistance;
  return std::min(separation + 1.0f, kFarDistance);
}

void follow_targets(CameraScene& s) {
  FightCameraState& c = FightCamera;
  c.heading_base = 0;
  c.pitch_target = 0;
  float src_x = s.mid_x, src_z = s.mid_z;
  const int variant = Match.ko_state >= 1 ? Match.ko_closeup : 0;
  if (variant == 1 || variant == 2) {
    const CloseUp& cu = kCloseUps[variant - 1];
    const int i = is_down(0) == cu.on_down ? 0 : 1;
    src_x = s.body[i][0];
    src_z = s.body[i][2];
    c.heading_base = fighters[i].yaw + cu.yaw_offset;
    s.separation = cu.separation;
  }
  if (Match.intro == -1)
    c.desired_distance = variant == 1 || variant == 2 ? s.separation
                                                      : follow_distance(s.separation);
  if (c.throw_mode == 0) {
    c.target_x = src_x;
    c.target_z = src_z;
    c.target_y = follow_height(s);
    if (Match.intro == -1 && c.desired_distance > kNearDistance)
      c.target_y += (c.desired_distance - kNearDistance) / kLiftPerUnit;
  } else {
    Camera_ThrowShot(s);
  }
  SmoothLookAt();
}

void orbit_targets(const CameraScene& s) {
  FightCameraState& c = FightCamera;
  c.desired_distance = OrbitDistance();
  const int u = frame_count % kOrbitCycle;
  const OrbitBand& band = kOrbitBands[u / kOrbitBand];
  c.pitch_target = band.pitch;
  c.heading_target = band.heading == kTurning ? u % 360 : band.heading;
  if (Match.flash_state < 1) {
    c.target_x = s.mid_x;
    c.target_y = std::max(0.0f, std::max(s.body[0][1], s.body[1][1]));
    c.target_z = s.mid_z;
    return;
  }
  c.desired_distance = kFlashDistance;  // close on the fighter whose super move froze the other
  for (int i = 0; i < 2; ++i) {
    if (fighters[i].freeze_other == 0) continue;
    c.target_x = s.body[i][0];
    c.target_y = s.body[i][1];
    c.target_z = s.body[i][2];
    return;
  }
}

void replay_targets(const CameraScene& s) {
  FightCameraState& c = FightCamera;
  c.desired_distance = kReplayDistance;
  c.pitch_target = kReplayPitch;
  c.heading_target = Match.replay_state == 1 ? 30 : 150;
  c.target_x = s.mid_x;
  c.target_y = 0.0f;
  c.target_z = s.mid_z;
}

bool follows_smoothly() {
  return Match.intro == -1 && Match.replay_state == 0 && Match.win_pose_count == 0 &&
         !closing_orbit() && Match.demo == 0 && Match.fight_call == 0;
}

// The look-at point never strays further than 17 units (radius less the margin) from the
// arena centre, however far out a fighter is knocked.
void stage_clamp() {
  FightCameraState& c = FightCamera;
  const float reach = kStageRadius - kStageMargin;
  c.look_x = std::clamp(c.look_x, Spacing.centre_x - reach, Spacing.centre_x + reach);
  c.look_z = std::clamp(c.look_z, Spacing.centre_z - reach, Spacing.centre_z + reach);
}

void approach() {
  FightCameraState& c = FightCamera;
  c.distance_target = c.desired_distance;
  Camera_ApproachDistance();
  if (follows_smoothly()) {
    c.heading_target = Wrap_Angle(359 - c.heading_base);
    SmoothCameraAngles();
    if (c.throw_mode == 0) stage_clamp();
    return;
  }
  c.pitch = c.pitch_target;  // a set piece cuts straight to its angles
  c.heading = c.heading_target;
  c.roll = c.roll_target;
  SmoothLookAt();
}

}  // namespace

void UpdateFightCamera() {
  track_throw();
  CameraScene s = gather();
  if (Match.replay_state != 0)
    replay_targets(s);
  else if (closing_orbit() || Match.demo != 0)
    orbit_targets(s);
  else
    follow_targets(s);
  approach();
  if (Match.intro != -1)
    Camera_SweepStep();
  else if (Match.win_pose_count > 0)
    Camera_WinPoseStep();
}

float OrbitDistance() {
  const float d = Spacing.distance, h = Spacing.height_gap;
  const float lift = h >= 1.0f ? h - 1.0f : 0.0f;
  if (d <= kOrbitNear) return kOrbitNear + lift;
  return std::min(kOrbitNear + kOrbitStretch * (d - kOrbitNear) + lift, kFarDistance);
}

void Reset_FightCamera() {
  const float desired = FightCamera.desired_distance;  // scratch: kept from round to round
  FightCamera = FightCameraState{};
  FightCamera.desired_distance = desired;
  FightCamera.program_frame = Match.intro == 2 ? CAMERA_OVERHEAD_START : 0;
  Match.ko_closeup = 0;
  Match.win_pose_count = 0;
  for (CameraPathRecord& p : CameraPath) p.current_frame = 0;
}
