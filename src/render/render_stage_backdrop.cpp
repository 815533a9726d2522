// The backdrop strip: three painted panels standing behind the arena, scrolled by the
// camera's heading and position, repeated twice to either side, and stretched sideways when
// the camera looks down so far that the strip's top edge would leave a gap at the screen top.
#include <GL/gl.h>

#include <cmath>

#include "camera/camera_fight.h"
#include "render/render_sprite.h"
#include "render/render_stage.h"
#include "render/render_view.h"

namespace {

constexpr float kScrollOrigin = 60.0f;
constexpr float kScrollPerUnit = 0.35f;
// Vertex 5 of the strip (lower row, second column) fixes the base; P and Q of the stretch
// test are the third column's top and the last column's bottom.
constexpr float kBaseX = 0.33f * BACKDROP_WIDTH, kBaseY = -6.1f, kBaseZ = 0.58f * 80.0f;
constexpr float kTopRise = 0.33f * 130.0f - 6.1f;  // the top row's height in the strip
constexpr float kColumnP = 0.67f * BACKDROP_WIDTH;
constexpr float kScreenWidth = 512.0f;
constexpr int kCorner[4][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};  // texture corner per panel corner

BackdropBase Base;  // the strip's base of the frame, computed by Draw_Backdrop

bool project(float x, float y, float z, int* sx, int* sy) {
  if (!(z > 0.0f)) return false;
  const ScreenPoint p = Project_Point(x, y, z);
  *sx = p.sx;
  *sy = p.sy;
  return true;
}

// How far the strip is stretched sideways: (syP + h) / h when its top edge would fall below
// the screen top, else 1 (no stretch).
float stretch_of(const BackdropBase& b) {
  int sxp, syp, sxq, syq;
  if (!project(kColumnP + b.bx, b.by + kTopRise, b.bZ, &sxp, &syp)) return 1.0f;
  if (!project(BACKDROP_WIDTH + b.bx, b.by, b.bZ, &sxq, &syq)) return 1.0f;
  const int h = std::abs(syp - syq);
  if (syp > 0 && h > 0) return static_cast<float>(syp + h) / static_cast<float>(h);
  return 1.0f;
}

}  // namespace

BackdropBase Backdrop_Base() {
  const FightCameraState& cam = FightCamera;
  const float scroll = static_cast<float>(cam.heading) / 3.0f - kScrollOrigin;
  float f = -(scroll - cam.look_x * kScrollPerUnit);
  if (f > BACKDROP_WIDTH)
    f -= BACKDROP_WIDTH;
  else if (f < 0.0f)
    f += BACKDROP_WIDTH;
  const int idx = Shake.Shake_Index;
  const float s = (idx > 0 && idx < SHAKE_STEPS) ? Shake_Table[idx] : 0.0f;
  Mat43 b;
  Mat_RotX(&b, Wrap_Angle(362 - cam.pitch));
  float tx, ty, tz;
  Mat_Apply(&b, -f, -(cam.look_y + s), 0.0f, &tx, &ty, &tz);
  b.m[9] = tx;
  b.m[10] = ty;
  b.m[11] = tz + 2.0f * cam.distance;
  BackdropBase base;
  Mat_Apply(&b, kBaseX, kBaseY, kBaseZ, &base.bx, &base.by, &base.bZ);
  base.bx = -f;
  return base;
}

bool Backdrop_Cover(const BackdropBase& b, int* bottom) {
  if (!(b.bZ > 0.0f)) return false;
  const float stretch = stretch_of(b);
  // Each copy's left and right edges exactly as Draw_BackdropAt places them.
  const auto edge = [&](float dx, int k) {
    int sx = 0, sy = 0;
    project(b.bx + dx + Stage.backdrop[k][0], b.by, b.bZ, &sx, &sy);
    return stretch != 1.0f ? static_cast<int>(static_cast<float>(sx) * stretch) : sx;
  };
  constexpr float kCopies[5] = {-2.0f, -1.0f, 0.0f, 1.0f, 2.0f};
  int right = 0;
  for (int c = 0; c < 5; ++c) {
    const float dx = kCopies[c] * BACKDROP_WIDTH;
    const int left = edge(dx, 0);
    if (c == 0 ? left > 0 : left > right) return false;  // a gap before this copy
    right = edge(dx, 3);
  }
  if (right < static_cast<int>(kScreenWidth)) return false;
  int sx = 0;
  project(b.bx, b.by, b.bZ, &sx, bottom);
  return true;
}

void Draw_BackdropAt(float dx) {
  const BackdropBase& b = Base;
  if (!(b.bZ > 0.0f)) return;  // the strip stands behind the eye: nothing to draw
  const float stretch = stretch_of(b);
  ScreenVertex* sv = Stage.backdrop_sv;
  for (int k = 0; k < BACKDROP_VERTICES; ++k) {
    const bool top = k < 4;
    const float x = b.bx + dx + Stage.backdrop[k][0];
    const float y = top ? b.by + Stage.backdrop[k][1] : b.by;
    int sx = 0, sy = 0;
    project(x, y, b.bZ, &sx, &sy);
    if (top && sy > 0) sy = 0;
    if (stretch != 1.0f) sx = static_cast<int>(static_cast<float>(sx) * stretch);
    sv[k].x = static_cast<float>(sx);
    sv[k].y = static_cast<float>(sy);
  }
  for (int p = 0; p < BACKDROP_PANELS; ++p) {
    const std::int32_t slot = Stage.backdrop_slot[p];
    if (slot >= 0 && slot < TEXTURE_SLOTS) glBindTexture(GL_TEXTURE_2D, Textures.TextureId[slot]);
    ScreenVertex c[4];
    for (int k = 0; k < 4; ++k) {
      c[k] = sv[Stage.panel[p][k]];
      c[k].s = static_cast<float>(kCorner[k][0]);
      c[k].t = static_cast<float>(kCorner[k][1]);
    }
    glBegin(GL_TRIANGLES);
    Emit_Tri(c[0], c[2], c[3]);
    Emit_Tri(c[0], c[1], c[2]);
    glEnd();
  }
}

void Draw_Backdrop() {
  Base = Backdrop_Base();
  Draw_BackdropAt(0.0f);
}
