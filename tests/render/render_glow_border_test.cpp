// Glow-blended pictures with a black border: the border is measured when the picture loads,
// and leaving it unfilled changes nothing on the screen, not even what a later effect behind
// the border's square is hidden by.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "fight/fight_state.h"
#include "platform/headless/headless.h"
#include "render/render_effect.h"
#include "render/render_math.h"
#include "render/render_sprite.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "render/render_effect_fixture.h"
#include "support/test_support.h"
#include "writers/writer_image.h"

namespace {

constexpr int kSide = 16;

// A 16 x 16 RGBA picture, black at full alpha but for the texels from (x0, y0) to (x1, y1)
// inclusive, which are (r, g, b) with a one-texel ring at half that.
writers::ImageFile bordered(int x0, int y0, int x1, int y1, std::uint8_t r, std::uint8_t g,
                            std::uint8_t b) {
  writers::ImageFile image{kSide, kSide, 4, writers::Bytes(kSide * kSide * 4)};
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x) {
      std::uint8_t* p = &image.pixels[(y * kSide + x) * 4];
      p[3] = 255;
      if (x < x0 || x > x1 || y < y0 || y > y1) continue;
      const bool ring = x == x0 || x == x1 || y == y0 || y == y1;
      p[0] = ring ? r / 2 : r;
      p[1] = ring ? g / 2 : g;
      p[2] = ring ? b / 2 : b;
    }
  return image;
}

class GlowBorder : public test::EffectPassTest {
 protected:
  void load(const char* name, const writers::ImageFile& image, int slot) {
    ASSERT_TRUE(writers::Write_Image(name, image));
    ASSERT_TRUE(Load_TextureSlot(name, slot));
  }
  static std::vector<std::uint8_t> screen() {
    Swap_Buffers();
    const std::uint8_t* p = Headless_Pixels();
    return {p, p + HEADLESS_WIDTH * HEADLESS_HEIGHT * 4};
  }
  static const std::uint8_t* at(const std::vector<std::uint8_t>& s, int x, int y) {
    const int px = x * HEADLESS_WIDTH / 512, py = y * HEADLESS_HEIGHT / 384;
    return &s[(py * HEADLESS_WIDTH + px) * 4];
  }
};

TEST_F(GlowBorder, IsMeasuredFromTheBlackOpaqueTexelsAtLoad) {
  load("A.BMP", bordered(3, 5, 11, 12, 200, 100, 50), 10);
  const float* a = Textures.Glow_Border[10];
  EXPECT_FLOAT_EQ(a[0], 3.0f / 16);
  EXPECT_FLOAT_EQ(a[1], 5.0f / 16);
  EXPECT_FLOAT_EQ(a[2], 4.0f / 16);
  EXPECT_FLOAT_EQ(a[3], 3.0f / 16);
  EXPECT_EQ(Textures.Texture_Opaque[10], 1);

  // Black at less than full alpha darkens under glow blending: it is picture, not border.
  writers::ImageFile see_through = bordered(6, 6, 9, 9, 255, 255, 255);
  see_through.pixels[3] = 0;  // texel (0, 0)
  load("B.BMP", see_through, 11);
  for (int k = 0; k < 2; ++k) EXPECT_EQ(Textures.Glow_Border[11][k], 0.0f);
  EXPECT_EQ(Textures.Texture_Opaque[11], 0);

  load("C.BMP", bordered(99, 99, 99, 99, 0, 0, 0), 12);  // all border
  EXPECT_FLOAT_EQ(Textures.Glow_Border[12][0] + Textures.Glow_Border[12][2], 1.0f);

  load("D.BMP", {2, 1, 3, {0, 0, 0, 9, 9, 9}}, 12);  // reloading the slot measures again
  EXPECT_FLOAT_EQ(Textures.Glow_Border[12][0], 0.5f);
  EXPECT_FLOAT_EQ(Textures.Glow_Border[12][2], 0.0f);
  EXPECT_EQ(Textures.Texture_Opaque[12], 1);
  Reset_Textures();
  EXPECT_EQ(Textures.Glow_Border[12][0], 0.0f);
}

TEST_F(GlowBorder, LeavingTheBorderUnfilledDrawsTheSamePicture) {
  // A white hit flash, then a red hit spark behind it and a quarter to the side: the spark's
  // bright middle lies under the flash's black border, which hides it.
  load("F.BMP", bordered(6, 6, 9, 9, 255, 255, 255), 45);
  load("S.BMP", bordered(5, 5, 10, 10, 255, 0, 0), 61);
  load("G.BMP", bordered(2, 4, 13, 11, 0, 200, 90), 400);
  Sprites.Raster_Slot[399] = 400;
  Sprites.Raster_Width[399] = kSide;
  Sprites.Raster_Height[399] = kSide;
  Textures.Texture_Count = 401;

  const auto draw = [] {
    Effects = EffectState{};
    Spawn_HitEffect(0, 0, 0, 0, 1, 0);
    Spawn_HitEffect(0, 1, 0, 5, 3, 0);
    Clear_Screen(30, 60, 90);
    Clear_Depth();
    Draw_Effects();
    glDisable(GL_DEPTH_TEST);  // as the display's calls draw
    Blend_Glow();
    Draw_RasterLGlow(399, 200, 20, 57, 23, 200);
    glEnable(GL_DEPTH_TEST);
    Blend_Normal();
    return screen();
  };
  const std::vector<std::uint8_t> cut = draw();
  std::memset(Textures.Glow_Border, 0, sizeof Textures.Glow_Border);  // filled whole
  const std::vector<std::uint8_t> whole = draw();

  EXPECT_GT(at(whole, 256, 192)[0], 200);  // the flash's middle
  EXPECT_EQ(at(whole, 256, 192)[1], at(whole, 256, 192)[0]);
  const std::uint8_t* hidden = at(whole, 256 + 30, 192);  // under the flash's border
  EXPECT_EQ(hidden[0], 30);
  EXPECT_GT(at(whole, 365, 50)[1], 150);  // the display's glow
  int differing = 0;
  for (std::size_t i = 0; i < whole.size(); ++i) differing += whole[i] != cut[i];
  EXPECT_EQ(differing, 0);
}

}  // namespace

namespace {

// An opaque picture is added to the screen rather than glow-blended; a picture with see-through
// texels, or one drawn in a see-through colour, keeps the glow. Either way the screen shows
// what glow blending shows.
TEST_F(GlowBorder, AddingAnOpaquePictureDrawsWhatGlowDraws) {
  load("F.BMP", bordered(4, 4, 11, 11, 200, 150, 100), 45);
  writers::ImageFile half = bordered(3, 3, 12, 12, 90, 200, 250);
  for (int i = 0; i < kSide * kSide; ++i) half.pixels[i * 4 + 3] = 128;
  load("H.BMP", half, 61);
  load("G.BMP", bordered(1, 1, 14, 14, 120, 120, 40), 400);
  Sprites.Raster_Slot[399] = 400;
  Textures.Texture_Count = 401;
  ASSERT_EQ(Textures.Texture_Opaque[45], 1);
  ASSERT_EQ(Textures.Texture_Opaque[61], 0);

  const auto draw = [](std::uint8_t colour_alpha) {
    Effects = EffectState{};
    Spawn_HitEffect(0, -1, 0, 0, 1, 0);  // opaque flash
    Spawn_HitEffect(0, 1, 0, 0, 3, 0);   // half see-through spark over it
    Clear_Screen(90, 60, 30);
    Clear_Depth();
    glColor4ub(255, 255, 255, colour_alpha);
    Draw_Effects();
    glColor4ub(255, 255, 255, 255);
    glDisable(GL_DEPTH_TEST);
    Blend_Glow();
    Draw_RasterLGlow(399, 150, 20, 40, 40, 180);
    glEnable(GL_DEPTH_TEST);
    Blend_Normal();
    return screen();
  };
  const std::vector<std::uint8_t> added = draw(255);
  const std::vector<std::uint8_t> faint = draw(128);
  std::uint8_t opaque[TEXTURE_SLOTS];
  std::memcpy(opaque, Textures.Texture_Opaque, sizeof opaque);
  std::memset(Textures.Texture_Opaque, 0, sizeof Textures.Texture_Opaque);  // glow everywhere
  const std::vector<std::uint8_t> glow = draw(255);
  const std::vector<std::uint8_t> faint_glow = draw(128);
  std::memcpy(Textures.Texture_Opaque, opaque, sizeof opaque);

  EXPECT_GT(at(glow, 215, 192)[0], 200);  // the flash brightens the screen
  EXPECT_GT(at(glow, 272, 64)[0], 150);   // and so does the display's glow
  EXPECT_NE(at(faint_glow, 215, 192)[0], at(glow, 215, 192)[0]);
  // The see-through spark alone over the clear colour: both halved, then summed.
  const std::uint8_t* spark = at(added, 300, 192);
  EXPECT_NEAR(spark[0], (90 + 90) / 2, 2);
  EXPECT_NEAR(spark[1], (200 + 60) / 2, 2);
  EXPECT_NEAR(spark[2], (250 + 30) / 2, 2);
  int differing = 0, faint_differing = 0;
  for (std::size_t i = 0; i < glow.size(); ++i) {
    differing += added[i] != glow[i];
    faint_differing += faint[i] != faint_glow[i];
  }
  EXPECT_EQ(differing, 0);
  EXPECT_EQ(faint_differing, 0);
}

}  // namespace

namespace {

// A picture with a see-through border drawn with normal blending and no depth test is filled
// only inside the border; with the depth test on (its border still hides what comes later
// behind it) or under glow blending (where clear texels darken) it is filled whole. Either way
// the screen shows the same.
TEST_F(GlowBorder, ASeeThroughBorderIsLeftOutOnlyWhereItChangesNothing) {
  writers::ImageFile picture = bordered(4, 3, 11, 12, 60, 220, 120);
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x) {
      std::uint8_t* p = &picture.pixels[(y * kSide + x) * 4];
      const bool outside = x < 4 || x > 12 || y < 2 || y > 12;
      if (outside) p[0] = 255, p[3] = 0;          // red, but clear
      if (x == 4 || x == 11) p[3] = outside ? 0 : 128;
    }
  load("P.BMP", picture, 400);
  load("W.BMP", {2, 2, 3, writers::Bytes(12, 255)}, 401);
  for (int s : {399, 398}) {
    Sprites.Raster_Slot[s] = s + 1;
    Sprites.Raster_Width[s] = kSide;
    Sprites.Raster_Height[s] = kSide;
  }
  Textures.Texture_Count = 402;
  EXPECT_FLOAT_EQ(Textures.Clear_Border[400][0], 4.0f / 16);
  EXPECT_FLOAT_EQ(Textures.Clear_Border[400][1], 2.0f / 16);
  EXPECT_FLOAT_EQ(Textures.Clear_Border[400][2], 3.0f / 16);
  EXPECT_FLOAT_EQ(Textures.Clear_Border[400][3], 3.0f / 16);

  enum Mode { kNoDepth, kDepth, kGlow };
  // White behind the pictures: drawn first, or with the depth test after them.
  const auto white = [] {
    Blend_Normal();
    SpriteDraw.Layer_Z = -50.0f;
    Draw_RasterStretch(398, 90, 90, 200, 200);
    SpriteDraw.Layer_Z = 0.0f;
  };
  const auto draw = [&white](Mode mode) {
    Clear_Screen(30, 60, 90);
    Clear_Depth();
    if (mode != kDepth) glDisable(GL_DEPTH_TEST);
    if (mode != kDepth) white();
    if (mode == kGlow) Blend_Glow();
    SpriteDraw.Layer_Z = 0.0f;
    Draw_RasterStretch(399, 100, 100, 160, 160);
    Draw_RasterStretchMirror(399, 300, 40, 96, 64);
    Draw_RasterLFade(399, 10, 150, 60, 60, 200);
    if (mode == kDepth) white();
    Blend_Normal();
    glEnable(GL_DEPTH_TEST);
    return screen();
  };
  for (Mode mode : {kNoDepth, kDepth, kGlow}) {
    const std::vector<std::uint8_t> cut = draw(mode);
    float saved[TEXTURE_SLOTS][4];
    std::memcpy(saved, Textures.Clear_Border, sizeof saved);
    std::memset(Textures.Clear_Border, 0, sizeof Textures.Clear_Border);  // filled whole
    const std::vector<std::uint8_t> whole = draw(mode);
    std::memcpy(Textures.Clear_Border, saved, sizeof saved);
    int differing = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) differing += whole[i] != cut[i];
    EXPECT_EQ(differing, 0) << "mode " << mode;
    if (mode != kGlow) {
      EXPECT_EQ(at(whole, 180, 180)[1], 220);  // the picture's middle
    }
    const int border = at(whole, 105, 180)[0];
    if (mode == kNoDepth) {
      EXPECT_EQ(border, 255);  // white through the border
    } else if (mode == kGlow) {
      EXPECT_EQ(border, 0);  // the border darkens
    } else if (mode == kDepth) {
      EXPECT_EQ(border, 30);  // hidden by the clear border
    }
  }
}

}  // namespace

namespace {

// A picture drawn in the current colour takes its texels outright only while that colour is
// opaque white: the screen shows what modulating by the colour shows, in white, in grey and
// at part alpha.
TEST_F(GlowBorder, TexelsAreTakenOutrightOnlyInOpaqueWhite) {
  writers::ImageFile picture = bordered(2, 2, 13, 13, 200, 120, 40);
  for (int i = 0; i < kSide * kSide; ++i) picture.pixels[i * 4 + 3] = static_cast<std::uint8_t>(i);
  load("P.BMP", picture, 400);
  Sprites.Raster_Slot[399] = 400;
  Sprites.Raster_Width[399] = kSide;
  Sprites.Raster_Height[399] = kSide;
  Textures.Texture_Count = 401;

  // The same picture in the current colour (plain call) and in a colour the call sets itself.
  const auto pair = [](std::uint8_t level, std::uint8_t alpha) {
    Clear_Screen(30, 60, 90);
    Clear_Depth();
    SpriteDraw.Layer_Z = 511.0f;
    glColor4ub(level, level, level, alpha);
    Draw_RasterLStretch(399, 10, 10, 80, 80);  // ten pixels a texel
    glColor4ub(255, 255, 255, 255);
    if (alpha == 255)
      Draw_RasterLTint(399, 160, 10, 80, 80, level);
    else
      Draw_RasterLFade(399, 160, 10, 80, 80, level);
    SpriteDraw.Layer_Z = 0.0f;
    return screen();
  };
  struct Case {
    std::uint8_t level, alpha;
  };
  for (const Case c : {Case{255, 255}, Case{128, 255}, Case{255, 255}, Case{128, 128}}) {
    const std::vector<std::uint8_t> s = pair(c.level, c.alpha);
    int differing = 0;
    for (int y = 8; y < 152; ++y)
      for (int x = 8; x < 152; ++x)
        for (int k = 0; k < 3; ++k) differing += at(s, x, y)[k] != at(s, x + 240, y)[k];
    EXPECT_EQ(differing, 0) << "level " << int(c.level) << " alpha " << int(c.alpha);
    EXPECT_NE(at(s, 96, 96)[0], 30);  // the picture is there
  }
  GLint mode = 0;
  glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, &mode);
  EXPECT_EQ(mode, GL_MODULATE);  // and modulating is back after each call
}

}  // namespace
