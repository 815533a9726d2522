// Commands and links: the direction history against the command rows, reversed controls,
// the link window, the rapid strings' queue and the special moves' fallbacks.
#include "fight/fight_command_table.h"
#include "fight_fixture.h"

namespace {

using fightfix::FightTest;

// Holds a direction for one frame of fighter i, named by its role (forward = toward the
// opponent), and runs the recogniser.
enum Dir { N, B, F, D, DB, DF, UP };
void hold(int i, Dir d) {
  PlayerInput& in = Players[i];
  const bool right_is_forward = i == Match.side_a;
  const bool fwd = d == F || d == DF, back = d == B || d == DB;
  in.right = (right_is_forward ? fwd : back) ? 1 : 0;
  in.left = (right_is_forward ? back : fwd) ? 1 : 0;
  in.down = (d == D || d == DB || d == DF) ? 1 : 0;
  in.up = d == UP ? 1 : 0;
  update_commands(i);
}
void enter(int i, std::initializer_list<Dir> dirs) {
  for (Dir d : dirs) hold(i, d);
}

using CommandTest = FightTest;

TEST_F(CommandTest, RowsInPriorityOrder) {
  struct Case {
    std::initializer_list<Dir> input;
    int command;
  };
  const Case cases[] = {
      {{D, DF}, 3},                  // quarter circle forward
      {{DF, F}, 3},
      {{D, DB}, 5},                  // quarter circle back
      {{F, D, DF}, 4},               // dragon punch motion
      {{B, D, DB}, 7},
      {{B, F, B}, 2},
      {{N, B, F}, 6},
      {{D, DF, D, DF}, 0},           // doubled quarter circle beats the single one
      {{D, DB, D, DB}, 1},
  };
  for (const Case& c : cases) {
    clear_commands(0);
    enter(0, c.input);
    EXPECT_EQ(fighters[0].cmd_code, c.command) << "case giving " << c.command;
  }
  clear_commands(0);
  enter(0, {F, F, B, B});
  EXPECT_EQ(fighters[0].cmd_code, -1);
}

TEST_F(CommandTest, OtherDirectionsInBetweenAreSkippedWithinTwentyFrames) {
  clear_commands(0);
  enter(0, {D, N, B, N, DF});  // a back tap in the middle of a quarter circle
  EXPECT_EQ(fighters[0].cmd_code, 3);
  clear_commands(0);
  hold(0, D);
  for (int k = 0; k < 18; ++k) hold(0, N);
  hold(0, DF);  // the down is 19 frames old: still inside the history
  EXPECT_EQ(fighters[0].cmd_code, 3);
  clear_commands(0);
  hold(0, D);
  for (int k = 0; k < 19; ++k) hold(0, N);
  hold(0, DF);  // now 20 frames old: gone
  EXPECT_EQ(fighters[0].cmd_code, -1);
}

TEST_F(CommandTest, UpHeldReadsAsNeutral) {
  clear_commands(0);
  Players[0].up = 1;
  Players[0].down = 1;
  Players[0].right = 1;
  update_commands(0);
  EXPECT_EQ(fighters[0].cmd_hist[fighters[0].cmd_pos], CODE_NEUTRAL);
  enter(0, {UP, UP});
  Players[0].down = 1;  // down and up together: still neutral
  Players[0].up = 1;
  update_commands(0);
  EXPECT_EQ(fighters[0].cmd_code, -1);
}

TEST_F(CommandTest, CodesFollowTheSides) {
  // Player 2 stands on the right: its left key is forward.
  clear_commands(1);
  Players[1].left = 1;
  update_commands(1);
  EXPECT_EQ(fighters[1].cmd_hist[fighters[1].cmd_pos], CODE_FORWARD);
  // Both keys held: right decides, and for this fighter right is back.
  Players[1].right = 1;
  Players[1].down = 1;
  update_commands(1);
  EXPECT_EQ(fighters[1].cmd_hist[fighters[1].cmd_pos], CODE_DOWN_BACK);
  // After the fighters cross, player 1's left key points at the opponent.
  Match.side_a = 1;
  Match.side_b = 0;
  Players[0] = PlayerInput{};
  Players[0].left = 1;
  update_commands(0);
  EXPECT_EQ(fighters[0].cmd_hist[fighters[0].cmd_pos], CODE_FORWARD);
}

TEST_F(CommandTest, ReversedControlsMirrorForThreeHundredFrames) {
  Match.reverse[0] = 1;
  clear_commands(0);
  int mirrored = 0;
  for (int k = 0; k < 320; ++k) {
    Players[0] = PlayerInput{};
    Players[0].right = 1;  // forward for player 1 ... unless reversed
    Players[0].right_tap = 4;
    update_commands(0);
    if (fighters[0].cmd_hist[fighters[0].cmd_pos] == CODE_BACK) {
      ++mirrored;
      EXPECT_EQ(Players[0].left_tap, 4);  // the tap counters change places too
    }
  }
  EXPECT_EQ(mirrored, 299);
  EXPECT_EQ(Match.reverse[0], 0);
  EXPECT_EQ(fighters[0].cmd_hist[fighters[0].cmd_pos], CODE_FORWARD);
}

TEST_F(CommandTest, BeatenFighterLosesItsInputWhileTheRoundEnds) {
  Match.ko_state = 1;
  Match.winner = 1;
  Players[0].right = Players[0].attack1_pressed = Players[1].attack1_pressed = 1;
  update_commands(0);
  update_commands(1);
  EXPECT_EQ(Players[0].right + Players[0].attack1_pressed, 0);
  EXPECT_EQ(Players[1].attack1_pressed, 1);
}

TEST_F(CommandTest, SlotsFromCommandAndButton) {
  EXPECT_EQ(command_slot(0, 1), 1);
  EXPECT_EQ(command_slot(0, 2), 0);
  EXPECT_EQ(command_slot(3, 3), 15);
  EXPECT_EQ(command_slot(3, 4), 14);
  EXPECT_EQ(command_slot(7, 3), 31);
}

// ---- links ---------------------------------------------------------------------------------
using LinkTest = FightTest;

TEST_F(LinkTest, WindowClosesOneFramePastItsLastFrame) {
  Fighter& f = fighters[0];  // character 0: 191 links to 273 on slot 0
  start_action(0, 191, 1);
  f.act_win_last[191] = f.act_first[191] + 6;
  f.frame = f.act_win_last[191];
  EXPECT_EQ(find_link(0, 0), 273);
  EXPECT_EQ(find_link(0, 2), 0);  // no such link
  f.frame = f.act_win_last[191] + 1;
  EXPECT_EQ(find_link(0, 0), 0);
}

TEST_F(LinkTest, QueuedLinkWaitsForTheWindow) {
  Fighter& f = fighters[0];  // character 0: 305 queues 306 on slot 24
  start_action(0, 305, 1);
  f.in_special = 1;
  f.act_win_last[305] = f.act_first[305] + 5;
  EXPECT_EQ(find_link(0, 24), 0);
  EXPECT_EQ(f.chained, 1);
  EXPECT_EQ(f.queued, 1);
  EXPECT_EQ(f.queued_action, 306);
  for (int k = 0; k < 4; ++k) fighter_animate(0);
  EXPECT_EQ(f.action, 305);  // not yet at the window
  fighter_animate(0);
  fighter_animate(0);
  EXPECT_EQ(f.action, 306);
}

TEST_F(LinkTest, RapidStringsLetOnlyTheirRepeatsThrough) {
  Fighter& f = fighters[0];
  start_action(0, 180, 1);
  for (int k = 0; k < 3; ++k) {
    f.queued = 0;
    queue_link(0, 180);
    EXPECT_EQ(f.queued, 1) << "repeat " << k;
  }
  f.queued = 0;
  queue_link(0, 180);  // the fourth jab of the string is refused
  EXPECT_EQ(f.queued, 0);
  f.rapid_a = 0;
  queue_link(0, 210);  // a kick does not follow the jab
  EXPECT_EQ(f.queued, 0);
  Players[0].down = 1;
  queue_link(0, 180);
  EXPECT_EQ(f.queued, 0);

  start_action(0, 37, 1);  // crouching jabs with down held: buttons become crouching attacks
  queue_link(0, 240);
  EXPECT_EQ(f.queued_action, 39);
  queue_link(0, 180);
  EXPECT_EQ(f.queued_action, 37);
  Players[0].down = 0;
  f.queued = 0;
  queue_link(0, 180);
  EXPECT_EQ(f.queued, 0);

  start_action(0, 240, 1);  // the straight lets through but keeps nothing
  f.in_special = 1;
  queue_link(0, 290);
  EXPECT_EQ(f.queued, 0);
  start_action(0, 3, 1);
  f.in_special = 0;
  queue_link(0, 180);
  EXPECT_EQ(f.queued, 0);
  f.in_special = 1;  // inside a special move anything may wait
  queue_link(0, 500);
  EXPECT_EQ(f.queued_action, 500);
}

TEST_F(LinkTest, ForcedReactionStartsWithTheQueuedHold) {
  Fighter& f = fighters[0];
  f.queued = 1;
  f.queued_action = 362;
  EXPECT_EQ(take_queued(0), 1);
  EXPECT_EQ(f.action, 362);
  EXPECT_EQ(fighters[1].action, 432);
  EXPECT_EQ(take_queued(0), 0);
}

TEST_F(LinkTest, SpecialMovesAndTheirFallbacks) {
  Fighter& f = fighters[0];
  EXPECT_EQ(try_special(0, 12), 1);  // character 0, slot 12: 305 from standing
  EXPECT_EQ(f.action, 305);
  EXPECT_EQ(f.in_special, 1);
  EXPECT_EQ(f.loop_count, 7);

  f.act_win_last[181] = f.act_first[181] + 8;
  f.act_win_last[191] = f.act_first[191] + 8;
  start_action(0, 181, 1);  // 181 opens links; slot 30 has none, its general slot 22 does
  EXPECT_EQ(f.in_special, 1);
  EXPECT_EQ(try_special(0, 30), 1);
  EXPECT_EQ(f.action, 274);
  EXPECT_EQ(f.super_mode, 0);

  start_action(0, 191, 1);  // a super through a link freezes the opponent
  f.in_special = 1;
  fighters[1].freeze_other = 1;
  EXPECT_EQ(try_special(0, 0), 1);
  EXPECT_EQ(f.action, 273);
  EXPECT_EQ(f.super_mode + f.freeze_other, 2);
  EXPECT_EQ(fighters[1].freeze_other, 0);

  f.act_first[305] = 0;  // a move the character lacks is not started
  start_action(0, 0, 1);
  f.in_special = 0;
  EXPECT_EQ(try_special(0, 12), 0);
  start_action(0, 38, 1);  // nor from a crouching attack
  EXPECT_EQ(try_special(0, 13), 0);
  EXPECT_EQ(f.action, 38);
}

}  // namespace
