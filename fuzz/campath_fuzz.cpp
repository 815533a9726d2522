// Camera path files into either slot of a path.
#include "camera/camera_path.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::set_file("IN.CAM", data, size);
  fuzz::run_reader([size] { LoadCameraPath("IN.CAM", 1, static_cast<int>(size & 1)); });
  return 0;
}
