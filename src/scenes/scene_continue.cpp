// Continue and game over: the beaten fighter stands alone while a count-down runs from 9; a
// start press fights the same opponent again at once. When the count ends, the game-over
// picture shows for three seconds and the game returns to the title.
#include <algorithm>

#include "audio/audio.h"
#include "camera/camera_fight.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "input/input.h"
#include "render/render_fighter.h"
#include "render/render_stage.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"

ContinueState Continue;

namespace {

constexpr float kOutOfSight = 100.0f;
constexpr std::int32_t kZoomFrames = 500;
constexpr float kLookHeight = -2.9f;
constexpr std::int32_t kFullGauge = 100;

bool any_attack_pressed(const PlayerInput& in) {
  return in.attack1_pressed || in.attack2_pressed || in.attack3_pressed || in.attack4_pressed;
}

// The side that has not won the match, reading the players' input on the way (the winner's
// is read only when it is side 0).
int read_loser() {
  for (int p = 0; p < 2; ++p) {
    Input_Clear(p);
    Input_Read(p);
    if (fighters[p].wins != Match.rounds_to_win) return p;
  }
  return 1;
}

// The loser continues: the same opponent again, from a fresh match.
void continue_match(int loser) {
  PlayerInput& in = Players[loser];
  in.start_pressed = 0;
  --Match.credits;
  Play_Sound(SND_START);
  Shell.GameMode = MODE_FIGHT;
  const int winner = opponent(loser);
  Match.human[loser] = 1;
  Match.human[winner] = 0;
  reset_round();
  for (Fighter& f : fighters) {
    f.gauge = kFullGauge;
    f.gauge_spend = 0;
    f.wins = 0;
  }
  Music_PlayTrack(Music_StageTrack(Match.character[winner]));
  Set_FrameRate(Settings_FrameRate());
}

// A slow zoom out from the loser, seen from straight above.
void place_camera(int loser) {
  Continue.ContinueCamera = std::min(Continue.ContinueCamera + 1, kZoomFrames);
  FightCamera.look_x = fighters[loser].pos_x;
  FightCamera.look_y = kLookHeight;
  FightCamera.look_z = 0.0f;
  FightCamera.pitch = 90;
  FightCamera.heading = 0;
  FightCamera.roll = 0;
  FightCamera.distance = static_cast<float>(Continue.ContinueCamera) / 100.0f + 10.0f;
}

void draw_continue() {
  Clear_Depth();
  Set_View();
  Draw_Stage();
  DrawContinueBackdrop(std::max(9 - ContinueTimer, 0));
  Clear_Depth();
  Draw_Fighters();
  Set_DrawMode(42);
  if (ContinueTimer < CONTINUE_GAME_OVER)
    DrawContinuePrompt(9 - ContinueTimer);
  else
    DrawGameOver();
  Swap_Buffers();
}

void black_frame() {
  Clear_Screen(0, 0, 0);
  Swap_Buffers();
}

}  // namespace

void Continue_Begin(int loser) {
  Music_PlayTrack(TRACK_CONTINUE);
  Second_Tick(0);
  Continue.ContinueCamera = 0;
  Continue.ContinueLoser = loser;
  Play_Sound(SND_CONTINUE);
  Match.win_pose_count = 0;
  Continue.ContinueCall = 1;
  Fighter& winner = fighters[opponent(loser)];
  winner.pos_x = winner.pos_z = winner.height = kOutOfSight;
  Fighter& f = fighters[loser];
  f.yaw = 180;
  f.face_yaw = 180;
  f.height = 0.0f;
  f.busy = 1;
  black_frame();
  black_frame();
  Match.win_pose_count = 0;
  Set_FrameRate(65);
}

void Continue_Scene() {
  if (Second_Tick(1) == 1) ++ContinueTimer;
  if (ContinueTimer >= CONTINUE_END) {
    Music_Stop();
    Shell.GameMode = MODE_TITLE;
    Shell.TitleEnter = 1;
    return;
  }
  if (ContinueTimer == CONTINUE_GAME_OVER && Continue.ContinueCall == 1) {
    Play_Sound(SND_GAME_OVER);
    Continue.ContinueCall = 0;
  }
  const int loser = read_loser();
  const PlayerInput& in = Players[loser];
  if (in.start_pressed >= 1 && Match.credits >= 1) {
    continue_match(loser);
    return;
  }
  if (any_attack_pressed(in)) {  // a button hurries the count-down
    ++ContinueTimer;
    Second_Tick(0);
  }
  place_camera(loser);
  if (Pacer_Due()) draw_continue();
}
