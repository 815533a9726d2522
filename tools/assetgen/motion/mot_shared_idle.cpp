// Standing and crouching about: breathing idles in both stances and the change between them,
// walks, dashes, turns, guards, crouching down and up, the crouching idle and crouching walks.
#include "motion/mot_shared_poses.h"

namespace mot::shared {
namespace {

// ---- poses --------------------------------------------------------------------------------
// A shoulder roll while settling back into the stance.
constexpr Pose kSettle = Plus(kStance, {{3, -3, -6, 0}, {2, 4, 6, 0}, {5, -8, 0, -6}, {11, 6, 0, 4}, {12, 10, 0, 0}});
constexpr Pose kSettleLow = Plus(kStance, {{9, 8, 0, 0}, {15, 8, 0, 0}, {8, -3, 0, 0}, {14, -3, 0, 0}, {3, 3, 0, 0}});

// Walking: the legs pass each other while the upper body keeps its guard. The hips swing from the
// stance's turn (left leading) through square (one foot under the body, the other passing it)
// to the mirrored turn (right leading); the chest turns against them, so the guard faces the same
// way throughout. Each foot lands where the stride at the fight's walking speed puts it.
constexpr Pose kWalkPassR = With(kStance, {{4, 0, 0, 0}, {3, 8, 40, 0}, {8, -33, -6, -1}, {9, 77, 0, 0},
                                           {10, -31, 0, 0}, {14, -11, -8, 0}, {15, 35, 0, 0}, {16, -24, 10, 0}});
constexpr Pose kWalkRight = With(kStance, {{4, 0, -28, 0}, {3, 8, 68, 0}, {8, -26, 8, 0}, {9, 28, 0, 0},
                                           {10, -3, -10, 0}, {14, 7, 6, -10}, {15, 40, 0, 0}, {16, 6, 0, 0}});
constexpr Pose kWalkPassL = With(kStance, {{4, 0, 0, 0}, {3, 8, 40, 0}, {8, -12, -6, -6}, {9, 34, 0, 0},
                                           {10, -22, 0, 0}, {14, -34, -8, -7}, {15, 77, 0, 0}, {16, -30, 10, 0}});

// The same in the low stance: deep and wide, so the steps are long and slow.
constexpr Pose kLowPassR = With(kLow, {{4, 6, 0, 0}, {3, 12, 50, 0}, {8, -38, -8, -15}, {9, 76, 0, 0},
                                       {10, -30, 0, 0}, {14, -23, -10, -7}, {15, 49, 0, 0}, {16, -33, 12, 0}});
constexpr Pose kLowRight = With(kLow, {{4, 6, -40, 0}, {3, 12, 90, 0}, {8, -47, 10, -8}, {9, 40, 0, 0},
                                       {10, 9, -12, 0}, {14, 10, 8, -27}, {15, 20, 0, 0}, {16, 6, 0, 0}});
constexpr Pose kLowPassL = With(kLow, {{4, 6, 0, 0}, {3, 12, 50, 0}, {8, -21, -8, -16}, {9, 41, 0, 0},
                                       {10, -25, 0, 0}, {14, -39, -10, -17}, {15, 76, 0, 0}, {16, -30, 12, 0}});

// And crouched: short quick steps with the knees kept deep.
constexpr Pose kDuckPassR = With(kCrouch, {{4, 20, 0, 0}, {3, 16, 40, 0}, {8, -75, -6, -3}, {9, 122, 0, 0},
                                           {10, -54, 0, 0}, {14, -66, -8, -1}, {15, 108, 0, 0}, {16, -62, 10, 0}});
constexpr Pose kDuckRight = With(kCrouch, {{4, 20, -28, 0}, {3, 16, 68, 0}, {8, -95, 8, -19}, {9, 115, 0, 0},
                                           {10, -17, -10, 0}, {14, -48, 6, -30}, {15, 107, 0, 0}, {16, -54, 0, 0}});
constexpr Pose kDuckPassL = With(kCrouch, {{4, 20, 0, 0}, {3, 16, 40, 0}, {8, -67, -6, -15}, {9, 107, 0, 0},
                                           {10, -59, 0, 0}, {14, -77, -8, -20}, {15, 121, 0, 0}, {16, -49, 10, 0}});

// The fight walks a fighter 0.24 units a frame toward the opponent and 0.2 away.
constexpr float kWalkAhead = 0.24f, kWalkAway = -0.2f;

// The in-betweens of a step: the swinging foot (thigh `leg`) leaves the floor with the knee
// folding, and comes down from above instead of scraping along it.
// Forward, the rear foot peels off toes last; backward, the front foot is picked up by the thigh.
constexpr Pose Lift(const Pose& from, const Pose& to, int leg, bool ahead) {
  return ahead ? Plus(Mix(from, to, 0.4f), {{leg + 1, 30, 0, 0}, {leg + 2, 10, 0, 0}})
               : Plus(Mix(from, to, 0.4f), {{leg, -16, 0, 0}, {leg + 1, 34, 0, 0}, {leg + 2, -10, 0, 0}});
}
constexpr Pose Reach(const Pose& from, const Pose& to, int leg, bool ahead) {
  return ahead ? Plus(Mix(from, to, 0.65f), {{leg, -12, 0, 0}, {leg + 1, 20, 0, 0}})
               : Plus(Mix(from, to, 0.65f), {{leg, 2, 0, 0}, {leg + 1, 24, 0, 0}, {leg + 2, 10, 0, 0}});
}

// One walk: its stance, the two passing poses (the named foot swinging past the other) and the
// stride with the right foot ahead, with the in-betweens of each step.
struct WalkPoses {
  Pose stance, pass_r, right, pass_l;
  Pose lift[4], reach[4];  // per step: right and left ahead, then left and right back
};
constexpr WalkPoses Steps(const Pose& stance, const Pose& pass_r, const Pose& right, const Pose& pass_l) {
  return {stance,
          pass_r,
          right,
          pass_l,
          {Lift(stance, pass_r, 8, true), Lift(right, pass_l, 14, true), Lift(stance, pass_l, 14, false),
           Lift(right, pass_r, 8, false)},
          {Reach(pass_r, right, 8, true), Reach(pass_l, stance, 14, true), Reach(pass_l, right, 14, false),
           Reach(pass_r, stance, 8, false)}};
}

// A walk cycle from the stance and back: each foot stays planted while the other passes it and
// lands. Forward, the right foot passes first; backward, the left (lead) foot steps back first.
// `f` gives each step's frames: the body covers two strides in their sum at the walking speed.
constexpr Motion Walk(const char* name, int action, const WalkPoses& w, const int (&f)[2], bool ahead) {
  const int s = ahead ? 0 : 2;
  const Pose* pass[2] = {ahead ? &w.pass_r : &w.pass_l, ahead ? &w.pass_l : &w.pass_r};
  const int hold[2] = {ahead ? 16 : 10, ahead ? 10 : 16};
  const Pose* ends[2] = {&w.right, &w.stance};
  Motion m = M(name, action, &w.stance, {});
  for (int step = 0; step < 2; ++step) {
    const int swing = f[step] / 2, up = swing * 2 / 5, on = swing - up;  // lifting, then passing
    const int reach = (f[step] - swing) * 3 / 5, land = f[step] - swing - reach;  // reaching, landing
    Phase ph[4] = {P(&w.lift[s + step], up, Ease::Linear), P(pass[step], on, Ease::Linear),
                   P(&w.reach[s + step], reach, Ease::Linear), Cue(P(ends[step], land, Ease::Linear), kCueStep)};
    for (Phase& p : ph) m.phases[m.phase_count++] = Plant(p, hold[step]);
  }
  m.pace = ahead ? kWalkAhead : kWalkAway;
  return m;
}

constexpr WalkPoses kWalkUp = Steps(kStance, kWalkPassR, kWalkRight, kWalkPassL);
constexpr WalkPoses kWalkLow = Steps(kLow, kLowPassR, kLowRight, kLowPassL);
constexpr WalkPoses kWalkDuck = Steps(kCrouch, kDuckPassR, kDuckRight, kDuckPassL);

// Dashes: a quick skip forward that keeps low (the rear foot drives, a short hop, the lead foot
// lands and the rear foot is drawn up), and a hop back.
constexpr Pose kDashLoad = Plus(kStance, {{4, 8, 0, 0}, {3, 6, 0, 0}, {9, 24, 0, 0}, {15, 24, 0, 0}, {8, -10, 0, 0},
                                          {14, -10, 0, 0}});
constexpr Pose kDashDrive = With(kStance, {{4, 12, 24, 0},   {3, 14, 10, 0}, {2, -18, -34, 0},
                                           {14, -56, -8, -4}, {15, 64, 0, 0}, {16, -10, 10, 0},
                                           {8, 24, -6, 6},    {9, 14, 0, 0},  {10, 30, 0, 0}});
constexpr Pose kDashLand = With(kStance, {{4, 10, 24, 0},   {3, 12, 10, 0}, {2, -14, -34, 0},
                                          {14, -44, -8, -4}, {15, 40, 0, 0}, {16, -8, 10, 0},
                                          {8, 26, -6, 6},    {9, 48, 0, 0},  {10, 14, 0, 0}});
constexpr Pose kDashBack = With(kStance, {{4, -8, 28, 0},   {3, -6, 12, 0},  {2, 6, -36, 0},
                                          {14, -40, -8, -4}, {15, 50, 0, 0}, {8, 20, -6, 6}, {9, 60, 0, 0},
                                          {11, -30, 0, -30}, {5, -10, 0, 40}});

// Turning round on the ball of the lead foot: the rear foot is lifted and swung round to land
// behind again, facing the other way.
constexpr Pose kTurnMid = Plus(kStance, {{4, 0, 90, 0}, {8, -30, 0, 0}, {9, 50, 0, 0}, {15, 6, 0, 0}, {3, 6, 0, 0}});
constexpr Pose kTurned = Plus(kStance, {{4, 0, 180, 0}});
constexpr Pose kTurnLand = Plus(Mix(kTurnMid, kTurned, 0.9f), {{8, -8, 0, 0}, {9, 16, 0, 0}});
constexpr Pose kCrouchTurnMid = Plus(kCrouch, {{4, 0, 90, 0}, {8, -10, 0, 0}, {9, 12, 0, 0}, {3, 4, 0, 0}});
constexpr Pose kCrouchTurned = Plus(kCrouch, {{4, 0, 180, 0}});

constexpr fig::Vec3 kDashHop{0, 0, 4.2f}, kDashAway{0, 0, -4.4f};

// ---- motions ------------------------------------------------------------------------------
constexpr Motion kMotions[] = {
    M("idle", 0, &kStance, {P(&kStanceIn, 28), P(&kStance, 20), P(&kStanceOut, 28), P(&kStance, 20)}),
    M("settle", 22, &kStance, {P(&kSettle, 12), P(&kSettleLow, 10), P(&kStanceIn, 10), P(&kStance, 10)}),
    M("idle_low", 23, &kLow, {P(&kLowIn, 30), P(&kLow, 22), P(&kLowOut, 30), P(&kLow, 22)}),
    M("to_low_stance", 24, &kStance,
      {P(&kSettleLow, 5, Ease::Out), P(&kLowOut, 9, Ease::InOut), P(&kLow, 10, Ease::InOut)}),
    Walk("walk_forward", 1, kWalkUp, {15, 15}, true),
    Walk("walk_back", 2, kWalkUp, {18, 18}, false),
    Walk("walk_forward_low", 25, kWalkLow, {19, 19}, true),
    Walk("walk_back_low", 26, kWalkLow, {23, 23}, false),
    M("dash_forward", 3, &kStance,
      {P(&kDashLoad, 3, Ease::Out), Plant(P(&kDashDrive, 4, Ease::Out), 10),
       Arc(P(&kDashLand, 5, Ease::InOut, kDashHop), 0.3f), Cue(Plant(P(&kStance, 6, Ease::InOut), 16), kCueStep),
       P(&kStance, 2, Ease::Linear)}),
    M("dash_back", 4, &kStance,
      {P(&kDashLoad, 3, Ease::Out), Arc(P(&kDashBack, 10, Ease::Out, kDashAway), 0.55f),
       Cue(P(&kStance, 7, Ease::InOut), kCueLand)}),
    M("turn", 7, &kStance,
      {Plant(P(&kTurnMid, 4, Ease::In), 16), Plant(P(&kTurnLand, 4, Ease::Out), 16),
       Cue(Plant(P(&kTurned, 2, Ease::Linear), 16), kCueStep)}),
    M("turn_crouching", 36, &kCrouch,
      {Plant(P(&kCrouchTurnMid, 5, Ease::In), 16), Plant(P(&kCrouchTurned, 5, Ease::Out), 16)}),
    // Held on its fifth frame while the guard lasts.
    M("guard", 8, &kStance, {P(&kGuard, 4, Ease::Out), P(&kGuard, 8, Ease::Linear), P(&kStance, 6)}),
    M("guard_crouching", 35, &kCrouch,
      {P(&kCrouchGuard, 4, Ease::Out), P(&kCrouchGuard, 8, Ease::Linear), P(&kCrouch, 6)}),
    M("crouch_down", 30, &kStance, {P(&kCrouch, 8, Ease::Out)}),
    M("crouch_up", 31, &kCrouch, {P(&kStance, 8)}),
    M("crouch_hold", 32, &kCrouch, {P(&kCrouchIn, 16), P(&kCrouch, 16)}),
    Walk("crouch_walk_forward", 33, kWalkDuck, {10, 11}, true),
    Walk("crouch_walk_back", 34, kWalkDuck, {12, 13}, false),
};

}  // namespace

std::span<const Motion> Mot_StandMotions() { return kMotions; }

}  // namespace mot::shared
