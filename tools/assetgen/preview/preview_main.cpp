// assetgen_preview: renders generated fighters to PNG contact sheets, to look at them.
//   assetgen_preview roster OUT.png [first_row]   fifteen rows in the fighting stance
//   assetgen_preview motions OUT.png [row [first_action last_action]]
//                                                 frames of the shared motions on one row
//   assetgen_preview sides OUT.png [row]          one row from four sides
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "figures/fig_figure.h"
#include "figures/fig_paint.h"
#include "figures/fig_roster.h"
#include "motion/mot_shared.h"
#include "preview/preview_raster.h"

namespace {

struct Loaded {
  std::unique_ptr<fig::Model> model = std::make_unique<fig::Model>();
  fig::TextureLayout layout;
  fig::Skeleton skeleton;
  std::vector<fig::Image> images;
  int anchor[5];
  int character = 0;
};

bool Load_Row(int row, Loaded& out) {
  out.character = fig::Fig_RowCharacter(row);
  if (!fig::Fig_BuildModel(row, *out.model, out.layout)) return false;
  fig::Fig_BuildSkeleton(out.character, out.skeleton);
  std::vector<fig::NamedImage> tex, faces;
  fig::Fig_PaintRow(row, *out.model, out.layout, tex, faces);
  for (auto& t : tex) out.images.push_back(t.image);
  for (int i = 0; i < 5; ++i) out.anchor[i] = fig::Fig_AttachAnchor(out.character, i);
  return true;
}

// The key frame of a shared motion's frame as this character shows it.
void Pose_Of(const Loaded& fl, const std::vector<mot::BakedFrame>& frames, int f, mot::PartMatrix pm[22],
             fig::Vec3& offset) {
  mot::KeyFrame key = frames[f].key;
  // Characters whose own files carry parts 19 and 20 show their props; the others lose them.
  mot::Mot_AsLoaded(key, !fig::Fig_CarriesProps(fl.character));
  mot::Mot_Fit(key, fl.skeleton);
  mot::Mot_Unpack(key, pm);
  offset = frames[f].offset;
}

void Draw_Cell(preview::Canvas& sheet, int cx, int cy, int w, int h, const Loaded& fl, const mot::Motion& mo,
               int frame, float yaw) {
  mot::Joints ref;
  mot::Mot_JointsOf(fig::Fig_ReferenceSkeleton(), ref);
  std::vector<mot::BakedFrame> frames;
  mot::Mot_Bake(mo, ref, frames);
  if (frame >= static_cast<int>(frames.size())) frame = static_cast<int>(frames.size()) - 1;
  mot::PartMatrix pm[22];
  fig::Vec3 off;
  Pose_Of(fl, frames, frame, pm, off);
  preview::Canvas cell;
  preview::Canvas_Init(cell, w, h, 0x3A4048);
  // Floor line at the soles.
  preview::View v;
  v.yaw = yaw;
  v.look_y = -3.9f;
  v.distance = 17.0f;
  v.focal = 1.5f;
  preview::Skin skin;
  skin.images = &fl.images;
  preview::Draw_Figure(cell, *fl.model, pm, fl.anchor, off, skin, v);
  preview::Canvas_Blit(sheet, cell, cx, cy);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: %s roster|motions|sides OUT.png [row]\n", argv[0]);
    return 2;
  }
  const char* mode = argv[1];
  const char* out = argv[2];
  int arg = argc > 3 ? std::atoi(argv[3]) : 0;
  preview::Canvas sheet;
  constexpr int kW = 200, kH = 300;
  if (std::strcmp(mode, "roster") == 0) {
    preview::Canvas_Init(sheet, kW * 5, kH * 3, 0);
    for (int i = 0; i < 15; ++i) {
      Loaded fl;
      if (!Load_Row(arg + i, fl)) return 1;
      Draw_Cell(sheet, (i % 5) * kW, (i / 5) * kH, kW, kH, fl, *mot::Mot_SharedByAction(0), 0, 150);
    }
  } else if (std::strcmp(mode, "motions") == 0) {
    Loaded fl;
    if (!Load_Row(arg, fl)) return 1;
    int first = argc > 5 ? std::atoi(argv[4]) : 0, last = argc > 5 ? std::atoi(argv[5]) : 999;
    std::vector<const mot::Motion*> shown;
    for (int i = 0; i < mot::Mot_SharedCount(); ++i)
      if (mot::Mot_Shared(i).action >= first && mot::Mot_Shared(i).action <= last) shown.push_back(&mot::Mot_Shared(i));
    if (shown.empty()) return 1;
    constexpr int kCols = 8;
    constexpr int kCellW = kW * 3 / 4, kCellH = kH / 2;
    preview::Canvas_Init(sheet, kCellW * kCols, kCellH * static_cast<int>(shown.size()), 0);
    for (std::size_t i = 0; i < shown.size(); ++i) {
      int len = mot::Mot_Length(*shown[i]);
      for (int k = 0; k < kCols; ++k) {
        int frame = (len - 1) * k / (kCols - 1);
        Draw_Cell(sheet, k * kCellW, static_cast<int>(i) * kCellH, kCellW, kCellH, fl, *shown[i], frame, 110);
      }
      std::printf("%d %s (%d frames)\n", shown[i]->action, shown[i]->name, len);
    }
  } else if (std::strcmp(mode, "sides") == 0) {
    Loaded fl;
    if (!Load_Row(arg, fl)) return 1;
    preview::Canvas_Init(sheet, kW * 2 * 4, kH * 2, 0);
    const float yaws[4] = {180, 90, 0, 270};
    for (int k = 0; k < 4; ++k) {
      Draw_Cell(sheet, k * kW * 2, 0, kW * 2, kH * 2, fl, *mot::Mot_SharedByAction(0), 0, yaws[k]);
    }
  } else if (std::strcmp(mode, "stats") == 0) {
    for (int row = 0; row < fig::kRows; ++row) {
      Loaded fl;
      if (!Load_Row(row, fl)) return 1;
      std::printf("%2d %-13s v %3d f %3d tex %2d tag %2d  %s\n", row, fig::Fig_ModelFile(row), fl.model->vertex_count,
                  fl.model->face_count, fl.model->texture_count, fl.model->max_tag, fl.model->textures[0]);
    }
    return 0;
  } else {
    std::fprintf(stderr, "unknown mode %s\n", mode);
    return 2;
  }
  return preview::Write_Png(out, sheet) ? 0 : 1;
}
