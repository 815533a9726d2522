// A match prepared from the generated data set, as a player sees it: the versus picture, then
// the stage with its floor and backdrop and both fighters with their shadows.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <vector>

#include "assets/asset_anim.h"
#include "assets/loader_harness.h"
#include "fight/fight_state.h"
#include "platform/headless/headless.h"
#include "render/render_fighter.h"
#include "render/render_stage.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "shell/shell.h"
#include "shell/shell_prepare.h"
#include "support/test_support.h"

namespace {

using Picture = std::vector<std::uint8_t>;  // RGBA rows, top row first

class PreparedFight : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string data = VALDRUNE_DATA_DIR;
    if (access((data + "/life.bmp").c_str(), R_OK) != 0 ||
        access((data + "/PRELOAD.FA").c_str(), R_OK) != 0)
      GTEST_SKIP() << "no generated data set in " << data;
    test::ensure_gl();
    char cwd[1024];
    ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
    old_dir_ = cwd;
    ASSERT_EQ(chdir(data.c_str()), 0);
    Build_SinCosTables();
    ASSERT_TRUE(Load_PreloadFA("PRELOAD.FA"));
    Build_AngleTables();
  }
  void TearDown() override {
    if (!old_dir_.empty()) {
      ASSERT_EQ(chdir(old_dir_.c_str()), 0);
    }
    Reset_Textures();
    Shell = ShellState{};
    Match = MatchState{};
  }

  // One fight frame's drawing with or without the fighters, over a magenta screen.
  static Picture draw(bool with_fighters) {
    Pose_Fighter(0);
    Pose_Fighter(1);
    Clear_Screen(255, 0, 255);
    Clear_Depth();
    Draw_Stage();
    if (with_fighters) Draw_Fighters();
    Swap_Buffers();
    const std::uint8_t* px = Headless_Pixels();
    return Picture(px, px + HEADLESS_WIDTH * HEADLESS_HEIGHT * 4);
  }
  static const std::uint8_t* at(const Picture& p, int x, int y) {
    return p.data() + (y * HEADLESS_WIDTH + x) * 4;
  }
  static int brightness(const std::uint8_t* px) { return px[0] + px[1] + px[2]; }
  static bool magenta(const std::uint8_t* px) { return px[0] > 240 && px[1] < 15 && px[2] > 240; }
  static void screen_of(float x, float y, float z, int* sx, int* sy) {
    float cx, cy, cz;
    Mat_Apply(&View, x, y, z, &cx, &cy, &cz);
    const ScreenPoint s = Project_Point(cx, cy, cz);
    *sx = static_cast<int>(s.sx * HEADLESS_WIDTH / 512.0f);
    *sy = static_cast<int>(s.sy * HEADLESS_HEIGHT / 384.0f);
  }
  // Pixels of a box that the fighters changed, and how many of them they turned to shadow.
  static void changed(const Picture& a, const Picture& b, int x0, int y0, int x1, int y1,
                      int* any, int* darker) {
    *any = *darker = 0;
    for (int y = std::max(0, y0); y < std::min(HEADLESS_HEIGHT, y1); ++y)
      for (int x = std::max(0, x0); x < std::min(HEADLESS_WIDTH, x1); ++x) {
        *any += std::memcmp(at(a, x, y), at(b, x, y), 3) != 0;
        *darker += brightness(at(b, x, y)) < 30 && brightness(at(a, x, y)) > 120;
      }
  }

 private:
  std::string old_dir_;
};

TEST_F(PreparedFight, StageFightersAndShadowsStandWhereTheyProject) {
  Match.human[0] = Match.human[1] = 1;
  select_slot[0] = 0;
  select_slot[1] = 9;
  const long before = Headless_Presented();
  const harness::Outcome o = harness::run([] { Prepare_Match(); });
  ASSERT_EQ(o.status, -1) << o.out << o.err;
  EXPECT_EQ(o.err, "") << "every file of the match loads";
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
  EXPECT_GE(Headless_Presented() - before, 19);  // the versus picture played

  const Picture stage = draw(false);
  const Picture fight = draw(true);
  for (int y = 0; y < HEADLESS_HEIGHT; y += 4)
    for (int x = 0; x < HEADLESS_WIDTH; x += 4)
      ASSERT_FALSE(magenta(at(fight, x, y))) << "floor and backdrop cover the screen at " << x
                                             << "," << y;
  for (int p = 0; p < 2; ++p) {
    const Fighter& f = fighters[p];
    int x, y;
    const float* c = Draw.Body_Centre[p];
    screen_of(c[0], c[1], c[2], &x, &y);
    EXPECT_EQ(p == 0, x < HEADLESS_WIDTH / 2) << "fighter 0 stands left, fighter 1 right";
    int any, darker;
    changed(stage, fight, x - 10, y - 10, x + 10, y + 10, &any, &darker);
    EXPECT_GT(any, 300) << "fighter " << p << " is drawn at its hips";
    int fx, fy;
    screen_of(f.pos_x, SHADOW_FLOOR_Y, f.pos_z, &fx, &fy);
    changed(stage, fight, fx - 80, fy - 10, fx + 80, fy + 25, &any, &darker);
    EXPECT_GT(darker, 300) << "fighter " << p << " casts a shadow on the floor";
  }
}

}  // namespace
