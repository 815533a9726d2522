// Image files: i16 width, i16 height, i16 components, then the pixels row after row.
#pragma once
#include <cstdint>
#include <vector>

#include "writers/writer_bytes.h"

namespace writers {

using Bytes = std::vector<std::uint8_t>;  // a file's bytes

struct ImageFile {
  int width = 0;
  int height = 0;
  int components = 3;  // 4: R, G, B, A per pixel; 3: R, G, B
  Bytes pixels;        // width x height x components bytes, first row first
};

// The file's bytes. False (and nothing written) when the pixels do not match the size.
bool Encode_Image(const ImageFile& image, Bytes& out);
bool Write_Image(const char* path, const ImageFile& image);

}  // namespace writers
