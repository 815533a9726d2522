// Little-endian byte output shared by the file writers.
#pragma once
#include <bit>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace writers {

using Bytes = std::vector<std::uint8_t>;

inline void put_i16(Bytes& out, std::int32_t v) {
  out.push_back(static_cast<std::uint8_t>(v));
  out.push_back(static_cast<std::uint8_t>(v >> 8));
}
inline void put_i32(Bytes& out, std::int32_t v) {
  for (int shift = 0; shift < 32; shift += 8)
    out.push_back(static_cast<std::uint8_t>(static_cast<std::uint32_t>(v) >> shift));
}
inline void put_f32(Bytes& out, float v) { put_i32(out, std::bit_cast<std::int32_t>(v)); }

// Writes the bytes as the whole file; false when it cannot be written.
inline bool write_bytes(const char* path, const Bytes& bytes) {
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) return false;
  const bool ok = bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
  return std::fclose(f) == 0 && ok;
}

}  // namespace writers
