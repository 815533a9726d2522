// Fuzzes the settings reader: any bytes in "OPTION.CFG" load without harm, and what loads is
// always inside the ranges the game can run with.
#include <cstdlib>

#include "fight/fight_state.h"
#include "fuzz_support.h"
#include "input/input.h"
#include "settings/settings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::set_file("OPTION.CFG", data, size);
  Settings = SettingsState{};
  fuzz::run_reader([] { Settings_Load(); });
  const bool sane = Settings.frame_rate >= 40 && Settings.frame_rate <= 80 &&
                    Settings.difficulty >= 1 && Settings.difficulty <= 5 &&
                    Match.life_setting >= 1 && Match.life_setting <= 3 &&
                    Match.time_limit >= 6000 && Match.time_limit <= 9000 &&
                    ButtonMask[0][0] != 0 && ButtonMask[1][3] != 0;
  if (!sane) std::abort();
  return 0;
}
