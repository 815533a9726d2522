// The input step: what the fighter's controls and recognised command start this frame.
// The checks run in a fixed order and the first that starts something ends the step.
#include "fight/fight.h"
#include "fight/fight_action_internal.h"
#include "fight/fight_command_table.h"
#include "fight/fight_moves.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "render/render_math.h"

namespace {

constexpr float kThrowReach = 5.5f;        // throws start closer than this
constexpr float kCommandThrowReach = 8.5f; // command throws start closer than this
constexpr float kGuardReach = 17.0f;       // a live attack this close makes walking back guard
constexpr int kGroundCounterCost = 75;
constexpr int kGroundCounterGauge = 76;

// The thrown reaction by the thrower's character, after throw 80 and throw 81.
struct ThrownPair {
  std::int16_t after_80, after_81;
};
// clang-format off
constexpr ThrownPair kThrown[16] = {
    {82, 83},    // 0
    {84, 85},    // 1
    {86, 87},    // 2
    {88, 89},    // 3
    {90, 91},    // 4
    {92, 93},    // 5
    {94, 95},    // 6
    {96, 97},    // 7
    {98, 99},    // 8
    {100, 101},  // 9
    {88, 97},    // 10
    {82, 83},    // 11
    {82, 97},    // 12
    {100, 99},   // 13
    {82, 83},    // 14
    {100, 101},  // 15
};

// A button's normal attack by the taps open: down and forward, down, forward, back, none.
// The down column gives the crouching attack to a crouching fighter.
struct ButtonAttacks {
  std::int16_t down_forward, crouching, forward, back, plain;
};
constexpr ButtonAttacks kButtonAttacks[5] = {
    {0, 0, 0, 0, 0},            // (no button 0)
    {188, 37, 181, 189, 180},   // button 1
    {188, 39, 181, 189, 240},   // button 2
    {211, 38, 217, 216, 210},   // button 3
    {211, 40, 217, 216, 290},   // button 4
};

// Jump attacks by button: without horizontal speed, with it.
struct JumpAttacks {
  std::int16_t straight, diagonal;
};
constexpr JumpAttacks kJumpAttacks[5] = {
    {0, 0},       // (no button 0)
    {325, 326},   // button 1
    {327, 328},   // button 2
    {219, 229},   // button 3
    {298, 289},   // button 4
};
// clang-format on

bool is_idle(int a) { return a == 0 || in_range(a, 22, 24); }
bool is_walk(int a) { return a == 1 || a == 2 || a == 25 || a == 26; }
bool is_guard(int a) { return a == ACT_GUARD || a == ACT_CROUCH_GUARD; }
bool in_any_neutral(int fighter) { return is_neutral(fighter) || is_crouch_neutral(fighter); }

bool pressed(const PlayerInput& in, int button) {
  switch (button) {
    case 1: return in.attack1_pressed > 0;
    case 2: return in.attack2_pressed > 0;
    case 3: return in.attack3_pressed > 0;
    case 4: return in.attack4_pressed > 0;
    default: return false;
  }
}

// The first button pressed this frame in the order 1, 3, 2, 4; 0 for none.
int first_pressed(const PlayerInput& in) {
  constexpr int kOrder[4] = {1, 3, 2, 4};
  for (int b : kOrder) {
    if (pressed(in, b)) return b;
  }
  return 0;
}

void start_stance_idle(int fighter) { start_action(fighter, stance_idle(fighters[fighter]), 1); }

// ---- 1. turning -----------------------------------------------------------------------------
bool turn_check(int fighter) {
  Fighter& f = fighters[fighter];
  if (!f.turning) return false;
  if (f.yaw == f.face_yaw) {
    f.turning = 0;
    return false;
  }
  const int a = f.action;
  if (a == ACT_JUMP || a == ACT_JUMP_DIAGONAL || a == 3 || a == 4) return false;
  const bool crouched = f.crouching != 0;
  if (!in_any_neutral(fighter)) return false;
  start_action(fighter, crouched ? ACT_CROUCH_TURN : ACT_TURN, 1);
  return true;
}

// ---- 2. gauge charge ------------------------------------------------------------------------
bool charge_check(int fighter) {
  Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  const bool pair_held = (in.attack1 && in.attack3) || (in.attack2 && in.attack4);
  if (f.action == ACT_CHARGE) {
    if (!pair_held) {
      start_stance_idle(fighter);
      for (std::int32_t& on : f.part_fx_on) on = 0;
      return true;
    }
    if (f.frame >= f.act_first[ACT_CHARGE] + 42) f.frame = f.act_first[ACT_CHARGE] + 26;
    return false;
  }
  const bool no_direction = !in.left && !in.right && !in.up && !in.down;
  if (!pair_held || !no_direction || !is_neutral(fighter)) return false;
  start_action(fighter, ACT_CHARGE, 1);
  return true;
}

// ---- 3. dodges ------------------------------------------------------------------------------
bool dodge_check(int fighter) {
  const PlayerInput& in = Players[fighter];
  if (!in.attack3_pressed || !in.attack4_pressed || !in_any_neutral(fighter)) return false;
  const SideKeys k = side_keys(fighter);
  if (tapped(in.down_tap)) {
    start_action(fighter, ACT_DODGE_LOW, 1);
    return true;
  }
  if (tapped(k.forward_tap)) {
    start_action(fighter, ACT_DODGE_IN, 1);
    return true;
  }
  return false;
}

// ---- 4. guard super -------------------------------------------------------------------------
void begin_super(int fighter) {
  Fighter& f = fighters[fighter];
  f.in_special = 1;
  f.super_mode = 1;
  f.freeze_other = 1;
  fighters[opponent(fighter)].freeze_other = 0;
}

bool guard_super_check(int fighter) {
  Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  if (!in.attack3_pressed || !in.attack4_pressed || !is_guard(f.action)) return false;
  if (usable_gauge(f) < USABLE_FOR_SUPER) return false;
  begin_super(fighter);
  start_action(fighter, ACT_GUARD_SUPER, 1);
  f.gauge_spend = 100;
  start_super_flash(fighter);
  return true;
}

// ---- 5. commands ----------------------------------------------------------------------------
bool window_passed(const Fighter& f) {
  const int last = f.act_win_last[f.action];
  return last != 0 && f.frame >= last;
}

bool super_allowed(int fighter) {
  Fighter& f = fighters[fighter];
  if (usable_gauge(f) < USABLE_FOR_SUPER || Match.ko_state != 0 || Match.frozen) return false;
  if (f.action == ACT_GROUND_COUNTER || f.special_cam) return false;
  const bool held_back = f.busy || f.reacting || (f.in_special && !f.super_mode);
  if (!held_back) return true;
  // A super may follow a move inside its link window.
  const bool linkable = f.in_special || is_neutral(fighter) || is_crouch_neutral(fighter);
  return linkable && !window_passed(f) && !f.busy;
}

bool special_allowed(int fighter) {
  const Fighter& f = fighters[fighter];
  const Fighter& other = fighters[opponent(fighter)];
  if (f.busy || other.special_cam || window_passed(f)) return false;
  const int a = f.action;
  const bool attack = a == 180 || a == 240 || a == 210 || a == 290 || in_range(a, 37, 40);
  return attack || f.in_special || in_any_neutral(fighter);
}

// The extra buttons stand for a super command with a button of their pair; the super they
// give follows the command being entered.
int extra_super(int fighter, int* button) {
  const Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  if (usable_gauge(f) < USABLE_FOR_SUPER || Match.ko_state != 0) return -1;
  if (in.extra1_pressed) *button = f.stance == 23 ? 2 : 1;
  else if (in.extra2_pressed) *button = f.stance == 23 ? 4 : 3;
  else return -1;
  const int code = f.cmd_code;
  if (code == 3 || code == 4) return 0;
  if (code == 5 || code == 6) return 1;
  if (code == 7) return 2;
  return -1;
}

bool command_throw(int fighter) {
  Fighter& f = fighters[fighter];
  Fighter& other = fighters[opponent(fighter)];
  const int c = character_of(fighter);
  if (Spacing.distance >= kCommandThrowReach || !is_neutral(opponent(fighter))) return false;
  int choice = 0;
  for (const CommandThrow& row : CommandThrow_Table) {
    if (row.character != c || !has_action(f, row.hold)) continue;
    if (choice++ != frame_count % 2 && c == 7) continue;  // character 7 has two
    start_action(fighter, row.hold, 1);
    start_action(opponent(fighter), row.held, 1);
    other.busy = 1;
    other.reacting = 1;
    return true;
  }
  return false;
}

bool command_check(int fighter) {
  Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  int button = first_pressed(in);
  int command = f.cmd_code;
  // Both pairs pressed together: the 1-2 pair counts.
  if (in.attack1_pressed) button = 1;
  else if (in.attack2_pressed) button = 2;
  const int extra = extra_super(fighter, &button);
  if (extra >= 0) command = extra;
  if (button == 0 || command < 0) return false;
  f.stance = (button == 1 || button == 3) ? 0 : 23;
  const int slot = command_slot(command, button);
  if (command <= 2) {
    if (!super_allowed(fighter)) return false;
    if (!try_special(fighter, slot)) return false;
    begin_super(fighter);
    f.gauge_spend = 100;
    start_super_flash(fighter);
    return true;
  }
  if (!special_allowed(fighter)) return false;
  if (command == 3 && command_throw(fighter)) return true;
  const bool started = try_special(fighter, slot) != 0;
  // The rush of command 6 loops fewer times from the 1-2 pair: twice with button 1, four
  // times with button 2.
  if (command == 6 && button == 1) f.loop_count = 2;
  if (command == 6 && button == 2) f.loop_count = 4;
  return started;
}

// ---- 6. stance change -----------------------------------------------------------------------
bool stance_check(int fighter) {
  Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  const bool change = (in.attack1 && in.attack2_pressed) || (in.attack2 && in.attack1_pressed);
  if (!change) return false;
  if (f.stance == 0) {
    f.stance = 23;
    if (f.action == 0 || f.action == ACT_IDLE_B) {
      start_action(fighter, ACT_STANCE_CHANGE, 1);
      return true;
    }
    return false;
  }
  f.stance = 0;
  if (f.action == ACT_STANCE_IDLE || f.action == ACT_STANCE_CHANGE) {
    start_action(fighter, ACT_IDLE_B, 1);
    return true;
  }
  return false;
}

// ---- 7. counter from the ground -------------------------------------------------------------
bool ground_counter_check(int fighter) {
  Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  if (!f.rise_flag || f.gauge < kGroundCounterGauge || f.action == ACT_GROUND_COUNTER) return false;
  const bool pair = (in.attack3_pressed && in.attack4_pressed) ||
                    (in.attack1_pressed && in.attack3_pressed) ||
                    (in.attack2_pressed && in.attack4_pressed);
  if (!pair) return false;
  f.rise_flag = 0;
  start_action(fighter, ACT_GROUND_COUNTER, 1);
  f.gauge_spend = kGroundCounterCost;
  return true;
}

// ---- 8. crouching ---------------------------------------------------------------------------
bool crouch_check(int fighter) {
  Fighter& f = fighters[fighter];
  const int a = f.action;
  if (Players[fighter].down) {
    if (a == ACT_CROUCH_IDLE && f.frame >= f.act_last[a]) {
      f.frame = f.act_first[a];
      return false;
    }
    if (a == ACT_CROUCH && f.frame >= f.act_last[a]) {
      start_action(fighter, ACT_CROUCH_IDLE, 1);
      f.crouching = 1;
      return true;
    }
    const bool landing = a == ACT_JUMP && f.jump_count > JUMP_FRAMES;
    if (landing || (a != ACT_CROUCH && is_neutral(fighter))) {
      start_action(fighter, ACT_CROUCH, 1);
      return true;
    }
    return false;
  }
  if (a == ACT_CROUCH || a == ACT_CROUCH_IDLE || a == ACT_CROUCH_GUARD) {
    start_action(fighter, ACT_STAND_UP, 1);
    f.crouching = 0;
    return true;
  }
  return false;
}

// ---- 10. throws -----------------------------------------------------------------------------
bool throw_escaped(int fighter) {
  const int o = opponent(fighter);
  const PlayerInput& other = Players[o];
  if (other.attack2_pressed || other.attack4_pressed) return true;
  if (Match.human[o]) return false;
  const int chance = 2 * Match.stage_count + 5 < 20 ? 2 * Match.stage_count + 5 : 20;
  return chance > (frame_count + fighters[o].life) % 30;
}

bool throw_check(int fighter) {
  Fighter& f = fighters[fighter];
  const int o = opponent(fighter);
  Fighter& other = fighters[o];
  const PlayerInput& in = Players[fighter];
  if (!in.attack2_pressed && !in.attack4_pressed) return false;
  if (other.freeze_other || Spacing.distance >= kThrowReach) return false;
  if (f.yaw != f.face_yaw || other.yaw != other.face_yaw) return false;
  if (!is_neutral(fighter) || !is_neutral(o)) return false;
  const int throw_action = f.stance == 23 ? ACT_THROW_23 : ACT_THROW;
  if (throw_escaped(fighter)) {
    start_action(o, ACT_ESCAPE, 1);
    start_action(fighter, ACT_ESCAPED, 1);
    return true;
  }
  start_action(fighter, throw_action, 1);
  other.yaw = other.face_yaw;
  other.busy = 1;
  other.reacting = 1;
  start_action(o, thrown_reaction(character_of(fighter), throw_action), 1);
  return true;
}

// ---- 11. normal attacks ---------------------------------------------------------------------
bool in_air_for_attack(const Fighter& f) {
  return (f.action == ACT_JUMP || f.action == ACT_JUMP_DIAGONAL) && in_range(f.jump_count, 4, 35) &&
         f.jump_flag;
}

bool lying_button(int fighter, int button) {
  Fighter& f = fighters[fighter];
  if (f.action == ACT_LYING && f.air_timer < 1) {
    ++f.air_timer;
    return true;
  }
  if ((f.action != ACT_LYING && f.action != ACT_LYING_B) || f.life <= 0) return false;
  if (button != 3) return true;
  f.rise_flag = 1;
  start_action(fighter, f.turning ? ACT_RISE_TURNED : ACT_RISE, 1);
  f.queued = 1;
  f.queued_action = 216;
  return true;
}

int chosen_attack(int fighter, int button) {
  const Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  const SideKeys k = side_keys(fighter);
  const ButtonAttacks& row = kButtonAttacks[button];
  const bool down = tapped(in.down_tap);
  const bool low = f.crouching || f.action == ACT_CROUCH || f.action == ACT_CROUCH_IDLE ||
                   f.action == ACT_CROUCH_GUARD;
  if (down && tapped(k.forward_tap)) return row.down_forward;
  if (low) return row.crouching;
  if (tapped(k.forward_tap)) return row.forward;
  if (tapped(k.back_tap)) return row.back;
  return row.plain;
}

bool is_directional(int action) {
  return action == 188 || action == 181 || action == 189 || action == 211 || action == 217 ||
         action == 216;
}

bool attack_check(int fighter) {
  Fighter& f = fighters[fighter];
  const int button = first_pressed(Players[fighter]);
  if (button == 0) return false;
  if (in_air_for_attack(f)) {
    const JumpAttacks& jump = kJumpAttacks[button];
    const bool moving = f.move_dx != 0.0f || f.move_dz != 0.0f;
    start_action(fighter, moving ? jump.diagonal : jump.straight, 1);
    return true;
  }
  if (lying_button(fighter, button)) return true;
  const bool crouched = f.crouching || f.action == ACT_CROUCH;
  const int action = chosen_attack(fighter, button);
  if (is_neutral(fighter) || (crouched && is_crouch_neutral(fighter))) {
    start_action(fighter, action, 1);
    return true;
  }
  if (is_directional(action)) {
    if (f.special_cam || f.busy || f.reacting || f.rise_flag) return false;
    if (f.in_special) return try_special(fighter, action) != 0;
    if (!has_action(f, action)) return false;
    start_action(fighter, action, 1);
    return true;
  }
  queue_link(fighter, kButtonAttacks[button].plain);
  return false;
}

// ---- 12. movement and guard -----------------------------------------------------------------
bool opponent_threatens(int fighter) {
  const Fighter& other = fighters[opponent(fighter)];
  return (other.hit_live && Spacing.distance < kGuardReach) || other.projectile_live;
}

void start_if_not(int fighter, int action) {
  if (fighters[fighter].action != action) start_action(fighter, action, 1);
}

bool dash_check(int fighter, const SideKeys& k) {
  Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  // A press of a horizontal key: the second within the dash counter's time dashes.
  const bool right_press = in.right && in.right_tap == 4;
  const bool left_press = in.left && in.left_tap == 4;
  if (!right_press && !left_press) return false;
  const int way = right_press ? 1 : -1;
  if (f.step_timer * way <= 0) {
    f.step_timer = 10 * way;
    return false;
  }
  const bool crouched = f.crouching && f.action != ACT_CROUCH && f.action != ACT_STAND_UP;
  if (crouched) return false;
  f.step_timer = 0;
  f.move_dx = f.move_dz = 0.0f;
  const bool toward = (way == 1) == k.right_is_forward;
  start_action(fighter, toward ? ACT_DASH_IN : ACT_DASH_OUT, 1);
  return true;
}

bool may_move(const Fighter& f) {
  const int a = f.action;
  const bool movable = is_idle(a) || is_walk(a) || in_range(a, 30, 34) || is_guard(a);
  return movable && f.height == 0.0f && !f.turning;
}

bool stand_still(int fighter) {
  Fighter& f = fighters[fighter];
  if (is_walk(f.action)) {
    start_stance_idle(fighter);
    f.reacting = 0;
    f.jump_dir = 0;
    return true;
  }
  if (f.action == 33 || f.action == 34) {
    start_action(fighter, ACT_CROUCH_IDLE, 1);
    f.crouching = 1;
    return true;
  }
  return false;
}

bool walk_back(int fighter) {
  Fighter& f = fighters[fighter];
  if (opponent_threatens(fighter)) {
    const bool low = f.crouching || f.action == ACT_CROUCH;
    const int guard = low ? ACT_CROUCH_GUARD : ACT_GUARD;
    start_if_not(fighter, guard);
    if (f.frame > f.act_first[guard] + 4) f.frame = f.act_first[guard] + 4;
    f.guarding = 1;
    return true;
  }
  if (f.guarding || in_range(f.action, 30, 35)) return false;
  move_along(f, f.yaw + 180, 1.0f);
  start_if_not(fighter, f.stance == 23 ? ACT_WALK_OUT_23 : ACT_WALK_OUT);
  return true;
}

bool walk_in(int fighter) {
  Fighter& f = fighters[fighter];
  if (in_range(f.action, 30, 35)) return false;
  move_along(f, f.yaw, f.turning ? 1.0f : WALK_IN_STEPS);
  start_if_not(fighter, f.stance == 23 ? ACT_WALK_IN_23 : ACT_WALK_IN);
  return true;
}

bool movement_check(int fighter) {
  Fighter& f = fighters[fighter];
  const SideKeys k = side_keys(fighter);
  if (k.up || !may_move(f)) return false;
  if (dash_check(fighter, k)) return true;
  if (!k.forward && !k.back) return stand_still(fighter);
  if (k.back) return walk_back(fighter);
  return walk_in(fighter);
}

// ---- 13. jump -------------------------------------------------------------------------------
bool jump_check(int fighter) {
  Fighter& f = fighters[fighter];
  const PlayerInput& in = Players[fighter];
  const SideKeys k = side_keys(fighter);
  if (!k.up || f.action == 3 || f.action == 4 || !is_neutral(fighter)) return false;
  f.reacting = 1;
  f.jump_count = 0;
  f.jump_flag = 1;
  f.yaw = f.face_yaw;
  f.turning = 0;
  f.move_dx = f.move_dz = 0.0f;
  if (!k.forward && !k.back) {
    f.jump_dir = 0;
    start_action(fighter, ACT_JUMP, 1);
    f.reacting = 1;
    return true;
  }
  start_action(fighter, ACT_JUMP_DIAGONAL, 1);
  f.reacting = 1;
  if (in.right && fighter == Match.side_b) f.frame = f.act_first[ACT_JUMP];
  f.jump_dir = k.forward ? 1 : -1;
  const int heading = k.forward ? f.yaw : wrap_deg(f.yaw + 180);
  f.move_dx = JUMP_STEPS * StepSinTable[heading];
  f.move_dz = JUMP_STEPS * StepCosTable[heading];
  return true;
}

// ---- 14. end of the step --------------------------------------------------------------------
void finish_step(int fighter) {
  Fighter& f = fighters[fighter];
  if (f.action == ACT_RISE || f.action == ACT_RISE_TURNED) {  // which way a rising grab reaches
    const SideKeys k = side_keys(fighter);
    if (k.forward) f.grab_fwd = 1;
    if (k.back) f.grab_back = 1;
  } else {
    f.grab_fwd = f.grab_back = 0;
  }
  if (f.step_timer > 0) --f.step_timer;
  else if (f.step_timer < 0) ++f.step_timer;
}

bool run_checks(int fighter) {
  if (turn_check(fighter) || charge_check(fighter) || dodge_check(fighter) ||
      guard_super_check(fighter) || command_check(fighter) || stance_check(fighter) ||
      ground_counter_check(fighter) || crouch_check(fighter)) {
    return true;
  }
  if (fighters[fighter].in_special) return true;
  return throw_check(fighter) || attack_check(fighter) || movement_check(fighter) ||
         jump_check(fighter);
}

}  // namespace

int thrown_reaction(int character, int throw_action) {
  const ThrownPair& pair = kThrown[character & 15];
  return throw_action == ACT_THROW ? pair.after_80 : pair.after_81;
}

void fighter_input(int fighter) {
  if (Match.frozen) return;
  if (fighters[fighter].busy) {
    clear_commands(fighter);
    stance_check(fighter);
    finish_step(fighter);
    return;
  }
  run_checks(fighter);
  finish_step(fighter);
}
