// The per-frame trace of the headless program: one line a frame of the frame loop,
//   frame=N mode=M p0=ACTION,FRAME,X,Z,YAW,LIFE,DAMAGE p1=ACTION,FRAME,X,Z,YAW,LIFE,DAMAGE
//   clock=C ko=K wins=W0,W1
// (X and Z with three decimals, the rest whole numbers; C the round clock, K the knock-out
// state, W0 and W1 the rounds each side has won). Fields may be added after these;
// the ones above keep their place and meaning.
#pragma once
#include <cstddef>

// Opens the trace file and hooks the headless frame loop; false (with a message on standard
// error) when the file cannot be made. The file is flushed when the program ends.
bool Review_TraceOpen(const char* path);

// One trace line for loop frame `frame` into `out` (at most `size` bytes, terminated);
// returns its length.
int Review_TraceLine(long frame, char* out, std::size_t size);
