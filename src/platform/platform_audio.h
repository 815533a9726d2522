// The platform's sound device and music player: the only code that touches the audio system.
//
// The real backend mixes through SDL2_mixer (one mixer channel per sound number, the music
// streamed from its file); the headless backend is silent and records every request for the
// tests (platform/headless/headless_audio.h). Everything is called from the game's one thread.
#pragma once
#include <cstdint>

// Sound numbers the device can hold, one buffer each (0..PLAT_SOUND_SLOTS-1).
constexpr int PLAT_SOUND_SLOTS = 200;
// Music track numbers the player can hold (0..PLAT_MUSIC_TRACKS-1).
constexpr int PLAT_MUSIC_TRACKS = 32;

// ---- sound effects -------------------------------------------------------------------------
// Start-up: opens the sound device. Returns 1 when sounds can be loaded and played (on a
// machine without a sound device this is a silent device), 0 when there is none at all.
// Opening again first closes the device and drops every loaded sound.
int Plat_SoundOpen();
// Drops every sound and closes the device.
void Plat_SoundClose();

// Start-up: makes `pcm` (little-endian PCM, `bytes` long) the buffer of sound `sound`.
// `channels` 1 or 2, `bits` 8 (unsigned) or 16 (signed), `block_align` = channels * bits / 8.
// The samples are not copied by every backend: `pcm` must stay valid until the device
// closes. Returns 1 on success, 0 for a format the device refuses (the sound stays empty).
int Plat_SoundLoad(int sound, const std::uint8_t* pcm, std::uint32_t bytes, int channels,
                   std::uint32_t rate, int block_align, int bits);

// Plays sound `sound` once from its start. Returns 1 when it started.
int Plat_SoundPlay(int sound);
// Stops sound `sound` and rewinds it to its start (nothing when it is not playing).
void Plat_SoundStop(int sound);
// 1 while sound `sound` plays.
int Plat_SoundIsPlaying(int sound);
// Sets the stereo position of sound `sound`: -100 all left, 0 centre, 100 all right.
// Returns 1 on success.
int Plat_SoundSetPan(int sound, int pan);

// ---- music ---------------------------------------------------------------------------------
// Start-up: opens the music player. Returns 1 when it is ready.
int Plat_MusicOpen();
// Start-up: prepares the music file `file` (a data file, opened through Plat_OpenFile) as
// track `track`, streamed from the file when it plays. Returns 1 when the file can be played.
int Plat_MusicLoadTrack(int track, const char* file);
// Plays a prepared track once from its start, replacing whatever played. Returns 1 when it
// started; 0 when the track was never prepared.
int Plat_MusicPlay(int track);
void Plat_MusicStop();
// 1 while a track plays (0 once it has ended or been stopped).
int Plat_MusicIsPlaying();
