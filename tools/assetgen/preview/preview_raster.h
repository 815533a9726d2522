// Contact sheets for looking at figures: RGB canvases the figures' own rasteriser
// (figures/fig_raster.h) draws into, and PNG output.
#pragma once
#include <cstdint>
#include <vector>

#include "figures/fig_types.h"
#include "motion/mot_pose.h"

namespace preview {

struct Canvas {
  int width = 0, height = 0;
  std::vector<std::uint8_t> rgb;
  std::vector<float> depth;
};
void Canvas_Init(Canvas& c, int width, int height, std::uint32_t background);
void Canvas_Blit(Canvas& dst, const Canvas& src, int x, int y);

struct View {
  float yaw = 150;          // the game's fighter yaw, degrees
  float look_y = -3.8f;     // model-space height the camera looks at
  float distance = 15.0f;
  float focal = 1.0f;       // pixels per unit at depth 1, times the canvas height
  bool lit = false;         // shade by the normals (the game draws unlit)
};

// Textures by model texture index; an empty image is drawn in `flat[index]`.
struct Skin {
  const std::vector<fig::Image>* images = nullptr;
  std::vector<std::uint32_t> flat;
};

// Draws the model posed by `pose` (one matrix per part; flag points follow `anchor[i]`).
void Draw_Figure(Canvas& c, const fig::Model& m, const mot::PartMatrix pose[22], const int anchor[5],
                 fig::Vec3 offset, const Skin& skin, const View& view);

bool Write_Png(const char* path, const Canvas& c);

}  // namespace preview
