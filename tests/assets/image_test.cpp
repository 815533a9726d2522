// Image files, texture slots and screen sprites.
#include <cstring>

#include "assets/asset_image.h"
#include "assets/asset_report.h"
#include "assets/loader_harness.h"
#include "writers/writer_image.h"

namespace {

using harness::run;

writers::ImageFile make_image(int w, int h, int components) {
  writers::ImageFile image{w, h, components, {}};
  for (int i = 0; i < w * h * (components == 4 ? 4 : 3); ++i)
    image.pixels.push_back(static_cast<std::uint8_t>(i * 7 + 3));
  return image;
}

void write_image(const char* name, int w, int h, int components) {
  ASSERT_TRUE(writers::Write_Image(name, make_image(w, h, components)));
}

GLint tex_param(GLenum which) {
  GLint v = 0;
  glGetTexParameteriv(GL_TEXTURE_2D, which, &v);
  return v;
}

class ImageTest : public harness::LoaderTest {
 protected:
  void SetUp() override {
    LoaderTest::SetUp();
    Reset_Textures();
    Textures.Texture_Repeat = 0;
  }
  void TearDown() override {
    Reset_Textures();
    LoaderTest::TearDown();
  }
};

TEST_F(ImageTest, PicturesRoundTripIntoTexturesWithTheirFormatAndUploadRules) {
  for (int components : {4, 3}) {
    for (int repeat : {0, 1}) {
      SCOPED_TRACE(testing::Message() << components << " components, repeat " << repeat);
      const writers::ImageFile image = make_image(4, 2, components);
      ASSERT_TRUE(writers::Write_Image("PIC.BMP", image));
      Textures.Texture_Repeat = repeat;
      const int slot = Textures.Texture_Count;
      ASSERT_TRUE(Load_Raster("pic.bmp", 7, 10.0f));  // opened ignoring letter case
      EXPECT_EQ(Sprites.Raster_Slot[7], slot);
      EXPECT_EQ(Textures.Texture_Count, slot + 1);
      EXPECT_EQ(Sprites.Raster_Width[7], 4);
      EXPECT_EQ(Sprites.Raster_Height[7], 2);
      for (const ScreenVertex& corner : Sprites.Raster_Quad[7]) EXPECT_EQ(corner.z, 22.0f);
      EXPECT_EQ(Sprites.Raster_Quad[7][2].s + Sprites.Raster_Quad[7][2].t, 2.0f);  // (1, 1)

      glBindTexture(GL_TEXTURE_2D, Textures.TextureId[slot]);
      std::uint8_t texels[4 * 2 * 4] = {};
      glGetTexImage(GL_TEXTURE_2D, 0, components == 4 ? GL_RGBA : GL_RGB, GL_UNSIGNED_BYTE, texels);
      EXPECT_EQ(std::memcmp(texels, image.pixels.data(), image.pixels.size()), 0);
      GLint alpha_bits = -1;
      glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_ALPHA_SIZE, &alpha_bits);
      EXPECT_EQ(alpha_bits > 0, components == 4);
      EXPECT_EQ(tex_param(GL_TEXTURE_WRAP_S), repeat ? GL_REPEAT : GL_CLAMP);
      EXPECT_EQ(tex_param(GL_TEXTURE_WRAP_T), repeat ? GL_REPEAT : GL_CLAMP);
      EXPECT_EQ(tex_param(GL_TEXTURE_MIN_FILTER), repeat ? GL_LINEAR : GL_NEAREST);
      EXPECT_EQ(tex_param(GL_TEXTURE_MAG_FILTER), repeat ? GL_LINEAR : GL_NEAREST);
    }
  }
}

TEST_F(ImageTest, SlotsGoInOrderAFailureKeepsTheSlotAndResetStartsOver) {
  write_image("A.BMP", 2, 2, 3);
  write_image("B.BMP", 8, 4, 4);
  ASSERT_TRUE(Load_Raster("A.BMP", 1, 0.0f));
  const GLuint first = Textures.TextureId[0];
  std::strcpy(Textures.TextureFile[0], "A.BMP");

  const auto failed = run([] { EXPECT_FALSE(Load_Raster("GONE.BMP", 1, 5.0f)); });
  EXPECT_EQ(failed.err, "Loading Error GONE.BMP\nvaldrune: GONE.BMP: missing; picture 1 is not loaded\n");
  EXPECT_EQ(failed.out, "\nGONE.BMP errorTexture Loading Error GONE.BMP");
  EXPECT_EQ(Textures.Texture_Count, 1);
  EXPECT_EQ(Sprites.Raster_Slot[1], 0);  // the sprite keeps its picture
  EXPECT_EQ(Sprites.Raster_Width[1], 2);
  EXPECT_EQ(Sprites.Raster_Quad[1][0].z, 2.0f);

  ASSERT_TRUE(Load_Raster("B.BMP", 2, 0.0f));
  EXPECT_EQ(Sprites.Raster_Slot[2], 1);
  EXPECT_EQ(Textures.Texture_Width, 8);
  EXPECT_EQ(Textures.Texture_Height, 4);

  Reset_Textures();
  EXPECT_EQ(Textures.Texture_Count, 0);
  EXPECT_EQ(Textures.TextureFile[0][0], '\0');
  EXPECT_FALSE(glIsTexture(first));
  ASSERT_TRUE(Load_Raster("B.BMP", 3, 0.0f));
  EXPECT_EQ(Sprites.Raster_Slot[3], 0);
}

TEST_F(ImageTest, TheLastSlotFillsAndThenTheTableIsFull) {
  write_image("A.BMP", 2, 2, 3);
  Textures.Texture_Count = 999;
  ASSERT_TRUE(Load_Raster("A.BMP", 4, 0.0f));
  EXPECT_EQ(Textures.Texture_Count, 1000);
  const auto full = run([] { EXPECT_FALSE(Load_Raster("GONE.BMP", 5, 0.0f)); });
  EXPECT_EQ(full.out, "Load_Raster out ERROR\r");
  // The file is not even opened.
  EXPECT_EQ(full.err, "valdrune: GONE.BMP: not loaded: all 1000 texture slots are taken; picture 5 is not loaded\n");
  EXPECT_EQ(Textures.Texture_Count, 1000);
}

TEST_F(ImageTest, TheStagingBufferTakesAFullSizePictureAndRefusesMore) {
  write_image("BIG.BMP", 1024, 1024, 4);
  int w = 0, h = 0, c = 0;
  ASSERT_TRUE(Load_Image("BIG.BMP", w, h, c));
  EXPECT_EQ(Image_Pixels()[1024 * 1024 * 4 - 1], static_cast<std::uint8_t>((1024 * 1024 * 4 - 1) * 7 + 3));

  // Header fields, the pixel bytes that follow, and how much of the header is there.
  struct Bad { const char* name; int w, h, c, pixel_bytes, header_bytes; const char* reason; };
  const Bad cases[] = {
      {"WIDE.BMP", 1025, 1, 3, 4000, 6, "1025 x 1 pixels, larger than the 1024 x 1024 a picture may have"},
      {"TALL.BMP", 2, 1100, 4, 9000, 6, "2 x 1100 pixels, larger than the 1024 x 1024 a picture may have"},
      {"NEG.BMP", -4, 4, 3, 48, 6, "damaged: -4 x 4 pixels"},
      {"SHORT.BMP", 4, 4, 4, 63, 6, "too short: 63 of the 64 pixel bytes its 4 x 4 header needs"},
      {"HEAD.BMP", 4, 4, 3, 0, 4, "too short: 4 bytes, less than the 6-byte header"},
  };
  for (const Bad& b : cases) {
    SCOPED_TRACE(b.name);
    writers::Bytes bytes;
    for (int field : {b.w, b.h, b.c}) writer_bytes::put16(bytes, field);
    bytes.resize(b.header_bytes);
    bytes.resize(bytes.size() + b.pixel_bytes, 0x55);
    ASSERT_TRUE(writer_bytes::save(b.name, bytes));
    const auto o = run([&] { EXPECT_FALSE(Load_TextureSlot(b.name, 0)); });
    EXPECT_EQ(o.err, "");  // the caller reports it: it knows what follows
    EXPECT_STREQ(Report_File(), b.name);
    EXPECT_STREQ(Report_Reason(), b.reason);
    EXPECT_EQ(o.out, std::string("\n") + b.name + " error");
  }
}

}  // namespace
