// The arena: a tiled floor that follows the camera, on some stages a pool of light, a strip of
// painted backdrop panels that scrolls with the camera, and the super-move backdrops that
// replace the arena during some moves. Also the near-plane clipping triangle emitter.
//
// StageState is written only by the stage loaders (meshes and slots) and by Stage_SetBrightness
// (the screen-vertex colours); the stage pass reads it.
#pragma once
#include <cstdint>

#include "assets/asset_image.h"

constexpr int FLOOR_GRID = 8;                      // vertices per side of a floor mesh
constexpr int FLOOR_VERTICES = FLOOR_GRID * FLOOR_GRID;
constexpr int FLOOR_TRIANGLES = 2 * (FLOOR_GRID - 1) * (FLOOR_GRID - 1);
constexpr float FLOOR_TILE = 70.0f;                // the floor repeats every 70 units
constexpr float FLOOR_Y = -5.9f;
constexpr float LIGHT_POOL_Y = -5.8f;
constexpr float STAGE_LAYER_Z = -100.0f;  // floor and backdrop lie behind the fighters
constexpr float NEAR_Z = 10.0f;           // the floor and light pool are clipped here
constexpr int BACKDROP_VERTICES = 8;
constexpr int BACKDROP_PANELS = 3;
constexpr float BACKDROP_WIDTH = 120.0f;  // one copy of the three panels
constexpr int SUPER_SPRITE_0 = 450;       // super-move picture of fighter 0's character
constexpr int SUPER_SPRITE_1 = 451;       // and of fighter 1's
constexpr int SUPER_SHADE_SPRITE = 126;   // darkens the screen while a super move runs
static_assert(FLOOR_TRIANGLES == 98);
static_assert(sizeof(ScreenVertex) == 28, "the clipper interpolates every field of a corner");

struct StagePoint {
  float x, y, z, s, t;
};
static_assert(sizeof(StagePoint) == 20);
// A floor or light-pool mesh: the 8 x 8 grid, or the one square of a front-end scene.
struct StageMesh {
  std::int32_t vertex_count;
  std::int32_t triangle_count;
  StagePoint v[FLOOR_VERTICES];
  std::int32_t tri[FLOOR_TRIANGLES][3];
};

struct StageState {
  std::int32_t floor_slot;
  StageMesh floor;
  std::int32_t light_slot;
  StageMesh light;
  std::int32_t Stage_Light;  // 1 when the stage shows the light pool
  std::int32_t backdrop_slot[BACKDROP_PANELS];
  float backdrop[BACKDROP_VERTICES][3];  // 0..3 the top row, 4..7 the bottom row
  std::int32_t panel[BACKDROP_PANELS][4];  // top-left, top-right, bottom-right, bottom-left
  // Screen-vertex records the passes transform into; only their colours persist.
  ScreenVertex floor_sv[FLOOR_VERTICES];
  ScreenVertex light_sv[FLOOR_VERTICES];
  ScreenVertex backdrop_sv[BACKDROP_VERTICES];
};
extern StageState Stage;

// One character's stage pictures (the stage table) and super-move picture.
struct StagePictures {
  const char* floor;
  const char* light;
  std::int32_t light_on;
  const char* backdrop[BACKDROP_PANELS];
  const char* super_move;
};
constexpr int STAGE_CHARACTERS = 15;
extern const StagePictures StageTable[STAGE_CHARACTERS];

// Loaders. A missing floor, light or backdrop picture ends the program ("Texture Loading
// Error"); with the slot table full the pictures are skipped and stale slots stay.
void Load_Stage(int player);  // super-move pictures of both fighters, then player's stage
void Load_Floor(const char* name);
void Load_LightPool(const char* name);
void Load_Backdrop(const char* bg1, const char* bg2, const char* bg3);
void Load_SmallFloor(const char* name);  // one 12 x 12 square, for a front-end scene

// Drawing. Every pass needs Set_View first (Draw_Stage calls it).
void Draw_Stage();
// The super move's flash, one frame: the stage darkens by 15 a frame, stays dark three frames
// and brightens by 10 a frame (Draw_Stage runs it).
void Step_SuperFlash();
// What Draw_Stage changes besides the picture, for a fight frame stepped without drawing: the
// view, the super move's flash and the glow ring's counter.
void Step_Stage();
void Draw_Floor();
void Draw_LightPool();
void Draw_Backdrop();
void Draw_BackdropAt(float dx);
void Draw_SmallFloor();

// Emits a camera-space triangle (x, y, Z in the records) clipped against the plane Z = 10:
// projected, with Emit_Tri, inside the caller's GL_TRIANGLES block.
void Emit_ClippedTri(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);
// The clipping itself: the projected triangles (x, y on the screen, z the camera depth) that
// Emit_ClippedTri sends, three corners each, in order. Returns 0, 1 or 2. A corner whose depth
// is not a number drops the triangle.
int Clip_Triangle(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                  ScreenVertex out[6]);

// Sets the colour of the stage's screen-vertex records (called by Set_Brightness).
void Stage_SetBrightness(std::uint16_t level);

// The floor tiles' centres along one axis for a look-at coordinate: (t - 1, t, t + 1) x 70
// with t = trunc(look / 70).
void Floor_TileCentres(float look, float out[3]);

// The backdrop strip's base for the frame: where vertex 5 lands (bx, by) and its depth bZ.
struct BackdropBase {
  float bx, by, bZ;
};
BackdropBase Backdrop_Base();
// The strip, where it closes the screen from edge to edge: false when it leaves a gap at a
// side (or stands behind the eye); else true with `bottom`, the screen row its lower edge lies
// on (everything above it is strip; the top edge never lies below the screen top).
bool Backdrop_Cover(const BackdropBase& base, int* bottom);
