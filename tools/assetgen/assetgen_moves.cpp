// Each character's own moves ("ban.fa3" and "ban.tbl", ...) and the opening's two performances
// with their camera path. The shared frames come first in every fighter's tables, so the
// character's frames must fit beside them.
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "assetgen.h"
#include "figures/fig_figure.h"
#include "figures/fig_roster.h"
#include "moves/mv_bake.h"
#include "moves/mv_opening.h"
#include "moves/mv_roster.h"
#include "writers/writer_cam.h"

namespace gen {
namespace {

FaKind Kind_Of(const char* name) {
  const char* dot = std::strchr(name, '.');
  const bool plain = dot && dot[1] && dot[2] && dot[3] == '3';
  const bool arm_free = dot && (dot[2] == 'a' || dot[2] == 'A');
  if (plain) return arm_free ? FaKind::PlainArmFree : FaKind::PlainFull;
  return arm_free ? FaKind::PackedArmFree : FaKind::PackedFull;
}

std::string Table_Name(const char* anim) {
  std::string s = anim;
  return s.substr(0, s.find('.')) + ".tbl";
}

// Frames the shared table holds (its N + 1), or 0 when it has not been written.
int Shared_Frames(const Context& ctx) {
  std::string bytes;
  const fs::path path = ctx.out / "PRELOAD.TBL";
  std::error_code ec;
  if (!fs::exists(path, ec) || !Read_File(path, &bytes) || bytes.size() < 8002) return 0;
  const int n = static_cast<std::int16_t>(static_cast<unsigned char>(bytes[8000]) |
                                          static_cast<unsigned char>(bytes[8001]) << 8);
  return n + 1;
}

bool Write_Pair(const Context& ctx, const char* anim, const std::string& table, const mv::OwnFiles& files,
                int shared_frames) {
  const int own = static_cast<int>(files.table.frames.size());
  if (shared_frames > 0 && (shared_frames - 1) + (own - 1) + 2 > mv::kFrameLimit) {
    std::fprintf(stderr, "assetgen: %s: %d own frames do not fit beside %d shared ones\n", table.c_str(), own,
                 shared_frames);
    return false;
  }
  const std::string anim_path = (ctx.out / anim).string();
  const std::string table_path = (ctx.out / table).string();
  if (!Write_FA(anim_path.c_str(), Kind_Of(anim), 21, files.keys)) {
    std::fprintf(stderr, "assetgen: cannot write %s\n", anim_path.c_str());
    return false;
  }
  if (!Write_TBL(table_path.c_str(), files.table)) {
    std::fprintf(stderr, "assetgen: cannot write %s\n", table_path.c_str());
    return false;
  }
  return true;
}

bool Write_Character(const Context& ctx, int c, int shared_frames) {
  std::vector<mv::Move> moves;
  mv::Mv_CharacterMoves(c, moves);
  fig::Skeleton skel;
  fig::Fig_BuildSkeleton(c, skel);
  // The body itself sets where the floor is under a fighter lying or crouching.
  auto model = std::make_unique<fig::Model>();
  fig::TextureLayout layout;
  if (!fig::Fig_BuildModel(c, *model, layout)) {
    std::fprintf(stderr, "assetgen: character %d: the model does not fit\n", c);
    return false;
  }
  mv::OwnFiles files;
  std::string error;
  const char* anim = fig::Fig_AnimFile(c);
  if (!mv::Mv_Bake(moves, skel, model.get(), files, &error)) {
    std::fprintf(stderr, "assetgen: %s: %s\n", anim, error.c_str());
    return false;
  }
  return Write_Pair(ctx, anim, Table_Name(anim), files, shared_frames);
}

bool Write_Opening(const Context& ctx, int shared_frames) {
  for (int side = 0; side < 2; ++side) {
    mv::OwnFiles files;
    std::string error;
    if (!mv::Mv_BakeOpening(side, files, &error)) {
      std::fprintf(stderr, "assetgen: opening side %d: %s\n", side, error.c_str());
      return false;
    }
    if (!Write_Pair(ctx, mv::Mv_OpeningAnimFile(side), mv::Mv_OpeningTableFile(side), files, shared_frames))
      return false;
  }
  writers::CameraPathFile eye, look;
  mv::Mv_OpeningCamera(eye, look);
  const std::string eye_path = (ctx.out / "OPEN_POS.CAM").string();
  const std::string look_path = (ctx.out / "OPEN_POI.CAM").string();
  if (!writers::Write_CameraPath(eye_path.c_str(), eye) || !writers::Write_CameraPath(look_path.c_str(), look)) {
    std::fprintf(stderr, "assetgen: cannot write the opening's camera path\n");
    return false;
  }
  return true;
}

}  // namespace

bool Generate_Moves(const Context& ctx) {
  const int shared_frames = Shared_Frames(ctx);
  for (int c = 0; c < fig::kCharacters; ++c)
    if (!Write_Character(ctx, c, shared_frames)) return false;
  return Write_Opening(ctx, shared_frames);
}

}  // namespace gen
