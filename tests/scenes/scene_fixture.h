// Shared by the scene tests: a private directory with the GL context, and the smallest files a
// picture set, a match or the headless program needs.
#pragma once
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "assets/asset_image.h"
#include "assets/model_fixture.h"
#include "render/render_stage.h"
#include "scenes/scene_pictures.h"
#include "support/test_support.h"
#include "writers/writer_3dm.h"
#include "writers/writer_fa.h"
#include "writers/writer_image.h"

namespace scene_test {

// A size that tells the pictures apart: the same name always gives the same size.
struct Size {
  int w, h;
};
inline Size size_of(const std::string& name) {
  std::uint32_t h = 2166136261u;
  for (char c : name) h = (h ^ static_cast<std::uint8_t>(c)) * 16777619u;
  return {1 + static_cast<int>(h % 61), 1 + static_cast<int>((h / 61) % 7)};
}

inline void write_picture(const std::string& name) {
  const Size s = size_of(name);
  writers::ImageFile img{s.w, s.h, 3, writers::Bytes(static_cast<std::size_t>(s.w * s.h * 3), 90)};
  ASSERT_TRUE(writers::Write_Image(name.c_str(), img));
}

// A plain opaque colour, w x h.
inline void write_colour(const char* name, std::uint8_t r, std::uint8_t g, std::uint8_t b,
                         int w = 8, int h = 8) {
  writers::Bytes px;
  for (int i = 0; i < w * h; ++i) px.insert(px.end(), {r, g, b});
  ASSERT_TRUE(writers::Write_Image(name, {w, h, 3, px}));
}

// The set's entries in load order.
inline std::vector<PictureEntry> entries(PictureSet set) {
  std::vector<PictureEntry> out(static_cast<std::size_t>(Picture_SetSize(set)));
  for (int i = 0; i < Picture_SetSize(set); ++i)
    EXPECT_TRUE(Picture_SetEntry(set, i, &out[static_cast<std::size_t>(i)]));
  return out;
}

// Every file of the set except `skip`.
inline void write_set(PictureSet set, const std::string& skip = "") {
  for (const PictureEntry& e : entries(set))
    if (skip != e.file) write_picture(e.file);
}

// What a match of select slots 0 and 9 (or 24) reads besides its pictures: the shared
// animation, the models with their faces, the three effect models, and the stages of the
// characters the tests put on stage (0, 9, and the demonstrations' 1 and 2).
inline void write_match_files() {
  writers::ImageFile skin{2, 2, 3, writers::Bytes(12, 200)};
  for (const char* name : {"T.BMP", "BANDM.bmp", "BANVC1.bmp", "KNIFDM.bmp", "C6FAC12.bmp", "C2PFAC12.bmp"})
    ASSERT_TRUE(writers::Write_Image(name, skin));
  for (const char* name : {"ban.3dm", "crow.3dm", "crow2p.3dm", "FAR.3DM", "CARDFIRE.3DM", "AXE.3DM"})
    ASSERT_TRUE(writers::Write_3DM(name, harness::sample_model(1)));
  for (int c : {0, 1, 2, 9}) {
    const StagePictures& st = StageTable[c];
    for (const char* f : {st.floor, st.light, st.backdrop[0], st.backdrop[1], st.backdrop[2],
                          st.super_move})
      write_picture(f);
  }
  std::vector<FaKeyFrame> shared(4);
  ASSERT_TRUE(Write_FA("PRELOAD.FA", FaKind::PackedArmFree, 21, shared));
}

class SceneTest : public test::TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    test::ensure_gl();
    Reset_Textures();
  }
  void TearDown() override {
    Reset_Textures();
    TempDirTest::TearDown();
  }
};

}  // namespace scene_test
