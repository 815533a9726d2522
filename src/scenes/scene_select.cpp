// Character select: each side a person plays moves its cursor over the characters and
// confirms with an attack button; an empty side can be joined with start. When both sides
// are settled the match is prepared. A 20-second count-down confirms for latecomers.
#include "audio/audio.h"
#include "fight/fight_state.h"
#include "hud/hud_screens.h"
#include "input/input.h"
#include "render/render_state.h"
#include "scenes/scene_pictures.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"
#include "shell/shell_prepare.h"

std::int32_t select_done[2] = {0, 0};
SelectState Select;

namespace {

constexpr int kSlide = 5;
constexpr int kConfirmFrames = 60;
constexpr int kNameCallCharacters = 10;  // characters with a name call of their own
constexpr int kLeaveFrames = 2;

// After side p's slot changed: the same slot as the other side's takes the other colours.
void clash_rule(int p) {
  std::int32_t& slot = select_slot[p];
  if (slot != select_slot[opponent(p)]) return;
  slot = slot >= SECOND_COLOURS ? slot % SECOND_COLOURS : slot + SECOND_COLOURS;
}

void slide_toward_zero(int p) {
  std::int32_t& d = Select.SelectSlide[p];
  if (d > 0) --d;
  else if (d < 0) ++d;
}

// An empty side: settled, unless a player joins it with start.
void empty_side(int p) {
  select_done[p] = 1;
  PlayerInput& in = Players[p];
  if (in.start_pressed < 1 || Match.credits < 1) return;
  in.start_pressed = 0;
  Play_Sound(SND_START);
  --Match.credits;
  Select.SelectLeaveCount = 0;
  select_done[p] = 0;
  Match.human[p] = 1;
  select_slot[p] = 9;
  clash_rule(p);
  Select.SelectTimer = SELECT_SECONDS;
  Second_Tick(0);
}

void move_cursor(int p, int step) {
  const PlayerInput& in = Players[p];
  if (in.left_tap <= 0 && in.right_tap <= 0) return;
  const int count = Select.CharacterCount;
  std::int32_t& slot = select_slot[p];
  Select.SelectPrevious[p] = Match.character[p];
  Play_Sound(SND_CURSOR);
  if (step < 0) {
    Select.SelectSlide[p] = kSlide;
    --slot;
    if (slot < 0 || slot % SECOND_COLOURS >= count) slot = count - 1;
  } else {
    Select.SelectSlide[p] = -kSlide;
    ++slot;
    if (slot % SECOND_COLOURS == count) slot = 0;
  }
  clash_rule(p);
}

// Holding up chooses the second colours; the other side's slot is never taken.
void choose_colours(int p) {
  std::int32_t& slot = select_slot[p];
  const std::int32_t other = select_slot[opponent(p)];
  if (Players[p].up == 0) {
    if (slot >= SECOND_COLOURS) {
      slot -= SECOND_COLOURS;
      if (slot == other) slot += SECOND_COLOURS;
    }
  } else if (slot < SECOND_COLOURS) {
    slot += SECOND_COLOURS;
    if (slot == other) slot -= SECOND_COLOURS;
  }
}

bool any_attack_pressed(const PlayerInput& in) {
  return in.attack1_pressed || in.attack2_pressed || in.attack3_pressed || in.attack4_pressed;
}

void confirm(int p) {
  const int c = select_slot[p] % SECOND_COLOURS;
  Play_Sound(c < kNameCallCharacters ? SND_NAME_CALL + c : SND_EXTRA_NAME);
  Select.SelectConfirmFrames[p] = kConfirmFrames;
  select_done[p] = 1;
  Match.human[p] = 1;
  Shell.WhiteFrames = 1;
}

void choosing_side(int p) {
  const PlayerInput& in = Players[p];
  if (in.left_tap > 0)
    move_cursor(p, -1);
  else if (in.right_tap > 0)
    move_cursor(p, +1);
  choose_colours(p);
  if (any_attack_pressed(in) || Select.SelectTimer < 0) confirm(p);
}

}  // namespace

void Select_Enter() {
  Select.SelectLeaveCount = 0;
  Select.SelectTimer = SELECT_SECONDS;
  Select.SelectSlide[0] = Select.SelectSlide[1] = 0;
  Music_PlayTrack(TRACK_SELECT);
  Input_Clear(0);
  Input_Clear(1);
  Shell.WhiteFrames = 0;
  Set_FrameRate(65);
  for (int p = 0; p < 2; ++p)
    if (Match.human[p] == 0) select_slot[p] = SLOT_NOBODY;
  // The boss is never chosen: a side that last played it starts over.
  if (Match.character[0] == BOSS_CHARACTER) {
    Match.character[0] = 0;
    select_slot[0] = 0;
  }
  if (Match.character[1] == BOSS_CHARACTER) {
    Match.character[1] = 9;
    select_slot[1] = 0;
  }
  Select.CharacterCount = Settings.extra_characters == 1 ? SELECT_EXTRA : SELECT_BASE;
  Load_SelectPictures();
  Set_FrameRate(65);
  Second_Tick(0);
}

void Select_Update() {
  if (Second_Tick(1) == 1) --Select.SelectTimer;
  for (int p = 0; p < 2; ++p) {
    slide_toward_zero(p);
    Input_Clear(p);
    Input_Read(p);
    if (Match.human[p] == 0) {
      empty_side(p);  // a side joined now shows its character from the next frame
      continue;
    }
    if (select_done[p] == 0) choosing_side(p);
    Match.character[p] = select_slot[p] % SECOND_COLOURS;
  }
  if (select_done[0] == 1 && select_done[1] == 1 &&
      ++Select.SelectLeaveCount == kLeaveFrames) {
    Shell.GameMode = MODE_FIGHT_LOAD;
    Music_Stop();
  }
}

void Select_Draw() {
  if (Select.SelectTimer < 0) Select.SelectTimer = 0;
  if (Shell.WhiteFrames == 1) {
    Shell.WhiteFrames = 0;
    Clear_Screen(255, 255, 255);
  } else {
    Clear_Screen(0, 0, 0);
    Clear_Depth();
    Set_DrawMode(42);
    DrawCharacterSelect(Select.SelectTimer);
  }
  Swap_Buffers();
}

void Select_Scene() {
  if (Shell.SelectEnter == 1) {
    Shell.SelectEnter = 0;
    Select_Enter();
  }
  Select_Update();
  Select_Draw();
}
