// The per-frame trace: the fighters' actions, places and bars after every frame of the loop.
#include "review/review_trace.h"

#include <cstdio>
#include <cstdlib>

#include "fight/fight_state.h"
#include "platform/headless/headless.h"
#include "shell/shell.h"

namespace {

// Written by Review_TraceOpen and the frame hook.
struct TraceState {
  std::FILE* file = nullptr;
  char buffer[1 << 16];  // the stream's own buffer: no allocation while frames run
};
TraceState Trace;

int fighter_fields(int i, char* out, std::size_t size) {
  const Fighter& f = fighters[i];
  return std::snprintf(out, size, "p%d=%d,%d,%.3f,%.3f,%d,%d,%d", i, f.action, f.frame,
                       static_cast<double>(f.pos_x), static_cast<double>(f.pos_z), f.yaw, f.life,
                       f.damage);
}

void write_frame(long frame) {
  char line[256];
  const int n = Review_TraceLine(frame, line, sizeof line);
  std::fwrite(line, 1, static_cast<std::size_t>(n), Trace.file);
  std::fputc('\n', Trace.file);
}

void close_trace() {
  if (Trace.file != nullptr) std::fclose(Trace.file);
  Trace.file = nullptr;
}

}  // namespace

int Review_TraceLine(long frame, char* out, std::size_t size) {
  int n = std::snprintf(out, size, "frame=%ld mode=%d ", frame, Shell.GameMode);
  for (int i = 0; i < 2 && n >= 0 && static_cast<std::size_t>(n) < size; ++i) {
    if (i == 1) out[n++] = ' ';
    n += fighter_fields(i, out + n, size - static_cast<std::size_t>(n));
  }
  if (n >= 0 && static_cast<std::size_t>(n) < size)  // the round: clock, knock-out, wins
    n += std::snprintf(out + n, size - static_cast<std::size_t>(n), " clock=%d ko=%d wins=%d,%d",
                       Match.clock, Match.ko_state, fighters[0].wins, fighters[1].wins);
  if (n < 0) return 0;
  return static_cast<std::size_t>(n) < size ? n : static_cast<int>(size) - 1;
}

bool Review_TraceOpen(const char* path) {
  Trace.file = std::fopen(path, "w");
  if (Trace.file == nullptr) {
    std::fprintf(stderr, "valdrune-headless: cannot write the trace %s\n", path);
    return false;
  }
  std::setvbuf(Trace.file, Trace.buffer, _IOFBF, sizeof Trace.buffer);
  std::atexit(close_trace);
  Headless_SetFrameHook(write_frame);
  return true;
}
