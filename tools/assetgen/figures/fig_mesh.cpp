// Mesh building blocks for the figures.
#include "figures/fig_mesh.h"

#include <algorithm>
#include <cmath>

namespace fig {
namespace {

// Signed power keeping the sign: flattens an ellipse toward a rounded box for k < 1.
float Spow(float v, float k) { return v < 0 ? -std::pow(-v, k) : std::pow(v, k); }

Vec3 Ring_Point(const Ring& r, float theta) {
  float c = std::cos(theta), s = std::sin(theta);
  float rad = 1.0f;
  float front = std::max(0.0f, s), back = std::max(0.0f, -s);
  rad += r.bulge_front * front * front * front * front;
  rad += r.bulge_back * back * back * back * back;
  return r.centre + r.side * (Spow(c, r.square) * r.rx * rad) + r.fwd * (Spow(s, r.square) * r.rz * rad);
}

}  // namespace

int Mesh_Vertex(Model& m, Vec3 p, float u, float v, int part) {
  if (m.vertex_count >= kMaxVertices || m.texcoord_count >= kMaxTexCoords) {
    m.overflow = true;
    return 0;
  }
  int n = ++m.vertex_count;
  m.vertices[n] = {p.x, p.y, p.z, 0, 0, 0, part};
  m.texcoords[++m.texcoord_count] = {u, v};
  return n;
}

bool Mesh_Face(Model& m, int a, int b, int c, int tex) {
  if (m.face_count >= kMaxFaces || a <= 0 || b <= 0 || c <= 0) {
    m.overflow = true;
    return false;
  }
  Face& f = m.faces[++m.face_count];
  f.a = static_cast<std::int16_t>(a);
  f.b = static_cast<std::int16_t>(b);
  f.c = static_cast<std::int16_t>(c);
  f.ta = f.a;  // every vertex carries its own texture coordinate
  f.tb = f.b;
  f.tc = f.c;
  f.tex = tex;
  return true;
}

bool Mesh_Quad(Model& m, int a, int b, int c, int d, int tex) {
  return Mesh_Face(m, a, b, c, tex) && Mesh_Face(m, a, c, d, tex);
}

bool Mesh_FaceOutward(Model& m, int a, int b, int c, int tex, Vec3 inside) {
  const Vertex& A = m.vertices[a];
  const Vertex& B = m.vertices[b];
  const Vertex& C = m.vertices[c];
  Vec3 pa{A.x, A.y, A.z}, pb{B.x, B.y, B.z}, pc{C.x, C.y, C.z};
  Vec3 n = Cross(pb - pa, pc - pa);
  Vec3 mid = (pa + pb + pc) * (1.0f / 3.0f);
  if (Dot(n, mid - inside) < 0) return Mesh_Face(m, a, c, b, tex);
  return Mesh_Face(m, a, b, c, tex);
}

bool Mesh_Loft(Model& m, const Loft& lf, const Ring* rings, int ring_count) {
  int cols = lf.sides + 1;
  int need_v = cols * ring_count + (lf.cap_first ? 1 : 0) + (lf.cap_last ? 1 : 0);
  int need_f = 2 * lf.sides * (ring_count - 1) + lf.sides * ((lf.cap_first ? 1 : 0) + (lf.cap_last ? 1 : 0));
  if (m.vertex_count + need_v > kMaxVertices || m.face_count + need_f > kMaxFaces) {
    m.overflow = true;
    return false;
  }
  int first = m.vertex_count + 1;
  for (int i = 0; i < ring_count; ++i) {
    float v = ring_count > 1 ? lf.v0 + (lf.v1 - lf.v0) * i / (ring_count - 1) : lf.v0;
    if (lf.ring_v) v = lf.ring_v[i];
    for (int j = 0; j < cols; ++j) {
      float theta = -0.5f * kPi + 2.0f * kPi * j / lf.sides;  // starts at the back
      float u = lf.u0 + (lf.u1 - lf.u0) * j / lf.sides;
      Mesh_Vertex(m, Ring_Point(rings[i], theta), u, v, lf.part);
    }
  }
  for (int i = 0; i + 1 < ring_count; ++i) {
    Vec3 inside = (rings[i].centre + rings[i + 1].centre) * 0.5f;
    for (int j = 0; j < lf.sides; ++j) {
      int a = first + i * cols + j, b = a + 1, c = a + cols + 1, d = a + cols;
      Mesh_FaceOutward(m, a, b, c, lf.tex, inside);
      Mesh_FaceOutward(m, a, c, d, lf.tex, inside);
    }
  }
  for (int end = 0; end < 2; ++end) {
    if (!(end == 0 ? lf.cap_first : lf.cap_last)) continue;
    int ri = end == 0 ? 0 : ring_count - 1;
    int other = end == 0 ? std::min(1, ring_count - 1) : std::max(0, ring_count - 2);
    Vec3 axis = rings[ri].centre - rings[other].centre;
    if (Length(axis) < 1e-6f) axis = Cross(rings[ri].side, rings[ri].fwd) * (end == 0 ? -1.0f : 1.0f);
    float v = end == 0 ? lf.v0 : lf.v1;
    int centre = Mesh_Vertex(m, rings[ri].centre + Normalise(axis) * 0.02f, (lf.u0 + lf.u1) * 0.5f, v, lf.part);
    Vec3 inside = rings[ri].centre - Normalise(axis);
    for (int j = 0; j < lf.sides; ++j) {
      int a = first + ri * cols + j;
      Mesh_FaceOutward(m, centre, a, a + 1, lf.tex, inside);
    }
  }
  return true;
}

namespace {

// Corner number of the box corner at the low (0) or high (1) end of each axis.
int Box_Corner(int ix, int iy, int iz) { return iy * 4 + (iz ? (ix ? 2 : 3) : (ix ? 1 : 0)); }

}  // namespace

// The floor shadow of a box is the box swept along its longest side: whichever way the part
// lies, its outline is covered by the two diagonal sections along that side (one of them always
// spans the outline's full width), with half of each end face to round off the ends. Covering
// the two end faces and only one section instead leaves thin streaks wherever the other
// diagonal is the wide one.
void Box_Shadow(float size_x, float size_y, float size_z, std::int16_t out[18]) {
  const float size[3] = {size_x, size_y, size_z};
  int along = 1;
  if (size[0] > size[along]) along = 0;
  if (size[2] > size[along]) along = 2;
  const int u = along == 0 ? 1 : 0, v = along == 2 ? 1 : 2;
  // End `e`'s corners in order round the face.
  auto corner = [&](int e, int k) {
    static constexpr int kRound[4][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    int at[3];
    at[along] = e;
    at[u] = kRound[k][0];
    at[v] = kRound[k][1];
    return static_cast<std::int16_t>(Box_Corner(at[0], at[1], at[2]));
  };
  const std::int16_t tris[18] = {corner(0, 0), corner(0, 2), corner(1, 2), corner(0, 0), corner(1, 2), corner(1, 0),
                                 corner(0, 1), corner(0, 3), corner(1, 3), corner(0, 1), corner(1, 3), corner(1, 1),
                                 corner(0, 0), corner(0, 1), corner(0, 2), corner(1, 0), corner(1, 2), corner(1, 3)};
  std::copy(tris, tris + 18, out);
}

void Mesh_PartBox(const Model& m, int part, PartBox& box, bool& any) {
  float lo[3] = {1e9f, 1e9f, 1e9f}, hi[3] = {-1e9f, -1e9f, -1e9f};
  any = false;
  for (int i = 1; i <= m.vertex_count; ++i) {
    const Vertex& v = m.vertices[i];
    if (v.part != part) continue;
    any = true;
    float p[3] = {v.x, v.y, v.z};
    for (int k = 0; k < 3; ++k) {
      lo[k] = std::min(lo[k], p[k]);
      hi[k] = std::max(hi[k], p[k]);
    }
  }
  if (!any)
    for (int k = 0; k < 3; ++k) lo[k] = hi[k] = 0;
  // Corners 0..3 the lower face, 4..7 the upper, each going round x then z.
  for (int c = 0; c < 8; ++c) {
    int ix = (c & 1) ^ ((c >> 1) & 1), iz = (c >> 1) & 1;
    box.corner[c][0] = ix ? hi[0] : lo[0];
    box.corner[c][1] = c >= 4 ? hi[1] : lo[1];
    box.corner[c][2] = iz ? hi[2] : lo[2];
  }
  Box_Shadow(hi[0] - lo[0], hi[1] - lo[1], hi[2] - lo[2], box.shadow);
}

void Mesh_Finish(Model& m, const int* region_to_texture, int max_tag) {
  for (int f = 1; f <= m.face_count; ++f) m.faces[f].tex = region_to_texture[m.faces[f].tex];
  std::stable_sort(m.faces + 1, m.faces + 1 + m.face_count,
                   [](const Face& a, const Face& b) { return a.tex < b.tex; });
  // Area-weighted face normals gathered at the corners.
  for (int i = 1; i <= m.vertex_count; ++i) m.vertices[i].nx = m.vertices[i].ny = m.vertices[i].nz = 0;
  for (int f = 1; f <= m.face_count; ++f) {
    const Face& fc = m.faces[f];
    Vertex* v[3] = {&m.vertices[fc.a], &m.vertices[fc.b], &m.vertices[fc.c]};
    Vec3 p0{v[0]->x, v[0]->y, v[0]->z}, p1{v[1]->x, v[1]->y, v[1]->z}, p2{v[2]->x, v[2]->y, v[2]->z};
    Vec3 n = Cross(p1 - p0, p2 - p0);
    for (Vertex* w : v) {
      w->nx += n.x;
      w->ny += n.y;
      w->nz += n.z;
    }
  }
  // Seams: vertices of the same part at the same place share one normal.
  static Vec3 sum[kMaxVertices + 1];
  for (int i = 1; i <= m.vertex_count; ++i) sum[i] = {m.vertices[i].nx, m.vertices[i].ny, m.vertices[i].nz};
  for (int i = 1; i <= m.vertex_count; ++i) {
    const Vertex& a = m.vertices[i];
    Vec3 acc = sum[i];
    for (int j = 1; j <= m.vertex_count; ++j) {
      const Vertex& b = m.vertices[j];
      if (j != i && b.part == a.part && std::fabs(a.x - b.x) < 1e-4f && std::fabs(a.y - b.y) < 1e-4f &&
          std::fabs(a.z - b.z) < 1e-4f)
        acc = acc + sum[j];
    }
    Vec3 n = Normalise(acc);
    m.vertices[i].nx = n.x;
    m.vertices[i].ny = n.y;
    m.vertices[i].nz = n.z;
  }
  m.max_tag = max_tag;
  for (int p = 2; p <= max_tag; ++p) {
    bool any = false;
    Mesh_PartBox(m, p, m.boxes[p], any);
  }
}

}  // namespace fig
