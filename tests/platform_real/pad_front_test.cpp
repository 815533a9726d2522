// A player with a game pad walks the front end in the real window: start at the title, the
// d-pad moves the select cursor, a face button confirms, and the match is prepared. The pad is
// one of SDL's virtual joysticks; the window needs an X display (the real scenarios run this
// under a virtual one) and the generated data set, named by VALDRUNE_TEST_DATA.
#include <SDL2/SDL.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/platform.h"
#include "scenes/scenes.h"
#include "shell/shell.h"

namespace {

void frames(int n) {
  for (int k = 0; k < n; ++k) Run_Frame();
}

// Holds a pad button for a frame and lets it go for a frame.
void press(SDL_Joystick* pad, int button) {
  SDL_JoystickSetVirtualButton(pad, button, 1);
  frames(1);
  SDL_JoystickSetVirtualButton(pad, button, 0);
  frames(1);
}

}  // namespace

TEST(RealPadWalk, StartMoveAndConfirmWithAPadThenTheMatchIsPrepared) {
  const char* display = std::getenv("DISPLAY");
  const char* data = std::getenv("VALDRUNE_TEST_DATA");
  if (display == nullptr || data == nullptr) GTEST_SKIP() << "needs DISPLAY and VALDRUNE_TEST_DATA";
  ASSERT_EQ(chdir(data), 0);
  ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_JOYSTICK | SDL_INIT_GAMECONTROLLER), 0) << SDL_GetError();
  ASSERT_GE(SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, 6, 15, 1), 0);
  ASSERT_NE(Plat_OpenWindow("Valdrune"), 0);
  Set_FixedGLState();
  Window_Reshape(640, 480);
  Input_Init();  // finds the pad as player 1's
  SDL_Joystick* pad = SDL_JoystickFromInstanceID(SDL_JoystickGetDeviceInstanceID(0));
  ASSERT_NE(pad, nullptr);

  Shell.GameMode = MODE_TITLE;
  Shell.TitleEnter = 1;
  frames(3);
  press(pad, SDL_CONTROLLER_BUTTON_START);
  ASSERT_EQ(Shell.GameMode, MODE_SELECT);
  EXPECT_EQ(Match.human[0], 1);
  EXPECT_EQ(Match.character[0], 0);

  press(pad, SDL_CONTROLLER_BUTTON_DPAD_RIGHT);
  press(pad, SDL_CONTROLLER_BUTTON_DPAD_RIGHT);
  EXPECT_EQ(Match.character[0], 2);
  press(pad, SDL_CONTROLLER_BUTTON_DPAD_LEFT);
  EXPECT_EQ(Match.character[0], 1);

  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_A, 1);  // attack 1 confirms
  frames(1);
  EXPECT_EQ(select_done[0], 1);
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_A, 0);
  frames(1);
  ASSERT_EQ(Shell.GameMode, MODE_FIGHT_LOAD);
  frames(1);  // the versus picture and the loading
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
  EXPECT_EQ(Match.character[0], 1);
  EXPECT_EQ(Match.human[1], 0);  // the computer sends the first opponent
  frames(30);
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
}
