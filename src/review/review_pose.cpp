// Content review: one fighter of the data set drawn by the game's own placement, shadow, chain
// and mesh passes, seen from the side as the fight sees it, held in the middle of the picture.
#include "review/review.h"

#include <cstdio>
#include <cstdlib>

#include "assets/asset_anim.h"
#include "assets/asset_character.h"
#include "assets/asset_image.h"
#include "camera/camera_fight.h"
#include "fight/fight_state.h"
#include "platform/headless/headless.h"
#include "platform/platform.h"
#include "render/render_chain.h"
#include "render/render_fighter.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "shell/shell.h"

namespace {

constexpr int kPlayer = 0;
constexpr int kSettleFrames = 16;  // frames run before the shown one, so the chains hang right
constexpr std::uint8_t kBackground[3] = {150, 160, 172};

bool has_frames(const Fighter& f, int action) {
  if (action < 0 || action >= MAX_ACTIONS) return false;
  const int first = f.act_first[action], last = f.act_last[action];
  return first >= 1 && first <= last && last < MAX_FRAMES;
}

void place_at(int frame) {
  fighters[kPlayer].frame = frame;
  Pose_Fighter(kPlayer);
  Set_View();
  Place_Fighter(kPlayer);
}

}  // namespace

// The posture flags the fight would have set for the action: crouching for the crouching
// idle, walk, guard and attacks.
void Review_Posture(int player, int action, float x, int yaw) {
  Fighter& f = fighters[player];
  f.action = action;
  f.crouching = (action >= 32 && action <= 35) || (action >= 37 && action <= 40);
  f.busy = f.reacting = f.rise_flag = 0;
  f.height = 0.0f;
  f.pos_x = x;
  f.pos_z = 0.0f;
  f.pos_y = 3.2f;
  f.yaw = f.face_yaw = yaw;
  f.track_x0 = x;
  f.track_z0 = 0.0f;
  f.extra_angle[0] = f.extra_angle[1] = f.extra_angle[2] = 0;
}

bool Review_Begin() {
  if (!Plat_OpenWindow("Valdrune review")) {
    std::fprintf(stderr, "valdrune-headless: no off-screen GL context\n");
    return false;
  }
  Set_FixedGLState();
  Window_Reshape(HEADLESS_WIDTH, HEADLESS_HEIGHT);
  Build_SinCosTables();
  Build_AngleTables();
  if (!Load_PreloadFA("PRELOAD.FA")) {
    std::fprintf(stderr, "valdrune-headless: cannot read PRELOAD.FA in the data directory\n");
    return false;
  }
  Shell.GameMode = MODE_FIGHT;
  return true;
}

bool Review_LoadRow(int row) {
  if (row < 0 || row >= CHARACTER_ROWS) return false;
  Reset_Textures();
  reset_match_fighters();
  Reset_Attachments(kPlayer);
  select_slot[kPlayer] = row;
  Match.character[kPlayer] = row % CHARACTERS;
  return Load_Character(kPlayer);
}

int Review_StrikeFrame(int action) {
  const Fighter& f = fighters[kPlayer];
  if (!has_frames(f, action)) return -1;
  const int first = f.act_first[action], last = f.act_last[action];
  for (int fr = first; fr <= last; ++fr)
    if (f.frame_part[fr] >= 2) return fr - first;
  return (last - first) / 2;
}

bool Review_Draw(int action, int frame) {
  Fighter& f = fighters[kPlayer];
  if (!has_frames(f, action)) return false;
  const int first = f.act_first[action], last = f.act_last[action];
  int shown = first + (frame < 0 ? 0 : frame);
  if (shown > last) shown = last;
  Review_Posture(kPlayer, action, 0.0f, 90);
  FightCamera = FightCameraState{};
  Shake.Shake_Index = 0;
  Reset_Attachments(kPlayer);
  for (int fr = shown - kSettleFrames < first ? first : shown - kSettleFrames; fr < shown; ++fr) {
    place_at(fr);
    Update_Attachments(kPlayer);
  }
  place_at(shown);
  FightCamera.look_x = Draw.Body_Centre[kPlayer][0];  // root motion may have carried it off
  FightCamera.look_z = Draw.Body_Centre[kPlayer][2];
  place_at(shown);
  Update_Attachments(kPlayer);
  Clear_Screen(kBackground[0], kBackground[1], kBackground[2]);
  Clear_Depth();
  Draw_Shadow(kPlayer);
  Draw_Mesh(kPlayer);
  Swap_Buffers();
  return true;
}

bool Review_ParsePose(const char* text, int* row, int* action, int* frame) {
  int consumed = 0;
  if (std::sscanf(text, "%d:%d:%d%n", row, action, frame, &consumed) != 3) return false;
  if (text[consumed] != '\0') return false;
  return *row >= 0 && *row < CHARACTER_ROWS && *action >= 0 && *action < MAX_ACTIONS &&
         *frame >= 0 && *frame < MAX_FRAMES;
}

int Review_Pose(int row, int action, int frame, const char* out) {
  if (!Review_Begin() || !Review_LoadRow(row)) return 1;
  if (!Review_Draw(action, frame)) {
    std::fprintf(stderr, "valdrune-headless: character row %d has no frames for action %d\n",
                 row, action);
    return 1;
  }
  if (!Headless_WritePng(out)) {
    std::fprintf(stderr, "valdrune-headless: cannot write %s\n", out);
    return 1;
  }
  return 0;
}
