// The stage pass of the fight frame: the view, the super-move flash, then the arena (floor,
// light pool, backdrop strip) or a super-move backdrop in its place.
#include <GL/gl.h>

#include <algorithm>
#include <cmath>

#include "camera/camera_fight.h"
#include "fight/fight_state.h"
#include "render/render_effect.h"
#include "render/render_sprite.h"
#include "render/render_stage.h"
#include "render/render_state.h"
#include "render/render_view.h"

namespace {

constexpr int kFlashDarkFrom = 2, kFlashDarkTo = 5;
constexpr int kFullLight = 255;
constexpr int kSuperShadeBright = 128, kSuperShadeDim = 64;
constexpr float kScreenHeight = 384.0f;  // the picture space's height

void bind_slot(std::int32_t slot) {
  if (slot >= 0 && slot < TEXTURE_SLOTS) glBindTexture(GL_TEXTURE_2D, Textures.TextureId[slot]);
}

// One mesh, every vertex offset by (dx, 0, dz), carried by CurrentMat into `sv`, its
// triangles clipped and emitted in one block.
void draw_mesh(const StageMesh& mesh, ScreenVertex* sv, float dx, float dz) {
  for (int i = 0; i < mesh.vertex_count; ++i) {
    const StagePoint& p = mesh.v[i];
    Mat_ApplyCurrent(p.x + dx, p.y, p.z + dz, &sv[i].x, &sv[i].y, &sv[i].z);
    sv[i].s = p.s;
    sv[i].t = p.t;
  }
  glBegin(GL_TRIANGLES);
  for (int n = 0; n < mesh.triangle_count; ++n) {
    const std::int32_t* t = mesh.tri[n];
    Emit_ClippedTri(sv[t[0]], sv[t[1]], sv[t[2]]);
  }
  glEnd();
}


// A picture without an alpha channel covers what lies under it whatever the blend function.
bool without_alpha(std::int32_t slot) {
  if (slot < 0 || slot >= TEXTURE_SLOTS) return false;
  glBindTexture(GL_TEXTURE_2D, Textures.TextureId[slot]);
  GLint alpha_bits = 1;
  glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_ALPHA_SIZE, &alpha_bits);
  return alpha_bits == 0;
}

// The backdrop's pictures, drawn in the current (opaque) colour: when none has an alpha
// channel, blending could change nothing.
bool backdrop_opaque() {
  for (std::int32_t slot : Stage.backdrop_slot)
    if (!without_alpha(slot)) return false;
  return true;
}

// An opaque backdrop strip drawn over the floor at the floor's own depth replaces every pixel
// it covers, so the floor (and its light pool) need only be filled below the strip's lower
// edge. Turns the scissor test on around that part of the screen and says whether it did.
// The light pool steps the camera shake before the strip is placed: while it shakes, the
// strip's place is not known yet and the floor is filled whole.
bool floor_cut_on() {
  if (Stage.Stage_Light == 1 && Shake.Shake_Index > 0) return false;
  int bottom = 0;
  if (!Backdrop_Cover(Backdrop_Base(), &bottom)) return false;
  GLint view[4];
  glGetIntegerv(GL_VIEWPORT, view);
  const float ky = static_cast<float>(view[3]) / kScreenHeight;
  // Window rows count up from the bottom; a row of margin keeps the row the edge crosses.
  const float edge = static_cast<float>(view[1]) + (kScreenHeight - static_cast<float>(bottom)) * ky;
  const int rows = std::max(0, static_cast<int>(std::ceil(edge)) + 1);
  glEnable(GL_SCISSOR_TEST);
  glScissor(0, 0, view[0] + view[2] + 1, rows);
  return true;
}

// The floor and the backdrop (most of the screen) are drawn without blending when their
// pictures have no alpha channel; the light pool between them always blends.
void draw_arena() {
  const bool floor_opaque = without_alpha(Stage.floor_slot);
  const bool backdrop_solid = backdrop_opaque();
  const bool cut = backdrop_solid && floor_cut_on();
  if (floor_opaque) glDisable(GL_BLEND);
  Set_DrawMode(200);
  Draw_Floor();  // blending is back on for its light pool
  if (cut) glDisable(GL_SCISSOR_TEST);
  if (backdrop_solid) glDisable(GL_BLEND);
  Set_DrawMode(8);
  Draw_Backdrop();
  Draw_BackdropAt(-BACKDROP_WIDTH);
  Draw_BackdropAt(BACKDROP_WIDTH);
  Draw_BackdropAt(-2.0f * BACKDROP_WIDTH);
  Draw_BackdropAt(2.0f * BACKDROP_WIDTH);
  glEnable(GL_BLEND);
}

void draw_super_picture(int sprite) {
  Set_DrawMode(140);
  Draw_RasterLCycle(sprite, 0, 0, 320, 240);
}

}  // namespace

void Floor_TileCentres(float look, float out[3]) {
  const int t = static_cast<int>(look / FLOOR_TILE);
  for (int k = 0; k < 3; ++k) out[k] = static_cast<float>(t - 1 + k) * FLOOR_TILE;
}

void Draw_Floor() {
  const FightCameraState& cam = FightCamera;
  float xs[3], zs[3];
  Floor_TileCentres(cam.look_x, xs);
  Floor_TileCentres(cam.look_z, zs);
  CurrentMat = View;  // translation by zero, then the view
  bind_slot(Stage.floor_slot);
  for (float z : zs)
    for (float x : xs) draw_mesh(Stage.floor, Stage.floor_sv, x, z);
  glEnable(GL_BLEND);
  if (Stage.Stage_Light == 1) {
    Set_DrawMode(201);
    Draw_LightPool();
  }
}

void Draw_LightPool() {
  const FightCameraState& cam = FightCamera;
  const float s = Shake_Step();
  Mat_RotX(&CurrentMat, Wrap_Angle(359 - cam.pitch));
  float tx, ty, tz;
  Mat_Apply(&CurrentMat, -cam.look_x, -(cam.look_y + s), -cam.look_z, &tx, &ty, &tz);
  CurrentMat.m[9] = tx;
  CurrentMat.m[10] = ty;
  CurrentMat.m[11] = tz + 2.0f * cam.distance;
  bind_slot(Stage.light_slot);
  Blend_Normal();
  draw_mesh(Stage.light, Stage.light_sv, cam.look_x, cam.look_z);
}

void Draw_SmallFloor() {
  SpriteDraw.Layer_Z = STAGE_LAYER_Z;
  CurrentMat = View;
  bind_slot(Stage.floor_slot);
  draw_mesh(Stage.floor, Stage.floor_sv, 0.0f, 0.0f);
}

void Draw_Stage() {
  Set_View();
  Step_SuperFlash();
  // The floor and backdrop go in at the layer behind everything nearer than 100 units.
  const float layer = SpriteDraw.Layer_Z;
  SpriteDraw.Layer_Z = STAGE_LAYER_Z;
  const Fighter& f0 = fighters[0];
  const Fighter& f1 = fighters[1];
  if (Match.reverse[0]) {
    draw_super_picture(SUPER_SPRITE_1);
  } else if (Match.reverse[1]) {
    draw_super_picture(SUPER_SPRITE_0);
  } else if (f0.super_mode || f1.super_mode) {
    Set_DrawMode(141);
    Blend_Normal();
    const int level = frame_count % 16 == 0 ? kSuperShadeBright : kSuperShadeDim;
    Draw_RasterLShade(SUPER_SHADE_SPRITE, 0, 0, 320, 240, static_cast<std::uint16_t>(level));
  } else if (!f0.super_finish && !f1.super_finish) {
    const bool replace = Replace_On();  // the arena is drawn in the current colour
    draw_arena();
    Replace_Off(replace);
  } else {
    draw_super_picture(f0.super_finish ? SUPER_SPRITE_0 : SUPER_SPRITE_1);
  }
  SpriteDraw.Layer_Z = layer;
  Run_GlowRing();
}

void Step_Stage() {
  Set_View();
  Step_SuperFlash();
  Step_GlowRing();
}

// The super-move flash: darkening by 15 a frame, three dark frames, brightening by 10.
void Step_SuperFlash() {
  std::int32_t& state = Match.flash_state;
  std::int32_t& light = Match.light;
  if (state == 1) {
    if (light > 10) light -= 15;
    if (light < 11) {
      light = 0;
      state = kFlashDarkFrom;
    }
  } else if (state >= kFlashDarkFrom && state < kFlashDarkTo) {
    if (++state == kFlashDarkTo) state = -1;
  } else if (state == -1) {
    if (light < kFullLight) light += 10;
    if (light > kFullLight) {
      light = kFullLight;
      state = 0;
    }
  }
}
