// The fight's simulation without drawing: both fighters posed and placed, hits tested, the
// whole Fight_Update, on the generated data set's characters 0 and 9 with a fixed key
// pattern. A round that ends starts again. Target: at least 50,000 fight frames a second on
// one core (a 3000-frame round in 60 ms); the counter "frames_per_second" reports it.
//
//   build/bench/sim_bench
#include <benchmark/benchmark.h>

#include "fight/fight_sim.h"

namespace {

void BM_FightUpdate(benchmark::State& state) {
  static const bool ready = sim::load_fight(VALDRUNE_DATA_DIR, 0, 9);
  if (!ready) {
    state.SkipWithError("no generated data set at " VALDRUNE_DATA_DIR);
    return;
  }
  long frame = 0;
  for (auto _ : state) {
    sim::press_pattern(frame++);
    sim::step();
    if (Match.ko_state != 0 || Match.frozen || Match.time_over || Shell.GameMode != MODE_FIGHT) {
      Shell.GameMode = MODE_FIGHT;
      fighters[0].wins = fighters[1].wins = 0;
      reset_round();
      Match.intro = -1;
    }
  }
  state.counters["frames_per_second"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_FightUpdate)->UseRealTime()->Repetitions(3)->ReportAggregatesOnly(true);

}  // namespace

BENCHMARK_MAIN();
