// Every character's own actions: its special and super moves, its holds and held reactions,
// its stance-23 attacks and its victory poses, each a motion in that character's style.
#pragma once
#include <cstdint>
#include <vector>

#include "motion/mot_motion.h"

namespace mv {

// A mark written over one baked frame (a footfall, the body striking the floor).
struct Mark {
  int frame;
  std::int16_t part, hit;
};

struct Move {
  int action = 0;
  mot::Motion motion{};
  std::vector<Mark> marks;
  int entry = 0;    // frames a linked start skips (0: starts at the first frame)
  int window = -1;  // last frame of the link window, -1 when the move has none
  int share = -1;   // an earlier move of the list whose frames this one plays, or -1
};

// The character's own actions (character 0..14), in file order.
void Mv_CharacterMoves(int character, std::vector<Move>& out);

// One move of the given kind done in a character's style (used by the opening).
Move Mv_StyledMove(int character, int action, int arch, int main_hit, int finish_hit, bool mirror);

// The projectile a character's action launches (its hit kind), or 0.
int Mv_ProjectileKind(int character, int action);

// Every held reaction a defender may be put in, with the hold it answers.
struct HoldPair {
  std::int16_t hold, held;
};
int Mv_HoldPairCount();
const HoldPair& Mv_HoldPair(int index);

}  // namespace mv
