#include "writers/writer_tbl.h"

#include "writers/writer_bytes.h"

using writer_bytes::put16;
using writer_bytes::putf32;

bool Encode_TBL(const TblFile& table, std::vector<std::uint8_t>* out) {
  if (table.frames.size() > 32768) return false;
  out->clear();
  for (const TblRange& r : table.act) put16(*out, r.first), put16(*out, r.last);
  for (const TblRange& r : table.win) put16(*out, r.first), put16(*out, r.last);
  put16(*out, static_cast<std::int32_t>(table.frames.size()) - 1);
  put16(*out, table.unused);
  for (const TblFrame& f : table.frames) put16(*out, f.key);
  for (const TblFrame& f : table.frames)
    for (float v : f.offset) putf32(*out, v);
  for (const TblFrame& f : table.frames) put16(*out, f.part);
  for (const TblFrame& f : table.frames) put16(*out, f.hit);
  return true;
}

bool Write_TBL(const char* path, const TblFile& table) {
  std::vector<std::uint8_t> bytes;
  return Encode_TBL(table, &bytes) && writer_bytes::save(path, bytes);
}
