// The software fighter rasteriser.
#include "figures/fig_raster.h"

#include <algorithm>
#include <cmath>

namespace fig {
namespace {

struct Projected {
  float x, y, z;  // pixels, pixels, camera depth
  Vec3 n;         // camera-space normal
};

// Bilinear or nearest, repeating texture read; u and v run 0..255 over the texture once.
void Sample(const Image& img, float u, float v, bool smooth, float out[3]) {
  const std::uint8_t* p;
  if (!smooth) {
    float s = u / 255.0f, t = v / 255.0f;
    s -= std::floor(s);
    t -= std::floor(t);
    const int x = std::min(img.width - 1, static_cast<int>(s * img.width));
    const int y = std::min(img.height - 1, static_cast<int>(t * img.height));
    p = &img.rgb[(static_cast<std::size_t>(y) * img.width + x) * 3];
    for (int q = 0; q < 3; ++q) out[q] = p[q] / 255.0f;
    return;
  }
  const float s = u / 255.0f * img.width - 0.5f, t = v / 255.0f * img.height - 0.5f;
  const float fs = std::floor(s), ft = std::floor(t);
  const float ax = s - fs, ay = t - ft;
  const int x0 = static_cast<int>(fs), y0 = static_cast<int>(ft);
  out[0] = out[1] = out[2] = 0;
  for (int j = 0; j < 2; ++j)
    for (int i = 0; i < 2; ++i) {
      const int x = ((x0 + i) % img.width + img.width) % img.width;
      const int y = ((y0 + j) % img.height + img.height) % img.height;
      const float k = (i ? ax : 1 - ax) * (j ? ay : 1 - ay);
      p = &img.rgb[(static_cast<std::size_t>(y) * img.width + x) * 3];
      for (int q = 0; q < 3; ++q) out[q] += p[q] / 255.0f * k;
    }
}

void Texel(const RasterFigure& fig, int tex, float u, float v, bool smooth, float out[3]) {
  if (fig.skin && tex < static_cast<int>(fig.skin->size()) && (*fig.skin)[tex].width > 0) {
    Sample((*fig.skin)[tex], u, v, smooth, out);
    return;
  }
  const std::uint32_t c = fig.flat && tex < static_cast<int>(fig.flat->size()) ? (*fig.flat)[tex] : 0xB0B0B0;
  out[0] = ((c >> 16) & 255) / 255.0f;
  out[1] = ((c >> 8) & 255) / 255.0f;
  out[2] = (c & 255) / 255.0f;
}

void Shade(const RasterLight& light, Vec3 n, const float tex[3], float* px) {
  n = Normalise(n);
  if (n.z > 0) n = n * -1.0f;  // the side the camera sees
  const float diffuse = std::max(0.0f, Dot(n, light.toward));
  const float edge = 1.0f - std::fabs(n.z);
  const float rim = edge * edge * edge * light.rim_power;
  for (int q = 0; q < 3; ++q)
    px[q] = std::clamp(tex[q] * (light.ambient[q] + light.key[q] * diffuse) + light.rim[q] * rim, 0.0f, 1.0f);
  px[3] = 1.0f;
}

void Triangle(RasterTarget& r, const Projected p[3], const float uv[3][2], const RasterFigure& fig, int tex,
              const RasterLight& light) {
  const float minx = std::min({p[0].x, p[1].x, p[2].x}), maxx = std::max({p[0].x, p[1].x, p[2].x});
  const float miny = std::min({p[0].y, p[1].y, p[2].y}), maxy = std::max({p[0].y, p[1].y, p[2].y});
  const int x0 = std::max(0, static_cast<int>(std::floor(minx))), x1 = std::min(r.width - 1, static_cast<int>(maxx) + 1);
  const int y0 = std::max(0, static_cast<int>(std::floor(miny))), y1 = std::min(r.height - 1, static_cast<int>(maxy) + 1);
  const float area = (p[1].x - p[0].x) * (p[2].y - p[0].y) - (p[1].y - p[0].y) * (p[2].x - p[0].x);
  if (std::fabs(area) < 1e-6f) return;
  for (int y = y0; y <= y1; ++y)
    for (int x = x0; x <= x1; ++x) {
      const float px = x + 0.5f, py = y + 0.5f;
      const float w0 = ((p[1].x - px) * (p[2].y - py) - (p[1].y - py) * (p[2].x - px)) / area;
      const float w1 = ((p[2].x - px) * (p[0].y - py) - (p[2].y - py) * (p[0].x - px)) / area;
      const float w2 = 1.0f - w0 - w1;
      if (w0 < 0 || w1 < 0 || w2 < 0) continue;
      // Perspective-correct attributes.
      const float z = 1.0f / (w0 / p[0].z + w1 / p[1].z + w2 / p[2].z);
      const std::size_t at = static_cast<std::size_t>(y) * r.width + x;
      if (z >= r.depth[at]) continue;
      r.depth[at] = z;
      const float u = (w0 * uv[0][0] / p[0].z + w1 * uv[1][0] / p[1].z + w2 * uv[2][0] / p[2].z) * z;
      const float v = (w0 * uv[0][1] / p[0].z + w1 * uv[1][1] / p[1].z + w2 * uv[2][1] / p[2].z) * z;
      float col[3];
      Texel(fig, tex, u, v, light.smooth, col);
      Shade(light, p[0].n * w0 + p[1].n * w1 + p[2].n * w2, col, &r.rgba[at * 4]);
    }
}

}  // namespace

void Raster_Clear(RasterTarget& t, int width, int height) {
  t.width = width;
  t.height = height;
  t.rgba.assign(static_cast<std::size_t>(width) * height * 4, 0.0f);
  t.depth.assign(static_cast<std::size_t>(width) * height, 1e30f);
}

void Raster_Figure(RasterTarget& target, const RasterFigure& fig, const RasterView& view, const RasterLight& light) {
  const Model& m = *fig.model;
  static Projected scr[kMaxVertices + 1];
  for (int i = 1; i <= m.vertex_count; ++i) {
    const Vertex& vx = m.vertices[i];
    int part = vx.part;
    if (part == P_FLEX) part = P_CHEST;
    if (part >= P_FLAG_FIRST) {  // attachment points ride on the part they hang from
      const int a = fig.anchor ? fig.anchor[(part - P_FLAG_FIRST) / 5] : 0;
      part = a >= 2 ? a : P_PELVIS;
    }
    const mot::PartMatrix& pm = fig.pose[std::clamp(part, 2, 21)];
    const Vec3 cam = Apply(view.turn, Apply(pm.r, Vec3{vx.x, vx.y, vx.z}) + pm.t - view.look);
    Projected& s = scr[i];
    s.z = std::max(cam.z + view.distance, 0.1f);
    s.x = cam.x * view.focal / s.z + target.width * 0.5f;
    s.y = target.height * 0.5f - cam.y * view.focal / s.z;
    s.n = Apply(view.turn, Apply(pm.r, Vec3{vx.nx, vx.ny, vx.nz}));
  }
  for (int fi = 1; fi <= m.face_count; ++fi) {
    const Face& fc = m.faces[fi];
    const Projected p[3] = {scr[fc.a], scr[fc.b], scr[fc.c]};
    const float cross = (p[1].x - p[0].x) * (p[2].y - p[0].y) - (p[1].y - p[0].y) * (p[2].x - p[0].x);
    const bool two_sided = m.vertices[fc.a].part >= 35;  // loose cloth shows both sides
    if (cross < 0 && !two_sided) continue;
    const float uv[3][2] = {{m.texcoords[fc.ta].u, m.texcoords[fc.ta].v},
                            {m.texcoords[fc.tb].u, m.texcoords[fc.tb].v},
                            {m.texcoords[fc.tc].u, m.texcoords[fc.tc].v}};
    Triangle(target, p, uv, fig, fc.tex, light);
  }
}

}  // namespace fig
