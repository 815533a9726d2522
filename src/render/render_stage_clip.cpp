// Near-plane clipping of the floor and light-pool triangles: corners behind Z = 10 slide
// along their edges to the plane, then everything is projected.
#include <cstdint>

#include "render/render_math.h"
#include "render/render_sprite.h"
#include "render/render_stage.h"

namespace {

bool in_front(const ScreenVertex& v) { return v.z >= NEAR_Z; }

std::uint16_t lerp_colour(std::uint16_t from, std::uint16_t to, float f) {
  const float v = static_cast<float>(from) + (static_cast<float>(to) - static_cast<float>(from)) * f;
  return static_cast<std::uint16_t>(static_cast<int>(v));
}

// The corner `behind` moved along its edge toward `front` until it lies on the plane.
ScreenVertex to_plane(const ScreenVertex& behind, const ScreenVertex& front) {
  const float f = (NEAR_Z - behind.z) / (front.z - behind.z);
  ScreenVertex v;
  v.x = behind.x + (front.x - behind.x) * f;
  v.y = behind.y + (front.y - behind.y) * f;
  v.z = NEAR_Z;
  v.s = behind.s + (front.s - behind.s) * f;
  v.t = behind.t + (front.t - behind.t) * f;
  v.r = lerp_colour(behind.r, front.r, f);
  v.g = lerp_colour(behind.g, front.g, f);
  v.b = lerp_colour(behind.b, front.b, f);
  v.a = lerp_colour(behind.a, front.a, f);
  return v;
}

// Screen x and y, kept as floats; the corner is at or beyond the plane, so Z >= 10.
ScreenVertex projected(const ScreenVertex& v) {
  ScreenVertex p = v;
  p.x = v.x * PROJECT_SCALE / v.z + 256.0f;
  p.y = 192.0f - v.y * PROJECT_SCALE / v.z;
  return p;
}

void put(ScreenVertex* out, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  out[0] = projected(a);
  out[1] = projected(b);
  out[2] = projected(c);
}

}  // namespace

int Clip_Triangle(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                  ScreenVertex out[6]) {
  if (a.z != a.z || b.z != b.z || c.z != c.z) return 0;
  const ScreenVertex* v[3] = {&a, &b, &c};
  const int front = in_front(a) + in_front(b) + in_front(c);
  if (front == 0) return 0;
  if (front == 3) {
    put(out, a, b, c);
    return 1;
  }
  // Turn the corners cyclically so that the lone corner (in front for one, behind for two)
  // comes first; the winding stays as given.
  int lone = 0;
  for (int k = 0; k < 3; ++k)
    if (in_front(*v[k]) == (front == 1)) lone = k;
  const ScreenVertex& p = *v[lone];
  const ScreenVertex& q = *v[(lone + 1) % 3];
  const ScreenVertex& r = *v[(lone + 2) % 3];
  if (front == 1) {
    put(out, p, to_plane(q, p), to_plane(r, p));
    return 1;
  }
  // p is behind; q and r are in front, in that cyclic order (q, r, p).
  const ScreenVertex toward_q = to_plane(p, q);  // R' of the rule: the lone corner toward P
  const ScreenVertex toward_r = to_plane(p, r);  // R'': toward Q
  put(out, q, r, toward_r);
  put(out + 3, q, toward_r, toward_q);
  return 2;
}

void Emit_ClippedTri(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  ScreenVertex out[6];
  const int n = Clip_Triangle(a, b, c, out);
  for (int k = 0; k < n; ++k) Emit_Tri(out[3 * k], out[3 * k + 1], out[3 * k + 2]);
}
