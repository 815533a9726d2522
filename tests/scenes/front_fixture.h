// Shared by the front-end scene tests: the run's initial state, keys pressed through the real
// frame loop, and a check of the presented picture.
#pragma once
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include "audio/audio.h"
#include "camera/camera_fight.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/headless/headless.h"
#include "scenes/scene_fixture.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"

namespace front_test {

// Player 1's keys: D G R F move, Tab Q CapsLock A attack (A is also start).
constexpr int P1_LEFT = 'D', P1_RIGHT = 'G', P1_UP = 'R', P1_DOWN = 'F';
constexpr int P1_A1 = VK_TAB_, P1_A2 = 'Q', P1_A3 = VK_CAPITAL_, P1_START = 'A';
// Player 2's: the arrows move, U I J K attack (K is also start).
constexpr int P2_LEFT = VK_LEFT_, P2_RIGHT = VK_RIGHT_, P2_START = 'K', P2_A1 = 'U';

class FrontTest : public scene_test::SceneTest {
 protected:
  void SetUp() override {
    SceneTest::SetUp();
    initial();
  }
  void TearDown() override {
    initial();
    SceneTest::TearDown();
  }
  static void initial() {
    Headless_ResetInput();
    Shell = ShellState{};
    Match = MatchState{};
    Settings = SettingsState{};
    Title = TitleState{};
    Select = SelectState{};
    Continue = ContinueState{};
    Ranking = RankingState{};
    Ending = EndingState{};
    Options = OptionsState{};
    select_done[0] = select_done[1] = 0;
    select_slot[0] = 0;
    select_slot[1] = 9;
    for (std::int16_t* m : ButtonMask)
      for (int j = 0; j < 4; ++j) m[j] = static_cast<std::int16_t>(0x10 << j);
    std::memset(Players, 0, sizeof Players);
    std::memset(Joy, 0, sizeof Joy);
    Input_Init();
    frame_count = TitleTimer = ContinueTimer = 0;
    Set_FrameRate(65);
  }
  static void frames(int n) {
    for (int k = 0; k < n; ++k) Run_Frame();
  }
  // The keys held for one frame, then released for one.
  static void press(std::initializer_list<int> keys) {
    for (int vk : keys) Headless_SetKey(vk, true);
    Run_Frame();
    for (int vk : keys) Headless_SetKey(vk, false);
    Run_Frame();
  }
  // Whether the presented picture at (x, y) of the 512 x 384 space has this colour.
  static bool shows(int x, int y, int r, int g, int b) {
    const int px = x * HEADLESS_WIDTH / 512, py = y * HEADLESS_HEIGHT / 384;
    const std::uint8_t* p = Headless_Pixels() + (py * HEADLESS_WIDTH + px) * 4;
    return std::abs(p[0] - r) < 8 && std::abs(p[1] - g) < 8 && std::abs(p[2] - b) < 8;
  }
};

}  // namespace front_test
