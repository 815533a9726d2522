// The house style of the screens: text styles, the names on the plates, and cells that hold
// a piece of text at a fixed place.
#pragma once
#include <string>

#include "pictures/pic_text.h"

namespace pic {

// Big calls (ROUND, FIGHT, KO): white-hot to orange letters, dark red outline, white rim.
TextStyle Style_Call(int cap_height, int max_width = 0);
// Cool steel-blue calls (TIME OVER, YOU LOSE, GAME OVER).
TextStyle Style_Cold(int cap_height, int max_width = 0);
// Gold letters with a dark outline, for digits and labels in the fight display.
TextStyle Style_Gold(int cap_height, int max_width = 0);
// Small clean labels: white to light grey with a thin black outline.
TextStyle Style_Label(int cap_height, int max_width = 0);
// Tiny text (8-pixel rows): no outline, a hard shadow.
TextStyle Style_Tiny(int cap_height, Rgba colour);

// A w x h transparent canvas with the text's letters centred on (cx, cy).
Canvas Text_Cell(const std::string& text, const TextStyle& style, int w, int h, int cx, int cy);
// The same, the letters' box aligned at x by `align`.
Canvas Text_Cell_At(const std::string& text, const TextStyle& style, int w, int h, int x, int cy, Align align);

// The name a fighter is announced by and shown with (upper case), by character 0..14.
std::string Fighter_Name(int character);

// Letters of `text` placed on a screen-sized canvas (512 x 384, plus `margin` on every side)
// with their box centred at (cx, cy) in screen pixels; Screen_Piece cuts out one sprite.
struct ScreenCanvas {
  Canvas c;
  int margin = 0;
};
ScreenCanvas Make_Screen(int margin = 256);
void Screen_Text(ScreenCanvas& s, const std::string& text, const TextStyle& style, int cx, int cy);
Canvas Screen_Piece(const ScreenCanvas& s, int x, int y, int w, int h);

}  // namespace pic
