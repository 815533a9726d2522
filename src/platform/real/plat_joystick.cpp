// Joysticks through SDL2's joystick and game-controller subsystems (no SDL video).
//
// Up to two pads, told apart by the order they were found: the first is joystick 1, the
// second joystick 2. A pad SDL knows as a game controller (its built-in database, or mappings
// given in SDL_GAMECONTROLLERCONFIG) is read through its mapping: left stick or d-pad for
// the directions, the four face buttons as buttons 1-4. Any other pad reads its first two
// axes, first hat and raw buttons.
#include <SDL2/SDL.h>

#include "platform/platform.h"

namespace {

struct Pad {
  SDL_GameController* controller = nullptr;
  SDL_Joystick* joystick = nullptr;
  SDL_JoystickID id = -1;
};
Pad Pads[2];  // written by Plat_JoyInit and the hot-plug handling in Plat_JoyGetPos
bool JoyReady = false;

std::uint32_t axis_to_range(Sint16 v) { return static_cast<std::uint32_t>(v + 32768); }

void close_pad(Pad& pad) {
  if (pad.controller) SDL_GameControllerClose(pad.controller);
  else if (pad.joystick) SDL_JoystickClose(pad.joystick);
  pad = Pad{};
}

bool pad_in_use(SDL_JoystickID id) {
  return (Pads[0].joystick && Pads[0].id == id) || (Pads[1].joystick && Pads[1].id == id);
}

// Opens device `index` into the first free pad slot.
void open_device(int index) {
  if (pad_in_use(SDL_JoystickGetDeviceInstanceID(index))) return;
  for (Pad& pad : Pads) {
    if (pad.joystick) continue;
    if (SDL_IsGameController(index) && (pad.controller = SDL_GameControllerOpen(index)))
      pad.joystick = SDL_GameControllerGetJoystick(pad.controller);
    else
      pad.joystick = SDL_JoystickOpen(index);
    if (pad.joystick) pad.id = SDL_JoystickInstanceID(pad.joystick);
    return;
  }
}

// Handles pads plugged in or pulled out since the last poll.
void pump_events() {
  SDL_Event event;
  while (SDL_PollEvent(&event)) {
    if (event.type == SDL_JOYDEVICEADDED) open_device(event.jdevice.which);
    if (event.type == SDL_JOYDEVICEREMOVED)
      for (Pad& pad : Pads)
        if (pad.joystick && pad.id == event.jdevice.which) close_pad(pad);
  }
}

void read_controller(SDL_GameController* c, Plat_JoyPos* out) {
  out->x = axis_to_range(SDL_GameControllerGetAxis(c, SDL_CONTROLLER_AXIS_LEFTX));
  out->y = axis_to_range(SDL_GameControllerGetAxis(c, SDL_CONTROLLER_AXIS_LEFTY));
  if (SDL_GameControllerGetButton(c, SDL_CONTROLLER_BUTTON_DPAD_LEFT)) out->x = 0;
  if (SDL_GameControllerGetButton(c, SDL_CONTROLLER_BUTTON_DPAD_RIGHT)) out->x = 65535;
  if (SDL_GameControllerGetButton(c, SDL_CONTROLLER_BUTTON_DPAD_UP)) out->y = 0;
  if (SDL_GameControllerGetButton(c, SDL_CONTROLLER_BUTTON_DPAD_DOWN)) out->y = 65535;
  static constexpr SDL_GameControllerButton kButtons[] = {
      SDL_CONTROLLER_BUTTON_A, SDL_CONTROLLER_BUTTON_B, SDL_CONTROLLER_BUTTON_X,
      SDL_CONTROLLER_BUTTON_Y, SDL_CONTROLLER_BUTTON_START};
  out->buttons = 0;
  for (int b = 0; b < 4; ++b)
    if (SDL_GameControllerGetButton(c, kButtons[b])) out->buttons |= 1u << b;
  if (SDL_GameControllerGetButton(c, kButtons[4])) out->buttons |= 1u << 3;  // start = button 4
}

void read_joystick(SDL_Joystick* j, Plat_JoyPos* out) {
  out->x = SDL_JoystickNumAxes(j) > 0 ? axis_to_range(SDL_JoystickGetAxis(j, 0)) : 32767;
  out->y = SDL_JoystickNumAxes(j) > 1 ? axis_to_range(SDL_JoystickGetAxis(j, 1)) : 32767;
  if (SDL_JoystickNumHats(j) > 0) {
    const Uint8 hat = SDL_JoystickGetHat(j, 0);
    if (hat & SDL_HAT_LEFT) out->x = 0;
    if (hat & SDL_HAT_RIGHT) out->x = 65535;
    if (hat & SDL_HAT_UP) out->y = 0;
    if (hat & SDL_HAT_DOWN) out->y = 65535;
  }
  out->buttons = 0;
  const int count = SDL_JoystickNumButtons(j) < 32 ? SDL_JoystickNumButtons(j) : 32;
  for (int b = 0; b < count; ++b)
    if (SDL_JoystickGetButton(j, b)) out->buttons |= 1u << b;
}

}  // namespace

void Plat_JoyInit() {
  SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  if (SDL_InitSubSystem(SDL_INIT_JOYSTICK | SDL_INIT_GAMECONTROLLER) != 0) return;
  JoyReady = true;
  for (int i = 0; i < SDL_NumJoysticks(); ++i) open_device(i);
}

int Plat_JoyGetPos(int joystick, Plat_JoyPos* out) {
  if (!JoyReady || joystick < 1 || joystick > 2) return 1;
  if (joystick == 1) {  // once a frame: update the device state and hot-plug events
    SDL_GameControllerUpdate();
    pump_events();
  }
  const Pad& pad = Pads[joystick - 1];
  if (!pad.joystick) return 1;
  if (pad.controller) read_controller(pad.controller, out);
  else read_joystick(pad.joystick, out);
  return 0;
}
