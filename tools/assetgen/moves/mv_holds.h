// Holds: the attacker's hold (340..409) and the defender's held reaction (410..479) are one
// choreography seen from both sides. Both halves of a script take the same frames, so whichever
// attacker seizes whichever defender, the two bodies stay together until the release.
#pragma once
#include <cstdint>

#include "motion/mot_motion.h"

namespace mv {

enum class HoldScript : std::uint8_t {
  Knees,  // clinch, three knees, shove down
  Slam,   // lift overhead and slam down in front
  Over,   // throw over the shoulder: the defender lands behind and turns round
  Spin,   // swing round and fling face down: the defender turns round
  Toss,   // sweep the legs and throw down backwards
  Count
};

// The script a hold action plays (its held reaction is the action + 70).
HoldScript Hold_ScriptOf(int hold_action);
const char* Hold_Name(HoldScript s);

// One beat of a script: each side's pose, the defender's travel and marks.
struct HoldBeat {
  std::int8_t attacker_pose;  // -1 the fighting stance
  std::int8_t victim_pose;
  std::int8_t frames;
  mot::Ease ease;
  std::int16_t attacker_cue;  // -1 none
  std::int16_t victim_cue;
  bool floor;                 // the defender's body strikes the floor on this beat's last frame
  bool link;                  // the attacker may chain a follow-up on this beat
  float victim_forward, victim_up;
};

struct HoldDef {
  const HoldBeat* beats;
  int beat_count;
};
const HoldDef& Hold_Def(HoldScript s);
// The poses of both sides, built on the fighting stance at first use.
const mot::Pose& Hold_AttackerPose(HoldScript s, int index);
const mot::Pose& Hold_VictimPose(HoldScript s, int index);
int Hold_Length(HoldScript s);

}  // namespace mv
