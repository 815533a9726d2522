// Motion authoring: forward kinematics, key-frame packing, marks on phases, easing and baking.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "figures/fig_figure.h"
#include "motion/mot_shared.h"
#include "motion/mot_shared_poses.h"

namespace {

using namespace mot;
using fig::Vec3;

std::vector<BakedFrame> Bake(const Motion& m) {
  Joints j;
  Mot_JointsOf(fig::Fig_ReferenceSkeleton(), j);
  std::vector<BakedFrame> out;
  Mot_Bake(m, j, out);
  return out;
}

Vec3 Carry(const PartMatrix& m, Vec3 p) { return Apply(m.r, p) + m.t; }

TEST(AssetgenMotion, PosingKeepsJointsTogether) {
  // On the reference skeleton the solved pose joins every part to its parent (the refit on every
  // character's skeleton is checked on the generated files).
  Joints j;
  Mot_JointsOf(fig::Fig_ReferenceSkeleton(), j);
  PartMatrix pm[22];
  Mot_Solve(j, Mot_StancePose(), pm);
  for (int p = 2; p <= 20; ++p) {
    int q = Mot_Parent(p);
    if (q == 0) continue;
    Vec3 a = Carry(pm[q], j.at[p]), b = Carry(pm[p], j.at[p]);
    EXPECT_LT(Length(a - b), 1e-3f) << "part " << p;
  }
}

TEST(AssetgenMotion, KeyFramesStayInTheFileRanges) {
  for (int i = 0; i < Mot_SharedCount(); ++i)
    for (const BakedFrame& f : Bake(Mot_Shared(i)))
      for (int p = 0; p < kKeyParts; ++p) {
        for (int e = 0; e < 9; ++e) ASSERT_LE(std::abs(f.key.rot[p][e]), kRotLimit);
        for (int e = 0; e < 3; ++e) ASSERT_LT(std::abs(f.key.pos[p][e]), 32000) << Mot_Shared(i).name;
      }
  // Packing clamps a full 1.0 to the packed files' 0.998 and rounds translations to 1/50.
  PartMatrix pm[22];
  for (auto& m : pm) m = {};
  pm[5].t = {1.234f, -8.5f, 0.01f};
  KeyFrame k;
  Mot_Pack(pm, k);
  EXPECT_EQ(k.rot[3][0], 499);
  EXPECT_EQ(k.rot[3][1], 0);
  EXPECT_EQ(k.pos[3][0], 62);
  EXPECT_EQ(k.pos[3][1], -425);
  EXPECT_EQ(k.pos[3][2], 1);
}

TEST(AssetgenMotion, MarksFollowTheirPhases) {
  const Motion& jab_motion = *Mot_SharedByAction(180);
  std::vector<BakedFrame> jab = Bake(jab_motion);
  int code = 0;  // the strike's hit attribute, marked on its frames and on no other
  for (int p = 0; p < jab_motion.phase_count; ++p)
    if (jab_motion.phases[p].strike_part >= 2) code = jab_motion.phases[p].hit;
  ASSERT_NE(code, 0);
  int runs = 0, cue_at = -1, first_strike = -1, links = 0;
  for (std::size_t f = 0; f < jab.size(); ++f) {
    if (jab[f].part >= 2 && (f == 0 || jab[f - 1].part != jab[f].part)) ++runs;
    if (jab[f].part >= 2 && first_strike < 0) first_strike = static_cast<int>(f);
    if (jab[f].part < 0) cue_at = static_cast<int>(f);
    links += jab[f].part == 1;
    EXPECT_EQ(jab[f].hit, jab[f].part >= 2 ? code : 0);
  }
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(jab[first_strike].part, 13);  // the lead hand
  EXPECT_GE(cue_at, 0);
  EXPECT_LT(cue_at, first_strike);
  EXPECT_GT(links, 0);
  // A cue on a striking phase moves one frame ahead instead of splitting the strike.
  static const Pose still = Mot_StancePose();
  Motion m{"test", 999, &still, {}, 2};
  m.phases[0].pose = &still;
  m.phases[0].frames = 3;
  m.phases[1].pose = &still;
  m.phases[1].frames = 4;
  m.phases[1].strike_part = 10;
  m.phases[1].hit = 2;
  m.phases[1].cue = 5;
  std::vector<BakedFrame> out = Bake(m);
  ASSERT_EQ(out.size(), 7u);
  EXPECT_EQ(out[2].part, -6);
  for (int f = 3; f < 7; ++f) EXPECT_EQ(out[f].part, 10);
  // A fall marks the floor on its last frame only; a footfall marks dust without a strike; an arc
  // lifts the body in the middle of its phase and sets it down at the end.
  m.phases[1] = {};
  m.phases[1].pose = &still;
  m.phases[1].frames = 4;
  m.phases[1].impact = true;
  m.phases[1].arc = 2.0f;
  m.phases[0].footfall = 3;
  out = Bake(m);
  EXPECT_EQ(out[2].part, 0);
  EXPECT_EQ(out[2].hit, 3);
  for (int f = 3; f < 6; ++f) EXPECT_EQ(out[f].part, 0);
  EXPECT_EQ(out[6].part, kImpactPart);
  EXPECT_EQ(out[6].hit, kImpactHit);
  EXPECT_FLOAT_EQ(out[4].offset.y, 2.0f);
  EXPECT_FLOAT_EQ(out[6].offset.y, 0.0f);
}

TEST(AssetgenMotion, EasingAndBakingAreExact) {
  for (Ease e : {Ease::Linear, Ease::In, Ease::Out, Ease::InOut, Ease::Snap}) {
    EXPECT_FLOAT_EQ(Mot_Ease(e, 0, 10), 0.0f);
    EXPECT_FLOAT_EQ(Mot_Ease(e, 10, 10), 1.0f);
    float prev = 0;
    for (int i = 1; i <= 10; ++i) {
      EXPECT_GE(Mot_Ease(e, i, 10), prev);
      prev = Mot_Ease(e, i, 10);
    }
  }
  // One key frame per game frame; the last frame of a phase is its pose.
  const Motion& crouch = *Mot_SharedByAction(30);
  static constexpr Motion still = shared::M("still", 999, &shared::kCrouch, {shared::P(&shared::kCrouch, 1)});
  std::vector<BakedFrame> a = Bake(crouch), b = Bake(still);
  EXPECT_EQ(static_cast<int>(a.size()), Mot_Length(crouch));
  EXPECT_EQ(0, std::memcmp(&a.back().key, &b.front().key, sizeof(KeyFrame)));
  EXPECT_EQ(0, std::memcmp(&Bake(crouch)[3].key, &a[3].key, sizeof(KeyFrame)));
}

// The fight walks a fighter 0.24 units a frame forward and 0.2 back; a foot on the floor must
// slide back by exactly that in model space, or the fighter skates. The loop also has to end
// where it began, or the body jumps at every restart.
TEST(AssetgenMotion, WalkingFeetStayWhereTheyLand) {
  Joints j;
  Mot_JointsOf(fig::Fig_ReferenceSkeleton(), j);
  const float floor = j.at[10].y - 0.42f;
  const struct {
    int action;
    float speed;
  } kWalks[] = {{1, 0.24f}, {2, -0.2f}, {25, 0.24f}, {26, -0.2f}, {33, 0.24f}, {34, -0.2f}};
  for (const auto& w : kWalks) {
    SCOPED_TRACE(w.action);
    std::vector<BakedFrame> frames = Bake(*Mot_SharedByAction(w.action));
    Vec3 was[2];
    bool down_before[2] = {false, false};
    int planted = 0;
    for (std::size_t f = 0; f < frames.size(); ++f) {
      PartMatrix pm[22];
      Mot_Unpack(frames[f].key, pm);
      for (int k = 0; k < 2; ++k) {
        const int foot = k ? 16 : 10;
        const Vec3 ankle = j.at[foot];
        float sole = 1e9f;
        for (float dz : {-0.34f, 1.0f}) sole = std::min(sole, Carry(pm[foot], {ankle.x, ankle.y - 0.42f, ankle.z + dz}).y);
        const bool down = sole + frames[f].offset.y < floor + 0.05f;
        Vec3 at = Mot_PosedJoint(j, pm, foot) + frames[f].offset;
        at.z += w.speed * static_cast<float>(f);
        if (down && down_before[k]) {
          EXPECT_LT(std::hypot(at.x - was[k].x, at.z - was[k].z), 0.06f) << "frame " << f << " foot " << foot;
          ++planted;
        }
        was[k] = at;
        down_before[k] = down;
      }
    }
    EXPECT_GT(planted, static_cast<int>(frames.size()) / 2);
    EXPECT_LT(Length(frames.back().offset), 0.25f);
  }
}

}  // namespace
