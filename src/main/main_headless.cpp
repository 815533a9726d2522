// valdrune-headless: the game on the headless backend, for tests, screenshots and soak runs.
// `valdrune-headless --help` lists the options; each is one row of the table below.
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/headless/headless.h"
#include "review/review.h"
#include "review/review_tournament.h"
#include "review/review_trace.h"
#include "shell/shell.h"
#include "shell/shell_options.h"
#include "shell/shell_prepare.h"

namespace {

constexpr const char* kProgram = "valdrune-headless";

// What the command line asked for. Written only by the option table's parser.
struct HeadlessArgs {
  const char* data = nullptr;
  const char* script = nullptr;
  const char* shots = nullptr;
  long frames = 0;  // 0: until the game quits
  long every = 0;
  const char* pose = nullptr;  // review tools
  const char* out = nullptr;
  const char* sheet = nullptr;
  const char* pair = nullptr;   // THROWER:VICTIM:ACTION, with --out
  const char* pairs = nullptr;  // OUTDIR
  int pose_row = 0, pose_action = 0, pose_frame = 0;
  int pair_thrower = 0, pair_victim = 0, pair_action = 0;
  long tournament = 0;  // rounds per pairing; 0: no tournament
  long level = 70;      // the tournament's computer level
  bool usage = false;
  bool draw_shots_only = false;
  bool level_given = false;
};
HeadlessArgs Args;

bool take_level(const char* v) {
  char* end = nullptr;
  Args.level = std::strtol(v, &end, 10);
  Args.level_given = true;
  return end != v && *end == '\0' && Args.level >= 20 && Args.level <= 200;
}

bool take_pose(const char* v) {
  Args.pose = v;
  return Review_ParsePose(v, &Args.pose_row, &Args.pose_action, &Args.pose_frame);
}

bool take_pair(const char* v) {
  Args.pair = v;
  return Review_ParsePair(v, &Args.pair_thrower, &Args.pair_victim, &Args.pair_action);
}

// clang-format off
const OptionRow kOptions[] = {
    {.name = "--data", .value = "DIR", .help = "the data set to run on (required)", .text = &Args.data},                      // data
    {.name = "--frames", .value = "N", .help = "stop after N frames (without it: until the game quits)",
     .number = &Args.frames, .low = 1, .high = INT_MAX},                                                                     // frames
    {.name = "--script", .value = "FILE", .help = "key and pad events, one a line (see the README)", .text = &Args.script},  // script
    {.name = "--shots", .value = "OUTDIR", .help = "write presented frames as PNG (with --shot-every)", .text = &Args.shots}, // shots
    {.name = "--shot-every", .value = "K", .help = "every K-th presented frame (with --shots)",
     .number = &Args.every, .low = 1, .high = INT_MAX},                                                                      // shot-every
    {.name = "--draw-shots-only", .value = nullptr, .help = "draw in full only the pictures --shots keeps (the game runs the same, quicker)",
     .flag = &Args.draw_shots_only},                                                                                         // draw-shots-only
    {.name = "--start", .value = "fight:S0:S1|demo", .help = "straight to a match of select slots S0, S1 (0..29), or a demonstration",
     .check = Shell_ParseStart},                                                                                             // start
    {.name = "--pose", .value = "CHAR:ACTION:FRAME", .help = "draw one fighter in one frame of an action (with --out)",
     .check = take_pose},                                                                                                    // pose
    {.name = "--out", .value = "FILE.png", .help = "where --pose or --pair writes its picture", .text = &Args.out},           // out
    {.name = "--sheet", .value = "OUTDIR", .help = "a contact sheet per character, OUTDIR/sheet-CC.png", .text = &Args.sheet}, // sheet
    {.name = "--pair", .value = "THROWER:VICTIM:ACTION", .help = "a throw (80, 81) or hold (340..409) with its victim, a strip of frames (with --out)",
     .check = take_pair},                                                                                                    // pair
    {.name = "--pairs", .value = "OUTDIR", .help = "every throw and hold of every character, OUTDIR/pair-CC-AAA-RRR.png", .text = &Args.pairs}, // pairs
    {.name = "--trace", .value = "FILE", .help = "one line a frame of both fighters' state", .check = Review_TraceOpen},         // trace
    {.name = "--tournament", .value = "N", .help = "every character against every other, N rounds each way, computer against computer",
     .number = &Args.tournament, .low = 1, .high = 1000},                                                                    // tournament
    {.name = "--level", .value = "L", .help = "the tournament's computer level, 20..200 (default 70)", .check = take_level},  // level
    {.name = "--usage", .value = nullptr, .help = "the tournament also counts each character's actions", .flag = &Args.usage}, // usage
};
// clang-format on
constexpr int kOptionCount = sizeof kOptions / sizeof kOptions[0];

constexpr const char* kSynopsis =
    "usage: valdrune-headless --data DIR [--frames N] [--script FILE]"
    " [--shots OUTDIR --shot-every K]\n"
    "       [--draw-shots-only] [--trace FILE] [--start fight:S0:S1 | --start demo]\n"
    "       valdrune-headless --data DIR --pose CHAR:ACTION:FRAME --out FILE.png\n"
    "       valdrune-headless --data DIR --sheet OUTDIR\n"
    "       valdrune-headless --data DIR --pair THROWER:VICTIM:ACTION --out FILE.png\n"
    "       valdrune-headless --data DIR --pairs OUTDIR\n"
    "       valdrune-headless --data DIR --tournament N [--level L] [--usage]\n"
    "Runs the game off-screen on a virtual clock and prints a last line\n"
    "\"frames=N presented=P mode=M exit=S\".";

// The rules between options; false with the refusal printed.
bool options_agree() {
  const char* problem = nullptr;
  if (Args.data == nullptr) problem = "--data DIR is required";
  else if ((Args.shots != nullptr) != (Args.every > 0))
    problem = "--shots and --shot-every go together";
  else if (Args.pose != nullptr && Args.pair != nullptr) problem = "--pose and --pair are separate runs";
  else if ((Args.pose != nullptr || Args.pair != nullptr) && Args.out == nullptr)
    problem = Args.pose ? "--pose needs --out" : "--pair needs --out";
  else if (Args.out != nullptr && Args.pose == nullptr && Args.pair == nullptr)
    problem = "--out is for --pose or --pair";
  else if ((Args.pose != nullptr || Args.pair != nullptr) + (Args.sheet != nullptr) + (Args.pairs != nullptr) > 1)
    problem = "--pose, --pair, --sheet and --pairs are separate runs";
  else if ((Args.level_given || Args.usage) && Args.tournament == 0)
    problem = "--level and --usage are for --tournament";
  if (problem != nullptr) Options_Refuse(kProgram, problem);
  return problem == nullptr;
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
  if (const int status = Options_Read(kProgram, kSynopsis, kOptions, kOptionCount, argc, argv);
      status >= 0)
    return status;
  if (!options_agree()) return OPTIONS_STATUS_REFUSED;

  char script_path[1100];
  char shots_path[1100];
  if (Args.script) absolute(Args.script, script_path, sizeof script_path);
  if (Args.shots) absolute(Args.shots, shots_path, sizeof shots_path);
  if (Args.shots && mkdir(shots_path, 0777) != 0 && errno != EEXIST) {
    std::fprintf(stderr, "%s: cannot make the screenshot directory %s\n", kProgram, Args.shots);
    return OPTIONS_STATUS_REFUSED;
  }
  char review_path[1100];
  if (Args.out || Args.sheet || Args.pairs)
    absolute(Args.out ? Args.out : (Args.sheet ? Args.sheet : Args.pairs), review_path, sizeof review_path);

  if (Args.script) {
    char err[700];
    if (!Headless_LoadScript(script_path, err, sizeof err)) {
      std::fprintf(stderr, "%s: %s\n", kProgram, err);
      return OPTIONS_STATUS_REFUSED;
    }
  }
  if (chdir(Args.data) != 0) {
    std::fprintf(stderr, "%s: --data: cannot enter %s (%s)\n", kProgram, Args.data,
                 std::strerror(errno));
    return OPTIONS_STATUS_REFUSED;
  }
  if (Args.pose) return Review_Pose(Args.pose_row, Args.pose_action, Args.pose_frame, review_path);
  if (Args.sheet) return Review_Sheets(review_path);
  if (Args.pair) return Review_Pair(Args.pair_thrower, Args.pair_victim, Args.pair_action, review_path);
  if (Args.pairs) return Review_Pairs(review_path);
  if (Args.tournament > 0) {
    TournamentOptions t;
    t.rounds = static_cast<int>(Args.tournament);
    t.level = static_cast<int>(Args.level);
    t.usage = Args.usage ? 1 : 0;
    return Review_Tournament(t);
  }
  Headless_SetFrameLimit(Args.frames);
  if (Args.shots) Headless_SetShots(shots_path, static_cast<int>(Args.every));
  Headless_SetDrawShotsOnly(Args.draw_shots_only);
  Headless_SetModeProbe(current_mode);

  const int status = Game_Main();
  Headless_PrintSummary(status);
  return status;
}
