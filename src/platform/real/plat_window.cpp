// The real backend's window, GL context and main loop: freeglut on X11.
#include <GL/freeglut.h>
#include <GL/glx.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/platform.h"
#include "platform/real/plat_real.h"

namespace {

// The fixed argument vector handed to the toolkit; the program's own command line is not.
char kArg0[] = "VALDRUNEWIN";
char* FixedArgv[4] = {kArg0, nullptr, nullptr, nullptr};
int FixedArgc = 1;

// True when the window's name is exactly `title`.
bool title_matches(Display* display, Window window, const char* title) {
  char* name = nullptr;
  if (!XFetchName(display, window, &name) || name == nullptr) return false;
  char text[254];
  std::strncpy(text, name, sizeof text - 1);
  text[sizeof text - 1] = '\0';
  XFree(name);
  return std::strlen(text) == std::strlen(title) && std::strcmp(text, title) == 0;
}

// Depth-first from the top of the stacking order: the first window whose name matches.
Window find_titled(Display* display, Window parent, const char* title, int depth) {
  Window root = 0, up = 0, *children = nullptr;
  unsigned int count = 0;
  if (!XQueryTree(display, parent, &root, &up, &children, &count)) return 0;
  Window found = 0;
  for (unsigned int i = count; i-- > 0 && found == 0;) {  // top-most first
    if (title_matches(display, children[i], title)) found = children[i];
    else if (depth < 2) found = find_titled(display, children[i], title, depth + 1);
  }
  if (children) XFree(children);
  return found;
}

Plat_Callback GameIdle = nullptr;  // the game's per-frame function

// The toolkit gives up by itself when it has no display to open; it then says so in the
// game's words and ends with the toolkit's own status.
void toolkit_failed(const char* format, va_list args) {
  char why[300];
  std::vsnprintf(why, sizeof why, format, args);
  std::fflush(stdout);
  Plat_DebugOutf("valdrune: fatal: no window: %s; the game stops (exit status 1)", why);
  std::exit(1);
}

// Each idle call is one frame of the game.
void frame_trampoline() {
  RealKeys_NewFrame();
  GameIdle();
}

}  // namespace

void Plat_SaveDisplayMode() {}
void Plat_SetGameDisplayMode() {}
void Plat_RestoreDisplayMode() {}

int Plat_OpenWindow(const char* title) {
  glutInitErrorFunc(toolkit_failed);
  glutInit(&FixedArgc, FixedArgv);
  glutInitDisplayMode(GLUT_DOUBLE | GLUT_DEPTH);
  glutInitWindowSize(512, 384);
  glutInitWindowPosition(0, 0);
  return glutCreateWindow(title);
}

std::uintptr_t Plat_FindWindow(const char* title) {
  Display* display = glXGetCurrentDisplay();
  if (display == nullptr) return 0;
  XSync(display, False);
  return static_cast<std::uintptr_t>(find_titled(display, DefaultRootWindow(display), title, 0));
}

void Plat_FullScreen() { glutFullScreen(); }

void Plat_SwapBuffers() { glutSwapBuffers(); }

void Plat_RunMainLoop(Plat_Callback idle, Plat_ReshapeCallback reshape, Plat_Callback display) {
  glutSetOption(GLUT_ACTION_ON_WINDOW_CLOSE, GLUT_ACTION_GLUTMAINLOOP_RETURNS);
  RealKeys_RegisterCallbacks();
  GameIdle = idle;
  glutIdleFunc(frame_trampoline);
  glutReshapeFunc(reshape);
  glutDisplayFunc(display);
  glutMainLoop();
}
