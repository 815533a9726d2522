// Attachment chains: the per-frame swing, its rate limits, the trailing links and the matrices
// of the chain points.
#include "render/render_chain.h"

#include <cstring>

#include "fight/fight_state.h"
#include "render/render_fighter.h"
#include "render/render_view.h"

static_assert(FIRST_CHAIN_SLOT + ATTACHMENTS * ATTACH_POINTS - 1 == LAST_CHAIN_SLOT);
static_assert(LAST_CHAIN_SLOT < PART_SLOTS);

namespace {

constexpr int kHipsPart = 4;              // the one anchor that hangs fixed while thrown
constexpr float kRawSwingLimit = 1.0e6f;  // keeps a wild jump of the anchor inside an int
constexpr int kNormalClimb = 10, kNormalFall = 30;
constexpr int kReverseClimb = 30, kReverseFall = 7;

int wrap_angle(int a) { return ((a % ANGLES) + ANGLES) % ANGLES; }

// Whole degrees of swing for a move of d since the previous frame, truncated toward zero.
int degrees_of_move(float d) {
  float q = d / CHAIN_VELOCITY_DIVISOR;
  if (!(q > -kRawSwingLimit)) q = (q != q) ? 0.0f : -kRawSwingLimit;
  if (q > kRawSwingLimit) q = kRawSwingLimit;
  return static_cast<int>(q);
}

int raw_swing(const Attachment& at, const float p[3]) {
  const int depth = degrees_of_move(p[2] - at.anchor[2]);
  const int height = degrees_of_move(p[1] - at.anchor[1]);
  return depth + (at.reverse == 1 ? -height : height);
}

// The swing of this frame: the rate limit, then either the fixed hang of a thrown fighter's
// hip chain or the chain's own limits.
int next_swing(const Fighter& f, const Attachment& at, int raw) {
  const int s = Chain_RateLimit(raw, at.swing, at.reverse);
  const bool thrown = f.action == ACTION_THROWN || f.action == ACTION_HELD;
  if (thrown && f.floored == 0 && at.anchor_part == kHipsPart)
    return at.reverse == 1 ? CHAIN_THROWN_SWING_REVERSE : CHAIN_THROWN_SWING;
  if (s < at.lower) return at.lower;
  if (s > at.upper) return at.upper;
  return s;
}

// Each lower link moves a quarter of the way toward its parent's matrix of the previous
// frame; going from the bottom up, every parent still holds that matrix when it is read.
void trail_links(Attachment& at, int n) {
  for (int k = n; k >= 1; --k) {
    float* m = at.links[k].m;
    const float* parent = at.links[k - 1].m;
    for (int e = 0; e < 12; ++e) m[e] += (parent[e] - m[e]) / 4.0f;
  }
}

// Moves the translation of m so that the model point `pt` lands on `target`.
void hang_on(Mat43* m, const float pt[3], const float target[3]) {
  float now[3];
  Mat_Apply(m, pt[0], pt[1], pt[2], &now[0], &now[1], &now[2]);
  for (int e = 0; e < 3; ++e) m->m[9 + e] += target[e] - now[e];
}

// The first link: the anchor part's matrix turned about x by the swing, hung so that point 0
// stays where the anchor part carries it.
void swing_first_link(Attachment& at, const Mat43& part, const float p[3], int swing) {
  Mat43 turn;
  Mat_RotX(&turn, wrap_angle(swing));
  Mat_Mul(&at.links[0], &part, &turn);
  hang_on(&at.links[0], at.points[0], p);
}

// Every lower link keeps its trailing orientation and hangs where its parent puts its point.
void hang_lower_links(Attachment& at, int n) {
  for (int k = 1; k <= n; ++k) {
    const float* pt = at.points[k];
    float q[3];
    Mat_Apply(&at.links[k - 1], pt[0], pt[1], pt[2], &q[0], &q[1], &q[2]);
    hang_on(&at.links[k], pt, q);
  }
}

// World rotation and eye matrix of each point: turned by the fighter's yaw, moved to its
// position (the height is already in the part matrix), then through the camera.
void write_point_matrices(int player, int i, const Attachment& at, int n) {
  const Fighter& f = fighters[player];
  for (int k = 0; k <= n; ++k) {
    const int slot = FIRST_CHAIN_SLOT + ATTACH_POINTS * i + k;
    Mat43 w;
    Mat_RotYOf(&w, &at.links[k], wrap_angle(f.yaw));
    std::memcpy(Draw.WorldRot[player][slot].m, w.m, 9 * sizeof(float));
    w.m[9] += f.pos_x;
    w.m[10] += f.pos_y;
    w.m[11] += f.pos_z;
    Mat_Mul(&Draw.EyeMat[player][slot], &w, &View);
  }
}

void update_one(int player, int i) {
  Fighter& f = fighters[player];
  Attachment& at = f.attach[i];
  Mat43 part;
  if (!Part_PointMat(player, at.anchor_part, &part)) return;  // hangs on no posed part
  // A highest point number outside 0..4 can only come from a damaged record: keep to the links.
  const int n = at.last_point < 0 ? 0 : (at.last_point >= ATTACH_POINTS ? ATTACH_POINTS - 1
                                                                        : at.last_point);
  trail_links(at, n);
  float p[3];
  Mat_Apply(&part, at.points[0][0], at.points[0][1], at.points[0][2], &p[0], &p[1], &p[2]);
  at.swing = next_swing(f, at, raw_swing(at, p));
  swing_first_link(at, part, p, at.swing);
  std::memcpy(at.anchor, p, sizeof at.anchor);
  hang_lower_links(at, n);
  write_point_matrices(player, i, at, n);
}

}  // namespace

int Chain_RateLimit(int raw, int previous, int reverse) {
  const int a = previous;
  if (reverse == 1) {
    if (raw > a + kReverseClimb) return a + kReverseClimb;
    if (raw <= a) return raw < a - kReverseFall ? a - kReverseFall : a;
    return raw;
  }
  if (raw > a + kNormalClimb) return a + kNormalClimb;
  if (raw > a) return a;
  if (raw < a - kNormalFall) return a - kNormalFall;
  return raw;
}

void Update_Attachments(int player) {
  if (player != 0 && player != 1) return;
  for (int i = 0; i < ATTACHMENTS; ++i)
    if (fighters[player].attach[i].present) update_one(player, i);
}

void Reset_Attachments(int player) {
  if (player != 0 && player != 1) return;
  for (Attachment& at : fighters[player].attach) {
    at.swing = 0;
    std::memset(at.anchor, 0, sizeof at.anchor);
    std::memset(at.links, 0, sizeof at.links);
  }
}
