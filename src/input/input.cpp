#include "input/input.h"

#include "fight/fight.h"
#include "platform/platform.h"
#include "shell/shell.h"

PlayerInput Players[2];
JoyState Joy[2];
std::uint16_t ControlWord[2];
std::int16_t ButtonMask[2][4] = {{0x10, 0x20, 0x40, 0x80}, {0x10, 0x20, 0x40, 0x80}};

namespace {

constexpr int kAxisLow = 256;     // an axis below this is left / up
constexpr int kAxisHigh = 36000;  // an axis above this is right / down

struct DefaultKeys {
  std::int16_t left, right, up, down, bit10, bit20, bit40, bit880, extra1, extra2;
};
constexpr DefaultKeys kDefaultKeys[2] = {
    {'D', 'G', 'R', 'F', VK_TAB_, 'Q', VK_CAPITAL_, 'A', 'W', 'S'},     // player 1
    {VK_LEFT_, VK_RIGHT_, VK_UP_, VK_DOWN_, 'U', 'I', 'J', 'K', 'O', 'L'},  // player 2
};

bool key_down(std::int16_t code) { return Plat_KeyDown(code) != 0; }

// Builds the active-low control word from the keys and the joystick buttons.
std::uint16_t build_control_word(const PlayerInput& in, std::uint32_t buttons) {
  std::uint16_t word = 0xFFFF;
  if (key_down(in.key_bit880) || (buttons & 8)) word &= ~0x0880;
  if (key_down(in.key_bit20) || (buttons & 4)) word &= ~0x0020;
  if (key_down(in.key_bit40) || (buttons & 2)) word &= ~0x0040;
  if (key_down(in.key_bit10) || (buttons & 1)) word &= ~0x0010;
  return word;
}

void read_extra(bool down, std::int16_t& held, std::int16_t& pressed) {
  if (down) {
    pressed = held == 0 ? 1 : 0;
    held = 1;
  } else {
    held = 0;
    pressed = 0;
  }
}

void read_button(std::uint16_t word, std::uint16_t mask, std::int16_t& latch,
                 std::int16_t& held, std::int16_t& pressed) {
  if (word & mask) {
    latch = 0;
    pressed = 0;
    held = 0;
    return;
  }
  pressed = latch == 0 ? 1 : 0;
  latch = 1;
  held = 1;
}

// A direction with a tap counter (4 at the press) and optionally a tap window (2 at the
// press). Both count down without a floor while the direction stays held.
void read_direction(bool active, std::int16_t& latch, std::int16_t& held, std::int16_t& tap,
                    std::int16_t* window) {
  if (!active) {
    held = 0;
    --tap;
    latch = 0;
    return;
  }
  held = 1;
  if (latch) {
    --tap;
    if (window) --*window;
  } else {
    latch = 1;
    tap = 4;
    if (window) *window = 2;
  }
}

}  // namespace

void Input_Init() {
  Plat_JoyInit();
  for (int p = 0; p < 2; ++p) {
    Joy[p].joystick = p + 1;
    const DefaultKeys& k = kDefaultKeys[p];
    PlayerInput& in = Players[p];
    in.key_left = k.left;
    in.key_right = k.right;
    in.key_up = k.up;
    in.key_down = k.down;
    in.key_bit10 = k.bit10;
    in.key_bit20 = k.bit20;
    in.key_bit40 = k.bit40;
    in.key_bit880 = k.bit880;
    in.key_extra1 = k.extra1;
    in.key_extra2 = k.extra2;
  }
}

void Input_Clear(int player) {
  PlayerInput& in = Players[player];
  in.attack1_pressed = in.attack2_pressed = in.attack3_pressed = in.attack4_pressed = 0;
  in.start_pressed = 0;
  in.up_tap = in.down_tap = in.left_tap = in.right_tap = 0;
  in.up = in.down = in.left = in.right = 0;
  in.attack1 = in.attack2 = in.attack3 = in.attack4 = 0;
}

void Input_Read(int player) {
  PlayerInput& in = Players[player];
  JoyState& joy = Joy[player];

  Plat_JoyPos pad{32767, 32767, 0};
  if (Plat_JoyGetPos(joy.joystick, &pad) != 0) pad = {32767, 32767, 0};

  const std::uint16_t word = build_control_word(in, pad.buttons);
  ControlWord[player] = word;

  read_extra(key_down(in.key_extra1), in.extra1, in.extra1_pressed);
  read_extra(key_down(in.key_extra2), in.extra2, in.extra2_pressed);

  const std::int16_t* mask = ButtonMask[player];
  read_button(word, START_MASK, joy.start, in.start, in.start_pressed);
  read_button(word, mask[0], joy.attack1, in.attack1, in.attack1_pressed);
  read_button(word, mask[1], joy.attack2, in.attack2, in.attack2_pressed);
  read_button(word, mask[2], joy.attack3, in.attack3, in.attack3_pressed);
  read_button(word, mask[3], joy.attack4, in.attack4, in.attack4_pressed);

  read_direction(key_down(in.key_left) || pad.x < kAxisLow, joy.left, in.left, in.left_tap,
                 &in.left_window);
  read_direction(key_down(in.key_right) || pad.x > kAxisHigh, joy.right, in.right,
                 in.right_tap, &in.right_window);
  read_direction(key_down(in.key_up) || pad.y < kAxisLow, joy.up, in.up, in.up_tap, nullptr);
  const bool down_was_latched = joy.down != 0;
  read_direction(key_down(in.key_down) || pad.y > kAxisHigh, joy.down, in.down, in.down_tap,
                 nullptr);
  if (in.down && !down_was_latched) in.left_window = in.right_window = 0;
  // The fight's command step: the direction history and the command it completes (and the
  // mirrored keys of reversed controls).
  if (Shell.GameMode != MODE_SELECT) update_commands(player);
}
