// Building blocks of the shared motion catalogue: poses written as turns on top of other poses,
// phases with their marks, and motions as one table row each. Everything here is constexpr, so
// the catalogue's tables are built at compile time and never depend on start-up order.
//
// Angles in degrees (see mot_pose.h for the senses: X < 0 swings a hanging limb forward, X > 0
// bends a knee or leans the trunk forward, Y > 0 turns the front toward the figure's right,
// Z > 0 lifts a right-side limb outward). The figure faces +z; its left side leads.
#pragma once
#include <initializer_list>
#include <span>

#include "motion/mot_motion.h"
#include "motion/mot_shared.h"

namespace mot::shared {

struct Turn {
  int part;
  float x, y, z;
};

constexpr Pose Make(std::initializer_list<Turn> turns, fig::Vec3 root = {}) {
  Pose p;
  p.root = root;
  for (const Turn& t : turns) {
    p.ang[t.part][0] = t.x;
    p.ang[t.part][1] = t.y;
    p.ang[t.part][2] = t.z;
  }
  return p;
}

// Copies `base`, overrides some turns and shifts the hips.
constexpr Pose With(const Pose& base, std::initializer_list<Turn> turns, fig::Vec3 shift = {}) {
  Pose p = base;
  p.root.x += shift.x;
  p.root.y += shift.y;
  p.root.z += shift.z;
  for (const Turn& t : turns) {
    p.ang[t.part][0] = t.x;
    p.ang[t.part][1] = t.y;
    p.ang[t.part][2] = t.z;
  }
  return p;
}

// Adds turns to `base` instead of replacing them.
constexpr Pose Plus(const Pose& base, std::initializer_list<Turn> turns, fig::Vec3 shift = {}) {
  Pose p = base;
  p.root.x += shift.x;
  p.root.y += shift.y;
  p.root.z += shift.z;
  for (const Turn& t : turns) {
    p.ang[t.part][0] += t.x;
    p.ang[t.part][1] += t.y;
    p.ang[t.part][2] += t.z;
  }
  return p;
}

// The pose a fraction f of the way from a to b.
constexpr Pose Mix(const Pose& a, const Pose& b, float f) {
  Pose p;
  p.root.x = a.root.x + (b.root.x - a.root.x) * f;
  p.root.y = a.root.y + (b.root.y - a.root.y) * f;
  p.root.z = a.root.z + (b.root.z - a.root.z) * f;
  for (int q = 0; q < 22; ++q)
    for (int k = 0; k < 3; ++k) p.ang[q][k] = a.ang[q][k] + (b.ang[q][k] - a.ang[q][k]) * f;
  return p;
}

// ---- phases ---------------------------------------------------------------------------------
constexpr Phase P(const Pose* pose, int frames, Ease ease = Ease::InOut, fig::Vec3 travel = {}) {
  Phase ph;
  ph.pose = pose;
  ph.frames = frames;
  ph.ease = ease;
  ph.travel = travel;
  return ph;
}
// A striking phase: `part` strikes with hit attribute `hit` on every frame of it.
constexpr Phase Hit(const Pose* pose, int frames, int part, int hit, fig::Vec3 travel = {}) {
  Phase ph = P(pose, frames, Ease::Snap, travel);
  ph.strike_part = part;
  ph.hit = hit;
  return ph;
}
constexpr Phase Cue(Phase ph, int cue) {
  ph.cue = cue;
  return ph;
}
constexpr Phase Link(Phase ph) {
  ph.link = true;
  return ph;
}
constexpr Phase Arc(Phase ph, float height) {
  ph.arc = height;
  return ph;
}
constexpr Phase Impact(Phase ph) {
  ph.impact = true;
  return ph;
}
// The foot `part` (10 or 16) stays planted through the phase; the body turns and moves around it.
constexpr Phase Plant(Phase ph, int part) {
  ph.plant = part;
  return ph;
}
// Off the floor by the phase's end: the fight carries the body, so the hips keep their height
// while the legs tuck or reach.
constexpr Phase Air(Phase ph) {
  ph.ground = 0;
  return ph;
}
constexpr Phase Foot(Phase ph, int size) {
  ph.footfall = size;
  return ph;
}

// One catalogue row.
constexpr Motion M(const char* name, int action, const Pose* start, std::initializer_list<Phase> phases,
                   bool grounded = true) {
  Motion m{name, action, start, {}, 0, grounded};
  for (const Phase& ph : phases)
    if (m.phase_count < kMaxPhases) m.phases[m.phase_count++] = ph;
  return m;
}

// Sound cues (frame_part -1 - cue): swings, steps, falls, the character's shout.
constexpr int kCueLight = 0, kCueSwing = 1, kCueHeavy = 2, kCueStep = 3, kCueLand = 4, kCueFall = 5;
constexpr int kCueShout = 202, kCueSlam = 203;

// Hit attributes (class x 100 + kind).
constexpr int kHitOpen = 100, kHitRocking = 6, kHitJab = 1, kHitHigh = 2, kHitLow = 3, kHitMid = 4, kHitMid7 = 7, kHitHigh7 = 8, kHitSweep = 9,
              kHitHeavy = 10, kHitHighHeavy = 11, kHitLowHeavy = 12, kHitLowHalf = 500 + kHitLowHeavy, kHitLaunch = 16, kHitLauncher = 20, kHitUnblockable = 30;
// A throw's slam: needs no contact, cannot be guarded, and hurts without breaking the pair.
constexpr int kHitThrow = 431, kThrowPart = 6;

// The parts of the catalogue, one per file.
std::span<const Motion> Mot_StandMotions();     // idles, walks, dashes, turns, guards, crouching
std::span<const Motion> Mot_AirFloorMotions();  // jumps, lying, rising, dodges, charge, victory
std::span<const Motion> Mot_AttackMotions();    // every shared attack
std::span<const Reach> Mot_AttackReaches();
std::span<const Motion> Mot_ReactionMotions();  // hit reactions, falls, the beaten pose
std::span<const Motion> Mot_ThrowMotions();     // throws, the thrown, escapes, the counter hold

}  // namespace mot::shared
