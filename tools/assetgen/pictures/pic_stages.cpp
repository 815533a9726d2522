// The twelve stages of the stage table: for each, a floor tile and three backdrop panels cut
// from one wrapping scene; the light pool shared by the lit stages.
#include <string>

#include "pictures/pic_groups.h"
#include "pictures/pic_stage_parts.h"

namespace pic {
namespace {

constexpr Rgba kNone = {};

// One row per stage: its place and mood.
const StageLook kStages[] = {
    {"DS01", Hex(0x2A1840), Hex(0xC04830), Hex(0xFFB060), Hex(0xFFD080), 1100, 400, 46, false,  // dojo above the valley at sunset
     Hex(0x5A2838), Hex(0xE08050), Skyline::Pagodas, Hex(0x2A1418), Hex(0xFFB040, 0.9f), Hex(0x4A2A20), false,
     Floor::Planks, Hex(0x9A6A40), Hex(0x6A4428), 1},
    {"DS02", Hex(0x05070E), Hex(0x1A2438), Hex(0x40506A), kNone, 0, 0, 0, false,  // a foundry yard at night
     Hex(0x1C2230), Hex(0x3A4456), Skyline::Factory, Hex(0x0E1016), Hex(0xFFB040, 0.9f), Hex(0x1A1C20), false,
     Floor::Grating, Hex(0x8A9098), Hex(0x202428), 2},
    {"DS03", Hex(0x0A0618), Hex(0x2A1850), Hex(0x803070), kNone, 0, 0, 0, true,  // rooftop over the night city
     Hex(0x20183A), Hex(0x50306A), Skyline::City, Hex(0x0C0A16), Hex(0xFFE080, 0.95f), Hex(0x18141E), false,
     Floor::Concrete, Hex(0x5A5860), Hex(0x3A3840), 3},
    {"DS04", Hex(0x6A90B0), Hex(0xB8D0C8), Hex(0xE8E8D0), Hex(0xFFF0D0), 300, 360, 30, false,  // bamboo shrine at dawn
     Hex(0x7A9A9A), Hex(0xD0E0D8), Skyline::Bamboo, Hex(0x2A4A30), kNone, Hex(0x4A5A40), false,
     Floor::Slabs, Hex(0x8A8A80), Hex(0x6A6E64), 4},
    {"DS05", Hex(0x060818), Hex(0x141E48), Hex(0x3A2A58), kNone, 0, 0, 0, true,  // festival night by the shrine gate
     Hex(0x141A38), Hex(0x2A2A50), Skyline::Shrine, Hex(0x8A1A18), Hex(0xFF8030), Hex(0x20181C), false,
     Floor::Slabs, Hex(0x6A6460), Hex(0x4A4440), 5},
    {"DS06", Hex(0x101830), Hex(0x7A3A60), Hex(0xF08060), Hex(0xFF9060), 760, 430, 34, false,  // harbour casino at dusk
     Hex(0x3A2A4A), Hex(0xA05A6A), Skyline::City, Hex(0x1A1424), Hex(0xFFD060, 0.9f), Hex(0x2A2030), true,
     Floor::Checker, Hex(0xE8E0D8), Hex(0x2A1A20), 6},
    {"DS07", Hex(0x080C20), Hex(0x1A2A50), Hex(0x4A5A80), Hex(0xF0F0E0), 420, 120, 30, true,  // mountain temple by moonlight
     Hex(0x1E2A48), Hex(0x3A4A6A), Skyline::Pagodas, Hex(0x0E1220), Hex(0xFF9040, 0.9f), Hex(0x1A1E28), false,
     Floor::Planks, Hex(0x8A3020), Hex(0x5A1A14), 7},
    {"DS08", Hex(0x2060C0), Hex(0x70B0E8), Hex(0xD0ECF8), Hex(0xFFFFE0), 1200, 90, 34, false,  // a beach at noon
     Hex(0x6090B0), Hex(0xB0D8F0), Skyline::Palms, Hex(0x1A3020), kNone, Hex(0x2A80A8), true,
     Floor::Sand, Hex(0xE8D4A8), Hex(0xC8AE80), 8},
    {"DS09", Hex(0x5A6A80), Hex(0x9AA8B8), Hex(0xD8DEE6), kNone, 0, 0, 0, false,  // a castle in the snow
     Hex(0x8090A8), Hex(0xD0D8E0), Skyline::Castle, Hex(0x3A4050), Hex(0xFFD080, 0.8f), Hex(0xC8D0DC), false,
     Floor::Snow, Hex(0xF0F4F8), Hex(0xB8C4D4), 9},
    {"DS10", Hex(0x3A6AB0), Hex(0xA8C0D0), Hex(0xF0D8A8), Hex(0xFFF8E0), 200, 140, 28, false,  // a canyon in the desert heat
     Hex(0xB08060), Hex(0xE8C8A0), Skyline::Mesas, Hex(0xA05A30), kNone, Hex(0xB07848), false,
     Floor::Earth, Hex(0xC09060), Hex(0x9A6A40), 10},
    {"DS11", Hex(0x100404), Hex(0x501008), Hex(0xC04010), kNone, 0, 0, 0, false,  // the final fortress below the volcano
     Hex(0x301010), Hex(0x802010), Skyline::Volcano, Hex(0x140808), Hex(0xFF6010), Hex(0x200C08), false,
     Floor::Lava, Hex(0x2A2428), Hex(0x181418), 11},
    {"DS12", Hex(0x04060E), Hex(0x101A38), Hex(0x30406A), Hex(0xE0E8FF), 900, 150, 22, true,  // old arena ruins under the stars
     Hex(0x182038), Hex(0x30406A), Skyline::Ruins, Hex(0x3A4058), kNone, Hex(0x2A3040), false,
     Floor::Marble, Hex(0xC8C4BC), Hex(0x8A8680), 12},
};

// The light pool on the lit stages: a lamp's round of warm light under the fighters. The pool
// is laid over the floor with plain alpha blending, so it stays faint (a floor keeps its own
// colour under it) and falls off to nothing well inside the pool's square, which follows the
// camera and must not show its edges.
void Light_Pool(Output& out) {
  Canvas c = Make_Canvas(256, 256);
  for (int y = 0; y < 256; ++y)
    for (int x = 0; x < 256; ++x) {
      float d = std::hypot(x - 127.5f, y - 127.5f) / 128;
      float k = Smooth(0.5f, 0.08f, d) * 0.16f + Smooth(0.75f, 0.3f, d) * 0.04f;
      c.at(x, y) = {1.0f, 0.9f, 0.72f, k};
    }
  Save_Rgba(out, "LIGHT.bmp", c);
}

}  // namespace

const StageLook& Stage_Look(int index) { return kStages[index % 12]; }

void Pictures_Stages(Output& out) {
  for (const StageLook& look : kStages) {
    std::string stem = look.stem;
    Save_Rgb(out, stem + "_MA1.bmp", Paint_Floor(look));
    Canvas pano = Paint_Panorama(look);
    for (int p = 0; p < 3; ++p) Save_Rgb(out, stem + "_BG" + std::to_string(p + 1) + ".bmp", Crop(pano, p * 512, 0, 512, 512));
  }
  Light_Pool(out);
}

}  // namespace pic
