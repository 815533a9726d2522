// Animation files of every kind: the first byte picks the kind (bits 0-1) and the reader
// (bit 2: the shared file or a character's); the rest is the file. Each loaded file is posed.
#include <cstdint>

#include "assets/asset_anim.h"
#include "fight/fight_state.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  static const char* const kNames[4] = {"f.fa", "f.fa3", "f.fx", "f.fx3"};
  const char* name = kNames[data[0] & 3];
  const bool shared = (data[0] & 4) != 0;
  fuzz::set_file(name, data + 1, size - 1);
  // A character file is fitted to every shared key frame first; after a large shared file that
  // would be most of each input's time, so only the first few take part (the skeleton target
  // fits whole sets).
  if (!shared && Anim.shared_keys > 8) Anim.shared_keys = 8;
  fuzz::run_reader([&] {
    const bool ok = shared ? Load_PreloadFA(name) : Load_FA(name, "none.bsc", 0);
    if (!ok) return;
    Fighter& f = fighters[0];
    f.first_part = 2;
    f.last_part = 21;
    f.frame = 0;
    f.frame_key[0] = static_cast<std::int16_t>(size > 3 ? data[1] | (data[2] << 8) : 0);
    Pose_Fighter(0);
  });
  return 0;
}
