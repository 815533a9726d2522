// The fight display behind the fighters: life bars with their delayed drain, the round clock,
// name plates, round-win marks and the top line of start prompts and champion labels.
#include <algorithm>

#include "fight/fight_state.h"
#include "hud/hud.h"
#include "hud/hud_fight_sprites.h"
#include "render/render_sprite.h"

using namespace hud;

namespace {

constexpr std::int32_t kGaugeMax = 300;
constexpr int kCharacters = 15;

// Layout units per life point, by life setting: the full bar is about 126.7 units for the
// round-start life of that setting.
constexpr float kLifeScale[3] = {
    1.6892f,   // setting 1, 75 points
    1.49047f,  // setting 2, 85 points
    1.23f,     // setting 3, 103 points
};
constexpr int kLeftBarEnd = 134;    // the left bar shrinks toward this x
constexpr int kRightBarStart = 184;  // the right bar shrinks toward this x
constexpr int kBarY = 20;
constexpr int kBarHeight = 6;

void drain_one(Fighter& f) {
  if (f.damage > 0) {
    if (f.drain_delay < 1) {
      if (f.life > 0) --f.life;
      --f.damage;
    } else {
      --f.drain_delay;
    }
  }
  if (f.gauge_spend > 0) {
    f.gauge = std::max(f.gauge - 2, 0);
    f.gauge_spend -= 2;
  }
  if (f.gauge_gain > 0) {
    f.gauge = std::min(f.gauge + 1, kGaugeMax);
    --f.gauge_gain;
  }
}

float life_scale() { return kLifeScale[std::clamp(Match.life_setting, 1, 3) - 1]; }

// Green for what is left, yellow for what is still draining; both cut to whole units.
void draw_life_bar(int i) {
  const Fighter& f = fighters[i];
  if (f.life <= 0) return;
  const float k = life_scale();
  const int whole = static_cast<int>(static_cast<float>(f.life) * k);
  const int left = static_cast<int>(static_cast<float>(f.life - f.damage) * k);
  if (i == 0) {
    Draw_RasterLStretch(SPR_GREEN, kLeftBarEnd - left, kBarY, left, kBarHeight);
    Draw_RasterLStretch(SPR_YELLOW, kLeftBarEnd - whole, kBarY, whole - left, kBarHeight);
  } else {
    Draw_RasterLStretch(SPR_GREEN, kRightBarStart, kBarY, left, kBarHeight);
    Draw_RasterLStretch(SPR_YELLOW, kRightBarStart + left, kBarY, whole - left, kBarHeight);
  }
}

void draw_life_frames() {
  Draw_RasterL(SPR_LIFE_FRAME, 5, 12);
  Draw_RasterL(SPR_LIFE_CAP, 133, 12);
  Draw_RasterLMirror(SPR_LIFE_CAP, 178, 12);
  Draw_RasterLMirror(SPR_LIFE_FRAME, 185, 12);
}

// Whole seconds left, in two digits.
void draw_clock() {
  const int s = std::clamp(Match.clock_left / 100, 0, 99);
  Draw_Raster(SPR_TIMER_DIGIT + s / 10, 225, 12);
  Draw_Raster(SPR_TIMER_DIGIT + s % 10, 254, 12);
}

void draw_name_plates() {
  Draw_RasterL(SPR_PLATE_LEFT + std::clamp(Match.character[0], 0, kCharacters - 1), 4, 30);
  Draw_RasterL(SPR_PLATE_RIGHT + std::clamp(Match.character[1], 0, kCharacters - 1), 252, 30);
}

// One mark per round needed; the winner's newest mark blinks while the round ends.
void draw_win_marks(int i) {
  int won = fighters[i].wins;
  if (Match.ko_state >= 1 && Match.winner == i && Match.ko_wait % 30 > 12) --won;
  for (int m = 0; m < Match.rounds_to_win; ++m) {
    const int x = i == 0 ? 192 - 20 * m : 301 + 20 * m;
    Draw_Raster(m < won ? SPR_WIN_FULL : SPR_WIN_EMPTY, x, 53);
  }
}

// The start prompt blinks: off for frames 0..40 and 101..140 of every 200.
bool prompt_lit() {
  const int t = frame_count % 200;
  return !(t <= 40 || (t >= 101 && t <= 140));
}

struct TopLineSide {
  int prompt_x;
  int champ_x, tens_x, units_x;
  int challenger_x;
};
constexpr TopLineSide kTopLine[2] = {
    {10, 20, 82, 90, 25},       // left side
    {185, 195, 257, 265, 200},  // right side
};
constexpr int kTopY = 4;

// A human side shows its winning streak (champion) or that it has none yet (challenger); a
// computer side invites a player in.
void draw_top_side(int i) {
  const TopLineSide& s = kTopLine[i];
  if (Match.human[i] != 1) {
    if (prompt_lit()) Draw_RasterL(SPR_START, s.prompt_x, kTopY);
    return;
  }
  const int n = std::min(fighters[i].streak, 99);
  if (n > 0) {
    Draw_RasterL(SPR_CHAMP_LABEL, s.champ_x, kTopY);
    Draw_RasterL(SPR_STREAK_DIGIT + n / 10, s.tens_x, kTopY);
    Draw_RasterL(SPR_STREAK_DIGIT + n % 10, s.units_x, kTopY);
  } else {
    Draw_RasterL(SPR_CHALLENGER_LABEL, s.challenger_x, kTopY);
  }
}

void draw_top_line() {
  if (fighters[0].streak == 0 && fighters[1].streak == 0) {
    if (!prompt_lit()) return;
    for (int i = 0; i < 2; ++i)
      if (Match.human[i] != 1) Draw_RasterL(SPR_START, kTopLine[i].prompt_x, kTopY);
    return;
  }
  draw_top_side(0);
  draw_top_side(1);
}

}  // namespace

void DrainGauges() {
  drain_one(fighters[0]);
  drain_one(fighters[1]);
}

// A bar shows no more drain than it has life left to lose.
void RunHudBase() {
  for (Fighter& f : fighters)
    if (f.life > 0 && f.damage > f.life) f.damage = f.life;
}

void DrawHudBase() {
  RunHudBase();
  SpriteDraw.Layer_Z = kBackLayer;
  draw_life_frames();
  draw_life_bar(0);
  draw_life_bar(1);
  draw_clock();
  draw_name_plates();
  draw_win_marks(0);
  draw_win_marks(1);
  draw_top_line();
}
