// The camera matrix of the frame (world space to camera space) and the vertical camera shake.
//
// View is written once per drawn frame by Set_View (and by the scenes that show models
// through it); the fighter, stage, chain and effect passes read it. All zero at program
// start, until the first view is set. ViewShake.Shake_Index is set to 1 by whoever starts a
// shake (the hit code, some effects, one scene); the view set-up advances it back to 0.
#pragma once
#include <cstdint>

#include "render/render_math.h"

extern Mat43 View;

constexpr int SHAKE_STEPS = 10;
// Height added to the look-at point on each step of the shake (step 0: none).
constexpr float Shake_Table[SHAKE_STEPS] = {0.0f, -0.7f, 0.2f, -0.5f, 0.15f,
                                            -0.3f, 0.1f, -0.1f, 0.05f, 0.0f};
struct ViewShake {
  std::int32_t Shake_Index = 0;  // 0 still, 1..9 shaking
};
extern ViewShake Shake;

// Advances a running shake by one step (back to 0 after the last) and returns its offset.
float Shake_Step();
// Builds View from the fight camera's current look-at point, distance, pitch and heading:
// the eye sits 2 x distance in front of the look-at point, which the shake moves up and down.
void Set_View();
// A whole-degree angle brought into 0..359.
inline int Wrap_Angle(int a) { return ((a % 360) + 360) % 360; }
