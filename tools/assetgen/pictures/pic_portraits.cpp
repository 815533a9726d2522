// Select and versus portraits, name plates, ranking faces: every one drawn from the fighter's
// own model.
#include "pictures/pic_portraits.h"

#include <string>

#include "figures/fig_figure.h"
#include "figures/fig_roster.h"
#include "pictures/pic_figure.h"
#include "pictures/pic_groups.h"
#include "pictures/pic_style.h"

namespace pic {
namespace {

// A fighter's head: the crown's model height less half the head.
float Head_Centre(int character) {
  const fig::Look& look = fig::Fig_Look(character);
  return look.head_top - look.head_h * 0.5f;
}

void Portrait_Background(Canvas& c, int character) {
  Rgba main = Figure_Main_Colour(character), accent = Figure_Accent_Colour(character);
  Rgba deep = Mix(Scale(main, 0.35f), Hex(0x080810), 0.5f);
  for (int y = 0; y < c.h; ++y)
    for (int x = 0; x < c.w; ++x) {
      float t = static_cast<float>(y) / c.h;
      float a = std::atan2(y - 90.0f, x - 150.0f);
      float ray = 0.5f + 0.5f * std::cos(a * 18);
      Rgba col = Mix(Mix(Scale(accent, 0.55f), deep, Clamp01(t * 1.3f)), Hex(0x000000), 0.25f * ray);
      float stripe = std::fmod(x + y * 0.6f + 1000, 24.0f) < 2 ? 0.08f : 0.0f;
      c.at(x, y) = {Clamp01(col.r + stripe), Clamp01(col.g + stripe), Clamp01(col.b + stripe), 1};
    }
  TextStyle s;
  s.face = Face::SansBoldOblique;
  s.height = 40;
  s.max_width = 250;
  s.top = s.bottom = Hex(0xFFFFFF, 0.12f);
  Text_Place(c, Fighter_Name(character), s, 128, 300, Align::Centre);
}

}  // namespace

Canvas Tall_Portrait(int character) {
  Canvas c = Make_Canvas(256, 384);
  Portrait_Background(c, character);
  Shot shot;
  shot.row = character;
  shot.width = 256;
  shot.height = 384;
  // Three-quarter view, the face lit from the front and filling the upper half.
  shot.yaw = 152;
  shot.pitch = -3;
  shot.look_y = Head_Centre(character) - 0.9f;
  shot.look_x = 0.15f;
  shot.span = 3.9f;
  shot.distance = 30;
  shot.supersample = 4;
  shot.rim = Mix(Figure_Accent_Colour(character), Hex(0xFFFFFF), 0.4f);
  Canvas fig = Render_Shot(shot);
  Canvas shadow = fig;
  for (Rgba& p : shadow.px) p = {0, 0, 0, p.a * 0.6f};
  Blur(shadow, 8);
  Draw(c, shadow, 6, 4);
  Draw(c, fig, 0, 0);
  // A light rim at the foot so the lower half sits well under the select bars.
  for (int y = 330; y < 384; ++y) Fill_Rect(c, 0, y, 256, 1, Hex(0x000000, 0.6f * (y - 330) / 54.0f));
  return c;
}

Canvas Head_Shot(int row, int w, int h, float yaw) {
  Shot shot;
  shot.row = row;
  shot.width = w;
  shot.height = h;
  shot.yaw = yaw;
  shot.look_y = Head_Centre(fig::Fig_RowCharacter(row)) - 0.35f;
  shot.span = 2.6f;
  shot.distance = 30;
  shot.supersample = 4;
  shot.rim = Mix(Figure_Accent_Colour(row), Hex(0xFFFFFF), 0.5f);
  return Render_Shot(shot);
}

namespace {

void Select_Portraits(Output& out) {
  const char* stems[15] = {"sban", "shana", "skaid", "seunyu", "sdang", "shono", "srabal", "sreim",
                           "sbash", "sknif", "seunhe", "shenly", "senya", "sdrmago", "sboss"};
  const char* halves[10] = {"iban", "ihana", "ikaiden", "ieunyu", "idrong", "ihonoka", "irabalt", "ireimei", "ivash", "iknif"};
  for (int ch = 0; ch < 15; ++ch) {
    Canvas tall = Tall_Portrait(ch);
    Canvas top = Crop(tall, 0, 0, 256, 256);
    Save_Rgb(out, std::string(stems[ch]) + ".bmp", top);
    if (ch < 10) {
      Save_Rgb(out, std::string(halves[ch]) + ".bmp", top);
      Save_Rgb(out, std::string(halves[ch]) + "1.bmp", Crop(tall, 0, 256, 256, 128));
    }
  }
}

// Name plates of the select and versus screens (128 x 32, stretched to 128 x 32 on screen).
void Name_Plates(Output& out) {
  const char* stems[15] = {"n_ban", "n_hana", "n_kaidn", "n_eunny", "n_dron", "n_hono", "n_rabal", "n_reime",
                           "n_vash", "n_knif", "n_eunhe", "n_henly", "n_enya", "n_drmago", "n_evil"};
  for (int ch = 0; ch < 15; ++ch) {
    Canvas c = Make_Canvas(128, 32);
    Shade(c, 0, 0, 128, 32, [](float x, float y) {
      const float band[] = {6, 4, 128, 4, 122, 28, 0, 28};
      return Sd_Polygon(x, y, band, 4);
    }, [&](float x, float) { return Mix(With_Alpha(Scale(Figure_Main_Colour(ch), 0.5f), 0.85f), Hex(0x000000, 0.3f), x / 128); });
    TextStyle s = Style_Gold(14, 116);
    s.face = Face::SansBoldOblique;
    Text_Place(c, Fighter_Name(ch), s, 64, 16, Align::Centre);
    Save_Rgba(out, std::string(stems[ch]) + ".bmp", c);
  }
}

// Ranking faces (128 x 32): the head in a frame, then the name.
void Ranking_Faces(Output& out) {
  const char* files[14] = {"rban.bmp", "rhana.bmp", "rkaid.bmp", "reunyu.bmp", "rdang.bmp", "rhono.bmp", "rrabal.bmp",
                           "rreim.bmp", "rvashi.bmp", "rknif.bmp", "rsp1.bmp", "rsp2.bmp", "rsp3.bmp", "rsp4.bmp"};
  for (int ch = 0; ch < 14; ++ch) {
    Canvas c = Make_Canvas(128, 32);
    Fill_Rect(c, 0, 0, 32, 32, Hex(0xFFD040));
    Fill_Rect(c, 1, 1, 30, 30, Mix(Scale(Figure_Main_Colour(ch), 0.5f), Hex(0x101018), 0.4f));
    Draw(c, Head_Shot(ch, 30, 30), 1, 1);
    Text_Place(c, Fighter_Name(ch), Style_Label(12, 90), 38, 16, Align::Left);
    Save_Rgba(out, files[ch], c);
  }
}

}  // namespace

void Pictures_Portraits(Output& out) {
  Select_Portraits(out);
  Name_Plates(out);
  Ranking_Faces(out);
}

}  // namespace pic
