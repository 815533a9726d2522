// Reading ".3DM" files: counts checked against the records before anything is read.
#include "assets/asset_3dm.h"

#include "assets/asset_report.h"

#include <bit>
#include <cstring>

namespace {

// The reader's scratch record; written only by Read_3DM.
MeshFile Scratch;

constexpr int kVertexBytes = 28;
constexpr int kUVBytes = 8;
constexpr int kFaceBytes = 16;
constexpr int kPartBytes = 132;

std::int32_t le32(const std::uint8_t* p) {
  return static_cast<std::int32_t>(std::uint32_t(p[0]) | (std::uint32_t(p[1]) << 8) |
                                   (std::uint32_t(p[2]) << 16) | (std::uint32_t(p[3]) << 24));
}
std::int16_t le16(const std::uint8_t* p) { return static_cast<std::int16_t>(p[0] | (p[1] << 8)); }
float lef32(const std::uint8_t* p) { return std::bit_cast<float>(le32(p)); }

// One file being read, and how its messages name it.
struct Source {
  std::FILE* file;
  const char* name;
  const MeshRules& rules;
};

bool read_bytes(const Source& src, std::uint8_t* buf, int size, const char* what) {
  if (std::fread(buf, 1, size, src.file) == static_cast<std::size_t>(size)) return true;
  std::printf("%s ERROR(%s): the file ends inside its %s!!!\r", src.rules.loader, src.name, what);
  Load_Refused(src.name, "too short: the file ends inside its %s", what);
  return false;
}

// Reads a count and checks it against 0..limit, with the record's own message.
bool read_count(const Source& src, const char* field, int limit, std::int32_t& count) {
  std::uint8_t buf[4];
  if (!read_bytes(src, buf, 4, field)) return false;
  count = le32(buf);
  const MeshRules& r = src.rules;
  if (count > limit) {
    std::printf("%s ERROR(%s): %s[%d].%s is too large!!!\r", r.loader, src.name, r.record,
                r.index, field);
    Load_Refused(src.name, "%s %d is past the record's capacity of %d", field, count, limit);
    return false;
  }
  if (count < 0) {
    std::printf("%s ERROR(%s): %s[%d].%s is negative!!!\r", r.loader, src.name, r.record, r.index,
                field);
    Load_Refused(src.name, "damaged: %s is %d", field, count);
    return false;
  }
  return true;
}

bool read_vertices(const Source& src, MeshFile& out) {
  if (!read_count(src, "max_vtx", MODEL_MAX_VTX, out.max_vtx)) return false;
  for (int i = 1; i <= out.max_vtx; ++i) {
    std::uint8_t b[kVertexBytes];
    if (!read_bytes(src, b, kVertexBytes, "vertices")) return false;
    MeshVertex& v = out.vtx[i];
    v = {lef32(b), lef32(b + 4), lef32(b + 8), 0.0f, lef32(b + 12), lef32(b + 16), lef32(b + 20),
         le32(b + 24)};
    if (!src.rules.fighter) continue;
    if (v.part < 0 || v.part >= MODEL_PART_SLOTS) {
      std::printf("%s ERROR(%s): %s[%d] vertex %d has part number %d!!!\r", src.rules.loader,
                  src.name, src.rules.record, src.rules.index, i, v.part);
      Load_Refused(src.name, "damaged: vertex %d has part number %d (0 to %d)", i, v.part,
                   MODEL_PART_SLOTS - 1);
      return false;
    }
    if (v.part >= MODEL_FLAG_PART && (v.part - MODEL_FLAG_PART) / 5 >= ATTACHMENTS) {
      std::printf("\r\r%s file flag_index_number over(%d)\r\r", src.name,
                  (v.part - MODEL_FLAG_PART) / 5);
      std::fflush(stdout);
      Load_Refused(src.name, "vertex %d is a point of attachment %d, past the last (%d)", i,
                   (v.part - MODEL_FLAG_PART) / 5, ATTACHMENTS - 1);
      Report_GoesOn("the point is left out");
    }
  }
  return true;
}

bool read_uvs(const Source& src, MeshFile& out) {
  if (!read_count(src, "max_uv", MODEL_MAX_UV, out.max_uv)) return false;
  for (int i = 1; i <= out.max_uv; ++i) {
    std::uint8_t b[kUVBytes];
    if (!read_bytes(src, b, kUVBytes, "texture coordinates")) return false;
    out.uv[i] = {lef32(b) / 255.0f, lef32(b + 4) / 255.0f};
  }
  return true;
}

bool read_faces(const Source& src, MeshFile& out) {
  if (!read_count(src, "max_face", MODEL_MAX_FACE, out.max_face)) return false;
  for (int i = 1; i <= out.max_face; ++i) {
    std::uint8_t b[kFaceBytes];
    if (!read_bytes(src, b, kFaceBytes, "faces")) return false;
    MeshFace& f = out.face[i];
    for (int c = 0; c < 3; ++c) {
      f.vtx[c] = le16(b + 2 * c);
      f.uv[c] = le16(b + 6 + 2 * c);
    }
    f.slot = le32(b + 12);
  }
  return true;
}

bool read_parts(const Source& src, MeshFile& out) {
  if (!read_count(src, "max_tag", MODEL_MAX_TAG, out.max_tag)) return false;
  for (int p = 2; p <= out.max_tag; ++p) {
    std::uint8_t b[kPartBytes];
    if (!read_bytes(src, b, kPartBytes, "part records")) return false;
    for (int k = 0; k < 24; ++k) out.box[p].corner[k / 3][k % 3] = lef32(b + 4 * k);
    for (int k = 0; k < 18; ++k) out.shadow[p].corner[k] = le16(b + 96 + 2 * k);
  }
  return true;
}

bool read_texture_names(const Source& src, int base, MeshFile& out) {
  std::uint8_t buf[4];
  if (!read_bytes(src, buf, 4, "texture count")) return false;
  out.textures = le32(buf);
  if (out.textures < 0) {
    std::printf("%s ERROR(%s): the texture count is negative!!!\r", src.rules.loader, src.name);
    Load_Refused(src.name, "damaged: the texture count is %d", out.textures);
    return false;
  }
  if (out.textures > TEXTURE_SLOTS - 1 - base) {  // the names must fit below slot 999
    std::printf("%s ERROR(%s): Max_Texture is too large!!!\r", src.rules.loader, src.name);
    Load_Refused(src.name, "%d textures do not fit the %d texture slots left", out.textures,
                 TEXTURE_SLOTS - 1 - base);
    return false;
  }
  for (int j = 0; j < out.textures; ++j) {
    auto* name = reinterpret_cast<std::uint8_t*>(out.texture[j]);
    if (!read_bytes(src, name, TEXTURE_NAME_SIZE, "texture names")) return false;
    if (std::memchr(name, 0, TEXTURE_NAME_SIZE) == nullptr) {
      std::printf("%s ERROR(%s): texture name %d is not terminated!!!\r", src.rules.loader,
                  src.name, j);
      Load_Refused(src.name, "damaged: texture name %d is not terminated", j);
      return false;
    }
  }
  return true;
}

// The drawing trusts every face: its corners must be loaded vertices and coordinates, and
// its texture one of the file's own.
bool check_faces(const Source& src, const MeshFile& m) {
  for (int i = 1; i <= m.max_face; ++i) {
    const MeshFace& f = m.face[i];
    for (int c = 0; c < 3; ++c) {
      if (f.vtx[c] >= 1 && f.vtx[c] <= m.max_vtx && f.uv[c] >= 1 && f.uv[c] <= m.max_uv) continue;
      std::printf("%s ERROR(%s): %s[%d] face %d names a vertex or coordinate not in the file!!!\r",
                  src.rules.loader, src.name, src.rules.record, src.rules.index, i);
      Load_Refused(src.name, "damaged: face %d names a vertex or coordinate not in the file", i);
      return false;
    }
    if (f.slot < 0 || f.slot >= m.textures) {
      std::printf("%s ERROR(%s): %s[%d] face %d uses texture %d of %d!!!\r", src.rules.loader,
                  src.name, src.rules.record, src.rules.index, i, f.slot, m.textures);
      Load_Refused(src.name, "damaged: face %d uses texture %d of the file's %d", i, f.slot,
                   m.textures);
      return false;
    }
  }
  return true;
}

}  // namespace

MeshFile& Mesh_Scratch() { return Scratch; }

bool Read_3DM(std::FILE* file, const char* name, const MeshRules& rules, int base, MeshFile& out) {
  const Source src{file, name, rules};
  return read_vertices(src, out) && read_uvs(src, out) && read_faces(src, out) &&
         read_parts(src, out) && read_texture_names(src, base, out) && check_faces(src, out);
}

void Load_RefusedPart(const char* what, const char* model) {
  char file[200];
  char reason[160];
  std::snprintf(file, sizeof file, "%s (%s of %s)", Report_File(), what, model);
  std::snprintf(reason, sizeof reason, "%s", Report_Reason());
  Load_Refused(file, "%s", reason);
}

bool Load_MeshTextures(const char* model, const MeshFile& mesh, int base, int replaced,
                       std::int32_t* face_slot) {
  for (int j = 0; j < mesh.textures; ++j)
    std::memcpy(Textures.TextureFile[base + j], mesh.texture[j], TEXTURE_NAME_SIZE);
  if (face_slot != nullptr) *face_slot = Textures.Texture_Count;
  for (int j = 0; j < mesh.textures && Textures.Texture_Count < TEXTURE_SLOTS; ++j) {
    if (face_slot != nullptr && j == replaced) *face_slot = Textures.Texture_Count;
    if (!Load_TextureSlot(Textures.TextureFile[base + j], Textures.Texture_Count)) {
      std::printf("Texture Loading Error %s", Textures.TextureFile[base + j]);
      std::printf("%d\n", base + j);
      char what[32];
      std::snprintf(what, sizeof what, "texture %d", j);
      Load_RefusedPart(what, model);
      return false;
    }
    ++Textures.Texture_Count;
  }
  return true;
}
