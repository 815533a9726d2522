// The thrown objects: an energy ball (FAR.3DM), a burning card (CARDFIRE.3DM) and a double-bit
// throwing axe (AXE.3DM), with the pictures they are painted with.
//
// The fight draws the ball and the card with the glow blend (added to what lies behind, so
// black is see-through) and the axe with the normal blend. Models face +z, y up; every face
// is one-sided, its corners counter-clockwise seen from outside.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>

#include "assetgen.h"
#include "writers/writer_3dm.h"
#include "writers/writer_image.h"

namespace gen {

namespace {

struct V3 {
  float x, y, z;
};
V3 operator-(V3 a, V3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
V3 cross(V3 a, V3 b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
float dot(V3 a, V3 b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
V3 unit(V3 a) {
  const float n = std::sqrt(dot(a, a));
  return n > 0 ? V3{a.x / n, a.y / n, a.z / n} : V3{0, 1, 0};
}

constexpr float kPi = 3.14159265f;

// ---- meshes --------------------------------------------------------------------------------
// A model under construction: each vertex carries its own texture coordinate.
struct Mesh {
  writers::Model3DM m;

  int vertex(V3 p, V3 n, float u, float v) {
    m.vertices.push_back({p.x, p.y, p.z, n.x, n.y, n.z, 2});
    m.uvs.push_back({std::clamp(u, 0.0f, 255.0f), std::clamp(v, 0.0f, 255.0f)});
    return static_cast<int>(m.vertices.size());
  }
  V3 at(int i) const {
    const writers::Vertex3DM& v = m.vertices[static_cast<std::size_t>(i - 1)];
    return {v.x, v.y, v.z};
  }
  // A triangle whose front looks along `out`.
  void face(int a, int b, int c, int texture, V3 out) {
    if (dot(cross(at(b) - at(a), at(c) - at(a)), out) < 0) std::swap(b, c);
    writers::Face3DM f;
    f.vtx[0] = f.uv[0] = static_cast<std::int16_t>(a);
    f.vtx[1] = f.uv[1] = static_cast<std::int16_t>(b);
    f.vtx[2] = f.uv[2] = static_cast<std::int16_t>(c);
    f.texture = texture;
    m.faces.push_back(f);
  }
  // A triangle facing away from the point `inside`.
  void face_out(int a, int b, int c, int texture, V3 inside) {
    const V3 mid{(at(a).x + at(b).x + at(c).x) / 3, (at(a).y + at(b).y + at(c).y) / 3,
                 (at(a).z + at(b).z + at(c).z) / 3};
    face(a, b, c, texture, mid - inside);
  }
  // A flat quad seen from both sides.
  void sheet(int a, int b, int c, int d, int texture, V3 normal) {
    const V3 back{-normal.x, -normal.y, -normal.z};
    face(a, b, c, texture, normal);
    face(a, c, d, texture, normal);
    face(a, c, b, texture, back);
    face(a, d, c, texture, back);
  }
  // One part record: the model's bounds, its shadow the box's lower face.
  void finish() {
    V3 lo{1e9f, 1e9f, 1e9f}, hi{-1e9f, -1e9f, -1e9f};
    for (const writers::Vertex3DM& v : m.vertices) {
      lo = {std::min(lo.x, v.x), std::min(lo.y, v.y), std::min(lo.z, v.z)};
      hi = {std::max(hi.x, v.x), std::max(hi.y, v.y), std::max(hi.z, v.z)};
    }
    writers::Part3DM part;
    for (int k = 0; k < 8; ++k) {
      part.box[k][0] = k & 1 ? hi.x : lo.x;
      part.box[k][1] = k & 2 ? hi.y : lo.y;
      part.box[k][2] = k & 4 ? hi.z : lo.z;
    }
    const std::int16_t shadow[18] = {0, 1, 5, 0, 5, 4, 0, 4, 5, 0, 5, 1, 0, 1, 5, 0, 5, 4};
    std::copy(std::begin(shadow), std::end(shadow), part.shadow);
    m.max_tag = 2;
    m.parts = {part};
  }
};

// ---- pictures ------------------------------------------------------------------------------
// Integer hash noise in 0..1: the same on every machine.
float noise(int x, int y, int seed) {
  std::uint32_t h = static_cast<std::uint32_t>(x) * 374761393u +
                    static_cast<std::uint32_t>(y) * 668265263u +
                    static_cast<std::uint32_t>(seed) * 2246822519u;
  h = (h ^ (h >> 13)) * 1274126177u;
  return static_cast<float>((h ^ (h >> 16)) & 0xFFFF) / 65535.0f;
}

// Smooth value noise on a grid of `cell` pixels that wraps across a `period`-pixel picture.
float smooth_noise(int x, int y, int cell, int period, int seed) {
  const int cells = period / cell;
  const int cx = x / cell, cy = y / cell;
  const float fx = static_cast<float>(x % cell) / cell, fy = static_cast<float>(y % cell) / cell;
  auto at = [&](int i, int j) {
    return noise((i % cells + cells) % cells, (j % cells + cells) % cells, seed);
  };
  const float sx = fx * fx * (3 - 2 * fx), sy = fy * fy * (3 - 2 * fy);
  const float top = at(cx, cy) + (at(cx + 1, cy) - at(cx, cy)) * sx;
  const float bottom = at(cx, cy + 1) + (at(cx + 1, cy + 1) - at(cx, cy + 1)) * sx;
  return top + (bottom - top) * sy;
}

struct Picture {
  writers::ImageFile file;
  Picture(int w, int h) {
    file = {w, h, 3, writers::Bytes(static_cast<std::size_t>(w * h * 3), 0)};
  }
  void set(int x, int y, float r, float g, float b) {
    std::uint8_t* p = &file.pixels[static_cast<std::size_t>((y * file.width + x) * 3)];
    p[0] = static_cast<std::uint8_t>(std::clamp(r, 0.0f, 1.0f) * 255.0f + 0.5f);
    p[1] = static_cast<std::uint8_t>(std::clamp(g, 0.0f, 1.0f) * 255.0f + 0.5f);
    p[2] = static_cast<std::uint8_t>(std::clamp(b, 0.0f, 1.0f) * 255.0f + 0.5f);
  }
};

// Swirling plasma, blue at the poles (top and bottom rows) to white-hot at the equator.
Picture paint_plasma() {
  Picture p(64, 64);
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 64; ++x) {
      const float swirl =
          smooth_noise(x + y / 2, y, 8, 64, 11) * 0.65f + smooth_noise(x, y, 4, 64, 12) * 0.35f;
      const float lat = 1.0f - std::fabs(y - 31.5f) / 32.0f;  // 0 at the poles, 1 at the equator
      const float heat = std::clamp(lat * 0.7f + swirl * 0.6f - 0.15f, 0.0f, 1.0f);
      p.set(x, y, heat * heat * 1.2f, 0.35f + heat * 0.75f, 0.75f + heat * 0.4f);
    }
  return p;
}

// A card of light: gold border, a dark crimson field, a diamond rune and corner pips.
Picture paint_card() {
  Picture p(64, 128);
  for (int y = 0; y < 128; ++y)
    for (int x = 0; x < 64; ++x) {
      const int edge = std::min({x, y, 63 - x, 127 - y});
      const float dx = std::fabs(x - 31.5f) / 20.0f, dy = std::fabs(y - 63.5f) / 36.0f;
      const float rune = dx + dy;  // 1 on the diamond's outline
      const bool pip = (std::abs(x - 10) < 4 && std::abs(y - 14) < 5) ||
                       (std::abs(x - 53) < 4 && std::abs(y - 113) < 5);
      if (edge < 3 || (edge == 5) || pip || (rune > 0.86f && rune < 1.0f) || rune < 0.3f)
        p.set(x, y, 1.0f, 0.82f, 0.35f);
      else
        p.set(x, y, 0.28f + 0.08f * noise(x, y, 21), 0.03f, 0.06f);
    }
  return p;
}

// A ring of flame on black around a card-shaped hole: the card covers the middle (columns
// 16..47, rows 13..50) and the flames lick out of its edges, longest at the top.
Picture paint_fire() {
  Picture p(64, 64);
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 64; ++x) {
      const float dx = std::max(std::fabs(x - 31.5f) - 16.0f, 0.0f);
      const float dy = std::max(std::fabs(y - 31.5f) - 18.5f, 0.0f);
      const float out = std::sqrt(dx * dx + dy * dy);  // pixels outside the card
      const float angle = std::atan2(y - 31.5f, x - 31.5f);
      const int around = static_cast<int>((angle + kPi) / (2 * kPi) * 64.0f);
      const float reach =
          (7.0f + 7.0f * smooth_noise(around, 0, 4, 64, 31)) * (y < 32 ? 1.15f : 0.9f);
      const float flicker = 0.8f + 0.35f * smooth_noise(x, y, 4, 64, 32);
      const float heat = std::clamp((1.0f - out / reach) * flicker, 0.0f, 1.0f);
      p.set(x, y, heat * 1.6f, heat * heat * 1.1f, heat * heat * heat * 0.8f);
    }
  return p;
}

// Steel above (bright toward the cutting edge at u = 1), wrapped ash wood below.
Picture paint_axe() {
  Picture p(64, 64);
  for (int y = 0; y < 64; ++y)
    for (int x = 0; x < 64; ++x) {
      if (y < 32) {
        const float shine = 0.45f + 0.45f * (x / 63.0f) + 0.08f * smooth_noise(x, y, 4, 64, 41);
        p.set(x, y, shine * 0.92f, shine * 0.95f, shine);
      } else {
        const bool wrap = (y / 4) % 3 == 0;  // leather bands round the grip
        const float grain = 0.8f + 0.2f * smooth_noise(x / 4, y * 2, 2, 16, 42);
        if (wrap)
          p.set(x, y, 0.22f * grain, 0.13f * grain, 0.07f * grain);
        else
          p.set(x, y, 0.55f * grain, 0.37f * grain, 0.2f * grain);
      }
    }
  return p;
}

// ---- models --------------------------------------------------------------------------------
// A sphere of plasma with spikes of light standing out of it.
writers::Model3DM build_ball() {
  constexpr int kRings = 8, kSegments = 12, kSpikes = 14;
  constexpr float kRadius = 0.6f, kSpikeBase = 0.45f, kSpikeTip = 1.05f, kSpikeWidth = 0.16f;
  Mesh mesh;
  int grid[kRings + 1][kSegments + 1];
  for (int r = 0; r <= kRings; ++r)
    for (int s = 0; s <= kSegments; ++s) {
      const float th = kPi * r / kRings, ph = 2 * kPi * s / kSegments;
      const V3 n{std::sin(th) * std::cos(ph), std::cos(th), std::sin(th) * std::sin(ph)};
      grid[r][s] = mesh.vertex({n.x * kRadius, n.y * kRadius, n.z * kRadius}, n,
                               255.0f * s / kSegments, 255.0f * r / kRings);
    }
  const V3 centre{0, 0, 0};
  for (int r = 0; r < kRings; ++r)
    for (int s = 0; s < kSegments; ++s) {
      if (r > 0) mesh.face_out(grid[r][s], grid[r + 1][s], grid[r][s + 1], 0, centre);
      if (r < kRings - 1)
        mesh.face_out(grid[r][s + 1], grid[r + 1][s], grid[r + 1][s + 1], 0, centre);
    }
  // Spikes along a golden-angle spiral: a three-sided point from inside the ball.
  for (int k = 0; k < kSpikes; ++k) {
    const float y = 1.0f - 2.0f * (k + 0.5f) / kSpikes, ring = std::sqrt(1 - y * y);
    const float ph = 2.39996f * k;
    const V3 d{ring * std::cos(ph), y, ring * std::sin(ph)};
    const V3 side = unit(cross(d, std::fabs(d.y) < 0.9f ? V3{0, 1, 0} : V3{1, 0, 0}));
    const V3 up = cross(side, d);
    const V3 base{d.x * kSpikeBase, d.y * kSpikeBase, d.z * kSpikeBase};
    int b[3];
    for (int j = 0; j < 3; ++j) {
      const float a = 2 * kPi * j / 3;
      const float cs = std::cos(a) * kSpikeWidth, sn = std::sin(a) * kSpikeWidth;
      b[j] = mesh.vertex({base.x + side.x * cs + up.x * sn, base.y + side.y * cs + up.y * sn,
                          base.z + side.z * cs + up.z * sn},
                         d, 40.0f + 80 * j, 128);
    }
    const int tip = mesh.vertex({d.x * kSpikeTip, d.y * kSpikeTip, d.z * kSpikeTip}, d, 80, 4);
    for (int j = 0; j < 3; ++j) mesh.face_out(b[j], b[(j + 1) % 3], tip, 0, base);
  }
  mesh.m.textures = {"EFF_BALL.bmp"};
  mesh.finish();
  return mesh.m;
}

// A playing card standing in the y-z plane, flames licking out of all four edges.
writers::Model3DM build_card() {
  constexpr float kHalfH = 0.7f, kHalfW = 0.5f, kHalfT = 0.025f;
  Mesh mesh;
  int front[4], back[4];
  const float ys[4] = {kHalfH, kHalfH, -kHalfH, -kHalfH};
  const float zs[4] = {-kHalfW, kHalfW, kHalfW, -kHalfW};
  const float us[4] = {0, 255, 255, 0}, vs[4] = {0, 0, 255, 255};
  for (int k = 0; k < 4; ++k) {
    front[k] = mesh.vertex({kHalfT, ys[k], zs[k]}, {1, 0, 0}, us[k], vs[k]);
    back[k] = mesh.vertex({-kHalfT, ys[k], zs[k]}, {-1, 0, 0}, 255 - us[k], vs[k]);
  }
  const V3 centre{0, 0, 0};
  mesh.face_out(front[0], front[1], front[2], 0, centre);
  mesh.face_out(front[0], front[2], front[3], 0, centre);
  mesh.face_out(back[0], back[1], back[2], 0, centre);
  mesh.face_out(back[0], back[2], back[3], 0, centre);
  for (int k = 0; k < 4; ++k) {  // the thin edges
    const int n = (k + 1) % 4;
    mesh.face_out(front[k], front[n], back[n], 0, centre);
    mesh.face_out(front[k], back[n], back[k], 0, centre);
  }
  // A sheet of flame in the card's plane, inside it, showing round its edges from both sides.
  constexpr float kFireH = 1.24f, kFireW = 1.0f;  // the card fills the middle of the picture
  int fire[4];
  for (int k = 0; k < 4; ++k)
    fire[k] = mesh.vertex({0, ys[k] / kHalfH * kFireH, zs[k] / kHalfW * kFireW}, {1, 0, 0},
                          us[k] == 0 ? 2.0f : 253.0f, vs[k] == 0 ? 2.0f : 253.0f);
  mesh.sheet(fire[0], fire[1], fire[2], fire[3], 1, {1, 0, 0});
  mesh.m.textures = {"EFF_CARD.bmp", "EFF_FIRE.bmp"};
  mesh.finish();
  return mesh.m;
}

// A closed slab between two outlines: the front at +x, the back at -x, and the rim between.
void add_slab(Mesh& mesh, const float (*outline)[3], int n, V3 centre, float centre_half,
              int texture, float u_scale, float v_origin, float v_scale) {
  auto uv_u = [&](float z) { return std::fabs(z) * u_scale; };
  auto uv_v = [&](float y) { return v_origin + y * v_scale; };
  const int cf =
      mesh.vertex({centre_half, centre.y, centre.z}, {1, 0, 0}, uv_u(centre.z), uv_v(centre.y));
  const int cb =
      mesh.vertex({-centre_half, centre.y, centre.z}, {-1, 0, 0}, uv_u(centre.z), uv_v(centre.y));
  int f[16], b[16];
  for (int k = 0; k < n; ++k) {
    const float y = outline[k][0], z = outline[k][1], half = outline[k][2];
    f[k] = mesh.vertex({half, y, z}, {1, 0, 0}, uv_u(z), uv_v(y));
    b[k] = mesh.vertex({-half, y, z}, {-1, 0, 0}, uv_u(z), uv_v(y));
  }
  for (int k = 0; k < n; ++k) {
    const int j = (k + 1) % n;
    mesh.face(cf, f[k], f[j], texture, {1, 0, 0});
    mesh.face(cb, b[k], b[j], texture, {-1, 0, 0});
    mesh.face_out(f[k], f[j], b[j], texture, centre);
    mesh.face_out(f[k], b[j], b[k], texture, centre);
  }
}

// A double-bit throwing axe: the haft along y, a bearded blade on either side in z.
writers::Model3DM build_axe() {
  Mesh mesh;
  // Blade outline (y, z, half thickness), star-shaped about its centre; thin at the edge.
  constexpr float kBlade[9][3] = {
      {0.72f, 0.06f, 0.07f},  {0.80f, 0.30f, 0.05f},  {0.98f, 0.55f, 0.012f},
      {0.85f, 0.68f, 0.012f}, {0.60f, 0.72f, 0.012f}, {0.35f, 0.68f, 0.012f},
      {0.22f, 0.55f, 0.012f}, {0.40f, 0.30f, 0.05f},  {0.48f, 0.06f, 0.07f},
  };
  float mirrored[9][3];
  for (int k = 0; k < 9; ++k) {
    mirrored[k][0] = kBlade[8 - k][0];
    mirrored[k][1] = -kBlade[8 - k][1];
    mirrored[k][2] = kBlade[8 - k][2];
  }
  add_slab(mesh, kBlade, 9, {0, 0.6f, 0.42f}, 0.05f, 0, 340.0f, 158.0f, -155.0f);
  add_slab(mesh, mirrored, 9, {0, 0.6f, -0.42f}, 0.05f, 0, 340.0f, 158.0f, -155.0f);
  // The haft: a square rod, each side with its own strip of the wood picture.
  constexpr float kBottom = -0.95f, kTop = 0.8f, kHalf = 0.055f;
  const float sx[4] = {kHalf, kHalf, -kHalf, -kHalf}, sz[4] = {-kHalf, kHalf, kHalf, -kHalf};
  const V3 axis{0, (kBottom + kTop) / 2, 0};
  for (int k = 0; k < 4; ++k) {
    const int j = (k + 1) % 4;
    const float u0 = 64.0f * k, u1 = u0 + 60.0f;
    const int a = mesh.vertex({sx[k], kBottom, sz[k]}, {sx[k], 0, sz[k]}, u0, 255);
    const int b = mesh.vertex({sx[j], kBottom, sz[j]}, {sx[j], 0, sz[j]}, u1, 255);
    const int c = mesh.vertex({sx[j], kTop, sz[j]}, {sx[j], 0, sz[j]}, u1, 130);
    const int d = mesh.vertex({sx[k], kTop, sz[k]}, {sx[k], 0, sz[k]}, u0, 130);
    mesh.face_out(a, b, c, 0, axis);
    mesh.face_out(a, c, d, 0, axis);
  }
  for (const float y : {kBottom, kTop}) {  // the two end caps
    const V3 out{0, y < 0 ? -1.0f : 1.0f, 0};
    int cap[4];
    for (int k = 0; k < 4; ++k) cap[k] = mesh.vertex({sx[k], y, sz[k]}, out, 8.0f + 4 * k, 240);
    mesh.face(cap[0], cap[1], cap[2], 0, out);
    mesh.face(cap[0], cap[2], cap[3], 0, out);
  }
  mesh.m.textures = {"EFF_AXE.bmp"};
  mesh.finish();
  return mesh.m;
}

bool write_model(const Context& ctx, const char* name, const writers::Model3DM& m) {
  const std::string path = (ctx.out / name).string();
  if (writers::Write_3DM(path.c_str(), m)) return true;
  std::fprintf(stderr, "assetgen: cannot write %s\n", path.c_str());
  return false;
}

bool write_picture(const Context& ctx, const char* name, const Picture& p) {
  const std::string path = (ctx.out / name).string();
  if (writers::Write_Image(path.c_str(), p.file)) return true;
  std::fprintf(stderr, "assetgen: cannot write %s\n", path.c_str());
  return false;
}

}  // namespace

bool Generate_EffectModels(const Context& ctx) {
  return write_model(ctx, "FAR.3DM", build_ball()) &&
         write_picture(ctx, "EFF_BALL.bmp", paint_plasma()) &&
         write_model(ctx, "CARDFIRE.3DM", build_card()) &&
         write_picture(ctx, "EFF_CARD.bmp", paint_card()) &&
         write_picture(ctx, "EFF_FIRE.bmp", paint_fire()) &&
         write_model(ctx, "AXE.3DM", build_axe()) && write_picture(ctx, "EFF_AXE.bmp", paint_axe());
}

}  // namespace gen
