// Being hit: recoils to the body, the head and the legs, crouching recoils, staggers, the guard
// broken open, knock-downs onto the back or the face, launches and the beaten fall. A knock-down
// ends in the lying pose the matching way of getting up starts from; the floor impact is marked
// on the frame the body lands.
#include "motion/mot_shared_poses.h"

namespace mot::shared {
namespace {

// ---- standing recoils -----------------------------------------------------------------------
constexpr Pose kHurtHead = Plus(kStance, {{2, -16, 26, -14}, {3, -8, -10, 0}, {11, 10, 0, -8}, {5, 6, 0, 10}});
constexpr Pose kHurtLow = With(kStance, {{4, 6, 28, 0},     {3, 24, 12, 0},   {2, 16, -36, 0},
                                         {14, -50, -8, -4}, {15, 80, 0, 0},   {16, -30, 10, 0},
                                         {8, -10, -6, 6},   {9, 60, 0, 0},    {11, -10, 0, -20}, {12, -50, 0, 0}});
constexpr Pose kHurtSide = With(kHurt, {{4, -4, -6, 0}, {3, 18, -30, 12}, {2, 10, 20, 20}, {11, -40, 0, -60}});
constexpr Pose kHurtHeavy = With(kHurt, {{4, -14, 20, 0}, {3, 40, 4, 0}, {2, 30, -30, 0},
                                         {14, -50, -8, -4}, {15, 60, 0, 0}, {8, 30, -6, 6}, {9, 50, 0, 0}});
constexpr Pose kHurtBack = With(kStance, {{4, 16, 28, 0},   {3, -26, 12, 0}, {2, -30, -36, 0},
                                          {11, 20, 0, -40}, {12, -30, 0, 0}, {5, 20, 0, 40}, {6, -30, 0, 0}});
constexpr Pose kDoubled = With(kHurt, {{4, -4, 10, 0},    {3, 50, 0, 0},    {2, 20, -10, 0},
                                       {11, -50, 30, -10}, {12, -110, 0, 0}, {5, -50, -30, 10}, {6, -110, 0, 0}});
// Spun by a blow to the side of the head: the shoulders and head wrenched round while the hips
// and feet hold, the lead arm knocked wide and the rear one coming up to cover; then reeling on.
constexpr Pose kStagger = With(kStance, {{4, -4, 46, 0},    {3, 14, 34, 6},   {2, 18, -6, 18},
                                         {11, -18, 0, -34}, {12, -46, 20, 0}, {5, -48, 0, 22}, {6, -112, -25, 0},
                                         {14, -22, -8, -4}, {15, 38, 0, 0},   {8, 10, -6, 6},  {9, 34, 0, 0}});
constexpr Pose kStaggerOn = Plus(kStagger, {{4, 0, 10, 0}, {3, 6, 12, 0}, {2, 8, 4, 6}, {11, 6, 0, 8}});
constexpr Pose kDazed = With(kStance, {{4, 0, 20, 6},  {3, 20, 10, -8}, {2, 30, -20, 16},
                                       {11, 0, 0, -6}, {12, -20, 0, 0}, {5, 0, 0, 6},    {6, -20, 0, 0},
                                       {15, 40, 0, 0}, {9, 36, 0, 0}});
constexpr Pose kDazedB = Plus(kDazed, {{4, 0, 10, -12}, {3, -8, 6, 14}, {2, -20, 20, -30}, {9, -16, 0, 0}});
constexpr Pose kGuardBroken = With(kStance, {{4, -10, 20, 0},   {3, -24, 10, 0}, {2, -20, -30, 0},
                                             {11, -60, 0, -80}, {12, -30, 0, 0}, {5, -60, 0, 80}, {6, -30, 0, 0},
                                             {14, -10, -8, -4}, {15, 20, 0, 0},  {8, 30, -6, 6},  {9, 40, 0, 0}});
constexpr Pose kStumble = Plus(kHurtHeavy, {{8, -30, 0, 0}, {9, -20, 0, 0}, {14, 30, 0, 0}, {3, -30, 0, 0}});

// ---- crouching recoils ----------------------------------------------------------------------
constexpr Pose kCrouchHurt = Plus(kCrouch, {{3, 16, -6, 0}, {2, 24, 10, 10}, {11, 30, 0, -10}, {5, 30, 0, 10}});
constexpr Pose kCrouchHurtHeavy = Plus(kCrouch, {{4, -20, 0, 0}, {3, -20, 0, 0}, {2, -30, 0, 0},
                                                 {11, 40, 0, -40}, {5, 40, 0, 40}});

// ---- falls ----------------------------------------------------------------------------------
constexpr Pose kFallBack = With(kAirBack, {{4, -45, 10, 0}, {3, -20, 0, 0}});
constexpr Pose kAirBackHigh = With(kAirBack, {{4, -70, 0, 0}, {14, -80, 0, -6}, {15, 20, 0, 0},
                                              {8, -70, 0, 6}, {9, 20, 0, 0}});
constexpr Pose kFallFlat = Plus(kLyingUp, {{4, 16, 0, 0}, {3, 10, 0, 0}, {14, -30, 0, 0}, {8, -20, 0, 0},
                                           {11, 40, 0, 0}, {5, 40, 0, 0}});
constexpr Pose kLyingBounce = Plus(kLyingUp, {{3, 16, 0, 0}, {2, 20, 0, 0}, {14, -20, 0, 0}, {15, 20, 0, 0}});
constexpr Pose kLyingUpTurned = Plus(kLyingUp, {{4, 0, 180, 0}});
constexpr Pose kFallForward = With(kAirFront, {{4, 70, 0, 0}, {11, -110, 0, -40}, {5, -110, 0, 40}});
constexpr Pose kKneesDrop = With(kKneel, {{4, 10, 0, 0},   {3, 40, 0, 0},    {2, 20, 0, 0},
                                          {14, -70, 0, -6}, {15, 150, 0, 0}, {16, 30, 0, 0},
                                          {8, -70, 0, 6},   {9, 150, 0, 0},  {10, 30, 0, 0},
                                          {11, -20, 0, -10}, {12, -40, 0, 0}, {5, -20, 0, 10}, {6, -40, 0, 0}});
constexpr Pose kSitDown = With(kSitUp, {{3, 10, 0, 0}, {2, 20, 0, 0}, {11, -60, 0, -40}, {5, -60, 0, 40}});
// The spinning falls turn all the way round in the air, so the body lands already facing
// where it lies instead of sweeping round on the floor.
constexpr Pose kSpinFall = Plus(kFallBack, {{4, 0, 360, 0}, {3, 10, 10, 0}});
constexpr Pose kSpinFallLeft = Plus(kFallBack, {{4, 0, -360, 0}, {2, 20, -20, 0}});
constexpr Pose kLyingSpun = Plus(kLyingUp, {{4, 0, 360, 0}});
constexpr Pose kLyingSpunLeft = Plus(kLyingUp, {{4, 0, -360, 0}});
constexpr Pose kSweptAir = Make({{4, -80, 20, 0},   {3, 20, 0, 0},    {2, 20, -20, 0},
                                 {11, -90, 0, -50}, {12, -40, 0, 0},  {5, -90, 0, 50}, {6, -40, 0, 0},
                                 {14, -60, 0, -6},  {15, 30, 0, 0},   {8, -40, 0, 6},  {9, 20, 0, 0}});
constexpr Pose kSweptSpin = Plus(kSweptAir, {{4, 0, 100, 0}, {14, -20, 0, 0}});
constexpr Pose kFallBackTurn = Plus(kFallBack, {{4, 0, -50, 0}, {3, 10, 0, 0}, {2, 10, 30, 0}});
constexpr Pose kAirBackTwist = Plus(kAirBackHigh, {{4, 0, 50, 0}, {3, 0, 10, 0}});
// The beaten fighter is drawn with its right foot pinned to the floor, so that foot stays down
// while the body twists round it and falls back: the fall itself carries the body a leg's length
// away from the winner, the foot never skates; lying, the leg rolls outward and the foot rests
// on its side at the height it stood at.
// The free leg comes off the floor before the body twists round the pinned one.
constexpr Pose kKoLegUp = Plus(kHurtSide, {{15, 60, 0, 0}, {14, -30, 0, 0}});
constexpr Pose kKoTwist = Plus(kHurtSide, {{4, 0, 60, 0}, {2, 20, 30, 0}, {15, 70, 0, 0}, {14, -40, 0, 0}});
constexpr Pose kKoFall = Make({{4, -45, 150, 0},   {3, -20, 0, 0},  {2, -25, 0, 0},
                               {11, -150, 0, -40}, {12, -30, 0, 0}, {5, -100, 0, 40}, {6, -30, 0, 0},
                               {8, 40, 0, 6},      {9, 20, 0, 0},   {10, -10, 0, 0},
                               {14, -40, 0, -6},   {15, 60, 0, 0}});
constexpr Pose kLyingBeaten = With(kLyingUpTurned, {{8, -4, 45, 10}, {10, 40, 0, 0}});

constexpr fig::Vec3 Z(float z) { return {0, 0, z}; }

// A standing recoil: snap into the hurt pose, hold, come back to the stance.
constexpr Motion Recoil(const char* name, int action, const Pose* hurt, int hold, int back, float push) {
  return M(name, action, &kStance,
           {P(hurt, 3, Ease::Snap, Z(-push)), P(hurt, hold, Ease::Linear), P(&kStance, back, Ease::InOut, Z(push))});
}
constexpr Motion CrouchRecoil(const char* name, int action, const Pose* hurt, int hold, int back) {
  return M(name, action, &kCrouch, {P(hurt, 3, Ease::Snap), P(hurt, hold, Ease::Linear), P(&kCrouch, back)});
}
// Knocked off the feet through `air`, landing in `lying` `away` units back. With a `pivot` foot
// (10 or 16) that foot comes down first and stays where it lands while the body settles round it:
// the ground it gives is all given in the air, so the foot never skates once it is down.
constexpr Motion Knockdown(const char* name, int action, const Pose* hit, const Pose* air, const Pose* lying,
                           float away, float height, int pivot = 0) {
  return M(name, action, &kStance,
           {P(hit, 4, Ease::Snap, Z(-away * 0.15f)), Arc(P(air, 14, Ease::In, Z(-away * (pivot ? 0.85f : 0.6f))), height),
            Impact(Cue(Plant(P(lying, 8, Ease::In, Z(pivot ? 0.0f : -away * 0.25f)), pivot), kCueFall)),
            P(lying, 18, Ease::Linear)});
}
// Launched: the fight holds the 19th frame while the body is in the air, then it falls.
constexpr Motion Launch(const char* name, int action, const Pose* hit, const Pose* air, const Pose* flat,
                        const Pose* lying) {
  return M(name, action, &kStance,
           {P(hit, 3, Ease::Snap), P(air, 16, Ease::Out, Z(-0.8f)), Impact(Cue(P(flat, 6, Ease::In, Z(-0.6f)), kCueFall)),
            P(&kLyingBounce, 4, Ease::Out), P(lying, 5, Ease::In), P(lying, 14, Ease::Linear)});
}

// ---- motions ------------------------------------------------------------------------------
constexpr Motion kMotions[] = {
    M("crumple", 143, &kStance,
      {P(&kDoubled, 4, Ease::Snap), Plant(P(&kKneesDrop, 10, Ease::In), 10), Plant(P(&kSitDown, 6, Ease::InOut), 10),
       Impact(Cue(P(&kLyingUp, 8, Ease::In), kCueFall)), P(&kLyingUp, 12, Ease::Linear)}),
    Knockdown("high_knockdown", 144, &kHurtHigh, &kAirBack, &kLyingUp, 2.5f, 1.0f),
    M("stagger_turn", 145, &kStance,
      {P(&kStagger, 3, Ease::Snap, Z(-0.3f)), P(&kStaggerOn, 7, Ease::Out), P(&kStance, 14, Ease::InOut, Z(0.3f))}),
    Recoil("doubled_over", 146, &kDoubled, 14, 14, 0.2f),
    M("sit_down_fall", 147, &kStance,
      {P(&kHurtHigh, 4, Ease::Snap, Z(-0.6f)), P(&kSitDown, 12, Ease::In, Z(-0.6f)),
       Impact(Cue(P(&kLyingUp, 8, Ease::In), kCueFall)), P(&kLyingUp, 14, Ease::Linear)}),
    M("swept", 148, &kStance,
      {P(&kHurtLow, 3, Ease::Snap), Arc(P(&kSweptAir, 10, Ease::Out), 1.2f),
       Impact(Cue(P(&kLyingUp, 6, Ease::In), kCueFall)), P(&kLyingUp, 16, Ease::Linear)}),
    M("dazed", 149, &kStance,
      {P(&kDazed, 6, Ease::Snap), P(&kDazedB, 14), P(&kDazed, 14), P(&kStance, 14)}),
    Recoil("hit_body", 150, &kHurt, 6, 12, 0.4f),
    Recoil("hit_head_light", 151, &kHurtHead, 4, 10, 0.2f),
    Recoil("hit_high", 152, &kHurtHigh, 6, 13, 0.4f),
    Recoil("hit_low", 153, &kHurtLow, 6, 14, 0.2f),
    Recoil("hit_side", 154, &kHurtSide, 6, 13, 0.3f),
    M("hit_heavy", 155, &kStance,
      {P(&kHurtHeavy, 4, Ease::Snap, Z(-0.6f)), P(&kStumble, 8, Ease::InOut, Z(-0.6f)), P(&kStance, 16)}),
    M("guard_broken", 156, &kGuard,
      {P(&kGuardBroken, 4, Ease::Snap, Z(-0.8f)), P(&kGuardBroken, 12, Ease::Linear), P(&kStance, 14)}),
    Launch("launched", 157, &kHurtHigh, &kAirBack, &kFallFlat, &kLyingUp),
    M("launched_from_behind", 158, &kStance,
      {P(&kHurtBack, 3, Ease::Snap), P(&kAirFront, 16, Ease::Out, Z(0.8f)),
       Impact(Cue(P(&kFallForward, 6, Ease::In, Z(0.6f)), kCueFall)), P(&kLyingDown, 9, Ease::In),
       P(&kLyingDown, 14, Ease::Linear)}),
    CrouchRecoil("crouch_hit", 159, &kCrouchHurt, 5, 12),
    CrouchRecoil("crouch_hit_heavy", 160, &kCrouchHurtHeavy, 8, 14),
    Knockdown("knock_down", 161, &kHurt, &kFallBack, &kLyingUp, 3.0f, 0.4f),
    Knockdown("pitch_forward", 162, &kHurtBack, &kFallForward, &kLyingDown, -1.5f, 0.3f),
    Knockdown("spin_down", 163, &kHurtSide, &kSpinFall, &kLyingSpun, 2.0f, 0.5f, 10),
    M("crumple_face", 164, &kStance,
      {P(&kDoubled, 5, Ease::Snap), Plant(P(&kKneesDrop, 12, Ease::In), 10), Impact(Cue(P(&kLyingDown, 10, Ease::In), kCueFall)),
       P(&kLyingDown, 14, Ease::Linear)}),
    Knockdown("blown_away", 165, &kHurtHeavy, &kAirBackHigh, &kLyingUp, 5.0f, 1.6f),
    Knockdown("heavy_down", 166, &kHurtHeavy, &kFallBack, &kLyingUp, 2.4f, 0.2f),
    Launch("launched_high", 167, &kHurtHeavy, &kAirBackHigh, &kFallFlat, &kLyingUp),
    // The beaten fighter twists round as it falls; it lies head toward the winner.
    M("beaten", 170, &kStance,
      {Plant(P(&kHurtSide, 5, Ease::Out), 16), Plant(P(&kKoLegUp, 3, Ease::Out), 10), Plant(P(&kKoTwist, 7, Ease::InOut), 10),
       Plant(P(&kKoFall, 12, Ease::In), 10), Impact(Cue(Plant(P(&kLyingBeaten, 8, Ease::In), 10), kCueFall)),
       P(&kLyingBeaten, 24, Ease::Linear)}),
    Knockdown("knocked_off_feet", 171, &kHurtHead, &kFallBackTurn, &kLyingUp, 1.8f, 0.8f),
    Knockdown("big_blow", 172, &kDoubled, &kAirBackTwist, &kLyingUp, 3.6f, 1.2f),
    M("swept_spinning", 173, &kStance,
      {P(&kHurtLow, 3, Ease::Snap), Arc(P(&kSweptSpin, 12, Ease::Out, Z(-0.8f)), 1.6f),
       Impact(Cue(P(&kLyingUp, 6, Ease::In), kCueFall)), P(&kLyingUp, 16, Ease::Linear)}),
    M("stumble_down", 174, &kStance,
      {P(&kHurtHeavy, 4, Ease::Snap, Z(-0.5f)), P(&kStumble, 8, Ease::InOut, Z(-1.0f)),
       P(&kFallBack, 10, Ease::In, Z(-1.0f)), Impact(Cue(P(&kLyingUp, 8, Ease::In, Z(-0.5f)), kCueFall)),
       P(&kLyingUp, 14, Ease::Linear)}),
    Knockdown("twist_down", 175, &kHurtHead, &kSpinFallLeft, &kLyingSpunLeft, 1.6f, 1.0f, 10),
    // Rocked back by an open blow no guard could take: a longer reel than a body hit.
    Recoil("rocked", 521, &kHurtHeavy, 5, 14, 0.6f),
};

}  // namespace

std::span<const Motion> Mot_ReactionMotions() { return kMotions; }

}  // namespace mot::shared
