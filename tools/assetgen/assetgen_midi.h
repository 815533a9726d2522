// A standard MIDI file (format 0) built note by note.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace gen {

constexpr int kTicksPerBeat = 480;

class MidiSong {
 public:
  void Tempo(std::uint32_t tick, int bpm);
  void Program(int channel, int program);
  void Control(std::uint32_t tick, int channel, int control, int value);
  // A note of `length` ticks; notes outside 0..127 are dropped.
  void Note(std::uint32_t tick, std::uint32_t length, int channel, int key, int velocity);
  // The song lasts at least until `tick` (so the last notes can ring out).
  void EndAt(std::uint32_t tick);
  // The file's bytes.
  std::string Bytes() const;

 private:
  struct Event {
    std::uint32_t tick;
    int order;  // at one tick: set-up first, then note-offs, then note-ons
    std::uint32_t serial;
    std::uint8_t data[3];
    int size;                // bytes of data used (0 for a tempo change)
    std::uint32_t tempo_us;  // a tempo change: microseconds a beat
  };
  void add(std::uint32_t tick, int order, std::uint8_t a, std::uint8_t b, std::uint8_t c, int size);
  std::vector<Event> events_;
  std::uint32_t end_ = 0;
};

}  // namespace gen
