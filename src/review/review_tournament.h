// The tournament: every character against every other, computer against computer, with the
// drawing off, to measure how the fighters fare under the computer's routines.
#pragma once

struct TournamentOptions {
  int rounds = 2;  // rounds per pairing
  int level = 70;  // both sides' computer level (20..200)
  int usage = 0;   // 1: also print how often each character entered each action
};

// Runs the tournament on the data set in the current directory and prints one line per
// character, "char=C wins=W rounds=R ko=K timeouts=T mean_frames=F", then
// "tournament rounds=R ko_share=S frames_per_second=FPS". Returns the program's exit status
// (1, with a message, when the data set cannot be loaded).
int Review_Tournament(const TournamentOptions& options);
