// Attachment chains: the loose costume pieces (sashes, tails, ribbons, a hanging weapon) that
// swing from the body part they hang on instead of following the key frames.
//
// Each frame the chain pass swings every present attachment of a fighter from its anchor part,
// by how far that part moved since the previous frame, lets each lower link trail a quarter of
// the way behind the one above it, and writes the world rotation and eye matrix of each chain
// point into Draw.WorldRot / Draw.EyeMat slots 30 + 5i + k, which the mesh pass reads.
//
// The chain pass owns the run-time members of each Attachment (swing, anchor, links); the
// model and character loaders own the rest.
#pragma once

// Velocity divisor: a move of this many units in depth or height since the previous frame
// swings the chain by one degree.
constexpr float CHAIN_VELOCITY_DIVISOR = 0.005f;

// Actions in which the fighter is thrown or held: a chain hung on the hips then hangs at a fixed
// angle unless the fighter is on the floor.
constexpr int ACTION_THROWN = 410;
constexpr int ACTION_HELD = 425;
constexpr int CHAIN_THROWN_SWING_REVERSE = -60;
constexpr int CHAIN_THROWN_SWING = 5;

// The whole chain pass for one fighter (0 or 1). Reads the fighter's current pose, yaw and
// position and the frame's View; needs the angle tables.
void Update_Attachments(int player);

// The raw swing limited against the previous frame's swing: a normal chain climbs 10 on a jump
// of more than 10 and otherwise not at all, and falls 30 at most; a reversed chain climbs 30 at
// most, and falls 7 on a drop of more than 7 and otherwise not at all.
int Chain_RateLimit(int raw, int previous, int reverse);

// Clears the run-time state of the fighter's chains (swing, anchor, links), so that the next
// frame swings from the origin as at program start. Nothing in the frame calls it.
void Reset_Attachments(int player);
