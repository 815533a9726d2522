// Key polling on X11: "is this key down now?" from XQueryKeymap, plus a latch fed by the
// toolkit's key callbacks so that a press released before the next poll still counts once.
#include <GL/freeglut.h>
#include <GL/glx.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

#include <cctype>

#include "platform/platform.h"
#include "platform/real/plat_real.h"

namespace {

std::uint8_t KeyLatch[256];  // written by the key callbacks, cleared by Plat_KeyDown
char Keymap[32];             // the X server's key state, read once a frame
bool KeymapStale = true;     // set at the start of each frame by RealKeys_NewFrame

KeySym keysym_of(int vk) {
  if (vk >= 'A' && vk <= 'Z') return XK_a + (vk - 'A');
  if (vk >= '0' && vk <= '9') return XK_0 + (vk - '0');
  switch (vk) {
    case VK_TAB_: return XK_Tab;
    case VK_CAPITAL_: return XK_Caps_Lock;
    case VK_ESCAPE_: return XK_Escape;
    case VK_LEFT_: return XK_Left;
    case VK_UP_: return XK_Up;
    case VK_RIGHT_: return XK_Right;
    case VK_DOWN_: return XK_Down;
    case VK_F1_: return XK_F1;
    case VK_F2_: return XK_F2;
    default: return NoSymbol;
  }
}

int vk_of_char(unsigned char c) {
  if (std::isalpha(c)) return std::toupper(c);
  if (c >= '0' && c <= '9') return c;
  if (c == '\t') return VK_TAB_;
  if (c == 27) return VK_ESCAPE_;
  return -1;
}

int vk_of_special(int key) {
  switch (key) {
    case GLUT_KEY_LEFT: return VK_LEFT_;
    case GLUT_KEY_UP: return VK_UP_;
    case GLUT_KEY_RIGHT: return VK_RIGHT_;
    case GLUT_KEY_DOWN: return VK_DOWN_;
    case GLUT_KEY_F1: return VK_F1_;
    case GLUT_KEY_F2: return VK_F2_;
    default: return -1;
  }
}

void on_key(unsigned char c, int, int) {
  const int vk = vk_of_char(c);
  if (vk >= 0) KeyLatch[vk] = 1;
}

void on_special(int key, int, int) {
  const int vk = vk_of_special(key);
  if (vk >= 0) KeyLatch[vk] = 1;
}

}  // namespace

void RealKeys_NewFrame() { KeymapStale = true; }

void RealKeys_RegisterCallbacks() {
  glutKeyboardFunc(on_key);
  glutSpecialFunc(on_special);
}

int Plat_KeyDown(int vk) {
  if (vk < 0 || vk > 255) return 0;
  const int latched = KeyLatch[vk];
  KeyLatch[vk] = 0;
  Display* display = glXGetCurrentDisplay();
  const KeySym sym = keysym_of(vk);
  if (display == nullptr || sym == NoSymbol) return latched;
  const KeyCode code = XKeysymToKeycode(display, sym);
  if (code == 0) return latched;
  if (KeymapStale) {  // one round trip to the server a frame, however many keys are asked
    XQueryKeymap(display, Keymap);
    KeymapStale = false;
  }
  return ((Keymap[code >> 3] >> (code & 7)) & 1) || latched;
}
