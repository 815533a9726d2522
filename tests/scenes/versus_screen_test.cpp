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

struct Rgb {
  int r, g, b;
};

class VersusScreen : public scene_test::SceneTest {
 protected:
  void SetUp() override {
    SceneTest::SetUp();
    saved_ = Match;
    write_colour("vsbck1.bmp", 0, 0, 200);
    write_colour("vsbck2.bmp", 100, 100, 100);
    write_colour("vsbck3.bmp", 100, 100, 100);
    write_colour("vfntbar.bmp", 255, 255, 255);
    write_colour("sban.bmp", 220, 0, 0, 128, 128);   // side 0: character 0
    write_colour("sknif.bmp", 0, 220, 0, 128, 128);  // side 1: character 9
    write_colour("n_ban.bmp", 250, 250, 0, 64, 16);
    write_colour("n_knif.bmp", 250, 250, 0, 64, 16);
    write_colour("vs_vs.bmp", 230, 0, 230, 32, 32);
    for (const char* f : {"vstag1.bmp", "vstag2.bmp", "vfnlstg1.bmp", "vfnlstg2.bmp"})
      write_colour(f, 0, 230, 230, 16, 16);
    for (int d = 0; d < 10; ++d) {
      char name[16];
      std::snprintf(name, sizeof name, "vs_%d.bmp", d);
      write_colour(name, static_cast<std::uint8_t>(20 * d), 40, 250, 16, 16);
    }
    write_colour("white.bmp", 255, 255, 255);
    select_slot[0] = 0;
    select_slot[1] = 9;
    ASSERT_EQ(Load_VersusPictures(), 1);
  }
  void TearDown() override {
    Match = saved_;
    SceneTest::TearDown();
  }
  // The presented picture at (x, y) of the 512 x 384 space.
  static Rgb at(int x, int y) {
    const int px = x * HEADLESS_WIDTH / 512, py = y * HEADLESS_HEIGHT / 384;
    const std::uint8_t* p = Headless_Pixels() + (py * HEADLESS_WIDTH + px) * 4;
    return {p[0], p[1], p[2]};
  }
  static bool near(Rgb c, Rgb want) {
    return std::abs(c.r - want.r) < 6 && std::abs(c.g - want.g) < 6 && std::abs(c.b - want.b) < 6;
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
  EXPECT_TRUE(near(at(64, 60), {220, 0, 0}));     // side 0's portrait on the left, at the top
  EXPECT_TRUE(near(at(320, 300), {0, 220, 0}));   // side 1's on the right, below
  EXPECT_TRUE(near(at(480, 20), {0, 0, 200}));    // the backdrop
  EXPECT_TRUE(near(at(100, 220), {100, 100, 100}));  // the band across the middle
  EXPECT_TRUE(near(at(188, 173), {230, 0, 230}));  // two people: "vs"

  // A one-player run names its stage from 1; the tenth shows two digits.
  struct Case {
    int stage, x, digit;
  };
  const Case cases[] = {{3, 373, 4}, {9, 338, 1}, {9, 380, 0}};
  Match.human[1] = 0;
  for (const Case& c : cases) {
    Match.stage_count = c.stage;
    DrawVersusScreen();
    EXPECT_TRUE(near(at(c.x + 4, 177), {20 * c.digit, 40, 250})) << c.stage << " " << c.digit;
    EXPECT_TRUE(near(at(188, 173), {100, 100, 100}));  // no "vs"
  }
  Match.stage_count = 10;  // the boss: "final stage"
  DrawVersusScreen();
  EXPECT_TRUE(near(at(52, 174), {0, 230, 230}));
}
