// The fight display's fixed pieces: life-bar frame, bar colours, round-win marks, power gauge
// with its level icons, strip and stance badge, name plates, and the small digit sets. Sizes
// are those of the places they are drawn at (layout pieces in layout units, screen pieces in
// screen pixels).
#include <cmath>
#include <cstdio>
#include <string>

#include "pictures/pic_groups.h"
#include "pictures/pic_style.h"

namespace pic {
namespace {

constexpr Rgba kSteelHi = Hex(0xD8E0F0), kSteel = Hex(0x7080A0), kSteelLo = Hex(0x283040);
constexpr Rgba kTrough = Hex(0x180C10);

// A bevelled steel polygon: the body in a vertical gradient, a light top edge.
void Steel_Plate(Canvas& c, const float* pts, int n, float y0, float y1) {
  Shade(c, 0, 0, c.w, c.h, [&](float x, float y) { return Sd_Polygon(x, y, pts, n); },
        [&](float, float y) {
          float t = Clamp01((y - y0) / (y1 - y0));
          return t < 0.2f ? Mix(kSteelHi, kSteel, t / 0.2f) : Mix(kSteel, kSteelLo, (t - 0.2f) / 0.8f);
        });
}

// The life-bar frame (layout (5, 12), 128 x 16): the bar lies in rows 8..13 from column 2 on.
void Life_Frame(Output& out) {
  Canvas c = Make_Canvas(128, 16);
  const float plate[] = {0, 15.5f, 5, 1, 128, 1, 128, 15.5f};
  Steel_Plate(c, plate, 4, 1, 15.5f);
  Fill_Rect(c, 2, 7, 126, 8, Hex(0x000000));
  for (int y = 8; y < 14; ++y) Fill_Rect(c, 2, y, 126, 1, Mix(kTrough, Hex(0x401018), (y - 8) / 6.0f));
  Fill_Rect(c, 8, 3, 110, 1, Hex(0xFFFFFF, 0.35f));
  for (int x = 14; x < 120; x += 16) Fill_Rect(c, x, 4, 8, 2, Hex(0x101820, 0.6f));
  Save_Rgba(out, "ma01.bmp", c);
  // The inner end piece (layout (133, 12), 8 x 16): a steel cap with a red jewel.
  Canvas cap = Make_Canvas(8, 16);
  const float cp[] = {0, 1, 8, 1, 8, 15.5f, 0, 15.5f};
  Steel_Plate(cap, cp, 4, 1, 15.5f);
  Fill_Rect(cap, 0, 7, 2, 8, Hex(0x000000));
  Fill_Circle(cap, 4.5f, 8.0f, 2.2f, Hex(0xFF3020));
  Fill_Circle(cap, 4.0f, 7.4f, 0.9f, Hex(0xFFE0C0));
  Save_Rgba(out, "ma01_1.bmp", cap);
}

// Bar colours, stretched to the bar's size: a highlight line on top, darker below.
void Bar_Colour(Output& out, const char* name, std::uint32_t hi, std::uint32_t mid, std::uint32_t lo) {
  Canvas c = Make_Canvas(8, 8);
  const Rgba rows[8] = {Hex(hi), Mix(Hex(hi), Hex(mid), 0.5f), Hex(mid), Hex(mid),
                        Mix(Hex(mid), Hex(lo), 0.3f), Mix(Hex(mid), Hex(lo), 0.6f), Hex(lo), Scale(Hex(lo), 0.8f)};
  for (int y = 0; y < 8; ++y) Fill_Rect(c, 0, y, 8, 1, rows[y]);
  Save_Rgb(out, name, c);
}

// Round-win marks (screen, 16 x 16): a lit gem and an empty socket.
void Win_Marks(Output& out) {
  for (int full = 0; full < 2; ++full) {
    Canvas c = Make_Canvas(16, 16);
    const float gem[] = {8, 0.5f, 15.5f, 8, 8, 15.5f, 0.5f, 8};
    Fill_Polygon(c, gem, 4, Hex(0x101018));
    const float inner[] = {8, 2.5f, 13.5f, 8, 8, 13.5f, 2.5f, 8};
    if (full) {
      Shade(c, 0, 0, 16, 16, [&](float x, float y) { return Sd_Polygon(x, y, inner, 4); },
            [&](float x, float y) { return Mix(Hex(0xFFF8C0), Hex(0xE08010), Clamp01((x + y - 6) / 18)); });
      Fill_Circle(c, 6.5f, 6.0f, 1.4f, Hex(0xFFFFFF));
    } else {
      Shade(c, 0, 0, 16, 16, [&](float x, float y) { return Sd_Polygon(x, y, inner, 4); },
            [&](float, float y) { return Mix(Hex(0x485068), Hex(0x202430), y / 16); });
    }
    Save_Rgba(out, full ? "win_full.bmp" : "win_empt.bmp", c);
  }
}

// The power gauge's frame (layout (11, 215), 128 x 32, mirrored for the right side): an icon
// socket at (17, 12), the strip in rows 5..12 and the fill in rows 14..18 of columns 32..98.
void Power_Frame(Output& out) {
  Canvas c = Make_Canvas(128, 32);
  const float plate[] = {2, 22, 2, 6, 8, 1, 104, 1, 112, 12, 112, 22};
  Steel_Plate(c, plate, 6, 1, 22);
  Fill_Rect(c, 30, 4, 72, 17, Hex(0x000000));
  for (int y = 5; y < 20; ++y) Fill_Rect(c, 31, y, 70, 1, Mix(Hex(0x101828), Hex(0x081020), (y - 5) / 15.0f));
  Fill_Rect(c, 31, 13, 70, 1, Hex(0x304060));
  Fill_Circle(c, 17, 12, 10, Hex(0x000000));
  Fill_Circle(c, 17, 12, 8.5f, Hex(0x182030));
  Save_Rgba(out, "ma03.bmp", c);
}

// Level icons (16 x 16), four levels of five frames: an orb that pulses, with its stock count.
void Power_Icons(Output& out) {
  const char* stems[5] = {"mawn", "mabn", "marn", "macn", "mavn"};
  const std::uint32_t colour[4] = {0x3060D0, 0x30C060, 0xF09020, 0xFF3030};
  for (int level = 0; level < 4; ++level)
    for (int f = 0; f < 5; ++f) {
      Canvas c = Make_Canvas(16, 16);
      float pulse = 0.5f + 0.5f * std::cos(f * 2 * 3.14159f / 5);
      float glow = level == 0 ? 0.25f : (level == 3 ? 0.6f + 0.4f * pulse : 0.45f + 0.3f * pulse);
      Rgba base = Hex(colour[level]);
      Shade(c, 0, 0, 16, 16, [](float x, float y) { return Sd_Circle(x, y, 8, 8, 7.5f); },
            [&](float x, float y) {
              float d = std::hypot(x - 6.5f, y - 6) / 9;
              return Mix(Mix(Hex(0xFFFFFF), base, Clamp01(d * 1.4f)), Scale(base, 0.3f), Clamp01(d - 0.3f) * (1 - glow));
            });
      TextStyle s = Style_Tiny(8, Hex(0xFFFFFF));
      s.outline = 1;
      s.outline_colour = Scale(base, 0.25f);
      s.shadow = 0;
      Text_Place(c, std::to_string(level), s, 8, 8, Align::Centre);
      char name[16];
      std::snprintf(name, sizeof name, "%s%02d.bmp", stems[f], level);
      Save_Rgba(out, name, c);
    }
}

// The strip animation (64 x 8, seven frames): eight energy cells in the first 52 columns (the
// part that lies in the gauge's trough), a pulse of light running out from the middle to both
// ends. It is drawn unmirrored on both sides, so it is symmetric.
void Power_Strip(Output& out) {
  constexpr int kCells = 8, kCellW = 5, kPitch = 6, kLeft = 2;
  for (int f = 0; f < 7; ++f) {
    Canvas c = Make_Canvas(64, 8);
    const float front = f * (kCells / 2.0f) / 7.0f;  // the pulse's distance from the middle
    for (int k = 0; k < kCells; ++k) {
      const float d = std::fabs(k + 0.5f - kCells / 2.0f);
      const float lit = Clamp01(1.0f - std::fabs(d - front - 0.5f) / 1.5f);
      const Rgba cell = Mix(Hex(0x1C5A78), Hex(0xB0F4FF), lit);
      const int x = kLeft + k * kPitch;
      Fill_Rect(c, x, 1, kCellW, 6, cell);
      Fill_Rect(c, x, 1, kCellW, 1, Mix(cell, Hex(0xFFFFFF), 0.4f));
      Fill_Rect(c, x, 6, kCellW, 1, Scale(cell, 0.6f));
    }
    char name[16];
    std::snprintf(name, sizeof name, "ma%02d.bmp", 4 + f);
    Save_Rgba(out, name, c);
  }
}

// Stance badges (16 x 8): an upward arrow for the upright stance, a downward one for the low.
void Stance_Badges(Output& out) {
  for (int low = 0; low < 2; ++low) {
    Canvas c = Make_Canvas(16, 8);
    Shade(c, 0, 0, 16, 8, [](float x, float y) { return Sd_Box(x, y, 8, 4, 7.5f, 3.5f, 2); },
          [&](float, float) { return low ? Hex(0x902020) : Hex(0x204890); });
    const float up[] = {8, 1.5f, 12, 6.5f, 4, 6.5f};
    const float down[] = {4, 1.5f, 12, 1.5f, 8, 6.5f};
    Fill_Polygon(c, low ? down : up, 3, Hex(0xFFF0C0));
    Save_Rgba(out, low ? "ma12.bmp" : "ma11.bmp", c);
  }
}

// Name plates in the fight (layout, 64 x 16): the left one reads from the left edge, the right
// one ends at the right edge.
void Fight_Plates(Output& out) {
  const char* left[15] = {"s_ban", "s_hana", "s_kaiden", "s_eunyu", "s_drung", "s_honoka", "s_rabalt", "s_reimei",
                          "s_vashi", "s_knifed", "s_eunhee", "s_henry", "s_enya", "s_mago", "s_evil"};
  for (int ch = 0; ch < 15; ++ch) {
    TextStyle s = Style_Label(9, 62);
    s.face = Face::CondensedBold;
    s.tracking = 0.6f;
    std::string name = Fighter_Name(ch);
    Save_Rgba(out, std::string(left[ch]) + ".bmp", Text_Cell_At(name, s, 64, 16, 1, 8, Align::Left));
    Save_Rgba(out, std::string(left[ch] + 1) + ".bmp", Text_Cell_At(name, s, 64, 16, 62, 8, Align::Right));
  }
}

// The small labels of the top line and the credit count are only eight pixels high and are
// drawn at twice their size, so they are set in a pixel font of 5 x 7 letters with a hard dark
// rim instead of a scaled outline font: every pixel is either letter, rim or clear.
struct PixelGlyph {
  char ch;
  const char* rows[7];
};
// clang-format off
constexpr PixelGlyph kPixelFont[] = {
    {'0', {".###.", "#...#", "#..##", "#.#.#", "##..#", "#...#", ".###."}},
    {'1', {"..#..", ".##..", "..#..", "..#..", "..#..", "..#..", ".###."}},
    {'2', {".###.", "#...#", "....#", "...#.", "..#..", ".#...", "#####"}},
    {'3', {"#####", "...#.", "..#..", "...#.", "....#", "#...#", ".###."}},
    {'4', {"...#.", "..##.", ".#.#.", "#..#.", "#####", "...#.", "...#."}},
    {'5', {"#####", "#....", "####.", "....#", "....#", "#...#", ".###."}},
    {'6', {"..##.", ".#...", "#....", "####.", "#...#", "#...#", ".###."}},
    {'7', {"#####", "....#", "...#.", "..#..", ".#...", ".#...", ".#..."}},
    {'8', {".###.", "#...#", "#...#", ".###.", "#...#", "#...#", ".###."}},
    {'9', {".###.", "#...#", "#...#", ".####", "....#", "...#.", ".##.."}},
    {'A', {".###.", "#...#", "#...#", "#####", "#...#", "#...#", "#...#"}},
    {'B', {"####.", "#...#", "#...#", "####.", "#...#", "#...#", "####."}},
    {'C', {".###.", "#...#", "#....", "#....", "#....", "#...#", ".###."}},
    {'D', {"###..", "#..#.", "#...#", "#...#", "#...#", "#..#.", "###.."}},
    {'E', {"#####", "#....", "#....", "####.", "#....", "#....", "#####"}},
    {'F', {"#####", "#....", "#....", "####.", "#....", "#....", "#...."}},
    {'G', {".###.", "#...#", "#....", "#.###", "#...#", "#...#", ".####"}},
    {'H', {"#...#", "#...#", "#...#", "#####", "#...#", "#...#", "#...#"}},
    {'I', {".###.", "..#..", "..#..", "..#..", "..#..", "..#..", ".###."}},
    {'J', {"..###", "...#.", "...#.", "...#.", "...#.", "#..#.", ".##.."}},
    {'K', {"#...#", "#..#.", "#.#..", "##...", "#.#..", "#..#.", "#...#"}},
    {'L', {"#....", "#....", "#....", "#....", "#....", "#....", "#####"}},
    {'M', {"#...#", "##.##", "#.#.#", "#.#.#", "#...#", "#...#", "#...#"}},
    {'N', {"#...#", "#...#", "##..#", "#.#.#", "#..##", "#...#", "#...#"}},
    {'O', {".###.", "#...#", "#...#", "#...#", "#...#", "#...#", ".###."}},
    {'P', {"####.", "#...#", "#...#", "####.", "#....", "#....", "#...."}},
    {'Q', {".###.", "#...#", "#...#", "#...#", "#.#.#", "#..#.", ".##.#"}},
    {'R', {"####.", "#...#", "#...#", "####.", "#.#..", "#..#.", "#...#"}},
    {'S', {".####", "#....", "#....", ".###.", "....#", "....#", "####."}},
    {'T', {"#####", "..#..", "..#..", "..#..", "..#..", "..#..", "..#.."}},
    {'U', {"#...#", "#...#", "#...#", "#...#", "#...#", "#...#", ".###."}},
    {'V', {"#...#", "#...#", "#...#", "#...#", "#...#", ".#.#.", "..#.."}},
    {'W', {"#...#", "#...#", "#...#", "#.#.#", "#.#.#", "#.#.#", ".#.#."}},
    {'X', {"#...#", "#...#", ".#.#.", "..#..", ".#.#.", "#...#", "#...#"}},
    {'Y', {"#...#", "#...#", ".#.#.", "..#..", "..#..", "..#..", "..#.."}},
    {'Z', {"#####", "....#", "...#.", "..#..", ".#...", "#....", "#####"}},
    {'/', {"....#", "....#", "...#.", "..#..", ".#...", "#....", "#...."}},
    {'!', {"..#..", "..#..", "..#..", "..#..", "..#..", ".....", "..#.."}},
};
// clang-format on
constexpr int kGlyphW = 5, kGlyphH = 7, kAdvance = 6;

const PixelGlyph* Find_Glyph(char ch) {
  for (const PixelGlyph& g : kPixelFont)
    if (g.ch == ch) return &g;
  return nullptr;  // a space
}

// Text in the pixel font with its first letter's left column at x and its top row at y; the
// upper rows in `top`, the lower in `bottom`, and a one-pixel dark rim all round.
void Pixel_Text(Canvas& c, const std::string& text, int x, int y, Rgba top, Rgba bottom) {
  Mask ink = Make_Mask(c.w, c.h);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const PixelGlyph* g = Find_Glyph(text[i]);
    if (g == nullptr) continue;
    for (int gy = 0; gy < kGlyphH; ++gy)
      for (int gx = 0; gx < kGlyphW; ++gx) {
        const int px = x + static_cast<int>(i) * kAdvance + gx, py = y + gy;
        if (g->rows[gy][gx] == '#' && c.inside(px, py)) ink.at(px, py) = 1;
      }
  }
  auto near_ink = [&](int px, int py) {
    for (int dy = -1; dy <= 1; ++dy)
      for (int dx = -1; dx <= 1; ++dx)
        if (ink.get(px + dx, py + dy) > 0) return true;
    return false;
  };
  for (int py = 0; py < c.h; ++py)
    for (int px = 0; px < c.w; ++px) {
      if (ink.at(px, py) > 0) {
        c.at(px, py) = py - y < 4 ? top : bottom;
      } else if (near_ink(px, py)) {
        c.at(px, py) = Hex(0x100808);
      }
    }
}

Canvas Pixel_Label(const std::string& text, int w, int x, Rgba top, Rgba bottom) {
  Canvas c = Make_Canvas(w, 8);
  Pixel_Text(c, text, x, 0, top, bottom);
  return c;
}

// Small digit sets: streak digits and credit digits (layout, 8 x 8), with their labels.
void Small_Digits(Output& out) {
  const Rgba gold_top = Hex(0xFFF0A0), gold = Hex(0xFFC030);
  const Rgba blue_top = Hex(0xD8F4FF), blue = Hex(0x60C0FF);
  const Rgba white_top = Hex(0xFFFFFF), white = Hex(0xC8D0E0);
  for (int d = 0; d < 10; ++d) {
    std::string t = std::to_string(d);
    Save_Rgba(out, "cham_no" + t + ".bmp", Pixel_Label(t, 8, 1, gold_top, gold));
    Save_Rgba(out, "cr_t" + t + ".bmp", Pixel_Label(t, 8, 1, white_top, white));
  }
  Save_Rgba(out, "t_champ.bmp", Pixel_Label("CHAMPION", 64, 1, gold_top, gold));
  Save_Rgba(out, "t_challe.bmp", Pixel_Label("CHALLENGER", 64, 1, blue_top, blue));
  Save_Rgba(out, "t_start.bmp", Pixel_Label("PRESS START", 128, 2, white_top, white));
  Save_Rgba(out, "t_insert.bmp", Pixel_Label("INSERT COIN", 128, 2, white_top, white));
  Save_Rgba(out, "t_crdit.bmp", Pixel_Label("CREDIT", 64, 1, white_top, white));
  Save_Rgba(out, "t_slsh.bmp", Pixel_Label("/", 8, 1, white_top, white));
  Save_Rgba(out, "life.bmp", Pixel_Label("LIFE", 32, 1, white_top, white));
}

}  // namespace

void Pictures_FightHud(Output& out) {
  Life_Frame(out);
  Bar_Colour(out, "g.bmp", 0xE0FFB0, 0x50E030, 0x107810);
  Bar_Colour(out, "y.bmp", 0xFFFFD0, 0xFFD020, 0xC07000);
  Bar_Colour(out, "r.bmp", 0xFFC0A0, 0xF03020, 0x801010);
  Bar_Colour(out, "s.bmp", 0xFFFFFF, 0xB0C0E0, 0x506080);
  Win_Marks(out);
  Power_Frame(out);
  Power_Icons(out);
  Power_Strip(out);
  Stance_Badges(out);
  Fight_Plates(out);
  Small_Digits(out);
}

}  // namespace pic
