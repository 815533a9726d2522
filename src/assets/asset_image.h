// Image files, the texture slot table and the screen sprite table.
//
// An image file (".bmp" by name, raw inside) is: i16 width, i16 height, i16 components
// (4 = RGBA, anything else RGB), then the pixels row after row. Every picture becomes one
// GL texture in the next free slot; slots are handed out in order and emptied all at once.
#pragma once
#include <cstdint>

#include <GL/gl.h>

constexpr int TEXTURE_SLOTS = 1000;
constexpr int TEXTURE_NAME_SIZE = 14;  // an 8.3 name and its terminator, zero-padded
constexpr int SPRITE_COUNT = 1000;

// The largest picture the staging buffer takes: 1024 x 1024 RGBA.
constexpr int IMAGE_MAX_SIDE = 1024;
constexpr int IMAGE_STAGING_BYTES = IMAGE_MAX_SIDE * IMAGE_MAX_SIDE * 4;

// Texture slots. Written only by the loaders in this module and by the model, effect-model
// and stage loaders (which advance Texture_Count after a successful Load_TextureSlot, fill
// TextureFile with a model's texture names, and switch Texture_Repeat around their loads).
struct TextureTable {
  GLuint TextureId[TEXTURE_SLOTS];
  std::int32_t Texture_Count;  // next free slot, 0..1000
  char TextureFile[TEXTURE_SLOTS][TEXTURE_NAME_SIZE];
  std::int32_t Texture_Width;   // size of the image loaded last
  std::int32_t Texture_Height;
  std::int32_t Texture_Repeat;  // 1: tile and smooth (model skins); 0: clamp, pixel-exact
  // Per slot, the black opaque border of its picture, which a glow-blended draw leaves
  // unchanged: the fractions of its width and height left, top, right and bottom (0 when
  // unknown; left and right together 1 when the whole picture is border). Written by
  // Load_TextureSlot.
  float Glow_Border[TEXTURE_SLOTS][4];
  // Per slot, the border of texels at zero alpha, which a normally blended draw leaves
  // unchanged, in the same form. Written by Load_TextureSlot.
  float Clear_Border[TEXTURE_SLOTS][4];
  // Per slot, 1 when every texel of its picture is at full alpha (blending it over the picture
  // at full colour alpha just replaces what lies behind). Written by Load_TextureSlot.
  std::uint8_t Texture_Opaque[TEXTURE_SLOTS];
};
extern TextureTable Textures;

// One corner of a screen quad. Corners go top-left, top-right, bottom-right, bottom-left.
struct ScreenVertex {
  float x, y, z;
  float s, t;
  std::uint16_t r, g, b, a;  // only the low byte reaches GL
};
static_assert(sizeof(ScreenVertex) == 28, "screen vertex: five floats and four 16-bit colours");

// Screen sprites by number. Load_Raster writes the slot, size and corner depth; the sprite
// drawing calls write corner positions and colours.
struct SpriteTable {
  std::int32_t Raster_Slot[SPRITE_COUNT];
  std::int32_t Raster_Width[SPRITE_COUNT];
  std::int32_t Raster_Height[SPRITE_COUNT];
  ScreenVertex Raster_Quad[SPRITE_COUNT][4];
};
extern SpriteTable Sprites;

// Reads an image file into the staging buffer. False, with "Loading Error %s\n" on standard
// error (plus the reason when the file is there but unusable: too large, or shorter than its
// header says), when it cannot be used.
bool Load_Image(const char* name, int& width, int& height, int& components);
// The staging buffer: the pixels of the image read last.
const std::uint8_t* Image_Pixels();

// Generates a GL texture name into `id`, binds it and uploads the image (RGBA with internal
// format 4 for four components, else RGB with 3), wrap and filter by Texture_Repeat.
bool Make_Texture(const char* name, GLuint& id, int& width, int& height);
// Make_Texture into TextureId[slot] and Texture_Width/Height. Leaves Texture_Count alone.
bool Load_TextureSlot(const char* name, int slot);
// Deletes every texture handed out since the last reset, empties the name fields, and
// starts slot numbers again at 0.
void Reset_Textures();
// Loads a picture into the next slot and registers it as screen sprite `sprite`, corner
// depth 2 x depth + 2. False when the table is full or the picture cannot be loaded (the
// sprite then keeps its previous slot and size).
bool Load_Raster(const char* name, int sprite, float depth);
