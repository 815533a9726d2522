// valdrune-headless: the game on the headless backend, for tests, screenshots and soak runs.
//
//   valdrune-headless --data DIR [--frames N] [--script FILE] [--shots OUTDIR --shot-every K]
//                     [--start fight:S0:S1 | --start demo]
//
// --start enters a two-player match of select slots S0 and S1 (0..29), or a demonstration,
// instead of the opening.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/headless/headless.h"
#include "shell/shell.h"
#include "shell/shell_prepare.h"

namespace {

int usage() {
  std::fprintf(stderr,
               "usage: valdrune-headless --data DIR [--frames N] [--script FILE]"
               " [--shots OUTDIR --shot-every K] [--start fight:S0:S1 | --start demo]\n");
  return 2;
}

int current_mode() { return Shell.GameMode; }

// Makes a path absolute against the directory the program was started in, so that it still
// names the same file after the change to the data directory.
void absolute(const char* path, char* out, std::size_t size) {
  if (path[0] == '/') {
    std::snprintf(out, size, "%s", path);
    return;
  }
  char cwd[1024];
  if (getcwd(cwd, sizeof cwd) == nullptr) cwd[0] = '\0';
  std::snprintf(out, size, "%s/%s", cwd, path);
}

}  // namespace

int main(int argc, char** argv) {
  const char* data = nullptr;
  const char* script = nullptr;
  const char* shots = nullptr;
  long frames = 0;
  int every = 0;
  for (int i = 1; i < argc; ++i) {
    const bool has_value = i + 1 < argc;
    if (!std::strcmp(argv[i], "--data") && has_value) data = argv[++i];
    else if (!std::strcmp(argv[i], "--frames") && has_value) frames = std::atol(argv[++i]);
    else if (!std::strcmp(argv[i], "--script") && has_value) script = argv[++i];
    else if (!std::strcmp(argv[i], "--shots") && has_value) shots = argv[++i];
    else if (!std::strcmp(argv[i], "--shot-every") && has_value) every = std::atoi(argv[++i]);
    else if (!std::strcmp(argv[i], "--start") && has_value && Shell_ParseStart(argv[i + 1])) ++i;
    else return usage();
  }
  if (data == nullptr || frames < 0 || (shots != nullptr) != (every > 0)) return usage();

  char script_path[1100];
  char shots_path[1100];
  if (script) absolute(script, script_path, sizeof script_path);
  if (shots) absolute(shots, shots_path, sizeof shots_path);

  if (script) {
    char err[700];
    if (!Headless_LoadScript(script_path, err, sizeof err)) {
      std::fprintf(stderr, "valdrune-headless: %s\n", err);
      return 2;
    }
  }
  if (chdir(data) != 0) {
    std::fprintf(stderr, "valdrune-headless: cannot enter the data directory %s\n", data);
    return 2;
  }
  Headless_SetFrameLimit(frames);
  if (shots) Headless_SetShots(shots_path, every);
  Headless_SetModeProbe(current_mode);

  const int status = Game_Main();
  Headless_PrintSummary(status);
  return status;
}
