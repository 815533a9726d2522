// The continue screen's pictures (from the fight's set): the prompt with its count-down digit,
// the game-over picture, and the backdrop that glows brighter as the count runs down.
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "render/render_sprite.h"
#include "render/render_state.h"

namespace {

// Sprites of the fight set used here.
enum : int {
  CT_DIGIT = 10,  // + digit 0..9
  CT_CONTINUE = 24,
  CT_GAME_OVER = 25,
  CT_CONTINUE_MARK = 26,
  CT_BACK_A = 400,
  CT_BACK_B = 401,
};

constexpr float kFrontLayer = 511.0f;
constexpr float kRestLayer = -100.0f;
constexpr int kBackFrames = 3;  // frames each backdrop picture shows

int clamp_digit(int n) { return n < 0 ? 0 : n > 9 ? 9 : n; }

}  // namespace

void DrawContinuePrompt(int n) {
  SpriteDraw.Layer_Z = kFrontLayer;
  Draw_Raster(CT_CONTINUE, 101, 239);
  Draw_Raster(CT_CONTINUE_MARK, 357, 239);
  Draw_Raster(CT_DIGIT + clamp_digit(n), 238, 302);
  SpriteDraw.Layer_Z = kRestLayer;
}

void DrawGameOver() {
  SpriteDraw.Layer_Z = kFrontLayer;
  Draw_Raster(CT_GAME_OVER, 144, 239);
  SpriteDraw.Layer_Z = kRestLayer;
}

void DrawContinueBackdrop(int n) {
  Set_DrawMode(13);
  Blend_Glow();
  const int sprite = (frame_count / kBackFrames) % 2 == 0 ? CT_BACK_A : CT_BACK_B;
  const auto level = static_cast<std::uint16_t>((9 - clamp_digit(n)) * 255 / 9);
  Draw_RasterLTint(sprite, 0, 0, 320, 240, level);
}
