// Program entry: brings the machine into the state every frame runs in, then hands control
// to the platform's main loop.
#include <GL/gl.h>

#include <cstdio>

#include "assets/asset_anim.h"
#include "assets/asset_report.h"
#include "audio/audio.h"
#include "camera/camera_path.h"
#include "fight/fight_moves.h"
#include "fight/fight_ranking.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "platform/platform.h"
#include "render/render_math.h"
#include "render/render_state.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"
#include "shell/shell_prepare.h"

namespace {

constexpr const char* kWindowTitle = "Valdrune";

// Found by title after the window is created; the joystick and sound set-up may take it.
std::uintptr_t MainWindow = 0;

}  // namespace

void Set_FixedGLState() {
  glViewport(0, -27, 512, 384);  // replaced by the first reshape
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glLoadIdentity();
  glOrtho(0, 512, -384, 0, -5120, 5120);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glClearColor(0, 0, 0, 1);
  Swap_Buffers();

  glEnable(GL_COLOR_MATERIAL);
  glEnable(GL_NORMALIZE);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  glFrontFace(GL_CCW);
  glEnable(GL_DEPTH_TEST);
  glDisable(GL_CULL_FACE);
  glDepthFunc(GL_LEQUAL);
  glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
  glShadeModel(GL_FLAT);
  glClearColor(0, 0, 0, 1);
  glEnable(GL_BLEND);
  glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
  glEnable(GL_TEXTURE_2D);
  Swap_Buffers();

  glEnableClientState(GL_VERTEX_ARRAY);
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
}

int Game_Main() {
  build_move_tables();  // the fight's command and link tables
  Build_SinCosTables();
  Set_FrameRate(65);

  Plat_SaveDisplayMode();
  Plat_SetGameDisplayMode();

  if (!Plat_OpenWindow(kWindowTitle)) {
    std::printf("Error opening a window.\n");
    std::fflush(stdout);
    Plat_DebugOut("valdrune: fatal: no window could be opened; the game stops (exit status 0)");
    Plat_Exit(0);
  }
  MainWindow = Plat_FindWindow(kWindowTitle);
  Plat_FullScreen();
  Set_FixedGLState();

  if (!Load_PreloadFA("PRELOAD.FA")) {
    std::printf("Preload FX3 Error ");
    std::fflush(stdout);
    Report_Stops(1);
    return 1;
  }
  Build_AngleTables();

  Sound_Init();
  Input_Init();
  LoadCameraPath("OPEN_POS.CAM", 1, CAMERA_PATH_EYE);
  LoadCameraPath("OPEN_POI.CAM", 1, CAMERA_PATH_LOOK_AT);
  Settings_Load();
  Adjust_TimeRanking(Match.life_setting);  // once: later option changes keep the times

  Shell.GameMode = MODE_OPENING;
  Enter_StartMode();

  Plat_RunMainLoop(Run_Frame, Window_Reshape, Window_Display);
  Quit_Game();
}

void Quit_Game() {
  Plat_RestoreDisplayMode();
  Music_Stop();
  Plat_Exit(0);
}

void Window_Reshape(int width, int height) {
  Clear_Screen(0, 0, 0);
  Swap_Buffers();
  Clear_Screen(0, 0, 0);
  glViewport(0, 0, width, height);
  glFlush();
}

void Window_Display() { glFlush(); }
