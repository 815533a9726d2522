// The house style.
#include "pictures/pic_style.h"

#include <cctype>

#include "assetgen_roster.h"

namespace pic {

TextStyle Style_Call(int cap, int max_width) {
  TextStyle s;
  s.face = Face::SansBoldOblique;
  s.height = cap;
  s.max_width = max_width;
  s.top = Hex(0xFFFFF0);
  s.mid = Hex(0xFFD040);
  s.bottom = Hex(0xE04010);
  s.outline = std::max(1.0f, cap / 14.0f);
  s.outline_colour = Hex(0x400808);
  s.outline2 = std::max(1.0f, cap / 28.0f);
  s.outline2_colour = Hex(0xFFF0C0);
  s.shadow = std::max(1, cap / 16);
  s.tracking = cap / 20.0f;
  return s;
}

TextStyle Style_Cold(int cap, int max_width) {
  TextStyle s = Style_Call(cap, max_width);
  s.top = Hex(0xFFFFFF);
  s.mid = Hex(0x90C8FF);
  s.bottom = Hex(0x2050C0);
  s.outline_colour = Hex(0x081030);
  s.outline2_colour = Hex(0xD0E8FF);
  return s;
}

TextStyle Style_Gold(int cap, int max_width) {
  TextStyle s;
  s.face = Face::SansBold;
  s.height = cap;
  s.max_width = max_width;
  s.top = Hex(0xFFF8D0);
  s.mid = Hex(0xFFC830);
  s.bottom = Hex(0xB86010);
  s.outline = std::max(1.0f, cap / 10.0f);
  s.outline_colour = Hex(0x201008);
  return s;
}

TextStyle Style_Label(int cap, int max_width) {
  TextStyle s;
  s.face = Face::CondensedBold;
  s.height = cap;
  s.max_width = max_width;
  s.top = Hex(0xFFFFFF);
  s.bottom = Hex(0xB8C4D8);
  s.outline = 1;
  s.outline_colour = Hex(0x080810);
  s.tracking = cap > 10 ? 1.0f : 0.5f;
  return s;
}

TextStyle Style_Tiny(int cap, Rgba colour) {
  TextStyle s;
  s.face = Face::SansBold;
  s.height = cap;
  s.top = colour;
  s.bottom = Scale(colour, 0.8f);
  s.shadow = 1;
  s.shadow_colour = Hex(0x000000, 0.9f);
  return s;
}

Canvas Text_Cell(const std::string& text, const TextStyle& style, int w, int h, int cx, int cy) {
  Canvas c = Make_Canvas(w, h);
  Text_Place(c, text, style, cx, cy, Align::Centre);
  return c;
}

Canvas Text_Cell_At(const std::string& text, const TextStyle& style, int w, int h, int x, int cy, Align align) {
  Canvas c = Make_Canvas(w, h);
  Text_Place(c, text, style, x, cy, align);
  return c;
}

std::string Fighter_Name(int character) {
  std::string s = gen::kRoster[character < 0 || character >= gen::kRosterSize ? 0 : character].name;
  for (char& ch : s) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
  return s;
}

ScreenCanvas Make_Screen(int margin) {
  ScreenCanvas s;
  s.margin = margin;
  s.c = Make_Canvas(512 + 2 * margin, 384 + 2 * margin);
  return s;
}

void Screen_Text(ScreenCanvas& s, const std::string& text, const TextStyle& style, int cx, int cy) {
  Text_Place(s.c, text, style, cx + s.margin, cy + s.margin, Align::Centre);
}

Canvas Screen_Piece(const ScreenCanvas& s, int x, int y, int w, int h) {
  return Crop(s.c, x + s.margin, y + s.margin, w, h);
}

}  // namespace pic
