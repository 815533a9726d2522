#include "writers/writer_image.h"

namespace writers {

bool Encode_Image(const ImageFile& image, Bytes& out) {
  const int bytes_per_pixel = image.components == 4 ? 4 : 3;
  if (image.width < 0 || image.height < 0 || image.width > 32767 || image.height > 32767 ||
      image.pixels.size() != static_cast<std::size_t>(image.width) * image.height * bytes_per_pixel)
    return false;
  out.clear();
  writer_bytes::put16(out, image.width);
  writer_bytes::put16(out, image.height);
  writer_bytes::put16(out, image.components);
  out.insert(out.end(), image.pixels.begin(), image.pixels.end());
  return true;
}

bool Write_Image(const char* path, const ImageFile& image) {
  Bytes bytes;
  return Encode_Image(image, bytes) && writer_bytes::save(path, bytes);
}

}  // namespace writers
