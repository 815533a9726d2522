// The generated sounds and music as the game will find them.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "audio/audio.h"
#include "audio/audio_wave.h"
#include "platform/headless/headless_audio.h"
#include "settings/settings.h"

namespace {

std::uint32_t u16(const std::vector<std::uint8_t>& b, std::size_t at) {
  return b[at] | b[at + 1] << 8;
}
std::uint32_t u32(const std::vector<std::uint8_t>& b, std::size_t at) {
  return u16(b, at) | u16(b, at + 2) << 16;
}

std::vector<std::uint8_t> read_all(const std::string& path) {
  std::vector<std::uint8_t> bytes;
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (f == nullptr) return bytes;
  std::uint8_t chunk[65536];
  for (std::size_t n; (n = std::fread(chunk, 1, sizeof chunk, f)) > 0;)
    bytes.insert(bytes.end(), chunk, chunk + n);
  std::fclose(f);
  return bytes;
}

std::string sound_path(int n) {
  char name[16];
  std::snprintf(name, sizeof name, n < 100 ? "%02d.wav" : "%d.wav", n);
  return std::string(VALDRUNE_DATA_DIR) + "/" + name;
}

TEST(GeneratedSounds, EveryWaveHasTheCanonicalHeaderAndIsHeard) {
  std::uint64_t total = 0;
  for (int n = 0; n < SOUND_FILES; ++n) {
    SCOPED_TRACE(sound_path(n));
    const std::vector<std::uint8_t> b = read_all(sound_path(n));
    ASSERT_GT(b.size(), 44u);
    EXPECT_EQ(std::string(b.begin(), b.begin() + 4), "RIFF");
    EXPECT_EQ(u32(b, 4), b.size() - 8);
    EXPECT_EQ(std::string(b.begin() + 8, b.begin() + 16), "WAVEfmt ");
    EXPECT_EQ(u32(b, 16), 16u);
    EXPECT_EQ(u16(b, 20), 1u);  // PCM
    EXPECT_EQ(u16(b, 22), 1u);
    EXPECT_EQ(u32(b, 24), 22050u);
    EXPECT_EQ(u32(b, 28), 22050u * 2);
    EXPECT_EQ(u16(b, 32), 2u);
    EXPECT_EQ(u16(b, 34), 16u);
    EXPECT_EQ(std::string(b.begin() + 36, b.begin() + 40), "data");
    ASSERT_EQ(u32(b, 40), b.size() - 44);
    const double seconds = (b.size() - 44) / 2 / 22050.0;
    EXPECT_GT(seconds, 0.04);
    EXPECT_LT(seconds, 4.0);
    int peak = 0;
    for (std::size_t i = 44; i + 1 < b.size(); i += 2)
      peak = std::max(peak, std::abs(static_cast<std::int16_t>(u16(b, i))));
    EXPECT_GT(peak, 8000);  // clearly audible, not silence
    total += b.size() - 44;
  }
  EXPECT_LE(total, WAVE_POOL_BYTES);
}

TEST(GeneratedSounds, TheGameLoadsTheWholeSetAndEveryMusicTrack) {
  char cwd[1024];
  ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
  ASSERT_EQ(chdir(VALDRUNE_DATA_DIR), 0);
  Sound_Init();
  ASSERT_EQ(chdir(cwd), 0);
  for (int n = 0; n < SOUND_FILES; ++n) EXPECT_TRUE(Headless_SoundLoaded(n)) << n;
  for (int t = TRACK_FIRST_STAGE; t <= TRACK_LAST; ++t) {
    EXPECT_TRUE(Headless_MusicPrepared(t)) << t;
    char name[64];
    std::snprintf(name, sizeof name, "%s/music/track%02d.ogg", VALDRUNE_DATA_DIR, t);
    const std::vector<std::uint8_t> b = read_all(name);
    ASSERT_GT(b.size(), 4u) << name;
    EXPECT_EQ(std::string(b.begin(), b.begin() + 4), "OggS") << name;
  }
}

}  // namespace
