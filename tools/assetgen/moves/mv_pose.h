// Helpers for writing a character's own poses: whole poses from a list of turns, variations of
// a pose, its mirror image and its exaggeration.
#pragma once
#include <initializer_list>

#include "motion/mot_pose.h"

namespace mv {

// One part's turn in degrees (see mot_pose.h for the senses).
struct Turn {
  int part;
  float x, y, z;
};

mot::Pose Pose_Make(std::initializer_list<Turn> turns, fig::Vec3 root = {});
// `base` with some parts turned differently and the hips shifted by `root_shift`.
mot::Pose Pose_With(const mot::Pose& base, std::initializer_list<Turn> turns, fig::Vec3 root_shift = {});
// `base` with some parts turned further by the given amounts.
mot::Pose Pose_Plus(const mot::Pose& base, std::initializer_list<Turn> turns, fig::Vec3 root_shift = {});
// The same pose done with the other side of the body: right and left limbs exchange their
// turns, and every turn about the vertical and the forward axis changes sense.
mot::Pose Pose_Mirror(const mot::Pose& p);
// `p` pushed further from (k > 1) or pulled back toward (k < 1) `from`; elbows and knees never
// pass straight.
mot::Pose Pose_Scale(const mot::Pose& from, const mot::Pose& p, float k);
// The pose with the whole body turned `deg` about the vertical (a spin), hips kept in place.
mot::Pose Pose_Spun(const mot::Pose& p, float deg);

}  // namespace mv
