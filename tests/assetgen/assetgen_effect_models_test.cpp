// The generated effect models: they load through the game's reader, have the shape the fight
// throws them with, show up on screen, and come out the same on every run with power-of-two
// pictures.
#include <gtest/gtest.h>

#include <string>

#include "assetgen.h"
#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "assets/loader_harness.h"
#include "render/render_3dsprite.h"
#include "render/render_math.h"
#include "render/render_state.h"
#include "render/render_view.h"

namespace {

namespace fs = std::filesystem;

class EffectModels : public harness::LoaderTest {
 protected:
  void SetUp() override {
    LoaderTest::SetUp();
    test::ensure_gl();
    Build_SinCosTables();
    Reset_Textures();
  }
  void TearDown() override {
    for (EffectModel& m : Polygon_Sprite) m.max_vtx = m.max_face = 0;
    Reset_Textures();
    LoaderTest::TearDown();
  }
  static bool generate(const fs::path& out) {
    fs::create_directories(out / "work");
    return gen::Generate_EffectModels({out, out / "work", {}});
  }
  // Extent of a record's vertices along each axis.
  static void extent(const EffectModel& E, float lo[3], float hi[3]) {
    for (int a = 0; a < 3; ++a) lo[a] = 1e9f, hi[a] = -1e9f;
    for (int i = 1; i <= E.max_vtx; ++i) {
      const float p[3] = {E.vtx[i].x, E.vtx[i].y, E.vtx[i].z};
      for (int a = 0; a < 3; ++a) lo[a] = std::min(lo[a], p[a]), hi[a] = std::max(hi[a], p[a]);
    }
  }
  // Lit pixels in the middle of the screen after drawing model i at the origin.
  static int lit_pixels(int i, int a1, int a2, int a3) {
    Clear_Screen(0, 0, 0);
    Clear_Depth();
    Draw_3DSprite(i, 0, 0, 0, a1, a2, a3, 1.5f);
    Swap_Buffers();
    int lit = 0;
    for (int y = HEADLESS_HEIGHT / 2 - 80; y < HEADLESS_HEIGHT / 2 + 80; ++y)
      for (int x = HEADLESS_WIDTH / 2 - 80; x < HEADLESS_WIDTH / 2 + 80; ++x) {
        const std::uint8_t* p = Headless_Pixels() + (y * HEADLESS_WIDTH + x) * 4;
        lit += p[0] + p[1] + p[2] > 120;
      }
    return lit;
  }
};

TEST_F(EffectModels, TheThreeModelsLoadAndShowTheShapesTheFightThrows) {
  ASSERT_TRUE(generate(fs::current_path()));
  const char* files[3] = {"FAR.3DM", "CARDFIRE.3DM", "AXE.3DM"};
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(files[i]);
    const auto o = harness::run([&] { Load_3DSprite(files[i], i); });
    ASSERT_EQ(o.status, -1) << o.out << o.err;
    const EffectModel& E = Polygon_Sprite[i];
    EXPECT_GT(E.max_face, 10);
    for (int f = 1; f <= E.max_face; ++f) ASSERT_LT(E.face[f].slot, Textures.Texture_Count);
  }
  EXPECT_EQ(Textures.Texture_Count, 4);  // ball, card and flames, axe

  float lo[3], hi[3];
  extent(Polygon_Sprite[0], lo, hi);  // a ball about a unit across with spikes: within reach
  for (int a = 0; a < 3; ++a) EXPECT_NEAR(hi[a] - lo[a], 2.0f, 0.3f) << a;
  extent(Polygon_Sprite[1], lo, hi);  // a card flat in y-z, spinning about x
  EXPECT_LT(hi[0] - lo[0], 0.1f);
  EXPECT_GT(hi[1] - lo[1], hi[2] - lo[2]);
  extent(Polygon_Sprite[2], lo, hi);  // the axe: haft along y, bits along z, thin in x
  EXPECT_GT(hi[1] - lo[1], 1.5f);
  EXPECT_GT(hi[2] - lo[2], 1.2f);
  EXPECT_LT(hi[0] - lo[0], 0.2f);

  const EffectModel& ball = Polygon_Sprite[0];  // one-sided: every face looks outward
  for (int f = 1; f <= ball.max_face; ++f) {
    const MeshVertex& A = ball.vtx[ball.face[f].vtx[0]];
    const MeshVertex& B = ball.vtx[ball.face[f].vtx[1]];
    const MeshVertex& C = ball.vtx[ball.face[f].vtx[2]];
    const float u[3] = {B.x - A.x, B.y - A.y, B.z - A.z}, v[3] = {C.x - A.x, C.y - A.y, C.z - A.z};
    const float n[3] = {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2],
                        u[0] * v[1] - u[1] * v[0]};
    ASSERT_GT(n[0] * (A.x + B.x + C.x) + n[1] * (A.y + B.y + C.y) + n[2] * (A.z + B.z + C.z), 0)
        << "face " << f;
  }

  Mat_Translate(&View, 0, 0, 30);  // as the fight turns them: the ball and card tumbling about
  Blend_Normal();                  // x with the thrower facing +x, the axe end over end
  EXPECT_GT(lit_pixels(0, 40, 90, 0), 1500);
  EXPECT_GT(lit_pixels(1, 40, 90, 0), 1500);
  EXPECT_GT(lit_pixels(2, 90, 120, 90), 1000);
}

TEST_F(EffectModels, GenerationIsTheSameEveryRun) {
  ASSERT_TRUE(generate("a"));
  ASSERT_TRUE(generate("b"));
  int files = 0;
  for (const fs::directory_entry& e : fs::directory_iterator("a")) {
    if (!e.is_regular_file()) continue;
    ++files;
    const std::string name = e.path().filename().string();
    const std::string bytes = read_all(("a/" + name).c_str());
    EXPECT_EQ(bytes, read_all(("b/" + name).c_str())) << name;
    if (name.ends_with(".bmp")) {  // pictures: power-of-two sides
      ASSERT_GE(bytes.size(), 6u);
      const int w = static_cast<std::uint8_t>(bytes[0]) | static_cast<std::uint8_t>(bytes[1]) << 8;
      const int h = static_cast<std::uint8_t>(bytes[2]) | static_cast<std::uint8_t>(bytes[3]) << 8;
      EXPECT_TRUE(w > 0 && (w & (w - 1)) == 0 && h > 0 && (h & (h - 1)) == 0) << name;
    }
  }
  EXPECT_EQ(files, 7);
}

}  // namespace
