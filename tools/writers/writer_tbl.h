// Motion tables (".tbl") from plain per-action and per-frame records.
#pragma once
#include <cstdint>
#include <vector>

struct TblRange {
  std::int16_t first, last;
};
struct TblFrame {
  std::int16_t key;
  float offset[3];  // as stored: tenths of world units
  std::int16_t part;
  std::int16_t hit;
};
struct TblFile {
  TblRange act[1000] = {};
  TblRange win[1000] = {};
  std::int16_t unused = 0;
  std::vector<TblFrame> frames;  // frames 0..N
};

// False when the frame count does not fit the file's 16-bit count.
bool Encode_TBL(const TblFile& table, std::vector<std::uint8_t>* out);
bool Write_TBL(const char* path, const TblFile& table);
