// Keyboard and joystick input: one PlayerInput record per player, read every frame.
#pragma once
#include <cstdint>

// One player's controls. 34 signed 16-bit fields in this order (the computer opponent writes
// the same record for the side it plays). Written by Input_Read / Input_Clear, the computer
// opponent and the fight's command step.
struct PlayerInput {
  std::int16_t left, right, up, down;                  // held
  std::int16_t attack1, attack2, attack3, attack4;     // attack slots held
  std::int16_t left_window, left_tap;                  // 2 / 4 at the press, then counting down
  std::int16_t right_window, right_tap;
  std::int16_t up_tap, down_tap;
  std::int16_t attack1_pressed, attack3_pressed, attack2_pressed, attack4_pressed;
  std::int16_t start, start_pressed;
  std::int16_t key_left, key_right, key_up, key_down;  // virtual-key codes
  std::int16_t key_bit10, key_bit40, key_bit20, key_bit880;
  std::int16_t extra1, extra2;
  std::int16_t key_extra1, key_extra2;
  std::int16_t extra1_pressed, extra2_pressed;
};
static_assert(sizeof(PlayerInput) == 34 * 2, "PlayerInput is 34 16-bit fields");
extern PlayerInput Players[2];

// Per-player joystick number and press latches (1 while held and its press already counted).
// Written only by Input_Init and Input_Read.
struct JoyState {
  std::int32_t joystick;  // 1 for player 1, 2 for player 2
  std::int16_t left, right, up, down;
  std::int16_t attack1, attack3, attack2, attack4;
  std::int16_t start;
};
extern JoyState Joy[2];

// Rebuilt at every read; a bit is 0 while its button is down.
extern std::uint16_t ControlWord[2];

// Which control bit each attack slot reads. Written by the options screen and the settings
// file; defaults 0x10, 0x20, 0x40, 0x80.
extern std::int16_t ButtonMask[2][4];
constexpr std::uint16_t START_MASK = 0x800;

// Start-up: joysticks and the default key codes of both players.
void Input_Init();
// Clears the held flags, pressed flags and tap counters (not start, the windows, the extra
// buttons or the key codes).
void Input_Clear(int player);
// Reads keys and the joystick into the player's record.
void Input_Read(int player);
