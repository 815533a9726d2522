// valdrune: the game on the real platform backend. `valdrune --help` lists the options.
//
// The game reads its data from the working directory. --data DIR runs it on another one;
// started elsewhere without --data, it runs on the data set its build generated.
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/platform.h"
#include "shell/shell.h"
#include "shell/shell_options.h"
#include "shell/shell_prepare.h"

#ifndef VALDRUNE_BUILD_DATA
#define VALDRUNE_BUILD_DATA ""
#endif

namespace {

constexpr const char* kProgram = "valdrune";
constexpr const char* kBuildData = VALDRUNE_BUILD_DATA;

// What the command line asked for. Written only by the option table's parser.
struct GameArgs {
  const char* data = nullptr;
};
GameArgs Args;

// clang-format off
const OptionRow kOptions[] = {
    {.name = "--data", .value = "DIR", .help = "the data set to play from (default: this directory, else the build's)",
     .text = &Args.data},                                                                                   // data
    {.name = "--start", .value = "fight:S0:S1|demo", .help = "straight to a match of select slots S0, S1 (0..29), or a demonstration",
     .check = Shell_ParseStart},                                                                            // start
};
// clang-format on
constexpr int kOptionCount = sizeof kOptions / sizeof kOptions[0];

constexpr const char* kSynopsis =
    "usage: valdrune [--data DIR] [--start fight:S0:S1 | --start demo]\n"
    "Plays full screen; Escape quits.";

bool has_data_set() {
  std::FILE* f = Plat_OpenFile("PRELOAD.FA", "rb");
  if (f == nullptr) return false;
  std::fclose(f);
  return true;
}

// Into the data directory: the one given, else this one when it holds a data set, else the
// build's own.
bool enter_data() {
  if (Args.data != nullptr) {
    if (chdir(Args.data) == 0) return true;
    std::fprintf(stderr, "%s: --data: cannot enter %s (%s)\n", kProgram, Args.data,
                 std::strerror(errno));
    return false;
  }
  if (has_data_set() || kBuildData[0] == '\0') return true;
  if (chdir(kBuildData) == 0) {
    std::fprintf(stderr, "%s: no data set here; playing from %s\n", kProgram, kBuildData);
    return true;
  }
  std::fprintf(stderr, "%s: no data set here, nor in %s (%s); give one with --data DIR\n",
               kProgram, kBuildData, std::strerror(errno));
  return true;  // the start-up then stops at the shared animation file and says so
}

}  // namespace

int main(int argc, char** argv) {
  if (const int status = Options_Read(kProgram, kSynopsis, kOptions, kOptionCount, argc, argv);
      status >= 0)
    return status;
  if (!enter_data()) return OPTIONS_STATUS_REFUSED;
  return Game_Main();
}
