// Fighter drawing: a fight frame drawn from a scene set up directly, the body centre, the
// feet held to the floor, and the flexible part's swing.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/headless/headless.h"
#include "render/render_fighter_fixture.h"
#include "render/render_state.h"
#include "render/render_sprite.h"
#include "shell/shell.h"
#include "support/test_support.h"

namespace {

constexpr float kPixel = 640.0f / 512.0f;  // picture space to the 640 x 480 screen

class FighterDrawTest : public test::TempDirTest {
 protected:
  void SetUp() override {
    test::ensure_gl();
    TempDirTest::SetUp();
    Build_SinCosTables();
    Build_AngleTables();
    Reset_Textures();
    Shell.GameMode = MODE_FIGHT;
    scene::load_stage();
    ASSERT_TRUE(scene::load_fighter(0, 0));
    ASSERT_TRUE(scene::load_fighter(9, 1));
  }
  void TearDown() override {
    Reset_Textures();
    Shell.GameMode = MODE_OPENING;
    TempDirTest::TearDown();
  }

  // One fight frame's drawing, presented: the screen as RGBA rows, top row first.
  static const std::uint8_t* draw_frame() {
    Clear_Screen(255, 0, 255);
    Clear_Depth();
    Draw_Stage();
    Draw_Fighters();
    Swap_Buffers();
    if (const char* shot = std::getenv("DRAW_SHOT")) Headless_WritePng(shot);  // to look at it
    return Headless_Pixels();
  }
  static bool near(const std::uint8_t* px, scene::Rgb c, int tol = 40) {
    return std::abs(px[0] - c.r) < tol && std::abs(px[1] - c.g) < tol && std::abs(px[2] - c.b) < tol;
  }
  static const std::uint8_t* at(const std::uint8_t* img, int x, int y) {
    return img + (y * HEADLESS_WIDTH + x) * 4;
  }
  // Share of the pixels of rows y0..y1 (screen rows) that match colour c.
  static double share(const std::uint8_t* img, int y0, int y1, scene::Rgb c) {
    int hits = 0, all = 0;
    for (int y = y0; y < y1; ++y)
      for (int x = 0; x < HEADLESS_WIDTH; ++x, ++all) hits += near(at(img, x, y), c);
    return static_cast<double>(hits) / all;
  }
  // Where a world point lands on the 640 x 480 screen.
  static void screen_of(float x, float y, float z, int* px, int* py) {
    float cx, cy, cz;
    Mat_Apply(&View, x, y, z, &cx, &cy, &cz);
    const ScreenPoint s = Project_Point(cx, cy, cz);
    *px = static_cast<int>(s.sx * kPixel);
    *py = static_cast<int>(s.sy * kPixel);
  }
  // Black pixels in a box around the point where the fighter's feet meet the floor.
  static int shadow_pixels(const std::uint8_t* img, int player) {
    const Fighter& f = fighters[player];
    int fx, fy;
    screen_of(f.pos_x, SHADOW_FLOOR_Y, f.pos_z + 1.0f, &fx, &fy);
    int dark = 0;
    for (int y = fy - 20; y < fy + 20 && y < HEADLESS_HEIGHT; ++y)
      for (int x = fx - 60; x < fx + 60; ++x)
        if (x >= 0 && x < HEADLESS_WIDTH && y >= 0) dark += near(at(img, x, y), {0, 0, 0}, 12);
    return dark;
  }
};

TEST_F(FighterDrawTest, FightFrameShowsStageFightersAndShadows) {
  const std::uint8_t* img = draw_frame();
  EXPECT_GT(share(img, 400, 480, scene::kFloor), 0.8) << "the floor covers the lower screen";
  EXPECT_GT(share(img, 0, 150, scene::kBackdrop), 0.95) << "the backdrop fills the upper screen";
  EXPECT_EQ(share(img, 0, 480, {255, 0, 255}), 0.0) << "nothing of the cleared screen shows";
  for (int p = 0; p < 2; ++p) {
    int x, y;
    const float* c = Draw.Body_Centre[p];
    screen_of(c[0], c[1], c[2], &x, &y);
    EXPECT_TRUE(near(at(img, x, y), scene::kSkin[p])) << "fighter " << p << " at its hips";
    EXPECT_EQ(p == 0, x < 320) << "fighter 0 stands left, fighter 1 right";
    EXPECT_GT(shadow_pixels(img, p), 200) << "fighter " << p << " casts a shadow";
  }
}

// Solid skins at full alpha cover what lies behind; a ghost's half alpha still lets it through.
TEST_F(FighterDrawTest, AGhostStillShowsTheStageThroughItsSkin) {
  int x, y;
  draw_frame();
  const float* c = Draw.Body_Centre[0];
  screen_of(c[0], c[1], c[2], &x, &y);
  EXPECT_TRUE(near(at(draw_frame(), x, y), scene::kSkin[0], 4));
  fighters[0].ghost = 1;
  const std::uint8_t* px = at(draw_frame(), x, y);
  fighters[0].ghost = 0;
  EXPECT_FALSE(near(px, scene::kSkin[0], 20));
  EXPECT_GT(px[2], 10) << "the blue backdrop shows through";
}

TEST_F(FighterDrawTest, ContinueSceneDrawsOnlyTheLoserWithoutShadow) {
  Shell.GameMode = MODE_CONTINUE;
  Match.winner = 1;
  fighters[0].part_box[BOX_Y_MAX][4] = 1e9f;
  const std::uint8_t* img = draw_frame();
  EXPECT_LT(fighters[0].part_box[BOX_Y_MAX][4], 10.0f) << "the boxes are still computed";
  EXPECT_EQ(shadow_pixels(img, 0), 0);
  int x, y;
  screen_of(fighters[1].pos_x, 0.0f, 0.0f, &x, &y);
  EXPECT_FALSE(near(at(img, x, y), scene::kSkin[1])) << "the winner is not drawn";
}

TEST_F(FighterDrawTest, BodyCentreSlidesOntoTheLineOfTravel) {
  Fighter& f = fighters[0];
  f.track_x0 = -5.0f, f.track_z0 = 2.0f;
  Place_Fighter(0);  // yaw 90: z follows from x along the heading
  const float* c = Draw.Body_Centre[0];
  EXPECT_NEAR(c[2], (c[0] + 5.0f) / StepSinTable[90] * StepCosTable[90] + 2.0f, 1e-4);
  f.yaw = 0;
  Place_Fighter(0);  // yaw 0: x follows from z
  EXPECT_NEAR(c[0], (c[2] - 2.0f) / StepCosTable[0] * StepSinTable[0] - 5.0f, 1e-4);
}

TEST_F(FighterDrawTest, HeldDownFeetLandAtTheFootHeight) {
  Fighter& f = fighters[0];
  f.busy = 1;
  f.height = 2.5f;  // thrown up in the air: the feet still go to the floor
  Place_Fighter(0);
  const float foot = CharacterHeightTable[0].foot;
  EXPECT_NEAR((f.part_box[BOX_Y_MIN][10] + f.part_box[BOX_Y_MAX][10]) / 2.0f, foot, 1e-4);
  const float unplaced = Draw.Foot_Centre[0][1] - 2.5f;  // the foot with no placement at all
  f.busy = 0, f.height = 0.0f;
  Place_Fighter(0);
  const float standing = (f.part_box[BOX_Y_MIN][10] + f.part_box[BOX_Y_MAX][10]) / 2.0f;
  EXPECT_NEAR(standing, unplaced + CharacterHeightTable[0].standing, 1e-4);
}

TEST(FlexSwing, AmplitudeStepsAndTurns) {
  Start_Flex(0, 1, 1);
  EXPECT_EQ(Draw.flex_amp[0], 60);
  Step_Flex(0);
  EXPECT_EQ(Draw.flex_pos[0], 6);
  int steps = 1;
  while (Draw.flex_dir[0] == 1 && steps < 100) Step_Flex(0), ++steps;
  EXPECT_EQ(steps, 11) << "the swing turns on the step that passes 60";
  EXPECT_EQ(Draw.flex_pos[0], 60);
  EXPECT_EQ(Draw.flex_amp[0], 53);
  Start_Flex(1, 2, -1);
  EXPECT_EQ(Draw.flex_amp[1], 70);
  Step_Flex(1);
  EXPECT_EQ(Draw.flex_pos[1], -7);
  Start_Flex(1, 3, 1);
  EXPECT_EQ(Draw.flex_amp[1], 80);
  for (int i = 0; i < 500; ++i) Step_Flex(0);
  EXPECT_EQ(Draw.flex_amp[0], 0) << "the swing dies out";
  EXPECT_EQ(Draw.flex_pos[0], 0);
}

}  // namespace
