// Angle tables, matrix helpers and the projection rule.
#include <gtest/gtest.h>

#include <cmath>

#include "render/render_math.h"

namespace {

class RenderMath : public ::testing::Test {
 protected:
  void SetUp() override {
    Build_SinCosTables();
    Build_AngleTables();
  }
  static void expect_maps(const Mat43& m, float x, float y, float z, float ex, float ey,
                          float ez) {
    float o[3];
    Mat_Apply(&m, x, y, z, &o[0], &o[1], &o[2]);
    EXPECT_NEAR(o[0], ex, 1e-5);
    EXPECT_NEAR(o[1], ey, 1e-5);
    EXPECT_NEAR(o[2], ez, 1e-5);
  }
};

TEST_F(RenderMath, TablesUseTheirOwnPiAndNeverStepByZero) {
  // The renderer's pi is the single 3.141592, so sin 180 is a little above zero.
  EXPECT_EQ(SinTable[180], static_cast<float>(std::sin(static_cast<double>(3.141592f))));
  EXPECT_FLOAT_EQ(SinTable[30], 0.5f);
  for (int i = 0; i < 360; ++i) EXPECT_TRUE(StepSinTable[i] != 0 && StepCosTable[i] != 0) << i;
  EXPECT_EQ(StepSinTable[0], StepSinTable[1]);
  EXPECT_EQ(StepSinTable[180], StepSinTable[181]);
  EXPECT_EQ(StepCosTable[270], StepCosTable[269]);
  EXPECT_FLOAT_EQ(StepCosTable[180], -0.2f);
  EXPECT_EQ(ArcsineTable[0], 0.0f);
  EXPECT_EQ(ArcsineTable[89], 10.0f);
  EXPECT_LT(ArcsineTable[88], 1.0f);
}

TEST_F(RenderMath, RotationsAndProductsApplyTheLeftTransformFirst) {
  Mat43 r, t, out;
  Mat_RotY(&r, 90);  // yaw 90 turns model +z onto world +x
  expect_maps(r, 1, 0, 0, 0, 0, -1);
  expect_maps(r, 0, 0, 1, 1, 0, 0);
  Mat_Translate(&t, 1, 0, 0);
  Mat_Mul(&out, &t, &r);
  expect_maps(out, 0, 0, 0, 0, 0, -1);
  Mat_Mul(&out, &r, &t);
  expect_maps(out, 0, 0, 0, 1, 0, 0);
  Mat_Translate(&t, 2, 3, 4);
  Mat_RotYOf(&t, &t, 90);  // in place, and the translation row turns too
  expect_maps(t, 0, 0, 0, 4, 3, -2);
  float d[3];
  Mat_ApplyDir(&t, 1, 0, 0, &d[0], &d[1], &d[2]);  // directions ignore the translation
  EXPECT_NEAR(d[2], -1, 1e-6);
  Mat_Copy(&CurrentMat, &t);
  Mat_ApplyCurrent(0, 0, 0, &d[0], &d[1], &d[2]);
  EXPECT_FLOAT_EQ(d[0], 4);
}

TEST_F(RenderMath, EulerTurnsAboutZThenYThenX) {
  Mat43 e, x, y, z, yx, zyx;
  Mat_Euler(&e, 0, 0, 0, 1, 2, 3);
  expect_maps(e, 1, 1, 1, 2, 3, 4);
  Mat_Euler(&e, 30, 50, 70, 0, 0, 0);
  Mat_RotX(&x, 30);
  Mat_RotY(&y, 50);
  Mat_Euler(&z, 0, 0, 70, 0, 0, 0);
  expect_maps(z, 1, 0, 0, CosTable[70], SinTable[70], 0);  // about z: x goes toward y
  Mat_Mul(&yx, &y, &x);
  Mat_Mul(&zyx, &z, &yx);
  for (int i = 0; i < 12; ++i) EXPECT_NEAR(e.m[i], zyx.m[i], 1e-6) << i;
}

TEST_F(RenderMath, ProjectionTruncatesTowardZero) {
  ScreenPoint p = Project_Point(100, 0, 819.2f);
  EXPECT_EQ(p.sx, 356);
  EXPECT_EQ(p.sy, 192);
  p = Project_Point(-256.5f, 10.5f, 819.2f);  // -0.5 and 181.5 both cut toward zero
  EXPECT_EQ(p.sx, 0);
  EXPECT_EQ(p.sy, 181);
  EXPECT_EQ(Project_Point(1, 0, 0).sx, INT32_MAX);  // no guard, but no overflow either
}

}  // namespace
