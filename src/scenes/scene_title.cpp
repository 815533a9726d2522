// The title screen: resets the game for new players, waits for a start press, and after 700
// quiet frames hands over to the next item of the attract cycle.
#include <cstdio>

#include "audio/audio.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "input/input.h"
#include "platform/platform.h"
#include "render/render_state.h"
#include "scenes/scene_pictures.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_prepare.h"

TitleState Title;

namespace {

constexpr int kAttractItems = 4;

// The attract cycle: what follows the title wait, item by item.
struct AttractItem {
  std::int32_t mode;
  bool opening;  // the opening starts fresh
  bool ranking;  // the ranking starts fresh, showing the other table
};
constexpr AttractItem kAttract[kAttractItems] = {
    {MODE_OPENING, true, false},     // 0
    {MODE_DEMO_LOAD, false, false},  // 1
    {MODE_RANKING, false, true},     // 2
    {MODE_DEMO_LOAD, false, false},  // 3
};

void next_attract_item() {
  const AttractItem& item = kAttract[Title.AttractStep];
  Shell.GameMode = item.mode;
  if (item.opening) {
    Shell.OpeningEnter = 1;
    Match.demo = 0;
  }
  if (item.ranking) {
    Shell.RankingEnter = 1;
    Title.RankingPage = Title.RankingPage == RANKING_STREAK ? RANKING_TIME : RANKING_STREAK;
  }
  Title.AttractStep = (Title.AttractStep + 1) % kAttractItems;
}

bool all_attacks_held(const PlayerInput& in) {
  return in.attack1 && in.attack2 && in.attack3 && in.attack4;
}

}  // namespace

void Title_Enter() {
  Match.human[0] = Match.human[1] = 0;
  select_done[0] = select_done[1] = 0;
  select_slot[0] = 0;
  select_slot[1] = 9;
  Match.stage_count = 0;
  if (!Load_TitlePictures()) {
    Plat_DebugOut("052");
    std::printf("Title Texture Error\n");
    Plat_Exit(0);
  }
  Music_Stop();
}

void Title_Input() {
  for (int p = 0; p < 2; ++p) {
    Input_Clear(p);
    Input_Read(p);
    PlayerInput& in = Players[p];
    if (in.start_pressed < 1 || Match.credits < 1) continue;
    if (all_attacks_held(in)) Settings.extra_characters = 1;  // the hidden unlock
    in.start_pressed = 0;
    Shuffle_Opponents();
    Shell.SelectEnter = 1;
    --Match.credits;
    Play_Sound(SND_START);
    Shell.GameMode = MODE_SELECT;
    Match.human[p] = 1;
  }
}

void Title_Scene() {
  if (Shell.TitleEnter == 1) {
    Shell.TitleEnter = 0;
    Title_Enter();
    TitleTimer = 0;
  }
  Title_Input();
  Clear_Screen(0, 0, 0);
  Clear_Depth();
  Set_DrawMode(42);
  DrawTitleBackground();
  if (++TitleTimer == TITLE_WAIT) next_attract_item();
  DrawTitlePrompt();
  Swap_Buffers();
}
