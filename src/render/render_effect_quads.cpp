// The effect pass's textured squares: camera-facing billboards and squares lying flat.
#include <GL/gl.h>

#include "assets/asset_image.h"
#include "fight/fight_state.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "render/render_math.h"
#include "render/render_sprite.h"
#include "render/render_state.h"
#include "render/render_view.h"

namespace {

constexpr float kNearest = 1.0f;  // a centre nearer the camera than this draws nothing
constexpr float kFloorY = -5.9f;  // the plane of the gauge-charge flash
constexpr float kRingSide = 20.0f;
constexpr int kFacingUnmirrored = 90;  // billboards of a fighter facing +x are drawn as stored
constexpr float kCornerS[4] = {0, 1, 1, 0};
constexpr float kCornerT[4] = {0, 0, 1, 1};

struct RingColour {
  GLubyte r, g, b;
};
constexpr RingColour kRingColours[5] = {
    {255, 255, 255},  // 0: not a colour; drawn white
    {255, 0, 0},      // RING_RED
    {0, 255, 0},      // RING_GREEN
    {0, 0, 255},      // RING_BLUE
    {128, 128, 128},  // RING_GREY
};

using Emitter = void (*)(const ScreenVertex&, const ScreenVertex&, const ScreenVertex&);

void bind_slot(int slot) {
  if (slot >= 0 && slot < TEXTURE_SLOTS) glBindTexture(GL_TEXTURE_2D, Textures.TextureId[slot]);
}

// Corner k of a quad at screen point p with camera depth z.
void set_corner(ScreenVertex* q, int k, ScreenPoint p, float z) {
  q[k].x = static_cast<float>(p.sx);
  q[k].y = static_cast<float>(p.sy);
  q[k].z = z;
  q[k].s = kCornerS[k];
  q[k].t = kCornerT[k];
  q[k].r = q[k].g = q[k].b = q[k].a = 255;
}

// The quad's two triangles, (2, 3, 0) and (2, 0, 1), in one block.
void emit_quad(const ScreenVertex* q, Emitter emit) {
  glBegin(GL_TRIANGLES);
  emit(q[2], q[3], q[0]);
  emit(q[2], q[0], q[1]);
  glEnd();
}

// A glow-blended billboard whose picture is mostly black border: the whole square goes into
// the depth buffer as before, but only the part of the screen under the rest of the picture is
// coloured, which saves most of the cost of the flip-books' wide black margins.
void emit_glow_quad(const ScreenVertex* q, int slot, Emitter emit) {
  const bool add = Glow_AddOn(slot);
  if (!Glow_WorthCutting(slot)) {
    emit_quad(q, emit);
    Glow_AddOff(add);
    return;
  }
  glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);  // depth only: nothing to sample or blend
  glDisable(GL_TEXTURE_2D);
  glDisable(GL_BLEND);
  emit_quad(q, emit);
  glEnable(GL_BLEND);
  glEnable(GL_TEXTURE_2D);
  glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  if (Glow_ScissorOn(q, slot)) emit_quad(q, emit);
  Glow_ScissorOff();
  Glow_AddOff(add);
}

// A camera-facing square of side `size` about the world point (x, y, z); false when the point
// is too near the camera or behind it.
bool billboard(ScreenVertex* q, float size, float x, float y, float z, bool mirrored) {
  float X, Y, Z;
  Mat_Apply(&View, x, y, z, &X, &Y, &Z);
  if (!(Z >= kNearest)) return false;
  const float h = size / 2.0f;
  float l = X - h, r = X + h;
  if (mirrored) {
    const float swap = l;
    l = r;
    r = swap;
  }
  const float t = Y + h, b = Y - h;
  set_corner(q, 0, Project_Point(l, t, Z), Z);
  set_corner(q, 1, Project_Point(r, t, Z), Z);
  set_corner(q, 2, Project_Point(r, b, Z), Z);
  set_corner(q, 3, Project_Point(l, b, Z), Z);
  return true;
}

// A square lying in the plane y from (x0, z0) to (x1, z1), far edge on top; false when its
// centre is too near the camera or a corner lies behind it.
bool floor_square(ScreenVertex* q, float y, float x0, float z0, float x1, float z1) {
  float X, Y, Z;
  Mat_Apply(&View, (x0 + x1) / 2.0f, y, (z0 + z1) / 2.0f, &X, &Y, &Z);
  if (!(Z >= kNearest)) return false;
  const float xs[4] = {x0, x1, x1, x0};
  const float zs[4] = {z1, z1, z0, z0};
  for (int k = 0; k < 4; ++k) {
    Mat_Apply(&View, xs[k], y, zs[k], &X, &Y, &Z);
    if (!(Z > 0.0f)) return false;
    set_corner(q, k, Project_Point(X, Y, Z), Z);
  }
  return true;
}

bool valid_effect(int i) { return i >= 0 && i < HIT_EFFECTS; }

}  // namespace

void Draw_EffectBillboard(int effect, int slot, float size) {
  if (!valid_effect(effect)) return;
  const HitEffect& e = Effects.Hit_Effect[effect];
  ScreenVertex q[4];
  if (!billboard(q, size, e.x, e.y, e.z, e.facing != kFacingUnmirrored)) return;
  bind_slot(slot);
  emit_glow_quad(q, slot, Emit_TriDepth);
}

void Draw_Billboard(int slot, float size, float x, float y, float z, int facing) {
  ScreenVertex q[4];
  if (!billboard(q, size, x, y, z, facing != kFacingUnmirrored)) return;
  bind_slot(slot);
  emit_glow_quad(q, slot, Emit_Tri);
}

void Draw_SparkBillboard(int spark, int slot, float size) {
  if (spark < 0 || spark >= SPARKS) return;
  const Spark& s = Effects.Sparks[spark];
  ScreenVertex q[4];
  if (!billboard(q, size, s.x, s.y, s.z, false)) return;
  int grey = (SPARK_LIFE - s.age) * 5;
  grey = grey < 0 ? 0 : grey > 255 ? 255 : grey;
  bind_slot(slot);
  glColor3ub(static_cast<GLubyte>(grey), static_cast<GLubyte>(grey), static_cast<GLubyte>(grey));
  emit_glow_quad(q, slot, Emit_TriDepth);
  glColor3ub(255, 255, 255);
}

void Draw_EffectFloorQuad(int effect, int slot, float size) {
  if (!valid_effect(effect)) return;
  const HitEffect& e = Effects.Hit_Effect[effect];
  const float h = size / 2.0f;
  ScreenVertex q[4];
  if (!floor_square(q, e.y, e.x - h, e.z - h, e.x + h, e.z + h)) return;
  bind_slot(slot);
  emit_quad(q, Emit_Tri);
}

void Draw_FighterFloorQuad(int fighter, int slot, float size) {
  if (fighter < 0 || fighter > 1) return;
  const float cx = Draw.Body_Centre[fighter][0];  // written by the placement this frame
  const float cz = Draw.Body_Centre[fighter][2];
  const float x0 = static_cast<float>(static_cast<int>(cx - size / 2.0f));
  const float z0 = static_cast<float>(static_cast<int>(cz - size / 2.0f));
  ScreenVertex q[4];
  if (!floor_square(q, kFloorY, x0, z0, x0 + size, z0 + size)) return;
  bind_slot(slot);
  emit_quad(q, Emit_Tri);
}

void Draw_GlowRing(const GlowRing& ring) {
  const float h = kRingSide / 2.0f;
  ScreenVertex q[4];
  if (!floor_square(q, ring.y, ring.x - h, ring.z - h, ring.x + h, ring.z + h)) return;
  const RingColour c =
      kRingColours[ring.colour >= RING_RED && ring.colour <= RING_GREY ? ring.colour : 0];
  Set_DrawMode(141);
  Blend_Glow();
  bind_slot(Sprites.Raster_Slot[SPRITE_LIGHT_POOL]);
  glColor3ub(c.r, c.g, c.b);
  emit_quad(q, Emit_Tri);
  glColor3ub(255, 255, 255);
}
