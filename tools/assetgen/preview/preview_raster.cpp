// The preview rasteriser and PNG output.
#include "preview/preview_raster.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace preview {
using fig::Vec3;

void Canvas_Init(Canvas& c, int width, int height, std::uint32_t bg) {
  c.width = width;
  c.height = height;
  c.rgb.assign(static_cast<std::size_t>(width) * height * 3, 0);
  for (std::size_t i = 0; i < c.rgb.size(); i += 3) {
    c.rgb[i] = (bg >> 16) & 255;
    c.rgb[i + 1] = (bg >> 8) & 255;
    c.rgb[i + 2] = bg & 255;
  }
  c.depth.assign(static_cast<std::size_t>(width) * height, 1e30f);
}

void Canvas_Blit(Canvas& dst, const Canvas& src, int x0, int y0) {
  for (int y = 0; y < src.height; ++y)
    for (int x = 0; x < src.width; ++x) {
      int dx = x0 + x, dy = y0 + y;
      if (dx < 0 || dy < 0 || dx >= dst.width || dy >= dst.height) continue;
      for (int k = 0; k < 3; ++k)
        dst.rgb[(static_cast<std::size_t>(dy) * dst.width + dx) * 3 + k] =
            src.rgb[(static_cast<std::size_t>(y) * src.width + x) * 3 + k];
    }
}

namespace {

struct Screen {
  float x, y, z;  // pixels, pixels, camera depth
  float u, v;
  float shade;
};

void Sample(const fig::Image* img, std::uint32_t flat, float u, float v, std::uint8_t out[3]) {
  if (!img || img->width == 0) {
    out[0] = (flat >> 16) & 255;
    out[1] = (flat >> 8) & 255;
    out[2] = flat & 255;
    return;
  }
  float s = u / 255.0f, t = v / 255.0f;
  s -= std::floor(s);
  t -= std::floor(t);
  int x = std::min(img->width - 1, static_cast<int>(s * img->width));
  int y = std::min(img->height - 1, static_cast<int>(t * img->height));
  const std::uint8_t* p = &img->rgb[(static_cast<std::size_t>(y) * img->width + x) * 3];
  out[0] = p[0];
  out[1] = p[1];
  out[2] = p[2];
}

void Triangle(Canvas& c, const Screen v[3], const fig::Image* img, std::uint32_t flat) {
  float minx = std::floor(std::min({v[0].x, v[1].x, v[2].x})), maxx = std::ceil(std::max({v[0].x, v[1].x, v[2].x}));
  float miny = std::floor(std::min({v[0].y, v[1].y, v[2].y})), maxy = std::ceil(std::max({v[0].y, v[1].y, v[2].y}));
  int x0 = std::max(0, static_cast<int>(minx)), x1 = std::min(c.width - 1, static_cast<int>(maxx));
  int y0 = std::max(0, static_cast<int>(miny)), y1 = std::min(c.height - 1, static_cast<int>(maxy));
  float area = (v[1].x - v[0].x) * (v[2].y - v[0].y) - (v[1].y - v[0].y) * (v[2].x - v[0].x);
  if (std::fabs(area) < 1e-6f) return;
  for (int y = y0; y <= y1; ++y)
    for (int x = x0; x <= x1; ++x) {
      float px = x + 0.5f, py = y + 0.5f;
      float w0 = ((v[1].x - px) * (v[2].y - py) - (v[1].y - py) * (v[2].x - px)) / area;
      float w1 = ((v[2].x - px) * (v[0].y - py) - (v[2].y - py) * (v[0].x - px)) / area;
      float w2 = 1.0f - w0 - w1;
      if (w0 < 0 || w1 < 0 || w2 < 0) continue;
      // Perspective-correct attributes.
      float iz = w0 / v[0].z + w1 / v[1].z + w2 / v[2].z;
      float z = 1.0f / iz;
      std::size_t at = static_cast<std::size_t>(y) * c.width + x;
      if (z >= c.depth[at]) continue;
      c.depth[at] = z;
      float u = (w0 * v[0].u / v[0].z + w1 * v[1].u / v[1].z + w2 * v[2].u / v[2].z) * z;
      float t = (w0 * v[0].v / v[0].z + w1 * v[1].v / v[1].z + w2 * v[2].v / v[2].z) * z;
      float sh = w0 * v[0].shade + w1 * v[1].shade + w2 * v[2].shade;
      std::uint8_t col[3];
      Sample(img, flat, u, t, col);
      for (int k = 0; k < 3; ++k) c.rgb[at * 3 + k] = static_cast<std::uint8_t>(std::min(255.0f, col[k] * sh));
    }
}

}  // namespace

void Draw_Figure(Canvas& c, const fig::Model& m, const mot::PartMatrix pose[22], const int anchor[5], Vec3 offset,
                 const Skin& skin, const View& view) {
  static Screen scr[fig::kMaxVertices + 1];
  fig::Rot yaw = fig::RotY(view.yaw);
  float f = view.focal * c.height;
  Vec3 light = fig::Normalise(Vec3{-0.4f, 0.7f, -0.6f});
  for (int i = 1; i <= m.vertex_count; ++i) {
    const fig::Vertex& vx = m.vertices[i];
    int part = vx.part;
    if (part == fig::P_FLEX) part = fig::P_CHEST;
    if (part >= fig::P_FLAG_FIRST) {
      int a = anchor[(part - fig::P_FLAG_FIRST) / 5];
      part = a >= 2 ? a : fig::P_PELVIS;
    }
    const mot::PartMatrix& pm = pose[std::clamp(part, 2, 21)];
    Vec3 p = Apply(pm.r, Vec3{vx.x, vx.y, vx.z}) + pm.t + offset;
    Vec3 w = Apply(yaw, p);
    Vec3 n = Apply(yaw, Apply(pm.r, Vec3{vx.nx, vx.ny, vx.nz}));
    float X = w.x, Y = w.y - view.look_y, Z = w.z + view.distance;
    Screen& s = scr[i];
    s.z = std::max(Z, 0.1f);
    s.x = X * f / s.z + c.width * 0.5f;
    s.y = c.height * 0.5f - Y * f / s.z;
    s.u = m.texcoords[i].u;
    s.v = m.texcoords[i].v;
    s.shade = view.lit ? 0.55f + 0.55f * std::max(0.0f, -Dot(n, light) * -1.0f) : 1.0f;
  }
  for (int fi = 1; fi <= m.face_count; ++fi) {
    const fig::Face& fc = m.faces[fi];
    Screen v[3] = {scr[fc.a], scr[fc.b], scr[fc.c]};
    v[0].u = m.texcoords[fc.ta].u, v[0].v = m.texcoords[fc.ta].v;
    v[1].u = m.texcoords[fc.tb].u, v[1].v = m.texcoords[fc.tb].v;
    v[2].u = m.texcoords[fc.tc].u, v[2].v = m.texcoords[fc.tc].v;
    float cross = (v[1].x - v[0].x) * (v[2].y - v[0].y) - (v[1].y - v[0].y) * (v[2].x - v[0].x);
    bool two_sided = m.vertices[fc.a].part >= 35;
    if (cross < 0 && !two_sided) continue;
    const fig::Image* img = nullptr;
    if (skin.images && fc.tex < static_cast<int>(skin.images->size())) img = &(*skin.images)[fc.tex];
    std::uint32_t flat = fc.tex < static_cast<int>(skin.flat.size()) ? skin.flat[fc.tex] : 0xFF00FF;
    Triangle(c, v, img, flat);
  }
}

bool Write_Png(const char* path, const Canvas& c) {
  FILE* fp = std::fopen(path, "wb");
  if (!fp) {
    std::fprintf(stderr, "%s: cannot write\n", path);
    return false;
  }
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    std::fclose(fp);
    return false;
  }
  png_init_io(png, fp);
  png_set_IHDR(png, info, c.width, c.height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
               PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  for (int y = 0; y < c.height; ++y)
    png_write_row(png, const_cast<png_bytep>(&c.rgb[static_cast<std::size_t>(y) * c.width * 3]));
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  std::fclose(fp);
  return true;
}

}  // namespace preview
