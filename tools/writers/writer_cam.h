// Camera path files: i16 frame count, then per frame x, height, z as f32, in fifths of a
// world unit (the reader divides by 5).
#pragma once
#include <array>
#include <cstdint>
#include <vector>

#include "writers/writer_bytes.h"

namespace writers {

using Bytes = std::vector<std::uint8_t>;  // a file's bytes

struct CameraPathFile {
  std::vector<std::array<float, 3>> points;  // file values, 5 x world units
};

// The file's bytes. False when the path has more frames than the count can say.
bool Encode_CameraPath(const CameraPathFile& path, Bytes& out);
bool Write_CameraPath(const char* path_name, const CameraPathFile& path);

}  // namespace writers
