// Frame pacing on the real clock: at rate 65, how evenly are frames started, and how much
// processor time does the pacer itself take? Targets: median interval 15 ms (within 0.2 ms),
// the pacer under 30% of one core.
//
//   build/bench/pacer_bench [--benchmark_min_time=...]   (one 10-second run)
#include <benchmark/benchmark.h>
#include <time.h>

#include <algorithm>
#include <vector>

#include "shell/shell_pacer.h"

namespace {

double now_ms(clockid_t clock) {
  timespec ts;
  clock_gettime(clock, &ts);
  return ts.tv_sec * 1000.0 + ts.tv_nsec / 1e6;
}

// A frame's own work: about 3 ms of computation, as a light scene would take.
void frame_work() {
  const double end = now_ms(CLOCK_MONOTONIC) + 3.0;
  volatile unsigned sink = 0;
  while (now_ms(CLOCK_MONOTONIC) < end) sink = sink + 1;
}

double percentile(std::vector<double> v, double p) {
  std::sort(v.begin(), v.end());
  return v[static_cast<std::size_t>(p * (v.size() - 1))];
}

void BM_PacerAt65(benchmark::State& state) {
  std::vector<double> intervals;
  intervals.reserve(1000);
  double pacer_cpu = 0;
  double wall = 0;
  for (auto _ : state) {
    Set_FrameRate(65);
    const double start = now_ms(CLOCK_MONOTONIC);
    double last = start;
    while (now_ms(CLOCK_MONOTONIC) - start < 10000.0) {
      frame_work();
      const double cpu0 = now_ms(CLOCK_THREAD_CPUTIME_ID);
      const bool due = Pacer_Due();
      pacer_cpu += now_ms(CLOCK_THREAD_CPUTIME_ID) - cpu0;
      const double t = now_ms(CLOCK_MONOTONIC);
      if (due) {
        intervals.push_back(t - last);
        last = t;
      }
    }
    wall = now_ms(CLOCK_MONOTONIC) - start;
  }
  state.counters["frames"] = static_cast<double>(intervals.size());
  state.counters["median_ms"] = percentile(intervals, 0.5);
  state.counters["p99_ms"] = percentile(intervals, 0.99);
  state.counters["pacer_cpu_pct"] = 100.0 * pacer_cpu / wall;
}
BENCHMARK(BM_PacerAt65)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
