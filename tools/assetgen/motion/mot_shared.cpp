// The first shared motions: idles, walks, a jab, a high kick, crouching, guarding, a hit
// reaction, a knock-down and a victory pose. Angles in degrees (see mot_pose.h for the senses:
// X < 0 swings a hanging limb forward, X > 0 bends a knee or leans the trunk forward, Y > 0
// turns the front toward the figure's right, Z > 0 lifts a right-side limb outward).
#include "motion/mot_shared.h"

#include <initializer_list>

namespace mot {
namespace {

struct Turn {
  int part;
  float x, y, z;
};

Pose Make(std::initializer_list<Turn> turns, fig::Vec3 root = {}) {
  Pose p;
  p.root = root;
  for (const Turn& t : turns) {
    p.ang[t.part][0] = t.x;
    p.ang[t.part][1] = t.y;
    p.ang[t.part][2] = t.z;
  }
  return p;
}

// Copies `base` and overrides some turns.
Pose With(const Pose& base, std::initializer_list<Turn> turns, fig::Vec3 root_shift = {}) {
  Pose p = base;
  p.root = p.root + root_shift;
  for (const Turn& t : turns) {
    p.ang[t.part][0] = t.x;
    p.ang[t.part][1] = t.y;
    p.ang[t.part][2] = t.z;
  }
  return p;
}

// ---- poses --------------------------------------------------------------------------------
// Orthodox stance: left side leading, hips turned a third of the way, fists up.
const Pose kStance = Make({{4, 0, 28, 0},     {3, 8, 12, 0},     {2, -4, -36, 0},
                           {11, -42, 0, -12}, {12, -100, 20, 0}, {13, 10, 0, 0},
                           {5, -22, 0, 18},   {6, -118, -25, 0}, {7, 10, 0, 0},
                           {14, -26, -8, -4}, {15, 30, 0, 0},    {16, -6, 10, 0},
                           {8, 14, -6, 6},    {9, 26, 0, 0},     {10, -18, 0, 0}});
const Pose kStanceIn = With(kStance, {{3, 5, 12, 0}, {2, -6, -36, 0}, {11, -44, 0, -14}, {5, -24, 0, 20}});
const Pose kStanceOut = With(kStance, {{3, 11, 12, 0}, {2, -2, -36, 0}, {15, 36, 0, 0}, {9, 32, 0, 0},
                                       {14, -30, -8, -4}, {8, 12, -6, 6}});

// Low stance (stance 23): wide, deep, lead hand open and forward.
const Pose kLow = Make({{4, 6, 40, 0},     {3, 12, 10, 0},    {2, -10, -46, 0},
                        {11, -70, 10, -8}, {12, -40, 20, 0},  {13, -20, 0, 0},
                        {5, -10, 0, 30},   {6, -100, -30, 0}, {7, 10, 0, 0},
                        {14, -40, -10, -14}, {15, 48, 0, 0},  {16, -8, 12, 0},
                        {8, 18, -8, 16},   {9, 44, 0, 0},     {10, -30, 0, 0}});
const Pose kLowIn = With(kLow, {{3, 9, 10, 0}, {11, -72, 10, -10}, {15, 44, 0, 0}, {9, 40, 0, 0}});
const Pose kLowOut = With(kLow, {{3, 15, 10, 0}, {15, 54, 0, 0}, {9, 50, 0, 0}, {14, -44, -10, -14}});

// Walking: lead foot reaches, rear foot follows.
const Pose kStepLead = With(kStance, {{14, -46, -8, -4}, {15, 40, 0, 0}, {16, -10, 10, 0},
                                      {8, 18, -6, 6}, {9, 20, 0, 0}, {10, -12, 0, 0}, {3, 10, 12, 0}});
const Pose kStepLeadUp = With(kStance, {{14, -40, -8, -4}, {15, 62, 0, 0}, {16, 6, 10, 0}, {3, 9, 12, 0}});
const Pose kStepRear = With(kStance, {{14, -18, -8, -4}, {15, 18, 0, 0}, {16, -2, 10, 0},
                                      {8, -10, -6, 6}, {9, 58, 0, 0}, {10, -10, 0, 0}, {3, 7, 12, 0}});
const Pose kStepBack = With(kStance, {{8, 30, -6, 6}, {9, 40, 0, 0}, {10, -30, 0, 0},
                                      {14, -10, -8, -4}, {15, 22, 0, 0}, {3, 6, 12, 0}});
const Pose kStepBackLift = With(kStance, {{8, 4, -6, 6}, {9, 70, 0, 0}, {10, -10, 0, 0}, {3, 7, 12, 0}});

// Jab with the lead (left) hand: hips and shoulders turn it out to full reach.
const Pose kJabLoad = With(kStance, {{3, 10, 6, 0}, {11, -50, 0, -10}, {12, -110, 20, 0}});
const Pose kJabOut = With(kStance, {{4, 0, 40, 0},     {3, 14, 26, 0},  {2, -4, -62, 0},
                                    {11, -90, -60, 0}, {12, -4, 0, 0},  {13, 0, 0, 0},
                                    {5, -30, 0, 16},   {6, -120, -25, 0},
                                    {14, -36, -8, -4}, {15, 30, 0, 0}, {16, -2, 10, 0}});

// High kick with the rear (right) leg, turning over the lead foot.
const Pose kKickChamber = With(kStance, {{4, -10, 10, 0},   {3, 0, 20, 0},    {2, 4, -26, 0},
                                         {8, -100, 0, 10},  {9, 110, 0, 0},   {10, 30, 0, 0},
                                         {14, -16, -8, -4}, {15, 16, 0, 0},   {16, -2, 10, 0},
                                         {11, -40, 0, -30}, {5, -10, 0, 40}});
const Pose kKickOut = With(kStance, {{4, -30, 0, 10},   {3, -8, 20, 0},   {2, 12, -22, 0},
                                     {8, -104, 10, 14}, {9, 6, 0, 0},     {10, 40, 0, 0},
                                     {14, 6, -8, -6},   {15, 10, 0, 0},   {16, -14, 10, 0},
                                     {11, -30, 0, -50}, {12, -90, 0, 0},  {5, 10, 0, 40}, {6, -60, 0, 0}});

// Crouching: knees deep, trunk forward, guard kept.
const Pose kCrouch = With(kStance, {{4, 20, 28, 0},    {3, 16, 12, 0},   {2, -20, -36, 0},
                                    {14, -88, -8, -6}, {15, 116, 0, 0},  {16, -26, 10, 0},
                                    {8, -40, -6, 10},  {9, 128, 0, 0},   {10, -60, 0, 0}});
// Guard: forearms closed in front of the face, weight back.
const Pose kGuard = With(kStance, {{3, 4, 4, 0},       {2, 10, -30, 0},
                                   {11, -58, 0, 14},   {12, -124, 30, 0},
                                   {5, -56, 0, -14},   {6, -124, -30, 0},
                                   {15, 34, 0, 0},     {9, 32, 0, 0}});
// Hit in the body: folds forward, head snaps.
const Pose kHurt = With(kStance, {{4, -8, 20, 0},  {3, 28, 4, 0},    {2, 24, -30, 10},
                                  {11, -20, 0, -30}, {12, -60, 0, 0}, {5, -10, 0, 30}, {6, -70, 0, 0},
                                  {15, 40, 0, 0},  {9, 40, 0, 0}});
// Knock-down: thrown back, then flat on the floor.
const Pose kFallBack = Make({{4, -45, 10, 0},   {3, -20, 0, 0},   {2, -25, 0, 0},
                             {11, -120, 0, -40}, {12, -30, 0, 0}, {5, -120, 0, 40}, {6, -30, 0, 0},
                             {14, -50, 0, -6},  {15, 50, 0, 0},   {8, -30, 0, 6},   {9, 30, 0, 0}},
                            {0, 0, -1.0f});
const Pose kLying = Make({{4, -90, 0, 0},    {3, 0, 0, 0},     {2, -10, 20, 0},
                          {11, -150, 0, -30}, {12, -20, 0, 0}, {5, -170, 0, 40}, {6, -10, 0, 0},
                          {14, -10, 0, -8},  {15, 14, 0, 0},   {16, 40, 0, 0},
                          {8, -4, 0, 10},    {9, 6, 0, 0},     {10, 40, 0, 0}},
                         {0, 0, -2.6f});
// Victory: stands tall, right fist thrust up, then settles.
const Pose kWinRise = Make({{4, 0, 10, 0},   {3, -4, 0, 0},   {2, -6, -10, 0},
                            {5, -150, 0, 30}, {6, -40, 0, 0}, {11, 0, 0, -14}, {12, -90, 0, 0},
                            {14, -6, 0, -6}, {15, 8, 0, 0},  {8, 4, 0, 8},    {9, 6, 0, 0}});
const Pose kWinHold = With(kWinRise, {{5, -170, 0, 14}, {6, -10, 0, 0}, {2, -14, -10, 0}, {3, -6, 0, 0}});

// ---- motions ------------------------------------------------------------------------------
constexpr Phase P(const Pose* pose, int frames, Ease ease, int strike_part = 0, int hit = 0, int cue = -1,
                  bool link = false, fig::Vec3 travel = {}) {
  Phase ph;
  ph.pose = pose;
  ph.frames = frames;
  ph.ease = ease;
  ph.strike_part = strike_part;
  ph.hit = hit;
  ph.cue = cue;
  ph.link = link;
  ph.travel = travel;
  return ph;
}

// Cue numbers: 1 a short whoosh, 2 a heavy whoosh, 22 the attack shout, 14 a body falling,
// 80 a footfall.
constexpr int kCueWhoosh = 1, kCueHeavy = 2, kCueShout = 22, kCueFall = 14, kCueStep = 80;

const Motion kMotions[] = {
    {"idle", 0, &kStance,
     {P(&kStanceIn, 28, Ease::InOut), P(&kStance, 20, Ease::InOut), P(&kStanceOut, 28, Ease::InOut),
      P(&kStance, 20, Ease::InOut)},
     4},
    {"idle_low", 23, &kLow,
     {P(&kLowIn, 30, Ease::InOut), P(&kLow, 22, Ease::InOut), P(&kLowOut, 30, Ease::InOut), P(&kLow, 22, Ease::InOut)},
     4},
    {"walk_forward", 1, &kStance,
     {P(&kStepLeadUp, 6, Ease::Out), P(&kStepLead, 6, Ease::In, 0, 0, kCueStep), P(&kStepRear, 8, Ease::InOut),
      P(&kStance, 6, Ease::Out, 0, 0, kCueStep)},
     4},
    {"walk_back", 2, &kStance,
     {P(&kStepBackLift, 7, Ease::Out), P(&kStepBack, 6, Ease::In, 0, 0, kCueStep), P(&kStance, 9, Ease::InOut, 0, 0, kCueStep)},
     3},
    {"jab", 180, &kStance,
     {P(&kJabLoad, 3, Ease::Out),
      P(&kJabOut, 4, Ease::Snap, 0, 0, kCueWhoosh, false, {0, 0, 0.55f}),
      P(&kJabOut, 3, Ease::Linear, 13, 1),
      P(&kJabLoad, 5, Ease::InOut, 0, 0, -1, true, {0, 0, -0.55f}),
      P(&kStance, 5, Ease::InOut, 0, 0, -1, true)},
     5},
    {"high_kick", 210, &kStance,
     {P(&kKickChamber, 8, Ease::Out, 0, 0, kCueShout, false, {0, 0, 1.6f}),
      P(&kKickOut, 5, Ease::Snap, 0, 0, kCueHeavy, false, {0, 0, 1.6f}),
      P(&kKickOut, 4, Ease::Linear, 10, 2),
      P(&kKickChamber, 8, Ease::InOut, 0, 0, -1, false, {0, 0, -1.6f}),
      P(&kStance, 9, Ease::InOut, 0, 0, -1, true, {0, 0, -1.6f})},
     5},
    {"crouch_down", 30, &kStance, {P(&kCrouch, 8, Ease::Out)}, 1},
    {"crouch_hold", 32, &kCrouch, {P(&kCrouch, 30, Ease::Linear)}, 1},
    {"crouch_up", 31, &kCrouch, {P(&kStance, 8, Ease::InOut)}, 1},
    {"guard", 8, &kStance, {P(&kGuard, 4, Ease::Out), P(&kGuard, 8, Ease::Linear), P(&kStance, 6, Ease::InOut)}, 3},
    {"hit_body", 150, &kStance,
     {P(&kHurt, 4, Ease::Snap, 0, 0, -1, false, {0, 0, -0.4f}), P(&kHurt, 6, Ease::Linear),
      P(&kStance, 12, Ease::InOut, 0, 0, -1, false, {0, 0, 0.0f})},
     3},
    {"knock_down", 170, &kStance,
     {P(&kHurt, 4, Ease::Snap, 0, 0, -1, false, {0, 0, -0.6f}),
      P(&kFallBack, 16, Ease::In, 0, 0, -1, false, {0, 0, -2.0f}),
      P(&kLying, 10, Ease::In, 2, 5, kCueFall, false, {0, 0, -1.0f}),
      P(&kLying, 30, Ease::Linear)},
     4},
    {"victory", 12, &kStance,
     {P(&kWinRise, 18, Ease::InOut, 0, 0, kCueStep), P(&kWinHold, 10, Ease::Snap, 0, 0, kCueShout),
      P(&kWinHold, 40, Ease::Linear, 0, 0, kCueStep)},
     3},
};
constexpr int kMotionCount = sizeof(kMotions) / sizeof(kMotions[0]);

constexpr Reach kReaches[] = {
    {180, 5.0f, 6.5f},   // jab
    {210, 7.5f, 9.5f},   // high kick
};

}  // namespace

int Mot_SharedCount() { return kMotionCount; }
const Motion& Mot_Shared(int index) { return kMotions[index < 0 ? 0 : (index >= kMotionCount ? kMotionCount - 1 : index)]; }
const Motion* Mot_SharedByAction(int action) {
  for (const Motion& m : kMotions)
    if (m.action == action) return &m;
  return nullptr;
}
int Mot_ReachCount() { return sizeof(kReaches) / sizeof(kReaches[0]); }
const Reach& Mot_ReachOf(int index) { return kReaches[index]; }
const Pose& Mot_StancePose() { return kStance; }

}  // namespace mot
