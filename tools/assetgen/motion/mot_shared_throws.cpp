// Throws as paired motions: the thrower's two throws (from each stance), the thrown fighter's
// reactions (one per thrower's character and stance), the throw escape for both sides, and the
// counter stance's catch with the caught attacker's fall. A pair shares one timeline: the grab,
// the lift, the hurl, so the two bodies stay in contact however the victim lands.
#include "motion/mot_shared_poses.h"

namespace mot::shared {
namespace {

// The shared timeline, in frames.
constexpr int kGrabFrames = 10, kLiftFrames = 18, kHurlFrames = 12;

// ---- the thrower ----------------------------------------------------------------------------
constexpr Pose kGrab = With(kStance, {{4, 6, 10, 0},     {3, 16, 0, 0},    {2, -10, -10, 0},
                                      {11, -80, -20, 0}, {12, -40, 0, 0},  {13, -30, 0, 0},
                                      {5, -80, 20, 0},   {6, -40, 0, 0},   {7, -30, 0, 0}});
constexpr Pose kLift = With(kGrab, {{4, -4, 10, 0},    {3, -4, 0, 0},   {2, -8, -10, 0},
                                    {11, -115, -10, 0}, {12, -40, 0, 0}, {5, -115, 10, 0}, {6, -40, 0, 0},
                                    {14, -40, -8, -4},  {15, 60, 0, 0},  {8, -10, -6, 6},  {9, 60, 0, 0}});
constexpr Pose kHurl = With(kGrab, {{4, 20, 10, 0},   {3, 40, 0, 0},   {2, -30, -10, 0},
                                    {11, -70, 0, -10}, {12, -10, 0, 0}, {5, -70, 0, 10}, {6, -10, 0, 0},
                                    {14, -50, -8, -4}, {15, 50, 0, 0},  {8, 20, -6, 6},  {9, 30, 0, 0}});
// The heave at the top of the throw: arms driven up and the body stretched onto its toes while the
// victim rises off the hands, before the slam brings both down together. The legs and arms do
// the lifting: the back stays near upright, the head only tipped to watch the victim go over.
constexpr Pose kHeave = With(kLift, {{4, -6, 10, 0},    {3, -8, 0, 0},   {2, -12, -10, 0},
                                     {11, -172, -10, 0}, {12, -14, 0, 0}, {5, -172, 10, 0}, {6, -14, 0, 0},
                                     {15, 30, 0, 0},     {9, 30, 0, 0}});
// From the low stance: a hip throw, turning the victim over the hip.
constexpr Pose kGrabLow = With(kLow, {{3, 14, 0, 0},     {2, -10, -20, 0},
                                      {11, -80, -20, 0}, {12, -40, 0, 0}, {5, -80, 20, 0}, {6, -40, 0, 0}});
// The hips turn in under the victim while the chest turns back to keep both hands on it.
constexpr Pose kHipTurn = With(kGrabLow, {{4, 20, 60, 0},   {3, 20, -40, 0}, {2, -10, -20, 0},
                                          {11, -90, 0, 0},  {12, -50, 0, 0}, {5, -90, 0, 0}, {6, -50, 0, 0}});
constexpr Pose kHipHurl = With(kHipTurn, {{4, 30, 70, 0}, {3, 40, 0, 0}, {11, -40, 0, -30}, {5, -30, 0, 40},
                                          {12, -20, 0, 0}, {6, -20, 0, 0}});
// The hip turned on through, the victim rolling over the back, before it is flung down.
constexpr Pose kHipHeave = Plus(Mix(kHipTurn, kHipHurl, 0.3f), {{3, -12, 0, 0}, {11, -20, 0, 0}, {12, -20, 0, 0}});
// Knocked loose: the escape shoves both apart.
constexpr Pose kShoved = With(kStance, {{4, -6, 28, 0},    {3, -14, 12, 0},  {2, -10, -36, 0},
                                        {11, -70, 0, -50}, {12, -40, 0, 0},  {5, -70, 0, 50}, {6, -40, 0, 0},
                                        {14, -10, -8, -4}, {15, 30, 0, 0},   {8, 30, -6, 6},  {9, 40, 0, 0}});
// The counter: the attacking limb caught and wrenched down.
constexpr Pose kCatch = With(kStance, {{3, 10, 30, 0},    {2, 0, -50, 0},
                                       {11, -80, -40, 0}, {12, -60, 0, 0}, {13, -40, 0, 0},
                                       {5, -70, 30, 0},   {6, -50, 0, 0},  {7, -40, 0, 0},
                                       {15, 44, 0, 0},    {9, 44, 0, 0}});

// ---- the thrown -----------------------------------------------------------------------------
constexpr Pose kHeld = With(kStance, {{4, 10, 10, 0},    {3, 20, 0, 0},    {2, 10, -10, 0},
                                      {11, -70, -30, 0}, {12, -80, 0, 0},  {5, -70, 30, 0}, {6, -80, 0, 0},
                                      {14, -10, -8, -4}, {15, 20, 0, 0},   {8, 0, -6, 6},   {9, 20, 0, 0}});
constexpr Pose kLifted = With(kHeld, {{4, 0, 0, 0},      {3, 10, 0, 0},  {2, -20, 0, 0},
                                      {14, -20, 0, -10}, {15, 40, 0, 0}, {16, 40, 0, 0},
                                      {8, 10, 0, 10},    {9, 50, 0, 0},  {10, 40, 0, 0}});
constexpr Pose kHeldLow = Plus(kHeld, {{4, 10, 0, 0}, {3, 10, 0, 0}, {9, 20, 0, 0}, {15, 20, 0, 0}});
constexpr Pose kLiftedTurn = Plus(kLifted, {{4, 0, -60, 0}, {3, 10, 0, 0}});
constexpr Pose kOverTop = Make({{4, 135, 180, 0}, {3, -10, 0, 0},   {2, -20, 0, 0},
                                {11, -150, 0, -30}, {12, -20, 0, 0}, {5, -150, 0, 30}, {6, -20, 0, 0},
                                {14, -30, 0, -6},  {15, 40, 0, 0},   {8, -30, 0, 6},   {9, 40, 0, 0}});
// On the back beyond the thrower, head away from it: reached by turning over forward (X 270, not -90).
constexpr Pose kLyingUpTurned = Plus(kLyingUp, {{4, 360, 180, 0}});
constexpr Pose kSweptOver = Make({{4, -100, 20, 0},   {3, 10, 0, 0},   {2, 30, -20, 0},
                                  {11, -100, 0, -40}, {12, -50, 0, 0}, {5, -100, 0, 40}, {6, -50, 0, 0},
                                  {14, -50, 0, -10},  {15, 20, 0, 0},  {8, -60, 0, 10},  {9, 30, 0, 0}});
constexpr Pose kKneesDown = With(kKneel, {{3, 40, 0, 0}, {2, 30, 0, 0}, {9, 150, 0, 0}, {15, 150, 0, 0},
                                          {14, -70, 0, -6}, {8, -70, 0, 6}});
constexpr Pose kStumbleAway = With(kShoved, {{4, 20, 28, 0}, {3, 30, 12, 0}, {15, 60, 0, 0}, {9, 20, 0, 0}});
constexpr Pose kWrenched = With(kHurtHigh, {{4, 30, 60, 0}, {3, 30, 20, 0}, {2, 10, -40, 0},
                                            {11, -100, -40, 0}, {12, -10, 0, 0}, {5, 20, 0, 40}});
constexpr Pose kTwistedDown = Plus(kAirFront, {{4, 0, 40, 0}});

// How each thrown reaction leaves the thrower's hands: its pose in the air and on landing.
enum class Land { Back, Face, Turned, Feet };
struct Toss {
  float away;    // distance travelled while flying, along the victim's facing
  float height;  // how high it flies
  Land land;
};
constexpr Pose Fly(const Pose& base, float twist) { return Plus(base, {{4, 0, twist, 0}, {3, 0, twist * 0.2f, 0}}); }

// ---- motions ------------------------------------------------------------------------------
constexpr fig::Vec3 Y(float y, float z = 0) { return {0, y, z}; }
constexpr fig::Vec3 Z(float z) { return {0, 0, z}; }

// The thrower heaves while the thrown fighter rises off its hands and slams as it comes down: the
// hurl's two halves are the thrown fighter's flight up and down. The slam hurts as the thrown
// fighter lands.
constexpr Motion Throw(const char* name, int action, const Pose* start, const Pose* grab, const Pose* lift,
                       const Pose* heave, const Pose* hurl) {
  return M(name, action, start,
           {Cue(P(grab, kGrabFrames, Ease::Out, Z(0.2f)), kCueShout), P(lift, kLiftFrames, Ease::InOut),
            P(heave, kHurlFrames / 2, Ease::Out), Cue(P(hurl, kHurlFrames - kHurlFrames / 2, Ease::In), kCueHeavy),
            Hit(hurl, 6, kThrowPart, kHitThrow), P(start, 14, Ease::InOut, Z(-0.2f))});
}

// A thrown fighter: held, lifted, hurled up into `air` and down onto the floor as `toss` says. The
// flight is two halves (up to the air pose, down to the landing) so the body turns over on its
// way instead of tumbling through in-betweens, and it lands flat on the frame the floor is marked.
// `pull` draws the victim in while it is lifted (onto the hip for the low stance's throw).
constexpr Motion Thrown(const char* name, int action, const Pose* held, const Pose* lifted, const Pose* air,
                        const Pose* lying, Toss toss, float pull) {
  const bool feet = toss.land == Land::Feet;
  constexpr int kUp = kHurlFrames / 2, kDown = kHurlFrames - kUp;
  const float flight = toss.away - pull;
  Phase up = P(air, kUp, Ease::Linear, {0, toss.height, flight * 0.5f});
  Phase down = P(lying, kDown, Ease::Linear, {0, -2.2f - toss.height, flight * 0.5f});
  if (!feet) down = Impact(Cue(down, kCueSlam));
  return M(name, action, &kStance,
           {P(held, kGrabFrames, Ease::Out, Z(0.2f)), P(lifted, kLiftFrames, Ease::InOut, Y(2.2f, pull)), up, down,
            P(lying, feet ? 10 : 6, Ease::Out, Z(feet ? -0.8f : 0.0f)), P(lying, feet ? 10 : 18, Ease::Linear)});
}

constexpr Pose kAirSet[] = {
    Fly(kAirBack, 0),         // 82
    Fly(kSweptOver, 0),     // 83
    Fly(kStumbleAway, 0),     // 84
    Fly(kAirFront, 0),      // 85
    Fly(kAirBack, -40),       // 86
    Fly(kAirBack, 70),        // 87
    Fly(kAirFront, 50),     // 88
    kOverTop,                 // 89
    Fly(kSweptOver, 80),    // 90
    Fly(kAirBack, 140),       // 91
    Fly(kAirBack, -110),      // 92
    Fly(kSweptOver, -60),   // 93
    Fly(kSweptOver, 150),   // 94
    Fly(kAirBack, 30),        // 95
    Fly(kKneesDown, 0),       // 96
    Fly(kKneesDown, 90),      // 97
    Fly(kOverTop, 40),        // 98
    Fly(kSweptOver, -140),  // 99
    Fly(kAirBack, -170),      // 100
    Fly(kAirBack, 100),       // 101
};
constexpr Toss kTosses[] = {
    {-1.0f, 1.0f, Land::Back},    // 82
    {-2.0f, 1.4f, Land::Back},    // 83
    {-2.5f, 0.2f, Land::Feet},    // 84
    {-1.5f, 0.8f, Land::Face},    // 85
    {-3.0f, 1.8f, Land::Back},    // 86
    {-2.0f, 1.0f, Land::Back},    // 87
    {-0.5f, 0.4f, Land::Face},    // 88
    {10.0f, 5.0f, Land::Turned},  // 89
    {-1.5f, 1.2f, Land::Back},    // 90
    {-2.5f, 1.0f, Land::Back},    // 91
    {-1.8f, 1.2f, Land::Back},    // 92
    {-3.5f, 2.4f, Land::Back},    // 93
    {-1.0f, 2.0f, Land::Back},    // 94
    {-2.8f, 0.8f, Land::Back},    // 95
    {0.0f, 0.2f, Land::Back},     // 96
    {-1.2f, 0.4f, Land::Back},    // 97
    {9.5f, 5.4f, Land::Turned},   // 98
    {-2.2f, 2.5f, Land::Back},    // 99
    {-3.0f, 1.5f, Land::Back},    // 100
    {-2.0f, 1.0f, Land::Back},    // 101
};
constexpr const Pose* Lying(const Toss& t) {
  return t.land == Land::Face ? &kLyingDown : t.land == Land::Turned ? &kLyingUpTurned
                                          : t.land == Land::Feet   ? &kStance
                                                                   : &kLyingUp;
}
// Reactions after the stance-0 throw are even, after the low stance's throw odd.
constexpr Motion ThrownRow(const char* name, int i) {
  const bool low = i % 2 == 1;
  return Thrown(name, 82 + i, low ? &kHeldLow : &kHeld, low ? &kLiftedTurn : &kLifted, &kAirSet[i],
                Lying(kTosses[i]), kTosses[i], low ? 1.2f : 0.1f);
}

constexpr Motion kMotions[] = {
    Throw("throw", 80, &kStance, &kGrab, &kLift, &kHeave, &kHurl),
    Throw("hip_throw", 81, &kLow, &kGrabLow, &kHipTurn, &kHipHeave, &kHipHurl),
    ThrownRow("thrown_slam", 0),           // 82
    ThrownRow("thrown_hip", 1),            // 83
    ThrownRow("thrown_shoved", 2),         // 84
    ThrownRow("thrown_on_face", 3),        // 85
    ThrownRow("thrown_far", 4),            // 86
    ThrownRow("thrown_twisting", 5),       // 87
    ThrownRow("thrown_face_turn", 6),      // 88
    ThrownRow("thrown_over", 7),           // 89
    ThrownRow("thrown_cartwheel", 8),      // 90
    ThrownRow("thrown_spun", 9),           // 91
    ThrownRow("thrown_spun_left", 10),     // 92
    ThrownRow("thrown_high", 11),          // 93
    ThrownRow("thrown_wheel", 12),         // 94
    ThrownRow("thrown_back", 13),          // 95
    ThrownRow("thrown_driven_down", 14),   // 96
    ThrownRow("thrown_to_knees", 15),      // 97
    ThrownRow("thrown_over_twist", 16),    // 98
    ThrownRow("thrown_wheel_left", 17),    // 99
    ThrownRow("thrown_reversed", 18),      // 100
    ThrownRow("thrown_turning", 19),       // 101
    M("throw_escaped", 116, &kStance,
      {P(&kHeld, 4, Ease::Out), Cue(P(&kShoved, 6, Ease::Snap, Z(-1.2f)), kCueSwing), P(&kShoved, 6, Ease::Linear),
       P(&kStance, 12)}),
    M("throw_broken", 117, &kStance,
      {P(&kGrab, 4, Ease::Out), Cue(P(&kStumbleAway, 6, Ease::Snap, Z(-1.2f)), kCueSwing),
       P(&kStumbleAway, 6, Ease::Linear), P(&kStance, 12)}),
    // The counter stance's catch and the attacker it catches: one timeline for both.
    M("counter_catch", 366, &kStance,
      {Cue(P(&kCatch, 6, Ease::Snap), kCueShout), P(&kHipTurn, 12, Ease::InOut), Cue(P(&kHipHurl, 10, Ease::In), kCueHeavy),
       P(&kHipHurl, 4, Ease::Linear), P(&kStance, 12)}),
    M("counter_caught", 436, &kStance,
      {P(&kWrenched, 6, Ease::Snap, Z(0.4f)), P(&kLiftedTurn, 12, Ease::InOut, Y(1.0f)),
       Impact(Cue(P(&kTwistedDown, 10, Ease::In, {0, -1.0f, -1.2f}), kCueSlam)), P(&kLyingDown, 4, Ease::Out),
       P(&kLyingDown, 12, Ease::Linear)}),
};

}  // namespace

std::span<const Motion> Mot_ThrowMotions() { return kMotions; }

}  // namespace mot::shared
