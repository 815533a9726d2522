// The versus picture as it is presented: both portraits on their sides, the band between them,
// and the caption for the kind of match.
#include <cstdlib>

#include "audio/audio.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "render/render_sprite.h"
#include "scenes/scene_fixture.h"

namespace {

using scene_test::write_colour;

class VersusScreen : public scene_test::SceneTest {
 protected:
  void SetUp() override {
    SceneTest::SetUp();
    saved_ = Match;
    write_colour("vsbck1.bmp", 0, 0, 200);
    write_colour("vsbck2.bmp", 100, 100, 100);
    write_colour("sban.bmp", 220, 0, 0, 128, 128);   // side 0: character 0
    write_colour("sknif.bmp", 0, 220, 0, 128, 128);  // side 1: character 9
    write_colour("vs_vs.bmp", 230, 0, 230, 32, 32);
    for (const char* f : {"vsbck3.bmp", "vfntbar.bmp", "white.bmp", "n_ban.bmp", "n_knif.bmp",
                          "vstag1.bmp", "vstag2.bmp", "vfnlstg1.bmp", "vfnlstg2.bmp"})
      write_colour(f, 0, 230, 230, 16, 16);
    for (int d = 0; d < 10; ++d)
      write_colour(("vs_" + std::to_string(d) + ".bmp").c_str(), static_cast<std::uint8_t>(20 * d),
                   40, 250, 16, 16);
    ASSERT_EQ(Load_VersusPictures(), 1);
  }
  void TearDown() override {
    Match = saved_;
    SceneTest::TearDown();
  }
  // Whether the presented picture at (x, y) of the 512 x 384 space has this colour.
  static bool shows(int x, int y, int r, int g, int b) {
    const int px = x * HEADLESS_WIDTH / 512, py = y * HEADLESS_HEIGHT / 384;
    const std::uint8_t* p = Headless_Pixels() + (py * HEADLESS_WIDTH + px) * 4;
    return std::abs(p[0] - r) < 6 && std::abs(p[1] - g) < 6 && std::abs(p[2] - b) < 6;
  }
  MatchState saved_;
};

}  // namespace

TEST_F(VersusScreen, PortraitsMeetAndTheCaptionNamesTheMatch) {
  Match.human[0] = Match.human[1] = 1;
  const long before = Headless_Presented();
  DrawVersusScreen();
  EXPECT_EQ(Headless_Presented() - before, 19);
  EXPECT_EQ(MusicTrack, TRACK_VERSUS);
  EXPECT_EQ(SpriteDraw.Layer_Z, -100.0f);
  EXPECT_TRUE(shows(64, 60, 220, 0, 0));        // side 0's portrait on the left, at the top
  EXPECT_TRUE(shows(320, 300, 0, 220, 0));      // side 1's on the right, below
  EXPECT_TRUE(shows(480, 20, 0, 0, 200));       // the backdrop
  EXPECT_TRUE(shows(100, 220, 100, 100, 100));  // the band across the middle
  EXPECT_TRUE(shows(188, 173, 230, 0, 230));    // two people: "vs"

  // A one-player run names its stage from 1, the tenth with two digits; the boss's is final.
  struct Case {
    int stage, x, y, r, g, b;
  };
  const Case cases[] = {{3, 377, 177, 80, 40, 250}, {9, 384, 177, 0, 40, 250},
                        {10, 52, 174, 0, 230, 230}};
  Match.human[1] = 0;
  for (const Case& c : cases) {
    Match.stage_count = c.stage;
    DrawVersusScreen();
    EXPECT_TRUE(shows(c.x, c.y, c.r, c.g, c.b)) << c.stage << " at " << c.x;
    EXPECT_TRUE(shows(188, 173, 100, 100, 100));  // no "vs"
  }
}
