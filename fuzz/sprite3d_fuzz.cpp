// Effect models: ".3DM" files into the three smaller records.
#include "assets/asset_model.h"
#include "loader_fuzz_setup.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::start_gl();
  fuzz::set_file("IN.3DM", data, size);
  fuzz::run_reader([size] {
    Reset_Textures();
    Load_3DSprite("IN.3DM", static_cast<int>(size % EFFECT_MODELS));
  });
  return 0;
}
