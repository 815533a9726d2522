// The computer's frame: chance values, readiness, the post-processing of its controls, the
// level tuning and what it learns from the blows it takes.
#include "cpu/cpu_fixture.h"

namespace {

using CpuThinkTest = test::CpuFixture;

TEST_F(CpuThinkTest, TheTwoFightersNeverDrawTheSameValue) {
  for (int fc = 0; fc < 30000; fc += 7) {
    frame_count = fc;
    fighters[0].gauge = fc % 301;
    fighters[1].gauge = fighters[0].gauge;
    Match.clock = (fc * 3) % 6001;
    CpuThink(0, 0);
    CpuThink(1, 0);
    ASSERT_GE(Cpu.CpuRandom[0], 0);
    ASSERT_LE(Cpu.CpuRandom[0], 1332);
    ASSERT_GE(Cpu.CpuRandom[1], 1555);
    ASSERT_LE(Cpu.CpuRandom[1], 2887);
    ASSERT_EQ(Cpu.CpuRandom[1] - 1555, Cpu.CpuRandom[0]);
  }
}

TEST_F(CpuThinkTest, NothingIsDoneOnceTheRoundIsOver) {
  Match.ko_state = 1;
  Players[1].attack1_pressed = 1;  // left over from the frame before
  const int counter = Cpu.CpuCounter;
  CpuThink(1, 0);
  EXPECT_EQ(Players[1].attack1_pressed, 0);  // the record is still cleared
  EXPECT_EQ(Cpu.CpuCounter, counter);
  EXPECT_EQ(Cpu.CpuReady[1], 0);
}

// Routine 1 answers a plain strike from 13 to 16 with command 3, stance 23, button 1 (which
// it presses as button 2, the stance-23 button of the pair).
TEST_F(CpuThinkTest, TheFourthIdenticalCommandInARowIsHeldBack) {
  place(14.0f);
  fighters[0].action = 180;
  for (int i = 0; i < 4; ++i) {
    fighters[0].hit_live = 1;
    make_ready(1);
    CpuThink(1, 0);
    EXPECT_EQ(fighters[1].cmd_code, 3) << i;
    EXPECT_EQ(fighters[1].stance, 23) << i;
    EXPECT_EQ(pressed(2), i < 3 ? 1 : 0) << "press " << i + 1;
    EXPECT_EQ(holds_back(), 1) << i;  // still guarding
  }
}

TEST_F(CpuThinkTest, AtLowLifeNoSpecialMoveStartsAgainstAnIdleOpponent) {
  // Routine 1 at 10 to 13 in stance 0 with k5 = 3: command 3, button 1.
  for (const float sep : {11.0f, 12.0f}) {
    SetUp();
    place(sep);
    make_ready(1);
    set_k(1, 5, 3);
    CpuThink(1, 0);
    EXPECT_EQ(fighters[1].cmd_code, 3) << "with life to spare the special goes out";
    EXPECT_EQ(pressed(1), 1);

    // Below (220 - 70) / 2 = 75 the same choice is withdrawn.
    make_ready(1);
    set_k(1, 5, 3);
    fighters[1].life -= 15;  // k5 is kept: 15 is a multiple of 5
    ASSERT_LT(fighters[1].life, 75);
    CpuThink(1, 0);
    EXPECT_EQ(fighters[1].cmd_code, -1);
    EXPECT_EQ(pressed(1), 0);
    EXPECT_EQ(pressed(4), sep < 11.5f ? 1 : 0) << sep;
    EXPECT_EQ(Players[1].down, sep < 11.5f ? 1 : 0) << sep;

    // Against an opponent that is neither idle nor walking the special goes out.
    fighters[0].action = 182;
    make_ready(1);
    set_k(1, 5, 3);
    fighters[1].life -= 15;
    CpuThink(1, 0);
    EXPECT_EQ(fighters[1].cmd_code, 3) << sep;
    fighters[0].action = 22;
  }
}

TEST_F(CpuThinkTest, ReadinessCountsUpToTheLevelAndAnAttackResetsIt) {
  Cpu.CpuLevel[1] = 3;
  place(19.0f);  // nothing to do at this distance with an odd draw
  for (int i = 1; i <= 5; ++i) {
    frame_count = 1;  // 1555 + 1 + 50 = 1606, mod 200 is not above 100: no walk in
    CpuThink(1, 0);
    EXPECT_EQ(Cpu.CpuReady[1], std::min(i, 3));
  }
  place(7.0f);  // close, ready: the close menu presses a button or starts a move
  set_k(1, 5, 0);
  CpuThink(1, 0);
  EXPECT_EQ(pressed(2), 1);
  EXPECT_EQ(Cpu.CpuReady[1], 0);
}

TEST_F(CpuThinkTest, LightPlainBlowsSpeedItUpAndHeavySpecialOnesSlowItDown) {
  Cpu.CpuLevel[1] = Cpu.CpuBaseLevel[1] = 70;
  fighters[0].in_special = 0;
  for (int i = 0; i < 50; ++i) CpuAdjustLevel(1, 3, 0);
  EXPECT_EQ(Cpu.CpuLevel[1], 40);  // base - 30
  fighters[0].in_special = 1;
  for (int i = 0; i < 10; ++i) CpuAdjustLevel(1, 4, 0);
  EXPECT_EQ(Cpu.CpuLevel[1], 50);
  for (int i = 0; i < 50; ++i) CpuAdjustLevel(1, 12, 0);
  EXPECT_EQ(Cpu.CpuLevel[1], 70);  // never above the base
  fighters[0].in_special = 0;
  CpuAdjustLevel(1, 12, 0);  // a heavy plain blow: faster
  EXPECT_EQ(Cpu.CpuLevel[1], 69);
  CpuAdjustLevel(1, 6, 0);  // a middling plain blow: unchanged
  EXPECT_EQ(Cpu.CpuLevel[1], 69);

  // A strong computer never gets faster than 20.
  Cpu.CpuLevel[1] = Cpu.CpuBaseLevel[1] = 40;
  for (int i = 0; i < 50; ++i) CpuAdjustLevel(1, 1, 0);
  EXPECT_EQ(Cpu.CpuLevel[1], 20);
}

TEST_F(CpuThinkTest, ABlowCutsReadiness) {
  Cpu.CpuLevel[1] = Cpu.CpuBaseLevel[1] = 70;
  Cpu.CpuReady[1] = 41;
  CpuAdjustLevel(1, 5, 0);
  EXPECT_EQ(Cpu.CpuReady[1], 20);  // halved
  fighters[0].in_special = 1;
  fighters[0].hit_height = 1;
  Cpu.CpuReady[1] = 41;
  CpuAdjustLevel(1, 5, 0);
  EXPECT_EQ(Cpu.CpuReady[1], 0);  // a special's high blow
  fighters[0].in_special = 0;
  fighters[1].action = 219;  // hit out of a jump attack: from the level, then halved
  Cpu.CpuReady[1] = 0;
  CpuAdjustLevel(1, 5, 0);
  EXPECT_EQ(Cpu.CpuReady[1], 35);
}

TEST_F(CpuThinkTest, AMoveThatHitLatelyIsKnown) {
  Cpu.CpuLevel[1] = Cpu.CpuBaseLevel[1] = 50;  // no miss chance at this level
  CpuRememberHit(1, 300);
  CpuRememberHit(1, 200);
  CpuRememberHit(1, 100);  // newest: 100, then 200, then 300
  Cpu.CpuRandom[1] = 1555 + 2;  // mod 10 = 7 (1557)
  EXPECT_EQ(CpuKnowsMove(1, 100), 1);
  EXPECT_EQ(CpuKnowsMove(1, 200), 1);
  EXPECT_EQ(CpuKnowsMove(1, 300), 1);
  EXPECT_EQ(CpuKnowsMove(1, 400), 0);
  Cpu.CpuRandom[1] = 1555 + 0;  // mod 10 = 5
  EXPECT_EQ(CpuKnowsMove(1, 200), 1);
  EXPECT_EQ(CpuKnowsMove(1, 300), 0);
  Cpu.CpuRandom[1] = 1555 + 7;  // mod 10 = 2
  EXPECT_EQ(CpuKnowsMove(1, 100), 1);
  EXPECT_EQ(CpuKnowsMove(1, 200), 0);

  // A slow computer forgets: (200 + 3 - 10) / 10 = 19 > CpuRandom mod 50.
  Cpu.CpuLevel[1] = Cpu.CpuBaseLevel[1] = 200;
  Cpu.CpuRandom[1] = 1555 + 5;  // 1560 mod 50 = 10
  EXPECT_EQ(CpuKnowsMove(1, 100), 0);
  Cpu.CpuRandom[1] = 1555 + 25;  // 1580 mod 50 = 30
  EXPECT_EQ(CpuKnowsMove(1, 100), 1);
}

TEST_F(CpuThinkTest, AnInterruptedCommandIsAvoidedAfterwards) {
  // Hit during a plain attack chosen with command 3 in stance 23.
  CpuMind.last_cmd[1] = 3;
  CpuMind.last_stance[1] = 23;
  fighters[1].hit_live = 1;
  CpuRememberInterrupted(1);
  EXPECT_EQ(fighters[1].hit_live, 0);
  EXPECT_EQ(CpuMind.interrupted_cmd[1][0], 3);
  // Not remembered inside a special move.
  CpuMind.last_cmd[1] = 5;
  fighters[1].hit_live = 1;
  fighters[1].in_special = 1;
  CpuRememberInterrupted(1);
  EXPECT_EQ(CpuMind.interrupted_cmd[1][0], 3);
  fighters[1].in_special = 0;
  fighters[1].hit_live = 0;

  // The same strike from 13 to 16 is now released unless CpuRandom mod 10 is below 2.
  place(14.0f);
  fighters[0].action = 180;
  int released = 0, kept = 0;
  for (int fc = 0; fc < 10; ++fc) {
    frame_count = fc;
    fighters[0].hit_live = 1;
    make_ready(1);
    CpuMind.cmd_memory[1][0] = CPU_EMPTY;  // keep the repeat guard out of it
    CpuThink(1, 0);
    const int r = random_of(1) % 10;
    EXPECT_EQ(pressed(2), r < 2 ? 1 : 0) << r;
    (pressed(2) ? kept : released)++;
  }
  EXPECT_EQ(released, 8);
  EXPECT_EQ(kept, 2);
}

}  // namespace
