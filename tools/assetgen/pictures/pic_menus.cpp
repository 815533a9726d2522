// The ranking and options screens: the ranking's panel, title, rank labels and digit sets;
// the options backdrop, row labels, values, button letters and the cursor arrow.
#include <string>

#include "pictures/pic_groups.h"
#include "pictures/pic_style.h"

namespace pic {
namespace {

void Ranking(Output& out) {
  // The translucent panel, drawn at layout (0, 0) 256 x 256 and (256, 0) 64 x 256 at level 100.
  Canvas panel = Make_Canvas(640, 512);
  for (int y = 0; y < 512; ++y)
    for (int x = 0; x < 640; ++x) {
      bool row_line = y > 150 && (y - 150) % 108 < 3 && x > 80 && x < 560;
      float frame = (x < 40 || x > 600 || y < 30 || y > 482) ? 0.0f : 1.0f;
      Rgba col = Mix(Hex(0x80A0FF), Hex(0x2040A0), y / 512.0f);
      panel.at(x, y) = With_Alpha(row_line ? Hex(0xFFFFFF) : col, frame * (row_line ? 1.0f : 0.85f));
    }
  Save_Rgba(out, "vdback1.bmp", Crop(panel, 0, 0, 512, 512));
  Save_Rgba(out, "vdback2.bmp", Crop(panel, 512, 0, 128, 512));
  Save_Rgba(out, "ranking.bmp", Text_Cell("RANKING", Style_Call(36, 220), 256, 64, 113, 32));
  Save_Rgba(out, "wins.bmp", Text_Cell_At("WINS", Style_Gold(18, 60), 64, 32, 2, 16, Align::Left));
  const char* ranks[10] = {"1ST", "2ND", "3RD", "4TH", "5TH", "6TH", "7TH", "8TH", "9TH", "10TH"};
  for (int i = 0; i < 10; ++i) {
    TextStyle s = i < 3 ? Style_Call(20, 62) : Style_Label(20, 62);
    Save_Rgba(out, "f" + std::to_string(i + 1) + ".bmp", Text_Cell_At(ranks[i], s, 64, 32, 2, 16, Align::Left));
  }
  for (int d = 0; d < 10; ++d) {
    Save_Rgba(out, "w" + std::to_string(d) + ".bmp", Text_Cell(std::to_string(d), Style_Gold(24, 30), 32, 32, 15, 16));
    Save_Rgba(out, "ws" + std::to_string(d) + ".bmp", Text_Cell(std::to_string(d), Style_Gold(16, 22), 32, 32, 12, 19));
  }
  Save_Rgba(out, "wscoma.bmp", Text_Cell(".", Style_Gold(24), 16, 32, 7, 26));
}

void Options(Output& out) {
  Canvas bg = Make_Canvas(512, 512);
  for (int y = 0; y < 512; ++y)
    for (int x = 0; x < 512; ++x) {
      float n = Fbm(x / 96.0f, y / 96.0f, 251, 4);
      Rgba col = Mix(Hex(0x0A1430), Hex(0x1A3060), n);
      if ((x + y) % 32 < 2) col = Mix(col, Hex(0x4060A0), 0.3f);
      bg.at(x, y) = col;
    }
  Save_Rgb(out, "setup.bmp", bg);
  TextStyle label = Style_Label(10, 112);
  const struct {
    const char* file;
    const char* text;
  } kLabels[] = {{"gameleve.bmp", "GAME LEVEL"}, {"gametime.bmp", "ROUND TIME"},  {"damage.bmp", "DAMAGE"},
                 {"gamepoin.bmp", "ROUNDS TO WIN"}, {"coins.bmp", "COINS / CREDIT"}, {"special.bmp", "EXTRA FIGHTERS"},
                 {"sound.bmp", "SOUND"},        {"exit.bmp", "EXIT"},          {"g_fps.bmp", "FRAME RATE"},
                 {"punch1.bmp", "PUNCH 1"},     {"punch2.bmp", "PUNCH 2"},     {"kick1.bmp", "KICK 1"},
                 {"kick2.bmp", "KICK 2"}};
  // Every row label in one size: the largest at which the longest still fits its cell.
  label.max_width = 0;
  for (bool fits = false; !fits && label.height > 6;) {
    fits = true;
    for (const auto& l : kLabels) fits = fits && Text_Styled(l.text, label).ink_w <= 122;
    if (!fits) --label.height;
  }
  for (const auto& l : kLabels) Save_Rgba(out, l.file, Text_Cell_At(l.text, label, 128, 16, 2, 8, Align::Left));
  TextStyle title = Style_Gold(11, 250);
  Save_Rgba(out, "mode.bmp", Text_Cell_At("OPTIONS", title, 256, 16, 1, 8, Align::Left));
  TextStyle value = Style_Gold(10, 14);
  for (int d = 0; d < 10; ++d)
    Save_Rgba(out, std::to_string(d) + ".bmp", Text_Cell(std::to_string(d), value, 16, 16, 6, 8));
  Save_Rgba(out, "off.bmp", Text_Cell_At("OFF", Style_Gold(10, 30), 32, 16, 2, 8, Align::Left));
  Save_Rgba(out, "on.bmp", Text_Cell_At("ON", Style_Gold(10, 30), 32, 16, 2, 8, Align::Left));
  Save_Rgba(out, "high.bmp", Text_Cell_At("HIGH", Style_Gold(10, 58), 64, 16, 2, 8, Align::Left));
  Save_Rgba(out, "mideum.bmp", Text_Cell_At("MEDIUM", Style_Gold(10, 58), 64, 16, 2, 8, Align::Left));
  Save_Rgba(out, "low.bmp", Text_Cell_At("LOW", Style_Gold(10, 58), 64, 16, 2, 8, Align::Left));
  const char* letters = "ABCD";
  for (int q = 0; q < 2; ++q)
    for (int b = 0; b < 4; ++b) {
      Canvas c = Make_Canvas(32, 16);
      Shade(c, 0, 0, 32, 16, [](float x, float y) { return Sd_Circle(x, y, 8, 8, 7); },
            [&](float, float) { return q ? Hex(0x3070E0) : Hex(0xE03828); });
      Text_Place(c, std::string(1, letters[b]), Style_Tiny(8, Hex(0xFFFFFF)), 8, 8, Align::Centre);
      std::string name = std::to_string(q + 1) + "p" + static_cast<char>('a' + b) + ".bmp";
      Save_Rgba(out, name, c);
    }
  for (int k = 0; k < 2; ++k) {
    Canvas c = Make_Canvas(16, 16);
    const float tri[] = {3, 2, 14, 8, 3, 14};
    Fill_Polygon(c, tri, 3, k ? Hex(0xFFFFFF) : Hex(0xFFB030));
    Save_Rgba(out, k ? "arrow02.bmp" : "arrow01.bmp", c);
  }
}

}  // namespace

void Pictures_Ranking(Output& out) { Ranking(out); }
void Pictures_Options(Output& out) { Options(out); }

}  // namespace pic
