// Reach of the characters' own attacks, measured on the character's own body: the striking
// part's box carried by each strike frame's pose and whole-body offset.
#include "moves/mv_reach.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <vector>

#include "fight/fight_moves.h"
#include "figures/fig_figure.h"

namespace mv {
namespace {

constexpr std::uint32_t Bits(std::initializer_list<int> list) {
  std::uint32_t mask = 0;
  for (int b : list) mask |= 1u << b;
  return mask;
}

// The command slots each computer routine starts from 13 units or more (its 13-16 band, its
// answer to a crouching or attacking opponent there) and from 10 or more (its 10-13 band and
// its far super moves). A slot is 4 x command + 2 for buttons 3/4 + 1 for buttons 1/3; the
// computer presses button 1 or 3, which becomes 2 or 4 when it stands in stance 23 (so an even
// slot is a stance-23 press).
struct FarPlay {
  std::uint32_t characters;
  std::uint32_t from13, from10;
};
// clang-format off
constexpr FarPlay kFarPlay[] = {
    {Bits({0, 11, 14}), Bits({12, 24}),     Bits({27, 13, 20, 18, 4})},                // routine 1
    {Bits({1}),         Bits({13, 23}),     Bits({25, 1, 18, 0, 6})},                  // routine 2
    {Bits({2}),         Bits({24, 25}),     Bits({15, 21, 12, 20, 13, 5, 2})},         // routine 3
    {Bits({3, 10}),     0,                  Bits({15, 23, 12, 14, 0})},                // routine 4
    {Bits({4}),         Bits({12}),         Bits({13, 25, 27, 14, 26, 18, 3})},        // routine 5
    {Bits({5}),         0,                  Bits({27, 23, 30, 24, 0, 4, 5})},          // routine 6
    {Bits({6}),         Bits({12, 13, 25}), Bits({15, 19, 12, 22, 13, 5, 1, 2, 0})},   // routine 7
    {Bits({7, 12}),     0,                  Bits({27, 23, 15, 31, 12, 24, 2, 3})},     // routine 8
    {Bits({8}),         0,                  Bits({25, 23, 12, 24, 30, 2})},            // routine 9
    {Bits({9, 13}),     Bits({14, 12}),     Bits({13, 20, 12, 24, 23, 1})},            // routine 10
};
// clang-format on

const fig::Model& Model_Of(int character) {
  static std::array<std::unique_ptr<fig::Model>, 15> models;
  auto& m = models[static_cast<std::size_t>(character)];
  if (!m) {
    m = std::make_unique<fig::Model>();
    fig::TextureLayout layout;
    fig::Fig_BuildModel(character, *m, layout);
  }
  return *m;
}

bool Is_Projectile(int hit) {
  const int kind = hit % 100;
  return kind == 24 || kind == 25 || kind == 42 || kind == 43;
}

int First_Strike(const mot::Motion& m) {
  for (int i = 0; i < m.phase_count; ++i)
    if (m.phases[i].strike_part >= 2) return i;
  return -1;
}

}  // namespace

int Mv_ReachBand(int character, int action) {
  static const bool tables = (build_move_tables(), true);
  (void)tables;
  if (character < 0 || character >= 15) return 0;
  int band = 0;
  for (const FarPlay& row : kFarPlay) {
    if ((row.characters & (1u << character)) == 0) continue;
    for (int slot = 0; slot < 32; ++slot) {
      if (MoveTables.Special_Table[character][slot] != action) continue;
      if (row.from13 & (1u << slot)) band = std::max(band, 13);
      if (row.from10 & (1u << slot)) band = std::max(band, 10);
    }
  }
  return band;
}

bool Mv_IsFollowUp(int character, int action) {
  static const bool tables = (build_move_tables(), true);
  (void)tables;
  if (character < 0 || character >= 15) return false;
  for (const ChainLink& link : MoveTables.Chain_Table[character]) {
    if (link.running == NO_LINK) break;
    if (link.next == action && link.running != action && link.running < 340) return true;
  }
  return false;
}

float Mv_Reach(const Move& mv, int character) {
  fig::Skeleton skel;
  fig::Fig_BuildSkeleton(character, skel);
  mot::Joints joints;
  mot::Mot_JointsOf(skel, joints);
  std::vector<mot::BakedFrame> frames;
  mot::Mot_Bake(mv.motion, joints, frames);
  const fig::Model& model = Model_Of(character);
  float front = -1e9f;
  for (const mot::BakedFrame& f : frames) {
    if (f.part < 2 || f.part > 21 || f.hit == 5) continue;
    mot::PartMatrix pm[22];
    mot::Mot_Unpack(f.key, pm);
    for (const auto& c : model.boxes[f.part].corner)
      front = std::max(front, fig::Apply(pm[f.part].r, fig::Vec3{c[0], c[1], c[2]}).z + pm[f.part].t.z + f.offset.z);
  }
  return front + 0.8f;
}

float Mv_OffLine(const Move& mv, int character) {
  fig::Skeleton skel;
  fig::Fig_BuildSkeleton(character, skel);
  mot::Joints joints;
  mot::Mot_JointsOf(skel, joints);
  std::vector<mot::BakedFrame> frames;
  mot::Mot_Bake(mv.motion, joints, frames);
  const fig::Model& model = Model_Of(character);
  float best = 1e9f;
  for (const mot::BakedFrame& f : frames) {
    if (f.part < 2 || f.part > 21 || f.hit == 5 || Is_Projectile(f.hit)) continue;
    mot::PartMatrix pm[22];
    mot::Mot_Unpack(f.key, pm);
    float lo = 1e9f, hi = -1e9f;
    for (const auto& c : model.boxes[f.part].corner) {
      const float x = fig::Apply(pm[f.part].r, fig::Vec3{c[0], c[1], c[2]}).x + pm[f.part].t.x + f.offset.x;
      lo = std::min(lo, x);
      hi = std::max(hi, x);
    }
    const float off = lo > 0 ? lo : hi < 0 ? hi : 0.0f;
    if (std::fabs(off) < std::fabs(best)) best = off;
  }
  return best > 1e8f ? 0.0f : best;
}

void Mv_FitLine(Move& mv, int character, const mot::Pose* (*keep)(const mot::Pose&)) {
  constexpr float kOnLine = 0.4f;        // sideways slack: the defender's body is wider than this
  constexpr float kDegreesPerUnit = 12;  // a strike some five units out moves this much per degree
  for (int round = 0; round < 4; ++round) {
    const float off = Mv_OffLine(mv, character);
    if (std::fabs(off) <= kOnLine) return;
    const float turn = -off * kDegreesPerUnit;
    for (int i = 0; i < mv.motion.phase_count; ++i) {
      mot::Phase& ph = mv.motion.phases[i];
      if (ph.strike_part < 2 || Is_Projectile(ph.hit)) continue;
      mot::Pose p = *ph.pose;
      p.ang[4][1] += turn;
      ph.pose = keep(p);
    }
  }
}

// Whole-body travel a lunge's beat may average over its frames: an eased beat covers about a
// third as much again on its quickest frame, which must stay a step and not a leap.
constexpr float kLongestStride = 1.4f;

void Mv_FitReach(Move& mv, int character, float target) {
  const int strike = First_Strike(mv.motion);
  if (strike < 0 || Is_Projectile(mv.motion.phases[strike].hit)) return;
  // The lunge is shared by the beat before the strike and the strike itself; a few rounds
  // settle it, as the strike frame that reaches furthest may change with the travel.
  float added = 0;
  for (int round = 0; round < 4; ++round) {
    const float short_by = target + 0.1f - Mv_Reach(mv, character);
    if (short_by <= 0) break;
    added += short_by;
    if (strike > 0) {
      mv.motion.phases[strike - 1].travel.z += short_by * 0.6f;
      mv.motion.phases[strike].travel.z += short_by * 0.4f;
    } else {
      mv.motion.phases[strike].travel.z += short_by;
    }
  }
  // A long lunge skims the floor in a low skip rather than gliding along it (the stride itself is
  // shaped by the move's builder).
  if (strike > 0 && added > 1.5f) mv.motion.phases[strike - 1].arc += std::min(0.45f, 0.08f * added);
  // The very longest lunges take a frame more for every stride they would otherwise leap.
  for (int i = std::max(0, strike - 1); i <= strike; ++i) {
    mot::Phase& ph = mv.motion.phases[i];
    const int frames = static_cast<int>(std::ceil(ph.travel.z / kLongestStride));
    if (frames > ph.frames) ph.frames = frames;
  }
}

}  // namespace mv
