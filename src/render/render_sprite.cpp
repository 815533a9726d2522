// Screen sprites: quads of two triangles in the orthographic picture space.
#include "render/render_sprite.h"

#include <GL/gl.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "render/render_stage.h"
#include "render/render_state.h"

SpriteDrawState SpriteDraw;

namespace {

enum class Orient { AsStored, Mirrored, Turned };

constexpr float kFrontZ = 511.0f;   // in front of the whole 3D scene
constexpr float kBehindZ = -100.0f;  // behind anything nearer than 100 units
constexpr float kCornerS[4] = {0, 1, 1, 0};
constexpr float kCornerT[4] = {0, 0, 1, 1};

void vertex(const ScreenVertex& v, float z) {
  glTexCoord2f(v.s, v.t);
  glVertex3f(v.x, -v.y, z);
}

void colour3(const ScreenVertex& v) {
  glColor3ub(static_cast<GLubyte>(v.r), static_cast<GLubyte>(v.g), static_cast<GLubyte>(v.b));
}

void white() { glColor3ub(255, 255, 255); }

// Corner positions of a w x h picture with its unmirrored top-left at (x, y).
void place(ScreenVertex* q, int x, int y, int w, int h, Orient orient) {
  const float l = static_cast<float>(x), t = static_cast<float>(y);
  const float r = static_cast<float>(x + w), b = static_cast<float>(y + h);
  const float xs[3][4] = {{l, r, r, l}, {r, l, l, r}, {r, l, l, r}};
  const float ys[3][4] = {{t, t, b, b}, {t, t, b, b}, {b, b, t, t}};
  const int o = static_cast<int>(orient);
  for (int k = 0; k < 4; ++k) {
    q[k].x = xs[o][k];
    q[k].y = ys[o][k];
  }
}

using Emitter = void (*)(const ScreenVertex&, const ScreenVertex&, const ScreenVertex&);

bool clear_cut_on(const ScreenVertex* q, int slot);

// Binds the sprite's texture and draws the quad as triangles (2, 3, 0) and (2, 0, 1).
void draw_quad(int sprite, const ScreenVertex* q, Emitter emit) {
  const int slot = Sprites.Raster_Slot[sprite];
  glBindTexture(GL_TEXTURE_2D, Textures.TextureId[slot]);
  const bool cut = clear_cut_on(q, slot);
  glBegin(GL_TRIANGLES);
  emit(q[2], q[3], q[0]);
  emit(q[2], q[0], q[1]);
  glEnd();
  if (cut) glDisable(GL_SCISSOR_TEST);
}

bool valid(int sprite) { return sprite >= 0 && sprite < SPRITE_COUNT; }

// The plain calls: the sprite's own quad, current colour, at Layer_Z.
void own(int sprite, int x, int y, int w, int h, Orient orient) {
  if (!valid(sprite)) return;
  ScreenVertex* q = Sprites.Raster_Quad[sprite];
  place(q, x, y, w, h, orient);
  const bool replace = Replace_On();  // drawn in the current colour
  draw_quad(sprite, q, Emit_Tri);
  Replace_Off(replace);
}

void scratch_colour(std::uint16_t r, std::uint16_t g, std::uint16_t b, std::uint16_t a) {
  for (ScreenVertex& v : SpriteDraw.Scratch_Quad) {
    v.r = r;
    v.g = g;
    v.b = b;
    v.a = a;
  }
}

// The coloured calls: Scratch_Quad with the given colour and emitter.
void scratch(int sprite, int x, int y, int w, int h, Orient orient, Emitter emit) {
  if (!valid(sprite)) return;
  place(SpriteDraw.Scratch_Quad, x, y, w, h, orient);
  draw_quad(sprite, SpriteDraw.Scratch_Quad, emit);
}

int width(int sprite) { return valid(sprite) ? Sprites.Raster_Width[sprite] : 0; }
int height(int sprite) { return valid(sprite) ? Sprites.Raster_Height[sprite] : 0; }


}  // namespace

int Layout(int v) { return static_cast<int>(v * 1.6); }

namespace {

constexpr float kScreenW = 512.0f, kScreenH = 384.0f;  // the picture space of every quad

// Where the depth buffer is written, cutting the border costs a second pass over the square's
// depth: worth it only when the border is most of the picture.
constexpr float kWorthCutting = 0.5f;

bool has_border(const float* border) {
  return border[0] > 0.0f || border[1] > 0.0f || border[2] > 0.0f || border[3] > 0.0f;
}

}  // namespace

namespace {

bool scissor_inside(const ScreenVertex* q, const float* border);

// Under normal blending a texel at zero alpha leaves the screen as it is, and with the depth
// test off nothing else is written: a picture drawn so need only be filled inside its border
// of clear texels. Turns the scissor test on around that part and says whether it did (never
// under a scissor already set, nor for a square whose texture corners are not the usual ones).
bool clear_cut_on(const ScreenVertex* q, int slot) {
  if (slot < 0 || slot >= TEXTURE_SLOTS || !has_border(Textures.Clear_Border[slot])) return false;
  if (q[0].s != 0.0f || q[1].s != 1.0f || q[0].t != 0.0f || q[3].t != 1.0f) return false;
  if (glIsEnabled(GL_DEPTH_TEST) || glIsEnabled(GL_SCISSOR_TEST) || !glIsEnabled(GL_BLEND))
    return false;
  GLint src = 0, dst = 0;
  glGetIntegerv(GL_BLEND_SRC, &src);
  glGetIntegerv(GL_BLEND_DST, &dst);
  if (src != GL_SRC_ALPHA || dst != GL_ONE_MINUS_SRC_ALPHA) return false;
  if (scissor_inside(q, Textures.Clear_Border[slot])) return true;
  // Nothing but clear texels: an empty scissor box draws nothing.
  glEnable(GL_SCISSOR_TEST);
  glScissor(0, 0, 0, 0);
  return true;
}

}  // namespace

bool Glow_WorthCutting(int slot) {
  if (slot < 0 || slot >= TEXTURE_SLOTS) return false;
  const float* border = Textures.Glow_Border[slot];
  return (1.0f - border[0] - border[2]) * (1.0f - border[1] - border[3]) <= kWorthCutting;
}

namespace {

// Turns the scissor test on around the part of a flat square (corners in order, texture
// coordinates 0 to 1 across them) that the texels inside `border` fall on; false when the
// border is the whole picture.
bool scissor_inside(const ScreenVertex* q, const float* border) {
  const float s0 = border[0], t0 = border[1], s1 = 1.0f - border[2], t1 = 1.0f - border[3];
  if (!(s0 < s1 && t0 < t1)) return false;
  // Where the kept texels fall on the square (mirrored or turned squares included).
  const float xa = q[0].x + (q[1].x - q[0].x) * s0, xb = q[0].x + (q[1].x - q[0].x) * s1;
  const float ya = q[0].y + (q[3].y - q[0].y) * t0, yb = q[0].y + (q[3].y - q[0].y) * t1;
  GLint view[4];
  glGetIntegerv(GL_VIEWPORT, view);
  const float kx = static_cast<float>(view[2]) / kScreenW;
  const float ky = static_cast<float>(view[3]) / kScreenH;
  // Window rows count up from the bottom; a pixel of margin on every side keeps every pixel
  // that could sample a kept texel.
  const int left = static_cast<int>(std::floor(std::min(xa, xb) * kx)) - 1;
  const int right = static_cast<int>(std::ceil(std::max(xa, xb) * kx)) + 1;
  const int bottom = static_cast<int>(std::floor((kScreenH - std::max(ya, yb)) * ky)) - 1;
  const int top = static_cast<int>(std::ceil((kScreenH - std::min(ya, yb)) * ky)) + 1;
  glEnable(GL_SCISSOR_TEST);
  glScissor(view[0] + left, view[1] + bottom, right - left, top - bottom);
  return true;
}

}  // namespace

bool Glow_ScissorOn(const ScreenVertex* q, int slot) {
  if (slot < 0 || slot >= TEXTURE_SLOTS || !has_border(Textures.Glow_Border[slot])) return true;
  return scissor_inside(q, Textures.Glow_Border[slot]);
}

void Glow_ScissorOff() { glDisable(GL_SCISSOR_TEST); }

bool Glow_AddOn(int slot) {
  if (slot < 0 || slot >= TEXTURE_SLOTS || Textures.Texture_Opaque[slot] != 1) return false;
  GLint src = 0, dst = 0;
  glGetIntegerv(GL_BLEND_SRC, &src);
  glGetIntegerv(GL_BLEND_DST, &dst);
  if (src != GL_SRC_ALPHA || dst != GL_SRC_ALPHA) return false;
  GLfloat colour[4];
  glGetFloatv(GL_CURRENT_COLOR, colour);
  if (colour[3] != 1.0f) return false;
  glBlendFunc(GL_ONE, GL_ONE);
  return true;
}

void Glow_AddOff(bool was_on) {
  if (was_on) Blend_Glow();
}

// ---- emitters ----------------------------------------------------------------------------
void Emit_Tri(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  const float z = SpriteDraw.Layer_Z;
  vertex(a, z);
  vertex(b, z);
  vertex(c, z);
}

void Emit_TriTint(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  colour3(a);
  vertex(a, kFrontZ);
  vertex(b, kFrontZ);
  vertex(c, kFrontZ);
  white();
}

void Emit_TriAlpha(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  glColor4ub(static_cast<GLubyte>(a.r), static_cast<GLubyte>(a.g), static_cast<GLubyte>(a.b),
             static_cast<GLubyte>(a.a));
  vertex(a, kFrontZ);
  vertex(b, kFrontZ);
  vertex(c, kFrontZ);
  white();
}

void Emit_TriShade(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  glColor4ub(0, 0, 0, static_cast<GLubyte>(a.a));
  vertex(a, kBehindZ);
  vertex(b, kBehindZ);
  vertex(c, kBehindZ);
  white();
}

void Emit_TriVertexColour(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  colour3(a);
  vertex(a, kBehindZ);
  colour3(b);
  vertex(b, kBehindZ);
  colour3(c);
  vertex(c, kBehindZ);
  white();
}

void Emit_TriDepth(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c) {
  vertex(a, -a.z);
  vertex(b, -b.z);
  vertex(c, -c.z);
}

// ---- plain sprites -----------------------------------------------------------------------
void Draw_Raster(int s, int x, int y) { own(s, x, y, width(s), height(s), Orient::AsStored); }
void Draw_RasterMirror(int s, int x, int y) { own(s, x, y, width(s), height(s), Orient::Mirrored); }
void Draw_RasterTurn(int s, int x, int y) { own(s, x, y, width(s), height(s), Orient::Turned); }

void Draw_RasterL(int s, int x, int y) {
  own(s, Layout(x), Layout(y), Layout(width(s)), Layout(height(s)), Orient::AsStored);
}
void Draw_RasterLMirror(int s, int x, int y) {
  own(s, Layout(x), Layout(y), Layout(width(s)), Layout(height(s)), Orient::Mirrored);
}
void Draw_RasterLStretch(int s, int x, int y, int w, int h) {
  own(s, Layout(x), Layout(y), Layout(w), Layout(h), Orient::AsStored);
}

void Draw_RasterStretch(int s, int x, int y, int w, int h) { own(s, x, y, w, h, Orient::AsStored); }
void Draw_RasterStretchMirror(int s, int x, int y, int w, int h) {
  own(s, x, y, w, h, Orient::Mirrored);
}
void Draw_RasterStretchTurn(int s, int x, int y, int w, int h) {
  own(s, x, y, w, h, Orient::Turned);
}

// ---- coloured sprites --------------------------------------------------------------------
void Draw_RasterFade(int s, int x, int y, std::uint16_t level) {
  Draw_RasterFadeStretch(s, x, y, width(s), height(s), level);
}
void Draw_RasterFadeMirror(int s, int x, int y, std::uint16_t level) {
  Draw_RasterFadeStretchMirror(s, x, y, width(s), height(s), level);
}
void Draw_RasterFadeStretch(int s, int x, int y, int w, int h, std::uint16_t level) {
  scratch_colour(level, level, level, level);
  scratch(s, x, y, w, h, Orient::AsStored, Emit_TriAlpha);
}
void Draw_RasterFadeStretchMirror(int s, int x, int y, int w, int h, std::uint16_t level) {
  scratch_colour(level, level, level, level);
  scratch(s, x, y, w, h, Orient::Mirrored, Emit_TriAlpha);
}

void Draw_RasterLTint(int s, int x, int y, int w, int h, std::uint16_t level) {
  for (ScreenVertex& v : SpriteDraw.Scratch_Quad) v.r = v.g = v.b = level;
  scratch(s, Layout(x), Layout(y), Layout(w), Layout(h), Orient::AsStored, Emit_TriTint);
}
void Draw_RasterLGlow(int s, int x, int y, int w, int h, std::uint16_t level) {
  if (!valid(s)) return;
  ScreenVertex* q = SpriteDraw.Scratch_Quad;
  for (int k = 0; k < 4; ++k) q[k].r = q[k].g = q[k].b = level;
  place(q, Layout(x), Layout(y), Layout(w), Layout(h), Orient::AsStored);
  const int slot = Sprites.Raster_Slot[s];
  const bool add = Glow_AddOn(slot);
  if (Glow_ScissorOn(q, slot)) draw_quad(s, q, Emit_TriTint);
  Glow_ScissorOff();
  Glow_AddOff(add);
}
void Draw_RasterLFade(int s, int x, int y, int w, int h, std::uint16_t level) {
  scratch_colour(level, level, level, level);
  scratch(s, Layout(x), Layout(y), Layout(w), Layout(h), Orient::AsStored, Emit_TriAlpha);
}
void Draw_RasterLShade(int s, int x, int y, int w, int h, std::uint16_t level) {
  for (ScreenVertex& v : SpriteDraw.Scratch_Quad) v.a = level;
  scratch(s, Layout(x), Layout(y), Layout(w), Layout(h), Orient::AsStored, Emit_TriShade);
}

void Draw_RasterLGrey(int s, int x, int y, int w, int h, std::uint16_t level) {
  if (!valid(s)) return;
  ScreenVertex* q = Sprites.Raster_Quad[s];
  for (int k = 0; k < 4; ++k) q[k].r = q[k].g = q[k].b = level;
  place(q, Layout(x), Layout(y), Layout(w), Layout(h), Orient::AsStored);
  draw_quad(s, q, Emit_TriVertexColour);
}

void Draw_RasterLCycle(int s, int x, int y, int w, int h) {
  glShadeModel(GL_SMOOTH);
  scratch(s, Layout(x), Layout(y), Layout(w), Layout(h), Orient::AsStored, Emit_TriVertexColour);
  glShadeModel(GL_FLAT);
  Cycle_Step();
}

void Cycle_Step() {
  static constexpr std::int16_t kStep[4][3] = {
      {-6, -6, 0},   // corner 0
      {0, -6, -6},   // corner 1
      {-6, 0, -6},   // corner 2
      {-3, -3, -3},  // corner 3
  };
  for (int k = 0; k < 4; ++k) {
    std::uint16_t out[3];
    for (int c = 0; c < 3; ++c) {
      std::int16_t& v = SpriteDraw.Cycle_Colour[k][c];
      v = static_cast<std::int16_t>(v + kStep[k][c]);
      if (v >= 256) v = 255;
      if (v < -255) v = static_cast<std::int16_t>(v + 511);
      out[c] = static_cast<std::uint16_t>(std::abs(v));
    }
    ScreenVertex& q = SpriteDraw.Scratch_Quad[k];
    q.r = out[0];
    q.g = out[1];
    q.b = out[2];
  }
}

void Set_Brightness(std::uint16_t level) {
  for (int k = 0; k < 4; ++k) {
    SpriteDraw.Scratch_Quad[k].s = kCornerS[k];
    SpriteDraw.Scratch_Quad[k].t = kCornerT[k];
    for (std::int16_t& c : SpriteDraw.Cycle_Colour[k]) c = static_cast<std::int16_t>(level);
  }
  Stage_SetBrightness(level);
}
