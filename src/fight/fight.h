// The fight core's operations: commands and links, the action machine, movement and spacing,
// hits and damage, rounds and match rules, the knock-out replay.
//
// Every operation works on the two records of fight_state.h (fighters[], Match) and the
// players' input records; none draws, allocates or touches a file, so the whole fight runs
// without a window ("state in, input in, state out"). Functions that take `fighter` take the
// index 0 (player-1 side) or 1.
#pragma once
#include <cstdint>

// ---- commands and move links (fight_command.cpp) ---------------------------------------
// Once a frame for each player-driven fighter, after its input is read: the direction code
// history and the command it completes.
void update_commands(int fighter);
void clear_commands(int fighter);  // history to -2, position 0
void clear_input(int fighter);     // every direction, tap and button of the fighter's input
// The action the command `slot` links to from the running action; 0 for none.
int find_link(int fighter, int slot);
void queue_link(int fighter, int next_action);
// Starts a waiting link when the running action reaches its link window; 1 when it did.
int take_queued(int fighter);
// Starts the character's special move of `slot` (as a link when one is running); 1 when an
// action was started.
int try_special(int fighter, int slot);
// The command slot of a command (0..7) with an attack button (1..4).
int command_slot(int command, int button);

// ---- the action machine (fight_action.cpp) ---------------------------------------------
// The only way the fight changes a fighter's action, apart from the direct set-ups.
// from_start 1 starts at the action's first frame, 0 at its link entry. Clears reel_frames
// for most actions: a reaction's knock-back is set after the reaction has started.
void start_action(int fighter, int action, int from_start);
int is_neutral(int fighter);         // may start a normal action from standing
int is_crouch_neutral(int fighter);  // the same from crouching
void fighter_input(int fighter);
// The reaction a throw (80 or 81) by a fighter of `character` puts its victim in.
int thrown_reaction(int character, int throw_action);
void fighter_animate(int fighter);

// ---- movement, facing and spacing (fight_move.cpp) -------------------------------------
// The fighters' separation and the arena. Written only by the movement step (update_distance
// and the arena edge); the camera, the computer opponent and the hit code read it.
struct SpacingState {
  float distance = 0;    // |x0 - x1| of the two tracking points
  float height_gap = 0;  // difference of the two body heights, each at least 0
  float track_x[2] = {}, track_z[2] = {};  // the points the separation is taken between
  float centre_x = 0, centre_z = 0;        // the arena's centre; its radius is 25.0
};
extern SpacingState Spacing;
void move_step();        // once a fight frame
void update_distance();  // the separation of the two fighters
void reset_spacing();    // round start: the arena centred on the middle, no flight
// The height of the fighter's body above its standing height (what "passing over" compares).
float body_height(int fighter);
// Root motion: while an action is tracked, the model's animation carries the body; when the
// tracking ends the position takes over the body point's own travel.
void root_track_begin(int fighter);
void root_track_end(int fighter);
void root_sync(int fighter);  // once a frame after the model update: pos_z back to 0
// A blow that lifts the defender: it flies along the launch arc, away from the attacker,
// until it lands.
void start_launch(int defender, int damage, float launch_speed);
void stop_launch(int fighter);
// The movement step's own counters and flights, for saving a fight and putting it back.
struct MoveSave {
  unsigned char bytes[128];
};
void Move_Save(MoveSave* out);
void Move_Restore(const MoveSave& in);

// ---- hits, guard and damage (fight_hit.cpp) --------------------------------------------
void fighter_strike(int attacker);
void apply_blow(int attacker, int defender, int guard_class, int damage, int by_projectile);
void projectile_clash();

// ---- rounds and match rules (fight_round.cpp) ------------------------------------------
void Fight_Update();       // once a fight frame
void update_clock();       // from the fight's drawing pass, then
void resolve_time_over();  // the time-over step
void end_round();          // when the round's closing shot is over (the camera calls it)
// The ending wait is over (its frames ran out, or the beaten fighter would get up): the
// closing replay starts, or the demonstration ends.
void end_ko_wait();
// Super move, its flash and its freeze end for both fighters.
void Clear_SuperFlags();
void Enter_StreakRanking(int fighter);
int Enter_TimeRanking(int fighter);  // place 1..5, or 0

// ---- the knock-out replay (fight_replay.cpp) -------------------------------------------
void record_frame();
void show_frame();
void start_ko_replay();
void ko_replay_step();
void closing_step();
