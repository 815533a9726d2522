// The effect pass of the fight frame: the gauge-charge flash, hit effects, projectiles,
// sparks and flames on body parts, each drawn, advanced and retired here.
#include "fight/fight_state.h"
#include "render/render_3dsprite.h"
#include "render/render_effect.h"
#include "render/render_state.h"

namespace {

// ---- hit effects ---------------------------------------------------------------------------
enum class Shape : std::uint8_t { Billboard, Floor };
// How the side of the square follows the effect's frame f.
enum class Growth : std::uint8_t {
  Fixed,   // size
  Shrink,  // size - f
  Spread,  // size + f
  Card,    // size + 0.35 x min(f, 12)
};
struct HitLook {
  Shape shape;
  Growth growth;
  std::int16_t slot;   // first picture
  std::int16_t cycle;  // pictures in the flip-book (0: one picture)
  float size;
  std::int16_t life;  // frames shown
};
constexpr HitLook kHitLooks[HIT_KINDS] = {
    {Shape::Billboard, Growth::Fixed, 77, 16, 4.0f, 16},   // 0: dust
    {Shape::Billboard, Growth::Fixed, 45, 16, 4.0f, 16},   // 1: hit flash
    {Shape::Billboard, Growth::Fixed, 45, 16, 4.0f, 16},   // 2: hit flash of a class-0 blow
    {Shape::Billboard, Growth::Fixed, 61, 16, 4.0f, 16},   // 3: hit spark
    {Shape::Billboard, Growth::Fixed, 93, 16, 4.0f, 16},   // 4: energy
    {Shape::Billboard, Growth::Shrink, 44, 0, 20.0f, 20},  // 5: white flash closing in
    {Shape::Floor, Growth::Spread, 191, 15, 3.0f, 15},     // 6: wave along the floor
    {Shape::Billboard, Growth::Fixed, 109, 16, 5.0f, 16},  // 7: large energy
    {Shape::Billboard, Growth::Fixed, 137, 16, 5.0f, 16},  // 8: impact
    {Shape::Billboard, Growth::Fixed, 153, 16, 4.0f, 16},  // 9: blast
    {Shape::Billboard, Growth::Fixed, 205, 16, 5.0f, 16},  // 10: guard flare
    {Shape::Billboard, Growth::Fixed, 221, 16, 5.0f, 16},  // 11: explosion
    {Shape::Billboard, Growth::Fixed, 237, 16, 5.0f, 16},  // 12: second explosion
    {Shape::Billboard, Growth::Fixed, 269, 16, 5.0f, 16},  // 13: heavy impact
    {Shape::Billboard, Growth::Fixed, 269, 16, 7.0f, 16},  // 14: heavy impact, large
    {Shape::Billboard, Growth::Card, 301, 0, 2.0f, 20},    // 15: jack
    {Shape::Billboard, Growth::Card, 302, 0, 2.0f, 20},    // 16: queen
    {Shape::Billboard, Growth::Card, 303, 0, 2.0f, 20},    // 17: king
    {Shape::Billboard, Growth::Card, 304, 0, 2.0f, 20},    // 18: ace
    {Shape::Billboard, Growth::Card, 305, 0, 2.0f, 20},    // 19: joker
};
constexpr int kCardGrowFrames = 12;
constexpr float kCardGrowth = 0.35f;

float hit_size(const HitLook& look, int f) {
  switch (look.growth) {
    case Growth::Shrink:
      return look.size - static_cast<float>(f);
    case Growth::Spread:
      return look.size + static_cast<float>(f);
    case Growth::Card:
      return static_cast<float>(f < kCardGrowFrames ? f : kCardGrowFrames) * kCardGrowth +
             look.size;
    case Growth::Fixed:
      break;
  }
  return look.size;
}

void draw_hit(int i, const HitLook& look, int f) {
  const int slot = look.slot + (look.cycle > 0 ? f % look.cycle : 0);
  if (look.shape == Shape::Floor) {
    Set_DrawMode(43);
    Blend_Glow();
    Draw_EffectFloorQuad(i, slot, hit_size(look, f));
    Set_DrawMode(41);
    Blend_Glow();
    return;
  }
  Draw_EffectBillboard(i, slot, hit_size(look, f));
}

void draw_hit_effects() {
  for (int i = 0; i < HIT_EFFECTS; ++i) {
    const HitEffect& e = Effects.Hit_Effect[i];
    if (e.active && e.frame >= 0 && e.kind >= 0 && e.kind < HIT_KINDS)
      draw_hit(i, kHitLooks[e.kind], e.frame);
  }
}

// A slot that is not shown (still waiting, or an unknown kind) is held against the lifetime of
// the last slot shown before it in the pass; a waiting one is never retired before its first
// picture.
void age_hit_effects() {
  int limit = 0;
  for (int i = 0; i < HIT_EFFECTS; ++i) {
    HitEffect& e = Effects.Hit_Effect[i];
    if (!e.active) continue;
    const bool shown = e.frame >= 0 && e.kind >= 0 && e.kind < HIT_KINDS;
    if (shown) limit = kHitLooks[e.kind].life;
    e.frame += 1;
    if (e.frame >= limit && (shown || e.frame > 0)) e.active = 0;
  }
}

// ---- projectiles ---------------------------------------------------------------------------
// How a thrown object turns with the frame counter n.
enum class Spin : std::uint8_t {
  Tumble,   // (n mod 36) x 10 about x, then the facing
  Roll,     // the facing, then (n mod 36) x 10 about z
  AxeFast,  // end over end in the picture plane, a turn in 12 frames
  AxeSlow,  // the same, a turn in 18 frames
};
struct ProjectileLook {
  std::int32_t kind;
  std::int32_t model;  // Polygon_Sprite record
  Spin spin;
  float scale;
};
constexpr ProjectileLook kProjectileLooks[] = {
    {24, 0, Spin::Tumble, 1.4f},                // energy ball
    {25, 0, Spin::Tumble, 1.6f},                // large energy ball
    {42, 1, Spin::Tumble, 1.7f},                // burning card
    {PROJECTILE_CARDS, 1, Spin::Tumble, 1.7f},  // character 6's strong card
    {43, 1, Spin::Roll, 1.4f},                  // card rolling along its flight
    {PROJECTILE_AXE, 2, Spin::AxeFast, 1.2f},   // throwing axe
};
constexpr ProjectileLook kOtherLook = {0, 2, Spin::AxeSlow, 1.7f};  // any other kind: heavy axe
constexpr int kFacingPlusX = 90;
constexpr float kDustY = -5.6f;
constexpr int kDustKind = 0;
constexpr int kDustStart = 4;
constexpr int kDustEvery = 4;

const ProjectileLook& projectile_look(int kind) {
  for (const ProjectileLook& look : kProjectileLooks)
    if (look.kind == kind) return look;
  return kOtherLook;
}

// Axe turn: s forward, or 359 - s for a thrower facing +x.
int axe_turn(int facing, int steps, int degrees) {
  const int s = (frame_count % steps) * degrees;
  return facing == kFacingPlusX ? 359 - s : s;
}

void draw_projectile(const ProjectileSlot& p) {
  const ProjectileLook& look = projectile_look(p.kind);
  const int n = frame_count % 36 * 10;
  switch (look.spin) {
    case Spin::Tumble:
      Draw_3DSprite(look.model, p.x, p.y, p.z, n, p.facing, 0, look.scale);
      break;
    case Spin::Roll:
      Draw_3DSprite(look.model, p.x, p.y, p.z, 0, p.facing, n, look.scale);
      break;
    case Spin::AxeFast:
    case Spin::AxeSlow: {
      const int s =
          look.spin == Spin::AxeFast ? axe_turn(p.facing, 12, 30) : axe_turn(p.facing, 18, 20);
      Set_DrawMode(40);
      Draw_3DSprite(look.model, p.x, p.y, p.z, 90, s, 90, look.scale);
      Set_DrawMode(41);
      break;
    }
  }
  Blend_Glow();
}

void fly(ProjectileSlot& p) {
  p.age += 1;
  if (p.age >= PROJECTILE_LIFE) {
    p.active = 0;
    return;
  }
  if (frame_count % kDustEvery == 0)
    Spawn_HitEffect(p.owner, p.x, kDustY, 0.0f, kDustKind, kDustStart);
  p.x += p.vx;
  p.y += p.vy;
  p.z += p.vz;
}

bool projectiles_frozen() {
  return Match.hit_stop > 0 || fighters[0].freeze_other || fighters[1].freeze_other;
}

void draw_projectiles() {
  for (const ProjectileSlot& p : Effects.Projectile)
    if (p.active) draw_projectile(p);
}

void fly_projectiles() {
  if (projectiles_frozen()) return;
  for (ProjectileSlot& p : Effects.Projectile)
    if (p.active) fly(p);
}

// ---- sparks --------------------------------------------------------------------------------
constexpr float kSparkSize = 0.5f;

void draw_sparks() {
  Set_DrawMode(46);
  Blend_Glow();
  for (int k = 0; k < SPARKS; ++k)
    if (Effects.Sparks[k].active) Draw_SparkBillboard(k, SLOT_SPARK, kSparkSize);
}

void fly_sparks() {
  for (Spark& s : Effects.Sparks) {
    if (!s.active) continue;
    s.x += s.vx;
    s.y += s.vy;
    s.z += s.vz;
    s.age += 1;
    if (s.age >= SPARK_LIFE) s.active = 0;
  }
}

// ---- body-part effects ---------------------------------------------------------------------
struct PartLook {
  std::int16_t slot;  // first picture of the 16-picture flip-book
  float size;
  std::int16_t period;  // phases before it restarts or ends
  bool loops;
};
constexpr PartLook kPartLooks[3] = {
    {253, 3.0f, 16, true},   // 0: flame
    {285, 4.0f, 32, true},   // 1: power
    {205, 3.0f, 16, false},  // 2: flare, once
};
constexpr int kFlipBook = 16;

// Whether the effect on part p starts another round. A flame spread over a beaten, thrown or
// held fighter keeps burning; power set by a blow on the part keeps glowing too. Neither runs
// into the last period of the action.
bool keeps_burning(const Fighter& f, int p, int kind, int period) {
  const bool by_hit = f.part_fx_hold[p] == 1;
  const bool spread_busy = f.busy == 1 && !by_hit;
  const bool reason = kind == 0 ? spread_busy : (spread_busy || by_hit);
  const int action = f.action >= 0 && f.action < MAX_ACTIONS ? f.action : 0;
  return reason && f.frame < f.act_last[action] - period;
}

bool known_part_kind(int kind) { return kind >= 0 && kind <= 2; }

void draw_part_effect(const Fighter& f, int p) {
  const int kind = f.part_fx_kind[p];
  const int phase = f.part_fx_phase[p];
  if (!known_part_kind(kind) || phase < 0) return;
  const PartLook& look = kPartLooks[kind];
  const float cx = (f.part_box[BOX_X_MIN][p] + f.part_box[BOX_X_MAX][p]) / 2.0f;
  const float cy = (f.part_box[BOX_Y_MIN][p] + f.part_box[BOX_Y_MAX][p]) / 2.0f;
  const float cz = (f.part_box[BOX_Z_MIN][p] + f.part_box[BOX_Z_MAX][p]) / 2.0f;
  Draw_Billboard(look.slot + phase % kFlipBook, look.size, cx, cy, cz, f.yaw);
}

void draw_part_effects() {
  Set_DrawMode(43);
  Blend_Glow();
  for (const Fighter& f : fighters)
    for (int p = 0; p < FX_PARTS; ++p)
      if (f.part_fx_on[p]) draw_part_effect(f, p);
}

// A negative phase is a delay: it counts up to the first picture.
void age_part_effect(Fighter& f, int p) {
  const int kind = f.part_fx_kind[p];
  if (!known_part_kind(kind)) {
    f.part_fx_on[p] = 0;
    return;
  }
  const PartLook& look = kPartLooks[kind];
  std::int32_t& phase = f.part_fx_phase[p];
  phase += 1;
  if (phase < look.period) return;
  if (look.loops && keeps_burning(f, p, kind, look.period))
    phase = 0;
  else
    f.part_fx_on[p] = 0;
}

void age_part_effects() {
  for (Fighter& f : fighters)
    for (int p = 0; p < FX_PARTS; ++p)
      if (f.part_fx_on[p]) age_part_effect(f, p);
}

constexpr int kChargeAction = 599;
constexpr int kChargeFrames = 20;
constexpr float kChargeSize = 15.0f;

}  // namespace

// Everything but the sparks is drawn in the current colour, opaque white through a fight, so
// the pictures replace it rather than modulate it; the sparks bring greys of their own. What is
// drawn is the state before this frame's step, which follows.
void Draw_Effects() {
  Set_DrawMode(41);
  Blend_Glow();
  bool replace = Replace_On();
  for (int i = 0; i < 2; ++i)
    if (fighters[i].action == kChargeAction)
      Draw_FighterFloorQuad(i, SLOT_CHARGE_FLASH + frame_count % kChargeFrames, kChargeSize);
  draw_hit_effects();
  draw_projectiles();
  Replace_Off(replace);
  draw_sparks();
  replace = Replace_On();
  draw_part_effects();
  Replace_Off(replace);
  Step_Effects();
}

// Hit effects age before the projectiles fly, so the dust a projectile leaves this frame is
// first aged on the next.
void Step_Effects() {
  age_hit_effects();
  fly_projectiles();
  fly_sparks();
  age_part_effects();
}

void Run_GlowRing() {
  const GlowRing& g = Effects.Glow_Ring;
  if (g.running && (fighters[0].super_mode || fighters[1].super_mode)) Draw_GlowRing(g);
  Step_GlowRing();
}

void Step_GlowRing() {
  GlowRing& g = Effects.Glow_Ring;
  if (!g.running) return;
  g.counter += 1;
  if (g.counter >= GLOW_RING_FRAMES) g.running = 0;
}
