// The opening: the maker's logo fading in from white and out again, then a scripted fight of
// two fixed characters playing recorded motions while the camera flies a recorded path, cut
// at fixed script frames; a white flash, the title logo, and the title screen.
#include <algorithm>
#include <cstdio>

#include "assets/asset_anim.h"
#include "assets/asset_character.h"
#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "assets/asset_table.h"
#include "audio/audio.h"
#include "camera/camera_path.h"
#include "fight/fight.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "input/input.h"
#include "platform/platform.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "render/render_sprite.h"
#include "render/render_stage.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "scenes/scene_pictures.h"
#include "scenes/scenes.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"

OpeningState Opening;

namespace {

constexpr int kFlower = 450;  // the floor's flower pattern
constexpr int kWhite = 451;
constexpr float kSpriteDepth = 20.0f;
constexpr int kPath = 1;
constexpr int kPathEndAction = 3;  // nothing further when the path ends
constexpr int kCloseSound = 17;    // the closing title's frame for its sound
constexpr int kTitleOver = 90;     // the closing title fades to white from here
constexpr int kFloorShown = 30;    // the fight stays under the closing title until here
constexpr int kWhiteStep = 10;

// Both performers: side 0 and side 1, their characters, motions and tables.
struct Performer {
  std::int32_t character;
  const char* anim;
  const char* skeleton;
  const char* table;
};
constexpr Performer kPerformers[2] = {
    {0, "OPEN_BAN.FA", "BAN.BSC", "OPEN_BAN.TBL"},   // side 0
    {9, "OPEN_KNI.FX", "CROW.BSC", "OPEN_KNI.TBL"},  // side 1
};

// Script frames at which one black frame is shown: the cuts.
constexpr std::int32_t kCuts[] = {118, 200, 325, 408, 453, 570, 724, 796,
                                  851, 920, 958, 1028, 1090, 1110, 1152};

// Script ranges in which fighter 0 is the one shown.
struct ScriptRange {
  std::int32_t first, last;
};
constexpr ScriptRange kFighter0Shown[] = {
    {0, 199},      // the first bout
    {452, 569},    // after the flurry
    {723, 795},    // the exchange
    {855, 1027},   // the long chase
    {1152, 1280},  // the finish
};

// The flurry of blows: a sound every ten script frames.
constexpr ScriptRange kFlurry = {325, 450};

bool is_cut(int s) {
  for (std::int32_t cut : kCuts)
    if (cut == s) return true;
  return false;
}

void black_frames(int n) {
  for (int k = 0; k < n; ++k) {
    Clear_Screen(0, 0, 0);
    Clear_Depth();
    Swap_Buffers();
  }
}

void load_performer(int side) {
  const Performer& who = kPerformers[side];
  select_slot[side] = who.character;
  Match.character[side] = who.character;
  const CharacterRow& row = CharacterTable[who.character];
  Load_3DM(row.model, side, row.alt1, row.alt2);
  Setup_Attachments(side, who.character);
}

void load_performance(int side) {
  const Performer& who = kPerformers[side];
  if (!Load_FA(who.anim, who.skeleton, side)) std::printf("%d FX3 Error\n", side);
  if (!Load_PreloadTBL("PRELOAD.TBL", side)) std::printf("Preload FX3 Table Error ");
  if (!Load_TBL(who.table, side)) std::printf("%d Table Error\n", side);
}

// Both performers on the same spot, facing along +x.
void place_performers() {
  for (Fighter& f : fighters) {
    f.pos_x = 0.0f;
    f.pos_y = 3.2f;
    f.pos_z = 0.0f;
    f.yaw = 90;
    f.rot_x = 0;
    f.rot_z = 0;
    f.face_yaw = 90;
    f.extra_angle[0] = f.extra_angle[1] = f.extra_angle[2] = 0;
  }
}

// The white overlay's level in the logo part at frame n; -1 for none.
int logo_white(int n) {
  if (n <= 60) return std::max(0, static_cast<int>(255.0f - 4.25f * static_cast<float>(n)));
  if (n <= 150) return -1;
  return std::min(255, static_cast<int>(4.25f * static_cast<float>(n - 150)));
}

void logo_frame() {
  Clear_Depth();
  Clear_Screen(0, 0, 0);
  ++Opening.OpeningFrames;
  if (!Pacer_Due()) return;
  Clear_Depth();
  DrawOpeningLogo();
  const int level = logo_white(Opening.OpeningFrames);
  if (level >= 0) Draw_RasterLFade(kWhite, 0, 0, 320, 240, static_cast<std::uint16_t>(level));
  if (Opening.OpeningFrames > OPENING_LOGO_FRAMES - 2) {
    Music_PlayTrack(TRACK_OPENING);
    Set_FrameRate(65);
  }
  Swap_Buffers();
}

void hold_frames() {
  --fighters[0].frame;
  --fighters[1].frame;
}

// Advances the script: the closing title's count, the camera path, or the white fade.
// Returns the script frame s.
int script_step() {
  if (Opening.OpeningFade >= 1) {
    if (++Opening.OpeningFade == kCloseSound) Play_Sound(SND_OPENING_TITLE);
    hold_frames();
    return 0;
  }
  if (Opening.OpeningWhite == 0) {
    if (PlayCameraPath(kPath, 0, kPathEndAction) == 1) {
      Opening.OpeningWhite = 1;
      Play_Sound(SND_OPENING_FLASH);
    }
    return CameraPath[kPath].current_frame;
  }
  hold_frames();
  return 0;
}

void white_over(int level, bool grey) {
  const auto l = static_cast<std::uint16_t>(std::clamp(level, 0, 255));
  if (grey)
    Draw_RasterLGrey(kWhite, 0, 0, 320, 240, l);
  else
    Draw_RasterLFade(kWhite, 0, 0, 320, 240, l);
}

void draw_fight(int s) {
  Clear_Depth();
  if (is_cut(s)) {
    Clear_Screen(0, 0, 0);
    Swap_Buffers();
    Clear_Screen(0, 0, 0);
  }
  if (Opening.OpeningFade >= kTitleOver) {
    DrawOpeningTitle(Opening.OpeningFade);
    Set_DrawMode(141);
    Blend_Normal();
    Clear_Depth();
    white_over((Opening.OpeningFade - kTitleOver) * 10, false);
    Swap_Buffers();
    return;
  }
  Set_DrawMode(141);
  Blend_Normal();
  // A faint flicker over the last picture, which trails the motion; the fight is drawn over
  // it, so the overlay's depth is cleared.
  white_over(frame_count % 16 == 0 ? 128 : 64, Opening.OpeningFade != 0);
  Clear_Depth();
  if (Opening.OpeningWhite >= 1) {
    Opening.OpeningWhite += kWhiteStep;
    Clear_Depth();
    white_over(Opening.OpeningWhite, false);
    if (Opening.OpeningWhite >= 255) {
      Opening.OpeningWhite = 0;
      if (Opening.OpeningFade == 0) Opening.OpeningFade = 1;
    }
  }
  if (Opening.OpeningFade < kFloorShown) {
    Set_View();
    Set_DrawMode(204);
    Draw_SmallFloor();
    Set_DrawMode(142);
    Draw_Showcase(Opening_ShownFighter(s));
    Draw_Effects();
  }
  if (Opening.OpeningFade >= 1) DrawOpeningTitle(Opening.OpeningFade);
  Swap_Buffers();
}

void fight_frame() {
  Pose_Fighter(0);
  Pose_Fighter(1);
  fighter_animate(0);
  fighter_animate(1);
  Flush_Sounds();
  fighter_strike(0);
  fighter_strike(1);
  if (Opening.OpeningFade == OPENING_CLOSE_FRAMES) {
    Shell.GameMode = MODE_TITLE;
    Shell.TitleEnter = 1;
    Music_Stop();
    return;
  }
  const int s = script_step();
  Opening.Script = s;
  if (Pacer_Due()) draw_fight(s);
  if (s >= kFlurry.first && s <= kFlurry.last && s % 10 == 9) Play_Sound(SND_OPENING_BLOW);
}

}  // namespace

int Opening_ShownFighter(int s) {
  for (const ScriptRange& r : kFighter0Shown)
    if (s >= r.first && s <= r.last) return 0;
  return 1;
}

void Opening_Setup() {
  if (!Load_OpeningPictures()) {
    Plat_DebugOut("051");
    std::printf("Demo Raster Error, file not found");
    Plat_Exit(0);
  }
  reset_match_fighters();
  Load_SmallFloor("OPEN_BOT.bmp");
  Load_Raster("SB_HANA.bmp", kFlower, kSpriteDepth);
  Load_Raster("WHITE.bmp", kWhite, kSpriteDepth);
  load_performer(0);
  load_performer(1);
  load_performance(0);
  load_performance(1);
  reset_round();
  place_performers();
  CameraPath[kPath].current_frame = 0;
  Clear_Screen(0, 0, 0);
  Clear_Depth();
  Swap_Buffers();
  Clear_Screen(0, 0, 0);
  Clear_Depth();
  Opening.OpeningFade = Opening.OpeningWhite = Opening.OpeningFrames = 0;
  Opening.Script = 0;
  black_frames(2);
  Set_FrameRate(65);
}

void Opening_Scene() {
  if (Shell.OpeningEnter == 1) {
    Shell.OpeningEnter = 0;
    Opening_Setup();
    Set_Brightness(255);
  }
  for (int p = 0; p < 2; ++p) {
    Input_Clear(p);
    Input_Read(p);
  }
  if (Opening.OpeningFrames < OPENING_LOGO_FRAMES)
    logo_frame();
  else
    fight_frame();
}
