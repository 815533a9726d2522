// The camera's easing toward its targets, and angles read back from an eye point.
#include <cmath>
#include <cstdlib>

#include "camera/camera_fight.h"
#include "camera/camera_scene.h"
#include "render/render_math.h"

namespace {

constexpr float kLookEase = 9.0f;    // the look-at point closes a ninth of its gap a frame
constexpr float kLookSnap = 0.02f;   // below this step it takes the target
constexpr int kAngleEase = 10;       // angles close a tenth of their gap a frame
constexpr float kEyeScale = 1.1f;    // distance read back from an eye point

// One easing step of a whole-degree angle: a tenth of the gap, at least one degree.
int angle_step(int gap) {
  const int step = gap / kAngleEase;
  return step < 1 ? 1 : step;
}

void ease_pitch(FightCameraState& c) {
  if (c.pitch == c.pitch_target) return;
  const int gap = std::abs(c.pitch - c.pitch_target);
  const int step = angle_step(gap);
  c.pitch += c.pitch < c.pitch_target ? step : -step;
}

// The heading turns the short way: straight at the target when that is less than half a
// turn, else through 0/359. A step never exceeds the gap, so it lands on the target.
void ease_heading(FightCameraState& c) {
  int& h = c.heading;
  const int t = c.heading_target;
  if (h == t) return;
  const int gap = std::abs(h - t);
  if (gap < 180) {
    const int step = angle_step(gap);
    h += h < t ? step : -step;
    return;
  }
  const int lo = h < t ? h : t, hi = h < t ? t : h;
  const int step = angle_step(lo + 360 - hi);
  if (h < t) {
    h -= step;
    if (h < 0) h += 360;
  } else {
    h += step;
    if (h > 359) h -= 360;
  }
}

float ease_toward(float now, float target) {
  if (now == target) return now;
  const float step = std::fabs(now - target) / kLookEase;
  if (step < kLookSnap) return target;
  return now < target ? now + step : now - step;
}

// The first arcsine entry pair that brackets r, or 89 when none does (r from sin 88 up, or
// a ratio that is not a number).
int table_arcsine(float r) {
  for (int i = 0; i < ARCSINE_ENTRIES - 1; ++i)
    if (ArcsineTable[i] <= r && r <= ArcsineTable[i + 1]) return i;
  return ARCSINE_ENTRIES - 1;
}

}  // namespace

void SmoothCameraAngles() {
  ease_pitch(FightCamera);
  ease_heading(FightCamera);
}

void SmoothLookAt() {
  FightCameraState& c = FightCamera;
  c.look_x = ease_toward(c.look_x, c.target_x);
  c.look_y = ease_toward(c.look_y, c.target_y);
}

void Camera_ApproachDistance() {
  FightCameraState& c = FightCamera;
  c.distance = ease_toward(c.distance, c.distance_target);
}

float AnglesFromEye() {
  FightCameraState& c = FightCamera;
  const float dx = c.target_x - c.eye_x, dy = c.target_y - c.eye_y, dz = c.target_z - c.eye_z;
  const float across = std::sqrt(dz * dz + dx * dx);
  const float full = std::sqrt(dy * dy + across * across);
  // The angles are read from the points cut to whole units.
  const int ex = static_cast<int>(c.eye_x), ey = static_cast<int>(c.eye_y);
  const int ez = static_cast<int>(c.eye_z), tx = static_cast<int>(c.target_x);
  const int ty = static_cast<int>(c.target_y), tz = static_cast<int>(c.target_z);

  const float flat = std::sqrt(static_cast<float>((ez - tz) * (ez - tz) + (ex - tx) * (ex - tx)));
  int i = flat > 0.0f ? table_arcsine(std::fabs(dz) / flat) : ARCSINE_ENTRIES - 1;
  int a;
  if (ex < tx)
    a = ez < tz ? 90 - i : 90 + i;
  else
    a = (tz <= ez ? -i : i) + 270;
  c.heading = ((360 - a) % 360 + 360) % 360;

  const float along = kEyeScale * full;
  i = along > 0.0f ? table_arcsine(static_cast<float>(std::abs(ty - ey)) / along) : 0;
  c.pitch = ey <= ty ? -i : i;
  return along;
}
