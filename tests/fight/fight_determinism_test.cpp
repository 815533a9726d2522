// The fight is a function of its state and its input: the same keys give the same fight frame
// for frame, and a fight saved and restored plays on exactly as it did.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "cpu/cpu.h"
#include "fight/fight_hit.h"
#include "fight/fight_replay.h"
#include "fight/fight_sim_test.h"
#include "input/input.h"
#include "render/render_effect.h"
#include "support/test_support.h"

namespace {

constexpr int kFrames = 1500;

class Determinism : public sim::FightTest {
 protected:
  void SetUp() override {
    if (!load(0, 9)) GTEST_SKIP() << "no data set at " VALDRUNE_DATA_DIR;
  }

  // The match from its first fight frame, played for `frames` frames; the hash of every frame.
  static std::vector<std::uint64_t> play(int frames) {
    static std::unique_ptr<sim::Saved> start;
    if (!start) {  // the first time: the round as the loader and the round start leave it
      start = std::make_unique<sim::Saved>();
      frame_count = 0;
      Headless_ResetInput();
      Input_Init();
      sim::save(*start);
    }
    sim::restore(*start);
    Headless_ResetInput();
    std::vector<std::uint64_t> hashes;
    for (int i = 0; i < frames; ++i) {
      sim::press_pattern(i);
      sim::step();
      hashes.push_back(sim::hash_state());
    }
    return hashes;
  }
};

TEST_F(Determinism, TheSameKeysGiveTheSameFightEveryFrame) {
  const std::vector<std::uint64_t> first = play(kFrames);
  // Blows drain from the bars as the frames go by, so what landed shows in life and wins.
  const int start = Start_Life(Match.life_setting);
  const int lost = 2 * start - (fighters[0].life - fighters[0].damage) -
                   (fighters[1].life - fighters[1].damage);
  EXPECT_GT(lost + fighters[0].wins + fighters[1].wins, 0) << "the pattern should land blows";
  const std::vector<std::uint64_t> second = play(kFrames);
  for (int i = 0; i < kFrames; ++i) ASSERT_EQ(first[i], second[i]) << "frame " << i;
}

TEST_F(Determinism, ARestoredFightPlaysOnAsBefore) {
  constexpr int kSaveAt = 400;
  const std::vector<std::uint64_t> first = play(kSaveAt);
  auto saved = std::make_unique<sim::Saved>();
  sim::save(*saved);
  std::vector<std::uint64_t> onward;
  for (int i = kSaveAt; i < kFrames; ++i) {
    sim::press_pattern(i);
    sim::step();
    onward.push_back(sim::hash_state());
  }
  sim::restore(*saved);
  for (int i = kSaveAt; i < kFrames; ++i) {
    sim::press_pattern(i);
    sim::step();
    ASSERT_EQ(sim::hash_state(), onward[i - kSaveAt]) << "frame " << i;
  }
}

}  // namespace
