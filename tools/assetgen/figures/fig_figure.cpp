// Building a fighter's skeleton and model from its look.
#include "figures/fig_figure.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>

#include "figures/fig_body_internal.h"
#include "motion/mot_motion.h"
#include "motion/mot_shared.h"

namespace fig {
namespace {

// Standing offset and foot height per character, as the game places fighters.
constexpr float kStanding[kCharacters] = {0, -0.4f, 0.3f, 0.1f, 0, -0.1f, 0, 0.1f, 1, 0.1f, 0.2f, 0.2f, 0.2f, 0.1f, 0};
constexpr float kFoot[kCharacters] = {-5.288821f, -5.305242f, -5.220606f, -5.230864f, -5.378345f,
                                      -5.395651f, -5.428834f, -5.166887f, -5.305762f, -5.331778f,
                                      -5.01582f,  -5.227478f, -5.1826f,   -5.05587f,  -5.288821f};

constexpr int kFaceBudget = 990;  // leaves the loader's capacity a little room

constexpr const char* kRegionTag[R_COUNT] = {"FACE", "HAIR", "SKIN", "TORS", "PELV", "BELT", "UARM", "FARM",
                                             "HAND", "THIG", "SHIN", "FOOT", "PROP", "SCRF", "ACCS", "BACK",
                                             "SEAT", "NAPE", "FOTL", "SHNL", "THGL", "HNDL", "FRML", "UARL"};

void Build_Pieces(Model& m, int character, const Look& lk, const BodyFrame& bf) {
  Body_Head(m, lk, bf);
  Body_Hair(m, lk, bf);
  Body_Torso(m, lk, bf);
  Body_Pelvis(m, lk, bf);
  Body_Arms(m, lk, bf);
  Body_Legs(m, lk, bf);
  Body_Clothes(m, lk, bf);
  Body_Flex(m, lk, bf);
  Body_Props(m, lk, bf);
  Body_Attachments(m, character, lk, bf);
  // The back halves of the jacket and the seat get pictures of their own when a row needs more.
  for (int f = 1; f <= m.face_count; ++f) {
    Face& fc = m.faces[f];
    int part = m.vertices[fc.a].part;
    float z = (m.vertices[fc.a].z + m.vertices[fc.b].z + m.vertices[fc.c].z) / 3.0f;
    if (fc.tex == R_TORSO && part == P_CHEST && z < -0.05f) fc.tex = R_TORSO_BACK;
    if (fc.tex == R_PELVIS && part == P_PELVIS && z < -0.05f) fc.tex = R_PELVIS_BACK;
  }
}

void Skeleton_Of(const BodyFrame& bf, Skeleton& out) {
  out.last_part = kMaxPart;
  for (auto& j : out.joint) j[0] = j[1] = j[2] = 0;
  for (int p = 2; p <= kMaxPart; ++p) {
    out.joint[p][0] = bf.joint[p].x / 10.0f;
    out.joint[p][1] = bf.joint[p].y / 10.0f;
    out.joint[p][2] = bf.joint[p].z / 10.0f;
  }
}

// Centre of part 10's box once the stance is shown on this skeleton, the way the game shows it.
float Stance_Foot_Y(const Model& m, const Skeleton& skel, const Skeleton& ref) {
  mot::Joints rj;
  mot::Mot_JointsOf(ref, rj);
  const mot::Motion* idle = mot::Mot_SharedByAction(0);
  std::vector<mot::BakedFrame> frames;
  mot::Mot_Bake(*idle, rj, frames);
  mot::KeyFrame key = frames.front().key;
  mot::Mot_AsLoaded(key, true);
  mot::Mot_Fit(key, skel);
  mot::PartMatrix pm[22];
  mot::Mot_Unpack(key, pm);
  float lo = 1e9f, hi = -1e9f;
  for (const auto& c : m.boxes[P_R_FOOT].corner) {
    float y = Apply(pm[P_R_FOOT].r, Vec3{c[0], c[1], c[2]}).y + pm[P_R_FOOT].t.y;
    lo = std::min(lo, y);
    hi = std::max(hi, y);
  }
  return (lo + hi) * 0.5f;
}

// Legs long enough to put the stance's foot at the character's foot height. The reference
// character is its own reference.
void Fit_Legs(int character, const Skeleton* ref, BodyFrame& bf, Skeleton& skel) {
  const Look& lk = Fig_Look(character);
  float target = kFoot[character] - kStandingY - kStanding[character];
  float leg = 4.3f;
  auto model = std::make_unique<Model>();
  for (int it = 0; it < 6; ++it) {
    Body_Frame(lk, leg, bf);
    Skeleton_Of(bf, skel);
    *model = Model{};
    Body_Legs(*model, lk, bf);
    bool any = false;
    Mesh_PartBox(*model, P_R_FOOT, model->boxes[P_R_FOOT], any);
    float y = Stance_Foot_Y(*model, skel, ref ? *ref : skel);
    leg += (y - target) * 1.05f;
  }
  Body_Frame(lk, leg, bf);
  Skeleton_Of(bf, skel);
}

int Row_Colouring(int row) {
  if (row < 15) return 0;
  return std::strcmp(Fig_ModelFile(row), Fig_ModelFile(row - 15)) == 0 ? 0 : 1;
}

// Chooses the texture list: every region the model uses, the face at the replaced index, and as
// many split-off regions (back of the torso, left limbs ...) as it takes to reach that index.
bool Lay_Out_Textures(int row, const Model& m, TextureLayout& lay, int region_to_texture[R_COUNT]) {
  bool used[R_COUNT] = {};
  for (int f = 1; f <= m.face_count; ++f) used[m.faces[f].tex] = true;
  bool active[R_COUNT] = {};
  int count = 0;
  for (int r = 0; r < R_COUNT; ++r) {
    int base = kSplitParent[r];
    if (used[r] && !active[base]) {
      active[base] = true;
      ++count;
    }
  }
  int need = Fig_ReplacedTexture(row) + 1;
  for (int r = kFirstSplit; r < R_COUNT && count < need; ++r)
    if (used[r]) {
      active[r] = true;
      ++count;
    }
  if (count < need || count > kMaxTextures || !active[R_FACE]) return false;
  lay.count = count;
  lay.colouring = Row_Colouring(row);
  int face_at = Fig_ReplacedTexture(row);
  int next = 0;
  for (int r = 0; r < R_COUNT; ++r) {
    if (!active[r]) continue;
    int index = face_at;
    if (r != R_FACE) {
      if (next == face_at) ++next;
      index = next++;
    }
    lay.region[index] = r;
    region_to_texture[r] = index;
  }
  for (int r = 0; r < R_COUNT; ++r)
    if (!active[r]) region_to_texture[r] = region_to_texture[kSplitParent[r]];
  return true;
}

}  // namespace

float Fig_StandingOffset(int character) { return kStanding[character % kCharacters]; }
float Fig_FootHeight(int character) { return kFoot[character % kCharacters]; }

const Skeleton& Fig_ReferenceSkeleton() {
  static Skeleton ref = [] {
    Skeleton s;
    BodyFrame bf;
    Fit_Legs(0, nullptr, bf, s);
    return s;
  }();
  return ref;
}

void Fig_BuildSkeleton(int character, Skeleton& out) {
  BodyFrame bf;
  if (character == 0) {
    out = Fig_ReferenceSkeleton();
    return;
  }
  Fit_Legs(character, &Fig_ReferenceSkeleton(), bf, out);
}

bool Fig_BuildModel(int row, Model& m, TextureLayout& lay) {
  int character = Fig_RowCharacter(row);
  const Look& lk = Fig_Look(character);
  Skeleton skel;
  BodyFrame bf;
  if (character == 0)
    Fit_Legs(0, nullptr, bf, skel);
  else
    Fit_Legs(character, &Fig_ReferenceSkeleton(), bf, skel);
  m = Model{};
  Build_Pieces(m, character, lk, bf);
  if (m.overflow || m.face_count > kFaceBudget) {
    std::fprintf(stderr, "%s: %d vertices, %d faces do not fit\n", Fig_ModelFile(row), m.vertex_count, m.face_count);
    return false;
  }
  int map[R_COUNT];
  if (!Lay_Out_Textures(row, m, lay, map)) {
    std::fprintf(stderr, "%s: cannot place the face at texture %d\n", Fig_ModelFile(row), Fig_ReplacedTexture(row));
    return false;
  }
  int max_tag = 16;
  for (int i = 1; i <= m.vertex_count; ++i)
    if (m.vertices[i].part <= kMaxPart && m.vertices[i].part > max_tag) max_tag = m.vertices[i].part;
  Mesh_Finish(m, map, max_tag);
  m.texture_count = lay.count;
  for (int t = 0; t < lay.count; ++t)
    std::snprintf(m.textures[t], kNameBytes, "%.3s%d%.4s.bmp", lk.code, (lay.colouring + 1) % 10,
                  kRegionTag[lay.region[t]]);
  return true;
}

}  // namespace fig
