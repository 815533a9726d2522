// The two rankings: the longest winning streaks and the fastest wins, ten places on two pages
// whose rows slide in from both sides one after another and out again.
#include <algorithm>

#include "fight/fight_ranking.h"
#include "hud/hud_screens.h"
#include "render/render_sprite.h"
#include "render/render_state.h"

namespace {

// Sprites of the ranking set.
enum : int {
  RK_POINT = 100,
  RK_BACK_L = 101,
  RK_BACK_R = 102,
  RK_TITLE = 103,
  RK_WINS = 104,
  RK_PLACE = 105,  // + place 0..9
  RK_DIGIT = 115,  // + digit
  RK_SMALL = 125,  // + digit: hundredths
  RK_FACE = 135,   // + character: faces with names (10..13 the extra characters)
};

constexpr float kFrontLayer = 511.0f;
constexpr float kRestLayer = -100.0f;
constexpr int kRows = 5;
constexpr int kRowStep = 54;
constexpr int kCharacters = 15;

// What the page shows at frame t: its first entry and the slide u, or no page at all.
struct Page {
  bool shown;
  int first;
  int u;
};

Page page_at(int t) {
  if (t >= 500 && t <= 900) return {true, 0, t < 700 ? t - 500 : 900 - t};
  if (t >= 100 && t < 500) return {true, 5, t < 300 ? t - 100 : 500 - t};
  return {false, 0, 0};
}

// Row i's offsets: a for its left part (0 or sliding in from the left), b for its right
// part (0 or sliding in from the right).
struct RowSlide {
  int a, b;
};
RowSlide row_slide(int u, int i) {
  const int o = (50 - u) * 10;
  return {std::min(0, -o - 100 * i), std::max(0, o + 100 * i)};
}

void draw_backdrop() {
  Draw_RasterLFade(RK_BACK_L, 0, 0, 256, 256, 100);
  Draw_RasterLFade(RK_BACK_R, 256, 0, 64, 256, 100);
}

// The backdrop and title; the page when one shows. False when only the title shows.
bool draw_frame(int t, Page* page) {
  SpriteDraw.Layer_Z = kFrontLayer;
  draw_backdrop();
  *page = page_at(t);
  Set_DrawMode(40);
  if (!page->shown) {
    Draw_Raster(RK_TITLE, 143, 33 + std::min(0, 2 * (t - 50)));
    SpriteDraw.Layer_Z = kRestLayer;
    return false;
  }
  Draw_Raster(RK_TITLE, 143, 33);
  return true;
}

// The place and the face with the name, sliding in from the left.
void draw_row_left(int e, int i, const RankEntry& entry, int a) {
  const int y = 87 + kRowStep * i;
  Draw_Raster(RK_PLACE + e, 57 + a, y);
  const int c = std::clamp<int>(entry.character, 0, kCharacters - 1);
  Draw_Raster(RK_FACE + c, 125 + a, y + 5);
}

}  // namespace

void DrawStreakRanking(int t) {
  Page page;
  if (!draw_frame(t, &page)) return;
  for (int i = 0; i < kRows; ++i) {
    const int e = page.first + i;
    const RankEntry& entry = Ranks.StreakRanking[e];
    const RowSlide s = row_slide(page.u, i);
    const int y = 87 + kRowStep * i;
    draw_row_left(e, i, entry, s.a);
    const int v = entry.value < 0 ? 0 : entry.value;
    const int tens = v >= 100 ? 9 : v / 10;
    const int units = v >= 100 ? 9 : v % 10;
    if (v >= 10) Draw_Raster(RK_DIGIT + tens, 254 + s.b, y);
    Draw_Raster(RK_DIGIT + units, 294 + s.b, y);
    Draw_Raster(RK_WINS, 334 + s.b, y);
  }
  SpriteDraw.Layer_Z = kRestLayer;
}

void DrawTimeRanking(int t) {
  Page page;
  if (!draw_frame(t, &page)) return;
  for (int i = 0; i < kRows; ++i) {
    const int e = page.first + i;
    const RankEntry& entry = Ranks.TimeRanking[e];
    const RowSlide s = row_slide(page.u, i);
    const int y = 87 + kRowStep * i;
    draw_row_left(e, i, entry, s.a);
    const int v = std::clamp<int>(entry.value, 0, 9999);
    if (v >= 1000) Draw_Raster(RK_DIGIT + v / 1000, 294 + s.b, y);
    Draw_Raster(RK_DIGIT + (v / 100) % 10, 334 + s.b, y);
    Draw_Raster(RK_POINT, 374 + s.b, y + 7);
    Draw_Raster(RK_SMALL + (v % 100) / 10, 400 + s.b, y + 10);
    Draw_Raster(RK_SMALL + v % 10, 429 + s.b, y + 10);
  }
  SpriteDraw.Layer_Z = kRestLayer;
}
