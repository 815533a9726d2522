// The texture slot table, the upload rules and the screen sprite table.
#include <cstdio>
#include <cstring>

#include "assets/asset_image.h"
#include "assets/asset_report.h"

TextureTable Textures = {};

namespace {

// Every sprite starts with texture coordinates (0,0) (1,0) (1,1) (0,1) in corner order and
// all positions at 0.
constexpr SpriteTable initial_sprites() {
  SpriteTable table{};
  for (auto& quad : table.Raster_Quad) {
    quad[1].s = 1.0f;
    quad[2].s = 1.0f;
    quad[2].t = 1.0f;
    quad[3].t = 1.0f;
  }
  return table;
}

// Model skins tile and are smoothed; every other picture is clamped and pixel-exact.
void set_wrap_and_filter() {
  const GLint wrap = Textures.Texture_Repeat == 1 ? GL_REPEAT : GL_CLAMP;
  const GLint filter = Textures.Texture_Repeat == 1 ? GL_LINEAR : GL_NEAREST;
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrap);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, wrap);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, filter);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter);
}

// Black at full alpha changes nothing under glow blending (source and destination both
// scaled by the source alpha).
bool inert(const std::uint8_t* px, int components) {
  return px[0] == 0 && px[1] == 0 && px[2] == 0 && (components != 4 || px[3] == 255);
}

// A texel at zero alpha leaves the screen unchanged under normal blending.
bool clear(const std::uint8_t* px, int components) { return components == 4 && px[3] == 0; }

// The last picture's border of inert texels, and its border of clear texels, as fractions of
// its sides, left, top, right, bottom; a picture with nothing but such texels has its whole
// width as its left border.
float LastBorder[4] = {};
float LastClearBorder[4] = {};
bool LastOpaque = false;  // every texel of the last picture at full alpha

// The box of kept texels from (x0, y0) to (x1, y1) inclusive (x1 < 0: none) as a border.
void to_border(int x0, int y0, int x1, int y1, int w, int h, float* border) {
  if (x1 < 0) {  // all border
    x0 = w;
    x1 = w - 1;
    y0 = 0;
    y1 = h - 1;
  }
  const float fw = static_cast<float>(w), fh = static_cast<float>(h);
  border[0] = static_cast<float>(x0) / fw;
  border[1] = static_cast<float>(y0) / fh;
  border[2] = static_cast<float>(w - 1 - x1) / fw;
  border[3] = static_cast<float>(h - 1 - y1) / fh;
}

struct Box {
  int x0, y0, x1, y1;
  void take(int x, int y) {
    x0 = x < x0 ? x : x0;
    x1 = x > x1 ? x : x1;
    y0 = y < y0 ? y : y0;
    y1 = y > y1 ? y : y1;
  }
};

void measure_border(const std::uint8_t* pixels, int w, int h, int components) {
  for (float& b : LastBorder) b = 0.0f;
  for (float& b : LastClearBorder) b = 0.0f;
  LastOpaque = false;
  if (w <= 0 || h <= 0) return;
  const int bytes = components == 4 ? 4 : 3;
  Box lit = {w, h, -1, -1}, seen = {w, h, -1, -1};
  bool opaque = true;
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      const std::uint8_t* px = pixels + (static_cast<long>(y) * w + x) * bytes;
      opaque = opaque && (components != 4 || px[3] == 255);
      if (!inert(px, components)) lit.take(x, y);
      if (!clear(px, components)) seen.take(x, y);
    }
  LastOpaque = opaque;
  to_border(lit.x0, lit.y0, lit.x1, lit.y1, w, h, LastBorder);
  to_border(seen.x0, seen.y0, seen.x1, seen.y1, w, h, LastClearBorder);
}

}  // namespace

constinit SpriteTable Sprites = initial_sprites();

bool Make_Texture(const char* name, GLuint& id, int& width, int& height) {
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  glGenTextures(1, &id);
  glBindTexture(GL_TEXTURE_2D, id);
  int w = 0, h = 0, components = 0;
  if (!Load_Image(name, w, h, components)) return false;
  if (components == 4)
    glTexImage2D(GL_TEXTURE_2D, 0, 4, w, h, 0, GL_RGBA, GL_UNSIGNED_BYTE, Image_Pixels());
  else
    glTexImage2D(GL_TEXTURE_2D, 0, 3, w, h, 0, GL_RGB, GL_UNSIGNED_BYTE, Image_Pixels());
  measure_border(Image_Pixels(), w, h, components);
  set_wrap_and_filter();
  width = w;
  height = h;
  return true;
}

bool Load_TextureSlot(const char* name, int slot) {
  bool ok = false;
  if (slot >= 0 && slot < TEXTURE_SLOTS) {
    int width = Textures.Texture_Width, height = Textures.Texture_Height;
    ok = Make_Texture(name, Textures.TextureId[slot], width, height);
    Textures.Texture_Width = width;
    Textures.Texture_Height = height;
    for (int k = 0; k < 4; ++k) Textures.Glow_Border[slot][k] = ok ? LastBorder[k] : 0.0f;
    for (int k = 0; k < 4; ++k) Textures.Clear_Border[slot][k] = ok ? LastClearBorder[k] : 0.0f;
    Textures.Texture_Opaque[slot] = ok && LastOpaque ? 1 : 0;
  }
  if (!ok) {
    if (slot < 0 || slot >= TEXTURE_SLOTS) Load_Refused(name, "no texture slot %d", slot);
    std::printf("\n%s error", name);
    // The slot was not handed out: drop the name generated for it, so that repeated
    // failures do not pile up texture objects.
    if (slot >= 0 && slot < TEXTURE_SLOTS && Textures.TextureId[slot] != 0) {
      glDeleteTextures(1, &Textures.TextureId[slot]);
      Textures.TextureId[slot] = 0;
    }
  }
  return ok;
}

void Reset_Textures() {
  std::memset(Textures.TextureFile, 0, sizeof Textures.TextureFile);
  std::memset(Textures.Glow_Border, 0, sizeof Textures.Glow_Border);
  std::memset(Textures.Clear_Border, 0, sizeof Textures.Clear_Border);
  std::memset(Textures.Texture_Opaque, 0, sizeof Textures.Texture_Opaque);
  glFlush();
  const int used = Textures.Texture_Count < TEXTURE_SLOTS ? Textures.Texture_Count : TEXTURE_SLOTS;
  if (used > 0) glDeleteTextures(used, Textures.TextureId);
  Textures.Texture_Count = 0;
}

bool Load_Raster(const char* name, int sprite, float depth) {
  if (Textures.Texture_Count >= TEXTURE_SLOTS) {
    std::printf("Load_Raster out ERROR\r");
    Load_Refused(name, "not loaded: all %d texture slots are taken", TEXTURE_SLOTS);
    Report_GoesOn("picture %d is not loaded", sprite);
    return false;
  }
  if (sprite < 0 || sprite >= SPRITE_COUNT) {
    Load_Refused(name, "not loaded: there is no picture %d (0 to %d)", sprite, SPRITE_COUNT - 1);
    Report_GoesOn("the picture is not loaded");
    return false;
  }
  if (!Load_TextureSlot(name, Textures.Texture_Count)) {
    std::printf("Texture Loading Error %s", name);
    std::fflush(stdout);
    Report_GoesOn("picture %d is not loaded", sprite);
    return false;
  }
  Sprites.Raster_Slot[sprite] = Textures.Texture_Count;
  Sprites.Raster_Width[sprite] = Textures.Texture_Width;
  Sprites.Raster_Height[sprite] = Textures.Texture_Height;
  for (ScreenVertex& corner : Sprites.Raster_Quad[sprite]) corner.z = 2.0f * depth + 2.0f;
  ++Textures.Texture_Count;
  return true;
}
