// Fighter models: the round trip, the flexible part and flag points, texture slots and
// alternate faces, and every refusal.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <tuple>

#include "assets/asset_model.h"
#include "assets/model_fixture.h"
#include "fight/fight_state.h"

namespace {

using harness::run;
using writers::Bytes;
using writers::Model3DM;

using ModelLoad = harness::ModelTest;

TEST_F(ModelLoad, AModelRoundTripsIntoItsRecordWithSlotsFacesAndAttachments) {
  const Model3DM m = harness::sample_model(18);
  ASSERT_TRUE(writers::Write_3DM("hana.3dm", m));  // its row replaces texture 16
  Textures.Texture_Count = 40;
  fighters[0].model_flag = 0;
  Fighter_Attachment(0, 1) = {};
  const auto o = run([] { Load_3DM("HANA.3DM", 0, "ALT1.BMP", "ALT2.BMP"); });
  ASSERT_EQ(o.status, -1) << o.out;
  EXPECT_EQ(o.out, "");

  const KnightModel& K = Knight[0];
  using T4 = std::tuple<int, int, int, int>;
  EXPECT_EQ(T4(K.max_vtx, K.max_uv, K.max_face, K.max_tag), T4(5, 4, 2, 21));
  EXPECT_EQ(std::tuple(K.vtx[5].y, K.vtx[5].ny, K.vtx[4].part), std::tuple(-8.5f, -1.0f, 37));
  EXPECT_EQ(std::tuple(K.uv[4].u, K.uv[4].v), std::tuple(51 / 255.0f, 102 / 255.0f));
  EXPECT_EQ(T4(K.face[2].vtx[1], K.face[2].uv[0], K.face[1].slot, K.face[2].slot), T4(4, 4, 40, 57));
  EXPECT_EQ(std::tuple(K.box[21].corner[0][0], K.box[2].corner[7][2], K.shadow[13].corner[17]),
            std::tuple(21.0f, -2.0f, std::int16_t{5}));
  // The flexible part's lowest vertex has depth 0, the one 2.5 higher in z 2.5.
  EXPECT_EQ(std::tuple(K.vtx[2].depth, K.vtx[3].depth), std::tuple(0.0f, 2.5f));
  const Fighter& f = fighters[0];
  EXPECT_EQ(std::tuple(f.model_flag, f.first_part, f.last_part), std::tuple(1, 2, 21));

  const Attachment& a = Fighter_Attachment(0, 1);  // point 2 of attachment 1
  EXPECT_EQ(std::tuple(a.present, a.anchor_part, a.reverse, a.lower, a.upper, a.last_point),
            std::tuple(1, 4, 1, 0, 0, 2));
  EXPECT_EQ(std::tuple(a.points[2][0], a.points[2][2]), std::tuple(3.0f, 5.0f));

  // 18 skins in slots 40..57, the face skin (texture 16) in 56, the alternates after them.
  EXPECT_EQ(T4(Textures.Texture_Count, K.face_slot, K.alt1_slot, K.alt2_slot), T4(60, 56, 58, 59));
  EXPECT_STREQ(Textures.TextureFile[57], "T.BMP");
  EXPECT_EQ(Textures.TextureFile[58][0], '\0');
  EXPECT_EQ(Textures.Texture_Repeat, 0);
  for (int slot : {40, 59}) {
    glBindTexture(GL_TEXTURE_2D, Textures.TextureId[slot]);
    GLint wrap = 0;
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, &wrap);
    EXPECT_EQ(wrap, GL_REPEAT) << "skins tile";
  }
}

TEST_F(ModelLoad, WithoutFlexiblePartModelFlagAndDepthOffsetsStayAndFlagPointsBeyondFourAreSkipped) {
  Model3DM m = harness::sample_model(1, 4);
  m.vertices[1].part = 3;
  m.vertices[2].part = 55;  // attachment 5 does not exist
  ASSERT_TRUE(writers::Write_3DM("flag.3dm", m));
  fighters[1].model_flag = 0;
  Knight[1].vtx[2].depth = 7.0f;
  Fighter_Attachment(1, 4) = {};
  const auto o = run([] { Load_3DM("flag.3dm", 1, "ALT1.BMP", "ALT2.BMP"); });
  ASSERT_EQ(o.status, -1) << o.out;
  EXPECT_EQ(o.out, "\r\rflag.3dm file flag_index_number over(5)\r\r");
  EXPECT_EQ(fighters[1].model_flag, 0);
  EXPECT_EQ(Knight[1].vtx[2].depth, 7.0f);
  EXPECT_EQ(Fighter_Attachment(1, 4).present, 0);
  EXPECT_EQ(fighters[1].last_part, 4);
  EXPECT_EQ(Knight[1].face_slot, 0) << "a model no row names has no face texture";
}

// Snapshot of everything a refused model must leave alone.
KnightModel Before[2];

struct Refusal {
  const char* what;
  std::function<void(Model3DM&, Bytes&)> spoil;  // the model is re-encoded after the first step
  std::string message;
};

TEST_F(ModelLoad, MalformedModelsAreRefusedWithTheirMessageAndNothingIsWritten) {
  auto count = [](std::size_t (*offset)(const Model3DM&), std::int32_t v) {
    return [=](Model3DM& m, Bytes& b) { patch_i32(b, offset ? offset(m) : 0, v); };
  };
  auto model = [](std::function<void(Model3DM&)> f) {
    return [=](Model3DM& m, Bytes& b) { f(m); b = encode(m); };
  };
  const std::string E = "Load_3DM ERROR(bad.3dm): ";
  const Refusal cases[] = {
      {"vertices", count(nullptr, 900), E + "Knight[1].max_vtx is too large!!!\r"},
      {"negative", count(nullptr, -3), E + "Knight[1].max_vtx is negative!!!\r"},
      {"coords", count(writers::Offset_UVCount, 900), E + "Knight[1].max_uv is too large!!!\r"},
      {"faces", count(writers::Offset_FaceCount, 1000), E + "Knight[1].max_face is too large!!!\r"},
      {"parts", count(writers::Offset_TagCount, 22), E + "Knight[1].max_tag is too large!!!\r"},
      {"textures", count(writers::Offset_TextureCount, 1000), E + "Max_Texture is too large!!!\r"},
      {"huge", count(writers::Offset_FaceCount, 0x7fffffff), E + "Knight[1].max_face is too large!!!\r"},
      {"short", [](Model3DM& m, Bytes& b) { b.resize(writers::Offset_FaceCount(m) + 4 + 20); },
       E + "the file ends inside its faces!!!\r"},
      {"empty", [](Model3DM&, Bytes& b) { b.clear(); }, E + "the file ends inside its max_vtx!!!\r"},
      {"vertex 0", model([](Model3DM& m) { m.faces[0].vtx[2] = 0; }),
       E + "Knight[1] face 1 names a vertex or coordinate not in the file!!!\r"},
      {"vertex 6", model([](Model3DM& m) { m.faces[1].vtx[0] = 6; }),
       E + "Knight[1] face 2 names a vertex or coordinate not in the file!!!\r"},
      {"coord 5", model([](Model3DM& m) { m.faces[1].uv[2] = 5; }),
       E + "Knight[1] face 2 names a vertex or coordinate not in the file!!!\r"},
      {"texture", model([](Model3DM& m) { m.faces[1].texture = 2; }),
       E + "Knight[1] face 2 uses texture 2 of 2!!!\r"},
      {"part 60", model([](Model3DM& m) { m.vertices[3].part = 60; }),
       E + "Knight[1] vertex 4 has part number 60!!!\r"},
      {"part -1", model([](Model3DM& m) { m.vertices[0].part = -1; }),
       E + "Knight[1] vertex 1 has part number -1!!!\r"},
      {"name", [](Model3DM& m, Bytes& b) { std::memset(&b[writers::Offset_TextureCount(m) + 4], 'A', 14); },
       E + "texture name 0 is not terminated!!!\r"},
  };
  for (const Refusal& c : cases) {
    SCOPED_TRACE(c.what);
    Model3DM m = harness::sample_model(2);
    Bytes bytes = encode(m);
    c.spoil(m, bytes);
    ASSERT_TRUE(writer_bytes::save("bad.3dm", bytes));
    std::memcpy(Before, Knight, sizeof Knight);
    const Fighter fighter = fighters[1];
    const auto o = run([] { Load_3DM("bad.3dm", 1, "ALT1.BMP", "ALT2.BMP"); });
    EXPECT_EQ(o.status, 1);
    EXPECT_EQ(o.out, c.message);
    // The failure code, then the one line that says which file, why, and that the game stops.
    EXPECT_EQ(o.err.rfind("011\nvaldrune: fatal: bad.3dm: ", 0), 0u) << o.err;
    EXPECT_TRUE(o.err.ends_with("; the game stops (exit status 1)\n")) << o.err;
    EXPECT_EQ(std::count(o.err.begin(), o.err.end(), '\n'), 2) << o.err;
    EXPECT_EQ(std::memcmp(Before, Knight, sizeof Knight), 0) << "a refused model wrote a record";
    EXPECT_EQ(std::memcmp(&fighter, &fighters[1], sizeof fighter), 0);
    EXPECT_EQ(Textures.Texture_Count, 0);
    EXPECT_EQ(Textures.TextureFile[0][0], '\0');
    EXPECT_EQ(Textures.Texture_Repeat, 0);
  }
}

TEST_F(ModelLoad, MissingFilesEndTheProgramWithTheirCodes) {
  ASSERT_TRUE(writers::Write_3DM("skin.3dm", harness::sample_model(1)));
  Model3DM lost = harness::sample_model(2);
  lost.textures[1] = "LOST.BMP";
  ASSERT_TRUE(writers::Write_3DM("lost.3dm", lost));
  struct Case { const char* file; const char* alt1; const char* alt2; int status; std::string out, code, line; };
  const Case cases[] = {
      {"none.3dm", "ALT1.BMP", "ALT2.BMP", 1, "open error none.3dm\n", "011",
       "none.3dm: missing"},
      {"lost.3dm", "ALT1.BMP", "ALT2.BMP", 0, "\nLOST.BMP errorTexture Loading Error LOST.BMP1\n", "012",
       "LOST.BMP (texture 1 of lost.3dm): missing"},
      {"skin.3dm", "GONE.BMP", "ALT2.BMP", 0, "\nGONE.BMP errorTexture Loading Error GONE.BMP", "013",
       "GONE.BMP (the first alternate face of skin.3dm): missing"},
      {"skin.3dm", "ALT1.BMP", "GONE.BMP", 0, "\nGONE.BMP errorTexture Loading Error GONE.BMP", "014",
       "GONE.BMP (the second alternate face of skin.3dm): missing"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.code);
    Reset_Textures();
    const auto o = run([&] { Load_3DM(c.file, 0, c.alt1, c.alt2); });
    EXPECT_EQ(o.status, c.status);
    EXPECT_EQ(o.out, c.out);
    // The code, then the fatal line last, even where the game's status is 0.
    EXPECT_TRUE(o.err.ends_with(c.code + "\nvaldrune: fatal: " + c.line + "; the game stops (exit status " +
                                std::to_string(c.status) + ")\n"))
        << o.err;
  }
}

// The process that ends runs this test's set-up again in a directory of its own, and never
// its tear-down: it removes that directory on its way out.
std::string EndingDir;
void remove_ending_dir() { std::system(("rm -rf '" + EndingDir + "'").c_str()); }

TEST_F(ModelLoad, AMissingModelEndsTheProcessWithStatusOne) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EndingDir = dir_;
  EXPECT_EXIT(
      {
        std::atexit(remove_ending_dir);
        Load_3DM("none.3dm", 0, "ALT1.BMP", "ALT2.BMP");
      },
      testing::ExitedWithCode(1), "011\nvaldrune: fatal: none.3dm: missing; the game stops");
}

}  // namespace
