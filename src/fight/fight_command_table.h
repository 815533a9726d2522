// The command rows: sequences of direction codes, newest first, that a player's history
// completes. Read by the recogniser and by the computer opponent.
#pragma once
#include <cstdint>

// Direction codes in the history. Code 0 never occurs.
enum : std::int32_t {
  CODE_END = -1,  // closes a row
  CODE_NEUTRAL = -2,
  CODE_BACK = 1,
  CODE_FORWARD = 2,
  CODE_DOWN = 3,
  CODE_DOWN_BACK = 4,
  CODE_DOWN_FORWARD = 5,
};

constexpr int COMMAND_ROWS = 15;
constexpr int COMMAND_CODES = 7;

// One command: its codes from the newest to the oldest, closed by CODE_END (the rest 0),
// and the command it gives. Rows are tried in order; the first that matches wins.
struct CommandRow {
  std::int32_t codes[COMMAND_CODES];
  std::int32_t command;
};
extern const CommandRow Command_Table[COMMAND_ROWS];

// The command slot of a command with an attack button (1..4): 4 x command, + 2 for the
// 3-4 pair, + 1 for buttons 1 and 3. Slots 0..11 are the super moves.
int command_slot(int command, int button);
