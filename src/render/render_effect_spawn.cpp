// Starting effects: hit effects in the first free slot, the spark burst, projectiles launched
// from a strike, the glow ring.
#include <cstring>

#include "fight/fight_state.h"
#include "render/render_effect.h"
#include "render/render_math.h"

EffectState Effects;

namespace {

// The spark burst: per spark the push sideways (x), up (y) and in depth (z), divided by 50,
// 50 and 20 when the burst starts.
struct SparkPush {
  float x, y, z;
};
constexpr SparkPush kSparkPush[SPARKS] = {
    {0, 15, 0},          // spark 0
    {1, 16.5f, 15},      // spark 1
    {1.3f, 19.5f, 20},   // spark 2
    {10, 17, 3},         // spark 3
    {12, 18, 4},         // spark 4
    {11, 13.5f, 9},      // spark 5
    {13, 9, 12},         // spark 6
    {7.5f, 4, 2},        // spark 7
    {9.5f, 3, 3},        // spark 8
    {8.5f, 2, 0},        // spark 9
    {11, 1, 0},          // spark 10
    {7.5f, 0, -3},       // spark 11
    {3, -1, -10},        // spark 12
    {10.5f, -4.5f, -5},  // spark 13
    {9, -4.5f, -9},      // spark 14
    {-7, -4, -4},        // spark 15
    {-9, -4.5f, -17},    // spark 16
    {-11, -5.3f, -20},   // spark 17
    {-9, 1.5f, -8},      // spark 18
    {-8.5f, 10, -2},     // spark 19
    {-10, 16, 6},        // spark 20
    {-6, 11, 9},         // spark 21
    {-3.5f, 10, 15},     // spark 22
};
constexpr float kSparkFar = 4.0f;   // sideways push away from the blow
constexpr float kSparkBack = 1.5f;  // sideways push back toward it

constexpr float kProjectileSpeed = 2.5f;  // steps per frame: 0.5 units
constexpr int kStrongKind = 25;           // the kind that flies with 10 hit points
constexpr int kCardThrower = 6;
constexpr int kAxeThrower = 13;

int stored_kind(int kind, int character) {
  if (kind == kStrongKind && character == kAxeThrower) return PROJECTILE_HEAVY_AXE;
  if (kind == kStrongKind && character == kCardThrower) return PROJECTILE_CARDS;
  if (character == kAxeThrower) return PROJECTILE_AXE;
  return kind;
}

int wrap_angle(int a) { return ((a % ANGLES) + ANGLES) % ANGLES; }

}  // namespace

int Spawn_HitEffect(int fighter, float x, float y, float z, int kind, int start_frame) {
  if (fighter < 0 || fighter > 1) return -1;
  for (int i = 0; i < HIT_EFFECTS; ++i) {
    HitEffect& e = Effects.Hit_Effect[i];
    if (e.active) continue;
    e = {1, start_frame, kind, fighters[fighter].yaw, x, y, z};
    return i;
  }
  return -1;
}

void Spawn_Sparks(int side, float x, float y, float z) {
  const bool mirrored = side == Match.side_a;
  for (int k = 0; k < SPARKS; ++k) {
    const SparkPush& t = kSparkPush[k];
    const float vx = (mirrored ? -t.x : t.x) / 50.0f;
    const float push =
        mirrored ? (vx > 0 ? kSparkBack : kSparkFar) : (vx > 0 ? kSparkFar : kSparkBack);
    Effects.Sparks[k] = {1, 0, x, y, z, vx * push, t.y / 50.0f, t.z / 20.0f};
  }
  Effects.Burst = {1, side, x, y, z};
}

int Launch_Projectile(int attacker, int part) {
  if (attacker < 0 || attacker > 1 || part < 0 || part >= BODY_PARTS) return -1;
  const Fighter& f = fighters[attacker];
  for (int i = 0; i < PROJECTILES; ++i) {
    ProjectileSlot& p = Effects.Projectile[i];
    if (p.active) continue;
    const int yaw = wrap_angle(f.yaw);
    p.active = 1;
    p.owner = attacker;
    p.guard_class = f.hit_height;
    p.facing = yaw;
    p.damage = f.hit_power;
    p.age = 0;
    p.kind = stored_kind(f.hit_kind, Match.character[attacker]);
    p.hit_points = f.hit_kind == kStrongKind ? 10 : 1;
    p.x = (f.part_box[BOX_X_MIN][part] + f.part_box[BOX_X_MAX][part]) / 2.0f;
    p.y = f.part_box[BOX_Y_MIN][part];
    p.z = 0.0f;
    p.vx = kProjectileSpeed * StepSinTable[yaw];
    p.vy = 0.0f;
    p.vz = kProjectileSpeed * StepCosTable[yaw];
    return i;
  }
  return -1;
}

void Clear_Projectiles() { std::memset(Effects.Projectile, 0, sizeof Effects.Projectile); }

void Start_GlowRing(float x, float y, float z, int colour) {
  Effects.Glow_Ring = {1, 0, colour, x, y, z};
}
