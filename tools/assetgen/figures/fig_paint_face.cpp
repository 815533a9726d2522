// The face picture: it wraps once round the head (the front at the middle, the back at both
// edges) from the chin up over the crown, so a texel is about twice as wide on the head as it is
// tall. Features are laid out in head units and drawn with that stretch undone, so round eyes
// stay round. Where the hair covers the head the picture is the hair's colour, so no scalp
// shows between the hair and the skin.
#include <algorithm>
#include <cmath>

#include "figures/fig_body_internal.h"
#include "figures/fig_paint.h"
#include "figures/fig_paint_util.h"

namespace fig {
namespace {

float Clamp01(float v) { return std::clamp(v, 0.0f, 1.0f); }

// Where the face's features go on one picture, in pixels; `tall` is how many pixels high a
// feature must be for every pixel it is wide to look as tall as it is wide on the head.
struct FaceFrame {
  float W, H;
  float tall;
  float mid;                     // the front of the face
  float eye_y, brow_y, nose_y, mouth_y, chin_y;
  float eye_dx;                  // from the middle to each eye's centre
  float px;                      // pixels across per texture unit (u runs 0..255)
};

FaceFrame Frame_Of(const Look& lk, const Image& img) {
  FaceFrame f;
  f.W = static_cast<float>(img.width);
  f.H = static_cast<float>(img.height);
  f.px = f.W / 255.0f;
  auto y = [&](float t) { return Face_V(t) / 255.0f * f.H; };
  // Round the head: pi x width for 255 u; up it: 0.9 x height for 208 v.
  const float across = kPi * lk.head_w / f.W, up = 0.9f * lk.head_h / (208.0f / 255.0f * f.H);
  f.tall = across / up;
  f.mid = f.W * 0.5f;
  f.eye_y = y(0.60f);
  f.brow_y = y(0.71f);
  f.nose_y = y(0.41f);
  f.mouth_y = y(0.27f);
  f.chin_y = y(0.08f);
  f.eye_dx = 19.5f * f.px;  // a little round toward the sides, so the near eye shows in profile
  return f;
}

void Shade_Skin(Image& img, const FaceFrame& f) {
  for (int y = 0; y < img.height; ++y)
    for (int x = 0; x < img.width; ++x) {
      float a = 2.0f * kPi * (x / f.W - 0.5f);
      float lit = 0.7f + 0.3f * (0.5f + 0.5f * std::cos(a));
      if (y > f.chin_y) lit *= 0.82f;  // under the chin
      Img_Put(img, x, y, Scale(Img_Get(img, x, y), lit));
    }
}

// Sockets, cheekbones, the nose's shadow side and the ears: the modelling painted in.
void Paint_Modelling(Image& img, const FaceFrame& f, const Look& lk, Rgb skin) {
  const float k = f.px;
  for (int s = -1; s <= 1; s += 2) {
    float ex = f.mid + s * f.eye_dx;
    Img_Ellipse(img, ex, f.eye_y - 1.0f * f.tall, 11 * k, 6 * k * f.tall, Scale(skin, 0.8f), 0.75f);
    Img_Ellipse(img, f.mid + s * 20 * k, f.nose_y + 1.5f * k * f.tall, 7 * k, 2.5f * k * f.tall,
                lk.female ? Mix(skin, Rgb{225, 120, 115}, 0.35f) : Scale(skin, 0.9f), 0.6f);
    Img_Ellipse(img, f.mid + s * 64 * k, (f.eye_y + f.nose_y) * 0.5f, 3.5f * k, 5 * k * f.tall * 0.5f,
                Scale(skin, 0.78f));  // ears
  }
  // The nose: a lit bridge, the far side in shade, nostrils under the tip.
  Img_Line(img, f.mid - 0.8f * k, f.brow_y + 2 * k * f.tall, f.mid - 0.8f * k, f.nose_y - 1 * k * f.tall, 1.6f * k,
           Mix(skin, Rgb{255, 240, 225}, 0.35f), 0.7f);
  Img_Line(img, f.mid + 2.5f * k, f.eye_y + 1 * k * f.tall, f.mid + 3.5f * k, f.nose_y, 1.8f * k, Scale(skin, 0.8f), 0.6f);
  for (int s = -1; s <= 1; s += 2)
    Img_Ellipse(img, f.mid + s * 2.6f * k, f.nose_y + 1.2f * k * f.tall, 1.5f * k, 0.9f * k * f.tall,
                Scale(skin, 0.5f));
  // The jaw's line and the chin.
  Img_Ellipse(img, f.mid, f.chin_y - 1.0f * k * f.tall, 9 * k, 1.4f * k * f.tall, Scale(skin, 0.9f), 0.5f);
}

void Paint_Eye(Image& img, const FaceFrame& f, float x, float size, Rgb iris, Expression e, int side, bool female) {
  const float k = f.px, w = 8.6f * size * k, h = 3.0f * size * k * f.tall;
  const float y = f.eye_y;
  const Rgb line{34, 22, 20};
  if (e == Expression::Hurt) {  // squeezed shut
    Img_Line(img, x - w, y - 0.2f * h, x + w, y + 0.2f * h, 2.6f * k, line);
    Img_Line(img, x - w * 0.7f, y + 0.6f * h, x + w * 0.6f, y + 0.5f * h, 1.6f * k, line, 0.8f);
    return;
  }
  const float open = e == Expression::Shout ? 1.3f : 1.0f;
  Img_Ellipse(img, x, y, w, h * open, Rgb{244, 240, 234});
  const float ix = x + side * 0.6f * k, ir = 3.9f * size * k;
  Img_Ellipse(img, ix, y + 0.1f * h, ir, std::min(ir * f.tall, h * open * 1.05f), Scale(iris, 0.7f));
  Img_Ellipse(img, ix, y + 0.1f * h, ir * 0.75f, std::min(ir * 0.75f * f.tall, h * open * 0.85f), iris);
  Img_Ellipse(img, ix, y + 0.1f * h, ir * 0.4f, ir * 0.4f * f.tall, Rgb{10, 8, 8});
  Img_Ellipse(img, ix - 1.0f * k, y - 0.3f * h, 0.8f * k, 0.8f * k * f.tall, Rgb{255, 255, 255});
  // Upper lid: a dark arch over the eye, heavier toward the outer corner; a faint lower lid.
  const float top = y - h * open;
  Img_Line(img, x - w, y - 0.2f * h, x - w * 0.3f, top, 2.4f * k, line);
  Img_Line(img, x - w * 0.3f, top, x + w * 0.4f, top + 0.1f * h, 2.8f * k, line);
  Img_Line(img, x + w * 0.4f, top + 0.1f * h, x + w * 1.05f, y - 0.1f * h, 2.4f * k, line);
  Img_Line(img, x - w * 0.8f, y + h * 0.9f, x + w * 0.8f, y + h * 0.9f, 0.8f * k, Scale(line, 2.5f), 0.4f);
  // The outer corner lies away from the face's middle; a dark flick there is what shows of the
  // eye when the head is seen from the side, as it mostly is in a fight.
  const float dir = x < f.mid ? -1.0f : 1.0f, ox = x + dir * w * 1.05f;
  Img_Line(img, ox - dir * 2.5f * k, y - 0.4f * h, ox + dir * 1.5f * k, y - 0.1f * h, 2.2f * k, line);
  if (female)  // lashes flick up at the outer corner
    Img_Line(img, ox - dir * 1.5f * k, y - 0.5f * h, ox + dir * 2.4f * k, y - 1.3f * h, 1.4f * k, line);
}

void Paint_Brow(Image& img, const FaceFrame& f, float x, Brow b, Rgb c, Expression e, int side) {
  const float k = f.px, w = 13.0f * k;
  float thick = (b == Brow::Thick ? 4.6f : (b == Brow::Thin ? 2.6f : 3.4f)) * k;
  float inner = 0, outer = 0;
  if (b == Brow::Angry) inner = 1.6f;
  if (b == Brow::Arched) outer = 1.0f;
  if (e == Expression::Hurt) inner -= 2.0f;
  if (e == Expression::Shout) inner += 1.8f;
  // side = +1 for the brow on the picture's right.
  const float y = f.brow_y, t = k * f.tall;
  const float xi = x - side * w * 0.55f, xo = x + side * w * 0.6f;
  Img_Line(img, xi, y + inner * t, x, y - (0.8f + outer) * t, thick, c);
  Img_Line(img, x, y - (0.8f + outer) * t, xo, y + 0.6f * t, thick * 0.8f, c);
}

void Paint_Mouth(Image& img, const FaceFrame& f, float width, Expression e, Rgb skin, bool female) {
  const float k = f.px, t = k * f.tall, w = 9.0f * width * k, x = f.mid, y = f.mouth_y;
  const Rgb lip = female ? Rgb{176, 62, 74} : Mix(skin, Rgb{130, 52, 50}, 0.4f);
  if (e == Expression::Calm) {
    Img_Ellipse(img, x, y - 0.8f * t, w * 0.8f, 1.1f * t, Scale(lip, 0.85f), 0.8f);  // upper lip
    Img_Ellipse(img, x, y + 1.4f * t, w * 0.65f, 1.4f * t, lip, 0.7f);                // lower lip
    Img_Ellipse(img, x, y + 1.0f * t, w * 0.3f, 0.5f * t, Mix(lip, Rgb{255, 230, 220}, 0.4f), 0.5f);
    Img_Line(img, x - w, y, x + w, y, 2.0f * k, Scale(lip, 0.4f));
    Img_Ellipse(img, x, y + 4.0f * t, w * 0.5f, 0.9f * t, Scale(skin, 0.85f), 0.5f);  // under the lip
    return;
  }
  const float open = (e == Expression::Shout ? 3.2f : 1.8f) * t;
  const float mw = w * (e == Expression::Shout ? 0.8f : 1.0f);
  Img_Ellipse(img, x, y + open * 0.4f, mw + 1.0f * k, open + 0.8f * t, lip);
  Img_Ellipse(img, x, y + open * 0.4f, mw, open, Rgb{58, 14, 18});
  Img_Rect(img, x - mw * 0.6f, y + open * 0.4f - open + 0.4f * t, x + mw * 0.6f, y + open * 0.4f - open + 1.4f * t,
           Rgb{236, 232, 222});
  if (e == Expression::Hurt)
    Img_Rect(img, x - mw * 0.6f, y + open * 0.4f + open - 1.4f * t, x + mw * 0.6f, y + open * 0.4f + open - 0.4f * t,
             Rgb{236, 232, 222});
}

void Paint_Beard(Image& img, const FaceFrame& f, const Look& lk, Rgb hair) {
  const int W = img.width;
  const float k = f.px;
  if (lk.face.beard == Beard::Full) {
    // Up the sides as sideburns, down round the cheeks to the corners of the mouth, and up again
    // under the nose as the moustache's ground.
    const float t = k * f.tall;
    for (int x = static_cast<int>(f.mid - 50 * k); x < f.mid + 50 * k; ++x) {
      const float across = std::fabs(x - f.mid) / (50 * k);
      const float ground = f.nose_y + 2 * t + (f.eye_y + 6 * t - f.nose_y - 2 * t) * across * across;
      const float top = ground + (f.mouth_y - ground) * std::sin(kPi * std::min(1.0f, across * 1.15f)) * 0.9f;
      const float side = Clamp01((1.0f - across) * 6.0f);
      for (int y = static_cast<int>(top); y < img.height; ++y) {
        const float fade = Clamp01((y - top) / (3 * t)) * side;
        Img_Blend(img, x, y, Scale(hair, 0.75f + 0.45f * Noise(x * 3, y, 2, 9, W * 3)), 0.92f * fade);
      }
    }
  } else if (lk.face.beard == Beard::Stubble) {
    // Shadow along the jaw and round the mouth, fading out toward the cheeks.
    for (int y = static_cast<int>(f.nose_y); y < img.height; ++y)
      for (int x = static_cast<int>(f.mid - 48 * k); x < f.mid + 48 * k; ++x) {
        const float across = std::fabs(x - f.mid) / (48 * k), up = (y - f.nose_y) / (f.chin_y - f.nose_y);
        const float edge = Clamp01((1.0f - across) * 3.0f) * Clamp01((up - 0.25f) * 2.5f);
        Img_Blend(img, x, y, Scale(hair, 0.8f), edge * (0.12f + 0.3f * Noise(x, y, 1, 4, W)));
      }
  }
  if (lk.face.beard == Beard::Moustache || lk.face.beard == Beard::Full) {
    const float t = k * f.tall;
    Img_Line(img, f.mid - 9 * k, f.mouth_y + 1.5f * t, f.mid - 1 * k, f.mouth_y - 2.2f * t, 2.6f * k, Scale(hair, 0.7f));
    Img_Line(img, f.mid + 1 * k, f.mouth_y - 2.2f * t, f.mid + 9 * k, f.mouth_y + 1.5f * t, 2.6f * k, Scale(hair, 0.7f));
  }
}

// The hair's colour over the part of the head the hair covers, with a soft hairline.
void Paint_Scalp(Image& img, const FaceFrame& f, const Look& lk, Rgb hair) {
  if (lk.hair == Hair::Bald) return;
  const HairShape hs = Hair_Shape(lk.hair);
  for (int y = 0; y < img.height; ++y) {
    const float t = (232.0f - y / f.H * 255.0f) / 208.0f * 0.9f;  // Face_V turned round
    for (int x = 0; x < img.width; ++x) {
      const float theta = x / f.W * 360.0f - 90.0f;
      const float cover = Clamp01((t - Hair_Line(hs, theta) + 0.01f) / 0.03f);
      if (cover <= 0) continue;
      const float strand = Noise(x * 4, y / 2, 3, 71, img.width * 4);
      Img_Blend(img, x, y, Scale(hair, 0.7f + 0.45f * strand), cover);
    }
  }
}

void Paint_Mark(Image& img, const FaceFrame& f, const Look& lk, const Palette& p, Expression e) {
  const float k = f.px, t = k * f.tall;
  switch (lk.face.mark) {
    case Mark::Scar:
      Img_Line(img, f.mid + f.eye_dx - 5 * k, f.brow_y - 4 * t, f.mid + f.eye_dx + 3 * k, f.nose_y + 3 * t, 1.5f * k,
               Rgb{150, 70, 70});
      break;
    case Mark::Paint:
      for (int s = -1; s <= 1; s += 2)
        Img_Line(img, f.mid + s * f.eye_dx * 0.7f, f.eye_y + 4 * t, f.mid + s * f.eye_dx * 1.7f, f.eye_y + 8 * t,
                 2.2f * k, Hex(p.accent));
      break;
    case Mark::Visor: {
      const Rgb glow = Hex(p.accent);
      const float open = e == Expression::Shout ? 1.6f : (e == Expression::Hurt ? 0.5f : 1.0f);
      Img_Rect(img, f.mid - 44 * k, f.eye_y - 5 * t, f.mid + 44 * k, f.eye_y + 5 * t, Rgb{20, 22, 28});
      Img_Rect(img, f.mid - 38 * k, f.eye_y - 1.6f * open * t, f.mid + 38 * k, f.eye_y + 1.6f * open * t, glow);
      for (int i = 0; i < 5; ++i)  // grille
        Img_Rect(img, f.mid - 8 * k, f.mouth_y - 4 * t + i * 2.2f * t, f.mid + 8 * k, f.mouth_y - 3 * t + i * 2.2f * t,
                 Rgb{30, 32, 38});
      break;
    }
    case Mark::Mask:
      for (int y = static_cast<int>(f.nose_y - 2 * t); y < img.height; ++y)
        for (int x = static_cast<int>(f.mid - 52 * k); x < f.mid + 52 * k; ++x)
          Img_Put(img, x, y, Scale(Hex(p.main), 0.85f + 0.15f * Noise(x, y, 3, 2, img.width)));
      if (e == Expression::Shout) Img_Ellipse(img, f.mid, f.mouth_y + 1 * t, 4 * k, 2 * t, Scale(Hex(p.main), 0.5f));
      break;
    case Mark::None: break;
  }
}

}  // namespace

void Fig_PaintFace(int character, Expression e, Image& img, int colouring) {
  const Look& lk = Fig_Look(character);
  const Palette& p = lk.colours[colouring == 1 ? 1 : 0];
  Img_New(img, kFaceSize, kFaceSize);
  const Rgb skin = Hex(lk.skin);
  const bool visor = lk.face.mark == Mark::Visor;
  Img_Fill(img, skin);
  Img_Grain(img, 0.05f, 6, character * 17 + 5);
  const FaceFrame f = Frame_Of(lk, img);
  Shade_Skin(img, f);
  Rgb hair = Hex(p.hair);
  if (lk.hair == Hair::Helmet || lk.hair == Hair::Bald) hair = Rgb{40, 32, 28};
  if (!visor) Paint_Modelling(img, f, lk, skin);
  Paint_Beard(img, f, lk, hair);
  if (!visor) {
    const Rgb iris = Hex(lk.face.iris);
    Paint_Eye(img, f, f.mid - f.eye_dx, lk.face.eye_size, iris, e, 1, lk.female);
    Paint_Eye(img, f, f.mid + f.eye_dx, lk.face.eye_size, iris, e, -1, lk.female);
    const Rgb brow = Mix(Scale(hair, 0.75f), Rgb{38, 28, 24}, 0.45f);  // a touch darker than the hair, to read from afar
    Paint_Brow(img, f, f.mid - f.eye_dx, lk.face.brow, brow, e, -1);
    Paint_Brow(img, f, f.mid + f.eye_dx, lk.face.brow, brow, e, 1);
    Paint_Mouth(img, f, lk.face.mouth, e, skin, lk.female);
  }
  Paint_Mark(img, f, lk, p, e);
  if (lk.hair != Hair::Helmet) Paint_Scalp(img, f, lk, Hex(p.hair));
}

}  // namespace fig
