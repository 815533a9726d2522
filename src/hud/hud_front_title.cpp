// The title screen and the opening's pictures: the title with its rising flames and pulsing
// start prompt, the maker's logo on white, and the opening's closing title with its glow.
#include <algorithm>

#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "render/render_math.h"
#include "render/render_sprite.h"
#include "render/render_state.h"

namespace {

// Sprites of the title set.
enum : int {
  TI_BACK = 290,
  TI_EMBLEM_L = 291,  // the emblem behind the logo, two halves
  TI_EMBLEM_R = 292,
  TI_FRAME = 294,     // the frame, four quarters
  TI_FLAMES = 302,
  TI_LOGO_L = 304,
  TI_LOGO_R = 305,
  TI_SUBTITLE = 306,
  TI_FOOT_L = 307,    // the line along the foot, two halves
  TI_FOOT_R = 308,
  TI_BAR = 309,
  TI_PROMPT_L = 311,
  TI_PROMPT_R = 312,
};

// Sprites of the opening set.
enum : int {
  OP_MAKER_L = 0,
  OP_MAKER_R = 1,
  OP_LOGO_L = 2,
  OP_LOGO_R = 3,
  OP_GLOW = 4,
};

constexpr float kFrontLayer = 511.0f;
constexpr float kRestLayer = -100.0f;
constexpr int kFlameSway = 90;     // frames of one sway of the flames
constexpr int kFlameRise = 240;    // layout units (and frames) of one rise
constexpr int kFlameLevel = 192;
constexpr int kPromptPulse = 128;  // frames of one pulse of the start prompt
constexpr int kGlowFrames = 30;    // the opening's closing glow shrinks onto the logo

// Two copies of the flame strip, one above the other, rising a layout unit a frame and
// swaying from side to side.
void draw_flames() {
  const int u = frame_count % kFlameSway;
  const float s = SinTable[2 * u];
  const int w = static_cast<int>(32.0f * s + 320.0f);
  const int x = static_cast<int>(-16.0f * s);
  const int v = frame_count % kFlameRise;
  Draw_RasterLFade(TI_FLAMES, x, -v, w, kFlameRise, kFlameLevel);
  Draw_RasterLFade(TI_FLAMES, x, kFlameRise - v, w, kFlameRise, kFlameLevel);
}

}  // namespace

void DrawTitleBackground() {
  SpriteDraw.Layer_Z = kFrontLayer;
  Draw_RasterStretch(TI_BACK, 0, 0, 512, 384);
  draw_flames();
  Draw_Raster(TI_FRAME + 0, 0, 0);
  Draw_Raster(TI_FRAME + 1, 256, 0);
  Draw_Raster(TI_FRAME + 2, 0, 256);
  Draw_Raster(TI_FRAME + 3, 256, 256);
  Draw_Raster(TI_EMBLEM_L, 186, 108);
  Draw_Raster(TI_EMBLEM_R, 314, 108);
  Draw_Raster(TI_LOGO_L, 9, 100);
  Draw_Raster(TI_LOGO_R, 257, 100);
  Draw_Raster(TI_SUBTITLE, 167, 220);
  Draw_RasterStretch(TI_BAR, 19, 228, 145, 8);
  Draw_RasterStretchMirror(TI_BAR, 352, 228, 145, 8);
  Draw_Raster(TI_FOOT_L, 61, 362);
  Draw_Raster(TI_FOOT_R, 317, 362);
  SpriteDraw.Layer_Z = kRestLayer;
}

int Title_PromptLevel(int f) {
  const int p = f % kPromptPulse;
  return p < kPromptPulse / 2 ? 4 * p : 4 * (kPromptPulse - 1 - p);
}

void DrawTitlePrompt() {
  SpriteDraw.Layer_Z = kFrontLayer;
  const auto level = static_cast<std::uint16_t>(Title_PromptLevel(frame_count));
  Draw_RasterFade(TI_PROMPT_L, 122, 284, level);
  Draw_RasterFade(TI_PROMPT_R, 378, 284, level);
  SpriteDraw.Layer_Z = kRestLayer;
}

void DrawOpeningTitle(int t) {
  SpriteDraw.Layer_Z = kFrontLayer;
  Set_DrawMode(40);
  if (t >= kGlowFrames) {
    Draw_Raster(OP_LOGO_L, 9, 100);
    Draw_Raster(OP_LOGO_R, 257, 100);
  } else {
    Set_DrawMode(41);
    Blend_Glow();
    const int k = kGlowFrames - t;
    Draw_RasterLTint(OP_GLOW, -17 - 8 * k, 84 - 4 * k, 348 + 16 * k, 57 + 8 * k,
                     static_cast<std::uint16_t>(std::min(255, 10 * t)));
  }
  SpriteDraw.Layer_Z = kRestLayer;
}

void DrawOpeningLogo() {
  Set_DrawMode(40);
  Clear_Screen(255, 255, 255);
  Draw_Raster(OP_MAKER_L, 93, 85);
  Draw_Raster(OP_MAKER_R, 349, 85);
}
