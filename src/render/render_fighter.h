// Fighter drawing state shared between the placement, the mesh and the attachment chains, and
// the helpers that place a single body part.
//
// FighterDraw is written by the fighter placement (slots 2..21, the centres), by the attachment
// chains (slots 30..54) and by the flexible swing (Start_Flex, Step_Flex); the mesh, the
// effects and the fight core read it.
#pragma once
#include <cstdint>

#include "render/render_math.h"

constexpr int PART_SLOTS = 60;         // matrix slots per fighter: body parts, then chain points
constexpr int FIRST_CHAIN_SLOT = 30;   // slot of point k of attachment i: 30 + 5i + k
constexpr int LAST_CHAIN_SLOT = 54;

struct FighterDraw {
  Mat43 WorldRot[2][PART_SLOTS];  // rotation (first nine entries) of each slot's world matrix
  Mat43 EyeMat[2][PART_SLOTS];    // world matrix followed by the camera
  float Body_Centre[2][3];        // centre of the hips' box, slid onto the line of travel
  float Foot_Centre[2][3];        // centre of the foot's box, when the feet are held down
  float Part_Centre[2][3];        // the part centre last asked for by Part_Centre
  // The flexible part's swing: amplitude left, stretch in hundredths, direction 1 or -1.
  std::int32_t flex_amp[2];
  std::int32_t flex_pos[2];
  std::int32_t flex_dir[2];
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

// ---- placement, shadow and mesh ---------------------------------------------------------
constexpr float SHADOW_FLOOR_Y = -5.8f;    // the fight's floor for shadows
constexpr float SHOWCASE_FLOOR_Y = -5.7f;  // the floor of the front-end showcase
constexpr float SHADOW_LAYER_Z = -100.0f;  // shadows lie behind everything nearer than 100

// Centre of body part p's box, posed alone, turned by yaw and moved to the fighter's position
// and height without any vertical placement; stored in Draw.Part_Centre[player].
void Part_Centre(int player, int p);
// Places every part: world and eye matrices, part boxes, Body_Centre (and Foot_Centre when
// the feet are held to the floor). Needs the frame's pose and View.
void Place_Fighter(int player);
// The fighter's flat black shadow from the boxes of the last placement (none in game mode 3).
void Draw_Shadow(int player);
// The textured mesh from the last placement's eye matrices.
void Draw_Mesh(int player);
// Placement and part boxes only, with the plain standing or crouching offset and no extra
// turn of the head, for frames on which nothing is drawn.
void Place_FighterOnly(int player);
// The showcase's placement: no vertical offset, the shadow's floor at -5.7 (not drawn).
void Place_Showcase(int player);
// Runs down the fight's impact timer by one (each mesh, showcase and placement-only pass).
void Run_ImpactTimer();
// Placement with no vertical offset, boxes, and the mesh with normals, without alternate
// faces or fading: a fighter shown off in a front-end scene.
void Draw_Showcase(int player);
// The fight's character pass: flexible swings, placement, shadows, meshes and chains in the
// order the fight's state asks for, then the effect pass unless the win pose runs. While the
// winner poses, the beaten fighter is held lying (action 50).
void Draw_Fighters();
// The same pass with nothing drawn, for a fight frame stepped as drawn without its picture:
// every state change of Draw_Fighters (swings, placement and part boxes, chains, the impact
// timer, the loser held lying, Step_Effects) in the same order.
void Step_Fighters();

// ---- the flexible part -------------------------------------------------------------------
// Starts the swing: strength 2 gives amplitude 70, 3 gives 80, anything else 60.
void Start_Flex(int player, int strength, int direction);
// One frame of the swing.
void Step_Flex(int player);
