// Stage drawing: near-plane clipping, floor tiles, the backdrop's scroll, the view and its
// shake, and the stage loaders.
#include <gtest/gtest.h>

#include <cmath>

#include "assets/loader_harness.h"
#include "render/render_fighter_fixture.h"

namespace {

ScreenVertex corner(float x, float y, float z, float s = 0, std::uint16_t r = 0) {
  return {x, y, z, s, 0, r, 0, 0, 255};
}

float screen_x(float x, float z) { return x * PROJECT_SCALE / z + 256.0f; }
float screen_y(float y, float z) { return 192.0f - y * PROJECT_SCALE / z; }

void expect_at(const ScreenVertex& v, float x, float y, float z) {
  EXPECT_FLOAT_EQ(v.x, screen_x(x, z));
  EXPECT_FLOAT_EQ(v.y, screen_y(y, z));
  EXPECT_FLOAT_EQ(v.z, z);
}

TEST(StageClip, WholeAndHiddenTriangles) {
  ScreenVertex out[6];
  EXPECT_EQ(Clip_Triangle(corner(0, 0, 20), corner(10, 0, 20), corner(0, 10, 20), out), 1);
  expect_at(out[1], 10, 0, 20);
  EXPECT_EQ(Clip_Triangle(corner(0, 0, 9.9f), corner(1, 0, -5), corner(0, 1, 0), out), 0);
  EXPECT_EQ(Clip_Triangle(corner(0, 0, NAN), corner(1, 0, 20), corner(0, 1, 20), out), 0);
}

TEST(StageClip, OneCornerInFrontPullsTheOthersToThePlane) {
  ScreenVertex out[6];
  // The corner in front is the last: the triangle starts from it and keeps its winding.
  const ScreenVertex a = corner(0, 0, 0, 0.0f, 0), b = corner(8, 0, 0, 0.5f, 0);
  const ScreenVertex c = corner(4, 4, 20, 1.0f, 255);
  ASSERT_EQ(Clip_Triangle(a, b, c, out), 1);
  expect_at(out[0], 4, 4, 20);
  expect_at(out[1], 2, 2, 10);  // a moved half way toward c
  expect_at(out[2], 6, 2, 10);  // b moved half way toward c
  EXPECT_FLOAT_EQ(out[1].s, 0.5f);
  EXPECT_FLOAT_EQ(out[2].s, 0.75f);
  EXPECT_EQ(out[1].r, 127) << "colours are truncated";
}

TEST(StageClip, TwoCornersInFrontMakeTwoTriangles) {
  ScreenVertex out[6];
  const ScreenVertex a = corner(0, 0, 20), b = corner(8, 0, 20), c = corner(4, 8, 0);
  ASSERT_EQ(Clip_Triangle(a, b, c, out), 2);
  expect_at(out[0], 0, 0, 20);
  expect_at(out[1], 8, 0, 20);
  expect_at(out[2], 6, 4, 10);  // c toward b
  expect_at(out[3], 0, 0, 20);
  expect_at(out[4], 6, 4, 10);
  expect_at(out[5], 2, 4, 10);  // c toward a
}

TEST(StageClip, CornerOnThePlaneCountsAsInFront) {
  ScreenVertex out[6];
  ASSERT_EQ(Clip_Triangle(corner(1, 1, 5), corner(3, 2, 10.0f), corner(5, 0, 2), out), 1);
  for (int k = 0; k < 3; ++k) expect_at(out[k], 3, 2, 10);  // a sliver at the one corner
}

TEST(StageFloor, TilesFollowTheLookAtPointInWholeSteps) {
  float c[3];
  const float cases[3][4] = {{69.9f, -70.0f, 0.0f, 70.0f},
                             {70.0f, 0.0f, 70.0f, 140.0f},
                             {-70.0f, -140.0f, -70.0f, 0.0f}};
  for (const auto& k : cases) {
    Floor_TileCentres(k[0], c);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(c[i], k[i + 1]) << "look-at " << k[0];
  }
}

class ViewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Build_SinCosTables();
    FightCamera = FightCameraState{};
    Shake.Shake_Index = 0;
  }
};

TEST_F(ViewTest, EyeSitsTwiceTheDistanceFromTheLookAtPoint) {
  FightCamera.look_x = 1, FightCamera.look_y = 2, FightCamera.look_z = 3;
  for (int heading : {0, 90, 200}) {
    FightCamera.heading = heading;
    FightCamera.pitch = heading == 200 ? 10 : 0;
    Set_View();
    float x, y, z;
    Mat_Apply(&View, 1, 2, 3, &x, &y, &z);
    EXPECT_NEAR(x, 0, 1e-4);
    EXPECT_NEAR(y, 0, 1e-4);
    EXPECT_NEAR(z, 30, 1e-4);
  }
}

TEST_F(ViewTest, ShakeRunsItsTableOnceAndStops) {
  Shake.Shake_Index = 1;
  const float expected[] = {0.2f, -0.5f, 0.15f, -0.3f, 0.1f, -0.1f, 0.05f, 0.0f, 0.0f, 0.0f};
  for (float s : expected) {
    Set_View();
    EXPECT_NEAR(-View.m[10] / CosTable[359], s, 1e-6);
  }
  EXPECT_EQ(Shake.Shake_Index, 0);
}

TEST_F(ViewTest, BackdropScrollsWithHeadingAndPosition) {
  FightCamera.heading = 180;  // scroll 0: the first panel starts at the screen centre
  BackdropBase b = Backdrop_Base();
  EXPECT_EQ(b.bx, 0.0f);
  EXPECT_EQ(Project_Point(b.bx, b.by, b.bZ).sx, 256);
  FightCamera.heading = 0;  // scroll -60
  EXPECT_FLOAT_EQ(Backdrop_Base().bx, -60.0f);
  FightCamera.heading = 90, FightCamera.look_x = 100.0f;  // f = 65
  EXPECT_FLOAT_EQ(Backdrop_Base().bx, -65.0f);
  FightCamera.look_x = -300.0f;  // f = -75, brought back into the strip
  EXPECT_FLOAT_EQ(Backdrop_Base().bx, -45.0f);
}

class StageLoadTest : public harness::LoaderTest {
 protected:
  void SetUp() override {
    LoaderTest::SetUp();
    Reset_Textures();
    const StagePictures& row = StageTable[5];
    for (const char* name : {row.floor, row.light, row.backdrop[0], row.backdrop[2],
                             StageTable[0].super_move, row.super_move})
      ASSERT_TRUE(scene::write_solid(name, {9, 9, 9}));
    Match.character[0] = 0;
    Match.character[1] = 5;
  }
  void TearDown() override {
    Reset_Textures();
    LoaderTest::TearDown();
  }
};

TEST_F(StageLoadTest, StageOfTheFighterInOrderOrAMissingPanelEndsTheGame) {
  const harness::Outcome o = harness::run([] { Load_Stage(1); });
  EXPECT_EQ(o.status, 0);
  EXPECT_NE(o.out.find("Texture Loading Error DS05_BG2.bmp"), std::string::npos);
  EXPECT_NE(o.err.find("022\n"), std::string::npos);
  EXPECT_EQ(Sprites.Raster_Slot[SUPER_SPRITE_0], 0);
  EXPECT_EQ(Sprites.Raster_Slot[SUPER_SPRITE_1], 1);
  EXPECT_EQ(Stage.floor_slot, 2);
  EXPECT_EQ(Stage.light_slot, 3);
  EXPECT_EQ(Stage.Stage_Light, 1);
  EXPECT_EQ(Stage.backdrop_slot[0], 4);
  EXPECT_FLOAT_EQ(Stage.floor.v[63].x, 35.0f);
  EXPECT_FLOAT_EQ(Stage.light.v[0].z, -70.0f);
  EXPECT_EQ(Stage.floor.tri[97][0], 54);
}

}  // namespace
