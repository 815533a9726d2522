// Placing a fighter in the world: each part's world and eye matrices, the part boxes the
// fight's hit tests read, the body centre, and the flat shadow the boxes cast on the floor.
#include <GL/gl.h>

#include <cstring>

#include "assets/asset_anim.h"
#include "assets/asset_model.h"
#include "fight/fight_state.h"
#include "render/render_fighter.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "shell/shell.h"

namespace {

constexpr int kHead = 2, kHips = 4, kFoot = 10;
constexpr int kBoxCorners = 8;
constexpr int kShadowCorners = 18;  // six triangles

// What the last placement of each fighter left for its shadow: which parts have a box, and
// where each box corner's floor point lands on the screen.
struct ShadowScratch {
  bool boxed[2][BODY_PARTS];
  bool visible[2][BODY_PARTS][kBoxCorners];  // in front of the eye
  ScreenPoint corner[2][BODY_PARTS][kBoxCorners];
};
ShadowScratch Shadow;

// How a placement is made: the height added to every part, whether the head takes its extra
// turn, and the floor the shadow falls on.
struct Placing {
  float lift;
  bool head_turn;
  float floor_y;
};

bool valid_player(int player) { return player == 0 || player == 1; }

int frame_of(const Fighter& f) {
  return (f.frame >= 0 && f.frame < MAX_FRAMES) ? f.frame : 0;
}

// Parts 17 and 18 (second hands) never have a box; the weapons 19 and 20 only on the frames
// they strike.
bool has_box(const Fighter& f, int p) {
  if (p == 17 || p == 18) return false;
  if (p == 19 || p == 20) return f.frame_part[frame_of(f)] == p;
  return true;
}

void box_of(const Mat43& w, const PartBox& box, float world[kBoxCorners][3], float lo[3],
            float hi[3]) {
  for (int k = 0; k < kBoxCorners; ++k) {
    const float* c = box.corner[k];
    Mat_Apply(&w, c[0], c[1], c[2], &world[k][0], &world[k][1], &world[k][2]);
    for (int a = 0; a < 3; ++a) {
      if (k == 0 || world[k][a] < lo[a]) lo[a] = world[k][a];
      if (k == 0 || world[k][a] > hi[a]) hi[a] = world[k][a];
    }
  }
}

// The hips' box centre, slid onto the fighter's line of travel: z follows from x when the
// fighter faces along x, x from z otherwise.
void set_body_centre(int player, const float lo[3], const float hi[3]) {
  const Fighter& f = fighters[player];
  float* c = Draw.Body_Centre[player];
  for (int a = 0; a < 3; ++a) c[a] = (lo[a] + hi[a]) / 2.0f;
  const int yaw = Wrap_Angle(f.yaw);
  const float step_x = StepSinTable[yaw], step_z = StepCosTable[yaw];
  if ((yaw >= 45 && yaw <= 134) || (yaw >= 225 && yaw <= 314))
    c[2] = (c[0] - f.track_x0) / step_x * step_z + f.track_z0;
  else
    c[0] = (c[2] - f.track_z0) / step_z * step_x + f.track_x0;
}

// The floor point under a world corner, seen through the view.
void shadow_corner(int player, int p, int k, const float w[3], float floor_y) {
  float x, y, z;
  Mat_Apply(&View, w[0], floor_y, w[2] + (w[1] - floor_y) / 2.0f, &x, &y, &z);
  const bool ok = z > 0.0f;
  Shadow.visible[player][p][k] = ok;
  if (ok) Shadow.corner[player][p][k] = Project_Point(x, y, z);
}

void place_part(int player, int p, const Placing& how) {
  const Fighter& f = fighters[player];
  Mat43 local;
  const Mat43* pose = &Anim.Pose[player][p];
  if (p == kHead && how.head_turn && (f.extra_angle[0] != 0 || f.extra_angle[1] != 0)) {
    Mat43 turn;
    Mat_RotX(&turn, Wrap_Angle(f.extra_angle[0]));
    Mat_Mul(&local, &turn, pose);
  } else {
    local = *pose;
  }
  Mat43 w;
  Mat_RotYOf(&w, &local, Wrap_Angle(f.yaw));
  std::memcpy(Draw.WorldRot[player][p].m, w.m, 9 * sizeof(float));
  w.m[9] += f.pos_x;
  w.m[10] += f.pos_y + f.height + how.lift;
  w.m[11] += f.pos_z;
  Mat_Mul(&Draw.EyeMat[player][p], &w, &View);

  Shadow.boxed[player][p] = has_box(f, p);
  if (!Shadow.boxed[player][p]) return;
  float world[kBoxCorners][3], lo[3], hi[3];
  box_of(w, Knight[player].box[p], world, lo, hi);
  float(*box)[BODY_PARTS] = fighters[player].part_box;
  box[BOX_X_MIN][p] = lo[0], box[BOX_X_MAX][p] = hi[0];
  box[BOX_Y_MIN][p] = lo[1], box[BOX_Y_MAX][p] = hi[1];
  box[BOX_Z_MIN][p] = lo[2], box[BOX_Z_MAX][p] = hi[2];
  if (p == kHips) set_body_centre(player, lo, hi);
  for (int k = 0; k < kBoxCorners; ++k) shadow_corner(player, p, k, world[k], how.floor_y);
}

void place(int player, const Placing& how) {
  const Fighter& f = fighters[player];
  const int first = f.first_part < ANIM_FIRST_PART ? ANIM_FIRST_PART : f.first_part;
  const int last = f.last_part > ANIM_LAST_PART ? ANIM_LAST_PART : f.last_part;
  std::memset(Shadow.boxed[player], 0, sizeof Shadow.boxed[player]);
  for (int p = first; p <= last; ++p) place_part(player, p, how);
}

// The vertical placement of the fight: the feet held to the floor, nothing while held, or
// the posture offset.
float fight_lift(int player) {
  switch (Placement_Rule(player)) {
    case PLACE_FEET_ON_FLOOR: {
      Part_Centre(player, kFoot);
      float* foot = Draw.Foot_Centre[player];
      std::memcpy(foot, Draw.Part_Centre[player], 3 * sizeof(float));
      const int c = Match.character[player];
      const float pin = CharacterHeightTable[(c >= 0 && c < HEIGHT_ROWS) ? c : 0].foot;
      return -(foot[1] - pin);
    }
    case PLACE_HELD:
      return 0.0f;
    case PLACE_POSTURE:
      break;
  }
  return Posture_Offset(player);
}

}  // namespace

void Part_Centre(int player, int p) {
  if (!valid_player(player) || p < ANIM_FIRST_PART || p > ANIM_LAST_PART) return;
  const Fighter& f = fighters[player];
  Pose_Part(player, p);
  Mat43 w;
  Mat_RotYOf(&w, &Anim.Pose[player][p], Wrap_Angle(f.yaw));
  w.m[9] += f.pos_x;
  w.m[10] += f.pos_y + f.height;
  w.m[11] += f.pos_z;
  float world[kBoxCorners][3], lo[3], hi[3];
  box_of(w, Knight[player].box[p], world, lo, hi);
  for (int a = 0; a < 3; ++a) Draw.Part_Centre[player][a] = (lo[a] + hi[a]) / 2.0f;
}

void Run_ImpactTimer() {
  if (Match.impact_strength > 0 && --Match.impact_frames < 1) Match.impact_strength = 0;
}

void Place_Fighter(int player) {
  if (!valid_player(player)) return;
  place(player, {fight_lift(player), true, SHADOW_FLOOR_Y});
}

void Place_FighterOnly(int player) {
  if (!valid_player(player)) return;
  const int c = Match.character[player];
  const CharacterHeights& h = CharacterHeightTable[(c >= 0 && c < HEIGHT_ROWS) ? c : 0];
  place(player, {fighters[player].crouching ? h.crouching : h.standing, false, SHADOW_FLOOR_Y});
  Run_ImpactTimer();
}

void Place_Showcase(int player) {
  if (!valid_player(player)) return;
  place(player, {0.0f, true, SHOWCASE_FLOOR_Y});
}

void Draw_Shadow(int player) {
  if (!valid_player(player)) return;
  Set_DrawMode(4);
  glDisable(GL_BLEND);
  glColor4ub(0, 0, 0, 255);
  glBegin(GL_TRIANGLES);
  if (Shell.GameMode != MODE_CONTINUE) {
    const KnightModel& K = Knight[player];
    for (int p = 0; p < BODY_PARTS; ++p) {
      if (!Shadow.boxed[player][p]) continue;
      const std::int16_t* outline = K.shadow[p].corner;
      for (int t = 0; t < kShadowCorners; t += 3) {
        bool ok = true;
        for (int k = 0; k < 3; ++k) {
          const int c = outline[t + k];
          ok = ok && c >= 0 && c < kBoxCorners && Shadow.visible[player][p][c];
        }
        if (!ok) continue;
        for (int k = 0; k < 3; ++k) {
          const ScreenPoint& s = Shadow.corner[player][p][outline[t + k]];
          glVertex3f(static_cast<float>(s.sx), static_cast<float>(-s.sy), SHADOW_LAYER_Z);
        }
      }
    }
  }
  glEnd();
  glEnable(GL_BLEND);
  glColor4ub(255, 255, 255, 255);
}
