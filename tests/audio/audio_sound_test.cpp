// Sound effects on the headless device: loading by number, the fight queue, and who may be
// heard when.
#include <cstring>

#include "audio/audio_wave.h"
#include "audio_fixture.h"
#include "platform/headless/headless.h"
#include "platform/headless/headless_audio.h"
#include "platform/platform_audio.h"

namespace {

class SoundTest : public AudioDir {
 protected:
  void SetUp() override {
    AudioDir::SetUp();
    write_sounds(140, 160);
    Sound_Init();
    Headless_ClearSoundLog();
  }
  // Lets every sound that was started run out.
  static void let_sounds_end() { Headless_AdvanceClock(1000); }
};

TEST_F(AudioDir, FilesAreNamedByTwoDigitsBelowOneHundredAndThreeAbove) {
  write_wave("05.wav", 1000, 5);
  write_wave("5.wav", 3000, 55);  // not a sound file name: two digits below 100
  write_wave("105.wav", 2000, 105);
  write_wave("50.wav", 4000, 50);
  Sound_Init();
  ASSERT_TRUE(Headless_SoundLoaded(5));
  EXPECT_EQ(Headless_SoundBytes(5), 2000u);
  EXPECT_EQ(Headless_SoundData(5)[0], 5);
  ASSERT_TRUE(Headless_SoundLoaded(105));
  EXPECT_EQ(Headless_SoundBytes(105), 4000u);
  EXPECT_EQ(Headless_SoundData(105)[0], 105);
  EXPECT_EQ(Headless_SoundBytes(50), 8000u);
  EXPECT_FALSE(Headless_SoundLoaded(6));
  EXPECT_FALSE(Headless_SoundLoaded(178));
  EXPECT_EQ(Wave_PoolUsed(), 14000u);
}

TEST_F(AudioDir, BrokenWavesStaySilentAndLeaveTheOthersIntact) {
  write_wave("01.wav", 100, 1);
  std::uint8_t header[44];
  Wave_FillHeader(header, 400, 1, 22050, 16);
  const std::uint8_t samples[400] = {7};
  ASSERT_EQ(Wave_WriteRaw("02.wav", header, samples, 100), 1);  // data cut short
  ASSERT_EQ(Wave_WriteRaw("03.wav", header, samples, 0), 1);
  std::FILE* f = std::fopen("04.wav", "wb");  // shorter than a header
  std::fwrite(header, 1, 30, f);
  std::fclose(f);
  Wave_FillHeader(header, WAVE_POOL_BYTES + 2, 1, 22050, 16);  // larger than the pool
  ASSERT_EQ(Wave_WriteRaw("05.wav", header, samples, 400), 1);
  Wave_FillHeader(header, 400, 1, 22050, 12);  // a sample size the device refuses
  ASSERT_EQ(Wave_WriteRaw("06.wav", header, samples, 400), 1);
  Wave_FillHeader(header, 400, 3, 22050, 16);  // more than one channel means stereo
  header[32] = 4;
  ASSERT_EQ(Wave_WriteRaw("07.wav", header, samples, 400), 1);
  write_wave("08.wav", 100, 8);
  testing::internal::CaptureStderr();
  Sound_Init();
  const std::string err = testing::internal::GetCapturedStderr();
  // Silent in play, but each file gets a line; a run of missing ones shares one.
  for (const char* line : {
           "valdrune: 00.wav: missing; sound 0 stays silent\n",
           "valdrune: 02.wav: too short: fewer sample bytes than the 400 its header gives; sound 2 stays silent\n",
           "valdrune: 04.wav: too short: 30 bytes, less than the 44-byte header; sound 4 stays silent\n",
           "valdrune: 05.wav: 8388610 sample bytes are past the 8388408 left of the sound pool; sound 5 stays silent\n",
           "valdrune: 06.wav: a sample format the sound device refuses (mono, 12 bits); sound 6 stays silent\n",
           "valdrune: 09.wav to 177.wav: missing; sounds 9 to 177 stay silent\n"})
    EXPECT_NE(err.find(line), std::string::npos) << line << err;
  EXPECT_EQ(err.find("01.wav"), std::string::npos) << err;

  EXPECT_TRUE(Headless_SoundLoaded(1));
  for (int n = 2; n <= 6; ++n) EXPECT_FALSE(Headless_SoundLoaded(n)) << n;
  ASSERT_TRUE(Headless_SoundLoaded(7));
  EXPECT_EQ(Headless_SoundChannels(7), 2);
  EXPECT_EQ(Headless_SoundLengthMs(7), 5u);  // 100 frames of 4 bytes at 22050 Hz
  ASSERT_TRUE(Headless_SoundLoaded(8));
  EXPECT_EQ(Headless_SoundData(8)[0], 8);
  EXPECT_EQ(Wave_PoolUsed(), 200u + 400u + 200u);  // refused waves gave their space back
  EXPECT_EQ(Play_Effect(3), 0);
}

TEST_F(SoundTest, ASixthQueuedSoundInOneFrameIsDropped) {
  for (int i = 0; i < 6; ++i) Queue_Sound(i % 4, 150 + i);
  EXPECT_EQ(SoundQueue.count, 5);
  EXPECT_EQ(ChannelLastSound[1], 155 - 4);  // the dropped request (channel 1) left no mark
  Flush_Sounds();
  EXPECT_EQ(SoundQueue.count, 0);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Headless_SoundStarts(150 + i), 1) << i;
  EXPECT_EQ(Headless_SoundStarts(155), 0);
  // Played in queue order, each centred after it starts.
  ASSERT_EQ(Headless_SoundEventCount(), 10);
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(Headless_SoundEventAt(2 * i).op, HEADLESS_SOUND_PLAY);
    EXPECT_EQ(Headless_SoundEventAt(2 * i).sound, 150 + i);
    EXPECT_EQ(Headless_SoundEventAt(2 * i + 1).op, HEADLESS_SOUND_PAN);
    EXPECT_EQ(Headless_SoundEventAt(2 * i + 1).value, 0);
  }
  // The next frame has room for five again.
  let_sounds_end();
  Queue_Sound(0, 155);
  Flush_Sounds();
  EXPECT_EQ(Headless_SoundStarts(155), 1);
}

TEST_F(SoundTest, ASecondRequestForAChannelIsQueuedBesideTheFirst) {
  Queue_Sound(2, 151);
  Queue_Sound(2, 153);
  EXPECT_EQ(SoundQueue.count, 2);
  EXPECT_EQ(ChannelLastSound[2], 153);
  Flush_Sounds();
  EXPECT_EQ(Headless_SoundStarts(151), 1);
  EXPECT_EQ(Headless_SoundStarts(153), 1);
}

TEST_F(SoundTest, SoundOffSilencesAllButTheChimeAndKeepsTheQueue) {
  Settings.sound = 0;
  Play_Sound(147);
  Play_Sound(148);
  Play_Sound(SND_ALWAYS);
  EXPECT_EQ(Headless_SoundStarts(147), 0);
  EXPECT_EQ(Headless_SoundStarts(148), 0);
  EXPECT_EQ(Headless_SoundStarts(SND_ALWAYS), 1);

  for (int i = 0; i < 7; ++i) Queue_Sound(0, 150 + i);
  Flush_Sounds();
  EXPECT_EQ(SoundQueue.count, 5);  // filled, then dropping, never emptied
  for (int i = 0; i < 7; ++i) EXPECT_EQ(Headless_SoundStarts(150 + i), 0);

  Settings.sound = 1;  // back on: the kept five play
  Flush_Sounds();
  EXPECT_EQ(SoundQueue.count, 0);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Headless_SoundStarts(150 + i), 1);
}

TEST_F(SoundTest, TheDemonstrationHearsOnlyTheChimeButItsFightSoundsPlay) {
  Match.demo = 1;
  Play_Sound(SND_FIGHT);
  Play_Sound(SND_KO);
  Play_Sound(SND_ALWAYS);
  Queue_Sound(0, SND_HIT);
  Queue_Sound(3, SND_WEAPON_HIT);
  Flush_Sounds();
  EXPECT_EQ(Headless_SoundStarts(SND_FIGHT), 0);
  EXPECT_EQ(Headless_SoundStarts(SND_KO), 0);
  EXPECT_EQ(Headless_SoundStarts(SND_ALWAYS), 1);
  EXPECT_EQ(Headless_SoundStarts(SND_HIT), 1);
  EXPECT_EQ(Headless_SoundStarts(SND_WEAPON_HIT), 1);
}

TEST_F(SoundTest, ASoundStillPlayingIsNotRestarted) {
  Play_Sound(SND_HIT);
  Queue_Sound(0, SND_HIT);
  Queue_Sound(1, SND_HIT);
  Flush_Sounds();
  EXPECT_EQ(Headless_SoundStarts(SND_HIT), 1);
  EXPECT_EQ(Play_Effect(SND_HIT), 0);

  Headless_AdvanceClock(Headless_SoundLengthMs(SND_HIT) + 1);  // it has ended
  EXPECT_EQ(Play_Effect(SND_HIT), 1);
  EXPECT_EQ(Headless_SoundStarts(SND_HIT), 2);
}

TEST_F(SoundTest, StoppingTheChannelsStopsTheSoundQueuedLastOnEach) {
  Queue_Sound(0, 150);
  Queue_Sound(0, 151);  // channel 0 now names 151
  Queue_Sound(3, 152);
  Flush_Sounds();
  Play_Sound(147);
  Stop_ChannelSounds();
  EXPECT_EQ(Plat_SoundIsPlaying(150), 1);
  EXPECT_EQ(Plat_SoundIsPlaying(151), 0);
  EXPECT_EQ(Plat_SoundIsPlaying(152), 0);
  EXPECT_EQ(Plat_SoundIsPlaying(147), 1);
  EXPECT_EQ(Play_Effect(151), 1);  // stopped and rewound: it starts again at once
}

}  // namespace
