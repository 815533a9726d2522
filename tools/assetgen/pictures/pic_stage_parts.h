// The pieces stages are painted from: a wrapping panorama (sky, far range, the place's own
// buildings or trees, the distant ground) and seamless floor patterns.
#pragma once
#include <cstdint>

#include "pictures/pic_canvas.h"

namespace pic {

// What stands in the middle distance of a stage.
enum class Skyline : std::uint8_t { Pagodas, City, Factory, Bamboo, Shrine, Palms, Castle, Mesas, Volcano, Ruins };
// What the fighters stand on.
enum class Floor : std::uint8_t { Planks, Grating, Concrete, Slabs, Checker, Sand, Snow, Earth, Lava, Marble };

struct StageLook {
  const char* stem;  // "DS01" ...
  Rgba sky_top, sky_mid, horizon;
  Rgba sun;          // disc colour (a = 0: none)
  float sun_x, sun_y, sun_r;  // in panorama pixels
  bool stars;
  Rgba far_range, haze;
  Skyline skyline;
  Rgba structure, lights;  // silhouettes and their lit windows or lanterns (a = 0: unlit)
  Rgba ground;             // distant ground at the panels' foot
  bool water;              // a strip of water before the skyline, reflecting it
  Floor floor;
  Rgba floor_a, floor_b;   // the floor's two main colours
  std::uint32_t seed;
};

constexpr int kPanoW = 1536;  // three 512-pixel panels
constexpr int kPanoH = 512;
constexpr int kHorizon = 452;  // row of the far ground's top edge

// The three panels' scene, its right edge joining its left.
Canvas Paint_Panorama(const StageLook& look);
// One 512 x 512 floor tile that repeats without seams.
Canvas Paint_Floor(const StageLook& look);

// The stages' looks, in stage-table file order DS01..DS12 (index 0..11; pic_stages.cpp).
const StageLook& Stage_Look(int index);

// Pieces for other pictures (ending panels, screens): the sky and the skyline alone.
void Paint_Sky(Canvas& c, const StageLook& look);
void Paint_Range(Canvas& c, const StageLook& look, int base_y, float amplitude, Rgba colour, std::uint32_t seed, int period);

}  // namespace pic
