// Forward kinematics, key-frame packing and the skeleton refit.
#include "motion/mot_pose.h"

#include <algorithm>
#include <cmath>

namespace mot {
using fig::Rot;
using fig::Vec3;

namespace {

constexpr int kParent[22] = {0, 0, 3, 4, 0, 3, 5, 6, 4, 8, 9, 3, 11, 12, 4, 14, 15, 7, 13, 7, 12, 3};
// Skeleton-fit joint pairs (parent, child), applied in this order by the game.
constexpr int kFitPairs[17][2] = {{3, 5},  {3, 11}, {3, 4},   {5, 6},   {6, 7},   {11, 12},
                                  {12, 13}, {4, 8},  {8, 9},   {9, 10},  {4, 14},  {14, 15},
                                  {15, 16}, {6, 17}, {7, 19},  {13, 18}, {12, 20}};

Rot Local(const float a[3]) { return Then(Then(fig::RotZ(a[2]), fig::RotX(a[0])), fig::RotY(a[1])); }

std::int16_t Clamp16(float v, int lim) {
  long r = std::lround(v);
  return static_cast<std::int16_t>(std::clamp<long>(r, -lim, lim));
}

}  // namespace

int Mot_Parent(int part) { return part >= 0 && part < 22 ? kParent[part] : 0; }

void Mot_JointsOf(const fig::Skeleton& skel, Joints& out) {
  for (int p = 0; p < 22; ++p) out.at[p] = {skel.joint[p][0] * 10, skel.joint[p][1] * 10, skel.joint[p][2] * 10};
}

void Mot_Solve(const Joints& j, const Pose& pose, PartMatrix out[22]) {
  Vec3 posed[22];
  out[0] = out[1] = {};
  // Parents come before children in this order.
  static constexpr int kOrder[] = {4, 3, 2, 21, 5, 6, 7, 17, 19, 11, 12, 13, 18, 20, 8, 9, 10, 14, 15, 16};
  for (int p : kOrder) {
    Rot r;
    Vec3 at;
    if (p == 4) {
      r = Local(pose.ang[4]);
      at = j.at[4] + pose.root;
    } else {
      int q = kParent[p];
      bool copy = p == 17 || p == 18 || p == 21;
      r = copy ? out[q].r : Then(Local(pose.ang[p]), out[q].r);
      at = Apply(out[q].r, j.at[p] - j.at[q]) + posed[q];
    }
    posed[p] = at;
    out[p].r = r;
    out[p].t = at - Apply(r, j.at[p]);
  }
}

Vec3 Mot_PosedJoint(const Joints& j, const PartMatrix m[22], int part) {
  return Apply(m[part].r, j.at[part]) + m[part].t;
}

void Mot_Pack(const PartMatrix in[22], KeyFrame& out) {
  for (int p = 2; p <= 21; ++p) {
    for (int e = 0; e < 9; ++e) out.rot[p - 2][e] = Clamp16(in[p].r.m[e] * 500.0f, kRotLimit);
    out.pos[p - 2][0] = Clamp16(in[p].t.x * 50.0f, 32767);
    out.pos[p - 2][1] = Clamp16(in[p].t.y * 50.0f, 32767);
    out.pos[p - 2][2] = Clamp16(in[p].t.z * 50.0f, 32767);
  }
}

void Mot_Unpack(const KeyFrame& in, PartMatrix out[22]) {
  out[0] = out[1] = {};
  for (int p = 2; p <= 21; ++p) {
    for (int e = 0; e < 9; ++e) out[p].r.m[e] = in.rot[p - 2][e] / 500.0f;
    out[p].t = {in.pos[p - 2][0] / 50.0f, in.pos[p - 2][1] / 50.0f, in.pos[p - 2][2] / 50.0f};
  }
}

void Mot_AsLoaded(KeyFrame& key, bool arm_free) {
  auto copy = [&](int to, int from, bool zero_rot) {
    for (int e = 0; e < 9; ++e) key.rot[to - 2][e] = zero_rot ? 0 : key.rot[from - 2][e];
    for (int e = 0; e < 3; ++e) key.pos[to - 2][e] = key.pos[from - 2][e];
  };
  copy(17, 7, false);
  copy(18, 13, false);
  if (arm_free) {
    copy(19, 7, true);
    copy(20, 13, true);
  }
}

void Mot_Fit(KeyFrame& key, const fig::Skeleton& skel) {
  for (const auto& pair : kFitPairs) {
    int a = pair[0], b = pair[1];
    Vec3 jt{skel.joint[b][0], skel.joint[b][1], skel.joint[b][2]};
    Vec3 pt[2];
    for (int s = 0; s < 2; ++s) {
      int p = s == 0 ? a : b;
      Rot r;
      for (int e = 0; e < 9; ++e) r.m[e] = key.rot[p - 2][e] / 500.0f;
      Vec3 t{key.pos[p - 2][0] / 500.0f, key.pos[p - 2][1] / 500.0f, key.pos[p - 2][2] / 500.0f};
      pt[s] = Apply(r, jt) + t;
    }
    float d[3] = {pt[0].x - pt[1].x, pt[0].y - pt[1].y, pt[0].z - pt[1].z};
    for (int e = 0; e < 3; ++e) {
      float v = (key.pos[b - 2][e] / 500.0f + d[e]) * 500.0f;
      key.pos[b - 2][e] = static_cast<std::int16_t>(std::clamp(std::trunc(v), -32768.0f, 32767.0f));
    }
  }
}

}  // namespace mot
