// Motion table reader.
//
// The whole file is staged and checked before anything is stored, so a refused file leaves
// the fighter's tables as they were.
#include "assets/asset_table.h"

#include <cstdint>
#include <cstdio>
#include <span>

#include "assets/asset_le.h"
#include "assets/asset_report.h"
#include "fight/fight_state.h"
#include "platform/platform.h"

namespace {

constexpr int kRangeBytes = TABLE_ACTIONS * 2 * 2;            // one section of ranges
constexpr int kHeadBytes = 2 * kRangeBytes + 2 + 2;           // ranges, windows, N, unused
constexpr int kFrameBytes = 2 + 3 * 4 + 2 + 2;                // key, offset, part, hit
constexpr int kStagingBytes = kHeadBytes + MAX_FRAMES * kFrameBytes;
std::uint8_t Staging[kStagingBytes];

// The staged file's action ranges and second windows: [section][action] = {first, last}.
// Written by decode_ranges only.
std::int16_t Ranges[2][TABLE_ACTIONS][2];

void decode_ranges() {
  const std::uint8_t* cur = Staging;
  for (std::int16_t& v : std::span(&Ranges[0][0][0], 2 * TABLE_ACTIONS * 2)) {
    v = le::i16(cur);
    cur += 2;
  }
}

// Stages `name`: its head, and its frames once `room` (frames the file may fill) is known to
// hold them, and decodes its ranges. Returns the frame count N + 1, or -1 when refused or not
// opened (the reason recorded).
int stage_table(const char* name, int room) {
  std::FILE* file = Plat_OpenFile(name, "rb");
  if (file == nullptr) {
    Load_NotOpened(name);
    return -1;
  }
  const std::size_t head = std::fread(Staging, 1, kHeadBytes, file);
  if (head != kHeadBytes) {
    std::fclose(file);
    Load_Refused(name, "too short: %zu bytes, less than the %d-byte action ranges and count",
                 head, kHeadBytes);
    return -1;
  }
  const int frames = le::i16(Staging + 2 * kRangeBytes) + 1;
  if (frames < 0 || frames > room) {
    std::fclose(file);
    Load_Refused(name, "%d frames are past the capacity: %d of the %d frames are left", frames,
                 room < 0 ? 0 : room, MAX_FRAMES);
    return -1;
  }
  const std::size_t need = static_cast<std::size_t>(frames) * kFrameBytes;
  const std::size_t got = std::fread(Staging + kHeadBytes, 1, need, file);
  std::fclose(file);
  if (got != need) {
    Load_Refused(name, "too short: %zu of the %zu frame bytes its %d frames need", got, need,
                 frames);
    return -1;
  }
  decode_ranges();
  return frames;
}

// The staged per-frame sections into frames base..base+frames-1; `key_shift` is added to every
// key frame number.
void store_frames(Fighter& f, int base, int frames, int key_shift) {
  const std::uint8_t* keys = Staging + kHeadBytes;
  const std::uint8_t* offsets = keys + frames * 2;
  const std::uint8_t* parts = offsets + frames * 12;
  const std::uint8_t* hits = parts + frames * 2;
  for (int i = 0; i < frames; ++i) {
    const int at = base + i;
    f.frame_key[at] = static_cast<std::int16_t>(le::i16(keys + 2 * i) + key_shift);
    for (int axis = 0; axis < 3; ++axis)
      f.frame_offset[at][axis] = le::f32(offsets + 12 * i + 4 * axis) * 10.0f;
    f.frame_part[at] = le::i16(parts + 2 * i);
    f.frame_hit[at] = le::i16(hits + 2 * i);
  }
}

bool shared_ranges_valid(const char* name) {
  int i = 0;
  for (const std::int16_t v : std::span(&Ranges[0][0][0], 2 * TABLE_ACTIONS * 2)) {
    if (v < 0 || v >= MAX_FRAMES) {
      Load_Refused(name, "damaged: action %d has frame %d, outside 0 to %d", i / 2 % TABLE_ACTIONS,
                   v, MAX_FRAMES - 1);
      return false;
    }
    ++i;
  }
  return true;
}

}  // namespace

bool Load_PreloadTBL(const char* name, int player) {
  if (player < 0 || player > 1) return false;
  const int frames = stage_table(name, MAX_FRAMES);
  if (frames < 0 || !shared_ranges_valid(name)) return false;
  Fighter& f = fighters[player];
  for (int i = 0; i < TABLE_ACTIONS; ++i) {
    f.act_first[i] = Ranges[0][i][0];
    f.act_last[i] = Ranges[0][i][1];
    f.act_win_first[i] = Ranges[1][i][0];
    f.act_win_last[i] = Ranges[1][i][1];
  }
  store_frames(f, 0, frames, 0);
  f.last_shared_frame = frames - 1;
  return true;
}

bool Load_TBL(const char* name, int player) {
  if (player < 0 || player > 1) return false;
  Fighter& f = fighters[player];
  const int base = f.last_shared_frame + 1;  // S + 1
  const int frames = stage_table(name, MAX_FRAMES - base);
  if (frames < 0) return false;
  std::int32_t* firsts[2] = {f.act_first, f.act_win_first};
  std::int32_t* lasts[2] = {f.act_last, f.act_win_last};
  for (int section = 0; section < 2; ++section)
    for (int i = 0; i < TABLE_ACTIONS; ++i) {
      const int a = Ranges[section][i][0];
      const int b = Ranges[section][i][1];
      // A range counts only inside 1..13499 with its start not above its end, and only when
      // it still lands inside the tables once shifted past the shared frames.
      if (a < 1 || a > b || b > MAX_FRAMES - 1 || b + base > MAX_FRAMES - 1) continue;
      firsts[section][i] = a + base;
      lasts[section][i] = b + base;
    }
  store_frames(f, base, frames, f.last_shared_key + 1);
  return true;
}
