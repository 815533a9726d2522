// assetgen OUTDIR [CACHEDIR]: writes the game's whole data set into OUTDIR.
//
// Each generator writes one kind of content. The output is the same, byte for byte, on
// every run: nothing depends on the clock, the machine or the order jobs finish in.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "assetgen.h"

namespace {

constexpr gen::Generator kGenerators[] = {
    {"figures", gen::Generate_Figures},             // 30 model rows, their pictures, skeletons
    {"sounds", gen::Generate_Sounds},               // 0..177 wave files
    {"music", gen::Generate_Music},                 // music/track02.ogg .. track17.ogg
    {"effect models", gen::Generate_EffectModels},  // FAR.3DM, CARDFIRE.3DM, AXE.3DM
    {"motions", gen::Generate_Motions},             // PRELOAD.FA, PRELOAD.TBL
    {"moves", gen::Generate_Moves},        // after the motions: own moves, the opening
    {"pictures", gen::Generate_Pictures},  // the scenes', stages' and effects' pictures
};

bool make_work_dir(gen::fs::path* out) {
  char pattern[] = "/tmp/assetgen-XXXXXX";
  if (mkdtemp(pattern) == nullptr) {
    std::perror("assetgen: cannot make a scratch directory");
    return false;
  }
  *out = pattern;
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::fprintf(stderr, "usage: assetgen OUTDIR [CACHEDIR]\n");
    return 2;
  }
  gen::Context ctx;
  std::error_code ec;
  ctx.out = gen::fs::absolute(argv[1], ec);
  if (argc == 3) ctx.cache = gen::fs::absolute(argv[2], ec);
  gen::fs::create_directories(ctx.out, ec);
  if (ec) {
    std::fprintf(stderr, "assetgen: cannot make %s: %s\n", argv[1], ec.message().c_str());
    return 1;
  }
  if (!ctx.cache.empty()) gen::fs::create_directories(ctx.cache, ec);
  if (!make_work_dir(&ctx.work)) return 1;

  int status = 0;
  for (const gen::Generator& g : kGenerators) {
    std::printf("assetgen: %s\n", g.name);
    std::fflush(stdout);
    if (!g.run(ctx)) {
      std::fprintf(stderr, "assetgen: the %s failed\n", g.name);
      status = 1;
      break;
    }
  }
  gen::fs::remove_all(ctx.work, ec);
  return status;
}
