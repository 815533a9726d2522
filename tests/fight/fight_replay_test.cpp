// The replay ring: the knock-out replay's thirty frames shown twice and the fight put back as
// it stood, the voices said again, the ending wait's length, and the closing replay cut short
// with start.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "audio/audio.h"
#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_replay.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/headless/headless.h"
#include "render/render_effect.h"
#include "shell/shell.h"

namespace {

class Replays : public ::testing::Test {
 protected:
  void SetUp() override {
    Shell = ShellState{};
    Shell.GameMode = MODE_FIGHT;
    Match = MatchState{};
    std::memset(&Effects, 0, sizeof Effects);
    std::memset(&Hits, 0, sizeof Hits);
    std::memset(&Replay, 0, sizeof Replay);
    std::memset(&SoundQueue, 0, sizeof SoundQueue);
    Headless_ResetInput();
    std::memset(Players, 0, sizeof Players);
    Input_Init();
    for (int i = 0; i < 2; ++i) {
      Fighter& f = fighters[i];
      for (int a = 0; a < MAX_ACTIONS; ++a) {
        f.act_first[a] = a * 10 + 1;
        f.act_last[a] = a * 10 + 9;
      }
      f.wins = 0;
    }
    reset_round();
    Match.intro = -1;
    Match.human[0] = Match.human[1] = 1;
  }
  void TearDown() override { Headless_ResetInput(); }

  // Records frames 1..n with fighter 0 standing at x = the frame's number.
  static void record(int n) {
    for (int k = 1; k <= n; ++k) {
      fighters[0].pos_x = static_cast<float>(k);
      fighters[0].frame = 1000 + k;
      record_frame();
    }
  }
};

TEST_F(Replays, TheKnockOutReplayShowsItsThirtyFramesTwiceThenPutsTheFightBack) {
  record(60);
  const std::int16_t channel[1] = {1};
  const std::int16_t sound[1] = {42};
  Match.replay_pos = 45;  // a voice said on frame 45 (stored there by hand)
  Replay.fresh = 1;
  Replay_StoreVoices(channel, sound, 1);
  Match.replay_pos = 60;

  fighters[0].pos_x = -3.0f;  // where the deciding blow left things
  fighters[0].action = 170;
  fighters[0].frame = 1701;
  start_ko_replay();
  std::vector<float> shown;
  int voices = 0;
  while (Match.replay_state != 0 && shown.size() < 100) {
    ChannelLastSound[1] = 0;
    ko_replay_step();
    shown.push_back(fighters[0].pos_x);
    if (ChannelLastSound[1] == 42) ++voices;
  }
  ASSERT_EQ(shown.size(), 60u);
  for (int i = 0; i < 30; ++i) EXPECT_EQ(shown[i], 31.0f + i);
  // The second showing: the same frames, and on reaching the blow again the fight is put back
  // as it stood at the blow.
  for (int i = 0; i < 29; ++i) EXPECT_EQ(shown[30 + i], 31.0f + i);
  EXPECT_EQ(shown[59], -3.0f);
  EXPECT_EQ(voices, 2);
  EXPECT_EQ(fighters[0].action, 170);
  EXPECT_EQ(fighters[0].frame, 1701);
}

TEST_F(Replays, RecordingStopsNinetyNineFramesAfterTheDecidingBlow) {
  Match.ko_state = 1;
  Match.ko_slow = 100;
  Match.ko_wait = 10000;
  Match.hit_stop = 1000;  // keeps the fighters where they are
  fighters[0].busy = fighters[1].busy = 1;
  const int start = Match.replay_pos;
  for (int i = 0; i < 150; ++i) Fight_Update();
  EXPECT_EQ(Match.ko_slow, 1);
  EXPECT_EQ(Match.replay_pos, (start + 99) % REPLAY_FRAMES);
}

TEST_F(Replays, TheEndingWaitIsShortWhenTheBeatenFighterAlreadyLies) {
  for (const int action : {170, 150}) {
    SCOPED_TRACE(action);
    SetUp();
    Match.hit_stop = 5;
    fighters[1].damage = fighters[1].life;
    fighters[1].action = action;
    fighters[1].frame = fighters[1].act_first[action];
    fighters[1].busy = 1;
    Fight_Update();
    EXPECT_EQ(Match.ko_state, 1);
    EXPECT_EQ(Match.winner, 0);
    EXPECT_EQ(fighters[0].wins, 1);
    EXPECT_EQ(Match.ko_wait, (action == 170 ? 150 : 500) - 1);
  }
}

TEST_F(Replays, StartCutsTheClosingReplayShort) {
  record(40);
  Match.winner = 0;
  Match.ko_state = 2;
  Match.after_ko = 1;
  Match.after_ko_frames = 50;
  Match.replay_mark = Match.replay_pos;
  Fight_Update();  // an uninterrupted closing replay shows its frames one by one
  EXPECT_EQ(Match.frozen, 0);
  EXPECT_EQ(Match.replay_pos, (Match.replay_mark + 1) % REPLAY_FRAMES);

  Headless_SetKey('A', true);  // the winner's start (the fourth button)
  Fight_Update();
  EXPECT_EQ(Match.frozen, 1);  // over: victory poses
  EXPECT_EQ(Match.after_ko, 0);
  EXPECT_TRUE(fighters[0].action == 12 || fighters[0].action == 13);
  EXPECT_EQ(fighters[1].action, 50);
}

}  // namespace
