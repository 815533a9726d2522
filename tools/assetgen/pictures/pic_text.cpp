// FreeType text: glyph coverage, fitting, and the styled letters.
#include "pictures/pic_text.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <cstdio>
#include <vector>

namespace pic {
namespace {

constexpr const char* kFontDir = "/usr/share/fonts/truetype/dejavu/";
constexpr const char* kFontFiles[] = {
    "DejaVuSans.ttf",                  // Sans
    "DejaVuSans-Bold.ttf",             // SansBold
    "DejaVuSans-BoldOblique.ttf",      // SansBoldOblique
    "DejaVuSansCondensed.ttf",         // Condensed
    "DejaVuSansCondensed-Bold.ttf",    // CondensedBold
    "DejaVuSerif-Bold.ttf",            // SerifBold
    "DejaVuSerifCondensed-BoldItalic.ttf",  // SerifBoldItalic
    "DejaVuSansMono-Bold.ttf",         // MonoBold
};
constexpr int kFaces = sizeof kFontFiles / sizeof kFontFiles[0];

// Written only by Text_Open and Text_Close.
struct FontState {
  FT_Library lib = nullptr;
  FT_Face faces[kFaces] = {};
  float cap_ratio[kFaces] = {};  // cap height / em size
};
FontState g_fonts;

// Code points of a UTF-8 string (one- to three-byte sequences).
std::vector<unsigned> Decode(const std::string& s) {
  std::vector<unsigned> out;
  for (std::size_t i = 0; i < s.size();) {
    unsigned char c = static_cast<unsigned char>(s[i]);
    if (c < 0x80) {
      out.push_back(c);
      ++i;
    } else if ((c & 0xE0) == 0xC0 && i + 1 < s.size()) {
      out.push_back(((c & 0x1F) << 6) | (static_cast<unsigned char>(s[i + 1]) & 0x3F));
      i += 2;
    } else if ((c & 0xF0) == 0xE0 && i + 2 < s.size()) {
      out.push_back(((c & 0x0F) << 12) | ((static_cast<unsigned char>(s[i + 1]) & 0x3F) << 6) |
                    (static_cast<unsigned char>(s[i + 2]) & 0x3F));
      i += 3;
    } else {
      ++i;
    }
  }
  return out;
}

struct Placed {
  int x, y;  // bitmap top-left relative to the pen origin on the baseline
  int w, h;
  std::vector<unsigned char> bits;
};

// Lays out the glyphs; returns the ink box relative to the first pen position.
std::vector<Placed> Layout(FT_Face face, int pixels, const std::string& text, float tracking, int& x0, int& y0,
                           int& x1, int& y1) {
  FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(pixels));
  std::vector<Placed> out;
  float pen = 0;
  FT_UInt prev = 0;
  x0 = y0 = 1 << 30;
  x1 = y1 = -(1 << 30);
  for (unsigned cp : Decode(text)) {
    FT_UInt gi = FT_Get_Char_Index(face, cp);
    if (prev && gi && FT_HAS_KERNING(face)) {
      FT_Vector k;
      FT_Get_Kerning(face, prev, gi, FT_KERNING_DEFAULT, &k);
      pen += k.x / 64.0f;
    }
    if (FT_Load_Glyph(face, gi, FT_LOAD_RENDER) != 0) continue;
    FT_GlyphSlot g = face->glyph;
    Placed p;
    p.x = static_cast<int>(std::lround(pen)) + g->bitmap_left;
    p.y = -g->bitmap_top;
    p.w = static_cast<int>(g->bitmap.width);
    p.h = static_cast<int>(g->bitmap.rows);
    p.bits.resize(static_cast<std::size_t>(p.w) * p.h);
    for (int r = 0; r < p.h; ++r)
      for (int c = 0; c < p.w; ++c) p.bits[r * p.w + c] = g->bitmap.buffer[r * g->bitmap.pitch + c];
    if (p.w > 0 && p.h > 0) {
      x0 = std::min(x0, p.x), y0 = std::min(y0, p.y);
      x1 = std::max(x1, p.x + p.w), y1 = std::max(y1, p.y + p.h);
    }
    out.push_back(std::move(p));
    pen += g->advance.x / 64.0f + tracking;
    prev = gi;
  }
  if (x1 < x0) x0 = y0 = x1 = y1 = 0;
  return out;
}

}  // namespace

bool Text_Open() {
  if (g_fonts.lib) return true;
  if (FT_Init_FreeType(&g_fonts.lib) != 0) {
    std::fprintf(stderr, "assetgen: FreeType does not start\n");
    return false;
  }
  for (int i = 0; i < kFaces; ++i) {
    std::string path = std::string(kFontDir) + kFontFiles[i];
    if (FT_New_Face(g_fonts.lib, path.c_str(), 0, &g_fonts.faces[i]) != 0) {
      std::fprintf(stderr, "assetgen: cannot open the font %s (install fonts-dejavu-core)\n", path.c_str());
      Text_Close();
      return false;
    }
    FT_Set_Pixel_Sizes(g_fonts.faces[i], 0, 200);
    FT_Load_Char(g_fonts.faces[i], 'H', FT_LOAD_DEFAULT);
    g_fonts.cap_ratio[i] = (g_fonts.faces[i]->glyph->metrics.height / 64.0f) / 200.0f;
  }
  return true;
}

void Text_Close() {
  for (FT_Face& f : g_fonts.faces)
    if (f) FT_Done_Face(f), f = nullptr;
  if (g_fonts.lib) FT_Done_FreeType(g_fonts.lib);
  g_fonts.lib = nullptr;
}

Mask Text_Mask(Face which, int pixels, const std::string& text, int pad, float tracking, int* baseline) {
  FT_Face face = g_fonts.faces[static_cast<int>(which)];
  int x0, y0, x1, y1;
  std::vector<Placed> glyphs = Layout(face, std::max(pixels, 4), text, tracking, x0, y0, x1, y1);
  Mask m = Make_Mask(x1 - x0 + 2 * pad, y1 - y0 + 2 * pad);
  for (const Placed& p : glyphs)
    for (int r = 0; r < p.h; ++r)
      for (int c = 0; c < p.w; ++c) {
        int mx = p.x - x0 + pad + c, my = p.y - y0 + pad + r;
        float v = p.bits[r * p.w + c] / 255.0f;
        if (v > m.at(mx, my)) m.at(mx, my) = v;
      }
  if (baseline) *baseline = pad - y0;
  return m;
}

StyledText Text_Styled(const std::string& text, const TextStyle& st) {
  int fi = static_cast<int>(st.face);
  int pixels = static_cast<int>(std::lround(st.height / std::max(0.3f, g_fonts.cap_ratio[fi])));
  Mask ink = Text_Mask(st.face, pixels, text, 0, st.tracking);
  // The width limit holds for the letters with their outlines and shadow.
  int limit = st.max_width - 2 * static_cast<int>(std::ceil(st.outline + st.outline2)) - std::abs(st.shadow);
  if (st.max_width > 0 && ink.w > limit) {
    limit = std::max(limit, 4);
    pixels = std::max(4, pixels * limit / ink.w);
    ink = Text_Mask(st.face, pixels, text, 0, st.tracking);
    while (ink.w > limit && pixels > 4) ink = Text_Mask(st.face, --pixels, text, 0, st.tracking);
  }
  int o1 = static_cast<int>(std::ceil(st.outline)), o2 = static_cast<int>(std::ceil(st.outline2));
  int margin = o1 + o2 + static_cast<int>(std::ceil(st.glow * 1.5f)) + std::abs(st.shadow) + 1;
  StyledText out;
  out.c = Make_Canvas(ink.w + 2 * margin, ink.h + 2 * margin);
  out.ink_x = margin, out.ink_y = margin, out.ink_w = ink.w, out.ink_h = ink.h;
  Mask fill = Make_Mask(out.c.w, out.c.h);
  for (int y = 0; y < ink.h; ++y)
    for (int x = 0; x < ink.w; ++x) fill.at(x + margin, y + margin) = ink.at(x, y);
  Mask inner = o1 > 0 ? Dilate(fill, o1) : fill;
  Mask outer = o2 > 0 ? Dilate(inner, o2) : inner;
  if (st.shadow != 0) Fill_Mask(out.c, outer, st.shadow, st.shadow, st.shadow_colour);
  if (st.glow > 0) {
    Mask g = Dilate(outer, std::max(1, static_cast<int>(st.glow / 3)));
    Blur(g, static_cast<int>(st.glow));
    Fill_Mask(out.c, g, 0, 0, st.glow_colour);
  }
  if (o2 > 0) Fill_Mask(out.c, outer, 0, 0, st.outline2_colour);
  if (o1 > 0) Fill_Mask(out.c, inner, 0, 0, st.outline_colour);
  float top = static_cast<float>(margin), span = std::max(1.0f, static_cast<float>(ink.h - 1));
  Fill_Mask_With(out.c, fill, 0, 0, [&](int, int y) {
    float t = Clamp01((y - top) / span);
    if (st.mid.a > 0) {
      if (t < 0.5f) return Mix(st.top, st.mid, t * 2);
      return Mix(st.mid, st.bottom, (t - 0.5f) * 2);
    }
    return Mix(st.top, st.bottom, t);
  });
  return out;
}

void Text_Place(Canvas& dst, const std::string& text, const TextStyle& style, int x, int y, Align align) {
  StyledText t = Text_Styled(text, style);
  int left = align == Align::Left ? x : align == Align::Centre ? x - t.ink_w / 2 : x - t.ink_w;
  Draw(dst, t.c, left - t.ink_x, y - t.ink_h / 2 - t.ink_y);
}

}  // namespace pic
