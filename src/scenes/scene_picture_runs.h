// The tables behind the picture sets: each row is one run of files that load into
// consecutive sprites. Private to the scene picture loaders.
#pragma once
#include <cstdint>
#include <span>

#include "assets/asset_image.h"
#include "scenes/scene_pictures.h"

// A run of files. A single file has no number and no stems; a numbered series puts the
// numbers first..first + count - 1 (zero-padded to `digits`) between prefix and ".bmp"; a
// stem list puts each stem between prefix and ".bmp".
struct PictureRun {
  const char* prefix;
  const char* const* stems;
  std::int16_t digits;  // 0: not a numbered series
  std::int16_t first;
  std::int16_t count;
  std::int16_t sprite;  // sprite of the run's first file
  float depth;
};

constexpr PictureRun File(const char* name, int sprite, float depth) {
  return {name, nullptr, 0, 0, 1, static_cast<std::int16_t>(sprite), depth};
}
constexpr PictureRun Series(const char* prefix, int digits, int first, int last, int sprite,
                            float depth) {
  return {prefix,
          nullptr,
          static_cast<std::int16_t>(digits),
          static_cast<std::int16_t>(first),
          static_cast<std::int16_t>(last - first + 1),
          static_cast<std::int16_t>(sprite),
          depth};
}
constexpr PictureRun Stems(const char* prefix, const char* const* stems, int count, int sprite,
                           float depth) {
  return {prefix, stems, 0, 0, static_cast<std::int16_t>(count),
          static_cast<std::int16_t>(sprite), depth};
}

// Entries in a table, and whether every run stays inside the sprite table.
constexpr int Runs_Entries(std::span<const PictureRun> runs) {
  int n = 0;
  for (const PictureRun& r : runs) n += r.count;
  return n;
}
constexpr bool Runs_InSpriteTable(std::span<const PictureRun> runs) {
  for (const PictureRun& r : runs)
    if (r.count < 1 || r.sprite < 0 || r.sprite + r.count > SPRITE_COUNT) return false;
  return true;
}

// The tables, one per set.
std::span<const PictureRun> Fight_Runs();
std::span<const PictureRun> Front_Runs(PictureSet set);

// Character order of the sets that hold one picture per character.
constexpr int PICTURE_CHARACTERS = 15;
extern const char* const PortraitStems[PICTURE_CHARACTERS];
extern const char* const NamePlateStems[PICTURE_CHARACTERS];
