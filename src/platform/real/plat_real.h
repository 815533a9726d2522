// Private to the real backend.
#pragma once

// Registers the toolkit's key callbacks that latch short presses. Called by the main loop.
void RealKeys_RegisterCallbacks();
