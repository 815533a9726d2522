// Canvas, masks, shapes, blurs and noise.
#include "pictures/pic_canvas.h"

#include <algorithm>

namespace pic {

Canvas Make_Canvas(int w, int h, Rgba fill) {
  Canvas c;
  c.w = w;
  c.h = h;
  c.px.assign(static_cast<std::size_t>(w) * h, fill);
  return c;
}

Mask Make_Mask(int w, int h) {
  Mask m;
  m.w = w;
  m.h = h;
  m.v.assign(static_cast<std::size_t>(w) * h, 0.0f);
  return m;
}

void Put(Canvas& c, int x, int y, Rgba s, float k) {
  if (!c.inside(x, y)) return;
  Rgba& d = c.at(x, y);
  float sa = Clamp01(s.a * k);
  if (sa <= 0) return;
  float oa = sa + d.a * (1 - sa);
  if (oa <= 1e-6f) {
    d = {};
    return;
  }
  d.r = (s.r * sa + d.r * d.a * (1 - sa)) / oa;
  d.g = (s.g * sa + d.g * d.a * (1 - sa)) / oa;
  d.b = (s.b * sa + d.b * d.a * (1 - sa)) / oa;
  d.a = oa;
}

void Put_Add(Canvas& c, int x, int y, Rgba s, float k) {
  if (!c.inside(x, y)) return;
  Rgba& d = c.at(x, y);
  float e = Clamp01(s.a * k);
  if (e <= 0) return;
  // Premultiplied sum, then back to straight colour.
  float pr = d.r * d.a + s.r * e, pg = d.g * d.a + s.g * e, pb = d.b * d.a + s.b * e;
  float oa = Clamp01(d.a + e * std::max({s.r, s.g, s.b}));
  if (oa <= 1e-6f) return;
  d.r = Clamp01(pr / oa);
  d.g = Clamp01(pg / oa);
  d.b = Clamp01(pb / oa);
  d.a = oa;
}

void Draw(Canvas& dst, const Canvas& src, int dx, int dy, float opacity) {
  for (int y = 0; y < src.h; ++y)
    for (int x = 0; x < src.w; ++x)
      if (dst.inside(x + dx, y + dy)) Put(dst, x + dx, y + dy, src.at(x, y), opacity);
}

void Draw_Add(Canvas& dst, const Canvas& src, int dx, int dy, float opacity) {
  for (int y = 0; y < src.h; ++y)
    for (int x = 0; x < src.w; ++x)
      if (dst.inside(x + dx, y + dy)) Put_Add(dst, x + dx, y + dy, src.at(x, y), opacity);
}

void Fill_Mask(Canvas& dst, const Mask& m, int dx, int dy, Rgba colour) {
  Fill_Mask_With(dst, m, dx, dy, [&](int, int) { return colour; });
}

float Sd_Circle(float x, float y, float cx, float cy, float r) { return std::hypot(x - cx, y - cy) - r; }

float Sd_Box(float x, float y, float cx, float cy, float hw, float hh, float round) {
  float qx = std::fabs(x - cx) - hw + round, qy = std::fabs(y - cy) - hh + round;
  float ox = std::max(qx, 0.0f), oy = std::max(qy, 0.0f);
  return std::hypot(ox, oy) + std::min(std::max(qx, qy), 0.0f) - round;
}

float Sd_Segment(float x, float y, float ax, float ay, float bx, float by, float r) {
  float px = x - ax, py = y - ay, ex = bx - ax, ey = by - ay;
  float len2 = ex * ex + ey * ey;
  float t = len2 > 0 ? Clamp01((px * ex + py * ey) / len2) : 0.0f;
  return std::hypot(px - ex * t, py - ey * t) - r;
}

float Sd_Polygon(float x, float y, const float* p, int n) {
  float d = 1e30f;
  bool inside = false;
  for (int i = 0, j = n - 1; i < n; j = i++) {
    float ax = p[2 * j], ay = p[2 * j + 1], bx = p[2 * i], by = p[2 * i + 1];
    d = std::min(d, Sd_Segment(x, y, ax, ay, bx, by, 0));
    if (((by > y) != (ay > y)) && (x < (ax - bx) * (y - by) / (ay - by) + bx)) inside = !inside;
  }
  return inside ? -d : d;
}

void Fill_Rect(Canvas& c, int x, int y, int w, int h, Rgba colour) {
  for (int yy = std::max(0, y); yy < std::min(c.h, y + h); ++yy)
    for (int xx = std::max(0, x); xx < std::min(c.w, x + w); ++xx) Put(c, xx, yy, colour);
}

void Fill_Circle(Canvas& c, float cx, float cy, float r, Rgba colour) {
  Shade(c, static_cast<int>(cx - r - 2), static_cast<int>(cy - r - 2), static_cast<int>(cx + r + 2),
        static_cast<int>(cy + r + 2), [&](float x, float y) { return Sd_Circle(x, y, cx, cy, r); },
        [&](float, float) { return colour; });
}

void Fill_Polygon(Canvas& c, const float* pts, int count, Rgba colour) {
  float x0 = 1e9f, y0 = 1e9f, x1 = -1e9f, y1 = -1e9f;
  for (int i = 0; i < count; ++i) {
    x0 = std::min(x0, pts[2 * i]), x1 = std::max(x1, pts[2 * i]);
    y0 = std::min(y0, pts[2 * i + 1]), y1 = std::max(y1, pts[2 * i + 1]);
  }
  Shade(c, static_cast<int>(x0) - 1, static_cast<int>(y0) - 1, static_cast<int>(x1) + 2, static_cast<int>(y1) + 2,
        [&](float x, float y) { return Sd_Polygon(x, y, pts, count); }, [&](float, float) { return colour; });
}

void Stroke_Line(Canvas& c, float ax, float ay, float bx, float by, float width, Rgba colour) {
  float r = width * 0.5f;
  Shade(c, static_cast<int>(std::min(ax, bx) - r - 2), static_cast<int>(std::min(ay, by) - r - 2),
        static_cast<int>(std::max(ax, bx) + r + 2), static_cast<int>(std::max(ay, by) + r + 2),
        [&](float x, float y) { return Sd_Segment(x, y, ax, ay, bx, by, r); }, [&](float, float) { return colour; });
}

void Vertical_Gradient(Canvas& c, int y0, int y1, Rgba top, Rgba bottom) {
  for (int y = std::max(0, y0); y < std::min(c.h, y1); ++y) {
    Rgba col = Mix(top, bottom, y1 - y0 > 1 ? static_cast<float>(y - y0) / (y1 - y0 - 1) : 0.0f);
    for (int x = 0; x < c.w; ++x) c.at(x, y) = col;
  }
}

namespace {

// One box pass over n values with the given stride, radius r, edges clamped to zero.
void Box_Pass(float* v, int n, int stride, int r, std::vector<float>& tmp) {
  tmp.assign(static_cast<std::size_t>(n), 0.0f);
  float sum = 0;
  float inv = 1.0f / (2 * r + 1);
  for (int i = -r; i <= r; ++i)
    if (i >= 0 && i < n) sum += v[i * stride];
  for (int i = 0; i < n; ++i) {
    tmp[i] = sum * inv;
    int out = i - r, in = i + r + 1;
    if (out >= 0) sum -= v[out * stride];
    if (in < n) sum += v[in * stride];
  }
  for (int i = 0; i < n; ++i) v[i * stride] = tmp[i];
}

void Blur_Planes(std::vector<float*>& planes, int w, int h, int radius) {
  if (radius <= 0) return;
  int r = std::max(1, radius / 2);
  std::vector<float> tmp;
  for (float* p : planes)
    for (int pass = 0; pass < 3; ++pass) {
      for (int y = 0; y < h; ++y) Box_Pass(p + static_cast<std::size_t>(y) * w, w, 1, r, tmp);
      for (int x = 0; x < w; ++x) Box_Pass(p + x, h, w, r, tmp);
    }
}

}  // namespace

void Blur(Canvas& c, int radius) {
  std::size_t n = c.px.size();
  std::vector<float> pr(n), pg(n), pb(n), pa(n);
  for (std::size_t i = 0; i < n; ++i) {
    const Rgba& p = c.px[i];
    pr[i] = p.r * p.a, pg[i] = p.g * p.a, pb[i] = p.b * p.a, pa[i] = p.a;
  }
  std::vector<float*> planes = {pr.data(), pg.data(), pb.data(), pa.data()};
  Blur_Planes(planes, c.w, c.h, radius);
  for (std::size_t i = 0; i < n; ++i) {
    float a = pa[i];
    c.px[i] = a > 1e-6f ? Rgba{Clamp01(pr[i] / a), Clamp01(pg[i] / a), Clamp01(pb[i] / a), Clamp01(a)} : Rgba{};
  }
}

void Blur(Mask& m, int radius) {
  std::vector<float*> planes = {m.v.data()};
  Blur_Planes(planes, m.w, m.h, radius);
}

Mask Dilate(const Mask& m, int radius) {
  Mask out = Make_Mask(m.w, m.h);
  for (int y = 0; y < m.h; ++y)
    for (int x = 0; x < m.w; ++x) {
      float best = 0;
      for (int dy = -radius - 1; dy <= radius + 1 && best < 1; ++dy)
        for (int dx = -radius - 1; dx <= radius + 1; ++dx) {
          float k = m.get(x + dx, y + dy);
          if (k <= 0) continue;
          float d = std::sqrt(static_cast<float>(dx * dx + dy * dy));
          best = std::max(best, k * Clamp01(radius + 0.5f - d + 0.5f));
        }
      out.at(x, y) = best;
    }
  return out;
}

Canvas Crop(const Canvas& c, int x0, int y0, int w, int h) {
  Canvas out = Make_Canvas(w, h);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x)
      if (c.inside(x + x0, y + y0)) out.at(x, y) = c.at(x + x0, y + y0);
  return out;
}

Canvas Downsample(const Canvas& c, int f) {
  Canvas out = Make_Canvas(c.w / f, c.h / f);
  float inv = 1.0f / (f * f);
  for (int y = 0; y < out.h; ++y)
    for (int x = 0; x < out.w; ++x) {
      float r = 0, g = 0, b = 0, a = 0;
      for (int j = 0; j < f; ++j)
        for (int i = 0; i < f; ++i) {
          const Rgba& p = c.at(x * f + i, y * f + j);
          r += p.r * p.a, g += p.g * p.a, b += p.b * p.a, a += p.a;
        }
      out.at(x, y) = a > 1e-6f ? Rgba{r / a, g / a, b / a, a * inv} : Rgba{};
    }
  return out;
}

Canvas Resize(const Canvas& c, int w, int h) {
  Canvas out = Make_Canvas(w, h);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      float sx = (x + 0.5f) * c.w / w - 0.5f, sy = (y + 0.5f) * c.h / h - 0.5f;
      int x0 = static_cast<int>(std::floor(sx)), y0 = static_cast<int>(std::floor(sy));
      float fx = sx - x0, fy = sy - y0;
      float r = 0, g = 0, b = 0, a = 0;
      for (int j = 0; j < 2; ++j)
        for (int i = 0; i < 2; ++i) {
          int xx = std::clamp(x0 + i, 0, c.w - 1), yy = std::clamp(y0 + j, 0, c.h - 1);
          float k = (i ? fx : 1 - fx) * (j ? fy : 1 - fy);
          const Rgba& p = c.at(xx, yy);
          r += p.r * p.a * k, g += p.g * p.a * k, b += p.b * p.a * k, a += p.a * k;
        }
      out.at(x, y) = a > 1e-6f ? Rgba{r / a, g / a, b / a, a} : Rgba{};
    }
  return out;
}

float Hash01(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
  std::uint32_t h = a * 0x9E3779B1u ^ (b + 0x7F4A7C15u) * 0x85EBCA77u ^ (c + 0x165667B1u) * 0xC2B2AE3Du;
  h ^= h >> 15;
  h *= 0x2C1B3C6Du;
  h ^= h >> 12;
  h *= 0x297A2D39u;
  h ^= h >> 15;
  return (h & 0xFFFFFF) / 16777216.0f;
}

float Noise(float x, float y, std::uint32_t seed, int period) {
  float fx = std::floor(x), fy = std::floor(y);
  int ix = static_cast<int>(fx), iy = static_cast<int>(fy);
  float tx = x - fx, ty = y - fy;
  tx = tx * tx * (3 - 2 * tx);
  ty = ty * ty * (3 - 2 * ty);
  auto corner = [&](int cx, int cy) {
    if (period > 0) {
      cx = ((cx % period) + period) % period;
      cy = ((cy % period) + period) % period;
    }
    return Hash01(static_cast<std::uint32_t>(cx), static_cast<std::uint32_t>(cy), seed);
  };
  float a = corner(ix, iy), b = corner(ix + 1, iy), c = corner(ix, iy + 1), d = corner(ix + 1, iy + 1);
  return a + (b - a) * tx + (c - a) * ty + (a - b - c + d) * tx * ty;
}

float Fbm(float x, float y, std::uint32_t seed, int octaves, int period) {
  float sum = 0, amp = 0.5f, norm = 0;
  for (int o = 0; o < octaves; ++o) {
    sum += Noise(x, y, seed + o * 131u, period) * amp;
    norm += amp;
    amp *= 0.5f;
    x *= 2, y *= 2;
    if (period > 0) period *= 2;
  }
  return sum / norm;
}

}  // namespace pic
