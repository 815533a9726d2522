// Image files: the header and the pixels, through the staging buffer and into a slot.
#include "loader_fuzz_setup.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::start_gl();
  fuzz::set_file("IN.BMP", data, size);
  fuzz::run_reader([size] {
    Reset_Textures();
    Textures.Texture_Repeat = size & 1;
    Load_Raster("IN.BMP", static_cast<int>(size % SPRITE_COUNT), 1.0f);
  });
  return 0;
}
