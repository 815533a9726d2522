// The hold scripts. The defender faces the attacker, so its forward travel brings it toward the
// attacker; the attacker's hands meet the defender's chest at the distance a grab connects.
#include "moves/mv_holds.h"

#include <array>
#include <vector>

#include "moves/mv_arch.h"
#include "moves/mv_pose.h"

namespace mv {
namespace {

using mot::Ease;
using mot::Pose;

constexpr HoldBeat H(int a, int v, int frames, Ease ease, int a_cue = -1, int v_cue = -1, bool floor = false,
                     bool link = false, float fwd = 0, float up = 0) {
  return HoldBeat{static_cast<std::int8_t>(a), static_cast<std::int8_t>(v), static_cast<std::int8_t>(frames),
                  ease, static_cast<std::int16_t>(a_cue), static_cast<std::int16_t>(v_cue), floor, link, fwd, up};
}

// ---- the defender's poses -------------------------------------------------------------------
Pose Seized() {
  return Pose_Make({{4, 0, 0, 0}, {3, 15, 0, 0}, {2, 10, 0, 0}, {5, -70, 20, 10}, {6, -60, 0, 0}, {11, -70, -20, -10},
                    {12, -60, 0, 0}, {14, -20, 0, -4}, {15, 25, 0, 0}, {8, 0, 0, 6}, {9, 20, 0, 0}});
}
Pose Doubled() {
  return Pose_Make({{4, 10, 0, 0}, {3, 45, 0, 0}, {2, 20, 0, 0}, {5, -30, 0, 10}, {6, -30, 0, 0}, {11, -30, 0, -10},
                    {12, -30, 0, 0}, {14, -20, 0, -4}, {15, 30, 0, 0}, {8, -10, 0, 6}, {9, 30, 0, 0}});
}
Pose Jolted() { return Pose_With(Doubled(), {{3, 60, 0, 0}, {2, 35, 0, 0}, {5, -10, 0, 20}, {11, -10, 0, -20}}); }
Pose FallingBack() {
  return Pose_Make({{4, -45, 10, 0}, {3, -20, 0, 0}, {2, -25, 0, 0}, {11, -120, 0, -40}, {12, -30, 0, 0},
                    {5, -120, 0, 40}, {6, -30, 0, 0}, {14, -50, 0, -6}, {15, 50, 0, 0}, {8, -30, 0, 6}, {9, 30, 0, 0}});
}
// On the back, head away from the attacker.
Pose OnBack() {
  return Pose_Make({{4, -90, 0, 0}, {3, 0, 0, 0}, {2, -10, 20, 0}, {11, -150, 0, -30}, {12, -20, 0, 0},
                    {5, -170, 0, 40}, {6, -10, 0, 0}, {14, -10, 0, -8}, {15, 14, 0, 0}, {16, 40, 0, 0},
                    {8, -4, 0, 10}, {9, 6, 0, 0}, {10, 40, 0, 0}});
}
// On the front, head toward where the attacker stood.
Pose OnFront() {
  return Pose_Make({{4, 90, 0, 0}, {3, 0, 0, 0}, {2, -30, 10, 0}, {11, -150, 0, -20}, {12, -40, 0, 0},
                    {5, -150, 0, 20}, {6, -40, 0, 0}, {14, 0, 0, -6}, {15, 20, 0, 0}, {8, 0, 0, 6}, {9, 30, 0, 0}});
}
Pose Tripped() {
  return Pose_Make({{4, -25, 0, 0}, {3, -15, 0, 0}, {2, -20, 0, 0}, {5, -120, 0, 40}, {6, -40, 0, 0},
                    {11, -120, 0, -40}, {12, -40, 0, 0}, {14, -50, 0, -4}, {15, 20, 0, 0}, {8, 10, 0, 6},
                    {9, 30, 0, 0}});
}
Pose Swung() { return Pose_With(Seized(), {{4, -10, 60, 0}, {3, -10, 0, 0}, {14, -40, 0, -20}, {15, 40, 0, 0}}); }
Pose Flung() {
  return Pose_Make({{4, 80, 0, 0}, {2, -30, 0, 0}, {5, -160, 0, 30}, {6, -20, 0, 0}, {11, -160, 0, -30},
                    {12, -20, 0, 0}, {14, 10, 0, -10}, {8, 10, 0, 10}, {9, 40, 0, 0}, {15, 40, 0, 0}});
}
Pose Upended() { return Pose_With(FallingBack(), {{4, -180, 0, 0}}); }

// ---- the attacker's poses -------------------------------------------------------------------
Pose Clinch(const Pose& s) {
  return Pose_With(s, {{4, 0, 10, 0}, {3, 15, 0, 0}, {2, -5, -10, 0}, {5, -95, 30, 0}, {6, -40, 0, 0},
                       {11, -95, -30, 0}, {12, -40, 0, 0}});
}
Pose Knee(const Pose& s) {
  return Pose_With(Clinch(s), {{4, -10, 10, 0}, {3, 25, 0, 0}, {8, -100, 0, 0}, {9, 120, 0, 0}, {10, 20, 0, 0}});
}
Pose Shove(const Pose& s) {
  return Pose_With(s, {{4, 5, 0, 0}, {3, 20, 0, 0}, {5, -90, 20, 0}, {6, 0, 0, 0}, {11, -90, -20, 0}, {12, 0, 0, 0},
                       {14, -50, -8, -4}, {15, 55, 0, 0}, {8, 30, -6, 6}, {9, 10, 0, 0}});
}
Pose LowClinch(const Pose& s) {
  return Pose_With(Clinch(s), {{3, 30, 0, 0}, {5, -70, 30, 0}, {11, -70, -30, 0}, {15, 80, 0, 0}, {9, 80, 0, 0}},
                   {0, -1.0f, 0});
}
Pose Lift(const Pose& s) {
  return Pose_With(s, {{3, -4, 0, 0}, {2, -10, 0, 0}, {5, -170, 10, 10}, {6, -20, 0, 0}, {11, -170, -10, -10},
                       {12, -20, 0, 0}, {15, 15, 0, 0}, {9, 15, 0, 0}});
}
Pose Slam(const Pose& s) {
  return Pose_With(s, {{4, 20, 0, 0}, {3, 50, 0, 0}, {5, -60, 20, 0}, {6, -10, 0, 0}, {11, -60, -20, 0},
                       {12, -10, 0, 0}, {15, 60, 0, 0}, {9, 60, 0, 0}},
                   {0, -0.8f, 0});
}
Pose Shoulder(const Pose& s) {
  // Turned under the defender, upright, arms up to hold it across the shoulders.
  return Pose_Spun(Pose_With(s, {{3, 0, 0, 0}, {2, 10, 0, 0}, {5, -170, 0, 15}, {6, -30, 0, 0}, {11, -170, 0, -15},
                                 {12, -30, 0, 0}, {15, 50, 0, 0}, {9, 50, 0, 0}}),
                   -180);
}
Pose Sweep(const Pose& s) {
  return Pose_With(Clinch(s), {{4, 0, 40, 0}, {8, -60, 0, -20}, {9, 10, 0, 0}, {10, 20, 0, 0}});
}

struct PoseSet {
  std::vector<Pose> attacker, victim;
};

PoseSet Make_Set(HoldScript script) {
  const Pose& s = Arch_Stance(false);
  switch (script) {
    case HoldScript::Knees:
      return {{Clinch(s), Knee(s), Shove(s)}, {Seized(), Doubled(), Jolted(), FallingBack(), OnBack()}};
    case HoldScript::Slam:
      return {{LowClinch(s), Lift(s), Slam(s)}, {Seized(), OnBack(), OnBack()}};
    case HoldScript::Over:
      return {{Clinch(s), Shoulder(s), Pose_Spun(Slam(s), -180), Pose_Spun(s, -360)},
              {Seized(), Upended(), Pose_Spun(OnBack(), 180)}};
    case HoldScript::Spin:
      // The swing hauls the defender round in front of the attacker's hands; the turn that follows
      // comes all the way round to shove it off.
      return {{Clinch(s), Pose_Spun(Clinch(s), -40), Pose_Spun(Shove(s), -360), Pose_Spun(s, -360)},
              {Seized(), Swung(), Flung(), OnFront()}};
    case HoldScript::Toss:
    case HoldScript::Count:
      break;
  }
  return {{Clinch(s), Sweep(s), Slam(s)}, {Seized(), Tripped(), FallingBack(), OnBack()}};
}

// ---- beats ----------------------------------------------------------------------------------
constexpr HoldBeat kKnees[] = {
    H(0, 0, 6, Ease::Out, kCueShout, -1, false, false, 0.35f),
    H(1, 2, 5, Ease::Snap, kCueHeavy, 40), H(0, 1, 5, Ease::InOut),
    H(1, 2, 5, Ease::Snap, kCueHeavy, 41), H(0, 1, 5, Ease::InOut, -1, -1, false, true),
    H(1, 2, 5, Ease::Snap, kCueHeavy, 42), H(0, 1, 4, Ease::InOut),
    H(2, 3, 6, Ease::Snap, kCueShout, -1, false, false, -2.5f),
    H(2, 4, 8, Ease::In, -1, kCueFall, true, false, -1.0f),
    H(-1, 4, 16, Ease::InOut),
};
// How high the slam lifts the defender: lying across the attacker's hands above its head, not
// through its chest.
constexpr float kOverhead = 9.5f;
constexpr HoldBeat kSlam[] = {
    H(0, 0, 8, Ease::Out, kCueShout, -1, false, false, 0.8f),
    H(1, 1, 12, Ease::InOut, -1, 40, false, false, 2.6f, kOverhead),
    H(1, 1, 8, Ease::Linear, -1, -1, false, true),
    H(2, 2, 6, Ease::In, kCueHeavy, kCueFall, true, false, -2.4f, -kOverhead),
    H(2, 2, 10, Ease::Linear),
    H(-1, 2, 20, Ease::InOut),
};
constexpr HoldBeat kOver[] = {
    H(0, 0, 8, Ease::Out, kCueShout, -1, false, false, 0.8f),
    H(1, 0, 8, Ease::InOut, -1, 40, false, false, 0.5f),
    H(1, 1, 8, Ease::InOut, kCueHeavy, -1, false, true, 2.7f, kOverhead),  // up over the raised hands,
    H(2, 2, 8, Ease::In, -1, kCueFall, true, false, 3.0f, -kOverhead),     // then over and down behind
    H(3, 2, 12, Ease::InOut),
    H(3, 2, 20, Ease::Linear),
};
constexpr HoldBeat kSpin[] = {
    H(0, 0, 6, Ease::Out, kCueShout, -1, false, false, 0.8f),
    H(1, 1, 10, Ease::InOut, -1, 40, false, true),
    H(2, 2, 8, Ease::Snap, kCueHeavy, -1, false, false, -4.5f, 1.5f),  // flung clear of the feet
    H(2, 3, 6, Ease::In, -1, kCueFall, true, false, 0, -1.5f),
    H(3, 3, 12, Ease::InOut),
    H(3, 3, 22, Ease::Linear),
};
constexpr HoldBeat kToss[] = {
    H(0, 0, 6, Ease::Out, kCueShout, -1, false, false, 0.8f),
    H(1, 1, 8, Ease::Snap, kCueWhoosh, 40, false, true),
    H(2, 2, 8, Ease::In, kCueHeavy, -1, false, false, -1.5f),
    H(2, 3, 6, Ease::In, -1, kCueFall, true, false, -0.5f),
    H(-1, 3, 36, Ease::InOut),
};

template <std::size_t N>
constexpr HoldDef Def(const HoldBeat (&b)[N]) {
  return HoldDef{b, static_cast<int>(N)};
}
// clang-format off
constexpr HoldDef kDefs[] = {
    Def(kKnees),  // Knees
    Def(kSlam),   // Slam
    Def(kOver),   // Over
    Def(kSpin),   // Spin
    Def(kToss),   // Toss
};
// Hold action and its script.
constexpr struct { int hold; HoldScript script; } kScriptOf[] = {
    {340, HoldScript::Knees},  // grab
    {341, HoldScript::Over},   // super grab
    {342, HoldScript::Slam},   // second super grab
    {343, HoldScript::Toss},   // seizing special
    {344, HoldScript::Knees},  // seizing super
    {348, HoldScript::Slam},   // rush into a hold
    {349, HoldScript::Spin},   // grab
    {350, HoldScript::Spin},   // second grab
    {351, HoldScript::Over},   // super grab
    {354, HoldScript::Knees},  // seizing super
    {355, HoldScript::Knees},  // grab
    {357, HoldScript::Toss},   // seizing special
    {360, HoldScript::Knees},  // grab
    {361, HoldScript::Toss},   // command throw, first stage
    {362, HoldScript::Over},   // command throw, second stage
    {363, HoldScript::Spin},   // command throw, last stage
    {364, HoldScript::Knees},  // grab
    {365, HoldScript::Toss},   // second command throw
    {367, HoldScript::Slam},   // super grab
    {369, HoldScript::Slam},   // super grab
    {370, HoldScript::Slam},   // second super grab
    {371, HoldScript::Toss},   // command throw
};
// clang-format on

}  // namespace

HoldScript Hold_ScriptOf(int hold_action) {
  for (const auto& row : kScriptOf)
    if (row.hold == hold_action) return row.script;
  return HoldScript::Knees;
}

const char* Hold_Name(HoldScript s) {
  static constexpr const char* kNames[] = {"knees", "slam", "over", "spin", "toss"};
  return kNames[static_cast<int>(s) % 5];
}

const HoldDef& Hold_Def(HoldScript s) { return kDefs[static_cast<int>(s) % 5]; }

namespace {
const PoseSet& Set_Of(HoldScript s) {
  static const std::array<PoseSet, 5> sets = {Make_Set(HoldScript::Knees), Make_Set(HoldScript::Slam),
                                              Make_Set(HoldScript::Over), Make_Set(HoldScript::Spin),
                                              Make_Set(HoldScript::Toss)};
  return sets[static_cast<int>(s) % 5];
}
}  // namespace

const mot::Pose& Hold_AttackerPose(HoldScript s, int index) {
  const PoseSet& set = Set_Of(s);
  if (index < 0 || index >= static_cast<int>(set.attacker.size())) return Arch_Stance(false);
  return set.attacker[index];
}

const mot::Pose& Hold_VictimPose(HoldScript s, int index) {
  const PoseSet& set = Set_Of(s);
  return set.victim[index < 0 ? 0 : index % static_cast<int>(set.victim.size())];
}

int Hold_Length(HoldScript s) {
  const HoldDef& d = Hold_Def(s);
  int n = 0;
  for (int i = 0; i < d.beat_count; ++i) n += d.beats[i].frames;
  return n;
}

}  // namespace mv
