#include "audio/audio_missing.h"

#include "platform/platform.h"

void Missing_Report(MissingRun& run, MissingName name, const char* what) {
  if (run.first < 0) return;
  char first[40], last[40];
  name(run.first, first, sizeof first);
  name(run.last, last, sizeof last);
  if (run.first == run.last)
    Plat_DebugOutf("valdrune: %s: missing; %s %d stays silent", first, what, run.first);
  else
    Plat_DebugOutf("valdrune: %s to %s: missing; %ss %d to %d stay silent", first, last, what,
                   run.first, run.last);
  run = MissingRun{};
}

void Missing_Note(MissingRun& run, int n, MissingName name, const char* what) {
  if (run.first >= 0 && run.last + 1 != n) Missing_Report(run, name, what);
  if (run.first < 0) run.first = n;
  run.last = n;
}
