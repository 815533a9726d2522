// The sounds: effects built from noise and tones here, voices spoken by espeak-ng and shaped
// by sox, every file written as 16-bit mono PCM with the canonical 44-byte header.
#include <cstdio>
#include <string>

#include "assetgen.h"
#include "assetgen_dsp.h"
#include "assetgen_roster.h"
#include "assetgen_sound_table.h"
#include "audio/audio.h"

namespace gen {

namespace {

// ---- the table agrees with the numbers the game plays --------------------------------------
constexpr bool voice_is(int sound, SoundKind kind, int who) {
  return sound >= 0 && sound < kSoundCount && kSoundTable[sound].kind == kind &&
         kSoundTable[sound].who == who;
}
// The character whose clips a character speaks with.
constexpr int speaker(int c) {
  constexpr int kBorrowed[] = {3, 0, 7, 9, 0};
  return c < 10 ? c : kBorrowed[c - 10];
}
constexpr bool voices_agree() {
  for (int c = 0; c < 15; ++c) {
    const CharacterVoice v = CharacterVoices[c];
    if (!voice_is(v.hurt, HURT, speaker(c)) || !voice_is(v.down, DOWN, speaker(c)) ||
        !voice_is(v.jump, JUMP, speaker(c)))
      return false;
  }
  return CharacterVoices[15].hurt == -1;
}
static_assert(voices_agree(), "every fighter's hit, down and jump voice is its own clip");
static_assert(SOUND_FILES == kSoundCount, "one row per sound file");
static_assert(kSoundTable[SND_HIT].kind == IMPACT && kSoundTable[SND_WEAPON_HIT].kind == WEAPON);
static_assert(kSoundTable[SND_CLASH].kind == CLASH && kSoundTable[SND_CURSOR].kind == CURSOR);
static_assert(kSoundTable[SND_START].kind == START && kSoundTable[SND_ALWAYS].kind == COIN);
static_assert(kSoundTable[SND_LIGHT_SWING].kind == WHOOSH &&
              kSoundTable[SND_HEAVY_SWING].kind == WHOOSH);
static_assert(kSoundTable[SND_FIGHT].kind == CALL && kSoundTable[SND_KO].kind == CALL &&
              kSoundTable[SND_EXTRA_NAME].kind == CALL && kSoundTable[SND_NAME_CALL].kind == NAME);
// The fighters' attack shouts, as the fight plays them.
constexpr int kShouts[][3] = {{0, 16, 16}, {1, 30, 31}, {2, 43, 45}, {3, 56, 56}, {4, 61, 64},
                              {5, 71, 72}, {6, 89, 90}, {7, 103, 104}, {8, 109, 111},
                              {9, 123, 124}};
constexpr bool shouts_agree() {
  for (const auto& s : kShouts)
    if (!voice_is(s[1], SHOUT, s[0]) || !voice_is(s[2], SHOUT, s[0])) return false;
  return true;
}
static_assert(shouts_agree(), "attack shouts are their fighter's shout clips");

// ---- effects -------------------------------------------------------------------------------
Buffer whoosh(Rng& rng, int weight) {
  const float len = 0.16f + 0.08f * weight;
  Buffer b = Noise(rng, len);
  Bandpass(b, 500.0f - 100.0f * weight, 2600.0f - 500.0f * weight, 2.5f);
  Env_Fade(b, len * 0.55f, len * 0.45f);
  return b;
}

Buffer thump(float f0, float f1, float len, float tau) {
  Buffer b = Glide(f0, f1, len);
  Env_AttackDecay(b, 0.002f, tau);
  return b;
}

Buffer impact(Rng& rng, int weight) {
  Buffer b = thump(180.0f - 40.0f * weight, 55.0f - 10.0f * weight, 0.35f, 0.06f + 0.04f * weight);
  Buffer slap = Noise(rng, 0.3f);
  Bandpass(slap, 1800.0f, 900.0f, 1.5f);
  Env_AttackDecay(slap, 0.001f, 0.025f + 0.01f * weight);
  Mix(b, slap, 0, 1.4f);
  Buffer click = Noise(rng, 0.02f);
  Highpass(click, 3000.0f);
  Env_AttackDecay(click, 0.0005f, 0.004f);
  Mix(b, click, 0, 0.6f);
  Saturate(b, 1.5f + weight);
  return b;
}

Buffer guard(Rng& rng, int weight) {
  Buffer b = thump(140.0f, 80.0f, 0.25f, 0.05f);
  const float knock[] = {620.0f - 60.0f * weight, 1340.0f, 2210.0f};
  const float decay[] = {0.06f, 0.03f, 0.02f};
  Mix(b, Partials(knock, decay, 3, 0.25f), 0, 1.5f);
  Buffer n = Noise(rng, 0.08f);
  Bandpass(n, 900.0f, 700.0f, 2.0f);
  Env_AttackDecay(n, 0.001f, 0.02f);
  Mix(b, n, 0, 0.8f);
  return b;
}

Buffer weapon(Rng& rng) {
  const float ring[] = {1230.0f, 1874.0f, 2651.0f, 3420.0f, 4977.0f};
  const float decay[] = {0.30f, 0.22f, 0.16f, 0.12f, 0.08f};
  Buffer b = Partials(ring, decay, 5, 0.6f);
  Mix(b, impact(rng, 1), 0, 0.7f);
  Buffer scrape = Noise(rng, 0.15f);
  Highpass(scrape, 2500.0f);
  Env_AttackDecay(scrape, 0.001f, 0.04f);
  Mix(b, scrape, 0, 0.5f);
  return b;
}

Buffer step(Rng& rng, int weight) {
  Buffer b = Noise(rng, 0.12f + 0.04f * weight);
  Lowpass(b, 350.0f + 150.0f * weight);
  Env_AttackDecay(b, 0.002f, 0.03f + 0.01f * weight);
  Mix(b, thump(110.0f, 60.0f, 0.12f, 0.03f), 0, 0.5f + 0.2f * weight);
  return b;
}

Buffer fall(Rng& rng, int weight) {
  Buffer b;
  Mix(b, impact(rng, 2), 0, 1.0f);
  Mix(b, impact(rng, 1), Samples(0.09f), 0.6f);
  Buffer rumble = Noise(rng, 0.5f + 0.15f * weight);
  Lowpass(rumble, 250.0f);
  Env_AttackDecay(rumble, 0.01f, 0.12f + 0.05f * weight);
  Mix(b, rumble, 0, 2.0f);
  return b;
}

Buffer crackle(Rng& rng, float len, float density) {
  Buffer b(Samples(len), 0.0f);
  for (float& s : b)
    if (rng.next() > 1.0f - density) s = rng.next();
  Highpass(b, 1500.0f);
  Env_Fade(b, 0.01f, len * 0.7f);
  return b;
}

Buffer clash(Rng& rng) {
  Buffer b = weapon(rng);
  Mix(b, impact(rng, 2), Samples(0.03f), 0.8f);
  Mix(b, crackle(rng, 0.6f, 0.05f), 0, 0.6f);
  Room(b, 0.6f, 0.3f);
  return b;
}

Buffer launch(Rng& rng) {
  Buffer b = Noise(rng, 0.45f);
  Bandpass(b, 300.0f, 1500.0f, 1.5f);
  Env_Fade(b, 0.05f, 0.3f);
  Mix(b, crackle(rng, 0.45f, 0.03f), 0, 0.7f);
  return b;
}

Buffer flash(Rng& rng) {
  Buffer b = Noise(rng, 0.9f);
  Bandpass(b, 200.0f, 5000.0f, 3.0f);
  Env_Fade(b, 0.8f, 0.05f);
  Buffer boom = thump(90.0f, 35.0f, 1.0f, 0.35f);
  Mix(b, boom, Samples(0.85f), 1.5f);
  Room(b, 1.2f, 0.35f);
  return b;
}

Buffer slam(Rng& rng, int weight) {
  Buffer b = impact(rng, 2);
  Mix(b, thump(70.0f, 30.0f, 0.8f, 0.2f + 0.1f * weight), 0, 1.2f);
  Room(b, 0.6f + 0.5f * weight, 0.3f + 0.1f * weight);
  return b;
}

Buffer charge(int weight) {
  Buffer b;
  for (int k = 0; k < 4; ++k) {
    Buffer t = Glide(300.0f * (k + 1), 1200.0f * (k + 1) * (weight ? 0.75f : 1.0f), 0.7f);
    Env_Fade(t, 0.3f, 0.3f);
    Mix(b, t, 0, 1.0f / (k + 1));
  }
  Room(b, 0.5f, 0.3f);
  return b;
}

Buffer bell_notes(const float* notes, int count, float gap, float len) {
  Buffer b;
  for (int i = 0; i < count; ++i) {
    const float f[] = {notes[i], notes[i] * 2.0f, notes[i] * 3.01f};
    const float d[] = {len * 0.5f, len * 0.25f, len * 0.1f};
    Mix(b, Partials(f, d, 3, len), Samples(gap * i), 1.0f);
  }
  return b;
}

Buffer coin() {
  const float notes[] = {987.8f, 1318.5f};
  return bell_notes(notes, 2, 0.07f, 0.5f);
}

Buffer start() {
  const float notes[] = {523.3f, 659.3f, 784.0f, 1046.5f};
  Buffer b = bell_notes(notes, 4, 0.06f, 0.45f);
  Room(b, 0.4f, 0.2f);
  return b;
}

Buffer cursor() {
  Buffer b = Square(880.0f, 0.05f);
  Mix(b, Square(1320.0f, 0.04f), Samples(0.03f), 0.7f);
  Lowpass(b, 4000.0f);
  Env_AttackDecay(b, 0.002f, 0.03f);
  return b;
}

Buffer rapid(Rng& rng) {
  Buffer b = impact(rng, 0);
  Mix(b, whoosh(rng, 0), 0, 0.4f);
  return b;
}

// Builds effect `sound`; peaks a little under full scale, softer for the quiet ones.
Buffer effect(int sound) {
  const SoundRow& row = kSoundTable[sound];
  Rng rng{0x9E3779B9u ^ static_cast<std::uint32_t>(sound * 7919 + 1)};
  float peak = 0.9f;
  Buffer b;
  switch (row.kind) {
    case WHOOSH: b = whoosh(rng, row.who); peak = 0.6f; break;
    case IMPACT: b = impact(rng, row.who); break;
    case GUARD: b = guard(rng, row.who); peak = 0.8f; break;
    case WEAPON: b = weapon(rng); break;
    case STEP: b = step(rng, row.who); peak = 0.5f; break;
    case FALL: b = fall(rng, row.who); break;
    case CLASH: b = clash(rng); break;
    case LAUNCH: b = launch(rng); peak = 0.7f; break;
    case FLASH: b = flash(rng); break;
    case SLAM: b = slam(rng, row.who); break;
    case CHARGE: b = charge(row.who); peak = 0.6f; break;
    case COIN: b = coin(); peak = 0.6f; break;
    case START: b = start(); peak = 0.7f; break;
    case CURSOR: b = cursor(); peak = 0.5f; break;
    case RAPID: b = rapid(rng); peak = 0.8f; break;
    default: break;
  }
  Env_Fade(b, 0.0005f, 0.01f);
  Normalize(b, peak);
  return b;
}

// ---- voices --------------------------------------------------------------------------------
bool is_voice(SoundKind kind) { return kind >= EFFORT; }

std::string voice_shaping(SoundKind kind) {
  switch (kind) {
    case EFFORT: return " tempo 1.25";
    case SHOUT: return " tempo 1.1 overdrive 4";
    case HURT: return " tempo 1.2 pitch 150";
    case DOWN: return " tempo 0.8 reverb 25";
    case JUMP: return " tempo 1.4";
    default: return "";
  }
}

Job voice_job(const Context& ctx, int sound, fs::path* shaped) {
  const SoundRow& row = kSoundTable[sound];
  const bool announcer = row.kind == CALL || row.kind == NAME;
  const RosterEntry& v = announcer ? kAnnouncer : kRoster[row.who];
  std::string text = row.text ? row.text : "";
  if (row.kind == NAME) text = std::string(kRoster[row.who].name) + "!";
  const fs::path raw = ctx.work / ("voice-" + std::to_string(sound) + "-raw.wav");
  *shaped = ctx.work / ("voice-" + std::to_string(sound) + ".wav");
  std::string cmd = "espeak-ng -v " + std::string(v.voice) + " -p " + std::to_string(v.pitch) +
                    " -s " + std::to_string(v.speed) + " -a 180 -w " +
                    Shell_Quote(raw.string()) + " " + Shell_Quote(text) + " && sox -R -D " +
                    Shell_Quote(raw.string()) + " -r 22050 -c 1 -b 16 " +
                    Shell_Quote(shaped->string());
  if (v.shift != 0) cmd += " pitch " + std::to_string(v.shift);
  if (v.effects[0] != '\0') cmd += " " + std::string(v.effects);
  cmd += voice_shaping(row.kind) + " gain -n -1";  // no clipping on the way out
  return Job{cmd, {}, *shaped};
}

bool finish_voice(const fs::path& shaped, const fs::path& out, SoundKind kind) {
  Buffer b;
  if (!Read_Wave(shaped, &b)) return false;
  Trim(b, 0.02f);
  Env_Fade(b, 0.003f, 0.04f);
  Normalize(b, kind == EFFORT || kind == JUMP ? 0.75f : 0.9f);
  return Write_Sound(out, b);
}

fs::path sound_path(const Context& ctx, int sound) {
  char name[16];
  std::snprintf(name, sizeof name, sound < 100 ? "%02d.wav" : "%d.wav", sound);
  return ctx.out / name;
}

}  // namespace

bool Generate_Sounds(const Context& ctx) {
  if (!Require_Tool("espeak-ng", "espeak-ng") || !Require_Tool("sox", "sox")) return false;
  std::vector<Job> jobs;
  std::vector<int> voices;
  std::vector<fs::path> shaped;
  for (int sound = 0; sound < kSoundCount; ++sound) {
    if (!is_voice(kSoundTable[sound].kind)) continue;
    shaped.emplace_back();
    jobs.push_back(voice_job(ctx, sound, &shaped.back()));
    voices.push_back(sound);
  }
  if (!Run_Jobs(ctx, jobs)) return false;
  for (std::size_t i = 0; i < voices.size(); ++i)
    if (!finish_voice(shaped[i], sound_path(ctx, voices[i]), kSoundTable[voices[i]].kind))
      return false;
  for (int sound = 0; sound < kSoundCount; ++sound)
    if (!is_voice(kSoundTable[sound].kind) && !Write_Sound(sound_path(ctx, sound), effect(sound)))
      return false;
  return true;
}

}  // namespace gen
