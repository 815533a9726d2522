// Plain in-memory records of a generated fighter: its mesh (as a model file holds it), its
// skeleton (as a skeleton file holds it) and its painted textures. The file writers turn these
// into bytes; nothing here knows a file layout beyond the capacities the game's loaders check.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace fig {

constexpr int kMaxVertices = 899;  // the model loader's capacities
constexpr int kMaxTexCoords = 899;
constexpr int kMaxFaces = 999;
constexpr int kMaxPart = 21;
constexpr int kMaxTextures = 24;  // per model, far below the slot table's 1000
constexpr int kNameBytes = 14;    // texture names: 13 characters and the terminator
constexpr int kCharacters = 15;
constexpr int kRows = 30;

// Body-part numbers shared by every model, skeleton and animation. Model space: the figure faces
// +z with y up; its right side is +x.
enum Part : int {
  P_HEAD = 2, P_CHEST = 3, P_PELVIS = 4,
  P_R_UPPERARM = 5, P_R_FOREARM = 6, P_R_HAND = 7,
  P_R_THIGH = 8, P_R_SHIN = 9, P_R_FOOT = 10,
  P_L_UPPERARM = 11, P_L_FOREARM = 12, P_L_HAND = 13,
  P_L_THIGH = 14, P_L_SHIN = 15, P_L_FOOT = 16,
  P_R_HAND2 = 17, P_L_HAND2 = 18, P_WEAPON_R = 19, P_WEAPON_L = 20, P_FLEX = 21,
  P_FLAG_FIRST = 30,  // 30 + 5 i + k: point k of attachment i
};
constexpr int Flag_Part(int attachment, int point) { return 30 + 5 * attachment + point; }

struct Vertex {
  float x, y, z;
  float nx, ny, nz;
  std::int32_t part;
};
struct TexCoord {
  float u, v;  // 0..255 spans the texture once; larger values repeat it
};
struct Face {
  std::int16_t a, b, c;     // vertex numbers, 1-based; outward normal by (B-A) x (C-A)
  std::int16_t ta, tb, tc;  // texture-coordinate numbers, 1-based
  std::int32_t tex;         // 0-based index into the model's texture list
};
struct PartBox {
  float corner[8][3];      // corners 0..3 the lower face, 4..7 the upper, same order
  std::int16_t shadow[18];  // six triangles of corner numbers outlining the floor shadow
};

// One fighter model: everything a model file holds.
struct Model {
  int vertex_count = 0;
  Vertex vertices[kMaxVertices + 1];  // index 0 unused, as the file numbers from 1
  int texcoord_count = 0;
  TexCoord texcoords[kMaxTexCoords + 1];
  int face_count = 0;
  Face faces[kMaxFaces + 1];
  int max_tag = 0;                  // last part number with a box record (2..max_tag)
  PartBox boxes[kMaxPart + 1];      // index = part number
  int texture_count = 0;
  char textures[kMaxTextures][kNameBytes];
  bool overflow = false;  // set by the builder when a piece did not fit the capacities
};

// Joint positions of parts 2..last_part as the skeleton file stores them: model units / 10.
struct Skeleton {
  int last_part = 21;
  float joint[30][3];
};

// An RGB picture, rows top to bottom (row 0 is texture coordinate t = 0).
struct Image {
  int width = 0, height = 0;
  std::vector<std::uint8_t> rgb;
};

struct NamedImage {
  std::string name;
  Image image;
};

}  // namespace fig
