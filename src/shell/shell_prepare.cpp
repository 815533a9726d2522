// Match preparation: fighters chosen, versus picture, everything loaded, fight started, all
// within one frame.
#include "shell/shell_prepare.h"

#include "assets/asset_character.h"
#include "assets/asset_model.h"
#include "assets/asset_report.h"
#include "audio/audio.h"
#include "cpu/cpu.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "platform/platform.h"
#include "render/render_stage.h"
#include "render/render_state.h"
#include "scenes/scene_pictures.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"

PrepareState Prepare;

namespace {

struct IndexPair {
  std::int8_t a, b;
};

// The exchanges that shuffle the opponent order; a game uses the first 5..19.
constexpr IndexPair kOrderSwaps[] = {
    {2, 9}, {4, 5}, {7, 1}, {5, 9}, {8, 3}, {3, 1}, {9, 1}, {6, 2}, {7, 0}, {8, 9},
    {5, 6}, {7, 8}, {9, 0}, {1, 2}, {2, 3}, {4, 9}, {5, 8}, {3, 7}, {3, 8}, {0, 1},
};
static_assert(sizeof kOrderSwaps / sizeof kOrderSwaps[0] == 20);

// The demonstration fights' characters, side 0 and side 1; the two always differ.
constexpr IndexPair kDemoPairs[DEMO_PAIRS] = {
    {0, 2}, {9, 1}, {4, 5}, {6, 3}, {7, 8}, {1, 3}, {0, 4}, {5, 6}, {7, 2}, {8, 9},  // 0-9
    {3, 5}, {2, 6}, {7, 8}, {9, 4}, {0, 1}, {7, 9}, {6, 0}, {1, 2}, {3, 5}, {4, 8},  // 10-19
    {0, 1}, {2, 3}, {4, 5}, {6, 7}, {8, 9}, {0, 5}, {1, 6}, {2, 7}, {3, 8}, {4, 9},  // 20-29
};
constexpr int kLastMod5Row = 20;  // rows up to this one pick second colours by mod 5

constexpr int kSecondColours = 15;

// Fatal failures of the preparation: the debugger code, then the end of the program.
struct FailureCodes {
  const char* pictures;
  const char* fighter[2];
};
constexpr FailureCodes kMatchCodes = {"002", {"003", "004"}};
constexpr FailureCodes kDemoCodes = {"005", {"006", "007"}};

// The diagnostic line names the file that failed last (the loaders record it).
[[noreturn]] void fail(const char* code) { Report_Stop(code, 0); }

// Up to the fight mode: music off, the fighters chosen, the versus picture, the fight's
// pictures (the versus picture stays on screen while they load).
void opening_steps(std::int32_t demo, const FailureCodes& codes) {
  Music_Stop();
  Match.demo = demo;
  if (demo == 1)
    Choose_DemoFighters();
  else
    Choose_Opponent();
  Load_VersusPictures();
  Show_Versus();
  if (!Load_FightPictures()) fail(codes.pictures);
  Shell.GameMode = MODE_FIGHT;
}

// Both characters and the three effect models, after the stage.
void load_fighters(const FailureCodes& codes) {
  reset_match_fighters();
  for (int side = 0; side < 2; ++side)
    if (!Load_Character(side)) fail(codes.fighter[side]);
  Load_3DSprite("FAR.3DM", 0);
  Load_3DSprite("CARDFIRE.3DM", 1);
  Load_3DSprite("AXE.3DM", 2);
}

// The stage's music, two black frames, and the fight's pace.
void start_fight(int stage_side) {
  Music_PlayTrack(Music_StageTrack(Match.character[stage_side]));
  for (int k = 0; k < 2; ++k) {
    Clear_Screen(0, 0, 0);
    Swap_Buffers();
  }
  Set_FrameRate(Settings_FrameRate());
}

}  // namespace

int Stage_Side() {
  if (Match.human[0] == 0) return 0;
  if (Match.human[1] == 0) return 1;
  return Prepare.stage_side == 1 ? 1 : 0;
}

void Prepare_Match() {
  opening_steps(0, kMatchCodes);
  const int s = Stage_Side();  // a one-player fight is on the computer opponent's stage
  Load_Stage(s);
  load_fighters(kMatchCodes);
  fighters[0].wins = 0;
  fighters[1].wins = 0;
  reset_round();
  start_fight(s);
}

void Prepare_Demo() {
  opening_steps(1, kDemoCodes);
  Load_Stage(0);
  load_fighters(kDemoCodes);
  reset_round();
  fighters[0].wins = 0;
  fighters[1].wins = 0;
  if (TitleTimer != 0) {
    start_fight(0);
    return;
  }
  Shell.GameMode = MODE_TITLE;  // a start press has cancelled the attract cycle
  Shell.TitleEnter = 1;
  Match.demo = 0;
}

void Shuffle_Opponents() {
  const int n = frame_count % 15 + 5;
  for (int i = 0; i < n; ++i) {
    std::int32_t* order = Prepare.OpponentOrder;
    const std::int32_t t = order[kOrderSwaps[i].a];
    order[kOrderSwaps[i].a] = order[kOrderSwaps[i].b];
    order[kOrderSwaps[i].b] = t;
  }
}

void Choose_Opponent() {
  for (int side = 0; side < 2; ++side) {
    if (Match.human[side] != 0) continue;
    CpuSetupLevels(side);
    if (Match.stage_count >= BOSS_STAGE) {
      select_slot[side] = BOSS_CHARACTER;
      continue;
    }
    const int stage = Match.stage_count < 0 ? 0 : Match.stage_count;
    const std::int32_t c = Prepare.OpponentOrder[stage];
    select_slot[side] = select_slot[opponent(side)] == c ? c + kSecondColours : c;
    return;  // one opponent is chosen at most
  }
}

void Choose_DemoFighters() {
  if (Prepare.DemoIndex < 0 || Prepare.DemoIndex >= DEMO_PAIRS) Prepare.DemoIndex = 0;
  const IndexPair& row = kDemoPairs[Prepare.DemoIndex];
  const int modulus = Prepare.DemoIndex <= kLastMod5Row ? 5 : 3;
  for (int side = 0; side < 2; ++side) {
    Match.stage_count = side == 0 ? (frame_count + 6) % 10 : (Cpu.CpuCounter + 4) % 10;
    std::int32_t c = side == 0 ? row.a : row.b;
    if ((frame_count + side) % modulus == 0) c += kSecondColours;
    CpuSetupDemoLevels(side);
    select_slot[side] = c;
  }
  if (++Prepare.DemoIndex == DEMO_PAIRS) Prepare.DemoIndex = frame_count % 10;
}

void Show_Versus() {
  for (int side = 0; side < 2; ++side)
    Match.character[side] = select_slot[side] % CHARACTERS;
  Clear_Screen(0, 0, 0);
  Clear_Depth();
  DrawVersusScreen();
  Swap_Buffers();
}
