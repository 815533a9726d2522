// Match preparation: the one-frame modes that choose the fighters, show the versus picture,
// load everything a fight needs and start it.
#pragma once
#include <cstdint>

constexpr int OPPONENTS = 10;      // characters met before the boss in a one-player run
constexpr int BOSS_CHARACTER = 14;
constexpr int BOSS_STAGE = 10;     // stage_count at which the boss is met
constexpr int DEMO_PAIRS = 30;

// The one-player run's order and the demonstration rotation. OpponentOrder is written by
// Shuffle_Opponents only (the run's order carries on from game to game); DemoIndex by
// Choose_DemoFighters; stage_side by the end of a challenger interruption.
struct PrepareState {
  // Characters met in a one-player run by stage_count, then the terminator 255.
  std::int32_t OpponentOrder[OPPONENTS + 2] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 255};
  std::int32_t DemoIndex = 0;  // the next row of the demonstration pairs
  // Two-player match: the side (of the player who joined last) whose stage and music play.
  std::int32_t stage_side = 0;
};
static_assert(sizeof PrepareState{}.OpponentOrder == (OPPONENTS + 2) * sizeof(std::int32_t),
              "eleven entries and the terminator");
extern PrepareState Prepare;

// MODE_FIGHT_LOAD and MODE_DEMO_LOAD: each runs within one frame and leaves the mode at
// MODE_FIGHT (or at MODE_TITLE for a demonstration cancelled by a start press). A missing
// fight picture set or fighter ends the program with status 0 after the codes "002" to "004"
// (match) or "005" to "007" (demonstration).
void Prepare_Match();
void Prepare_Demo();

// A player starts a game: shuffles OpponentOrder by 5..19 of the fixed swaps.
void Shuffle_Opponents();
// The select slot and level of each side the computer plays.
void Choose_Opponent();
// Both sides' select slots and levels for a demonstration.
void Choose_DemoFighters();
// The fighters' characters from their slots, then the versus picture.
void Show_Versus();
// The side whose character's stage and music a match uses.
int Stage_Side();

// The first mode of the run: the opening, or a match or demonstration entered directly
// (Shell.StartEntry, set by the headless program before the start-up). Run by the start-up
// after the first mode is set.
void Enter_StartMode();
// Reads a --start value: "fight:S0:S1" (two select slots 0..29) or "demo", into
// Shell.StartEntry and Shell.StartSlot. False, with Shell untouched, for anything else.
bool Shell_ParseStart(const char* text);
