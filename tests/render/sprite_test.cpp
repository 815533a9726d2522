// Screen sprites: layout scaling, the mirrored and turned corner rules, the pictures as they
// land on screen, and the colour cycle.
#include <gtest/gtest.h>

#include <GL/gl.h>

#include "assets/asset_image.h"
#include "render/render_sprite.h"
#include "render/render_state.h"
#include "support/test_support.h"
#include "writers/writer_image.h"

namespace {

class Sprites_ : public test::TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    test::ensure_gl();
    Reset_Textures();
    SpriteDraw = SpriteDrawState{};
  }
  void TearDown() override {
    Reset_Textures();
    TempDirTest::TearDown();
  }
  // A w x h sprite whose column x is red when x == 0 and blue elsewhere (opaque RGBA).
  static void make_sprite(int sprite, int w, int h) {
    writers::Bytes px(static_cast<std::size_t>(w * h * 4));
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) {
        std::uint8_t* p = &px[static_cast<std::size_t>((y * w + x) * 4)];
        p[0] = x == 0 ? 255 : 0;
        p[2] = x == 0 ? 0 : 255;
        p[3] = 255;
      }
    ASSERT_TRUE(writers::Write_Image("S.BMP", {w, h, 4, px}));
    ASSERT_TRUE(Load_Raster("S.BMP", sprite, 0.0f));
  }
  static const ScreenVertex* quad(int sprite) { return Sprites.Raster_Quad[sprite]; }
  // The picture as presented, at screen point (x, y) of the 512 x 384 space.
  static const std::uint8_t* pixel(int x, int y) {
    const int px = x * HEADLESS_WIDTH / 512, py = y * HEADLESS_HEIGHT / 384;
    return Headless_Pixels() + (py * HEADLESS_WIDTH + px) * 4;
  }
};

}  // namespace

TEST_F(Sprites_, LayoutCoordinatesAreScaledAndTruncated) {
  EXPECT_EQ(Layout(1), 1);
  EXPECT_EQ(Layout(3), 4);
  EXPECT_EQ(Layout(10), 16);
  EXPECT_EQ(Layout(320), 512);
  make_sprite(7, 128, 64);
  Sprites.Raster_Width[7] = 100;  // natural size as drawn: 100 x 50 in layout units
  Sprites.Raster_Height[7] = 50;
  Draw_RasterL(7, 10, 10);
  EXPECT_FLOAT_EQ(quad(7)[0].x, 16);
  EXPECT_FLOAT_EQ(quad(7)[0].y, 16);
  EXPECT_FLOAT_EQ(quad(7)[2].x, 176);
  EXPECT_FLOAT_EQ(quad(7)[2].y, 96);
}

TEST_F(Sprites_, MirroredAndTurnedQuadsMoveCornersNotTextureCoordinates) {
  make_sprite(3, 32, 16);
  Draw_RasterMirror(3, 100, 50);
  const ScreenVertex* q = quad(3);
  EXPECT_FLOAT_EQ(q[0].x, 132);  // corner 0 at (x + w, y)
  EXPECT_FLOAT_EQ(q[1].x, 100);  // corner 1 at (x, y)
  EXPECT_FLOAT_EQ(q[2].y, 66);
  EXPECT_FLOAT_EQ(q[0].s, 0);
  EXPECT_FLOAT_EQ(q[1].s, 1);
  Draw_RasterStretchTurn(3, 10, 20, 40, 30);
  EXPECT_FLOAT_EQ(q[0].x, 50);  // (x + w, y + h)
  EXPECT_FLOAT_EQ(q[0].y, 50);
  EXPECT_FLOAT_EQ(q[1].x, 10);  // (x, y + h)
  EXPECT_FLOAT_EQ(q[2].y, 20);  // (x, y)
  EXPECT_FLOAT_EQ(q[3].x, 50);  // (x + w, y)
  EXPECT_FLOAT_EQ(q[3].y, 20);
}

TEST_F(Sprites_, MirroredPictureShowsItsFirstColumnAtTheRightEdge) {
  make_sprite(5, 64, 64);
  glDisable(GL_DEPTH_TEST);
  Clear_Screen(0, 0, 0);
  Draw_RasterStretch(5, 0, 0, 256, 192);
  Draw_RasterStretchMirror(5, 256, 192, 256, 192);
  glEnable(GL_DEPTH_TEST);
  Swap_Buffers();
  EXPECT_GT(pixel(2, 96)[0], 200);    // as stored: red column on the left
  EXPECT_GT(pixel(128, 96)[2], 200);  // blue inside
  EXPECT_GT(pixel(509, 288)[0], 200);  // mirrored: red column on the right
  EXPECT_GT(pixel(300, 288)[2], 200);
  EXPECT_EQ(pixel(300, 96)[2], 0);     // nothing drawn where no sprite lies
}

TEST_F(Sprites_, ColourCycleSweepsDownAndWrapsEachCornerAtItsOwnPace) {
  auto red0 = [] { return SpriteDraw.Scratch_Quad[0].r; };
  for (int call = 1; call <= 86; ++call) {
    Cycle_Step();
    const int expect = call == 42 || call == 43 ? 3 : call == 85 ? 255 : call == 86 ? 250 : -1;
    if (expect >= 0) {  // 3 at counter 3 and -3; 255 at -255; -261 wraps to 250
      EXPECT_EQ(red0(), expect) << "call " << call;
    }
  }
  EXPECT_EQ(SpriteDraw.Cycle_Colour[0][2], 255);  // corner 0 blue never moves
  Set_Brightness(128);
  Cycle_Step();
  EXPECT_EQ(SpriteDraw.Scratch_Quad[3].g, 125);
}

TEST_F(Sprites_, DrawModeKeepsTheBlendOnlyForOddCodes) {
  GLint dst = 0;
  Blend_Glow();
  Set_DrawMode(41);
  glGetIntegerv(GL_BLEND_DST, &dst);
  EXPECT_EQ(dst, GL_SRC_ALPHA);
  Set_DrawMode(40);
  glGetIntegerv(GL_BLEND_DST, &dst);
  EXPECT_EQ(dst, GL_ONE_MINUS_SRC_ALPHA);
}
