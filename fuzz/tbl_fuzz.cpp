// Motion tables: the first byte picks the shared reader (even) or a character's (odd); the
// rest is the file.
#include <cstdint>

#include "assets/asset_table.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  fuzz::set_file("f.tbl", data + 1, size - 1);
  const bool shared = (data[0] & 1) == 0;
  fuzz::run_reader([&] {
    if (shared) Load_PreloadTBL("f.tbl", 1);
    else Load_TBL("f.tbl", 1);
  });
  return 0;
}
