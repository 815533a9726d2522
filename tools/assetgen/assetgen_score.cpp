// The composer: a verse, a second verse, a bridge and an ending over a drum groove, a bass
// line, chords and a lead melody made from the track's own seeded motifs.
#include "assetgen_score.h"

#include <algorithm>

#include "assetgen_dsp.h"
#include "assetgen_midi.h"

namespace gen {

namespace {

constexpr int kLead = 0, kPad = 1, kBass = 2, kArp = 3, kDrums = 9;
constexpr std::uint32_t kBar = 4 * kTicksPerBeat;
constexpr std::uint32_t kStep = kTicksPerBeat / 4;  // a sixteenth

constexpr int kScales[][7] = {
    {0, 2, 4, 5, 7, 9, 11},  // major
    {0, 2, 3, 5, 7, 8, 10},  // minor
    {0, 2, 3, 5, 7, 9, 10},  // dorian
    {0, 1, 3, 5, 7, 8, 10},  // phrygian
    {0, 2, 3, 5, 7, 8, 11},  // harmonic minor
    {0, 2, 4, 5, 7, 9, 10},  // mixolydian
};

// Drum grooves over sixteen steps: kick, snare, hi-hat.
struct GrooveRow {
  const char* kick;
  const char* snare;
  const char* hat;
  int snare_key;
  int hat_key;
};
constexpr GrooveRow kGrooves[] = {
    {"x.......x.x.....", "....x.......x...", "x.x.x.x.x.x.x.x.", 38, 42},  // rock
    {"x...x...x...x...", "....x.......x...", "..x...x...x...x.", 38, 46},  // drive
    {"x.....x...x.....", "....x.......x..x", "xxxxxxxxxxxxxxxx", 38, 42},  // break
    {"x.........x.....", "........x.......", "x.x.x.x.x.x.x.x.", 38, 42},  // half time
    {"x.......x.......", "....x.x.....x.xx", "x...x...x...x...", 38, 51},  // march
    {"x.....x.x.......", "....x.......x...", "x..xx..xx..xx..x", 38, 42},  // shuffle
    {"x.......x.......", "....x.......x...", "x...x...x...x...", 37, 51},  // soft
    {"x...............", "................", "x.x.x.x.x.x.x.x.", 37, 42},  // tick
};

// One bar of melody rhythm in eighths (summing to 8).
constexpr int kRhythms[][6] = {
    {2, 1, 1, 2, 2, 0}, {1, 1, 1, 1, 2, 2}, {3, 1, 2, 2, 0, 0}, {2, 2, 1, 1, 2, 0},
    {1, 2, 1, 2, 2, 0}, {4, 2, 2, 0, 0, 0}, {3, 3, 2, 0, 0, 0}, {2, 1, 1, 1, 1, 2},
};

// The chord tone (root, third or fifth of `chord`) nearest to `degree`.
int nearest_chord_tone(int degree, int chord) {
  for (int dist = 0; dist < 4; ++dist)
    for (int d : {degree - dist, degree + dist}) {
      const int rel = ((d - chord) % 7 + 7) % 7;
      if (rel == 0 || rel == 2 || rel == 4) return d;
    }
  return degree;
}

struct Writer {
  const TrackStyle& s;
  MidiSong song;
  Rng rng;

  int note_of(int degree, int octave_base) const {
    const int octave = degree >= 0 ? degree / 7 : -((6 - degree) / 7);
    const int step = degree - octave * 7;
    return s.root + octave_base + 12 * octave + kScales[s.scale][step];
  }

  void drums(std::uint32_t bar_tick, int bar_in_phrase, bool section_start, int energy) {
    const GrooveRow& g = kGrooves[s.groove];
    for (int i = 0; i < 16; ++i) {
      const std::uint32_t t = bar_tick + i * kStep;
      const bool fill = bar_in_phrase == 7 && i >= 12 && energy > 1;
      if (fill) {
        constexpr int kToms[] = {50, 48, 45, 43};
        song.Note(t, kStep, kDrums, kToms[i - 12], 100);
        continue;
      }
      if (g.kick[i] == 'x') song.Note(t, kStep, kDrums, 36, 105);
      if (g.snare[i] == 'x' && energy > 0)
        song.Note(t, kStep, kDrums, g.snare_key, i % 4 ? 80 : 108);
      if (g.hat[i] == 'x') song.Note(t, kStep, kDrums, g.hat_key, i % 4 ? 58 : 75);
    }
    if (section_start) song.Note(bar_tick, kBar, kDrums, 49, 110);
  }

  void bass(std::uint32_t bar_tick, int degree, int next_degree) {
    const int r = note_of(degree, 0);
    const int fifth = note_of(degree + 4, 0);
    const int third = note_of(degree + 2, 0);
    switch (s.bass) {
      case EIGHTHS:
        for (int i = 0; i < 8; ++i)
          song.Note(bar_tick + i * 2 * kStep, 2 * kStep - 20, kBass, r, i % 2 ? 85 : 105);
        break;
      case OCTAVES:
        for (int i = 0; i < 8; ++i)
          song.Note(bar_tick + i * 2 * kStep, 2 * kStep - 20, kBass, r + (i % 2) * 12, 100);
        break;
      case WALK: {
        const int walk[] = {r, third, fifth, note_of(next_degree, 0) - 1};
        for (int i = 0; i < 4; ++i)
          song.Note(bar_tick + i * kTicksPerBeat, kTicksPerBeat - 30, kBass, walk[i], 95);
        break;
      }
      case PEDAL:
        song.Note(bar_tick, 2 * kTicksPerBeat - 20, kBass, r, 100);
        song.Note(bar_tick + 2 * kTicksPerBeat, 2 * kTicksPerBeat - 20, kBass, fifth, 90);
        break;
      case SYNCO: {
        constexpr int kHits[] = {0, 3, 6, 10, 12};
        const int keys[] = {r, r, fifth, r + 12, r};
        for (int i = 0; i < 5; ++i)
          song.Note(bar_tick + kHits[i] * kStep, 2 * kStep, kBass, keys[i], 100);
        break;
      }
    }
  }

  void chords(std::uint32_t bar_tick, int degree, int velocity, std::uint32_t length = kBar) {
    for (int k = 0; k < 3; ++k)
      song.Note(bar_tick, length - 10, kPad, note_of(degree + 2 * k, 24), velocity);
    if (s.arp >= 0) {
      const int tones[] = {note_of(degree, 36), note_of(degree + 2, 36), note_of(degree + 4, 36),
                           note_of(degree + 7, 36)};
      for (int i = 0; i < 16 && length == kBar; ++i)
        song.Note(bar_tick + i * kStep, kStep, kArp, tones[(i % 8 < 4) ? i % 4 : 3 - i % 4],
                  55 + (i % 4 == 0) * 15);
    }
  }

  // A bar of melody: rhythm `rhythm`, starting near `degree`, landing on chord tones on the
  // strong beats. Returns the degree it ended on.
  int melody_bar(std::uint32_t bar_tick, int rhythm, int degree, int chord, Rng& motif, int lift) {
    std::uint32_t t = bar_tick;
    for (int n = 0; n < 6 && kRhythms[rhythm][n] > 0; ++n) {
      const int eighths = kRhythms[rhythm][n];
      const bool strong = (t - bar_tick) % (2 * kTicksPerBeat) == 0;
      constexpr int kSteps[] = {-2, -1, 1, 2, 0, 3, -3, 1};
      degree += kSteps[static_cast<int>((motif.next() + 1.0f) * 4.0f) % 8];
      if (strong) degree = nearest_chord_tone(degree, chord);
      degree = std::clamp(degree, 2, 12);
      const std::uint32_t len = eighths * 2 * kStep;
      song.Note(t, len - 15, kLead, note_of(degree + lift, 24), strong ? 108 : 92);
      t += len;
    }
    return degree;
  }

  // Eight bars of melody over `chords8`: a two-bar motif, its answer, new material, the motif
  // again and a held cadence.
  void phrase(std::uint32_t start, const int* chords8, std::uint32_t seed, int lift) {
    Rng motif{seed};
    const int r0 = static_cast<int>(seed % 8), r1 = static_cast<int>((seed / 8) % 8);
    int d = 7;
    for (int bar = 0; bar < 7; ++bar) {
      if (bar == 0 || bar == 2 || bar == 6) motif = Rng{seed};  // the motif comes back
      const int rhythm = bar == 4 || bar == 5 ? (r0 + r1 + bar) % 8 : (bar % 2 ? r1 : r0);
      d = melody_bar(start + bar * kBar, rhythm, bar == 0 || bar == 6 ? 7 : d, chords8[bar], motif,
                     lift);
    }
    song.Note(start + 7 * kBar, kBar - 30, kLead, note_of(chords8[7] + 7 + lift, 24), 100);
  }
};

int bars_of(const TrackStyle& s) {
  if (s.sting) return 4;
  const int want = (s.seconds * s.bpm + 239) / 240;
  const int body = std::max(8, (want - 8 + 7) / 8 * 8);  // whole 8-bar sections
  return 4 + body + 4;
}

}  // namespace

double Composed_Seconds(const TrackStyle& s) { return bars_of(s) * 240.0 / s.bpm; }

std::string Compose(const TrackStyle& s) {
  Writer w{s, MidiSong{}, Rng{0x51EDu * static_cast<std::uint32_t>(s.track) + 17u}};
  w.song.Tempo(0, s.bpm);
  w.song.Program(kLead, s.lead);
  w.song.Program(kPad, s.pad);
  w.song.Program(kBass, s.bass_program);
  if (s.arp >= 0) w.song.Program(kArp, s.arp);
  w.song.Control(0, kLead, 91, 50);  // reverb send
  w.song.Control(0, kPad, 91, 70);
  w.song.Control(0, kPad, 7, 80);  // volume
  w.song.Control(0, kArp, 7, 70);
  const int bars = bars_of(s);

  if (s.sting) {  // a snare roll growing into one held chord
    for (int i = 0; i < 32; ++i) w.song.Note(i * kStep, kStep, kDrums, 38, 50 + i * 2);
    w.song.Note(0, 2 * kBar, kBass, w.note_of(0, 0), 90);
    w.song.Note(2 * kBar, kBar, kDrums, 49, 120);
    w.song.Note(2 * kBar, kBar, kDrums, 36, 120);
    w.chords(2 * kBar, 0, 110, 2 * kBar);
    w.song.Note(2 * kBar, 2 * kBar - 30, kLead, w.note_of(7, 24), 115);
    w.song.Note(2 * kBar, 2 * kBar - 30, kBass, w.note_of(0, 0), 110);
    w.song.EndAt(bars * kBar + 2 * kTicksPerBeat);
    return w.song.Bytes();
  }

  const std::uint32_t seed_a = w.rng.state ^ 0xA5A5u, seed_b = seed_a * 2654435761u + 7u;
  for (int bar = 0; bar < bars; ++bar) {
    const std::uint32_t t = bar * kBar;
    const int body_bar = bar - 4;
    const bool intro = bar < 4, outro = bar >= bars - 4;
    const int section = intro || outro ? -1 : body_bar / 8;
    const bool bridge = section >= 0 && section % 4 == 3;
    const int in_phrase = intro || outro ? bar % 4 : body_bar % 8;
    int degree = bridge ? s.bridge[in_phrase / 2] : s.chords[in_phrase];
    int next = bridge ? s.bridge[(in_phrase + 1) % 8 / 2] : s.chords[(in_phrase + 1) % 8];
    if (outro) degree = next = (in_phrase == 2 ? 4 : 0);

    if (outro && in_phrase == 3) {  // the last bar: one held chord
      w.chords(t, 0, 95);
      w.song.Note(t, kBar, kBass, w.note_of(0, 0), 105);
      w.song.Note(t, kBar, kLead, w.note_of(7, 24), 100);
      w.song.Note(t, kBar, kDrums, 49, 115);
      w.song.Note(t, kStep, kDrums, 36, 110);
      break;
    }
    w.drums(t, in_phrase + (intro || outro ? 4 : 0), section >= 0 && in_phrase == 0,
            intro && bar < 2 ? 0
            : bridge         ? 1
                             : 2);
    w.bass(t, degree, next);
    w.chords(t, degree, bridge ? 80 : 62);
    if (section >= 0 && in_phrase == 0) {
      const int chords8[8] = {degree,      s.chords[1], s.chords[2], s.chords[3],
                              s.chords[4], s.chords[5], s.chords[6], s.chords[7]};
      int bridge8[8];
      for (int i = 0; i < 8; ++i) bridge8[i] = s.bridge[i / 2];
      switch (section % 4) {
        case 0:
          w.phrase(t, chords8, seed_a, 0);
          break;
        case 1:
          w.phrase(t, chords8, seed_b, 2);
          break;
        case 2:
          w.phrase(t, chords8, seed_a, 0);
          break;
        default:
          w.phrase(t, bridge8, seed_b ^ 0x77u, -2);
          break;
      }
    }
  }
  w.song.EndAt(bars * kBar + 4 * kTicksPerBeat);  // the last chord rings out
  return w.song.Bytes();
}

}  // namespace gen
