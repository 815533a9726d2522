// The character routines: what the computer does by distance and situation.
#include "cpu/cpu_fixture.h"
#include "fight/fight_moves.h"

namespace {

using CpuRoutineTest = test::CpuFixture;

TEST_F(CpuRoutineTest, FarAwayItChargesAgainstAPlayerAndWalksInOtherwise) {
  place(30.0f);
  fighters[1].gauge = 150;
  Match.clock_left = 1600;
  frame_count = 0;  // 1555 + 150 = 1705: mod 100 is 5
  CpuThink(1, 0);
  EXPECT_EQ(fighters[1].action, 599);
  const PlayerInput& in = Players[1];
  EXPECT_TRUE(in.attack1 && in.attack2 && in.attack3 && in.attack4);

  SetUp();
  place(30.0f);
  fighters[1].gauge = 150;
  Match.clock_left = 1600;
  Match.human[0] = 0;  // the other side is the computer too: walk in
  CpuThink(1, 0);
  EXPECT_EQ(fighters[1].action, 1);
  EXPECT_EQ(holds_forward(), 1);
  EXPECT_EQ(Cpu.CpuReady[1], 1);  // walking in resets readiness, then the frame counts

  SetUp();
  place(30.0f);
  fighters[1].gauge = 200;  // full enough: stands
  Match.clock_left = 1600;
  frame_count = 50;  // 1555 + 50 + 200 = 1805: mod 100 is 5
  CpuThink(1, 0);
  EXPECT_EQ(fighters[1].action, 22);

  SetUp();
  place(30.0f);
  fighters[1].gauge = 150;
  Match.clock_left = 1500;  // too little time left to charge
  CpuThink(1, 0);
  EXPECT_EQ(fighters[1].action, 1);
}

TEST_F(CpuRoutineTest, CloseAndReadyItPicksFromTheCloseMenu) {
  place(7.0f);
  make_ready(1);
  set_k(1, 5, 3);
  CpuThink(1, 0);
  EXPECT_EQ(fighters[1].action, 181);

  SetUp();
  place(7.0f);
  make_ready(1);
  set_k(1, 5, 4);  // command 1, stance 0, button 3
  fighters[1].stance = 23;
  CpuThink(1, 0);
  EXPECT_EQ(fighters[1].cmd_code, 1);
  EXPECT_EQ(fighters[1].stance, 0);
  EXPECT_EQ(pressed(3), 1);

  SetUp();
  place(9.0f);  // a jab becomes a kick from 8.5
  make_ready(1);
  set_k(1, 5, 0);
  CpuThink(1, 0);
  EXPECT_EQ(pressed(2), 0);
  EXPECT_EQ(pressed(4), 1);
}

TEST_F(CpuRoutineTest, NotReadyItWalksBackBelowNinePointTwo) {
  place(9.0f);
  CpuThink(1, 0);
  EXPECT_EQ(holds_back(), 1);
  EXPECT_EQ(holds_forward(), 0);

  SetUp();
  place(9.5f);
  CpuThink(1, 0);
  EXPECT_EQ(holds_back(), 0);

  SetUp();
  place(9.5f);
  fighters[1].action = 2;  // already backing off: keeps going
  fighters[1].frame = fighters[1].act_first[2] + 3;
  CpuThink(1, 0);
  EXPECT_EQ(holds_back(), 1);
}

TEST_F(CpuRoutineTest, EveryRoutineHoldsBackWhenTheOpponentStartsAnAction) {
  for (int c = 0; c < 15; ++c) {
    for (const int o_action : {180, 597}) {  // a strike, and a dodge that would be answered
      SetUp();
      Match.character[1] = c;
      place(15.0f);
      fighters[0].action = o_action;
      fighters[0].hit_live = 1;
      CpuThink(1, c);
      EXPECT_EQ(holds_back(), 1) << "character " << c << " against " << o_action;
      EXPECT_EQ(Players[1].down, 0) << c;
    }
    // A low strike: down as well, and nothing pressed.
    SetUp();
    Match.character[1] = c;
    place(12.0f);
    make_ready(1);
    fighters[0].action = 38;
    fighters[0].hit_live = 1;
    CpuThink(1, c);
    EXPECT_EQ(holds_back(), 1) << c;
    EXPECT_EQ(Players[1].down, 1) << c;
    EXPECT_EQ(cpu_any_button(1), 0) << c;
  }
  // Without the live strike the routine does something else at 15.
  SetUp();
  place(15.0f);
  fighters[0].action = 180;
  CpuThink(1, 0);
  EXPECT_EQ(holds_back(), 0);
}

TEST_F(CpuRoutineTest, EachCharacterJugglesWithItsRoutinesMove) {
  struct Juggle {
    int cmd, stance, button;
  };
  const Juggle expected[15] = {
      {4, 23, 3},  // 0: routine 1
      {4, 0, 1},   // 1: routine 2
      {4, 0, 1},   // 2: routine 3
      {4, 0, 3},   // 3: routine 4
      {4, 23, 3},  // 4: routine 5
      {4, 23, 1},  // 5: routine 6
      {4, 0, 3},   // 6: routine 7
      {4, 23, 1},  // 7: routine 8
      {4, 0, 3},   // 8: routine 9
      {4, 23, 1},  // 9: routine 10
      {4, 0, 3},   // 10: as 3
      {4, 23, 3},  // 11: as 0
      {4, 23, 1},  // 12: as 7
      {4, 23, 1},  // 13: as 9
      {4, 23, 3},  // 14: as 0
  };
  for (int c = 0; c < 15; ++c) {
    SetUp();
    Match.character[1] = c;
    place(8.0f);
    make_ready(1);
    fighters[0].reacting = 1;  // straight up in the air
    fighters[0].jump_dir = 0;
    CpuThink(1, c);
    EXPECT_EQ(fighters[1].cmd_code, expected[c].cmd) << "character " << c;
    EXPECT_EQ(fighters[1].stance, expected[c].stance) << "character " << c;
    EXPECT_EQ(pressed(pair_button(expected[c].button, expected[c].stance)), 1) << c;
  }
  // Routine 1 meets a forward jump only beyond 10 except on the last stage.
  SetUp();
  place(12.0f);
  make_ready(1);
  fighters[0].reacting = 1;
  fighters[0].jump_dir = 1;
  CpuThink(1, 0);
  EXPECT_EQ(fighters[1].cmd_code, 5);
  SetUp();
  Match.stage_count = 10;
  place(12.0f);
  make_ready(1);
  fighters[0].reacting = 1;
  fighters[0].jump_dir = 1;
  CpuThink(1, 0);
  EXPECT_EQ(fighters[1].cmd_code, 4);
  EXPECT_EQ(fighters[1].stance, 0);
  EXPECT_EQ(pressed(1), 1);
}

TEST_F(CpuRoutineTest, ACrouchingOpponentIsSweptOrKickedLow) {
  for (const int fc : {0, 1}) {  // an even and an odd draw
    SetUp();
    frame_count = fc;
    place(11.0f);
    make_ready(1);
    fighters[0].crouching = 1;
    fighters[0].action = 32;
    CpuThink(1, 0);
    if (random_of(1) % 2 == 0) {
      EXPECT_EQ(Players[1].down, 1);
      EXPECT_EQ(pressed(4), 1);
    } else {
      EXPECT_EQ(fighters[1].action, 211);
    }
  }
}

TEST_F(CpuRoutineTest, InsideASpecialItLinksTheFollowUpItHasGaugeFor) {
  // Character 0's move 305 links on to 306 (slot 24), 307 (slot 20) and 266 (slot 4).
  Fighter& f = fighters[1];
  f.action = 305;
  f.frame = f.act_first[305] + 3;
  f.frame_part[f.frame] = 1;
  f.in_special = 1;
  f.gauge = 150;
  build_move_tables();
  place(8.0f);
  // An odd life + CpuRandom searches from the last link down: slot 4, a super command.
  frame_count = 0;
  f.life = (random_of(1) % 2 == 0) ? 85 : 84;
  CpuThink(1, 0);
  EXPECT_EQ(f.cmd_code, 1);
  EXPECT_EQ(f.stance, 23);
  EXPECT_EQ(pressed(2), 1);  // the fight reads slot 4: command 1 with the pair's second button

  // Without a full bar the super slot reads as nothing and no follow-up is chosen.
  SetUp();
  f.action = 305;
  f.frame = f.act_first[305] + 3;
  f.frame_part[f.frame] = 1;
  f.in_special = 1;
  f.gauge = 60;
  place(8.0f);
  frame_count = 90;
  f.life = (random_of(1) % 2 == 0) ? 85 : 84;
  CpuThink(1, 0);
  EXPECT_EQ(f.cmd_code, -1);
}

TEST_F(CpuRoutineTest, AProjectileInFlightIsDodged) {
  place(8.0f);
  ProjectileSlot& s = Effects.Projectile[2];
  s.active = 1;
  s.owner = 0;
  s.x = fighters[1].pos_x - 10.0f;
  frame_count = 2;  // 1555 + 2 + 50 = 1607: mod 3 is 2, the side tap
  CpuThink(1, 0);
  EXPECT_EQ(pressed(3) && pressed(4), 1);
  EXPECT_EQ(Players[1].left_tap, 1);  // fighter 0 stands on the left
  EXPECT_EQ(Cpu.CpuReady[1], 0);      // ready at once, then the buttons count as an attack

  SetUp();
  place(8.0f);
  Effects.Projectile[2].active = 1;
  Effects.Projectile[2].owner = 1;  // its own: no dodge
  Effects.Projectile[2].x = fighters[1].pos_x - 10.0f;
  CpuThink(1, 0);
  EXPECT_EQ(pressed(3), 0);
}

}  // namespace
