// Pictures in the making: a floating-point RGBA canvas, coverage masks, shapes drawn by
// distance functions (one pixel of antialiasing), blurs, seeded noise, and the step that turns
// a finished canvas into an image file.
#pragma once
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace pic {

// Straight (not premultiplied) colour, each channel 0..1.
struct Rgba {
  float r = 0, g = 0, b = 0, a = 0;
};
constexpr Rgba Hex(std::uint32_t rgb, float a = 1.0f) {
  return {((rgb >> 16) & 255) / 255.0f, ((rgb >> 8) & 255) / 255.0f, (rgb & 255) / 255.0f, a};
}
inline Rgba Mix(Rgba x, Rgba y, float t) {
  return {x.r + (y.r - x.r) * t, x.g + (y.g - x.g) * t, x.b + (y.b - x.b) * t, x.a + (y.a - x.a) * t};
}
inline Rgba Scale(Rgba c, float k) { return {c.r * k, c.g * k, c.b * k, c.a}; }
inline Rgba With_Alpha(Rgba c, float a) { return {c.r, c.g, c.b, a}; }
inline float Clamp01(float v) { return v < 0 ? 0 : (v > 1 ? 1 : v); }
inline float Smooth(float e0, float e1, float x) {
  float t = Clamp01((x - e0) / (e1 - e0));
  return t * t * (3 - 2 * t);
}

struct Canvas {
  int w = 0, h = 0;
  std::vector<Rgba> px;
  Rgba& at(int x, int y) { return px[static_cast<std::size_t>(y) * w + x]; }
  const Rgba& at(int x, int y) const { return px[static_cast<std::size_t>(y) * w + x]; }
  bool inside(int x, int y) const { return x >= 0 && y >= 0 && x < w && y < h; }
};
Canvas Make_Canvas(int w, int h, Rgba fill = {});

// Coverage 0..1 per pixel.
struct Mask {
  int w = 0, h = 0;
  std::vector<float> v;
  float& at(int x, int y) { return v[static_cast<std::size_t>(y) * w + x]; }
  float at(int x, int y) const { return v[static_cast<std::size_t>(y) * w + x]; }
  float get(int x, int y) const { return (x < 0 || y < 0 || x >= w || y >= h) ? 0.0f : at(x, y); }
};
Mask Make_Mask(int w, int h);

// Source-over of one colour with extra coverage k.
void Put(Canvas& c, int x, int y, Rgba src, float k = 1.0f);
// Adds light: colour x coverage brightens the pixel (alpha rises toward opaque).
void Put_Add(Canvas& c, int x, int y, Rgba src, float k = 1.0f);
// `src` over `dst` with its top-left at (dx, dy).
void Draw(Canvas& dst, const Canvas& src, int dx, int dy, float opacity = 1.0f);
void Draw_Add(Canvas& dst, const Canvas& src, int dx, int dy, float opacity = 1.0f);
// A mask painted in one colour, or in a colour per pixel.
void Fill_Mask(Canvas& dst, const Mask& m, int dx, int dy, Rgba colour);
template <class Paint>
void Fill_Mask_With(Canvas& dst, const Mask& m, int dx, int dy, Paint paint) {
  for (int y = 0; y < m.h; ++y)
    for (int x = 0; x < m.w; ++x) {
      float k = m.at(x, y);
      if (k <= 0 || !dst.inside(x + dx, y + dy)) continue;
      Put(dst, x + dx, y + dy, paint(x, y), k);
    }
}

// Shapes by signed distance (negative inside), painted with one pixel of antialiasing over
// the bounding box [x0, x1) x [y0, y1).
template <class Sdf, class Paint>
void Shade(Canvas& c, int x0, int y0, int x1, int y1, Sdf sdf, Paint paint) {
  if (x0 < 0) x0 = 0;
  if (y0 < 0) y0 = 0;
  if (x1 > c.w) x1 = c.w;
  if (y1 > c.h) y1 = c.h;
  for (int y = y0; y < y1; ++y)
    for (int x = x0; x < x1; ++x) {
      float px = x + 0.5f, py = y + 0.5f;
      float k = Clamp01(0.5f - sdf(px, py));
      if (k > 0) Put(c, x, y, paint(px, py), k);
    }
}
template <class Sdf>
void Shade_Mask(Mask& m, Sdf sdf) {
  for (int y = 0; y < m.h; ++y)
    for (int x = 0; x < m.w; ++x) {
      float k = Clamp01(0.5f - sdf(x + 0.5f, y + 0.5f));
      if (k > m.at(x, y)) m.at(x, y) = k;
    }
}

// Distance functions.
float Sd_Circle(float x, float y, float cx, float cy, float r);
float Sd_Box(float x, float y, float cx, float cy, float hw, float hh, float round = 0);
float Sd_Segment(float x, float y, float ax, float ay, float bx, float by, float r);
// A convex or concave polygon (even-odd), points as x0, y0, x1, y1, ...
float Sd_Polygon(float x, float y, const float* pts, int count);

void Fill_Rect(Canvas& c, int x, int y, int w, int h, Rgba colour);
void Fill_Circle(Canvas& c, float cx, float cy, float r, Rgba colour);
void Fill_Polygon(Canvas& c, const float* pts, int count, Rgba colour);
void Stroke_Line(Canvas& c, float ax, float ay, float bx, float by, float width, Rgba colour);
void Vertical_Gradient(Canvas& c, int y0, int y1, Rgba top, Rgba bottom);

// Blurs (three box passes, about a Gaussian of the radius).
void Blur(Canvas& c, int radius);
void Blur(Mask& m, int radius);
// Every pixel within `radius` of covered pixels becomes covered (rounded outline).
Mask Dilate(const Mask& m, int radius);
// A copy of the region; outside the canvas is transparent.
Canvas Crop(const Canvas& c, int x, int y, int w, int h);
// Averages factor x factor blocks (supersampled drawing brought to its size).
Canvas Downsample(const Canvas& c, int factor);
// Resampled to a new size (bilinear), for the few pictures made from others.
Canvas Resize(const Canvas& c, int w, int h);

// Seeded value noise, smooth, 0..1. `period` > 0 makes it repeat every period units in x and y.
float Noise(float x, float y, std::uint32_t seed, int period = 0);
float Fbm(float x, float y, std::uint32_t seed, int octaves, int period = 0);
// A hash of integers to 0..1, for scattering.
float Hash01(std::uint32_t a, std::uint32_t b = 0, std::uint32_t c = 0);

}  // namespace pic
