// The generated shared motions, loaded through the game's own readers: every action the fight can
// start has frames, the files stay inside the game's tables, every character's skeleton fits the
// motions, attacks reach their distance bands and strike on their active frames, and falls mark
// the floor.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "assetgen.h"
#include "assets/asset_anim.h"
#include "assets/asset_table.h"
#include "fight/fight_hit.h"
#include "fight/fight_state.h"
#include "figures/fig_figure.h"
#include "figures/fig_roster.h"
#include "motion/mot_shared.h"
#include "support/test_support.h"
#include "writers/writer_bsc.h"

namespace {

constexpr int kActions[] = {
    0,   1,   2,   3,   4,   7,   8,   9,   12,  13,  21,  22,  23,  24,  25,  26,  30,  31,  32,  33,
    34,  35,  36,  37,  38,  39,  40,  50,  51,  55,  56,  57,  80,  81,  82,  83,  84,  85,  86,  87,
    88,  89,  90,  91,  92,  93,  94,  95,  96,  97,  98,  99,  100, 101, 116, 117, 138, 143, 144, 145,
    146, 147, 148, 149, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 160, 161, 162, 163, 164, 165,
    166, 167, 170, 171, 172, 173, 174, 175, 180, 181, 188, 189, 210, 211, 216, 217, 219, 229, 240, 241,
    242, 250, 289, 290, 298, 325, 326, 327, 328, 331, 366, 436, 522, 597, 598, 599};
constexpr int kAttacks[] = {37,  38,  39,  40,  180, 181, 188, 189, 210, 211, 216, 217, 219, 229,
                            240, 241, 242, 250, 289, 290, 298, 325, 326, 327, 328, 331, 522};
constexpr int kFalls[] = {82,  83,  85,  86,  87,  88,  89,  90,  91,  92,  93,  94,  95,  96,  97,  98,  99,
                          100, 101, 143, 144, 147, 148, 157, 158, 161, 162, 163, 164, 165, 166, 167, 170, 171,
                          172, 173, 174, 175, 436};
constexpr int kPairs[15][2] = {{3, 5},   {3, 11}, {3, 4},  {5, 6},   {6, 7},   {11, 12}, {12, 13}, {4, 8},
                               {8, 9},   {9, 10}, {4, 14}, {14, 15}, {15, 16}, {6, 17},  {13, 18}};

class PreloadData : public test::TempDirTest {
 protected:
  void SetUp() override {
    test::TempDirTest::SetUp();
    gen::Context ctx;
    ctx.out = dir_;
    ctx.work = dir_;
    ASSERT_TRUE(gen::Generate_Motions(ctx));
    ASSERT_TRUE(Load_PreloadFA("PRELOAD.FA"));
    ASSERT_TRUE(Load_PreloadTBL("PRELOAD.TBL", 0));
  }
  static const Fighter& F() { return fighters[0]; }
  static int First(int a) { return F().act_first[a]; }
  static int Last(int a) { return F().act_last[a]; }
  // Poses fighter 0 on frame f of its tables.
  static void Pose_At(int f) {
    fighters[0].frame = f;
    fighters[0].first_part = 2;
    fighters[0].last_part = 21;
    Pose_Fighter(0);
  }
  static void Carry(int part, const float p[3], float out[3]) {
    Mat_Apply(&Anim.Pose[0][part], p[0], p[1], p[2], &out[0], &out[1], &out[2]);
  }
};

TEST_F(PreloadData, EveryActionHasFramesInsideTheTables) {
  const int shared_frames = F().last_shared_frame + 1;
  EXPECT_LE(Anim.shared_keys, SHARED_KEYS);
  EXPECT_LE(shared_frames + 2500 + 2, MAX_FRAMES) << "a character's own frames still fit after these";
  for (int a : kActions) {
    EXPECT_GE(First(a), 1) << "action " << a;
    EXPECT_LE(First(a), Last(a)) << "action " << a;
    EXPECT_LT(Last(a), shared_frames) << "action " << a;
  }
  for (int f = 0; f < shared_frames; ++f) {
    ASSERT_GE(F().frame_key[f], 0);
    ASSERT_LE(F().frame_key[f], F().last_shared_key);
  }
  // Jumps last past the landing; guards hold a full guard on their fifth frame; the charge's
  // loop starts where it ends.
  EXPECT_GE(Last(9) - First(9) + 1, 40);
  EXPECT_GE(Last(21) - First(21) + 1, 40);
  for (int g : {8, 35}) EXPECT_EQ(F().frame_key[First(g) + 3], F().frame_key[First(g) + 4]) << g;
  ASSERT_GE(Last(599), First(599) + 42);
  EXPECT_EQ(F().frame_key[First(599) + 25], F().frame_key[First(599) + 42]);
  // Rotations are proper turns (rows of unit length) in the packed range.
  for (int k = 0; k < Anim.shared_keys; ++k)
    for (int p = 0; p < 15; ++p)
      for (int r = 0; r < 3; ++r) {
        const std::int16_t* row = &Anim.PreloadRot[k][p][3 * r];
        double len = std::sqrt(double(row[0]) * row[0] + double(row[1]) * row[1] + double(row[2]) * row[2]);
        ASSERT_NEAR(len, 500.0, 6.0) << "key " << k << " part " << p + 2;
      }
  // The same generator writes the same bytes.
  std::string fa = read_all("PRELOAD.FA"), tbl = read_all("PRELOAD.TBL");
  gen::Context again;
  again.out = dir_ + "/again";
  ASSERT_EQ(std::system(("mkdir -p " + again.out.string()).c_str()), 0);
  ASSERT_TRUE(gen::Generate_Motions(again));
  EXPECT_EQ(fa, read_all("again/PRELOAD.FA"));
  EXPECT_EQ(tbl, read_all("again/PRELOAD.TBL"));
}

TEST_F(PreloadData, StrikesCuesAndFloorMarksSitOnTheirFrames) {
  for (int a : kAttacks) {
    int strike = -1, cue = -1;
    for (int f = First(a); f <= Last(a) && strike < 0; ++f) {
      if (F().frame_part[f] < 0 && cue < 0) cue = f;
      if (F().frame_part[f] >= 2 && F().frame_hit[f] != 5) strike = f;
    }
    ASSERT_GE(strike, 0) << "action " << a << " never strikes";
    EXPECT_GE(cue, 0) << "action " << a << " swings silently";
    EXPECT_LT(cue, strike) << "action " << a;
    EXPECT_NE(F().frame_hit[strike], 0) << "action " << a << " strikes without a hit attribute";
    EXPECT_GT(F().act_win_last[a], strike) << "action " << a << " links before its strike";
    EXPECT_LT(F().act_win_last[a], Last(a)) << "action " << a;
  }
  // A fall marks the floor once, and leaves the fighter lying.
  for (int a : kFalls) {
    int marks = 0;
    for (int f = First(a); f <= Last(a); ++f) marks += F().frame_part[f] == 2 && F().frame_hit[f] == 5;
    EXPECT_EQ(marks, 1) << "action " << a;
  }
  // Victory poses raise dust where a foot lands.
  for (int a : {12, 13}) {
    int dust = 0;
    for (int f = First(a); f <= Last(a); ++f) dust += F().frame_part[f] == 0 && F().frame_hit[f] % 100 >= 1 &&
                                                       F().frame_hit[f] % 100 <= 3;
    EXPECT_GE(dust, 1) << "action " << a;
  }
}

// A blow no guard stops rocks the opponent back with a reaction of its own: every shared attack
// whose kind makes it such a blow finds that reaction in the tables, or the struck fighter
// would stand there untouched.
TEST_F(PreloadData, EveryUnstoppableBlowHasItsReaction) {
  constexpr int kRocked = 521;
  int rocking = 0;
  for (int a : kAttacks) {
    for (int f = First(a); f <= Last(a); ++f) {
      if (F().frame_part[f] < 2 || F().frame_hit[f] == 5) continue;
      std::int32_t special = 0;
      if (Strike_Height(F().frame_hit[f] % 100, &special) != 6) continue;
      ++rocking;
      EXPECT_GT(First(kRocked), 0) << "action " << a << " rocks the opponent into nothing";
      EXPECT_GT(Last(kRocked), First(kRocked) + 10) << "action " << a;
      break;
    }
  }
  EXPECT_GT(rocking, 0);  // the open kicks and the lunge are such blows
}

TEST_F(PreloadData, DifferentActionsMoveDifferently) {
  // Rotations compared at matching fractions of each action.
  auto key = [](int a, int s) { return F().frame_key[First(a) + (Last(a) - First(a)) * s / 15]; };
  for (int i = 0; i < static_cast<int>(std::size(kActions)); ++i)
    for (int j = i + 1; j < static_cast<int>(std::size(kActions)); ++j) {
      int a = kActions[i], b = kActions[j];
      long diff = 0;
      for (int s = 0; s < 16; ++s)
        for (int p = 0; p < 15; ++p)
          for (int e = 0; e < 9; ++e) diff += std::abs(Anim.PreloadRot[key(a, s)][p][e] - Anim.PreloadRot[key(b, s)][p][e]);
      EXPECT_GT(diff, 1500) << "actions " << a << " and " << b;
    }
  // Walks alternate the legs: each thigh swings both ways.
  for (int a : {1, 2, 25, 26})
    for (int thigh : {8, 14}) {
      int lo = 1000, hi = -1000;
      for (int f = First(a); f <= Last(a); ++f) {
        int v = Anim.PreloadRot[F().frame_key[f]][thigh - 2][7];
        lo = std::min(lo, v), hi = std::max(hi, v);
      }
      EXPECT_GT(hi - lo, 40) << "walk " << a << " thigh " << thigh;
    }
}

// The strike's reach: the front of the striking part's box plus the defender's widened front.
float Reach(const fig::Model& model, int first, int last) {
  float best = -1e9f;
  for (int f = first; f <= last; ++f) {
    int part = fighters[0].frame_part[f];
    if (part < 2 || fighters[0].frame_hit[f] == 5) continue;
    fighters[0].frame = f;
    Pose_Fighter(0);
    for (const auto& c : model.boxes[part].corner) {
      float out[3];
      Mat_Apply(&Anim.Pose[0][part], c[0], c[1], c[2], &out[0], &out[1], &out[2]);
      best = std::max(best, out[2]);
    }
  }
  return best + 0.8f;
}

float Leg_Length(const fig::Skeleton& s) { return s.joint[4][1] - s.joint[10][1]; }
float Arm_Length(const fig::Skeleton& s) {
  auto span = [&](int a, int b) {
    return std::hypot(s.joint[a][0] - s.joint[b][0], s.joint[a][1] - s.joint[b][1], s.joint[a][2] - s.joint[b][2]);
  };
  return span(5, 6) + span(6, 7);
}

TEST_F(PreloadData, EveryCharactersSkeletonFitsTheMotions) {
  const int shared_frames = F().last_shared_frame + 1;
  for (int c = 0; c < fig::kCharacters; ++c) {
    SCOPED_TRACE(fig::Fig_Look(c).name);
    fig::Skeleton skel;
    fig::Fig_BuildSkeleton(c, skel);
    std::vector<BscJoint> joints;
    for (int p = 2; p <= skel.last_part; ++p) joints.push_back({skel.joint[p][0], skel.joint[p][1], skel.joint[p][2]});
    ASSERT_TRUE(Write_BSC("FIT.BSC", joints));
    ASSERT_TRUE(Load_PreloadFA("PRELOAD.FA"));
    ASSERT_TRUE(Load_BSC("FIT.BSC"));
    Fit_Skeleton(0);
    // Every joint pair meets on every shared frame.
    float worst = 0;
    for (int f = 1; f < shared_frames; ++f) {
      Pose_At(f);
      for (const auto& pair : kPairs) {
        const float j[3] = {Anim.Skeleton[pair[1]][0] * 10, Anim.Skeleton[pair[1]][1] * 10, Anim.Skeleton[pair[1]][2] * 10};
        float pa[3], pb[3];
        Carry(pair[0], j, pa);
        Carry(pair[1], j, pb);
        worst = std::max(worst, std::hypot(pa[0] - pb[0], pa[1] - pb[1], pa[2] - pb[2]));
      }
    }
    EXPECT_LT(worst, 0.05f);
    // Standing, the foot's centre lands at the character's foot height.
    auto model = std::make_unique<fig::Model>();
    fig::TextureLayout lay;
    ASSERT_TRUE(fig::Fig_BuildModel(c, *model, lay));
    Pose_At(First(0));
    float lo = 1e9f, hi = -1e9f;
    for (const auto& corner : model->boxes[10].corner) {
      float out[3];
      Carry(10, corner, out);
      lo = std::min(lo, out[1]), hi = std::max(hi, out[1]);
    }
    EXPECT_NEAR((lo + hi) / 2 + fig::kStandingY + fig::Fig_StandingOffset(c), fig::Fig_FootHeight(c), 0.2f);
    // Each attack reaches its band in front of the body; a bigger body (longer legs or arms)
    // reaches further.
    const fig::Skeleton& ref = fig::Fig_ReferenceSkeleton();
    float scale = std::max({1.0f, Leg_Length(skel) / Leg_Length(ref), Arm_Length(skel) / Arm_Length(ref)});
    for (int i = 0; i < mot::Mot_ReachCount(); ++i) {
      const mot::Reach& r = mot::Mot_ReachOf(i);
      float reach = Reach(*model, First(r.action), Last(r.action));
      EXPECT_GE(reach, r.near) << "action " << r.action;
      EXPECT_LE(reach, r.far * scale) << "action " << r.action;
    }
  }
}

}  // namespace
