// The fight display's own view of the fight picture set: sprite numbers and the few questions
// about the match that both halves of the display ask. Private to src/hud.
#pragma once

#include "fight/fight_state.h"

namespace hud {

// Sprites of the fight set used by the display.
enum : int {
  SPR_TIMER_DIGIT = 0,      // 0..9 round clock digits
  SPR_FIGHT = 20,
  SPR_KO = 21,
  SPR_REPLAY = 22,
  SPR_TIME_OVER = 23,
  SPR_CHALLENGER = 27,      // challenger notice
  SPR_CHAMP_LABEL = 28,
  SPR_CHALLENGER_LABEL = 29,
  SPR_STREAK_DIGIT = 30,    // 30..39
  SPR_WIN_FULL = 40,
  SPR_WIN_EMPTY = 41,
  SPR_LIFE_FRAME = 42,      // outer piece of the life-bar frame
  SPR_LIFE_CAP = 43,        // inner piece
  SPR_COMBO_DIGIT = 127,    // 127..136
  SPR_START = 306,
  SPR_FIRST_STRIKE = 308,
  SPR_COMBO_LABEL = 309,
  SPR_ROUND_DIGIT = 310,    // 310..313 round numbers 1..4
  SPR_FINAL_ROUND = 314,
  SPR_ROUND = 315,
  SPR_POWER_FRAME = 316,
  SPR_STANCE_HIGH = 317,    // stance 0
  SPR_STANCE_LOW = 318,     // stance 23
  SPR_POWER_ICON = 319,     // four runs of five frames, levels 0, 1, 2 and full
  SPR_POWER_STRIP = 339,    // seven frames
  SPR_GREEN = 346,
  SPR_YELLOW = 347,
  SPR_RED = 348,
  SPR_PLATE_LEFT = 360,     // + character
  SPR_PLATE_RIGHT = 376,    // + character
  SPR_YOU_WIN = 392,
  SPR_YOU_LOSE = 393,
  SPR_PERFECT_A = 394,
  SPR_PERFECT_B = 395,
  SPR_ROUND_GLOW = 397,
  SPR_FINAL_GLOW = 398,
  SPR_FIGHT_GLOW = 399,
  SPR_KEY_CHANGE = 414,
  SPR_REVERSAL = 415,
  SPR_RECORD_RANK = 416,    // 416..420 places 1st..5th
  SPR_RECORD_SECONDS = 421, // 421..430
  SPR_RECORD_HUNDREDTHS = 431,  // 431..440
  SPR_RECORD_POINT = 442,
  SPR_RECORD_TEXT_A = 443,
  SPR_RECORD_TEXT_B = 444,
  SPR_DEMO = 445,
  SPR_CONGRAT_A = 446,
  SPR_CONGRAT_B = 447,
};

constexpr float kBackLayer = -100.0f;   // behind anything nearer than 100 units
constexpr float kFrontLayer = 511.0f;   // in front of the whole 3D scene
constexpr int kDrawModePlain = 40;
constexpr int kDrawModeGlowGrow = 41;
constexpr int kDrawModeGlowFade = 45;

// The winner's pose is being shown (the camera counts it).
inline bool win_pose_running() { return Match.win_pose_count > 0; }
// The closing replay runs: the knock-out is being shown again.
inline bool closing_replay() { return Match.after_ko != 0 && Match.after_ko_frames >= 50; }

// The power gauges, drawn with the messages.
void Draw_PowerGauges();
// The fill of a fighter's power gauge in layout units: where it starts and how wide it is.
struct GaugeFill {
  int x;
  int w;
};
GaugeFill Power_Fill(int fighter);

// The round call, FIGHT and the end-of-round messages: the one message of the moment.
void Draw_Message();
// One frame of the challenger notice (drawn when `drawn`): its phase counts down and, when it
// has run out, the select screen takes over (Challenger_Step).
void Run_ChallengerNotice(bool drawn);

}  // namespace hud
