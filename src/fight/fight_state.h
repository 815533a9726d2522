// The fight's shared records: the two fighters and the match state.
//
// Owned by the fight core. Other subsystems read these records directly and write only the
// fields their own code is documented to write (the frame loop: credits, demo, challenger;
// the settings file: rounds_to_win, life_setting, time_limit; the match preparation: human,
// demo, character, wins, select_slot; the model loader: first_part, last_part, model_flag and
// the attachment table; the animation and table loaders: last_shared_key, the per-action
// ranges and the per-frame tables; the character drawing: part_box; the attachment chains:
// the attachments' run-time state).
#pragma once
#include <cstdint>

#include "render/render_math.h"

// ---- capacities ----------------------------------------------------------------------------
constexpr int MAX_ACTIONS = 1000;      // action numbers 0..999
constexpr int MAX_FRAMES = 13500;      // per-fighter animation frames 0..13499
constexpr int BODY_PARTS = 22;         // body-part numbers 0..21
constexpr int FX_PARTS = 20;           // body parts that can carry an effect
constexpr int CMD_HISTORY = 20;        // ring of recent direction codes
constexpr int ATTACHMENTS = 5;         // loose costume chains per fighter
constexpr int ATTACH_POINTS = 5;       // points per chain

// ---- Match ---------------------------------------------------------------------------------
struct MatchState {
  std::int32_t rounds_to_win = 2;  // setting: rounds needed to win the match
  std::int32_t life_setting = 2;   // setting 1..3: round-start life 75 / 85 / 103
  std::int32_t time_limit = 6000;  // setting: round clock limit in clock units
  std::int32_t clock = 0;          // elapsed clock units; +2 a frame while it runs
  std::int32_t clock_left = 0;     // time_limit - clock, never below 0
  std::int32_t clock_reset = 0;    // 1: restart the clock at 0 next frame
  std::int32_t intro = 0;          // -1 intro over, else intro variant 0, 1 or 2
  std::int32_t fight_call = 0;     // 0 idle, 1..45 the "fight" call runs
  std::int32_t side_a = 0;         // fighter on the smaller-x side
  std::int32_t side_b = 1;
  std::int32_t ko_state = 0;  // 0 fighting, 1 round ending, 2 ending wait over
  std::int32_t ko_wait = 0;
  std::int32_t ko_slow = 0;
  std::int32_t winner = 0;
  std::int32_t frozen = 0;    // 1 when no fighter may act any more
  std::int32_t win_pose = 0;  // victory pose 2, 3 or 4
  std::int32_t challenger = 0;  // 0, or index + 1 of the player interrupting the fight
  std::int32_t challenger_phase = 0;
  std::int32_t after_ko = 0;
  std::int32_t after_ko_frames = 0;  // 0..50
  std::int32_t camera_reset = 0;
  std::int32_t replay_state = 0;
  std::int32_t replay_pos = 0;
  std::int32_t replay_mark = 0;
  std::int32_t time_over = 0;
  std::int32_t time_over_frames = 0;
  std::int32_t stage_count = 0;  // computer opponents beaten in this run
  std::int32_t hit_stop = 0;     // hit-stop frames still to run
  std::int32_t flash_state = 0;  // 0 none, 1 darkening, 2..4 dark, -1 brightening
  std::int32_t light = 255;      // stage light level 0..255
  std::int32_t time_rank = 0;    // place 1..5 reached by this round's win, or 0
  std::int32_t human[2] = {0, 0};
  std::int32_t demo = 0;
  std::int32_t credits = 0;
  std::int32_t character[2] = {0, 0};  // character index of each fighter
  std::int32_t reverse[2] = {0, 0};    // reversed controls per side
  std::int32_t reverse_frames[2] = {0, 0};
  std::int32_t win_pose_count = 0;   // 0 none, else frames of the win pose plus one
  std::int32_t impact_strength = 0;  // the impact shake the hit code starts
  std::int32_t impact_frames = 0;    // run down by every placement and mesh pass
  // The fight display's banners, by side: 1 left, 2 right, 0 none. The hit code starts the
  // first-strike banner at a round's first hit while it is 0; the display counts its frames
  // and ends it for the round with -1. The reversal banner is started the same way at a
  // reversal and goes back to 0 when its slide is over.
  std::int32_t first_strike = 0;
  std::int32_t first_strike_frame = 0;
  std::int32_t reversal = 0;
  std::int32_t reversal_frame = 0;

  // Set by the hit code at a deciding special-move blow; the camera reads it.
  std::int32_t ko_closeup = 0;    // knock-out close-up 0 none, 1 on the winner, 2 on the loser
};
extern MatchState Match;

// The global frame counter, 0..29,999, advanced once per frame by Run_Frame; the game's only
// source of variety.
extern std::int32_t frame_count;

// Each side's selection: 0..14 a character in its first colours, 15..29 in its second, 100
// for a side nobody plays. Written by character select and the match preparation; the
// character loader reads the row from it.
extern std::int32_t select_slot[2];

// ---- Fighter -------------------------------------------------------------------------------
// One loose costume chain. The model loader and the character loader set the first six
// members and the points; the chain pass owns swing, anchor and links.
struct Attachment {
  std::int32_t present;
  std::int32_t anchor_part;  // body part the chain hangs on
  std::int32_t lower;        // swing limits, degrees
  std::int32_t upper;
  std::int32_t reverse;      // 1 reverses the vertical term
  std::int32_t last_point;   // highest point number 0..4
  float points[ATTACH_POINTS][3];
  std::int32_t swing;        // swing of the previous frame, degrees
  float anchor[3];           // point 0 carried by the anchor part on the previous frame
  Mat43 links[ATTACH_POINTS];
};

// The two extremes of a part's world box on each axis, as rows of part_box.
enum : int { BOX_X_MIN, BOX_X_MAX, BOX_Y_MIN, BOX_Y_MAX, BOX_Z_MIN, BOX_Z_MAX, BOX_ROWS };

struct Fighter {
  // Scoring and bars.
  std::int32_t wins = 0;
  std::int32_t streak = 0;
  std::int32_t life = 0;
  std::int32_t damage = 0;       // not yet drained; beaten when life <= damage
  std::int32_t drain_delay = 0;  // frames before the bar starts draining
  std::int32_t gauge = 0;        // power gauge 0..300
  std::int32_t gauge_gain = 0;
  std::int32_t gauge_spend = 0;
  std::int32_t combo = 0;
  std::int32_t combo_show = 0;
  std::int32_t perfect = 0;
  std::int32_t model_flag = 0;  // the model has a flexible part (set by the model loader)

  // Body-part effects.
  std::int32_t part_fx_on[FX_PARTS] = {};
  std::int32_t part_fx_phase[FX_PARTS] = {};
  std::int32_t part_fx_kind[FX_PARTS] = {};
  std::int32_t part_fx_hold[FX_PARTS] = {};

  // Action and posture.
  std::int32_t action = 0;
  std::int32_t stance = 0;  // 0 or 23
  std::int32_t step_timer = 0;
  float pos_x = 0, pos_y = 0, pos_z = 0;
  float height = 0;  // added to pos_y when drawn
  float track_x0 = 0, track_y0 = 0, track_z0 = 0;
  float track_root0 = 0;
  std::int32_t rot_x = 0, yaw = 0, rot_z = 0;

  // Per-action frame ranges, filled by the table loader.
  std::int32_t act_first[MAX_ACTIONS] = {};
  std::int32_t act_last[MAX_ACTIONS] = {};
  std::int32_t act_win_first[MAX_ACTIONS] = {};
  std::int32_t act_win_last[MAX_ACTIONS] = {};

  // Animation and model.
  std::int32_t frame = 0;  // absolute index into the per-frame tables
  std::int32_t first_part = 0;  // first and last body-part index of the model
  std::int32_t last_part = 0;
  std::int32_t face_yaw = 0;
  std::int32_t extra_angle[3] = {};  // extra model turns, recorded for the replay
  float part_box[BOX_ROWS][BODY_PARTS] = {};

  // Fight flags and hit data.
  std::int32_t root_track = 0;
  std::int32_t root_sync = 0;
  std::int32_t rapid_a = 0;
  std::int32_t rapid_b = 0;
  std::int32_t move_flag = 0;  // tested and cleared by the movement step
  std::int32_t reacting = 0;
  std::int32_t jump_dir = 0;
  std::int32_t jump_flag = 0;
  std::int32_t jump_count = 0;
  std::int32_t crouching = 0;
  std::int32_t turning = 0;
  std::int32_t guarding = 0;
  std::int32_t ghost = 0;
  std::int32_t busy = 0;
  std::int32_t rising = 0;
  std::int32_t floored = 0;
  std::int32_t air_hold = 0;
  std::int32_t rise_flag = 0;
  std::int32_t grab_fwd = 0;  // grab-direction flags of the rising moves 56 and 57
  std::int32_t grab_back = 0;
  std::int32_t special_cam = 0;
  std::int32_t special_shot = 0;  // 1..4, 0 none
  std::int32_t in_special = 0;
  std::int32_t super_mode = 0;
  std::int32_t super_finish = 0;
  std::int32_t protected_flag = 0;  // strikes connect only from a super move
  std::int32_t chip_acc = 0;        // eighths of a point
  std::int32_t super_fx = 0;
  std::int32_t chained = 0;
  std::int32_t super_stance = 0;  // set by the actions 530..541
  std::int32_t freeze_other = 0;
  std::int32_t gain_a = 0;
  std::int32_t gain_b = 0;
  std::int32_t hit_new = 0;
  std::int32_t hit_live = 0;
  std::int32_t projectile_live = 0;
  std::int32_t hit_power = 0;
  std::int32_t hit_height = 0;
  std::int32_t hit_class = 0;
  std::int32_t hit_kind = 0;
  std::int32_t hit_special = 0;
  std::int32_t reel_frames = 0;
  std::int32_t reel_push = 0;
  std::int32_t knock_force = 0;
  float launch_speed = 0;
  float move_dx = 0, move_dz = 0;
  std::int32_t loop_count = 0;
  std::int32_t air_timer = 0;
  std::int32_t cmd_pos = 0;
  std::int32_t cmd_code = 0;
  std::int32_t cmd_hist[CMD_HISTORY] = {};
  std::int32_t queued = 0;         // 1 while a link waits
  std::int32_t queued_action = 0;  // the waiting link's action

  // Model data: the model loader, the character drawing and the chains own it.
  Attachment attach[ATTACHMENTS] = {};

  // Per-frame tables, filled by the table loader.
  std::int32_t last_shared_key = 0;    // last key frame of the shared animation file (K)
  std::int32_t last_shared_frame = 0;  // last frame the shared table filled (S)
  std::int16_t frame_key[MAX_FRAMES] = {};
  float frame_offset[MAX_FRAMES][3] = {};
  std::int16_t frame_part[MAX_FRAMES] = {};  // striking part (>= 2) or sound cue (< 0)
  std::int16_t frame_hit[MAX_FRAMES] = {};   // class * 100 + kind
};
extern Fighter fighters[2];

inline int opponent(int i) { return (i + 1) % 2; }

// Match start: gauges to 100, model flag and attachments cleared, for both fighters.
void reset_match_fighters();
// Round start: both fighters to their corners and the match's round state to its start.
void reset_round();
// Round-start life for a life setting (75, 85 or 103).
std::int32_t Start_Life(std::int32_t life_setting);
