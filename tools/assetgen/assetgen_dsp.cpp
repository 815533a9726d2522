// Sound building blocks.
#include "assetgen_dsp.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "assetgen.h"
#include "writers/writer_wave.h"

namespace gen {

namespace {
constexpr float kPi = 3.14159265358979f;
constexpr float kDt = 1.0f / kSoundRate;

std::uint32_t u16(const std::string& s, std::size_t at) {
  return static_cast<unsigned char>(s[at]) | static_cast<unsigned char>(s[at + 1]) << 8;
}
std::uint32_t u32(const std::string& s, std::size_t at) {
  return u16(s, at) | u16(s, at + 2) << 16;
}
}  // namespace

float Rng::next() {
  state ^= state << 13;
  state ^= state >> 17;
  state ^= state << 5;
  return static_cast<float>(state) / 2147483648.0f - 1.0f;
}

int Samples(float seconds) { return std::max(1, static_cast<int>(seconds * kSoundRate)); }

void Mix(Buffer& out, const Buffer& in, int at, float gain) {
  if (out.size() < in.size() + static_cast<std::size_t>(at)) out.resize(in.size() + at, 0.0f);
  for (std::size_t i = 0; i < in.size(); ++i) out[i + at] += in[i] * gain;
}

Buffer Noise(Rng& rng, float seconds) {
  Buffer b(Samples(seconds));
  for (float& s : b) s = rng.next();
  return b;
}

Buffer Glide(float f0, float f1, float seconds) {
  Buffer b(Samples(seconds));
  const float ratio = std::log(f1 / f0);
  double phase = 0.0;
  for (std::size_t i = 0; i < b.size(); ++i) {
    const float t = static_cast<float>(i) / static_cast<float>(b.size());
    phase += 2.0 * kPi * f0 * std::exp(ratio * t) * kDt;
    b[i] = static_cast<float>(std::sin(phase));
  }
  return b;
}

Buffer Partials(const float* freqs, const float* decays, int count, float seconds) {
  Buffer b(Samples(seconds), 0.0f);
  for (int k = 0; k < count; ++k)
    for (std::size_t i = 0; i < b.size(); ++i) {
      const float t = i * kDt;
      b[i] += std::sin(2.0f * kPi * freqs[k] * t) * std::exp(-t / decays[k]) / count;
    }
  return b;
}

Buffer Square(float f, float seconds) {
  Buffer b(Samples(seconds));
  for (std::size_t i = 0; i < b.size(); ++i)
    b[i] = std::fmod(i * kDt * f, 1.0f) < 0.5f ? 0.6f : -0.6f;
  return b;
}

void Env_AttackDecay(Buffer& b, float attack, float tau) {
  for (std::size_t i = 0; i < b.size(); ++i) {
    const float t = i * kDt;
    b[i] *= t < attack ? t / attack : std::exp(-(t - attack) / tau);
  }
}

void Env_Fade(Buffer& b, float attack, float release) {
  const float len = b.size() * kDt;
  for (std::size_t i = 0; i < b.size(); ++i) {
    const float t = i * kDt;
    float g = 1.0f;
    if (t < attack) g = t / attack;
    if (len - t < release) g = std::min(g, (len - t) / release);
    b[i] *= g;
  }
}

void Lowpass(Buffer& b, float cutoff) {
  const float a = 1.0f - std::exp(-2.0f * kPi * cutoff * kDt);
  float y = 0.0f;
  for (float& s : b) s = y += a * (s - y);
}

void Highpass(Buffer& b, float cutoff) {
  const float a = 1.0f - std::exp(-2.0f * kPi * cutoff * kDt);
  float low = 0.0f;
  for (float& s : b) {
    low += a * (s - low);
    s -= low;
  }
}

void Bandpass(Buffer& b, float f0, float f1, float q) {
  // A state-variable filter, its centre moved each sample.
  float low = 0.0f, band = 0.0f;
  const float ratio = std::log(f1 / f0);
  for (std::size_t i = 0; i < b.size(); ++i) {
    const float t = static_cast<float>(i) / static_cast<float>(b.size());
    const float f = std::min(0.9f, 2.0f * std::sin(kPi * f0 * std::exp(ratio * t) * kDt));
    const float high = b[i] - low - band / q;
    band += f * high;
    low += f * band;
    b[i] = band;
  }
}

void Saturate(Buffer& b, float drive) {
  for (float& s : b) s = std::tanh(s * drive) / std::tanh(drive);
}

void Room(Buffer& b, float seconds, float wet) {
  const std::size_t tail = Samples(seconds);
  Buffer dry = b;
  dry.resize(b.size() + tail, 0.0f);
  Buffer out(dry.size(), 0.0f);
  static constexpr int kCombs[] = {1116, 1188, 1277, 1356};
  for (int len : kCombs) {
    const int d = len * kSoundRate / 44100;
    Buffer line(d, 0.0f);
    float fb = std::pow(0.001f, static_cast<float>(d) / (seconds * kSoundRate));
    for (std::size_t i = 0; i < dry.size(); ++i) {
      const float y = line[i % d];
      line[i % d] = dry[i] + y * fb;
      out[i] += y * 0.25f;
    }
  }
  static constexpr int kAllpasses[] = {556, 441};
  for (int len : kAllpasses) {
    const int d = len * kSoundRate / 44100;
    Buffer line(d, 0.0f);
    for (std::size_t i = 0; i < out.size(); ++i) {
      const float y = line[i % d];
      line[i % d] = out[i] + y * 0.5f;
      out[i] = y - out[i] * 0.5f;
    }
  }
  for (std::size_t i = 0; i < out.size(); ++i) out[i] = dry[i] * (1.0f - wet) + out[i] * wet;
  b.swap(out);
}

void Normalize(Buffer& b, float peak) {
  float m = 0.0f;
  for (float s : b) m = std::max(m, std::fabs(s));
  if (m <= 0.0f) return;
  for (float& s : b) s *= peak / m;
}

void Trim(Buffer& b, float floor) {
  float m = 0.0f;
  for (float s : b) m = std::max(m, std::fabs(s));
  const float limit = m * floor;
  std::size_t first = 0, last = b.size();
  while (first < b.size() && std::fabs(b[first]) < limit) ++first;
  while (last > first && std::fabs(b[last - 1]) < limit) --last;
  const std::size_t margin = Samples(0.01f);
  first = first > margin ? first - margin : 0;
  last = std::min(b.size(), last + margin);
  b = Buffer(b.begin() + first, b.begin() + last);
}

bool Read_Wave(const std::filesystem::path& path, Buffer* out) {
  std::string s;
  if (!Read_File(path, &s)) return false;
  if (s.size() < 12 || s.compare(0, 4, "RIFF") != 0 || s.compare(8, 4, "WAVE") != 0) {
    std::fprintf(stderr, "assetgen: %s is not a wave file\n", path.c_str());
    return false;
  }
  std::uint32_t channels = 0, rate = 0, bits = 0;
  for (std::size_t at = 12; at + 8 <= s.size();) {
    const std::uint32_t size = u32(s, at + 4);
    const std::size_t body = at + 8;
    if (size > s.size() - body) break;
    if (s.compare(at, 4, "fmt ") == 0 && size >= 16) {
      channels = u16(s, body + 2);
      rate = u32(s, body + 4);
      bits = u16(s, body + 14);
    } else if (s.compare(at, 4, "data") == 0) {
      if (bits != 16 || rate != kSoundRate || channels < 1) break;
      out->assign(size / (2 * channels), 0.0f);
      for (std::size_t i = 0; i < out->size(); ++i)
        for (std::uint32_t c = 0; c < channels; ++c) {
          const auto v = static_cast<std::int16_t>(u16(s, body + 2 * (i * channels + c)));
          (*out)[i] += v / 32768.0f / channels;
        }
      return true;
    }
    at = body + size + (size & 1);
  }
  std::fprintf(stderr, "assetgen: %s is not 16-bit PCM at %d Hz\n", path.c_str(), kSoundRate);
  return false;
}

bool Write_Sound(const std::filesystem::path& path, const Buffer& b) {
  std::vector<std::int16_t> pcm(b.size());
  for (std::size_t i = 0; i < b.size(); ++i) {
    const float v = std::clamp(b[i], -1.0f, 1.0f);
    pcm[i] = static_cast<std::int16_t>(std::lrint(v * 32767.0f));
  }
  return Wave_Write16(path.c_str(), pcm.data(), pcm.size(), 1, kSoundRate) == 1;
}

}  // namespace gen
