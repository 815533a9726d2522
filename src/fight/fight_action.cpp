// The action machine's entry points: starting an action, and the neutral tests every
// step asks before it lets a fighter start something new.
#include "audio/audio.h"
#include "camera/camera_fight.h"
#include "fight/fight.h"
#include "fight/fight_action_internal.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"

namespace {

// A character's two attack shouts; -1 for none.
struct Shouts {
  std::int16_t first, second;
};
// clang-format off
constexpr Shouts kShouts[16] = {
    {16, 16},    // 0
    {30, 31},    // 1
    {43, 45},    // 2
    {56, 56},    // 3
    {61, 64},    // 4
    {71, 72},    // 5
    {89, 90},    // 6
    {103, 104},  // 7
    {109, 111},  // 8
    {123, 124},  // 9
    {56, 56},    // 10
    {16, 16},    // 11
    {103, 104},  // 12
    {123, 124},  // 13
    {-1, -1},    // 14
    {-1, -1},    // 15
};

// The attacks that add a bonus to their damage and swing with a voice.
enum Bonus : std::int8_t { GAIN_A, GAIN_B };
struct AttackVoice {
  std::int16_t action;
  Bonus bonus;
  std::int16_t voice;
};
constexpr AttackVoice kAttackVoices[] = {
    {37, GAIN_A, 159},   // crouching jab
    {43, GAIN_A, 159},   // crouching jab, second
    {180, GAIN_A, 159},  // jab
    {181, GAIN_A, 159},  // forward jab
    {188, GAIN_A, 159},  // low-forward jab
    {189, GAIN_A, 159},  // back jab
    {325, GAIN_A, 159},  // jump jab
    {326, GAIN_A, 159},  // diagonal jump jab
    {38, GAIN_B, 159},   // crouching kick
    {210, GAIN_B, 159},  // kick
    {211, GAIN_B, 159},  // low-forward kick
    {214, GAIN_B, 159},  // kick, third
    {216, GAIN_B, 159},  // back kick
    {217, GAIN_B, 159},  // forward kick
    {219, GAIN_B, 159},  // jump kick
    {229, GAIN_B, 159},  // diagonal jump kick
    {39, GAIN_A, 158},   // crouching straight
    {44, GAIN_A, 158},   // crouching straight, second
    {240, GAIN_A, 158},  // straight
    {250, GAIN_A, 158},  // straight, second
    {263, GAIN_A, 158},  // straight strings
    {264, GAIN_A, 158},
    {265, GAIN_A, 158},
    {285, GAIN_A, 158},
    {327, GAIN_A, 158},  // jump straight
    {328, GAIN_A, 158},  // diagonal jump straight
    {40, GAIN_B, 158},   // crouching heavy kick
    {289, GAIN_B, 158},  // diagonal jump heavy kick
    {290, GAIN_B, 158},  // heavy kick
    {291, GAIN_B, 158},  // heavy kick strings
    {296, GAIN_B, 158},
    {297, GAIN_B, 158},
    {298, GAIN_B, 158},  // jump heavy kick
    {317, GAIN_B, 158},
    {319, GAIN_B, 158},
};
// clang-format on

constexpr int kShortThrow = 80;  // throws shorter than this take the plain side shot

int attack_voice_channel(int fighter) { return 2 * fighter; }
int shout_channel(int fighter) { return 2 * fighter + 1; }

bool starts_throw_camera(int action) {
  return in_range(action, 340, 409) || action == 80 || action == 81 || action == 104 ||
         action == 118;
}
bool first_shout(int action) {
  return action == 240 || action == 241 || action == 289 || action == 298;
}
bool second_shout(int action) { return action == 40 || action == 242 || action == 522; }
bool opens_links(int action) {
  return action == 181 || action == 188 || action == 189 || action == 211 || action == 216 ||
         action == 217;
}

// The button pressed this frame, as its standing attack; 0 when none was.
int pressed_attack(int fighter) {
  const PlayerInput& in = Players[fighter];
  if (in.attack1_pressed) return ACT_PUNCH;
  if (in.attack2_pressed) return ACT_PUNCH_B;
  if (in.attack3_pressed) return ACT_KICK;
  if (in.attack4_pressed) return ACT_KICK_B;
  return 0;
}

// A requested action the character lacks becomes the pressed button's standing attack.
int substitute(int fighter, int action) {
  const Fighter& f = fighters[fighter];
  for (int depth = 0; depth < 3; ++depth) {
    const bool has_frames = in_range(action, 0, MAX_ACTIONS - 1) && f.act_first[action] >= 1 &&
                            f.act_last[action] <= MAX_FRAMES;
    if (has_frames) break;
    const int replacement = pressed_attack(fighter);
    if (replacement == 0) break;
    action = replacement;
  }
  return action;
}

void throw_camera(int fighter, int action) {
  Fighter& f = fighters[fighter];
  const int length = f.act_last[action] - f.act_first[action];
  f.special_cam = 1;
  f.special_shot = length < kShortThrow ? 1 : frame_count % 3 + 2;
  FightCamera.shot_frame = 0;
}

void play_shout(int fighter, bool first) {
  const Shouts& s = kShouts[character_of(fighter)];
  const int voice = first ? s.first : s.second;
  if (voice >= 0) Queue_Sound(shout_channel(fighter), voice);
}

void set_up(int fighter, int action) {
  Fighter& f = fighters[fighter];
  if (starts_throw_camera(action)) {
    throw_camera(fighter, action);
  } else if (first_shout(action)) {
    play_shout(fighter, true);
  } else if (second_shout(action)) {
    play_shout(fighter, false);
  } else if (in_range(action, 530, 541)) {
    f.super_stance = 1;
  } else {
    f.reel_frames = 0;
  }
  for (const AttackVoice& row : kAttackVoices) {
    if (row.action != action) continue;
    f.hit_power += row.bonus == GAIN_A ? f.gain_a : f.gain_b;
    Queue_Sound(attack_voice_channel(fighter), row.voice);
    break;
  }
  if (opens_links(action)) f.in_special = 1;
}

void clear_neutral_flags(Fighter& f) {
  f.reacting = 0;
  f.jump_dir = 0;
  f.rise_flag = 0;
  f.hit_live = 0;
}

}  // namespace

bool is_jump_attack(int action) {
  return action == 219 || action == 229 || action == 289 || action == 298 ||
         in_range(action, 325, 328);
}

bool is_special_move(int action) {
  return in_range(action, 190, 208) || in_range(action, 220, 238) || in_range(action, 266, 284) ||
         in_range(action, 299, 316) || in_range(action, 500, 519);
}

SideKeys side_keys(int fighter) {
  const PlayerInput& in = Players[fighter];
  SideKeys k{};
  k.right_is_forward = fighter == Match.side_a;
  k.forward = (k.right_is_forward ? in.right : in.left) != 0;
  k.back = (k.right_is_forward ? in.left : in.right) != 0;
  k.up = in.up != 0;
  k.down = in.down != 0;
  k.forward_tap = k.right_is_forward ? in.right_tap : in.left_tap;
  k.back_tap = k.right_is_forward ? in.left_tap : in.right_tap;
  return k;
}

float body_x(int fighter) { return Draw.Body_Centre[fighter][0]; }
float body_z(int fighter) { return Draw.Body_Centre[fighter][2]; }

void start_super_flash(int fighter) {
  Fighter& f = fighters[fighter];
  f.super_fx = 1;
  Match.flash_state = 1;
  Start_GlowRing(body_x(fighter), -5.6f, body_z(fighter), RING_RED);
}

void start_action(int fighter, int action, int from_start) {
  Fighter& f = fighters[fighter];
  if (!in_range(action, 37, 40)) f.crouching = 0;
  f.hit_live = 1;
  if (f.turning && !f.reacting && f.yaw != f.face_yaw) {
    f.turning = 0;
    f.yaw = f.face_yaw;
  }
  if (in_range(f.action, 3, 5)) root_track_end(fighter);
  action = substitute(fighter, action);
  if (f.stance == 23 && action == ACT_PUNCH_B && has_action(f, 241)) action = 241;
  if (f.stance == 23 && action == ACT_KICK_B && has_action(f, 242)) action = 242;
  if (!in_range(action, 0, MAX_ACTIONS - 1)) return;  // nothing the tables could show
  f.action = action;
  const int entry = f.act_win_first[action];
  f.frame = (from_start == 0 && entry != 0 && f.super_mode == 0) ? entry : f.act_first[action];
  set_up(fighter, action);
  if (f.special_cam) {
    Fighter& other = fighters[opponent(fighter)];
    other.pos_x = body_x(opponent(fighter));
    other.root_sync = 2;
  }
  root_track_begin(fighter);
}

int is_neutral(int fighter) {
  Fighter& f = fighters[fighter];
  const int a = f.action;
  const bool neutral = a == 0 || a == 1 || a == 2 || in_range(a, 22, 26) ||
                       ((a == ACT_JUMP || a == ACT_JUMP_DIAGONAL) && f.jump_count >= 38) ||
                       a == 31 || a == 10 || a == 11 || a == 3 || a == 4 ||
                       (a == ACT_GUARD && f.reel_frames == 0);
  if (!neutral) return 0;
  f.crouching = 0;
  clear_neutral_flags(f);
  return 1;
}

int is_crouch_neutral(int fighter) {
  Fighter& f = fighters[fighter];
  const int a = f.action;
  const bool neutral = a == ACT_CROUCH_IDLE || a == ACT_CROUCH ||
                       (a == ACT_CROUCH_GUARD && f.reel_frames == 0);
  if (!neutral) return 0;
  clear_neutral_flags(f);
  return 1;
}
