// Fighter models (".3DM") into the two model records, and effect models.
//
// A model file is, with no header: i32 Nv and Nv vertex records (x, y, z, normal, part);
// i32 Nu and Nu texture coordinates (u, v in 0..255); i32 Nf and Nf faces (three vertex
// numbers, three coordinate numbers, texture index); i32 last part Nt and the records of
// parts 2..Nt (bounding box, shadow outline); i32 Nx and Nx texture names of 14 bytes.
// Vertices, coordinates and faces are numbered from 1 in the records; entry 0 is unused.
#pragma once
#include <cstdint>

constexpr int MODEL_MAX_VTX = 899;   // vertices and texture coordinates a record holds
constexpr int MODEL_MAX_UV = 899;
constexpr int MODEL_MAX_FACE = 999;
constexpr int MODEL_MAX_TAG = 21;    // last body part: 21 is the flexible part
constexpr int MODEL_FLEX_PART = 21;
constexpr int MODEL_PARTS = 22;      // part records 0..21 (0 and 1 have none)
constexpr int MODEL_FLAG_PART = 30;  // vertex parts 30 + 5i + k: point k of attachment i
constexpr int MODEL_PART_SLOTS = 60; // vertex part numbers name a matrix slot 0..59
constexpr int MODEL_KEY_FRAMES = 2500;
constexpr int MODEL_KEY_PARTS = 20;  // parts 2..21 at index part - 2
constexpr int MODEL_KEY_VALUES = 12; // 9 rotation values, then 3 translation values
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

// A fighter's model. Written by Load_3DM (all but key_frame) and by the character animation
// loader (key_frame); read by posing and the fighter drawing.
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
  std::int16_t key_frame[MODEL_KEY_FRAMES][MODEL_KEY_PARTS][MODEL_KEY_VALUES];
  std::int32_t face_slot;  // the slot the alternate faces stand in for
  std::int32_t alt1_slot;  // first and second alternate face textures
  std::int32_t alt2_slot;
};
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

// One attachment chain as the model file lays it out (flag points), with its set-up. The
// model loader creates attachments it finds points for; the character loader's set-up and
// reset_match_fighters write `present` and the limits; the attachment chains read them.
constexpr int ATTACHMENTS = 5;
constexpr int ATTACH_POINTS = 5;
struct ModelAttachment {
  std::int32_t present;
  std::int32_t anchor_part;
  std::int32_t lower, upper;  // swing limits, degrees
  std::int32_t reverse;
  std::int32_t last_point;    // highest point number seen, 0..4; never lowered by a load
  float point[ATTACH_POINTS][3];
};
// The fighter's attachment table (player 0 or 1, attachment 0..4).
ModelAttachment& Fighter_Attachment(int player, int attachment);

// The fighter models of the character table (rows 0..14 first colours, 15..29 second):
// model file, first and second alternate face pictures, and the number of the model texture
// the alternates replace.
struct CharacterModelRow {
  const char* model;
  const char* alt1;
  const char* alt2;
  int replaced;
};
constexpr int CHARACTER_ROWS = 30;
inline constexpr CharacterModelRow CharacterModels[CHARACTER_ROWS] = {
    {"ban.3dm", "BANDM.bmp", "BANVC1.bmp", 0},         // row 0
    {"hana.3dm", "HANADM.bmp", "HANAVC.bmp", 16},      // row 1
    {"kaiden.3dm", "KAIDDM.bmp", "KAIDVC1.bmp", 6},    // row 2
    {"eunyu.3dm", "EUNYDM.bmp", "EUNYVC.bmp", 11},     // row 3
    {"bruce.3dm", "DANGDM.bmp", "DANGVC.bmp", 0},      // row 4
    {"honoka.3dm", "HONO1PDM.bmp", "HONO1PVC.bmp", 0}, // row 5
    {"rabalt2p.3dm", "A8_.bmp", "A8_.bmp", 0},         // row 6
    {"reimei.3dm", "REI1PDM.bmp", "REI1PVC.bmp", 1},   // row 7
    {"robot.3dm", "SP3FAC3.bmp", "VASH1PVC.bmp", 4},   // row 8
    {"crow.3dm", "KNIFDM.bmp", "C6FAC12.bmp", 17},     // row 9
    {"spc1_1p.3dm", "EUNSPFDM.bmp", "EUNSPFVC.bmp", 19},  // row 10
    {"spc2_1p.3dm", "GESTDM.bmp", "GESTVC.bmp", 6},    // row 11
    {"spc3_1p.3dm", "ZXFACDM.bmp", "ZXFACVC.bmp", 3},  // row 12
    {"spc4_1p.3dm", "OEWFACDM.bmp", "OEWFACVC.bmp", 5},   // row 13
    {"banboss.3dm", "21BOSSDM.bmp", "21BOSS.bmp", 0},  // row 14
    {"ban2p.3dm", "BANDM.bmp", "BANVC1.bmp", 0},       // row 15
    {"hana2p.3dm", "HANADM.bmp", "HANAVC.bmp", 16},    // row 16
    {"kaiden2p.3dm", "KAIDDM.bmp", "KAIDVC1.bmp", 6},  // row 17
    {"eunyu2p.3dm", "EUNYDM.bmp", "EUNYVC.bmp", 10},   // row 18
    {"bruce2p.3dm", "DANGDM.bmp", "DANGVC.bmp", 20},   // row 19
    {"honoka2p.3dm", "HONO2PDM.bmp", "HONO2PVC.bmp", 0},  // row 20
    {"rabalt.3dm", "A8_.bmp", "A8_.bmp", 0},           // row 21
    {"reimei2p.3dm", "REI1PDM.bmp", "REI1PVC.bmp", 1}, // row 22
    {"robot2p.3dm", "SP3FAC3.bmp", "S2FAC3.bmp", 4},   // row 23
    {"crow2p.3dm", "KNIFDM.bmp", "C2PFAC12.bmp", 0},   // row 24
    {"spc1_2p.3dm", "EUNSP2DM.bmp", "SC2FAC2.bmp", 13},   // row 25
    {"spc2_2p.3dm", "GESTDM.bmp", "GESTVC.bmp", 0},    // row 26
    {"spc3_2p.3dm", "ZX2FDM.bmp", "ZX2FVC.bmp", 3},    // row 27
    {"spc4_2p.3dm", "OEWFACDM.bmp", "OEWFACVC.bmp", 5},   // row 28
    {"banboss.3dm", "21BOSSDM.bmp", "21BOSS.bmp", 0},  // row 29
};

// The replaced-texture number of the row whose model file is `file` (letter case ignored;
// rows sharing a model agree), or -1 when no row names it: then no texture of the model is
// an alternate face and the face slot is the model's first texture slot.
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
