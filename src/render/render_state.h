// Render-state helpers shared by every drawing pass.
#pragma once
#include <cstdint>

// Presents the back buffer, then flushes.
void Swap_Buffers();
// Clears the colour buffer to (r, g, b) / 255 with alpha 1.
void Clear_Screen(std::uint8_t r, std::uint8_t g, std::uint8_t b);
// Clears the depth buffer.
void Clear_Depth();

// Blend functions: the program's default, and glow (source and destination both scaled by
// the source alpha).
void Blend_Normal();
void Blend_Glow();
// The texture modulates the current colour; while that colour is opaque white the product is
// the texel itself, which the rasteriser computes with less work per pixel when told to take
// the texel outright. Replace_On does so when the current colour is opaque white (to be called
// outside glBegin/glEnd, before draws that set no colour) and says whether it did;
// Replace_Off(true) goes back to modulating.
bool Replace_On();
void Replace_Off(bool was_on);
// A drawing pass's mode code: bit 0 clear selects normal blending; set keeps the current one.
void Set_DrawMode(int code);
