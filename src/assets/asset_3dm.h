// The ".3DM" reader shared by the fighter and effect model loaders (private to assets).
#pragma once
#include <cstdint>
#include <cstdio>

#include "assets/asset_image.h"
#include "assets/asset_model.h"

// One model file, read and checked, before a loader takes it into its record. Face slots
// still hold the file's texture index.
struct MeshFile {
  std::int32_t max_vtx, max_uv, max_face, max_tag, textures;
  MeshVertex vtx[MODEL_MAX_VTX + 1];
  MeshUV uv[MODEL_MAX_UV + 1];
  MeshFace face[MODEL_MAX_FACE + 1];
  PartBox box[MODEL_PARTS];
  PartShadow shadow[MODEL_PARTS];
  char texture[TEXTURE_SLOTS][TEXTURE_NAME_SIZE];
};

// How the messages name the record, and what the record needs checked.
struct MeshRules {
  const char* loader;  // "Load_3DM" or "Load_3DSprite"
  const char* record;  // "Knight" or "Polygon_Sprite"
  int index;
  bool fighter;  // vertex parts name matrix slots 0..59; flag points beyond attachment 4
};

// Reads an open model file whole. `base` is Texture_Count when the load began. Prints the
// reason and returns false when the file does not fit the records or is inconsistent; the
// result is then unusable. The caller closes the file.
bool Read_3DM(std::FILE* file, const char* name, const MeshRules& rules, int base, MeshFile& out);

// The one scratch file record both loaders read into.
MeshFile& Mesh_Scratch();

// Copies the model's texture names to TextureFile[base...] and loads them into slots from
// Texture_Count on, while slots remain. The face texture slot (when asked for) is the one
// texture number `replaced` lands in, else the first. On a failure prints
// "Texture Loading Error %s" and "%d\n" (the name's index), records the failure as the
// picture's, naming `model`, and returns false.
bool Load_MeshTextures(const char* model, const MeshFile& mesh, int base, int replaced,
                       std::int32_t* face_slot);

// Renames the failure just recorded for a picture as "NAME (WHAT of MODEL)", e.g.
// "GONE.BMP (the first alternate face of ban.3dm)".
void Load_RefusedPart(const char* what, const char* model);
