// Sound effects and music: the calls the rest of the game makes.
#pragma once
#include <cstdint>

// Music (one track per stage and scene).
extern std::int32_t MusicTrack;  // the stage's track, restarted by the fight when it ends
void Cd_Open();                  // start-up: opens the music device
void Music_PlayTrack(std::int32_t track);
void Music_Stop();
int Cd_IsPlaying();  // 1 while a track plays
