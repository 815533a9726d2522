// Effect models: the round trip into Polygon_Sprite, the part records it keeps, refusals.
#include <cstring>

#include "assets/asset_model.h"
#include "assets/model_fixture.h"

namespace {

using harness::run;
using EffectLoad = harness::ModelTest;

TEST_F(EffectLoad, AnEffectModelRoundTripsAndKeepsPartsUpToFour) {
  writers::Model3DM m = harness::sample_model(3, 7);
  m.vertices[0].part = 99;  // effect models ignore part numbers
  ASSERT_TRUE(writers::Write_3DM("AXE.3DM", m));
  Textures.Texture_Count = 5;
  static EffectModel before[EFFECT_MODELS];
  std::memcpy(before, Polygon_Sprite, sizeof Polygon_Sprite);
  const auto o = run([] { Load_3DSprite("AXE.3DM", 2); });
  ASSERT_EQ(o.status, -1) << o.out;

  const EffectModel& E = Polygon_Sprite[2];
  EXPECT_EQ(E.max_vtx, 5);
  EXPECT_EQ(E.max_uv, 4);
  EXPECT_EQ(E.max_face, 2);
  EXPECT_EQ(E.max_tag, 4);  // parts 5..7 are read past
  EXPECT_EQ(E.vtx[1].part, 99);
  EXPECT_EQ(E.vtx[4].z, 5.0f);
  EXPECT_EQ(E.uv[2].u, 1.0f);
  EXPECT_EQ(E.face[1].slot, 5);
  EXPECT_EQ(E.face[2].slot, 7);
  EXPECT_EQ(E.box[4].corner[0][0], 4.0f);
  EXPECT_EQ(E.shadow[3].corner[17], 3);
  EXPECT_EQ(Textures.Texture_Count, 8);
  EXPECT_STREQ(Textures.TextureFile[7], "T.BMP");
  EXPECT_EQ(Textures.Texture_Repeat, 0);
  EXPECT_EQ(std::memcmp(&before[0], &Polygon_Sprite[0], 2 * sizeof(EffectModel)), 0);
}

TEST_F(EffectLoad, RefusalsAndFailuresNameTheRecordAndEndWithStatusZero) {
  const writers::Model3DM m = harness::sample_model(2, 3);
  writers::Bytes bytes;
  ASSERT_TRUE(writers::Encode_3DM(m, bytes));
  patch_i32(bytes, writers::Offset_UVCount(m), 900);
  ASSERT_TRUE(writer_bytes::save("BIG.3DM", bytes));
  writers::Model3DM lost = m;
  lost.textures[1] = "LOST.BMP";
  ASSERT_TRUE(writers::Write_3DM("LOST.3DM", lost));

  struct Case { const char* file; std::string out; std::string err; };
  const std::string stops = "; the game stops (exit status 0)\n";
  const Case cases[] = {
      {"BIG.3DM", "Load_3DSprite ERROR(BIG.3DM): Polygon_Sprite[1].max_uv is too large!!!\r",
       "015\nvaldrune: fatal: BIG.3DM: max_uv 900 is past the record's capacity of 899" + stops},
      {"NONE.3DM", "open error NONE.3DM\n", "015\nvaldrune: fatal: NONE.3DM: missing" + stops},
      {"LOST.3DM", "\nLOST.BMP errorTexture Loading Error LOST.BMP1\n",
       "Loading Error LOST.BMP\n016\nvaldrune: fatal: LOST.BMP (texture 1 of LOST.3DM): missing" + stops},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    Reset_Textures();
    const auto o = run([&] { Load_3DSprite(c.file, 1); });
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out, c.out);
    EXPECT_EQ(o.err, c.err);
    EXPECT_EQ(Textures.Texture_Repeat, 0);
  }
}

}  // namespace
