// The fight display in front of the fighters: the combo counter and the banners that slide in
// and out, the key-change notice, the power gauges, and the one message of the moment.
#include <GL/gl.h>

#include <algorithm>

#include "fight/fight_state.h"
#include "hud/hud.h"
#include "hud/hud_fight_sprites.h"
#include "render/render_sprite.h"
#include "render/render_state.h"

using namespace hud;

namespace {

constexpr int kBannerFrames = 50;  // a banner's whole run
constexpr int kBannerHold = 25;    // frames it stands before sliding out
constexpr int kBannerY = 80;
constexpr int kSlideStep = 8;      // pixels a frame

// Where a banner stands and how it slides out: while it stands at `x`, then at
// slide_base + slide_sign * 8 * frame.
struct BannerPlace {
  int x;
  int slide_base;
  int slide_sign;
};
constexpr BannerPlace kFirstStrikePlace[2] = {
    {10, 210, -1},   // left side, out to the left
    {352, 152, +1},  // right side, out to the right
};
constexpr BannerPlace kReversalPlace[2] = {
    {16, 216, -1},   // left side
    {362, 162, +1},  // right side
};

struct ComboPlace {
  int label_x;
  int tens_x;
  int units_base;  // the units digit stands at units_base + size
};
constexpr ComboPlace kComboPlace[2] = {
    {10, 63, 58},    // left fighter
    {270, 215, 210},  // right fighter
};
constexpr int kComboLabelY = 49;
constexpr int kComboDigitY = 50;

// The combo digits grow in from nothing while combo_show runs down from 30 to 26, pop at 25
// and then rest.
int combo_digit_size(int show) {
  if (show > 25) return 30 - (show - 25) * 6;
  if (show == 25) return 36;
  return 30;
}

void draw_combo(int i) {
  const ComboPlace& p = kComboPlace[i];
  const int c = std::min(fighters[i].combo, 99);
  const int s = combo_digit_size(fighters[i].combo_show);
  Draw_RasterL(SPR_COMBO_LABEL, p.label_x, kComboLabelY);
  Draw_RasterLStretch(SPR_COMBO_DIGIT + c / 10, p.tens_x, kComboDigitY, s, s);
  Draw_RasterLStretch(SPR_COMBO_DIGIT + c % 10, p.units_base + s, kComboDigitY, s, s);
}

// One frame of a banner on `side` (1 left, 2 right): it stands, slides out, and when its run
// is over `side` becomes `ended`.
void run_banner(std::int32_t& side, std::int32_t& frame, int sprite, const BannerPlace* places,
                int ended, bool drawn) {
  const BannerPlace& p = places[side == 2 ? 1 : 0];
  ++frame;
  const int x = frame <= kBannerHold ? p.x : p.slide_base + p.slide_sign * kSlideStep * frame;
  if (drawn) Draw_Raster(sprite, x, kBannerY);
  if (frame >= kBannerFrames) {
    side = ended;
    frame = 0;
  }
}

// A combo on screen takes the place of the banners; the first-strike banner stands before the
// reversal banner.
void combo_or_banner(bool drawn) {
  for (int i = 0; i < 2; ++i) {
    if (fighters[i].combo >= 2) {
      Match.first_strike = -1;  // a combo has been shown: no first-strike banner this round
      if (drawn) draw_combo(i);
      return;
    }
  }
  if (Match.first_strike >= 1) {
    run_banner(Match.first_strike, Match.first_strike_frame, SPR_FIRST_STRIKE, kFirstStrikePlace,
               -1, drawn);
  } else if (Match.reversal >= 1) {
    run_banner(Match.reversal, Match.reversal_frame, SPR_REVERSAL, kReversalPlace, 0, drawn);
  }
}

// The display's counters, drawn or not: combo_show runs down, then the combo or a banner.
void run_counters(bool drawn) {
  for (Fighter& f : fighters)
    if (f.combo_show > 0) --f.combo_show;
  if (!win_pose_running()) combo_or_banner(drawn);
}

void draw_key_change() {
  if (Match.reverse[0] == 0 && Match.reverse[1] == 0) return;
  if (frame_count % 100 > 40) Draw_RasterL(SPR_KEY_CHANGE, 84, 167);
}

}  // namespace

// Everything here lies at the front layer, over the whole scene and drawn last: the depth test
// could reject nothing, so it is left out while the messages draw.
void DrawHudMessages() {
  SpriteDraw.Layer_Z = kFrontLayer;
  glDisable(GL_DEPTH_TEST);
  if (Match.demo == 1) {
    Draw_Raster(SPR_DEMO, 2, 7);
    SpriteDraw.Layer_Z = kBackLayer;
    glEnable(GL_DEPTH_TEST);
    return;
  }
  run_counters(true);
  draw_key_change();
  if (!closing_replay() && !win_pose_running()) {
    Draw_RasterL(SPR_POWER_FRAME, 11, 215);
    Draw_RasterLMirror(SPR_POWER_FRAME, 190, 215);
    Draw_PowerGauges();
  }
  Draw_Message();
  SpriteDraw.Layer_Z = kBackLayer;
  glEnable(GL_DEPTH_TEST);
}

void RunHudMessages() {
  if (Match.demo == 1) return;
  run_counters(false);
  if (Match.challenger != 0) Run_ChallengerNotice(false);
}
