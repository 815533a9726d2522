// Music calls. The music player is not wired yet: every call is a no-op and nothing plays.
#include "audio/audio.h"

std::int32_t MusicTrack = 0;

void Cd_Open() {}
void Music_PlayTrack(std::int32_t) {}
void Music_Stop() {}
int Cd_IsPlaying() { return 0; }
