// Load failures in words. Every data file that fails to load gets one line on the diagnostic
// channel (standard error) naming the file, the reason and what follows, beside whatever
// message the game itself prints:
//   valdrune: hana.bsc: missing; the skeleton loaded before stays
//   valdrune: fatal: FAR.3DM: missing; the game stops (exit status 0)
// Every line of a failure that ends the game begins "valdrune: fatal: ", whatever exit
// status the game's rules give, so that a script can tell it from a normal ending.
#pragma once

// Readers: `file` could not be read, for `reason` (printf-style). The latest one stands until
// the next; the caller says what follows.
void Load_Refused(const char* file, const char* reason, ...) __attribute__((format(printf, 2, 3)));
// Readers: `file` could not be opened (the platform says why: missing, or the system's reason).
void Load_NotOpened(const char* file);

// The caller goes on without the file: the recorded file and reason, then what follows.
void Report_GoesOn(const char* follows, ...) __attribute__((format(printf, 1, 2)));
// The caller ends the game: the fatal line, then the failure code (when not null) on the
// diagnostic channel, then the exit with `status`.
[[noreturn]] void Report_Stop(const char* code, int status);
// The fatal line alone, for the start-up path that returns its status instead of exiting.
void Report_Stops(int status);

// The recorded failure, for the tests: its file and its reason ("" before any).
const char* Report_File();
const char* Report_Reason();
