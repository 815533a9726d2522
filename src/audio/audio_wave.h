// Wave files: the reader that fills the sound pool at start-up. Private to the audio module
// (and its tests).
#pragma once
#include <cstdint>

// All sound samples live in one fixed pool, filled at start-up and never freed.
constexpr std::uint32_t WAVE_POOL_BYTES = 8u * 1024u * 1024u;
constexpr int WAVE_HEADER_BYTES = 44;

// What the header says; only these fields are read.
struct WaveInfo {
  std::int32_t channels;     // 1, or 2 when the header says more than one
  std::uint32_t rate;        // samples a second
  std::int32_t block_align;  // bytes a sample frame
  std::int32_t bits;         // bits a sample
  std::uint32_t bytes;       // data size
  const std::uint8_t* data;  // the samples in the pool
};

// Empties the pool (start-up, before the first load).
void Wave_ResetPool();
// Reads the wave file `name` into the pool. Returns 1 and fills `out`, or 0 when the file
// is missing, short or does not fit (the pool is then as before).
int Wave_Load(const char* name, WaveInfo* out);
// Gives the samples of the wave loaded last back to the pool (the device refused them).
void Wave_Unload(const WaveInfo& wave);
// Bytes of the pool in use.
std::uint32_t Wave_PoolUsed();
