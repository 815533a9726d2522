// The rig underneath the figures: angle senses, the loader's part filling and skeleton refit as
// the generator reproduces them, texture splitting, attachment points and face placement.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <memory>

#include "figures/fig_figure.h"
#include "figures/fig_paint.h"
#include "figures/fig_roster.h"
#include "motion/mot_pose.h"

namespace {

using namespace mot;
using fig::Vec3;

Vec3 Carry(const PartMatrix& m, Vec3 p) { return Apply(m.r, p) + m.t; }

TEST(AssetgenRig, TurnsHaveTheDocumentedSenses) {
  Joints j;
  Mot_JointsOf(fig::Fig_ReferenceSkeleton(), j);
  PartMatrix pm[22];
  Pose pose;
  pose.ang[fig::P_R_UPPERARM][0] = -90;  // raise the right arm forward
  pose.ang[fig::P_L_SHIN][0] = 90;       // bend the left knee
  Mot_Solve(j, pose, pm);
  Vec3 shoulder = Mot_PosedJoint(j, pm, fig::P_R_UPPERARM);
  Vec3 wrist = Mot_PosedJoint(j, pm, fig::P_R_HAND);
  EXPECT_GT(wrist.z - shoulder.z, 2.5f);
  EXPECT_NEAR(wrist.y, shoulder.y, 0.5f);
  Vec3 knee = Mot_PosedJoint(j, pm, fig::P_L_SHIN), ankle = Mot_PosedJoint(j, pm, fig::P_L_FOOT);
  EXPECT_LT(ankle.z - knee.z, -1.5f);  // the shin folds backward
  // The chest's right turn brings the left shoulder forward.
  pose = Pose{};
  pose.ang[fig::P_CHEST][1] = 30;
  Mot_Solve(j, pose, pm);
  EXPECT_GT(Mot_PosedJoint(j, pm, fig::P_L_UPPERARM).z, Mot_PosedJoint(j, pm, fig::P_R_UPPERARM).z + 0.5f);
  // The hips carry the root shift.
  pose = Pose{};
  pose.root = {0.5f, -1.0f, 2.0f};
  Mot_Solve(j, pose, pm);
  Vec3 d = Carry(pm[fig::P_L_FOOT], j.at[fig::P_L_FOOT]) - j.at[fig::P_L_FOOT];
  EXPECT_NEAR(d.x, 0.5f, 1e-4f);
  EXPECT_NEAR(d.y, -1.0f, 1e-4f);
  EXPECT_NEAR(d.z, 2.0f, 1e-4f);
}

TEST(AssetgenRig, LoadingFillsCopiesAndCollapsesProps) {
  KeyFrame k{};
  for (int p = 0; p < kKeyParts; ++p)
    for (int e = 0; e < 9; ++e) k.rot[p][e] = static_cast<std::int16_t>(p * 10 + e);
  for (int p = 0; p < kKeyParts; ++p) k.pos[p][0] = static_cast<std::int16_t>(100 + p);
  KeyFrame armed = k;
  Mot_AsLoaded(armed, false);
  EXPECT_EQ(armed.rot[17 - 2][4], k.rot[7 - 2][4]);
  EXPECT_EQ(armed.pos[18 - 2][0], k.pos[13 - 2][0]);
  EXPECT_EQ(armed.rot[19 - 2][0], k.rot[19 - 2][0]);  // kept in files that carry them
  Mot_AsLoaded(k, true);
  for (int e = 0; e < 9; ++e) EXPECT_EQ(k.rot[19 - 2][e], 0);
  EXPECT_EQ(k.pos[19 - 2][0], k.pos[7 - 2][0]);
  EXPECT_EQ(k.pos[20 - 2][0], k.pos[13 - 2][0]);
}

TEST(AssetgenRig, RefitMovesChildrenOntoTheirParentsJoints) {
  // Identity rotations (as stored, 0.998), the forearm displaced: the refit puts the elbow of
  // this skeleton back on the upper arm and leaves the chest alone.
  KeyFrame k{};
  for (int p = 0; p < kKeyParts; ++p) k.rot[p][0] = k.rot[p][4] = k.rot[p][8] = 499;
  k.pos[6 - 2][0] = 300;  // 6 units off
  k.pos[3 - 2][1] = -77;
  fig::Skeleton skel{};
  skel.joint[6][0] = 0.1f;
  skel.joint[6][1] = -0.3f;
  Mot_Fit(k, skel);
  EXPECT_EQ(k.pos[3 - 2][1], -77);
  PartMatrix pm[22];
  Mot_Unpack(k, pm);
  Vec3 elbow{1.0f, -3.0f, 0.0f};
  EXPECT_LT(Length(Carry(pm[5], elbow) - Carry(pm[6], elbow)), 0.03f);
  // Truncation toward zero, as the game stores the refitted value.
  KeyFrame t{};
  for (int p = 0; p < kKeyParts; ++p) t.rot[p][0] = t.rot[p][4] = t.rot[p][8] = 500;
  fig::Skeleton s0{};
  t.pos[5 - 2][0] = 0;
  t.pos[6 - 2][0] = 0;
  s0.joint[6][0] = 0;
  Mot_Fit(t, s0);
  EXPECT_EQ(t.pos[6 - 2][0], 0);
}

TEST(AssetgenRig, RowsSplitRegionsOnlyWhenTheyNeedMoreTextures) {
  auto a = std::make_unique<fig::Model>(), b = std::make_unique<fig::Model>();
  fig::TextureLayout la, lb;
  ASSERT_TRUE(fig::Fig_BuildModel(4, *a, la));
  ASSERT_TRUE(fig::Fig_BuildModel(19, *b, lb));
  auto tex_of_part = [](const fig::Model& m, int part) {
    for (int f = 1; f <= m.face_count; ++f)
      if (m.vertices[m.faces[f].a].part == part) return m.faces[f].tex;
    return -1;
  };
  // Row 4 shares one picture between both thighs; row 19 needs 21 and gives the left its own.
  EXPECT_EQ(tex_of_part(*a, fig::P_R_THIGH), tex_of_part(*a, fig::P_L_THIGH));
  EXPECT_NE(tex_of_part(*b, fig::P_R_THIGH), tex_of_part(*b, fig::P_L_THIGH));
  EXPECT_EQ(b->texture_count, 21);
  EXPECT_NE(std::strstr(b->textures[20], "FACE"), nullptr);
}

TEST(AssetgenRig, AttachmentPointsTopTheirLinks) {
  for (int c : {1, 2, 5, 13}) {
    auto m = std::make_unique<fig::Model>();
    fig::TextureLayout lay;
    ASSERT_TRUE(fig::Fig_BuildModel(c, *m, lay));
    for (int tag = 30; tag <= 54; ++tag) {
      // Chains only: a link followed by another one of the same attachment.
      bool chained = false;
      for (int i = 1; i <= m->vertex_count; ++i)
        chained |= (tag - 30) % 5 < 4 && m->vertices[i].part == tag + 1;
      if (!chained) continue;
      int last = 0;
      float top = -1e9f;
      for (int i = 1; i <= m->vertex_count; ++i)
        if (m->vertices[i].part == tag) {
          last = i;
          top = std::max(top, m->vertices[i].y);
        }
      if (!last) continue;
      // The point the loader keeps (the last vertex) is the link's pivot, near its top.
      EXPECT_GT(m->vertices[last].y, top - 0.15f) << fig::Fig_Look(c).name << " flag " << tag;
      int next = 0;
      for (int i = 1; i <= m->vertex_count; ++i)
        if (m->vertices[i].part == tag + 1) next = i;
      EXPECT_LT(m->vertices[next].y, m->vertices[last].y) << "links hang downward";
    }
  }
}

TEST(AssetgenRig, FaceFeaturesSitWhereTheHeadMeshPutsThem) {
  fig::Image calm;
  fig::Fig_PaintFace(0, fig::Expression::Calm, calm);
  auto lum = [&](float u, float v) {
    int x = static_cast<int>(u / 255.0f * calm.width), y = static_cast<int>(v / 255.0f * calm.height);
    const std::uint8_t* p = &calm.rgb[(static_cast<std::size_t>(y) * calm.width + x) * 3];
    return p[0] + p[1] + p[2];
  };
  float eye_v = fig::Face_V(0.60f);
  int bridge = lum(128, eye_v);
  // The iris of each eye is darker than the bridge of the nose between them, and the mouth's
  // line darker than the chin below it.
  EXPECT_LT(lum(128 - 19, eye_v), bridge - 100);
  EXPECT_LT(lum(128 + 19, eye_v), bridge - 100);
  EXPECT_LT(lum(128, fig::Face_V(0.27f)), lum(128, fig::Face_V(0.12f)) - 40);
}

}  // namespace
