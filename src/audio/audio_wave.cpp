// The wave reader: a canonical 44-byte header, read at fixed offsets, then the samples.
#include "audio/audio_wave.h"

#include <cstdio>

#include "assets/asset_report.h"
#include "platform/platform.h"

namespace {

// The sample pool. Written by Wave_Load, Wave_Unload and Wave_ResetPool.
struct WavePoolState {
  std::uint8_t bytes[WAVE_POOL_BYTES];
  std::uint32_t used;
};
WavePoolState Pool;

std::uint32_t read_u16(const std::uint8_t* p) {
  return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8;
}
std::uint32_t read_u32(const std::uint8_t* p) { return read_u16(p) | read_u16(p + 2) << 16; }

}  // namespace

void Wave_ResetPool() { Pool.used = 0; }
std::uint32_t Wave_PoolUsed() { return Pool.used; }

int Wave_Load(const char* name, WaveInfo* out) {
  std::FILE* f = Plat_OpenFile(name, "rb");
  if (f == nullptr) {
    Load_NotOpened(name);
    return 0;
  }
  std::uint8_t header[WAVE_HEADER_BYTES];
  const std::size_t got = std::fread(header, 1, sizeof header, f);
  if (got != sizeof header) {
    std::fclose(f);
    Load_Refused(name, "too short: %zu bytes, less than the %d-byte header", got,
                 WAVE_HEADER_BYTES);
    return 0;
  }
  WaveInfo w{};
  w.channels = read_u16(header + 22) > 1 ? 2 : 1;
  w.rate = read_u32(header + 24);
  w.block_align = static_cast<std::int32_t>(read_u16(header + 32));
  w.bits = static_cast<std::int32_t>(read_u16(header + 34));
  w.bytes = read_u32(header + 40);
  if (w.bytes > WAVE_POOL_BYTES - Pool.used) {
    Load_Refused(name, "%lu sample bytes are past the %lu left of the sound pool",
                 static_cast<unsigned long>(w.bytes),
                 static_cast<unsigned long>(WAVE_POOL_BYTES - Pool.used));
    std::fclose(f);
    return 0;
  }
  std::uint8_t* data = Pool.bytes + Pool.used;
  if (std::fseek(f, WAVE_HEADER_BYTES, SEEK_SET) != 0 ||
      std::fread(data, 1, w.bytes, f) != w.bytes) {
    char line[160];
    std::snprintf(line, sizeof line, "Data1 : %ld, dwdata: %lu, fp: %d",
                  static_cast<long>(reinterpret_cast<std::uintptr_t>(data)),
                  static_cast<unsigned long>(w.bytes), fileno(f));
    Plat_DebugOut(line);
    std::fclose(f);
    Load_Refused(name, "too short: fewer sample bytes than the %lu its header gives",
                 static_cast<unsigned long>(w.bytes));
    return 0;
  }
  std::fclose(f);
  w.data = data;
  Pool.used += w.bytes;
  *out = w;
  return 1;
}

void Wave_Unload(const WaveInfo& wave) {
  if (wave.data + wave.bytes == Pool.bytes + Pool.used) Pool.used -= wave.bytes;
}
