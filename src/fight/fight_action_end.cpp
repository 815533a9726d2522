// Where an action goes when it reaches its last frame: the follow-up table, getting up from
// the floor, and the flags an ending action leaves behind.
#include "cpu/cpu.h"
#include "fight/fight.h"
#include "fight/fight_action_internal.h"

namespace {

enum FollowUp : std::int8_t {
  FOLLOW_NONE,           // no rule of its own
  FOLLOW_IDLE,           // the standing idle again
  FOLLOW_RESTART,        // the same action from its first frame
  FOLLOW_HOLD,           // held on its last frame
  FOLLOW_STANCE_IDLE,    // the stance-23 idle
  FOLLOW_TURNED,         // facing squared, then as the neutral group
  FOLLOW_CROUCH,         // crouching idle
  FOLLOW_CROUCH_TURNED,  // facing squared, then crouching idle
  FOLLOW_CROUCH_ATTACK,  // a waiting link, else crouching idle
  FOLLOW_LIE,            // lying: gets up the first way
  FOLLOW_LIE_B,          // lying: gets up the second way
  FOLLOW_RISEN,          // up from the floor
  FOLLOW_JUMP,           // back into the vertical jump
  FOLLOW_JUMP_DIAGONAL,  // back into the diagonal jump
  FOLLOW_SPECIAL,        // a special move's end
  FOLLOW_DOWN,           // knocked down: gets up the first way
  FOLLOW_DOWN_TURNED,    // knocked down facing away: turned round, first way
  FOLLOW_DOWN_B,         // knocked down: gets up the second way
  FOLLOW_DOWN_B_TURNED,  // knocked down facing away: turned round, second way
  FOLLOW_THROWN,         // thrown or held: lands, gets up the first way
  FOLLOW_DODGED,         // a dodge's end
  FOLLOW_NEUTRAL,        // every flag cleared, a waiting link, else the stance's idle
};

struct FollowRow {
  std::int16_t first, last;
  FollowUp follow;
};

// First matching row decides.
// clang-format off
constexpr FollowRow kFollowUps[] = {
    {0, 0, FOLLOW_IDLE},                 // standing idle
    {22, 22, FOLLOW_IDLE},               // standing idle, second
    {1, 2, FOLLOW_RESTART},              // walks
    {25, 26, FOLLOW_RESTART},            // stance-23 walks
    {18, 18, FOLLOW_RESTART},
    {12, 14, FOLLOW_HOLD},               // victory poses
    {23, 24, FOLLOW_STANCE_IDLE},        // stance-23 idle and the change into it
    {7, 7, FOLLOW_TURNED},               // turn
    {182, 182, FOLLOW_TURNED},
    {218, 218, FOLLOW_TURNED},
    {33, 35, FOLLOW_CROUCH},             // crouching walks, crouching guard
    {159, 160, FOLLOW_CROUCH},           // crouching reactions
    {36, 36, FOLLOW_CROUCH_TURNED},      // crouching turn
    {41, 42, FOLLOW_CROUCH_TURNED},
    {37, 40, FOLLOW_CROUCH_ATTACK},      // crouching attacks
    {43, 44, FOLLOW_CROUCH_ATTACK},
    {50, 50, FOLLOW_LIE},
    {51, 51, FOLLOW_LIE_B},
    {56, 57, FOLLOW_RISEN},
    {219, 219, FOLLOW_JUMP},             // vertical jump attacks
    {298, 298, FOLLOW_JUMP},
    {325, 325, FOLLOW_JUMP},
    {327, 327, FOLLOW_JUMP},
    {229, 229, FOLLOW_JUMP_DIAGONAL},    // diagonal jump attacks
    {289, 289, FOLLOW_JUMP_DIAGONAL},
    {326, 326, FOLLOW_JUMP_DIAGONAL},
    {328, 328, FOLLOW_JUMP_DIAGONAL},
    {190, 208, FOLLOW_SPECIAL},          // special moves
    {220, 238, FOLLOW_SPECIAL},
    {266, 284, FOLLOW_SPECIAL},
    {299, 316, FOLLOW_SPECIAL},
    {500, 519, FOLLOW_SPECIAL},
    {82, 83, FOLLOW_DOWN},               // thrown and knocked down
    {86, 87, FOLLOW_DOWN},
    {90, 97, FOLLOW_DOWN},
    {99, 103, FOLLOW_DOWN},
    {119, 129, FOLLOW_DOWN},
    {143, 144, FOLLOW_DOWN},
    {147, 147, FOLLOW_DOWN},
    {157, 157, FOLLOW_DOWN},
    {161, 161, FOLLOW_DOWN},
    {163, 163, FOLLOW_DOWN},
    {89, 89, FOLLOW_DOWN_TURNED},        // down facing away
    {98, 98, FOLLOW_DOWN_TURNED},
    {170, 170, FOLLOW_DOWN_TURNED},
    {411, 411, FOLLOW_DOWN_TURNED},
    {421, 421, FOLLOW_DOWN_TURNED},
    {432, 432, FOLLOW_DOWN_TURNED},
    {85, 85, FOLLOW_DOWN_B},             // down the second way
    {88, 88, FOLLOW_DOWN_B},
    {105, 115, FOLLOW_DOWN_B},
    {158, 158, FOLLOW_DOWN_B},
    {162, 162, FOLLOW_DOWN_B},
    {164, 164, FOLLOW_DOWN_B},
    {436, 437, FOLLOW_DOWN_B},
    {415, 415, FOLLOW_DOWN_B_TURNED},    // down the second way, facing away
    {419, 420, FOLLOW_DOWN_B_TURNED},
    {433, 433, FOLLOW_DOWN_B_TURNED},
    {148, 148, FOLLOW_THROWN},           // heavy reactions, thrown and held
    {165, 167, FOLLOW_THROWN},
    {171, 175, FOLLOW_THROWN},
    {410, 410, FOLLOW_THROWN},
    {412, 414, FOLLOW_THROWN},
    {416, 418, FOLLOW_THROWN},
    {422, 431, FOLLOW_THROWN},
    {434, 435, FOLLOW_THROWN},
    {438, 479, FOLLOW_THROWN},
    {570, 593, FOLLOW_THROWN},
    {597, 598, FOLLOW_DODGED},
    {3, 5, FOLLOW_NEUTRAL},              // dashes
    {8, 11, FOLLOW_NEUTRAL},             // guard, jumps, victory steps
    {15, 17, FOLLOW_NEUTRAL},
    {19, 21, FOLLOW_NEUTRAL},
    {31, 31, FOLLOW_NEUTRAL},            // stand up
    {52, 55, FOLLOW_NEUTRAL},
    {80, 81, FOLLOW_NEUTRAL},            // throws
    {84, 84, FOLLOW_NEUTRAL},
    {104, 104, FOLLOW_NEUTRAL},
    {116, 118, FOLLOW_NEUTRAL},          // throw escapes
    {138, 138, FOLLOW_NEUTRAL},
    {145, 146, FOLLOW_NEUTRAL},          // reactions
    {149, 156, FOLLOW_NEUTRAL},
    {176, 178, FOLLOW_NEUTRAL},
    {180, 181, FOLLOW_NEUTRAL},          // attacks
    {183, 189, FOLLOW_NEUTRAL},
    {210, 217, FOLLOW_NEUTRAL},
    {240, 242, FOLLOW_NEUTRAL},
    {250, 250, FOLLOW_NEUTRAL},
    {260, 265, FOLLOW_NEUTRAL},
    {285, 285, FOLLOW_NEUTRAL},
    {290, 297, FOLLOW_NEUTRAL},
    {317, 317, FOLLOW_NEUTRAL},
    {319, 319, FOLLOW_NEUTRAL},
    {321, 321, FOLLOW_NEUTRAL},
    {323, 323, FOLLOW_NEUTRAL},
    {330, 331, FOLLOW_NEUTRAL},          // guard super
    {334, 334, FOLLOW_NEUTRAL},
    {340, 409, FOLLOW_NEUTRAL},          // throw and hold actions
    {520, 522, FOLLOW_NEUTRAL},          // ground counter
    {530, 541, FOLLOW_NEUTRAL},
    {599, 599, FOLLOW_NEUTRAL},          // gauge charge
};
// clang-format on

FollowUp follow_up_of(int action) {
  for (const FollowRow& row : kFollowUps) {
    if (action >= row.first && action <= row.last) return row.follow;
  }
  return FOLLOW_NONE;
}

// Holds the frame where it is: the animation step's advance brings it back.
void hold(Fighter& f, int frame) { f.frame = frame - 1; }

// The flags an action leaves behind when it ends into idle. The turn request, the root
// synchronisation, the ghost, the chip remainder and the projectile state outlive it.
void clear_action_flags(Fighter& f) {
  f.rapid_a = f.rapid_b = 0;
  f.reacting = f.jump_dir = f.jump_flag = f.jump_count = 0;
  f.crouching = f.guarding = f.busy = f.rising = f.floored = f.air_hold = 0;
  f.rise_flag = f.grab_fwd = f.grab_back = 0;
  f.special_cam = f.special_shot = 0;
  f.in_special = f.super_mode = f.super_finish = f.protected_flag = f.super_fx = 0;
  f.chained = f.super_stance = f.freeze_other = 0;
  f.hit_new = f.hit_live = f.hit_power = f.hit_height = f.hit_class = f.hit_kind = 0;
  f.hit_special = f.reel_frames = f.reel_push = f.knock_force = 0;
  f.launch_speed = f.move_dx = f.move_dz = 0.0f;
  f.loop_count = 0;
  f.height = 0.0f;  // idle stands on the floor (a follow-up lifted by its link lands)
}

void to_crouch_idle(int fighter) {
  start_action(fighter, ACT_CROUCH_IDLE, 1);
  fighters[fighter].crouching = 1;
}

void to_stance_idle(int fighter) { start_action(fighter, stance_idle(fighters[fighter]), 1); }

void neutral_end(int fighter) {
  Fighter& f = fighters[fighter];
  const int ended = f.action;
  f.air_timer = 1;
  clear_action_flags(f);
  if (take_queued(fighter)) return;
  if (ended == 80 || ended == 81 || in_range(ended, 340, 409)) f.yaw = f.face_yaw;
  if (f.turning && f.yaw != f.face_yaw) {
    start_action(fighter, ACT_TURN, 1);
    return;
  }
  to_stance_idle(fighter);
}

void special_end(int fighter) {
  Fighter& f = fighters[fighter];
  f.air_timer = 1;
  if (take_queued(fighter)) return;
  clear_action_flags(f);
  fighters[opponent(fighter)].combo = 0;
  to_stance_idle(fighter);
}

void crouch_attack_end(int fighter) {
  Fighter& f = fighters[fighter];
  if (take_queued(fighter)) return;
  f.queued = 0;
  f.rapid_a = f.rapid_b = 0;
  fighters[opponent(fighter)].combo = 0;
  to_crouch_idle(fighter);
}

void back_to_jump(int fighter, int action) {
  Fighter& f = fighters[fighter];
  f.action = action;
  f.frame = f.act_first[ACT_JUMP] + f.jump_count - 1;  // the step's advance lands on the count
  f.jump_flag = 0;
}

// Knocked down: the fighter lies, and gets up once its fall is over.
void knocked_down(int fighter, bool second_way) {
  Fighter& f = fighters[fighter];
  f.busy = f.reacting = f.jump_dir = 0;
  f.rising = 1;
  fighters[opponent(fighter)].combo = 0;
  get_up(fighter, second_way);
}

void thrown_end(int fighter) {
  Fighter& f = fighters[fighter];
  if (f.yaw != f.face_yaw) f.yaw = wrap_deg(f.yaw + 180);
  f.height = 0.0f;
  f.busy = f.reacting = 0;
  f.rising = 1;
  fighters[opponent(fighter)].combo = 0;
  get_up(fighter, false);
}

void follow(int fighter, FollowUp kind) {
  Fighter& f = fighters[fighter];
  switch (kind) {
    case FOLLOW_NONE:  // the crouch is left by the input step; nothing else may hang
      if (f.action == ACT_CROUCH || f.action == ACT_CROUCH_IDLE) hold(f, f.act_last[f.action]);
      else neutral_end(fighter);
      break;
    case FOLLOW_IDLE: start_action(fighter, ACT_IDLE, 1); break;
    case FOLLOW_RESTART: f.frame = f.act_first[f.action]; break;
    case FOLLOW_HOLD: hold(f, f.act_last[f.action]); break;
    case FOLLOW_STANCE_IDLE: start_action(fighter, ACT_STANCE_IDLE, 1); break;
    case FOLLOW_TURNED:
      f.yaw = f.face_yaw;
      f.turning = 0;
      neutral_end(fighter);
      break;
    case FOLLOW_CROUCH: to_crouch_idle(fighter); break;
    case FOLLOW_CROUCH_TURNED:
      f.yaw = f.face_yaw;
      to_crouch_idle(fighter);
      break;
    case FOLLOW_CROUCH_ATTACK: crouch_attack_end(fighter); break;
    case FOLLOW_LIE: get_up(fighter, false); break;
    case FOLLOW_LIE_B: get_up(fighter, true); break;
    case FOLLOW_RISEN:
      CpuReadyAfterRising(fighter);
      f.yaw = f.face_yaw;
      neutral_end(fighter);
      break;
    case FOLLOW_JUMP: back_to_jump(fighter, ACT_JUMP); break;
    case FOLLOW_JUMP_DIAGONAL: back_to_jump(fighter, ACT_JUMP_DIAGONAL); break;
    case FOLLOW_SPECIAL: special_end(fighter); break;
    case FOLLOW_DOWN: knocked_down(fighter, false); break;
    case FOLLOW_DOWN_TURNED:
      f.yaw = wrap_deg((f.action == 432 ? f.face_yaw : f.yaw) + 180);
      knocked_down(fighter, false);
      break;
    case FOLLOW_DOWN_B: knocked_down(fighter, true); break;
    case FOLLOW_DOWN_B_TURNED:
      f.turning = 0;
      f.yaw = wrap_deg(f.yaw + 180);
      knocked_down(fighter, true);
      break;
    case FOLLOW_THROWN: thrown_end(fighter); break;
    case FOLLOW_DODGED:
      CpuReadyAtOnce(fighter);
      f.yaw = f.face_yaw;
      to_crouch_idle(fighter);
      break;
    case FOLLOW_NEUTRAL: neutral_end(fighter); break;
  }
}

bool keeps_root_tracking(int action) {
  return in_range(action, 12, 14) || action == 180 || action == 210 || action == 240 ||
         action == 290 || in_range(action, 37, 40);
}

}  // namespace

void get_up(int fighter, bool second_way) {
  Fighter& f = fighters[fighter];
  const int lying = second_way ? ACT_LYING_B : ACT_LYING;
  if (Match.ko_state != 0 || Match.frozen) {  // the round is over: stay down
    if (Match.ko_state == 1 && fighter != Match.winner) end_ko_wait();  // no need to wait
    if (f.action != lying) {
      f.action = lying;
      f.frame = f.act_first[lying];
    }
    hold(f, f.frame);
    return;
  }
  if (f.air_timer < 1) {
    ++f.air_timer;
    hold(f, f.frame - 1);
    return;
  }
  start_action(fighter, second_way ? ACT_RISE_TURNED : ACT_RISE, 1);
  f.rising = 0;
  f.rise_flag = 1;
}

void end_action(int fighter) {
  Fighter& f = fighters[fighter];
  f.hit_class = 0;
  f.super_mode = 0;
  f.super_finish = 0;
  if (!in_range(f.action, 0, 2) && !in_range(f.action, 22, 26)) {
    f.extra_angle[0] = f.extra_angle[1] = f.extra_angle[2] = 0;
  }
  if (!keeps_root_tracking(f.action)) root_track_end(fighter);
  if (f.action >= 600) return;
  follow(fighter, follow_up_of(f.action));
}
