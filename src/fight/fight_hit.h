// The hit step's own state: what the strike test saw last and where the last blow landed.
// Written only by fight_hit*.cpp (and restored with the rest of the fight state by whoever
// saves it); the effects and the camera read the contact point.
#pragma once
#include <cstdint>

struct HitState {
  std::int32_t last_part[2];  // frame_part met by each fighter's previous strike test
  float contact[3];           // contact point of the last blow
  // What each attacker has landed (a blow taken unguarded, or a hold taken): how many, and
  // the move of the last one (for a projectile, the move that threw it). Review tools read
  // these; the fight never does.
  std::int32_t landed[2];
  std::int32_t landed_action[2];
  std::int32_t guarded[2];         // blows the defender guarded, and the move of the last one
  std::int32_t guarded_action[2];
  std::int32_t projectile_action[2];  // the move that threw each fighter's latest projectile
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
// Spreads a burning effect of `kind` (0..2) over the fighter's whole body, phases staggered.
void spread_part_effect(int fighter, int kind);
// Being thrown or held: the fighter's motion is played out by the pair, and blows it takes
// meanwhile hurt without starting another reaction.
bool is_thrown_or_held(int fighter);
// Puts a fighter straight into a reaction at its first frame (the hit code's own set-up).
void set_reaction(int fighter, int action);
