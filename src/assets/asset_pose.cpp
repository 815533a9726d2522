// Skeleton fit of the shared key frames, and posing a fighter's parts for its current frame.
#include <cstdint>

#include "assets/asset_anim.h"
#include "fight/fight_state.h"

namespace {

// (parent, child) joints, root outward: each child is moved onto its parent's joint.
struct JointPair {
  int parent, child;
};
constexpr JointPair kJointPairs[] = {
    {3, 5},    // chest - upper arm
    {3, 11},   // chest - other upper arm
    {3, 4},    // chest - hips
    {5, 6},    // upper arm - forearm
    {6, 7},    // forearm - hand
    {11, 12},  // other upper arm - forearm
    {12, 13},  // other forearm - hand
    {4, 8},    // hips - thigh
    {8, 9},    // thigh - shin
    {9, 10},   // shin - foot
    {4, 14},   // hips - other thigh
    {14, 15},  // other thigh - shin
    {15, 16},  // other shin - foot
    {6, 17},   // forearm - second hand piece
    {7, 19},   // hand - weapon
    {13, 18},  // other hand - second hand piece
    {12, 20},  // other forearm - other weapon
};
static_assert(sizeof kJointPairs / sizeof kJointPairs[0] == 17);

// Truncates toward zero into a stored 16-bit value, saturating (NaN gives 0).
std::int16_t to_i16(double v) {
  if (!(v > -32769.0)) return v != v ? 0 : INT16_MIN;
  if (!(v < 32768.0)) return INT16_MAX;
  return static_cast<std::int16_t>(static_cast<std::int32_t>(v));
}

void build(Mat43* m, const std::int16_t rot[9], const std::int16_t pos[3], double pos_div) {
  for (int e = 0; e < 9; ++e) m->m[e] = static_cast<float>(rot[e] / 500.0);
  for (int e = 0; e < 3; ++e) m->m[9 + e] = static_cast<float>(pos[e] / pos_div);
}

void fit_pair(int player, int k, const JointPair& pair) {
  const int a = pair.parent - ANIM_FIRST_PART;
  const int b = pair.child - ANIM_FIRST_PART;
  const float* j = Anim.Skeleton[pair.child];
  std::int16_t* tb = Anim.PreloadPos[player][k][b];
  Mat43 ma, mb;
  build(&ma, Anim.PreloadRot[k][a], Anim.PreloadPos[player][k][a], 500.0);
  build(&mb, Anim.PreloadRot[k][b], tb, 500.0);
  float pa[3], pb[3];
  Mat_Apply(&ma, j[0], j[1], j[2], &pa[0], &pa[1], &pa[2]);
  Mat_Apply(&mb, j[0], j[1], j[2], &pb[0], &pb[1], &pb[2]);
  for (int axis = 0; axis < 3; ++axis)
    tb[axis] = to_i16((tb[axis] / 500.0 + (pa[axis] - pb[axis])) * 500.0);
}

// The rotation and translation of key frame k for the player: shared key frames up to K, the
// character's own after it. A key outside both tables shows shared key frame 0.
void key_part(int player, int k, int i, const std::int16_t** rot, const std::int16_t** pos) {
  const int last_shared = fighters[player].last_shared_key;
  if (k >= 0 && k <= last_shared && k < SHARED_KEYS) {
    *rot = Anim.PreloadRot[k][i];
    *pos = Anim.PreloadPos[player][k][i];
    return;
  }
  const int own = k - (last_shared + 1);
  if (k >= 0 && own >= 0 && own < CHARACTER_KEYS) {
    *rot = Anim.CharKeys[player][own][i];
    *pos = Anim.CharKeys[player][own][i] + 9;
    return;
  }
  *rot = Anim.PreloadRot[0][i];
  *pos = Anim.PreloadPos[player][0][i];
}

}  // namespace

void Fit_Skeleton(int player) {
  if (player < 0 || player > 1) return;
  for (int k = 0; k < Anim.shared_keys; ++k)
    for (const JointPair& pair : kJointPairs) fit_pair(player, k, pair);
}

void Pose_Part(int player, int p) {
  if (player < 0 || player > 1 || p < ANIM_FIRST_PART || p > ANIM_LAST_PART) return;
  const Fighter& f = fighters[player];
  const int frame = (f.frame >= 0 && f.frame < MAX_FRAMES) ? f.frame : 0;
  const std::int16_t* rot;
  const std::int16_t* pos;
  key_part(player, f.frame_key[frame], p - ANIM_FIRST_PART, &rot, &pos);
  Mat43* m = &Anim.Pose[player][p];
  build(m, rot, pos, 50.0);
  for (int e = 0; e < 3; ++e) m->m[9 + e] += f.frame_offset[frame][e];
}

void Pose_Fighter(int player) {
  if (player < 0 || player > 1) return;
  const Fighter& f = fighters[player];
  const int first = f.first_part > ANIM_FIRST_PART ? f.first_part : ANIM_FIRST_PART;
  const int last = f.last_part < ANIM_LAST_PART ? f.last_part : ANIM_LAST_PART;
  for (int p = first; p <= last; ++p) Pose_Part(player, p);
}
