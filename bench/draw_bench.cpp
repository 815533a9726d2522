// Drawing one fight frame on the headless backend (Mesa's software rasteriser, 640 x 480):
// the stage, then both generated fighters in their painted skins with shadows and chains,
// finished with glFinish. Target: median under 6 ms. Also counts heap allocations made inside
// the frame, which must stay at 0.
//
// BM_FightFrame and BM_StageOnly draw a scene the benchmark builds itself; BM_FullFightFrame
// draws the generated data set's real fight (stage, fighters, fight pictures, effect models)
// with every hit-effect, projectile and spark slot busy and the fight display as full as a
// fight makes it, in the order the fight's drawing pass uses.
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

#include "assets/asset_character.h"
#include "assets/asset_anim.h"
#include "assets/asset_model.h"
#include "fight/fight_state.h"
#include "hud/hud.h"
#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "render/render_effect.h"
#include "scenes/scene_pictures.h"
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

// The generated data set's fight between characters 0 and 9 on stage 0, loaded as the match
// preparation loads it.
bool set_up_data_fight() {
  if (!Plat_OpenWindow("bench") || chdir(VALDRUNE_DATA_DIR) != 0) return false;
  Set_FixedGLState();
  Window_Reshape(640, 480);
  Build_SinCosTables();
  if (!Load_PreloadFA("PRELOAD.FA")) return false;
  Build_AngleTables();
  Shell.GameMode = MODE_FIGHT;
  if (!Load_FightPictures()) return false;
  select_slot[0] = 0;
  select_slot[1] = 9;
  Match.character[0] = 0;
  Match.character[1] = 9;
  Load_Stage(0);
  reset_match_fighters();
  if (!Load_Character(0) || !Load_Character(1)) return false;
  Load_3DSprite("FAR.3DM", 0);
  Load_3DSprite("CARDFIRE.3DM", 1);
  Load_3DSprite("AXE.3DM", 2);
  reset_round();
  return true;
}

// Keeps every effect slot busy: hit effects of every kind between the fighters, a projectile of
// each model kind in flight, a burst of sparks.
void fill_effects() {
  for (int i = 0; i < HIT_EFFECTS; ++i)
    if (!Effects.Hit_Effect[i].active)
      Spawn_HitEffect(i % 2, -2.0f + 0.2f * i, 1.0f + 0.1f * i, 0.0f, i % HIT_KINDS, 0);
  constexpr int kKinds[PROJECTILES] = {24, 42, PROJECTILE_AXE, 25};
  for (int i = 0; i < PROJECTILES; ++i) {
    ProjectileSlot& p = Effects.Projectile[i];
    if (p.active) continue;
    p = {};
    p.active = 1;
    p.owner = i % 2;
    p.facing = i % 2 ? 270 : 90;
    p.kind = kKinds[i];
    p.hit_points = 1;
    p.x = -3.0f + 2.0f * i;
    p.y = 0.5f;
    p.vx = i % 2 ? -0.1f : 0.1f;
  }
  if (!Effects.Sparks[0].active) Spawn_Sparks(0, 0.0f, 1.0f, 0.0f);
}

// The display at its busiest: both bars draining, a champion's streak on the top line, a
// combo count, both power gauges part full, and FIGHT with its glow fading.
void fill_display() {
  Match.human[0] = 1;
  Match.intro = -1;
  Match.fight_call = 20;
  Match.clock_left = 4321;
  fighters[0].streak = 3;
  for (int i = 0; i < 2; ++i) {
    Fighter& f = fighters[i];
    f.life = 85;
    f.damage = 20 + 10 * i;
    f.drain_delay = 5;
    f.gauge = 150 + 100 * i;
  }
  fighters[0].combo = 12;
  fighters[0].combo_show = 20;
}

void full_fight_frame() {
  fill_effects();
  fill_display();
  Pose_Fighter(0);
  Pose_Fighter(1);
  Clear_Depth();
  Draw_Stage();
  DrainGauges();
  Set_DrawMode(40);
  DrawHudBase();
  Draw_Fighters();  // with the effect pass
  Set_DrawMode(40);
  DrawHudMessages();
  glFinish();
}

// To look at and compare: DRAW_BENCH_SHOT=out.png writes the first frame the benchmark draws,
// and with DRAW_BENCH_SHOT_FRAMES=n the first n frames as out.png.1, out.png.2 and so on.
// Only the first run writes, so that the pictures never depend on how many frames ran before.
void write_shots() {
  static bool written = false;
  const char* shot = std::getenv("DRAW_BENCH_SHOT");
  if (written || shot == nullptr) return;
  written = true;
  const char* frames = std::getenv("DRAW_BENCH_SHOT_FRAMES");
  const int n = frames != nullptr ? std::atoi(frames) : 0;
  for (int k = 1; k <= (n > 0 ? n : 1); ++k) {
    full_fight_frame();
    Swap_Buffers();
    const std::string name = n > 0 ? std::string(shot) + "." + std::to_string(k) : shot;
    Headless_WritePng(name.c_str());
  }
}

// The frames the benchmark measures, apart from the first (warm-up) one, so that a profiler can
// collect this function alone: valgrind --tool=callgrind --toggle-collect='*measured_frame*'.
[[gnu::noinline]] void measured_frame() { full_fight_frame(); }

void BM_FullFightFrame(benchmark::State& state) {
  static const bool ready = set_up_data_fight();
  if (!ready) {
    state.SkipWithError("no generated data set at " VALDRUNE_DATA_DIR);
    return;
  }
  write_shots();
  full_fight_frame();
  const long before = Allocations.load();
  for (auto _ : state) measured_frame();
  state.counters["allocations_per_frame"] =
      static_cast<double>(Allocations.load() - before) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_FullFightFrame)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5)->ReportAggregatesOnly(true);

}  // namespace

BENCHMARK_MAIN();
