// Missing sound and music files, reported a run of consecutive numbers at a time (a data set
// without its sounds would otherwise take 178 lines). Private to the audio subsystem.
#pragma once
#include <cstddef>

// One open run of missing files; written only by the two functions below.
struct MissingRun {
  int first = -1;
  int last = -1;
};

// The file name of number `n`.
using MissingName = void (*)(int n, char* out, std::size_t size);

// Number `n`'s file is missing: it joins the open run, or a gap reports the run first.
void Missing_Note(MissingRun& run, int n, MissingName name, const char* what);
// Reports the open run, if any: "valdrune: 05.wav to 07.wav: missing; sounds 5 to 7 stay
// silent" (`what` is "sound" or "track").
void Missing_Report(MissingRun& run, MissingName name, const char* what);
