// Easing between poses and baking motions to one key frame per game frame.
#include "motion/mot_motion.h"

#include <algorithm>
#include <cmath>

namespace mot {
using fig::Vec3;

float Mot_Ease(Ease e, int i, int n) {
  float t = n > 0 ? std::clamp(static_cast<float>(i) / n, 0.0f, 1.0f) : 1.0f;
  switch (e) {
    case Ease::Linear: return t;
    case Ease::In: return t * t;
    case Ease::Out: return 1.0f - (1.0f - t) * (1.0f - t);
    case Ease::InOut: return t * t * (3.0f - 2.0f * t);
    case Ease::Snap: return 1.0f - (1.0f - t) * (1.0f - t) * (1.0f - t) * (1.0f - t);
  }
  return t;
}

void Mot_Blend(const Pose& a, const Pose& b, float f, Pose& out) {
  out.root = a.root + (b.root - a.root) * f;
  for (int p = 0; p < 22; ++p)
    for (int k = 0; k < 3; ++k) out.ang[p][k] = a.ang[p][k] + (b.ang[p][k] - a.ang[p][k]) * f;
}

// The lowest point of the body: the soles (heel and toe under each ankle) and, for a body on the
// floor, the trunk and limbs (each joint less the flesh around it).
float Mot_SoleDrop(const Joints& j, const PartMatrix m[22]) {
  float low = 1e9f;
  for (int foot : {10, 16}) {
    Vec3 ankle = j.at[foot];
    float sole = ankle.y - 0.42f;
    for (Vec3 p : {Vec3{ankle.x, sole, ankle.z - 0.34f}, Vec3{ankle.x, sole, ankle.z + 1.0f}}) {
      Vec3 q = Apply(m[foot].r, p) + m[foot].t;
      low = std::min(low, q.y);
    }
  }
  static constexpr struct {
    int part;
    float flesh;
  } kFlesh[] = {{2, 0.55f}, {3, 0.6f}, {8, 0.45f}, {14, 0.45f}, {9, 0.35f}, {15, 0.35f},
                {5, 0.3f},  {11, 0.3f}, {6, 0.25f}, {12, 0.25f}, {7, 0.2f}, {13, 0.2f}};
  for (const auto& f : kFlesh) low = std::min(low, Mot_PosedJoint(j, m, f.part).y - f.flesh);
  // The head: crown, back of the skull and face, measured from the neck in the head's own axes.
  const float neck = Mot_PosedJoint(j, m, 2).y;
  for (Vec3 p : {Vec3{0, 1.3f, 0}, Vec3{0, 0.7f, -0.6f}, Vec3{0, 0.7f, 0.55f}})
    low = std::min(low, neck + Apply(m[2].r, p).y - 0.3f);
  // The fingers, a hand's length past each wrist.
  for (int hand : {7, 13}) low = std::min(low, Mot_PosedJoint(j, m, hand).y + Apply(m[hand].r, Vec3{0, -0.8f, 0}).y - 0.15f);
  return low;
}

float Mot_MeshLow(std::span<const MeshPoint> mesh, const PartMatrix m[22]) {
  float low = 1e9f;
  for (const MeshPoint& v : mesh) low = std::min(low, Apply(m[v.part].r, v.at).y + m[v.part].t.y);
  return low;
}

namespace {

// Solves and packs one frame; `m` keeps the solved parts.
void Bake_Pose(const Motion& mo, const Joints& j, const Pose& pose, BakedFrame& f, float rest_sole,
               PartMatrix m[22], float ground, const Floor* floor) {
  Pose p = pose;
  if (mo.grounded && ground > 0) {
    Mot_Solve(j, p, m);
    const float low = floor ? Mot_MeshLow(floor->mesh, m) : Mot_SoleDrop(j, m);
    p.root.y += (rest_sole - low) * ground;
  }
  Mot_Solve(j, p, m);
  Mot_Pack(m, f.key);
}

// The fight keeps a fighter on its line and takes back whatever a motion carried the body
// sideways the moment the next action starts. So the hips come back onto the line they started
// on over the last phase (the settle into the closing pose), instead of jumping there after it.
void Return_To_Line(const Motion& mo, const Joints& j, std::vector<BakedFrame>& out) {
  if (out.empty() || mo.phase_count == 0) return;
  PartMatrix m[22];
  Mot_Solve(j, *mo.start, m);
  const float start_x = Mot_PosedJoint(j, m, 4).x;
  Mot_Unpack(out.back().key, m);
  const float drift = Mot_PosedJoint(j, m, 4).x + out.back().offset.x - start_x;
  const int n = std::min(static_cast<int>(out.size()), std::max(1, mo.phases[mo.phase_count - 1].frames));
  for (int s = 1; s <= n; ++s) out[out.size() - n + s - 1].offset.x -= drift * Mot_Ease(Ease::InOut, s, n);
}

}  // namespace

int Mot_Length(const Motion& mo) {
  int n = 0;
  for (int i = 0; i < mo.phase_count; ++i) n += std::max(1, mo.phases[i].frames);
  return n;
}

void Mot_Bake(const Motion& mo, const Joints& j, std::vector<BakedFrame>& out, const Floor* floor) {
  const float rest_sole = floor ? floor->rest : j.at[10].y - 0.42f;
  const Pose* from = mo.start;
  float from_ground = 1;
  Vec3 travelled{};
  PartMatrix m[22];
  {
    BakedFrame start{};
    Bake_Pose(mo, j, *mo.start, start, rest_sole, m, 1, floor);
  }
  for (int i = 0; i < mo.phase_count; ++i) {
    const Phase& ph = mo.phases[i];
    int n = std::max(1, ph.frames);
    std::size_t first = out.size();
    // A planted foot keeps the ground spot it had on the frame before the phase.
    const bool planted = ph.plant == 10 || ph.plant == 16;
    Vec3 spot{}, shift{};
    if (planted) spot = Mot_PosedJoint(j, m, ph.plant) + (out.empty() ? Vec3{} : out.back().offset);
    const float paced = -mo.pace;  // where the fight's own walking leaves a planted foot, per frame
    for (int s = 1; s <= n; ++s) {
      Pose p;
      const float e = Mot_Ease(ph.ease, s, n);
      Mot_Blend(*from, *ph.pose, e, p);
      BakedFrame bf{};
      Bake_Pose(mo, j, p, bf, rest_sole, m, from_ground + (ph.ground - from_ground) * e, floor);
      bf.offset = travelled + ph.travel * Mot_Ease(Ease::InOut, s, n);
      if (planted) {  // the foot goes only where the phase's own travel takes it
        Vec3 now = Mot_PosedJoint(j, m, ph.plant) + travelled;
        shift = {spot.x - now.x, 0, spot.z + paced * s - now.z};
        bf.offset = bf.offset + shift;
      }
      float t = static_cast<float>(s) / n;
      bf.offset.y += ph.arc * 4.0f * t * (1.0f - t) + mo.lift;
      if (ph.link) bf.part = 1;
      if (ph.strike_part >= 2) {
        bf.part = static_cast<std::int16_t>(ph.strike_part);
        bf.hit = static_cast<std::int16_t>(ph.hit);
      }
      out.push_back(bf);
    }
    if (ph.impact && out.back().part == 0) {
      out.back().part = kImpactPart;
      out.back().hit = kImpactHit;
    }
    if (ph.footfall > 0 && out.back().part <= 1) out.back().hit = static_cast<std::int16_t>(ph.footfall);
    // A cue sounds on the phase's first frame; on a striking phase it moves one frame earlier so
    // that it does not break the run of strike frames.
    if (ph.cue >= 0) {
      std::size_t at = first;
      if (ph.strike_part >= 2 && first > 0 && out[first - 1].part <= 1) at = first - 1;
      if (out[at].part <= 1) out[at].part = static_cast<std::int16_t>(-1 - ph.cue);
    }
    travelled = travelled + ph.travel + shift;
    from = ph.pose;
    from_ground = ph.ground;
  }
  Return_To_Line(mo, j, out);
}

}  // namespace mot
