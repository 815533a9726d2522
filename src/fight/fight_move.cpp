// Movement, facing and spacing: the fighters' separation, the arena's edge, pushing apart,
// facing each other and changing sides, and the model's own root motion.
#include <cmath>
#include <cstring>

#include "audio/audio.h"
#include "fight/fight.h"
#include "fight/fight_action_internal.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "render/render_math.h"

SpacingState Spacing;

namespace {

constexpr float kStep = 0.2f;          // one step, in units
constexpr float kArenaRadius = 25.0f;
constexpr float kKeepApart = 4.0f;     // roots closer than this are pushed apart
constexpr float kPassingOver = 2.0f;   // a jumper this much higher passes over
constexpr int kTurnDelay = 4;          // frames facing the wrong way before turning
constexpr int kLookEntries = 25;
constexpr int kLookEntriesCrouching = 15;
constexpr int kLookStep = 2;           // degrees a frame the head turns

// Per-fighter state of the movement step. Written only here.
struct MoveState {
  std::int32_t wrong_way[2];  // frames spent facing away from the opponent
  std::int32_t ended_at[2];   // frame_count when root tracking last ended
  // Root tracking takes its body point from the first drawing of the tracked action.
  std::int32_t capture[2];    // 1 until it has
  std::int32_t began_at[2];   // frame_count when the tracking began
  float drawn_x[2], drawn_z[2];  // the positions the next drawing shows
};
MoveState Move;

bool is_dodge(int action) { return action == ACT_DODGE_LOW || action == ACT_DODGE_IN; }

// Special moves whose travel the fight follows by the position, not the body point.
bool tracked_by_position(int fighter) {
  const int c = character_of(fighter);
  const int a = fighters[fighter].action;
  if ((c == 0 || c == 11 || c == 14) && in_range(a, 305, 307)) return true;
  if ((c == 9 || c == 13) && a == 305) return true;
  return (c == 3 || c == 10) && a == 226;
}

bool uses_body_point(int fighter) {
  const Fighter& f = fighters[fighter];
  const int a = f.action;
  const bool moved_by_model = f.busy || a == 3 || a == 4 || is_dodge(a) || f.reel_frames > 0 ||
                              f.in_special;
  return moved_by_model && !tracked_by_position(fighter);
}

bool both_by_body_point() {
  const Fighter& a = fighters[0];
  const Fighter& b = fighters[1];
  return Match.after_ko != 0 || Match.replay_state != 0 || a.special_cam || b.special_cam ||
         a.action == ACT_ESCAPE || b.action == ACT_ESCAPE;
}

// ---- look angle ----------------------------------------------------------------------------
void part_centre(const Fighter& f, int part, float* x, float* y, float* z) {
  *x = (f.part_box[BOX_X_MIN][part] + f.part_box[BOX_X_MAX][part]) * 0.5f;
  *y = (f.part_box[BOX_Y_MIN][part] + f.part_box[BOX_Y_MAX][part]) * 0.5f;
  *z = (f.part_box[BOX_Z_MIN][part] + f.part_box[BOX_Z_MAX][part]) * 0.5f;
}

int look_target(int fighter) {
  const Fighter& f = fighters[fighter];
  float x0, y0, z0, x1, y1, z1;
  part_centre(f, 2, &x0, &y0, &z0);
  part_centre(fighters[opponent(fighter)], 2, &x1, &y1, &z1);
  const float dx = x1 - x0, dy = y1 - y0, dz = z1 - z0;
  const float dist = std::sqrt(dx * dx + dy * dy + dz * dz);
  if (dist <= 0.0f) return 0;
  const float s = std::fabs(dy / dist);
  const int entries = f.crouching ? kLookEntriesCrouching : kLookEntries;
  int i = 0;
  while (i < entries - 1 && ArcsineTable[i] < s) ++i;
  return dy < 0.0f ? -i : i;
}

void look_step(int fighter) {
  Fighter& f = fighters[fighter];
  const int a = f.action;
  if (!(in_range(a, 0, 2) || in_range(a, 22, 26))) {
    f.extra_angle[0] = 0;
    return;
  }
  const int target = look_target(fighter);
  int& angle = f.extra_angle[0];
  if (angle < target) angle = angle + kLookStep < target ? angle + kLookStep : target;
  else if (angle > target) angle = angle - kLookStep > target ? angle - kLookStep : target;
}

// ---- arena edge ----------------------------------------------------------------------------
bool held_by_the_edge(int fighter) {
  const Fighter& f = fighters[fighter];
  const int a = f.action;
  return !f.busy && !f.guarding && !f.special_cam && !f.rise_flag && f.jump_dir != 1 &&
         f.life >= 1 && a != ACT_ESCAPE && a != ACT_ESCAPED && a != 3 && !is_dodge(a);
}

void arena_edge(int fighter) {
  Fighter& f = fighters[fighter];
  const float dx = body_x(fighter) - Spacing.centre_x;
  const float dz = body_z(fighter) - Spacing.centre_z;
  const float over = std::sqrt(dx * dx + dz * dz) - kArenaRadius;
  if (over <= 0.0f) return;
  if (held_by_the_edge(fighter)) {
    move_along(f, f.face_yaw, over / kStep);
  } else {  // the circle follows the fighter out
    const int out = wrap_deg(f.face_yaw + 180);
    Spacing.centre_x += over * StepSinTable[out] / kStep;
    Spacing.centre_z += over * StepCosTable[out] / kStep;
  }
  update_distance();
}

// ---- push-apart ----------------------------------------------------------------------------
bool dodging_early(const Fighter& f) {
  return is_dodge(f.action) && f.frame < f.act_last[f.action] - 10;
}

bool passing_over() {
  for (const Fighter& f : fighters) {
    const bool airborne = f.reacting && in_range(f.jump_count, 6, 29);
    if (airborne && Spacing.height_gap > kPassingOver) return true;
  }
  return false;
}

void push_apart() {
  const Fighter& a = fighters[0];
  const Fighter& b = fighters[1];
  if (a.special_cam || b.special_cam || dodging_early(a) || dodging_early(b)) return;
  if (passing_over()) return;
  const float gap = Spacing.distance;
  if (gap >= kKeepApart) return;
  const float half = (kKeepApart - gap) * 0.5f / kStep;
  for (Fighter& f : fighters) {
    move_along(f, faces_away(f) ? f.yaw : f.yaw + 180, half);
  }
}

// ---- facing and sides ----------------------------------------------------------------------
bool flipped(int old_yaw, int new_yaw) {
  const int d = wrap_deg(new_yaw - old_yaw);
  return d > 120 && d < 300;
}

bool facing_locked() {
  const Fighter& a = fighters[0];
  const Fighter& b = fighters[1];
  const bool far_from_end = a.frame < a.act_last[a.action] - 10 && b.frame < b.act_last[b.action] - 10;
  return (a.special_cam || b.special_cam) && far_from_end;
}

void count_wrong_way(int fighter) {
  Fighter& f = fighters[fighter];
  const int off = wrap_deg(f.yaw - f.face_yaw);
  if (f.rising || off < 120 || off > 270) {
    Move.wrong_way[fighter] = 0;
    return;
  }
  if (++Move.wrong_way[fighter] >= kTurnDelay) f.turning = 1;
}

void update_facing() {
  if (!facing_locked()) {
    const int left = body_x(0) <= body_x(1) ? 0 : 1;
    const int old0 = fighters[0].face_yaw, old1 = fighters[1].face_yaw;
    fighters[left].face_yaw = 90;
    fighters[opponent(left)].face_yaw = 270;
    if (flipped(old0, fighters[0].face_yaw) && flipped(old1, fighters[1].face_yaw)) {
      const int a = Match.side_a;
      Match.side_a = Match.side_b;
      Match.side_b = a;
    }
  }
  count_wrong_way(0);
  count_wrong_way(1);
}

// Along the fighter's facing: +1 when it faces +x.
float facing_sign(int yaw) { return StepSinTable[wrap_deg(yaw)] > 0.0f ? 1.0f : -1.0f; }

// ---- launches ------------------------------------------------------------------------------
struct Launch {
  std::int32_t active;
  float t, h0, vx, vz, lift;
};
Launch Launches[2];

bool launched_reaction(int action) { return action == 157 || action == 158 || action == 167; }

void launch_flight(int fighter) {
  Fighter& f = fighters[fighter];
  Launch& l = Launches[fighter];
  if (!l.active) return;
  f.pos_x += l.vx;
  f.pos_z += l.vz;
  f.height = l.lift * l.t + l.h0 - 4.9f * l.t * l.t;
  l.t += 0.07f;
  if (f.height < 0.0f) {
    f.height = 0.0f;
    l.active = 0;
    return;
  }
  const int hold_at = launched_reaction(f.action) ? f.act_first[f.action] + 18
                                                  : f.act_last[f.action] - 2;
  if (f.frame >= hold_at) f.frame = hold_at - 1;
}

void floor_strike(int fighter) {
  Fighter& f = fighters[fighter];
  if (f.frame_hit[f.frame] != 5 || f.frame_part[f.frame] != 2) return;
  f.floored = 1;
  constexpr int kDustParts[] = {2, 3, 4, 6, 9, 12, 15};
  for (int p : kDustParts) {
    const float x = (f.part_box[BOX_X_MIN][p] + f.part_box[BOX_X_MAX][p]) * 0.5f;
    const float z = (f.part_box[BOX_Z_MIN][p] + f.part_box[BOX_Z_MAX][p]) * 0.5f;
    Spawn_HitEffect(fighter, x, -5.6f, z, 0, 0);
  }
  Spawn_HitEffect(fighter, body_x(fighter), -5.65f, body_z(fighter), 0, 0);
  Queue_Sound(2 * fighter + 1, 156);
}

void air_hold(int fighter) {
  Fighter& f = fighters[fighter];
  if (f.air_timer >= 1) {
    f.air_hold = 0;
    return;
  }
  if (!is_fall_action(f.action) || f.frame != f.act_last[f.action] - 2) return;
  ++f.air_timer;
  --f.frame;
  f.air_hold = 1;
}

}  // namespace

// ---- shared with the action machine --------------------------------------------------------
void move_along(Fighter& f, int yaw, float steps) {
  const int a = wrap_deg(yaw);
  f.pos_x += steps * StepSinTable[a];
  f.pos_z += steps * StepCosTable[a];
}

bool is_fall_action(int action) {
  return in_range(action, 82, 115) || in_range(action, 119, 129) || in_range(action, 143, 148) ||
         in_range(action, 157, 175) || in_range(action, 410, 479) || in_range(action, 570, 593);
}

// Knock-back pushes by frames left.
constexpr float kKnockBack[16] = {
    0, 0, 0, 0, 0,  // 0..4
    0.00195f,       // 5
    0.0039f,        // 6
    0.00781f,       // 7
    0.0025f,        // 8
    0.05f,          // 9
    0.075f,         // 10
    0.125f,         // 11
    0.25f,          // 12
    0.5f,           // 13
    0.5f,           // 14
    0.6f,           // 15
};

void knock_back_step(int fighter) {
  Fighter& f = fighters[fighter];
  if (f.reel_frames > 0) {
    const float steps = f.knock_force * kKnockBack[f.reel_frames < 15 ? f.reel_frames : 15];
    move_along(f, faces_away(f) ? f.yaw : f.yaw + 180, steps);
    --f.reel_frames;
  } else if (f.reel_push > 0 && f.busy) {
    const float steps = f.knock_force * kKnockBack[f.reel_push < 15 ? f.reel_push : 15];
    move_along(f, faces_away(f) ? f.yaw + 180 : f.yaw, steps);
    --f.reel_push;
  }
}

// Jump heights by jump_count.
constexpr float kJumpHeight[40] = {
    0, 0, 0, 0, 0,               // 0..4: the take-off
    1.4f, 2.8f, 4.0f, 4.2f, 5.2f,  // 5..9
    6.2f, 7.0f, 7.8f, 8.4f, 9.0f,  // 10..14
    9.4f, 9.8f, 10.0f, 10.1f, 10.1f,  // 15..19: the top
    10.0f, 9.8f, 9.4f, 9.0f, 8.4f,   // 20..24
    7.8f, 7.0f, 6.2f, 5.2f, 4.2f,    // 25..29
    4.0f, 2.8f, 1.4f, 0, 0,          // 30..34
    0, 0, 0, 0, 0,                   // 35..39
};

void jump_arc_step(int fighter) {
  Fighter& f = fighters[fighter];
  const bool jumping = f.action == ACT_JUMP || f.action == ACT_JUMP_DIAGONAL || is_jump_attack(f.action);
  if (!jumping || !f.reacting) return;
  if (f.jump_count >= JUMP_FRAMES) {
    if (f.jump_count < 39) ++f.jump_count;  // the landing: neutral again from 38
    return;
  }
  if (f.jump_count >= 5) {
    f.pos_x += f.move_dx;
    f.pos_z += f.move_dz;
  }
  f.height = kJumpHeight[f.jump_count];
  if (f.jump_count == 3) Queue_Sound(2 * fighter + 1, 160);
  if (++f.jump_count < JUMP_FRAMES) return;
  f.action = ACT_JUMP;
  f.frame = f.act_first[ACT_JUMP] + JUMP_FRAMES;
  f.height = 0.0f;
  f.move_dx = f.move_dz = 0.0f;
  f.jump_flag = 0;
}

void fall_step(int fighter) {
  launch_flight(fighter);
  floor_strike(fighter);
  air_hold(fighter);
}

void start_launch(int defender, int damage, float launch_speed) {
  Fighter& f = fighters[defender];
  Launch& l = Launches[defender];
  const float d = static_cast<float>(damage < 3 ? damage : 3);
  float speed = d * kStep / 10.0f;
  if (launch_speed >= 2.0f) {
    l.lift = launch_speed * d / 10.0f;
    if (faces_away(f) || f.turning) speed *= 1.5f;
  } else {
    l.lift = launch_speed * d / 2.0f;
    speed /= 4.0f;
  }
  const int a = wrap_deg(f.face_yaw + 180);  // away from the attacker
  l.vx = speed * StepSinTable[a] / kStep;
  l.vz = speed * StepCosTable[a] / kStep;
  l.t = 0.0f;
  l.h0 = f.height;
  l.active = 1;
}

void stop_launch(int fighter) { Launches[fighter].active = 0; }

// ---- public --------------------------------------------------------------------------------
void update_distance() {
  const bool both = both_by_body_point();
  for (int i = 0; i < 2; ++i) {
    const Fighter& f = fighters[i];
    const bool body = both || uses_body_point(i);
    Spacing.track_x[i] = body ? body_x(i) : f.pos_x;
    Spacing.track_z[i] = body ? body_z(i) : f.pos_z;
  }
  Spacing.distance = std::fabs(Spacing.track_x[0] - Spacing.track_x[1]);
  const float h0 = body_height(0) > 0.0f ? body_height(0) : 0.0f;
  const float h1 = body_height(1) > 0.0f ? body_height(1) : 0.0f;
  Spacing.height_gap = std::fabs(h0 - h1);
}

float body_height(int fighter) { return fighters[fighter].height; }

namespace {

// The tracked action has been drawn since it began: where its body point stands against the
// position is what the tracking measures its travel from.
void capture_start(int fighter) {
  Fighter& f = fighters[fighter];
  if (!Move.capture[fighter] || Move.began_at[fighter] == frame_count) return;
  f.track_root0 = body_x(fighter);
  f.track_x0 = Move.drawn_x[fighter];
  f.track_z0 = Move.drawn_z[fighter];
  Move.capture[fighter] = 0;
}

void spacing_step() {
  update_distance();
  arena_edge(0);
  arena_edge(1);
  push_apart();
  update_facing();
}

}  // namespace

void move_step() {
  for (int i = 0; i < 2; ++i) {
    capture_start(i);
    root_sync(i);
    look_step(i);
  }
  if (!Match.frozen) spacing_step();
  for (int i = 0; i < 2; ++i) {
    Move.drawn_x[i] = fighters[i].pos_x;
    Move.drawn_z[i] = fighters[i].pos_z;
  }
}

void reset_spacing() {
  Spacing = SpacingState{};
  Move = MoveState{};
  Launches[0] = Launches[1] = Launch{};
  for (int i = 0; i < 2; ++i) {
    Move.drawn_x[i] = fighters[i].pos_x;
    Move.drawn_z[i] = fighters[i].pos_z;
  }
  update_distance();
}

void root_track_begin(int fighter) {
  Fighter& f = fighters[fighter];
  if (f.root_track) return;
  f.track_root0 = body_x(fighter);  // until the action's own first drawing is seen
  f.track_x0 = f.pos_x;
  f.track_z0 = f.pos_z;
  f.root_track = 1;
  Move.capture[fighter] = 1;
  Move.began_at[fighter] = frame_count;
}

// The position follows the body point's own travel since the tracking began: wherever the
// hips sit on a character's model, a motion that carries nothing leaves the position alone.
void root_track_end(int fighter) {
  Fighter& f = fighters[fighter];
  if (!f.root_track) return;
  if (!Move.capture[fighter]) f.pos_x = body_x(fighter) - (f.track_root0 - f.track_x0);
  Move.capture[fighter] = 0;
  f.root_track = 0;
  f.root_sync = 1;
  Move.ended_at[fighter] = frame_count;
}

void root_sync(int fighter) {
  Fighter& f = fighters[fighter];
  // After the next drawing, the new action's own whole-body offset is taken back out of the
  // position, so the body stays where the tracked motion left it.
  if (f.root_sync != 0 && !(f.root_sync == 1 && Move.ended_at[fighter] == frame_count)) {
    const float back = -f.frame_offset[f.frame][2] * facing_sign(f.face_yaw);
    f.pos_x += (faces_away(f) && f.root_sync == 1) ? -back : back;
    f.root_sync = 0;
  }
  f.pos_z = 0.0f;
}

// ---- saving a fight ------------------------------------------------------------------------
static_assert(sizeof(MoveState) + sizeof(Launches) <= sizeof(MoveSave::bytes));

void Move_Save(MoveSave* out) {
  std::memcpy(out->bytes, &Move, sizeof Move);
  std::memcpy(out->bytes + sizeof Move, Launches, sizeof Launches);
}

void Move_Restore(const MoveSave& in) {
  std::memcpy(&Move, in.bytes, sizeof Move);
  std::memcpy(Launches, in.bytes + sizeof Move, sizeof Launches);
}
