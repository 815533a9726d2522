// valdrune: the game on the real platform backend.
//
//   valdrune [--start fight:S0:S1 | --start demo]
//
// Run in the data directory. --start goes straight to a prepared match of select slots S0 and
// S1 (both sides played from the keyboard or pads), or to a demonstration fight.
#include <cstdio>
#include <cstring>

#include "shell/shell.h"
#include "shell/shell_prepare.h"

int main(int argc, char** argv) {
  const bool start = argc == 3 && !std::strcmp(argv[1], "--start") && Shell_ParseStart(argv[2]);
  if (argc != 1 && !start) {
    std::fprintf(stderr, "usage: valdrune [--start fight:S0:S1 | --start demo]\n");
    return 2;
  }
  return Game_Main();
}
