// Motion table reader.
//
// The whole file is staged and checked before anything is stored, so a refused file leaves
// the fighter's tables as they were.
#include "assets/asset_table.h"

#include <cstdint>
#include <cstdio>

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

// Stages `name`: its head, and its frames once `room` (frames the file may fill) is known to
// hold them. Returns the frame count N + 1, or -1 when refused or not opened (the reason
// recorded).
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
  return frames;
}

std::int16_t range_value(int section, int action, int end) {
  return le::i16(Staging + section * kRangeBytes + (action * 2 + end) * 2);
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
  for (int section = 0; section < 2; ++section)
    for (int i = 0; i < TABLE_ACTIONS; ++i)
      for (int end = 0; end < 2; ++end) {
        const int v = range_value(section, i, end);
        if (v < 0 || v >= MAX_FRAMES) {
          Load_Refused(name, "damaged: action %d has frame %d, outside 0 to %d", i, v,
                       MAX_FRAMES - 1);
          return false;
        }
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
    f.act_first[i] = range_value(0, i, 0);
    f.act_last[i] = range_value(0, i, 1);
    f.act_win_first[i] = range_value(1, i, 0);
    f.act_win_last[i] = range_value(1, i, 1);
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
      const int a = range_value(section, i, 0);
      const int b = range_value(section, i, 1);
      // A range counts only inside 1..13499 with its start not above its end, and only when
      // it still lands inside the tables once shifted past the shared frames.
      if (a < 1 || a > b || b > MAX_FRAMES - 1 || b + base > MAX_FRAMES - 1) continue;
      firsts[section][i] = a + base;
      lasts[section][i] = b + base;
    }
  store_frames(f, base, frames, f.last_shared_key + 1);
  return true;
}
