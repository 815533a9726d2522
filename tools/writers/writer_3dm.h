// Model files (".3DM") for fighters and effects: vertices, texture coordinates, faces, part
// records for parts 2..max_tag, texture names.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "writers/writer_bytes.h"

namespace writers {

using Bytes = std::vector<std::uint8_t>;  // a file's bytes

struct Vertex3DM {
  float x = 0, y = 0, z = 0;
  float nx = 0, ny = 0, nz = 0;
  std::int32_t part = 2;  // 2..20 body parts, 21 flexible, 30 + 5i + k flag points
};
struct UV3DM {
  float u = 0, v = 0;  // texel units, 0..255 across the picture
};
struct Face3DM {
  std::int16_t vtx[3] = {1, 1, 1};  // vertex numbers from 1, A B C counter-clockwise in front
  std::int16_t uv[3] = {1, 1, 1};   // coordinate numbers from 1
  std::int32_t texture = 0;         // index into the texture list
};
struct Part3DM {
  float box[8][3] = {};               // bounding box corners
  std::int16_t shadow[18] = {};       // six triangles of box corner numbers
};
struct Model3DM {
  std::vector<Vertex3DM> vertices;
  std::vector<UV3DM> uvs;
  std::vector<Face3DM> faces;
  std::int32_t max_tag = 1;            // records follow for parts 2..max_tag
  std::vector<Part3DM> parts;          // parts[p - 2]; missing ones are written as zeros
  std::vector<std::string> textures;   // at most 13 characters each
};

// The file's bytes. False when a texture name does not fit its 14-byte field.
bool Encode_3DM(const Model3DM& model, Bytes& out);
bool Write_3DM(const char* path, const Model3DM& model);

// Byte offsets of the counts in an encoded model (for patching a count in a test).
std::size_t Offset_UVCount(const Model3DM& model);
std::size_t Offset_FaceCount(const Model3DM& model);
std::size_t Offset_TagCount(const Model3DM& model);
std::size_t Offset_TextureCount(const Model3DM& model);

}  // namespace writers
