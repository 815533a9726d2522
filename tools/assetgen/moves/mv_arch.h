// The kinds of move the characters' own moves are built from: each a set of poses on the
// fighting stance and a table of beats (how long each pose takes, what strikes, where the body
// travels). A character's move names its kind and the hits it deals; its style times and
// shapes it (see mv_roster.h).
#pragma once
#include <cstdint>
#include <vector>

#include "motion/mot_motion.h"

namespace mv {

enum class Arch : std::uint8_t {
  Rush,         // advancing flurry of punches, heavy straight to close
  Uppercut,     // crouch and rising uppercut that leaves the floor
  SpinKick,     // turning roundhouse with the rear leg
  Palms,        // two-handed push that sends out a projectile
  Throw,        // overhand throw of a held object
  Blades,       // cuts and a thrust with the weapon hand
  Grab,         // lunge with both hands open
  Charge,       // shoulder charge across the floor
  FlyingKick,   // leap with the lead leg out
  Sweep,        // dropping spin with the rear leg along the floor
  HeelDrop,     // lead leg raised high and brought down
  Straight,     // stepping heavy straight with the rear hand
  FlyingKnee,   // jumping knee
  Backfist,     // spinning backfist
  TwinKick,     // front kick, then a jumping high kick
  SuperRush,    // gathering pose, rush, launching uppercut, unblockable finish
  SuperSpin,    // gathering pose, two spinning kicks, crushing heel drop
  SuperGrab,    // gathering pose and a long seizing lunge
  SuperBlades,  // gathering pose, two rounds of cuts, unblockable thrust
  SuperPalms,   // gathering pose and a great two-handed blast
  LowPalm,      // stance-23 palm strike
  LowKick,      // stance-23 thrust kick
  VictoryFist,  // fist thrust up
  VictoryBow,   // fist in palm, bow
  VictoryArms,  // arms folded, chin up
  VictoryBlade, // weapon twirled and presented
  VictoryPoint, // a hand on the hip, the other pointing down at the beaten
  VictoryHips,  // both hands on the hips, head thrown back laughing
  VictoryStance,// a deep closing stance, fists chambered, then one slow punch
  Count
};

// Which body part a beat strikes with, resolved per character (mirror, weapon).
enum class Limb : std::uint8_t { None, LeadHand, RearHand, LeadFoot, RearFoot, RearKnee, Weapon, Body };

struct Beat {
  std::int8_t pose;  // index into the kind's poses; -1 the stance the move starts from
  std::int8_t frames;
  mot::Ease ease;
  Limb limb;
  std::int8_t hit;   // 0 none, 1 the move's main hit, 2 its finishing hit, 3 a footfall mark
  std::int16_t cue;  // sound cue on the beat's first frame, -1 none
  bool link;         // a chained move may start on these frames
  float forward, up; // whole-body travel over the beat, model units
  bool timed;        // false: not stretched by the character's speed (holds stay in step)
};

struct ArchDef {
  const char* name;
  std::vector<mot::Pose> poses;  // built on the stance at first use
  const Beat* beats;
  int beat_count;
  int entry;       // frames a linked start skips (the wind-up)
  bool low_stance; // starts and ends in the stance-23 idle
};

const ArchDef& Arch_Def(Arch a);
// The stance every own move starts from: the shared fighting stance, or the stance-23 idle.
const mot::Pose& Arch_Stance(bool low);

// Cue numbers the moves use.
constexpr int kCueWhoosh = 1, kCueHeavy = 2, kCueShout = 22, kCueKiai = 24, kCueFall = 14, kCueStep = 80;

}  // namespace mv
