// Mesh building blocks for the figures: vertices, faces, lofted tubes, and the finishing passes
// (normals, grouping by texture, part boxes). Internal to the figure generator.
#pragma once
#include "figures/fig_math.h"
#include "figures/fig_types.h"

namespace fig {

// A cross-section of a lofted piece: an ellipse about `centre` spanned by `side` (radius rx) and
// `fwd` (radius rz). `square` below 1 flattens it toward a rounded box; `bulge_front` and
// `bulge_back` push the section out around the fwd and the -fwd direction (a nose, a chest,
// shoulder blades, calves).
struct Ring {
  Vec3 centre;
  float rx = 0.5f, rz = 0.5f;
  float square = 1.0f;
  float bulge_front = 0.0f, bulge_back = 0.0f;
  Vec3 side{1, 0, 0}, fwd{0, 0, 1};
};

struct Loft {
  int part = 2;
  int tex = 0;           // region id, turned into the model's texture index at the end
  int sides = 8;
  float u0 = 0, u1 = 255;  // texture span around the section (back, right, front, left, back)
  float v0 = 0, v1 = 255;  // texture span from the first to the last ring
  const float* ring_v = nullptr;  // or each ring's own texture row
  bool cap_first = false, cap_last = false;
};

// Returns false (and adds nothing) when the piece would exceed the model's capacities.
bool Mesh_Loft(Model& m, const Loft& loft, const Ring* rings, int ring_count);
int Mesh_Vertex(Model& m, Vec3 p, float u, float v, int part);  // 0 when full
bool Mesh_Face(Model& m, int a, int b, int c, int tex);
// A face whose normal points away from `inside`, two corners swapped if needed.
bool Mesh_FaceOutward(Model& m, int a, int b, int c, int tex, Vec3 inside);
// A flat quad strip a b c d (counter-clockwise seen from the front) made two triangles.
bool Mesh_Quad(Model& m, int a, int b, int c, int d, int tex);

// Finishing: per-vertex normals (smoothed across seams of the same part), faces sorted by
// texture, part boxes for parts 2..max_tag. `region_to_texture` maps region ids to texture
// indices.
void Mesh_Finish(Model& m, const int* region_to_texture, int max_tag);
void Mesh_PartBox(const Model& m, int part, PartBox& box, bool& any);
// The six triangles (corner numbers) that outline the floor shadow of a box of these sides.
void Box_Shadow(float size_x, float size_y, float size_z, std::int16_t out[18]);

}  // namespace fig
