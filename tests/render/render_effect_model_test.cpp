// Effect models on screen: a square lands where its corners project, scales about its own
// origin, follows its placement, and shows only its front.
#include <gtest/gtest.h>

#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "render/render_3dsprite.h"
#include "render/render_math.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "support/test_support.h"
#include "writers/writer_image.h"

namespace {

class EffectModelDraw : public test::TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    test::ensure_gl();
    Build_SinCosTables();
    Reset_Textures();
    ASSERT_TRUE(writers::Write_Image(
        "G.BMP", {2, 2, 3, writers::Bytes{0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 255, 0}}));
    ASSERT_TRUE(Load_TextureSlot("G.BMP", 10));
    Textures.Texture_Count = 11;
    // A 2 x 2 square in the x-y plane, its front toward -z (toward the camera).
    EffectModel& E = Polygon_Sprite[1];
    E.max_vtx = 4;
    E.max_uv = 1;
    E.max_face = 2;
    const float corners[5][2] = {{0, 0}, {-1, -1}, {-1, 1}, {1, 1}, {1, -1}};
    for (int i = 1; i <= 4; ++i) E.vtx[i] = {corners[i][0], corners[i][1], 0, 0, 0, 0, -1, 0};
    E.uv[1] = {0.5f, 0.5f};
    E.face[1] = {{1, 2, 3}, {1, 1, 1}, 10};
    E.face[2] = {{1, 3, 4}, {1, 1, 1}, 10};
    Mat_Translate(&View, 0, 0, 30);
  }
  void TearDown() override {
    Polygon_Sprite[1].max_vtx = Polygon_Sprite[1].max_face = 0;
    Reset_Textures();
    TempDirTest::TearDown();
  }
  // Draws the square alone on a black screen and presents it.
  static void draw(float x, float z, int a2, float scale) {
    Clear_Screen(0, 0, 0);
    Clear_Depth();
    Draw_3DSprite(1, x, 0, z, 0, a2, 0, scale);
    Swap_Buffers();
  }
  // Whether screen point (x, 192) of the 512 x 384 space came out green.
  static bool green_at(int x) {
    const std::uint8_t* p =
        Headless_Pixels() +
        (192 * HEADLESS_HEIGHT / 384 * HEADLESS_WIDTH + x * HEADLESS_WIDTH / 512) * 4;
    return p[1] > 200 && p[0] < 50;
  }
};

TEST_F(EffectModelDraw, TheModelLandsWhereItProjectsAndShowsOnlyItsFront) {
  // One unit at depth 30 is 27.3 pixels: the square covers x 228..283 about the centre 256.
  draw(0, 0, 0, 1.0f);
  EXPECT_TRUE(green_at(256));
  EXPECT_TRUE(green_at(232));
  EXPECT_FALSE(green_at(300));
  draw(0, 0, 0, 2.0f);  // doubled about its own origin: 201..310
  EXPECT_TRUE(green_at(300));
  EXPECT_FALSE(green_at(320));
  draw(3, 0, 0, 1.0f);  // placed 3 units to the right: 310..365
  EXPECT_TRUE(green_at(338));
  EXPECT_FALSE(green_at(256));
  draw(3, 0, 0, 2.0f);  // scaled before it is placed: 283..392
  EXPECT_TRUE(green_at(290));
  EXPECT_TRUE(green_at(388));
  draw(0, 0, 180, 1.0f);  // turned round: its back faces the camera
  EXPECT_FALSE(green_at(256));
  draw(0, -30, 0, 1.0f);  // at the camera itself: nothing, rather than garbage
  EXPECT_FALSE(green_at(256));
  EXPECT_FALSE(green_at(100));
}

}  // namespace
