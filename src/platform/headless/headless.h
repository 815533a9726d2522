// The headless backend's controls: what a test or the headless program drives.
//
// The headless platform draws into a 640 x 480 off-screen OSMesa context, keeps a virtual
// millisecond clock that moves only when the game waits, reads keys and pads from the
// state set here (or from a script), counts presented frames and can capture them as PNG.
#pragma once
#include <cstdint>

constexpr int HEADLESS_WIDTH = 640;
constexpr int HEADLESS_HEIGHT = 480;

// Keys (Windows virtual-key codes) and pads (1 or 2) as the game will read them.
void Headless_SetKey(int vk, bool down);
void Headless_SetJoyPresent(int pad, bool present);
void Headless_SetJoyAxis(int pad, char axis, std::uint32_t value);  // axis 'x' or 'y'
void Headless_SetJoyButton(int pad, int button, bool down);         // button 1..32
void Headless_ResetInput();

// Script: one event a line, "FRAME down KEY", "FRAME up KEY", "FRAME tap KEY",
// "FRAME joy PAD axis x|y VALUE", "FRAME joy PAD button B down|up"; blank lines and lines
// starting with '#' are skipped. FRAME counts the game's frames from 0; an event for frame F
// takes effect before frame F runs. A line "in MODE every N [+K] down|up|tap KEY" repeats a
// key event while the game is in mode MODE (the mode probe's number): before each frame whose
// count since the mode was entered (0 for its first frame) is K more than a multiple of N;
// as a player presses start each time the continue offer shows, or repeats a move all fight.
// Returns 1, or 0 with a message naming the line in `err`.
int Headless_LoadScript(const char* path, char* err, int err_size);
// Applies the script's events for `frame`, the game being in `mode` since `mode_frames`
// frames. Called by the main loop before each frame.
void Headless_ApplyScript(long frame, int mode, long mode_frames);

// Key name as the script writes it (F1, ESC, A..Z, ...) to its virtual-key code, or -1.
int Headless_KeyCode(const char* name);

// Run control. The main loop stops after `frames` frames (0 = until the game quits).
void Headless_SetFrameLimit(long frames);
// Capture every `every`-th presented frame as DIR/frame-NNNNNN.png (NNNNNN its number).
void Headless_SetShots(const char* dir, int every);
// When on, only the presented pictures the shots keep are drawn in full; every other one is
// drawn into a one-pixel target, so each frame still makes every GL call and runs exactly the
// game code it always runs, only far quicker. Without shots nothing is drawn in full (the
// last picture, Headless_Pixels, then stays as it was).
void Headless_SetDrawShotsOnly(bool only);
// Reports the game's current mode for the summary line.
void Headless_SetModeProbe(int (*probe)());
// Called after every frame of the main loop with that frame's number (from 0); nullptr for
// none.
void Headless_SetFrameHook(void (*hook)(long frame));

long Headless_Frames();     // frames run (per-frame callback calls)
long Headless_Presented();  // buffer swaps
std::uint32_t Headless_Clock();
void Headless_AdvanceClock(std::uint32_t ms);  // time passing outside the game's waits

// The picture last presented (RGBA, top row first), and a PNG of it.
const std::uint8_t* Headless_Pixels();
int Headless_WritePng(const char* path);

// When set, Plat_Exit calls this instead of ending the process (it must not return: a test
// or fuzz harness long-jumps back to its own frame). Pass nullptr to restore the default.
using Headless_ExitHook = void (*)(int status);
void Headless_SetExitHook(Headless_ExitHook hook);

// Silences the diagnostic channel (fuzz targets, whose every refused input would print).
void Headless_SetQuietDiagnostics(bool quiet);

// Prints the summary line "frames=N presented=P mode=M exit=S". Every ending prints it once.
void Headless_PrintSummary(int status);
