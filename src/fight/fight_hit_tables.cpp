// What a strike's code means: its guard class, its damage and the sounds of its cues.
#include "fight/fight_hit.h"
#include "fight/fight_state.h"

namespace {

// Guard class by strike kind; `special` marks the kinds that pull instead of stagger.
struct KindHeight {
  std::int16_t first, last, height, special;
};
constexpr KindHeight kHeights[] = {
    {1, 1, 1, 0},    // jab
    {4, 4, 1, 0},    // mid
    {7, 7, 1, 0},    // heavy mid
    {10, 10, 1, 0},  // heavy
    {18, 19, 1, 0},  // burst strikes
    {21, 25, 1, 0},  // special reactions and projectiles
    {34, 34, 1, 0},  // the knock-down mid
    {37, 37, 1, 0},  // the spin
    {42, 43, 1, 0},  // card and axe projectiles
    {2, 2, 2, 0},    // high
    {8, 8, 2, 0},    // heavy high
    {11, 11, 2, 0},  // heavier high
    {33, 33, 2, 0},  // the high knock-down
    {3, 3, 3, 0},    // low
    {9, 9, 3, 0},    // sweep
    {12, 12, 3, 0},  // heavy low
    {13, 13, 1, 1},  // pulling mid
    {26, 27, 1, 1},  // pulling reactions
    {35, 35, 1, 1},  // multi-hit mid
    {41, 41, 1, 1},  // the long pull
    {14, 14, 2, 1},  // pulling high
    {15, 15, 3, 1},  // pulling low
    {36, 36, 3, 1},  // multi-hit low
    {28, 32, 4, 0},  // unblockable
};

// Damage by strike kind, where the kind fixes it.
struct KindPower {
  std::int16_t first, last, power;
};
constexpr KindPower kPowers[] = {
    {0, 0, 4},    // kind 0
    {1, 1, 3},    // jab
    {2, 2, 4},    // high
    {3, 3, 3},    // low
    {4, 4, 5},    // mid
    {6, 8, 7},    // heavy
    {9, 9, 3},    // sweep
    {10, 11, 10}, // heavy mid and high
    {12, 12, 12}, // heavy low
    {13, 15, 2},  // pulls
    {16, 16, 2},  // launcher
    {18, 19, 1},  // bursts
    {20, 20, 7},  // high launcher
    {21, 24, 7},  // special reactions, projectile
    {25, 25, 3},  // strong projectile
    {26, 27, 2},  // pulling reactions
    {28, 28, 3},  // unblockable light
    {29, 29, 7},  // unblockable
    {30, 30, 10}, // unblockable heavy
    {31, 31, 15}, // unblockable heavier
    {32, 32, 35}, // super
    {33, 33, 10}, // high knock-down
    {34, 34, 7},  // knock-down mid
    {37, 37, 7},  // spin
    {41, 41, 9},  // long pull
    {42, 42, 7},  // cards
};

// The axe's damage by frame_count mod 10.
constexpr std::int16_t kAxePower[10] = {5, 5, 5, 8, 8, 8, 10, 10, 13, 2};  // 0..9

// Cue sounds with the voice setting at 1: one row per cue range, either a fixed sound per cue
// (`sound` + cue - first) or the character's second shout (sound -1).
struct CueRow {
  std::int16_t first, last, sound;
};
constexpr CueRow kCues[] = {
    {0, 5, 0},        // light swings
    {14, 14, 14},     // jump
    {22, 22, 20},     // cue 22
    {24, 26, 22},     // cues 24..26
    {28, 28, 26},     // cue 28
    {30, 31, 28},     // cues 30, 31
    {60, 61, 48},     // cues 60, 61
    {63, 64, 51},     // cues 63, 64
    {81, 84, 60},     // cues 81..84
    {140, 140, 92},   // cue 140
    {160, 160, 108},  // cue 160
    {161, 161, 110},  // cue 161
    {162, 162, 113},  // cue 162
    {184, 184, 119},  // cue 184
    {200, 200, 159},  // light whoosh
    {201, 201, 158},  // heavy whoosh
    {203, 203, 155},  // cue 203
};

// Each character's second attack shout; -1 for none.
constexpr std::int16_t kSecondShout[16] = {
    16, 31, 45, 56, 64, 72, 90, 104,   // 0..7
    111, 124, 56, 16, 104, 124, -1, -1,  // 8..15
};

}  // namespace

std::int32_t Strike_Height(std::int32_t kind, std::int32_t* special) {
  for (const KindHeight& row : kHeights) {
    if (kind < row.first || kind > row.last) continue;
    *special = row.special;
    return row.height;
  }
  *special = 0;
  return kind;  // every other kind is its own class
}

std::int32_t Strike_Power(std::int32_t kind, std::int32_t power) {
  if (kind == 35 || kind == 36) return frame_count % 3 != 0 ? 1 : 2;
  if (kind == 43) return kAxePower[frame_count % 10];
  for (const KindPower& row : kPowers)
    if (kind >= row.first && kind <= row.last) return row.power;
  return power;
}

int Cue_Sound(int cue, int character) {
  if (cue < 0) return -1;
  for (const CueRow& row : kCues)
    if (cue >= row.first && cue <= row.last) return row.sound + cue - row.first;
  if (character < 0 || character > 15) return -1;
  return kSecondShout[character];
}
