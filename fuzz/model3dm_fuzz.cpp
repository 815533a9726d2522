// Fighter models: every count, index and name of a ".3DM" file, into either record.
#include "assets/asset_model.h"
#include "loader_fuzz_setup.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::start_gl();
  fuzz::set_file("IN.3DM", data, size);
  fuzz::run_reader([size] {
    Reset_Textures();
    Textures.Texture_Count = size % 3 == 0 ? 990 : 0;  // also near the end of the table
    Load_3DM("IN.3DM", static_cast<int>(size & 1), "A1.BMP", "A2.BMP");
  });
  return 0;
}
