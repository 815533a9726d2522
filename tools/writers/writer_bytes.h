// Little-endian byte output shared by the file writers.
#pragma once
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

namespace writer_bytes {

inline void put16(std::vector<std::uint8_t>& out, std::int32_t v) {
  const auto u = static_cast<std::uint16_t>(v);
  out.push_back(static_cast<std::uint8_t>(u & 0xFF));
  out.push_back(static_cast<std::uint8_t>(u >> 8));
}

inline void put32(std::vector<std::uint8_t>& out, std::int64_t v) {
  const auto u = static_cast<std::uint32_t>(v);
  for (int i = 0; i < 4; ++i) out.push_back(static_cast<std::uint8_t>((u >> (8 * i)) & 0xFF));
}

inline void putf32(std::vector<std::uint8_t>& out, float f) {
  std::uint32_t u;
  std::memcpy(&u, &f, sizeof u);
  put32(out, u);
}

// Writes the bytes to `path`; false when the file cannot be written.
inline bool save(const char* path, const std::vector<std::uint8_t>& bytes) {
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) return false;
  const bool ok = bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
  return std::fclose(f) == 0 && ok;
}

}  // namespace writer_bytes
