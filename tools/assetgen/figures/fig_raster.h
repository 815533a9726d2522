// The one software rasteriser for fighters: a posed model drawn as textured, depth-tested
// triangles with the game's back-face rule, lit or flat. The contact-sheet preview and the
// pictures (portraits, name plates, endings) both draw through it.
#pragma once
#include <cstdint>
#include <vector>

#include "figures/fig_math.h"
#include "figures/fig_types.h"
#include "motion/mot_pose.h"

namespace fig {

// Colour (0..1, alpha the figure's coverage) and depth per pixel, rows top to bottom.
struct RasterTarget {
  int width = 0, height = 0;
  std::vector<float> rgba;
  std::vector<float> depth;
};
void Raster_Clear(RasterTarget& t, int width, int height);

// The camera: model points p land at turn * (p - look) in camera space, `distance` in front of
// the eye; `focal` pixels per unit at depth 1.
struct RasterView {
  Rot turn;
  Vec3 look;
  float distance = 40;
  float focal = 1;
};

// Light in camera space: ambient + key x the lit side, plus a rim on the silhouette's edges.
// Flat drawing is ambient 1 and no key or rim.
struct RasterLight {
  Vec3 toward{0, 0, -1};  // toward the key light
  float ambient[3] = {1, 1, 1};
  float key[3] = {0, 0, 0};
  float rim[3] = {0, 0, 0};
  float rim_power = 0;
  bool smooth = true;  // bilinear texture reads (false: nearest texel)
};

// The figure: its model, one matrix per part, the parts its attachment points hang on, and its
// pictures by model texture index (an index without a picture is drawn in `flat[index]`).
struct RasterFigure {
  const Model* model = nullptr;
  const mot::PartMatrix* pose = nullptr;  // 22 entries, by part number
  const int* anchor = nullptr;            // 5 entries
  const std::vector<Image>* skin = nullptr;
  const std::vector<std::uint32_t>* flat = nullptr;
};

void Raster_Figure(RasterTarget& target, const RasterFigure& figure, const RasterView& view, const RasterLight& light);

}  // namespace fig
