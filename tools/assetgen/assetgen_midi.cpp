// Standard MIDI file writer.
#include "assetgen_midi.h"

#include <algorithm>

namespace gen {

namespace {

void put_var(std::string& out, std::uint32_t v) {
  std::uint8_t bytes[5];
  int n = 0;
  bytes[n++] = v & 0x7F;
  while (v >>= 7) bytes[n++] = static_cast<std::uint8_t>(0x80 | (v & 0x7F));
  while (n) out += static_cast<char>(bytes[--n]);
}

void put_be(std::string& out, std::uint32_t v, int bytes) {
  for (int i = bytes - 1; i >= 0; --i) out += static_cast<char>((v >> (8 * i)) & 0xFF);
}

}  // namespace

void MidiSong::add(std::uint32_t tick, int order, std::uint8_t a, std::uint8_t b,
                   std::uint8_t c, int size) {
  events_.push_back(
      Event{tick, order, static_cast<std::uint32_t>(events_.size()), {a, b, c}, size, 0});
  end_ = std::max(end_, tick);
}

void MidiSong::Tempo(std::uint32_t tick, int bpm) {
  add(tick, 0, 0, 0, 0, 0);
  events_.back().tempo_us = 60000000u / static_cast<std::uint32_t>(bpm);
}

void MidiSong::Program(int channel, int program) {
  add(0, 0, static_cast<std::uint8_t>(0xC0 | channel), static_cast<std::uint8_t>(program), 0, 2);
}

void MidiSong::Control(std::uint32_t tick, int channel, int control, int value) {
  add(tick, 0, static_cast<std::uint8_t>(0xB0 | channel), static_cast<std::uint8_t>(control),
      static_cast<std::uint8_t>(value), 3);
}

void MidiSong::Note(std::uint32_t tick, std::uint32_t length, int channel, int key, int velocity) {
  if (key < 0 || key > 127 || length == 0) return;
  velocity = std::clamp(velocity, 1, 127);
  add(tick, 2, static_cast<std::uint8_t>(0x90 | channel), static_cast<std::uint8_t>(key),
      static_cast<std::uint8_t>(velocity), 3);
  add(tick + length, 1, static_cast<std::uint8_t>(0x80 | channel), static_cast<std::uint8_t>(key),
      0, 3);
}

void MidiSong::EndAt(std::uint32_t tick) { end_ = std::max(end_, tick); }

std::string MidiSong::Bytes() const {
  std::vector<Event> sorted = events_;
  std::sort(sorted.begin(), sorted.end(), [](const Event& a, const Event& b) {
    if (a.tick != b.tick) return a.tick < b.tick;
    if (a.order != b.order) return a.order < b.order;
    return a.serial < b.serial;
  });
  std::string track;
  std::uint32_t now = 0;
  for (const Event& e : sorted) {
    put_var(track, e.tick - now);
    now = e.tick;
    if (e.tempo_us != 0) {
      track += "\xFF\x51\x03";
      put_be(track, e.tempo_us, 3);
    } else {
      for (int i = 0; i < e.size; ++i) track += static_cast<char>(e.data[i]);
    }
  }
  put_var(track, end_ - now);
  track += std::string("\xFF\x2F\x00", 3);

  std::string out = "MThd";
  put_be(out, 6, 4);
  put_be(out, 0, 2);  // format 0
  put_be(out, 1, 2);  // one track
  put_be(out, kTicksPerBeat, 2);
  out += "MTrk";
  put_be(out, static_cast<std::uint32_t>(track.size()), 4);
  return out + track;
}

}  // namespace gen
