// The headless backend: OSMesa off-screen context, virtual clock, scripted devices.
#include <GL/osmesa.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/headless/headless.h"
#include "platform/platform.h"

namespace {

// Everything the headless platform keeps. Written only by this file's hooks and the
// Headless_* controls.
struct HeadlessState {
  OSMesaContext context = nullptr;
  std::uint8_t draw[HEADLESS_WIDTH * HEADLESS_HEIGHT * 4];     // the context's colour buffer
  std::uint8_t shown[HEADLESS_WIDTH * HEADLESS_HEIGHT * 4];    // last presented, top row first
  std::uint32_t clock = 0;
  std::uint8_t key_down[256];
  std::uint8_t key_latch[256];
  bool joy_present[2];
  Plat_JoyPos joy[2];
  long frame_limit = 0;
  long frames = 0;
  long presented = 0;
  char shot_dir[512] = "";
  int shot_every = 0;
  bool draw_shots_only = false;  // frames no shot keeps are drawn into a one-pixel target
  bool full_target = true;       // the context draws into the whole 640 x 480 picture
  int (*mode_probe)() = nullptr;
  int mode = 0;           // the mode the coming frame runs in, as the probe last told it
  long mode_frames = -1;  // frames run in that mode since it was entered
  void (*frame_hook)(long frame) = nullptr;
  bool summary_printed = false;
  Headless_ExitHook exit_hook = nullptr;
  bool quiet_diagnostics = false;
};
HeadlessState H;

// Points the context at the whole picture, or (for a picture nobody will look at) at one
// pixel, so that every GL call still runs but almost nothing is rasterised.
bool make_current(bool full) {
  H.full_target = full;
  return OSMesaMakeCurrent(H.context, H.draw, GL_UNSIGNED_BYTE, full ? HEADLESS_WIDTH : 1,
                           full ? HEADLESS_HEIGHT : 1);
}

// Whether the coming presented picture is one the run keeps.
bool next_picture_kept() {
  if (!H.draw_shots_only) return true;
  return H.shot_every > 0 && (H.presented + 1) % H.shot_every == 0;
}

// Follows the game's mode before each frame, for the script's repeated events.
void track_mode() {
  const int mode = H.mode_probe ? H.mode_probe() : 0;
  if (mode != H.mode || H.mode_frames < 0) {
    H.mode = mode;
    H.mode_frames = 0;
  } else {
    ++H.mode_frames;
  }
}

void capture_presented() {
  glFinish();
  for (int row = 0; row < HEADLESS_HEIGHT; ++row) {  // the context's rows run bottom-up
    const std::uint8_t* src = H.draw + (HEADLESS_HEIGHT - 1 - row) * HEADLESS_WIDTH * 4;
    std::memcpy(H.shown + row * HEADLESS_WIDTH * 4, src, HEADLESS_WIDTH * 4);
  }
}

}  // namespace

// ---- platform hooks ----------------------------------------------------------------------
void Plat_SaveDisplayMode() {}
void Plat_SetGameDisplayMode() {}
void Plat_RestoreDisplayMode() {}

int Plat_OpenWindow(const char*) {
  if (H.context == nullptr) {
    H.context = OSMesaCreateContextExt(OSMESA_RGBA, 24, 0, 0, nullptr);
    if (H.context == nullptr) return 0;
  }
  return make_current(next_picture_kept()) ? 1 : 0;
}

std::uintptr_t Plat_FindWindow(const char*) { return 1; }  // the only window there is
void Plat_FullScreen() {}

void Plat_SwapBuffers() {
  if (H.full_target) capture_presented();
  ++H.presented;
  if (H.shot_every > 0 && H.presented % H.shot_every == 0) {
    char path[600];
    std::snprintf(path, sizeof path, "%s/frame-%06ld.png", H.shot_dir, H.presented);
    Headless_WritePng(path);
  }
  const bool full = next_picture_kept();
  if (H.context != nullptr && full != H.full_target) make_current(full);
}

void Plat_RunMainLoop(Plat_Callback idle, Plat_ReshapeCallback reshape, Plat_Callback display) {
  reshape(HEADLESS_WIDTH, HEADLESS_HEIGHT);  // as after going full screen
  display();
  while (H.frame_limit == 0 || H.frames < H.frame_limit) {
    track_mode();
    Headless_ApplyScript(H.frames, H.mode, H.mode_frames);
    idle();
    if (H.frame_hook) H.frame_hook(H.frames);
    ++H.frames;
  }
  Headless_PrintSummary(0);
  std::fflush(stdout);
  std::exit(0);
}

int Plat_KeyDown(int vk) {
  if (vk < 0 || vk > 255) return 0;
  const int down = H.key_down[vk] || H.key_latch[vk];
  H.key_latch[vk] = 0;
  return down;
}

void Plat_JoyInit() {}

int Plat_JoyGetPos(int joystick, Plat_JoyPos* out) {
  if (joystick < 1 || joystick > 2 || !H.joy_present[joystick - 1]) return 1;
  *out = H.joy[joystick - 1];
  return 0;
}

std::uint32_t Plat_TickCount() { return H.clock; }
void Plat_WaitMs(int ms) {
  if (ms > 0) H.clock += static_cast<std::uint32_t>(ms);
}

void Plat_DebugOut(const char* text) {
  if (!H.quiet_diagnostics) std::fprintf(stderr, "%s\n", text);
}

void Headless_SetQuietDiagnostics(bool quiet) { H.quiet_diagnostics = quiet; }

void Plat_Exit(int status) {
  if (H.exit_hook) {
    std::fflush(stdout);
    H.exit_hook(status);
    std::abort();  // a hook that returns breaks the no-return promise
  }
  Headless_PrintSummary(status);
  std::fflush(stdout);
  std::exit(status);
}

// ---- controls ----------------------------------------------------------------------------
void Headless_SetKey(int vk, bool down) {
  if (vk < 0 || vk > 255) return;
  H.key_down[vk] = down ? 1 : 0;
  if (down) H.key_latch[vk] = 1;  // a press shorter than a poll still counts once
}

void Headless_SetJoyPresent(int pad, bool present) {
  if (pad < 1 || pad > 2) return;
  H.joy_present[pad - 1] = present;
  if (present && H.joy[pad - 1].x == 0 && H.joy[pad - 1].y == 0)
    H.joy[pad - 1] = {32767, 32767, 0};
}

void Headless_SetJoyAxis(int pad, char axis, std::uint32_t value) {
  if (pad < 1 || pad > 2) return;
  Headless_SetJoyPresent(pad, true);
  (axis == 'x' ? H.joy[pad - 1].x : H.joy[pad - 1].y) = value;
}

void Headless_SetJoyButton(int pad, int button, bool down) {
  if (pad < 1 || pad > 2 || button < 1 || button > 32) return;
  Headless_SetJoyPresent(pad, true);
  const std::uint32_t bit = 1u << (button - 1);
  H.joy[pad - 1].buttons = down ? (H.joy[pad - 1].buttons | bit) : (H.joy[pad - 1].buttons & ~bit);
}

void Headless_ResetInput() {
  std::memset(H.key_down, 0, sizeof H.key_down);
  std::memset(H.key_latch, 0, sizeof H.key_latch);
  for (int p = 0; p < 2; ++p) {
    H.joy_present[p] = false;
    H.joy[p] = {32767, 32767, 0};
  }
}

void Headless_SetFrameLimit(long frames) { H.frame_limit = frames; }

void Headless_SetShots(const char* dir, int every) {
  std::snprintf(H.shot_dir, sizeof H.shot_dir, "%s", dir);
  H.shot_every = every;
}

void Headless_SetDrawShotsOnly(bool only) {
  H.draw_shots_only = only;
  if (H.context != nullptr) make_current(next_picture_kept());
}

void Headless_SetExitHook(Headless_ExitHook hook) { H.exit_hook = hook; }
void Headless_SetModeProbe(int (*probe)()) { H.mode_probe = probe; }
void Headless_SetFrameHook(void (*hook)(long frame)) { H.frame_hook = hook; }
long Headless_Frames() { return H.frames; }
long Headless_Presented() { return H.presented; }
std::uint32_t Headless_Clock() { return H.clock; }
void Headless_AdvanceClock(std::uint32_t ms) { H.clock += ms; }
const std::uint8_t* Headless_Pixels() { return H.shown; }

void Headless_PrintSummary(int status) {
  if (H.summary_printed) return;
  H.summary_printed = true;
  const int mode = H.mode_probe ? H.mode_probe() : 0;
  std::printf("\nframes=%ld presented=%ld mode=%d exit=%d\n", H.frames, H.presented, mode,
              status);
}
