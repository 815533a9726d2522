// The headless program entered straight into a match or a demonstration, on a data set made
// here: it prepares the fight and goes on drawing it.
#include <cstdlib>
#include <string>

#include "scenes/scene_fixture.h"

namespace {

class StartRun : public scene_test::SceneTest {
 protected:
  // Runs the program here: its exit status, and the summary line in `out`.
  static int run(const std::string& args, std::string* out) {
    const std::string cmd = std::string(VALDRUNE_HEADLESS_BIN) + " --data . " + args + " >o 2>e";
    const int status = std::system(cmd.c_str());
    *out = read_all("o");
    *out = out->substr(std::min(out->size(), out->rfind("frames=")));
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
};

}  // namespace

TEST_F(StartRun, AMatchOrADemonstrationIsEnteredAndFought) {
  scene_test::write_match_files();
  ASSERT_TRUE(writers::Write_3DM("kaiden.3dm", harness::sample_model(1)));  // the first demo's
  for (const char* face : {"KAIDDM.bmp", "KAIDVC1.bmp"}) scene_test::write_picture(face);
  scene_test::write_set(PICS_FIGHT);
  scene_test::write_set(PICS_VERSUS);
  std::string summary;
  EXPECT_EQ(run("--start fight:0:9 --frames 30", &summary), 0) << read_all("e");
  EXPECT_EQ(summary.rfind("frames=30 presented=", 0), 0u) << summary;
  EXPECT_NE(summary.find(" mode=2 exit=0"), std::string::npos) << summary;
  EXPECT_GT(std::atoi(summary.c_str() + 20), 2 + 22 + 20);  // start-up, preparation, the fight
  EXPECT_EQ(run("--start demo --frames 10", &summary), 0) << read_all("e");
  EXPECT_NE(summary.find(" mode=2 exit=0"), std::string::npos) << summary;  // rows 0 and 2
  EXPECT_EQ(run("--start fight:0:30", &summary), 2);  // select slots run 0..29
}
