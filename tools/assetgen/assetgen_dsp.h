// Sound building blocks for the generator: mono float buffers at one rate, seeded noise,
// filters, envelopes, and conversion to and from wave files.
#pragma once
#include <cstdint>
#include <filesystem>
#include <vector>

namespace gen {

constexpr int kSoundRate = 22050;
using Buffer = std::vector<float>;

// Seeded noise: the same seed gives the same sound on every run.
struct Rng {
  std::uint32_t state;
  float next();  // uniform in -1..1
};

int Samples(float seconds);
// out[i] += in[i] * gain from sample `at` on, growing `out` as needed.
void Mix(Buffer& out, const Buffer& in, int at = 0, float gain = 1.0f);

// Sources, `seconds` long.
Buffer Noise(Rng& rng, float seconds);
// A sine whose pitch glides exponentially from f0 to f1 over its length.
Buffer Glide(float f0, float f1, float seconds);
// A decaying bell-like partial set: frequencies and their decay times.
Buffer Partials(const float* freqs, const float* decays, int count, float seconds);
// A square blip of frequency f.
Buffer Square(float f, float seconds);

// Envelopes, applied in place: linear attack then exponential decay with time constant tau.
void Env_AttackDecay(Buffer& b, float attack, float tau);
// Rises over `attack`, holds, and falls over `release` at the end.
void Env_Fade(Buffer& b, float attack, float release);

// Filters, in place. Cut-off frequencies in Hz.
void Lowpass(Buffer& b, float cutoff);
void Highpass(Buffer& b, float cutoff);
// A resonant band-pass whose centre glides from f0 to f1 (q the resonance).
void Bandpass(Buffer& b, float f0, float f1, float q);
// Soft clipping by `drive` (1 = gentle).
void Saturate(Buffer& b, float drive);
// A small room: a few combs and all-passes, `wet` of the result.
void Room(Buffer& b, float seconds, float wet);

// Scales so the peak is `peak` (0..1).
void Normalize(Buffer& b, float peak);
// Drops leading and trailing samples quieter than `floor` of the peak (keeping a few ms).
void Trim(Buffer& b, float floor);

// Reads a PCM wave (any chunk layout, 16-bit, mono or stereo mixed to mono) at kSoundRate.
bool Read_Wave(const std::filesystem::path& path, Buffer* out);
// Writes a mono 16-bit wave with the canonical 44-byte header.
bool Write_Sound(const std::filesystem::path& path, const Buffer& b);

}  // namespace gen
