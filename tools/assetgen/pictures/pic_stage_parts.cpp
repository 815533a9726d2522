// Painting stages: panoramas and floor tiles.
#include "pictures/pic_stage_parts.h"

#include <algorithm>
#include <cmath>

namespace pic {
namespace {

// Noise that repeats across the canvas width (period cells over the width).
float Wrap_Noise(const Canvas& c, float x, float y, std::uint32_t seed, int period, int octaves = 4) {
  float k = static_cast<float>(period) / c.w;
  return Fbm(x * k, y * k, seed, octaves, period);
}

// Fills every column's span [top(x), bottom) with a colour that may vary by row.
template <class Top, class Paint>
void Fill_Columns(Canvas& c, int bottom, Top top, Paint paint) {
  for (int x = 0; x < c.w; ++x) {
    float t = top(static_cast<float>(x));
    int y0 = std::max(0, static_cast<int>(std::floor(t)));
    for (int y = y0; y < std::min(bottom, c.h); ++y) {
      float cover = y == y0 ? Clamp01(y + 1 - t) : 1.0f;
      Put(c, x, y, paint(x, y), cover);
    }
  }
}

// A shape drawn at x and at its wrapped copies, so the panorama's edges join.
template <class Sdf, class PaintFn>
void Shade_Wrapped(Canvas& c, float cx, float half_w, int y0, int y1, Sdf sdf, PaintFn paint) {
  for (int k = -1; k <= 1; ++k) {
    float ox = cx + k * c.w;
    if (ox + half_w < 0 || ox - half_w > c.w) continue;
    Shade(c, static_cast<int>(ox - half_w - 2), y0, static_cast<int>(ox + half_w + 2), y1,
          [&](float x, float y) { return sdf(x - ox, y); }, [&](float x, float y) { return paint(x - ox, y); });
  }
}

void Lit_Windows(Canvas& c, float cx, float half_w, float top, float bottom, Rgba lights, std::uint32_t seed) {
  if (lights.a <= 0) return;
  for (float y = top + 6; y < bottom - 4; y += 9)
    for (float x = cx - half_w + 4; x < cx + half_w - 4; x += 7) {
      if (Hash01(static_cast<std::uint32_t>(x * 3), static_cast<std::uint32_t>(y), seed) > 0.45f) continue;
      for (int k = -1; k <= 1; ++k) Fill_Rect(c, static_cast<int>(x) + k * c.w, static_cast<int>(y), 3, 4, lights);
    }
}

void Pagodas(Canvas& c, const StageLook& L, int base) {
  for (int i = 0; i < 4; ++i) {
    float cx = (i + 0.3f + 0.4f * Hash01(i, L.seed)) * c.w / 4, h = 110 + 60 * Hash01(i, L.seed, 2);
    int tiers = 3 + static_cast<int>(Hash01(i, L.seed, 3) * 3);
    for (int t = 0; t < tiers; ++t) {
      float w = 46 - t * 7, y = base - (t + 1) * h / tiers;
      Shade_Wrapped(c, cx, w + 12, static_cast<int>(y - 10), base, [&](float x, float yy) {
        const float roof[] = {-w - 12, y + 4, -w * 0.5f, y - 8, w * 0.5f, y - 8, w + 12, y + 4};
        return std::min(Sd_Polygon(x, yy, roof, 4), Sd_Box(x, yy, 0, (y + base) * 0.5f, w * 0.7f, (base - y) * 0.5f));
      }, [&](float, float) { return L.structure; });
      if (L.lights.a > 0) Fill_Rect(c, static_cast<int>(cx - w * 0.4f), static_cast<int>(y + 8), static_cast<int>(w * 0.8f), 3, L.lights);
    }
  }
}

void City(Canvas& c, const StageLook& L, int base) {
  for (int i = 0; i < 40; ++i) {
    float cx = (i + Hash01(i, L.seed)) * c.w / 40, w = 10 + 14 * Hash01(i, L.seed, 1);
    float top = base - 60 - 150 * Hash01(i, L.seed, 2) * Hash01(i, L.seed, 5);
    Shade_Wrapped(c, cx, w, static_cast<int>(top), base,
                  [&](float x, float y) { return Sd_Box(x, y, 0, (top + base) * 0.5f, w, (base - top) * 0.5f); },
                  [&](float, float) { return L.structure; });
    Lit_Windows(c, cx, w, top, static_cast<float>(base), L.lights, L.seed + i);
    if (Hash01(i, L.seed, 3) > 0.8f) Fill_Circle(c, cx, top - 6, 1.5f, Hex(0xFF3020));
  }
}

void Factory(Canvas& c, const StageLook& L, int base) {
  for (int i = 0; i < 10; ++i) {
    float cx = (i + 0.5f) * c.w / 10, w = 40 + 30 * Hash01(i, L.seed), h = 50 + 40 * Hash01(i, L.seed, 1);
    Shade_Wrapped(c, cx, w, static_cast<int>(base - h - 5), base, [&](float x, float y) {
      const float shed[] = {-w, float(base), -w, base - h, -w * 0.3f, base - h - 18, w * 0.3f, base - h, w, base - h - 18, w, float(base)};
      return Sd_Polygon(x, y, shed, 6);
    }, [&](float, float) { return L.structure; });
    float sx = cx + w * 0.6f, sh = 140 + 80 * Hash01(i, L.seed, 2);
    Shade_Wrapped(c, sx, 8, static_cast<int>(base - sh), base,
                  [&](float x, float y) { return Sd_Box(x, y, 0, base - sh * 0.5f, 5 + (y - base + sh) * 0.02f, sh * 0.5f); },
                  [&](float, float) { return L.structure; });
    Lit_Windows(c, cx, w * 0.8f, base - h + 4, static_cast<float>(base), L.lights, L.seed + i);
    // Smoke drifting from the stack.
    for (int k = 0; k < 10; ++k) {
      float px = sx + k * 9 + 6 * Hash01(i, k, 7), py = base - sh - 8 - k * 12, r = 6 + k * 2.2f;
      Rgba smoke = With_Alpha(Mix(L.haze, L.structure, 0.5f), 0.25f * (1 - k / 10.0f));
      for (int w2 = -1; w2 <= 1; ++w2) Fill_Circle(c, px + w2 * c.w, py, r, smoke);
    }
  }
}

void Bamboo(Canvas& c, const StageLook& L, int base) {
  for (int layer = 0; layer < 2; ++layer)
    for (int i = 0; i < 70; ++i) {
      float cx = (i + Hash01(i, layer, L.seed)) * c.w / 70, w = layer ? 5.0f : 3.0f;
      Rgba col = layer ? L.structure : Mix(L.structure, L.haze, 0.5f);
      float lean = (Hash01(i, layer, L.seed + 1) - 0.5f) * 0.08f;
      Shade_Wrapped(c, cx, 60, 0, base, [&](float x, float y) { return std::fabs(x - lean * (base - y)) - w; },
                    [&](float x, float y) {
                      float node = std::fabs(std::fmod(y + 1000 + i * 13, 46.0f) - 23) < 1.2f ? 0.6f : 1.0f;
                      return Scale(col, node * (0.85f + 0.3f * Clamp01(x / w)));
                    });
    }
}

void Shrine(Canvas& c, const StageLook& L, int base) {
  for (int i = 0; i < 3; ++i) {
    float cx = (i + 0.5f) * c.w / 3;
    Shade_Wrapped(c, cx, 110, base - 200, base, [&](float x, float y) {
      float posts = std::min(Sd_Box(x, y, -60, base - 80, 7, 80), Sd_Box(x, y, 60, base - 80, 7, 80));
      float beam = Sd_Box(x, y, 0, base - 150 - 0.0008f * x * x * -8, 100, 7);
      float tie = Sd_Box(x, y, 0, base - 125, 78, 4);
      return std::min({posts, beam, tie});
    }, [&](float, float) { return L.structure; });
  }
  for (int i = 0; i < 24; ++i) {  // lanterns on a string
    float x = (i + 0.5f) * c.w / 24, sag = 12 * std::sin((i % 4) * 0.8f);
    for (int k = -1; k <= 1; ++k) {
      Fill_Circle(c, x + k * c.w, base - 240 + sag, 9, Mix(L.lights, Hex(0xFFFFFF), 0.2f));
      Fill_Rect(c, static_cast<int>(x - 5) + k * c.w, static_cast<int>(base - 250 + sag), 10, 2, Hex(0x201010));
    }
  }
}

void Palms(Canvas& c, const StageLook& L, int base) {
  for (int i = 0; i < 6; ++i) {
    float cx = (i + Hash01(i, L.seed)) * c.w / 6, h = 170 + 60 * Hash01(i, L.seed, 1), bend = 40 * (Hash01(i, L.seed, 2) - 0.5f);
    float tx = cx + bend, ty = base - h;
    for (int k = -1; k <= 1; ++k) {
      Stroke_Line(c, cx + k * c.w, static_cast<float>(base), tx + k * c.w, ty, 9, L.structure);
      for (int f = 0; f < 7; ++f) {
        float a = -2.9f + f * 0.95f;
        float ex = tx + std::cos(a) * 60 + k * c.w, ey = ty + std::sin(a) * 30 + 25;
        Stroke_Line(c, tx + k * c.w, ty, (tx + k * c.w + ex) / 2, ty - 12, 6, L.structure);
        Stroke_Line(c, (tx + k * c.w + ex) / 2, ty - 12, ex, ey, 4, L.structure);
      }
    }
  }
}

void Castle(Canvas& c, const StageLook& L, int base) {
  float wall = base - 70;
  Fill_Columns(c, base, [&](float x) { return wall - (std::fmod(x, 16.0f) < 8 ? 6 : 0); },
               [&](int, int) { return L.structure; });
  for (int i = 0; i < 5; ++i) {
    float cx = (i + 0.5f) * c.w / 5, w = 24 + 10 * Hash01(i, L.seed), h = 160 + 60 * Hash01(i, L.seed, 1);
    Shade_Wrapped(c, cx, w + 6, static_cast<int>(base - h - 60), base, [&](float x, float y) {
      const float roof[] = {-w - 6, base - h, 0, base - h - 55, w + 6, base - h};
      return std::min(Sd_Box(x, y, 0, base - h * 0.5f, w, h * 0.5f), Sd_Polygon(x, y, roof, 3));
    }, [&](float, float) { return L.structure; });
    Lit_Windows(c, cx, w * 0.6f, base - h + 10, base - 80.0f, L.lights, L.seed + i);
  }
}

void Mesas(Canvas& c, const StageLook& L, int base) {
  Fill_Columns(c, base, [&](float x) {
    float n = Wrap_Noise(c, x, 0, L.seed + 5, 6, 3);
    float mesa = std::min(1.0f, std::max(0.0f, (n - 0.42f) * 6));
    return base - 40 - 150 * mesa;
  }, [&](int x, int y) {
    float band = 0.85f + 0.15f * std::sin(y * 0.35f + Wrap_Noise(c, static_cast<float>(x), y * 0.2f, L.seed, 12, 2) * 4);
    return Scale(L.structure, band);
  });
}

// The volcano stands far behind the fortress: its flank is hazed, lighter than the fortress's
// walls and towers, so their silhouettes and lit windows stand clear in front of it.
void Volcano(Canvas& c, const StageLook& L, int base) {
  // The cone sits low enough that its glowing crater shows above the fortress in the fight's
  // view, and darker than the sky behind it, so the lava reads as running down a mountain.
  const Rgba flank = Mix(L.structure, L.haze, 0.2f);
  const float peak = base - 190.0f, slope = 0.45f, crater = 36;
  const float at = c.w * 0.5f - 150;  // between two towers, so the crater shows
  Shade_Wrapped(c, at, 520, static_cast<int>(peak) - 10, base, [&](float x, float y) {
    float top = peak + std::fabs(x) * slope;
    return (std::fabs(x) < crater ? peak + 18.0f : top) - y;
  }, [&](float x, float y) {
    // A lava stream runs down the flank toward the central tower, from the crater's lip,
    // widening as it goes, with a soft glow round it.
    const float lip = peak + crater * slope;
    const float drop = y - lip;
    const float off = std::fabs(x - crater - 0.35f * drop + 3 * std::sin(y * 0.05f));
    const float core = 1.5f + 0.03f * drop;
    const float lava = drop > 0 ? Clamp01(1.0f - (off - core) / 5.0f) * (off < core ? 1.0f : 0.45f) : 0.0f;
    const float rim = Clamp01(1.0f - std::fabs(y - peak - 18.0f) / 6.0f) * (std::fabs(x) < crater ? 1.0f : 0.0f);
    const float depth = Clamp01((y - peak) / 190.0f);
    return Mix(Mix(flank, Scale(flank, 0.7f), depth), L.lights, std::max(lava, rim));
  });
  for (int k = 0; k < 16; ++k)
    Fill_Circle(c, at + 30 * std::sin(k * 1.7f) + k * 6, peak + 10.0f - k * 14, 18.0f + k * 3,
                With_Alpha(Mix(Hex(0x301010), L.haze, k / 16.0f), 0.35f));
  Castle(c, L, base);
}

void Ruins(Canvas& c, const StageLook& L, int base) {
  for (int i = 0; i < 16; ++i) {
    float cx = (i + 0.5f) * c.w / 16, h = Hash01(i, L.seed) > 0.3f ? 150.0f : 60 + 80 * Hash01(i, L.seed, 1);
    Shade_Wrapped(c, cx, 16, static_cast<int>(base - h - 10), base, [&](float x, float y) {
      return std::min({Sd_Box(x, y, 0, base - h * 0.5f, 10, h * 0.5f), Sd_Box(x, y, 0, base - h, 15, 5),
                       Sd_Box(x, y, 0, base - 4.0f, 15, 4)});
    }, [&](float x, float) { return Scale(L.structure, 0.8f + 0.4f * Clamp01((x + 10) / 20)); });
    if (i % 4 == 0)
      Shade_Wrapped(c, cx + c.w / 32.0f, c.w / 32.0f + 16, static_cast<int>(base - 166), base - 140,
                    [&](float x, float y) { return Sd_Box(x, y, 0, base - 155.0f, c.w / 32.0f + 14, 7); },
                    [&](float, float) { return L.structure; });
  }
}

}  // namespace

void Paint_Sky(Canvas& c, const StageLook& L) {
  for (int y = 0; y < c.h; ++y) {
    float t = static_cast<float>(y) / (c.h - 1);
    Rgba col = t < 0.55f ? Mix(L.sky_top, L.sky_mid, t / 0.55f) : Mix(L.sky_mid, L.horizon, (t - 0.55f) / 0.45f);
    for (int x = 0; x < c.w; ++x) c.at(x, y) = col;
  }
  if (L.stars)
    for (int i = 0; i < c.w * c.h / 900; ++i) {
      float x = Hash01(i, L.seed, 11) * c.w, y = Hash01(i, L.seed, 12) * c.h * 0.7f;
      float b = 0.3f + 0.7f * Hash01(i, L.seed, 13);
      Put(c, static_cast<int>(x), static_cast<int>(y), Hex(0xFFFFFF, b));
    }
  // Cloud bands, thin and wide.
  for (int y = 0; y < c.h * 3 / 4; ++y)
    for (int x = 0; x < c.w; ++x) {
      float n = Wrap_Noise(c, static_cast<float>(x), y * 4.0f, L.seed + 3, 8, 5);
      float k = Smooth(0.55f, 0.8f, n) * 0.35f;
      if (k > 0) Put(c, x, y, Mix(L.horizon, Hex(0xFFFFFF), 0.3f), k);
    }
  if (L.sun.a > 0) {
    Canvas glow = Make_Canvas(c.w, c.h);
    Fill_Circle(glow, L.sun_x, L.sun_y, L.sun_r * 2.2f, With_Alpha(L.sun, 0.35f));
    Blur(glow, static_cast<int>(L.sun_r));
    Draw(c, glow, 0, 0);
    Fill_Circle(c, L.sun_x, L.sun_y, L.sun_r, Mix(L.sun, Hex(0xFFFFFF), 0.4f));
  }
}

void Paint_Range(Canvas& c, const StageLook&, int base_y, float amplitude, Rgba colour, std::uint32_t seed, int period) {
  Fill_Columns(c, c.h, [&](float x) {
    float n = Wrap_Noise(c, x, 0.5f, seed, period, 5);
    return base_y - amplitude * (n * 1.6f - 0.3f);
  }, [&](int, int y) { return Mix(colour, Scale(colour, 0.8f), Clamp01((y - base_y + amplitude) / (2 * amplitude))); });
}

Canvas Paint_Panorama(const StageLook& L) {
  Canvas c = Make_Canvas(kPanoW, kPanoH);
  Paint_Sky(c, L);
  Paint_Range(c, L, kHorizon - 110, 90, L.far_range, L.seed + 7, 6);
  Paint_Range(c, L, kHorizon - 40, 50, Mix(L.far_range, L.structure, 0.4f), L.seed + 8, 12);
  // Haze over the far hills.
  for (int y = kHorizon - 160; y < kHorizon; ++y)
    for (int x = 0; x < c.w; ++x) Put(c, x, y, L.haze, 0.4f * Smooth(kHorizon - 160.0f, kHorizon, y));
  int base = L.water ? kHorizon - 24 : kHorizon;
  switch (L.skyline) {
    case Skyline::Pagodas: Pagodas(c, L, base); break;
    case Skyline::City: City(c, L, base); break;
    case Skyline::Factory: Factory(c, L, base); break;
    case Skyline::Bamboo: Bamboo(c, L, base); break;
    case Skyline::Shrine: Shrine(c, L, base); break;
    case Skyline::Palms: Palms(c, L, base); break;
    case Skyline::Castle: Castle(c, L, base); break;
    case Skyline::Mesas: Mesas(c, L, base); break;
    case Skyline::Volcano: Volcano(c, L, base); break;
    case Skyline::Ruins: Ruins(c, L, base); break;
  }
  if (L.water)  // the skyline mirrored in rippling water
    for (int y = base; y < kHorizon; ++y)
      for (int x = 0; x < c.w; ++x) {
        int src = std::max(0, 2 * base - y - 1);
        int sx = (x + static_cast<int>(3 * std::sin(y * 0.9f)) + c.w) % c.w;
        Rgba r = c.at(sx, src);
        c.at(x, y) = Mix(Scale(r, 0.7f), L.haze, 0.25f);
      }
  for (int y = kHorizon; y < c.h; ++y)
    for (int x = 0; x < c.w; ++x) {
      float n = Wrap_Noise(c, static_cast<float>(x), y * 3.0f, L.seed + 9, 24, 3);
      c.at(x, y) = Scale(L.ground, 0.8f + 0.35f * n - 0.15f * (y - kHorizon) / 60.0f);
    }
  return c;
}

namespace {

// A per-cell shade and a little wear, for tiled floors.
float Cell_Shade(int cx, int cy, std::uint32_t seed) { return 0.85f + 0.3f * Hash01(cx, cy, seed); }

}  // namespace

Canvas Paint_Floor(const StageLook& L) {
  constexpr int N = 512;
  Canvas c = Make_Canvas(N, N);
  for (int y = 0; y < N; ++y)
    for (int x = 0; x < N; ++x) {
      float grain = Fbm(x / 32.0f, y / 32.0f, L.seed + 21, 4, 16);
      float fine = Noise(x / 4.0f, y / 4.0f, L.seed + 22, 128);
      Rgba col;
      switch (L.floor) {
        case Floor::Planks: {
          int plank = x / 32, off = (plank * 173) % N;
          float along = static_cast<float>((y + off) % N);
          // Grain runs along the plank and only wavers: swirled much more it reads as marble
          // or rippling water under the close camera.
          float ring = 0.5f + 0.5f * std::sin((x % 32) * 0.6f + Fbm(x / 64.0f, along / 8.0f, L.seed + plank, 3, 8) * 2.5f);
          col = Scale(Mix(L.floor_a, L.floor_b, ring * 0.4f), Cell_Shade(plank, 0, L.seed));
          if (x % 32 == 0 || static_cast<int>(along) % 256 == 0) col = Scale(col, 0.45f);
          break;
        }
        case Floor::Grating: {
          int gx = x % 32, gy = y % 32;
          bool bar = gx < 4 || gy < 4;
          col = bar ? Scale(L.floor_a, 0.9f + 0.2f * fine) : Scale(L.floor_b, 0.6f + 0.3f * grain);
          if ((gx == 8 || gx == 24) && (gy == 8 || gy == 24)) col = Scale(L.floor_a, 1.4f);
          break;
        }
        case Floor::Checker: {
          bool dark = ((x / 64) + (y / 64)) % 2;
          float m = Fbm(x * 10.0f / N, y * 10.0f / N, L.seed + 23, 5, 10);
          float vein = Smooth(0.48f, 0.5f, m) * Smooth(0.52f, 0.5f, m);
          col = Mix(dark ? L.floor_b : L.floor_a, Hex(0xFFFFFF), vein * 0.4f);
          col = Scale(col, 0.92f + 0.1f * grain);
          break;
        }
        case Floor::Sand: case Floor::Snow: case Floor::Earth: {
          float ripple = L.floor == Floor::Sand ? 0.5f + 0.5f * std::sin((y * 24.0f / N + grain * 1.5f) * 6.2831853f) : grain;
          col = Mix(L.floor_a, L.floor_b, Clamp01(0.3f * ripple + 0.7f * grain));
          col = Scale(col, 0.9f + 0.15f * fine);
          if (L.floor == Floor::Earth) {
            float crack = std::fabs(Fbm(x * 12.0f / N, y * 12.0f / N, L.seed + 24, 4, 12) - 0.5f);
            if (crack < 0.012f) col = Scale(col, 0.45f);
          }
          break;
        }
        default: {  // stone slabs: Concrete, Slabs, Lava, Marble
          int size = L.floor == Floor::Concrete ? 128 : 64;
          int cx = x / size, cy = y / size, row_off = L.floor == Floor::Slabs ? (cy % 2) * size / 2 : 0;
          cx = ((x + row_off) % N) / size;
          int lx = (x + row_off) % size, ly = y % size;
          bool grout = lx < 2 || ly < 2;
          col = Scale(Mix(L.floor_a, L.floor_b, grain), Cell_Shade(cx, cy, L.seed) * (0.92f + 0.12f * fine));
          if (L.floor == Floor::Marble) col = Mix(col, Hex(0xFFFFFF), Smooth(0.03f, 0.0f, std::fabs(grain - 0.5f)) * 0.3f);
          if (grout) col = L.floor == Floor::Lava ? Mix(Hex(0xFF5010), Hex(0xFFD040), fine) : Scale(col, 0.55f);
          if (L.floor == Floor::Lava && !grout) col = Mix(col, Hex(0xC02008), Smooth(0.62f, 0.75f, grain) * 0.8f);
          break;
        }
      }
      c.at(x, y) = {Clamp01(col.r), Clamp01(col.g), Clamp01(col.b), 1.0f};
    }
  return c;
}

}  // namespace pic
