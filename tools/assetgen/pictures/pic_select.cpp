// The character select screen's frame: count-down digits, the row of character cells with
// their faces, the cursors and player tags, the bands and bars, the empty-side panel, and the
// title; and the versus picture's pieces.
#include <string>

#include "pictures/pic_figure.h"
#include "pictures/pic_groups.h"
#include "pictures/pic_portraits.h"
#include "pictures/pic_style.h"

namespace pic {
namespace {

constexpr Rgba kP1 = Hex(0xFF3828), kP2 = Hex(0x3090FF), kBoth = Hex(0xFFC830);

// A character cell: a trapezoid 64 wide at its base and 30 at its top, rows 13..57 of a 64 x 64
// square; odd cells are the same turned over, so the row interlocks every 47 pixels.
float Sd_Cell(float x, float y, bool turned, float inset) {
  if (turned) x = 64 - x, y = 70 - y;
  const float pts[] = {17 + inset, 13 + inset, 47 - inset, 13 + inset, 64 - inset * 1.4f, 57 - inset, inset * 1.4f, 57 - inset};
  return Sd_Polygon(x, y, pts, 4);
}

void Cursors(Output& out) {
  const Rgba colours[3] = {kP1, kP2, kBoth};
  const char* files[3] = {"chslt1.bmp", "chslt2.bmp", "chslt3.bmp"};
  for (int k = 0; k < 3; ++k) {
    Canvas c = Make_Canvas(64, 64);
    Canvas glow = Make_Canvas(64, 64);
    Shade(glow, 0, 0, 64, 64, [](float x, float y) { return std::fabs(Sd_Cell(x, y, false, 0)) - 1.5f; },
          [&](float, float) { return colours[k]; });
    Blur(glow, 4);
    Draw(c, glow, 0, 0);
    Shade(c, 0, 0, 64, 64, [](float x, float y) { return std::fabs(Sd_Cell(x, y, false, 0)) - 1.2f; },
          [&](float, float) { return Mix(colours[k], Hex(0xFFFFFF), 0.4f); });
    Save_Rgba(out, files[k], c);
  }
  Canvas blank = Make_Canvas(64, 64);
  Shade(blank, 0, 0, 64, 64, [](float x, float y) { return Sd_Cell(x, y, false, 1); },
        [](float, float) { return Hex(0x000000, 0.7f); });
  Save_Rgba(out, "chsltblk.bmp", blank);
  const char* tags[4] = {"sp1p.bmp", "sp2p.bmp", "sp3p1.bmp", "sp3p2.bmp"};
  const char* text[4] = {"1P", "2P", "1P", "2P"};
  const Rgba tag_colour[4] = {kP1, kP2, kP1, kP2};
  for (int k = 0; k < 4; ++k) {
    Canvas c = Make_Canvas(32, 16);
    Shade(c, 0, 0, 32, 16, [](float x, float y) { return Sd_Box(x, y, 11, 7, 10, 6, 3); },
          [&](float, float) { return tag_colour[k]; });
    const float point[] = {7, 12, 15, 12, 11, 16};
    Fill_Polygon(c, point, 3, tag_colour[k]);
    Text_Place(c, text[k], Style_Tiny(7, Hex(0xFFFFFF)), 11, 7, Align::Centre);
    Save_Rgba(out, tags[k], c);
  }
}

// The row of ten cells with the fighters' faces, cut into the two 256-wide halves drawn at
// screen x 11 and 267 (cell k at x = 47k + 15, y 300).
void Cell_Row(Output& out) {
  Canvas row = Make_Canvas(512 + 64, 64);
  for (int k = 0; k < 10; ++k) {
    int x0 = 47 * k + 15 - 11;
    bool turned = k % 2 == 1;
    Canvas cell = Make_Canvas(64, 64);
    Shade(cell, 0, 0, 64, 64, [&](float x, float y) { return Sd_Cell(x, y, turned, 0); },
          [](float, float) { return Hex(0xD0D8E8); });
    Shade(cell, 0, 0, 64, 64, [&](float x, float y) { return Sd_Cell(x, y, turned, 2); },
          [&](float, float y) { return Mix(Scale(Figure_Main_Colour(k), 0.6f), Hex(0x101020), y / 64); });
    Canvas head = Head_Shot(k, 44, 44, 190);
    Canvas clipped = Make_Canvas(64, 64);
    Draw(clipped, head, 10, 13);
    for (int y = 0; y < 64; ++y)
      for (int x = 0; x < 64; ++x) clipped.at(x, y).a *= Clamp01(0.5f - Sd_Cell(x + 0.5f, y + 0.5f, turned, 2));
    Draw(cell, clipped, 0, 0);
    Draw(row, cell, x0, 0);
  }
  Save_Rgba(out, "chrbx1_1.bmp", Crop(row, 0, 0, 256, 64));
  Save_Rgba(out, "chrbx1_2.bmp", Crop(row, 256, 0, 256, 64));
}

void Bands(Output& out) {
  // The scrolling band behind the portraits (stretched to 512 x 140, repeating every 140 rows).
  for (int k = 0; k < 2; ++k) {
    Canvas c = Make_Canvas(256, 128);
    for (int y = 0; y < 128; ++y)
      for (int x = 0; x < 256; ++x) {
        float s = std::fmod(x * 0.5f + y * 2.0f + 512, 64.0f);
        float line = Smooth(4, 0, std::fabs(s - 32)) * 0.7f + 0.12f;
        Rgba col = k ? Hex(0x3070FF) : Hex(0xFF5030);
        c.at(x, y) = Scale(col, line * (0.6f + 0.4f * Noise(x / 16.0f, y / 16.0f, 181 + k, 8)));
        c.at(x, y).a = 1;
      }
    Save_Rgb(out, k ? "seleff2.bmp" : "seleff.bmp", c);
  }
  // The lower background, two halves at (0, 142) and (256, 142).
  for (int k = 0; k < 2; ++k) {
    Canvas c = Make_Canvas(256, 256);
    for (int y = 0; y < 256; ++y)
      for (int x = 0; x < 256; ++x) {
        float grid = (x % 16 == 0 || y % 16 == 0) ? 0.12f : 0.0f;
        float t = y / 256.0f;
        Rgba col = Mix(Hex(0x181C2C), Hex(0x06070C), t);
        c.at(x, y) = {col.r + grid * 0.5f, col.g + grid * 0.6f, col.b + grid, 0.85f};
      }
    Save_Rgba(out, k ? "sbck2.bmp" : "sbck1.bmp", c);
  }
  // A glowing line under the names (256 x 16, mirrored for the right side).
  Canvas bar = Make_Canvas(256, 16);
  for (int x = 0; x < 256; ++x) {
    float fade = Smooth(256, 120, x);
    Put(bar, x, 4, Hex(0xFFD060), fade);
    Put(bar, x, 3, Hex(0xFFD060), 0.35f * fade);
    Put(bar, x, 5, Hex(0xFFD060), 0.35f * fade);
  }
  Save_Rgba(out, "fontbar.bmp", bar);
}

void Empty_Side(Output& out) {
  Canvas c = Make_Canvas(256, 256);
  for (int y = 0; y < 256; ++y)
    for (int x = 0; x < 256; ++x) {
      float n = Fbm(x / 32.0f, y / 32.0f, 191, 3);
      c.at(x, y) = Mix(Hex(0x101420), Hex(0x202840), n);
      if ((y / 2) % 2) c.at(x, y) = Scale(c.at(x, y), 0.85f);
    }
  Save_Rgb(out, "scom.bmp", c);
  TextStyle q = Style_Call(100, 120);
  q.face = Face::SerifBold;
  // Both are drawn at the left side's x and at the right side's (the question mark at 59 and
  // 388, the call at 37 and 349), so they keep clear of the screen's right edge from there.
  Save_Rgba(out, "slqus.bmp", Text_Cell("?", q, 128, 128, 60, 64));
  Save_Rgba(out, "slcom.bmp", Text_Cell("PRESS START", Style_Label(14, 140), 256, 32, 80, 16));
}

void Titles(Output& out) {
  Save_Rgba(out, "slctply.bmp", Text_Cell("SELECT YOUR FIGHTER", Style_Gold(18, 250), 256, 32, 125, 16));
  // "VS" between the two portraits with a spark streaking through it up to the right; the
  // streak carries the picture on into the right-hand piece.
  ScreenCanvas s = Make_Screen();
  const float m = static_cast<float>(s.margin);
  Canvas streak = Make_Canvas(s.c.w, s.c.h);
  Stroke_Line(streak, m + 196, m + 214, m + 370, m + 170, 5, Hex(0xFFB040));
  Canvas glow = streak;
  Blur(glow, 6);
  Draw(s.c, glow, 0, 0);
  Draw(s.c, streak, 0, 0);
  Stroke_Line(s.c, m + 200, m + 213, m + 366, m + 171, 1.5f, Hex(0xFFF0C0));
  Screen_Text(s, "VS", Style_Call(48, 140), 256, 192);
  Save_Rgba(out, "svs1.bmp", Screen_Piece(s, 184, 160, 128, 64));
  Save_Rgba(out, "svs2.bmp", Screen_Piece(s, 312, 160, 64, 64));
  for (int d = 0; d < 10; ++d)
    Save_Rgba(out, "x" + std::to_string(d) + ".bmp", Text_Cell(std::to_string(d), Style_Gold(24, 30), 32, 32, 16, 16));
}

}  // namespace

void Pictures_Select(Output& out) {
  Cursors(out);
  Cell_Row(out);
  Bands(out);
  Empty_Side(out);
  Titles(out);
}

}  // namespace pic
