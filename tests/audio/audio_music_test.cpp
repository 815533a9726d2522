// Music on the headless player: the stage tracks, the sound setting, and the fight's
// restart of a track that has ended.
#include <sys/stat.h>

#include "audio_fixture.h"
#include "fight/fight_state.h"
#include "platform/headless/headless.h"
#include "platform/headless/headless_audio.h"
#include "platform/platform.h"
#include "shell/shell.h"

namespace {

class MusicTest : public AudioDir {
 protected:
  void SetUp() override {
    AudioDir::SetUp();
    ASSERT_EQ(mkdir("music", 0755), 0);
    for (int track : {5, 14, 17}) {
      char name[32];
      std::snprintf(name, sizeof name, "music/track%02d.ogg", track);
      std::FILE* f = std::fopen(name, "wb");
      ASSERT_NE(f, nullptr);
      std::fclose(f);
    }
    Sound_Init();
  }
};

TEST(MusicStage, EachStageHasItsTrackAndTheExtraCharactersShareOne) {
  for (int c = 0; c < 10; ++c) EXPECT_EQ(Music_StageTrack(c), 2 + c) << c;
  for (int c = 10; c <= 14; ++c) EXPECT_EQ(Music_StageTrack(c), TRACK_EXTRA_STAGE) << c;
  EXPECT_EQ(TRACK_EXTRA_STAGE, 17);
}

TEST_F(MusicTest, OnlyTheTrackFilesPresentArePrepared) {
  EXPECT_TRUE(Headless_MusicPrepared(5));
  EXPECT_TRUE(Headless_MusicPrepared(17));
  EXPECT_FALSE(Headless_MusicPrepared(6));
  EXPECT_FALSE(Headless_MusicPrepared(1));  // track 1 is never music
  Music_PlayTrack(6);                        // no file: silent, but remembered
  EXPECT_EQ(MusicTrack, 6);
  EXPECT_EQ(Cd_IsPlaying(), 0);
}

TEST_F(MusicTest, SoundOffPlaysNothingButRemembersTheTrack) {
  Music_PlayTrack(5);
  Settings.sound = 0;
  Music_Stop();  // ignored while the sound is off
  EXPECT_EQ(Cd_IsPlaying(), 1);
  Music_PlayTrack(14);
  EXPECT_EQ(MusicTrack, 14);
  EXPECT_EQ(Headless_MusicTrack(), 5);
  EXPECT_EQ(Headless_MusicStarts(), 1);
  Settings.sound = 1;
  Music_Stop();
  EXPECT_EQ(Cd_IsPlaying(), 0);
}

TEST_F(MusicTest, TheFightRestartsTheStageTrackWhenItHasEnded) {
  ASSERT_EQ(Plat_OpenWindow("t"), 1);
  const std::int32_t saved_mode = Shell.GameMode;
  Shell.GameMode = MODE_FIGHT;
  reset_round();  // the fighters in their corners: the fight runs as it does after a preparation
  Music_PlayTrack(Music_StageTrack(3));
  Run_Frame();
  Run_Frame();
  EXPECT_EQ(Headless_MusicStarts(), 1);  // still playing: left alone

  Headless_MusicEnd();
  Run_Frame();
  EXPECT_EQ(Headless_MusicStarts(), 2);
  EXPECT_EQ(Headless_MusicTrack(), 5);
  EXPECT_EQ(Cd_IsPlaying(), 1);

  Settings.sound = 0;  // with the sound off an ended track stays ended
  Headless_MusicEnd();
  Run_Frame();
  EXPECT_EQ(Headless_MusicStarts(), 2);

  Settings.sound = 1;  // outside the fight an ended track stays ended too
  Shell.GameMode = MODE_CONTINUE;
  Run_Frame();
  EXPECT_EQ(Headless_MusicStarts(), 2);
  Shell.GameMode = saved_mode;
}

TEST_F(MusicTest, TheExtraStageTrackPlaysForCharactersTenToFourteen) {
  Music_PlayTrack(Music_StageTrack(12));
  EXPECT_EQ(Headless_MusicTrack(), 17);
  EXPECT_EQ(Cd_IsPlaying(), 1);
}

}  // namespace
