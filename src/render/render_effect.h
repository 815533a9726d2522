// Effects: hit flashes, dust and explosions as flip-book billboards, thrown objects drawn with
// the effect models, flying sparks, flames on body parts and the glow ring under a super move.
//
// The fight core starts effects through the spawners below; the effect pass draws them once a
// fight frame, advances their counters and retires them. Every effect blends with the glow
// function, so it brightens what lies behind it.
//
// EffectState is written by the spawners and the effect pass; besides them the fight core's
// projectile step writes a projectile's live flag and hit points, the round start clears the
// projectiles, and the replay writes the recorded slots back when it shows a frame.
#pragma once
#include <cstdint>

constexpr int HIT_EFFECTS = 20;
constexpr int HIT_KINDS = 20;  // hit-effect kinds 0..19
constexpr int PROJECTILES = 4;
constexpr int SPARKS = 23;
constexpr int PROJECTILE_LIFE = 60;  // frames a projectile flies
constexpr int SPARK_LIFE = 50;       // frames a spark flies
constexpr int GLOW_RING_FRAMES = 16;

// Texture slots of the fight's picture set that the pass reads directly.
constexpr int SLOT_SPARK = 94;
constexpr int SLOT_CHARGE_FLASH = 169;  // 20 frames under a fighter charging the gauge
constexpr int SPRITE_LIGHT_POOL = 125;  // "dlight.bmp", the glow ring's picture

struct HitEffect {
  std::int32_t active;
  std::int32_t frame;   // negative: frames still to wait before the first picture
  std::int32_t kind;    // 0..19
  std::int32_t facing;  // yaw of the fighter that spawned it
  float x, y, z;
};

// Stored kinds beyond the strike kinds 24, 25, 42 and 43: who threw what.
constexpr int PROJECTILE_AXE = -100;        // character 13, any kind but 25
constexpr int PROJECTILE_HEAVY_AXE = -200;  // character 13, kind 25
constexpr int PROJECTILE_CARDS = -300;      // character 6, kind 25

struct ProjectileSlot {
  std::int32_t active;
  std::int32_t owner;        // fighter index
  std::int32_t guard_class;  // the thrower's hit_height at the launch
  std::int32_t facing;       // the thrower's yaw
  std::int32_t damage;
  std::int32_t age;         // frames flown
  std::int32_t kind;        // strike kind, or one of the stored kinds above
  std::int32_t hit_points;  // 10 for kind 25, else 1
  float x, y, z;
  float vx, vy, vz;  // per frame
};

struct Spark {
  std::int32_t active;
  std::int32_t age;
  float x, y, z;
  float vx, vy, vz;
};

// Glow ring colours.
enum : std::int32_t { RING_RED = 1, RING_GREEN, RING_BLUE, RING_GREY };

struct GlowRing {
  std::int32_t running;  // 1 while the counter runs
  std::int32_t counter;  // frames shown, 0..16
  std::int32_t colour;   // RING_RED..RING_GREY
  float x, y, z;
};

// The last spark burst, for the replay recorder: set by Spawn_Sparks; the recorder copies it
// into the frame it records and clears the flag.
struct EffectBurst {
  std::int32_t flag;
  std::int32_t side;
  float x, y, z;
};

struct EffectState {
  HitEffect Hit_Effect[HIT_EFFECTS];
  ProjectileSlot Projectile[PROJECTILES];
  Spark Sparks[SPARKS];
  GlowRing Glow_Ring;
  EffectBurst Burst;
};
static_assert(sizeof(HitEffect) == 28 && sizeof(ProjectileSlot) == 56 && sizeof(Spark) == 32);
extern EffectState Effects;

// ---- spawners (the fight core) -------------------------------------------------------------
// Takes the first free hit-effect slot (none free: nothing happens) with the fighter's yaw as
// facing. Returns the slot, or -1.
int Spawn_HitEffect(int fighter, float x, float y, float z, int kind, int start_frame);
// All 23 sparks burst from (x, y, z), most of them toward -x when `side` is the fighter on
// the left (Match.side_a), else toward +x; records the burst for the replay.
void Spawn_Sparks(int side, float x, float y, float z);
// Launches the attacker's current strike (hit_kind, hit_height, hit_power) as a projectile from
// the striking part's box: its centre x, its lower y, z 0, flying along the attacker's yaw at
// 0.5 units a frame. Returns the slot, or -1 when all four are in flight.
int Launch_Projectile(int attacker, int part);
// Round start: no projectile in flight.
void Clear_Projectiles();
// Starts the glow ring around (x, y, z) in the given colour.
void Start_GlowRing(float x, float y, float z, int colour);

// ---- the pass (the fight frame) ------------------------------------------------------------
// Once per drawn fight frame, after the fighters (not while the win pose runs): draws every
// effect as it stands, then runs Step_Effects.
void Draw_Effects();
// The effects' frame without drawing: hit effects age and retire, projectiles fly (leaving
// dust) unless the fight is held, sparks fly and fade, body-part effects run their phases.
// The fight reads what this leaves (free slots, part_fx_on), so a frame stepped without
// drawing runs it too.
void Step_Effects();
// The stage pass's glow step: while the ring runs, draws it when either fighter is in a super
// move, then runs Step_GlowRing.
void Run_GlowRing();
// Advances a running glow ring's counter; it stops after 16 frames.
void Step_GlowRing();

// ---- drawing primitives --------------------------------------------------------------------
// Each binds TextureId[slot] and draws nothing when the centre lies less than 1.0 in front of
// the camera. Billboards face the camera and are mirrored left-right unless facing is 90.
void Draw_EffectBillboard(int effect, int slot, float size);
void Draw_Billboard(int slot, float size, float x, float y, float z, int facing);
void Draw_SparkBillboard(int spark, int slot, float size);
// Squares lying flat: around a hit effect at its height, under a fighter's body centre at the
// floor (corners on whole units), and the glow ring (20 x 20 in its colour).
void Draw_EffectFloorQuad(int effect, int slot, float size);
void Draw_FighterFloorQuad(int fighter, int slot, float size);
void Draw_GlowRing(const GlowRing& ring);
