// The headless backend's silent audio: what the tests can ask about it.
//
// Every sound request is logged in order. A sound counts as playing from its start until its
// length has passed on the virtual clock (Headless_Clock), or until it is stopped. A music
// track plays until it is stopped, replaced, or ended with Headless_MusicEnd.
#pragma once
#include <cstdint>

enum Headless_SoundOp : char {
  HEADLESS_SOUND_PLAY = 'p',  // value: 0
  HEADLESS_SOUND_STOP = 's',  // value: 1 when it was playing
  HEADLESS_SOUND_PAN = 'n',   // value: the pan
};
struct Headless_SoundEvent {
  Headless_SoundOp op;
  int sound;
  int value;
};

// The log since the device opened or since the last Headless_ClearSoundLog (the first 4096
// events are kept; the count goes on).
int Headless_SoundEventCount();
Headless_SoundEvent Headless_SoundEventAt(int index);
void Headless_ClearSoundLog();
// How often sound `sound` was started since the log was cleared.
int Headless_SoundStarts(int sound);

// The device and what was loaded into it.
int Headless_SoundDeviceOpen();
int Headless_SoundLoaded(int sound);  // 1 when sound `sound` has a buffer
std::uint32_t Headless_SoundBytes(int sound);
std::uint32_t Headless_SoundRate(int sound);
int Headless_SoundChannels(int sound);
const std::uint8_t* Headless_SoundData(int sound);
// Milliseconds sound `sound` lasts (its bytes at its rate and block alignment).
std::uint32_t Headless_SoundLengthMs(int sound);

// Music: the player, the prepared tracks, and what plays.
int Headless_MusicOpen();
int Headless_MusicPrepared(int track);
int Headless_MusicTrack();   // the track started last, 0 before any
int Headless_MusicStarts();  // tracks started since the player opened
void Headless_MusicEnd();    // the playing track reaches its end
