// Command input and move links: the direction history each player builds, the commands it
// completes, and the links through which one move follows another.
#include <utility>

#include "fight/fight.h"
#include "fight/fight_action_internal.h"
#include "fight/fight_command_table.h"
#include "fight/fight_moves.h"
#include "input/input.h"

namespace {

constexpr int kReverseFrames = 300;  // reversed controls last this long

// A direction code for this frame: -2 neutral (or up), 1 back, 2 forward, 3 down,
// 4 down-back, 5 down-forward. When both horizontal keys are held, right decides.
int direction_code(int fighter) {
  const PlayerInput& in = Players[fighter];
  if (in.up) return CODE_NEUTRAL;
  const bool right_is_forward = fighter == Match.side_a;
  int horizontal = 0;  // 2 forward, 1 back
  if (in.right) horizontal = right_is_forward ? CODE_FORWARD : CODE_BACK;
  else if (in.left) horizontal = right_is_forward ? CODE_BACK : CODE_FORWARD;
  if (in.down) {
    if (horizontal == CODE_FORWARD) return CODE_DOWN_FORWARD;
    if (horizontal == CODE_BACK) return CODE_DOWN_BACK;
    return CODE_DOWN;
  }
  return horizontal != 0 ? horizontal : CODE_NEUTRAL;
}

// Walks back through the history from the newest entry; the row's codes must appear in
// order, anything between them is skipped.
bool row_matches(const Fighter& f, const CommandRow& row) {
  int k = 0;
  int pos = f.cmd_pos;
  for (int seen = 0; seen < CMD_HISTORY; ++seen) {
    if (f.cmd_hist[pos] == row.codes[k]) ++k;
    if (k == COMMAND_CODES) return false;  // a row without an end (the empty one) never matches
    if (row.codes[k] == CODE_END) return true;
    pos = pos == 0 ? CMD_HISTORY - 1 : pos - 1;
  }
  return false;
}

// Reversed controls: the side's keys are read mirrored until the reversal runs out.
void apply_reversal(int fighter) {
  if (Match.reverse[fighter] == 0) return;
  if (++Match.reverse_frames[fighter] >= kReverseFrames) {
    Match.reverse[fighter] = 0;
    Match.reverse_frames[fighter] = 0;
    return;
  }
  PlayerInput& in = Players[fighter];
  std::swap(in.left, in.right);
  std::swap(in.up, in.down);
  std::swap(in.left_tap, in.right_tap);
  std::swap(in.up_tap, in.down_tap);
}

// The general slot of the same button, for a command slot the running move has no link for.
int general_slot(int slot) {
  if (in_range(slot, 16, 19)) return slot - 4;
  if (in_range(slot, 28, 31)) return slot - 8;
  return -1;
}

bool heightened_start(int action) {
  return in_range(action, 194, 196) || in_range(action, 270, 272);
}

// The rapid strings: which requests a running attack lets through, and what they become.
// -1: the request is dropped.
int rapid_request(int fighter, int next) {
  const Fighter& f = fighters[fighter];
  const bool down = Players[fighter].down != 0;
  switch (f.action) {
    case ACT_PUNCH:
      if (f.rapid_a < 3 && !down && (next == 180 || next == 240 || next == 290)) return next;
      return -1;
    case ACT_KICK:
      if (!down && (next == 290 || next == 240)) return next;
      return -1;
    case 37:
      if (f.rapid_b >= 3 || !down) return -1;
      if (next == 180) return 37;
      if (next == 240) return 39;
      if (next == 290) return 40;
      return -1;
    case 38:
      if (!down) return -1;
      if (next == 210) return 38;
      if (next == 290) return 40;
      if (next == 240) return 39;
      return -1;
    default:
      return f.in_special ? next : -1;
  }
}

}  // namespace

const CommandRow Command_Table[COMMAND_ROWS] = {
    {{5, 3, 5, 3, -1, 0, 0}, 0},    // row 0: doubled forward quarter circle
    {{4, 3, 4, 3, -1, 0, 0}, 1},    // row 1: doubled back quarter circle
    {{1, 2, 1, -1, 0, 0, 0}, 2},    // row 2: back, forward, back
    {{5, 3, 2, -1, 0, 0, 0}, 4},    // row 3: forward, down, down-forward
    {{4, 3, 1, -1, 0, 0, 0}, 7},    // row 4: back, down, down-back
    {{5, 3, -1, 0, 0, 0, 0}, 3},    // row 5: down, down-forward
    {{2, 5, -1, 0, 0, 0, 0}, 3},    // row 6: down-forward, forward
    {{2, 5, -1, 0, 0, 0, 0}, 3},    // row 7: down-forward, forward
    {{4, 3, -1, 0, 0, 0, 0}, 5},    // row 8: down, down-back
    {{1, 4, -1, 0, 0, 0, 0}, 5},    // row 9: down-back, back
    {{2, 1, -2, -1, 0, 0, 0}, 6},   // row 10: neutral, back, forward
    {{2, 5, 2, 5, -1, 0, 0}, 0},    // row 11: doubled forward quarter circle, ending forward
    {{1, 4, 1, 4, -1, 0, 0}, 1},    // row 12: doubled back quarter circle, ending back
    {{3, 4, 3, 4, -1, 0, 0}, 0},    // row 13: down-back, down, down-back, down
    {{0, 0, 0, 0, 0, 0, 0}, -1},    // row 14: never matches
};

void update_commands(int fighter) {
  Fighter& f = fighters[fighter];
  if (Match.ko_state == 1 && Match.winner != fighter) clear_input(fighter);
  f.cmd_pos = (f.cmd_pos + 1) % CMD_HISTORY;
  apply_reversal(fighter);
  f.cmd_hist[f.cmd_pos] = direction_code(fighter);
  f.cmd_code = -1;
  for (const CommandRow& row : Command_Table) {
    if (row_matches(f, row)) {
      f.cmd_code = row.command;
      return;
    }
  }
}

void clear_commands(int fighter) {
  Fighter& f = fighters[fighter];
  for (std::int32_t& code : f.cmd_hist) code = CODE_NEUTRAL;
  f.cmd_pos = 0;
}

void clear_input(int fighter) {
  PlayerInput& in = Players[fighter];
  in.left = in.right = in.up = in.down = 0;
  in.left_tap = in.right_tap = in.up_tap = in.down_tap = 0;
  in.attack1 = in.attack2 = in.attack3 = in.attack4 = 0;
  in.attack1_pressed = in.attack2_pressed = in.attack3_pressed = in.attack4_pressed = 0;
  in.extra1 = in.extra2 = in.extra1_pressed = in.extra2_pressed = 0;
}

int command_slot(int command, int button) {
  const int kick = (button == 3 || button == 4) ? 2 : 0;
  const int first_of_pair = (button == 1 || button == 3) ? 1 : 0;
  return 4 * command + kick + first_of_pair;
}

int find_link(int fighter, int slot) {
  Fighter& f = fighters[fighter];
  if (!in_range(f.action, 0, MAX_ACTIONS - 1)) return 0;
  if (f.frame > f.act_win_last[f.action]) return 0;  // the link window has closed
  for (const ChainLink& link : MoveTables.Chain_Table[character_of(fighter)]) {
    if (link.running != f.action || link.slot != slot) continue;
    if (link.queued != 0) {
      f.chained = 1;
      queue_link(fighter, link.next);
      return 0;
    }
    return link.next;
  }
  return 0;
}

void queue_link(int fighter, int next_action) {
  Fighter& f = fighters[fighter];
  const int next = rapid_request(fighter, next_action);
  if (next < 0) return;
  if (f.action == 240 || f.action == 290 || f.action == 39 || f.action == 40) return;
  if (f.action == ACT_PUNCH && next == ACT_PUNCH) ++f.rapid_a;
  if (f.action == 37 && next == 37) ++f.rapid_b;
  f.queued = 1;
  f.queued_action = next;
}

int take_queued(int fighter) {
  Fighter& f = fighters[fighter];
  if (f.queued == 0) return 0;
  f.queued = 0;
  const int other = opponent(fighter);
  for (const ForcedReaction& forced : ForcedReaction_Table) {
    if (f.queued_action == forced.hold) start_action(other, forced.held, 1);
  }
  start_action(fighter, f.queued_action, 0);
  return 1;
}

int try_special(int fighter, int slot) {
  Fighter& f = fighters[fighter];
  f.loop_count = 7;
  if (in_range(f.action, 37, 40)) return 0;
  if (f.in_special) {
    int next = find_link(fighter, slot);
    const int fallback = general_slot(slot);
    if (next == 0 && fallback >= 0) next = find_link(fighter, fallback);
    if (next == 0 || !has_action(f, next)) return 0;
    clear_commands(fighter);
    if (slot <= 9) {
      f.super_mode = 1;
      f.freeze_other = 1;
      fighters[opponent(fighter)].freeze_other = 0;
    }
    start_action(fighter, next, 0);
    const float head_y = f.part_box[BOX_Y_MIN][2];
    if (heightened_start(next) && head_y > -1.0f) f.height = head_y + 1.0f;
    return 1;
  }
  if (!in_range(slot, 0, MOVE_SLOTS - 1)) return 0;
  const int action = MoveTables.Special_Table[character_of(fighter)][slot];
  if (!has_action(f, action)) return 0;
  start_action(fighter, action, 1);
  f.in_special = 1;
  clear_commands(fighter);
  return 1;
}
