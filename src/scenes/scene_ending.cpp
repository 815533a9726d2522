// The ending: 24 picture panels one after another over a faint white backdrop, the camera
// turning through seven patterns and, from the second panel on, an effect model flying
// across; then the title.
#include "audio/audio.h"
#include "camera/camera_fight.h"
#include "fight/fight_state.h"
#include "render/render_3dsprite.h"
#include "render/render_sprite.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "scenes/scene_pictures.h"
#include "scenes/scenes.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"

EndingState Ending;

const PanelRect EndingPanels[ENDING_PANELS] = {
    {94, 109, 128, 32},  // 0
    {94, 79, 128, 64},   // 1
    {94, 79, 128, 64},   // 2
    {33, 79, 256, 64},   // 3
    {33, 79, 256, 64},   // 4
    {94, 79, 128, 64},   // 5
    {33, 79, 256, 64},   // 6
    {33, 79, 256, 64},   // 7
    {33, 79, 256, 64},   // 8
    {94, 79, 128, 64},   // 9
    {33, 79, 256, 64},   // 10
    {33, 79, 256, 64},   // 11
    {33, 79, 256, 64},   // 12
    {33, 79, 256, 64},   // 13
    {33, 79, 256, 64},   // 14
    {33, 79, 256, 64},   // 15
    {33, 65, 256, 128},  // 16
    {33, 65, 256, 128},  // 17
    {33, 65, 256, 128},  // 18
    {33, 79, 256, 64},   // 19
    {94, 79, 128, 64},   // 20
    {33, 20, 256, 256},  // 21
    {33, 20, 256, 256},  // 22
    {33, 109, 256, 32},  // 23
};

namespace {

enum : int { EN_WHITE = 100, EN_PANEL = 101 };

constexpr int kKeepUnder = 50;      // phases that keep the previous picture underneath
constexpr int kFlyFrom = 3;         // phases in which the model flies across
constexpr int kFlyTo = 45;
constexpr int kBackdropLevel = 32;
constexpr int kEndingRate = 58;
constexpr int kCameraPatterns = 7;
constexpr int kStartHeading = 52;

void black_frame() {
  Clear_Screen(0, 0, 0);
  Clear_Depth();
  Swap_Buffers();
}

// Look-at point and angles, both current and target.
void aim_camera(std::int32_t pitch, std::int32_t heading) {
  FightCamera.look_x = FightCamera.look_y = FightCamera.look_z = 0.0f;
  FightCamera.target_x = FightCamera.target_y = FightCamera.target_z = 0.0f;
  FightCamera.pitch = FightCamera.pitch_target = pitch;
  FightCamera.heading = FightCamera.heading_target = heading;
  FightCamera.roll = FightCamera.roll_target = 0;
}

void draw_step(int p, int q) {
  Clear_Depth();
  if (q >= kKeepUnder) Clear_Screen(0, 0, 0);
  Set_View();
  Set_DrawMode(13);
  Blend_Normal();
  Draw_RasterLFade(EN_WHITE, 0, 0, 320, 240, kBackdropLevel);
  Set_DrawMode(45);
  Blend_Glow();
  if (q >= kFlyFrom && q < kFlyTo && p >= 1)
    Draw_3DSprite(0, static_cast<float>(q) * 1.5f - 30.0f, 0.0f, 0.0f, (frame_count % 36) * 10, 90,
                  0, 1.7f);
  Set_DrawMode(44);
  const int level = Ending_PanelLevel(q);
  Clear_Depth();
  const PanelRect& r = EndingPanels[p];
  Draw_RasterLFade(EN_PANEL + p, r.x, r.y, r.w, r.h, static_cast<std::uint16_t>(level));
  Swap_Buffers();
}

}  // namespace

int Ending_PanelLevel(int q) {
  if (q <= 26) return q * 10 > 255 ? 255 : q * 10;
  if (q < 115) return 255;
  const int l = 255 - (q - 115) * 10;
  return l < 0 ? 0 : l;
}

void Ending_CameraAngles(int p, int q, std::int32_t* pitch, std::int32_t* heading) {
  const int rising = (q + 52) % 360;
  const int falling = ((130 - q) % 360 + 360) % 360;
  switch (p % kCameraPatterns) {
    case 0: *pitch = 0; *heading = 90; break;
    case 1: *pitch = 0; *heading = rising; break;
    case 2: *pitch = 0; *heading = falling; break;
    case 3: *pitch = q - 38; *heading = rising; break;
    case 4: *pitch = q - 38; *heading = falling; break;
    case 5: *pitch = 38 - q; *heading = rising; break;
    default: *pitch = 38 - q; *heading = falling; break;
  }
}

void Ending_Setup() {
  Ending.EndingStep = 0;
  aim_camera(0, kStartHeading);
  FightCamera.distance = 15.0f;
  black_frame();
  black_frame();
  Load_EndingPictures();
  Music_PlayTrack(TRACK_ENDING);
  black_frame();
  black_frame();
  Set_FrameRate(kEndingRate);
}

void Ending_Scene(int /*winner*/) {
  if (Shell.EndingEnter == 1) {
    Shell.EndingEnter = 0;
    Ending_Setup();
  }
  const int step = Ending.EndingStep < ENDING_STEPS ? Ending.EndingStep : ENDING_STEPS - 1;
  const int p = step / ENDING_PANEL_STEPS;
  const int q = step % ENDING_PANEL_STEPS;
  draw_step(p, q);
  if (frame_count % 2 == 0) ++Ending.EndingStep;
  std::int32_t pitch, heading;
  Ending_CameraAngles(p, q, &pitch, &heading);
  aim_camera(pitch, heading);
  if (Ending.EndingStep >= ENDING_STEPS) {
    Shell.GameMode = MODE_TITLE;
    Shell.TitleEnter = 1;
    Music_Stop();
  }
}
