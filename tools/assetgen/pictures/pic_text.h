// Text pictures from the DejaVu faces through FreeType, with the arcade styling the screens
// use: a vertical gradient fill, one or two outlines, a soft glow and a drop shadow.
#pragma once
#include <string>

#include "pictures/pic_canvas.h"

namespace pic {

enum class Face { Sans, SansBold, SansBoldOblique, Condensed, CondensedBold, SerifBold, SerifBoldItalic, MonoBold };

// Opens the faces. False, with a message naming the missing font file, when one is absent.
bool Text_Open();
void Text_Close();

// Coverage of the text set at `pixels` (the em size), tight around the inked pixels plus
// `pad` on every side. `baseline` receives the baseline's row in the mask.
Mask Text_Mask(Face face, int pixels, const std::string& text, int pad, float tracking = 0, int* baseline = nullptr);

struct TextStyle {
  Face face = Face::SansBold;
  int height = 24;            // cap height in pixels the text is fitted to
  int max_width = 0;          // narrower text is set smaller to fit (0: no limit)
  float tracking = 0;         // extra space between letters, in pixels
  Rgba top = Hex(0xFFFFFF);   // fill gradient, top to bottom of the letters
  Rgba bottom = Hex(0xFFFFFF);
  Rgba mid = {};              // optional middle band colour (a bevel line) when mid.a > 0
  float outline = 0;          // inner outline width, pixels
  Rgba outline_colour = Hex(0x000000);
  float outline2 = 0;         // outer outline width (beyond the first)
  Rgba outline2_colour = Hex(0xFFFFFF);
  float glow = 0;             // glow radius, pixels
  Rgba glow_colour = Hex(0xFFC040);
  int shadow = 0;             // drop shadow offset, pixels
  Rgba shadow_colour = Hex(0x000000, 0.7f);
};

// The styled text on a transparent canvas just large enough for it; `ink_x`/`ink_y` receive
// where the letters' own box starts in it (outlines and glow spread around that box), and
// `ink_w`/`ink_h` its size.
struct StyledText {
  Canvas c;
  int ink_x = 0, ink_y = 0, ink_w = 0, ink_h = 0;
};
StyledText Text_Styled(const std::string& text, const TextStyle& style);

enum class Align { Left, Centre, Right };
// Draws styled text onto `dst` with its letters' box placed by `align` at x (left edge,
// centre or right edge) and its vertical centre at y.
void Text_Place(Canvas& dst, const std::string& text, const TextStyle& style, int x, int y, Align align);

}  // namespace pic
