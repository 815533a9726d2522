// Small vector and rotation helpers shared by the figure and motion generators.
// Rotations follow the game's convention: a point is a row vector, p' = p * R + t, and the rows
// of R are the images of the x, y and z axes.
#pragma once
#include <cmath>

namespace fig {

struct Vec3 {
  float x = 0, y = 0, z = 0;
};
inline Vec3 operator+(Vec3 a, Vec3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vec3 operator-(Vec3 a, Vec3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vec3 operator*(Vec3 a, float k) { return {a.x * k, a.y * k, a.z * k}; }
inline float Dot(Vec3 a, Vec3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec3 Cross(Vec3 a, Vec3 b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline float Length(Vec3 a) { return std::sqrt(Dot(a, a)); }
inline Vec3 Normalise(Vec3 a) {
  float l = Length(a);
  return l > 1e-9f ? a * (1.0f / l) : Vec3{0, 1, 0};
}
inline Vec3 Lerp(Vec3 a, Vec3 b, float t) { return a + (b - a) * t; }

constexpr float kPi = 3.14159265358979f;
constexpr float kDeg = kPi / 180.0f;

struct Rot {
  float m[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};  // rows: images of x, y, z
};
inline Vec3 Apply(const Rot& r, Vec3 p) {
  return {p.x * r.m[0] + p.y * r.m[3] + p.z * r.m[6], p.x * r.m[1] + p.y * r.m[4] + p.z * r.m[7],
          p.x * r.m[2] + p.y * r.m[5] + p.z * r.m[8]};
}
// a followed by b.
inline Rot Then(const Rot& a, const Rot& b) {
  Rot o;
  for (int r = 0; r < 3; ++r)
    for (int c = 0; c < 3; ++c)
      o.m[r * 3 + c] = a.m[r * 3] * b.m[c] + a.m[r * 3 + 1] * b.m[3 + c] + a.m[r * 3 + 2] * b.m[6 + c];
  return o;
}
// Turns about the model axes, in degrees. X turns +y toward +z, Y turns +z toward +x,
// Z turns +x toward +y.
inline Rot RotX(float deg) {
  float c = std::cos(deg * kDeg), s = std::sin(deg * kDeg);
  return {{1, 0, 0, 0, c, s, 0, -s, c}};
}
inline Rot RotY(float deg) {
  float c = std::cos(deg * kDeg), s = std::sin(deg * kDeg);
  return {{c, 0, -s, 0, 1, 0, s, 0, c}};
}
inline Rot RotZ(float deg) {
  float c = std::cos(deg * kDeg), s = std::sin(deg * kDeg);
  return {{c, s, 0, -s, c, 0, 0, 0, 1}};
}

}  // namespace fig
