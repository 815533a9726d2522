// Hit detection: the strike test of each fighter's current frame, its sound cues, its
// projectiles, and the clash of two projectiles in flight.
#include <cstdlib>

#include "audio/audio.h"
#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_state.h"
#include "render/render_effect.h"

HitState Hits;

namespace {

constexpr int kLastTestedPart = 16;   // the defender's parts up to the second leg's foot
constexpr int kHandA = 7;             // hands are never struck
constexpr int kHandB = 13;
constexpr float kWidenXZ = 0.2f;      // the defender's boxes widen by this in x and z
constexpr float kWidenY = 1.5f;       // and by this in y
constexpr float kProjectileReach = 1.0f;
constexpr float kClashReach = 2.0f;
constexpr int kClashSound = 151;
constexpr int kClashEffect = 3;
constexpr int kMaxCue = 203;

// Strike codes that only mark something (a body striking the floor, part effects): they arm
// nothing.
constexpr int kUnarmedCodes[] = {5, 17, 38, 39, 40};

// Effect bursts at the striking part, for the strike kinds 17, 18 and 19.
struct KindBurst {
  std::int16_t kind, effect;
};
constexpr KindBurst kKindBursts[] = {
    {17, 7},  // kind 17
    {18, 4},  // kind 18
    {19, 7},  // kind 19
};

bool is_unarmed_code(int code) {
  for (const int c : kUnarmedCodes)
    if (c == code) return true;
  return false;
}

bool is_projectile_kind(int kind) { return kind == 24 || kind == 25 || kind == 42 || kind == 43; }

int frames_to_end(const Fighter& f) { return f.act_last[f.action] - f.frame; }

void part_centre(const Fighter& f, int part, float* c) {
  c[0] = (f.part_box[BOX_X_MIN][part] + f.part_box[BOX_X_MAX][part]) * 0.5f;
  c[1] = (f.part_box[BOX_Y_MIN][part] + f.part_box[BOX_Y_MAX][part]) * 0.5f;
  c[2] = (f.part_box[BOX_Z_MIN][part] + f.part_box[BOX_Z_MAX][part]) * 0.5f;
}

// The defender cannot be struck by the attacker's body this frame.
bool defender_immune(int attacker, int defender) {
  const Fighter& a = fighters[attacker];
  const Fighter& d = fighters[defender];
  const int left = frames_to_end(d);
  if (d.floored && !a.in_special && !a.special_cam) return true;
  if (d.floored && d.part_box[BOX_Y_MAX][4] < -2.3f && !a.special_cam) return true;
  if (d.special_cam) return true;  // its own throw or hold with its camera work runs
  if (d.protected_flag && !a.super_mode) return true;
  if (d.hit_class == GUARD_ALWAYS && !a.super_mode) return true;
  if (d.air_hold) return true;
  if (d.action == 331 && left > 35) return true;
  if (d.action == 522 && left > 25) return true;
  if ((d.action == 597 || (d.action == 598 && a.hit_height != GUARD_LOW)) && left > 15)
    return true;
  if (d.super_mode && d.super_fx && d.in_special && d.frame > d.act_first[d.action] &&
      !a.super_mode)
    return true;
  return false;
}

// The defender cannot be struck by a projectile this frame.
bool projectile_immune(const Fighter& d) {
  const int left = frames_to_end(d);
  if (d.hit_class == GUARD_ALWAYS || d.air_hold || d.action == 331) return true;
  if (d.action == 522 && left > 10) return true;
  if ((d.action == 597 || d.action == 598) && left > 15) return true;
  return false;
}

// Decodes the frame's strike code into the attacker's hit data; arms it unless the attacker
// cannot strike. Strikes of the projectile kinds launch a projectile instead.
void begin_strike(int attacker, int part) {
  Fighter& a = fighters[attacker];
  const int code = a.frame_hit[a.frame];
  a.hit_kind = code % 100;
  a.hit_class = code / 100;
  a.hit_special = 0;
  a.hit_height = Strike_Height(a.hit_kind, &a.hit_special);
  a.hit_power = Strike_Power(a.hit_kind, a.hit_power);
  if (a.action == 180 || a.action == 37)
    a.hit_power = 1 + frame_count % 2;  // the rapid strings
  else if (a.hit_class == 5)
    a.hit_power /= 2;
  if (Match.stage_count == 10 && !Match.human[attacker]) a.hit_power = a.hit_power * 3 / 2;

  float c[3];
  part_centre(a, part, c);
  for (const KindBurst& b : kKindBursts)
    if (b.kind == a.hit_kind) Spawn_HitEffect(attacker, c[0], c[1], c[2], b.effect, 0);
  if (code >= 38 && code <= 40 && part < FX_PARTS) {
    a.part_fx_on[part] = 1;
    a.part_fx_phase[part] = 0;
    a.part_fx_kind[part] = code - 38;
    a.part_fx_hold[part] = 1;
  }

  if (a.busy || a.rising || is_unarmed_code(code)) return;
  a.hit_new = 1;
  a.hit_live = 1;
  a.gauge_gain = 1;
  if (is_projectile_kind(a.hit_kind)) {
    Launch_Projectile(attacker, part);
    Hits.projectile_action[attacker] = a.action;
    a.hit_new = 0;  // the projectile strikes, not the hand that threw it
  }
}

bool inside_widened(const Fighter& d, int part, const float* p) {
  return p[0] > d.part_box[BOX_X_MIN][part] - kWidenXZ &&
         p[0] < d.part_box[BOX_X_MAX][part] + kWidenXZ &&
         p[1] > d.part_box[BOX_Y_MIN][part] - kWidenY &&
         p[1] < d.part_box[BOX_Y_MAX][part] + kWidenY &&
         p[2] > d.part_box[BOX_Z_MIN][part] - kWidenXZ &&
         p[2] < d.part_box[BOX_Z_MAX][part] + kWidenXZ;
}

// Lower bound counts as inside, upper bound as outside.
bool inside_exact(const Fighter& d, int part, const float* p) {
  return p[0] >= d.part_box[BOX_X_MIN][part] && p[0] < d.part_box[BOX_X_MAX][part] &&
         p[1] >= d.part_box[BOX_Y_MIN][part] && p[1] < d.part_box[BOX_Y_MAX][part] &&
         p[2] >= d.part_box[BOX_Z_MIN][part] && p[2] < d.part_box[BOX_Z_MAX][part];
}

// The first struck part for any of the points; the contact point goes to Hits.contact.
bool find_contact(const Fighter& d, const float (*points)[3], int count, bool widened) {
  for (int part = d.first_part; part <= kLastTestedPart; ++part) {
    if (part == kHandA || part == kHandB || part < 0) continue;
    for (int i = 0; i < count; ++i) {
      const bool in = widened ? inside_widened(d, part, points[i]) : inside_exact(d, part, points[i]);
      if (!in) continue;
      Hits.contact[0] = points[i][0];
      Hits.contact[1] = points[i][1];
      Hits.contact[2] = points[i][2];
      return true;
    }
  }
  return false;
}

// Seven test points of a box: its face centres (+x, -x, +y, -y, +z, -z), then its centre.
void box_points(const float* c, const float* h, float (*out)[3]) {
  for (int axis = 0; axis < 3; ++axis) {
    for (int sign = 0; sign < 2; ++sign) {
      float* p = out[axis * 2 + sign];
      p[0] = c[0], p[1] = c[1], p[2] = c[2];
      p[axis] += sign == 0 ? h[axis] : -h[axis];
    }
  }
  out[6][0] = c[0], out[6][1] = c[1], out[6][2] = c[2];
}

void strike_body(int attacker, int defender, int part) {
  Fighter& a = fighters[attacker];
  const Fighter& d = fighters[defender];
  float c[3], h[3];
  part_centre(a, part, c);
  h[0] = a.part_box[BOX_X_MAX][part] - c[0];
  h[1] = a.part_box[BOX_Y_MAX][part] - c[1];
  h[2] = a.part_box[BOX_Z_MAX][part] - c[2];
  if (a.hit_height == GUARD_ALWAYS) {
    Hits.contact[0] = c[0], Hits.contact[1] = c[1], Hits.contact[2] = c[2];
    if (!d.part_fx_on[2] && a.hit_class >= 1 && a.hit_class <= 3)
      spread_part_effect(defender, a.hit_class - 1);
  } else {
    float points[7][3];
    box_points(c, h, points);
    if (!find_contact(d, points, 7, true)) return;
  }
  a.hit_new = 0;
  apply_blow(attacker, defender, a.hit_height, a.hit_power, 0);
}

void strike_projectiles(int attacker, int defender) {
  const Fighter& d = fighters[defender];
  if (projectile_immune(d)) return;
  for (ProjectileSlot& p : Effects.Projectile) {
    if (!p.active || p.owner != attacker) continue;
    float points[7][3];
    const float c[3] = {p.x, p.y, p.z};
    const float h[3] = {kProjectileReach, kProjectileReach, kProjectileReach};
    box_points(c, h, points);
    if (!find_contact(d, points, 7, false)) continue;
    if (p.hit_points % 3 != 1) continue;
    p.active = 0;
    apply_blow(attacker, defender, p.guard_class, p.damage, 1);
    if (p.kind == 42 && fighters[defender].busy) {
      Match.reverse[defender] = 1;
      Match.reverse_frames[defender] = 0;
    }
    if (p.kind == 43 && fighters[defender].part_fx_on[2] == 0)
      spread_part_effect(defender, p.damage % 3);
  }
}

void play_cue(int fighter, int cue) {
  if (cue > kMaxCue) return;
  const int sound = Cue_Sound(cue, Match.character[fighter]);
  if (sound >= 0) Queue_Sound(2 * fighter + 1, sound);
}

}  // namespace

void fighter_strike(int attacker) {
  Fighter& a = fighters[attacker];
  const int defender = opponent(attacker);
  const int part = a.frame_part[a.frame];
  const bool fresh = part != Hits.last_part[attacker];
  Hits.last_part[attacker] = part;

  if (part < 0 && fresh) play_cue(attacker, -1 - part);
  if (part >= 2 && fresh) begin_strike(attacker, part);
  if (part < 2 && a.hit_new == 1) a.hit_new = 0;  // the strike ran out without landing

  if (!defender_immune(attacker, defender) && a.hit_new == 1 && part >= 2 && part < BODY_PARTS)
    strike_body(attacker, defender, part);
  strike_projectiles(attacker, defender);
}

void projectile_clash() {
  fighters[0].projectile_live = 0;
  fighters[1].projectile_live = 0;
  for (const ProjectileSlot& p : Effects.Projectile)
    if (p.active && (p.owner == 0 || p.owner == 1)) fighters[p.owner].projectile_live = 1;
  for (int i = 0; i < PROJECTILES; ++i) {
    for (int j = i + 1; j < PROJECTILES; ++j) {
      ProjectileSlot& p = Effects.Projectile[i];
      ProjectileSlot& q = Effects.Projectile[j];
      if (!p.active || !q.active || p.owner == q.owner) continue;
      if (std::abs(p.x - q.x) >= kClashReach || std::abs(p.y - q.y) >= kClashReach ||
          std::abs(p.z - q.z) >= kClashReach)
        continue;
      Spawn_HitEffect(p.owner, p.x, p.y, p.z, kClashEffect, 0);
      Spawn_HitEffect(q.owner, q.x, q.y, q.z, kClashEffect, 0);
      if (--p.hit_points <= 0) p.active = 0;
      if (--q.hit_points <= 0) q.active = 0;
      Queue_Sound(0, kClashSound);
    }
  }
}

// Spreads a burning effect of `kind` over the whole body, phases staggered.
void spread_part_effect(int fighter, int kind) {
  Fighter& f = fighters[fighter];
  for (int part = 0; part < FX_PARTS; ++part) {
    f.part_fx_on[part] = 1;
    f.part_fx_phase[part] = -2 * ((frame_count + part) % 4);
    f.part_fx_kind[part] = kind;
    f.part_fx_hold[part] = 0;
  }
}
