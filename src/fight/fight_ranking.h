// The two rankings kept from start-up to exit: the longest winning streaks and the fastest
// winning clocks. Eleven slots each; the first ten are shown, the eleventh takes what falls off.
//
// Written by the start-up (the time adjustment to the life setting), the match rules (entries)
// and nothing else; the ranking screen reads them.
#pragma once
#include <cstdint>

constexpr int RANK_SLOTS = 11;
constexpr int RANK_SHOWN = 10;

struct RankEntry {
  std::int16_t value;      // streak, or clock value at the winning blow
  std::int16_t character;  // character index 0..14
};

struct Rankings {
  RankEntry StreakRanking[RANK_SLOTS];  // descending
  RankEntry TimeRanking[RANK_SLOTS];    // ascending
};
extern Rankings Ranks;

// Raises the default times to the life setting read at start-up: +1000 for setting 2, +2000
// for any other value but 1. Made once; later changes of the setting do not repeat it.
void Adjust_TimeRanking(int life_setting);

// Enters fighter p's streak with its character and clears the streak, placed or not.
void Enter_StreakRanking(int p);
// Enters the round clock with fighter p's character; the place 1..5, or 0 when the entry
// lands 6th..10th or not at all.
int Enter_TimeRanking(int p);
