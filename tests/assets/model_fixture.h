// A small model that exercises every section of the model file, for the model loader tests.
#pragma once
#include <algorithm>
#include <string>

#include "assets/asset_image.h"
#include "assets/loader_harness.h"
#include "writers/writer_3dm.h"
#include "writers/writer_image.h"

namespace harness {

// Five vertices (a body part, two flexible-part vertices 2.5 apart in z, flag point 37 =
// attachment 1 point 2, a foot), four coordinates, two faces, parts 2..max_tag, and
// `textures` copies of "T.BMP" (the last face uses the last one).
inline writers::Model3DM sample_model(int textures, int max_tag = 21) {
  writers::Model3DM m;
  m.vertices = {{0, 1, 2, 0, 0, 1, 2},
                {0.5f, 3, -1.0f, 0, 1, 0, 21},
                {0.5f, 4, 1.5f, 0, 1, 0, 21},
                {3, 4, 5, 1, 0, 0, 37},
                {0, -8.5f, 0, 0, -1, 0, 10}};
  m.uvs = {{0, 0}, {255, 0}, {255, 255}, {51, 102}};
  m.faces = {{{1, 2, 3}, {1, 2, 3}, 0}, {{3, 4, 5}, {4, 3, 2}, textures - 1}};
  m.max_tag = max_tag;
  for (int p = 2; p <= max_tag; ++p) {
    writers::Part3DM part;
    part.box[0][0] = static_cast<float>(p);
    part.box[7][2] = -static_cast<float>(p);
    part.shadow[17] = static_cast<std::int16_t>(p % 8);
    m.parts.push_back(part);
  }
  m.textures.assign(textures, "T.BMP");
  return m;
}

// A fresh slot table, the shared skin picture and a clean directory for each test.
class ModelTest : public LoaderTest {
 protected:
  void SetUp() override {
    LoaderTest::SetUp();
    Reset_Textures();
    std::fill(std::begin(Textures.TextureId), std::end(Textures.TextureId), 0u);
    Textures.Texture_Repeat = 0;
    writers::ImageFile skin{2, 2, 3, writers::Bytes(12, 200)};
    ASSERT_TRUE(writers::Write_Image("T.BMP", skin));
    ASSERT_TRUE(writers::Write_Image("ALT1.BMP", skin));
    ASSERT_TRUE(writers::Write_Image("ALT2.BMP", skin));
  }
  void TearDown() override {
    Reset_Textures();
    LoaderTest::TearDown();
  }
  static writers::Bytes encode(const writers::Model3DM& m) {
    writers::Bytes bytes;
    EXPECT_TRUE(writers::Encode_3DM(m, bytes));
    return bytes;
  }
  static void patch_i32(writers::Bytes& bytes, std::size_t offset, std::int32_t v) {
    writers::Bytes b;
    writer_bytes::put32(b, v);
    std::copy(b.begin(), b.end(), bytes.begin() + static_cast<long>(offset));
  }
};

}  // namespace harness
