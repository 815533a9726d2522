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
// A drawing pass's mode code: bit 0 clear selects normal blending; set keeps the current one.
void Set_DrawMode(int code);
