// The fighters' bodies in the data set: a model file per character-table row with the textures
// it names and the row's two alternate faces, and a skeleton file per character.
//
// Rows that name a file already written (the boss's two rows share one model; some rows share
// face pictures) keep the first row's file, so the output never depends on write order.
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "assetgen.h"
#include "figures/fig_figure.h"
#include "figures/fig_paint.h"
#include "figures/fig_roster.h"
#include "writers/writer_3dm.h"
#include "writers/writer_bsc.h"
#include "writers/writer_image.h"

namespace gen {

namespace {

// Everything a model file holds, in the writer's records.
void to_file_model(const fig::Model& m, writers::Model3DM& out) {
  for (int i = 1; i <= m.vertex_count; ++i) {
    const fig::Vertex& v = m.vertices[i];
    out.vertices.push_back({v.x, v.y, v.z, v.nx, v.ny, v.nz, v.part});
  }
  for (int i = 1; i <= m.texcoord_count; ++i)
    out.uvs.push_back({m.texcoords[i].u, m.texcoords[i].v});
  for (int i = 1; i <= m.face_count; ++i) {
    const fig::Face& f = m.faces[i];
    out.faces.push_back({{f.a, f.b, f.c}, {f.ta, f.tb, f.tc}, f.tex});
  }
  out.max_tag = m.max_tag;
  for (int p = 2; p <= m.max_tag; ++p) {
    writers::Part3DM part;
    for (int c = 0; c < 8; ++c)
      for (int e = 0; e < 3; ++e) part.box[c][e] = m.boxes[p].corner[c][e];
    for (int s = 0; s < 18; ++s) part.shadow[s] = m.boxes[p].shadow[s];
    out.parts.push_back(part);
  }
  for (int t = 0; t < m.texture_count; ++t) out.textures.emplace_back(m.textures[t]);
}

bool write_picture(const Context& ctx, const fig::NamedImage& named) {
  writers::ImageFile file;
  file.width = named.image.width;
  file.height = named.image.height;
  file.components = 3;
  file.pixels = named.image.rgb;
  const std::string path = (ctx.out / named.name).string();
  if (writers::Write_Image(path.c_str(), file)) return true;
  std::fprintf(stderr, "assetgen: cannot write the picture %s\n", path.c_str());
  return false;
}

// Writes each picture whose name is not in `written` yet.
bool write_pictures(const Context& ctx, const std::vector<fig::NamedImage>& pictures,
                    std::set<std::string>& written) {
  for (const fig::NamedImage& named : pictures)
    if (written.insert(named.name).second && !write_picture(ctx, named)) return false;
  return true;
}

bool write_row(const Context& ctx, int row, std::set<std::string>& written) {
  const std::string model_name = fig::Fig_ModelFile(row);
  if (written.count(model_name)) return true;
  auto model = std::make_unique<fig::Model>();  // about 100 KB: not on the stack
  fig::TextureLayout layout;
  if (!fig::Fig_BuildModel(row, *model, layout)) {
    std::fprintf(stderr, "assetgen: the model of row %d does not fit the model capacities\n", row);
    return false;
  }
  writers::Model3DM file;
  to_file_model(*model, file);
  const std::string path = (ctx.out / model_name).string();
  if (!writers::Write_3DM(path.c_str(), file)) {
    std::fprintf(stderr, "assetgen: cannot write the model %s\n", path.c_str());
    return false;
  }
  written.insert(model_name);
  std::vector<fig::NamedImage> textures, faces;
  fig::Fig_PaintRow(row, *model, layout, textures, faces);
  return write_pictures(ctx, textures, written) && write_pictures(ctx, faces, written);
}

bool write_skeleton(const Context& ctx, int character) {
  fig::Skeleton skeleton;
  fig::Fig_BuildSkeleton(character, skeleton);
  std::vector<BscJoint> joints;
  for (int p = 2; p <= skeleton.last_part; ++p)
    joints.push_back({skeleton.joint[p][0], skeleton.joint[p][1], skeleton.joint[p][2]});
  const std::string path = (ctx.out / fig::Fig_SkeletonFile(character)).string();
  if (Write_BSC(path.c_str(), joints)) return true;
  std::fprintf(stderr, "assetgen: cannot write the skeleton %s\n", path.c_str());
  return false;
}

}  // namespace

bool Generate_Figures(const Context& ctx) {
  std::set<std::string> written;
  for (int row = 0; row < fig::kRows; ++row)
    if (!write_row(ctx, row, written)) return false;
  for (int c = 0; c < fig::kCharacters; ++c)
    if (!write_skeleton(ctx, c)) return false;
  return true;
}

}  // namespace gen
