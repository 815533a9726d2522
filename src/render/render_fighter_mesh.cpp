// The fighter's textured mesh: every vertex carried by its part's eye matrix and projected,
// faces culled by their winding on the screen, the face texture swapped for the alternate
// faces on some hits, and the fading of the tenth stage's opponent.
#include <GL/gl.h>

#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "fight/fight_state.h"
#include "render/render_fighter.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "shell/shell.h"

namespace {

constexpr int kChest = 3;
constexpr int kTwoSidedPart = 35;  // flag points of attachments 1 to 4 show both sides
constexpr int kFadeStage = 10;
constexpr int kFadeClock = 100;
constexpr int kGhostAlpha = 128;
constexpr int kMinFade = 32, kMaxFade = 255;
constexpr int kArrayEntries = MODEL_MAX_VTX + 1;
static_assert(kArrayEntries >= 900);

// Per model vertex: its projected screen point and camera depth, and the GL arrays the mesh
// is sent from (entry 0 unused). Written and read only by the mesh passes.
struct MeshScratch {
  ScreenPoint screen[kArrayEntries];
  bool visible[kArrayEntries];  // in front of the eye
  float vertex[kArrayEntries][3];
  float uv[kArrayEntries][2];
};
MeshScratch Scratch;

bool valid_player(int player) { return player == 0 || player == 1; }

// The matrix that carries a vertex of part `part`: the flexible part rides on the chest.
const Mat43* matrix_of(int player, int part) {
  if (part == MODEL_FLEX_PART) return &Draw.EyeMat[player][kChest];
  if (part < 0 || part >= PART_SLOTS) return nullptr;
  return &Draw.EyeMat[player][part];
}

// Transforms and projects every vertex; a vertex at or behind the eye is marked unseen.
void project_vertices(int player) {
  const KnightModel& K = Knight[player];
  const float stretch = static_cast<float>(Draw.flex_pos[player]) / 100.0f;
  const bool flexing = Draw.flex_amp[player] > 0;
  for (int i = 1; i <= K.max_vtx && i < kArrayEntries; ++i) {
    const MeshVertex& v = K.vtx[i];
    const Mat43* m = matrix_of(player, v.part);
    float y = v.y;
    if (v.part == MODEL_FLEX_PART && flexing && v.depth > 0.0f) y += stretch * v.depth;
    float x = 0, yy = 0, z = 0;
    if (m != nullptr) Mat_Apply(m, v.x, y, v.z, &x, &yy, &z);
    Scratch.visible[i] = m != nullptr && z > 0.0f;
    if (!Scratch.visible[i]) continue;
    const ScreenPoint s = Project_Point(x, yy, z);
    Scratch.screen[i] = s;
    Scratch.vertex[i][0] = static_cast<float>(s.sx);
    Scratch.vertex[i][1] = static_cast<float>(-s.sy);
    Scratch.vertex[i][2] = -z;
  }
}

bool corner_ok(const KnightModel& K, int v) { return v >= 1 && v <= K.max_vtx && Scratch.visible[v]; }

// Screen y grows downward, so faces whose corners run clockwise on the screen are kept; a
// face squashed to a point or a line is kept too.
bool front_facing(const KnightModel& K, const MeshFace& f) {
  const int a = f.vtx[0], b = f.vtx[1], c = f.vtx[2];
  if (!corner_ok(K, a) || !corner_ok(K, b) || !corner_ok(K, c)) return false;
  const ScreenPoint& A = Scratch.screen[a];
  const ScreenPoint& B = Scratch.screen[b];
  const ScreenPoint& C = Scratch.screen[c];
  const double cross = (static_cast<double>(B.sx) - A.sx) * (static_cast<double>(C.sy) - A.sy) -
                       (static_cast<double>(B.sy) - A.sy) * (static_cast<double>(C.sx) - A.sx);
  return cross >= 0.0 || K.vtx[a].part >= kTwoSidedPart;
}

// The face texture gives way to the first alternate face on class-6 hits and in the continue
// scene, to the second on class-7 hits.
std::int32_t slot_of(int player, const MeshFace& f, bool alternates) {
  const KnightModel& K = Knight[player];
  if (!alternates || f.slot != K.face_slot) return f.slot;
  const Fighter& F = fighters[player];
  const int frame = (F.frame >= 0 && F.frame < MAX_FRAMES) ? F.frame : 0;
  const int hit_class = F.frame_hit[frame] / 100;
  if (hit_class == 6 || Shell.GameMode == MODE_CONTINUE) return K.alt1_slot;
  if (hit_class == 7) return K.alt2_slot;
  return f.slot;
}

void bind(std::int32_t slot) {
  if (slot >= 0 && slot < TEXTURE_SLOTS) glBindTexture(GL_TEXTURE_2D, Textures.TextureId[slot]);
}

// A skin with every texel at full alpha, drawn at full colour alpha, only replaces what lies
// behind it: it is drawn without blending, which spares reading the picture back.
void blend_for(std::int32_t slot, bool solid_colour) {
  const bool opaque = solid_colour && slot >= 0 && slot < TEXTURE_SLOTS &&
                      Textures.Texture_Opaque[slot] == 1;
  if (opaque)
    glDisable(GL_BLEND);
  else
    glEnable(GL_BLEND);
}

// The tenth stage's computer opponent fades as the round clock runs on; a ghost is half
// seen; everyone else is drawn in the current colour. True when the colour is at full alpha.
bool set_colour(int player) {
  const Fighter& f = fighters[player];
  if (Match.stage_count == kFadeStage && Match.human[player] == 0 && Match.clock >= kFadeClock) {
    int a = 255 - (Match.clock - kFadeClock) / 7 + 20 * f.damage;
    a = a < kMinFade ? kMinFade : (a > kMaxFade ? kMaxFade : a);
    glColor4ub(255, 255, 255, static_cast<GLubyte>(a));
    return a == 255;
  }
  if (f.ghost) {
    glColor4ub(255, 255, 255, kGhostAlpha);
    return false;
  }
  GLfloat current[4];
  glGetFloatv(GL_CURRENT_COLOR, current);
  return current[3] >= 1.0f;
}

// A vertex's normal turned into the world by its part's world rotation.
void send_normal(int player, const MeshVertex& v) {
  const int part = v.part == MODEL_FLEX_PART ? kChest : v.part;
  float nx = v.nx, ny = v.ny, nz = v.nz;
  if (part >= 0 && part < PART_SLOTS)
    Mat_ApplyDir(&Draw.WorldRot[player][part], v.nx, v.ny, v.nz, &nx, &ny, &nz);
  glNormal3f(nx, ny, nz);
}

// Sends every front face, binding textures only where consecutive faces change texture.
// The fight sends from the vertex arrays; the showcase sends each corner with its normal.
void send_faces(int player, bool showcase, bool solid_colour) {
  const KnightModel& K = Knight[player];
  std::int32_t bound = -1;
  glBegin(GL_TRIANGLES);
  for (int n = 1; n <= K.max_face && n <= MODEL_MAX_FACE; ++n) {
    const MeshFace& f = K.face[n];
    if (!front_facing(K, f)) continue;
    const std::int32_t slot = slot_of(player, f, !showcase);
    if (slot != bound) {
      glEnd();
      bind(slot);
      blend_for(slot, solid_colour);
      glBegin(GL_TRIANGLES);
      bound = slot;
    }
    for (int k = 0; k < 3; ++k) {
      const int v = f.vtx[k];
      const int t = (f.uv[k] >= 1 && f.uv[k] <= K.max_uv) ? f.uv[k] : 0;
      if (showcase) {
        send_normal(player, K.vtx[v]);
        glTexCoord2f(K.uv[t].u, K.uv[t].v);
        glVertex3fv(Scratch.vertex[v]);
      } else {
        Scratch.uv[v][0] = K.uv[t].u;
        Scratch.uv[v][1] = K.uv[t].v;
        glArrayElement(v);
      }
    }
  }
  glEnd();
  glEnable(GL_BLEND);
}

}  // namespace

void Draw_Mesh(int player) {
  if (!valid_player(player)) return;
  Set_DrawMode(46);
  project_vertices(player);
  glVertexPointer(3, GL_FLOAT, 0, Scratch.vertex);
  glTexCoordPointer(2, GL_FLOAT, 0, Scratch.uv);
  glShadeModel(GL_SMOOTH);
  const bool solid = set_colour(player);
  const bool replace = Replace_On();  // skins in opaque white show their texels as they are
  send_faces(player, false, solid);
  Replace_Off(replace);
  glColor4ub(255, 255, 255, 255);
  glShadeModel(GL_FLAT);
  Run_ImpactTimer();
}

void Draw_Showcase(int player) {
  if (!valid_player(player)) return;
  Place_Showcase(player);
  project_vertices(player);
  glShadeModel(GL_SMOOTH);
  send_faces(player, true, false);
  glColor4ub(255, 255, 255, 255);
  glShadeModel(GL_FLAT);
  Run_ImpactTimer();
}
