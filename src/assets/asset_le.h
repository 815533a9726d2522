// Little-endian fields of the data files, read from a byte buffer.
#pragma once
#include <cstdint>
#include <cstring>

namespace le {

inline std::int16_t i16(const std::uint8_t* p) {
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(p[0] | (p[1] << 8)));
}

inline std::int32_t i32(const std::uint8_t* p) {
  const std::uint32_t u = static_cast<std::uint32_t>(p[0]) |
                          (static_cast<std::uint32_t>(p[1]) << 8) |
                          (static_cast<std::uint32_t>(p[2]) << 16) |
                          (static_cast<std::uint32_t>(p[3]) << 24);
  return static_cast<std::int32_t>(u);
}

inline float f32(const std::uint8_t* p) {
  const std::uint32_t u = static_cast<std::uint32_t>(i32(p));
  float f;
  std::memcpy(&f, &u, sizeof f);
  return f;
}

}  // namespace le
