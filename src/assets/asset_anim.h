// Fighter animation files: the shared key frames, skeletons, characters' key frames, posing.
#pragma once

// Start-up: reads the shared key frames of "PRELOAD.FA". False only when the file cannot be
// opened.
bool Load_PreloadFA(const char* name);
