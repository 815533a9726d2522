// The settings file "OPTION.CFG": 26 bytes, version 13.
//
// The settings live in the globals below (and in Match.rounds_to_win, Match.life_setting,
// Match.time_limit and the input's ButtonMask). Written by Settings_Load at start-up and by
// the options screen; read everywhere.
#pragma once
#include <cstdint>

struct SettingsState {
  std::int32_t difficulty = 2;        // 1..5: the computer's level
  std::int32_t extra_characters = 0;  // 0, 1: 14 instead of 10 selectable characters
  std::int32_t sound = 1;             // 0, 1: sound effects and music
  std::int32_t coins_per_credit = 1;  // 1..5
  std::int32_t frame_rate = 65;       // 40..80 in steps of 5
};
extern SettingsState Settings;

constexpr int SETTINGS_FILE_SIZE = 26;
constexpr std::uint8_t SETTINGS_VERSION = 13;

// The staging record shared by load and save; zeros before the first load.
extern std::uint8_t SettingsRecord[SETTINGS_FILE_SIZE];

// Start-up: reads "OPTION.CFG" when it exists and carries version 13.
void Settings_Load();
// Leaving the options screen: writes "OPTION.CFG" (replaced atomically); silent on failure.
void Settings_Save();

// The record <-> settings steps of load and save, exposed for the file's tests:
// Settings_Decode widens every field of SettingsRecord with its sign into the settings;
// Settings_Clamp brings values outside their ranges back in (see the README);
// Settings_Encode fills SettingsRecord from the settings, each cut to its field's width.
void Settings_Decode();
void Settings_Clamp();
void Settings_Encode();

// The frame rate to pass to Set_FrameRate: the setting, or 65 when the setting read from a
// file is 0 or below.
std::int32_t Settings_FrameRate();
