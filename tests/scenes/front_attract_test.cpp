// The attract items' own scenes: the ranking (its length, its backdrops in turn, its rows'
// digits) and the ending (its length); and the opening's script.
#include <string>

#include "camera/camera_path.h"
#include "fight/fight_ranking.h"
#include "hud/hud_screens.h"
#include "render/render_state.h"
#include "scenes/front_fixture.h"
#include "writers/writer_3dm.h"

namespace {

using namespace front_test;

class AttractScenes : public FrontTest {
 protected:
  void SetUp() override {
    FrontTest::SetUp();
    saved_ranks_ = Ranks;
  }
  void TearDown() override {
    Ranks = saved_ranks_;
    FrontTest::TearDown();
  }
  static void write_stages() {
    for (const StagePictures& st : StageTable)
      for (const char* f : {st.floor, st.light, st.backdrop[0], st.backdrop[1], st.backdrop[2],
                            st.super_move})
        scene_test::write_picture(f);
  }
  // The ranking set in black, with digits of their own colours: "w" digits (20d, 200, 40),
  // "ws" digits (20d, 40, 200).
  static void write_ranking_set() {
    for (const PictureEntry& e : scene_test::entries(PICS_RANKING))
      scene_test::write_colour(e.file, 0, 0, 0, 16, 16);
    for (int d = 0; d < 10; ++d) {
      const auto level = static_cast<std::uint8_t>(20 * d + 20);
      scene_test::write_colour(("w" + std::to_string(d) + ".bmp").c_str(), level, 200, 40, 32, 32);
      scene_test::write_colour(("ws" + std::to_string(d) + ".bmp").c_str(), level, 40, 200, 16, 16);
    }
    scene_test::write_colour("wscoma.bmp", 250, 250, 250, 8, 8);
  }
  static bool digit_at(int x, int y, int d, bool small) {
    return small ? shows(x, y, 20 * d + 20, 40, 200) : shows(x, y, 20 * d + 20, 200, 40);
  }
  Rankings saved_ranks_;
};

}  // namespace

TEST_F(AttractScenes, TheRankingRunsNineHundredFramesOverTheStagesInTurn) {
  write_stages();
  write_ranking_set();
  const int stages[] = {4, 5, 7, 8, 9, 10, 11, 4};
  for (int n = 0; n < 8; ++n) {
    Shell.GameMode = MODE_RANKING;
    Shell.RankingEnter = 1;
    frames(1);
    EXPECT_EQ(Match.character[0], stages[n]) << n;
  }
  const float look = FightCamera.look_x;
  frames(RANKING_FRAMES - 2);
  EXPECT_EQ(Shell.GameMode, MODE_RANKING);
  EXPECT_NEAR(FightCamera.look_x - look, 0.15f * (RANKING_FRAMES - 2), 0.05f);  // it pans
  frames(1);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_EQ(Shell.TitleEnter, 1);
}

TEST_F(AttractScenes, RankingRowsShowTheirNumbersDigitByDigit) {
  write_ranking_set();
  ASSERT_EQ(Load_RankingPictures(), 1);
  Ranks.StreakRanking[0] = {7, 0};
  Ranks.StreakRanking[1] = {150, 1};
  Ranks.StreakRanking[2] = {42, 2};
  Ranks.TimeRanking[0] = {987, 3};
  Ranks.TimeRanking[1] = {1234, 4};
  const int t = 700;  // the first page, every row in place
  auto draw = [](void (*routine)(int), int frame) {
    Clear_Screen(0, 0, 0);
    Clear_Depth();
    routine(frame);
    Swap_Buffers();
  };
  draw(DrawStreakRanking, t);
  EXPECT_TRUE(shows(270, 100, 0, 0, 0));      // 7: no tens digit
  EXPECT_TRUE(digit_at(310, 100, 7, false));
  EXPECT_TRUE(digit_at(270, 154, 9, false));  // 150 shows 99
  EXPECT_TRUE(digit_at(310, 154, 9, false));
  EXPECT_TRUE(digit_at(270, 208, 4, false));  // 42
  EXPECT_TRUE(digit_at(310, 208, 2, false));

  draw(DrawTimeRanking, t);
  EXPECT_TRUE(shows(310, 100, 0, 0, 0));  // 9.87: no tens of seconds
  EXPECT_TRUE(digit_at(350, 100, 9, false));
  EXPECT_TRUE(digit_at(407, 104, 8, true));
  EXPECT_TRUE(digit_at(436, 104, 7, true));
  EXPECT_TRUE(digit_at(310, 154, 1, false));  // 12.34
  EXPECT_TRUE(digit_at(350, 154, 2, false));
  EXPECT_TRUE(digit_at(407, 158, 3, true));
  EXPECT_TRUE(digit_at(436, 158, 4, true));

  draw(DrawStreakRanking, 520);  // sliding in: the first row's digits are still off to the right
  EXPECT_FALSE(digit_at(310, 100, 7, false));
}

TEST_F(AttractScenes, TheEndingStepsEverySecondFrameThroughItsPanelsThenTheTitle) {
  for (const PictureEntry& e : scene_test::entries(PICS_ENDING))
    scene_test::write_colour(e.file, 200, 200, 200, 16, 16);
  for (const char* m : {"FAR.3DM", "CARDFIRE.3DM", "AXE.3DM"})
    ASSERT_TRUE(writers::Write_3DM(m, harness::sample_model(1)));
  scene_test::write_colour("T.BMP", 200, 0, 0, 2, 2);
  Shell.GameMode = MODE_ENDING;
  Shell.EndingEnter = 1;
  frames(2 * ENDING_PANEL_STEPS);  // a step every second frame: the first panel is over
  EXPECT_EQ(Ending.EndingStep, ENDING_PANEL_STEPS);
  Ending.EndingStep = ENDING_STEPS - 10;  // on to the last panel's end
  frames(19);
  EXPECT_EQ(Shell.GameMode, MODE_ENDING);
  EXPECT_EQ(Ending.EndingStep, ENDING_STEPS - 1);
  frames(1);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_EQ(Shell.TitleEnter, 1);
}

TEST_F(AttractScenes, TheOpeningRunsItsLogoPathFlashAndTitleThenHandsOver) {
  scene_test::write_set(PICS_OPENING);
  scene_test::write_set(PICS_TITLE);
  scene_test::write_match_files();
  for (const char* f : {"OPEN_BOT.bmp", "SB_HANA.bmp", "WHITE.bmp"}) scene_test::write_picture(f);
  static CameraPathRecord saved;
  saved = CameraPath[1];
  CameraPath[1].frame_count = 40;  // a short flight
  auto run = [](int start_at) {
    Shell.GameMode = MODE_OPENING;
    Shell.OpeningEnter = 1;
    MusicTrack = 0;
    int n = 0;
    while (++n < 1000) {
      if (n == start_at) press({P1_START});
      else frames(1);
      if (n == OPENING_LOGO_FRAMES - 2) {
        EXPECT_NE(MusicTrack, TRACK_OPENING);
      }
      if (n == OPENING_LOGO_FRAMES) {
        EXPECT_EQ(MusicTrack, TRACK_OPENING);
      }
      if (n == OPENING_LOGO_FRAMES + 39) {
        EXPECT_EQ(Opening.OpeningWhite, 0);
      }
      if (n == OPENING_LOGO_FRAMES + 40) {
        EXPECT_GE(Opening.OpeningWhite, 1);  // the path has ended
      }
      if (Shell.GameMode != MODE_OPENING) break;
    }
    return n;
  };
  // The logo's 260 frames, the 40 of the flight (the white flash starts on its last), 25 more
  // of the flash, the closing title counting 1 to 150, and the frame that leaves.
  EXPECT_EQ(run(-1), 260 + 40 + 25 + 149 + 1);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_EQ(Opening.OpeningFade, OPENING_CLOSE_FRAMES);

  // A start press during the logo goes to the title before the music starts.
  EXPECT_EQ(run(100), 100);
  EXPECT_EQ(Shell.GameMode, MODE_TITLE);
  EXPECT_LT(Opening.OpeningFrames, OPENING_LOGO_FRAMES);
  EXPECT_NE(MusicTrack, TRACK_OPENING);
  CameraPath[1] = saved;
}
