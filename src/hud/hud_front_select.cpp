// The character select picture: the scrolling band, each side's portrait sliding between
// characters (or the empty-side panel), the row of faces with both players' cursors, and the
// count-down.
#include <cstdlib>
#include <initializer_list>

#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "render/render_sprite.h"
#include "render/render_state.h"
#include "scenes/scenes.h"

namespace {

// Sprites of the select set.
enum : int {
  SL_DIGIT = 0,        // count-down digits 0..9
  SL_PIECE = 10,       // 10 + 2k, 11 + 2k: character k's picture in two pieces (k < 10)
  SL_QUESTION = 30,
  SL_NAME = 32,        // + character: name plates
  SL_PORTRAIT = 48,    // + character: large pictures
  SL_NOBODY = 62,
  SL_ROW_L = 63,       // the row of faces, two halves
  SL_ROW_R = 64,
  SL_BACK_L = 67,
  SL_BACK_R = 68,
  SL_BAND = 69,
  SL_NAME_LINE = 71,
  SL_PRESS_START = 72,
  SL_TAG_1P = 73,      // player tags over a cursor
  SL_TAG_2P = 74,
  SL_TAG_SHARED_1P = 75,
  SL_TAG_SHARED_2P = 76,
  SL_CURSOR_1P = 77,
  SL_CURSOR_2P = 78,
  SL_CURSOR_SHARED = 79,
  SL_TITLE = 81,
  SL_VS_L = 82,
  SL_VS_R = 83,
};

constexpr float kFrontLayer = 511.0f;
constexpr float kRestLayer = -100.0f;
constexpr int kBandPeriod = 35;
constexpr int kPieceCharacters = 10;  // characters with a two-piece picture
constexpr int kFadeStep = 42;         // picture level per step of the slide

// One side's picture geometry; the right side mirrors the left.
struct SideLayout {
  int x;             // of the large picture and the pieces without a slide
  int old_left;      // old piece's x at d = 0 when the slide runs to the left (d < 0)
  int old_right;     // and to the right (d > 0)
  int name_x;
  int question_x;
  int press_x;
  bool mirrored;
};
constexpr SideLayout kSides[2] = {
    {0, 30, -30, 40, 59, 37, false},       // player 1
    {256, 286, 226, 344, 388, 349, true},  // player 2
};

void piece(int sprite, int x, int y, bool mirrored) {
  if (mirrored)
    Draw_RasterMirror(sprite, x, y);
  else
    Draw_Raster(sprite, x, y);
}

void faded_piece(int sprite, int x, int y, int level, bool mirrored) {
  const auto l = static_cast<std::uint16_t>(level);
  if (mirrored)
    Draw_RasterFadeMirror(sprite, x, y, l);
  else
    Draw_RasterFade(sprite, x, y, l);
}

// Character k's two-piece picture at x, faded (level >= 0) or plain.
void two_piece(int k, int x, int level, bool mirrored) {
  if (k < 0 || k >= kPieceCharacters) return;
  for (int half = 0; half < 2; ++half) {
    const int sprite = SL_PIECE + 2 * k + half;
    const int y = half == 0 ? 16 : 272;
    if (level >= 0)
      faded_piece(sprite, x, y, level, mirrored);
    else
      piece(sprite, x, y, mirrored);
  }
}

// A side a player is in: the portrait, sliding from the previous character when the cursor
// has just moved, and the name plate rolling over.
void draw_player_side(int p) {
  const SideLayout& L = kSides[p];
  const int c = Match.character[p];
  const int old = Select.SelectPrevious[p];
  const int d = Select.SelectSlide[p];
  piece(SL_PORTRAIT + c, L.x, 16, L.mirrored);
  if (d == 0) {
    two_piece(c, L.x, -1, L.mirrored);
    Draw_RasterStretch(SL_NAME + c, L.name_x, 258, 128, 32);
    return;
  }
  if (d < 0)
    two_piece(old, L.x + L.old_left + 6 * d, -kFadeStep * d, L.mirrored);
  else
    two_piece(old, L.x + L.old_right + 6 * d, kFadeStep * d, L.mirrored);
  two_piece(c, L.x + 6 * d, kFadeStep * (6 - std::abs(d)), L.mirrored);
  const int rolled = 6 * (5 - std::abs(d));
  Draw_RasterStretch(SL_NAME + old, L.name_x, 258, 128, 32 - rolled);
  Draw_RasterStretch(SL_NAME + c, L.name_x, 290 - rolled, 128, rolled);
}

// A side nobody plays: the empty panel, a question mark and the call to press start.
void draw_empty_side(int p) {
  const SideLayout& L = kSides[p];
  piece(SL_NOBODY, L.x, 16, L.mirrored);
  Draw_Raster(SL_QUESTION, L.question_x, 23);
  Draw_Raster(SL_PRESS_START, L.press_x, 191);
}

// A cursor on character k with its tag(s); odd cells hang upside down.
void draw_cursor(int k, int cursor, int tag, int tag_x) {
  const int x = 47 * k + 15;
  if (k % 2 == 1) {
    Draw_RasterTurn(cursor, x, 311);
    Draw_Raster(tag, tag_x, 312);
  } else {
    Draw_Raster(cursor, x, 304);
    Draw_Raster(tag, tag_x, 291);
  }
}

void draw_cursors() {
  const int c0 = Match.character[0], c1 = Match.character[1];
  if (Match.human[0] == 1 && Match.human[1] == 1 && c0 == c1 && c0 < kPieceCharacters) {
    draw_cursor(c0, SL_CURSOR_SHARED, SL_TAG_SHARED_1P, 47 * c0 + 33);
    const int tag_y = c0 % 2 == 1 ? 312 : 291;
    Draw_Raster(SL_TAG_SHARED_2P, 47 * c0 + 55, tag_y);
    return;
  }
  const int cursors[2] = {SL_CURSOR_1P, SL_CURSOR_2P};
  const int tags[2] = {SL_TAG_1P, SL_TAG_2P};
  for (int p = 0; p < 2; ++p) {
    if (Match.human[p] != 1) continue;
    const int k = Match.character[p];
    Set_DrawMode(43);
    draw_cursor(k, cursors[p], tags[p], 47 * k + 15 + 16);
    Set_DrawMode(42);
  }
}

}  // namespace

void DrawCharacterSelect(int n) {
  SpriteDraw.Layer_Z = kFrontLayer;
  const int u = frame_count % kBandPeriod;
  for (int y : {210, 70, -70}) Draw_RasterStretchTurn(SL_BAND, 0, y - 4 * u, 512, 140);
  Draw_Raster(SL_BACK_L, 0, 142);
  Draw_Raster(SL_BACK_R, 256, 142);
  for (int p = 0; p < 2; ++p) {
    if (Match.human[p] == 1)
      draw_player_side(p);
    else
      draw_empty_side(p);
  }
  Draw_Raster(SL_TITLE, 131, 11);
  Draw_Raster(SL_VS_L, 184, 160);
  Draw_Raster(SL_VS_R, 312, 160);
  Draw_Raster(SL_ROW_L, 11, 300);
  Draw_Raster(SL_ROW_R, 267, 300);
  Draw_Raster(SL_NAME_LINE, 0, 278);
  Draw_RasterMirror(SL_NAME_LINE, 256, 278);
  draw_cursors();
  const int count = n < 0 ? 0 : n % 100;
  Draw_Raster(SL_DIGIT + count / 10, 223, 254);
  Draw_Raster(SL_DIGIT + count % 10, 257, 254);
  SpriteDraw.Layer_Z = kRestLayer;
}
