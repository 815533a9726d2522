// Sound effects and music through SDL2_mixer (SDL's audio subsystem only, no SDL video).
//
// Each sound number owns the mixer channel of the same number, so "is it playing" and "stop
// it" are questions about one channel. The samples of every sound are converted once, at
// load time, into the mixer's own format. Music tracks are streamed from their files, each
// played once; the game restarts a track itself when it wants it again. When the machine has
// no usable sound device the mixer runs on SDL's dummy driver: everything works, silently.
#include <SDL2/SDL.h>
#include <SDL2/SDL_mixer.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/platform.h"
#include "platform/platform_audio.h"

namespace {

struct LoadedSound {
  Mix_Chunk* chunk;
  Uint8* samples;  // the converted samples the chunk plays from (SDL_malloc'd)
};

// The mixer and what it holds. Written only by the hooks in this file.
struct RealAudio {
  int mixer_users;  // the sound device and the music player each hold the mixer open
  int mixer_open;
  int mix_rate;
  Uint16 mix_format;
  int mix_channels;
  int sounds_open;
  int music_open;
  LoadedSound sounds[PLAT_SOUND_SLOTS];
  Mix_Music* tracks[PLAT_MUSIC_TRACKS];
  int exit_hook_set;
};
RealAudio R;

bool valid_sound(int sound) { return sound >= 0 && sound < PLAT_SOUND_SLOTS; }
bool valid_track(int track) { return track >= 0 && track < PLAT_MUSIC_TRACKS; }

bool try_open_mixer() {
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  if (Mix_OpenAudio(44100, AUDIO_S16SYS, 2, 1024) != 0) {
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  return true;
}

void close_all_at_exit() {
  Plat_SoundClose();
  Plat_MusicStop();
  for (Mix_Music*& m : R.tracks) {
    if (m) Mix_FreeMusic(m);
    m = nullptr;
  }
  if (R.mixer_open) {
    Mix_CloseAudio();
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    R.mixer_open = 0;
  }
}

// Opens the mixer on the first user: the system's device, or the dummy driver without one.
bool acquire_mixer() {
  if (R.mixer_open) {
    ++R.mixer_users;
    return true;
  }
  if (!try_open_mixer()) {
    SDL_setenv("SDL_AUDIODRIVER", "dummy", 1);
    if (!try_open_mixer()) {
      Plat_DebugOut("no sound device, not even a silent one");
      return false;
    }
  }
  Mix_Init(MIX_INIT_OGG);
  Mix_AllocateChannels(PLAT_SOUND_SLOTS);
  Mix_QuerySpec(&R.mix_rate, &R.mix_format, &R.mix_channels);
  R.mixer_open = 1;
  R.mixer_users = 1;
  if (!R.exit_hook_set) {
    std::atexit(close_all_at_exit);
    R.exit_hook_set = 1;
  }
  return true;
}

void release_sound(LoadedSound& s) {
  if (s.chunk) {
    Mix_FreeChunk(s.chunk);  // a quick-loaded chunk does not own its samples
    SDL_free(s.samples);
  }
  s = LoadedSound{};
}

// Converts `frames` whole frames of PCM into the mixer's format; nullptr on failure.
Uint8* convert_to_mixer(const std::uint8_t* pcm, std::uint32_t bytes, int channels,
                        std::uint32_t rate, int bits, Uint32* out_bytes) {
  SDL_AudioCVT cvt;
  const SDL_AudioFormat from = bits == 8 ? AUDIO_U8 : AUDIO_S16LSB;
  if (SDL_BuildAudioCVT(&cvt, from, static_cast<Uint8>(channels), static_cast<int>(rate),
                        R.mix_format, static_cast<Uint8>(R.mix_channels), R.mix_rate) < 0)
    return nullptr;
  cvt.len = static_cast<int>(bytes);
  cvt.buf = static_cast<Uint8*>(SDL_malloc(static_cast<std::size_t>(bytes) * cvt.len_mult));
  if (cvt.buf == nullptr) return nullptr;
  std::memcpy(cvt.buf, pcm, bytes);
  if (SDL_ConvertAudio(&cvt) != 0) {
    SDL_free(cvt.buf);
    return nullptr;
  }
  *out_bytes = static_cast<Uint32>(cvt.len_cvt);
  return cvt.buf;
}

}  // namespace

// ---- sound effects -------------------------------------------------------------------------
int Plat_SoundOpen() {
  if (R.sounds_open) Plat_SoundClose();
  if (!acquire_mixer()) return 0;
  R.sounds_open = 1;
  return 1;
}

void Plat_SoundClose() {
  if (!R.sounds_open) return;
  Mix_HaltChannel(-1);
  for (LoadedSound& s : R.sounds) release_sound(s);
  R.sounds_open = 0;
  --R.mixer_users;
}

int Plat_SoundLoad(int sound, const std::uint8_t* pcm, std::uint32_t bytes, int channels,
                   std::uint32_t rate, int block_align, int bits) {
  if (!R.sounds_open || !valid_sound(sound) || pcm == nullptr) return 0;
  if ((channels != 1 && channels != 2) || (bits != 8 && bits != 16)) return 0;
  if (block_align != channels * bits / 8 || rate < 1000 || rate > 384000) return 0;
  const std::uint32_t whole = bytes - bytes % static_cast<std::uint32_t>(block_align);
  if (whole == 0) return 0;
  release_sound(R.sounds[sound]);
  Uint32 converted = 0;
  Uint8* samples = convert_to_mixer(pcm, whole, channels, rate, bits, &converted);
  if (samples == nullptr) return 0;
  Mix_Chunk* chunk = Mix_QuickLoad_RAW(samples, converted);
  if (chunk == nullptr) {
    SDL_free(samples);
    return 0;
  }
  R.sounds[sound] = LoadedSound{chunk, samples};
  return 1;
}

int Plat_SoundPlay(int sound) {
  if (!valid_sound(sound) || R.sounds[sound].chunk == nullptr) return 0;
  return Mix_PlayChannel(sound, R.sounds[sound].chunk, 0) == sound ? 1 : 0;
}

void Plat_SoundStop(int sound) {
  if (valid_sound(sound) && R.sounds[sound].chunk) Mix_HaltChannel(sound);
}

int Plat_SoundIsPlaying(int sound) {
  if (!valid_sound(sound) || R.sounds[sound].chunk == nullptr) return 0;
  return Mix_Playing(sound) ? 1 : 0;
}

int Plat_SoundSetPan(int sound, int pan) {
  if (!valid_sound(sound) || R.sounds[sound].chunk == nullptr || pan < -100 || pan > 100)
    return 0;
  const int left = pan <= 0 ? 255 : 255 * (100 - pan) / 100;
  const int right = pan >= 0 ? 255 : 255 * (100 + pan) / 100;
  return Mix_SetPanning(sound, static_cast<Uint8>(left), static_cast<Uint8>(right)) ? 1 : 0;
}

// ---- music ---------------------------------------------------------------------------------
int Plat_MusicOpen() {
  if (R.music_open) return 1;
  if (!acquire_mixer()) return 0;
  R.music_open = 1;
  return 1;
}

int Plat_MusicLoadTrack(int track, const char* file) {
  if (!R.music_open || !valid_track(track)) return 0;
  std::FILE* f = Plat_OpenFile(file, "rb");
  if (f == nullptr) return 0;
  SDL_RWops* rw = SDL_RWFromFP(f, SDL_TRUE);
  if (rw == nullptr) {
    std::fclose(f);
    return 0;
  }
  Mix_Music* music = Mix_LoadMUS_RW(rw, 1);  // closes the file on failure
  if (music == nullptr) {
    char line[300];
    std::snprintf(line, sizeof line, "valdrune: %s: cannot be played (%s); track %d stays silent",
                  file, Mix_GetError(), track);
    Plat_DebugOut(line);
    return 0;
  }
  if (R.tracks[track]) Mix_FreeMusic(R.tracks[track]);
  R.tracks[track] = music;
  return 1;
}

int Plat_MusicPlay(int track) {
  if (!R.music_open || !valid_track(track) || R.tracks[track] == nullptr) return 0;
  return Mix_PlayMusic(R.tracks[track], 1) == 0 ? 1 : 0;  // once, no repeat
}

void Plat_MusicStop() {
  if (R.music_open) Mix_HaltMusic();
}

int Plat_MusicIsPlaying() { return R.music_open && Mix_PlayingMusic() ? 1 : 0; }
