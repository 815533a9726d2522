// The power gauges under the fight: the level icon, the running strip, the fill toward the
// next level and the stance badge, for each fighter.
#include "fight/fight_state.h"
#include "hud/hud_fight_sprites.h"
#include "render/render_sprite.h"

using namespace hud;

namespace {

constexpr int kLevelSize = 100;   // gauge points a level
constexpr int kGaugeFull = 300;
constexpr int kFillWidth = 67;    // layout units of a whole level
constexpr int kIconFrames = 5;
constexpr int kStripFrames = 7;

struct GaugePlace {
  int icon_x;
  int strip_x;
  int fill_right;  // the left gauge fills leftward from here
  int fill_left;   // the right gauge fills rightward from here
  int stance_x;
};
constexpr GaugePlace kGaugePlace[2] = {
    {20, 54, 110, 0, 71},     // left fighter
    {293, 223, 0, 219, 242},  // right fighter
};
constexpr int kIconY = 219;
constexpr int kStripY = 220;
constexpr int kFillTopY = 229;  // a one-unit line of yellow over the red body
constexpr int kFillBodyY = 230;
constexpr int kFillBodyHeight = 4;
constexpr int kStanceY = 214;

// The icon run of the gauge's level: below 100, below 200, below 300, full.
int icon_run(int p) {
  if (p < kLevelSize) return 0;
  if (p < 2 * kLevelSize) return 1;
  if (p < kGaugeFull) return 2;
  return 3;
}

// Layout units of the fill: the part of the current level, or all of it when full.
int fill_width(int p) {
  if (p >= kGaugeFull) return kFillWidth;
  return (p % kLevelSize) * kFillWidth / kLevelSize;
}

void draw_gauge(int i) {
  const GaugePlace& g = kGaugePlace[i];
  const int p = fighters[i].gauge;
  const int f = frame_count;
  Draw_RasterL(SPR_POWER_ICON + icon_run(p) * kIconFrames + f % kIconFrames, g.icon_x, kIconY);
  Draw_RasterL(SPR_POWER_STRIP + f % kStripFrames, g.strip_x, kStripY);
  const GaugeFill fill = Power_Fill(i);
  Draw_RasterLStretch(SPR_YELLOW, fill.x, kFillTopY, fill.w, 1);
  Draw_RasterLStretch(SPR_RED, fill.x, kFillBodyY, fill.w, kFillBodyHeight);
  Draw_RasterL(fighters[i].stance != 0 ? SPR_STANCE_LOW : SPR_STANCE_HIGH, g.stance_x, kStanceY);
}

}  // namespace

hud::GaugeFill hud::Power_Fill(int i) {
  const int w = fill_width(fighters[i].gauge);
  return {i == 0 ? kGaugePlace[0].fill_right - w : kGaugePlace[1].fill_left, w};
}

void hud::Draw_PowerGauges() {
  draw_gauge(0);
  draw_gauge(1);
}
