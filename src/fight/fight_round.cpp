// The fight's per-frame update: the round intro and the "fight" call, the fighting frame, the
// deciding blow and the ending wait; the challenger's join.
#include "audio/audio.h"
#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_ranking.h"
#include "fight/fight_replay.h"
#include "fight/fight_round.h"
#include "fight/fight_state.h"
#include "camera/camera_fight.h"
#include "cpu/cpu.h"
#include "input/input.h"
#include "shell/shell.h"

namespace {

constexpr int kFightCallSound = 22;  // the "fight" call sounds on this count
constexpr int kFightCallEnd = 45;
constexpr int kRoundCallFrame = 5;   // intro camera frames of the round call
constexpr int kRoundNumberFrame = 59;
constexpr int kClosingDelay = 50;    // frames between the ending wait and the closing replay
constexpr int kQuickWait = 150;      // ending wait when the beaten fighter already lies in 170
constexpr int kLongWait = 500;
constexpr int kKoSlow = 100;

bool match_won(int side) { return fighters[side].wins >= Match.rounds_to_win; }

// The round the match is decided in, whatever happens: announced as the final round.
bool final_round() {
  const int total = fighters[0].wins + fighters[1].wins;
  const int r = Match.rounds_to_win;
  return r == 1 || (r == 2 && total == 2) || (r == 3 && total == 4);
}

void announce_round() {
  const int at = FightCamera.program_frame;
  if (final_round()) {
    if (at == kRoundCallFrame) Play_Sound(SND_FINAL_ROUND);
    return;
  }
  if (at == kRoundCallFrame) Play_Sound(SND_ROUND);
  if (at == kRoundNumberFrame) Play_Sound(SND_ROUND_NUMBER + fighters[0].wins + fighters[1].wins);
}

void fight_call_step() {
  if (Match.fight_call == kFightCallSound) Play_Sound(SND_FIGHT);
  if (++Match.fight_call >= kFightCallEnd) {
    Match.fight_call = 0;
    Match.clock_reset = 1;
  }
}

// A side may join as challenger unless it is a human still in the match.
bool may_join(int side) { return !(Match.human[side] && !match_won(opponent(side))); }

// The input of a side: its own devices, where a start press may call a challenger; then, for a
// side the computer plays, cleared for the computer to write.
void read_side(int side) {
  Input_Read(side);
  if (may_join(side)) Challenger_Join(side);
  if (!Match.human[side]) Input_Clear(side);
}

// Buttons 1 and 2 together switch the stance, even before the fight starts.
void intro_stance(int side) {
  const PlayerInput& in = Players[side];
  Fighter& f = fighters[side];
  const bool change = (in.attack1 > 0 && in.attack2_pressed > 0) || (in.attack2 > 0 && in.attack1_pressed > 0);
  if (!change) return;
  if (f.stance == 0) {
    if (f.action == 0 || f.action == 22) start_action(side, 24, 1);
    f.stance = 23;
  } else {
    if (f.action == 23 || f.action == 24) start_action(side, 22, 1);
    f.stance = 0;
  }
}

void intro_step() {
  if (Match.intro != -1) announce_round();
  if (Match.fight_call != 0) fight_call_step();
  fighter_strike(0);
  fighter_strike(1);
  for (int i = 0; i < 2; ++i) {
    Fighter& f = fighters[i];
    fighter_animate(i);
    f.crouching = f.reacting = f.jump_dir = f.busy = f.rise_flag = 0;
  }
  for (int i = 0; i < 2; ++i) {
    read_side(i);
    if (!may_join(i)) intro_stance(i);
  }
  move_step();
}

// The step of the fighters themselves: inputs, strikes, animation, projectiles, spacing.
void fighters_step() {
  const bool held[2] = {fighters[1].freeze_other != 0, fighters[0].freeze_other != 0};
  if (!(Match.ko_state != 0 && Match.ko_slow <= 1)) {
    if (Match.ko_slow > 1) --Match.ko_slow;
    record_frame();
  }
  for (int i = 0; i < 2; ++i)
    if (!held[i]) fighter_input(i);
  if (Match.hit_stop == 0) {
    for (int i = 0; i < 2; ++i)
      if (!held[i]) fighter_strike(i);
    for (int i = 0; i < 2; ++i)
      if (!held[i]) fighter_animate(i);
  } else {
    --Match.hit_stop;
  }
  projectile_clash();
  move_step();
}

void deciding_blow() {
  if (Match.ko_state != 0 || Match.time_over) return;  // after the time-over call the bars decide
  int beaten = -1;
  for (int i = 0; i < 2 && beaten < 0; ++i)
    if (fighters[i].life <= fighters[i].damage) beaten = i;
  if (beaten < 0) return;
  const int winner = opponent(beaten);
  Fighter& w = fighters[winner];
  Match.ko_state = 1;
  Match.winner = winner;
  ++w.wins;
  fighters[0].ghost = fighters[1].ghost = 0;
  if (Match.human[winner] && !Match.demo) Match.time_rank = Enter_TimeRanking(winner);
  Match.ko_slow = kKoSlow;
  Match.ko_wait = fighters[beaten].action == 170 ? kQuickWait : kLongWait;
  if ((w.hit_power >= 10 && w.in_special) || w.super_mode) start_ko_replay();
}

void fighting_step() {
  if (Match.after_ko && ++Match.after_ko_frames == kClosingDelay) Match.camera_reset = 1;
  for (int i = 0; i < 2; ++i) {
    read_side(i);
    // The computer plays a computer side, and a player's side once the other side has won
    // the match, unless the other side's super freezes it.
    const bool computer = !Match.human[i] || match_won(opponent(i));
    if (computer && !fighters[opponent(i)].freeze_other) CpuThink(i, Match.character[i]);
  }
  if (Match.flash_state == 0 || Match.flash_state == -1) fighters_step();
  deciding_blow();
}

void ending_wait() {
  if (Match.ko_state != 1) return;
  if (--Match.ko_wait > 0) return;
  end_ko_wait();
}

void clear_super_flags(Fighter& f) {
  f.super_mode = f.super_fx = f.super_finish = f.freeze_other = f.super_stance = 0;
}

}  // namespace

void end_ko_wait() {
  Match.ko_state = 2;
  if (Match.demo) {
    Shell.GameMode = MODE_TITLE;
    Shell.TitleEnter = 1;
    return;
  }
  Match.replay_mark = Match.replay_pos;
  Match.after_ko = 1;
  Match.after_ko_frames = 0;
}

int Challenger_Join(int side) {
  if (Match.challenger != 0 || Players[side].start_pressed <= 0) return 0;
  if (Match.credits <= 0 || Match.demo || !may_join(side)) return 0;
  const int other = opponent(side);
  const bool was_computer = !Match.human[side];
  Players[side].start_pressed = 0;
  --Match.credits;
  Play_Sound(SND_CHALLENGER);
  Match.challenger_phase = 3;
  Match.challenger = side + 1;
  Enter_StreakRanking(side);
  if (Match.human[0] && Match.human[1] && match_won(other)) ++fighters[other].streak;
  if (was_computer && match_won(side)) Match.human[other] = 0;
  return 1;
}

void Fight_Update() {
  if (Match.intro != -1 || Match.fight_call != 0)
    intro_step();
  else if (Match.replay_state == 1 || Match.replay_state == 2)
    ko_replay_step();
  else if (Match.after_ko && Match.after_ko_frames >= kClosingDelay)
    closing_step();
  else
    fighting_step();
  ending_wait();
  Flush_Sounds();
}

void Clear_SuperFlags() {
  clear_super_flags(fighters[0]);
  clear_super_flags(fighters[1]);
}
