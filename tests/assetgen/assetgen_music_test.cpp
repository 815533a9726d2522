// The score writer and composer: the MIDI read back note by note.
#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "assetgen_midi.h"
#include "assetgen_score.h"

namespace {

struct ParsedNote {
  std::uint32_t tick;
  int channel;
  int key;
};
struct ParsedSong {
  bool ok = false;
  std::uint32_t tempo_us = 0;
  std::uint32_t end = 0;
  std::vector<ParsedNote> ons;
  std::vector<std::pair<std::uint32_t, int>> order;  // (tick, +key on / -key-1 off) as met
};

ParsedSong parse(const std::string& s) {
  ParsedSong song;
  auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(s[i]); };
  if (s.size() < 22 || s.compare(0, 4, "MThd") != 0 || s.compare(14, 4, "MTrk") != 0) return song;
  if (byte(9) != 0 || byte(11) != 1 || (byte(12) << 8 | byte(13)) != gen::kTicksPerBeat)
    return song;
  const std::size_t length = byte(18) << 24 | byte(19) << 16 | byte(20) << 8 | byte(21);
  if (22 + length != s.size()) return song;
  std::size_t i = 22;
  std::uint32_t tick = 0;
  while (i < s.size()) {
    std::uint32_t delta = 0;
    do delta = delta << 7 | (byte(i) & 0x7F);
    while (byte(i++) & 0x80);
    tick += delta;
    const std::uint8_t status = byte(i++);
    if (status == 0xFF) {
      const std::uint8_t type = byte(i++), len = byte(i++);
      if (type == 0x51) song.tempo_us = byte(i) << 16 | byte(i + 1) << 8 | byte(i + 2);
      if (type == 0x2F) {
        song.end = tick;
        song.ok = i + len == s.size();
        return song;
      }
      i += len;
    } else if ((status & 0xF0) == 0xC0) {
      i += 1;
    } else if ((status & 0xF0) == 0x90 || (status & 0xF0) == 0x80 || (status & 0xF0) == 0xB0) {
      const int key = byte(i);
      if ((status & 0xF0) == 0x90) {
        song.ons.push_back({tick, status & 0x0F, key});
        song.order.push_back({tick, key});
      } else if ((status & 0xF0) == 0x80) {
        song.order.push_back({tick, -key - 1});
      }
      i += 2;
    } else {
      return song;  // the writer uses no running status
    }
  }
  return song;
}

TEST(MidiSong, WritesTempoLongDeltasAndEndsNotesBeforeRestrikingThem) {
  gen::MidiSong song;
  song.Tempo(0, 150);
  song.Program(0, 30);
  song.Note(0, 480, 0, 60, 100);
  song.Note(480, 480, 0, 60, 100);        // the same key again where the first ends
  song.Note(300000, 10, 9, 36, 200);      // a delta needing three bytes; velocity capped
  song.Note(10, 10, 0, 130, 100);         // outside the keyboard: dropped
  song.EndAt(400000);
  const ParsedSong p = parse(song.Bytes());
  ASSERT_TRUE(p.ok);
  EXPECT_EQ(p.tempo_us, 400000u);
  EXPECT_EQ(p.end, 400000u);
  ASSERT_EQ(p.ons.size(), 3u);
  EXPECT_EQ(p.ons[2].tick, 300000u);
  EXPECT_EQ(p.ons[2].channel, 9);
  // At tick 480 the first note's end comes before the second note's start.
  ASSERT_GE(p.order.size(), 3u);
  EXPECT_EQ(p.order[1], (std::pair<std::uint32_t, int>{480, -61}));
  EXPECT_EQ(p.order[2], (std::pair<std::uint32_t, int>{480, 60}));
}

bool in_scale(const gen::TrackStyle& s, int key) {
  static constexpr int kScales[][7] = {{0, 2, 4, 5, 7, 9, 11}, {0, 2, 3, 5, 7, 8, 10},
                                       {0, 2, 3, 5, 7, 9, 10}, {0, 1, 3, 5, 7, 8, 10},
                                       {0, 2, 3, 5, 7, 8, 11}, {0, 2, 4, 5, 7, 9, 10}};
  const int pc = ((key - s.root) % 12 + 12) % 12;
  for (int step : kScales[s.scale])
    if (step == pc) return true;
  return false;
}

TEST(Compose, EveryTrackIsAWellFormedPieceInItsKeyAndLongEnough) {
  for (const gen::TrackStyle& s : gen::kTrackStyles) {
    SCOPED_TRACE(s.track);
    const std::string bytes = gen::Compose(s);
    const ParsedSong p = parse(bytes);
    ASSERT_TRUE(p.ok);
    EXPECT_EQ(p.tempo_us, 60000000u / s.bpm);
    const double seconds = p.end / double(gen::kTicksPerBeat) * 60.0 / s.bpm;
    EXPECT_GE(seconds, gen::Composed_Seconds(s));
    const bool stage = s.track <= 11 || s.track == 17;
    if (stage) {
      EXPECT_GE(gen::Composed_Seconds(s), 90.0);
    }
    if (s.track == 16) {
      EXPECT_LT(gen::Composed_Seconds(s), 15.0);
    }
    int lead = 0, drums = 0;
    for (const ParsedNote& n : p.ons) {
      if (n.channel == 0 || n.channel == 1) {
        EXPECT_TRUE(in_scale(s, n.key)) << n.key;
      }
      if (n.channel == 0) {
        ++lead;
        EXPECT_GE(n.key, 48);
        EXPECT_LE(n.key, 100);
      }
      drums += n.channel == 9;
    }
    EXPECT_GT(lead, s.sting ? 0 : 30);
    EXPECT_GT(drums, 0);
    EXPECT_EQ(gen::Compose(s), bytes);  // the same score every time
  }
}

TEST(Compose, EachTrackHasItsOwnMelody) {
  std::set<std::vector<int>> melodies;
  for (const gen::TrackStyle& s : gen::kTrackStyles) {
    std::vector<int> lead;
    for (const ParsedNote& n : parse(gen::Compose(s)).ons)
      if (n.channel == 0 && lead.size() < 48) lead.push_back(n.key - s.root);
    melodies.insert(lead);
  }
  EXPECT_EQ(melodies.size(), std::size(gen::kTrackStyles));
}

}  // namespace
