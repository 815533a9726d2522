// The software fighter renderer.
#include "pictures/pic_figure.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "figures/fig_figure.h"
#include "figures/fig_paint.h"
#include "figures/fig_roster.h"
#include "motion/mot_pose.h"
#include "motion/mot_shared.h"

namespace pic {
namespace {

using fig::Vec3;

// A row's model, skin and joints, built once and kept for every shot of that row.
struct Built {
  std::unique_ptr<fig::Model> model = std::make_unique<fig::Model>();
  fig::TextureLayout layout;
  std::vector<fig::Image> skin;
  mot::Joints joints;
  int anchor[5] = {};
  bool ok = false;
};

// Written only by Row_Of.
struct FigureCache {
  std::unique_ptr<Built> rows[fig::kRows];
  FigureRenderer renderer = nullptr;
};
FigureCache g_cache;

const Built& Row_Of(int row) {
  row = std::clamp(row, 0, fig::kRows - 1);
  if (!g_cache.rows[row]) {
    auto b = std::make_unique<Built>();
    int character = fig::Fig_RowCharacter(row);
    b->ok = fig::Fig_BuildModel(row, *b->model, b->layout);
    std::vector<fig::NamedImage> tex, faces;
    fig::Fig_PaintRow(row, *b->model, b->layout, tex, faces);
    for (auto& t : tex) b->skin.push_back(std::move(t.image));
    fig::Skeleton skel;
    fig::Fig_BuildSkeleton(character, skel);
    mot::Mot_JointsOf(skel, b->joints);
    for (int i = 0; i < 5; ++i) b->anchor[i] = fig::Fig_AttachAnchor(character, i);
    g_cache.rows[row] = std::move(b);
  }
  return *g_cache.rows[row];
}

struct Projected {
  float x, y, z;  // pixels, pixels, camera depth
  Vec3 n;         // camera-space normal
};

// Bilinear, repeating texture read; u and v run 0..255 over the texture once.
Rgba Sample(const fig::Image* img, float u, float v) {
  if (!img || img->width == 0) return Hex(0xB0B0B0);
  float s = u / 255.0f * img->width - 0.5f, t = v / 255.0f * img->height - 0.5f;
  float fs = std::floor(s), ft = std::floor(t);
  float ax = s - fs, ay = t - ft;
  int x0 = static_cast<int>(fs), y0 = static_cast<int>(ft);
  float c[3] = {0, 0, 0};
  for (int j = 0; j < 2; ++j)
    for (int i = 0; i < 2; ++i) {
      int x = ((x0 + i) % img->width + img->width) % img->width;
      int y = ((y0 + j) % img->height + img->height) % img->height;
      float k = (i ? ax : 1 - ax) * (j ? ay : 1 - ay);
      const std::uint8_t* p = &img->rgb[(static_cast<std::size_t>(y) * img->width + x) * 3];
      for (int q = 0; q < 3; ++q) c[q] += p[q] * k;
    }
  return {c[0] / 255.0f, c[1] / 255.0f, c[2] / 255.0f, 1.0f};
}

struct Raster {
  Canvas c;
  std::vector<float> depth;
};

void Triangle(Raster& r, const Projected p[3], const float uv[3][2], const fig::Image* img, const Shot& shot) {
  float minx = std::min({p[0].x, p[1].x, p[2].x}), maxx = std::max({p[0].x, p[1].x, p[2].x});
  float miny = std::min({p[0].y, p[1].y, p[2].y}), maxy = std::max({p[0].y, p[1].y, p[2].y});
  int x0 = std::max(0, static_cast<int>(std::floor(minx))), x1 = std::min(r.c.w - 1, static_cast<int>(maxx) + 1);
  int y0 = std::max(0, static_cast<int>(std::floor(miny))), y1 = std::min(r.c.h - 1, static_cast<int>(maxy) + 1);
  float area = (p[1].x - p[0].x) * (p[2].y - p[0].y) - (p[1].y - p[0].y) * (p[2].x - p[0].x);
  if (std::fabs(area) < 1e-6f) return;
  const Vec3 light = fig::Normalise(Vec3{-0.45f, 0.65f, -0.6f});  // camera space, toward the light
  for (int y = y0; y <= y1; ++y)
    for (int x = x0; x <= x1; ++x) {
      float px = x + 0.5f, py = y + 0.5f;
      float w0 = ((p[1].x - px) * (p[2].y - py) - (p[1].y - py) * (p[2].x - px)) / area;
      float w1 = ((p[2].x - px) * (p[0].y - py) - (p[2].y - py) * (p[0].x - px)) / area;
      float w2 = 1.0f - w0 - w1;
      if (w0 < 0 || w1 < 0 || w2 < 0) continue;
      float iz = w0 / p[0].z + w1 / p[1].z + w2 / p[2].z;
      float z = 1.0f / iz;
      std::size_t at = static_cast<std::size_t>(y) * r.c.w + x;
      if (z >= r.depth[at]) continue;
      r.depth[at] = z;
      float u = (w0 * uv[0][0] / p[0].z + w1 * uv[1][0] / p[1].z + w2 * uv[2][0] / p[2].z) * z;
      float v = (w0 * uv[0][1] / p[0].z + w1 * uv[1][1] / p[1].z + w2 * uv[2][1] / p[2].z) * z;
      Vec3 n = fig::Normalise(p[0].n * w0 + p[1].n * w1 + p[2].n * w2);
      if (n.z > 0) n = n * -1.0f;  // the side the camera sees
      Rgba t = Sample(img, u, v);
      float diffuse = std::max(0.0f, fig::Dot(n, light));
      float edge = 1.0f - std::fabs(n.z);
      float rim = edge * edge * edge * shot.rim_power;
      r.c.px[at] = {Clamp01(t.r * (shot.ambient.r + shot.key.r * diffuse) + shot.rim.r * rim),
                    Clamp01(t.g * (shot.ambient.g + shot.key.g * diffuse) + shot.rim.g * rim),
                    Clamp01(t.b * (shot.ambient.b + shot.key.b * diffuse) + shot.rim.b * rim), 1.0f};
    }
}

}  // namespace

Canvas Render_Software(const Shot& shot) {
  const Built& b = Row_Of(shot.row);
  const fig::Model& m = *b.model;
  int ss = std::max(1, shot.supersample);
  Raster r;
  r.c = Make_Canvas(shot.width * ss, shot.height * ss);
  r.depth.assign(r.c.px.size(), 1e30f);
  mot::PartMatrix pose[22];
  mot::Mot_Solve(b.joints, shot.pose ? *shot.pose : mot::Mot_StancePose(), pose);
  fig::Rot turn = fig::Then(fig::RotY(shot.yaw), fig::RotX(-shot.pitch));
  float focal = r.c.h * shot.distance / shot.span;
  static Projected scr[fig::kMaxVertices + 1];
  for (int i = 1; i <= m.vertex_count; ++i) {
    const fig::Vertex& vx = m.vertices[i];
    int part = vx.part;
    if (part == fig::P_FLEX) part = fig::P_CHEST;
    if (part >= fig::P_FLAG_FIRST) {
      int a = b.anchor[(part - fig::P_FLAG_FIRST) / 5];
      part = a >= 2 ? a : fig::P_PELVIS;
    }
    const mot::PartMatrix& pm = pose[std::clamp(part, 2, 21)];
    Vec3 world = fig::Apply(pm.r, Vec3{vx.x, vx.y, vx.z}) + pm.t - Vec3{shot.look_x, shot.look_y, 0};
    Vec3 cam = fig::Apply(turn, world);
    Projected& s = scr[i];
    s.z = std::max(cam.z + shot.distance, 0.1f);
    s.x = cam.x * focal / s.z + r.c.w * 0.5f;
    s.y = r.c.h * 0.5f - cam.y * focal / s.z;
    s.n = fig::Apply(turn, fig::Apply(pm.r, Vec3{vx.nx, vx.ny, vx.nz}));
  }
  for (int fi = 1; fi <= m.face_count; ++fi) {
    const fig::Face& fc = m.faces[fi];
    Projected p[3] = {scr[fc.a], scr[fc.b], scr[fc.c]};
    float cross = (p[1].x - p[0].x) * (p[2].y - p[0].y) - (p[1].y - p[0].y) * (p[2].x - p[0].x);
    bool two_sided = m.vertices[fc.a].part >= 35;
    if (cross < 0 && !two_sided) continue;
    float uv[3][2] = {{m.texcoords[fc.ta].u, m.texcoords[fc.ta].v},
                      {m.texcoords[fc.tb].u, m.texcoords[fc.tb].v},
                      {m.texcoords[fc.tc].u, m.texcoords[fc.tc].v}};
    const fig::Image* img = fc.tex < static_cast<int>(b.skin.size()) ? &b.skin[fc.tex] : nullptr;
    Triangle(r, p, uv, img, shot);
  }
  return ss > 1 ? Downsample(r.c, ss) : r.c;
}

Canvas Render_Shot(const Shot& shot) {
  return g_cache.renderer ? g_cache.renderer(shot) : Render_Software(shot);
}

void Set_Figure_Renderer(FigureRenderer renderer) { g_cache.renderer = renderer; }

Rgba Figure_Main_Colour(int row) {
  const fig::Look& look = fig::Fig_Look(fig::Fig_RowCharacter(row));
  return Hex(look.colours[fig::Fig_RowColouring(row)].main);
}

Rgba Figure_Accent_Colour(int row) {
  const fig::Look& look = fig::Fig_Look(fig::Fig_RowCharacter(row));
  return Hex(look.colours[fig::Fig_RowColouring(row)].accent);
}

}  // namespace pic
