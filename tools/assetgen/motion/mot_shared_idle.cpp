// Standing and crouching about: breathing idles in both stances and the change between them,
// walks, dashes, turns, guards, crouching down and up, the crouching idle and crouching walks.
#include "motion/mot_shared_poses.h"

namespace mot::shared {
namespace {

// ---- poses --------------------------------------------------------------------------------
// A shoulder roll while settling back into the stance.
constexpr Pose kSettle = Plus(kStance, {{3, -3, -6, 0}, {2, 4, 6, 0}, {5, -8, 0, -6}, {11, 6, 0, 4}, {12, 10, 0, 0}});
constexpr Pose kSettleLow = Plus(kStance, {{9, 8, 0, 0}, {15, 8, 0, 0}, {8, -3, 0, 0}, {14, -3, 0, 0}, {3, 3, 0, 0}});

// Walking in the stance: lead foot reaches, rear foot follows.
constexpr Pose kStepLead = With(kStance, {{14, -46, -8, -4}, {15, 40, 0, 0}, {16, -10, 10, 0},
                                          {8, 18, -6, 6},    {9, 20, 0, 0},  {10, -12, 0, 0}, {3, 10, 12, 0}});
constexpr Pose kStepLeadUp = With(kStance, {{14, -40, -8, -4}, {15, 62, 0, 0}, {16, 6, 10, 0}, {3, 9, 12, 0}});
constexpr Pose kStepRear = With(kStance, {{14, -18, -8, -4}, {15, 18, 0, 0}, {16, -2, 10, 0},
                                          {8, -10, -6, 6},   {9, 58, 0, 0},  {10, -10, 0, 0}, {3, 7, 12, 0}});
constexpr Pose kStepBack = With(kStance, {{8, 30, -6, 6}, {9, 40, 0, 0}, {10, -30, 0, 0},
                                          {14, -10, -8, -4}, {15, 22, 0, 0}, {3, 6, 12, 0}});
constexpr Pose kStepBackLift = With(kStance, {{8, 4, -6, 6}, {9, 70, 0, 0}, {10, -10, 0, 0}, {3, 7, 12, 0}});

// Walking in the low stance: short sliding steps, the trunk kept level.
constexpr Pose kLowLeadUp = Plus(kLow, {{14, -8, 0, 0}, {15, 22, 0, 0}, {16, 10, 0, 0}, {3, -2, 0, 0}});
constexpr Pose kLowLead = Plus(kLow, {{14, -14, 0, 0}, {15, 4, 0, 0}, {8, 10, 0, 0}, {9, -12, 0, 0}});
constexpr Pose kLowRearUp = Plus(kLow, {{8, -16, 0, 0}, {9, 26, 0, 0}, {10, 10, 0, 0}, {3, -2, 0, 0}});
constexpr Pose kLowBack = Plus(kLow, {{8, 12, 0, 0}, {9, 4, 0, 0}, {14, 6, 0, 0}, {15, -6, 0, 0}});

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

// Turning round: the whole figure spun half a turn on its hips.
constexpr Pose kTurnMid = Plus(kStance, {{4, 0, 90, 0}, {9, 30, 0, 0}, {15, 10, 0, 0}, {3, 6, 0, 0}});
constexpr Pose kTurned = Plus(kStance, {{4, 0, 180, 0}});
constexpr Pose kCrouchTurnMid = Plus(kCrouch, {{4, 0, 90, 0}, {3, 4, 0, 0}});
constexpr Pose kCrouchTurned = Plus(kCrouch, {{4, 0, 180, 0}});

// Crouching walks: the knees shuffle in turn.
constexpr Pose kDuckLead = Plus(kCrouch, {{14, -14, 0, 0}, {15, -12, 0, 0}, {8, 6, 0, 0}, {9, 4, 0, 0}});
constexpr Pose kDuckRear = Plus(kCrouch, {{8, -12, 0, 0}, {9, -10, 0, 0}, {14, 6, 0, 0}, {15, 6, 0, 0}});

constexpr fig::Vec3 kDashHop{0, 0, 4.2f}, kDashAway{0, 0, -4.4f};

// ---- motions ------------------------------------------------------------------------------
constexpr Motion kMotions[] = {
    M("idle", 0, &kStance, {P(&kStanceIn, 28), P(&kStance, 20), P(&kStanceOut, 28), P(&kStance, 20)}),
    M("settle", 22, &kStance, {P(&kSettle, 12), P(&kSettleLow, 10), P(&kStanceIn, 10), P(&kStance, 10)}),
    M("idle_low", 23, &kLow, {P(&kLowIn, 30), P(&kLow, 22), P(&kLowOut, 30), P(&kLow, 22)}),
    M("to_low_stance", 24, &kStance,
      {P(&kSettleLow, 5, Ease::Out), P(&kLowOut, 9, Ease::InOut), P(&kLow, 10, Ease::InOut)}),
    M("walk_forward", 1, &kStance,
      {P(&kStepLeadUp, 6, Ease::Out), Cue(P(&kStepLead, 6, Ease::In), kCueStep), P(&kStepRear, 8),
       Cue(P(&kStance, 6, Ease::Out), kCueStep)}),
    M("walk_back", 2, &kStance,
      {P(&kStepBackLift, 7, Ease::Out), Cue(P(&kStepBack, 6, Ease::In), kCueStep),
       Cue(P(&kStance, 9), kCueStep)}),
    M("walk_forward_low", 25, &kLow,
      {P(&kLowLeadUp, 7, Ease::Out), Cue(P(&kLowLead, 6, Ease::In), kCueStep), P(&kLowRearUp, 7),
       Cue(P(&kLow, 6, Ease::Out), kCueStep)}),
    M("walk_back_low", 26, &kLow,
      {P(&kLowRearUp, 7, Ease::Out), Cue(P(&kLowBack, 7, Ease::In), kCueStep), P(&kLowLeadUp, 6),
       Cue(P(&kLow, 6), kCueStep)}),
    M("dash_forward", 3, &kStance,
      {P(&kDashLoad, 3, Ease::Out), Plant(P(&kDashDrive, 4, Ease::Out), 10),
       Arc(P(&kDashLand, 5, Ease::InOut, kDashHop), 0.3f), Cue(Plant(P(&kStance, 6, Ease::InOut), 16), kCueStep),
       P(&kStance, 2, Ease::Linear)}),
    M("dash_back", 4, &kStance,
      {P(&kDashLoad, 3, Ease::Out), Arc(P(&kDashBack, 10, Ease::Out, kDashAway), 0.55f),
       Cue(P(&kStance, 7, Ease::InOut), kCueLand)}),
    M("turn", 7, &kStance, {P(&kTurnMid, 5, Ease::In), Cue(P(&kTurned, 5, Ease::Out), kCueStep)}),
    M("turn_crouching", 36, &kCrouch, {P(&kCrouchTurnMid, 5, Ease::In), P(&kCrouchTurned, 5, Ease::Out)}),
    // Held on its fifth frame while the guard lasts.
    M("guard", 8, &kStance, {P(&kGuard, 4, Ease::Out), P(&kGuard, 8, Ease::Linear), P(&kStance, 6)}),
    M("guard_crouching", 35, &kCrouch,
      {P(&kCrouchGuard, 4, Ease::Out), P(&kCrouchGuard, 8, Ease::Linear), P(&kCrouch, 6)}),
    M("crouch_down", 30, &kStance, {P(&kCrouch, 8, Ease::Out)}),
    M("crouch_up", 31, &kCrouch, {P(&kStance, 8)}),
    M("crouch_hold", 32, &kCrouch, {P(&kCrouchIn, 16), P(&kCrouch, 16)}),
    M("crouch_walk_forward", 33, &kCrouch,
      {P(&kDuckLead, 7), Cue(P(&kCrouch, 5), kCueStep), P(&kDuckRear, 7), P(&kCrouch, 5)}),
    M("crouch_walk_back", 34, &kCrouch,
      {P(&kDuckRear, 7), Cue(P(&kCrouch, 5), kCueStep), P(&kDuckLead, 7), P(&kCrouch, 5)}),
};

}  // namespace

std::span<const Motion> Mot_StandMotions() { return kMotions; }

}  // namespace mot::shared
