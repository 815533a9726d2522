// A fight stepped without pictures (Fight_Step as drawn, the tournament's step) plays frame for
// frame the fight a player sees: the same computer-played fight run once through the drawn
// fight frame and once undrawn leaves the same fight records after every frame, through the
// knock-out, the closing replay, the win pose and the next round.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "camera/camera_fight.h"
#include "cpu/cpu.h"
#include "cpu/cpu_private.h"
#include "fight/fight_hit.h"
#include "fight/fight_moves.h"
#include "fight/fight_replay.h"
#include "fight/fight_sim_test.h"
#include "input/input.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "shell/shell_pacer.h"

namespace {

constexpr int kFrames = 4000;  // the knock-out, the win pose and well into a next round
constexpr int kLevel = 70;  // the tournament's computer level

// The records compared after every frame, each hashed on its own so that a mismatch names it.
enum Record { FIGHTER_0, FIGHTER_1, MATCH, EFFECTS, HITS, REPLAY, CPU, CAMERA, CENTRES, RECORDS };
constexpr const char* kRecordNames[RECORDS] = {
    "fighter 0", "fighter 1", "match", "effects", "hits", "replay", "cpu", "camera",
    "body centres and swings",
};

struct FrameHashes {
  std::uint64_t h[RECORDS];
};

std::uint64_t hash_of(const void* data, std::size_t size) {
  return sim::fnv(1469598103934665603ull, data, size);
}

// A fighter without its per-frame tables, which only the loader writes.
std::uint64_t fighter_hash(const Fighter& f) {
  return hash_of(&f, offsetof(Fighter, last_shared_key));
}

FrameHashes frame_hashes() {
  FrameHashes out{};
  out.h[FIGHTER_0] = fighter_hash(fighters[0]);
  out.h[FIGHTER_1] = fighter_hash(fighters[1]);
  out.h[MATCH] = hash_of(&Match, sizeof Match);
  out.h[EFFECTS] = hash_of(&Effects, sizeof Effects);
  out.h[HITS] = hash_of(&Hits, sizeof Hits);
  out.h[REPLAY] = hash_of(&Replay, sizeof Replay);
  out.h[CPU] = sim::fnv(hash_of(&Cpu, sizeof Cpu), &CpuMind, sizeof CpuMind);
  out.h[CAMERA] = hash_of(&FightCamera, sizeof FightCamera);
  std::uint64_t c = hash_of(Draw.Body_Centre, sizeof Draw.Body_Centre);
  c = sim::fnv(c, Draw.flex_amp, sizeof Draw.flex_amp);
  c = sim::fnv(c, Draw.flex_pos, sizeof Draw.flex_pos);
  out.h[CENTRES] = sim::fnv(c, Draw.flex_dir, sizeof Draw.flex_dir);
  return out;
}

// What the drawn run went through, so that the comparison is known to cover it.
struct Seen {
  bool knock_out = false;
  bool win_pose = false;
  bool next_round = false;
  bool effects = false;
};

void note(Seen& seen) {
  seen.knock_out |= Match.ko_state == 1;  // only the deciding blow sets 1; time over sets 2
  seen.win_pose |= Match.win_pose_count >= 1;
  seen.next_round |= seen.win_pose && Match.win_pose_count == 0 && Match.ko_state == 0;
  for (const HitEffect& e : Effects.Hit_Effect) seen.effects |= e.active != 0;
}

class UndrawnStep : public sim::FightTest {
 protected:
  void SetUp() override {
    if (!load(8, 10)) GTEST_SKIP() << "no data set at " VALDRUNE_DATA_DIR;
    build_move_tables();
    // The computer on both sides as the tournament sets it up, three rounds to win: the first
    // round's end leads on to the next round rather than out of the fight.
    Match.human[0] = Match.human[1] = 0;
    Match.fight_call = 0;
    Match.stage_count = 0;
    Match.rounds_to_win = 3;
    for (int i = 0; i < 2; ++i) Cpu.CpuLevel[i] = Cpu.CpuBaseLevel[i] = kLevel;
    frame_count = 0;
    Input_Init();
    Shell.WhiteFrames = 0;
    start_ = std::make_unique<sim::Saved>();
    sim::save(*start_);
  }
  // The fight from the saved start, drawn (the pacer never behind on the headless clock) or
  // stepped undrawn as the tournament steps it; the records after every frame.
  std::vector<FrameHashes> play(bool drawn, Seen& seen, int frames = kFrames) {
    sim::restore(*start_);
    Set_FrameRate(65);
    std::vector<FrameHashes> out;
    out.reserve(frames);
    for (int i = 0; i < frames && Shell.GameMode == MODE_FIGHT; ++i) {
      if (++frame_count == 30000) frame_count = 0;
      if (drawn)
        Fight_Frame();
      else
        Fight_Step(1);
      out.push_back(frame_hashes());
      note(seen);
    }
    return out;
  }

  // The drawn and the undrawn run agree on every record after every frame.
  static void expect_same(const std::vector<FrameHashes>& drawn,
                          const std::vector<FrameHashes>& undrawn) {
    ASSERT_EQ(drawn.size(), undrawn.size());
    for (std::size_t i = 0; i < drawn.size(); ++i)
      for (int r = 0; r < RECORDS; ++r)
        ASSERT_EQ(drawn[i].h[r], undrawn[i].h[r])
            << kRecordNames[r] << " differs after frame " << i + 1;
  }

  std::unique_ptr<sim::Saved> start_;
};

TEST_F(UndrawnStep, PlaysTheDrawnFightFrameForFrame) {
  // A few blows from the end, whoever lands them: the knock-out comes early whatever the fighters'
  // balance, and the next round starts with full bars.
  for (Fighter& f : fighters) f.damage = f.life - 15;
  sim::save(*start_);
  Seen drawn_seen, undrawn_seen;
  const std::vector<FrameHashes> drawn = play(true, drawn_seen);
  ASSERT_TRUE(drawn_seen.knock_out) << "the fight should reach a knock-out";
  ASSERT_TRUE(drawn_seen.win_pose) << "the fight should reach the win pose";
  ASSERT_TRUE(drawn_seen.next_round) << "the fight should go on to a next round";
  ASSERT_TRUE(drawn_seen.effects) << "the fight should spawn effects";
  expect_same(drawn, play(false, undrawn_seen));
}

// A deciding blow worth more than the life left: the bar shows no more drain than the life it
// has, drawn or not.
TEST_F(UndrawnStep, ABlowBeyondTheLastLifeDrainsAlike) {
  fighters[1].damage = fighters[1].life + 9;
  sim::save(*start_);
  Seen drawn_seen, undrawn_seen;
  const std::vector<FrameHashes> drawn = play(true, drawn_seen, 300);
  ASSERT_TRUE(drawn_seen.knock_out);
  expect_same(drawn, play(false, undrawn_seen, 300));
}

}  // namespace
