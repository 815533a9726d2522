// The head with its face, and the hair shell over it.
#include <algorithm>
#include <cmath>

#include "figures/fig_body_internal.h"

namespace fig {
namespace {

// Head profile from chin (t = 0) to crown (t = 1): half width, half depth (both as fractions of
// the head's half width) and the forward shift of the section.
struct HeadRing {
  float t, rx, rz, dz, brow, square;
};
constexpr HeadRing kHead[] = {
    {0.00f, 0.44f, 0.34f, 0.36f, 0.00f, 0.80f},   // chin
    {0.13f, 0.74f, 0.72f, 0.18f, 0.00f, 0.78f},   // jaw
    {0.28f, 0.88f, 0.92f, 0.07f, 0.00f, 0.86f},   // mouth
    {0.45f, 0.95f, 1.00f, 0.02f, 0.00f, 0.92f},   // cheekbones
    {0.60f, 0.98f, 1.02f, 0.00f, 0.00f, 1.00f},   // eyes
    {0.74f, 0.98f, 1.05f, 0.00f, 0.05f, 1.00f},   // brow ridge
    {0.90f, 0.80f, 0.88f, -0.02f, 0.00f, 1.00f},  // upper skull
};
constexpr int kHeadRings = sizeof(kHead) / sizeof(kHead[0]);

float Head_Chin(const Look& lk) { return lk.head_top - lk.head_h; }

// Men have the broader, squarer jaw; women's faces are rounder.
float Jaw(const Look& lk, int ring) { return ring <= 1 && !lk.female ? 1.08f : 1.0f; }
float Square(const Look& lk, int ring) {
  return lk.female ? std::min(1.0f, kHead[ring].square + 0.1f) : kHead[ring].square;
}
// Signed power: as the lofts flatten a section toward a rounded box.
float Spow(float v, float k) { return v < 0 ? -std::pow(-v, k) : std::pow(v, k); }

// A point on the head surface at height fraction t and angle theta (0 = right side, 90 = front),
// grown by `grow` (hair sits a little outside the skin).
Vec3 Head_Point(const Look& lk, float t, float theta, float grow) {
  float w = lk.head_w * 0.5f;
  float tc = std::clamp(t, 0.12f, 0.999f);
  int i = 0;
  while (i + 2 < kHeadRings && kHead[i + 1].t < tc) ++i;
  const HeadRing& a = kHead[i];
  const HeadRing& b = kHead[std::min(i + 1, kHeadRings - 1)];
  float f = b.t > a.t ? std::clamp((tc - a.t) / (b.t - a.t), 0.0f, 1.0f) : 0.0f;
  const int ib = std::min(i + 1, kHeadRings - 1);
  const float ra = a.rx * Jaw(lk, i), rb = b.rx * Jaw(lk, ib);
  float rx = ra + (rb - ra) * f, rz = a.rz + (b.rz - a.rz) * f, dz = a.dz + (b.dz - a.dz) * f;
  const float sq = Square(lk, i) + (Square(lk, ib) - Square(lk, i)) * f;
  if (t > 0.9f) {  // round off the crown
    float k = std::sqrt(std::max(0.0f, 1.0f - ((t - 0.9f) / 0.1f) * ((t - 0.9f) / 0.1f)));
    rx = 0.78f * k;
    rz = 0.86f * k;
  }
  float c = Spow(std::cos(theta * kDeg), sq), s = Spow(std::sin(theta * kDeg), sq);
  float y = Head_Chin(lk) + std::min(t, 1.0f) * lk.head_h;
  return {c * rx * w * grow, y + (grow - 1.0f) * 0.5f * lk.head_h * std::max(0.0f, t - 0.5f),
          0.04f + (dz + s * rz) * w * grow};
}

}  // namespace

float Face_V(float t) { return 232.0f - t / 0.9f * 208.0f; }

// The nose: a small ridge standing out of the face from between the eyes to the tip, with its
// wings and the groove beneath, painted from the face picture under it.
void Body_Nose(Model& m, const Look& lk) {
  if (lk.face.mark == Mark::Visor) return;
  const float w = lk.head_w * 0.5f;
  auto at = [&](float t, float theta, float out) {
    Vec3 p = Head_Point(lk, t, theta, 1.0f);
    return p + Vec3{0, 0, out * w};
  };
  auto uv = [](float theta) { return (theta + 90.0f) / 360.0f * 255.0f; };
  const float stand = lk.female ? 0.24f : 0.30f;
  const int bridge = Mesh_Vertex(m, at(0.58f, 90, 0.02f), uv(90), Face_V(0.58f), P_HEAD);
  const int tip = Mesh_Vertex(m, at(0.42f, 90, stand), uv(90), Face_V(0.42f), P_HEAD);
  const int right = Mesh_Vertex(m, at(0.39f, 76, 0.04f), uv(76), Face_V(0.39f), P_HEAD);
  const int left = Mesh_Vertex(m, at(0.39f, 104, 0.04f), uv(104), Face_V(0.39f), P_HEAD);
  const int base = Mesh_Vertex(m, at(0.36f, 90, 0.06f), uv(90), Face_V(0.36f), P_HEAD);
  const Vec3 inside{0, Head_Chin(lk) + 0.45f * lk.head_h, 0.0f};
  auto add = [&](int a, int b, int c) { Mesh_FaceOutward(m, a, b, c, R_FACE, inside); };
  add(bridge, right, tip);
  add(bridge, tip, left);
  add(right, base, tip);
  add(tip, base, left);
}

void Body_Head(Model& m, const Look& lk, const BodyFrame&) {
  float w = lk.head_w * 0.5f;
  Ring rings[kHeadRings + 2];
  float ring_v[kHeadRings + 2];
  int count = kHeadRings;
  for (int i = 0; i < kHeadRings; ++i) {
    const HeadRing& h = kHead[i];
    Ring& r = rings[i];
    ring_v[i] = Face_V(h.t);
    r.centre = {0, Head_Chin(lk) + h.t * lk.head_h, 0.04f + h.dz * w};
    r.rx = h.rx * w * Jaw(lk, i);
    r.rz = h.rz * w;
    r.square = Square(lk, i);
    r.bulge_front = h.brow;
  }
  // No hair hides the top of a bald head: the skull closes in a dome instead of a flat cap.
  if (lk.hair == Hair::Bald) {
    constexpr float kDome[2][3] = {{0.96f, 0.58f, 0.66f}, {0.995f, 0.24f, 0.28f}};  // t, rx, rz
    for (const auto& d : kDome) {
      ring_v[count] = Face_V(d[0]);
      Ring& r = rings[count++];
      r.centre = {0, Head_Chin(lk) + d[0] * lk.head_h, 0.04f - 0.02f * w};
      r.rx = d[1] * w;
      r.rz = d[2] * w;
    }
  }
  Loft lf;
  lf.part = P_HEAD;
  lf.tex = R_FACE;
  lf.sides = 12;
  lf.v0 = Face_V(0.0f);
  lf.v1 = ring_v[count - 1];
  lf.ring_v = ring_v;
  lf.cap_last = true;  // the neck closes the head from below
  Mesh_Loft(m, lf, rings, count);
  Body_Nose(m, lk);
}

float Hair_Line(const HairShape& hs, float theta) {
  float s = std::sin(theta * kDeg);  // 1 front, -1 back
  return s >= 0 ? hs.side + (hs.front - hs.side) * s : hs.side + (hs.back - hs.side) * -s;
}

HairShape Hair_Shape(Hair h) {
  switch (h) {
    case Hair::Crop: return {0.80f, 0.58f, 0.40f, 1.05f, 0.0f, 0};
    case Hair::Spiky: return {0.78f, 0.56f, 0.38f, 1.08f, 0.02f, 9};
    case Hair::Slick: return {0.82f, 0.54f, 0.32f, 1.06f, 0.0f, 0};
    case Hair::Bob: return {0.76f, 0.14f, 0.12f, 1.12f, 0.0f, 0};
    case Hair::Long: return {0.80f, 0.20f, -0.70f, 1.10f, 0.01f, 0};
    case Hair::Bun: return {0.82f, 0.52f, 0.30f, 1.06f, 0.0f, 0};
    case Hair::Wild: return {0.74f, 0.30f, -0.10f, 1.20f, 0.07f, 3};
    case Hair::Helmet: return {0.78f, 0.10f, 0.05f, 1.14f, 0.0f, 0};
    case Hair::Bald: break;
  }
  return {1.0f, 1.0f, 1.0f, 1.0f, 0.0f, 0};
}

void Body_Hair(Model& m, const Look& lk, const BodyFrame&) {
  if (lk.hair == Hair::Bald) return;
  HairShape hs = Hair_Shape(lk.hair);
  constexpr int kCols = 10, kRows = 4;
  int first = m.vertex_count + 1;
  for (int r = 0; r <= kRows; ++r) {
    for (int j = 0; j <= kCols; ++j) {
      float theta = -90.0f + 360.0f * j / kCols;
      float line = Hair_Line(hs, theta);
      float t = line + (1.0f - line) * r / kRows;
      float grow = hs.grow;
      if (hs.shag > 0) grow += hs.shag * static_cast<float>(((j * 7 + r * 13) % 5) - 2) * 0.5f;
      Vec3 p = Head_Point(lk, t, theta, grow);
      if (t < 0.12f) {  // long hair falls straight down the back below the skull
        Vec3 q = Head_Point(lk, 0.12f, theta, grow);
        p = {q.x * 1.05f, Head_Chin(lk) + t * lk.head_h * 1.6f, q.z - (0.12f - t) * 0.35f};
      }
      if (r == kRows) p = Head_Point(lk, 1.0f, 0.0f, grow) + Vec3{0, 0.02f, 0};
      Mesh_Vertex(m, p, 255.0f * j / kCols, 255.0f * (kRows - r) / kRows, P_HEAD);
    }
  }
  Vec3 inside{0, lk.head_top - lk.head_h * 0.45f, 0.04f};
  for (int r = 0; r < kRows; ++r) {
    for (int j = 0; j < kCols; ++j) {
      int a = first + r * (kCols + 1) + j, b = a + 1, c = b + kCols + 1, d = a + kCols + 1;
      float theta = -90.0f + 360.0f * (j + 0.5f) / kCols;
      int region = std::sin(theta * kDeg) < -0.3f ? R_HAIR_BACK : R_HAIR;
      Vec3 pa{m.vertices[a].x, m.vertices[a].y, m.vertices[a].z};
      Vec3 pb{m.vertices[b].x, m.vertices[b].y, m.vertices[b].z};
      Vec3 pc{m.vertices[c].x, m.vertices[c].y, m.vertices[c].z};
      Vec3 ref = inside;
      ref.y = std::min(ref.y, (pa.y + pc.y) * 0.5f + 0.3f);
      if (Dot(Cross(pb - pa, pc - pa), pa - ref) < 0) {
        Mesh_Face(m, a, c, b, region);
        Mesh_Face(m, a, d, c, region);
      } else {
        Mesh_Face(m, a, b, c, region);
        Mesh_Face(m, a, c, d, region);
      }
    }
  }
  // Spikes standing out of the crown and the back of the head.
  for (int k = 0; k < hs.spikes; ++k) {
    float theta = -90.0f + 360.0f * k / hs.spikes + 17.0f;
    float t = 0.72f + 0.18f * ((k * 5) % 3) / 2.0f;
    Vec3 base = Head_Point(lk, t, theta, hs.grow * 0.98f);
    Vec3 centre{0, lk.head_top - lk.head_h * 0.4f, 0.0f};
    Vec3 out = Normalise(base - centre);
    out.z -= 0.35f;  // swept back
    out = Normalise(out);
    Vec3 side = Normalise(Cross(out, Vec3{0, 1, 0.3f}));
    Vec3 up = Normalise(Cross(side, out));
    float sz = 0.16f;
    int a = Mesh_Vertex(m, base + side * sz, 30, 200, P_HEAD);
    int b = Mesh_Vertex(m, base - side * sz + up * (sz * 0.5f), 60, 200, P_HEAD);
    int c = Mesh_Vertex(m, base - side * sz - up * (sz * 0.5f), 90, 200, P_HEAD);
    int tip = Mesh_Vertex(m, base + out * 0.42f, 60, 20, P_HEAD);
    Vec3 in = base - out * 0.2f;
    auto add = [&](int p, int q, int r) { Mesh_FaceOutward(m, p, q, r, R_HAIR, in); };
    add(a, b, tip);
    add(b, c, tip);
    add(c, a, tip);
  }
  if (lk.hair == Hair::Bun) {
    Vec3 c = Head_Point(lk, 0.86f, -90.0f, 1.25f);
    Station st[] = {{0.0f, 0.05f, 0.05f}, {0.3f, 0.26f, 0.26f}, {0.7f, 0.26f, 0.26f}, {1.0f, 0.05f, 0.05f}};
    Body_Tube(m, P_HEAD, R_HAIR, c + Vec3{0, 0.25f, 0.05f}, c + Vec3{0, -0.25f, -0.1f}, st, 4, 6, true, true);
  }
}

}  // namespace fig
