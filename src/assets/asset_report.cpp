// Load failures in words: the latest failure's file and reason, and the lines that report it.
#include "assets/asset_report.h"

#include <cstdarg>
#include <cstdio>

#include "platform/platform.h"

namespace {

// The latest load failure. Written by Load_Refused and Load_NotOpened.
struct ReportState {
  char file[96] = "";
  char reason[160] = "";
};
ReportState Report;

void set_file(const char* file) {
  std::snprintf(Report.file, sizeof Report.file, "%s", file != nullptr ? file : "(no name)");
}

}  // namespace

void Load_Refused(const char* file, const char* reason, ...) {
  set_file(file);
  std::va_list args;
  va_start(args, reason);
  std::vsnprintf(Report.reason, sizeof Report.reason, reason, args);
  va_end(args);
}

void Load_NotOpened(const char* file) {
  set_file(file);
  std::snprintf(Report.reason, sizeof Report.reason, "%s", Plat_OpenFailure());
}

void Report_GoesOn(const char* follows, ...) {
  char what[200];
  std::va_list args;
  va_start(args, follows);
  std::vsnprintf(what, sizeof what, follows, args);
  va_end(args);
  Plat_DebugOutf("valdrune: %s: %s; %s", Report.file, Report.reason, what);
}

void Report_Stops(int status) {
  if (Report.file[0] == '\0')
    Plat_DebugOutf("valdrune: fatal: a load failed; the game stops (exit status %d)", status);
  else
    Plat_DebugOutf("valdrune: fatal: %s: %s; the game stops (exit status %d)", Report.file,
                   Report.reason, status);
}

void Report_Stop(const char* code, int status) {
  std::fflush(stdout);  // the game's own message comes first
  if (code != nullptr) Plat_DebugOut(code);
  Report_Stops(status);  // the last line before the end
  Plat_Exit(status);
}

const char* Report_File() { return Report.file; }
const char* Report_Reason() { return Report.reason; }
