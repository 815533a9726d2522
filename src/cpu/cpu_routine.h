// The character routines as data: every routine runs the same rules (cpu_routine.cpp) and
// differs only in the moves it picks inside them (cpu_routine_tables.cpp). Only src/cpu
// includes this.
#pragma once
#include <cstdint>

// What a routine does with one choice.
enum CpuDo : std::uint8_t {
  DO_NOTHING,
  DO_PRESS,    // command (or none) in a stance (or the current one), then the button
  DO_CLOSE,    // the button, or button 4 at 8.5 or more
  DO_B4_RULE,  // button 4; beyond 11.5 a jump in (button 4 released) or down
  DO_ACTION,   // start the action from its first frame
  DO_WALK_IN,
  DO_DASH_IN,
  DO_HOP_IN,   // at 14.5 or more or two times in three the press, else a jump forward
};

// When a choice is only taken in some situations.
enum CpuWhen : std::uint8_t {
  WHEN_ALWAYS,
  WHEN_NOT_CHARGING,  // the opponent charging its gauge is walked in on instead
  WHEN_NOT_WEAK,      // with gauge below 101 and life below 50 the routine walks in instead
  WHEN_CLOCK_HALF,    // only while frame_count mod 20 exceeds 10
  WHEN_JUMPING_IN,    // only against an opponent jumping in (nothing pressed otherwise)
};

struct CpuMove {
  CpuDo what = DO_NOTHING;
  std::int8_t button = 0;     // 1..4
  std::int8_t button23 = 0;   // the button in stance 23 when it differs, else 0
  std::int8_t down = 0;       // down held as well
  std::int8_t toggle = 0;     // the stance is toggled first (after, with an action)
  std::int16_t cmd = -1;      // command code written, -1 none
  std::int16_t stance = -1;   // stance written, -1 kept
  std::int16_t action = 0;    // DO_ACTION
  CpuWhen when = WHEN_ALWAYS;
};

// Which value picks among a table's choices.
enum CpuKey : std::uint8_t {
  KEY_K,       // (life + CpuRandom + level) mod n
  KEY_RANDOM,  // CpuRandom mod n
  KEY_LEVEL,   // CpuLevel mod n
};

constexpr int CPU_PICKS = 10;
struct CpuPick {
  CpuKey key = KEY_K;
  std::int8_t n = 1;  // 1: a single choice
  CpuMove moves[CPU_PICKS] = {};
};

// How a routine answers a low strike closing in below 13 (the guard rule).
enum CpuGuardLow : std::uint8_t {
  GUARD_CROUCHING,  // crouched attacks, with down held
  GUARD_STANDING,   // from crouch only below 10 and without down; standing kicks otherwise
};

struct CpuRoutine {
  // The gauge: the super command by distance (10 or more, below) and stance (0, 23).
  CpuPick super_far0, super_far23, super_near0, super_near23;
  // The juggle against an opponent in the air, at 10 or more and below.
  CpuMove juggle_far, juggle_near;
  std::int8_t own_air_rule;  // routine 1: a rule of its own, with a stage-10 juggle
  CpuMove juggle_stage10;
  // The guard against a plain strike: at 13 or more, and the style below 13.
  CpuMove guard_far;
  CpuGuardLow guard_low;
  // The distance bands.
  CpuPick band13;                      // 13 to 16
  std::int8_t dash_on_retreat;         // 10 to 13: dash in on an opponent backing off
  CpuPick band10_stance0, band10_stance23;  // 10 to 13
  CpuPick close;                       // below 10, ready
  // Against a crouching opponent: at 13 or more, 10 to 13, below 10; toe to toe.
  CpuMove crouch_far, crouch_mid, crouch_near;
  CpuMove crouch_close_even;
  CpuPick crouch_close_odd;
  std::int8_t both_crouching_button;  // toe to toe when both crouch
  // Toe to toe against a standing opponent.
  CpuPick close_standing;
  std::int8_t reacts_to_throws;  // uses the projectile and dash reactions
  std::int8_t renews_down_hold;  // runs the down hold inside its closing steps
};

constexpr int CPU_ROUTINES = 10;
extern const CpuRoutine CpuRoutines[CPU_ROUTINES];  // routine r at r - 1
