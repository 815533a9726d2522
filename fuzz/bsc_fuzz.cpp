// Skeleton files, each fitted to a small set of shared key frames.
#include <cstdint>
#include <vector>

#include "assets/asset_anim.h"
#include "fuzz_support.h"
#include "writers/writer_fa.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static bool shared_loaded = false;
  if (!shared_loaded) {
    static std::vector<std::uint8_t> shared;
    std::vector<FaKeyFrame> keys(3);
    for (int k = 0; k < 3; ++k)
      for (auto& part : keys[k].parts) {
        part.rot[0] = part.rot[4] = part.rot[8] = 499;
        part.pos[0] = static_cast<std::int16_t>(k * 40);
      }
    if (!Encode_FA(FaKind::PackedArmFree, 21, keys, &shared)) std::abort();
    fuzz::set_file("shared.fa", shared.data(), shared.size());
    if (!Load_PreloadFA("shared.fa")) std::abort();
    shared_loaded = true;
  }
  fuzz::set_file("f.bsc", data, size);
  fuzz::run_reader([] {
    if (Load_BSC("f.bsc")) Fit_Skeleton(1);
  });
  return 0;
}
