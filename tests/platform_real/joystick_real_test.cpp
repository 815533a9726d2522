// The real backend's pads, driven through SDL's virtual joysticks: two pads are told apart,
// axes come out as 0..65535 and buttons as bits, and a missing pad is refused.
#include <SDL2/SDL.h>
#include <gtest/gtest.h>

#include "platform/platform.h"

TEST(RealJoystick, TwoPadsAreToldApartAndMissingOnesRefused) {
  ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_JOYSTICK | SDL_INIT_GAMECONTROLLER), 0) << SDL_GetError();
  ASSERT_GE(SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, 6, 15, 1), 0);
  ASSERT_GE(SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, 6, 15, 1), 0);
  Plat_JoyInit();
  SDL_Joystick* first = SDL_JoystickFromInstanceID(SDL_JoystickGetDeviceInstanceID(0));
  SDL_Joystick* second = SDL_JoystickFromInstanceID(SDL_JoystickGetDeviceInstanceID(1));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);

  SDL_JoystickSetVirtualAxis(first, SDL_CONTROLLER_AXIS_LEFTX, -32768);
  SDL_JoystickSetVirtualAxis(second, SDL_CONTROLLER_AXIS_LEFTY, 32767);
  SDL_JoystickSetVirtualButton(second, SDL_CONTROLLER_BUTTON_A, 1);
  SDL_JoystickSetVirtualButton(second, SDL_CONTROLLER_BUTTON_Y, 1);

  Plat_JoyPos one{}, two{};
  ASSERT_EQ(Plat_JoyGetPos(1, &one), 0);
  ASSERT_EQ(Plat_JoyGetPos(2, &two), 0);
  EXPECT_EQ(one.x, 0u);
  EXPECT_EQ(one.y, 32768u);
  EXPECT_EQ(one.buttons, 0u);
  EXPECT_EQ(two.x, 32768u);
  EXPECT_EQ(two.y, 65535u);
  EXPECT_EQ(two.buttons, 0x9u);  // buttons 1 and 4

  Plat_JoyPos none{};
  EXPECT_NE(Plat_JoyGetPos(3, &none), 0);
  EXPECT_NE(Plat_JoyGetPos(0, &none), 0);
}
