// Inside the fight camera: what it sees of the fight this frame, and the set pieces that run
// on top of the follow logic. Only the camera's own files include this.
#pragma once

// Gathered at the top of every camera update; the follow logic may overwrite the separation
// for a knock-out close-up.
struct CameraScene {
  float mid_x, mid_z;   // halfway between the two tracking points
  float separation;     // the fight's distance between the fighters
  float height_gap;     // the fight's height difference of the two bodies
  float body[2][3];     // each fighter's body point: x, height, z
};

// A throw shot's targets for the frame (follow mode with a throw camera mode set).
void Camera_ThrowShot(const CameraScene& s);
// One frame of the round-opening sweep that Match.intro names.
void Camera_SweepStep();
// One frame of the winner's pose; hands the round to end_round when it is over or skipped.
void Camera_WinPoseStep();

// The distance closes a ninth of its gap to the target a frame, and snaps to it once the
// step is below 0.02.
void Camera_ApproachDistance();
