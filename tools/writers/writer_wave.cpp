// Canonical PCM wave writer.
#include "writers/writer_wave.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

void put16(std::uint8_t* p, std::uint32_t v) {
  p[0] = static_cast<std::uint8_t>(v);
  p[1] = static_cast<std::uint8_t>(v >> 8);
}
void put32(std::uint8_t* p, std::uint32_t v) {
  put16(p, v & 0xFFFFu);
  put16(p + 2, v >> 16);
}

}  // namespace

void Wave_FillHeader(std::uint8_t* h, std::uint32_t data_bytes, int channels,
                     std::uint32_t rate, int bits) {
  const std::uint32_t align = static_cast<std::uint32_t>(channels * bits / 8);
  std::memcpy(h, "RIFF", 4);
  put32(h + 4, 36 + data_bytes);
  std::memcpy(h + 8, "WAVEfmt ", 8);
  put32(h + 16, 16);  // fmt chunk size
  put16(h + 20, 1);   // PCM
  put16(h + 22, static_cast<std::uint32_t>(channels));
  put32(h + 24, rate);
  put32(h + 28, rate * align);
  put16(h + 32, align);
  put16(h + 34, static_cast<std::uint32_t>(bits));
  std::memcpy(h + 36, "data", 4);
  put32(h + 40, data_bytes);
}

int Wave_WriteRaw(const char* path, const std::uint8_t* header, const std::uint8_t* data,
                  std::size_t data_bytes) {
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) {
    std::fprintf(stderr, "cannot write %s: %s\n", path, std::strerror(errno));
    return 0;
  }
  bool ok = std::fwrite(header, 1, WAVE_FILE_HEADER_BYTES, f) == WAVE_FILE_HEADER_BYTES;
  if (ok && data_bytes > 0) ok = std::fwrite(data, 1, data_bytes, f) == data_bytes;
  if (std::fclose(f) != 0) ok = false;
  if (!ok) std::fprintf(stderr, "cannot write %s: %s\n", path, std::strerror(errno));
  return ok ? 1 : 0;
}

int Wave_Write16(const char* path, const std::int16_t* samples, std::size_t frames,
                 int channels, std::uint32_t rate) {
  const std::size_t count = frames * static_cast<std::size_t>(channels);
  const std::size_t bytes = count * 2;
  if (bytes > 0xFFFFFFFFu - 36) {
    std::fprintf(stderr, "cannot write %s: too long for a wave file\n", path);
    return 0;
  }
  std::uint8_t header[WAVE_FILE_HEADER_BYTES];
  Wave_FillHeader(header, static_cast<std::uint32_t>(bytes), channels, rate, 16);
  // Little-endian samples, written in slices so no buffer is needed for the whole sound.
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) {
    std::fprintf(stderr, "cannot write %s: %s\n", path, std::strerror(errno));
    return 0;
  }
  bool ok = std::fwrite(header, 1, sizeof header, f) == sizeof header;
  std::uint8_t slice[4096];
  for (std::size_t i = 0; ok && i < count;) {
    std::size_t n = 0;
    for (; n < sizeof slice / 2 && i < count; ++n, ++i)
      put16(slice + 2 * n, static_cast<std::uint16_t>(samples[i]));
    ok = std::fwrite(slice, 1, 2 * n, f) == 2 * n;
  }
  if (std::fclose(f) != 0) ok = false;
  if (!ok) std::fprintf(stderr, "cannot write %s: %s\n", path, std::strerror(errno));
  return ok ? 1 : 0;
}
