#include "writers/writer_cam.h"

namespace writers {

bool Encode_CameraPath(const CameraPathFile& path, Bytes& out) {
  if (path.points.size() > 32767) return false;
  out.clear();
  writer_bytes::put16(out, static_cast<std::int32_t>(path.points.size()));
  for (const auto& point : path.points)
    for (float v : point) writer_bytes::putf32(out, v);
  return true;
}

bool Write_CameraPath(const char* path_name, const CameraPathFile& path) {
  Bytes bytes;
  return Encode_CameraPath(path, bytes) && writer_bytes::save(path_name, bytes);
}

}  // namespace writers
