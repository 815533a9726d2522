#include "fight/fight_ranking.h"

#include "fight/fight_state.h"

// clang-format off
Rankings Ranks = {
    {{5, 0}, {5, 1}, {4, 2}, {4, 3}, {3, 4}, {3, 5}, {3, 6}, {2, 7}, {2, 8}, {2, 9},  // 1st..10th
     {0, 0}},                                                                         // spill slot
    {{2000, 9}, {2100, 8}, {2200, 7}, {2300, 6}, {2400, 5}, {2500, 4}, {2520, 3},     // 1st..7th
     {2540, 2}, {2560, 1}, {2580, 0},                                                 // 8th..10th
     {2600, 0}},                                                                      // spill slot
};
// clang-format on

namespace {

// Walks up from the tenth slot and stops under the first entry that beats the new one, so a
// new entry goes above entries equal to it. Returns the slot index 0..9, or -1 when it does
// not place.
int place(const RankEntry* table, int value, bool descending) {
  int at = RANK_SHOWN;
  while (at > 0) {
    const int above = table[at - 1].value;
    const bool beats = descending ? above > value : above < value;
    if (beats) break;
    --at;
  }
  return at < RANK_SHOWN ? at : -1;
}

// Writes the entry at slot `at`, moving the entries from there through the tenth down one
// (the tenth into the spill slot).
void insert(RankEntry* table, int at, int value, int character) {
  for (int i = RANK_SHOWN; i > at; --i) table[i] = table[i - 1];
  table[at] = {static_cast<std::int16_t>(value), static_cast<std::int16_t>(character)};
}

}  // namespace

void Adjust_TimeRanking(int life_setting) {
  const int add = life_setting == 1 ? 0 : life_setting == 2 ? 1000 : 2000;
  for (RankEntry& e : Ranks.TimeRanking) e.value = static_cast<std::int16_t>(e.value + add);
}

void Enter_StreakRanking(int p) {
  if (p < 0 || p > 1) return;
  Fighter& f = fighters[p];
  const int at = place(Ranks.StreakRanking, f.streak, true);
  if (at >= 0) insert(Ranks.StreakRanking, at, f.streak, Match.character[p]);
  f.streak = 0;
}

int Enter_TimeRanking(int p) {
  if (p < 0 || p > 1) return 0;
  const int at = place(Ranks.TimeRanking, Match.clock, false);
  if (at < 0) return 0;
  insert(Ranks.TimeRanking, at, Match.clock, Match.character[p]);
  return at < 5 ? at + 1 : 0;
}
