// The fight's words: round calls and their glows, FIGHT, KO, PERFECT, TIME OVER, YOU WIN and
// YOU LOSE, the banners, the challenger and key-change notices, the continue and game-over
// calls, the record-time message, and the large digit sets. Each is authored at the size of
// its place on the 512 x 384 screen; texts split over two sprites are set once on a screen
// canvas and cut at the sprites' positions, so the halves join.
#include <cmath>
#include <string>

#include "pictures/pic_groups.h"
#include "pictures/pic_style.h"

namespace pic {
namespace {

std::string Digit_Name(const char* stem, int d) { return stem + std::to_string(d) + ".bmp"; }

void Digit_Set(Output& out, const char* stem, const TextStyle& style, int w, int h, int cx, int cy) {
  for (int d = 0; d < 10; ++d) Save_Rgba(out, Digit_Name(stem, d), Text_Cell(std::to_string(d), style, w, h, cx, cy));
}

void Digit_Sets(Output& out) {
  // Round timer: tens at screen x 225, units at 254.
  TextStyle timer = Style_Gold(38, 26);
  timer.face = Face::SansBold;
  timer.outline = 2;
  Digit_Set(out, "t", timer, 32, 64, 15, 24);
  // Continue count-down at (238, 302), centred on the screen's middle.
  Digit_Set(out, "conti_", Style_Call(50, 36), 64, 64, 18, 32);
  // Combo digits, stretched up to 36 layout units square.
  TextStyle combo = Style_Call(42, 52);
  combo.face = Face::SansBold;
  Digit_Set(out, "combo_", combo, 64, 64, 32, 32);
  // Round numbers after ROUND at (296, 177).
  Digit_Set(out, "st", Style_Call(44, 56), 64, 64, 26, 32);
  // Record time: seconds (32 x 32) and the smaller hundredths, sharing a baseline.
  Digit_Set(out, "sl", Style_Gold(22, 24), 32, 32, 13, 16);
  Digit_Set(out, "sm", Style_Gold(16, 16), 32, 32, 9, 12);
  Save_Rgba(out, "smcoma.bmp", Text_Cell(".", Style_Gold(26), 16, 32, 7, 28));
}

// A call set on a canvas of its sprite's size with its letters centred at (cx, cy); the glow
// file is the same letters blurred, placed as the glow sprite is stretched over the screen.
Canvas Glow_Of(const Canvas& letters, int radius, Rgba colour) {
  Canvas g = Make_Canvas(letters.w, letters.h);
  for (std::size_t i = 0; i < g.px.size(); ++i) g.px[i] = With_Alpha(colour, letters.px[i].a);
  Blur(g, radius);
  Canvas out = Make_Canvas(letters.w, letters.h, Hex(0x000000));
  for (std::size_t i = 0; i < g.px.size(); ++i) {
    float k = Clamp01(g.px[i].a * 2.2f);
    out.px[i] = {colour.r * k, colour.g * k, colour.b * k, 1.0f};
  }
  return out;
}

void Round_Calls(Output& out) {
  // ROUND at screen (108, 177) 256 x 64 and its number at (296, 177); the glow is stretched
  // over screen (128, 176) 256 x 64.
  ScreenCanvas s = Make_Screen();
  Screen_Text(s, "ROUND", Style_Call(44, 170), 198, 209);
  Canvas round = Screen_Piece(s, 108, 177, 256, 64);
  Save_Rgba(out, "round.bmp", round);
  Screen_Text(s, "1", Style_Call(44, 56), 322, 209);
  Save_Rgb(out, "rglow1.bmp", Glow_Of(Screen_Piece(s, 128, 176, 256, 64), 10, Hex(0xFF8020)));
  // FINAL ROUND at (134, 145) 256 x 128; its glow over (131, 144) 259 x 128.
  ScreenCanvas f = Make_Screen();
  Screen_Text(f, "FINAL", Style_Call(44, 230), 262, 181);
  Screen_Text(f, "ROUND", Style_Call(44, 230), 262, 237);
  Save_Rgba(out, "finalrnd.bmp", Screen_Piece(f, 134, 145, 256, 128));
  Save_Rgb(out, "finlglo.bmp", Resize(Glow_Of(Screen_Piece(f, 131, 144, 259, 128), 12, Hex(0xFF4010)), 256, 128));
  // FIGHT at (126, 145) 256 x 128; its glow over (124, 144) 256 x 128.
  ScreenCanvas g = Make_Screen();
  Screen_Text(g, "FIGHT!", Style_Call(76, 236), 254, 209);
  Save_Rgba(out, "fight.bmp", Screen_Piece(g, 126, 145, 256, 128));
  Save_Rgb(out, "fhtglo.bmp", Glow_Of(Screen_Piece(g, 124, 144, 256, 128), 14, Hex(0xFFA020)));
}

void End_Calls(Output& out) {
  Save_Rgba(out, "ko.bmp", Text_Cell("K.O.", Style_Call(50, 124), 128, 64, 62, 32));
  TextStyle p1 = Style_Call(36, 122), p2 = Style_Call(36, 122);
  p2.top = Hex(0xFFFFFF), p2.mid = Hex(0xA0FFFF), p2.bottom = Hex(0x2080FF), p2.outline_colour = Hex(0x002040);
  Save_Rgba(out, "perfct1.bmp", Text_Cell("PERFECT", p1, 128, 64, 64, 32));
  Save_Rgba(out, "perfct2.bmp", Text_Cell("PERFECT", p2, 128, 64, 64, 32));
  Save_Rgba(out, "timeover.bmp", Text_Cell("TIME OVER", Style_Cold(38, 216), 256, 64, 112, 32));
  Save_Rgba(out, "youwin.bmp", Text_Cell("YOU WIN", Style_Call(40, 166), 256, 64, 85, 32));
  Save_Rgba(out, "youlose.bmp", Text_Cell("YOU LOSE", Style_Cold(40, 180), 256, 64, 92, 32));
  TextStyle rp = Style_Label(16, 100);
  rp.face = Face::SansBoldOblique;
  Canvas replay = Text_Cell_At("REPLAY", rp, 128, 32, 26, 16, Align::Left);
  Fill_Circle(replay, 14, 16, 7, Hex(0x400000));
  Fill_Circle(replay, 14, 16, 5.5f, Hex(0xFF2018));
  Fill_Circle(replay, 12.5f, 14.5f, 1.6f, Hex(0xFFC0B0));
  Save_Rgba(out, "replay.bmp", replay);
  Save_Rgba(out, "replyang.bmp", Text_Cell("REPLAY ANGLE", Style_Label(12, 120), 128, 32, 64, 16));
}

void Banners(Output& out) {
  // First strike and reversal slide in at screen y 80; 128 x 64 each.
  for (int k = 0; k < 2; ++k) {
    Canvas c = Make_Canvas(128, 64);
    Shade(c, 0, 0, 128, 64, [](float x, float y) {
      const float band[] = {8, 10, 127, 10, 120, 54, 1, 54};
      return Sd_Polygon(x, y, band, 4);
    }, [&](float x, float) { return Mix(k ? Hex(0x1030A0, 0.85f) : Hex(0xA01010, 0.85f), Hex(0x000000, 0.2f), x / 128); });
    TextStyle s = k ? Style_Cold(16, 110) : Style_Call(16, 110);
    if (k) {
      Text_Place(c, "REVERSAL!", s, 64, 32, Align::Centre);
    } else {
      Text_Place(c, "FIRST", s, 64, 22, Align::Centre);
      Text_Place(c, "STRIKE!", s, 64, 43, Align::Centre);
    }
    Save_Rgba(out, k ? "rvrsl.bmp" : "frstat.bmp", c);
  }
  // The combo label (layout (10, 49), letters within its first 50 columns): it stands before
  // the digits on the left and after them on the right, so it reads either way round.
  TextStyle hits = Style_Gold(9, 48);
  hits.face = Face::SansBoldOblique;
  Save_Rgba(out, "hitcombo.bmp", Text_Cell_At("COMBO", hits, 64, 16, 2, 8, Align::Left));
  // The challenger notice at layout (76, 101), centred on the layout screen's middle (x 160).
  Canvas ch = Make_Canvas(256, 64);
  Fill_Rect(ch, 0, 6, 168, 32, Hex(0x000000, 0.55f));
  Fill_Rect(ch, 0, 5, 168, 1, Hex(0xFFD040));
  Fill_Rect(ch, 0, 38, 168, 1, Hex(0xFFD040));
  Text_Place(ch, "A NEW CHALLENGER", Style_Call(9, 160), 84, 15, Align::Centre);
  Text_Place(ch, "HAS ENTERED THE RING!", Style_Label(7, 160), 84, 29, Align::Centre);
  Save_Rgba(out, "chall.bmp", ch);
  // Key change at layout (84, 167), centred on x 160.
  TextStyle kc = Style_Cold(9, 150);
  Save_Rgba(out, "keychng.bmp", Text_Cell("CONTROLS REVERSED!", kc, 256, 32, 76, 12));
  // The demonstration banner at screen (2, 7).
  TextStyle demo = Style_Label(14, 120);
  demo.face = Face::SansBoldOblique;
  demo.top = Hex(0xFFFFFF), demo.bottom = Hex(0xFFB040);
  Save_Rgba(out, "smvdr.bmp", Text_Cell_At("DEMO PLAY", demo, 128, 32, 6, 14, Align::Left));
}

void Continue_Calls(Output& out) {
  // CONTINUE? over sprites at (101, 239) 256 wide and (357, 239) 64 wide.
  ScreenCanvas s = Make_Screen();
  Screen_Text(s, "CONTINUE?", Style_Call(42, 300), 256, 271);
  Save_Rgba(out, "continue.bmp", Screen_Piece(s, 101, 239, 256, 64));
  Save_Rgba(out, "continu2.bmp", Screen_Piece(s, 357, 239, 64, 64));
  // The count-down's backdrop, added over the scene and brighter as the count runs down; the
  // two pictures alternate every three frames, so the rays flicker.
  for (int k = 0; k < 2; ++k) {
    Canvas bk = Make_Canvas(256, 256);
    for (int y = 0; y < 256; ++y)
      for (int x = 0; x < 256; ++x) {
        float a = std::atan2(y - 150.0f, x - 128.0f), d = std::hypot(x - 128.0f, (y - 150.0f) * 1.3f) / 180;
        float rays = 0.5f + 0.5f * std::cos(a * 16 + k * 0.2f);
        float v = Clamp01(d) * (0.35f + 0.4f * rays * (k ? 1.0f : 0.8f));
        bk.at(x, y) = {v, v * 0.18f, v * 0.08f, 1};
      }
    Save_Rgb(out, k ? "contibk2.bmp" : "contibk1.bmp", bk);
  }
  Save_Rgba(out, "gameover.bmp", Text_Cell("GAME OVER", Style_Cold(40, 216), 256, 64, 112, 32));
  // CONGRATULATIONS! over (91, 302) 256 wide and (352, 302) 128 wide. The five columns
  // between the two sprites are never drawn, so the word ends at the first one's edge and the
  // mark starts past the gap.
  ScreenCanvas c = Make_Screen();
  TextStyle cg = Style_Call(30);
  while (cg.height > 8 && Text_Styled("CONGRATULATIONS", cg).c.w > 252) --cg.height;
  Text_Place(c.c, "CONGRATULATIONS", cg, 342 + c.margin, 334 + c.margin, Align::Right);
  Text_Place(c.c, "!", cg, 355 + c.margin, 334 + c.margin, Align::Left);
  Save_Rgba(out, "congrat.bmp", Screen_Piece(c, 91, 302, 256, 64));
  Save_Rgba(out, "congrat2.bmp", Screen_Piece(c, 352, 302, 128, 64));
}

void Record_Message(Output& out) {
  // "RECORD TIME [1ST] PLACE!" on the line at screen y 225: halves at 85 and 287, the rank
  // at 214.
  // Both halves in one size: the largest at which the first fits its sprite.
  TextStyle s = Style_Gold(18);
  s.face = Face::SansBoldOblique;
  while (s.height > 8 && Text_Styled("RECORD TIME", s).c.w > 124) --s.height;
  Save_Rgba(out, "spfon1.bmp", Text_Cell_At("RECORD TIME", s, 128, 32, 124, 16, Align::Right));
  Save_Rgba(out, "spfon2.bmp", Text_Cell_At("PLACE!", s, 128, 32, 4, 16, Align::Left));
  const char* ranks[5] = {"1ST", "2ND", "3RD", "4TH", "5TH"};
  const char* files[5] = {"1st.bmp", "2nd.bmp", "3rd.bmp", "4th.bmp", "5th.bmp"};
  for (int i = 0; i < 5; ++i) Save_Rgba(out, files[i], Text_Cell(ranks[i], Style_Call(16, 56), 64, 32, 32, 16));
}

}  // namespace

void Pictures_FightMessages(Output& out) {
  Digit_Sets(out);
  Round_Calls(out);
  End_Calls(out);
  Banners(out);
  Continue_Calls(out);
  Record_Message(out);
}

}  // namespace pic
