// The headless program entered straight into a match or a demonstration, on a data set made
// here: it prepares the fight and keeps drawing it.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "scenes/scene_fixture.h"

namespace {

class StartRun : public scene_test::SceneTest {
 protected:
  void SetUp() override {
    SceneTest::SetUp();
    scene_test::write_match_files();
    ASSERT_TRUE(writers::Write_3DM("kaiden.3dm", harness::sample_model(1)));
    for (const char* face : {"KAIDDM.bmp", "KAIDVC1.bmp"}) scene_test::write_picture(face);
    scene_test::write_set(PICS_FIGHT);
    scene_test::write_set(PICS_VERSUS);
  }
  // Runs the program in this directory; its status and the summary line.
  static int run(const std::string& args, std::string* summary) {
    const std::string cmd = std::string(VALDRUNE_HEADLESS_BIN) + " --data . " + args + " >out.txt 2>err.txt";
    const int status = std::system(cmd.c_str());
    const std::string out = read_all("out.txt");
    const std::size_t last = out.rfind("frames=");
    *summary = last == std::string::npos ? out : out.substr(last);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
};

}  // namespace

TEST_F(StartRun, AMatchOrADemonstrationIsEnteredAndFought) {
  std::string summary;
  ASSERT_EQ(system("mkdir shots"), 0);
  EXPECT_EQ(run("--start fight:0:9 --frames 30 --shots shots --shot-every 1", &summary), 0)
      << read_all("err.txt");
  EXPECT_EQ(summary.rfind("frames=30 presented=", 0), 0u) << summary;
  EXPECT_NE(summary.find(" mode=2 exit=0"), std::string::npos) << summary;
  const int presented = std::atoi(summary.c_str() + summary.find("presented=") + 10);
  EXPECT_GT(presented, 2 + 22 + 20);  // start-up, the preparation, then fight frames
  char last[64];
  std::snprintf(last, sizeof last, "shots/frame-%06d.png", presented);
  EXPECT_FALSE(read_all(last).empty());

  EXPECT_EQ(run("--start demo --frames 10", &summary), 0) << read_all("err.txt");
  EXPECT_NE(summary.find(" mode=2 exit=0"), std::string::npos) << summary;

  EXPECT_EQ(run("--start fight:0:30", &summary), 2);  // select slots run 0..29
  EXPECT_EQ(run("--start fight:0", &summary), 2);
}
