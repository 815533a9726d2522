// The rules every character routine follows, in order; the first rule that applies decides.
// The routine's own table (cpu_routine_tables.cpp) gives the moves inside the rules.
#include "cpu/cpu.h"
#include "cpu/cpu_private.h"
#include "cpu/cpu_routine.h"
#include "fight/fight.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "settings/settings.h"

namespace {

// Distance bands of the separation.
constexpr float CLOSE = 5.5f;
constexpr float NEAR_REACH = 8.5f;
constexpr float WALK_BACK_LIMIT = 9.2f;
constexpr float MID = 10.0f;
constexpr float JUMP_OR_DOWN = 11.5f;
constexpr float FAR = 13.0f;
constexpr float HOP_REACH = 14.5f;
constexpr float GUARD_REACH = 16.0f;
constexpr float JUMP_IN_FROM = 21.0f;
constexpr float CHARGE_FROM = 25.0f;

Fighter& me(int p) { return fighters[p]; }
Fighter& them(int p) { return fighters[opponent(p)]; }

// ---- carrying out a move -------------------------------------------------------------------

bool move_allowed(int p, const CpuMove& m) {
  const Fighter& o = them(p);
  switch (m.when) {
    case WHEN_CLOCK_HALF: return frame_count % 20 > 10;
    case WHEN_JUMPING_IN: return o.reacting && !o.busy && o.jump_dir == 1;
    default: return true;
  }
}

// The situations in which a move gives way to a walk in.
bool walks_in_instead(int p, const CpuMove& m) {
  const Fighter& f = me(p);
  if (m.when == WHEN_NOT_CHARGING) return them(p).action == 599;
  if (m.when == WHEN_NOT_WEAK) return f.gauge < 101 && f.life < 50;
  return false;
}

void press_move(int p, const CpuMove& m, int button) {
  cpu_press_cmd(p, m.cmd, m.stance, button);
  if (m.down) cpu_down(p);
}

void b4_rule(int p) {
  cpu_press(p, 4);
  if (cpu_separation() <= JUMP_OR_DOWN) return;
  if (frame_count % 3 == 0) {
    CpuJumpIn(p);
    Players[p].attack4_pressed = 0;
  } else {
    cpu_down(p);
  }
}

// At 14.5 or more, or two times in three, the press; else a jump forward.
void hop_in(int p, const CpuMove& m) {
  if (cpu_separation() >= HOP_REACH || Cpu.CpuRandom[p] % 3 != 0) {
    press_move(p, m, m.button);
    return;
  }
  Players[p].up = 1;
  cpu_forward(p);
  me(p).jump_flag = 1;
}

void do_move(int p, const CpuMove& m) {
  if (m.toggle && m.what != DO_ACTION) CpuToggleStance(p);
  if (walks_in_instead(p, m)) {
    CpuWalkIn(p);
    return;
  }
  if (!move_allowed(p, m)) return;
  switch (m.what) {
    case DO_PRESS: {
      const int b = (me(p).stance == 23 && m.button23) ? m.button23 : m.button;
      press_move(p, m, b);
      break;
    }
    case DO_CLOSE: press_move(p, m, cpu_separation() >= NEAR_REACH ? 4 : m.button); break;
    case DO_B4_RULE: b4_rule(p); break;
    case DO_ACTION:
      if (m.stance >= 0) me(p).stance = m.stance;
      start_action(p, m.action, 1);
      if (m.toggle) CpuToggleStance(p);
      break;
    case DO_WALK_IN: CpuWalkIn(p); break;
    case DO_DASH_IN:
      if (m.stance >= 0) me(p).stance = m.stance;
      CpuDashIn(p);
      break;
    case DO_HOP_IN: hop_in(p, m); break;
    case DO_NOTHING: break;
  }
}

int pick_index(int p, const CpuPick& pick) {
  if (pick.n <= 1) return 0;
  int v = 0;
  switch (pick.key) {
    case KEY_K: return cpu_k(p, pick.n);
    case KEY_RANDOM: v = Cpu.CpuRandom[p]; break;
    case KEY_LEVEL: v = Cpu.CpuLevel[p]; break;
  }
  v %= pick.n;
  return v < 0 ? v + pick.n : v;
}

void do_pick(int p, const CpuPick& pick) { do_move(p, pick.moves[pick_index(p, pick)]); }

// ---- rules ---------------------------------------------------------------------------------

// In the air: jumping or reeling (not thrown): an attack in the air when it can reach.
bool in_the_air(int p) {
  if (!me(p).reacting || me(p).busy) return false;
  if (CpuAirAttackChance(p)) cpu_press(p, cpu_separation() >= 6.5f ? 4 : 2);
  return true;
}

bool reactions(int p, const CpuRoutine& r) {
  if (CpuComboLink(p) || CpuLowAttackReaction(p)) return true;
  if (!r.reacts_to_throws) return false;
  return CpuProjectileReaction(p) || CpuDashReaction(p);
}

// The gauge: whether to spend the gauge on a super move, and which.
bool spend_gauge(int p, const CpuRoutine& r) {
  const Fighter& f = me(p);
  const Fighter& o = them(p);
  const int level = Cpu.CpuLevel[p];
  const int t = level + f.life;
  const bool wants = (Cpu.CpuRandom[p] % 100 > t / 4 && f.gauge >= 100) ||
                     f.gauge >= (f.life + level) / 7 + 200;
  const float sep = cpu_separation();
  if (!wants || sep >= FAR || !CpuCanActAny(p)) return false;
  const bool early = 7 * Match.stage_count <= Cpu.CpuCounter % 100;
  if (early) {
    if (o.crouching) return false;
  } else if (!(f.action == 8 || f.action == 35 || !(o.action == 2 || o.action == 26 || o.crouching))) {
    return false;
  }
  const bool st23 = f.stance == 23;
  if (sep >= MID)
    do_pick(p, st23 ? r.super_far23 : r.super_far0);
  else
    do_pick(p, st23 ? r.super_near23 : r.super_near0);
  return true;
}

// The juggle: the opponent is in the air and coming within reach.
bool juggle(int p, const CpuRoutine& r) {
  const Fighter& o = them(p);
  if (!o.reacting || o.busy) return false;
  const float sep = cpu_separation();
  if (r.own_air_rule && Match.stage_count == 10) {
    if (!((sep < FAR && o.jump_dir == 1) || (sep < MID && o.jump_dir == 0))) return false;
    if (!CpuCanActAny(p)) return false;
    do_move(p, r.juggle_stage10);
    return true;
  }
  const bool forward = r.own_air_rule ? (sep > MID && sep < HOP_REACH) : sep < HOP_REACH;
  if (!((forward && o.jump_dir == 1) || (sep < MID && o.jump_dir == 0))) return false;
  if (!CpuCanActAny(p)) return false;
  do_move(p, sep >= MID ? r.juggle_far : r.juggle_near);
  return true;
}

// The guard against a plain strike that is not low: answer from afar or from below.
void counter_strike(int p, const CpuRoutine& r, float sep) {
  if (sep >= FAR) {
    if (CpuCanActAny(p)) do_move(p, r.guard_far);
    return;
  }
  const bool even = cpu_k(p, 2) == 0;
  if (r.guard_low == GUARD_CROUCHING) {
    if (CpuCanActCrouching(p)) {
      cpu_down(p);
      cpu_press(p, sep >= MID ? 4 : (even ? 1 : 2));
    } else if (CpuCanAct(p)) {
      cpu_down(p);
      cpu_press(p, 4);
    }
    return;
  }
  if (CpuCanActCrouching(p)) {
    if (sep < MID) cpu_press(p, even ? 1 : 2);
  } else if (CpuCanAct(p)) {
    cpu_press(p, even ? 3 : 4);
  }
}

enum class Guard { NONE, DONE, CLOSING };

// The guard: the opponent has just started an action within reach: hold back first.
Guard guard(int p, const CpuRoutine& r) {
  const Fighter& f = me(p);
  const Fighter& o = them(p);
  const float sep = cpu_separation();
  if (sep >= GUARD_REACH || !o.hit_live) return Guard::NONE;
  cpu_back(p);
  if (o.in_special) {
    if (o.hit_height == 3 || o.crouching) cpu_down(p);
    const bool finish = (frame_count % 100 == 0 && (o.life < 50 || f.gauge > 200)) || o.life < 10;
    if (f.gauge >= 100 && finish) {
      cpu_press(p, 3);
      cpu_press(p, 4);
    }
    return Guard::DONE;
  }
  if ((cpu_in(o.action, {37, 38, 39}) && sep < FAR) || o.action == 40) {
    cpu_down(p);
    return Guard::DONE;
  }
  counter_strike(p, r, sep);
  return Guard::CLOSING;
}

// The dodge: the opponent dodges: crouch, and punish the end of it.
bool punish_dodge(int p) {
  const Fighter& o = them(p);
  const float sep = cpu_separation();
  if ((o.action != 597 && o.action != 598) || sep >= GUARD_REACH) return false;
  cpu_down(p);
  if (CpuCanActAny(p)) {
    if (o.action == 597 && o.frame >= o.act_last[597] - 21) cpu_press(p, 4);
    if (o.action == 598 && sep < FAR) cpu_press(p, 3);
  }
  return true;
}

// The attacking band: 10 to 13, or closer when ready.
void attack_band(int p, const CpuRoutine& r, float sep) {
  if (!CpuCanActAny(p)) return;
  if (sep >= MID) {
    const int o_action = them(p).action;
    if (r.dash_on_retreat && cpu_k(p, 2) == 0 &&
        (o_action == 2 || o_action == 26 || them(p).guarding)) {
      CpuDashIn(p);
      return;
    }
    do_pick(p, me(p).stance == 23 ? r.band10_stance23 : r.band10_stance0);
  } else {
    do_pick(p, r.close);
  }
}

// From 5.5 out: the distance bands.
void distance_bands(int p, const CpuRoutine& r, float sep) {
  if (sep >= CHARGE_FROM) {
    CpuChargeOrWalk(p);
  } else if (sep >= GUARD_REACH) {
    if (is_neutral(p) && sep > JUMP_IN_FROM)
      CpuJumpIn(p);
    else if (is_neutral(p) && Cpu.CpuRandom[p] % 200 > 100)
      CpuWalkIn(p);
  } else if (sep >= FAR) {
    if (CpuCanActAny(p)) do_pick(p, r.band13);
  } else if (sep >= MID || cpu_ready(p)) {
    attack_band(p, r, sep);
  } else if (sep < WALK_BACK_LIMIT || me(p).action == 2 || me(p).action == 26) {
    CpuWalkBack(p);
  }
}

// The opponent stands no higher than 2.0 above p (a crouching or landing body).
bool opponent_low_enough(int p) {
  return !them(p).reacting && cpu_body_height(opponent(p)) <= cpu_body_height(p) + 2.0f;
}

// A quick dodge under an opponent coming down on p, chancier at the low difficulties.
void duck_under(int p) {
  const int d = Settings.difficulty;
  if (d > 2 || Cpu.CpuRandom[p] % 100 < 25 * d) {
    Players[p].down_tap = 1;
    cpu_press(p, 3);
    cpu_press(p, 4);
  }
}

// A crouching opponent within reach, from 5.5 out.
void crouching_target(int p, const CpuRoutine& r, float sep) {
  const Fighter& o = them(p);
  if (!(opponent_low_enough(p) || o.busy || sep >= NEAR_REACH)) {
    duck_under(p);
    return;
  }
  if (me(p).crouching) {
    if (CpuCanActCrouching(p)) cpu_press(p, sep >= MID ? 4 : 1);
    return;
  }
  if (!CpuCanAct(p)) return;
  if (!cpu_even(p) || sep >= FAR) {
    if (sep >= FAR)
      do_move(p, r.crouch_far);
    else if (sep >= MID)
      do_move(p, r.crouch_mid);
    else
      do_move(p, r.crouch_near);
  } else {
    cpu_down(p);
    cpu_press(p, 4);
  }
}

// Toe to toe: closer than 5.5.
void close_quarters(int p, const CpuRoutine& r) {
  const Fighter& o = them(p);
  if (o.crouching) {
    if (me(p).crouching) {
      if (CpuCanActCrouching(p)) cpu_press(p, r.both_crouching_button);
    } else if (CpuCanAct(p)) {
      if (cpu_even(p))
        do_move(p, r.crouch_close_even);
      else
        do_pick(p, r.crouch_close_odd);
    } else {
      cpu_down(p);
    }
  } else if (opponent_low_enough(p) || o.busy) {
    if (CpuCanAct(p))
      do_pick(p, r.close_standing);
    else
      CpuWalkBack(p);
  } else {
    duck_under(p);
  }
}

void closing_steps(int p, const CpuRoutine& r) {
  CpuWalkInStep(p);
  if (r.renews_down_hold) CpuDownHold(p);
  CpuAvoidInterrupted(p);
}

}  // namespace

void Cpu_RunRoutine(int p, int routine) {
  if (routine < 1 || routine > CPU_ROUTINES) routine = 1;
  const CpuRoutine& r = CpuRoutines[routine - 1];
  if (me(p).rise_flag) {
    CpuRisingAttack(p);
    return;
  }
  if (in_the_air(p) || reactions(p, r) || spend_gauge(p, r) || juggle(p, r)) return;
  switch (guard(p, r)) {
    case Guard::DONE: return;
    case Guard::CLOSING: closing_steps(p, r); return;
    case Guard::NONE: break;
  }
  if (!punish_dodge(p)) {
    const float sep = cpu_separation();
    if (sep >= CLOSE) {
      if (!them(p).crouching || sep >= GUARD_REACH || !CpuCanActAny(p))
        distance_bands(p, r, sep);
      else
        crouching_target(p, r, sep);
    } else {
      close_quarters(p, r);
    }
  }
  closing_steps(p, r);
}
