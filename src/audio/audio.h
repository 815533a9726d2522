// Sound effects and music: the calls the rest of the game makes.
//
// Sounds are numbered 0..177, one wave file each ("%02d.wav" below 100, "%d.wav" from 100),
// all loaded at start-up. Music tracks are numbered as the stages and scenes use them and
// are streamed from "music/trackNN.ogg". Nothing sounds, and nothing fails, without a
// device or without the files.
#pragma once
#include <cstdint>

// ---- music ---------------------------------------------------------------------------------
// The track requested last, remembered even while the sound setting is off; the fight
// restarts it whenever it is not playing. Written by Music_PlayTrack only.
extern std::int32_t MusicTrack;

constexpr std::int32_t TRACK_FIRST_STAGE = 2;   // 2 + c: the stage of character c = 0..9
constexpr std::int32_t TRACK_OPENING = 12;      // the opening's fight part
constexpr std::int32_t TRACK_ENDING = 13;       // the ending
constexpr std::int32_t TRACK_SELECT = 14;       // character select
constexpr std::int32_t TRACK_CONTINUE = 15;     // continue screen
constexpr std::int32_t TRACK_VERSUS = 16;       // after the versus picture's animation
constexpr std::int32_t TRACK_EXTRA_STAGE = 17;  // the stages of characters 10..14
constexpr std::int32_t TRACK_LAST = 17;

// Start-up (from Sound_Init): opens the music player and prepares every track file found.
void Cd_Open();
// Sound setting on: plays `track` once from its start. Always remembers it in MusicTrack.
void Music_PlayTrack(std::int32_t track);
// Sound setting on and the player open: stops the music.
void Music_Stop();
// 1 while a track plays.
int Cd_IsPlaying();
// The track of the stage of `character`: 2 + c for 0..9, 17 for 10..14.
std::int32_t Music_StageTrack(std::int32_t character);

// ---- sound effects -------------------------------------------------------------------------
constexpr int SOUND_FILES = 178;        // sounds 0..177 have files
constexpr int SOUND_TABLE_SIZE = 200;   // 178..199 stay empty
constexpr int SOUND_QUEUE_SIZE = 5;     // fight sounds per frame
constexpr int SOUND_CHANNELS = 4;       // voice channels: 2 x fighter (attack), 2 x fighter + 1

// Sound numbers with a fixed meaning (see the content generator's table for every number).
enum : int {
  SND_NAME_CALL = 127,    // + c: the name of character c = 0..9
  SND_ROUND = 137,        // "round"
  SND_ROUND_NUMBER = 138, // + total wins: "one" .. "four"
  SND_FINAL_ROUND = 142,
  SND_FIGHT = 143,
  SND_KO = 144,
  SND_TIME_OVER = 145,
  SND_ALWAYS = 146,       // the coin chime: plays even with the sound off and in the demo
  SND_START = 147,        // a player starts or joins, a continue, leaving the options
  SND_CURSOR = 148,
  SND_EXTRA_NAME = 149,   // the name call of characters 10..14
  SND_CLASH = 151,        // two projectiles meet
  SND_HIT = 153,
  SND_WEAPON_HIT = 154,
  SND_HEAVY_SWING = 158,
  SND_LIGHT_SWING = 159,
  SND_OPENING_FLASH = 161,
  SND_GAME_OVER = 164,
  SND_CONTINUE = 165,
  SND_PERFECT = 166,
  SND_CHALLENGER = 167,
  SND_OPENING_TITLE = 168,
  SND_OPENING_BLOW = 176,
};

// A character's own voices besides its attack shouts: hit (while it still has life), down
// (the deciding blow) and jump (also the computer's dash). -1: the character has none.
struct CharacterVoice {
  std::int16_t hurt;
  std::int16_t down;
  std::int16_t jump;
};
constexpr int VOICE_CHARACTERS = 16;
constexpr CharacterVoice CharacterVoices[VOICE_CHARACTERS] = {
    {15, 17, 14},     // 0
    {32, 33, 19},     // 1
    {46, 47, 44},     // 2
    {57, 58, 53},     // 3
    {65, 59, 62},     // 4
    {73, 74, 68},     // 5
    {79, 80, 88},     // 6
    {105, 102, 98},   // 7
    {106, 107, 112},  // 8
    {125, 126, 117},  // 9
    {57, 58, 53},     // 10: the voice of 3
    {15, 17, 14},     // 11: the voice of 0
    {105, 102, 98},   // 12: the voice of 7
    {125, 126, 117},  // 13: the voice of 9
    {15, 17, 14},     // 14: the voice of 0
    {-1, -1, -1},     // 15: silent
};

// The fight's sounds of the current frame. Written by Queue_Sound and Flush_Sounds (the
// replay puts recorded sounds back through Queue_Sound and copies the entries it plays).
struct SoundQueueState {
  std::int16_t channel[SOUND_QUEUE_SIZE];
  std::int16_t sound[SOUND_QUEUE_SIZE];
  std::int32_t count;
};
extern SoundQueueState SoundQueue;
// The sound queued last on each channel. Written by Queue_Sound.
extern std::int32_t ChannelLastSound[SOUND_CHANNELS];

// Start-up step 16: opens the music player (Cd_Open) and the sound device, then loads
// sounds 0..177. A missing or broken wave file leaves that sound silent.
void Sound_Init();
// Front-end and event sounds, at once: with the sound setting on and outside the
// demonstration; sound 146 always.
void Play_Sound(int sound);
// A fight sound for this frame on `channel` (0..3); a sixth request in one frame is dropped.
void Queue_Sound(int channel, int sound);
// Once per fight frame: plays the queued sounds in order and empties the queue. With the
// sound setting off it does nothing, and the queue keeps its entries.
void Flush_Sounds();
// Stops the sound queued last on each channel and rewinds it.
void Stop_ChannelSounds();
// Plays one sound from its start unless it is still playing. Returns 1 when it started.
int Play_Effect(int sound);
