// Effect models: one placement matrix, the software projection, one triangle block per run of
// faces that share a texture.
#include "render/render_3dsprite.h"

#include <GL/gl.h>

#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "render/render_math.h"
#include "render/render_view.h"

namespace {

// Projected vertices of the model being drawn (entry 0 unused). Written only here.
struct SpriteScratch {
  ScreenPoint screen[MODEL_MAX_VTX + 1];
  float depth[MODEL_MAX_VTX + 1];
};
SpriteScratch Scratch;

int wrap_angle(int a) { return ((a % ANGLES) + ANGLES) % ANGLES; }

// Counts as far as the record has room, whatever a damaged record says.
int vertex_count(const EffectModel& E) {
  return E.max_vtx < MODEL_MAX_VTX ? E.max_vtx : MODEL_MAX_VTX;
}
int face_count(const EffectModel& E) {
  return E.max_face < MODEL_MAX_FACE ? E.max_face : MODEL_MAX_FACE;
}

void project_vertices(const EffectModel& E, const Mat43& eye) {
  for (int i = 1; i <= vertex_count(E); ++i) {
    const MeshVertex& v = E.vtx[i];
    float X, Y, Z;
    Mat_Apply(&eye, v.x, v.y, v.z, &X, &Y, &Z);
    Scratch.depth[i] = Z;
    Scratch.screen[i] = Z > 0.0f ? Project_Point(X, Y, Z) : ScreenPoint{0, 0};
  }
}

bool vertex_ok(const EffectModel& E, int i) {
  return i >= 1 && i <= vertex_count(E) && Scratch.depth[i] > 0.0f;
}

// The face is drawn when its corners run clockwise on the screen (y grows downward), or when
// they collapse onto one line.
bool faces_camera(const MeshFace& f) {
  const ScreenPoint& a = Scratch.screen[f.vtx[0]];
  const ScreenPoint& b = Scratch.screen[f.vtx[1]];
  const ScreenPoint& c = Scratch.screen[f.vtx[2]];
  const double cross =
      double(b.sx - a.sx) * double(c.sy - a.sy) - double(b.sy - a.sy) * double(c.sx - a.sx);
  return cross >= 0.0;
}

void send_corner(const EffectModel& E, int vtx, int uv) {
  const MeshUV t = uv >= 1 && uv <= E.max_uv && uv <= MODEL_MAX_UV ? E.uv[uv] : MeshUV{0, 0};
  const ScreenPoint& p = Scratch.screen[vtx];
  glTexCoord2f(t.u, t.v);
  glVertex3f(static_cast<float>(p.sx), static_cast<float>(-p.sy), -Scratch.depth[vtx]);
}

void draw_faces(const EffectModel& E) {
  int bound = -1;
  glBegin(GL_TRIANGLES);
  for (int i = 1; i <= face_count(E); ++i) {
    const MeshFace& f = E.face[i];
    if (!vertex_ok(E, f.vtx[0]) || !vertex_ok(E, f.vtx[1]) || !vertex_ok(E, f.vtx[2])) continue;
    if (!faces_camera(f)) continue;
    if (f.slot != bound && f.slot >= 0 && f.slot < TEXTURE_SLOTS) {
      glEnd();
      glBindTexture(GL_TEXTURE_2D, Textures.TextureId[f.slot]);
      glBegin(GL_TRIANGLES);
      bound = f.slot;
    }
    for (int k = 0; k < 3; ++k) send_corner(E, f.vtx[k], f.uv[k]);
  }
  glEnd();
}

}  // namespace

void Draw_3DSprite(int index, float x, float y, float z, int a1, int a2, int a3, float scale) {
  if (index < 0 || index >= EFFECT_MODELS) return;
  const EffectModel& E = Polygon_Sprite[index];
  Mat43 s, turn, placed, eye;
  Mat_Scale(&s, scale);
  Mat_Euler(&turn, wrap_angle(a1), wrap_angle(a2), wrap_angle(a3), x, y, z);
  Mat_Mul(&placed, &s, &turn);
  Mat_Mul(&eye, &placed, &View);
  project_vertices(E, eye);
  glShadeModel(GL_SMOOTH);
  draw_faces(E);
  glShadeModel(GL_FLAT);
}
