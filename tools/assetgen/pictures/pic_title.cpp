// The title screen and the opening: background, the rising flame strip, the frame around the
// logo, the rune emblem, the logo itself in two halves and its glow, the prompts, the credit
// digits, the team logo on white, and the small floor of the opening fight.
#include <string>

#include "pictures/pic_groups.h"
#include "pictures/pic_style.h"

namespace pic {
namespace {

TextStyle Logo_Style() {
  TextStyle s;
  s.face = Face::SerifBold;
  s.height = 64;
  s.max_width = 470;
  s.tracking = 2;
  s.top = Hex(0xFFFFFF);
  s.mid = Hex(0xD8DCE8);
  s.bottom = Hex(0x6A7088);
  s.outline = 3;
  s.outline_colour = Hex(0x180806);
  s.outline2 = 3;
  s.outline2_colour = Hex(0xFF9020);
  s.glow = 10;
  s.glow_colour = Hex(0xFF4010, 0.9f);
  s.shadow = 4;
  return s;
}

// The logo on a screen canvas: the name, and a thin subtitle rule.
ScreenCanvas Logo_Screen() {
  ScreenCanvas s = Make_Screen();
  Screen_Text(s, "VALDRUNE", Logo_Style(), 261, 160);
  return s;
}

void Background(Output& out) {
  Canvas c = Make_Canvas(512, 512);
  for (int y = 0; y < 512; ++y)
    for (int x = 0; x < 512; ++x) {
      float n = Fbm(x / 80.0f, y / 80.0f, 221, 5);
      float glow = Smooth(520, 100, std::hypot(x - 256.0f, (y - 420.0f) * 1.3f));
      Rgba col = Mix(Hex(0x06040A), Hex(0x5A1008), glow * (0.6f + 0.6f * n));
      c.at(x, y) = Mix(col, Hex(0xFF7020), glow * glow * 0.25f);
    }
  for (int i = 0; i < 160; ++i)  // embers
    Fill_Circle(c, Hash01(i, 222) * 512, Hash01(i, 223) * 512, 0.8f + 1.5f * Hash01(i, 224),
                Hex(0xFFB040, 0.4f + 0.6f * Hash01(i, 225)));
  Save_Rgb(out, "titlbck.bmp", c);
}

// Flames that repeat from top to bottom (two copies rise one over the other).
void Flame_Strip(Output& out) {
  Canvas c = Make_Canvas(512, 512);
  for (int y = 0; y < 512; ++y)
    for (int x = 0; x < 512; ++x) {
      float n = Fbm(x / 64.0f, y / 64.0f, 231, 4, 8);
      float tongues = Fbm(x / 32.0f, y / 128.0f, 232, 3, 16 * 0 + 4);
      float edge = Smooth(0.0f, 140.0f, std::min(x, 511 - x) * 1.0f);
      float heat = Clamp01((n * 0.7f + tongues * 0.6f - 0.45f) * 2.2f) * edge;
      Rgba col = heat > 0.6f ? Mix(Hex(0xFF9020), Hex(0xFFF0A0), (heat - 0.6f) / 0.4f) : Mix(Hex(0x801000), Hex(0xFF9020), heat / 0.6f);
      c.at(x, y) = With_Alpha(col, Clamp01(heat * 1.4f) * 0.8f);
    }
  Save_Rgba(out, "tfir.bmp", c);
}

// The frame over the flames: dark corners and a ring behind the logo, in four quadrants.
void Frame(Output& out) {
  Canvas c = Make_Canvas(512, 512);
  for (int y = 0; y < 512; ++y)
    for (int x = 0; x < 512; ++x) {
      float v = std::hypot((x - 256) / 300.0f, (y - 192) / 230.0f);
      c.at(x, y) = Hex(0x000000, Smooth(0.7f, 1.2f, v) * 0.85f);
    }
  Fill_Rect(c, 0, 0, 512, 6, Hex(0x000000));
  Fill_Rect(c, 0, 378, 512, 6, Hex(0x000000));
  Fill_Rect(c, 0, 6, 512, 1, Hex(0xC08030));
  Fill_Rect(c, 0, 377, 512, 1, Hex(0xC08030));
  const char* files[4] = {"tit1_21.bmp", "tit1_22.bmp", "tit1_23.bmp", "tit1_24.bmp"};
  for (int q = 0; q < 4; ++q) Save_Rgba(out, files[q], Crop(c, (q % 2) * 256, (q / 2) * 256, 256, 256));
  // The rune ring behind the logo, centred on the screen's middle.
  ScreenCanvas s = Make_Screen();
  Canvas ring = Make_Canvas(200, 200);
  Shade(ring, 0, 0, 200, 200, [](float x, float y) { return std::fabs(Sd_Circle(x, y, 100, 100, 84)) - 3; },
        [](float, float) { return Hex(0xFFB040, 0.8f); });
  Shade(ring, 0, 0, 200, 200, [](float x, float y) { return std::fabs(Sd_Circle(x, y, 100, 100, 70)) - 1.2f; },
        [](float, float) { return Hex(0xFFB040, 0.6f); });
  for (int k = 0; k < 16; ++k) {
    float a = k * 6.2831853f / 16;
    Stroke_Line(ring, 100 + 73 * std::cos(a), 100 + 73 * std::sin(a), 100 + 81 * std::cos(a + 0.1f),
                100 + 81 * std::sin(a + 0.1f), 2.5f, Hex(0xFFD080, 0.9f));
  }
  Draw(s.c, ring, s.margin + 156, s.margin + 72);
  Save_Rgba(out, "tn31.bmp", Screen_Piece(s, 186, 108, 128, 128));
  Save_Rgba(out, "tn32.bmp", Screen_Piece(s, 314, 108, 128, 128));
}

void Logo(Output& out) {
  ScreenCanvas s = Logo_Screen();
  // The halves are drawn at x 9 and 257, so they overlap by eight columns: the left one leaves
  // those to the right one, or the glow there would show twice as a seam.
  Canvas left = Screen_Piece(s, 9, 100, 256, 128);
  for (int y = 0; y < left.h; ++y)
    for (int x = 257 - 9; x < left.w; ++x) left.at(x, y).a = 0;
  Save_Rgba(out, "tit1_1.bmp", left);
  Save_Rgba(out, "tit1_2.bmp", Screen_Piece(s, 257, 100, 256, 128));
  // The glow that shrinks onto the logo in the opening: it finally covers screen (-27, 134)
  // to (530, 225).
  Canvas region = Screen_Piece(s, -27, 110, 557, 140);
  Canvas glow = Make_Canvas(region.w, region.h, Hex(0x000000));
  Canvas lit = region;
  for (Rgba& p : lit.px) p = {1, 0.9f, 0.7f, p.a};
  Blur(lit, 12);
  Draw(glow, lit, 0, 0);
  Save_Rgb(out, "titlblk.bmp", Resize(glow, 512, 128));
  TextStyle small = Logo_Style();
  small.height = 40;
  small.max_width = 240;
  small.glow = 6;
  Save_Rgba(out, "logo.bmp", Text_Cell("VALDRUNE", small, 256, 128, 128, 64));
}

void Prompts(Output& out) {
  TextStyle sub = Style_Label(11, 180);
  sub.top = Hex(0xFFE8C0), sub.bottom = Hex(0xD09050), sub.tracking = 3;
  Save_Rgba(out, "advanc.bmp", Text_Cell("ARENA OF RUNES", sub, 256, 32, 89, 14));
  Canvas bar = Make_Canvas(64, 8);
  for (int x = 0; x < 64; ++x) {
    Put(bar, x, 3, Hex(0xFFC060), x / 63.0f);
    Put(bar, x, 4, Hex(0xC06020), x / 63.0f);
  }
  Save_Rgba(out, "bar.bmp", bar);
  ScreenCanvas p = Make_Screen();
  Screen_Text(p, "PRESS START BUTTON", Style_Gold(18, 260), 256, 300);
  Save_Rgba(out, "pstrt1.bmp", Screen_Piece(p, 122, 284, 256, 32));
  Save_Rgba(out, "pstrt2.bmp", Screen_Piece(p, 378, 284, 32, 32));
  Save_Rgba(out, "insrt.bmp", Text_Cell("INSERT COIN", Style_Gold(18, 250), 256, 32, 128, 16));
  ScreenCanvas f = Make_Screen();
  TextStyle note = Style_Label(8, 380);
  note.face = Face::Sans;
  Screen_Text(f, "\xC2\xA9 THE VALDRUNE DEVELOPMENT TEAM   ALL RIGHTS RESERVED", note, 256, 370);
  Save_Rgba(out, "fmly1.bmp", Screen_Piece(f, 61, 362, 256, 16));
  Save_Rgba(out, "fmly2.bmp", Screen_Piece(f, 317, 362, 256, 16));
  for (int d = 0; d < 10; ++d)
    Save_Rgba(out, "crf" + std::to_string(d) + ".bmp", Text_Cell(std::to_string(d), Style_Label(10), 16, 16, 8, 8));
  Save_Rgba(out, "crdt.bmp", Text_Cell_At("CREDIT", Style_Label(10, 60), 64, 16, 1, 8, Align::Left));
  Save_Rgba(out, "crfbr.bmp", Text_Cell("/", Style_Label(10), 16, 16, 8, 8));
}

// The team's logo on the white opening screen: a rune stone mark and the team's name, in two
// halves at (93, 85) and (349, 85).
void Team_Logo(Output& out) {
  ScreenCanvas s = Make_Screen();
  int ox = s.margin, oy = s.margin;
  const float stone[] = {ox + 220.0f, oy + 100.0f, ox + 292.0f, oy + 100.0f, ox + 300.0f, oy + 200.0f, ox + 256.0f,
                         oy + 225.0f, ox + 212.0f, oy + 200.0f};
  Fill_Polygon(s.c, stone, 5, Hex(0x283040));
  Stroke_Line(s.c, ox + 256.0f, oy + 118.0f, ox + 256.0f, oy + 205.0f, 7, Hex(0xE84020));
  Stroke_Line(s.c, ox + 256.0f, oy + 135.0f, ox + 280.0f, oy + 118.0f, 6, Hex(0xE84020));
  Stroke_Line(s.c, ox + 256.0f, oy + 160.0f, ox + 232.0f, oy + 143.0f, 6, Hex(0xE84020));
  TextStyle t;
  t.face = Face::SansBold;
  t.height = 22;
  t.max_width = 320;
  t.tracking = 4;
  t.top = t.bottom = Hex(0x202838);
  Screen_Text(s, "VALDRUNE", t, 256, 250);
  t.face = Face::Sans;
  t.height = 10;
  Screen_Text(s, "DEVELOPMENT TEAM", t, 256, 278);
  Save_Rgba(out, "flogo.bmp", Screen_Piece(s, 93, 85, 256, 256));
  Save_Rgba(out, "flogo2.bmp", Screen_Piece(s, 349, 85, 128, 256));
}

// The opening fight's floor patch: a round stone dais with a carved ring.
void Opening_Floor(Output& out) {
  Canvas c = Make_Canvas(512, 512);
  for (int y = 0; y < 512; ++y)
    for (int x = 0; x < 512; ++x) {
      float d = std::hypot(x - 255.5f, y - 255.5f) / 256;
      float n = Fbm(x / 40.0f, y / 40.0f, 241, 4);
      Rgba stone = Scale(Mix(Hex(0x6A6660), Hex(0x8A847A), n), 0.9f + 0.1f * Noise(x / 3.0f, y / 3.0f, 242));
      float ring = Smooth(0.012f, 0.0f, std::fabs(d - 0.82f)) + Smooth(0.008f, 0.0f, std::fabs(d - 0.76f));
      stone = Mix(stone, Hex(0xC05020), ring * 0.8f);
      float a = std::atan2(y - 255.5f, x - 255.5f);
      if (d > 0.76f && d < 0.82f && std::fabs(std::sin(a * 12)) < 0.2f) stone = Mix(stone, Hex(0xFFC060), 0.6f);
      c.at(x, y) = Scale(stone, d > 0.95f ? 0.6f : 1.0f);
    }
  Save_Rgb(out, "OPEN_BOT.bmp", c);
}

}  // namespace

void Pictures_Title(Output& out) {
  Background(out);
  Flame_Strip(out);
  Frame(out);
  Logo(out);
  Prompts(out);
  Team_Logo(out);
  Opening_Floor(out);
}

}  // namespace pic
