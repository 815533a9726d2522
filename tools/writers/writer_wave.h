// Wave files with the canonical 44-byte header: the layout the game's sound loader reads.
#pragma once
#include <cstddef>
#include <cstdint>

constexpr int WAVE_FILE_HEADER_BYTES = 44;

// Fills the 44-byte header of a PCM wave whose sample data is `data_bytes` long.
void Wave_FillHeader(std::uint8_t* header, std::uint32_t data_bytes, int channels,
                     std::uint32_t rate, int bits);

// Writes 16-bit PCM samples (`frames` frames of `channels` interleaved samples) to `path`.
// Returns 1, or 0 after printing an error naming the file.
int Wave_Write16(const char* path, const std::int16_t* samples, std::size_t frames,
                 int channels, std::uint32_t rate);

// Writes a file of the given header followed by `data_bytes` raw bytes (any format).
int Wave_WriteRaw(const char* path, const std::uint8_t* header, const std::uint8_t* data,
                  std::size_t data_bytes);
