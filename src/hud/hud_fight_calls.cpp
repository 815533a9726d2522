// The one message of the moment: the challenger notice, REPLAY, the round call and FIGHT with
// their glows, TIME OVER, KO, PERFECT, YOU WIN / YOU LOSE, the congratulations and the
// record-time message.
#include <algorithm>

#include "camera/camera_fight.h"
#include "fight/fight_ranking.h"
#include "fight/fight_state.h"
#include "hud/hud.h"
#include "hud/hud_fight_sprites.h"
#include "render/render_sprite.h"
#include "render/render_state.h"
#include "shell/shell.h"

using namespace hud;

namespace {

constexpr int kBossStage = 10;  // stage_count while the boss is fought
constexpr int kRoundCallEnd = 60;
constexpr int kGlowGrown = 26;  // the round call's glow has grown; the words stand
constexpr int kGlowFaded = 46;  // ... and its glow has faded out
constexpr int kFightGrown = 17;
constexpr int kFightFaded = 31;

// A glow drawn added over the picture, growing or fading.
void draw_glow(int code, int sprite, int x, int y, int w, int h, int level) {
  Set_DrawMode(code);
  Blend_Glow();
  Draw_RasterLGlow(sprite, x, y, w, h, static_cast<std::uint16_t>(std::clamp(level, 0, 255)));
  Set_DrawMode(kDrawModePlain);
}

// The deciding round: one round to win, or both sides one round short of the match.
bool final_round() {
  const int total = fighters[0].wins + fighters[1].wins;
  return Match.rounds_to_win == 1 || (Match.rounds_to_win == 2 && total == 2) ||
         (Match.rounds_to_win == 3 && total == 4);
}

// The round call's glow and words, by camera frame t of the round opening.
struct RoundCallLook {
  int glow;
  int glow_x, glow_y, glow_w, glow_h;  // at rest; a growing glow starts wider
  int words, words_x, words_y;
};
constexpr RoundCallLook kOrdinaryCall = {SPR_ROUND_GLOW, 80, 110, 160, 40, SPR_ROUND, 108, 177};
constexpr RoundCallLook kFinalCall = {SPR_FINAL_GLOW, 82, 90, 162, 80, SPR_FINAL_ROUND, 134, 145};

void draw_round_words(const RoundCallLook& look, bool final) {
  Draw_Raster(look.words, look.words_x, look.words_y);
  if (final) return;
  const int round = std::clamp(fighters[0].wins + fighters[1].wins, 0, 3);
  Draw_Raster(SPR_ROUND_DIGIT + round, 296, 177);
}

void draw_round_call(int t) {
  const bool final = final_round();
  const RoundCallLook& look = final ? kFinalCall : kOrdinaryCall;
  if (t <= kGlowGrown) {
    const int spread = kGlowGrown - t;
    draw_glow(kDrawModeGlowGrow, look.glow, look.glow_x - 10 * spread, look.glow_y,
              look.glow_w + 20 * spread, look.glow_h, std::min(255, 10 * t));
    return;
  }
  draw_round_words(look, final);
  if (t <= kGlowFaded)
    draw_glow(kDrawModeGlowFade, look.glow, look.glow_x, look.glow_y, look.glow_w, look.glow_h,
              255 - 15 * (t - 27));
}

// FIGHT: its glow closes in from the whole screen, the word appears and the glow fades off it.
void draw_fight_call(int n) {
  if (n <= kFightGrown) {
    const int k = kFightGrown - n;
    draw_glow(kDrawModeGlowGrow, SPR_FIGHT_GLOW, 78 - 16 * k, 90 - 8 * k, 160 + 32 * k,
              80 + 16 * k, std::min(255, 10 * n));
    return;
  }
  Draw_Raster(SPR_FIGHT, 126, 145);
  if (n < kFightFaded)
    draw_glow(kDrawModeGlowFade, SPR_FIGHT_GLOW, 78, 90, 160, 80, 255 - 20 * (n - 17));
}

// The knock-out's words: a record time, a perfect round (two pictures flickering) or KO.
void draw_knock_out() {
  if (Match.time_rank > 0) {
    DrawRecordMessage(Match.time_rank - 1);
  } else if (fighters[Match.winner & 1].perfect != 0) {
    Draw_Raster(frame_count % 8 < 4 ? SPR_PERFECT_B : SPR_PERFECT_A, 190, 271);
  } else {
    Draw_Raster(SPR_KO, 190, 271);
  }
}

// Over the winner's pose: KO between two players, else the verdict for the one at the screen;
// beating the boss for the match is congratulated.
void draw_verdict() {
  const int w = Match.winner & 1;
  if (Match.human[0] == 1 && Match.human[1] == 1) {
    Draw_Raster(SPR_KO, 190, 271);
  } else if (Match.human[w] != 1) {
    Draw_Raster(SPR_YOU_LOSE, 164, 271);
  } else if (Match.stage_count == kBossStage && fighters[w].wins >= Match.rounds_to_win) {
    Draw_Raster(SPR_CONGRAT_A, 91, 302);
    Draw_Raster(SPR_CONGRAT_B, 352, 302);
  } else {
    Draw_Raster(SPR_YOU_WIN, 171, 271);
  }
}

}  // namespace

void hud::Run_ChallengerNotice(bool drawn) {
  --Match.challenger_phase;
  if (drawn) Draw_RasterL(SPR_CHALLENGER, 76, 101);
  if (Match.challenger_phase <= 0) Challenger_Step();
}

void hud::Draw_Message() {
  if (Match.challenger != 0) {
    Run_ChallengerNotice(true);
  } else if (closing_replay()) {
    if (frame_count % 20 < 12) Draw_Raster(SPR_REPLAY, 344, 321);
  } else if (Match.after_ko != 0) {
    draw_knock_out();
  } else if (Match.intro != -1) {
    const int t = FightCamera.program_frame;
    if (t >= 0 && t <= kRoundCallEnd) draw_round_call(t);
  } else if (Match.fight_call >= 1) {
    draw_fight_call(Match.fight_call);
  } else if (Match.time_over != 0) {
    Draw_Raster(SPR_TIME_OVER, 144, 168);
  } else if (Match.ko_state >= 1 && win_pose_running()) {
    draw_verdict();
  } else if (Match.ko_state >= 1) {
    draw_knock_out();
  }
}

void DrawRecordMessage(int rank_index) {
  const int i = std::clamp(rank_index, 0, 4);
  const int t = std::max<int>(Ranks.TimeRanking[i].value, 0);
  const int seconds = std::min(t / 100, 99);
  const int hundredths = t % 100;
  Set_DrawMode(kDrawModePlain);
  Draw_Raster(SPR_RECORD_TEXT_A, 85, 225);
  Draw_Raster(SPR_RECORD_TEXT_B, 287, 225);
  Draw_Raster(SPR_RECORD_RANK + i, 214, 223);
  Draw_Raster(SPR_RECORD_POINT, 265, 263);
  Draw_Raster(SPR_RECORD_SECONDS + seconds / 10, 212, 263);
  Draw_Raster(SPR_RECORD_SECONDS + seconds % 10, 238, 263);
  Draw_Raster(SPR_RECORD_HUNDREDTHS + hundredths / 10, 286, 271);
  Draw_Raster(SPR_RECORD_HUNDREDTHS + hundredths % 10, 305, 271);
}
