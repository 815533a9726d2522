// The texture painter: one picture per body region of a row, and the faces.
#include "figures/fig_paint.h"

#include <algorithm>
#include <cmath>

#include "figures/fig_body_internal.h"
#include "figures/fig_paint_util.h"
#include "figures/fig_roster.h"

namespace fig {
namespace {

struct Ctx {
  const Look* lk;
  const Palette* pal;
  int character;
  int seed;
};

// Painted light: the game draws unlit, so the pictures carry the shading. Fronts (u near the
// middle) are lit, backs fall into shade.
void Bake_Light(Image& img, float depth, float ends) {
  for (int y = 0; y < img.height; ++y)
    for (int x = 0; x < img.width; ++x) {
      float a = 2.0f * kPi * (static_cast<float>(x) / img.width - 0.5f);
      float around = 0.5f + 0.5f * std::cos(a);
      float v = static_cast<float>(y) / (img.height - 1);
      float along = 1.0f - ends * (std::pow(2.0f * v - 1.0f, 4.0f));
      Img_Put(img, x, y, Scale(Img_Get(img, x, y), (1.0f - depth + depth * around) * along));
    }
}

void Cloth(Image& img, Rgb c, int seed, float folds) {
  Img_Fill(img, c);
  // Long soft creases running down the garment, wavering a little.
  for (int y = 0; y < img.height; ++y)
    for (int x = 0; x < img.width; ++x) {
      float n = Noise(x, y, 16, seed, img.width);
      float f = std::sin(2.0f * kPi * (x * 5.0f / img.width) + n * 3.0f + y * 0.02f);
      float crease = std::pow(std::max(0.0f, f), 3.0f);
      float fine = Noise(x, y, 4, seed + 1, img.width) - 0.5f;
      Img_Put(img, x, y, Scale(Img_Get(img, x, y), 1.0f - folds * 0.7f * crease + 0.06f * fine));
    }
  Img_Grain(img, 0.08f, 2, seed + 3);
}

void Skin(Image& img, Rgb s, int seed) {
  Img_Fill(img, s);
  Img_Grain(img, 0.05f, 6, seed);
}

// Muscle shading on bare skin: soft darker grooves along the limb.
void Muscle(Image& img, float bulk, int seed) {
  for (int y = 0; y < img.height; ++y)
    for (int x = 0; x < img.width; ++x) {
      float g = std::sin(x * 2.0f * kPi * 3.0f / img.width + Noise(x, y, 16, seed, img.width) * 2.0f);
      Img_Put(img, x, y, Scale(Img_Get(img, x, y), 1.0f - 0.06f * (0.5f + bulk) * std::max(0.0f, g)));
    }
}

void Band(Image& img, float y0, float y1, Rgb c) {
  Img_Rect(img, 0, y0, static_cast<float>(img.width), y1, c);
  Img_Rect(img, 0, y0, static_cast<float>(img.width), y0 + 1, Scale(c, 0.6f), 0.8f);
  Img_Rect(img, 0, y1 - 1, static_cast<float>(img.width), y1, Scale(c, 0.6f), 0.8f);
}

void Wraps(Image& img, Rgb c, float from) {
  for (int y = static_cast<int>(img.height * from); y < img.height; ++y)
    for (int x = 0; x < img.width; ++x) {
      float s = std::fmod(y + x * 0.25f, 6.0f);
      Img_Put(img, x, y, Scale(c, s < 1.0f ? 0.72f : 1.0f - 0.03f * s));
    }
}

// ---- regions ------------------------------------------------------------------------------

void Paint_Torso(Image& img, const Ctx& cx, bool back_only) {
  const Look& lk = *cx.lk;
  const Palette& p = *cx.pal;
  Rgb main = Hex(p.main), trim = Hex(p.trim), skin = Hex(lk.skin);
  int W = img.width, H = img.height;
  float front = W * 0.5f;
  switch (lk.top) {
    case Top::Vest:
      Skin(img, skin, cx.seed);
      // Chest and belly: pectoral lines and a groove down the middle.
      Img_Line(img, front, H * 0.22f, front, H * 0.9f, 2.0f, Scale(skin, 0.8f), 0.6f);
      for (int s = -1; s <= 1; s += 2)
        Img_Line(img, front + s * W * 0.03f, H * 0.42f, front + s * W * 0.13f, H * 0.36f, 2.0f, Scale(skin, 0.78f), 0.6f);
      for (int k = 0; k < 3; ++k) Img_Line(img, front - W * 0.05f, H * (0.55f + 0.1f * k), front + W * 0.05f, H * (0.55f + 0.1f * k), 1.5f, Scale(skin, 0.85f), 0.5f);
      // The vest: open in front, cloth round the sides and back.
      for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
          float open = W * (0.07f + 0.09f * (1.0f - static_cast<float>(y) / H));
          if (std::fabs(x - front) > open) {
            float n = Noise(x, y, 6, cx.seed, W);
            Img_Put(img, x, y, Scale(Hex(p.main), 0.9f + 0.2f * n));
          } else if (std::fabs(std::fabs(x - front) - open) < 0.0f) {
          }
        }
      for (int y = 0; y < H; ++y) {
        float open = W * (0.07f + 0.09f * (1.0f - static_cast<float>(y) / H));
        Img_Rect(img, front - open - 2, static_cast<float>(y), front - open, y + 1.0f, trim);
        Img_Rect(img, front + open, static_cast<float>(y), front + open + 2, y + 1.0f, trim);
      }
      break;
    case Top::Tank:
      Cloth(img, main, cx.seed, 0.12f);
      Img_Ellipse(img, front, 0, W * 0.12f, H * 0.14f, skin);  // scooped neck
      for (float sx : {W * 0.25f, W * 0.75f}) Img_Ellipse(img, sx, 0, W * 0.1f, H * 0.22f, skin);
      break;
    case Top::Gi:
    case Top::Dress:
    case Top::Coat:
    case Top::Suit:
    case Top::Armour: {
      Cloth(img, main, cx.seed, lk.top == Top::Armour ? 0.0f : 0.16f);
      if (lk.top == Top::Armour) {
        for (int k = 1; k < 5; ++k) Band(img, H * k * 0.2f, H * k * 0.2f + 2, Scale(main, 0.55f));
        for (int k = 0; k < 8; ++k) Img_Rect(img, W * k / 8.0f, 0, W * k / 8.0f + 1, static_cast<float>(H), Scale(main, 0.6f));
        Img_Ellipse(img, front, H * 0.36f, W * 0.06f, H * 0.07f, Hex(p.accent));
        Img_Ellipse(img, front, H * 0.36f, W * 0.03f, H * 0.035f, Mix(Hex(p.accent), Rgb{255, 255, 255}, 0.6f));
        break;
      }
      if (lk.top == Top::Gi || lk.top == Top::Coat || lk.top == Top::Suit) {
        // Crossed lapels: a V from the neck down to the belt line.
        Rgb inner = lk.top == Top::Suit ? Rgb{238, 236, 230} : (lk.top == Top::Coat ? Hex(p.second) : skin);
        float depth = lk.top == Top::Gi ? 0.55f : 0.45f;
        for (int y = 0; y < H * depth; ++y) {
          float half = W * 0.1f * (1.0f - y / (H * depth));
          Img_Rect(img, front - half, static_cast<float>(y), front + half, y + 1.0f, inner);
          Img_Rect(img, front - half - 4, static_cast<float>(y), front - half, y + 1.0f, lk.top == Top::Gi ? Scale(main, 0.9f) : trim);
          Img_Rect(img, front + half, static_cast<float>(y), front + half + 4, y + 1.0f, lk.top == Top::Gi ? Scale(main, 0.9f) : trim);
        }
        if (lk.top == Top::Suit) {
          Img_Line(img, front, H * 0.05f, front, H * 0.4f, 5.0f, Hex(p.accent));  // tie
          for (int k = 0; k < 3; ++k) Img_Ellipse(img, front, H * (0.55f + 0.13f * k), 1.6f, 1.6f, trim);
        }
        if (lk.top == Top::Coat) {
          Img_Rect(img, front - 1, H * 0.45f, front + 1, static_cast<float>(H), Scale(main, 0.6f));
          for (int k = 0; k < 4; ++k) Img_Ellipse(img, front + 4, H * (0.5f + 0.12f * k), 1.8f, 1.8f, trim);
        }
      }
      if (lk.top == Top::Dress) {
        Img_Rect(img, 0, 0, static_cast<float>(W), H * 0.06f, trim);  // mandarin collar
        Img_Line(img, front, H * 0.06f, front - W * 0.12f, H * 0.3f, 3.0f, trim);
        // Small flowers in staggered rows, a pale tint of the cloth: scattered dark dots read
        // as stains at fight size.
        const Rgb petal = Mix(main, Rgb{255, 250, 240}, 0.35f);
        for (int row = 0; row < 4; ++row)
          for (int k = 0; k < 6; ++k) {
            const float x = (k + 0.5f * (row & 1) + 0.25f) * W / 6.0f, y = H * (0.22f + 0.2f * row);
            for (int leaf = 0; leaf < 5; ++leaf) {
              const float a = leaf * 2.0f * kPi / 5.0f;
              Img_Ellipse(img, x + 2.2f * std::cos(a), y + 2.2f * std::sin(a), 1.7f, 1.7f, petal);
            }
            Img_Ellipse(img, x, y, 1.2f, 1.2f, Hex(p.trim));
          }
      }
      break;
    }
  }
  if (back_only && lk.top != Top::Vest && lk.top != Top::Tank) {
    // A crest on the back of the jacket.
    Img_Ellipse(img, 0, H * 0.35f, W * 0.09f, H * 0.12f, Hex(p.accent), 0.9f);
    Img_Ellipse(img, W, H * 0.35f, W * 0.09f, H * 0.12f, Hex(p.accent), 0.9f);
  }
  Bake_Light(img, 0.32f, 0.15f);
}

void Paint_Pelvis(Image& img, const Ctx& cx) {
  const Look& lk = *cx.lk;
  Rgb c = Hex(cx.pal->second);
  if (lk.top == Top::Dress || lk.top == Top::Coat) c = Hex(cx.pal->main);
  if (lk.legs == Legwear::Armour) c = Hex(cx.pal->second);
  Cloth(img, c, cx.seed + 11, 0.2f);
  if (lk.top == Top::Dress) {
    Img_Rect(img, 0, img.height * 0.9f, static_cast<float>(img.width), static_cast<float>(img.height), Hex(cx.pal->trim));
    Img_Rect(img, img.width * 0.25f - 1, img.height * 0.5f, img.width * 0.25f + 1, static_cast<float>(img.height), Hex(cx.pal->trim));
  }
  if (lk.top == Top::Coat)
    Img_Rect(img, img.width * 0.5f - 1, 0, img.width * 0.5f + 1, static_cast<float>(img.height), Scale(c, 0.5f));
  Bake_Light(img, 0.35f, 0.2f);
}

void Paint_Belt(Image& img, const Ctx& cx) {
  const Look& lk = *cx.lk;
  Rgb c = Hex(cx.pal->trim);
  if (lk.top == Top::Armour) c = Scale(Hex(cx.pal->main), 0.8f);
  Cloth(img, c, cx.seed + 5, 0.1f);
  Band(img, 0, 2, Scale(c, 0.7f));
  Band(img, img.height - 2.0f, static_cast<float>(img.height), Scale(c, 0.7f));
  float f = img.width * 0.5f;
  if (lk.top == Top::Gi)
    Img_Ellipse(img, f, img.height * 0.5f, img.width * 0.06f, img.height * 0.4f, Scale(c, 0.75f));  // knot
  else
    Img_Rect(img, f - 5, img.height * 0.15f, f + 5, img.height * 0.85f, Rgb{205, 190, 140});  // buckle
  Bake_Light(img, 0.3f, 0.0f);
}

enum class Sleeves { Skin, Cloth, Half };
void Paint_Limb(Image& img, const Ctx& cx, Rgb cloth, Sleeves s, float seed_add) {
  const Look& lk = *cx.lk;
  int seed = cx.seed + static_cast<int>(seed_add);
  if (s == Sleeves::Skin) {
    Skin(img, Hex(lk.skin), seed);
    Muscle(img, lk.bulk, seed);
  } else {
    Cloth(img, cloth, seed, 0.2f);
    if (s == Sleeves::Half) {
      Image sk;
      Img_New(sk, img.width, img.height);
      Skin(sk, Hex(lk.skin), seed);
      for (int y = img.height / 2; y < img.height; ++y)
        for (int x = 0; x < img.width; ++x) Img_Put(img, x, y, Img_Get(sk, x, y));
      Band(img, img.height * 0.42f, img.height * 0.5f, Hex(cx.pal->trim));
    }
  }
}

void Paint_Arm(Image& img, const Ctx& cx, bool fore, bool left) {
  const Look& lk = *cx.lk;
  Rgb cloth = Hex(cx.pal->main);
  Sleeves s = Sleeves::Skin;
  if (lk.sleeve == Sleeve::Long || lk.top == Top::Armour) s = Sleeves::Cloth;
  if (lk.sleeve == Sleeve::Short) s = fore ? Sleeves::Skin : Sleeves::Half;
  Paint_Limb(img, cx, cloth, s, fore ? 21 : 17);
  if (lk.top == Top::Armour) {
    Band(img, img.height * 0.3f, img.height * 0.36f, Scale(cloth, 0.6f));
    Band(img, img.height * 0.7f, img.height * 0.76f, Hex(cx.pal->trim));
  }
  if (fore && lk.sleeve == Sleeve::Long) Band(img, img.height * 0.82f, static_cast<float>(img.height), Hex(cx.pal->trim));
  if (fore && (lk.gloves == Gloves::Wraps)) Wraps(img, Rgb{232, 226, 210}, 0.72f);
  if (fore && lk.gloves == Gloves::Gloves && lk.sleeve != Sleeve::Long)
    Band(img, img.height * 0.85f, static_cast<float>(img.height), Hex(cx.pal->trim));
  if (!fore && left && lk.sleeve == Sleeve::None && lk.bulk > 0.5f) {
    // A tattooed band round the left arm.
    for (int x = 0; x < img.width; x += 6) Img_Ellipse(img, static_cast<float>(x), img.height * 0.45f, 2.5f, 4.0f, Rgb{40, 50, 70}, 0.7f);
  }
  if (!fore && !left && lk.sleeve == Sleeve::None && s == Sleeves::Skin && lk.top == Top::Gi)
    Band(img, 0, img.height * 0.1f, Hex(cx.pal->main));  // torn sleeve edge
  Bake_Light(img, 0.35f, 0.1f);
}

void Paint_Hand(Image& img, const Ctx& cx, bool left) {
  const Look& lk = *cx.lk;
  switch (lk.gloves) {
    case Gloves::None: Skin(img, Hex(lk.skin), cx.seed + 31); break;
    case Gloves::Wraps:
      Skin(img, Hex(lk.skin), cx.seed + 31);
      Wraps(img, Rgb{232, 226, 210}, 0.0f);
      break;
    case Gloves::Gloves: {
      Rgb g = lk.right_prop == Prop::Cards ? Rgb{240, 240, 238} : Scale(Hex(cx.pal->trim), 0.8f);
      Cloth(img, g, cx.seed + 31, 0.05f);
      break;
    }
    case Gloves::Gauntlets:
      Cloth(img, Scale(Hex(cx.pal->main), 0.9f), cx.seed + 31, 0.0f);
      for (int k = 1; k < 4; ++k) Band(img, img.height * k / 4.0f, img.height * k / 4.0f + 2, Scale(Hex(cx.pal->main), 0.55f));
      break;
  }
  // Knuckles and finger lines on the front half.
  for (int k = 0; k < 4; ++k) {
    float x = img.width * (0.36f + 0.09f * k);
    Img_Line(img, x, img.height * 0.7f, x, static_cast<float>(img.height), 1.0f, Rgb{60, 40, 30}, 0.35f);
  }
  (void)left;
  Bake_Light(img, 0.35f, 0.1f);
}

void Paint_Thigh(Image& img, const Ctx& cx, bool left) {
  const Look& lk = *cx.lk;
  Rgb c = Hex(cx.pal->second);
  if (lk.legs == Legwear::Shorts) {
    Paint_Limb(img, cx, c, Sleeves::Skin, 41);
    Cloth(img, c, cx.seed + 41, 0.15f);
    Image sk;
    Img_New(sk, img.width, img.height);
    Skin(sk, Hex(lk.skin), cx.seed + 41);
    for (int y = img.height * 2 / 5; y < img.height; ++y)
      for (int x = 0; x < img.width; ++x) Img_Put(img, x, y, Img_Get(sk, x, y));
    Band(img, img.height * 0.36f, img.height * 0.42f, Hex(cx.pal->trim));
  } else {
    Cloth(img, c, cx.seed + 41, lk.legs == Legwear::Tights ? 0.05f : 0.25f);
    if (lk.legs == Legwear::Armour) {
      Band(img, img.height * 0.5f, img.height * 0.56f, Scale(c, 0.55f));
      Img_Ellipse(img, img.width * 0.5f, img.height * 0.9f, img.width * 0.12f, img.height * 0.1f, Hex(cx.pal->trim));
    }
    if (lk.legs == Legwear::Trousers && lk.bulk > 0.8f)  // cargo pocket on the outer side
      Img_Rect(img, img.width * (left ? 0.68f : 0.18f), img.height * 0.35f, img.width * (left ? 0.84f : 0.32f), img.height * 0.62f, Scale(c, 0.8f));
  }
  Bake_Light(img, 0.35f, 0.1f);
}

void Paint_Shin(Image& img, const Ctx& cx, bool left) {
  const Look& lk = *cx.lk;
  Rgb c = Hex(cx.pal->second);
  if (lk.legs == Legwear::Shorts)
    Paint_Limb(img, cx, c, Sleeves::Skin, 51);
  else
    Cloth(img, c, cx.seed + 51, lk.legs == Legwear::Tights ? 0.05f : 0.25f);
  if (lk.legs == Legwear::Armour) Band(img, img.height * 0.2f, img.height * 0.26f, Hex(cx.pal->trim));
  if (lk.feet == Footwear::Boots || lk.feet == Footwear::Armour) {
    Rgb boot = lk.feet == Footwear::Armour ? Scale(Hex(cx.pal->main), 0.85f) : Rgb{58, 42, 32};
    if (cx.character == 3 || cx.character == 10) boot = Scale(Hex(cx.pal->trim), 0.7f);
    for (int y = static_cast<int>(img.height * 0.45f); y < img.height; ++y)
      for (int x = 0; x < img.width; ++x) Img_Put(img, x, y, Scale(boot, 0.9f + 0.2f * Noise(x, y, 4, cx.seed, img.width)));
    Band(img, img.height * 0.45f, img.height * 0.5f, Scale(boot, 0.7f));
    for (int k = 0; k < 5; ++k)  // laces up the front
      Img_Line(img, img.width * 0.45f, img.height * (0.55f + 0.08f * k), img.width * 0.55f, img.height * (0.59f + 0.08f * k), 1.0f, Rgb{200, 190, 170}, 0.7f);
  }
  if (lk.legs == Legwear::Hakama || (lk.legs == Legwear::Trousers && lk.feet == Footwear::Bare))
    Band(img, img.height * 0.9f, static_cast<float>(img.height), Scale(c, 0.8f));  // hem
  (void)left;
  Bake_Light(img, 0.35f, 0.1f);
}

void Paint_Foot(Image& img, const Ctx& cx) {
  const Look& lk = *cx.lk;
  int W = img.width, H = img.height;
  if (lk.feet == Footwear::Bare) {
    Skin(img, Hex(lk.skin), cx.seed + 61);
    for (int k = 0; k < 4; ++k) {  // toes on the top, at the toe end
      float x = W * (0.38f + 0.08f * k);
      Img_Line(img, x, H * 0.82f, x, static_cast<float>(H), 1.0f, Scale(Hex(lk.skin), 0.7f), 0.7f);
    }
  } else {
    Rgb c = lk.feet == Footwear::Armour ? Scale(Hex(cx.pal->main), 0.85f) : Rgb{50, 38, 30};
    if (lk.feet == Footwear::Shoes) c = lk.female ? Scale(Hex(cx.pal->trim), 0.8f) : Rgb{36, 30, 28};
    if (lk.feet == Footwear::Boots && (cx.character == 3 || cx.character == 10)) c = Scale(Hex(cx.pal->trim), 0.7f);
    Cloth(img, c, cx.seed + 61, 0.05f);
    Img_Line(img, W * 0.5f, H * 0.3f, W * 0.5f, H * 0.7f, 2.0f, Scale(c, 0.6f));
  }
  // The sole runs along u = 0 (the underside).
  Img_Rect(img, 0, 0, W * 0.12f, static_cast<float>(H), Rgb{40, 34, 30});
  Img_Rect(img, W * 0.88f, 0, static_cast<float>(W), static_cast<float>(H), Rgb{40, 34, 30});
  Bake_Light(img, 0.3f, 0.0f);
}

void Paint_Hair(Image& img, const Ctx& cx, bool back) {
  const Look& lk = *cx.lk;
  Rgb h = Hex(cx.pal->hair);
  if (lk.hair == Hair::Helmet) {
    Cloth(img, Hex(cx.pal->hair), cx.seed + 71, 0.0f);
    Img_Rect(img, img.width * 0.46f, 0, img.width * 0.54f, static_cast<float>(img.height), Hex(cx.pal->trim));
    Band(img, img.height * 0.85f, static_cast<float>(img.height), Scale(Hex(cx.pal->hair), 0.6f));
    Bake_Light(img, 0.3f, 0.0f);
    return;
  }
  Img_Fill(img, h);
  for (int y = 0; y < img.height; ++y)
    for (int x = 0; x < img.width; ++x) {
      float strand = Noise(x * 4, y / 3, 3, cx.seed + 71 + back, img.width * 4);
      float sheen = std::exp(-std::pow((static_cast<float>(y) / img.height - 0.35f) * 5.0f, 2.0f));
      Rgb c = Scale(h, 0.7f + 0.5f * strand);
      c = Mix(c, Rgb{255, 255, 255}, 0.18f * sheen * strand);
      Img_Put(img, x, y, c);
    }
  Bake_Light(img, 0.25f, 0.0f);
}

void Paint_Prop(Image& img, const Ctx& cx) {
  const Look& lk = *cx.lk;
  Rgb accent = Hex(cx.pal->accent);
  switch (lk.right_prop) {
    case Prop::Fan:
      Img_Fill(img, Rgb{240, 230, 210});
      for (int k = 0; k < 8; ++k) Img_Rect(img, img.width * k / 8.0f, 0, img.width * k / 8.0f + 1, static_cast<float>(img.height), Scale(accent, 0.7f));
      Img_Ellipse(img, img.width * 0.5f, img.height * 0.3f, img.width * 0.2f, img.height * 0.18f, accent);
      break;
    case Prop::Cards:
      Img_Fill(img, Rgb{246, 244, 238});
      Img_Ellipse(img, img.width * 0.5f, img.height * 0.5f, img.width * 0.15f, img.height * 0.15f, Rgb{190, 20, 30});
      Band(img, 0, 3, Rgb{190, 20, 30});
      break;
    case Prop::Axe:
      Cloth(img, Rgb{110, 110, 118}, cx.seed + 81, 0.0f);
      Band(img, img.height * 0.45f, img.height * 0.55f, Rgb{96, 64, 36});
      break;
    default:
      Cloth(img, Rgb{180, 184, 192}, cx.seed + 81, 0.0f);
      Band(img, 0, img.height * 0.2f, Rgb{60, 40, 30});
      break;
  }
  if (lk.left_prop == Prop::Bracer) Band(img, img.height * 0.8f, static_cast<float>(img.height), Hex(cx.pal->trim));
}

void Paint_Accessory(Image& img, const Ctx& cx, bool scarf) {
  Rgb c = Hex(cx.pal->accent);
  Cloth(img, c, cx.seed + (scarf ? 91 : 97), 0.25f);
  if (scarf) {
    // Folds running down the cloth and a hem at each end: bands across it made the tails look
    // like bundled sticks.
    for (float fx : {0.3f, 0.7f})
      Img_Rect(img, img.width * fx - 1, 0, img.width * fx + 1, static_cast<float>(img.height), Scale(c, 0.72f));
    Band(img, 0, img.height * 0.05f, Scale(c, 0.6f));
    Band(img, img.height * 0.95f, static_cast<float>(img.height), Scale(c, 0.6f));
  } else {
    Band(img, 0, 2, Hex(cx.pal->trim));
  }
  Bake_Light(img, 0.25f, 0.0f);
}

// ---- the face -----------------------------------------------------------------------------

}  // namespace

void Fig_PaintRow(int row, const Model& m, const TextureLayout& lay, std::vector<NamedImage>& textures,
                  std::vector<NamedImage>& faces) {
  int character = Fig_RowCharacter(row);
  const Look& lk = Fig_Look(character);
  Ctx cx{&lk, &lk.colours[lay.colouring], character, character * 101 + lay.colouring * 7};
  textures.clear();
  for (int t = 0; t < lay.count; ++t) {
    NamedImage ni;
    ni.name = m.textures[t];
    Image& img = ni.image;
    int r = lay.region[t];
    bool big = r == R_TORSO || r == R_TORSO_BACK;
    int size = r == R_FACE ? kFaceSize : (big ? 128 : 64);
    Img_New(img, size, size);
    switch (r) {
      case R_FACE: Fig_PaintFace(character, Expression::Calm, img, lay.colouring); break;
      case R_HAIR: case R_HAIR_BACK: Paint_Hair(img, cx, r == R_HAIR_BACK); break;
      case R_SKIN: Skin(img, Hex(lk.skin), cx.seed); Bake_Light(img, 0.3f, 0.0f); break;
      case R_TORSO: case R_TORSO_BACK: Paint_Torso(img, cx, r == R_TORSO_BACK); break;
      case R_PELVIS: case R_PELVIS_BACK: Paint_Pelvis(img, cx); break;
      case R_BELT: Paint_Belt(img, cx); break;
      case R_UARM: case R_UARM_L: Paint_Arm(img, cx, false, r == R_UARM_L); break;
      case R_FARM: case R_FARM_L: Paint_Arm(img, cx, true, r == R_FARM_L); break;
      case R_HAND: case R_HAND_L: Paint_Hand(img, cx, r == R_HAND_L); break;
      case R_THIGH: case R_THIGH_L: Paint_Thigh(img, cx, r == R_THIGH_L); break;
      case R_SHIN: case R_SHIN_L: Paint_Shin(img, cx, r == R_SHIN_L); break;
      case R_FOOT: case R_FOOT_L: Paint_Foot(img, cx); break;
      case R_PROP: Paint_Prop(img, cx); break;
      case R_FLEX: Paint_Accessory(img, cx, true); break;
      default: Paint_Accessory(img, cx, false); break;
    }
    textures.push_back(std::move(ni));
  }
  faces.clear();
  bool same = std::string(Fig_HurtFaceFile(row)) == Fig_ShoutFaceFile(row);
  NamedImage hurt, shout;
  hurt.name = Fig_HurtFaceFile(row);
  Fig_PaintFace(character, Expression::Hurt, hurt.image);
  shout.name = Fig_ShoutFaceFile(row);
  Fig_PaintFace(character, same ? Expression::Hurt : Expression::Shout, shout.image);
  faces.push_back(std::move(hurt));
  faces.push_back(std::move(shout));
}

}  // namespace fig
