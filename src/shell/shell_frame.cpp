// The per-frame callback and the game-mode machine.
#include "assets/asset_anim.h"
#include "audio/audio.h"
#include "camera/camera_fight.h"
#include "fight/fight.h"
#include "fight/fight_state.h"
#include "hud/hud.h"
#include "input/input.h"
#include "platform/platform.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "render/render_stage.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"
#include "shell/shell_prepare.h"

ShellState Shell;

namespace {

bool coin_or_start_active() {
  return Plat_KeyDown(VK_F1_) || Players[0].start_pressed > 0 || Players[1].start_pressed > 0;
}

// A coin or start press: counts the coin and sends the attract sequence back to the title.
void coin_and_start() {
  Shell.StartLatch = 1;
  TitleTimer = 0;
  if (++Shell.CoinCount == Settings.coins_per_credit) {
    ++Match.credits;
    Shell.CoinCount = 0;
  }
  ContinueTimer = 0;
  const std::int32_t mode = Shell.GameMode;
  if (mode == MODE_OPENING || mode == MODE_ENDING || mode == MODE_RANKING ||
      mode == MODE_DEMO_LOAD || Match.demo == 1) {
    Music_Stop();
    Shell.GameMode = MODE_TITLE;
    Shell.TitleEnter = 1;
  }
}

// The fight's update and the camera's; while a challenger's banner runs the fight is frozen.
void update_unless_challenged() {
  if (Match.challenger != 0) return;
  Fight_Update();
  UpdateFightCamera();
}

}  // namespace

void System_Keys() {
  if (Plat_KeyDown(VK_F2_) && Shell.GameMode != MODE_OPTIONS) {
    Shell.GameMode = MODE_OPTIONS;
    Shell.OptionsEnter = 1;
  }
  if (coin_or_start_active()) {
    if (Shell.StartLatch == 1) return;  // still held: Escape is not looked at
    coin_and_start();
  } else {
    Shell.StartLatch = 0;
  }
  if (Plat_KeyDown(VK_ESCAPE_)) Quit_Game();
}

void Run_Frame() {
  Match.credits = 100;  // free play
  System_Keys();
  if (++frame_count == 30000) frame_count = 0;

  switch (Shell.GameMode) {
    case MODE_TITLE:
      Title_Scene();
      fighters[0].streak = 0;  // a streak ends when the game returns to the title
      fighters[1].streak = 0;
      break;
    case MODE_SELECT:
      Match.demo = 0;
      Select_Scene();
      break;
    case MODE_FIGHT_LOAD:
      Prepare_Match();
      break;
    case MODE_FIGHT:
      if (Settings.sound == 1 && Cd_IsPlaying() == 0) Music_PlayTrack(MusicTrack);
      Fight_Frame();
      break;
    case MODE_CONTINUE:
      Continue_Scene();
      break;
    case MODE_OPENING:
      Opening_Scene();
      break;
    case MODE_ENDING:
      Ending_Scene(Match.winner);
      break;
    case MODE_RANKING:
      Ranking_Scene();
      break;
    case MODE_DEMO_LOAD:
      Prepare_Demo();
      break;
    case MODE_OPTIONS:
      Options_Scene();
      break;
    default:
      break;  // any other mode runs nothing
  }
}

void Fight_Frame() {
  Fight_Draw();
  update_unless_challenged();
}

void Challenger_Step() {
  if (Match.challenger == 1) {
    Match.human[0] = 1;
    Prepare.stage_side = 0;
  } else if (Match.challenger == 2) {
    Match.human[1] = 1;
    Prepare.stage_side = 1;
  }
  // Both players choose again in the select screen; the side that played starts from its slot.
  select_done[0] = select_done[1] = 0;
  Shell.GameMode = MODE_SELECT;
  Shell.SelectEnter = 1;
  Match.challenger = 0;
}

namespace {

bool victory_running() {
  const int a0 = fighters[0].action, a1 = fighters[1].action;
  return a0 == 12 || a0 == 13 || a1 == 12 || a1 == 13;
}

// The round's bars, clock and marks are shown until the closing replay takes the screen.
bool hud_base_shown() {
  const bool closing = Match.after_ko && Match.after_ko_frames >= 50;
  return !closing && Match.win_pose_count == 0 && Match.demo != 1;
}

// The picture of a fight frame in its order: stage, bars, fighters with their effects,
// messages. The passes change fight state as they go (the flash, the drained bars, the part
// boxes, the effects, the display's counters); a frame stepped as drawn without its picture
// (`drawn` false) runs the same changes in the same order and draws nothing.
void fight_picture(bool drawn) {
  if (drawn) {
    Clear_Depth();  // the stage covers the whole screen, so the colour buffer is not cleared
    Draw_Stage();
  } else {
    Step_Stage();
  }
  DrainGauges();
  if (hud_base_shown()) {
    resolve_time_over();
    if (drawn) {
      Set_DrawMode(40);
      DrawHudBase();
    } else {
      RunHudBase();
    }
  }
  if (drawn)
    Draw_Fighters();  // with the effect pass
  else
    Step_Fighters();
  if (drawn) {
    Set_DrawMode(40);
    DrawHudMessages();  // also runs out a challenger's notice
  } else {
    RunHudMessages();
  }
}

// A white frame shows nothing of the fight and counts the white frames down.
void white_frame(bool drawn) {
  if (drawn) {
    Clear_Screen(255, 255, 255);
    Clear_Depth();
  }
  --Shell.WhiteFrames;
  if (drawn) Swap_Buffers();
}

// The first picture of a round is made but not shown.
void present(bool drawn) {
  if (Shell.SkipPresent == 1)
    Shell.SkipPresent = 0;
  else if (drawn)
    Swap_Buffers();
}

// One frame's picture, or its state changes alone.
void picture(bool drawn) {
  if (Shell.WhiteFrames >= 1) {
    white_frame(drawn);
    return;
  }
  fight_picture(drawn);
  present(drawn);
}

// Frames that are not drawn still place the fighters, so that the hit tests see their boxes.
void place_undrawn() {
  Set_View();
  Place_FighterOnly(0);
  Place_FighterOnly(1);
}

// The round clock runs until the round is decided.
void run_clock() {
  if (Match.after_ko == 0 && Match.ko_state == 0 && !victory_running()) update_clock();
}

}  // namespace

void Fight_Draw() {
  Pose_Fighter(0);
  Pose_Fighter(1);
  if (Pacer_Due())
    picture(true);
  else
    place_undrawn();  // behind schedule: simulated, not drawn
  run_clock();
}

void Fight_Step(int as_drawn) {
  Pose_Fighter(0);
  Pose_Fighter(1);
  if (as_drawn)
    picture(false);
  else
    place_undrawn();
  run_clock();
  update_unless_challenged();
}
