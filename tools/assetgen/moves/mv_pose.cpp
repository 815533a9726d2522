#include "moves/mv_pose.h"

#include <algorithm>
#include <utility>

namespace mv {

namespace {

void apply(mot::Pose& p, std::initializer_list<Turn> turns) {
  for (const Turn& t : turns) {
    p.ang[t.part][0] = t.x;
    p.ang[t.part][1] = t.y;
    p.ang[t.part][2] = t.z;
  }
}

// Right limb, left limb.
constexpr int kSides[][2] = {{5, 11}, {6, 12}, {7, 13}, {8, 14}, {9, 15}, {10, 16}, {17, 18}, {19, 20}};

}  // namespace

mot::Pose Pose_Make(std::initializer_list<Turn> turns, fig::Vec3 root) {
  mot::Pose p;
  p.root = root;
  apply(p, turns);
  return p;
}

mot::Pose Pose_With(const mot::Pose& base, std::initializer_list<Turn> turns, fig::Vec3 root_shift) {
  mot::Pose p = base;
  p.root = p.root + root_shift;
  apply(p, turns);
  return p;
}

mot::Pose Pose_Plus(const mot::Pose& base, std::initializer_list<Turn> turns, fig::Vec3 root_shift) {
  mot::Pose p = base;
  p.root = p.root + root_shift;
  for (const Turn& t : turns) {
    p.ang[t.part][0] += t.x;
    p.ang[t.part][1] += t.y;
    p.ang[t.part][2] += t.z;
  }
  return p;
}

mot::Pose Pose_Mirror(const mot::Pose& in) {
  mot::Pose p = in;
  for (const auto& s : kSides)
    for (int k = 0; k < 3; ++k) std::swap(p.ang[s[0]][k], p.ang[s[1]][k]);
  for (auto& a : p.ang) {
    a[1] = -a[1];
    a[2] = -a[2];
  }
  p.root.x = -p.root.x;
  return p;
}

mot::Pose Pose_Scale(const mot::Pose& from, const mot::Pose& p, float k) {
  mot::Pose out;
  out.root = from.root + (p.root - from.root) * k;
  for (int part = 0; part < 22; ++part)
    for (int a = 0; a < 3; ++a) out.ang[part][a] = from.ang[part][a] + (p.ang[part][a] - from.ang[part][a]) * k;
  // Pushed further, a straight arm or leg would bend backward: hinges stop at straight.
  for (int elbow : {6, 12}) out.ang[elbow][0] = std::min(out.ang[elbow][0], 0.0f);
  for (int knee : {9, 15}) out.ang[knee][0] = std::max(out.ang[knee][0], 0.0f);
  return out;
}

mot::Pose Pose_Spun(const mot::Pose& in, float deg) {
  mot::Pose p = in;
  p.ang[4][1] += deg;
  return p;
}

}  // namespace mv
