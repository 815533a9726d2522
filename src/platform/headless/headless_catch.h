// Catching the program's exit paths on the headless backend: tests and fuzz targets run a
// loader whose refusal ends the game, and get the exit status back instead of an ended
// process. Single-threaded, like the game; calls do not nest.
#pragma once
#include <csetjmp>

#include "platform/headless/headless.h"

namespace headless_catch {
inline std::jmp_buf Jump;
inline int Status = -1;
[[noreturn]] inline void on_exit(int status) {
  Status = status;
  std::longjmp(Jump, 1);
}
}  // namespace headless_catch

// Calls `call`; returns the exit status it ended the program with, or -1 when it returned.
template <typename F>
int Headless_CatchExit(F call) {
  Headless_SetExitHook(headless_catch::on_exit);
  headless_catch::Status = -1;
  if (setjmp(headless_catch::Jump) == 0) call();
  Headless_SetExitHook(nullptr);
  return headless_catch::Status;
}
