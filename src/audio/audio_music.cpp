// Music: one track per stage and scene, streamed from "music/trackNN.ogg".
//
// The player opens once at start-up and prepares every track file it finds; a track plays
// once from its start. Every request is ignored while the sound setting is off, and fails
// silently without a player or without the track's file.
#include <cstdio>
#include <cstring>

#include "audio/audio.h"
#include "audio/audio_missing.h"
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

void track_file_name(int track, char* out, std::size_t size) {
  std::snprintf(out, size, "music/track%02d.ogg", track);
}

}  // namespace

void Cd_Open() {
  if (!Plat_MusicOpen()) {
    Plat_DebugOut("valdrune: no music player; the game runs without music");
    return;
  }
  CdPlayer.open = 1;
  MissingRun missing;
  for (int track = TRACK_FIRST_STAGE; track <= TRACK_LAST; ++track) {
    char name[32];
    track_file_name(track, name, sizeof name);
    // A missing file leaves that track silent; a file the player cannot play says so itself.
    std::FILE* file = Plat_OpenFile(name, "rb");
    if (file == nullptr && std::strcmp(Plat_OpenFailure(), "missing") == 0) {
      Missing_Note(missing, track, track_file_name, "track");
      continue;
    }
    Missing_Report(missing, track_file_name, "track");
    if (file == nullptr) {
      Plat_DebugOutf("valdrune: %s: %s; track %d stays silent", name, Plat_OpenFailure(), track);
      continue;
    }
    std::fclose(file);
    Plat_MusicLoadTrack(track, name);
  }
  Missing_Report(missing, track_file_name, "track");
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
