// valdrune-headless: the game on the headless backend, for tests, screenshots and soak runs.
//
//   valdrune-headless --data DIR [--frames N] [--script FILE] [--shots OUTDIR --shot-every K]
//                     [--start fight:S0:S1 | --start demo]
//   valdrune-headless --data DIR --pose CHAR:ACTION:FRAME --out FILE.png
//   valdrune-headless --data DIR --sheet OUTDIR
//   valdrune-headless --data DIR --tournament N [--level L] [--usage]
// --start enters a two-player match of select slots S0 and S1 (0..29), or a demonstration,
// instead of the opening. --pose draws character row CHAR (0..29) in frame FRAME of ACTION
// (counted from the action's first frame); --sheet writes OUTDIR/sheet-CC.png, the key poses
// of each character. --tournament fights every character against every other, N rounds each
// way, computer against computer at level L (default 70) without drawing, and prints a line
// per character and a summary (--usage adds each character's action counts).
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/headless/headless.h"
#include "review/review.h"
#include "review/review_tournament.h"
#include "review/review_trace.h"
#include "shell/shell.h"
#include "shell/shell_prepare.h"

namespace {

int usage() {
  std::fprintf(stderr,
               "usage: valdrune-headless --data DIR [--frames N] [--script FILE]"
               " [--shots OUTDIR --shot-every K] [--start fight:S0:S1 | --start demo]\n"
               "       valdrune-headless --data DIR --pose CHAR:ACTION:FRAME --out FILE.png\n"
               "       valdrune-headless --data DIR --sheet OUTDIR\n"
               "       valdrune-headless --data DIR --tournament N [--level L] [--usage]\n");
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
  const char* pose = nullptr;   // review tools
  const char* out = nullptr;
  const char* sheet = nullptr;
  TournamentOptions tournament;
  int tournament_on = 0, level_given = 0;
  for (int i = 1; i < argc; ++i) {
    const bool has_value = i + 1 < argc;
    if (!std::strcmp(argv[i], "--data") && has_value) data = argv[++i];
    else if (!std::strcmp(argv[i], "--frames") && has_value) frames = std::atol(argv[++i]);
    else if (!std::strcmp(argv[i], "--script") && has_value) script = argv[++i];
    else if (!std::strcmp(argv[i], "--shots") && has_value) shots = argv[++i];
    else if (!std::strcmp(argv[i], "--shot-every") && has_value) every = std::atoi(argv[++i]);
    else if (!std::strcmp(argv[i], "--start") && has_value && Shell_ParseStart(argv[i + 1])) ++i;
    else if (!std::strcmp(argv[i], "--pose") && has_value) pose = argv[++i];
    else if (!std::strcmp(argv[i], "--out") && has_value) out = argv[++i];
    else if (!std::strcmp(argv[i], "--sheet") && has_value) sheet = argv[++i];
    else if (!std::strcmp(argv[i], "--tournament") && has_value &&
             Review_ParseRounds(argv[i + 1], &tournament.rounds)) tournament_on = ++i;
    else if (!std::strcmp(argv[i], "--level") && has_value &&
             Review_ParseLevel(argv[i + 1], &tournament.level)) level_given = ++i;
    else if (!std::strcmp(argv[i], "--usage")) tournament.usage = 1;
    else if (!std::strcmp(argv[i], "--trace") && has_value && Review_TraceOpen(argv[i + 1])) ++i;
    else return usage();
  }
  if (data == nullptr || frames < 0 || (shots != nullptr) != (every > 0)) return usage();
  int row = 0, action = 0, frame = 0;
  if (pose && (out == nullptr || sheet || !Review_ParsePose(pose, &row, &action, &frame)))
    return usage();
  if (out && !pose) return usage();
  if ((level_given || tournament.usage) && !tournament_on) return usage();

  char script_path[1100];
  char shots_path[1100];
  if (script) absolute(script, script_path, sizeof script_path);
  if (shots) absolute(shots, shots_path, sizeof shots_path);
  if (shots && mkdir(shots_path, 0777) != 0 && errno != EEXIST) {
    std::fprintf(stderr, "valdrune-headless: cannot make the screenshot directory %s\n", shots);
    return 2;
  }
  char review_path[1100];
  if (out || sheet) absolute(out ? out : sheet, review_path, sizeof review_path);

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
  if (pose) return Review_Pose(row, action, frame, review_path);
  if (sheet) return Review_Sheets(review_path);
  if (tournament_on) return Review_Tournament(tournament);
  Headless_SetFrameLimit(frames);
  if (shots) Headless_SetShots(shots_path, every);
  Headless_SetModeProbe(current_mode);

  const int status = Game_Main();
  Headless_PrintSummary(status);
  return status;
}
