// The ending: twenty-four panels that tell, in pictures and short captions, how the fortress
// fell and where the champion went next. Panels are authored at twice their layout size.
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "pictures/pic_figure.h"
#include "pictures/pic_groups.h"
#include "pictures/pic_portraits.h"
#include "pictures/pic_stage_parts.h"
#include "pictures/pic_style.h"

namespace pic {
namespace {

// A slice of a stage's scene (the part above its horizon), fitted to w x h.
Canvas Scene_Of(int stage, int x, int y, int w, int h, int out_w, int out_h) {
  Canvas pano = Paint_Panorama(Stage_Look(stage));
  return Resize(Crop(pano, x, y, w, h), out_w, out_h);
}

void Border(Canvas& c) {
  for (int x = 0; x < c.w; ++x) c.at(x, 0) = c.at(x, c.h - 1) = Hex(0xD8B060);
  for (int y = 0; y < c.h; ++y) c.at(0, y) = c.at(c.w - 1, y) = Hex(0xD8B060);
}

// Every caption is set in one size; a line too long for its panel breaks into two or three
// lines, at the spaces that keep the widest line narrowest, instead of being set smaller.
constexpr int kCaptionCap = 20;
constexpr int kCaptionLineGap = 30;

TextStyle Caption_Style() {
  TextStyle s = Style_Label(kCaptionCap, 0);
  s.face = Face::SerifBold;
  s.top = Hex(0xFFF4DC), s.bottom = Hex(0xE0C890);
  s.tracking = 0.5f;
  return s;
}

// The width of the widest line when the text breaks at the given spaces.
int Widest_Line(const std::string& text, const TextStyle& s, const std::vector<std::size_t>& breaks) {
  int widest = 0;
  std::size_t from = 0;
  for (std::size_t k = 0; k <= breaks.size(); ++k) {
    const std::size_t to = k < breaks.size() ? breaks[k] : text.size();
    widest = std::max(widest, Text_Styled(text.substr(from, to - from), s).ink_w);
    from = to + 1;
  }
  return widest;
}

Canvas Caption(const std::string& text, int w, int h) {
  Canvas c = Make_Canvas(w, h);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      float edge = Smooth(0, w * 0.12f, std::min(x, w - 1 - x) * 1.0f);
      c.at(x, y) = Hex(0x000000, 0.7f * edge);
    }
  const TextStyle s = Caption_Style();
  std::vector<std::size_t> spaces;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (text[i] == ' ') spaces.push_back(i);
  // The fewest lines that fit, broken where the widest of them is narrowest.
  std::vector<std::size_t> breaks, best;
  int narrowest = Widest_Line(text, s, breaks);
  if (narrowest > w - 40) {
    for (std::size_t a = 0; a < spaces.size(); ++a) {
      int wide = Widest_Line(text, s, {spaces[a]});
      if (wide < narrowest) narrowest = wide, best = {spaces[a]};
    }
    if (narrowest > w - 40)
      for (std::size_t a = 0; a < spaces.size(); ++a)
        for (std::size_t b = a + 1; b < spaces.size(); ++b) {
          int wide = Widest_Line(text, s, {spaces[a], spaces[b]});
          if (wide < narrowest) narrowest = wide, best = {spaces[a], spaces[b]};
        }
    breaks = best;
  }
  std::size_t from = 0;
  const int count = static_cast<int>(breaks.size()) + 1;
  for (int k = 0; k < count; ++k) {
    const std::size_t to = k < count - 1 ? breaks[k] : text.size();
    const int y = h / 2 + (2 * k - (count - 1)) * kCaptionLineGap / 2;
    Text_Place(c, text.substr(from, to - from), s, w / 2, y, Align::Centre);
    from = to + 1;
  }
  return c;
}

// A fighter in silhouette on a sky.
void Silhouette(Canvas& c, int row, float cx_shift, float span) {
  Shot shot;
  shot.row = row;
  shot.width = c.w;
  shot.height = c.h;
  shot.yaw = 100;
  shot.pitch = -10;
  shot.look_y = -2.5f;
  shot.look_x = cx_shift;
  shot.span = span;
  shot.supersample = 2;
  shot.rim = Hex(0xFFD080);
  shot.rim_power = 2.5f;
  Canvas fig = Render_Shot(shot);
  for (Rgba& p : fig.px) {
    float lum = 0.3f * p.r + 0.6f * p.g + 0.1f * p.b;
    p = Mix(Hex(0x100808, p.a), With_Alpha(Hex(0xFFC060), p.a), Smooth(0.8f, 1.0f, lum));
  }
  Draw(c, fig, 0, 0);
}

Canvas Chains(int w, int h) {
  Canvas c = Make_Canvas(w, h, Hex(0x140C10));
  for (int k = 0; k < 9; ++k) {
    float x = 20.0f + k * 26, y = h * 0.5f + 8 * std::sin(k * 0.7f);
    if (k == 4) continue;  // the broken link
    Shade(c, static_cast<int>(x - 20), static_cast<int>(y - 20), static_cast<int>(x + 20), static_cast<int>(y + 20),
          [&](float px, float py) { return std::fabs(Sd_Box(px, py, x, y, 14, k % 2 ? 4 : 9, 6)) - 2.5f; },
          [](float, float py) { return Mix(Hex(0xC0C8D0), Hex(0x505860), Clamp01(py / 128)); });
  }
  Canvas spark = Make_Canvas(w, h);
  Fill_Circle(spark, 124, h * 0.5f, 16, Hex(0xFFC060, 0.8f));
  Blur(spark, 10);
  Draw_Add(c, spark, 0, 0);
  return c;
}

Canvas Rune(int w, int h) {
  Canvas c = Make_Canvas(w, h, Hex(0x080810));
  Canvas g = Make_Canvas(w, h);
  float cx = w / 2.0f, cy = h / 2.0f;
  Stroke_Line(g, cx, cy - 45, cx, cy + 45, 8, Hex(0x60C0FF));
  Stroke_Line(g, cx, cy - 25, cx + 30, cy - 48, 7, Hex(0x60C0FF));
  Stroke_Line(g, cx, cy + 5, cx - 30, cy - 18, 7, Hex(0x60C0FF));
  Canvas glow = g;
  Blur(glow, 12);
  Draw_Add(c, glow, 0, 0);
  Draw_Add(c, g, 0, 0);
  return c;
}

Canvas Campfire(int w, int h) {
  Canvas c = Scene_Of(11, 300, 100, 800, 400, w, h);
  Canvas fire = Make_Canvas(w, h);
  for (int k = 0; k < 40; ++k)
    Fill_Circle(fire, w * 0.5f + (Hash01(k, 261) - 0.5f) * 30, h * 0.85f - Hash01(k, 262) * 60, 6 + 8 * Hash01(k, 263),
                Mix(Hex(0xFF4010), Hex(0xFFE080), Hash01(k, 264)));
  Blur(fire, 4);
  Canvas glow = Make_Canvas(w, h);
  Fill_Circle(glow, w * 0.5f, h * 0.85f, 90, Hex(0xFF8020, 0.35f));
  Blur(glow, 30);
  Draw_Add(c, glow, 0, 0);
  Draw_Add(c, fire, 0, 0);
  return c;
}

Canvas Road(int w, int h) {
  Canvas c = Scene_Of(0, 700, 150, 768, 384, w, h);
  const float road[] = {w * 0.5f - 4, h * 0.62f, w * 0.5f + 4, h * 0.62f, w * 0.8f, static_cast<float>(h),
                        w * 0.2f, static_cast<float>(h)};
  Fill_Polygon(c, road, 4, Hex(0x705038, 0.9f));
  return c;
}

Canvas Stone_Hill(int w, int h) {
  Canvas c = Scene_Of(6, 100, 60, 800, 400, w, h);
  const float stone[] = {w * 0.46f, h * 0.35f, w * 0.54f, h * 0.33f, w * 0.56f, h * 0.8f, w * 0.44f, h * 0.8f};
  Fill_Polygon(c, stone, 4, Hex(0x101828));
  Stroke_Line(c, w * 0.5f, h * 0.42f, w * 0.5f, h * 0.72f, 4, Hex(0x60C0FF));
  Stroke_Line(c, w * 0.5f, h * 0.5f, w * 0.53f, h * 0.45f, 3, Hex(0x60C0FF));
  return c;
}

}  // namespace

void Pictures_Ending(Output& out) {
  const char* captions[24] = {
      "EPILOGUE", "", "",
      "The master of the fortress has fallen.",
      "For the first time in a hundred years, its arena is silent.", "",
      "The fighters bound to his tournament are free.",
      "Some go home, to the mountains and the harbour towns.",
      "Others stay, and the arena becomes a place of honest contest.", "",
      "Word of the champion spreads across the land.",
      "Challengers arrive from every road...",
      "...but the champion has already gone,",
      "following the old road north,",
      "toward the hill where the runes were first carved.",
      "Somewhere ahead, a new fight is waiting.", "", "", "",
      "The runes remember every fighter who stands before them.", "", "", "",
      "THE END"};
  // Panel sizes: twice the layout rectangles the ending draws them in.
  auto size_of = [](int p, int& w, int& h) {
    if (p == 0) w = 256, h = 64;
    else if (p == 1 || p == 2 || p == 5 || p == 9 || p == 20) w = 256, h = 128;
    else if (p >= 16 && p <= 18) w = 512, h = 256;
    else if (p == 21 || p == 22) w = 512, h = 512;
    else if (p == 23) w = 512, h = 64;
    else w = 512, h = 128;
  };
  for (int p = 0; p < 24; ++p) {
    int w, h;
    size_of(p, w, h);
    Canvas c;
    switch (p) {
      case 1: c = Scene_Of(10, 500, 180, 512, 256, w, h); break;          // the fortress under the volcano
      case 2: c = Make_Canvas(w, h, Hex(0x300808)); Draw(c, Head_Shot(14, h, h, 180), (w - h) / 2, 0); break;
      case 5: c = Chains(w, h); break;
      case 9: c = Scene_Of(0, 900, 240, 512, 256, w, h); break;          // sun over the valley
      case 16: c = Road(w, h); break;
      case 17: c = Campfire(w, h); break;
      case 18: c = Stone_Hill(w, h); break;
      case 20: c = Rune(w, h); break;
      case 21: c = Scene_Of(9, 0, 0, 512, 512, w, h); Silhouette(c, 0, 0.5f, 12); break;
      case 22: c = Scene_Of(6, 200, 0, 512, 512, w, h); break;          // the temple under the moon
      default: c = Caption(captions[p], w, h); break;
    }
    if (p == 1 || p == 2 || p == 5 || p == 9 || p == 20 || (p >= 16 && p <= 18) || p == 21 || p == 22) Border(c);
    char name[16];
    std::snprintf(name, sizeof name, "st_%02d.bmp", p + 1);
    Save_Rgba(out, name, c);
  }
}

}  // namespace pic
