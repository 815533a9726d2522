// The fight camera: where the 3D view of the fight looks from.
//
// Once a fight frame, after the fight update, UpdateFightCamera follows the two fighters
// from the side and plays the set pieces the fight's match state asks for: the sweeps that
// open a round, the throw shots, the knock-out close-ups, the KO replay, the orbit of the
// closing replay and of the demonstration, and the win pose, whose end hands the round to
// end_round. It draws nothing: the view set-up reads the current look-at point, distance,
// pitch, heading and roll every drawn frame.
#pragma once
#include <cstdint>

// Written by the fight camera (and reset with it when a round starts) and by the path
// playback. The fight writes two fields of it: shot_frame (0 when it picks a throw shot) and
// program_frame (0 when it starts the win pose). The round call of the fight and of the
// display reads program_frame.
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
  std::int32_t heading_base = 0;   // the follow logic aims the heading at 359 minus this
  std::int32_t throw_mode = 0;     // the throw shot's angle 1..4 while a throw runs, else 0
  std::int32_t shot_frame = 0;     // frames since the current throw shot began
  std::int32_t program_frame = 0;  // frame counter of the sweeps, the win pose and paths
};
extern FightCameraState FightCamera;

// Frames of the round-opening sweeps: each ends when program_frame reaches this. The first
// round's overhead sweep starts 30 frames early and so runs 90.
constexpr std::int32_t CAMERA_SWEEP_END = 60;
constexpr std::int32_t CAMERA_OVERHEAD_START = -30;
// The win pose hands the round on when program_frame reaches this.
constexpr std::int32_t CAMERA_WIN_POSE_END = 180;

// Once a fight frame, after Fight_Update (never while a challenger is joining).
void UpdateFightCamera();
// Round start: targets, look-at point and angles to 0, distance 15, the set pieces, the
// arena centre and the paths' frame counters cleared; the opening sweep that Match.intro
// names begins (the overhead sweep of a match's first round 30 frames early).
void Reset_FightCamera();

// Pitch and heading one step toward their targets: a tenth of the gap (at least 1 degree),
// the heading the short way round through 0/359, never passing the target.
void SmoothCameraAngles();
// Look-at X and height one step toward the target: a ninth of the gap, the target itself once
// the step would be below 0.02.
void SmoothLookAt();
// The distance the orbiting camera wants for the fighters' separation and height gap; the
// fight also sets distance and target with it when the closing replay re-centres.
float OrbitDistance();
// Heading and pitch from the eye point toward the look-at target, in whole degrees through
// the arcsine table; returns the camera distance for that eye.
float AnglesFromEye();
