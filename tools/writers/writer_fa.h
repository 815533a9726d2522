// Animation files (".fa", ".fa3", ".fx", ".fx3") from plain key-frame records.
#pragma once
#include <cstdint>
#include <span>
#include <vector>

// One part of a key frame: nine rotation entries (x500) and a translation (x50).
struct FaPart {
  std::int16_t rot[9];
  std::int16_t pos[3];
};
// Parts 2..21 at index p - 2.
struct FaKeyFrame {
  FaPart parts[20];
};

enum class FaKind {
  PackedArmFree,  // ".fa"
  PlainArmFree,   // ".fa3"
  PackedFull,     // ".fx"
  PlainFull,      // ".fx3"
};

// The extension the game recognises for a kind, with its dot.
const char* FA_Extension(FaKind kind);
// True when part p has a record of its own in a file of this kind (the others are filled by
// the reader).
bool FA_HasRecord(FaKind kind, int p);

// Encodes key frames 0..keys.size()-1 with parts 2..last_part. False when a rotation entry
// cannot be stored in a packed file (packed entries hold -500..499) or a count does not fit.
bool Encode_FA(FaKind kind, int last_part, std::span<const FaKeyFrame> keys,
               std::vector<std::uint8_t>* out);
bool Write_FA(const char* path, FaKind kind, int last_part, std::span<const FaKeyFrame> keys);

// Packs three rotation entries (-500..499 each) into one packed row value.
std::int32_t FA_PackRow(std::int16_t e0, std::int16_t e1, std::int16_t e2);
