// Music: one track per stage and scene, streamed from "music/trackNN.ogg".
//
// The player opens once at start-up and prepares every track file it finds; a track plays
// once from its start. Every request is ignored while the sound setting is off, and fails
// silently without a player or without the track's file.
#include <cstdio>

#include "audio/audio.h"
#include "platform/platform.h"
#include "platform/platform_audio.h"
#include "settings/settings.h"

std::int32_t MusicTrack = 0;

namespace {

// The music player. Written by Cd_Open only.
struct CdPlayerState {
  std::int32_t open = 0;  // 1 after the player opened
};
CdPlayerState CdPlayer;

bool sound_on() { return Settings.sound == 1; }

}  // namespace

void Cd_Open() {
  if (!Plat_MusicOpen()) {
    Plat_DebugOut("valdrune: no music player; the game runs without music");
    return;
  }
  CdPlayer.open = 1;
  for (std::int32_t track = TRACK_FIRST_STAGE; track <= TRACK_LAST; ++track) {
    char name[32];
    std::snprintf(name, sizeof name, "music/track%02d.ogg", static_cast<int>(track));
    // A missing file leaves that track silent; a file the player cannot play says so itself.
    std::FILE* file = Plat_OpenFile(name, "rb");
    if (file == nullptr) {
      Plat_DebugOutf("valdrune: %s: %s; track %d stays silent", name, Plat_OpenFailure(),
                     static_cast<int>(track));
      continue;
    }
    std::fclose(file);
    Plat_MusicLoadTrack(track, name);
  }
}

void Music_PlayTrack(std::int32_t track) {
  if (sound_on() && CdPlayer.open) Plat_MusicPlay(track);
  MusicTrack = track;
}

void Music_Stop() {
  if (sound_on() && CdPlayer.open) Plat_MusicStop();
}

int Cd_IsPlaying() { return CdPlayer.open && Plat_MusicIsPlaying() ? 1 : 0; }

std::int32_t Music_StageTrack(std::int32_t character) {
  return character < 10 ? TRACK_FIRST_STAGE + character : TRACK_EXTRA_STAGE;
}
