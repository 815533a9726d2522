#include "writers/writer_3dm.h"

namespace writers {

namespace {

constexpr std::size_t kNameField = 14;

void put_vertices(Bytes& out, const Model3DM& m) {
  writer_bytes::put32(out, static_cast<std::int32_t>(m.vertices.size()));
  for (const Vertex3DM& v : m.vertices) {
    for (float f : {v.x, v.y, v.z, v.nx, v.ny, v.nz}) writer_bytes::putf32(out, f);
    writer_bytes::put32(out, v.part);
  }
}

void put_uvs(Bytes& out, const Model3DM& m) {
  writer_bytes::put32(out, static_cast<std::int32_t>(m.uvs.size()));
  for (const UV3DM& t : m.uvs) {
    writer_bytes::putf32(out, t.u);
    writer_bytes::putf32(out, t.v);
  }
}

void put_faces(Bytes& out, const Model3DM& m) {
  writer_bytes::put32(out, static_cast<std::int32_t>(m.faces.size()));
  for (const Face3DM& f : m.faces) {
    for (std::int16_t n : f.vtx) writer_bytes::put16(out, n);
    for (std::int16_t n : f.uv) writer_bytes::put16(out, n);
    writer_bytes::put32(out, f.texture);
  }
}

void put_parts(Bytes& out, const Model3DM& m) {
  writer_bytes::put32(out, m.max_tag);
  const Part3DM empty;
  for (int p = 2; p <= m.max_tag; ++p) {
    const std::size_t i = static_cast<std::size_t>(p - 2);
    const Part3DM& part = i < m.parts.size() ? m.parts[i] : empty;
    for (const auto& corner : part.box)
      for (float f : corner) writer_bytes::putf32(out, f);
    for (std::int16_t n : part.shadow) writer_bytes::put16(out, n);
  }
}

bool put_textures(Bytes& out, const Model3DM& m) {
  writer_bytes::put32(out, static_cast<std::int32_t>(m.textures.size()));
  for (const std::string& name : m.textures) {
    if (name.size() >= kNameField) return false;
    out.insert(out.end(), name.begin(), name.end());
    out.insert(out.end(), kNameField - name.size(), 0);
  }
  return true;
}

std::size_t part_count(const Model3DM& m) { return m.max_tag >= 2 ? m.max_tag - 1 : 0; }

}  // namespace

bool Encode_3DM(const Model3DM& model, Bytes& out) {
  out.clear();
  put_vertices(out, model);
  put_uvs(out, model);
  put_faces(out, model);
  put_parts(out, model);
  return put_textures(out, model);
}

bool Write_3DM(const char* path, const Model3DM& model) {
  Bytes bytes;
  return Encode_3DM(model, bytes) && writer_bytes::save(path, bytes);
}

std::size_t Offset_UVCount(const Model3DM& m) { return 4 + 28 * m.vertices.size(); }
std::size_t Offset_FaceCount(const Model3DM& m) { return Offset_UVCount(m) + 4 + 8 * m.uvs.size(); }
std::size_t Offset_TagCount(const Model3DM& m) {
  return Offset_FaceCount(m) + 4 + 16 * m.faces.size();
}
std::size_t Offset_TextureCount(const Model3DM& m) {
  return Offset_TagCount(m) + 4 + 132 * part_count(m);
}

}  // namespace writers
