// Throw and hold pairs: the thrower and its victim drawn together in one picture, a strip of
// frames across the throw, each fighter in its own action and placed where the fight places
// it: face to face on the line, as close as the fighters stand once they have walked into each
// other, each posed from its own frame tables so that the hands, the bodies and the landing show
// as a player sees them.
#include <sys/stat.h>

#include <cstdio>

#include "assets/asset_anim.h"
#include "assets/asset_character.h"
#include "assets/asset_image.h"
#include "camera/camera_fight.h"
#include "fight/fight.h"
#include "fight/fight_moves.h"
#include "fight/fight_state.h"
#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "render/render_chain.h"
#include "render/render_fighter.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "review/review.h"

namespace {

constexpr int kThrower = 0, kVictim = 1;
constexpr float kApart = 4.0f;    // root to root: the fight pushes closer fighters apart to this
constexpr int kCells = 12;        // frames in a strip
constexpr int kSettleFrames = 16; // frames run before a shown one, so the chains hang right
constexpr std::uint8_t kBackground[3] = {150, 160, 172};
constexpr int kFirstHold = 340, kLastHold = 409, kHeldOffset = 70;

bool has_frames(const Fighter& f, int action) {
  if (action < 0 || action >= MAX_ACTIONS) return false;
  const int first = f.act_first[action], last = f.act_last[action];
  return first >= 1 && first <= last && last < MAX_FRAMES;
}

bool is_throw(int action) { return action == 80 || action == 81; }
bool is_hold(int action) { return action >= kFirstHold && action <= kLastHold; }

// The reaction the fight puts the victim in when `character` starts `action`: the throw table
// for the two throws; for a hold the grab, command-throw or forced-reaction row that names it,
// else the held reaction paired with every hold.
int victim_action(int character, int action) {
  if (is_throw(action)) return thrown_reaction(character, action);
  for (const HitGrab& g : HitGrab_Table)
    if ((g.characters & (1u << character)) && g.hold == action) return g.held;
  for (const CommandThrow& t : CommandThrow_Table)
    if (t.character == character && t.hold == action) return t.held;
  for (const ForcedReaction& r : ForcedReaction_Table)
    if (r.hold == action) return r.held;
  return action + kHeldOffset;
}

bool load_pair(int thrower, int victim) {
  Reset_Textures();
  reset_match_fighters();
  for (int p = 0; p < 2; ++p) Reset_Attachments(p);
  select_slot[kThrower] = thrower;
  select_slot[kVictim] = victim;
  Match.character[kThrower] = thrower % CHARACTERS;
  Match.character[kVictim] = victim % CHARACTERS;
  return Load_Character(kThrower) && Load_Character(kVictim);
}

// Frame `step` of each fighter's action (held on the action's last frame), posed and placed.
void place_both(const int action[2], int step) {
  for (int p = 0; p < 2; ++p) {
    Fighter& f = fighters[p];
    const int shown = f.act_first[action[p]] + step;
    f.frame = shown > f.act_last[action[p]] ? f.act_last[action[p]] : shown;
    Pose_Fighter(p);
  }
  Set_View();
  for (int p = 0; p < 2; ++p) Place_Fighter(p);
}

void draw_step(const int action[2], int step) {
  Review_Posture(kThrower, action[kThrower], -kApart / 2, 90);
  Review_Posture(kVictim, action[kVictim], kApart / 2, 270);
  FightCamera = FightCameraState{};  // side on, looking at the middle of the line
  Shake.Shake_Index = 0;
  for (int p = 0; p < 2; ++p) Reset_Attachments(p);
  for (int s = step - kSettleFrames < 0 ? 0 : step - kSettleFrames; s < step; ++s) {
    place_both(action, s);
    for (int p = 0; p < 2; ++p) Update_Attachments(p);
  }
  place_both(action, step);
  for (int p = 0; p < 2; ++p) Update_Attachments(p);
  Clear_Screen(kBackground[0], kBackground[1], kBackground[2]);
  Clear_Depth();
  for (int p = 0; p < 2; ++p) Draw_Shadow(p);
  for (int p = 0; p < 2; ++p) Draw_Mesh(p);
  Swap_Buffers();
}

// The strip of one pair on the rows already loaded; false when either side has no frames.
bool strip(int action, const char* out) {
  const int character = select_slot[kThrower] % CHARACTERS;
  const int pair[2] = {action, victim_action(character, action)};
  if (!has_frames(fighters[kThrower], pair[0]) || !has_frames(fighters[kVictim], pair[1])) return false;
  const int length = fighters[kThrower].act_last[action] - fighters[kThrower].act_first[action] + 1;
  Review_CellsClear();
  for (int n = 0; n < kCells; ++n) {
    const int step = n * (length - 1) / (kCells - 1);
    draw_step(pair, step);
    Review_CellPut(n, action, step);
  }
  if (!Review_CellsWrite(out, kCells)) {
    std::fprintf(stderr, "valdrune-headless: cannot write %s\n", out);
    return false;
  }
  std::printf("%s: %d with %d\n", out, pair[0], pair[1]);
  return true;
}

// The throws and holds a character's own tables give it frames for.
bool own_pair_action(const Fighter& f, int action) {
  if (is_throw(action)) return has_frames(f, action);
  return is_hold(action) && has_frames(f, action) && f.act_first[action] > f.last_shared_frame;
}

}  // namespace

bool Review_ParsePair(const char* text, int* thrower, int* victim, int* action) {
  int consumed = 0;
  if (std::sscanf(text, "%d:%d:%d%n", thrower, victim, action, &consumed) != 3) return false;
  if (text[consumed] != '\0') return false;
  return *thrower >= 0 && *thrower < CHARACTER_ROWS && *victim >= 0 && *victim < CHARACTER_ROWS &&
         (is_throw(*action) || is_hold(*action));
}

int Review_Pair(int thrower, int victim, int action, const char* out) {
  if (!Review_Begin() || !load_pair(thrower, victim)) return 1;
  if (!strip(action, out)) {
    std::fprintf(stderr, "valdrune-headless: rows %d and %d have no frames for the pair of action %d\n",
                 thrower, victim, action);
    return 1;
  }
  return 0;
}

int Review_Pairs(const char* out_dir) {
  mkdir(out_dir, 0755);  // one that is already there is fine; a failure shows when writing
  if (!Review_Begin()) return 1;
  int written = 0;
  for (int c = 0; c < CHARACTERS; ++c) {
    if (!load_pair(c, (c + 1) % CHARACTERS)) return 1;
    for (int a = 80; a <= kLastHold; ++a) {
      if (!own_pair_action(fighters[kThrower], a)) continue;
      const int reaction = victim_action(c, a);
      char path[1024];
      std::snprintf(path, sizeof path, "%s/pair-%02d-%03d-%03d.png", out_dir, c, a, reaction);
      if (strip(a, path)) ++written;
    }
  }
  return written > 0 ? 0 : 1;
}
