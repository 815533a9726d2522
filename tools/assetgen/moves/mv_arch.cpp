// The move kinds: poses as turns away from the fighting stance, beats as tables. Angles in
// degrees: X < 0 swings a limb forward, X > 0 bends a knee or leans the trunk forward, Y > 0
// turns the front toward the figure's right, Z > 0 lifts a right-side limb outward. The
// stance leads with the left side: "lead" is the left hand and foot, "rear" the right.
#include "moves/mv_arch.h"

#include <array>

#include "moves/mv_pose.h"
#include "motion/mot_shared.h"

namespace mv {
namespace {

using mot::Ease;
using mot::Pose;
constexpr Limb kNo = Limb::None, kLH = Limb::LeadHand, kRH = Limb::RearHand, kLF = Limb::LeadFoot,
               kRF = Limb::RearFoot, kRK = Limb::RearKnee, kWp = Limb::Weapon, kBd = Limb::Body;

constexpr Beat B(int pose, int frames, Ease ease, Limb limb = Limb::None, int hit = 0, int cue = -1,
                 bool link = false, float forward = 0, float up = 0) {
  return Beat{static_cast<std::int8_t>(pose), static_cast<std::int8_t>(frames), ease, limb,
              static_cast<std::int8_t>(hit), static_cast<std::int16_t>(cue), link, forward, up, true};
}

// ---- poses --------------------------------------------------------------------------------
// Each kind's poses, in the order its beats name them.
std::vector<Pose> Rush_Poses(const Pose& s) {
  const Pose load = Pose_With(s, {{4, 0, 10, 0}, {3, 20, 0, 0}, {2, -10, 0, 0}, {5, -30, 0, 20}, {6, -120, -20, 0},
                                  {11, -30, 0, -20}, {12, -120, 20, 0}, {15, 40, 0, 0}, {9, 40, 0, 0}},
                              {0, -0.3f, 0});
  const Pose lead = Pose_With(s, {{4, 0, 30, 0}, {3, 12, 20, 0}, {2, -4, -40, 0}, {11, -88, -45, 0}, {12, -5, 0, 0},
                                  {13, 0, 0, 0}, {5, -30, 0, 20}, {6, -125, -20, 0}});
  const Pose rear = Pose_With(s, {{4, 0, -5, 0}, {3, 14, -20, 0}, {2, -4, -10, 0}, {5, -88, 45, 0}, {6, -5, 0, 0},
                                  {11, -30, 0, -20}, {12, -125, 20, 0}});
  const Pose finish = Pose_With(s, {{4, 5, -15, 0}, {3, 20, -25, 0}, {2, -10, 0, 0}, {5, -92, 50, 0}, {6, 0, 0, 0},
                                    {11, -20, 0, -30}, {12, -100, 0, 0}, {14, -50, -8, -4}, {15, 60, 0, 0},
                                    {8, 30, -6, 6}, {9, 10, 0, 0}, {10, -10, 0, 0}},
                                {0, -0.4f, 0});
  return {load, lead, rear, finish};
}

std::vector<Pose> Uppercut_Poses(const Pose& s) {
  const Pose low = Pose_With(s, {{4, 15, 0, 0}, {3, 25, -20, 0}, {2, -20, 0, 0}, {5, 10, 0, 20}, {6, -100, 0, 0},
                                 {11, -40, 0, -20}, {12, -120, 20, 0}, {14, -70, -8, -6}, {15, 100, 0, 0},
                                 {16, -30, 10, 0}, {8, -20, -6, 10}, {9, 100, 0, 0}, {10, -40, 0, 0}});
  const Pose up = Pose_With(s, {{4, -10, -20, 0}, {3, -15, -25, 0}, {2, -20, -10, 0}, {5, -170, 20, 10}, {6, -30, 0, 0},
                                {11, -20, 0, -40}, {12, -60, 0, 0}, {14, -20, -8, -4}, {15, 10, 0, 0},
                                {16, 20, 10, 0}, {8, 20, -6, 6}, {9, 30, 0, 0}, {10, 30, 0, 0}});
  return {low, up};
}

std::vector<Pose> Spin_Poses(const Pose& s) {
  const Pose chamber = Pose_With(s, {{4, -5, -60, 0}, {3, 0, -10, 0}, {2, 0, 40, 0}, {8, -90, 0, 30}, {9, 110, 0, 0},
                                     {10, 20, 0, 0}, {14, -10, -8, -4}, {15, 15, 0, 0}, {5, -20, 0, 50},
                                     {6, -60, 0, 0}, {11, -20, 0, -50}, {12, -60, 0, 0}});
  const Pose out = Pose_With(chamber, {{4, 0, -95, -10}, {3, -10, 0, 0}, {2, 0, 60, 0}, {8, -10, 0, 85}, {9, 5, 0, 0},
                                       {10, 30, 0, 0}});
  const Pose through = Pose_With(chamber, {{4, -5, -220, 0}, {8, -40, 0, 20}, {9, 60, 0, 0}});
  const Pose done = Pose_Spun(s, -360);
  return {chamber, out, through, done, Pose_Spun(chamber, -360), Pose_Spun(out, -360), Pose_Spun(through, -360),
          Pose_Spun(s, -720)};
}

std::vector<Pose> Palms_Poses(const Pose& s) {
  const Pose wind = Pose_With(s, {{4, 0, -40, 0}, {3, 5, -20, 0}, {2, 0, 30, 0}, {5, 20, 30, 30}, {6, -90, 0, 0},
                                  {11, -50, 40, -10}, {12, -90, 30, 0}, {15, 45, 0, 0}, {9, 45, 0, 0}},
                              {0, -0.5f, 0});
  const Pose push = Pose_With(s, {{4, 0, 20, 0}, {3, 10, 10, 0}, {2, 0, -30, 0}, {5, -85, 40, 0}, {6, -10, 0, 0},
                                  {11, -85, -40, 0}, {12, -10, 0, 0}, {14, -45, -8, -4}, {15, 50, 0, 0},
                                  {8, 25, -6, 6}, {9, 10, 0, 0}});
  return {wind, push};
}

std::vector<Pose> Throw_Poses(const Pose& s) {
  const Pose wind = Pose_With(s, {{4, 0, -30, 0}, {3, -10, -20, 0}, {2, 0, 40, 0}, {5, -160, 0, 30}, {6, -60, 0, 0},
                                  {11, -60, 0, -20}, {12, -60, 0, 0}, {9, 40, 0, 0}});
  const Pose release = Pose_With(s, {{4, 10, 30, 0}, {3, 25, 20, 0}, {2, -10, -40, 0}, {5, -100, 30, 0},
                                     {6, -10, 0, 0}, {11, -20, 0, -30}, {12, -90, 0, 0}, {14, -45, -8, -4},
                                     {15, 45, 0, 0}});
  return {wind, release};
}

std::vector<Pose> Blades_Poses(const Pose& s) {
  const Pose raise = Pose_With(s, {{3, 0, -10, 0}, {5, -150, 0, 50}, {6, -60, 0, 0}, {19, 0, 0, 0}});
  const Pose cut1 = Pose_With(s, {{4, 0, 40, 0}, {3, 20, 30, 0}, {2, 0, -50, 0}, {5, -70, -40, 0}, {6, -20, 0, 0},
                                  {14, -40, -8, -4}, {15, 45, 0, 0}});
  const Pose across = Pose_With(s, {{4, 0, 30, 0}, {3, 10, 20, 0}, {5, -90, -60, 20}, {6, -100, 0, 0}});
  const Pose cut2 = Pose_With(s, {{4, 0, -10, 0}, {3, 10, -30, 0}, {2, 0, 10, 0}, {5, -90, 60, 40}, {6, -5, 0, 0}});
  const Pose thrust = Pose_With(s, {{4, 5, 10, 0}, {3, 15, 0, 0}, {5, -95, 30, 0}, {6, 0, 0, 0}, {14, -55, -8, -4},
                                    {15, 60, 0, 0}, {8, 30, -6, 6}, {9, 10, 0, 0}},
                                {0, -0.4f, 0});
  return {raise, cut1, across, cut2, thrust};
}

std::vector<Pose> Grab_Poses(const Pose& s) {
  const Pose load = Pose_With(s, {{3, 20, 0, 0}, {5, -40, 0, 60}, {6, -60, 0, 0}, {11, -40, 0, -60}, {12, -60, 0, 0},
                                  {15, 45, 0, 0}, {9, 45, 0, 0}},
                              {0, -0.5f, 0});
  const Pose reach = Pose_With(s, {{4, 10, 0, 0}, {3, 25, 0, 0}, {2, -15, 0, 0}, {5, -80, 30, 10}, {6, -20, 0, 0},
                                   {11, -80, -30, -10}, {12, -20, 0, 0}, {14, -55, -8, -4}, {15, 55, 0, 0},
                                   {8, 30, -6, 6}, {9, 15, 0, 0}},
                               {0, -0.4f, 0});
  return {load, reach};
}

std::vector<Pose> Charge_Poses(const Pose& s) {
  // Turned to drive the rear shoulder in, low behind it: the rear forearm raised across the chest
  // as a ram, the lead hand braced against it, the head tucked in.
  const Pose load = Pose_With(s, {{4, 5, -50, 0}, {3, 20, -30, 0}, {2, 8, 40, 0}, {5, -72, -40, 0}, {6, -112, 0, 0},
                                  {7, 0, 0, 0}, {11, -62, 30, 0}, {12, -105, 0, 0}, {15, 45, 0, 0}, {9, 45, 0, 0}},
                              {0, -0.4f, 0});
  const Pose hit = Pose_With(load, {{4, 15, -70, 0}, {3, 25, -20, 0}, {14, -60, -8, -4}, {15, 60, 0, 0},
                                    {8, 30, -6, 6}, {9, 5, 0, 0}});
  return {load, hit};
}

std::vector<Pose> FlyingKick_Poses(const Pose& s) {
  const Pose crouch = Uppercut_Poses(s)[0];
  const Pose air = Pose_With(s, {{4, -20, 10, 0}, {3, -10, 0, 0}, {2, 10, -10, 0}, {14, -80, -8, -4}, {15, 0, 0, 0},
                                 {16, 20, 10, 0}, {8, -60, 0, 10}, {9, 120, 0, 0}, {5, -20, 0, 60}, {6, -40, 0, 0},
                                 {11, -60, 0, -40}, {12, -60, 0, 0}});
  return {crouch, air};
}

std::vector<Pose> Sweep_Poses(const Pose& s) {
  const Pose low = Pose_With(s, {{4, 30, 40, 0}, {3, 30, 0, 0}, {2, -30, 0, 0}, {14, -100, -8, -10}, {15, 140, 0, 0},
                                 {16, -40, 10, 0}, {8, -10, 0, 70}, {9, 5, 0, 0}, {10, 20, 0, 0}, {5, -60, 0, 20},
                                 {6, -20, 0, 0}, {11, -70, 0, -20}, {12, -20, 0, 0}},
                             {0, -2.0f, 0});
  const Pose spin = Pose_With(low, {{4, 30, -140, 0}});
  return {low, spin, Pose_Spun(s, -360)};
}

std::vector<Pose> HeelDrop_Poses(const Pose& s) {
  const Pose up = Pose_With(s, {{4, -15, 10, 0}, {3, -10, 0, 0}, {14, -150, -8, -4}, {15, 0, 0, 0}, {16, 20, 10, 0},
                                {5, -20, 0, 50}, {11, -20, 0, -50}, {8, 0, -6, 6}, {9, 10, 0, 0}});
  const Pose down = Pose_With(up, {{4, 10, 20, 0}, {3, 20, 0, 0}, {14, -50, -8, -4}, {15, 10, 0, 0}, {16, 10, 10, 0}});
  return {up, down};
}

std::vector<Pose> Straight_Poses(const Pose& s) {
  const Pose load = Pose_With(s, {{4, 0, 45, 0}, {3, 0, 20, 0}, {5, -10, 0, 20}, {6, -130, -20, 0}, {9, 40, 0, 0}});
  return {load, Rush_Poses(s)[3]};
}

std::vector<Pose> FlyingKnee_Poses(const Pose& s) {
  const Pose crouch = Uppercut_Poses(s)[0];
  const Pose knee = Pose_With(s, {{4, -10, 0, 0}, {3, -15, 0, 0}, {8, -110, 0, 0}, {9, 140, 0, 0}, {10, 30, 0, 0},
                                  {5, -60, 0, 10}, {6, -100, 0, 0}, {11, -60, 0, -10}, {12, -100, 0, 0},
                                  {14, 0, -8, -4}, {15, 20, 0, 0}});
  return {crouch, knee};
}

std::vector<Pose> Backfist_Poses(const Pose& s) {
  const Pose turn = Pose_With(s, {{4, 0, -120, 0}, {3, 5, -10, 0}, {2, 0, 60, 0}, {11, -80, 60, -10},
                                  {12, -120, 0, 0}});
  const Pose out = Pose_With(s, {{4, 0, -270, 0}, {3, 5, 0, 0}, {2, 0, -60, 0}, {11, 0, 0, -85}, {12, -10, 0, 0}});
  return {turn, out, Pose_Spun(s, -360)};
}

std::vector<Pose> TwinKick_Poses(const Pose& s) {
  const Pose front = Pose_With(s, {{4, -15, 20, 0}, {3, -10, 0, 0}, {8, -85, 0, 6}, {9, 10, 0, 0}, {10, 40, 0, 0}});
  const Pose tuck = Pose_With(s, {{4, -10, 20, 0}, {8, -60, 0, 6}, {9, 120, 0, 0}, {14, -60, -8, -4}, {15, 110, 0, 0}});
  const Pose high = Pose_With(s, {{4, -25, 30, 0}, {3, -10, 0, 0}, {14, -110, -8, -4}, {15, 5, 0, 0}, {16, 30, 10, 0},
                                  {8, -50, 0, 6}, {9, 110, 0, 0}, {5, -20, 0, 50}, {11, -20, 0, -50}});
  return {front, tuck, high};
}

// A gathering pose for super moves: arms flung out, weight sunk.
Pose Flash_Pose(const Pose& s) {
  return Pose_With(s, {{4, 0, 0, 0}, {3, -10, 0, 0}, {2, -15, 0, 0}, {5, -30, 0, 70}, {6, -90, 0, 0}, {11, -30, 0, -70},
                       {12, -90, 0, 0}, {14, -30, -8, -20}, {8, 10, -6, 20}, {15, 50, 0, 0}, {9, 50, 0, 0}},
                   {0, -0.6f, 0});
}

std::vector<Pose> SuperRush_Poses(const Pose& s) {
  std::vector<Pose> p = Rush_Poses(s);  // 0..3
  std::vector<Pose> u = Uppercut_Poses(s);
  p.push_back(u[0]);  // 4
  p.push_back(u[1]);  // 5
  p.push_back(Flash_Pose(s));  // 6
  return p;
}

std::vector<Pose> SuperSpin_Poses(const Pose& s) {
  std::vector<Pose> p = Spin_Poses(s);  // 0..7
  for (const Pose& h : HeelDrop_Poses(s)) p.push_back(Pose_Spun(h, -720));  // 8, 9
  p.push_back(Flash_Pose(s));  // 10
  return p;
}

std::vector<Pose> SuperGrab_Poses(const Pose& s) {
  std::vector<Pose> p = Grab_Poses(s);
  p.push_back(Flash_Pose(s));
  return p;
}

std::vector<Pose> SuperBlades_Poses(const Pose& s) {
  std::vector<Pose> p = Blades_Poses(s);
  p.push_back(Flash_Pose(s));
  return p;
}

std::vector<Pose> SuperPalms_Poses(const Pose& s) {
  std::vector<Pose> p = Palms_Poses(s);
  p.push_back(Flash_Pose(s));
  return p;
}

std::vector<Pose> LowPalm_Poses(const Pose& low) {
  const Pose load = Pose_With(low, {{3, 8, 0, 0}, {11, -40, 20, -10}, {12, -120, 0, 0}});
  const Pose out = Pose_With(low, {{4, 6, 60, 0}, {3, 18, 20, 0}, {2, -10, -60, 0}, {11, -88, -50, 0}, {12, 0, 0, 0},
                                   {13, 40, 0, 0}});
  return {load, out};
}

std::vector<Pose> LowKick_Poses(const Pose& low) {
  const Pose chamber = Pose_With(low, {{4, 0, 20, 0}, {8, -100, 0, 10}, {9, 120, 0, 0}, {3, 0, 10, 0}});
  const Pose out = Pose_With(low, {{4, -20, 10, 0}, {3, -5, 10, 0}, {8, -90, 0, 10}, {9, 0, 0, 0}, {10, 50, 0, 0}});
  return {chamber, out};
}

std::vector<Pose> VictoryFist_Poses(const Pose& s) {
  const Pose rise = Pose_Make({{4, 0, 10, 0}, {3, -4, 0, 0}, {2, -6, -10, 0}, {5, -150, 0, 30}, {6, -40, 0, 0},
                               {11, 0, 0, -14}, {12, -90, 0, 0}, {14, -6, 0, -6}, {15, 8, 0, 0}, {8, 4, 0, 8},
                               {9, 6, 0, 0}});
  const Pose hold = Pose_With(rise, {{5, -172, 0, 12}, {6, -8, 0, 0}, {2, -16, -10, 0}, {3, -6, 0, 0}});
  (void)s;
  return {rise, hold};
}

std::vector<Pose> VictoryBow_Poses(const Pose&) {
  // Fist in palm before the chest: the upper arms turned in so the hands meet.
  const Pose stand = Pose_Make({{5, -55, -35, 0}, {6, -75, 0, 0}, {11, -55, 35, 0}, {12, -75, 0, 0}, {14, 0, 0, -4},
                                {8, 0, 0, 4}});
  const Pose bow = Pose_With(stand, {{3, 35, 0, 0}, {2, 20, 0, 0}});
  return {stand, bow};
}

std::vector<Pose> VictoryArms_Poses(const Pose&) {
  const Pose fold = Pose_Make({{3, -6, 0, 0}, {2, -12, 10, 0}, {5, -30, -50, 0}, {6, -60, 0, 0}, {11, -36, 50, 0},
                               {12, -64, 0, 0}, {14, -4, -10, -10}, {8, -4, 10, 10}});
  const Pose chin = Pose_With(fold, {{2, -22, 20, 0}, {3, -10, 0, 0}});
  return {fold, chin};
}

std::vector<Pose> VictoryBlade_Poses(const Pose& s) {
  const Pose twirl = Pose_With(s, {{5, -120, 40, 40}, {6, -40, 0, 0}, {19, 0, 180, 0}, {3, 0, -10, 0}});
  const Pose present = Pose_Make({{4, 0, 30, 0}, {3, -4, 0, 0}, {2, -10, -30, 0}, {5, -90, 60, 0}, {6, -10, 0, 0},
                                  {11, -10, 0, -20}, {12, -100, 0, 0}, {14, -20, -8, -4}, {15, 10, 0, 0},
                                  {8, 6, -6, 6}, {9, 6, 0, 0}});
  return {twirl, present};
}

std::vector<Pose> VictoryPoint_Poses(const Pose&) {
  // Weight on the rear leg, the right hand on the hip, the left arm raised, then pointing down
  // the line at the fallen opponent.
  const Pose raise = Pose_Make({{4, 0, 20, 0}, {3, -6, 10, 0}, {2, -8, -20, 0}, {5, 10, 0, 45}, {6, -100, 0, 0},
                                {11, -150, 0, -10}, {12, -20, 0, 0}, {14, -18, 0, -8}, {15, 12, 0, 0},
                                {16, 6, 0, 0}, {8, 6, 0, 8}, {9, 8, 0, 0}, {10, -8, 0, 0}});
  const Pose point = Pose_With(raise, {{11, -70, 0, -4}, {12, -4, 0, 0}, {13, 10, 0, 0}, {2, 12, -24, 0},
                                       {3, 4, 14, 0}});
  return {raise, point};
}

std::vector<Pose> VictoryHips_Poses(const Pose&) {
  // Feet apart, hands set on the hips, then the head thrown back in a laugh.
  const Pose set = Pose_Make({{5, 10, 0, 45}, {6, -100, 0, 0}, {11, 10, 0, -45}, {12, -100, 0, 0}, {3, -6, 0, 0},
                              {2, -8, 0, 0}, {14, 0, 0, -10}, {16, 0, 0, 10}, {8, 0, 0, 10}, {10, 0, 0, -10},
                              {4, 0, 10, 0}});
  const Pose laugh = Pose_With(set, {{3, -14, 0, 0}, {2, -30, 0, 0}});
  return {set, laugh};
}

std::vector<Pose> VictoryStance_Poses(const Pose&) {
  // A wide, deep stance with both fists drawn back to the hips; then the lead fist goes out.
  const Pose close = Pose_Make({{4, 0, 0, 0}, {3, -2, 0, 0}, {2, 4, 0, 0}, {5, 30, 0, 14}, {6, -115, 0, 0},
                                {11, 30, 0, -14}, {12, -115, 0, 0}, {14, -30, 0, -22}, {15, 52, 0, 0},
                                {16, -22, 0, 20}, {8, -30, 0, 22}, {9, 52, 0, 0}, {10, -22, 0, -20}});
  const Pose punch = Pose_With(close, {{11, -84, 0, 4}, {12, -4, 0, 0}, {3, -2, -12, 0}, {2, 2, 12, 0}});
  return {close, punch};
}

// ---- beats --------------------------------------------------------------------------------
constexpr Beat kRush[] = {
    B(0, 6, Ease::Out, kNo, 0, kCueShout),
    B(1, 3, Ease::Snap, kLH, 1, kCueWhoosh, false, 0.8f), B(2, 3, Ease::Snap, kRH, 1, -1, false, 0.8f),
    B(1, 3, Ease::Snap, kLH, 1, kCueWhoosh, false, 0.8f), B(2, 3, Ease::Snap, kRH, 1, -1, false, 0.8f),
    B(1, 3, Ease::Snap, kLH, 1, kCueWhoosh, false, 0.8f), B(2, 3, Ease::Snap, kRH, 1, -1, false, 0.8f),
    B(0, 3, Ease::InOut, kNo, 0, -1, true),  // a follow-up takes over here, before the heavy straight drives them off
    B(3, 4, Ease::Snap, kRH, 2, kCueHeavy, false, 1.0f),
    B(3, 6, Ease::Linear),
    B(-1, 10, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kUppercut[] = {
    B(0, 7, Ease::Out, kNo, 0, kCueShout),
    B(1, 4, Ease::Snap, kRH, 1, kCueHeavy, false, 1.0f, 2.0f),
    B(1, 5, Ease::Out, kNo, 0, -1, false, 0, 0.6f),
    B(0, 6, Ease::In, kNo, 0, -1, true, 0, -2.6f),
    B(-1, 10, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kSpinKick[] = {
    B(0, 6, Ease::Out, kNo, 0, kCueWhoosh),
    B(1, 5, Ease::Snap, kRF, 1, kCueHeavy, false, 1.2f),
    B(2, 5, Ease::Linear, kNo, 0, -1, true),
    B(3, 10, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kPalms[] = {
    B(0, 10, Ease::InOut, kNo, 0, kCueShout),
    B(1, 4, Ease::Snap, kLH, 1, kCueHeavy, false, 0.4f),
    B(1, 10, Ease::Linear, kNo, 0, -1, true),
    B(-1, 12, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kThrow[] = {
    B(0, 9, Ease::InOut, kNo, 0, kCueShout),
    B(1, 4, Ease::Snap, kRH, 1, kCueHeavy, false, 0.5f),
    B(1, 8, Ease::Linear, kNo, 0, -1, true),
    B(-1, 12, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kBlades[] = {
    B(0, 6, Ease::Out, kNo, 0, kCueShout),
    B(1, 3, Ease::Snap, kWp, 1, kCueWhoosh, false, 0.6f),
    B(2, 4, Ease::InOut),
    B(3, 3, Ease::Snap, kWp, 1, kCueWhoosh, false, 0.6f),
    B(0, 5, Ease::InOut),
    B(4, 4, Ease::Snap, kWp, 2, kCueHeavy, false, 1.2f),
    B(4, 5, Ease::Linear, kNo, 0, -1, true),
    B(-1, 10, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kGrab[] = {
    B(0, 6, Ease::Out, kNo, 0, kCueShout),
    B(1, 4, Ease::Snap, kLH, 1, kCueWhoosh, false, 1.8f),
    B(1, 6, Ease::Linear),
    B(-1, 12, Ease::InOut, kNo, 0, -1, true, -0.6f),
};
constexpr Beat kCharge[] = {
    B(0, 6, Ease::Out, kNo, 0, kCueShout),
    B(1, 6, Ease::Linear, kBd, 1, kCueHeavy, false, 3.5f),
    B(1, 4, Ease::Linear, kNo, 0, -1, true),
    B(-1, 12, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kFlyingKick[] = {
    B(0, 5, Ease::Out, kNo, 0, kCueShout),
    B(1, 5, Ease::Out, kLF, 1, kCueWhoosh, false, 2.0f, 2.5f),
    B(1, 4, Ease::Linear, kLF, 1, -1, false, 1.0f),
    B(0, 5, Ease::In, kNo, 0, kCueStep, true, 0, -2.5f),
    B(-1, 10, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kSweep[] = {
    B(0, 5, Ease::Out, kNo, 0, kCueWhoosh),
    B(1, 6, Ease::Linear, kRF, 1, -1, false, 0.4f),
    B(2, 12, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kHeelDrop[] = {
    B(0, 8, Ease::InOut, kNo, 0, kCueWhoosh),
    B(1, 3, Ease::Snap, kLF, 1, kCueHeavy, false, 1.0f),
    B(1, 4, Ease::Linear, kNo, 0, -1, true),
    B(-1, 10, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kStraight[] = {
    B(0, 5, Ease::Out, kNo, 0, kCueShout),
    B(1, 4, Ease::Snap, kRH, 1, kCueHeavy, false, 1.5f),
    B(1, 6, Ease::Linear, kNo, 0, -1, true),
    B(-1, 10, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kFlyingKnee[] = {
    B(0, 5, Ease::Out, kNo, 0, kCueShout),
    B(1, 5, Ease::Snap, kRK, 1, kCueWhoosh, false, 2.5f, 1.8f),
    B(1, 3, Ease::Linear),
    B(-1, 10, Ease::In, kNo, 0, kCueStep, true, 0, -1.8f),
};
constexpr Beat kBackfist[] = {
    B(0, 5, Ease::Out, kNo, 0, kCueWhoosh),
    B(1, 4, Ease::Snap, kLH, 1, -1, false, 0.8f),
    B(1, 4, Ease::Linear, kNo, 0, -1, true),
    B(2, 10, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kTwinKick[] = {
    B(0, 4, Ease::Snap, kRF, 1, kCueWhoosh, false, 0.8f),
    B(1, 3, Ease::InOut, kNo, 0, -1, false, 0, 1.2f),
    B(2, 4, Ease::Snap, kLF, 2, kCueHeavy, false, 0.8f, 0.6f),
    B(2, 3, Ease::Linear),
    B(-1, 10, Ease::In, kNo, 0, kCueStep, true, 0, -1.8f),
};
constexpr Beat kSuperRush[] = {
    B(6, 10, Ease::Out, kNo, 0, kCueKiai),
    B(0, 4, Ease::InOut),
    B(1, 3, Ease::Snap, kLH, 1, kCueWhoosh, false, 0.8f), B(2, 3, Ease::Snap, kRH, 1, -1, false, 0.8f),
    B(1, 3, Ease::Snap, kLH, 1, kCueWhoosh, false, 0.8f), B(2, 3, Ease::Snap, kRH, 1, -1, false, 0.8f),
    B(4, 4, Ease::Out),
    B(5, 4, Ease::Snap, kRH, 1, kCueHeavy, false, 0.6f, 2.0f),
    B(5, 4, Ease::Linear),
    B(3, 5, Ease::Snap, kRH, 2, kCueHeavy, false, 1.0f, -2.0f),
    B(3, 5, Ease::Linear, kNo, 0, -1, true),
    B(-1, 12, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kSuperSpin[] = {
    B(10, 10, Ease::Out, kNo, 0, kCueKiai),
    B(0, 5, Ease::Out, kNo, 0, kCueWhoosh),
    B(1, 4, Ease::Snap, kRF, 1, kCueHeavy, false, 0.8f),
    B(2, 4, Ease::Linear),
    B(4, 4, Ease::InOut),
    B(5, 4, Ease::Snap, kRF, 1, kCueHeavy, false, 0.8f),
    B(6, 4, Ease::Linear),
    B(8, 7, Ease::InOut, kNo, 0, kCueWhoosh),
    B(9, 3, Ease::Snap, kLF, 2, kCueHeavy, false, 1.0f),
    B(9, 5, Ease::Linear, kNo, 0, -1, true),
    B(7, 12, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kSuperGrab[] = {
    B(2, 10, Ease::Out, kNo, 0, kCueKiai),
    B(0, 4, Ease::Out),
    B(1, 5, Ease::Snap, kLH, 1, kCueWhoosh, false, 2.6f),
    B(1, 6, Ease::Linear),
    B(-1, 12, Ease::InOut, kNo, 0, -1, true, -0.6f),
};
constexpr Beat kSuperBlades[] = {
    B(5, 10, Ease::Out, kNo, 0, kCueKiai),
    B(0, 4, Ease::Out),
    B(1, 3, Ease::Snap, kWp, 1, kCueWhoosh, false, 0.5f),
    B(2, 3, Ease::InOut),
    B(3, 3, Ease::Snap, kWp, 1, kCueWhoosh, false, 0.5f),
    B(0, 3, Ease::InOut),
    B(1, 3, Ease::Snap, kWp, 1, kCueWhoosh, false, 0.5f),
    B(2, 3, Ease::InOut),
    B(3, 3, Ease::Snap, kWp, 1, kCueWhoosh, false, 0.5f),
    B(0, 5, Ease::InOut),
    B(4, 4, Ease::Snap, kWp, 2, kCueHeavy, false, 1.4f),
    B(4, 6, Ease::Linear, kNo, 0, -1, true),
    B(-1, 12, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kSuperPalms[] = {
    B(2, 10, Ease::Out, kNo, 0, kCueKiai),
    B(0, 10, Ease::InOut, kNo, 0, kCueShout),
    B(1, 4, Ease::Snap, kLH, 1, kCueHeavy, false, 0.4f),
    B(1, 12, Ease::Linear, kNo, 0, -1, true),
    B(-1, 12, Ease::InOut, kNo, 0, -1, true),
};
constexpr Beat kLowPalm[] = {
    B(0, 4, Ease::Out, kNo, 0, kCueWhoosh),
    B(1, 4, Ease::Snap, kLH, 1, -1, false, 0.6f),
    B(1, 4, Ease::Linear, kNo, 0, -1, true),
    B(-1, 9, Ease::InOut, kNo, 0, -1, true, -0.6f),
};
constexpr Beat kLowKick[] = {
    B(0, 5, Ease::Out, kNo, 0, kCueWhoosh),
    B(1, 4, Ease::Snap, kRF, 1, -1, false, 0.8f),
    B(1, 4, Ease::Linear, kNo, 0, -1, true),
    B(0, 5, Ease::InOut, kNo, 0, -1, true),
    B(-1, 8, Ease::InOut, kNo, 0, -1, true, -0.8f),
};
// Victory poses: footfall marks (hit 3) where the feet settle; held on the last frame.
constexpr Beat kVictoryFist[] = {
    B(0, 18, Ease::InOut, kNo, 3, kCueStep), B(1, 10, Ease::Snap, kNo, 0, kCueShout),
    B(1, 30, Ease::Linear, kNo, 3),
};
constexpr Beat kVictoryBow[] = {
    B(0, 16, Ease::InOut, kNo, 3, kCueStep), B(1, 14, Ease::InOut), B(1, 10, Ease::Linear),
    B(0, 14, Ease::InOut, kNo, 3, kCueShout),
};
constexpr Beat kVictoryArms[] = {
    B(0, 20, Ease::InOut, kNo, 3, kCueStep), B(1, 12, Ease::InOut, kNo, 0, kCueShout),
    B(1, 30, Ease::Linear, kNo, 3),
};
constexpr Beat kVictoryBlade[] = {
    B(0, 12, Ease::InOut, kNo, 3, kCueWhoosh), B(1, 10, Ease::Snap, kNo, 0, kCueShout),
    B(1, 30, Ease::Linear, kNo, 3),
};
constexpr Beat kVictoryPoint[] = {
    B(0, 16, Ease::InOut, kNo, 3, kCueStep), B(1, 8, Ease::Snap, kNo, 0, kCueShout),
    B(1, 30, Ease::Linear, kNo, 3),
};
constexpr Beat kVictoryHips[] = {
    B(0, 18, Ease::InOut, kNo, 3, kCueStep), B(1, 12, Ease::Out, kNo, 0, kCueShout),
    B(0, 10, Ease::InOut), B(1, 10, Ease::InOut, kNo, 3),
};
constexpr Beat kVictoryStance[] = {
    B(0, 20, Ease::InOut, kNo, 3, kCueStep), B(0, 10, Ease::Linear),
    B(1, 8, Ease::Snap, kNo, 0, kCueKiai), B(1, 24, Ease::Linear, kNo, 3),
};

template <std::size_t N>
constexpr int Count(const Beat (&)[N]) {
  return static_cast<int>(N);
}

using PoseMaker = std::vector<Pose> (*)(const Pose&);
struct KindRow {
  const char* name;
  PoseMaker poses;
  const Beat* beats;
  int beat_count;
  int entry;
  bool low;
};
#define KIND(name, poses, beats, entry, low) {name, poses, beats, Count(beats), entry, low}
// clang-format off
const KindRow kKinds[] = {
    KIND("rush",         Rush_Poses,         kRush,         3,  false),  // Rush
    KIND("uppercut",     Uppercut_Poses,     kUppercut,     3,  false),  // Uppercut
    KIND("spin kick",    Spin_Poses,         kSpinKick,     2,  false),  // SpinKick
    KIND("palms",        Palms_Poses,        kPalms,        4,  false),  // Palms
    KIND("throw",        Throw_Poses,        kThrow,        4,  false),  // Throw
    KIND("blades",       Blades_Poses,       kBlades,       3,  false),  // Blades
    KIND("grab",         Grab_Poses,         kGrab,         2,  false),  // Grab
    KIND("charge",       Charge_Poses,       kCharge,       3,  false),  // Charge
    KIND("flying kick",  FlyingKick_Poses,   kFlyingKick,   2,  false),  // FlyingKick
    KIND("sweep",        Sweep_Poses,        kSweep,        2,  false),  // Sweep
    KIND("heel drop",    HeelDrop_Poses,     kHeelDrop,     3,  false),  // HeelDrop
    KIND("straight",     Straight_Poses,     kStraight,     2,  false),  // Straight
    KIND("flying knee",  FlyingKnee_Poses,   kFlyingKnee,   2,  false),  // FlyingKnee
    KIND("backfist",     Backfist_Poses,     kBackfist,     2,  false),  // Backfist
    KIND("twin kick",    TwinKick_Poses,     kTwinKick,     1,  false),  // TwinKick
    KIND("super rush",   SuperRush_Poses,    kSuperRush,    10, false),  // SuperRush
    KIND("super spin",   SuperSpin_Poses,    kSuperSpin,    10, false),  // SuperSpin
    KIND("super grab",   SuperGrab_Poses,    kSuperGrab,    10, false),  // SuperGrab
    KIND("super blades", SuperBlades_Poses,  kSuperBlades,  10, false),  // SuperBlades
    KIND("super palms",  SuperPalms_Poses,   kSuperPalms,   10, false),  // SuperPalms
    KIND("low palm",     LowPalm_Poses,      kLowPalm,      0,  true),   // LowPalm
    KIND("low kick",     LowKick_Poses,      kLowKick,      0,  true),   // LowKick
    KIND("victory fist", VictoryFist_Poses,  kVictoryFist,  0,  false),  // VictoryFist
    KIND("victory bow",  VictoryBow_Poses,   kVictoryBow,   0,  false),  // VictoryBow
    KIND("victory arms", VictoryArms_Poses,  kVictoryArms,  0,  false),  // VictoryArms
    KIND("victory blade", VictoryBlade_Poses, kVictoryBlade, 0, false),  // VictoryBlade
    KIND("victory point", VictoryPoint_Poses, kVictoryPoint, 0, false),  // VictoryPoint
    KIND("victory hips", VictoryHips_Poses,  kVictoryHips,  0,  false),  // VictoryHips
    KIND("victory stance", VictoryStance_Poses, kVictoryStance, 0, false),  // VictoryStance
};
// clang-format on
#undef KIND
static_assert(sizeof(kKinds) / sizeof(kKinds[0]) == static_cast<std::size_t>(Arch::Count), "one row per kind");

}  // namespace

const mot::Pose& Arch_Stance(bool low) {
  if (low) {
    if (const mot::Motion* idle = mot::Mot_SharedByAction(23)) return *idle->start;
  }
  return mot::Mot_StancePose();
}

const ArchDef& Arch_Def(Arch a) {
  static std::array<ArchDef, static_cast<std::size_t>(Arch::Count)> defs = [] {
    std::array<ArchDef, static_cast<std::size_t>(Arch::Count)> out;
    for (std::size_t i = 0; i < out.size(); ++i) {
      const KindRow& k = kKinds[i];
      out[i] = ArchDef{k.name, k.poses(Arch_Stance(k.low)), k.beats, k.beat_count, k.entry, k.low};
    }
    return out;
  }();
  return defs[static_cast<std::size_t>(a)];
}

}  // namespace mv
