// Pixel helpers for the texture painter.
#include "figures/fig_paint_util.h"

#include <algorithm>
#include <cmath>

namespace fig {

void Img_New(Image& img, int w, int h) {
  img.width = w;
  img.height = h;
  img.rgb.assign(static_cast<std::size_t>(w) * h * 3, 0);
}

static std::size_t At(const Image& img, int x, int y) {
  x = ((x % img.width) + img.width) % img.width;
  y = ((y % img.height) + img.height) % img.height;
  return (static_cast<std::size_t>(y) * img.width + x) * 3;
}

Rgb Img_Get(const Image& img, int x, int y) {
  std::size_t a = At(img, x, y);
  return {static_cast<float>(img.rgb[a]), static_cast<float>(img.rgb[a + 1]), static_cast<float>(img.rgb[a + 2])};
}

void Img_Put(Image& img, int x, int y, Rgb c) {
  std::size_t a = At(img, x, y);
  img.rgb[a] = static_cast<std::uint8_t>(std::clamp(c.r, 0.0f, 255.0f));
  img.rgb[a + 1] = static_cast<std::uint8_t>(std::clamp(c.g, 0.0f, 255.0f));
  img.rgb[a + 2] = static_cast<std::uint8_t>(std::clamp(c.b, 0.0f, 255.0f));
}

void Img_Blend(Image& img, int x, int y, Rgb c, float alpha) {
  if (alpha <= 0) return;
  Img_Put(img, x, y, Mix(Img_Get(img, x, y), c, std::min(alpha, 1.0f)));
}

void Img_Fill(Image& img, Rgb c) {
  for (int y = 0; y < img.height; ++y)
    for (int x = 0; x < img.width; ++x) Img_Put(img, x, y, c);
}

void Img_Ellipse(Image& img, float cx, float cy, float rx, float ry, Rgb c, float alpha) {
  int x0 = static_cast<int>(std::floor(cx - rx - 1)), x1 = static_cast<int>(std::ceil(cx + rx + 1));
  int y0 = static_cast<int>(std::floor(cy - ry - 1)), y1 = static_cast<int>(std::ceil(cy + ry + 1));
  for (int y = y0; y <= y1; ++y)
    for (int x = x0; x <= x1; ++x) {
      float dx = (x + 0.5f - cx) / std::max(rx, 0.01f), dy = (y + 0.5f - cy) / std::max(ry, 0.01f);
      float d = std::sqrt(dx * dx + dy * dy);
      float edge = std::max(rx, ry);
      float a = std::clamp((1.0f - d) * edge + 0.5f, 0.0f, 1.0f);
      Img_Blend(img, x, y, c, a * alpha);
    }
}

void Img_Line(Image& img, float x0, float y0, float x1, float y1, float width, Rgb c, float alpha) {
  float len = std::hypot(x1 - x0, y1 - y0);
  int steps = std::max(1, static_cast<int>(len * 2));
  for (int i = 0; i <= steps; ++i) {
    float t = static_cast<float>(i) / steps;
    Img_Ellipse(img, x0 + (x1 - x0) * t, y0 + (y1 - y0) * t, width * 0.5f, width * 0.5f, c, alpha * 0.6f);
  }
}

void Img_Rect(Image& img, float x0, float y0, float x1, float y1, Rgb c, float alpha) {
  for (int y = static_cast<int>(std::floor(y0)); y < static_cast<int>(std::ceil(y1)); ++y)
    for (int x = static_cast<int>(std::floor(x0)); x < static_cast<int>(std::ceil(x1)); ++x) Img_Blend(img, x, y, c, alpha);
}

static float Hash(int x, int y, int seed) {
  std::uint32_t h = static_cast<std::uint32_t>(x) * 374761393u + static_cast<std::uint32_t>(y) * 668265263u +
                    static_cast<std::uint32_t>(seed) * 2246822519u;
  h = (h ^ (h >> 13)) * 1274126177u;
  h ^= h >> 16;
  return (h & 0xFFFFFF) / static_cast<float>(0x1000000);
}

float Noise(int x, int y, int cell, int seed, int wrap) {
  cell = std::max(1, cell);
  int cells = std::max(1, wrap / cell);
  int gx = x / cell, gy = y / cell;
  float fx = static_cast<float>(x % cell) / cell, fy = static_cast<float>(y % cell) / cell;
  fx = fx * fx * (3 - 2 * fx);
  fy = fy * fy * (3 - 2 * fy);
  float a = Hash(gx % cells, gy, seed), b = Hash((gx + 1) % cells, gy, seed);
  float c = Hash(gx % cells, gy + 1, seed), d = Hash((gx + 1) % cells, gy + 1, seed);
  return (a + (b - a) * fx) + ((c + (d - c) * fx) - (a + (b - a) * fx)) * fy;
}

void Img_Grain(Image& img, float amount, int cell, int seed) {
  for (int y = 0; y < img.height; ++y)
    for (int x = 0; x < img.width; ++x) {
      float n = Noise(x, y, cell, seed, img.width) * 0.7f + Hash(x, y, seed + 7) * 0.3f;
      Img_Put(img, x, y, Scale(Img_Get(img, x, y), 1.0f + (n - 0.5f) * amount));
    }
}

}  // namespace fig
