// Render-state helpers shared by every drawing pass.
#pragma once
#include <cstdint>

// Presents the back buffer, then flushes.
void Swap_Buffers();
// Clears the colour buffer to (r, g, b) / 255 with alpha 1.
void Clear_Screen(std::uint8_t r, std::uint8_t g, std::uint8_t b);
// Clears the depth buffer.
void Clear_Depth();
