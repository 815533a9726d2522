// valdrune_minimal_data DIR: writes the smallest data set the game starts with (a shared
// animation file of one standing key frame), for runs in builds without the generated set.
#include <cstdio>
#include <string>

#include "writers/writer_fa.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: valdrune_minimal_data DIR\n");
    return 2;
  }
  FaKeyFrame key{};
  for (FaPart& part : key.parts) {
    part.rot[0] = part.rot[4] = part.rot[8] = 499;  // identity, as near as a packed file holds
  }
  const std::string path = std::string(argv[1]) + "/PRELOAD.FA";
  if (!Write_FA(path.c_str(), FaKind::PackedArmFree, 16, {&key, 1})) {
    std::fprintf(stderr, "valdrune_minimal_data: cannot write %s\n", path.c_str());
    return 1;
  }
  return 0;
}
