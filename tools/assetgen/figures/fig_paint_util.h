// Pixel helpers for the texture painter. Internal to the figure generator.
#pragma once
#include <cstdint>

#include "figures/fig_types.h"

namespace fig {

struct Rgb {
  float r, g, b;
};
inline Rgb Hex(std::uint32_t c) {
  return {static_cast<float>((c >> 16) & 255), static_cast<float>((c >> 8) & 255), static_cast<float>(c & 255)};
}
inline Rgb Mix(Rgb a, Rgb b, float t) { return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t}; }
inline Rgb Scale(Rgb a, float k) { return {a.r * k, a.g * k, a.b * k}; }

void Img_New(Image& img, int w, int h);
Rgb Img_Get(const Image& img, int x, int y);
void Img_Put(Image& img, int x, int y, Rgb c);               // wraps x and y
void Img_Blend(Image& img, int x, int y, Rgb c, float alpha);  // wraps x and y
void Img_Fill(Image& img, Rgb c);
// Soft-edged filled ellipse at (cx, cy), radii rx, ry, in pixels.
void Img_Ellipse(Image& img, float cx, float cy, float rx, float ry, Rgb c, float alpha = 1.0f);
// A line of the given thickness.
void Img_Line(Image& img, float x0, float y0, float x1, float y1, float width, Rgb c, float alpha = 1.0f);
void Img_Rect(Image& img, float x0, float y0, float x1, float y1, Rgb c, float alpha = 1.0f);

// Smooth value noise in 0..1 with the given cell size; tiles over the image width.
float Noise(int x, int y, int cell, int seed, int wrap);
// Darkens and lightens the whole picture by noise (fabric grain, skin pores).
void Img_Grain(Image& img, float amount, int cell, int seed);

}  // namespace fig
