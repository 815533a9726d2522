// Shared by the asset fuzz targets: the GL context the texture uploads need, and the
// pictures a fuzzed model names ("T.BMP") or takes as its alternate faces.
#pragma once
#include <cstdint>
#include <cstdlib>
#include <initializer_list>

#include "assets/asset_image.h"
#include "fuzz_support.h"
#include "platform/platform.h"

namespace fuzz {

inline void start_gl() {
  static bool ready = false;
  if (ready) return;
  start();
  if (!Plat_OpenWindow("fuzz")) std::abort();
  static const std::uint8_t skin[6 + 2 * 2 * 3] = {2, 0, 2, 0, 3, 0, 200, 10, 10, 10, 200, 10,
                                                   10, 10, 200, 90, 90, 90};
  for (const char* name : {"T.BMP", "A1.BMP", "A2.BMP"}) set_file(name, skin, sizeof skin);
  ready = true;
}

}  // namespace fuzz
