// Sound effects: one buffer per sound number, the fight's per-frame queue, and the rules of
// who may be heard when.
#include <cstdio>
#include <cstring>

#include "audio/audio.h"
#include "audio/audio_missing.h"
#include "assets/asset_report.h"
#include "audio/audio_wave.h"
#include "fight/fight_replay.h"
#include "fight/fight_state.h"
#include "platform/platform.h"
#include "platform/platform_audio.h"
#include "settings/settings.h"

static_assert(SOUND_TABLE_SIZE <= PLAT_SOUND_SLOTS, "one device slot per sound number");
static_assert(TRACK_LAST < PLAT_MUSIC_TRACKS, "one player slot per track");

SoundQueueState SoundQueue;
std::int32_t ChannelLastSound[SOUND_CHANNELS];

namespace {

// One sound: its file and its single buffer (the device slot of the same number).
struct SoundEffect {
  std::int32_t buffer_count;  // 1 once loaded
  std::int32_t current;       // the buffer used last (always 0)
  char file_name[12];
};

// Written by Sound_Init only.
struct SoundTableState {
  std::int32_t device = 0;  // 1 when the sound device opened
  SoundEffect effects[SOUND_TABLE_SIZE];
};
SoundTableState SoundTable;

bool sound_on() { return Settings.sound == 1; }

void sound_file_name(int sound, char* out, std::size_t size) {
  std::snprintf(out, size, sound < 100 ? "%02d.wav" : "%d.wav", sound);
}

// Written by load_sound and Sound_Init.
MissingRun Missing;

// Loads one sound into its buffer; a failure leaves it empty and silent.
void load_sound(int sound) {
  SoundEffect& e = SoundTable.effects[sound];
  sound_file_name(sound, e.file_name, sizeof e.file_name);
  WaveInfo wave;
  if (!Wave_Load(e.file_name, &wave)) {
    if (std::strcmp(Report_Reason(), "missing") == 0) {
      Missing_Note(Missing, sound, sound_file_name, "sound");
      return;
    }
    Missing_Report(Missing, sound_file_name, "sound");
    Report_GoesOn("sound %d stays silent", sound);
    return;
  }
  Missing_Report(Missing, sound_file_name, "sound");
  if (!Plat_SoundLoad(sound, wave.data, wave.bytes, wave.channels, wave.rate,
                      wave.block_align, wave.bits)) {
    Wave_Unload(wave);
    Load_Refused(e.file_name, "a sample format the sound device refuses (%s, %d bits)",
                 wave.channels == 2 ? "stereo" : "mono", wave.bits);
    Report_GoesOn("sound %d stays silent", sound);
    return;
  }
  e.buffer_count = 1;
}

}  // namespace

void Sound_Init() {
  Cd_Open();
  SoundTable = SoundTableState{};
  SoundQueue = SoundQueueState{};
  for (std::int32_t& last : ChannelLastSound) last = 0;
  Wave_ResetPool();
  if (!Plat_SoundOpen()) {
    Plat_DebugOut("valdrune: no sound device; the game runs without sound effects");
    return;
  }
  SoundTable.device = 1;
  for (int sound = 0; sound < SOUND_FILES; ++sound) load_sound(sound);
  Missing_Report(Missing, sound_file_name, "sound");
}

int Play_Effect(int sound) {
  if (!SoundTable.device || sound < 0 || sound >= SOUND_TABLE_SIZE) return 0;
  const SoundEffect& e = SoundTable.effects[sound];
  if (e.buffer_count < 1) return 0;
  if (Plat_SoundIsPlaying(sound)) return 0;  // its one buffer still plays: not restarted
  if (!Plat_SoundPlay(sound)) return 0;
  return Plat_SoundSetPan(sound, 0);  // centre
}

void Play_Sound(int sound) {
  if ((Match.demo == 0 && sound_on()) || sound == SND_ALWAYS) Play_Effect(sound);
}

void Queue_Sound(int channel, int sound) {
  if (channel < 0 || channel >= SOUND_CHANNELS) return;
  if (SoundQueue.count >= SOUND_QUEUE_SIZE) return;
  SoundQueue.channel[SoundQueue.count] = static_cast<std::int16_t>(channel);
  SoundQueue.sound[SoundQueue.count] = static_cast<std::int16_t>(sound);
  ++SoundQueue.count;
  ChannelLastSound[channel] = sound;
}

void Flush_Sounds() {
  if (!sound_on()) return;  // the queue keeps its entries
  for (int i = 0; i < SoundQueue.count; ++i) Play_Effect(SoundQueue.sound[i]);
  // The replay ring keeps what this frame said, so that a replay says it again.
  Replay_StoreVoices(SoundQueue.channel, SoundQueue.sound, SoundQueue.count);
  SoundQueue.count = 0;
}

void Stop_ChannelSounds() {
  if (!SoundTable.device) return;
  for (const std::int32_t sound : ChannelLastSound)
    if (sound >= 0 && sound < SOUND_TABLE_SIZE && SoundTable.effects[sound].buffer_count > 0)
      Plat_SoundStop(sound);
}
