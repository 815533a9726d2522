// The action machine: attacks from each button and their way back to idle, links in the
// rapid strings, substitutions, taps, dashes, crouching, jumps by side, the gauge charge,
// throws, and getting up.
#include "fight_fixture.h"

namespace {

using fightfix::FightTest;
using fightfix::kKeys;

class ActionTest : public FightTest {
 protected:
  static void hold_key(int vk, bool down) { Headless_SetKey(vk, down); }
  // Frames until fighter i is in `action`, at most `limit`; -1 when it never gets there.
  static int frames_until(int i, int action, int limit) {
    for (int k = 1; k <= limit; ++k) {
      step();
      if (fighters[i].action == action) return k;
    }
    return -1;
  }
};

TEST_F(ActionTest, EachButtonStartsItsAttackAndEndsBackInIdle) {
  const int buttons[4] = {kKeys[0].b1, kKeys[0].b2, kKeys[0].b3, kKeys[0].b4};
  const int attacks[4] = {180, 240, 210, 290};
  for (int b = 0; b < 4; ++b) {
    SCOPED_TRACE(attacks[b]);
    tap(buttons[b]);
    EXPECT_EQ(fighters[0].action, attacks[b]);
    EXPECT_EQ(frames_until(0, 22, 20), 11);  // 12 frames of attack, then the idles
    EXPECT_EQ(frames_until(0, 0, 20), 11);
    EXPECT_EQ(fighters[1].action, 0);  // the other side did nothing
  }
}

TEST_F(ActionTest, JabPressedDuringAJabWaitsForTheLinkWindow) {
  Fighter& f = fighters[0];
  f.act_win_last[180] = f.act_first[180] + 6;
  tap(kKeys[0].b1);
  step();
  tap(kKeys[0].b1);  // frame 3 of the jab: queued, not started
  EXPECT_EQ(f.action, 180);
  EXPECT_EQ(f.frame, f.act_first[180] + 3);
  EXPECT_EQ(f.queued, 1);
  steps(4);  // the window's first frame starts it again from the top
  EXPECT_EQ(f.action, 180);
  EXPECT_EQ(f.frame, f.act_first[180] + 1);
  EXPECT_EQ(f.rapid_a, 1);
}

TEST_F(ActionTest, MissingActionsFallBackToTheButtonsAttack) {
  Fighter& f = fighters[0];
  f.act_first[188] = 0;
  Players[0].attack3_pressed = 1;
  start_action(0, 188, 1);
  EXPECT_EQ(f.action, 210);
  Players[0] = PlayerInput{};
  start_action(0, 188, 1);  // no button pressed: stays as asked
  EXPECT_EQ(f.action, 188);
  f.stance = 23;
  start_action(0, 240, 1);
  EXPECT_EQ(f.action, 241);
  f.act_first[242] = 0;
  start_action(0, 290, 1);
  EXPECT_EQ(f.action, 290);
}

TEST_F(ActionTest, TapsSelectTheDirectionalAttacks) {
  hold_key(kKeys[0].right, true);  // a forward tap...
  step();
  hold_key(kKeys[0].right, false);
  tap(kKeys[0].b1);  // ...followed at once by button 1
  EXPECT_EQ(fighters[0].action, 181);
  EXPECT_EQ(fighters[0].in_special, 1);

  SetUp();
  hold_key(kKeys[0].right, true);  // walking in: the tap is long over
  steps(8);
  EXPECT_EQ(fighters[0].action, 1);
  tap(kKeys[0].b3);
  EXPECT_EQ(fighters[0].action, 210);
  hold_key(kKeys[0].right, false);
}

TEST_F(ActionTest, SecondTapDashesHoldingWalks) {
  hold_key(kKeys[0].right, true);
  steps(6);
  EXPECT_EQ(fighters[0].action, 1);
  hold_key(kKeys[0].right, false);
  step();
  tap(kKeys[0].right);
  EXPECT_EQ(fighters[0].action, 3);
  // The second player dashes away with its right key.
  tap(kKeys[1].right);
  step();
  tap(kKeys[1].right);
  EXPECT_EQ(fighters[1].action, 4);
}

TEST_F(ActionTest, CrouchingAndStandingUp) {
  Fighter& f = fighters[0];
  hold_key(kKeys[0].down, true);
  step();
  EXPECT_EQ(f.action, 30);
  EXPECT_EQ(frames_until(0, 32, 20), 11);
  EXPECT_EQ(f.crouching, 1);
  steps(30);  // the crouching idle loops
  EXPECT_EQ(f.action, 32);
  tap(kKeys[0].b1);  // a button gives the crouching attack at once
  EXPECT_EQ(f.action, 37);
  EXPECT_EQ(frames_until(0, 32, 20), 11);
  hold_key(kKeys[0].down, false);
  step();
  EXPECT_EQ(f.action, 31);
  EXPECT_EQ(f.crouching, 0);
}

TEST_F(ActionTest, DiagonalJumpStartsBySide) {
  hold_key(kKeys[0].up, true);
  hold_key(kKeys[0].right, true);  // player 1 jumps in
  hold_key(kKeys[1].up, true);
  hold_key(kKeys[1].right, true);  // player 2 jumps back with its right key
  step();
  EXPECT_EQ(fighters[0].action, 21);
  EXPECT_EQ(fighters[0].frame, fighters[0].act_first[21] + 1);
  EXPECT_EQ(fighters[0].jump_dir, 1);
  EXPECT_EQ(fighters[1].action, 21);
  EXPECT_EQ(fighters[1].frame, fighters[1].act_first[9] + 1);
  EXPECT_EQ(fighters[1].jump_dir, -1);
  Headless_ResetInput();

  SetUp();
  hold_key(kKeys[1].up, true);
  hold_key(kKeys[1].left, true);  // player 2 jumps in with its left key
  step();
  EXPECT_EQ(fighters[1].frame, fighters[1].act_first[21] + 1);
  Headless_ResetInput();
}

TEST_F(ActionTest, VerticalJumpRisesLandsAndRecovers) {
  Fighter& f = fighters[0];
  hold_key(kKeys[0].up, true);
  step();
  hold_key(kKeys[0].up, false);
  EXPECT_EQ(f.action, 9);
  float peak = 0;
  int airborne = 0;
  for (int k = 0; k < 35; ++k) {
    step();
    peak = f.height > peak ? f.height : peak;
    if (f.height > 0) ++airborne;
  }
  EXPECT_FLOAT_EQ(peak, 10.1f);
  EXPECT_EQ(airborne, 28);
  EXPECT_FLOAT_EQ(f.pos_x, -5.0f);  // straight up
  EXPECT_EQ(f.action, 9);
  EXPECT_EQ(f.frame, f.act_first[9] + 37);
  steps(2);
  EXPECT_EQ(is_neutral(0), 1);  // the landing is over two frames later
}

TEST_F(ActionTest, JumpAttackReturnsToTheJump) {
  Fighter& f = fighters[0];
  hold_key(kKeys[0].up, true);
  step();
  hold_key(kKeys[0].up, false);
  steps(5);
  tap(kKeys[0].b3);
  EXPECT_EQ(f.action, 219);
  const int count = f.jump_count;
  steps(12);
  EXPECT_EQ(f.action, 9);
  EXPECT_EQ(f.jump_flag, 0);  // one attack a jump
  EXPECT_EQ(f.frame, f.act_first[9] + f.jump_count);
  EXPECT_EQ(f.jump_count, count + 11);
}

TEST_F(ActionTest, GaugeChargeLoopsWhileHeldAndFillsEveryThirdFrame) {
  Fighter& f = fighters[0];
  const int first = f.act_first[599];
  f.act_last[599] = first + 60;
  hold_key(kKeys[0].b1, true);
  hold_key(kKeys[0].b3, true);
  step();
  EXPECT_EQ(f.action, 599);
  const int gain = f.gauge_gain;
  for (int k = 0; k < 90; ++k) {
    step();
    EXPECT_LE(f.frame, first + 42);
  }
  EXPECT_EQ(f.action, 599);
  EXPECT_EQ(f.gauge_gain - gain, 30);
  f.part_fx_on[3] = 1;
  hold_key(kKeys[0].b3, false);
  step();
  EXPECT_EQ(f.action, 22);
  EXPECT_EQ(f.part_fx_on[3], 0);
  hold_key(kKeys[0].b1, false);
}

TEST_F(ActionTest, SupersNeedAHundredUsablePointsSpecialsDoNot) {
  Fighter& f = fighters[0];  // character 0: super slot 1 is 221, special slot 13 is 220
  auto attempt = [&](int command, bool extra, int spend = 0) {
    start_action(0, 0, 1);
    f.in_special = f.super_mode = f.freeze_other = 0;
    f.gauge_spend = spend;
    Match.flash_state = 0;
    Players[0] = PlayerInput{};
    f.cmd_code = command;
    if (extra) Players[0].extra1_pressed = 1;
    else Players[0].attack1_pressed = 1;
    fighter_input(0);
    return f.action;
  };
  f.gauge = 99;
  EXPECT_NE(attempt(0, false), 221);
  EXPECT_EQ(f.gauge_spend, 0);
  EXPECT_EQ(attempt(3, false), 220);  // the special goes out all the same
  EXPECT_NE(attempt(3, true), 221);
  f.gauge = 100;
  EXPECT_EQ(attempt(0, false), 221);
  EXPECT_EQ(f.gauge_spend, 100);
  EXPECT_EQ(f.super_mode + f.freeze_other + f.in_special, 3);
  EXPECT_EQ(Match.flash_state, 1);
  EXPECT_EQ(attempt(3, true), 221);  // the extra button during command 3: super command 0
  f.gauge = 150;  // what is still to be drained does not count
  EXPECT_EQ(attempt(1, false, 40), 191);
  EXPECT_NE(attempt(1, false, 60), 191);
  Match.flash_state = 0;
}

TEST_F(ActionTest, ThrowsAndEscapes) {
  fighters[0].pos_x = -2.2f;
  fighters[1].pos_x = 2.2f;
  fightfix::draw();
  update_distance();
  tap(kKeys[0].b2);
  EXPECT_EQ(fighters[0].action, 80);
  EXPECT_EQ(fighters[1].action, 82);  // the thrown reaction of character 0's throw
  EXPECT_EQ(fighters[1].busy, 1);

  SetUp();
  fighters[0].pos_x = -2.2f;
  fighters[1].pos_x = 2.2f;
  fightfix::draw();
  update_distance();
  Headless_SetKey(kKeys[0].b4, true);
  Headless_SetKey(kKeys[1].b2, true);  // pressed on the same frame: escaped
  step();
  Headless_ResetInput();
  EXPECT_EQ(fighters[0].action, 117);
  EXPECT_EQ(fighters[1].action, 116);

  SetUp();  // out of reach: a plain attack
  tap(kKeys[0].b2);
  EXPECT_EQ(fighters[0].action, 240);
}

TEST_F(ActionTest, KnockedDownFighterGetsUpOnceLanded) {
  Fighter& f = fighters[0];
  int down_for[2] = {0, 0};
  for (int launched = 0; launched < 2; ++launched) {
    SetUp();
    start_action(0, 82, 1);
    f.busy = f.reacting = 1;
    f.air_timer = launched ? -2 : 1;  // a launched fighter lies longer
    down_for[launched] = frames_until(0, 56, 40);
    EXPECT_EQ(f.rise_flag, 1);
    EXPECT_EQ(f.busy + f.rising, 0);
    EXPECT_EQ(f.air_timer, 1);
  }
  EXPECT_EQ(down_for[0], 12);
  EXPECT_GT(down_for[1], down_for[0]);
  EXPECT_EQ(frames_until(0, 22, 20), 11);  // up, and back to idle
  step();
  EXPECT_EQ(f.rise_flag, 0);
}

TEST_F(ActionTest, ALiftedFollowUpLandsWhenItEnds) {
  Fighter& f = fighters[0];
  for (const int action : {194, 271, 192, 240}) {  // lifted, or a move linked on from one
    SCOPED_TRACE(action);
    SetUp();
    start_action(0, action, 1);
    f.in_special = 1;
    f.height = 4.0f;  // linked into while the head was high
    EXPECT_GT(frames_until(0, 22, 40), 0);
    EXPECT_EQ(f.height, 0.0f);  // standing on the floor again: it can walk
  }
}

TEST_F(ActionTest, BeatenFighterStaysDownAndEndsTheWait) {
  Fighter& f = fighters[0];
  start_action(0, 82, 1);
  f.busy = f.reacting = 1;
  f.life = 0;
  Match.ko_state = 1;
  Match.winner = 1;
  Match.ko_wait = 500;
  steps(8);
  EXPECT_EQ(Match.ko_wait, 70);  // a fallen fighter cuts the wait short
  steps(40);
  EXPECT_EQ(f.action, 82);  // held two frames before the end of its fall
  EXPECT_EQ(f.frame, f.act_last[82] - 2);
  EXPECT_EQ(Match.ko_state, 1);

  f.frame = f.act_last[82];  // a fall that does reach its end: down for good, wait over
  step();
  EXPECT_EQ(f.action, 50);
  EXPECT_EQ(Match.ko_state, 2);
  EXPECT_EQ(Match.after_ko, 1);
  steps(5);
  EXPECT_EQ(f.action, 50);
}

TEST_F(ActionTest, FighterFacingAwayTurnsAfterFourFrames) {
  Fighter& f = fighters[0];
  f.yaw = 270;
  steps(3);
  EXPECT_EQ(f.turning, 0);
  step();
  EXPECT_EQ(f.turning, 1);
  step();
  EXPECT_EQ(f.action, 7);
  EXPECT_EQ(f.yaw, 90);
}

}  // namespace
