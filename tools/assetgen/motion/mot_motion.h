// Motions: a start pose and a list of phases, each easing to a new pose over a number of game
// frames. Strikes, sound cues and chain links are marks on phases, so retiming a phase keeps
// them where they belong. Baking gives one key frame and one row of the frame tables per game
// frame.
#pragma once
#include <cstdint>
#include <span>
#include <vector>

#include "motion/mot_pose.h"

namespace mot {

enum class Ease : std::uint8_t { Linear, In, Out, InOut, Snap };

// Marks on a phase. A strike names the striking part and the hit attribute for every frame of
// the phase; a cue plays a sound on the phase's first frame; a link lets the computer chain its
// next move on the phase's frames. An impact marks the frame the body hits the floor (part 2,
// hit 5); a footfall marks the frame a foot lands without striking (no part, hit 1..3).
struct Phase {
  const Pose* pose = nullptr;  // reached on the phase's last frame
  int frames = 1;
  Ease ease = Ease::InOut;
  int strike_part = 0;
  int hit = 0;  // class x 100 + kind
  int cue = -1;
  bool link = false;
  fig::Vec3 travel;  // whole-body travel over the phase, model units (the frame offsets)
  float arc = 0;     // the body rises this high at the phase's middle and comes back down
  bool impact = false;  // the body hits the floor on the phase's last frame
  int footfall = 0;     // a foot lands on the phase's last frame: frame_hit 1..3 (the dust size)
  int plant = 0;        // 10 or 16: that foot stays where it stood, and the body moves around it
  float ground = 1;     // 1 on the floor; 0 off it (the fight lifts the body, the hips keep their height)
};

constexpr int kImpactPart = 2, kImpactHit = 5;  // the body hitting the floor

constexpr int kMaxPhases = 16;
struct Motion {
  const char* name;
  int action;               // the action number the fight starts it with
  const Pose* start;
  Phase phases[kMaxPhases];
  int phase_count;
  bool grounded = true;  // keep the lower foot on the floor (the hips drop as the knees bend)
  float lift = 0;        // raises every frame (for actions the fight draws without the standing offset)
  float pace = 0;        // units a frame the fight itself carries the body forward (+z) while this plays:
                         // a planted foot slides back by as much, so it stays put on the floor
};

struct BakedFrame {
  KeyFrame key;
  fig::Vec3 offset;   // whole-body offset of the frame, model units
  std::int16_t part;  // striking part, 1 for a link frame, -1 - cue for a sound, else 0
  std::int16_t hit;
};

// Eased fraction 0..1 of a phase at step i of n (i = 1..n).
float Mot_Ease(Ease e, int i, int n);
// Blends two poses: a + (b - a) * f for every angle and the root.
void Mot_Blend(const Pose& a, const Pose& b, float f, Pose& out);
// The rest foot's lowest point on these joints; grounded poses keep the lower sole there.
float Mot_SoleDrop(const Joints& joints, const PartMatrix m[22]);

// A character's own body as the floor sees it: its mesh points (model space, by part) and the
// height of the lowest of them while it stands. Baking on it sets the lowest point of every
// grounded frame on that floor, so a body lying down rests on its own flesh, not on estimates.
struct MeshPoint {
  int part;
  fig::Vec3 at;
};
struct Floor {
  std::span<const MeshPoint> mesh;
  float rest = 0;
};
float Mot_MeshLow(std::span<const MeshPoint> mesh, const PartMatrix m[22]);

// Bakes the motion on the given joints (the reference skeleton for shared motions), on the
// body's own floor when one is given.
void Mot_Bake(const Motion& motion, const Joints& joints, std::vector<BakedFrame>& out,
              const Floor* floor = nullptr);
int Mot_Length(const Motion& motion);

}  // namespace mot
