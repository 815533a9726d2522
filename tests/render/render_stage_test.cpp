// Stage drawing: near-plane clipping, floor tiles, the backdrop's scroll, the view and its
// shake, and the stage loaders.
#include <gtest/gtest.h>

#include <cmath>

#include "assets/loader_harness.h"
#include "render/render_fighter_fixture.h"
#include "platform/headless/headless.h"
#include "render/render_state.h"
#include "render/render_effect.h"
#include "render/render_sprite.h"
#include "support/test_support.h"

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

namespace {

// The floor under the painted strip: the arena drawn in one pass shows exactly what the floor
// filled whole and then the strip over it show, whether or not the strip closes the screen.
class StageCover : public test::TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    test::ensure_gl();
    Build_SinCosTables();
    Build_AngleTables();
    Reset_Textures();
    FightCamera = FightCameraState{};
    Shake.Shake_Index = 0;
    Match = MatchState{};
    static const Fighter kBlank{};
    fighters[0] = kBlank;
    fighters[1] = kBlank;
    Effects = EffectState{};
    // A floor of stripes that change every texel, and three plain-coloured panels.
    writers::ImageFile floor{16, 16, 3, writers::Bytes(16 * 16 * 3)};
    for (int i = 0; i < 16 * 16; ++i) {
      floor.pixels[i * 3] = static_cast<std::uint8_t>(40 + 12 * (i % 16));
      floor.pixels[i * 3 + 1] = static_cast<std::uint8_t>(200 - 9 * (i / 16));
      floor.pixels[i * 3 + 2] = 7;
    }
    ASSERT_TRUE(writers::Write_Image("F.BMP", floor));
    const char* names[3] = {"B1.BMP", "B2.BMP", "B3.BMP"};
    for (int p = 0; p < 3; ++p) {
      writers::ImageFile panel{4, 4, 3, writers::Bytes(4 * 4 * 3, static_cast<std::uint8_t>(250 - 60 * p))};
      ASSERT_TRUE(writers::Write_Image(names[p], panel));
    }
    Load_Floor("F.BMP");
    Load_Backdrop(names[0], names[1], names[2]);
    Stage.Stage_Light = 0;
  }
  void TearDown() override {
    Reset_Textures();
    TempDirTest::TearDown();
  }
  static std::vector<std::uint8_t> screen() {
    Swap_Buffers();
    const std::uint8_t* p = Headless_Pixels();
    return {p, p + HEADLESS_WIDTH * HEADLESS_HEIGHT * 4};
  }
  // The floor whole, then the five copies of the strip over it.
  static std::vector<std::uint8_t> floor_then_strip() {
    Clear_Screen(0, 0, 255);
    Clear_Depth();
    Set_View();
    SpriteDraw.Layer_Z = STAGE_LAYER_Z;
    glDisable(GL_BLEND);
    Draw_Floor();
    glDisable(GL_BLEND);
    Draw_Backdrop();
    for (float dx : {-1.0f, 1.0f, -2.0f, 2.0f}) Draw_BackdropAt(dx * BACKDROP_WIDTH);
    glEnable(GL_BLEND);
    SpriteDraw.Layer_Z = 0.0f;
    return screen();
  }
  static std::vector<std::uint8_t> stage() {
    Clear_Screen(0, 0, 255);
    Clear_Depth();
    Draw_Stage();
    return screen();
  }
};

TEST_F(StageCover, TheFloorUnderTheStripIsLeftOutWithoutChangingThePicture) {
  struct Pose {
    int pitch, heading;
    float look_x, look_y, distance;
  };
  const Pose poses[] = {
      {8, 180, 0.0f, 0.0f, 15.0f},     // a fight's usual view
      {20, 100, 37.0f, 2.0f, 11.0f},   // looking down, turned
      {2, 250, -55.0f, -1.0f, 25.0f},  // low and far
      {45, 10, 12.0f, 0.0f, 30.0f},    // steep: the strip stretched
      {350, 180, 0.0f, 4.0f, 8.0f},    // looking up
  };
  int covered = 0, floor_shown = 0;
  for (const Pose& p : poses) {
    FightCamera.pitch = p.pitch;
    FightCamera.heading = p.heading;
    FightCamera.look_x = p.look_x;
    FightCamera.look_y = p.look_y;
    FightCamera.distance = p.distance;
    const std::vector<std::uint8_t> whole = floor_then_strip();
    const std::vector<std::uint8_t> drawn = stage();
    int bottom = 0;
    Set_View();
    covered += Backdrop_Cover(Backdrop_Base(), &bottom);
    for (std::size_t i = 0; i < whole.size(); i += 4) floor_shown += whole[i + 2] == 7;
    int differing = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) differing += whole[i] != drawn[i];
    EXPECT_EQ(differing, 0) << "pitch " << p.pitch << " heading " << p.heading;
  }
  EXPECT_GT(covered, 0);
  EXPECT_GT(floor_shown, 1000);
}

// Copies of the strip that leave a gap at a screen side do not close the screen.
TEST_F(StageCover, AStripThatMissesASideCoversNothing) {
  int bottom = -1;
  EXPECT_TRUE(Backdrop_Cover({-60.0f, -10.0f, 60.0f}, &bottom));
  EXPECT_EQ(bottom, Project_Point(-60.0f, -10.0f, 60.0f).sy);
  EXPECT_FALSE(Backdrop_Cover({-60.0f, -10.0f, 2000.0f}, &bottom));  // far: narrower than the screen
  EXPECT_FALSE(Backdrop_Cover({-400.0f, -10.0f, 60.0f}, &bottom));   // ends short of the right side
  EXPECT_FALSE(Backdrop_Cover({280.0f, -10.0f, 60.0f}, &bottom));    // starts right of the left side
  EXPECT_FALSE(Backdrop_Cover({-60.0f, -10.0f, -5.0f}, &bottom));    // behind the eye
}

}  // namespace
