// The software fighter renderer.
#include "pictures/pic_figure.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "figures/fig_figure.h"
#include "figures/fig_paint.h"
#include "figures/fig_raster.h"
#include "figures/fig_roster.h"
#include "motion/mot_pose.h"
#include "motion/mot_shared.h"

namespace pic {
namespace {

using fig::Vec3;

// A row's model, skin and joints, built once and kept for every shot of that row.
struct Built {
  std::unique_ptr<fig::Model> model = std::make_unique<fig::Model>();
  fig::TextureLayout layout;
  std::vector<fig::Image> skin;
  mot::Joints joints;
  int anchor[5] = {};
  bool ok = false;
};

// Written only by Row_Of.
struct FigureCache {
  std::unique_ptr<Built> rows[fig::kRows];
  FigureRenderer renderer = nullptr;
};
FigureCache g_cache;

const Built& Row_Of(int row) {
  row = std::clamp(row, 0, fig::kRows - 1);
  if (!g_cache.rows[row]) {
    auto b = std::make_unique<Built>();
    int character = fig::Fig_RowCharacter(row);
    b->ok = fig::Fig_BuildModel(row, *b->model, b->layout);
    std::vector<fig::NamedImage> tex, faces;
    fig::Fig_PaintRow(row, *b->model, b->layout, tex, faces);
    for (auto& t : tex) b->skin.push_back(std::move(t.image));
    fig::Skeleton skel;
    fig::Fig_BuildSkeleton(character, skel);
    mot::Mot_JointsOf(skel, b->joints);
    for (int i = 0; i < 5; ++i) b->anchor[i] = fig::Fig_AttachAnchor(character, i);
    g_cache.rows[row] = std::move(b);
  }
  return *g_cache.rows[row];
}

}  // namespace

Canvas Render_Software(const Shot& shot) {
  const Built& b = Row_Of(shot.row);
  const int ss = std::max(1, shot.supersample);
  mot::PartMatrix pose[22];
  mot::Mot_Solve(b.joints, shot.pose ? *shot.pose : mot::Mot_StancePose(), pose);
  fig::RasterTarget target;
  fig::Raster_Clear(target, shot.width * ss, shot.height * ss);
  fig::RasterView view;
  view.turn = fig::Then(fig::RotY(shot.yaw), fig::RotX(-shot.pitch));
  view.look = {shot.look_x, shot.look_y, 0};
  view.distance = shot.distance;
  view.focal = target.height * shot.distance / shot.span;
  fig::RasterLight light;
  light.toward = fig::Normalise(Vec3{-0.45f, 0.65f, -0.6f});  // from the upper front left
  const Rgba* colours[3] = {&shot.ambient, &shot.key, &shot.rim};
  float* into[3] = {light.ambient, light.key, light.rim};
  for (int k = 0; k < 3; ++k) {
    into[k][0] = colours[k]->r;
    into[k][1] = colours[k]->g;
    into[k][2] = colours[k]->b;
  }
  light.rim_power = shot.rim_power;
  fig::RasterFigure figure;
  figure.model = b.model.get();
  figure.pose = pose;
  figure.anchor = b.anchor;
  figure.skin = &b.skin;
  fig::Raster_Figure(target, figure, view, light);
  Canvas c = Make_Canvas(target.width, target.height);
  for (std::size_t i = 0; i < c.px.size(); ++i)
    c.px[i] = {target.rgba[i * 4], target.rgba[i * 4 + 1], target.rgba[i * 4 + 2], target.rgba[i * 4 + 3]};
  return ss > 1 ? Downsample(c, ss) : c;
}

Canvas Render_Shot(const Shot& shot) {
  return g_cache.renderer ? g_cache.renderer(shot) : Render_Software(shot);
}

void Set_Figure_Renderer(FigureRenderer renderer) { g_cache.renderer = renderer; }

Rgba Figure_Main_Colour(int row) {
  const fig::Look& look = fig::Fig_Look(fig::Fig_RowCharacter(row));
  return Hex(look.colours[fig::Fig_RowColouring(row)].main);
}

Rgba Figure_Accent_Colour(int row) {
  const fig::Look& look = fig::Fig_Look(fig::Fig_RowCharacter(row));
  return Hex(look.colours[fig::Fig_RowColouring(row)].accent);
}

}  // namespace pic
