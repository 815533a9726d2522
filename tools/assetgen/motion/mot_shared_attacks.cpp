// Every attack the characters share: the four standing buttons (and the low stance's own two),
// the crouching attacks, the directional attacks, the jump attacks, the low kick the computer
// uses on crouchers, the guard super, the ground counter and the counter stance.
#include "motion/mot_shared_poses.h"

namespace mot::shared {
namespace {

// ---- standing punches -----------------------------------------------------------------------
// Jab with the lead (left) hand: hips and shoulders turn it out to full reach.
constexpr Pose kJabLoad = With(kStance, {{3, 10, 6, 0}, {11, -50, 0, -10}, {12, -110, 20, 0}});
constexpr Pose kJabOut = With(kStance, {{4, 0, 40, 0},     {3, 14, 26, 0}, {2, -4, -62, 0},
                                        {11, -90, -60, 0}, {12, -4, 0, 0}, {13, 0, 0, 0},
                                        {5, -30, 0, 16},   {6, -120, -25, 0},
                                        {14, -36, -8, -4}, {15, 30, 0, 0}, {16, -2, 10, 0}});
// Straight with the rear (right) hand: the hips square up behind it.
constexpr Pose kCrossLoad = Plus(kStance, {{3, 4, 10, 0}, {5, -6, 0, 6}, {9, 8, 0, 0}});
constexpr Pose kCrossOut = With(kStance, {{4, 4, -10, 0},   {3, 16, -24, 0},  {2, -10, 34, 0},
                                          {5, -92, 36, 0},  {6, -4, 0, 0},    {7, 0, 0, 0},
                                          {11, -50, 0, -20}, {12, -120, 20, 0},
                                          {14, -40, 10, -4}, {15, 24, 0, 0},  {16, -4, 0, 0},
                                          {8, 20, 6, 6},    {9, 20, 0, 0},    {10, -30, 0, 0}});
// The low stance's palm strike: lead hand driven out from the hip.
constexpr Pose kPalmLoad = Plus(kLow, {{3, 4, 10, 0}, {11, 30, 0, 10}, {12, -40, 0, 0}});
constexpr Pose kPalmOut = With(kLow, {{4, 10, 50, 0},   {3, 18, 24, 0}, {2, -10, -70, 0},
                                      {11, -88, -64, 0}, {12, -6, 0, 0}, {13, -60, 0, 0},
                                      {14, -54, -10, -14}, {15, 40, 0, 0}});

// ---- standing kicks -------------------------------------------------------------------------
// High kick with the rear (right) leg, turning over the lead foot.
constexpr Pose kKickChamber = With(kStance, {{4, -10, 10, 0},  {3, 0, 20, 0},   {2, 4, -26, 0},
                                             {8, -100, 0, 10}, {9, 110, 0, 0},  {10, 30, 0, 0},
                                             {14, -16, -8, -4}, {15, 16, 0, 0}, {16, -2, 10, 0},
                                             {11, -40, 0, -30}, {5, -10, 0, 40}});
constexpr Pose kKickOut = With(kStance, {{4, -30, 0, 10},  {3, -8, 20, 0},   {2, 12, -22, 0},
                                         {8, -104, 10, 14}, {9, 6, 0, 0},    {10, 40, 0, 0},
                                         {14, 6, -8, -6},  {15, 10, 0, 0},   {16, -14, 10, 0},
                                         {11, -30, 0, -50}, {12, -90, 0, 0}, {5, 10, 0, 40}, {6, -60, 0, 0}});
// Side thrust with the lead (left) leg: the long poke of the stance.
constexpr Pose kSideChamber = With(kStance, {{4, -6, 64, 0},    {3, -6, 4, 0},    {2, 4, -60, 0},
                                             {14, -96, -50, 0}, {15, 120, 0, 0},  {16, 20, 0, 0},
                                             {8, 10, -6, 6},    {9, 20, 0, 0},    {10, -10, 0, 0},
                                             {11, -50, 0, -20}, {5, -20, 0, 30}});
// The stop kick: the same thrust driven down into the opponent's lead knee.
constexpr Pose kSideLowOut = With(kSideChamber, {{4, -14, 70, 0}, {3, -6, 4, 0}, {2, 8, -60, 0},
                                                 {14, -62, -64, 0}, {15, 4, 0, 0}, {16, 36, 0, 0},
                                                 {8, 16, -6, 6},    {9, 16, 0, 0}});
// The low stance's spinning back kick with the rear leg.
constexpr Pose kSpinLoad = Plus(kLow, {{4, 0, 70, 0}, {3, 0, 20, 0}, {2, 0, 20, 0}, {9, 10, 0, 0}});
constexpr Pose kSpinOut = With(kLow, {{4, -8, 190, 0},    {3, -6, 0, 0},   {2, 8, 160, 0},
                                      {8, -76, -170, 10}, {9, 4, 0, 0},    {10, 20, 0, 0},
                                      {14, -4, -10, -6},  {15, 14, 0, 0},  {11, -40, 0, -40}, {5, -40, 0, 40}});
constexpr Pose kSpinHome = Plus(kLow, {{4, 0, 360, 0}});

// ---- crouching attacks ----------------------------------------------------------------------
constexpr Pose kCrJab = With(kCrouch, {{3, 16, 30, 0}, {2, -20, -60, 0}, {11, -84, -60, 0}, {12, -4, 0, 0}});
constexpr Pose kCrPunch = With(kCrouch, {{4, 24, 0, 0}, {3, 20, -20, 0}, {2, -24, 20, 0}, {5, -84, 30, 0},
                                         {6, -4, 0, 0}, {11, -50, 0, -20}});
constexpr Pose kCrKickLoad = Plus(kCrouch, {{14, -20, 0, 0}, {15, 20, 0, 0}, {3, -4, 0, 0}});
constexpr Pose kCrKick = With(kCrouch, {{4, 10, 40, 0},  {3, 6, 12, 0},   {2, -10, -46, 0},
                                        {14, -84, -36, 0}, {15, 6, 0, 0}, {16, 30, 0, 0},
                                        {8, -56, -6, 10}, {9, 140, 0, 0}});
// Sweep: down on the lead knee, the rear leg scything along the floor.
constexpr Pose kSweepLoad = With(kCrouch, {{4, 30, -10, 0}, {3, 20, 20, 0}, {8, -60, 0, 20}, {9, 110, 0, 0}});
constexpr Pose kSweepOut = With(kCrouch, {{4, 36, -70, 0},  {3, 30, 40, 0},   {2, -30, 30, 0},
                                          {8, -84, 40, 40}, {9, 4, 0, 0},     {10, 20, 0, 0},
                                          {14, -100, 0, -20}, {15, 140, 0, 0}, {16, -30, 0, 0},
                                          {11, -30, 0, -40}, {5, -20, 0, 40}});

// ---- directional attacks --------------------------------------------------------------------
// Lunge: a long step with the lead hand straight out.
constexpr Pose kLungeLoad = Plus(kStance, {{9, 20, 0, 0}, {15, 16, 0, 0}, {3, 4, 0, 0}, {11, 10, 0, 0}});
constexpr Pose kLungeOut = With(kJabOut, {{4, 10, 40, 0}, {3, 20, 26, 0}, {2, -20, -62, 0},
                                          {14, -60, -8, -4}, {15, 40, 0, 0}, {16, -10, 10, 0},
                                          {8, 40, -6, 6},    {9, 20, 0, 0},  {10, -10, 0, 0}});
// Uppercut with the rear hand from a dip.
constexpr Pose kUpperDip = With(kCrouch, {{3, 24, 0, 0}, {5, 10, 0, 10}, {6, -130, -20, 0}, {7, 30, 0, 0}});
constexpr Pose kUpperOut = With(kStance, {{4, -6, -10, 0},   {3, 4, -20, 0},   {2, -16, 30, 0},
                                          {5, -124, 24, 0},  {6, -36, -20, 0}, {7, 0, 0, 0},
                                          {14, -20, 0, -4},  {15, 10, 0, 0},   {16, 10, 0, 0},
                                          {8, 4, 6, 6},      {9, 4, 0, 0},     {10, 20, 0, 0}});
// Backfist: the lead arm whips out sideways and forward.
constexpr Pose kBackfistLoad = With(kStance, {{3, 8, 40, 0}, {11, -40, 40, -40}, {12, -130, 0, 0}});
constexpr Pose kBackfistOut = With(kStance, {{4, 0, 60, 0},   {3, 10, 30, 0},  {2, -6, -86, 0},
                                             {11, -96, -90, 0}, {12, -10, 0, 0}, {13, -20, 0, 0},
                                             {14, -40, -8, -4}, {15, 34, 0, 0}});
// Slide: down on the floor, the lead foot first.
constexpr Pose kSlideLoad = Plus(kCrouch, {{4, 0, 20, 0}, {3, 4, 0, 0}});
constexpr Pose kSlideOut = Make({{4, -40, 60, 0},   {3, 30, 0, 0},    {2, 0, -60, 0},
                                 {14, -70, -60, 0}, {15, 4, 0, 0},    {16, 20, 0, 0},
                                 {8, -10, -6, 10},  {9, 120, 0, 0},   {10, -20, 0, 0},
                                 {11, 10, 0, -60},  {12, -20, 0, 0},  {5, 40, 0, 30}, {6, -40, 0, 0}});
// Spinning heel kick: a full turn, the rear heel passing head-high at the half.
constexpr Pose kHeelLoad = Plus(kStance, {{4, 0, 60, 0}, {3, 0, 20, 0}, {2, 0, 10, 0}, {9, 14, 0, 0}});
constexpr Pose kHeelOut = With(kStance, {{4, -24, 200, 0},   {3, -12, 10, 0},  {2, 10, 150, 0},
                                         {8, -110, -190, 20}, {9, 10, 0, 0},   {10, 10, 0, 0},
                                         {14, 0, -8, -6},    {15, 10, 0, 0},   {11, -40, 0, -40}, {5, -40, 0, 40}});
constexpr Pose kHeelHome = Plus(kStance, {{4, 0, 360, 0}});
// Flying front kick: off the rear foot, the lead foot driven out at chest height, the rear leg
// folded back under the body, then a landing on bent knees.
constexpr Pose kFlyLoad = Plus(kStance, {{9, 30, 0, 0}, {15, 30, 0, 0}, {3, 6, 0, 0}});
constexpr Pose kFlyOut = With(kStance, {{4, -6, 30, 0},    {3, 6, 10, 0},    {2, 0, -40, 0},
                                        {14, -92, -20, 0}, {15, 6, 0, 0},    {16, 40, 0, 0},
                                        {8, 24, -6, 6},    {9, 112, 0, 0},   {10, 30, 0, 0},
                                        {11, -60, 0, -40}, {5, -30, 0, 40}});
constexpr Pose kFlyLand = With(kStance, {{4, 14, 28, 0},    {3, 16, 12, 0},   {2, -14, -36, 0},
                                         {14, -56, -8, -4}, {15, 70, 0, 0},   {16, -12, 10, 0},
                                         {8, -16, -6, 6},   {9, 70, 0, 0},    {10, -26, 0, 0}});
// Low stomp kick at the shins.
constexpr Pose kStompLoad = Plus(kStance, {{8, -50, 0, 0}, {9, 80, 0, 0}, {3, -4, 0, 0}});
constexpr Pose kStompOut = With(kStance, {{4, 4, 10, 0},    {3, 14, 10, 0},  {2, -20, -20, 0},
                                          {8, -66, -10, 10}, {9, 10, 0, 0},  {10, 40, 0, 0},
                                          {14, -10, -8, -4}, {15, 40, 0, 0}});

// ---- jump attacks ---------------------------------------------------------------------------
constexpr Pose kAirTuck = With(kStance, {{14, -100, -8, -4}, {15, 120, 0, 0}, {8, -80, -6, 6}, {9, 110, 0, 0}});
constexpr Pose kAirJab = With(kAirTuck, {{3, 10, 26, 0}, {2, -4, -62, 0}, {11, -90, -60, 0}, {12, -4, 0, 0}});
constexpr Pose kAirCross = With(kAirTuck, {{4, 0, 0, 0}, {3, 14, -20, 0}, {2, -10, 20, 0}, {5, -92, 30, 0},
                                           {6, -4, 0, 0}});
constexpr Pose kAirChopLoad = With(kAirTuck, {{3, -10, 0, 0}, {5, -170, 0, 20}, {6, -60, 0, 0}});
constexpr Pose kAirChop = With(kAirTuck, {{3, 20, -10, 0}, {2, -10, 10, 0}, {5, -70, 20, 0}, {6, -10, 0, 0}});
constexpr Pose kAirElbow = With(kAirTuck, {{4, 20, 0, 0}, {3, 30, 0, 0}, {5, -60, 30, 0}, {6, -150, 0, 0}});
constexpr Pose kAirKick = With(kAirTuck, {{4, -10, 30, 0}, {14, -96, -24, 0}, {15, 4, 0, 0}, {16, 30, 0, 0}});
constexpr Pose kAirDoubleKick = With(kAirTuck, {{4, -30, 30, 0}, {3, 10, 0, 0}, {14, -90, -30, 0}, {15, 6, 0, 0},
                                                {8, -86, -30, 0}, {9, 20, 0, 0}});
constexpr Pose kAirRound = With(kAirTuck, {{4, -20, -30, 0}, {3, 0, 30, 0}, {8, -96, 30, 30}, {9, 6, 0, 0},
                                           {10, 30, 0, 0}});
constexpr Pose kAirSide = With(kAirTuck, {{4, -20, 70, 0}, {3, -10, 0, 0}, {2, 10, -60, 0}, {14, -96, -66, 0},
                                          {15, 4, 0, 0}, {16, 30, 0, 0}});

// ---- guard super, ground counter, counter stance ---------------------------------------------
constexpr Pose kBurstLoad = With(kGuard, {{4, 10, 0, 0}, {3, 20, 0, 0}, {2, 20, 0, 0}, {11, 0, 0, -20},
                                          {12, -130, 0, 0}, {5, 0, 0, 20}, {6, -130, 0, 0}, {9, 50, 0, 0},
                                          {15, 50, 0, 0}});
constexpr Pose kBurstOut = With(kStance, {{4, 4, 0, 0},     {3, 10, 0, 0},   {2, -10, 0, 0},
                                          {11, -90, -10, 0}, {12, -6, 0, 0}, {13, -70, 0, 0},
                                          {5, -90, 10, 0},  {6, -6, 0, 0},   {7, -70, 0, 0},
                                          {14, -50, 0, -4}, {15, 30, 0, 0},  {8, 30, 0, 6}, {9, 30, 0, 0}});
constexpr Pose kRiseSpin = With(kKneel, {{4, 0, 90, 0}, {3, 20, 0, 0}, {11, -40, 0, -40}, {5, -40, 0, 40}});
// Turned away, the trunk tipped forward and the right leg driven straight back at head height.
constexpr Pose kRiseKick = With(kStance, {{4, 25, 180, 0},   {3, 10, 0, 0},    {2, -30, 150, 0},
                                          {8, 80, 0, 10},   {9, 6, 0, 0},     {10, 30, 0, 0},
                                          {14, -20, -8, -6}, {15, 30, 0, 0},   {11, -40, 0, -50}, {5, -40, 0, 50}});
constexpr Pose kParry = With(kStance, {{3, 0, 20, 0},     {2, 0, -40, 0},
                                       {11, -80, -30, 0}, {12, -40, 0, 0}, {13, -60, 0, 0},
                                       {5, -60, 20, 0},   {6, -70, 0, 0},  {7, -60, 0, 0},
                                       {15, 40, 0, 0},    {9, 40, 0, 0}});

// Strikes turned onto the line the opponent stands on: the whole body pivots a little toward
// the striking side's far shoulder, so the fist or foot crosses the opponent's body, not beside it.
constexpr Pose kKickOutOnLine = Plus(kKickOut, {{4, 0, -30, 0}});
constexpr Pose kCrPunchOnLine = Plus(kCrPunch, {{4, 0, -25, 0}});
constexpr Pose kHeelOutOnLine = Plus(kHeelOut, {{4, 0, -30, 0}});
constexpr Pose kAirRoundOnLine = Plus(kAirRound, {{4, 0, -35, 0}});
constexpr Pose kSpinOutOnLine = Plus(kSpinOut, {{4, 0, -25, 0}});
constexpr Pose kAirCrossOnLine = Plus(kAirCross, {{4, 0, -20, 0}});
constexpr Pose kAirChopOnLine = Plus(kAirChop, {{4, 0, -50, 0}});
constexpr Pose kAirJabOnLine = Plus(kAirJab, {{4, 0, 12, 0}});
constexpr Pose kAirElbowOnLine = Plus(kAirElbow, {{4, 0, -15, 0}});
constexpr Pose kPalmOutOnLine = Plus(kPalmOut, {{4, 0, -20, 0}});
constexpr Pose kCrossOutOnLine = Plus(kCrossOut, {{4, 0, -10, 0}});
constexpr Pose kStompOutOnLine = Plus(kStompOut, {{4, 0, -10, 0}});

constexpr fig::Vec3 Z(float z) { return {0, 0, z}; }

// ---- motions ------------------------------------------------------------------------------
constexpr Motion kMotions[] = {
    // Standing buttons 1..4; the low stance's 2 and 4.
    M("jab", 180, &kStance,
      {P(&kJabLoad, 3, Ease::Out), Cue(P(&kJabOut, 4, Ease::Snap, Z(5.0f)), kCueLight), Hit(&kJabOut, 3, 13, kHitOpen),
       Link(P(&kJabLoad, 5, Ease::InOut, Z(-1.6f))), Link(P(&kStance, 5))}),
    M("cross", 240, &kStance,
      {P(&kCrossLoad, 4, Ease::Out), Cue(P(&kCrossOutOnLine, 4, Ease::Snap, Z(0.9f)), kCueSwing), Hit(&kCrossOutOnLine, 3, 7, kHitOpen),
       Link(P(&kCrossLoad, 6, Ease::InOut, Z(-0.9f))), P(&kStance, 6)}),
    M("high_kick", 210, &kStance,
      {Cue(P(&kKickChamber, 8, Ease::Out, Z(2.4f)), kCueShout), Cue(P(&kKickOutOnLine, 5, Ease::Snap, Z(2.4f)), kCueHeavy),
       Hit(&kKickOutOnLine, 4, 10, kHitRocking), P(&kKickChamber, 8, Ease::InOut, Z(-1.6f)), Link(P(&kStance, 9, Ease::InOut, Z(-1.6f)))}),
    M("side_thrust", 290, &kStance,
      {P(&kSideChamber, 8, Ease::Out, Z(2.6f)), Cue(P(&kSideLowOut, 5, Ease::Snap, Z(3.0f)), kCueHeavy),
       Hit(&kSideLowOut, 4, 16, kHitLowHeavy), P(&kSideChamber, 8, Ease::InOut, Z(-1.8f)), Link(P(&kStance, 10, Ease::InOut, Z(-1.8f)))}),
    M("palm_low", 241, &kLow,
      {P(&kPalmLoad, 4, Ease::Out), Cue(P(&kPalmOutOnLine, 5, Ease::Linear, Z(6.4f)), kCueSwing), Hit(&kPalmOutOnLine, 4, 13, kHitHeavy),
       Link(P(&kPalmLoad, 7, Ease::InOut, Z(-2.6f))), P(&kLow, 6)}),
    M("spin_kick_low", 242, &kLow,
      {P(&kSpinLoad, 6, Ease::Out, Z(4.4f)), Cue(Plant(P(&kSpinOutOnLine, 7, Ease::Snap), 16), kCueHeavy),
       Hit(&kSpinOutOnLine, 4, 10, kHitHighHeavy), Plant(P(&kSpinHome, 10, Ease::InOut), 16), P(&kSpinHome, 4, Ease::Linear)}),
    // Crouching buttons 1, 3, 2, 4.
    M("crouch_jab", 37, &kCrouch,
      {Cue(P(&kCrJab, 4, Ease::Snap, Z(0.3f)), kCueLight), Hit(&kCrJab, 3, 13, kHitJab),
       Link(P(&kCrouch, 8, Ease::InOut, Z(-0.3f)))}),
    M("crouch_kick", 38, &kCrouch,
      {P(&kCrKickLoad, 4, Ease::Out), Cue(P(&kCrKick, 4, Ease::Snap, Z(1.2f)), kCueSwing), Hit(&kCrKick, 3, 16, kHitLowHeavy),
       Link(P(&kCrouch, 10, Ease::InOut, Z(-1.2f)))}),
    M("crouch_punch", 39, &kCrouch,
      {Cue(P(&kCrPunchOnLine, 5, Ease::Snap, Z(1.0f)), kCueSwing), Hit(&kCrPunchOnLine, 3, 7, kHitLow),
       Link(P(&kCrouch, 10, Ease::InOut, Z(-1.0f)))}),
    M("sweep", 40, &kCrouch,
      {P(&kSweepLoad, 5, Ease::Out, Z(-0.6f)), Cue(Plant(P(&kSweepOut, 5, Ease::Snap, Z(-0.6f)), 16), kCueHeavy),
       Hit(&kSweepOut, 4, 10, kHitLowHeavy), P(&kSweepLoad, 8, Ease::InOut, Z(1.2f)), P(&kCrouch, 6)}),
    // Directional attacks: forward, down-forward, back with buttons 1/2 and 3/4.
    M("lunge_punch", 181, &kStance,
      {P(&kLungeLoad, 5, Ease::Out), Cue(P(&kLungeOut, 5, Ease::Snap, Z(3.6f)), kCueSwing), Hit(&kLungeOut, 3, 13, kHitRocking),
       Link(P(&kJabLoad, 8, Ease::InOut, Z(-1.2f))), P(&kStance, 6)}),
    M("uppercut", 188, &kStance,
      {P(&kUpperDip, 6, Ease::Out, Z(3.2f)), Cue(P(&kUpperOut, 5, Ease::Snap, Z(3.6f)), kCueHeavy),
       Hit(&kUpperOut, 3, 7, kHitRocking), Link(P(&kUpperOut, 5, Ease::Linear)), P(&kStance, 10, Ease::InOut, Z(-1.8f))}),
    M("backfist", 189, &kStance,
      {P(&kBackfistLoad, 5, Ease::Out), Cue(P(&kBackfistOut, 4, Ease::Snap, Z(0.8f)), kCueSwing),
       Hit(&kBackfistOut, 3, 13, kHitOpen), Link(P(&kStance, 10, Ease::InOut, Z(-0.8f)))}),
    M("slide_kick", 211, &kStance,
      {P(&kSlideLoad, 5, Ease::Out), Cue(P(&kSlideOut, 6, Ease::Out, Z(2.4f)), kCueFall), Hit(&kSlideOut, 5, 16, kHitLowHeavy, Z(0.8f)),
       Link(P(&kCrouch, 8, Ease::InOut, Z(-1.2f))), P(&kStance, 8)}),
    M("spinning_heel", 216, &kStance,
      {P(&kHeelLoad, 6, Ease::Out, Z(0.6f)), Cue(Plant(P(&kHeelOutOnLine, 7, Ease::Snap), 16), kCueHeavy),
       Hit(&kHeelOutOnLine, 3, 10, kHitHeavy), Link(Plant(P(&kHeelHome, 10, Ease::InOut), 16)), P(&kHeelHome, 4, Ease::Linear)}),
    M("flying_kick", 217, &kStance,
      {P(&kFlyLoad, 5, Ease::Out), Cue(P(&kFlyOut, 6, Ease::Out, {0, 2.2f, 2.6f}), kCueHeavy),
       Hit(&kFlyOut, 4, 16, kHitHeavy, Z(0.6f)), Link(Cue(P(&kFlyLand, 5, Ease::In, {0, -2.2f, 0.2f}), kCueLand)),
       P(&kStance, 7, Ease::InOut)}),
    M("stomp_kick", 250, &kStance,
      {P(&kStompLoad, 5, Ease::Out, Z(0.6f)), Cue(P(&kStompOutOnLine, 4, Ease::Snap, Z(1.0f)), kCueSwing),
       Hit(&kStompOutOnLine, 3, 10, kHitLowHeavy), Link(P(&kStance, 9, Ease::InOut, Z(-1.6f)))}),
    // In the air: vertical (325, 327, 219, 298) and diagonal (326, 328, 229, 289) jumps.
    M("air_jab", 325, &kAirTuck,
      {Cue(P(&kAirJabOnLine, 4, Ease::Snap), kCueLight), Hit(&kAirJabOnLine, 4, 13, kHitHigh7), P(&kAirTuck, 6)}, false),
    M("air_cross", 326, &kAirTuck,
      {Cue(P(&kAirCrossOnLine, 4, Ease::Snap), kCueLight), Hit(&kAirCrossOnLine, 4, 7, kHitHigh), P(&kAirTuck, 6)}, false),
    M("air_chop", 327, &kAirTuck,
      {P(&kAirChopLoad, 4, Ease::Out), Cue(P(&kAirChopOnLine, 3, Ease::Snap), kCueSwing), Hit(&kAirChopOnLine, 4, 7, kHitMid7),
       P(&kAirTuck, 6)}, false),
    M("air_elbow", 328, &kAirTuck,
      {Cue(P(&kAirElbowOnLine, 5, Ease::Snap), kCueSwing), Hit(&kAirElbowOnLine, 5, 6, kHitMid7), P(&kAirTuck, 6)}, false),
    M("air_kick", 219, &kAirTuck,
      {Cue(P(&kAirKick, 4, Ease::Snap), kCueSwing), Hit(&kAirKick, 5, 16, kHitMid7), P(&kAirTuck, 6)}, false),
    M("air_double_kick", 229, &kAirTuck,
      {Cue(P(&kAirDoubleKick, 4, Ease::Snap), kCueSwing), Hit(&kAirDoubleKick, 6, 16, kHitMid7), P(&kAirTuck, 6)}, false),
    M("air_roundhouse", 298, &kAirTuck,
      {Cue(P(&kAirRoundOnLine, 5, Ease::Snap), kCueHeavy), Hit(&kAirRoundOnLine, 4, 10, kHitHigh7), P(&kAirTuck, 6)}, false),
    M("air_side_kick", 289, &kAirTuck,
      {Cue(P(&kAirSide, 5, Ease::Snap), kCueHeavy), Hit(&kAirSide, 6, 16, kHitHigh7), P(&kAirTuck, 6)}, false),
    // From guard: both palms driven out, unblockable; the fighter stays safe for most of it.
    M("guard_burst", 331, &kGuard,
      {Cue(P(&kBurstLoad, 12, Ease::InOut), kCueShout), Cue(P(&kBurstOut, 4, Ease::Snap, Z(1.2f)), kCueHeavy),
       Hit(&kBurstOut, 6, 13, 400 + kHitUnblockable), P(&kBurstOut, 14, Ease::Linear), P(&kGuard, 14, Ease::InOut, Z(-1.2f)),
       P(&kStance, 10)}),
    // Up off the floor into a spinning kick.
    M("ground_counter", 522, &kKneel,
      {Cue(P(&kRiseSpin, 8, Ease::Out), kCueShout), Cue(Plant(P(&kRiseKick, 6, Ease::Snap, Z(2.2f)), 16), kCueHeavy),
       Hit(&kRiseKick, 4, 10, kHitHeavy), Plant(P(&kHeelHome, 12, Ease::InOut, Z(-2.2f)), 16), P(&kHeelHome, 16, Ease::Linear)}),
    // The parry: open hands waiting for a blow.
    M("counter_stance", 138, &kStance,
      {P(&kParry, 4, Ease::Snap), P(&kParry, 14, Ease::Linear), P(&kStance, 10)}),
};

// The root-to-root distances each attack's strike reaches (the defender's front being about
// 0.8 in front of its root once its boxes are widened). The computer throws its standing
// blows from about ten units off, so those step in that far.
constexpr Reach kReaches[] = {
    {180, 9.5f, 12.0f},  // jab: a step in
    {240, 5.0f, 7.0f},   // cross
    {210, 9.0f, 11.5f},  // high kick
    {290, 11.0f, 13.5f}, // stop kick: the long poke
    {241, 11.0f, 13.5f}, // palm in the low stance, behind a long step
    {242, 11.0f, 13.0f}, // spinning back kick
    {37, 4.5f, 6.5f},    // crouching jab
    {38, 6.0f, 8.5f},    // crouching kick
    {39, 4.5f, 7.0f},    // crouching punch
    {40, 5.5f, 8.0f},     // sweep: from close in
    {181, 7.0f, 11.0f},  // lunge punch
    {188, 9.0f, 11.0f},  // uppercut
    {189, 5.0f, 7.0f},   // backfist
    {211, 9.5f, 12.0f},  // slide kick
    {216, 7.5f, 9.5f},   // spinning heel kick
    {217, 9.0f, 11.5f},  // flying kick
    {250, 6.0f, 8.5f},   // stomp kick
    {331, 5.0f, 7.5f},   // guard burst
    {522, 7.0f, 9.5f},   // ground counter
};

}  // namespace

std::span<const Motion> Mot_AttackMotions() { return kMotions; }
std::span<const Reach> Mot_AttackReaches() { return kReaches; }

}  // namespace mot::shared
