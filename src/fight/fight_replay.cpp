// The replay ring: recording each fight frame, showing a recorded one, the knock-out replay
// (the last 30 frames before the blow, twice) and the round's closing replay.
#include "fight/fight_replay.h"

#include <cstring>

#include "audio/audio.h"
#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_round.h"
#include "fight/fight_state.h"
#include "input/input.h"

ReplayState Replay;

namespace {

int ring_step(int pos, int by) { return ((pos + by) % REPLAY_FRAMES + REPLAY_FRAMES) % REPLAY_FRAMES; }

void record_fighter(ReplayFighter& r, const Fighter& f) {
  r.pos_x = f.pos_x, r.pos_y = f.pos_y, r.pos_z = f.pos_z, r.height = f.height;
  r.rot_x = f.rot_x, r.yaw = f.yaw, r.rot_z = f.rot_z;
  std::memcpy(r.extra_angle, f.extra_angle, sizeof r.extra_angle);
  r.frame = f.frame, r.action = f.action;
  r.crouching = f.crouching, r.busy = f.busy, r.reacting = f.reacting, r.rise_flag = f.rise_flag;
  r.super_mode = f.super_mode, r.super_finish = f.super_finish;
  std::memcpy(r.part_fx_on, f.part_fx_on, sizeof r.part_fx_on);
  std::memcpy(r.part_fx_phase, f.part_fx_phase, sizeof r.part_fx_phase);
  std::memcpy(r.part_fx_kind, f.part_fx_kind, sizeof r.part_fx_kind);
}

void show_fighter(Fighter& f, const ReplayFighter& r) {
  f.pos_x = r.pos_x, f.pos_y = r.pos_y, f.pos_z = r.pos_z, f.height = r.height;
  f.rot_x = r.rot_x, f.yaw = r.yaw, f.rot_z = r.rot_z;
  std::memcpy(f.extra_angle, r.extra_angle, sizeof r.extra_angle);
  f.frame = r.frame, f.action = r.action;
  f.crouching = r.crouching, f.busy = r.busy, f.reacting = r.reacting, f.rise_flag = r.rise_flag;
  f.super_mode = r.super_mode, f.super_finish = r.super_finish;
  std::memcpy(f.part_fx_on, r.part_fx_on, sizeof r.part_fx_on);
  std::memcpy(f.part_fx_phase, r.part_fx_phase, sizeof r.part_fx_phase);
  std::memcpy(f.part_fx_kind, r.part_fx_kind, sizeof r.part_fx_kind);
}

void restore_saved() {
  for (int i = 0; i < 2; ++i) {
    Fighter& f = fighters[i];
    const ReplaySaved& s = Replay.saved[i];
    f.action = s.action, f.frame = s.frame;
    f.pos_x = s.pos_x, f.pos_y = s.pos_y, f.pos_z = s.pos_z;
    if (s.head_fx >= 1 && s.head_fx <= 3) spread_part_effect(i, s.head_fx - 1);
  }
}

// A human side whose opponent has not yet won can cut the closing replay short.
void closing_input(int side) {
  Input_Read(side);
  const int other = opponent(side);
  if (Players[side].start_pressed > 0 && Match.human[side] &&
      fighters[other].wins < Match.rounds_to_win) {
    const bool winner = side == Match.winner;
    if (winner || !Match.human[Match.winner]) {
      Match.replay_pos = ring_step(Match.replay_mark, -1);
      Players[side].start_pressed = 0;
    }
  }
  if (Challenger_Join(side)) {  // the replay runs on to its end under the challenger's notice
    Match.replay_pos = ring_step(Match.replay_mark, -1);
    Match.ko_state = 0;
    Match.time_rank = 0;
  }
}

}  // namespace

void Replay_StoreVoices(const std::int16_t* channel, const std::int16_t* sound, int count) {
  if (!Replay.fresh) return;
  Replay.fresh = 0;
  Replay_Frame& slot = Replay.ring[Match.replay_pos % REPLAY_FRAMES];
  if (count > REPLAY_VOICES) count = REPLAY_VOICES;
  slot.voice_count = count;
  for (int i = 0; i < count; ++i) {
    slot.voice_channel[i] = channel[i];
    slot.voice_sound[i] = sound[i];
  }
}

void record_frame() {
  Match.replay_pos = ring_step(Match.replay_pos, 1);
  Replay_Frame& slot = Replay.ring[Match.replay_pos];
  record_fighter(slot.fighter[0], fighters[0]);
  record_fighter(slot.fighter[1], fighters[1]);
  slot.flash_state = Match.flash_state;
  slot.light = Match.light;
  slot.impact_strength = Match.impact_strength;
  slot.impact_frames = Match.impact_frames;
  std::memcpy(slot.hit_effect, Effects.Hit_Effect, sizeof slot.hit_effect);
  std::memcpy(slot.projectile, Effects.Projectile, sizeof slot.projectile);
  slot.voice_count = 0;
  Replay.fresh = 1;
  slot.burst = Effects.Burst;
  Effects.Burst.flag = 0;
  Replay.ring[ring_step(Match.replay_pos, 1)].burst.flag = 0;
}

void show_frame() {
  const Replay_Frame& slot = Replay.ring[Match.replay_pos];
  show_fighter(fighters[0], slot.fighter[0]);
  show_fighter(fighters[1], slot.fighter[1]);
  Match.flash_state = slot.flash_state;  // a recorded flash start darkens the stage again
  Match.light = slot.light;
  Match.impact_strength = slot.impact_strength;
  Match.impact_frames = slot.impact_frames;
  std::memcpy(Effects.Hit_Effect, slot.hit_effect, sizeof slot.hit_effect);
  std::memcpy(Effects.Projectile, slot.projectile, sizeof slot.projectile);
  for (int i = 0; i < slot.voice_count && i < REPLAY_VOICES; ++i)
    Queue_Sound(slot.voice_channel[i], slot.voice_sound[i]);
  if (slot.burst.flag) Spawn_Sparks(slot.burst.side, slot.burst.x, slot.burst.y, slot.burst.z);
}

void start_ko_replay() {
  Match.replay_state = 1;
  Match.replay_mark = Match.replay_pos;
  Match.replay_pos = ring_step(Match.replay_pos, -KO_REPLAY_FRAMES);
  for (int i = 0; i < 2; ++i) {
    const Fighter& f = fighters[i];
    Replay.saved[i] = {f.action, f.frame, f.pos_x, f.pos_y, f.pos_z,
                       f.part_fx_on[2] ? f.part_fx_kind[2] + 1 : 0};
  }
}

void ko_replay_step() {
  Match.replay_pos = ring_step(Match.replay_pos, 1);
  show_frame();
  update_distance();
  Flush_Sounds();
  if (Match.replay_pos != Match.replay_mark) return;
  if (Match.replay_state == 1) {
    Match.replay_state = 2;
    Match.replay_pos = ring_step(Match.replay_pos, -KO_REPLAY_FRAMES);
  } else {
    Match.replay_state = 0;
    restore_saved();
  }
}

void closing_step() {
  fighters[0].hit_new = 0;
  fighters[1].hit_new = 0;
  closing_input(0);
  closing_input(1);
  if (Match.flash_state == 0 || Match.flash_state == -1) {
    show_frame();
    Match.replay_pos = ring_step(Match.replay_pos, 1);
    if (Match.camera_reset) {
      Match.camera_reset = 0;
      Recentre_Camera();
    }
  }
  update_distance();
  if (Match.replay_pos == Match.replay_mark) Closing_Setup();
}
