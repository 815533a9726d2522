#include "settings/settings.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/platform.h"

SettingsState Settings;
std::uint8_t SettingsRecord[SETTINGS_FILE_SIZE] = {};

namespace {

constexpr const char* kFileName = "OPTION.CFG";
constexpr const char* kTempName = "OPTION.CFG.tmp";

std::int32_t s8(int offset) { return static_cast<std::int8_t>(SettingsRecord[offset]); }
std::int32_t s16(int offset) {
  return static_cast<std::int16_t>(SettingsRecord[offset] | (SettingsRecord[offset + 1] << 8));
}
void put8(int offset, std::int32_t v) { SettingsRecord[offset] = static_cast<std::uint8_t>(v); }
void put16(int offset, std::int32_t v) {
  SettingsRecord[offset] = static_cast<std::uint8_t>(v);
  SettingsRecord[offset + 1] = static_cast<std::uint8_t>(v >> 8);
}

std::int32_t clamp(std::int32_t v, std::int32_t lo, std::int32_t hi) {
  return v < lo ? lo : (v > hi ? hi : v);
}

// The button masks a slot may read: one of the four attack bits.
bool valid_mask(std::int16_t m) { return m == 0x10 || m == 0x20 || m == 0x40 || m == 0x80; }

}  // namespace

void Settings_Decode() {
  Settings.difficulty = s8(1);
  Match.time_limit = s16(2);
  Match.life_setting = s8(4);
  Match.rounds_to_win = s8(5);
  Settings.extra_characters = s8(6);
  Settings.sound = s8(7);
  Settings.coins_per_credit = s8(8);
  Settings.frame_rate = s8(9);
  for (int p = 0; p < 2; ++p)
    for (int slot = 0; slot < 4; ++slot)
      ButtonMask[p][slot] = static_cast<std::int16_t>(s16(10 + p * 8 + slot * 2));
}

void Settings_Clamp() {
  Settings.difficulty = clamp(Settings.difficulty, 1, 5);
  Match.time_limit = clamp(Match.time_limit, 6000, 9000) / 1000 * 1000;
  Match.life_setting = clamp(Match.life_setting, 1, 3);
  Match.rounds_to_win = clamp(Match.rounds_to_win, 1, 3);
  Settings.extra_characters = clamp(Settings.extra_characters, 0, 1);
  Settings.sound = clamp(Settings.sound, 0, 1);
  Settings.coins_per_credit = clamp(Settings.coins_per_credit, 1, 5);
  if (Settings.frame_rate < 40 || Settings.frame_rate > 80 || Settings.frame_rate % 5 != 0)
    Settings.frame_rate = 65;
  static constexpr std::int16_t kDefaultMask[4] = {0x10, 0x20, 0x40, 0x80};
  for (int p = 0; p < 2; ++p)
    for (int slot = 0; slot < 4; ++slot)
      if (!valid_mask(ButtonMask[p][slot])) ButtonMask[p][slot] = kDefaultMask[slot];
}

namespace {

// A save that was cut short leaves its temporary file behind; the real file is whole either
// way (the old one or the new one), so the leftover only goes.
void remove_stale_temp() {
  if (std::remove(kTempName) == 0)
    Plat_DebugOutf("valdrune: %s: left by an interrupted save; removed", kTempName);
}

// Reads the file into the staging record; returns the bytes read, or -1 when there is none.
int read_record() {
  std::FILE* file = Plat_OpenFile(kFileName, "rb");
  if (file == nullptr) {
    if (std::strcmp(Plat_OpenFailure(), "missing") != 0)
      Plat_DebugOutf("valdrune: %s: %s; the default settings stay", kFileName, Plat_OpenFailure());
    return -1;
  }
  // A short file replaces only the start of the staging record.
  const int got = static_cast<int>(std::fread(SettingsRecord, 1, SETTINGS_FILE_SIZE, file));
  std::fclose(file);
  return got;
}

}  // namespace

void Settings_Load() {
  remove_stale_temp();
  const int got = read_record();
  if (got >= 0 && SettingsRecord[0] != SETTINGS_VERSION) {
    Plat_DebugOutf("valdrune: %s: %s; the default settings stay", kFileName,
                   got == 0 ? "empty" : "not a settings file of version 13");
  } else if (got >= 0 && got < SETTINGS_FILE_SIZE) {
    Plat_DebugOutf("valdrune: %s: too short: %d of %d bytes; the settings it lacks stay as "
                   "the record held them (zeros at start-up), brought into range",
                   kFileName, got, SETTINGS_FILE_SIZE);
  }
  if (SettingsRecord[0] != SETTINGS_VERSION) return;
  Settings_Decode();
  Settings_Clamp();
}

void Settings_Encode() {
  put8(0, SETTINGS_VERSION);
  put8(1, Settings.difficulty);
  put16(2, Match.time_limit);
  put8(4, Match.life_setting);
  put8(5, Match.rounds_to_win);
  put8(6, Settings.extra_characters);
  put8(7, Settings.sound);
  put8(8, Settings.coins_per_credit);
  put8(9, Settings.frame_rate);
  for (int p = 0; p < 2; ++p)
    for (int slot = 0; slot < 4; ++slot) put16(10 + p * 8 + slot * 2, ButtonMask[p][slot]);
}

namespace {

// The rename lives in the directory: until the directory itself reaches the disk, a power
// cut can still bring back the old name.
bool sync_directory() {
  const int dir = open(".", O_RDONLY | O_DIRECTORY);
  if (dir < 0) return false;
  const bool ok = fsync(dir) == 0;
  close(dir);
  return ok;
}

void save_failed(const char* what) {
  Plat_DebugOutf("valdrune: %s: %s (%s); the settings are not saved", kFileName, what,
                 std::strerror(errno));
}

}  // namespace

void Settings_Save() {
  Settings_Encode();
  // Write a temporary file beside the real one and rename it over, so that an interrupted
  // save leaves the old file whole.
  std::FILE* file = std::fopen(kTempName, "wb");
  if (file == nullptr) {
    save_failed("cannot write OPTION.CFG.tmp");
    return;
  }
  const bool written = std::fwrite(SettingsRecord, 1, SETTINGS_FILE_SIZE, file) ==
                           static_cast<std::size_t>(SETTINGS_FILE_SIZE) &&
                       std::fflush(file) == 0 && fsync(fileno(file)) == 0;
  const bool closed = std::fclose(file) == 0;
  if (!written || !closed || std::rename(kTempName, kFileName) != 0) {
    save_failed("cannot replace the file");
    std::remove(kTempName);
    return;
  }
  if (!sync_directory()) save_failed("the directory could not be synced");
}

std::int32_t Settings_FrameRate() { return Settings.frame_rate > 0 ? Settings.frame_rate : 65; }
