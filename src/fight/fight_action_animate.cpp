// The animation step: one frame of the running action, its own per-frame behaviour, and the
// follow-up once it reaches its last frame.
#include "cpu/cpu.h"
#include "fight/fight.h"
#include "fight/fight_action_internal.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"

namespace {

constexpr int kQueueWait = 5;       // frames past the link window a waiting link may start
constexpr float kRushSteps = 20.0f; // 4.0 units a frame
constexpr int kKoWait = 70;         // the ending wait once a fallen fighter is held
constexpr float kFloorY = -5.6f;

bool falling_or_lying(int action) {
  return action == ACT_LYING || action == ACT_LYING_B || is_fall_action(action);
}

// Standing still raises no dust.
bool is_standing_idle(int action) { return action == 0 || action == 22 || action == 23; }

// Bigger puffs when a jump lands and a few heavy steps come down.
bool big_footfall(int action) {
  return action == ACT_JUMP || action == 185 || action == 213 || action == 261 || action == 294;
}

void guard_stun(Fighter& f) {
  if (f.action == ACT_GUARD || f.action == ACT_CROUCH_GUARD) {
    if (f.reel_frames > 0) {
      f.guarding = 1;
      f.frame = f.act_first[f.action] + 4;
    }
  } else {
    f.guarding = 0;
  }
}

// The link window: a waiting link starts from its last frame until five frames past it, and
// is forgotten after that.
bool link_window(int fighter) {
  Fighter& f = fighters[fighter];
  const int last = f.act_win_last[f.action];
  if (last <= 0) return false;
  if (f.frame >= last && f.frame <= last + kQueueWait && take_queued(fighter)) return true;
  if (f.frame == last + kQueueWait) f.queued = 0;
  return false;
}

// Rushes that loop while their count lasts, carrying the fighter forward.
void rush_step(Fighter& f) {
  const int first = f.act_first[f.action];
  const int last = f.act_last[f.action];
  if (f.loop_count <= 0) return;
  if (f.action == 199 && f.frame >= first + 13) {
    f.frame = first + 5;
    --f.loop_count;
  } else if ((in_range(f.action, 299, 300) || in_range(f.action, 323, 324)) &&
             f.frame == last - 1) {
    f.frame -= 1;
    --f.loop_count;
  } else {
    return;
  }
  move_along(f, f.yaw, kRushSteps);
}

void ko_hold(int fighter) {
  Fighter& f = fighters[fighter];
  if (Match.ko_state != 1 || !falling_or_lying(f.action)) return;
  const int hold_at = f.act_last[f.action] - 2;
  if (f.frame >= hold_at) f.frame = hold_at - 1;
  fighters[opponent(fighter)].combo = 0;
  if (Match.ko_wait > kKoWait) Match.ko_wait = kKoWait;
}

// Thrown and knocked about: the computer may act again as soon as it is up.
bool knocked_about(int action) {
  return in_range(action, 82, 103) || in_range(action, 105, 115) || in_range(action, 119, 129);
}

void running_action(int fighter) {
  Fighter& f = fighters[fighter];
  if (f.freeze_other && f.frame > f.act_win_first[f.action]) f.freeze_other = 0;
  if (link_window(fighter)) return;
  if (f.frame == f.act_first[f.action] + 1 && !f.root_track) root_track_begin(fighter);
  knock_back_step(fighter);
  jump_arc_step(fighter);
  rush_step(f);
  if (f.action == ACT_CHARGE && frame_count % 3 == 0) ++f.gauge_gain;
  fall_step(fighter);
  ko_hold(fighter);
}

void puff(int fighter, int kind) {
  Spawn_HitEffect(fighter, body_x(fighter), kFloorY, body_z(fighter), kind, 0);
}

void footfalls(int fighter) {
  const Fighter& f = fighters[fighter];
  if (f.model_flag != 1) return;
  const int last = f.act_last[f.action];
  if (f.action == 12 || f.action == 13) {
    const int mark = f.frame_hit[f.frame] % 100;
    if (in_range(mark, 1, 3)) puff(fighter, 0);
  } else if (f.action == ACT_CROUCH || f.action == ACT_STAND_UP) {
    if (f.frame == last - 2) puff(fighter, 0);
  } else if (f.frame == last - 15 && !is_standing_idle(f.action)) {
    puff(fighter, big_footfall(f.action) ? 6 : 0);
  }
}

// A strike stays live until its frames are over, unless the frame marks it as going on.
void clear_spent_strike(Fighter& f) {
  if (f.action == ACT_PUNCH || f.action == 37) return;
  if (f.frame_part[f.frame] >= 2) return;  // the strike's frames are still playing
  const bool past_window = f.frame > f.act_win_last[f.action];
  const bool near_end = f.frame >= f.act_last[f.action] - 9;
  if (past_window || near_end) f.hit_live = 0;
}

void beaten_pose(int fighter) {
  Fighter& f = fighters[fighter];
  if (Match.ko_state != 1 || f.life >= 1) return;
  if (f.action == ACT_BEATEN) return;
  if (!is_neutral(fighter) && !is_crouch_neutral(fighter)) return;
  start_action(fighter, ACT_BEATEN, 1);
  f.busy = 1;
  f.reacting = 1;
}

}  // namespace

void fighter_animate(int fighter) {
  Fighter& f = fighters[fighter];
  if (!in_range(f.action, 0, MAX_ACTIONS - 1)) return;
  guard_stun(f);
  if (knocked_about(f.action)) CpuReadyAtOnce(fighter);
  const bool lying = f.action == ACT_LYING || f.action == ACT_LYING_B;
  if (lying) get_up(fighter, f.action == ACT_LYING_B);
  else if (f.action < 600 && f.frame >= f.act_last[f.action]) end_action(fighter);
  else running_action(fighter);
  ++f.frame;
  if (f.action == ACT_LYING || f.action == ACT_LYING_B) f.frame = f.act_first[f.action];
  if (f.frame < 0 || f.frame >= MAX_FRAMES) f.frame = f.act_first[f.action];
  footfalls(fighter);
  clear_spent_strike(f);
  beaten_pose(fighter);
}
