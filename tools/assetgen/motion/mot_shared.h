// The shared motions every character plays, authored on the reference skeleton.
#pragma once
#include "motion/mot_motion.h"

namespace mot {

int Mot_SharedCount();
const Motion& Mot_Shared(int index);
const Motion* Mot_SharedByAction(int action);  // nullptr when not authored yet

// What an attack is meant to reach: the band of root-to-root distances at which its strike
// lands (the defender's front is about 0.8 in front of its root once hit boxes are widened).
struct Reach {
  int action;
  float near, far;
};
int Mot_ReachCount();
const Reach& Mot_ReachOf(int index);

// The fighting stance every motion starts from and returns to.
const Pose& Mot_StancePose();

}  // namespace mot
