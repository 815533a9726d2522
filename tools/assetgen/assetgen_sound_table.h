// What every sound number is: one row per number, 0..177.
//
// Sounds 6..126 are the ten fighters' blocks of voice clips (each fighter's frame cues,
// attack shouts, hit, down and jump voices), the rest the shared effects, the announcer
// and the menus. The game names a few of these numbers in audio/audio.h.
#pragma once
#include <cstdint>

namespace gen {

enum SoundKind : std::uint8_t {
  // Effects made here from noise, tones and envelopes; `who` is the weight 0..2.
  WHOOSH, IMPACT, GUARD, WEAPON, STEP, FALL, CLASH, LAUNCH, FLASH, SLAM, CHARGE, COIN,
  START, CURSOR, RAPID,
  // Voices; `who` is the fighter (or -1: the announcer), `text` what is said.
  EFFORT, SHOUT, HURT, DOWN, JUMP, CALL, NAME,
};

struct SoundRow {
  SoundKind kind;
  std::int8_t who;
  const char* text;
};

constexpr int kSoundCount = 178;
constexpr SoundRow kSoundTable[kSoundCount] = {
    {WHOOSH, 0, nullptr},   // 0: light swing
    {WHOOSH, 1, nullptr},   // 1: medium swing
    {WHOOSH, 2, nullptr},   // 2: heavy swing
    {STEP, 0, nullptr},     // 3: footstep
    {STEP, 2, nullptr},     // 4: landing
    {FALL, 1, nullptr},     // 5: body falls
    {EFFORT, 0, "hah"},     // 6: fighter 0 cue
    {EFFORT, 0, "tah"},     // 7: fighter 0 cue
    {EFFORT, 0, "seh"},     // 8: fighter 0 cue
    {EFFORT, 0, "hyah"},    // 9: fighter 0 cue
    {EFFORT, 0, "toh"},     // 10: fighter 0 cue
    {EFFORT, 0, "ho"},      // 11: fighter 0 cue
    {EFFORT, 0, "rah"},     // 12: fighter 0 cue
    {EFFORT, 0, "heh"},     // 13: fighter 0 cue
    {JUMP, 0, "hup"},       // 14: fighter 0 jump (also cue 14)
    {HURT, 0, "ugh"},       // 15: fighter 0 hit
    {SHOUT, 0, "hyaaah"},   // 16: fighter 0 attack shout
    {DOWN, 0, "aaargh"},    // 17: fighter 0 down
    {EFFORT, 1, "ha"},      // 18: fighter 1 cue
    {JUMP, 1, "hup"},       // 19: fighter 1 jump
    {EFFORT, 1, "yah"},     // 20: fighter 1 cue
    {EFFORT, 1, "tey"},     // 21: fighter 1 cue
    {EFFORT, 1, "hah"},     // 22: fighter 1 cue
    {EFFORT, 1, "sah"},     // 23: fighter 1 cue
    {EFFORT, 1, "hee"},     // 24: fighter 1 cue
    {EFFORT, 1, "to"},      // 25: fighter 1 cue
    {EFFORT, 1, "yeh"},     // 26: fighter 1 cue
    {EFFORT, 1, "ha ha"},   // 27: fighter 1 cue
    {EFFORT, 1, "kyah"},    // 28: fighter 1 cue
    {EFFORT, 1, "ey"},      // 29: fighter 1 cue
    {SHOUT, 1, "hyaah"},    // 30: fighter 1 first shout
    {SHOUT, 1, "teyaah"},   // 31: fighter 1 second shout
    {HURT, 1, "ah"},        // 32: fighter 1 hit
    {DOWN, 1, "aaaah"},     // 33: fighter 1 down
    {EFFORT, 2, "hoh"},     // 34: fighter 2 cue
    {EFFORT, 2, "rah"},     // 35: fighter 2 cue
    {EFFORT, 2, "gah"},     // 36: fighter 2 cue
    {EFFORT, 2, "hmph"},    // 37: fighter 2 cue
    {EFFORT, 2, "doh"},     // 38: fighter 2 cue
    {EFFORT, 2, "ugh"},     // 39: fighter 2 cue
    {EFFORT, 2, "hah"},     // 40: fighter 2 cue
    {EFFORT, 2, "bah"},     // 41: fighter 2 cue
    {EFFORT, 2, "grah"},    // 42: fighter 2 cue
    {SHOUT, 2, "raaah"},    // 43: fighter 2 first shout
    {JUMP, 2, "hup"},       // 44: fighter 2 jump
    {SHOUT, 2, "ooraah"},   // 45: fighter 2 second shout
    {HURT, 2, "guh"},       // 46: fighter 2 hit
    {DOWN, 2, "nooo"},      // 47: fighter 2 down
    {EFFORT, 3, "hah"},     // 48: fighter 3 cue
    {EFFORT, 3, "yah"},     // 49: fighter 3 cue
    {EFFORT, 3, "tah"},     // 50: fighter 3 cue
    {EFFORT, 3, "sey"},     // 51: fighter 3 cue
    {EFFORT, 3, "hoo"},     // 52: fighter 3 cue
    {JUMP, 3, "hup"},       // 53: fighter 3 jump (also cue 65)
    {EFFORT, 3, "ta ta"},   // 54: fighter 3 cue
    {EFFORT, 3, "hey"},     // 55: fighter 3 cue
    {SHOUT, 3, "hyaaah"},   // 56: fighter 3 attack shout
    {HURT, 3, "oof"},       // 57: fighter 3 hit
    {DOWN, 3, "aaargh"},    // 58: fighter 3 down
    {DOWN, 4, "aaaah"},     // 59: fighter 4 down (also cue 80)
    {EFFORT, 4, "hah"},     // 60: fighter 4 cue
    {SHOUT, 4, "yaah"},     // 61: fighter 4 first shout
    {JUMP, 4, "hup"},       // 62: fighter 4 jump (also cue 83)
    {EFFORT, 4, "tey"},     // 63: fighter 4 cue
    {SHOUT, 4, "hyaah"},    // 64: fighter 4 second shout
    {HURT, 4, "ah"},        // 65: fighter 4 hit
    {EFFORT, 5, "hah"},     // 66: fighter 5 cue
    {EFFORT, 5, "tch"},     // 67: fighter 5 cue
    {JUMP, 5, "hup"},       // 68: fighter 5 jump (also cue 102)
    {EFFORT, 5, "rah"},     // 69: fighter 5 cue
    {EFFORT, 5, "gah"},     // 70: fighter 5 cue
    {SHOUT, 5, "oraah"},    // 71: fighter 5 first shout
    {SHOUT, 5, "daah"},     // 72: fighter 5 second shout
    {HURT, 5, "ugh"},       // 73: fighter 5 hit
    {DOWN, 5, "graaah"},    // 74: fighter 5 down
    {EFFORT, 6, "ha"},      // 75: fighter 6 cue
    {EFFORT, 6, "heh"},     // 76: fighter 6 cue
    {EFFORT, 6, "sah"},     // 77: fighter 6 cue
    {EFFORT, 6, "tah"},     // 78: fighter 6 cue
    {HURT, 6, "gah"},       // 79: fighter 6 hit
    {DOWN, 6, "aaagh"},     // 80: fighter 6 down
    {EFFORT, 6, "hoh"},     // 81: fighter 6 cue
    {EFFORT, 6, "yah"},     // 82: fighter 6 cue
    {EFFORT, 6, "hm"},      // 83: fighter 6 cue
    {EFFORT, 6, "ha ha"},   // 84: fighter 6 cue
    {EFFORT, 6, "go"},      // 85: fighter 6 cue
    {EFFORT, 6, "take this"},  // 86: fighter 6 cue
    {EFFORT, 6, "burn"},    // 87: fighter 6 cue
    {JUMP, 6, "hup"},       // 88: fighter 6 jump
    {SHOUT, 6, "hyaah"},    // 89: fighter 6 first shout
    {SHOUT, 6, "seyaah"},   // 90: fighter 6 second shout
    {EFFORT, 6, "hah"},     // 91: fighter 6 spare effort
    {EFFORT, 7, "ha"},      // 92: fighter 7 cue
    {EFFORT, 7, "yah"},     // 93: fighter 7 cue
    {EFFORT, 7, "tey"},     // 94: fighter 7 cue
    {EFFORT, 7, "hee"},     // 95: fighter 7 cue
    {EFFORT, 7, "sah"},     // 96: fighter 7 cue
    {EFFORT, 7, "hah"},     // 97: fighter 7 cue
    {JUMP, 7, "hup"},       // 98: fighter 7 jump (also cue 146)
    {EFFORT, 7, "to"},      // 99: fighter 7 cue
    {EFFORT, 7, "ey"},      // 100: fighter 7 cue
    {EFFORT, 7, "kyah"},    // 101: fighter 7 cue
    {DOWN, 7, "aaaah"},     // 102: fighter 7 down (also cue 150)
    {SHOUT, 7, "hyaah"},    // 103: fighter 7 first shout
    {SHOUT, 7, "teyaah"},   // 104: fighter 7 second shout
    {HURT, 7, "ah"},        // 105: fighter 7 hit
    {HURT, 8, "ugh"},       // 106: fighter 8 hit
    {DOWN, 8, "aaargh"},    // 107: fighter 8 down
    {EFFORT, 8, "hah"},     // 108: fighter 8 cue
    {SHOUT, 8, "oryah"},    // 109: fighter 8 first shout
    {EFFORT, 8, "tah"},     // 110: fighter 8 cue
    {SHOUT, 8, "hyaah"},    // 111: fighter 8 second shout
    {JUMP, 8, "hup"},       // 112: fighter 8 jump
    {EFFORT, 8, "sey"},     // 113: fighter 8 cue
    {EFFORT, 8, "rah"},     // 114: fighter 8 cue
    {EFFORT, 9, "hoh"},     // 115: fighter 9 cue
    {EFFORT, 9, "rah"},     // 116: fighter 9 cue
    {JUMP, 9, "hup"},       // 117: fighter 9 jump (also cue 182)
    {EFFORT, 9, "gah"},     // 118: fighter 9 cue
    {EFFORT, 9, "hah"},     // 119: fighter 9 cue
    {EFFORT, 9, "doh"},     // 120: fighter 9 cue
    {EFFORT, 9, "hmph"},    // 121: fighter 9 cue
    {EFFORT, 9, "grah"},    // 122: fighter 9 cue
    {SHOUT, 9, "raaah"},    // 123: fighter 9 first shout
    {SHOUT, 9, "ooraah"},   // 124: fighter 9 second shout
    {HURT, 9, "guh"},       // 125: fighter 9 hit
    {DOWN, 9, "nooo"},      // 126: fighter 9 down
    {NAME, 0, nullptr},     // 127: name of fighter 0
    {NAME, 1, nullptr},     // 128: name of fighter 1
    {NAME, 2, nullptr},     // 129: name of fighter 2
    {NAME, 3, nullptr},     // 130: name of fighter 3
    {NAME, 4, nullptr},     // 131: name of fighter 4
    {NAME, 5, nullptr},     // 132: name of fighter 5
    {NAME, 6, nullptr},     // 133: name of fighter 6
    {NAME, 7, nullptr},     // 134: name of fighter 7
    {NAME, 8, nullptr},     // 135: name of fighter 8
    {NAME, 9, nullptr},     // 136: name of fighter 9
    {CALL, -1, "Round"},    // 137: round call
    {CALL, -1, "One"},      // 138: round one
    {CALL, -1, "Two"},      // 139: round two
    {CALL, -1, "Three"},    // 140: round three
    {CALL, -1, "Four"},     // 141: round four
    {CALL, -1, "Final round"},  // 142: final round
    {CALL, -1, "Fight!"},   // 143: fight
    {CALL, -1, "K. O."},    // 144: knock-out
    {CALL, -1, "Time over"},  // 145: time over
    {COIN, 0, nullptr},     // 146: coin chime (heard even with the sound off)
    {START, 0, nullptr},    // 147: start, join, continue taken, options left
    {CURSOR, 0, nullptr},   // 148: cursor move
    {CALL, -1, "A hidden warrior!"},  // 149: name call of the extra fighters
    {GUARD, 0, nullptr},    // 150: light guard
    {CLASH, 0, nullptr},    // 151: projectiles clash
    {GUARD, 2, nullptr},    // 152: heavy guard
    {IMPACT, 1, nullptr},   // 153: hit
    {WEAPON, 0, nullptr},   // 154: weapon hit
    {SLAM, 1, nullptr},     // 155: body slam (cue 203)
    {IMPACT, 0, nullptr},   // 156: light hit
    {IMPACT, 2, nullptr},   // 157: heavy hit
    {WHOOSH, 2, nullptr},   // 158: heavy attack swing
    {WHOOSH, 0, nullptr},   // 159: light attack swing
    {LAUNCH, 0, nullptr},   // 160: projectile thrown
    {FLASH, 0, nullptr},    // 161: opening flash
    {FALL, 2, nullptr},     // 162: heavy fall
    {CHARGE, 0, nullptr},   // 163: super move flash
    {CALL, -1, "Game over"},  // 164: game over
    {CALL, -1, "Continue?"},  // 165: continue
    {CALL, -1, "Perfect!"},   // 166: perfect
    {CALL, -1, "A challenger enters!"},  // 167: challenger
    {SLAM, 2, nullptr},     // 168: opening title
    {EFFORT, 1, "yah ha"},  // 169: fighter 1 cue
    {EFFORT, 1, "tey yah"}, // 170: fighter 1 cue
    {EFFORT, 1, "hah"},     // 171: fighter 1 cue
    {EFFORT, 3, "hyah"},    // 172: fighter 3 cue
    {EFFORT, 5, "dah"},     // 173: fighter 5 cue
    {STEP, 1, nullptr},     // 174: heavy step
    {CHARGE, 1, nullptr},   // 175: gauge full
    {RAPID, 0, nullptr},    // 176: opening blow flurry
    {WHOOSH, 1, nullptr},   // 177: dash
};

}  // namespace gen
