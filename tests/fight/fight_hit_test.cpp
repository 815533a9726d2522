// Blows: combo scaling, guards by class and direction, guard breaks, counter hits, the strike
// test's arming and geometry, and the last computer opponent's bonus.
#include <gtest/gtest.h>

#include <cstring>

#include "cpu/cpu.h"
#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "render/render_effect.h"

namespace {

constexpr int kFist = 7;  // the striking part in these tests

// Two fighters facing each other in the middle of a round, every action ten frames long.
class Blow : public ::testing::Test {
 protected:
  void SetUp() override {
    Match = MatchState{};
    Match.human[0] = Match.human[1] = 1;
    Match.intro = -1;
    Match.character[0] = 0;
    Match.character[1] = 1;
    std::memset(Players, 0, sizeof Players);
    std::memset(&Effects, 0, sizeof Effects);
    std::memset(&Hits, 0, sizeof Hits);
    frame_count = 1;
    for (int i = 0; i < 2; ++i) {
      Fighter& f = fighters[i];
      for (int a = 0; a < MAX_ACTIONS; ++a) {
        f.act_first[a] = a * 10 + 1;
        f.act_last[a] = a * 10 + 9;
      }
      reset_round_fighter(i);
    }
    Match.intro = -1;
  }

  static void reset_round_fighter(int i) {
    Fighter& f = fighters[i];
    std::memset(f.frame_part, 0, sizeof f.frame_part);
    std::memset(f.frame_hit, 0, sizeof f.frame_hit);
    for (int p = 0; p < BODY_PARTS; ++p) place_box(i, p, 100.0f * (i + 1), 100.0f, 0.0f, 0.1f);
    f.life = 85;
    f.damage = 0;
    f.combo = 0;
    f.action = 0;
    f.frame = 1;
    f.yaw = f.face_yaw = i == 0 ? 90 : 270;
    f.first_part = 2;
    f.last_part = 21;
    f.hit_new = f.hit_power = f.hit_kind = f.hit_class = f.hit_height = 0;
    f.crouching = f.busy = f.rising = f.reacting = f.guarding = f.super_mode = 0;
    f.floored = f.in_special = f.special_cam = f.protected_flag = 0;
  }

  // Puts the defender in `action` at its first frame.
  static void stand_in(int fighter, int action) {
    fighters[fighter].action = action;
    fighters[fighter].frame = fighters[fighter].act_first[action];
    fighters[fighter].crouching = action == 35 || action == 32;
  }

  // A box of half size h around (x, y, z) for part p of fighter f.
  static void place_box(int f, int p, float x, float y, float z, float h) {
    float(*b)[BODY_PARTS] = fighters[f].part_box;
    b[BOX_X_MIN][p] = x - h, b[BOX_X_MAX][p] = x + h;
    b[BOX_Y_MIN][p] = y - h, b[BOX_Y_MAX][p] = y + h;
    b[BOX_Z_MIN][p] = z - h, b[BOX_Z_MAX][p] = z + h;
  }

  // Fighter 0 throws a strike of `code` on its current frame with its fist on fighter 1's
  // chest.
  static void strike_frame(int code, int part = kFist) {
    Fighter& a = fighters[0];
    a.frame_part[a.frame] = static_cast<std::int16_t>(part);
    a.frame_hit[a.frame] = static_cast<std::int16_t>(code);
    place_box(0, part, 0.0f, 0.0f, 0.0f, 0.3f);
    place_box(1, 3, 0.5f, 0.0f, 0.0f, 0.5f);  // chest within reach
  }
};

TEST_F(Blow, ComboDamageScalesFromTheFourthHit) {
  struct Case {
    int combo_before, damage, dealt;
  };
  const Case cases[] = {
      {2, 12, 12},  // third hit: full
      {3, 12, 8},   // fourth: two thirds
      {5, 12, 8},
      {6, 12, 6},   // seventh on: half
      {9, 7, 3},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.combo_before);
    SetUp();
    fighters[0].combo = c.combo_before;
    fighters[1].reacting = 1;  // still reeling from the combo's last blow
    apply_blow(0, 1, 1, c.damage, 0);
    EXPECT_EQ(fighters[1].damage, c.dealt);
    EXPECT_EQ(fighters[0].combo, c.combo_before + 1);
  }
  SetUp();  // a fighter that has recovered takes a first hit again
  fighters[0].combo = 6;
  apply_blow(0, 1, 1, 12, 0);
  EXPECT_EQ(fighters[1].damage, 12);
  EXPECT_EQ(fighters[0].combo, 1);
}

TEST_F(Blow, StandingGuardHoldsMidAndHighCrouchingGuardHoldsMidAndLow) {
  struct Case {
    int guard_action, guard_class;
    bool guarded;
  };
  const Case cases[] = {
      {8, 1, true},  {8, 2, true},  {8, 3, false},   // standing guard
      {35, 1, true}, {35, 2, false}, {35, 3, true},  // crouching guard
      {2, 2, true},                                  // walking back guards high
      {0, 1, false},                                 // a human standing idle does not
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.guard_action << " class " << c.guard_class);
    SetUp();
    stand_in(1, c.guard_action);
    apply_blow(0, 1, c.guard_class, 7, 0);
    EXPECT_EQ(fighters[1].damage == 0, c.guarded);
    EXPECT_EQ(fighters[0].hit_new == -1, c.guarded);
    if (c.guarded) {
      EXPECT_TRUE(fighters[1].action == 8 || fighters[1].action == 35);
    }
  }
}

TEST_F(Blow, AGuardBreaksAtFiftyAndNothingIsGuardedFromBehind) {
  stand_in(1, 8);
  apply_blow(0, 1, 1, 49, 0);
  EXPECT_EQ(fighters[1].damage, 0);
  EXPECT_EQ(fighters[1].action, 8);

  SetUp();
  stand_in(1, 8);
  apply_blow(0, 1, 1, 50, 0);
  EXPECT_EQ(fighters[1].action, 156);
  EXPECT_EQ(fighters[1].damage, 50);

  SetUp();
  stand_in(1, 8);
  fighters[1].yaw = (fighters[1].face_yaw + 121) % 360;  // turned away
  apply_blow(0, 1, 1, 7, 0);
  EXPECT_EQ(fighters[1].damage, 7);

  SetUp();
  Match.human[1] = 0;  // the computer guards from its idle, but not from behind either
  Cpu.CpuBaseLevel[1] = 40;
  apply_blow(0, 1, 2, 7, 0);
  EXPECT_EQ(fighters[1].damage, 0);
  fighters[1].action = 0;
  fighters[1].yaw = (fighters[1].face_yaw + 180) % 360;
  apply_blow(0, 1, 2, 7, 0);
  EXPECT_EQ(fighters[1].damage, 7);
  Match.human[1] = 1;
}

TEST_F(Blow, CatchingAFighterWithItsStrikeOutAddsAThirdAndCancelsIt) {
  fighters[1].hit_new = 1;
  fighters[1].hit_power = 9;
  apply_blow(0, 1, 1, 5, 0);
  EXPECT_EQ(fighters[1].damage, 8);
  EXPECT_EQ(fighters[1].hit_new, 0);
  EXPECT_EQ(Match.reversal, 1);      // announced for the fighter on the left
  EXPECT_EQ(Match.first_strike, 1);  // and it was the round's first blow

  SetUp();  // a super move gets no counter bonus
  fighters[1].hit_new = 1;
  fighters[1].hit_power = 9;
  fighters[0].super_mode = 1;
  fighters[0].action = 500;
  apply_blow(0, 1, 1, 8, 0);
  EXPECT_EQ(fighters[1].damage, 6);  // three quarters, nothing added
  EXPECT_EQ(fighters[1].hit_new, 1);
}

TEST_F(Blow, TheBlowThatEmptiesTheLifeBarStopsTheFightLonger) {
  fighters[1].damage = 80;
  apply_blow(0, 1, 1, 3, 0);
  EXPECT_EQ(Match.hit_stop, 2 + 3 / 4);
  EXPECT_EQ(fighters[1].action, 150);

  apply_blow(0, 1, 1, 4, 0);  // 87 of 85: beaten
  EXPECT_EQ(Match.hit_stop, 30);
  EXPECT_EQ(fighters[1].action, 170);
  EXPECT_EQ(fighters[1].busy, 1);
}

TEST_F(Blow, ThrowsAndHoldsHurtWithoutBreakingThePair) {
  // A throw's slam needs no contact and keeps the thrown fighter's motion playing.
  stand_in(0, 80);
  stand_in(1, 82);
  fighters[1].busy = fighters[1].reacting = 1;
  fighters[1].frame += 5;
  const int thrown_frame = fighters[1].frame;
  strike_frame(431, 6);
  place_box(1, 3, 40.0f, 0.0f, 0.0f, 0.5f);  // nowhere near the forearm
  fighter_strike(0);
  EXPECT_EQ(fighters[1].damage, 15);
  EXPECT_EQ(fighters[1].action, 82);
  EXPECT_EQ(fighters[1].frame, thrown_frame);
  EXPECT_EQ(Hits.landed[0], 1);
  EXPECT_EQ(Hits.landed_action[0], 80);

  // Beaten in the throw: the motion still plays out instead of the beaten fall.
  fighters[1].damage = 80;
  apply_blow(0, 1, GUARD_ALWAYS, 15, 0);
  EXPECT_EQ(fighters[1].action, 82);
  EXPECT_EQ(fighters[1].busy, 1);
  EXPECT_EQ(Match.hit_stop, 30);

  // A special move that takes hold deals its blow as it seizes the defender.
  SetUp();
  stand_in(0, 197);
  apply_blow(0, 1, GUARD_MID, 10, 0);
  EXPECT_EQ(fighters[0].action, 340);
  EXPECT_EQ(fighters[1].action, 410);
  EXPECT_EQ(fighters[1].damage, 10);
  EXPECT_EQ(Hits.landed_action[0], 197);
}

TEST_F(Blow, AHeldStrikeConnectsOnceAndTheNextStrikeConnectsAgain) {
  strike_frame(1);  // a jab: 3 points
  for (int i = 0; i < 4; ++i) {  // the frame is held (hit-stop, a held animation)
    fighter_strike(0);
  }
  fighters[0].frame += 1;  // the same part over the next frame: the same strike
  strike_frame(1);
  fighter_strike(0);
  EXPECT_EQ(fighters[1].damage, 3);
  EXPECT_EQ(fighters[0].combo, 1);

  fighters[0].frame += 1;  // a gap, then a new strike
  fighter_strike(0);
  fighters[0].frame += 1;
  strike_frame(1);
  fighter_strike(0);
  EXPECT_EQ(fighters[1].damage, 6);
}

TEST_F(Blow, AStrikeMissesWhatItDoesNotReach) {
  strike_frame(4);
  place_box(1, 3, 3.0f, 0.0f, 0.0f, 0.5f);  // 3 units off: beyond the widened box
  fighter_strike(0);
  EXPECT_EQ(fighters[1].damage, 0);
  EXPECT_EQ(fighters[0].hit_new, 1);  // still armed for the rest of its frames

  fighters[0].frame += 1;  // the y widening reaches 1.5 further than x
  strike_frame(4);
  place_box(1, 3, 0.0f, 1.9f, 0.0f, 0.5f);
  fighter_strike(0);
  EXPECT_EQ(fighters[1].damage, 5);
}

TEST_F(Blow, TheLastComputerOpponentStrikesHalfAgainAsHard) {
  Match.stage_count = 10;
  Match.human[0] = 0;
  strike_frame(10);  // a heavy blow: 10 points
  fighter_strike(0);
  EXPECT_EQ(fighters[0].hit_power, 15);
  EXPECT_EQ(fighters[1].damage, 15);

  SetUp();
  Match.stage_count = 10;  // a human attacker gets no bonus
  strike_frame(10);
  fighter_strike(0);
  EXPECT_EQ(fighters[1].damage, 10);
}

}  // namespace
