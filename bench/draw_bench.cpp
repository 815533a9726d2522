// Drawing one fight frame on the headless backend (Mesa's software rasteriser, 640 x 480):
// the stage, then both generated fighters in their painted skins with shadows and chains,
// finished with glFinish. Target: median under 6 ms. Also counts heap allocations made inside
// the frame, which must stay at 0.
//
//   build/bench/draw_bench [--benchmark_repetitions=N]
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <GL/gl.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

#include "platform/platform.h"
#include "render/render_fighter_fixture.h"
#include "render/render_state.h"
#include "shell/shell.h"

namespace {
std::atomic<long> Allocations{0};
}  // namespace

// Every allocation through new is counted; the frame must make none.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void* operator new(std::size_t size) {
  Allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* p = std::malloc(size ? size : 1)) return p;
  throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
#pragma GCC diagnostic pop

namespace {

// The scene, once: a private directory for the generated files, the GL context, the tables.
bool set_up_scene() {
  char dir[] = "/tmp/valdrune-draw-bench-XXXXXX";
  if (mkdtemp(dir) == nullptr || chdir(dir) != 0) return false;
  if (!Plat_OpenWindow("bench")) return false;
  Set_FixedGLState();
  Window_Reshape(640, 480);
  Build_SinCosTables();
  Build_AngleTables();
  Shell.GameMode = MODE_FIGHT;
  scene::load_stage();
  const bool ok = scene::load_fighter(0, 0, true) && scene::load_fighter(9, 1, true);
  const std::string rm = std::string("rm -rf '") + dir + "'";
  if (std::system(rm.c_str()) != 0) std::fprintf(stderr, "draw_bench: %s left behind\n", dir);
  return ok;
}

void fight_frame() {
  Clear_Depth();
  Draw_Stage();
  Draw_Fighters();
  glFinish();
}

bool scene_ready() {
  static const bool ready = set_up_scene();
  return ready;
}

void BM_FightFrame(benchmark::State& state) {
  const bool ready = scene_ready();
  if (!ready) {
    state.SkipWithError("the scene could not be set up");
    return;
  }
  fight_frame();  // first use of the textures
  const long before = Allocations.load();
  for (auto _ : state) fight_frame();
  state.counters["allocations_per_frame"] =
      static_cast<double>(Allocations.load() - before) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_FightFrame)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5)->ReportAggregatesOnly(true);

// The stage alone, to tell where a frame's time goes.
void BM_StageOnly(benchmark::State& state) {
  const bool ready = scene_ready();
  if (!ready) {
    state.SkipWithError("the scene could not be set up");
    return;
  }
  for (auto _ : state) {
    Clear_Depth();
    Draw_Stage();
    glFinish();
  }
}
BENCHMARK(BM_StageOnly)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5)->ReportAggregatesOnly(true);

}  // namespace

BENCHMARK_MAIN();
