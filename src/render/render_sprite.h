// Screen sprites: textured quads in the 512 x 384 picture space, drawn by sprite number.
#pragma once
#include <cstdint>

#include "assets/asset_image.h"

// Shared sprite drawing state. Layer_Z is written by the heads-up display; Scratch_Quad by
// the coloured calls below and Set_Brightness; Cycle_Colour by Draw_RasterLCycle and
// Set_Brightness.
struct SpriteDrawState {
  float Layer_Z = 0.0f;  // depth of the plain sprite calls; larger is nearer
  ScreenVertex Scratch_Quad[4] = {
      {0, 0, 0, 0, 0, 255, 255, 255, 100},  // top-left
      {0, 0, 0, 1, 0, 255, 255, 255, 100},  // top-right
      {0, 0, 0, 1, 1, 255, 255, 255, 100},  // bottom-right
      {0, 0, 0, 0, 1, 255, 255, 255, 100},  // bottom-left
  };
  std::int16_t Cycle_Colour[4][3] = {{255, 255, 255}, {255, 255, 255}, {255, 255, 255},
                                     {255, 255, 255}};  // red, green, blue counters per corner
};
extern SpriteDrawState SpriteDraw;

// Glow blending leaves the picture unchanged under a black border at full alpha, so a
// glow-blended square need only be filled where its picture is not border. For a square flat
// on the screen (corners in order, texture coordinates 0 to 1 across them): whether slot's
// border is most of its picture; turning the scissor test on around the rest of the picture
// (false when the whole picture is border, and nothing need be coloured); and off again.
bool Glow_WorthCutting(int slot);
bool Glow_ScissorOn(const ScreenVertex* q, int slot);
void Glow_ScissorOff();
// Under glow blending a picture with every texel at full alpha, drawn in a colour at full
// alpha, simply adds its colour to what lies behind: Glow_AddOn switches to that plain sum
// (the same pixels, less work per pixel) and says whether it did; Glow_AddOff(true) returns
// to glow blending.
bool Glow_AddOn(int slot);
void Glow_AddOff(bool was_on);

// Layout space (320 x 240) to screen (512 x 384): times 1.6, truncated toward zero.
int Layout(int v);

// Triangle emitters: three corners in drawing order; the GL vertex is (x, -y, z).
void Emit_Tri(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);
void Emit_TriTint(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);
void Emit_TriAlpha(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);
void Emit_TriShade(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);
void Emit_TriVertexColour(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);
void Emit_TriDepth(const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);

// Natural size, screen units.
void Draw_Raster(int sprite, int x, int y);
void Draw_RasterMirror(int sprite, int x, int y);
void Draw_RasterTurn(int sprite, int x, int y);
// Natural size scaled 1.6, layout units.
void Draw_RasterL(int sprite, int x, int y);
void Draw_RasterLMirror(int sprite, int x, int y);
void Draw_RasterLStretch(int sprite, int x, int y, int w, int h);
// Stretched, screen units.
void Draw_RasterStretch(int sprite, int x, int y, int w, int h);
void Draw_RasterStretchMirror(int sprite, int x, int y, int w, int h);
void Draw_RasterStretchTurn(int sprite, int x, int y, int w, int h);
// Faded: grey and alpha both `level` (low byte).
void Draw_RasterFade(int sprite, int x, int y, std::uint16_t level);
void Draw_RasterFadeMirror(int sprite, int x, int y, std::uint16_t level);
void Draw_RasterFadeStretch(int sprite, int x, int y, int w, int h, std::uint16_t level);
void Draw_RasterFadeStretchMirror(int sprite, int x, int y, int w, int h, std::uint16_t level);
// Layout units with a colour treatment.
void Draw_RasterLTint(int sprite, int x, int y, int w, int h, std::uint16_t level);
// As Draw_RasterLTint, for a glow-blended picture drawn without the depth test: its black
// border, which adds nothing to the picture, is not filled.
void Draw_RasterLGlow(int sprite, int x, int y, int w, int h, std::uint16_t level);
void Draw_RasterLFade(int sprite, int x, int y, int w, int h, std::uint16_t level);
void Draw_RasterLShade(int sprite, int x, int y, int w, int h, std::uint16_t level);
void Draw_RasterLGrey(int sprite, int x, int y, int w, int h, std::uint16_t level);
void Draw_RasterLCycle(int sprite, int x, int y, int w, int h);

// One step of the colour cycle (run after each Draw_RasterLCycle).
void Cycle_Step();
// Resets the shared quads' texture coordinates and sets the cycle and stage colours.
void Set_Brightness(std::uint16_t level);
