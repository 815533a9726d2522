// The replay ring: the visible state of the last 250 fight frames, played back twice for a
// knock-out by a special move and once more as the round's closing replay.
//
// Written by record_frame (the slots), Replay_StoreVoices (the voices of the slot shown or
// recorded last) and start_ko_replay (the saved state); the replay steps read them.
#pragma once
#include <cstdint>

#include "fight/fight_state.h"
#include "render/render_effect.h"

constexpr int REPLAY_FRAMES = 250;
constexpr int KO_REPLAY_FRAMES = 30;
constexpr int REPLAY_VOICES = 5;

struct ReplayFighter {
  float pos_x, pos_y, pos_z, height;
  std::int32_t rot_x, yaw, rot_z;
  std::int32_t extra_angle[3];
  std::int32_t frame, action;
  std::int32_t crouching, busy, reacting, rise_flag;
  std::int32_t super_mode, super_finish;
  std::int32_t part_fx_on[FX_PARTS];
  std::int32_t part_fx_phase[FX_PARTS];
  std::int32_t part_fx_kind[FX_PARTS];
};

struct Replay_Frame {
  ReplayFighter fighter[2];
  std::int32_t flash_state, light;
  std::int32_t impact_strength, impact_frames;
  HitEffect hit_effect[HIT_EFFECTS];
  ProjectileSlot projectile[PROJECTILES];
  std::int32_t voice_count;
  std::int16_t voice_channel[REPLAY_VOICES];
  std::int16_t voice_sound[REPLAY_VOICES];
  EffectBurst burst;
};

// What a fighter was doing at the deciding blow, put back when the knock-out replay ends.
struct ReplaySaved {
  std::int32_t action, frame;
  float pos_x, pos_y, pos_z;
  std::int32_t head_fx;  // kind of the effect on the head plus one, 0 for none
};

struct ReplayState {
  Replay_Frame ring[REPLAY_FRAMES];
  ReplaySaved saved[2];
  std::int32_t fresh;  // 1 from recording a slot until its voices are stored
};
extern ReplayState Replay;

// Flush_Sounds hands the sounds it plays to the slot recorded this frame (nothing while no
// frame is being recorded).
void Replay_StoreVoices(const std::int16_t* channel, const std::int16_t* sound, int count);
