// Off the feet and back on them: jumps, lying on the floor, the ways of getting up, dodges, the
// gauge charge and the victory poses.
#include "motion/mot_shared_poses.h"

namespace mot::shared {
namespace {

// ---- jumps ----------------------------------------------------------------------------------
// The fight lifts the body along the jump's arc; these poses only shape it. Frames 0..4 crouch,
// 5..32 are in the air, the landing follows.
constexpr Pose kJumpLoad = With(kStance, {{4, 14, 28, 0},    {3, 14, 12, 0},   {2, -14, -36, 0},
                                          {14, -60, -8, -4}, {15, 80, 0, 0},   {16, -20, 10, 0},
                                          {8, -30, -6, 6},   {9, 90, 0, 0},    {10, -40, 0, 0},
                                          {11, -10, 0, -20}, {5, 10, 0, 24}});
constexpr Pose kJumpUp = With(kStance, {{4, -4, 20, 0},   {3, -4, 8, 0},  {2, -2, -28, 0},
                                        {14, -4, -8, -4}, {15, 6, 0, 0},  {16, 30, 10, 0},
                                        {8, 6, -6, 6},    {9, 10, 0, 0},  {10, 30, 0, 0},
                                        {11, -70, 0, -20}, {5, -60, 0, 24}});
constexpr Pose kJumpTuck = With(kStance, {{4, 0, 24, 0},     {3, 16, 12, 0},   {2, -10, -36, 0},
                                          {14, -100, -8, -4}, {15, 120, 0, 0}, {16, 10, 10, 0},
                                          {8, -80, -6, 6},   {9, 110, 0, 0},   {10, 10, 0, 0}});
// The diagonal jump leans into a tuck and strides through the air: a jump attack can start from
// any frame of it without the body snapping round (a somersault could not be joined that way).
constexpr Pose kLeapTuck = Plus(kJumpTuck, {{4, 24, 0, 0}, {3, 10, 0, 0}, {2, -16, 0, 0}, {11, -30, 0, 0}, {5, -20, 0, 0}});
constexpr Pose kLeapStride = Plus(kJumpUp, {{4, 12, 0, 0},  {14, -50, 0, 0}, {15, 50, 0, 0}, {8, 36, 0, 0},
                                            {9, 60, 0, 0},  {11, 30, 0, 0},  {5, -40, 0, 0}});
constexpr Pose kJumpReach = Plus(kJumpUp, {{14, -20, 0, 0}, {15, 20, 0, 0}, {8, -10, 0, 0}, {9, 14, 0, 0}});
constexpr Pose kJumpLand = With(kJumpLoad, {{4, 18, 28, 0}, {3, 20, 12, 0}, {11, -20, 0, -30}, {5, 0, 0, 34}});

// ---- the floor ------------------------------------------------------------------------------
constexpr Pose kRollBack = Make({{4, -150, 20, 0},   {3, 30, 0, 0},   {2, 30, -20, 0},
                                 {11, -60, 0, -20},  {12, -120, 0, 0}, {5, -60, 0, 20}, {6, -120, 0, 0},
                                 {14, -110, 0, -6},  {15, 130, 0, 0}, {8, -110, 0, 6},  {9, 130, 0, 0}});
constexpr Pose kRollOver = Plus(kCrouch, {{4, -360, 0, 0}});
constexpr Pose kRolledStance = Plus(kStance, {{4, -360, 0, 0}});  // stood up without turning back

// ---- dodges ---------------------------------------------------------------------------------
// Down and to the side under a high blow, ending crouched.
constexpr Pose kWeave = With(kCrouch, {{4, 30, 40, -14},   {3, 30, 20, -10}, {2, -30, -40, 0},
                                       {14, -100, -8, -6}, {15, 130, 0, 0},  {8, -50, -6, 16}, {9, 140, 0, 0},
                                       {11, -60, 0, 14},   {12, -126, 30, 0}, {5, -60, 0, -14}, {6, -126, -30, 0}});
constexpr Pose kWeaveBack = Plus(kWeave, {{4, 0, 0, 26}, {3, 0, 0, 16}, {2, 0, 0, -10}});
// A forward roll along the floor, ending crouched.
constexpr Pose kRollDive = With(kJumpTuck, {{4, 70, 28, 0}, {3, 30, 12, 0}, {2, 20, -30, 0},
                                            {11, -120, 0, -14}, {5, -120, 0, 14}});
// Curled tight, chin on the chest, arms round the shins: the roll goes over the shoulders, not the head.
constexpr Pose kRollBall = Plus(kJumpTuck, {{4, 200, 0, 0}, {3, 45, 0, 0}, {2, 50, 0, 0}, {11, -40, 0, 0}, {5, -40, 0, 0},
                                            {12, -40, 0, 0}, {6, -40, 0, 0}});
constexpr Pose kRollUp = Plus(kCrouch, {{4, 360, 0, 0}});

// ---- gauge charge ---------------------------------------------------------------------------
constexpr Pose kChargeLoad = With(kStance, {{4, 6, 10, 0},      {3, 20, 0, 0},     {2, 20, -10, 0},
                                            {11, 10, 0, -10},    {12, -120, 0, 0}, {13, 30, 0, 0},
                                            {5, 10, 0, 10},      {6, -120, 0, 0},  {7, 30, 0, 0},
                                            {14, -40, -10, -14}, {15, 60, 0, 0},   {8, -20, 0, 14}, {9, 60, 0, 0}});
constexpr Pose kChargeA = With(kChargeLoad, {{3, -12, 0, 0},    {2, -20, -10, 0},
                                             {11, -30, 0, -60}, {12, -40, 0, 0}, {13, 0, 0, 0},
                                             {5, -30, 0, 60},   {6, -40, 0, 0},  {7, 0, 0, 0}});
constexpr Pose kChargeB = Plus(kChargeA, {{3, -6, 0, 0}, {2, -6, 0, 0}, {11, -10, 0, -12}, {5, -10, 0, 12},
                                          {15, 8, 0, 0}, {9, 8, 0, 0}});

// ---- victory --------------------------------------------------------------------------------
constexpr Pose kWinStep = Plus(kStance, {{14, -20, 0, 0}, {15, 40, 0, 0}, {3, 6, 0, 0}});
constexpr Pose kWinRise = Make({{4, 0, 10, 0},    {3, -4, 0, 0},   {2, -6, -10, 0},
                                {5, -150, 0, 30}, {6, -40, 0, 0},  {11, 0, 0, -14}, {12, -90, 0, 0},
                                {14, -6, 0, -6},  {15, 8, 0, 0},   {8, 4, 0, 8},    {9, 6, 0, 0}});
constexpr Pose kWinHold = With(kWinRise, {{5, -170, 0, 14}, {6, -10, 0, 0}, {2, -14, -10, 0}, {3, -6, 0, 0}});
// A bow, then arms folded over the chest.
constexpr Pose kBow = Make({{4, 10, 0, 0},    {3, 40, 0, 0},    {2, 20, 0, 0},
                            {11, -10, 0, -6}, {12, -20, 0, 0},  {5, -10, 0, 6}, {6, -20, 0, 0},
                            {14, 0, 0, -4},   {8, 0, 0, 4}});
// Folded: each upper arm turned in, the forearms crossed level in front of the chest.
constexpr Pose kArmsFolded = Make({{4, 0, 0, 0},      {3, -4, 0, 0},    {2, -8, 0, 0},
                                   {11, -36, 50, 0},  {12, -64, 0, 0},  {5, -30, -50, 0}, {6, -60, 0, 0},
                                   {14, 0, 0, -10},   {15, 0, 0, 0},    {8, 0, 0, 10}});

constexpr fig::Vec3 kRollAhead{0, 0, 3.2f};

// ---- motions ------------------------------------------------------------------------------
constexpr Motion kMotions[] = {
    M("jump", 9, &kStance,
      {P(&kJumpLoad, 5, Ease::Out), Air(Cue(P(&kJumpUp, 4, Ease::Out), kCueSwing)), Air(P(&kJumpTuck, 8, Ease::Out)),
       Air(P(&kJumpTuck, 8, Ease::Linear)), P(&kJumpReach, 8, Ease::InOut), Cue(P(&kJumpLand, 3, Ease::In), kCueLand),
       P(&kStance, 8, Ease::InOut)}),
    M("jump_diagonal", 21, &kStance,
      {P(&kJumpLoad, 5, Ease::Out), Air(Cue(P(&kJumpUp, 4, Ease::Out), kCueSwing)), Air(P(&kLeapTuck, 10, Ease::InOut)),
       Air(P(&kLeapStride, 10, Ease::InOut)), P(&kJumpReach, 4, Ease::InOut), Cue(P(&kJumpLand, 3, Ease::In), kCueLand),
       P(&kStance, 8, Ease::InOut)}),
    // Held on their first frame while the fighter stays down.
    M("lying_back", 50, &kLyingUp, {P(&kLyingUp, 8, Ease::Linear)}),
    M("lying_face", 51, &kLyingDown, {P(&kLyingDown, 8, Ease::Linear)}),
    M("roll_up", 55, &kLyingUp,
      {P(&kRollBack, 8, Ease::InOut), P(&kRollOver, 8, Ease::InOut), Cue(P(&kRollOver, 2, Ease::Linear), kCueStep),
       P(&kRollOver, 1, Ease::Linear), P(&kRolledStance, 8)}),
    M("rise_from_back", 56, &kLyingUp,
      {P(&kSitUp, 9, Ease::InOut), P(&kKneel, 9, Ease::InOut), Cue(P(&kStance, 10), kCueStep)}),
    M("rise_from_face", 57, &kLyingDown,
      {P(&kPushUp, 9, Ease::InOut), P(&kKneel, 10, Ease::InOut), Cue(P(&kStance, 10), kCueStep)}),
    M("dodge_down", 597, &kStance,
      {P(&kWeave, 6, Ease::Snap), P(&kWeaveBack, 10, Ease::InOut), P(&kWeave, 8, Ease::InOut),
       P(&kCrouch, 10, Ease::InOut)}),
    M("dodge_roll", 598, &kStance,
      {P(&kRollDive, 5, Ease::Out), Cue(P(&kRollBall, 9, Ease::Linear, kRollAhead), kCueFall),
       P(&kRollUp, 8, Ease::Out), P(&kRollUp, 10, Ease::Linear)}),
    // Frames 26..42 loop while the buttons are held: they start and end on the same pose.
    M("gauge_charge", 599, &kStance,
      {P(&kChargeLoad, 9, Ease::Out), Cue(P(&kChargeA, 17, Ease::InOut), kCueShout), P(&kChargeB, 8, Ease::InOut),
       P(&kChargeA, 9, Ease::InOut), P(&kStance, 9, Ease::InOut)}),
    // Held on their last frames; footfalls raise dust.
    M("victory_fist", 12, &kStance,
      {Foot(Cue(P(&kWinStep, 10), kCueStep), 2), P(&kWinRise, 14, Ease::InOut), Cue(P(&kWinHold, 10, Ease::Snap), kCueShout),
       P(&kWinHold, 36, Ease::Linear)}),
    M("victory_bow", 13, &kStance,
      {P(&kBow, 16, Ease::InOut), P(&kBow, 12, Ease::Linear), Foot(Cue(P(&kArmsFolded, 14, Ease::InOut), kCueStep), 1),
       P(&kArmsFolded, 30, Ease::Linear)}),
};

}  // namespace

std::span<const Motion> Mot_AirFloorMotions() { return kMotions; }

}  // namespace mot::shared
