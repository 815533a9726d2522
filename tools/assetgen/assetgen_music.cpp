// The music: each track's score written as MIDI, played through a General MIDI sound font by
// fluidsynth and compressed by oggenc into music/trackNN.ogg.
#include <cstdio>
#include <string>

#include "assetgen.h"
#include "assetgen_score.h"
#include "audio/audio.h"

namespace gen {

namespace {

constexpr const char* kSoundFont = "/usr/share/sounds/sf2/FluidR3_GM.sf2";
constexpr int kMusicRate = 32000;
constexpr double kRingOut = 1.5;  // seconds kept after the last bar

constexpr bool tracks_complete() {
  for (int i = 0; i < kTrackStyleCount; ++i)
    if (kTrackStyles[i].track != TRACK_FIRST_STAGE + i) return false;
  return kTrackStyles[kTrackStyleCount - 1].track == TRACK_LAST;
}
static_assert(tracks_complete(), "one style row per track, in track order");

std::string track_name(int track) {
  char name[32];
  std::snprintf(name, sizeof name, "track%02d", track);
  return name;
}

// MIDI to wave, cut to the composed length plus a faded ring-out (the synthesiser renders
// seconds of silence past the end) and brought to full level, then to Ogg Vorbis; the fixed
// stream serial keeps the file the same on every run.
Job render_job(const Context& ctx, const TrackStyle& style, const fs::path& midi) {
  const fs::path wave = ctx.work / (track_name(style.track) + ".wav");
  const fs::path cut = ctx.work / (track_name(style.track) + "-cut.wav");
  const fs::path ogg = ctx.out / "music" / (track_name(style.track) + ".ogg");
  char length[64];
  std::snprintf(length, sizeof length, "%.3f fade t 0 %.3f %.3f gain -n -1",
                Composed_Seconds(style) + kRingOut, Composed_Seconds(style) + kRingOut, kRingOut);
  const std::string cmd =
      "fluidsynth -n -i -q -g 0.45 -r " + std::to_string(kMusicRate) +
      " -o synth.cpu-cores=1 -o synth.reverb.active=1 -o synth.chorus.active=1" +
      " -T wav -O s16 -F " + Shell_Quote(wave.string()) + " " + kSoundFont + " " +
      Shell_Quote(midi.string()) + " && sox -R -D " + Shell_Quote(wave.string()) + " " +
      Shell_Quote(cut.string()) + " trim 0 " + length + " && oggenc -Q -q 3 -s " +
      std::to_string(7000 + style.track) + " -o " + Shell_Quote(ogg.string()) + " " +
      Shell_Quote(cut.string());
  return Job{cmd, {midi}, ogg};
}

}  // namespace

bool Generate_Music(const Context& ctx) {
  if (!Require_Tool("fluidsynth", "fluidsynth") || !Require_Tool("oggenc", "vorbis-tools") ||
      !Require_Tool("sox", "sox"))
    return false;
  std::error_code ec;
  if (!fs::exists(kSoundFont, ec)) {
    std::fprintf(stderr, "assetgen: the sound font %s is missing (apt-get install %s)\n",
                 kSoundFont, "fluid-soundfont-gm");
    return false;
  }
  fs::create_directories(ctx.out / "music", ec);
  std::vector<Job> jobs;
  for (const TrackStyle& style : kTrackStyles) {
    const fs::path midi = ctx.work / (track_name(style.track) + ".mid");
    if (!Write_File(midi, Compose(style))) return false;
    jobs.push_back(render_job(ctx, style, midi));
  }
  return Run_Jobs(ctx, jobs);
}

}  // namespace gen
