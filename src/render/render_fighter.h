// Fighter drawing state shared between the placement, the mesh and the attachment chains, and
// the helpers that place a single body part.
//
// FighterDraw is written by the fighter placement (slots 2..21) and by the attachment chains
// (slots 30..54); the mesh and the fight core read it.
#pragma once
#include <cstdint>

#include "render/render_math.h"

constexpr int PART_SLOTS = 60;         // matrix slots per fighter: body parts, then chain points
constexpr int FIRST_CHAIN_SLOT = 30;   // slot of point k of attachment i: 30 + 5i + k
constexpr int LAST_CHAIN_SLOT = 54;

struct FighterDraw {
  Mat43 WorldRot[2][PART_SLOTS];  // rotation (first nine entries) of each slot's world matrix
  Mat43 EyeMat[2][PART_SLOTS];    // world matrix followed by the camera
};
extern FighterDraw Draw;

// Heights of one character: the vertical offsets standing and crouching, and where the centre
// of the foot sits when the feet are held to the floor.
struct CharacterHeights {
  float standing;
  float crouching;
  float foot;
};
constexpr int HEIGHT_ROWS = 15;
extern const CharacterHeights CharacterHeightTable[HEIGHT_ROWS];

// Which rule of the vertical placement applies to the fighter this frame.
enum PlacementRule : int {
  PLACE_FEET_ON_FLOOR,  // action 170, or busy while neither crouching nor reacting
  PLACE_HELD,           // busy and reacting: nothing added
  PLACE_POSTURE,        // rising, crouching down or up, standing or crouching
};
PlacementRule Placement_Rule(int player);
// The offset of the posture rows: rising, actions 30 and 31, standing, crouching.
float Posture_Offset(int player);

// The matrix that carries a point of body part p to the fighter's model space with its
// vertical term: the part's pose (with the first extra turn on part 2) and, added to the
// height, the posture offset plus `height` (nothing under the feet-on-floor rule, `height`
// alone while held). No yaw turn, no position. Poses the part. False, with out untouched,
// for a player or part that cannot be posed.
bool Part_PointMat(int player, int p, Mat43* out);
// The point (lx, ly, lz) of part p carried by Part_PointMat. A part that cannot be posed
// gives the point unchanged.
void Part_Point(int player, int p, float lx, float ly, float lz, float* ox, float* oy,
                float* oz);
