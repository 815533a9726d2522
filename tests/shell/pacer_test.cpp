// Frame pacing on the headless virtual clock: the clock moves only when the pacer waits or
// when a test says that a frame's work took time.
#include <gtest/gtest.h>

#include "platform/headless/headless.h"
#include "shell/shell_pacer.h"

namespace {

// Moves the virtual clock to `ms` (mod 32768 as the pacer sees it).
void clock_to(std::uint32_t ms) {
  const std::uint32_t now = Headless_Clock() & 32767u;
  Headless_AdvanceClock((ms - now + 32768u) & 32767u);
}

struct FrameResult {
  bool due;
  std::uint32_t waited;
};

// One frame whose work takes `work_ms`, then the pacer's question.
FrameResult frame(std::uint32_t work_ms) {
  Headless_AdvanceClock(work_ms);
  const std::uint32_t before = Headless_Clock();
  const bool due = Pacer_Due() != 0;
  return {due, Headless_Clock() - before};
}

}  // namespace

TEST(Pacer, PeriodIsIntegerMillisecondsOfTheRate) {
  Set_FrameRate(65);
  EXPECT_EQ(Pacer.PacePeriod, 15);
  Set_FrameRate(40);
  EXPECT_EQ(Pacer.PacePeriod, 25);
  Set_FrameRate(80);
  EXPECT_EQ(Pacer.PacePeriod, 12);
}

TEST(Pacer, FastMachineStartsEveryFrameOnePeriodAfterTheLast) {
  Set_FrameRate(65);
  EXPECT_EQ(frame(4).waited, 0u);  // the first frame after a new schedule never waits
  EXPECT_EQ(frame(4).waited, 7u);  // then the rest of each period is waited out
  std::uint32_t start = Headless_Clock();
  for (int i = 0; i < 50; ++i) {
    const FrameResult r = frame(4);
    ASSERT_TRUE(r.due);
    EXPECT_EQ(Headless_Clock() - start, 15u) << "frame " << i;
    start = Headless_Clock();
  }
  // 1000 ms hold 66 or 67 frames of 15 ms: the game really runs at 66.7 frames a second.
}

TEST(Pacer, OneSlowFrameIsDrawnAtOnceAndTheNextWaitIsShortened) {
  Set_FrameRate(65);
  for (int i = 0; i < 5; ++i) frame(5);  // steady state: debt -15 after each wait
  const FrameResult slow = frame(22);     // one and a half periods
  EXPECT_TRUE(slow.due);
  EXPECT_EQ(slow.waited, 0u);
  const FrameResult next = frame(5);
  EXPECT_TRUE(next.due);
  EXPECT_EQ(next.waited, 15u - 5u - 7u);  // the 7 ms owed come off this wait
  EXPECT_EQ(frame(5).waited, 10u);        // and the schedule is back to normal
}

TEST(Pacer, FivePeriodFrameSkipsDrawingUntilTheDebtIsPaid) {
  Set_FrameRate(65);
  for (int i = 0; i < 5; ++i) frame(5);  // steady state: debt -15 after each wait
  EXPECT_FALSE(frame(75).due);           // debt -15 + 75 - 15 = 45: behind schedule
  int skipped = 0;
  while (!frame(5).due) {                // each frame pays back period - work = 10 ms
    ASSERT_LT(++skipped, 20);
  }
  EXPECT_EQ(skipped, 4);  // 45 -> 35, 25, 15, 5 not due; -5 due
  EXPECT_EQ(frame(5).waited, 0u);   // debt -5 + 5 = 0: due at once, debt -15
  EXPECT_EQ(frame(5).waited, 10u);  // back on schedule
}

TEST(Pacer, FifteenBitClockWrapIsCorrected) {
  clock_to(32760);
  Set_FrameRate(65);
  EXPECT_EQ(Pacer.PaceLast, 32760);
  Headless_AdvanceClock(13);  // the 15-bit tick now reads 5
  EXPECT_EQ(Tick(), 5);
  EXPECT_TRUE(Pacer_Due());
  EXPECT_EQ(Pacer.PaceDebt, 13 - 15);  // elapsed 13, not -32755
  EXPECT_EQ(Pacer.PaceLast, 5);
}

TEST(Pacer, FirstCallAfterANewRateIsDueUnlessAWholePeriodPassed) {
  Set_FrameRate(65);
  Headless_AdvanceClock(14);
  EXPECT_TRUE(Pacer_Due());
  Set_FrameRate(65);
  Headless_AdvanceClock(15);
  EXPECT_FALSE(Pacer_Due());
}
