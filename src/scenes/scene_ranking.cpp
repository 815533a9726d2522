// The ranking: one of the two rankings over a slowly panning stage for 900 frames, fading to
// white at the end.
#include <algorithm>
#include <cstdio>

#include "camera/camera_fight.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "input/input.h"
#include "platform/platform.h"
#include "render/render_sprite.h"
#include "render/render_stage.h"
#include "render/render_state.h"
#include "scenes/scene_pictures.h"
#include "scenes/scenes.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"

RankingState Ranking;

namespace {

// The stages shown behind the rankings in turn, by character.
constexpr std::int32_t kBackdrops[] = {
    4,   // 0
    5,   // 1
    7,   // 2
    8,   // 3
    9,   // 4
    10,  // 5
    11,  // 6
};
constexpr int kBackdropCount = sizeof kBackdrops / sizeof kBackdrops[0];
constexpr int kWhite = 149;
constexpr float kPan = 0.15f;  // look-at x a frame
constexpr float kDistance = 25.0f;

void black_frame() {
  Clear_Screen(0, 0, 0);
  Swap_Buffers();
}

void ranking_enter() {
  Ranking.RankingFrames = 1;
  if (!Load_RankingPictures()) {
    Plat_DebugOut("041");
    Plat_Exit(0);
  }
  Match.character[0] = Ranking_StageCharacter(Ranking.RankingStage);
  Load_Stage(0);
  Ranking.RankingStage = (Ranking.RankingStage + 1) % kBackdropCount;
  reset_round();
  FightCamera.distance = kDistance;
  Clear_Screen(0, 0, 0);
  Set_Brightness(255);
  black_frame();
  black_frame();
  Set_FrameRate(65);
}

void draw_ranking() {
  Clear_Depth();
  Draw_Stage();
  Set_DrawMode(45);
  Blend_Normal();
  if (Title.RankingPage == RANKING_TIME)
    DrawTimeRanking(Ranking.RankingFrames);
  else
    DrawStreakRanking(Ranking.RankingFrames);
  if (Ranking.RankingFrames > RANKING_FADE_FROM) {
    Set_DrawMode(141);
    Blend_Normal();
    Clear_Depth();
    const int level = std::min((Ranking.RankingFrames - RANKING_FADE_FROM) * 10, 255);
    Draw_RasterLFade(kWhite, 0, 0, 320, 240, static_cast<std::uint16_t>(level));
  }
  Swap_Buffers();
}

}  // namespace

int Ranking_StageCharacter(int n) {
  return kBackdrops[((n % kBackdropCount) + kBackdropCount) % kBackdropCount];
}

void Ranking_Scene() {
  if (Shell.RankingEnter == 1) {
    Shell.RankingEnter = 0;
    ranking_enter();
  }
  for (int p = 0; p < 2; ++p) {
    Input_Clear(p);
    Input_Read(p);
  }
  if (Ranking.RankingFrames < RANKING_FRAMES) {
    ++Ranking.RankingFrames;
  } else {
    Shell.GameMode = MODE_TITLE;
    Shell.TitleEnter = 1;
  }
  FightCamera.look_x += kPan;
  if (Pacer_Due()) draw_ranking();
}
