// Input: tap counters in the front end and the fight, joystick thresholds, button masks,
// the fourth button as start, two pads.
#include <gtest/gtest.h>

#include <cstring>

#include "input/input.h"
#include "platform/headless/headless.h"
#include "platform/platform.h"

namespace {

class InputTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Headless_ResetInput();
    std::memset(Players, 0, sizeof Players);
    std::memset(Joy, 0, sizeof Joy);
    static constexpr std::int16_t kMasks[4] = {0x10, 0x20, 0x40, 0x80};
    for (auto& player : ButtonMask) std::memcpy(player, kMasks, sizeof kMasks);
    Input_Init();
  }
  // A front-end frame: clear, then read.
  static void front_end_frame(int p) {
    Input_Clear(p);
    Input_Read(p);
  }
};

}  // namespace

TEST_F(InputTest, DefaultKeysOfBothPlayers) {
  EXPECT_EQ(Players[0].key_left, 'D');
  EXPECT_EQ(Players[0].key_bit10, VK_TAB_);
  EXPECT_EQ(Players[0].key_bit40, VK_CAPITAL_);
  EXPECT_EQ(Players[0].key_bit880, 'A');
  EXPECT_EQ(Players[1].key_left, VK_LEFT_);
  EXPECT_EQ(Players[1].key_bit20, 'I');
  EXPECT_EQ(Players[1].key_extra2, 'L');
  EXPECT_EQ(Joy[0].joystick, 1);
  EXPECT_EQ(Joy[1].joystick, 2);
}

TEST_F(InputTest, FrontEndSeesOnePositiveTapPerPress) {
  Headless_SetKey('G', true);  // player 1 right
  int positive = 0;
  for (int f = 0; f < 10; ++f) {
    front_end_frame(0);
    EXPECT_EQ(Players[0].right, 1);
    if (Players[0].right_tap > 0) ++positive;
  }
  EXPECT_EQ(positive, 1);
  EXPECT_EQ(Players[0].right_tap, -1);
  // Keyboard and joystick held together are still one press.
  Headless_SetKey('G', false);
  front_end_frame(0);
  Headless_SetKey('G', true);
  Headless_SetJoyAxis(1, 'x', 65535);
  front_end_frame(0);
  EXPECT_EQ(Players[0].right_tap, 4);
  front_end_frame(0);
  EXPECT_EQ(Players[0].right_tap, -1);
}

TEST_F(InputTest, FightCountersRunDownAsTimingWindows) {
  Headless_SetKey('D', true);  // left, read without clearing as the fight does
  const std::int16_t expect_tap[] = {4, 3, 2, 1, 0, -1};
  const std::int16_t expect_window[] = {2, 1, 0, -1, -2, -3};
  for (int f = 0; f < 6; ++f) {
    Input_Read(0);
    EXPECT_EQ(Players[0].left_tap, expect_tap[f]) << "frame " << f;
    EXPECT_EQ(Players[0].left_window, expect_window[f]) << "frame " << f;
  }
  Headless_SetKey('D', false);
  Input_Read(0);
  EXPECT_EQ(Players[0].left, 0);
  EXPECT_EQ(Players[0].left_tap, -2);  // keeps counting down after the release
  // A press of down closes both horizontal windows.
  Headless_SetKey('G', true);
  Input_Read(0);
  EXPECT_EQ(Players[0].right_window, 2);
  Headless_SetKey('F', true);
  Input_Read(0);
  EXPECT_EQ(Players[0].right_window, 0);
  EXPECT_EQ(Players[0].left_window, 0);
}

TEST_F(InputTest, JoystickThresholdsAreNotSymmetric) {
  struct Case {
    std::uint32_t x, y;
    int left, right, up, down;
  };
  const Case cases[] = {
      {255, 32767, 1, 0, 0, 0},    {256, 32767, 0, 0, 0, 0},    // left edge
      {36000, 32767, 0, 0, 0, 0},  {36001, 32767, 0, 1, 0, 0},  // right edge
      {32767, 255, 0, 0, 1, 0},    {32767, 256, 0, 0, 0, 0},    // up edge
      {32767, 36000, 0, 0, 0, 0},  {32767, 36001, 0, 0, 0, 1},  // down edge
  };
  for (const Case& c : cases) {
    Headless_SetJoyAxis(2, 'x', c.x);
    Headless_SetJoyAxis(2, 'y', c.y);
    front_end_frame(1);
    EXPECT_EQ(Players[1].left, c.left) << c.x << "," << c.y;
    EXPECT_EQ(Players[1].right, c.right) << c.x << "," << c.y;
    EXPECT_EQ(Players[1].up, c.up) << c.x << "," << c.y;
    EXPECT_EQ(Players[1].down, c.down) << c.x << "," << c.y;
  }
}

TEST_F(InputTest, TwoPadsAreToldApart) {
  Headless_SetJoyAxis(1, 'x', 0);
  Headless_SetJoyAxis(2, 'x', 65535);
  Headless_SetJoyButton(2, 1, true);
  front_end_frame(0);
  front_end_frame(1);
  EXPECT_EQ(Players[0].left, 1);
  EXPECT_EQ(Players[0].right, 0);
  EXPECT_EQ(Players[0].attack1, 0);
  EXPECT_EQ(Players[1].right, 1);
  EXPECT_EQ(Players[1].attack1_pressed, 1);
}

TEST_F(InputTest, MissingPadReadsCentredAndReleased) {
  Headless_SetJoyAxis(1, 'x', 0);
  Headless_SetJoyButton(1, 4, true);
  Headless_SetJoyPresent(1, false);
  front_end_frame(0);
  EXPECT_EQ(Players[0].left, 0);
  EXPECT_EQ(Players[0].start, 0);
  EXPECT_EQ(ControlWord[0], 0xFFFF);
}

TEST_F(InputTest, FourthButtonIsAlsoStart) {
  Headless_SetJoyButton(1, 4, true);
  front_end_frame(0);
  EXPECT_EQ(Players[0].start_pressed, 1);
  EXPECT_EQ(Players[0].attack4_pressed, 1);
  front_end_frame(0);
  EXPECT_EQ(Players[0].start_pressed, 0);  // held: the press counted once
  EXPECT_EQ(Players[0].start, 1);
  Headless_SetJoyButton(1, 4, false);
  Headless_SetKey('K', true);  // player 2's fourth key
  front_end_frame(1);
  EXPECT_EQ(Players[1].start_pressed, 1);
}

TEST_F(InputTest, ButtonHeldAcrossAMaskChangePressesItsNewSlot) {
  Headless_SetKey(VK_TAB_, true);  // control bit 0x10: slot 1 by default
  front_end_frame(0);
  EXPECT_EQ(Players[0].attack1_pressed, 1);
  EXPECT_EQ(Players[0].attack2, 0);
  ButtonMask[0][1] = 0x10;  // slot 2 now reads the held bit
  front_end_frame(0);
  EXPECT_EQ(Players[0].attack1_pressed, 0);
  EXPECT_EQ(Players[0].attack2_pressed, 1);
  // Slot order of the pressed flags follows the record: 1, 3, 2, 4.
  EXPECT_EQ(reinterpret_cast<std::int16_t*>(&Players[0])[16], 1);
}

TEST_F(InputTest, ExtraButtonsAreKeyboardOnly) {
  Headless_SetJoyButton(1, 5, true);
  Headless_SetKey('W', true);
  front_end_frame(0);
  EXPECT_EQ(Players[0].extra1_pressed, 1);
  EXPECT_EQ(Players[0].extra2, 0);
  Input_Clear(0);  // the clear leaves the extra buttons alone
  EXPECT_EQ(Players[0].extra1, 1);
  Input_Read(0);
  EXPECT_EQ(Players[0].extra1_pressed, 0);
}

TEST_F(InputTest, KeyTappedBetweenTwoPollsCountsOnce) {
  Headless_SetKey('R', true);
  Headless_SetKey('R', false);  // released before the game looked
  front_end_frame(0);
  EXPECT_EQ(Players[0].up, 1);
  EXPECT_EQ(Players[0].up_tap, 4);
  front_end_frame(0);
  EXPECT_EQ(Players[0].up, 0);
}
