// The platform layer: the only code that touches the operating system.
//
// Two backends implement every hook below: the real one (freeglut window, X11 key polling,
// SDL2 joysticks, the monotonic clock) and the headless one (OSMesa off-screen context,
// virtual clock, scripted keys and pads). Everything above this header is the same code
// for both. Each hook says who calls it and when.
#pragma once
#include <cstdint>
#include <cstdio>

// ---- display mode ------------------------------------------------------------------------
// Called by the start-up sequence (steps 3-4) and by Quit_Game. Linux has no display mode
// to switch: the full-screen window is the game's picture, so these do nothing.
void Plat_SaveDisplayMode();
void Plat_SetGameDisplayMode();
void Plat_RestoreDisplayMode();

// ---- window and GL context --------------------------------------------------------------
// Start-up steps 5-6: initialises the toolkit with the fixed argument vector, asks for a
// double-buffered RGB window with a depth buffer, 512 x 384 at (0, 0), and creates it with
// this title. Returns 0 when no window could be made; the GL context is current otherwise.
int Plat_OpenWindow(const char* title);

// Start-up step 7: the system handle of the top-most window whose title equals `title`
// exactly, or 0 when none matches.
std::uintptr_t Plat_FindWindow(const char* title);

// Start-up step 8.
void Plat_FullScreen();

// Presents the back buffer. Called by Swap_Buffers (render state) for every shown picture.
void Plat_SwapBuffers();

// Start-up step 19: registers the per-frame, reshape and display callbacks and runs the
// main loop. Returns only if the loop ends without the game quitting.
using Plat_Callback = void (*)();
using Plat_ReshapeCallback = void (*)(int width, int height);
void Plat_RunMainLoop(Plat_Callback idle, Plat_ReshapeCallback reshape, Plat_Callback display);

// ---- keyboard ----------------------------------------------------------------------------
// Windows virtual-key codes the game asks about.
enum : int {
  VK_TAB_ = 0x09,
  VK_CAPITAL_ = 0x14,
  VK_ESCAPE_ = 0x1B,
  VK_LEFT_ = 0x25,
  VK_UP_ = 0x26,
  VK_RIGHT_ = 0x27,
  VK_DOWN_ = 0x28,
  VK_F1_ = 0x70,
  VK_F2_ = 0x71,
  // letters are their upper-case ASCII codes 0x41..0x5A
};

// 1 when the key is down now, or was pressed and released since this key was last asked
// about (so a tap shorter than a frame still counts once). Called by the system keys and
// the input reader, several times a frame.
int Plat_KeyDown(int vk);

// ---- joysticks ---------------------------------------------------------------------------
struct Plat_JoyPos {
  std::uint32_t x;        // 0..65535, centre 32767
  std::uint32_t y;        // 0..65535, centre 32767
  std::uint32_t buttons;  // bit n set while button n+1 is down
};
// Called once at start-up by Input_Init.
void Plat_JoyInit();
// joystick 1 or 2. Returns 0 and fills `out` when the pad is present; nonzero otherwise
// (the caller then treats the pad as centred and released). Called by Input_Read.
int Plat_JoyGetPos(int joystick, Plat_JoyPos* out);

// ---- clock -------------------------------------------------------------------------------
// Milliseconds since an arbitrary start; only differences mean anything. The pacer masks it
// to 15 bits. The only wall clock the game reads.
std::uint32_t Plat_TickCount();
// Blocks for `ms` milliseconds (>= 1) and returns not materially later. Called only by the
// frame pacer.
void Plat_WaitMs(int ms);

// ---- diagnostics and process -------------------------------------------------------------
// A three-digit failure code (or another short text) on the diagnostic channel.
void Plat_DebugOut(const char* text);
// One line on the diagnostic channel, formatted like printf (cut at 511 characters).
void Plat_DebugOutf(const char* format, ...) __attribute__((format(printf, 1, 2)));
// Ends the process with this status after flushing standard output.
[[noreturn]] void Plat_Exit(int status);

// ---- data files --------------------------------------------------------------------------
// Opens a data file in the working directory. The game names some files in two spellings
// ("BAN.BSC" and "ban.bsc"), so when the exact name does not exist the directory is searched
// for a name that differs only in letter case. Write modes always use the exact name.
std::FILE* Plat_OpenFile(const char* name, const char* mode);
// Why the last Plat_OpenFile that returned null failed, in words: "missing" when no file of
// that name exists, otherwise the system's reason ("Permission denied", ...).
const char* Plat_OpenFailure();

// Files served from memory instead of the working directory (fuzz targets): while a source
// is set, every read-mode Plat_OpenFile asks it for the file's bytes and never touches the
// disk; a name it does not know is missing. nullptr restores the directory.
using Plat_FileSource = bool (*)(const char* name, const std::uint8_t** data, std::size_t* size);
void Plat_SetFileSource(Plat_FileSource source);
