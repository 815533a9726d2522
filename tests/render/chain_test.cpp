// Attachment chains: swing, rate limits, limits, trailing links and the point matrices.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <vector>

#include "assets/asset_anim.h"
#include "fight/fight_state.h"
#include "render/render_chain.h"
#include "render/render_fighter.h"
#include "render/render_view.h"

namespace {

constexpr int P = 0;  // the fighter under test

// A depth move that the chain reads as exactly `deg` degrees of swing.
float move_of(int deg) { return (deg + (deg < 0 ? -0.3f : 0.3f)) * CHAIN_VELOCITY_DIVISOR; }

class ChainTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Build_SinCosTables();
    static const Fighter kBlank{};
    fighters[P] = kBlank;
    Match.character[P] = 0;  // stands with no offset
    std::memset(&Draw, 0, sizeof Draw);
    Mat_Scale(&View, 1.0f);
    // Parts 2 and 4 rest at the model origin unturned; the frame offset moves them.
    for (int part : {2, 4}) {
      std::memset(Anim.PreloadRot[0][part - 2], 0, sizeof Anim.PreloadRot[0][0]);
      for (int e : {0, 4, 8}) Anim.PreloadRot[0][part - 2][e] = 500;
      std::memset(Anim.PreloadPos[P][0][part - 2], 0, sizeof Anim.PreloadPos[P][0][0]);
    }
  }
  static Attachment& chain(int i = 0) { return fighters[P].attach[i]; }
  static void hang(int i, int part, int lower, int upper, int reverse, int last) {
    Attachment& at = chain(i);
    at.present = 1, at.anchor_part = part, at.lower = lower, at.upper = upper;
    at.reverse = reverse, at.last_point = last;
    for (int k = 0; k < ATTACH_POINTS; ++k) at.points[k][1] = -1.0f * static_cast<float>(k);
  }
  // Runs one frame with the anchor part at (0, y, z).
  static void frame_at(float y, float z) {
    fighters[P].frame_offset[0][1] = y;
    fighters[P].frame_offset[0][2] = z;
    Update_Attachments(P);
  }
  // Holds the anchor still with the given previous swing, then moves it by `raw` degrees.
  static int swing_after(int previous, int raw) {
    frame_at(0, 0);
    chain().swing = previous;
    frame_at(0, move_of(raw));
    return chain().swing;
  }
  static void expect_point(const Mat43& m, const float* pt, float x, float y, float z) {
    float o[3];
    Mat_Apply(&m, pt[0], pt[1], pt[2], &o[0], &o[1], &o[2]);
    EXPECT_NEAR(o[0], x, 1e-4);
    EXPECT_NEAR(o[1], y, 1e-4);
    EXPECT_NEAR(o[2], z, 1e-4);
  }
};

TEST_F(ChainTest, RateLimitsAgainstThePreviousSwing) {
  // A normal chain climbs 10 only on a jump of more than 10 and falls at most 30; a reversed
  // one climbs at most 30 and drops 7 only on a fall of more than 7.
  const int cases[][4] = {{30, 20, 0, 20}, {31, 20, 0, 30}, {-10, 20, 0, -10}, {-11, 20, 0, -10},
                          {51, 20, 1, 50}, {50, 20, 1, 50}, {13, 20, 1, 20},   {12, 20, 1, 13}};
  for (const auto& c : cases) EXPECT_EQ(Chain_RateLimit(c[0], c[1], c[2]), c[3]) << c[0];
  hang(0, 4, -120, 120, 0, 0);  // the same through the anchor's motion in depth
  EXPECT_EQ(swing_after(20, 0), 0);  // a still fighter: back to 0 within one frame
  EXPECT_EQ(swing_after(20, 35), 30);
  hang(0, 4, -120, 120, 1, 0);
  EXPECT_EQ(swing_after(20, 0), 13);
}

TEST_F(ChainTest, SwingFollowsTheAnchorAndSettlesBack) {
  // Rising 20 degrees of height a frame for three frames, then still.
  auto run = [](std::vector<int>* seen) {
    for (int f = 0; f <= 4; ++f) {
      frame_at(move_of(20) * static_cast<float>(f < 4 ? f : 3), 0);
      seen->push_back(chain().swing);
    }
  };
  hang(0, 2, -120, 120, 0, 1);
  chain().swing = -30;
  std::vector<int> seen;
  run(&seen);
  EXPECT_EQ(seen, (std::vector<int>{-20, -10, 0, 10, 0}));
  // A reversed chain turns the other way, lags 7 at a time, and comes back at once.
  hang(0, 2, -120, 120, 1, 1);
  chain().swing = 0;
  std::memset(chain().anchor, 0, sizeof chain().anchor);
  seen.clear();
  run(&seen);
  EXPECT_EQ(seen, (std::vector<int>{0, -7, -14, -14, 0}));
}

TEST_F(ChainTest, LimitsAndTheThrownHang) {
  hang(0, 4, 0, 0, 1, 0);  // an auto-made chain never swings
  EXPECT_EQ(swing_after(0, 25), 0);
  hang(1, 2, -80, 0, 0, 0);
  const float z = -move_of(100);
  frame_at(0, 0);
  chain(1).swing = -60;
  frame_at(0, z);
  EXPECT_EQ(chain(1).swing, -80);  // -90 by the rate limit, held at the lower limit
  fighters[P].action = ACTION_THROWN;
  frame_at(0, z);
  EXPECT_EQ(chain(0).swing, CHAIN_THROWN_SWING_REVERSE);  // hips while thrown: fixed hang
  EXPECT_EQ(chain(1).swing, -70);  // other anchors keep their rule: a still anchor lifts it 10
  fighters[P].action = ACTION_HELD;
  chain(0).reverse = 0;
  chain(1).swing = -100;  // outside its limits, as a thrown hang could leave it
  frame_at(0, z);
  EXPECT_EQ(chain(0).swing, CHAIN_THROWN_SWING);
  EXPECT_EQ(chain(1).swing, -80);
  fighters[P].floored = 1;
  frame_at(0, z);
  EXPECT_EQ(chain(0).swing, 0);
}

TEST_F(ChainTest, PointsHangOnTheAnchorAndLowerLinksTrail) {
  Build_AngleTables();
  hang(0, 4, 90, 90, 0, 2);  // held at 90: the chain stands out along -z
  fighters[P].yaw = 90;
  fighters[P].pos_x = 1.0f, fighters[P].pos_y = 2.0f, fighters[P].pos_z = 3.0f;
  Mat_Translate(&View, 0, 0, 10);
  chain().points[0][0] = 0.5f;  // point 0 off the part's origin, point 1 one unit below it
  chain().points[1][0] = chain().points[2][0] = 0.5f;
  frame_at(0.25f, 0);
  const Attachment& at = chain();
  // Point 0 sits where the anchor carries it: yaw 90 turns model x onto world -z.
  expect_point(Draw.EyeMat[P][30], at.points[0], 1.0f, 2.25f, 3.0f - 0.5f + 10.0f);
  // The first link's own turn: one unit down becomes one unit toward -z in model space.
  expect_point(at.links[0], at.points[1], 0.5f, 0.25f, -1.0f);
  // The lower link started from zero, so its point collapses onto where link 0 puts it.
  expect_point(at.links[1], at.points[1], 0.5f, 0.25f, -1.0f);
  // A new swing: each lower link trails toward its parent as it stood before this frame.
  Mat43 before[3] = {at.links[0], at.links[1], at.links[2]};
  chain().lower = chain().upper = 45;
  frame_at(0.25f, 0);
  for (int k = 1; k <= 2; ++k)
    for (int e = 0; e < 9; ++e)
      EXPECT_FLOAT_EQ(at.links[k].m[e],
                      before[k].m[e] + (before[k - 1].m[e] - before[k].m[e]) / 4.0f)
          << k << ' ' << e;
  // Held still, the lower link settles onto the first.
  chain().lower = chain().upper = 90;
  for (int f = 0; f < 80; ++f) frame_at(0.25f, 0);
  for (int e = 0; e < 12; ++e) EXPECT_NEAR(at.links[2].m[e], at.links[0].m[e], 1e-4) << e;
  // Slot 31 is link 1 turned by yaw, moved to the fighter and through the camera.
  Mat43 w;
  Mat_RotYOf(&w, &at.links[1], 90);
  for (int e = 0; e < 9; ++e) EXPECT_FLOAT_EQ(Draw.WorldRot[P][31].m[e], w.m[e]) << e;
  expect_point(Draw.EyeMat[P][31], at.points[1], 1.0f - 1.0f, 2.25f, 3.0f - 0.5f + 10.0f);
}

TEST_F(ChainTest, NothingOutsideThePresentChainsIsWritten) {
  static Fighter before;
  static FighterDraw draw_before;
  auto same = [](const void* a, const void* b, std::size_t n) { return !std::memcmp(a, b, n); };
  chain(2).last_point = 4, chain(2).swing = 33;  // loaded data of an absent chain
  fighters[P].frame_offset[0][1] = 1.0f;
  before = fighters[P], draw_before = Draw;
  Update_Attachments(P);
  EXPECT_TRUE(same(&before, &fighters[P], sizeof before));
  EXPECT_TRUE(same(&draw_before, &Draw, sizeof Draw));
  // A damaged highest point number keeps to the five links and their slots; a one-point chain
  // writes slot 30 + 5i alone.
  hang(4, 2, -120, 120, 0, 9);
  hang(1, 2, -120, 120, 0, 0);
  fighters[P].frame_offset[0][2] = 0.5f;
  before = fighters[P], draw_before = Draw;
  Update_Attachments(P);
  const std::size_t from = offsetof(Fighter, attach), to = from + sizeof before.attach;
  const auto* a = reinterpret_cast<const unsigned char*>(&before);
  const auto* b = reinterpret_cast<const unsigned char*>(&fighters[P]);
  EXPECT_TRUE(same(a, b, from) && same(a + to, b + to, sizeof before - to));
  EXPECT_TRUE(same(&before.attach[2], &chain(2), sizeof(Attachment)));
  for (int slot = 0; slot < PART_SLOTS; ++slot) {
    const bool written = slot == 35 || (slot >= 50 && slot <= 54);
    EXPECT_EQ(same(&draw_before.EyeMat[P][slot], &Draw.EyeMat[P][slot], sizeof(Mat43)), !written)
        << slot;
  }
  EXPECT_TRUE(same(draw_before.EyeMat[1], Draw.EyeMat[1], sizeof Draw.EyeMat[1]));
}

TEST_F(ChainTest, PartPointCarriesTheVerticalPlacement) {
  Fighter& f = fighters[P];
  Match.character[P] = 8;  // stands 1.0 higher, crouches 0.6 higher
  f.height = 3.0f;
  float x, y, z;
  auto y_of = [&](int part) { return Part_Point(P, part, 0, 1, 0, &x, &y, &z), y - 1.0f; };
  EXPECT_FLOAT_EQ(y_of(4), 1.0f + 3.0f);
  f.crouching = 1;
  EXPECT_FLOAT_EQ(y_of(4), 0.6f + 3.0f);
  f.busy = 1, f.reacting = 1;  // held: the height alone
  EXPECT_FLOAT_EQ(y_of(4), 3.0f);
  f.crouching = 0, f.reacting = 0;  // feet to the floor: nothing added
  EXPECT_FLOAT_EQ(y_of(4), 0.0f);
  f.busy = 0, f.action = 30;  // halfway down from standing to crouching
  f.act_first[30] = 100, f.act_last[30] = 104, f.frame = 102;
  EXPECT_NEAR(y_of(4), 0.8f + 3.0f, 1e-5);
  f.extra_angle[0] = 90, f.action = 0;  // part 2 takes the first extra turn about x
  EXPECT_NEAR(y_of(2), 1.0f + 3.0f - 1.0f, 1e-5);  // the point's own height turned onto z
  EXPECT_NEAR(z, 1.0f, 1e-5);
}

}  // namespace
