// Motion tables: the shared "PRELOAD.TBL" and a character's own ".tbl" merged after it.
#pragma once

constexpr int TABLE_ACTIONS = 1000;

// Reads the shared table into frames 0..N of the player's tables and sets its action ranges
// exactly as read. False when the file cannot be opened, or is refused (a frame count or a
// range beyond the tables, a short file); a refused file changes nothing.
bool Load_PreloadTBL(const char* name, int player);
// Appends a character's table after the shared frames: its valid ranges override the shared
// ones, shifted past the shared frames, and its key frames follow the shared key frames. False
// when the file cannot be opened or is refused (shared and own frames beyond the tables, a
// short file); a refused file changes nothing.
bool Load_TBL(const char* name, int player);
