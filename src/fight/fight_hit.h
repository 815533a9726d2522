// The hit step's own state: what the strike test saw last, where the last blow landed and the
// arcs of launched fighters. Written only by fight_hit*.cpp (and restored with the rest of the
// fight state by whoever saves it); the effects and the camera read the contact point.
#pragma once
#include <cstdint>

// The flight of a launched fighter: started by the blow, run by launch_step each frame.
struct LaunchArc {
  std::int32_t running;  // 1 while the fighter is in the air from a blow
  float t;               // time since the blow, +0.07 a frame
  float h0;              // height at the blow
  float vx, vz;          // horizontal speed per frame
  float v;               // launch power (the attacker's launch_speed)
  float k;               // lift factor
};

struct HitState {
  std::int32_t last_part[2];  // frame_part met by each fighter's previous strike test
  float contact[3];           // contact point of the last blow
  LaunchArc arc[2];
};
extern HitState Hits;

// Guard classes as the blow sees them.
enum : std::int32_t {
  GUARD_NONE = 0,    // never guarded
  GUARD_MID = 1,     // guarded standing or crouching
  GUARD_HIGH = 2,    // guarded standing only
  GUARD_LOW = 3,     // guarded crouching only
  GUARD_ALWAYS = 4,  // needs no contact and is never guarded
  GUARD_COUNTER = 6, // never guarded, answered with 521
};

// The strike's damage and guard class from its kind (before the per-action rules).
std::int32_t Strike_Power(std::int32_t kind, std::int32_t power);
std::int32_t Strike_Height(std::int32_t kind, std::int32_t* special);
// The sound a strike's cue plays for this character; -1 for none.
int Cue_Sound(int cue, int character);
// Starts the flight of a launched defender (the blow's damage).
void launch_begin(int defender, int damage);
// One frame of the flight: moves the fighter and sets its height; clears the arc once it
// lands. Holds the frame of the launched reactions while airborne.
void launch_step(int fighter);
// Puts a fighter straight into a reaction at its first frame (the hit code's own set-up).
void set_reaction(int fighter, int action);
