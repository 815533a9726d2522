// Angle tables, the affine matrix and its helpers, and the screen projection rule.
//
// The tables are written only at start-up: SinTable/CosTable by Build_SinCosTables (renderer
// initialisation), the step and arcsine tables by Build_AngleTables. Everyone else reads them.
// CurrentMat is written by the drawing pass that calls Mat_ApplyCurrent.
#pragma once
#include <cstdint>

// A whole-degree angle, 0..359, indexes the tables; callers bring angles into range.
constexpr int ANGLES = 360;
constexpr int ARCSINE_ENTRIES = 90;

extern float SinTable[ANGLES];
extern float CosTable[ANGLES];
extern float StepSinTable[ANGLES];  // 0.2 x sin, never exactly zero
extern float StepCosTable[ANGLES];  // 0.2 x cos, never exactly zero
extern float ArcsineTable[ARCSINE_ENTRIES];

// The renderer's sine and cosine tables (pi as the single 3.141592).
void Build_SinCosTables();
// The step tables and the arcsine table (pi as 3.1415927).
void Build_AngleTables();

// An affine transform for row vectors: m[0..2] x axis, m[3..5] y axis, m[6..8] z axis,
// m[9..11] translation.
struct Mat43 {
  float m[12];
};
static_assert(sizeof(Mat43) == 48);

// The current part matrix that Mat_ApplyCurrent uses.
extern Mat43 CurrentMat;

void Mat_RotX(Mat43* out, int a);
void Mat_RotY(Mat43* out, int a);
// out = in followed by a turn about y by a (all four rows turned). out may equal in.
void Mat_RotYOf(Mat43* out, const Mat43* in, int a);
// Turns about z by a3, then y by a2, then x by a1; translation (tx, ty, tz).
void Mat_Euler(Mat43* out, int a1, int a2, int a3, float tx, float ty, float tz);
void Mat_Scale(Mat43* out, float k);
void Mat_Translate(Mat43* out, float x, float y, float z);
// out = a followed by b. out must differ from a and b.
void Mat_Mul(Mat43* out, const Mat43* a, const Mat43* b);
void Mat_Apply(const Mat43* m, float x, float y, float z, float* ox, float* oy, float* oz);
void Mat_ApplyDir(const Mat43* m, float x, float y, float z, float* ox, float* oy, float* oz);
void Mat_ApplyCurrent(float x, float y, float z, float* ox, float* oy, float* oz);
void Mat_Copy(Mat43* out, const Mat43* in);

// Camera space to the 512 x 384 screen: sx = trunc(X * 819.2 / Z + 256),
// sy = trunc(192 - Y * 819.2 / Z). The GL vertex is then (sx, -sy, -Z). Z must be above 0.
constexpr float PROJECT_SCALE = 819.2f;
struct ScreenPoint {
  std::int32_t sx;
  std::int32_t sy;
};
ScreenPoint Project_Point(float x, float y, float z);
