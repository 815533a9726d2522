#include "writers/writer_fa.h"

#include "writers/writer_bytes.h"

using writer_bytes::put16;
using writer_bytes::put32;

namespace {

bool packed(FaKind kind) { return kind == FaKind::PackedArmFree || kind == FaKind::PackedFull; }
bool arm_free(FaKind kind) {
  return kind == FaKind::PackedArmFree || kind == FaKind::PlainArmFree;
}
bool packable(std::int16_t v) { return v >= -500 && v <= 499; }

bool put_part(FaKind kind, const FaPart& part, std::vector<std::uint8_t>* out) {
  if (packed(kind)) {
    for (int r = 0; r < 3; ++r) {
      const std::int16_t* e = &part.rot[3 * r];
      if (!packable(e[0]) || !packable(e[1]) || !packable(e[2])) return false;
      put32(*out, FA_PackRow(e[0], e[1], e[2]));
    }
  } else {
    for (std::int16_t v : part.rot) put16(*out, v);
  }
  for (std::int16_t v : part.pos) put16(*out, v);
  return true;
}

}  // namespace

const char* FA_Extension(FaKind kind) {
  switch (kind) {
    case FaKind::PackedArmFree: return ".fa";
    case FaKind::PlainArmFree: return ".fa3";
    case FaKind::PackedFull: return ".fx";
    case FaKind::PlainFull: return ".fx3";
  }
  return ".fa";
}

bool FA_HasRecord(FaKind kind, int p) {
  if (p == 17 || p == 18 || p == 21) return false;
  if ((p == 19 || p == 20) && arm_free(kind)) return false;
  return true;
}

std::int32_t FA_PackRow(std::int16_t e0, std::int16_t e1, std::int16_t e2) {
  return (e0 + 500) + (e1 + 500) * 1000 + (e2 + 500) * 1000000;
}

bool Encode_FA(FaKind kind, int last_part, std::span<const FaKeyFrame> keys,
               std::vector<std::uint8_t>* out) {
  if (keys.empty() || keys.size() > 32768 || last_part < 2 || last_part > 21) return false;
  out->clear();
  put16(*out, static_cast<std::int32_t>(keys.size()) - 1);
  put16(*out, last_part);
  for (const FaKeyFrame& key : keys)
    for (int p = 2; p <= last_part; ++p)
      if (FA_HasRecord(kind, p) && !put_part(kind, key.parts[p - 2], out)) return false;
  return true;
}

bool Write_FA(const char* path, FaKind kind, int last_part, std::span<const FaKeyFrame> keys) {
  std::vector<std::uint8_t> bytes;
  return Encode_FA(kind, last_part, keys, &bytes) && writer_bytes::save(path, bytes);
}
