// The real backend's clock, waiting, diagnostics and process exit.
#include <time.h>

#include <cstdio>
#include <cstdlib>

#include "platform/platform.h"

namespace {

std::uint64_t now_us() {
  timespec ts;
  clock_gettime(CLOCK_MONOTONIC, &ts);
  return static_cast<std::uint64_t>(ts.tv_sec) * 1000000u + ts.tv_nsec / 1000;
}

}  // namespace

std::uint32_t Plat_TickCount() { return static_cast<std::uint32_t>(now_us() / 1000); }

// Sleeps to about a millisecond before the deadline, then spins to it: precise to well under
// a millisecond without holding a core for the whole wait.
void Plat_WaitMs(int ms) {
  if (ms <= 0) return;
  const std::uint64_t deadline = now_us() + static_cast<std::uint64_t>(ms) * 1000u;
  for (;;) {
    const std::uint64_t now = now_us();
    if (now >= deadline) return;
    const std::uint64_t left = deadline - now;
    if (left > 1500) {
      timespec nap{0, static_cast<long>((left - 1000) * 1000)};
      nanosleep(&nap, nullptr);
    }
  }
}

void Plat_DebugOut(const char* text) { std::fprintf(stderr, "%s\n", text); }

void Plat_Exit(int status) {
  std::fflush(stdout);
  std::exit(status);
}
