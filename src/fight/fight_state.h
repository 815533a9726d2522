// The fight's shared records: the two fighters and the match state.
//
// Owned by the fight core. Other subsystems read these records directly and write only the
// fields their own code is documented to write (the frame loop: credits, demo, challenger;
// the settings file: rounds_to_win, life_setting, time_limit; the match preparation: human,
// demo, character, wins).
#pragma once
#include <cstdint>

// ---- Match ---------------------------------------------------------------------------------
struct MatchState {
  std::int32_t rounds_to_win = 2;  // setting: rounds needed to win the match
  std::int32_t life_setting = 2;   // setting 1..3: round-start life 75 / 85 / 103
  std::int32_t time_limit = 6000;  // setting: round clock limit in clock units
  std::int32_t clock = 0;
  std::int32_t clock_left = 0;
  std::int32_t clock_reset = 0;
  std::int32_t intro = 0;
  std::int32_t fight_call = 0;
  std::int32_t side_a = 0;
  std::int32_t side_b = 1;
  std::int32_t ko_state = 0;
  std::int32_t ko_wait = 0;
  std::int32_t ko_slow = 0;
  std::int32_t winner = 0;
  std::int32_t frozen = 0;
  std::int32_t win_pose = 0;
  std::int32_t challenger = 0;  // 0, or index + 1 of the player interrupting the fight
  std::int32_t challenger_phase = 0;
  std::int32_t after_ko = 0;
  std::int32_t after_ko_frames = 0;
  std::int32_t camera_reset = 0;
  std::int32_t replay_state = 0;
  std::int32_t replay_pos = 0;
  std::int32_t replay_mark = 0;
  std::int32_t time_over = 0;
  std::int32_t time_over_frames = 0;
  std::int32_t stage_count = 0;
  std::int32_t hit_stop = 0;
  std::int32_t flash_state = 0;
  std::int32_t light = 255;
  std::int32_t time_rank = 0;
  std::int32_t human[2] = {0, 0};
  std::int32_t demo = 0;
  std::int32_t credits = 0;
  std::int32_t character[2] = {0, 0};
  std::int32_t reverse[2] = {0, 0};
  std::int32_t reverse_frames[2] = {0, 0};
};
extern MatchState Match;

// The global frame counter, 0..29,999, advanced once per frame by Run_Frame; the game's only
// source of variety.
extern std::int32_t frame_count;

// ---- Fighter -------------------------------------------------------------------------------
struct Fighter {
  std::int32_t wins = 0;
  std::int32_t streak = 0;
  std::int32_t life = 0;
  std::int32_t damage = 0;
  std::int32_t action = 0;
  std::int32_t frame = 0;
  std::int32_t model_flag = 0;  // taken from the model file by the model loader
  std::int32_t first_part = 0;  // first and last body-part index of the model
  std::int32_t last_part = 0;
};
extern Fighter fighters[2];

inline int opponent(int i) { return (i + 1) % 2; }
