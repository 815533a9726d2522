// The versus picture's pieces: its background and bands, the stage call and its digits, the
// final-stage call, the big VS, and the name bar.
#include <string>

#include "pictures/pic_groups.h"
#include "pictures/pic_style.h"

namespace pic {

void Pictures_Versus(Output& out) {
  // Background stretched over the screen: red from the upper left, blue from the lower right,
  // split by a bright diagonal.
  Canvas bg = Make_Canvas(512, 512);
  for (int y = 0; y < 512; ++y)
    for (int x = 0; x < 512; ++x) {
      float d = (x - 256) * 0.6f + (y - 256);
      float n = Fbm(x / 64.0f, y / 64.0f, 201, 4);
      Rgba side = d < 0 ? Mix(Hex(0x600808), Hex(0x200408), Clamp01(-d / 300)) : Mix(Hex(0x082060), Hex(0x040818), Clamp01(d / 300));
      side = Scale(side, 0.7f + 0.6f * n);
      float slash = Smooth(18, 0, std::fabs(d)) * 0.9f;
      bg.at(x, y) = Mix(side, Hex(0xFFF0D0), slash);
    }
  Save_Rgb(out, "vsbck1.bmp", bg);
  // The middle band (stretched at (0, 153) to 256 x 128) and the foot band (256 x 26).
  Canvas band = Make_Canvas(256, 128);
  for (int y = 0; y < 128; ++y)
    for (int x = 0; x < 256; ++x) {
      float streak = Noise(x / 6.0f, y / 40.0f, 211) * Smooth(0, 40, y) * Smooth(128, 88, y);
      band.at(x, y) = {1.0f, 0.85f, 0.5f, 0.35f * streak};
    }
  Save_Rgba(out, "vsbck2.bmp", band);
  Canvas foot = Make_Canvas(256, 32);
  for (int y = 0; y < 32; ++y) Fill_Rect(foot, 0, y, 256, 1, Mix(Hex(0x000000, 0.2f), Hex(0x000000, 0.85f), y / 31.0f));
  Fill_Rect(foot, 0, 0, 256, 1, Hex(0xFFD060));
  Save_Rgba(out, "vsbck3.bmp", foot);
  // The name bar (drawn faded and stretched to 317 x 36).
  Canvas bar = Make_Canvas(256, 32);
  Shade(bar, 0, 0, 256, 32, [](float x, float y) {
    const float pts[] = {12, 2, 256, 2, 244, 30, 0, 30};
    return Sd_Polygon(x, y, pts, 4);
  }, [](float x, float) { return Mix(Hex(0xFFFFFF), Hex(0x8090B0), x / 256); });
  Save_Rgba(out, "vfntbar.bmp", bar);
  // STAGE n: the word over (92, 173) 256 wide and (348, 173) 32 wide, then the digits.
  ScreenCanvas st = Make_Screen();
  Screen_Text(st, "STAGE", Style_Call(40, 250), 256, 205);
  Save_Rgba(out, "vstag1.bmp", Screen_Piece(st, 92, 173, 256, 64));
  Save_Rgba(out, "vstag2.bmp", Screen_Piece(st, 348, 173, 32, 64));
  for (int d = 0; d < 10; ++d)
    Save_Rgba(out, "vs_" + std::to_string(d) + ".bmp", Text_Cell(std::to_string(d), Style_Call(40, 44), 64, 64, 22, 32));
  // FINAL STAGE over (48, 170) and (304, 170).
  ScreenCanvas fs = Make_Screen();
  TextStyle fin = Style_Call(42, 400);
  fin.bottom = Hex(0xC01010);
  Screen_Text(fs, "FINAL STAGE", fin, 256, 202);
  Save_Rgba(out, "vfnlstg1.bmp", Screen_Piece(fs, 48, 170, 256, 64));
  Save_Rgba(out, "vfnlstg2.bmp", Screen_Piece(fs, 304, 170, 256, 64));
  // VS at (172, 157), centred on the screen.
  Save_Rgba(out, "vs_vs.bmp", Text_Cell("VS", Style_Call(60, 160), 256, 128, 84, 40));
}

}  // namespace pic
