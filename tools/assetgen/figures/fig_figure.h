// Building a fighter: its skeleton, its model and the layout of its texture list.
#pragma once
#include "figures/fig_types.h"

namespace fig {

// Which picture each entry of a model's texture list shows: its body region (see
// fig_body_internal.h) and whether it is the face, which sits at the row's replaced index.
struct TextureLayout {
  int count = 0;
  int region[kMaxTextures];
  int colouring = 0;  // 0 first colours, 1 second
};

// The skeleton of a character (0..14). Its legs are sized so that in the fighting stance the
// foot's centre lands at the character's foot height.
void Fig_BuildSkeleton(int character, Skeleton& out);
// The model of a row (0..29). False when a piece did not fit the capacities.
bool Fig_BuildModel(int row, Model& out, TextureLayout& layout);

// The reference skeleton the shared motions are authored on (the first character's).
const Skeleton& Fig_ReferenceSkeleton();

// The face texture's v at height fraction t of the head (0 chin, 1 crown); the painter draws the
// eyes, brows and mouth where the head mesh puts them.
float Face_V(float t);

// Vertical placement the game applies to a character standing (its standing offset), and the
// height at which it pins the foot's centre.
float Fig_StandingOffset(int character);
float Fig_FootHeight(int character);
constexpr float kStandingY = 3.2f;  // pos_y of a standing fighter

}  // namespace fig
