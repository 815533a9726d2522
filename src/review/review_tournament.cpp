// The tournament: each ordered pair of different characters (first colours) fights a number
// of rounds with the computer on both sides, each fight frame stepped as a drawn one runs it
// with the pictures left out (every state change the drawing makes included), so a round plays
// frame for frame as a player would watch it. A round ends at the deciding blow or when the
// clock runs out.
#include "review/review_tournament.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "assets/asset_anim.h"
#include "assets/asset_character.h"
#include "assets/asset_image.h"
#include "cpu/cpu.h"
#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_moves.h"
#include "fight/fight_state.h"
#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "render/render_math.h"
#include "shell/shell.h"

namespace {

constexpr long ROUND_FRAME_LIMIT = 20000;  // a round whose clock never runs out ends here

enum RoundEnd { ROUND_RUNNING, ROUND_KO, ROUND_TIME };

struct Tally {
  long wins, rounds, ko, timeouts, frames;
  long usage[MAX_ACTIONS];  // times the character entered each action
  long stay[MAX_ACTIONS];   // the most frames it spent in one go in each action
  int stay_vs[MAX_ACTIONS]; // the opponent it was fighting then
  long landed[MAX_ACTIONS]; // blows each action landed (hit unguarded or took hold)
  long guarded[MAX_ACTIONS];  // blows of each action the opponent guarded
};

// The tournament's results; written only by this file's steps.
struct TournamentState {
  Tally tally[CHARACTERS];
  long rounds, kos, frames;
  double seconds;  // time spent stepping fights
};
TournamentState T;

bool open_fight() {
  if (!Plat_OpenWindow("tournament")) return false;
  Set_FixedGLState();
  Window_Reshape(HEADLESS_WIDTH, HEADLESS_HEIGHT);
  Build_SinCosTables();
  if (!Load_PreloadFA("PRELOAD.FA")) return false;
  Build_AngleTables();
  build_move_tables();
  return true;
}

bool load_pair(int c0, int c1) {
  Shell.GameMode = MODE_FIGHT;
  select_slot[0] = Match.character[0] = c0;
  select_slot[1] = Match.character[1] = c1;
  Match.human[0] = Match.human[1] = 0;
  Match.demo = 0;
  Match.stage_count = 0;
  Reset_Textures();  // each pairing loads its two fighters' skins afresh
  reset_match_fighters();
  return Load_Character(0) && Load_Character(1);
}

void start_round(int level) {
  Shell.GameMode = MODE_FIGHT;
  fighters[0].wins = fighters[1].wins = 0;
  reset_round();
  Match.intro = -1;  // straight into the fight
  Match.fight_call = 0;
  Match.clock_reset = 1;
  for (int i = 0; i < 2; ++i) Cpu.CpuLevel[i] = Cpu.CpuBaseLevel[i] = level;
}

// One fight frame as a drawn one runs it, the pictures left out.
void step() {
  if (++frame_count == 30000) frame_count = 0;
  Fight_Step(1);
}

RoundEnd round_end() {
  if (Match.ko_state != 0) return ROUND_KO;
  if (Match.time_over) return ROUND_TIME;
  return ROUND_RUNNING;
}

int remaining(int i) { return fighters[i].life - fighters[i].damage; }

// The side that won a finished round, or -1 for a draw.
int round_winner(RoundEnd end) {
  if (end == ROUND_KO) return Match.winner;
  if (remaining(0) == remaining(1)) return -1;
  return remaining(0) > remaining(1) ? 0 : 1;
}

void count_round(const int character[2], RoundEnd end, long frames) {
  const int winner = round_winner(end);
  ++T.rounds;
  if (end == ROUND_KO) ++T.kos;
  for (int i = 0; i < 2; ++i) {
    Tally& t = T.tally[character[i]];
    ++t.rounds;
    t.frames += frames;
    if (end == ROUND_TIME) ++t.timeouts;
    if (winner == i) {
      ++t.wins;
      if (end == ROUND_KO) ++t.ko;
    }
  }
}

void count_blows(long (&per_action)[MAX_ACTIONS], int action, long blows) {
  if (blows > 0 && action >= 0 && action < MAX_ACTIONS) per_action[action] += blows;
}

void play_round(const int character[2], int level) {
  start_round(level);
  int last[2] = {-1, -1};
  long since[2] = {0, 0};
  RoundEnd end = ROUND_RUNNING;
  long frames = 0;
  const auto begin = std::chrono::steady_clock::now();
  while (end == ROUND_RUNNING && frames < ROUND_FRAME_LIMIT) {
    const std::int32_t landed[2] = {Hits.landed[0], Hits.landed[1]};
    const std::int32_t guarded[2] = {Hits.guarded[0], Hits.guarded[1]};
    step();
    ++frames;
    for (int i = 0; i < 2; ++i) {
      count_blows(T.tally[character[i]].landed, Hits.landed_action[i], Hits.landed[i] - landed[i]);
      count_blows(T.tally[character[i]].guarded, Hits.guarded_action[i], Hits.guarded[i] - guarded[i]);
    }
    for (int i = 0; i < 2; ++i) {
      const int a = fighters[i].action;
      if (a != last[i] && a >= 0 && a < MAX_ACTIONS) ++T.tally[character[i]].usage[a];
      if (a != last[i]) since[i] = frames;
      const int slot = a >= 0 && a < MAX_ACTIONS ? a : 0;
      Tally& t = T.tally[character[i]];
      if (frames - since[i] + 1 > t.stay[slot]) {
        t.stay[slot] = frames - since[i] + 1;
        t.stay_vs[slot] = character[1 - i];
      }
      last[i] = a;
    }
    end = round_end();
  }
  T.seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  T.frames += frames;
  count_round(character, end == ROUND_RUNNING ? ROUND_TIME : end, frames);
}

// Each special move of a character (its command slots' actions) with the blows it landed, and
// how many it lands in 50 rounds of the character's.
void print_specials(int c) {
  const Tally& t = T.tally[c];
  bool seen[MAX_ACTIONS] = {};
  for (const std::int16_t action : MoveTables.Special_Table[c]) {
    if (action == NO_MOVE || action < 0 || action >= MAX_ACTIONS || seen[action]) continue;
    seen[action] = true;
    const double per50 = t.rounds > 0 ? 50.0 * t.landed[action] / t.rounds : 0.0;
    std::printf("special char=%d action=%d started=%ld landed=%ld guarded=%ld per50=%.1f%s\n", c,
                action, t.usage[action], t.landed[action], t.guarded[action], per50,
                per50 < 1.0 ? " RARE" : "");
  }
}

void print_results(int usage) {
  for (int c = 0; c < CHARACTERS; ++c) {
    const Tally& t = T.tally[c];
    const long mean = t.rounds > 0 ? t.frames / t.rounds : 0;
    std::printf("char=%d wins=%ld rounds=%ld ko=%ld timeouts=%ld mean_frames=%ld\n", c, t.wins,
                t.rounds, t.ko, t.timeouts, mean);
  }
  if (usage) {
    for (int c = 0; c < CHARACTERS; ++c) {
      std::printf("usage char=%d", c);
      for (int a = 0; a < MAX_ACTIONS; ++a)
        if (T.tally[c].usage[a] > 0) std::printf(" %d:%ld", a, T.tally[c].usage[a]);
      std::printf("\n");
    }
    for (int c = 0; c < CHARACTERS; ++c) {
      std::printf("landed char=%d", c);
      for (int a = 0; a < MAX_ACTIONS; ++a)
        if (T.tally[c].landed[a] > 0) std::printf(" %d:%ld", a, T.tally[c].landed[a]);
      std::printf("\n");
    }
    for (int c = 0; c < CHARACTERS; ++c) print_specials(c);
    // Staying put is only expected standing, lying and in a victory pose.
    constexpr int kResting[] = {0, 12, 13, 22, 23, 24, 50, 51};
    for (int c = 0; c < CHARACTERS; ++c)
      for (int a = 0; a < MAX_ACTIONS; ++a)
        if (T.tally[c].stay[a] > 600 && std::find(std::begin(kResting), std::end(kResting), a) == std::end(kResting))
          std::printf("stay char=%d action=%d frames=%ld against=%d\n", c, a, T.tally[c].stay[a],
                      T.tally[c].stay_vs[a]);
  }
  const double share = T.rounds > 0 ? static_cast<double>(T.kos) / T.rounds : 0.0;
  const double fps = T.seconds > 0 ? T.frames / T.seconds : 0.0;
  std::printf("tournament rounds=%ld ko_share=%.3f frames_per_second=%.0f\n", T.rounds, share,
              fps);
}

}  // namespace

int Review_Tournament(const TournamentOptions& options) {
  if (!open_fight()) {
    std::fprintf(stderr, "valdrune-headless: the data set has no usable PRELOAD.FA\n");
    return 1;
  }
  T = TournamentState{};
  for (int c0 = 0; c0 < CHARACTERS; ++c0) {
    for (int c1 = 0; c1 < CHARACTERS; ++c1) {
      if (c0 == c1) continue;
      if (!load_pair(c0, c1)) {
        std::fprintf(stderr, "valdrune-headless: characters %d and %d cannot be loaded\n", c0, c1);
        return 1;
      }
      const int character[2] = {c0, c1};
      for (int r = 0; r < options.rounds; ++r) play_round(character, options.level);
    }
  }
  print_results(options.usage);
  std::fflush(stdout);
  return 0;
}
