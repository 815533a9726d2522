// How far a character's own attacks reach. The computer starts some special moves from far off
// (its distance bands of 10 and 13 units); those moves carry the body in far enough for their
// first strike to land there, and every other attack lands at least at close range.
#pragma once
#include "moves/mv_roster.h"

namespace mv {

constexpr float kCloseReach = 5.5f;  // root to root: just past the 4.0 the fighters keep apart

// A follow-up starts as the blow before it lands, while the struck opponent reels away (and a
// computer opponent backs off as soon as a move starts): it reaches this far.
constexpr float kFollowReach = 10.0f;

// A rush's follow-up is taken as its last straight drives the opponent off, so it reaches as far
// as they are driven.
constexpr float kAfterRushReach = 15.5f;

// True when the action follows another of the character's moves through a link.
bool Mv_IsFollowUp(int character, int action);

// The band (13 or 10) from which the computer starts this character's action, or 0 when it
// only plays it close.
int Mv_ReachBand(int character, int action);

// The root-to-root distance at which the move's strikes first touch the defender: the front of
// the striking part's box, plus the defender's front (0.8 once its boxes are widened).
float Mv_Reach(const Move& mv, int character);

// Adds forward travel to the beats leading into the first strike until the move reaches
// `target`; a move that already does is left alone.
void Mv_FitReach(Move& mv, int character, float target);

// How far sideways of the fighters' line the move's strikes pass (signed: + to the figure's
// right), at the strike frame that comes closest to it; 0 when a strike crosses it.
float Mv_OffLine(const Move& mv, int character);

// Pivots the body of every striking beat toward the line until its strikes cross the
// opponent's body instead of passing beside it; `keep` stores the turned poses.
void Mv_FitLine(Move& mv, int character, const mot::Pose* (*keep)(const mot::Pose&));

}  // namespace mv
