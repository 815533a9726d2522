// A fight scene set up directly, for the drawing tests and the drawing benchmark: generated
// figures skinned in one solid colour each (or in their painted skins), standing in their rest pose at the round-start
// places, on a stage whose floor, light and backdrop pictures are solid colours too. Files
// go to the current directory. Needs the GL context and the angle tables.
#pragma once
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include "assets/asset_anim.h"
#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "camera/camera_fight.h"
#include "fight/fight_state.h"
#include "figures/fig_figure.h"
#include "figures/fig_paint.h"
#include "render/render_fighter.h"
#include "render/render_stage.h"
#include "render/render_view.h"
#include "writers/writer_3dm.h"
#include "writers/writer_image.h"

namespace scene {

struct Rgb {
  std::uint8_t r, g, b;
};
constexpr Rgb kFloor{40, 160, 40};
constexpr Rgb kBackdrop{40, 60, 200};
constexpr Rgb kLight{250, 250, 200};
constexpr Rgb kSkin[2] = {{220, 30, 30}, {230, 200, 20}};

inline bool write_solid(const char* name, Rgb c, int side = 8) {
  writers::ImageFile img{side, side, 3, writers::Bytes()};
  for (int i = 0; i < side * side; ++i) img.pixels.insert(img.pixels.end(), {c.r, c.g, c.b});
  return writers::Write_Image(name, img);
}

inline bool write_rgb(const char* name, const fig::Image& image) {
  return writers::Write_Image(name, {image.width, image.height, 3, image.rgb});
}

// The generated figure of `row` as a model file whose every texture is one solid colour, or
// its painted skin.
inline bool write_figure(int row, int player, const char* file, Rgb colour, bool painted) {
  auto m = std::make_unique<fig::Model>();
  fig::TextureLayout layout;
  if (!fig::Fig_BuildModel(row, *m, layout)) return false;
  std::vector<fig::NamedImage> skins, faces;
  if (painted) fig::Fig_PaintRow(row, *m, layout, skins, faces);
  writers::Model3DM out;
  for (int i = 1; i <= m->vertex_count; ++i) {
    const fig::Vertex& v = m->vertices[i];
    out.vertices.push_back({v.x, v.y, v.z, v.nx, v.ny, v.nz, v.part});
  }
  for (int i = 1; i <= m->texcoord_count; ++i)
    out.uvs.push_back({m->texcoords[i].u, m->texcoords[i].v});
  for (int i = 1; i <= m->face_count; ++i) {
    const fig::Face& f = m->faces[i];
    out.faces.push_back({{f.a, f.b, f.c}, {f.ta, f.tb, f.tc}, f.tex});
  }
  out.max_tag = m->max_tag;
  for (int p = 2; p <= m->max_tag; ++p) {
    writers::Part3DM part;
    std::memcpy(part.box, m->boxes[p].corner, sizeof part.box);
    std::memcpy(part.shadow, m->boxes[p].shadow, sizeof part.shadow);
    out.parts.push_back(part);
  }
  for (int t = 0; t < m->texture_count; ++t) {
    char name[32];
    std::snprintf(name, sizeof name, "P%dT%02d.BMP", player, t);
    const bool skin = t < static_cast<int>(skins.size());
    if (!(skin ? write_rgb(name, skins[t].image) : write_solid(name, colour))) return false;
    out.textures.push_back(name);
  }
  return writers::Write_3DM(file, out);
}

// Key frame 0 holds every part unturned at the model origin; frame 0 shows it.
inline void rest_pose(int player) {
  for (int p = 0; p < ANIM_PARTS; ++p) {
    std::memset(Anim.PreloadRot[0][p], 0, sizeof Anim.PreloadRot[0][p]);
    for (int e : {0, 4, 8}) Anim.PreloadRot[0][p][e] = 500;
    std::memset(Anim.PreloadPos[player][0][p], 0, sizeof Anim.PreloadPos[player][0][p]);
  }
  Fighter& f = fighters[player];
  f.frame = 0;
  f.frame_key[0] = 0;
  std::memset(f.frame_offset[0], 0, sizeof f.frame_offset[0]);
  f.frame_part[0] = 0;
  f.frame_hit[0] = 0;
  f.last_shared_key = 0;
}

// Row `row`'s figure as fighter `player` at its round-start place, facing the other side.
inline bool load_fighter(int row, int player, bool painted = false) {
  char file[32], alt[2][32];
  std::snprintf(file, sizeof file, "FIG%d.3DM", player);
  for (int k = 0; k < 2; ++k) {
    std::snprintf(alt[k], sizeof alt[k], "P%dA%d.BMP", player, k);
    if (!write_solid(alt[k], kSkin[player])) return false;
  }
  if (!write_figure(row, player, file, kSkin[player], painted)) return false;
  static const Fighter kBlank{};
  fighters[player] = kBlank;
  Load_3DM(file, player, alt[0], alt[1]);
  Match.character[player] = row % 15;
  rest_pose(player);
  Fighter& f = fighters[player];
  f.pos_x = player == 0 ? -5.0f : 5.0f;
  f.pos_y = 3.2f;
  f.yaw = f.face_yaw = player == 0 ? 90 : 270;
  f.track_x0 = f.pos_x;
  Pose_Fighter(player);
  return true;
}

// A stage of solid pictures, the fight's default camera, an ordinary fight in progress.
inline void load_stage() {
  write_solid("FLOOR.BMP", kFloor);
  write_solid("LIGHT.BMP", kLight);
  write_solid("BG.BMP", kBackdrop);
  Load_Floor("FLOOR.BMP");
  Load_LightPool("LIGHT.BMP");
  Stage.Stage_Light = 0;
  Load_Backdrop("BG.BMP", "BG.BMP", "BG.BMP");
  FightCamera = FightCameraState{};
  Shake.Shake_Index = 0;
  Match = MatchState{};
  Match.intro = -1;
}

}  // namespace scene
