#include "writers/writer_bsc.h"

#include "writers/writer_bytes.h"

void Encode_BSC(std::span<const BscJoint> joints, std::vector<std::uint8_t>* out) {
  out->clear();
  writer_bytes::put16(*out, static_cast<std::int32_t>(joints.size()) + 1);
  for (const BscJoint& j : joints) {
    writer_bytes::putf32(*out, j.x);
    writer_bytes::putf32(*out, j.y);
    writer_bytes::putf32(*out, j.z);
  }
}

bool Write_BSC(const char* path, std::span<const BscJoint> joints) {
  std::vector<std::uint8_t> bytes;
  Encode_BSC(joints, &bytes);
  return writer_bytes::save(path, bytes);
}
