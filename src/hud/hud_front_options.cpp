// The options picture: thirteen rows of labels with their values, the button letter each
// player's attack slots are on, and the blinking cursor.
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "input/input.h"
#include "render/render_sprite.h"
#include "render/render_state.h"
#include "settings/settings.h"

namespace {

// Sprites of the options set.
enum : int {
  OP_BACK = 0,
  OP_DIGIT = 1,  // + digit 0..9
  OP_OFF = 19,
  OP_ON = 20,    // and 20 + life setting: high, medium, low
  OP_ARROW_DIM = 25,
  OP_ARROW_BRIGHT = 26,
  OP_TITLE = 27,
  OP_BUTTON = 29,  // + 4 x player + button 0..3: the letters A..D
};

// Label sprite and row height (layout units) of each row, the title first.
struct RowLabel {
  int sprite;
  int y;
};
constexpr RowLabel kTitle = {OP_TITLE, 6};
constexpr RowLabel kRows[13] = {
    {11, 32},   // difficulty
    {12, 47},   // round time
    {13, 62},   // damage (life)
    {14, 77},   // rounds to win
    {16, 92},   // extra characters
    {17, 107},  // sound
    {15, 122},  // coins per credit
    {28, 137},  // frame rate
    {37, 152},  // punch 1
    {38, 167},  // punch 2
    {39, 182},  // kick 1
    {40, 197},  // kick 2
    {18, 212},  // exit
};
constexpr int kLabelX = 40;
constexpr int kCursorX = 20;
constexpr int kCursorBlink = 10;  // frames of one blink, bright for the first six

void digit(int d, int x, int y) { Draw_RasterL(OP_DIGIT + (d < 0 ? 0 : d % 10), x, y); }
void on_off(int v, int y) { Draw_RasterL(v == 1 ? OP_ON : OP_OFF, 222, y); }

// The button (0..3) that player q's attack slot j reads, or -1 for none.
int slot_button(int q, int j) {
  for (int b = 0; b < 4; ++b)
    if (ButtonMask[q][j] == (0x10 << b)) return b;
  return -1;
}

void draw_values() {
  digit(Settings.difficulty, 250, kRows[0].y);
  digit(Match.time_limit / 1000, 244, kRows[1].y);
  digit(0, 256, kRows[1].y);
  Draw_RasterL(OP_ON + Match.life_setting, 227, kRows[2].y);
  digit(Match.rounds_to_win, 250, kRows[3].y);
  on_off(Settings.extra_characters, kRows[4].y);
  on_off(Settings.sound, kRows[5].y);
  digit(Settings.coins_per_credit, 250, kRows[6].y);
  digit(Settings.frame_rate / 10, 244, kRows[7].y);
  digit(Settings.frame_rate % 10, 256, kRows[7].y);
  for (int j = 0; j < 4; ++j)
    for (int q = 0; q < 2; ++q) {
      const int b = slot_button(q, j);
      if (b >= 0) Draw_RasterL(OP_BUTTON + 4 * q + b, 160 + 80 * q, kRows[8 + j].y);
    }
}

}  // namespace

void DrawOptionsScreen(int row) {
  Draw_RasterStretch(OP_BACK, 0, 0, 512, 384);
  Draw_RasterL(kTitle.sprite, kLabelX, kTitle.y);
  for (const RowLabel& r : kRows) Draw_RasterL(r.sprite, kLabelX, r.y);
  draw_values();
  const int arrow = frame_count % kCursorBlink < 6 ? OP_ARROW_BRIGHT : OP_ARROW_DIM;
  Draw_RasterL(arrow, kCursorX, 32 + 15 * row);
}
