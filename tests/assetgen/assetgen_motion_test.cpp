// Motion authoring: forward kinematics and key-frame packing, the skeleton refit the game applies
// to shared key frames, and the first shared motions as the fight would play them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "figures/fig_figure.h"
#include "figures/fig_roster.h"
#include "motion/mot_shared.h"

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

// The part matrices a character shows for a shared key frame.
void Shown(const KeyFrame& shared, const fig::Skeleton& skel, PartMatrix pm[22]) {
  KeyFrame k = shared;
  Mot_AsLoaded(k, true);
  Mot_Fit(k, skel);
  Mot_Unpack(k, pm);
}

Vec3 Carry(const PartMatrix& m, Vec3 p) { return Apply(m.r, p) + m.t; }

TEST(AssetgenMotion, PosingKeepsJointsTogether) {
  // On the reference skeleton the solved pose already joins every part to its parent ...
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
  // ... and after packing and the game's refit, every character's joints meet within 0.05 on
  // every frame of every shared motion.
  static constexpr int kPairs[17][2] = {{3, 5},  {3, 11}, {3, 4},  {5, 6},   {6, 7},  {11, 12},
                                        {12, 13}, {4, 8},  {8, 9},  {9, 10},  {4, 14}, {14, 15},
                                        {15, 16}, {6, 17}, {7, 19}, {13, 18}, {12, 20}};
  for (int c = 0; c < fig::kCharacters; c += 3) {
    fig::Skeleton skel;
    fig::Fig_BuildSkeleton(c, skel);
    Joints cj;
    Mot_JointsOf(skel, cj);
    for (int i = 0; i < Mot_SharedCount(); ++i) {
      std::vector<BakedFrame> frames = Bake(Mot_Shared(i));
      for (std::size_t f = 0; f < frames.size(); f += 5) {
        Shown(frames[f].key, skel, pm);
        for (const auto& pair : kPairs) {
          if (pair[1] == 19 || pair[1] == 20) continue;  // collapsed in shared motions
          Vec3 a = Carry(pm[pair[0]], cj.at[pair[1]]), b = Carry(pm[pair[1]], cj.at[pair[1]]);
          ASSERT_LT(Length(a - b), 0.05f) << Mot_Shared(i).name << " frame " << f << " pair " << pair[0] << "-"
                                          << pair[1] << " character " << c;
        }
        // The head is not refitted: its neck stays close to the chest's.
        Vec3 a = Carry(pm[3], cj.at[2]), b = Carry(pm[2], cj.at[2]);
        EXPECT_LT(Length(a - b), 0.15f) << Mot_Shared(i).name << " character " << c;
      }
    }
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

TEST(AssetgenMotion, StanceFootLandsAtEachCharactersFootHeight) {
  std::vector<BakedFrame> idle = Bake(*Mot_SharedByAction(0));
  for (int c = 0; c < fig::kCharacters; ++c) {
    auto model = std::make_unique<fig::Model>();
    fig::TextureLayout lay;
    ASSERT_TRUE(fig::Fig_BuildModel(c, *model, lay));
    fig::Skeleton skel;
    fig::Fig_BuildSkeleton(c, skel);
    PartMatrix pm[22];
    Shown(idle[0].key, skel, pm);
    float lo = 1e9f, hi = -1e9f;
    for (const auto& corner : model->boxes[fig::P_R_FOOT].corner) {
      float y = Carry(pm[fig::P_R_FOOT], Vec3{corner[0], corner[1], corner[2]}).y;
      lo = std::min(lo, y);
      hi = std::max(hi, y);
    }
    float world = (lo + hi) / 2 + fig::kStandingY + fig::Fig_StandingOffset(c);
    EXPECT_NEAR(world, fig::Fig_FootHeight(c), 0.08f) << fig::Fig_Look(c).name;
  }
}

// The strike's reach: the front of the striking part's box (as the hit test builds its points)
// plus the defender's front, over the strike frames.
float Reach_Of(const Motion& m, const fig::Model& model, const fig::Skeleton& skel, int& part) {
  std::vector<BakedFrame> frames = Bake(m);
  float best = -1e9f;
  part = 0;
  for (const BakedFrame& f : frames) {
    if (f.part < 2) continue;
    part = f.part;
    PartMatrix pm[22];
    Shown(f.key, skel, pm);
    float zmax = -1e9f;
    for (const auto& c : model.boxes[f.part].corner)
      zmax = std::max(zmax, Carry(pm[f.part], Vec3{c[0], c[1], c[2]}).z + f.offset.z);
    best = std::max(best, zmax);
  }
  return best + 0.8f;
}

TEST(AssetgenMotion, AttacksReachTheirDistanceBands) {
  for (int c : {0, 4, 5, 8}) {
    auto model = std::make_unique<fig::Model>();
    fig::TextureLayout lay;
    ASSERT_TRUE(fig::Fig_BuildModel(c, *model, lay));
    fig::Skeleton skel;
    fig::Fig_BuildSkeleton(c, skel);
    for (int i = 0; i < Mot_ReachCount(); ++i) {
      const Reach& r = Mot_ReachOf(i);
      const Motion* m = Mot_SharedByAction(r.action);
      ASSERT_NE(m, nullptr);
      int part = 0;
      float reach = Reach_Of(*m, *model, skel, part);
      EXPECT_GE(part, 2) << m->name << " has no strike";
      EXPECT_GE(reach, r.near) << m->name << " " << fig::Fig_Look(c).name;
      EXPECT_LE(reach, r.far) << m->name << " " << fig::Fig_Look(c).name;
    }
  }
}

TEST(AssetgenMotion, MarksFollowTheirPhases) {
  std::vector<BakedFrame> jab = Bake(*Mot_SharedByAction(180));
  int runs = 0, cue_at = -1, first_strike = -1, links = 0;
  for (std::size_t f = 0; f < jab.size(); ++f) {
    if (jab[f].part >= 2 && (f == 0 || jab[f - 1].part != jab[f].part)) ++runs;
    if (jab[f].part >= 2 && first_strike < 0) first_strike = static_cast<int>(f);
    if (jab[f].part < 0) cue_at = static_cast<int>(f);
    links += jab[f].part == 1;
    EXPECT_EQ(jab[f].hit, jab[f].part >= 2 ? 1 : 0);
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
}

TEST(AssetgenMotion, DifferentActionsMoveDifferently) {
  std::vector<std::vector<BakedFrame>> all;
  for (int i = 0; i < Mot_SharedCount(); ++i) all.push_back(Bake(Mot_Shared(i)));
  for (int a = 0; a < Mot_SharedCount(); ++a) {
    EXPECT_GE(all[a].size(), 8u) << Mot_Shared(a).name;
    for (int b = a + 1; b < Mot_SharedCount(); ++b) {
      // Compare at matching fractions of each motion.
      double diff = 0;
      for (int s = 0; s < 16; ++s) {
        const KeyFrame& ka = all[a][all[a].size() * s / 16].key;
        const KeyFrame& kb = all[b][all[b].size() * s / 16].key;
        for (int p = 0; p < kKeyParts; ++p)
          for (int e = 0; e < 9; ++e) diff += std::abs(ka.rot[p][e] - kb.rot[p][e]);
      }
      EXPECT_GT(diff, 2000.0) << Mot_Shared(a).name << " vs " << Mot_Shared(b).name;
    }
  }
  // Walking alternates the legs: each thigh swings both ways relative to its start.
  std::vector<BakedFrame> walk = Bake(*Mot_SharedByAction(1));
  for (int thigh : {8, 14}) {
    int lo = 1000, hi = -1000;
    for (const BakedFrame& f : walk) {
      lo = std::min<int>(lo, f.key.rot[thigh - 2][7]);
      hi = std::max<int>(hi, f.key.rot[thigh - 2][7]);
    }
    EXPECT_GT(hi - lo, 60) << "thigh " << thigh;
  }
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
  std::vector<BakedFrame> a = Bake(crouch), b = Bake(*Mot_SharedByAction(32));
  EXPECT_EQ(static_cast<int>(a.size()), Mot_Length(crouch));
  EXPECT_EQ(0, std::memcmp(&a.back().key, &b.front().key, sizeof(KeyFrame)));
  EXPECT_EQ(0, std::memcmp(&Bake(crouch)[3].key, &a[3].key, sizeof(KeyFrame)));
}

}  // namespace
