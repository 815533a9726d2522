// What the command, action and movement steps share inside the fight core: action groups,
// the fighter's keys read against its side, and small movement helpers. Not for other
// subsystems (they use fight.h).
#pragma once
#include <cstdint>

#include "fight/fight_state.h"
#include "input/input.h"

// Action numbers the steps name more than once.
enum : int {
  ACT_IDLE = 0,
  ACT_WALK_IN = 1,
  ACT_WALK_OUT = 2,
  ACT_DASH_IN = 3,
  ACT_DASH_OUT = 4,
  ACT_TURN = 7,
  ACT_GUARD = 8,
  ACT_JUMP = 9,
  ACT_JUMP_DIAGONAL = 21,
  ACT_IDLE_B = 22,
  ACT_STANCE_IDLE = 23,
  ACT_STANCE_CHANGE = 24,
  ACT_WALK_IN_23 = 25,
  ACT_WALK_OUT_23 = 26,
  ACT_CROUCH = 30,
  ACT_STAND_UP = 31,
  ACT_CROUCH_IDLE = 32,
  ACT_CROUCH_GUARD = 35,
  ACT_CROUCH_TURN = 36,
  ACT_LYING = 50,
  ACT_LYING_B = 51,
  ACT_RISE = 56,
  ACT_RISE_TURNED = 57,
  ACT_THROW = 80,
  ACT_THROW_23 = 81,
  ACT_ESCAPE = 116,
  ACT_ESCAPED = 117,
  ACT_BEATEN = 170,
  ACT_PUNCH = 180,
  ACT_KICK = 210,
  ACT_PUNCH_B = 240,
  ACT_KICK_B = 290,
  ACT_GUARD_SUPER = 331,
  ACT_GROUND_COUNTER = 522,
  ACT_DODGE_LOW = 597,
  ACT_DODGE_IN = 598,
  ACT_CHARGE = 599,
};

constexpr float WALK_IN_STEPS = 1.2f;   // steps a frame toward the opponent
constexpr float JUMP_STEPS = 1.9f;      // steps a frame of a jump's horizontal speed
constexpr int JUMP_FRAMES = 36;         // jump_count at which a jump lands
constexpr int USABLE_FOR_SUPER = 100;   // usable gauge a super move needs

inline bool in_range(int v, int lo, int hi) { return v >= lo && v <= hi; }
inline int wrap_deg(int a) { return ((a % 360) + 360) % 360; }
// The unsigned difference of two angles, 0..180.
inline int angle_gap(int a, int b) {
  const int d = wrap_deg(a - b);
  return d > 180 ? 360 - d : d;
}

// An action the fighter's tables give frames to (the table loader leaves missing ones at 0).
inline bool has_action(const Fighter& f, int action) {
  return in_range(action, 0, MAX_ACTIONS - 1) && f.act_first[action] > 1;
}
inline int usable_gauge(const Fighter& f) { return f.gauge - f.gauge_spend; }
inline bool faces_away(const Fighter& f) { return angle_gap(f.yaw, f.face_yaw) >= 121; }
inline int character_of(int fighter) {
  const int c = Match.character[fighter];
  return in_range(c, 0, 15) ? c : 15;
}

// The stance's idle: 24 (the change into stance 23) or 22.
inline int stance_idle(const Fighter& f) { return f.stance == 23 ? ACT_STANCE_CHANGE : ACT_IDLE_B; }

bool is_jump_attack(int action);
bool is_special_move(int action);  // the special-move ranges of Special_Table and Chain_Table

// The fighter's controls read against its side: forward points at the opponent.
struct SideKeys {
  bool forward, back, up, down;
  int forward_tap, back_tap;  // tap counters (4 at the press, counting down)
  bool right_is_forward;
};
SideKeys side_keys(int fighter);
// A tap still counts while its counter is above 0 (the computer writes 1 for a fresh tap).
inline bool tapped(int counter) { return counter > 0; }

// Moves the fighter `steps` steps of 0.2 along `yaw`.
void move_along(Fighter& f, int yaw, float steps);

// The model's body point as the last drawn frame left it.
float body_x(int fighter);
float body_z(int fighter);

// Knock-back, the jump arc, launches, falls and the air hold: the movement side of the
// animation step (fight_move.cpp).
void knock_back_step(int fighter);
void jump_arc_step(int fighter);
void fall_step(int fighter);
bool is_fall_action(int action);  // knocked down, thrown and held reactions

// The super move's screen flash and glow.
void start_super_flash(int fighter);

// The follow-up of an action that has reached its last frame (fight_action_end.cpp).
void end_action(int fighter);
// Up from the floor the first way (56) or the second (57), once any launch has landed.
void get_up(int fighter, bool second_way);
