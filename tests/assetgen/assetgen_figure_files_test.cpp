// The fighters as the generator writes them: every model row, its textures and alternate faces
// and every skeleton load through the game's own readers, and hold what the figures built.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "assetgen.h"
#include "assets/asset_anim.h"
#include "assets/asset_character.h"
#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "assets/loader_harness.h"
#include "figures/fig_figure.h"
#include "figures/fig_roster.h"

namespace {

class FigureFiles : public harness::LoaderTest {
 protected:
  void SetUp() override {
    LoaderTest::SetUp();
    gen::Context ctx{dir_, dir_ + "/work", ""};
    gen::fs::create_directories(ctx.work);
    ASSERT_TRUE(gen::Generate_Figures(ctx));
  }
};

TEST_F(FigureFiles, EveryRowLoadsWithItsTexturesAndFaces) {
  auto built = std::make_unique<fig::Model>();
  for (int row = 0; row < CHARACTER_ROWS; ++row) {
    const CharacterRow& r = CharacterTable[row];
    Reset_Textures();
    const harness::Outcome o = harness::run([&] { Load_3DM(r.model, 0, r.alt1, r.alt2); });
    ASSERT_EQ(o.status, -1) << r.model << ": " << o.out << o.err;
    EXPECT_EQ(o.err, "") << r.model;

    // Rows sharing a file (the boss) show the first row's figure.
    const int source = row == 29 ? 14 : row;
    fig::TextureLayout layout;
    ASSERT_TRUE(fig::Fig_BuildModel(source, *built, layout));
    const KnightModel& k = Knight[0];
    EXPECT_EQ(k.max_vtx, built->vertex_count) << r.model;
    EXPECT_EQ(k.max_face, built->face_count) << r.model;
    EXPECT_EQ(k.max_tag, built->max_tag) << r.model;
    // The alternate faces stand in for the model's own face texture.
    EXPECT_EQ(k.face_slot, k.face[1].slot - built->faces[1].tex + r.replaced) << r.model;
    EXPECT_NE(k.alt1_slot, k.face_slot);
    EXPECT_NE(k.alt2_slot, k.face_slot);
  }
}

TEST_F(FigureFiles, EverySkeletonLoadsAsBuilt) {
  for (int c = 0; c < CHARACTERS; ++c) {
    const CharacterRow& r = CharacterTable[c];
    ASSERT_TRUE(Load_BSC(r.skeleton)) << r.skeleton;
    fig::Skeleton built;
    fig::Fig_BuildSkeleton(c, built);
    for (int p = 2; p <= built.last_part; ++p)
      for (int e = 0; e < 3; ++e)
        EXPECT_NEAR(Anim.Skeleton[p][e], built.joint[p][e], 1e-5f) << r.skeleton << " part " << p;
  }
}

}  // namespace
