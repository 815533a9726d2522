// The headless backend's audio: silent, records what was played, stopped and panned.
#include <cstdio>

#include "platform/headless/headless.h"
#include "platform/headless/headless_audio.h"
#include "platform/platform.h"
#include "platform/platform_audio.h"

namespace {

constexpr int kLogCapacity = 4096;

struct SoundSlot {
  const std::uint8_t* pcm;
  std::uint32_t bytes;
  std::uint32_t rate;
  int channels;
  int block_align;
  int loaded;
  int playing;           // started and not stopped; ends by the clock too
  std::uint32_t end_ms;  // virtual clock value at which it stops by itself
  int starts;
};

// Everything the silent device keeps. Written only by the hooks and controls in this file.
struct HeadlessAudio {
  int device_open;
  SoundSlot sounds[PLAT_SOUND_SLOTS];
  Headless_SoundEvent log[kLogCapacity];
  int log_count;
  int music_open;
  int prepared[PLAT_MUSIC_TRACKS];
  int music_track;
  int music_playing;
  int music_starts;
};
HeadlessAudio A;

bool valid_sound(int sound) { return sound >= 0 && sound < PLAT_SOUND_SLOTS; }
bool valid_track(int track) { return track >= 0 && track < PLAT_MUSIC_TRACKS; }

void log_event(Headless_SoundOp op, int sound, int value) {
  if (A.log_count < kLogCapacity) A.log[A.log_count] = Headless_SoundEvent{op, sound, value};
  ++A.log_count;
}

std::uint32_t length_ms(const SoundSlot& s) {
  if (s.rate == 0 || s.block_align <= 0) return 0;
  const std::uint64_t frames = s.bytes / static_cast<std::uint32_t>(s.block_align);
  return static_cast<std::uint32_t>((frames * 1000 + s.rate - 1) / s.rate);
}

// Whether the slot still plays now; a sound whose length has passed stops by itself.
bool still_playing(SoundSlot& s) {
  if (s.playing && static_cast<std::int32_t>(Headless_Clock() - s.end_ms) >= 0) s.playing = 0;
  return s.playing != 0;
}

}  // namespace

// ---- platform hooks ----------------------------------------------------------------------
int Plat_SoundOpen() {
  Plat_SoundClose();
  A.device_open = 1;
  A.log_count = 0;
  return 1;
}

void Plat_SoundClose() {
  A.device_open = 0;
  for (SoundSlot& s : A.sounds) s = SoundSlot{};
}

int Plat_SoundLoad(int sound, const std::uint8_t* pcm, std::uint32_t bytes, int channels,
                   std::uint32_t rate, int block_align, int bits) {
  if (!A.device_open || !valid_sound(sound) || pcm == nullptr || bytes == 0) return 0;
  if ((channels != 1 && channels != 2) || (bits != 8 && bits != 16) || rate == 0) return 0;
  if (block_align != channels * bits / 8) return 0;
  A.sounds[sound] = SoundSlot{pcm, bytes, rate, channels, block_align, 1, 0, 0, 0};
  return 1;
}

int Plat_SoundPlay(int sound) {
  if (!valid_sound(sound) || !A.sounds[sound].loaded) return 0;
  SoundSlot& s = A.sounds[sound];
  s.playing = 1;
  s.end_ms = Headless_Clock() + length_ms(s);
  ++s.starts;
  log_event(HEADLESS_SOUND_PLAY, sound, 0);
  return 1;
}

void Plat_SoundStop(int sound) {
  if (!valid_sound(sound) || !A.sounds[sound].loaded) return;
  const int was_playing = still_playing(A.sounds[sound]) ? 1 : 0;
  A.sounds[sound].playing = 0;
  log_event(HEADLESS_SOUND_STOP, sound, was_playing);
}

int Plat_SoundIsPlaying(int sound) {
  if (!valid_sound(sound) || !A.sounds[sound].loaded) return 0;
  return still_playing(A.sounds[sound]) ? 1 : 0;
}

int Plat_SoundSetPan(int sound, int pan) {
  if (!valid_sound(sound) || !A.sounds[sound].loaded || pan < -100 || pan > 100) return 0;
  log_event(HEADLESS_SOUND_PAN, sound, pan);
  return 1;
}

int Plat_MusicOpen() {
  A.music_open = 1;
  A.music_track = 0;
  A.music_playing = 0;
  A.music_starts = 0;
  for (int& p : A.prepared) p = 0;
  return 1;
}

int Plat_MusicLoadTrack(int track, const char* file) {
  if (!A.music_open || !valid_track(track)) return 0;
  std::FILE* f = Plat_OpenFile(file, "rb");
  if (f == nullptr) return 0;
  std::fclose(f);
  A.prepared[track] = 1;
  return 1;
}

int Plat_MusicPlay(int track) {
  if (!A.music_open || !valid_track(track) || !A.prepared[track]) return 0;
  A.music_track = track;
  A.music_playing = 1;
  ++A.music_starts;
  return 1;
}

void Plat_MusicStop() { A.music_playing = 0; }
int Plat_MusicIsPlaying() { return A.music_playing; }

// ---- test controls -------------------------------------------------------------------------
int Headless_SoundEventCount() { return A.log_count; }

Headless_SoundEvent Headless_SoundEventAt(int index) {
  if (index < 0 || index >= A.log_count || index >= kLogCapacity)
    return Headless_SoundEvent{HEADLESS_SOUND_PLAY, -1, 0};
  return A.log[index];
}

void Headless_ClearSoundLog() {
  A.log_count = 0;
  for (SoundSlot& s : A.sounds) s.starts = 0;
}

int Headless_SoundStarts(int sound) { return valid_sound(sound) ? A.sounds[sound].starts : 0; }
int Headless_SoundDeviceOpen() { return A.device_open; }
int Headless_SoundLoaded(int sound) { return valid_sound(sound) ? A.sounds[sound].loaded : 0; }
std::uint32_t Headless_SoundBytes(int sound) {
  return valid_sound(sound) ? A.sounds[sound].bytes : 0;
}
std::uint32_t Headless_SoundRate(int sound) {
  return valid_sound(sound) ? A.sounds[sound].rate : 0;
}
int Headless_SoundChannels(int sound) {
  return valid_sound(sound) ? A.sounds[sound].channels : 0;
}
const std::uint8_t* Headless_SoundData(int sound) {
  return valid_sound(sound) ? A.sounds[sound].pcm : nullptr;
}
std::uint32_t Headless_SoundLengthMs(int sound) {
  return valid_sound(sound) ? length_ms(A.sounds[sound]) : 0;
}

int Headless_MusicOpen() { return A.music_open; }
int Headless_MusicPrepared(int track) { return valid_track(track) ? A.prepared[track] : 0; }
int Headless_MusicTrack() { return A.music_track; }
int Headless_MusicStarts() { return A.music_starts; }
void Headless_MusicEnd() { A.music_playing = 0; }
