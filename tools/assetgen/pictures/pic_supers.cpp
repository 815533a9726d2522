// Super-move backdrops: the mover's figure in silhouette against a burst of light, drawn
// over the whole screen with colours sweeping across it, so they are kept light and plain.
#include <string>

#include "pictures/pic_figure.h"
#include "pictures/pic_groups.h"

namespace pic {
namespace {

Canvas Super_Backdrop(int character) {
  constexpr int N = 512;
  Canvas c = Make_Canvas(N, N);
  for (int y = 0; y < N; ++y)
    for (int x = 0; x < N; ++x) {
      float a = std::atan2(y - 300.0f, x - 300.0f), d = std::hypot(x - 300.0f, y - 300.0f) / N;
      float ray = Smooth(0.3f, 0.7f, 0.5f + 0.5f * std::sin(a * 26 + 3 * Noise(a * 4 + 10, 0, 171)));
      float v = 0.55f + 0.45f * ray * Clamp01(d * 2) ;
      c.at(x, y) = {v, v, v, 1};
    }
  Shot shot;
  shot.row = character;
  shot.width = N;
  shot.height = N;
  shot.yaw = 115;
  shot.pitch = -12;
  shot.look_y = -3.6f;
  shot.look_x = -1.2f;
  shot.span = 10.5f;
  shot.supersample = 2;
  shot.rim = Hex(0xFFFFFF);
  shot.rim_power = 2.0f;
  Canvas fig = Render_Shot(shot);
  Canvas halo = fig;
  for (Rgba& p : halo.px) p = {1, 1, 1, p.a};
  Blur(halo, 14);
  Draw(c, halo, 0, 0);
  for (Rgba& p : fig.px) {  // a dark figure lit only at its edges
    float lum = 0.3f * p.r + 0.6f * p.g + 0.1f * p.b;
    float v = Smooth(0.75f, 1.0f, lum) * 0.9f + 0.08f;
    p = {v, v, v, p.a};
  }
  Draw(c, fig, 0, 0);
  return c;
}

void Supers(Output& out) {
  const struct {
    const char* file;
    int character;
  } kSupers[] = {{"SB_BAN.bmp", 0},   {"SB_HANA.bmp", 1},  {"SB_KAIDE.bmp", 2}, {"SB_EUNYU.bmp", 3},
                 {"SB_DRUNG.bmp", 4}, {"SB_HONOK.bmp", 5}, {"SB_RABAL.bmp", 6}, {"SB_REIME.bmp", 7},
                 {"SB_VASHI.bmp", 8}, {"SB_KNIFE.bmp", 9}};
  for (const auto& s : kSupers) Save_Rgb(out, s.file, Super_Backdrop(s.character));
}

}  // namespace

void Pictures_Supers(Output& out) { Supers(out); }

}  // namespace pic
