// Private to the real backend.
#pragma once

// Registers the toolkit's key callbacks that latch short presses. Called by the main loop.
void RealKeys_RegisterCallbacks();

// Marks the start of a frame: the next key poll reads the keyboard state afresh. Called by the
// main loop before each frame.
void RealKeys_NewFrame();
