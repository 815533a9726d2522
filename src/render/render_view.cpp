// The camera matrix of the frame and the camera shake.
#include "render/render_view.h"

#include "camera/camera_fight.h"

Mat43 View;
ViewShake Shake;

float Shake_Step() {
  int& i = Shake.Shake_Index;
  if (i < 0 || i >= SHAKE_STEPS) i = 0;  // a stray value stops the shake
  if (i > 0 && ++i == SHAKE_STEPS) i = 0;
  return Shake_Table[i];
}

void Set_View() {
  const float s = Shake_Step();
  const FightCameraState& c = FightCamera;
  Mat43 r;
  Mat_Euler(&r, Wrap_Angle(359 - c.pitch), Wrap_Angle(c.heading), 0, 0, 0, 0);
  float tx, ty, tz;
  Mat_Apply(&r, -c.look_x, -(c.look_y + s), -c.look_z, &tx, &ty, &tz);
  View = r;
  View.m[9] = tx;
  View.m[10] = ty;
  View.m[11] = tz + 2.0f * c.distance;
}
