// Animation and skeleton files: decoding, the filled parts, capacities, the skeleton fit and
// posing.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "assets/asset_anim.h"
#include "assets/asset_report.h"
#include "assets/scratch_dir.h"
#include "fight/fight_state.h"
#include "writers/writer_bsc.h"
#include "writers/writer_fa.h"

namespace {

constexpr FaKind kKinds[] = {FaKind::PackedArmFree, FaKind::PlainArmFree, FaKind::PackedFull,
                             FaKind::PlainFull};

// Key frames whose every entry is distinct enough to catch a part or entry mix-up.
std::vector<FaKeyFrame> make_keys(int count, int seed) {
  std::vector<FaKeyFrame> keys(count);
  for (int k = 0; k < count; ++k)
    for (int i = 0; i < ANIM_PARTS; ++i) {
      FaPart& part = keys[k].parts[i];
      for (int e = 0; e < 9; ++e) part.rot[e] = (k * 37 + i * 11 + e * 5 + seed) % 999 - 499;
      for (int e = 0; e < 3; ++e) part.pos[e] = (k * 101 + i * 7 + e * 3 + seed * 13) % 800 - 400;
    }
  return keys;
}

// A proper rotation (x500) from three angles, so that fitted poses look like a body.
void set_rotation(FaPart* part, int a1, int a2, int a3) {
  Build_SinCosTables();
  Mat43 m;
  Mat_Euler(&m, a1, a2, a3, 0, 0, 0);
  for (int e = 0; e < 9; ++e) part->rot[e] = static_cast<std::int16_t>(std::lround(m.m[e] * 499));
}

void pose_key(int player, int key, float ox = 0, float oy = 0, float oz = 0) {
  Fighter& f = fighters[player];
  f.frame = 7;
  f.frame_key[7] = static_cast<std::int16_t>(key);
  f.frame_offset[7][0] = ox, f.frame_offset[7][1] = oy, f.frame_offset[7][2] = oz;
}

class AnimFiles : public ScratchDir {};

using Row = std::array<std::int16_t, 3>;
Row unpack(std::int32_t v) {
  Row e;
  Unpack_Row(v, e.data());
  return e;
}

TEST(AnimDecode, PackedRowHoldsThreeEntriesOfThreeDigits) {
  EXPECT_EQ(unpack(499500999), (Row{499, 0, -1}));
  EXPECT_EQ(FA_PackRow(499, 0, -1), 499500999);
  EXPECT_EQ(unpack(FA_PackRow(-500, 499, -500)), (Row{-500, 499, -500}));
}

// "plain arm-free", or "none" when the name gives no kind.
std::string kind_of(const char* name) {
  AnimKind k;
  if (!Anim_KindOfName(name, &k)) return "none";
  return std::string(k.plain ? "plain" : "packed") + (k.arm_free ? " arm-free" : " full");
}

TEST(AnimDecode, KindComesFromTheFirstDotOfTheName) {
  EXPECT_EQ(kind_of("ban.fa3"), "plain arm-free");
  EXPECT_EQ(kind_of("CROW.FX3"), "plain full");
  EXPECT_EQ(kind_of("PRELOAD.FA"), "packed arm-free");
  EXPECT_EQ(kind_of("a.fx.fa3"), "packed full");  // the first dot decides
  EXPECT_EQ(kind_of("odd."), "packed full");      // nothing read past the name's end
  EXPECT_EQ(kind_of("nodot"), "none");
}

TEST_F(AnimFiles, EveryKindRoundTripsWithTheFilledParts) {
  for (FaKind kind : kKinds) {
    SCOPED_TRACE(FA_Extension(kind));
    const std::string name = std::string("own") + FA_Extension(kind);
    const auto keys = make_keys(3, static_cast<int>(kind));
    ASSERT_TRUE(Write_FA(name.c_str(), kind, 21, keys));
    for (auto& key : Anim.CharKeys[0]) key[21 - 2][0] = 777;  // part 21 is never written
    ASSERT_TRUE(Load_FA(name.c_str(), "missing.bsc", 0));
    EXPECT_EQ(Anim.char_keys[0], 3);
    const bool arm_free = kind == FaKind::PackedArmFree || kind == FaKind::PlainArmFree;
    for (int k = 0; k < 3; ++k)
      for (int p = 2; p <= 20; ++p) {
        const std::int16_t* got = Anim.CharKeys[0][k][p - 2];
        int from = p;
        if (p == 17 || (p == 19 && arm_free)) from = 7;
        if (p == 18 || (p == 20 && arm_free)) from = 13;
        const FaPart& want = keys[k].parts[from - 2];
        const bool collapsed = arm_free && (p == 19 || p == 20);
        for (int e = 0; e < 9; ++e) EXPECT_EQ(got[e], collapsed ? 0 : want.rot[e]) << p;
        for (int e = 0; e < 3; ++e) EXPECT_EQ(got[9 + e], want.pos[e]) << p;
      }
    EXPECT_EQ(Anim.CharKeys[0][0][21 - 2][0], 777);
  }
}

TEST_F(AnimFiles, PackedRotationPosesAtFiveHundredths) {
  std::vector<FaKeyFrame> keys(1);
  keys[0].parts[3 - 2] = {{499, 0, -1, 0, 500 - 1, 0, 0, 0, 250}, {50, -100, 25}};
  ASSERT_TRUE(Write_FA("one.fa", FaKind::PackedArmFree, 16, keys));
  ASSERT_TRUE(Load_PreloadFA("one.fa"));
  EXPECT_EQ(fighters[0].last_shared_key, 0);
  EXPECT_EQ(fighters[1].first_part, 2);
  pose_key(1, 0, 0.5f, 0, 0);
  Pose_Part(1, 3);
  const float* m = Anim.Pose[1][3].m;
  EXPECT_FLOAT_EQ(m[0], 0.998f);
  EXPECT_FLOAT_EQ(m[1], 0.0f);
  EXPECT_FLOAT_EQ(m[2], -0.002f);
  EXPECT_FLOAT_EQ(m[8], 0.5f);
  EXPECT_FLOAT_EQ(m[9], 1.5f);  // 50 / 50 plus the frame's offset
  EXPECT_FLOAT_EQ(m[10], -2.0f);
  EXPECT_FLOAT_EQ(m[11], 0.5f);
}

TEST_F(AnimFiles, FrameKeyChoosesSharedThenOwnKeyFrames) {
  auto shared = make_keys(3, 1);
  auto own = make_keys(2, 2);
  for (int k = 0; k < 3; ++k) shared[k].parts[1].rot[0] = static_cast<std::int16_t>(100 + k);
  for (int k = 0; k < 2; ++k) own[k].parts[1].rot[0] = static_cast<std::int16_t>(300 + k);
  ASSERT_TRUE(Write_FA("shared.fa", FaKind::PackedArmFree, 21, shared));
  ASSERT_TRUE(Write_FA("own.fx3", FaKind::PlainFull, 21, own));
  ASSERT_TRUE(Load_PreloadFA("shared.fa"));
  ASSERT_TRUE(Load_FA("own.fx3", "missing.bsc", 0));
  const int K = fighters[0].last_shared_key;
  ASSERT_EQ(K, 2);
  const struct {
    int key;
    float rot0;
  } cases[] = {{K, 102 / 500.0f}, {K + 1, 300 / 500.0f}, {K + 2, 301 / 500.0f},
               {-5, 100 / 500.0f}, {K + 1 + CHARACTER_KEYS, 100 / 500.0f}};  // outside: key 0
  for (const auto& c : cases) {
    pose_key(0, c.key);
    Pose_Part(0, 3);
    EXPECT_FLOAT_EQ(Anim.Pose[0][3].m[0], c.rot0) << c.key;
  }
  // The root part is never moved by the fit, so its translation is the file's.
  pose_key(0, K + 1, 1, 2, 3);
  Pose_Part(0, 3);
  EXPECT_FLOAT_EQ(Anim.Pose[0][3].m[9], own[0].parts[1].pos[0] / 50.0f + 1);
  EXPECT_FLOAT_EQ(Anim.Pose[0][3].m[11], own[0].parts[1].pos[2] / 50.0f + 3);
}

TEST_F(AnimFiles, SkeletonFitJoinsEveryJointPair) {
  const int pairs[17][2] = {{3, 5},   {3, 11}, {3, 4},   {5, 6},   {6, 7},   {11, 12},
                            {12, 13}, {4, 8},  {8, 9},   {9, 10},  {4, 14},  {14, 15},
                            {15, 16}, {6, 17}, {7, 19},  {13, 18}, {12, 20}};
  auto keys = make_keys(4, 5);
  for (int k = 0; k < 4; ++k)
    for (int i = 0; i < ANIM_PARTS; ++i)
      set_rotation(&keys[k].parts[i], (k * 40 + i * 17) % 360, (i * 29 + k * 7) % 360,
                   (i * 53) % 360);
  std::vector<BscJoint> joints;
  for (int p = 2; p <= 21; ++p)
    joints.push_back({0.1f * (p % 5) - 0.2f, 0.9f - 0.08f * p, 0.05f * (p % 3)});
  ASSERT_TRUE(Write_FA("fit.fa", FaKind::PackedArmFree, 21, keys));
  ASSERT_TRUE(Write_BSC("fit.bsc", joints));
  ASSERT_TRUE(Load_PreloadFA("fit.fa"));
  ASSERT_TRUE(Load_BSC("fit.bsc"));
  const auto other_before = std::vector<std::int16_t>(
      &Anim.PreloadPos[1][0][0][0], &Anim.PreloadPos[1][4][0][0]);
  Fit_Skeleton(0);
  fighters[0].first_part = 2;
  fighters[0].last_part = 21;
  for (int k = 0; k < 4; ++k) {
    pose_key(0, k);
    Pose_Fighter(0);
    for (const auto& pr : pairs) {
      const float* j = Anim.Skeleton[pr[1]];
      float a[3], b[3];
      Mat_Apply(&Anim.Pose[0][pr[0]], 10 * j[0], 10 * j[1], 10 * j[2], &a[0], &a[1], &a[2]);
      Mat_Apply(&Anim.Pose[0][pr[1]], 10 * j[0], 10 * j[1], 10 * j[2], &b[0], &b[1], &b[2]);
      for (int axis = 0; axis < 3; ++axis)  // one stored unit is 1/50 after posing
        EXPECT_NEAR(a[axis], b[axis], 1 / 50.0 + 1e-4) << k << " " << pr[0] << "-" << pr[1];
    }
  }
  EXPECT_EQ(std::memcmp(other_before.data(), Anim.PreloadPos[1], other_before.size() * 2), 0);
}

TEST_F(AnimFiles, SkeletonRoundTripsAndBadSkeletonsKeepTheJoints) {
  std::vector<BscJoint> joints;
  for (int p = 2; p <= SKELETON_LAST_PART; ++p) joints.push_back({p * 1.5f, -p * 0.25f, 3.0f});
  ASSERT_TRUE(Write_BSC("full.bsc", joints));
  ASSERT_TRUE(Load_BSC("full.bsc"));
  EXPECT_FLOAT_EQ(Anim.Skeleton[2][0], 3.0f);
  EXPECT_FLOAT_EQ(Anim.Skeleton[29][1], -7.25f);

  joints.push_back({9, 9, 9});  // part 30: one past the table
  ASSERT_TRUE(Write_BSC("big.bsc", joints));
  capture();
  EXPECT_FALSE(Load_BSC("big.bsc"));
  captured();
  EXPECT_NE(diagnostics().find("big.bsc"), std::string::npos);
  std::vector<std::uint8_t> bytes;
  Encode_BSC(joints, &bytes);
  bytes[0] = 20;  // parts 2..20, but only ten records follow
  bytes.resize(2 + 12 * 10);
  write_bytes("short.bsc", bytes.data(), bytes.size());
  capture();
  EXPECT_FALSE(Load_BSC("short.bsc"));
  captured();
  EXPECT_NE(diagnostics().find("short.bsc"), std::string::npos);
  EXPECT_FALSE(Load_BSC("missing.bsc"));
  EXPECT_FLOAT_EQ(Anim.Skeleton[29][1], -7.25f);
  EXPECT_FLOAT_EQ(Anim.Skeleton[5][0], 7.5f);
}

TEST_F(AnimFiles, OversizedFilesAreRefusedAndNeighboursKept) {
  // The largest file the tables hold is taken; one more key frame or part is refused.
  ASSERT_TRUE(Write_FA("most.fa", FaKind::PackedArmFree, 16, make_keys(CHARACTER_KEYS, 8)));
  EXPECT_TRUE(Load_FA("most.fa", "missing.bsc", 0));
  ASSERT_TRUE(Write_FA("base.fa", FaKind::PackedArmFree, 21, make_keys(2, 3)));
  ASSERT_TRUE(Write_FA("p1.fa3", FaKind::PlainArmFree, 21, make_keys(4, 4)));
  ASSERT_TRUE(Write_FA("p0.fa3", FaKind::PlainArmFree, 21, make_keys(5, 6)));
  ASSERT_TRUE(Load_PreloadFA("base.fa"));
  ASSERT_TRUE(Load_FA("p1.fa3", "missing.bsc", 1));
  ASSERT_TRUE(Load_FA("p0.fa3", "missing.bsc", 0));
  const std::vector<std::int16_t> rot(&Anim.PreloadRot[0][0][0], &Anim.PreloadRot[2][0][0]);
  const std::vector<std::int16_t> own0(&Anim.CharKeys[0][0][0][0], &Anim.CharKeys[0][5][0][0]);
  const std::vector<std::int16_t> own1(&Anim.CharKeys[1][0][0][0], &Anim.CharKeys[1][4][0][0]);

  ASSERT_TRUE(Write_FA("huge.fa", FaKind::PackedFull, 16, make_keys(SHARED_KEYS + 1, 9)));
  ASSERT_TRUE(Write_FA("huge.fx", FaKind::PackedFull, 16, make_keys(CHARACTER_KEYS + 1, 9)));
  std::vector<std::uint8_t> bytes;
  ASSERT_TRUE(Encode_FA(FaKind::PlainFull, 21, make_keys(2, 1), &bytes));
  write_bytes("cut.fx3", bytes.data(), bytes.size() - 24);  // the right counts, a record short
  bytes[2] = 22;                                     // parts up to 22
  write_bytes("parts.fx3", bytes.data(), bytes.size());
  EXPECT_FALSE(Load_PreloadFA("huge.fa"));
  EXPECT_STREQ(Report_Reason(), "last key frame 6700 is past the capacity (0 to 6699)");
  for (const char* name : {"huge.fx", "parts.fx3", "cut.fx3", "nodot"}) {
    EXPECT_FALSE(Load_FA(name, "missing.bsc", 0));
    EXPECT_STREQ(Report_File(), name);
  }
  EXPECT_EQ(fighters[0].last_shared_key, 1);
  EXPECT_EQ(Anim.char_keys[0], 5);
  EXPECT_EQ(Anim.char_keys[1], 4);
  EXPECT_EQ(std::memcmp(rot.data(), Anim.PreloadRot, rot.size() * 2), 0);
  EXPECT_EQ(std::memcmp(own0.data(), Anim.CharKeys[0], own0.size() * 2), 0);
  EXPECT_EQ(std::memcmp(own1.data(), Anim.CharKeys[1], own1.size() * 2), 0);

  capture();
  EXPECT_FALSE(Load_FA("absent.fa", "missing.bsc", 0));
  EXPECT_EQ(captured(), "file open error absent.fa");
  EXPECT_FALSE(Load_PreloadFA("absent.fa"));
}

}  // namespace
