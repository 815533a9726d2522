// Faults a player sees in a motion, measured over every motion the data set carries: the shared
// catalogue on the reference skeleton and every character's own moves on its own skeleton.
// Each check lists the worst offenders, so a failure says which motion to look at.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "figures/fig_figure.h"
#include "figures/fig_types.h"
#include "motion/mot_shared.h"
#include "moves/mv_roster.h"

namespace {

using namespace mot;
using fig::Vec3;

struct Baked {
  std::string name;
  const Motion* motion;
  Joints joints;
  std::vector<BakedFrame> frames;
  std::vector<int> phase_of;  // the phase each frame belongs to
};

void Bake_Into(const Motion& m, const Joints& j, std::string name, std::vector<Baked>& out) {
  Baked b{std::move(name), &m, j, {}, {}};
  Mot_Bake(m, j, b.frames);
  for (int p = 0; p < m.phase_count; ++p)
    for (int k = 0; k < std::max(1, m.phases[p].frames); ++k) b.phase_of.push_back(p);
  out.push_back(std::move(b));
}

// Baked once for the whole suite: every shared motion, then every character's own moves.
const std::vector<Baked>& All_Motions() {
  static std::vector<std::vector<mv::Move>> own(fig::kCharacters);
  static std::vector<Baked> all;
  if (!all.empty()) return all;
  Joints ref;
  Mot_JointsOf(fig::Fig_ReferenceSkeleton(), ref);
  for (int i = 0; i < Mot_SharedCount(); ++i) Bake_Into(Mot_Shared(i), ref, std::string("shared ") + Mot_Shared(i).name, all);
  for (int c = 0; c < fig::kCharacters; ++c) {
    fig::Skeleton s;
    fig::Fig_BuildSkeleton(c, s);
    Joints j;
    Mot_JointsOf(s, j);
    mv::Mv_CharacterMoves(c, own[c]);
    for (const mv::Move& m : own[c])
      if (m.share < 0) Bake_Into(m.motion, j, "character " + std::to_string(c) + " " + m.motion.name, all);
  }
  return all;
}

// A body point as the fight shows it: posed, plus the frame's whole-body offset, with the
// fight's own carrying of the body (walks) taken back out so that standing still reads as 0.
Vec3 At(const Baked& b, std::size_t f, int part) {
  PartMatrix m[22];
  Mot_Unpack(b.frames[f].key, m);
  Vec3 p = Mot_PosedJoint(b.joints, m, part) + b.frames[f].offset;
  p.z += b.motion->pace * static_cast<float>(f);
  return p;
}

bool Foot_Down(const Baked& b, std::size_t f, int foot) {
  PartMatrix m[22];
  Mot_Unpack(b.frames[f].key, m);
  const Vec3 ankle = b.joints.at[foot];
  float sole = 1e9f;
  for (float dz : {-0.34f, 1.0f}) sole = std::min(sole, (Apply(m[foot].r, {ankle.x, ankle.y - 0.42f, ankle.z + dz}) + m[foot].t).y);
  return sole + b.frames[f].offset.y < b.joints.at[10].y - 0.42f + 0.08f;
}

float Flat(Vec3 a, Vec3 b) { return std::hypot(a.x - b.x, a.z - b.z); }

// The worst offenders of one check, worst first.
struct Offence {
  float value;
  std::string where;
};
std::string Worst(std::vector<Offence> v) {
  std::sort(v.begin(), v.end(), [](const Offence& a, const Offence& b) { return a.value > b.value; });
  std::string s;
  for (std::size_t i = 0; i < v.size() && i < 12; ++i) s += "\n  " + v[i].where + ": " + std::to_string(v[i].value);
  return s;
}
std::string Frame(const Baked& b, std::size_t f) { return b.name + " (action " + std::to_string(b.motion->action) + ") frame " + std::to_string(f); }

// In the beaten fall and the knock-downs that pivot on a foot, a foot that stays on the floor
// from one frame to the next does not skate: it takes the body's weight while the body goes down.
TEST(AssetgenMotionFaults, FeetOnTheFloorDoNotSlide) {
  constexpr float kSlide = 0.3f;  // units a frame
  std::vector<Offence> bad;
  for (const Baked& b : All_Motions()) {
    const int a = b.motion->action;
    // The beaten fall and the knock-downs that come down on a pivot foot.
    const bool falls = a == 170 || a == 163 || a == 175;
    for (std::size_t f = 1; f < b.frames.size(); ++f) {
      for (int foot : {10, 16}) {
        const bool watched = falls && Foot_Down(b, f - 1, foot) && Foot_Down(b, f, foot);
        if (!watched) continue;
        const float d = Flat(At(b, f - 1, foot), At(b, f, foot));
        if (d > kSlide) bad.push_back({d, Frame(b, f) + " foot " + std::to_string(foot)});
      }
    }
  }
  EXPECT_TRUE(bad.empty()) << bad.size() << " sliding feet:" << Worst(bad);
}

// No lunge carries the hips further in one frame than a dash does: a long lunge steps its way
// there over its frames instead of gliding or jumping.
TEST(AssetgenMotionFaults, TheBodyDoesNotLeapBetweenFrames) {
  // Units a frame: half as much again as the forward dash's stride. The jab and the low palm
  // step in far to reach from where the computer throws them, and a few twin kicks open with a
  // long first stride; they come close to this and no further.
  constexpr float kLeap = 1.9f;
  std::vector<Offence> bad;
  for (const Baked& b : All_Motions())
    for (std::size_t f = 1; f < b.frames.size(); ++f) {
      const Phase& ph = b.motion->phases[b.phase_of[f]];
      // A lunge runs along the floor: turning round a foot, or a blow that leaves the floor, is not one.
      if (ph.travel.z == 0 || ph.plant != 0 || ph.travel.y != 0 || ph.arc != 0) continue;
      const float d = Flat(At(b, f - 1, 4), At(b, f, 4));
      if (d > kLeap) bad.push_back({d, Frame(b, f)});
    }
  EXPECT_TRUE(bad.empty()) << bad.size() << " leaps:" << Worst(bad);
}

// The fight keeps a fighter on its line: whatever a motion carries the body sideways is taken
// back when the next action starts, so a motion that ends off the line jumps back on that frame.
TEST(AssetgenMotionFaults, MotionsEndOnTheLineTheyStarted) {
  constexpr float kOffLine = 0.3f;
  std::vector<Offence> bad;
  for (const Baked& b : All_Motions()) {
    if (b.frames.empty()) continue;
    PartMatrix m[22];
    Joints j = b.joints;
    Mot_Solve(j, *b.motion->start, m);
    const float start_x = Mot_PosedJoint(j, m, 4).x;
    const float d = std::fabs(At(b, b.frames.size() - 1, 4).x - start_x);
    if (d > kOffLine) bad.push_back({d, Frame(b, b.frames.size() - 1)});
  }
  EXPECT_TRUE(bad.empty()) << bad.size() << " motions end off the line:" << Worst(bad);
}

// How far a part's up axis leans back against its parent's, in the parent's own side plane.
float Back_Bend(const PartMatrix m[22], int part, int parent) {
  const Vec3 up = Apply(m[part].r, {0, 1, 0});
  const Vec3 py = Apply(m[parent].r, {0, 1, 0}), pz = Apply(m[parent].r, {0, 0, 1});
  return -std::atan2(Dot(up, pz), Dot(up, py)) * 57.29578f;
}

// A back bends back only so far: the chest against the hips, and while a thrower heaves, the
// head against upright. Throws and holds lift with the legs and the arms, not by folding the
// spine backwards (a recoil may snap the head back further: that is the blow, not the back).
TEST(AssetgenMotionFaults, SpinesDoNotArchTooFarBack) {
  constexpr float kChest = 30.0f, kArch = 35.0f;  // degrees
  std::vector<Offence> bad;
  for (const Baked& b : All_Motions())
    for (std::size_t f = 0; f < b.frames.size(); ++f) {
      PartMatrix m[22];
      Mot_Unpack(b.frames[f].key, m);
      const int a = b.motion->action;
      const bool heave = a == 80 || a == 81 || (a >= 340 && a <= 409);
      const float chest = Back_Bend(m, 3, 4);
      if (chest > kChest) bad.push_back({chest, Frame(b, f) + " chest"});
      if (!heave) continue;
      // The whole back, hips to head, against upright, toward the hips' own back (a thrower may
      // turn its back to heave the victim over its shoulder).
      const Vec3 head = Apply(m[2].r, {0, 1, 0}), fwd = Apply(m[4].r, {0, 0, 1});
      const float arch = -std::atan2(head.x * fwd.x + head.z * fwd.z, head.y * std::hypot(fwd.x, fwd.z)) * 57.29578f;
      if (arch > kArch) bad.push_back({arch, Frame(b, f) + " head back from upright"});
    }
  EXPECT_TRUE(bad.empty()) << bad.size() << " arched backs:" << Worst(bad);
}

}  // namespace

// ---- throw and hold pairs -----------------------------------------------------------------
// Both sides of a throw or hold baked on one skeleton and stood where the fight stands them:
// roots 4.0 apart on the line, face to face (model z forward, x to the side).
struct PairView {
  const Baked* side[2];
  Vec3 World(int s, std::size_t f, int part) const {
    const Baked& b = *side[s];
    const Vec3 p = At(b, std::min(f, b.frames.size() - 1), part);
    return s == 0 ? Vec3{p.z - 2.0f, p.y, p.x} : Vec3{2.0f - p.z, p.y, -p.x};
  }
};

const Baked* Find(int action, const std::string& prefix) {
  for (const Baked& b : All_Motions())
    if (b.motion->action == action && b.name.rfind(prefix, 0) == 0) return &b;
  return nullptr;
}

// Every throw and hold with its reaction: the two shared throws with the reactions the fight
// pairs them with, and every character's holds with their held reactions.
std::vector<std::pair<PairView, std::string>> All_Pairs() {
  std::vector<std::pair<PairView, std::string>> out;
  for (int t : {80, 81})
    for (int r = 82; r <= 101; ++r)
      if (r % 2 == t % 2)  // reactions after throw 80 are even, after 81 odd
        if (const Baked* a = Find(t, "shared "), *v = Find(r, "shared "); a && v)
          out.push_back({PairView{{a, v}}, "throw " + std::to_string(t) + " with " + std::to_string(r)});
  for (int c = 0; c < fig::kCharacters; ++c)
    for (int i = 0; i < mv::Mv_HoldPairCount(); ++i) {
      const std::string who = "character " + std::to_string(c) + " ";
      const Baked* a = Find(mv::Mv_HoldPair(i).hold, who);
      const Baked* v = Find(mv::Mv_HoldPair(i).held, who);
      if (a && v) out.push_back({PairView{{a, v}}, who + "hold " + std::to_string(mv::Mv_HoldPair(i).hold)});
    }
  return out;
}

// The flesh round a trunk joint that another body may not sink into: the head, the chest, the
// hips (bodies pressed together in a clinch touch; one passing through the other sinks deep).
float Flesh(int part) { return part == 2 ? 0.3f : 0.4f; }

// The frame on which a defender is first lifted clear in the attacker's hands: the end of its
// first phase that raises it without sending it away (a fling lets go).
std::size_t Lift_Top(const Baked& victim) {
  std::size_t end = 0;
  for (int p = 0; p < victim.motion->phase_count; ++p) {
    end += std::max(1, victim.motion->phases[p].frames);
    const Vec3 t = victim.motion->phases[p].travel;
    if (t.y > 0 && t.z >= 0) return end - 1;
  }
  return victim.frames.size();
}

// The two trunks never pass through each other (head, chest and hips of one against those of
// the other), and at the top of the lift a hand of the attacker is on the defender. A victim
// carried through the thrower's chest, or floating clear of its hands, fails here.
TEST(AssetgenMotionFaults, ThrowPairsHoldOnWithoutPassingThrough) {
  constexpr float kGrip = 1.6f;    // a hand to the nearest joint of the held body
  std::vector<Offence> through, loose;
  for (const auto& [pair, name] : All_Pairs()) {
    const std::size_t n = std::max(pair.side[0]->frames.size(), pair.side[1]->frames.size());
    for (std::size_t f = 0; f < n; ++f) {
      float inside = 0;  // how deep the deepest pair of pieces sinks into each other
      for (int a : {2, 3, 4})
        for (int v : {2, 3, 4})
          inside = std::max(inside, Flesh(a) + Flesh(v) - Length(pair.World(0, f, a) - pair.World(1, f, v)));
      if (inside > 0) through.push_back({inside, name + " frame " + std::to_string(f)});
    }
    const std::size_t top = Lift_Top(*pair.side[1]);
    if (top >= n) continue;
    float grip = 1e9f;
    for (int hand : {7, 13})
      for (int part : {2, 3, 4, 5, 6, 8, 9, 11, 12, 14, 15})
        grip = std::min(grip, Length(pair.World(0, top, hand) - pair.World(1, top, part)));
    if (grip > kGrip) loose.push_back({grip, name + " frame " + std::to_string(top)});
  }
  EXPECT_TRUE(through.empty()) << through.size() << " frames with the trunks inside each other:" << Worst(through);
  EXPECT_TRUE(loose.empty()) << loose.size() << " lifts with no hand on the defender:" << Worst(loose);
}
