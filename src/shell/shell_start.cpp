// The first mode of a run: the opening, or (for the review tools) a match or a demonstration
// entered directly.
#include <cstdlib>
#include <cstring>

#include "assets/asset_character.h"
#include "fight/fight_state.h"
#include "scenes/scenes.h"
#include "shell/shell.h"
#include "shell/shell_prepare.h"

namespace {

constexpr std::int32_t kAttractWait = 700;  // the title's wait before the attract cycle

// A select slot 0..29 spelled in decimal, ending at `end`; -1 otherwise.
int parse_slot(const char* text, const char** end) {
  char* stop = nullptr;
  const long v = std::strtol(text, &stop, 10);
  if (stop == text || v < 0 || v >= CHARACTER_ROWS) return -1;
  *end = stop;
  return static_cast<int>(v);
}

}  // namespace

bool Shell_ParseStart(const char* text) {
  if (std::strcmp(text, "demo") == 0) {
    Shell.StartEntry = START_DEMO;
    return true;
  }
  if (std::strncmp(text, "fight:", 6) != 0) return false;
  const char* p = text + 6;
  const int s0 = parse_slot(p, &p);
  if (s0 < 0 || *p != ':') return false;
  const int s1 = parse_slot(p + 1, &p);
  if (s1 < 0 || *p != '\0') return false;
  Shell.StartEntry = START_FIGHT;
  Shell.StartSlot[0] = s0;
  Shell.StartSlot[1] = s1;
  return true;
}

void Enter_StartMode() {
  switch (Shell.StartEntry) {
    case START_FIGHT:  // a two-player match: the computer chooses nothing
      Match.human[0] = 1;
      Match.human[1] = 1;
      select_slot[0] = Shell.StartSlot[0];
      select_slot[1] = Shell.StartSlot[1];
      Shell.GameMode = MODE_FIGHT_LOAD;
      break;
    case START_DEMO:  // as when the title hands over to the attract cycle
      Match.human[0] = 0;
      Match.human[1] = 0;
      TitleTimer = kAttractWait;
      Shell.GameMode = MODE_DEMO_LOAD;
      break;
    default:
      break;
  }
}
