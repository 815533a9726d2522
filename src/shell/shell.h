// Application shell: program entry, the per-frame callback and the game-mode machine.
#pragma once
#include <cstdint>

// Game modes: the scene Run_Frame runs each frame.
enum : std::int32_t {
  MODE_TITLE = -1,      // title screen and attract cycle
  MODE_SELECT = 0,      // character select
  MODE_FIGHT_LOAD = 1,  // prepare a match (one frame)
  MODE_FIGHT = 2,       // the fight
  MODE_CONTINUE = 3,    // continue count-down and game over
  MODE_OPENING = 5,     // logo and scripted opening fight
  MODE_ENDING = 7,      // ending panels
  MODE_RANKING = 8,     // ranking display
  MODE_DEMO_LOAD = 9,   // prepare the demonstration fight (one frame)
  MODE_OPTIONS = 10,    // options screen
};

// How a run begins: at the opening, or (review tools) straight in a match or a demonstration.
enum : std::int32_t { START_OPENING, START_FIGHT, START_DEMO };

// Mode machine state. GameMode is written by the start-up, the system keys and the scenes
// that move the game on (each sets the entry flag of the scene it switches to).
struct ShellState {
  std::int32_t GameMode = MODE_OPENING;
  // Scene entry flags: 1 = the scene's entry step is due before its next frame.
  std::int32_t TitleEnter = 1;
  std::int32_t SelectEnter = 1;
  std::int32_t OpeningEnter = 1;
  std::int32_t RankingEnter = 0;
  std::int32_t EndingEnter = 1;
  std::int32_t OptionsEnter = 0;
  std::uint8_t StartLatch = 0;   // 1 while the coin key or a start button is held
  std::int32_t CoinCount = 0;    // coins toward the next credit
  std::int32_t WhiteFrames = 0;  // coming fight frames shown plain white
  std::int32_t SkipPresent = 0;  // 1: the next drawn fight frame is not presented
  // The run's first mode, set before Game_Main by the headless program's --start.
  std::int32_t StartEntry = START_OPENING;
  std::int32_t StartSlot[2] = {0, 9};  // both sides' select slots for START_FIGHT
};
extern ShellState Shell;

// The program entry: runs the start-up sequence and the main loop. Returns 1 only when the
// shared animation file cannot be read; every other ending goes through Quit_Game.
int Game_Main();

// The render state the whole run keeps: the start-up viewport, the fixed projection of the
// 512 x 384 picture space and the GL switches. Called once by start-up (and by tests that
// draw).
void Set_FixedGLState();

// The orderly way out: restores the display, stops the music, exits with status 0.
[[noreturn]] void Quit_Game();

// Window callbacks, registered at start-up.
void Window_Reshape(int width, int height);
void Window_Display();

// The idle callback: one frame.
void Run_Frame();
// The system keys: options (F2), coin and start (F1 or a start button), quit (Escape).
void System_Keys();
// The scene of MODE_FIGHT, its drawing half, and the end of a challenger interruption.
void Fight_Frame();
void Fight_Draw();
void Challenger_Step();
// One fight frame without the pacer and without a picture: poses and part boxes, the round
// clock, the fight update and the camera (held, like Fight_Frame's, while a challenger's notice
// runs). With `as_drawn` 0 it runs as a frame behind schedule; with 1 it runs every state
// change of a drawn frame through the same steps the drawing takes (white frames, the stage's
// flash and glow ring, the bars, the character pass and effects, the display's counters), so a
// run without pictures plays frame for frame like a drawn run that skips no frame.
void Fight_Step(int as_drawn);
