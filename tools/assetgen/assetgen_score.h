// The music's scores: one style row per track, composed into a MIDI file.
#pragma once
#include <string>

namespace gen {

enum Scale { MAJOR, MINOR, DORIAN, PHRYGIAN, HARMONIC, MIXOLYDIAN };
enum Groove { ROCK, DRIVE, BREAK, HALF, MARCH, SHUFFLE, SOFT, TICK };
enum BassLine { EIGHTHS, OCTAVES, WALK, PEDAL, SYNCO };

struct TrackStyle {
  int track;
  int bpm;
  int root;         // the key's root as a MIDI note in the bass register
  Scale scale;
  int chords[8];    // the verse: one chord a bar, as scale degrees 0..6
  int bridge[4];    // the bridge: one chord every two bars
  Groove groove;
  BassLine bass;
  int lead;         // General MIDI programs
  int pad;
  int bass_program;
  int arp;          // -1: no arpeggio
  int seconds;      // at least this long
  bool sting;       // a short cue: a roll into one held chord
};

constexpr int kTrackStyleCount = 16;
constexpr TrackStyle kTrackStyles[kTrackStyleCount] = {
    {2, 140, 45, MINOR, {0, 5, 2, 6, 0, 5, 3, 4}, {3, 4, 5, 4}, ROCK, EIGHTHS, 30, 48, 34, -1, 95, false},      // stage 0: heroic rock
    {3, 152, 38, MAJOR, {0, 4, 5, 3, 0, 4, 3, 4}, {5, 3, 0, 4}, DRIVE, OCTAVES, 81, 89, 38, 80, 95, false},     // stage 1: bright synth run
    {4, 118, 40, PHRYGIAN, {0, 1, 0, 6, 0, 1, 5, 6}, {5, 6, 0, 1}, HALF, PEDAL, 29, 52, 34, -1, 95, false},     // stage 2: heavy and slow
    {5, 166, 43, DORIAN, {0, 3, 0, 3, 6, 3, 4, 0}, {2, 3, 4, 3}, BREAK, SYNCO, 80, 90, 38, 81, 95, false},      // stage 3: fast breakbeat
    {6, 130, 47, HARMONIC, {0, 3, 4, 0, 5, 3, 4, 4}, {5, 6, 3, 4}, ROCK, EIGHTHS, 107, 49, 33, 46, 95, false},  // stage 4: plucked, eastern colour
    {7, 112, 37, MINOR, {0, 3, 6, 2, 5, 1, 4, 4}, {3, 6, 2, 4}, SHUFFLE, WALK, 66, 17, 32, -1, 95, false},      // stage 5: smoky jazz club
    {8, 136, 41, MAJOR, {0, 5, 3, 4, 0, 5, 1, 4}, {3, 4, 2, 5}, DRIVE, OCTAVES, 40, 48, 33, 46, 95, false},     // stage 6: elegant strings
    {9, 146, 38, MINOR, {0, 0, 5, 6, 0, 0, 3, 4}, {5, 6, 5, 4}, BREAK, SYNCO, 84, 95, 39, 81, 95, false},       // stage 7: dark machine
    {10, 156, 40, MIXOLYDIAN, {0, 6, 3, 0, 0, 6, 3, 4}, {3, 6, 3, 4}, ROCK, OCTAVES, 61, 48, 33, -1, 95, false}, // stage 8: festive brass
    {11, 124, 36, MINOR, {0, 5, 6, 4, 0, 3, 6, 4}, {5, 3, 6, 4}, MARCH, PEDAL, 56, 52, 43, -1, 95, false},      // stage 9: epic march
    {12, 120, 45, MINOR, {0, 5, 3, 4, 0, 5, 6, 4}, {5, 6, 3, 4}, MARCH, PEDAL, 60, 48, 43, -1, 45, false},      // opening: fanfare and march
    {13, 84, 41, MAJOR, {0, 4, 5, 3, 0, 3, 1, 4}, {3, 4, 5, 4}, SOFT, PEDAL, 0, 48, 32, 46, 80, false},         // ending: warm and slow
    {14, 150, 43, MAJOR, {0, 3, 4, 0, 5, 3, 1, 4}, {3, 4, 5, 4}, DRIVE, OCTAVES, 81, 90, 38, 80, 60, false},    // character select: upbeat
    {15, 100, 38, HARMONIC, {0, 5, 3, 4, 0, 5, 3, 4}, {3, 4, 3, 4}, TICK, PEDAL, 71, 49, 32, -1, 14, false},    // continue: tense count-down
    {16, 140, 40, HARMONIC, {0, 0, 0, 0, 0, 0, 0, 0}, {0, 0, 0, 0}, ROCK, PEDAL, 61, 48, 33, -1, 6, true},      // versus: a sting
    {17, 172, 45, HARMONIC, {0, 5, 1, 4, 0, 5, 3, 4}, {1, 4, 5, 4}, DRIVE, EIGHTHS, 30, 19, 34, 81, 100, false}, // final stages: dark and fast
};

// The MIDI file of one track.
std::string Compose(const TrackStyle& style);
// The track's length in seconds as composed (without the ring-out).
double Composed_Seconds(const TrackStyle& style);

}  // namespace gen
