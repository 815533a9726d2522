// The camera's set pieces: the throw shots, the sweeps that open a round and the winner's
// pose. Each sets the camera's values directly, over the follow logic's.
#include <algorithm>

#include "audio/audio.h"
#include "camera/camera_fight.h"
#include "camera/camera_scene.h"
#include "fight/fight.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "render/render_view.h"

namespace {

// ---- throw shots --------------------------------------------------------------------------

// Where a throw camera mode puts the camera before the shot adjusts it.
struct ThrowAngle {
  int pitch;
  int heading_base;
};
constexpr ThrowAngle kThrowAngles[5] = {
    {0, 0},     // 0: none
    {0, 0},     // mode 1: level, from the side
    {-5, 315},  // mode 2: low, turned 45 degrees
    {45, 315},  // mode 3: high, turned 45 degrees
    {20, 75},   // mode 4: raised, from nearly behind one fighter
};
constexpr int kShotSettle = 100;       // a shot's extra distance runs out over 100 frames
constexpr float kShotSettleRate = 20.0f;
constexpr float kShotLift = 2.5f;      // the high shots tilt down 2.5 degrees per unit of height
constexpr int kShotPitchLimit = 80;    // steeper than this, the shot falls back to shot 1

float shot_extra(int shot_frame) {
  return static_cast<float>(std::max(0, kShotSettle - shot_frame)) / kShotSettleRate;
}

float higher_body(const CameraScene& s) {
  return std::max(0.0f, std::max(s.body[0][1], s.body[1][1]));
}

float lift_for(float desired) {
  return desired > 15.0f ? (desired - 15.0f) / 2.6f : 0.0f;
}

// The shot falls back toward the plain side view: the angles head for level and the side, and
// a shot number becomes 1 (fighter 1's when fighter 0 has none).
void fall_back_to_side_shot() {
  FightCameraState& c = FightCamera;
  c.pitch_target = 0;
  c.heading_target = Wrap_Angle(359 - c.heading_base);
  if (fighters[0].special_shot == 0)
    fighters[1].special_shot = 1;
  else
    fighters[0].special_shot = 1;
}

// ---- round-opening sweeps -----------------------------------------------------------------

// Sweep 0: from 25 units in, turning from behind one side to the front.
void sweep_turn_in(int t) {
  FightCameraState& c = FightCamera;
  c.distance = c.distance_target = 25.0f - 10.0f * static_cast<float>(t) / 60.0f;
  c.heading_target = std::min(240 + 2 * t, 359);
  c.pitch = 0;
}

// Sweep 1: a straight pull in from 45 units along the fighters' line of sight.
void sweep_pull_in(int t) {
  FightCameraState& c = FightCamera;
  c.distance_target = 45.0f - static_cast<float>(t) / 2.0f;
  c.distance = c.distance_target;
  c.heading = 0;
  c.pitch = 0;
}

// Sweep 2, the first round's: from straight overhead, 25 units out and turned half round,
// down and round to the side view; it starts 30 frames early.
void sweep_overhead(int t) {
  FightCameraState& c = FightCamera;
  if (t < CAMERA_SWEEP_END) {
    const int v = t - CAMERA_SWEEP_END;
    c.distance = c.distance_target = 15.0f - 10.0f * static_cast<float>(v) / 90.0f;
    c.pitch = -v;
    c.heading = -2 * v;
  } else {
    c.distance = c.distance_target = 15.0f;
    c.pitch = 0;
    c.heading = 0;
  }
  c.pitch_target = c.pitch;
  c.heading_target = c.heading;
}

void end_sweep() {
  FightCameraState& c = FightCamera;
  if (Match.intro == 1) c.distance = c.distance_target = 15.0f;
  Match.intro = -1;
  Match.fight_call = 1;
  c.pitch_target = c.heading_target = c.roll_target = 0;
  c.heading = c.roll = 0;
}

// ---- win pose -----------------------------------------------------------------------------

// Per character: the height the camera looks at and the turn it stands at, for the two
// victory animations (A: action 12, B: action 13).
struct WinFraming {
  float height_a, height_b;
  int heading_a, heading_b;
};
constexpr WinFraming kWinFraming[15] = {
    {1.7f, 1.7f, 0, 45},     // character 0
    {0.6f, 1.6f, 0, 30},     // character 1
    {1.3f, 2.3f, 0, 0},      // character 2
    {1.7f, 1.5f, 0, 30},     // character 3
    {1.4f, 1.0f, 0, 0},      // character 4
    {1.8f, 1.8f, 55, 55},    // character 5
    {1.8f, 1.8f, 45, 45},    // character 6
    {2.5f, -2.5f, 30, 30},   // character 7
    {2.5f, 4.5f, 0, 0},      // character 8
    {2.5f, 2.5f, 60, 45},    // character 9
    {2.8f, 2.8f, 30, 30},    // character 10
    {2.0f, 2.0f, 30, 30},    // character 11
    {2.5f, 1.3f, -30, 20},   // character 12
    {2.5f, 2.5f, 30, 25},    // character 13
    {1.7f, 1.7f, 0, 45},     // character 14
};
constexpr int kWinActionB = 13;  // the second victory pose (12 is the first)

const WinFraming& framing_of(int fighter) {
  const int ch = std::clamp(Match.character[fighter], 0, 14);
  return kWinFraming[ch];
}

void look_at_winner(const Fighter& w, float height) {
  FightCameraState& c = FightCamera;
  c.target_x = c.look_x = w.pos_x;
  c.target_y = c.look_y = height;
  c.target_z = c.look_z = w.pos_z;
}

// Kinds 2 and 3: closing in on the winner from the character's own angle.
void win_close_in(const Fighter& w, float height, int heading_offset, int pitch, float from,
                  float rate, int t) {
  FightCameraState& c = FightCamera;
  look_at_winner(w, height);
  c.pitch = c.pitch_target = pitch;
  c.distance = c.distance_target = from - std::min(9.0f, rate * static_cast<float>(t));
  c.heading = c.heading_target = Wrap_Angle(w.yaw + heading_offset);
}

// Kind 4: one full turn round the winner in 360 frames, close in.
void win_circle(const Fighter& w, const WinFraming& f, int t) {
  FightCameraState& c = FightCamera;
  look_at_winner(w, w.action == kWinActionB ? f.height_b : f.height_a);
  c.pitch = c.pitch_target = 0;
  c.distance = c.distance_target = 6.0f;
  c.heading = c.heading_target = Wrap_Angle(w.yaw + 270 + t);
}

// A start press skips the pose: the winner's own, or the loser's when the winner is the
// computer.
bool pose_skipped() {
  const int w = Match.winner;
  if (Players[w].start_pressed != 0) return true;
  return Players[opponent(w)].start_pressed != 0 && Match.human[w] == 0;
}

}  // namespace

void Camera_ThrowShot(const CameraScene& s) {
  FightCameraState& c = FightCamera;
  const int m = c.throw_mode;
  if (m < 1 || m > 4) return;
  c.pitch = kThrowAngles[m].pitch;
  c.heading_base = kThrowAngles[m].heading_base;
  c.target_x = s.mid_x;
  c.target_z = s.mid_z;
  const int k = fighters[0].special_shot + fighters[1].special_shot - 1;
  if (k == 0) {  // shot 1: the side view, pulled back when one body is high
    if (s.height_gap > 1.0f) c.desired_distance += s.height_gap - 1.0f;
    c.target_y = lift_for(c.desired_distance);
    c.pitch = 0;
  } else if (k == 1 || k == 2) {  // shots 2 and 3: tilting down on the higher body
    c.target_y = higher_body(s);
    c.desired_distance = std::max(4.0f, s.separation) + 8.0f + shot_extra(c.shot_frame);
    c.pitch = static_cast<int>(static_cast<float>(c.pitch) + kShotLift * c.target_y);
  } else if (k == 3) {  // shot 4: turning with the performer's move
    c.target_y = higher_body(s);
    c.desired_distance += shot_extra(c.shot_frame);
    c.pitch = -5;
    const Fighter& p = fighters[fighters[0].special_cam != 0 ? 0 : 1];
    c.heading_base = Wrap_Angle(360 - (p.act_last[p.action] - p.frame));
  }
  ++c.shot_frame;
  if (c.pitch > kShotPitchLimit) fall_back_to_side_shot();
}

void Camera_SweepStep() {
  FightCameraState& c = FightCamera;
  const int t = c.program_frame;
  if (Match.intro == 0)
    sweep_turn_in(t);
  else if (Match.intro == 1)
    sweep_pull_in(t);
  else
    sweep_overhead(t);
  if (++c.program_frame >= CAMERA_SWEEP_END) end_sweep();
}

void Camera_WinPoseStep() {
  FightCameraState& c = FightCamera;
  ++Match.win_pose_count;
  if (pose_skipped()) {
    Players[Match.winner].start_pressed = 0;
    Stop_ChannelSounds();
    end_round();
    return;
  }
  const Fighter& w = fighters[Match.winner];
  const WinFraming& f = framing_of(Match.winner);
  const int t = c.program_frame;
  if (Match.win_pose == 2)
    win_close_in(w, f.height_a, f.heading_a, 355, 13.0f, 0.4f, t);
  else if (Match.win_pose == 3)
    win_close_in(w, f.height_b, f.heading_b, 0, 14.5f, 0.1f, t);
  else if (Match.win_pose == 4)
    win_circle(w, f, t);
  if (++c.program_frame >= CAMERA_WIN_POSE_END) end_round();
}
