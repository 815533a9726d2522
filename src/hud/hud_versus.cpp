// The versus picture: both fighters' portraits and names slide in, a white flash, then the
// stage caption.
#include <algorithm>

#include "audio/audio.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "render/render_sprite.h"
#include "render/render_state.h"

namespace {

// Sprites of the versus set.
enum : int {
  VS_DIGIT = 0,         // stage digits 0..9
  VS_BACK = 63,
  VS_STAGE_L = 84,      // "stage" in two halves
  VS_STAGE_R = 85,
  VS_FINAL_L = 86,      // "final stage" in two halves
  VS_FINAL_R = 87,
  VS_VS = 88,
  VS_BAND = 89,
  VS_STRIP = 90,
  VS_NAME_BAR = 91,
  VS_PORTRAIT_L = 94,   // side 0's portrait, then its name; side 1's follow
  VS_NAME_L = 95,
  VS_PORTRAIT_R = 96,
  VS_NAME_R = 97,
};

constexpr int kFrames = 19;
constexpr int kFlashFrame = 16;   // the pictures meet: a white frame
constexpr int kSlide = 16;        // pixels a frame
constexpr int kFinalStage = 10;   // the boss
constexpr int kTwoDigitStage = 9;
constexpr float kFrontLayer = 511.0f;
constexpr float kRestLayer = -100.0f;

// Frame s of the slide (0..16): backdrop, portraits, bands and names.
void draw_slide(int s) {
  Set_DrawMode(136);
  Draw_RasterStretch(VS_BACK, 0, 0, 512, 384);
  Draw_Raster(VS_PORTRAIT_L, kSlide * s - 256, 27);
  Draw_RasterMirror(VS_PORTRAIT_R, 512 - kSlide * s, 235);
  Draw_RasterStretch(VS_BAND, 0, 153, 256, 128);
  Draw_RasterStretch(VS_STRIP, 256, 359, 256, 26);
  Draw_RasterFadeStretchMirror(VS_NAME_BAR, 474 - kSlide * s, 93, 317, 36, 128);
  Draw_RasterFadeStretch(VS_NAME_BAR, kSlide * s - 256, 257, 317, 36, 128);
  Draw_Raster(VS_NAME_L, 363 + kSlide * (16 - s), 95);
  Draw_Raster(VS_NAME_R, 25 - kSlide * (16 - s), 259);
}

// The caption once the pictures have met: "vs" for a match of two people or a
// demonstration, else the stage of the one-player run (numbered from 1, or the final stage).
void draw_caption() {
  const int stage = Match.stage_count;
  if ((Match.human[0] == 1 && Match.human[1] == 1) || Match.demo == 1) {
    Draw_Raster(VS_VS, 172, 157);
  } else if (stage == kFinalStage) {
    Draw_Raster(VS_FINAL_L, 48, 170);
    Draw_Raster(VS_FINAL_R, 304, 170);
  } else if (stage == kTwoDigitStage) {
    Draw_Raster(VS_STAGE_L, 57, 173);
    Draw_Raster(VS_STAGE_R, 313, 173);
    Draw_Raster(VS_DIGIT + 1, 338, 173);
    Draw_Raster(VS_DIGIT + 0, 380, 173);
  } else {
    Draw_Raster(VS_STAGE_L, 92, 173);
    Draw_Raster(VS_STAGE_R, 348, 173);
    Draw_Raster(VS_DIGIT + std::clamp(stage + 1, 0, 9), 373, 173);
  }
}

}  // namespace

void DrawVersusScreen() {
  SpriteDraw.Layer_Z = kFrontLayer;
  for (int i = 0; i < kFrames; ++i) {
    Clear_Depth();
    if (i == kFlashFrame) {
      Clear_Screen(255, 255, 255);
    } else {
      draw_slide(std::min(i, kFlashFrame));
      if (i > kFlashFrame) draw_caption();
    }
    Swap_Buffers();
  }
  SpriteDraw.Layer_Z = kRestLayer;
  Music_PlayTrack(TRACK_VERSUS);
}
