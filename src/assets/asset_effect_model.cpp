// Effect models: Load_3DSprite into Polygon_Sprite[0..2].
#include <cstdio>

#include "assets/asset_3dm.h"
#include "assets/asset_model.h"
#include "assets/asset_report.h"
#include "platform/platform.h"

EffectModel Polygon_Sprite[EFFECT_MODELS];

namespace {

[[noreturn]] void effect_failed(const char* code) {
  Textures.Texture_Repeat = 0;
  Report_Stop(code, 0);
}

// The record keeps part records up to part 4; an effect file's further parts are read and
// left behind (nothing draws them), and max_tag names the last part kept.
void take_effect(int index, const MeshFile& m, int base) {
  EffectModel& E = Polygon_Sprite[index];
  E.max_vtx = m.max_vtx;
  E.max_uv = m.max_uv;
  E.max_face = m.max_face;
  E.max_tag = m.max_tag < EFFECT_MAX_TAG ? m.max_tag : EFFECT_MAX_TAG;
  for (int i = 1; i <= m.max_vtx; ++i) E.vtx[i] = m.vtx[i];
  for (int i = 1; i <= m.max_uv; ++i) E.uv[i] = m.uv[i];
  for (int i = 1; i <= m.max_face; ++i) {
    E.face[i] = m.face[i];
    E.face[i].slot = m.face[i].slot + base;
  }
  for (int p = 2; p <= E.max_tag; ++p) {
    E.box[p] = m.box[p];
    E.shadow[p] = m.shadow[p];
  }
}

}  // namespace

void Load_3DSprite(const char* file, int index) {
  const int base = Textures.Texture_Count;
  Textures.Texture_Repeat = 1;
  std::FILE* f = Plat_OpenFile(file, "rb");
  if (f == nullptr) {
    Load_NotOpened(file);
    std::printf("open error %s\n", file);
    effect_failed("015");
  }
  if (index < 0 || index >= EFFECT_MODELS) {
    std::fclose(f);
    std::printf("Load_3DSprite ERROR(%s): Polygon_Sprite[%d] does not exist!!!\r", file, index);
    Load_Refused(file, "there is no effect model record %d to take it", index);
    effect_failed("015");
  }
  MeshFile& mesh = Mesh_Scratch();
  const bool ok = Read_3DM(f, file, {"Load_3DSprite", "Polygon_Sprite", index, false}, base, mesh);
  std::fclose(f);
  if (!ok) effect_failed("015");

  take_effect(index, mesh, base);
  if (!Load_MeshTextures(file, mesh, base, -1, nullptr)) effect_failed("016");
  Textures.Texture_Repeat = 0;
}
