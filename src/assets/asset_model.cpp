// Fighter models: Load_3DM into Knight[player], the flexible part, flag points and faces.
#include "assets/asset_model.h"

#include <strings.h>

#include <cstdio>

#include "assets/asset_3dm.h"
#include "assets/asset_character.h"
#include "assets/asset_report.h"
#include "fight/fight_state.h"
#include "platform/platform.h"

KnightModel Knight[2];

namespace {



// Ends the program after a refused or missing model file (the file is already closed).
[[noreturn]] void model_refused() {
  Textures.Texture_Repeat = 0;
  Report_Stop("011", 1);
}

[[noreturn]] void texture_failed(const char* code) {
  Textures.Texture_Repeat = 0;
  Report_Stop(code, 0);
}

// Point k of attachment i: creates the attachment the first time a point names it.
void take_flag_point(int player, const MeshVertex& v) {
  const int i = (v.part - MODEL_FLAG_PART) / 5;
  const int k = v.part % 5;
  if (i >= ATTACHMENTS) return;  // reported while reading
  Attachment& a = fighters[player].attach[i];
  if (!a.present) {
    a.present = 1;
    a.anchor_part = 4;
    a.reverse = 1;
    a.lower = 0;
    a.upper = 0;
  }
  if (a.last_point < k) a.last_point = k;
  a.points[k][0] = v.x;
  a.points[k][1] = v.y;
  a.points[k][2] = v.z;
}

// Vertices into the record. The flexible part's depth offset is its height in z above the
// part's lowest vertex; other vertices keep whatever depth offset the record held.
void take_vertices(int player, const MeshFile& m) {
  KnightModel& K = Knight[player];
  float flex_min_z = 100000.0f;
  for (int i = 1; i <= m.max_vtx; ++i)
    if (m.vtx[i].part == MODEL_FLEX_PART && m.vtx[i].z < flex_min_z) flex_min_z = m.vtx[i].z;
  for (int i = 1; i <= m.max_vtx; ++i) {
    const MeshVertex& v = m.vtx[i];
    const float depth = v.part == MODEL_FLEX_PART ? v.z - flex_min_z : K.vtx[i].depth;
    K.vtx[i] = v;
    K.vtx[i].depth = depth;
    if (v.part == MODEL_FLEX_PART) fighters[player].model_flag = 1;
    if (v.part >= MODEL_FLAG_PART) take_flag_point(player, v);
  }
}

void take_model(int player, const MeshFile& m, int base) {
  KnightModel& K = Knight[player];
  K.max_vtx = m.max_vtx;
  K.max_uv = m.max_uv;
  K.max_face = m.max_face;
  K.max_tag = m.max_tag;
  take_vertices(player, m);
  for (int i = 1; i <= m.max_uv; ++i) K.uv[i] = m.uv[i];
  for (int i = 1; i <= m.max_face; ++i) {
    K.face[i] = m.face[i];
    K.face[i].slot = m.face[i].slot + base;
  }
  for (int p = 2; p <= m.max_tag; ++p) {
    K.box[p] = m.box[p];
    K.shadow[p] = m.shadow[p];
  }
}

// One alternate face picture into the next slot, while slots remain.
void load_alternate(const char* name, const char* what, const char* model, std::int32_t& slot,
                    const char* code) {
  if (Textures.Texture_Count >= TEXTURE_SLOTS) return;
  slot = Textures.Texture_Count;
  if (!Load_TextureSlot(name, Textures.Texture_Count)) {
    std::printf("Texture Loading Error %s", name);
    Load_RefusedPart(what, model);
    texture_failed(code);
  }
  ++Textures.Texture_Count;
}

}  // namespace

// Indices are the game's own constants; one out of range is kept inside the table.
Attachment& Fighter_Attachment(int player, int attachment) {
  const int p = player == 1 ? 1 : 0;
  const int i = attachment >= 0 && attachment < ATTACHMENTS ? attachment : 0;
  return fighters[p].attach[i];
}

int Model_ReplacedTexture(const char* file) {
  for (const CharacterRow& row : CharacterTable)
    if (strcasecmp(row.model, file) == 0) return row.replaced;
  return -1;
}

void Load_3DM(const char* file, int player, const char* alt1, const char* alt2) {
  const int base = Textures.Texture_Count;
  Textures.Texture_Repeat = 1;
  std::FILE* f = Plat_OpenFile(file, "rb");
  if (f == nullptr) {
    Load_NotOpened(file);
    std::printf("open error %s\n", file);
    model_refused();
  }
  if (player < 0 || player > 1) {
    std::fclose(f);
    std::printf("Load_3DM ERROR(%s): Knight[%d] does not exist!!!\r", file, player);
    Load_Refused(file, "there is no fighter %d to take it", player);
    model_refused();
  }
  MeshFile& mesh = Mesh_Scratch();
  const bool ok = Read_3DM(f, file, {"Load_3DM", "Knight", player, true}, base, mesh);
  std::fclose(f);
  if (!ok) model_refused();

  take_model(player, mesh, base);
  KnightModel& K = Knight[player];
  if (!Load_MeshTextures(file, mesh, base, Model_ReplacedTexture(file), &K.face_slot))
    texture_failed("012");
  fighters[player].first_part = 2;
  fighters[player].last_part = K.max_tag;
  load_alternate(alt1, "the first alternate face", file, K.alt1_slot, "013");
  load_alternate(alt2, "the second alternate face", file, K.alt2_slot, "014");
  Textures.Texture_Repeat = 0;
}
