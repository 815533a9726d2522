// Match preparation: who the computer sends, the shuffled order, the demonstration rotation,
// the failure codes, and a match prepared from start to fight.
#include <algorithm>
#include <string>

#include "assets/loader_harness.h"
#include "audio/audio.h"
#include "cpu/cpu.h"
#include "fight/fight_state.h"
#include "scenes/scene_fixture.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"
#include "shell/shell_prepare.h"

namespace {

// Every test starts from the run's initial state and leaves it so.
class Preparation : public scene_test::SceneTest {
 protected:
  void SetUp() override {
    SceneTest::SetUp();
    initial();
  }
  void TearDown() override {
    initial();
    SceneTest::TearDown();
  }
  static void initial() {
    Match = MatchState{};
    Prepare = PrepareState{};
    Cpu = CpuState{};
    Shell = ShellState{};
    Settings = SettingsState{};
    select_slot[0] = 0;
    select_slot[1] = 9;
    frame_count = TitleTimer = 0;
  }
  // Side `human_side` plays slot `slot` against the computer at `stage`.
  static void one_player(int human_side, int slot, int stage) {
    Match.human[human_side] = 1;
    Match.human[1 - human_side] = 0;
    select_slot[human_side] = slot;
    Match.stage_count = stage;
    Choose_Opponent();
  }
};

}  // namespace

TEST_F(Preparation, TheComputerSendsTheNextOpponentOfTheOrder) {
  Prepare.OpponentOrder[0] = 3;
  Prepare.OpponentOrder[4] = 7;
  one_player(0, 5, 0);
  EXPECT_EQ(select_slot[1], 3);
  EXPECT_EQ(Cpu.CpuLevel[1], 200);  // difficulty 2, first opponent
  one_player(1, 3, 0);              // a mirror match shows the second colours
  EXPECT_EQ(select_slot[0], 18);
  one_player(1, 18, 0);  // only the exact slot counts
  EXPECT_EQ(select_slot[0], 3);
  one_player(0, 7, 4);
  EXPECT_EQ(select_slot[1], 22);
  one_player(0, 14, 10);  // the eleventh opponent is the boss, even against itself
  EXPECT_EQ(select_slot[1], 14);
  EXPECT_EQ(Stage_Side(), 1);  // the computer's stage
  Match.human[1] = 1;
  Prepare.stage_side = 1;      // two people: the last joiner's
  EXPECT_EQ(Stage_Side(), 1);
}

TEST_F(Preparation, ShufflesCarryOnFromTheLastOrder) {
  frame_count = 30;  // 30 mod 15 + 5: the first five swaps
  Shuffle_Opponents();
  const std::int32_t once[12] = {0, 7, 9, 8, 5, 2, 6, 1, 3, 4, 10, 255};
  EXPECT_TRUE(std::equal(once, once + 12, Prepare.OpponentOrder));
  Shuffle_Opponents();
  EXPECT_FALSE(std::equal(once, once + 12, Prepare.OpponentOrder));
}

TEST_F(Preparation, DemonstrationsRotateThroughTheirPairs) {
  frame_count = 10;
  Cpu.CpuCounter = 3;
  Choose_DemoFighters();  // row 0 (0, 2); 10 mod 5 = 0 gives side 0 its second colours
  EXPECT_EQ(select_slot[0], 15);
  EXPECT_EQ(select_slot[1], 2);
  EXPECT_EQ(Cpu.CpuLevel[0], 60);  // stage (10 + 6) mod 10 = 6
  EXPECT_EQ(Match.stage_count, 7);  // (3 + 4) mod 10, side 1's, stays

  frame_count = 9;
  Prepare.DemoIndex = 20;  // row 20 (0, 1), the last by the mod-5 rule: (9 + 1) mod 5 = 0
  Choose_DemoFighters();
  EXPECT_EQ(select_slot[1], 16);
  Choose_DemoFighters();  // row 21 (2, 3) by mod 3: 9 mod 3 = 0
  EXPECT_EQ(select_slot[0], 17);
  Prepare.DemoIndex = 29;
  Choose_DemoFighters();
  EXPECT_EQ(Prepare.DemoIndex, 9);  // after the last row: frame_count mod 10
}

TEST_F(Preparation, MissingPicturesOrFightersEndTheRunWithTheirCodes) {
  scene_test::write_match_files();
  Match.human[0] = Match.human[1] = 1;
  auto o = harness::run([] { Prepare_Match(); });
  EXPECT_EQ(o.status, 0);
  EXPECT_NE(o.err.find("002\n"), std::string::npos) << o.err;
  o = harness::run([] { Prepare_Demo(); });
  EXPECT_EQ(o.status, 0);
  EXPECT_NE(o.err.find("005\n"), std::string::npos) << o.err;

  scene_test::write_set(PICS_FIGHT);
  Match.human[0] = Match.human[1] = 1;
  select_slot[0] = 0;
  select_slot[1] = 100;  // a side with no character row
  o = harness::run([] { Prepare_Match(); });
  EXPECT_EQ(o.status, 0);
  EXPECT_NE(o.err.find("004\n"), std::string::npos) << o.err;
}

TEST_F(Preparation, AMatchIsPreparedWithinOneFrame) {
  scene_test::write_match_files();
  scene_test::write_set(PICS_FIGHT);
  Settings.frame_rate = 50;
  Match.human[0] = Match.human[1] = 1;
  Prepare.stage_side = 1;
  select_slot[1] = 24;  // character 9 in its second colours
  fighters[0].wins = fighters[1].wins = 1;
  const long before = Headless_Presented();
  auto o = harness::run([] { Prepare_Match(); });
  ASSERT_EQ(o.status, -1) << o.out << o.err;
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
  EXPECT_EQ(Match.character[1], 9);
  EXPECT_EQ(fighters[0].wins + fighters[1].wins, 0);
  EXPECT_EQ(Match.intro, 2);  // wins cleared before the round: a first round
  EXPECT_EQ(MusicTrack, TRACK_FIRST_STAGE + 9);  // the joiner's stage music
  EXPECT_EQ(Pacer.PaceRate, 50);
  EXPECT_EQ(Headless_Presented() - before, 19 + 1 + 2);  // versus, its last swap, two black

  // A demonstration whose attract cycle a start press has cancelled goes back to the title.
  ASSERT_TRUE(writers::Write_3DM("hana.3dm", harness::sample_model(1)));
  for (const char* face : {"HANADM.bmp", "HANAVC.bmp"}) scene_test::write_picture(face);
  frame_count = 1;
  Prepare.DemoIndex = 1;  // characters 9 and 1 in their first colours
  o = harness::run([] { Prepare_Demo(); });
  ASSERT_EQ(o.status, -1) << o.out << o.err;
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_EQ(Shell.TitleEnter, 1);
  EXPECT_EQ(Match.demo, 0);
  EXPECT_EQ(Match.intro, 1);  // a demonstration's round is never a first one
  Prepare.DemoIndex = 1;
  TitleTimer = 5;
  ASSERT_EQ(harness::run([] { Prepare_Demo(); }).status, -1);
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
  EXPECT_EQ(Match.demo, 1);
}
