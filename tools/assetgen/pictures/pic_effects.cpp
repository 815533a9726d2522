// The fight's effect pictures. Effects blend with source and destination both scaled by the
// picture's alpha: where alpha is 1 the colour is added to the scene (glows, sparks, fire);
// where it is lower the scene behind is dimmed first (dust and smoke). Each flip-book is a
// 128 x 128 RGBA sequence; the looping ones (fire, power aura, the charge circle) join their
// last frame to their first.
#include <cmath>
#include <cstdio>
#include <string>

#include "pictures/pic_groups.h"
#include "pictures/pic_style.h"

namespace pic {
namespace {

constexpr float kTau = 6.2831853f;

// What one pixel of an effect does to the scene: light added, and how much of the scene is
// hidden behind it (0 none).
struct Fx {
  float r = 0, g = 0, b = 0;
  float dim = 0;
  void add(Rgba c, float k) { r += c.r * k, g += c.g * k, b += c.b * k; }
};

// Turns an effect function of (x, y in -1..1, frame) into a picture.
template <class F>
Canvas Render_Fx(int size, F fx) {
  Canvas c = Make_Canvas(size, size);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      float u = (x + 0.5f) / size * 2 - 1, v = (y + 0.5f) / size * 2 - 1;
      Fx p = fx(u, v);
      float a = 1 - Clamp01(p.dim);
      // Fade to nothing at the square's edge, so no seam shows.
      float edge = Smooth(1.0f, 0.9f, std::max(std::fabs(u), std::fabs(v)));
      a = 1 - (1 - a) * edge;
      float k = edge / std::max(a, 0.05f);
      c.at(x, y) = {Clamp01(p.r * k), Clamp01(p.g * k), Clamp01(p.b * k), a};
    }
  return c;
}

template <class F>
void Flip_Book(Output& out, const char* stem, int frames, F fx) {
  for (int f = 0; f < frames; ++f) {
    float t = static_cast<float>(f) / (frames - 1);
    char name[32];
    std::snprintf(name, sizeof name, "%s%04d.bmp", stem, f + 1);
    Save_Rgba(out, name, Render_Fx(128, [&](float x, float y) { return fx(x, y, t, f); }));
  }
}

float Gauss(float x, float w) { return std::exp(-(x * x) / (w * w)); }
float Angle_Diff(float a, float b) {
  float d = std::fmod(a - b + 3 * kTau / 2, kTau) - kTau / 2;
  return std::fabs(d);
}

// Rays from the centre: count rays of seeded length and width, as far as `reach`.
float Rays(float x, float y, int count, std::uint32_t seed, float reach, float width) {
  float d = std::hypot(x, y), a = std::atan2(y, x), best = 0;
  for (int k = 0; k < count; ++k) {
    float ak = (k + Hash01(k, seed) * 0.6f) * kTau / count;
    float len = reach * (0.55f + 0.45f * Hash01(k, seed, 1));
    float along = d * std::cos(a - ak), perp = d * std::sin(Angle_Diff(a, ak));
    if (along < 0 || along > len || Angle_Diff(a, ak) > 1.5f) continue;
    float taper = 1 - along / len;
    best = std::max(best, Gauss(perp, width * taper + 0.004f) * taper);
  }
  return best;
}

void Hit_Flash(Output& out) {
  Flip_Book(out, "hit2", 16, [](float x, float y, float t, int) {
    Fx p;
    float d = std::hypot(x, y), fade = (1 - t) * (1 - t);
    p.add(Hex(0xFFFFFF), Gauss(d, 0.12f + 0.25f * t) * fade * 1.4f);
    p.add(Hex(0xFFD040), Rays(x, y, 12, 7, 0.35f + 0.6f * std::sqrt(t), 0.06f) * (1 - t));
    p.add(Hex(0xFF8020), Gauss(d - (0.2f + 0.65f * t), 0.04f + 0.03f * t) * fade);
    return p;
  });
}

void Guard_Sparks(Output& out) {
  // A hexagonal shield that flares and spreads.
  Flip_Book(out, "gur1", 16, [](float x, float y, float t, int) {
    Fx p;
    float r = 0.35f + 0.4f * std::sqrt(t);
    float hex = std::max(std::fabs(x) * 0.866f + std::fabs(y) * 0.5f, std::fabs(y)) - r;
    float fade = 1 - t;
    p.add(Hex(0x80D0FF), Gauss(hex, 0.035f) * fade * 1.3f);
    if (hex < 0) p.add(Hex(0x2060FF), (0.35f + 0.25f * std::sin(y * 60)) * fade * fade);
    p.add(Hex(0xFFFFFF), Gauss(std::hypot(x, y), 0.2f) * Smooth(0.4f, 0.0f, t));
    return p;
  });
  // A fan of sparks thrown off a blocked blow.
  Flip_Book(out, "gur2", 16, [](float x, float y, float t, int) {
    Fx p;
    for (int k = 0; k < 14; ++k) {
      float a = -1.2f + 2.4f * Hash01(k, 21) - kTau / 4;
      float speed = 0.5f + 0.5f * Hash01(k, 22);
      float head = speed * (0.15f + 0.85f * std::sqrt(t)), tail = head * 0.55f;
      float ax = std::cos(a) * tail, ay = std::sin(a) * tail + 0.3f * t * t;
      float bx = std::cos(a) * head, by = std::sin(a) * head + 0.6f * t * t;
      float dist = Sd_Segment(x, y, ax, ay, bx, by, 0);
      p.add(Hex(0xC0F0FF), Gauss(dist, 0.025f) * (1 - t));
    }
    p.add(Hex(0xFFFFFF), Gauss(std::hypot(x, y), 0.15f) * Smooth(0.3f, 0.0f, t));
    return p;
  });
}

void Dust(Output& out) {
  Flip_Book(out, "down", 16, [](float x, float y, float t, int) {
    Fx p;
    float density = 0;
    for (int k = 0; k < 7; ++k) {
      float px = (Hash01(k, 31) - 0.5f) * (0.4f + 1.0f * t), py = 0.35f - 0.35f * t * Hash01(k, 32);
      float r = 0.18f + 0.3f * std::sqrt(t) * (0.6f + 0.4f * Hash01(k, 33));
      density = std::max(density, Smooth(r, r * 0.3f, std::hypot(x - px, (y - py) * 1.4f)));
    }
    density *= 0.55f + 0.45f * Fbm(x * 3 + 5, y * 3 - t * 2, 41, 3);
    float fade = Smooth(1.0f, 0.35f, t) * Smooth(0.0f, 0.12f, t + 0.05f);
    p.dim = density * fade * 0.5f;
    p.add(Hex(0xB8A080), density * fade * 0.35f);
    return p;
  });
}

void Energy(Output& out) {
  // A swirling orb of violet light.
  Flip_Book(out, "ene1", 16, [](float x, float y, float t, int) {
    Fx p;
    float d = std::hypot(x, y), a = std::atan2(y, x);
    float swirl = Fbm(a * 2.0f + t * 6 + d * 4, d * 3, 51, 3, 0);
    float shell = Gauss(d - (0.3f + 0.35f * t), 0.12f) * (0.5f + swirl);
    float fade = Smooth(1.0f, 0.5f, t);
    p.add(Hex(0xA060FF), shell * fade * 1.2f);
    p.add(Hex(0xFFFFFF), Gauss(d, 0.15f + 0.05f * std::sin(t * 20)) * fade);
    p.add(Hex(0x4080FF), Gauss(d, 0.5f) * 0.3f * fade);
    return p;
  });
  // Green lightning crackling out from the centre; new forks every frame.
  Flip_Book(out, "ene2", 16, [](float x, float y, float t, int f) {
    Fx p;
    float bolt = 0;
    for (int k = 0; k < 5; ++k) {
      float a = (k + Hash01(k, f, 61)) * kTau / 5;
      float px = 0, py = 0;
      for (int s = 0; s < 6; ++s) {
        float step = 0.14f;
        a += (Hash01(k, s, f * 7 + 62) - 0.5f) * 1.2f;
        float nx = px + std::cos(a) * step, ny = py + std::sin(a) * step;
        bolt = std::max(bolt, Gauss(Sd_Segment(x, y, px, py, nx, ny, 0), 0.018f));
        px = nx, py = ny;
      }
    }
    float fade = 1 - t * t;
    p.add(Hex(0xE0FFE0), bolt * fade * 1.3f);
    p.add(Hex(0x30FF80), Gauss(std::hypot(x, y), 0.35f) * 0.45f * fade);
    return p;
  });
}

void Impacts(Output& out) {
  // An orange impact: sharp spikes and a ring.
  Flip_Book(out, "blo1", 16, [](float x, float y, float t, int) {
    Fx p;
    float d = std::hypot(x, y), fade = 1 - t;
    p.add(Hex(0xFFA030), Rays(x, y, 9, 71, 0.5f + 0.4f * std::sqrt(t), 0.09f) * fade * 1.3f);
    p.add(Hex(0xFFE0A0), Gauss(d - 0.6f * std::sqrt(t), 0.05f) * fade);
    p.add(Hex(0xFFFFFF), Gauss(d, 0.12f) * Smooth(0.5f, 0.0f, t));
    return p;
  });
  // A white shock ring with beads of sweat thrown off.
  Flip_Book(out, "blo2", 16, [](float x, float y, float t, int) {
    Fx p;
    float d = std::hypot(x, y), fade = 1 - t;
    p.add(Hex(0xF0F8FF), Gauss(d - (0.15f + 0.7f * std::sqrt(t)), 0.05f * (1 - 0.5f * t)) * fade * 1.2f);
    for (int k = 0; k < 10; ++k) {
      float a = Hash01(k, 81) * kTau, sp = 0.4f + 0.5f * Hash01(k, 82);
      float bx = std::cos(a) * sp * std::sqrt(t) * 1.2f, by = std::sin(a) * sp * std::sqrt(t) + 0.5f * t * t;
      p.add(Hex(0xC0E0FF), Smooth(0.05f, 0.02f, std::hypot(x - bx, y - by)) * fade);
    }
    return p;
  });
  // A big jagged burst, white inside, its points growing then breaking up.
  Flip_Book(out, "blam", 16, [](float x, float y, float t, int) {
    Fx p;
    float d = std::hypot(x, y), a = std::atan2(y, x);
    float grow = 0.35f + 0.5f * Smooth(0.0f, 0.4f, t);
    float spike = 0.65f + 0.35f * std::fabs(std::cos(a * 7 + Hash01(3, 91)));
    float edge = grow * spike - d;
    float body = Smooth(-0.02f, 0.02f, edge) * Smooth(1.0f, 0.55f, t);
    float inner = Smooth(-0.02f, 0.02f, edge - grow * 0.35f);
    p.add(Hex(0xFF5010), body);
    p.add(Hex(0xFFE040), inner * Smooth(1.0f, 0.4f, t));
    p.add(Hex(0xFFFFFF), Gauss(d, 0.18f) * Smooth(0.6f, 0.0f, t));
    return p;
  });
}

// A ball of fire or plasma that swells, then thins into smoke.
template <class Palette>
Fx Fireball(float x, float y, float t, std::uint32_t seed, Palette palette, float smoke) {
  Fx p;
  float d = std::hypot(x, y);
  float r = 0.2f + 0.6f * std::sqrt(t);
  float n = Fbm(x * 3.5f + seed, y * 3.5f + t * 3, seed, 4);
  float body = Smooth(r, r * 0.5f, d + (n - 0.5f) * 0.35f);
  float heat = Clamp01(body * (1.15f - t) * (0.35f + n));
  p.add(palette(heat), body * Smooth(1.0f, 0.55f, t) * 1.3f);
  p.dim = smoke * body * Smooth(0.25f, 0.7f, t) * Smooth(1.0f, 0.8f, t);
  return p;
}

void Explosions(Output& out) {
  Flip_Book(out, "exp1", 16, [](float x, float y, float t, int) {
    return Fireball(x, y, t, 101, [](float h) {
      return h > 0.6f ? Mix(Hex(0xFFD040), Hex(0xFFFFE0), (h - 0.6f) / 0.4f) : Mix(Hex(0x801000), Hex(0xFFD040), h / 0.6f);
    }, 0.7f);
  });
  Flip_Book(out, "exp2", 16, [](float x, float y, float t, int) {
    Fx p = Fireball(x, y, t, 111, [](float h) {
      return h > 0.6f ? Mix(Hex(0x80E0FF), Hex(0xFFFFFF), (h - 0.6f) / 0.4f) : Mix(Hex(0x101880), Hex(0x80E0FF), h / 0.6f);
    }, 0.3f);
    p.add(Hex(0x80C0FF), Gauss(std::hypot(x, y) - (0.3f + 0.6f * t), 0.03f) * (1 - t));
    return p;
  });
}

// Flames licking upward; the noise scrolls by one period over the sixteen frames, so the
// loop joins.
void Fire(Output& out) {
  Flip_Book(out, "fire", 16, [](float x, float y, float, int f) {
    Fx p;
    float phase = f / 16.0f;
    float up = Clamp01((0.9f - y) / 1.7f);  // 0 at the bottom, 1 at the top
    float width = 0.55f * (1 - up) + 0.05f;
    float n = Fbm(x * 2.5f, (y + phase * 2.0f) * 2.0f, 121, 3, 4);
    float shape = Smooth(width, width * 0.3f, std::fabs(x + (n - 0.5f) * 0.5f * up)) * Smooth(1.0f, 0.8f, up + 0.15f * n);
    float heat = Clamp01(shape * (1.2f - up) * (0.5f + n));
    Rgba c = heat > 0.5f ? Mix(Hex(0xFFB030), Hex(0xFFFFC0), (heat - 0.5f) * 2) : Mix(Hex(0xA01800), Hex(0xFFB030), heat * 2);
    p.add(c, shape * 1.2f);
    return p;
  });
}

// A ring of force running out over the floor (drawn lying down, growing with its frame).
void Wave(Output& out) {
  Flip_Book(out, "wave", 16, [](float x, float y, float t, int) {
    Fx p;
    float d = std::hypot(x, y);
    float ring = Gauss(d - 0.78f, 0.06f + 0.04f * t);
    float ripple = Gauss(d - 0.55f, 0.03f) * 0.5f + Gauss(d - 0.35f, 0.02f) * 0.25f;
    float fade = Smooth(1.0f, 0.4f, t);
    p.add(Hex(0xA0D8FF), (ring * 1.2f + ripple) * fade);
    p.dim = ring * 0.2f * fade;
    return p;
  });
}

// The power aura around a charged limb: golden tongues circling; loops over 16 frames.
void Power(Output& out) {
  Flip_Book(out, "pow2", 16, [](float x, float y, float, int f) {
    Fx p;
    float d = std::hypot(x, y), a = std::atan2(y, x);
    float turn = f / 16.0f * kTau;
    float n = Noise(std::cos(a + turn) * 2 + 3, std::sin(a + turn) * 2 + 3, 131) * 0.6f +
              Noise(std::cos(a - turn) * 3 + 7, std::sin(a - turn) * 3 + 7, 132) * 0.4f;
    float aura = Smooth(0.45f + 0.35f * n, 0.15f, d);
    p.add(Hex(0xFFC030), aura * 0.9f);
    p.add(Hex(0xFFFFE0), Gauss(d, 0.15f) * 0.8f);
    return p;
  });
}

// The gauge-charge circle under a charging fighter: twenty frames of a turning rune ring.
void Charge_Circle(Output& out) {
  Flip_Book(out, "sspe", 20, [](float x, float y, float, int f) {
    Fx p;
    float d = std::hypot(x, y), a = std::atan2(y, x) + f / 20.0f * kTau / 6;
    float rings = Gauss(d - 0.82f, 0.02f) + Gauss(d - 0.66f, 0.015f);
    float ticks = (d > 0.67f && d < 0.81f) ? Gauss(std::sin(a * 12), 0.25f) * 0.8f : 0;
    float star = 0;
    for (int k = 0; k < 6; ++k) {
      float a0 = k * kTau / 6 - f / 20.0f * kTau / 6, a1 = a0 + 2 * kTau / 6;
      star = std::max(star, Gauss(Sd_Segment(x, y, 0.64f * std::cos(a0), 0.64f * std::sin(a0), 0.64f * std::cos(a1),
                                             0.64f * std::sin(a1), 0), 0.015f));
    }
    float pulse = 0.75f + 0.25f * std::cos(f / 20.0f * kTau * 2);
    p.add(Hex(0x60C0FF), (rings + ticks + star * 0.8f) * pulse);
    p.add(Hex(0x2040A0), Smooth(0.85f, 0.2f, d) * 0.35f);
    return p;
  });
}

// The large flash of a super move's start (shrinking from 20 units to 1).
void Big_Flash(Output& out) {
  Canvas c = Render_Fx(256, [](float x, float y) {
    Fx p;
    float d = std::hypot(x, y);
    p.add(Hex(0xFFFFFF), Gauss(d, 0.25f) * 1.3f);
    p.add(Hex(0xA0D0FF), Rays(x, y, 24, 141, 0.95f, 0.05f));
    p.add(Hex(0x6090FF), Gauss(d, 0.6f) * 0.4f);
    return p;
  });
  Save_Rgba(out, "effct.bmp", c);
}

// The glow ring, tinted red, green, blue or grey as it is drawn.
void Glow_Ring(Output& out) {
  Canvas c = Render_Fx(128, [](float x, float y) {
    Fx p;
    float d = std::hypot(x, y);
    p.add(Hex(0xFFFFFF), Gauss(d - 0.72f, 0.07f) + Gauss(d - 0.72f, 0.2f) * 0.35f + Gauss(d, 0.5f) * 0.15f);
    return p;
  });
  Save_Rgb(out, "dlight.bmp", c);
}

// The thrown cards: a glowing card face with its letter and suit.
void Cards(Output& out) {
  const char* files[5] = {"card_j.bmp", "card_q.bmp", "card_k.bmp", "card_ace.bmp", "card_jok.bmp"};
  const char* marks[5] = {"J", "Q", "K", "A", "JOKER"};
  const char* suits[5] = {"\xE2\x99\xA0", "\xE2\x99\xA5", "\xE2\x99\xA3", "\xE2\x99\xA0", "\xE2\x98\x85"};
  for (int i = 0; i < 5; ++i) {
    Canvas c = Make_Canvas(128, 128, Hex(0x000000));
    Canvas glow = Make_Canvas(128, 128);
    Shade(glow, 0, 0, 128, 128, [](float x, float y) { return Sd_Box(x, y, 64, 64, 40, 56, 6); },
          [](float, float) { return Hex(0xFF9030); });
    Blur(glow, 10);
    Draw(c, glow, 0, 0);
    Shade(c, 0, 0, 128, 128, [](float x, float y) { return Sd_Box(x, y, 64, 64, 36, 52, 6); },
          [](float, float y) { return Mix(Hex(0xFFFFFF), Hex(0xE8E0D0), y / 128); });
    bool red = i == 1 || i == 4;
    TextStyle s;
    s.face = i == 4 ? Face::CondensedBold : Face::SerifBold;
    s.height = i == 4 ? 12 : 34;
    s.top = s.bottom = red ? Hex(0xC01010) : Hex(0x101018);
    Text_Place(c, marks[i], s, 64, i == 4 ? 96 : 56, Align::Centre);
    TextStyle suit = s;
    suit.face = Face::SansBold;
    suit.height = i == 4 ? 34 : 20;
    Text_Place(c, suits[i], suit, 64, i == 4 ? 52 : 92, Align::Centre);
    Save_Rgb(out, files[i], c);
  }
}

}  // namespace

void Pictures_Effects(Output& out) {
  Hit_Flash(out);
  Guard_Sparks(out);
  Dust(out);
  Energy(out);
  Impacts(out);
  Explosions(out);
  Fire(out);
  Wave(out);
  Power(out);
  Charge_Circle(out);
  Big_Flash(out);
  Glow_Ring(out);
  Cards(out);
  Canvas white = Make_Canvas(8, 8, Hex(0xFFFFFF));
  Save_Rgb(out, "white.bmp", white);
  Save_Rgb(out, "WHITE.bmp", white);
}

}  // namespace pic
