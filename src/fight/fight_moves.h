// Each character's move links: which action a command slot starts, which action may follow a
// running one, and which special moves turn into holds when they connect.
#pragma once
#include <cstdint>

constexpr int MOVE_CHARACTERS = 16;  // character indices 0..15 (15 has no moves)
constexpr int MOVE_SLOTS = 36;       // command slots 0..35
constexpr int CHAIN_LINKS = 36;      // links per character
constexpr std::int16_t NO_MOVE = 999;      // an empty slot
constexpr std::uint16_t NO_LINK = 65535;   // every value of an empty link

// One link: while `running` plays, the command of `slot` starts `next` (queued when `queued`
// is non-zero). A slot above 35 is itself an action number (the directional attacks look
// their own action up). `spare` is kept with the link and not read by the fight.
struct ChainLink {
  std::uint16_t running, slot, next, queued, spare;
};
static_assert(sizeof(ChainLink) == 10, "a link is five 16-bit values");

// Written only by build_move_tables at start-up; the fight and the computer read them.
struct MoveTableState {
  std::int16_t Special_Table[MOVE_CHARACTERS][MOVE_SLOTS];
  ChainLink Chain_Table[MOVE_CHARACTERS][CHAIN_LINKS];
};
extern MoveTableState MoveTables;

// Fills both tables: every slot empty, every link empty, then each character's rows
// (characters 0 and 14 share a set; 14 adds slot 17).
void build_move_tables();

// A special move that becomes a hold when it connects unguarded: for the characters in the
// mask (bit c for character c), `action` continues as `hold` and puts the defender in `held`.
struct HitGrab {
  std::uint16_t characters;
  std::int16_t action, hold, held;
  std::int16_t any_height;  // 1: the hold does not need the fighters' heights to be close
};
constexpr int HIT_GRABS = 18;
extern const HitGrab HitGrab_Table[HIT_GRABS];
// The first row for this character and action; false when the move is an ordinary strike.
bool find_hit_grab(int character, int action, int* hold, int* held, int* any_height);

// Command throws (command 3 close to a neutral opponent): the thrower's action and the
// opponent's. Character 7 has two.
struct CommandThrow {
  std::int16_t character, hold, held;
};
constexpr int COMMAND_THROWS = 3;
extern const CommandThrow CommandThrow_Table[COMMAND_THROWS];

// Hold actions whose link forces a reaction on the opponent when it starts from the queue.
struct ForcedReaction {
  std::int16_t hold, held;
};
constexpr int FORCED_REACTIONS = 2;
extern const ForcedReaction ForcedReaction_Table[FORCED_REACTIONS];
