// Each character's manner, one row per character: the turns its guard adds to the fighting
// stance, the beat it idles at, the touches on its two victory poses, how it carries its arms
// while kicking and its trunk and head in every attack. Angles as in
// mv_arch.cpp: X < 0 swings a limb forward, X > 0 bends a knee or leans the trunk forward; the
// lead side is the left (parts 11-16), the rear the right (5-10).
#include "moves/mv_manner.h"

#include <cstdint>
#include <deque>

#include "moves/mv_arch.h"
#include "moves/mv_pose.h"

namespace mv {
namespace {

constexpr int kGuardTurns = 8, kTouchTurns = 4;

// How the arms go while the legs kick.
enum class Carry : std::uint8_t { Guard, Balance, Low, Crossed, Flung };

struct Manner {
  Turn guard[kGuardTurns];         // added to the fighting stance; part 0 ends the list
  float bob;                       // knee bend at the bottom of the beat, degrees
  float breath;                    // the chest's rise and fall, degrees
  int beat;                        // frames from one end of the beat to the middle
  Turn touch[2][kTouchTurns];      // added to every pose of victory 12 and of victory 13
  Carry kicks;                     // the arms while kicking
  Turn attitude[2];                // the trunk and head in every attack: lean, twist, tilt
};

// clang-format off
constexpr Manner kManners[15] = {
    // 0: karate, lead fist out, rear fist chambered
    {{{12, 25, 0, 0}, {11, 6, 0, 0}, {5, 18, 0, 0}, {6, -8, 0, 0}, {3, -3, 0, 0}},
     4, 3, 22, {{{2, -6, 0, 0}, {4, 0, -6, 0}}, {{3, 4, 0, 0}, {2, 4, 0, 0}}},
     Carry::Guard, {{3, 4, 0, 0}, {2, -4, 0, 0}}},
    // 1: light on her toes, hands low and loose
    {{{11, 12, 0, -4}, {12, 10, 0, 0}, {5, 14, 0, 4}, {6, 12, 0, 0}, {2, 0, 0, 8}, {3, -4, 0, 0}},
     9, 2, 11, {{{2, 0, 0, 10}, {4, 0, -15, 0}, {14, -10, 0, -6}}, {{2, 6, 0, -8}, {3, 0, 10, 0}}},
     Carry::Balance, {{3, -6, 0, 4}, {2, 0, 0, 10}}},
    // 2: tall and still, open lead hand held high
    {{{11, -14, 0, 0}, {12, 38, 0, 0}, {13, -20, 0, 0}, {5, -6, 0, 0}, {6, 8, 0, 0}, {3, -6, 0, 0}, {2, -6, 0, 0}},
     3, 3, 26, {{{2, -10, 10, 0}, {3, -4, 0, 0}}, {{2, 14, 0, 0}, {4, 0, 10, 0}}},
     Carry::Low, {{3, -8, 6, 0}, {2, -8, 0, 0}}},
    // 3: hands low, weight back for the kicks
    {{{11, 16, 0, -6}, {12, 14, 0, 0}, {5, 12, 0, 6}, {3, -2, 10, 0}, {15, 8, 0, 0}, {14, -6, 0, 0}, {2, 0, 8, 0}},
     6, 2, 16, {{{4, 0, 12, 0}, {2, -4, -10, 0}}, {{2, -8, 0, 6}, {14, -8, 0, -4}}},
     Carry::Flung, {{3, -4, 10, 0}, {2, 0, 10, 0}}},
    // 4: hunched brawler, fists tight by the face
    {{{3, 12, 0, 0}, {2, 10, 0, 0}, {11, -8, 0, 4}, {12, -16, 0, 0}, {5, -14, 0, -6}, {6, -6, 0, 0}, {9, 8, 0, 0}, {15, 8, 0, 0}},
     5, 4, 26, {{{3, 6, 0, 0}, {2, -10, 0, 0}}, {{4, 0, -10, 0}, {2, -14, 10, 0}}},
     Carry::Guard, {{3, 14, 0, 0}, {2, 12, 0, 0}}},
    // 5: fan raised, lead hand open, bobbing
    {{{5, -34, 0, 10}, {6, 24, 0, 0}, {12, 30, 0, 0}, {11, -6, 0, 0}, {2, 0, 0, -10}, {3, -4, 0, 0}},
     8, 2, 12, {{{2, 0, 0, -12}, {14, -12, 0, -4}}, {{2, 8, 0, 10}, {4, 0, 14, 0}}},
     Carry::Balance, {{3, -2, -8, -4}, {2, 4, 0, -12}}},
    // 6: upright and idle-handed, the cards by his face
    {{{11, 20, 0, -4}, {12, 44, 0, 0}, {5, -18, 0, 0}, {6, -14, 0, 0}, {3, -8, 0, 0}, {2, -8, 0, 0}},
     2, 2, 28, {{{2, -8, -10, 0}, {3, -6, 0, 0}}, {{2, 10, 0, 0}, {4, 0, -8, 0}}},
     Carry::Low, {{3, -10, -6, 0}, {2, -10, -8, 0}}},
    // 7: low, lead palm reaching
    {{{11, -20, 0, 0}, {12, 42, 0, 0}, {13, -25, 0, 0}, {5, -8, 0, 0}, {9, 10, 0, 0}, {15, 10, 0, 0}, {14, -5, 0, 0}, {8, -5, 0, 0}},
     4, 3, 20, {{{9, 20, 0, 0}, {15, 20, 0, 0}, {8, -10, 0, 0}, {14, -10, 0, 0}}, {{2, -6, 14, 0}, {4, 0, 8, 0}}},
     Carry::Balance, {{3, 8, 8, 0}, {2, 4, -6, 0}}},
    // 8: square and rigid, arms out from the plating
    {{{11, 0, 0, -12}, {5, 0, 0, 12}, {2, 4, 14, 0}, {3, -6, -4, 0}, {12, -10, 0, 0}, {6, 8, 0, 0}},
     2, 1, 30, {{{2, 0, 20, 0}, {3, 0, -6, 0}}, {{2, -12, 0, 0}, {3, -6, 0, 0}}},
     Carry::Crossed, {{3, 0, -10, 0}, {2, 0, 16, 0}}},
    // 9: crouched forward, the knife out low
    {{{3, 12, 0, 0}, {2, 6, 0, 0}, {5, -26, 0, 0}, {6, 28, 0, 0}, {11, 6, 0, 0}, {12, -18, 0, 0}, {9, 6, 0, 0}, {15, 6, 0, 0}},
     5, 2, 15, {{{2, 10, -14, 0}, {3, 6, 0, 0}}, {{4, 0, 16, 0}, {2, -6, -16, 0}}},
     Carry::Guard, {{3, 16, -4, 0}, {2, 8, 0, 6}}},
    // 10: compact, both hands high
    {{{12, -18, 0, 0}, {11, -6, 0, 0}, {6, -4, 0, 0}, {5, -12, 0, 0}, {3, -4, 0, 0}, {2, 4, 0, 0}},
     7, 2, 13, {{{2, 0, 0, 8}, {4, 0, -10, 0}}, {{14, -14, 0, -6}, {2, -6, 0, 0}}},
     Carry::Balance, {{3, 6, 12, 0}, {2, -4, 6, 8}}},
    // 11: calm, lead palm forward, deep breaths
    {{{11, -22, 0, 0}, {12, 40, 0, 0}, {13, -30, 0, 0}, {5, 20, 0, -8}, {6, 24, 0, 0}, {3, -6, 0, 0}, {9, 6, 0, 0}, {15, 6, 0, 0}},
     3, 5, 30, {{{3, 8, 0, 0}, {2, 10, 0, 0}}, {{2, -8, 0, 0}, {4, 0, -12, 0}}},
     Carry::Crossed, {{3, -4, -12, 0}, {2, 6, 0, 0}}},
    // 12: springing, arms loose and wide
    {{{11, 14, 0, -16}, {5, 14, 0, 16}, {12, 20, 0, 0}, {6, 20, 0, 0}, {3, -8, 0, 0}, {2, -6, 0, 6}},
     10, 2, 10, {{{2, -6, 0, 12}, {4, 0, 18, 0}}, {{14, -16, 0, -8}, {3, -8, 0, 0}}},
     Carry::Balance, {{3, -12, 4, 6}, {2, -6, 0, -8}}},
    // 13: the axe over his shoulder, buckler forward
    {{{5, -48, 0, 6}, {6, -8, 0, 0}, {11, -10, 0, 0}, {12, 22, 0, 0}, {9, 10, 0, 0}, {15, 10, 0, 0}, {8, -4, 0, 6}, {14, -4, 0, -6}},
     4, 4, 24, {{{2, -12, 0, 0}, {3, -6, 0, 0}}, {{4, 0, -12, 0}, {2, -4, 14, 0}}},
     Carry::Guard, {{3, 10, -8, 0}, {2, -6, 8, 0}}},
    // 14: looming, arms low and open
    {{{11, 16, 0, -6}, {12, 34, 0, 0}, {5, 18, 0, 6}, {6, 34, 0, 0}, {3, -6, 0, 0}, {2, 10, 0, 0}},
     3, 4, 30, {{{2, -16, 0, 0}, {3, -8, 0, 0}}, {{2, 12, -10, 0}, {4, 0, 8, 0}}},
     Carry::Guard, {{3, -6, 0, -6}, {2, 12, 0, 0}}},
};
// clang-format on

// Stable storage for the poses the idle motions point at. Written only by Keep_Pose.
struct MannerStore {
  std::deque<mot::Pose> poses;
};
MannerStore g_store;

const mot::Pose* Keep_Pose(const mot::Pose& p) {
  g_store.poses.push_back(p);
  return &g_store.poses.back();
}

int Clamp_Character(int c) { return c < 0 || c >= 15 ? 0 : c; }

mot::Pose Add_Turns(mot::Pose p, const Turn* turns, int count) {
  for (int i = 0; i < count && turns[i].part >= 2; ++i) {
    p.ang[turns[i].part][0] += turns[i].x;
    p.ang[turns[i].part][1] += turns[i].y;
    p.ang[turns[i].part][2] += turns[i].z;
  }
  return p;
}

// The bottom of the beat: knees give, thighs come forward, feet stay flat; the chest settles.
mot::Pose Beat_Down(const mot::Pose& guard, const Manner& m) {
  return Pose_Plus(guard, {{9, m.bob, 0, 0}, {15, m.bob, 0, 0}, {8, -m.bob * 0.5f, 0, 0}, {14, -m.bob * 0.5f, 0, 0},
                           {10, -m.bob * 0.5f, 0, 0}, {16, -m.bob * 0.5f, 0, 0}, {3, m.breath, 0, 0},
                           {2, -m.breath * 0.5f, 0, 0}});
}

// The top: the chest lifts with the breath and the guard rises a little with it.
mot::Pose Beat_Up(const mot::Pose& guard, const Manner& m) {
  return Pose_Plus(guard, {{3, -m.breath, 0, 0}, {2, m.breath * 0.5f, 0, 0}, {11, -m.breath * 0.5f, 0, 0},
                           {5, -m.breath * 0.5f, 0, 0}});
}

}  // namespace

mot::Pose Mv_GuardPose(int character) {
  const Manner& m = kManners[Clamp_Character(character)];
  return Add_Turns(Arch_Stance(false), m.guard, kGuardTurns);
}

Move Mv_IdleGuard(int character) {
  const Manner& m = kManners[Clamp_Character(character)];
  const mot::Pose* guard = Keep_Pose(Mv_GuardPose(character));
  const mot::Pose* down = Keep_Pose(Beat_Down(*guard, m));
  const mot::Pose* up = Keep_Pose(Beat_Up(*guard, m));
  Move mv;
  mv.action = 0;
  mv.motion.name = "own guard";
  mv.motion.action = 0;
  mv.motion.start = guard;
  const mot::Pose* order[4] = {down, guard, up, guard};
  for (const mot::Pose* p : order) {
    mot::Phase& ph = mv.motion.phases[mv.motion.phase_count++];
    ph.pose = p;
    ph.frames = m.beat;
    ph.ease = mot::Ease::InOut;
  }
  return mv;
}

mot::Pose Mv_KickArms(int character, const mot::Pose& pose) {
  const Manner& m = kManners[Clamp_Character(character)];
  const mot::Pose guard = Mv_GuardPose(character);
  mot::Pose p = pose;
  auto arm = [&](int part, float x, float y, float z) {
    p.ang[part][0] = x;
    p.ang[part][1] = y;
    p.ang[part][2] = z;
  };
  auto guarded = [&](int part) { arm(part, guard.ang[part][0], guard.ang[part][1], guard.ang[part][2]); };
  switch (m.kicks) {
    case Carry::Guard:
      for (int part : {5, 6, 11, 12}) guarded(part);
      break;
    case Carry::Balance:
      guarded(11), guarded(12);
      arm(5, 30, 0, 55), arm(6, -25, 0, 0);
      break;
    case Carry::Low:
      arm(5, 5, 0, 25), arm(6, -30, 0, 0), arm(11, 5, 0, -25), arm(12, -30, 0, 0);
      break;
    case Carry::Crossed:
      arm(5, -55, -35, 0), arm(6, -95, 0, 0), arm(11, -55, 35, 0), arm(12, -95, 0, 0);
      break;
    case Carry::Flung: break;
  }
  return p;
}

mot::Pose Mv_Attitude(int character, const mot::Pose& pose) {
  const Manner& m = kManners[Clamp_Character(character)];
  return Add_Turns(pose, m.attitude, 2);
}

mot::Pose Mv_FreeArm(int character, const mot::Pose& pose, bool lead) {
  const mot::Pose guard = Mv_GuardPose(character);
  mot::Pose p = pose;
  const int upper = lead ? 5 : 11;
  for (int part : {upper, upper + 1})
    for (int k = 0; k < 3; ++k) p.ang[part][k] = guard.ang[part][k];
  return p;
}

mot::Pose Mv_VictoryTouch(int character, int which, const mot::Pose& pose) {
  const Manner& m = kManners[Clamp_Character(character)];
  return Add_Turns(pose, m.touch[which == 0 ? 0 : 1], kTouchTurns);
}

}  // namespace mv
