// Fighter models (".3DM") into the two model records, and effect models.
//
// A model file is, with no header: i32 Nv and Nv vertex records (x, y, z, normal, part);
// i32 Nu and Nu texture coordinates (u, v in 0..255); i32 Nf and Nf faces (three vertex
// numbers, three coordinate numbers, texture index); i32 last part Nt and the records of
// parts 2..Nt (bounding box, shadow outline); i32 Nx and Nx texture names of 14 bytes.
// Vertices, coordinates and faces are numbered from 1 in the records; entry 0 is unused.
#pragma once
#include <cstdint>

#include "fight/fight_state.h"

constexpr int MODEL_MAX_VTX = 899;   // vertices and texture coordinates a record holds
constexpr int MODEL_MAX_UV = 899;
constexpr int MODEL_MAX_FACE = 999;
constexpr int MODEL_MAX_TAG = 21;    // last body part: 21 is the flexible part
constexpr int MODEL_FLEX_PART = 21;
constexpr int MODEL_PARTS = 22;      // part records 0..21 (0 and 1 have none)
constexpr int MODEL_FLAG_PART = 30;  // vertex parts 30 + 5i + k: point k of attachment i
constexpr int MODEL_PART_SLOTS = 60; // vertex part numbers name a matrix slot 0..59
constexpr int EFFECT_MODELS = 3;
constexpr int EFFECT_MAX_TAG = 4;    // an effect model keeps part records 0..4 only

struct MeshVertex {
  float x, y, z;
  float depth;  // flexible part: height above its lowest vertex in z; 0 for the others
  float nx, ny, nz;
  std::int32_t part;
};
struct MeshFace {
  std::int16_t vtx[3];  // vertex numbers of corners A, B, C (A, B, C order is the front)
  std::int16_t uv[3];   // texture-coordinate numbers of A, B, C
  std::int32_t slot;    // texture slot: the file's texture index + Texture_Count at load start
};
struct MeshUV {
  float u, v;  // file value / 255
};
struct PartBox {
  float corner[8][3];
};
struct PartShadow {
  std::int16_t corner[18];  // six triangles of box corner numbers 0..7
};
static_assert(sizeof(MeshVertex) == 32 && sizeof(MeshFace) == 16 && sizeof(MeshUV) == 8);
static_assert(sizeof(PartBox) == 96 && sizeof(PartShadow) == 36);

// A fighter's model. Written only by Load_3DM; read by the fighter drawing and the fight's
// part boxes. (The character's own key frames live with the animation tables.)
struct KnightModel {
  std::int32_t max_tag;
  std::int32_t max_vtx;
  std::int32_t max_face;
  std::int32_t max_uv;
  MeshVertex vtx[MODEL_MAX_VTX + 1];
  MeshFace face[MODEL_MAX_FACE + 1];
  MeshUV uv[MODEL_MAX_UV + 1];
  PartBox box[MODEL_PARTS];
  PartShadow shadow[MODEL_PARTS];
  std::int32_t face_slot;  // the slot the alternate faces stand in for
  std::int32_t alt1_slot;  // first and second alternate face textures
  std::int32_t alt2_slot;
};
static_assert(sizeof(KnightModel) == 16 + 900 * 32 + 1000 * 16 + 900 * 8 + 22 * (96 + 36) + 12);
extern KnightModel Knight[2];

// A weapon or effect model. Written only by Load_3DSprite; read by the effect drawing.
struct EffectModel {
  std::int32_t max_tag;  // last part record kept (at most EFFECT_MAX_TAG)
  std::int32_t max_vtx;
  std::int32_t max_face;
  std::int32_t max_uv;
  MeshVertex vtx[MODEL_MAX_VTX + 1];
  MeshFace face[MODEL_MAX_FACE + 1];
  PartBox box[EFFECT_MAX_TAG + 1];
  PartShadow shadow[EFFECT_MAX_TAG + 1];
  MeshUV uv[MODEL_MAX_UV + 1];
};
extern EffectModel Polygon_Sprite[EFFECT_MODELS];

// The fighter's attachment table (player 0 or 1, attachment 0..4). The model loader creates
// the attachments it finds flag points for; the character loader's set-up writes the rest.
Attachment& Fighter_Attachment(int player, int attachment);

// The number of the model texture that the alternate faces replace, from the character-table
// row whose model file is `file` (letter case ignored; rows sharing a model agree), or -1
// when no row names it: then the face slot is the model's first texture slot.
int Model_ReplacedTexture(const char* file);

// Reads a fighter's model into Knight[player], with the two alternate face pictures.
// Completes, or prints why and ends the program: "011" and status 1 when the file cannot be
// opened or is refused (counts beyond the record, short file, faces out of range), "012"
// to "014" and status 0 when a texture, the first or the second alternate face fails.
void Load_3DM(const char* file, int player, const char* alt1, const char* alt2);

// Reads a weapon or effect model into Polygon_Sprite[index] and loads its textures.
// Completes, or ends the program with status 0: "015" when the file cannot be opened or is
// refused, "016" when a texture fails.
void Load_3DSprite(const char* file, int index);
