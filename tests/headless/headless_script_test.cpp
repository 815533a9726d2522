// The headless script's repeated events: a key a player presses again and again while the game
// shows one mode, counted from the frame the mode was entered.
#include <gtest/gtest.h>

#include <string>

#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "support/test_support.h"

namespace {

class HeadlessScriptTest : public test::TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    Headless_ResetInput();
  }
  void TearDown() override {
    Headless_ResetInput();
    load("");
    TempDirTest::TearDown();
  }
  // Loads `text` as a script; the error text, or "" when it loaded.
  static std::string load(const std::string& text) {
    write_bytes("script.txt", text.data(), text.size());
    char err[700] = "";
    return Headless_LoadScript("script.txt", err, sizeof err) ? "" : err;
  }
  // Runs the script before a frame and says whether the key is down for that frame.
  static int down_before(long frame, int mode, long mode_frames, int key) {
    Headless_ApplyScript(frame, mode, mode_frames);
    return Plat_KeyDown(key);
  }
};

TEST_F(HeadlessScriptTest, RepeatedTapFiresOnlyInItsModeAtItsPhase) {
  ASSERT_EQ(load("in 3 every 10 +2 tap A\n"), "");
  for (long f = 0; f < 25; ++f)
    EXPECT_EQ(down_before(f, 2, f, 'A'), 0) << "mode 2, frame " << f;
  std::string pressed;
  for (long m = 0; m < 25; ++m) pressed += down_before(100 + m, 3, m, 'A') ? 'x' : '.';
  EXPECT_EQ(pressed, "..x.........x.........x..");
  // Entering the mode again starts the count again.
  EXPECT_EQ(down_before(200, 2, 0, 'A'), 0);
  EXPECT_EQ(down_before(201, 3, 0, 'A'), 0);
  EXPECT_EQ(down_before(202, 3, 1, 'A'), 0);
  EXPECT_EQ(down_before(203, 3, 2, 'A'), 1);
}

TEST_F(HeadlessScriptTest, RepeatedDownAndUpHoldAKeyBetweenThem) {
  ASSERT_EQ(load("# walk in, then strike\nin 2 every 30 +0 down G\nin 2 every 30 +20 up G\n"
                 "in 2 every 30 +21 tap Q\n40 tap F1\n"),
            "");
  std::string held, struck;
  for (long m = 0; m < 60; ++m) {
    held += down_before(m, 2, m, 'G') ? 'G' : '.';
    struck += Plat_KeyDown('Q') ? 'Q' : '.';
  }
  EXPECT_EQ(held, std::string(20, 'G') + std::string(10, '.') + std::string(20, 'G') +
                      std::string(10, '.'));
  EXPECT_EQ(struck, std::string(21, '.') + "Q" + std::string(29, '.') + "Q" +
                        std::string(8, '.'));
  // The frame-numbered events still run beside them.
  EXPECT_EQ(down_before(40, 2, 40, VK_F1_), 1);
}

TEST_F(HeadlessScriptTest, MalformedRepeatsAreRefusedNamingTheLine) {
  EXPECT_NE(load("in 3 every 0 tap A\n").find("script.txt:1: bad repeat period"),
            std::string::npos);
  EXPECT_NE(load("\nin 3 every 10 +10 tap A\n").find("script.txt:2: the offset must be"),
            std::string::npos);
  EXPECT_NE(load("in x every 10 tap A\n").find("bad mode number"), std::string::npos);
  EXPECT_NE(load("in 3 each 10 tap A\n").find("expected in MODE every N"), std::string::npos);
  EXPECT_NE(load("in 3 every 10 +1 press A\n").find("expected in MODE every N"),
            std::string::npos);
  EXPECT_NE(load("in 3 every 10 tap PLUS\n").find("unknown key name"), std::string::npos);
  EXPECT_EQ(load("in -1 every 700 +5 up A\n"), "");
}

}  // namespace
