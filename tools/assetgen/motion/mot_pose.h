// Poses and key frames. A pose gives every body part a turn relative to its parent (degrees) and
// the hips a shift; forward kinematics turns it into one rotation and translation per part, as a
// key frame stores them (rotation x 500, translation x 50, model units).
#pragma once
#include <cstdint>

#include "figures/fig_math.h"
#include "figures/fig_types.h"

namespace mot {

constexpr int kKeyParts = 20;  // parts 2..21, stored at index part - 2
constexpr int kRotLimit = 499; // packed files hold value + 500 in three digits: 0.998 at most

struct KeyFrame {
  std::int16_t rot[kKeyParts][9];
  std::int16_t pos[kKeyParts][3];
};
static_assert(sizeof(KeyFrame) == kKeyParts * 12 * 2, "a key frame is 12 values per part");

struct PartMatrix {
  fig::Rot r;
  fig::Vec3 t;  // model point p lands at p * r + t
};

// Turns per part, applied in the parent's frame: Z first, then X, then Y (see fig_math for the
// senses). Parts 17 and 18 follow 7 and 13; 21 follows 3.
struct Pose {
  fig::Vec3 root;         // shift of the hips from rest, model units
  float ang[22][3] = {};  // X, Y, Z per part number
};

// The parent of each part in the authoring tree (the hips are the root).
int Mot_Parent(int part);

// Joint positions in model units for each part number (skeleton file values x 10).
struct Joints {
  fig::Vec3 at[22];
};
void Mot_JointsOf(const fig::Skeleton& skel, Joints& out);

// Forward kinematics: every part's matrix for the pose on these joints.
void Mot_Solve(const Joints& joints, const Pose& pose, PartMatrix out[22]);
// Where a part's joint lands after posing.
fig::Vec3 Mot_PosedJoint(const Joints& joints, const PartMatrix m[22], int part);

// Quantising to a key frame (rotation entries clamped to +-0.998) and back.
void Mot_Pack(const PartMatrix in[22], KeyFrame& out);
void Mot_Unpack(const KeyFrame& in, PartMatrix out[22]);

// What the game's loader and skeleton fit do to a shared key frame before a character shows it:
// parts 17/18 copy 7/13, arm-free files collapse 19/20 onto the hands, then every child part is
// shifted so its joint meets its parent's on this character's skeleton.
void Mot_AsLoaded(KeyFrame& key, bool arm_free);
void Mot_Fit(KeyFrame& key, const fig::Skeleton& skel);

}  // namespace mot
