// Angle tables, matrix helpers and the software projection.
#include "render/render_math.h"

#include <cmath>
#include <cstring>

float SinTable[ANGLES];
float CosTable[ANGLES];
float StepSinTable[ANGLES];
float StepCosTable[ANGLES];
float ArcsineTable[ARCSINE_ENTRIES];
Mat43 CurrentMat;

namespace {

// The two values of pi the tables were built with, as single-precision constants.
constexpr double kPiRender = static_cast<double>(3.141592f);
constexpr double kPiStep = static_cast<double>(3.1415927f);
constexpr double kStep = static_cast<double>(0.2f);

double radians(int degrees, double pi) { return degrees * pi / 180.0; }

// Angles outside 0..359 are wrapped rather than read past the tables.
int wrap(int a) { return ((a % ANGLES) + ANGLES) % ANGLES; }
float sin_of(int a) { return SinTable[wrap(a)]; }
float cos_of(int a) { return CosTable[wrap(a)]; }

// Truncation toward zero that saturates instead of overflowing (and maps NaN to 0).
std::int32_t trunc_i32(float v) {
  if (!(v > -2147483520.0f)) return v != v ? 0 : INT32_MIN;
  if (!(v < 2147483520.0f)) return INT32_MAX;
  return static_cast<std::int32_t>(v);
}

void set_rotation(Mat43* out, float a0, float a1, float a2, float b0, float b1, float b2,
                  float c0, float c1, float c2) {
  float* m = out->m;
  m[0] = a0, m[1] = a1, m[2] = a2;
  m[3] = b0, m[4] = b1, m[5] = b2;
  m[6] = c0, m[7] = c1, m[8] = c2;
  m[9] = m[10] = m[11] = 0.0f;
}

}  // namespace

void Build_SinCosTables() {
  for (int i = 0; i < ANGLES; ++i) {
    SinTable[i] = static_cast<float>(std::sin(radians(i, kPiRender)));
    CosTable[i] = static_cast<float>(std::cos(radians(i, kPiRender)));
  }
}

void Build_AngleTables() {
  for (int i = 0; i < ARCSINE_ENTRIES; ++i)
    ArcsineTable[i] = static_cast<float>(std::sin(radians(i, kPiStep)));
  ArcsineTable[0] = 0.0f;
  ArcsineTable[ARCSINE_ENTRIES - 1] = 10.0f;  // catches every ratio from sin 88 up

  for (int i = 0; i < ANGLES; ++i) {
    // Where a whole degree's sine or cosine is zero the neighbouring degree stands in, so
    // positions can be divided by any entry.
    const int si = (i == 0 || i == 180) ? i + 1 : i;
    const int ci = (i == 90 || i == 270) ? i - 1 : i;
    StepSinTable[i] = static_cast<float>(std::sin(radians(si, kPiStep)) * kStep);
    StepCosTable[i] = static_cast<float>(std::cos(radians(ci, kPiStep)) * kStep);
  }
}

void Mat_RotX(Mat43* out, int a) {
  const float c = cos_of(a), s = sin_of(a);
  set_rotation(out, 1, 0, 0, 0, c, s, 0, -s, c);
}

void Mat_RotY(Mat43* out, int a) {
  const float c = cos_of(a), s = sin_of(a);
  set_rotation(out, c, 0, -s, 0, 1, 0, s, 0, c);
}

void Mat_RotYOf(Mat43* out, const Mat43* in, int a) {
  const float c = cos_of(a), s = sin_of(a);
  for (int r = 0; r < 4; ++r) {
    const float x = in->m[3 * r], y = in->m[3 * r + 1], z = in->m[3 * r + 2];
    out->m[3 * r] = x * c + z * s;
    out->m[3 * r + 1] = y;
    out->m[3 * r + 2] = -x * s + z * c;
  }
}

void Mat_Euler(Mat43* out, int a1, int a2, int a3, float tx, float ty, float tz) {
  const float c1 = cos_of(a1), s1 = sin_of(a1);
  const float c2 = cos_of(a2), s2 = sin_of(a2);
  const float c3 = cos_of(a3), s3 = sin_of(a3);
  set_rotation(out, c2 * c3, s1 * s2 * c3 + c1 * s3, -c1 * s2 * c3 + s1 * s3,  //
               -c2 * s3, -s1 * s2 * s3 + c1 * c3, c1 * s2 * s3 + s1 * c3,     //
               s2, -s1 * c2, c1 * c2);
  out->m[9] = tx, out->m[10] = ty, out->m[11] = tz;
}

void Mat_Scale(Mat43* out, float k) {
  set_rotation(out, k, 0, 0, 0, k, 0, 0, 0, k);
}

void Mat_Translate(Mat43* out, float x, float y, float z) {
  set_rotation(out, 1, 0, 0, 0, 1, 0, 0, 0, 1);
  out->m[9] = x, out->m[10] = y, out->m[11] = z;
}

void Mat_Mul(Mat43* out, const Mat43* a, const Mat43* b) {
  const float* A = a->m;
  const float* B = b->m;
  for (int r = 0; r < 4; ++r) {
    for (int c = 0; c < 3; ++c) {
      float v = A[3 * r] * B[c] + A[3 * r + 1] * B[3 + c] + A[3 * r + 2] * B[6 + c];
      if (r == 3) v += B[9 + c];
      out->m[3 * r + c] = v;
    }
  }
}

void Mat_Apply(const Mat43* m, float x, float y, float z, float* ox, float* oy, float* oz) {
  const float* M = m->m;
  *ox = x * M[0] + y * M[3] + z * M[6] + M[9];
  *oy = x * M[1] + y * M[4] + z * M[7] + M[10];
  *oz = x * M[2] + y * M[5] + z * M[8] + M[11];
}

void Mat_ApplyDir(const Mat43* m, float x, float y, float z, float* ox, float* oy, float* oz) {
  const float* M = m->m;
  *ox = x * M[0] + y * M[3] + z * M[6];
  *oy = x * M[1] + y * M[4] + z * M[7];
  *oz = x * M[2] + y * M[5] + z * M[8];
}

void Mat_ApplyCurrent(float x, float y, float z, float* ox, float* oy, float* oz) {
  Mat_Apply(&CurrentMat, x, y, z, ox, oy, oz);
}

void Mat_Copy(Mat43* out, const Mat43* in) { std::memcpy(out, in, sizeof(Mat43)); }

ScreenPoint Project_Point(float x, float y, float z) {
  return {trunc_i32(x * PROJECT_SCALE / z + 256.0f), trunc_i32(192.0f - y * PROJECT_SCALE / z)};
}
