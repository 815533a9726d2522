// A scratch data directory with wave files, entered for the length of one test.
#pragma once
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "audio/audio.h"
#include "fight/fight_state.h"
#include "settings/settings.h"
#include "support/test_support.h"
#include "writers/writer_wave.h"

class AudioDir : public test::TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    Settings.sound = 1;
    Match.demo = 0;
  }
  void TearDown() override {
    TempDirTest::TearDown();
    Settings.sound = 1;
    Match.demo = 0;
  }

  // A mono 16-bit tone of `frames` samples at 22050 Hz; its first sample is `tag`.
  static void write_wave(const char* name, std::size_t frames, std::int16_t tag = 1) {
    std::vector<std::int16_t> s(frames, 300);
    s[0] = tag;
    ASSERT_EQ(Wave_Write16(name, s.data(), frames, 1, 22050), 1);
  }
  // Waves for sounds first..last (inclusive), each a tenth of a second long.
  static void write_sounds(int first, int last) {
    for (int n = first; n <= last; ++n) {
      char name[16];
      std::snprintf(name, sizeof name, n < 100 ? "%02d.wav" : "%d.wav", n);
      write_wave(name, 2205, static_cast<std::int16_t>(n));
    }
  }

};
