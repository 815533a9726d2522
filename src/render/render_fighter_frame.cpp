// The fight's character pass and the flexible part's swing.
#include "fight/fight_state.h"
#include "render/render_chain.h"
#include "render/render_effect.h"
#include "render/render_fighter.h"
#include "shell/shell.h"

namespace {

constexpr int kLyingAction = 50;
constexpr int kAfterKoFrames = 50;
constexpr int kFlexMaxStep = 9;
constexpr int kFlexFarthest = 110, kFlexBackmost = -30;
constexpr int kFlexLossForward = 7, kFlexLossBack = 13;
constexpr int kFlexDies = 30;

bool valid_player(int player) { return player == 0 || player == 1; }

// The character pass runs drawn or, for a frame stepped without drawing, with the shadows and
// meshes left out; everything else the pass does (placement, chains, the impact timer each
// mesh runs down, the loser held lying, the effects) happens the same way in both.
void place(int player, bool drawn) {
  Place_Fighter(player);
  if (drawn) Draw_Shadow(player);
}

void mesh(int player, bool drawn) {
  if (drawn)
    Draw_Mesh(player);
  else
    Run_ImpactTimer();
}

void effects(bool drawn) {
  if (drawn)
    Draw_Effects();
  else
    Step_Effects();
}

// The whole of one fighter, its chains first (they then match this frame's pose).
void alone(int player, bool drawn) {
  Update_Attachments(player);
  place(player, drawn);
  mesh(player, drawn);
}

// The ordinary fight: both placed first, both meshes, then the chains (whose matrices the
// meshes took from the previous frame).
bool ordinary_fight() {
  const bool ko_over = Match.after_ko != 0 && Match.after_ko_frames >= kAfterKoFrames;
  return !ko_over && Match.intro == -1 && Match.fight_call == 0 && Match.demo != 1;
}

// While the winner poses, the beaten fighter lies still, whatever its own action did.
void hold_loser_lying(int winner) {
  Fighter& loser = fighters[opponent(winner)];
  loser.action = kLyingAction;
  loser.frame = loser.act_first[kLyingAction];
}

void character_pass(bool drawn) {
  for (int p = 0; p < 2; ++p)
    if (fighters[p].model_flag) Step_Flex(p);
  if (Shell.GameMode == MODE_CONTINUE) {
    const int loser = opponent(Match.winner == 1 ? 1 : 0);
    place(loser, drawn);
    mesh(loser, drawn);
    Update_Attachments(loser);
    effects(drawn);
    return;
  }
  if (Match.win_pose_count >= 1) {
    const int winner = Match.winner == 1 ? 1 : 0;
    hold_loser_lying(winner);
    alone(winner, drawn);
    return;  // no effects during the win pose
  }
  if (ordinary_fight()) {
    place(0, drawn);
    place(1, drawn);
    mesh(0, drawn);
    mesh(1, drawn);
    Update_Attachments(0);
    Update_Attachments(1);
  } else {
    Update_Attachments(0);
    place(0, drawn);
    Update_Attachments(1);
    place(1, drawn);
    mesh(0, drawn);
    mesh(1, drawn);
  }
  effects(drawn);
}

}  // namespace

void Draw_Fighters() { character_pass(true); }

void Step_Fighters() { character_pass(false); }

void Start_Flex(int player, int strength, int direction) {
  if (!valid_player(player)) return;
  Draw.flex_amp[player] = strength == 2 ? 70 : (strength == 3 ? 80 : 60);
  Draw.flex_dir[player] = direction;
  Draw.flex_pos[player] = 0;
}

void Step_Flex(int player) {
  if (!valid_player(player)) return;
  std::int32_t& amp = Draw.flex_amp[player];
  std::int32_t& pos = Draw.flex_pos[player];
  std::int32_t& dir = Draw.flex_dir[player];
  if (amp > 0) {
    const int step = amp / 9 < kFlexMaxStep ? amp / 9 : kFlexMaxStep;
    if (dir == 1) {
      const int turn = amp < kFlexFarthest ? amp : kFlexFarthest;
      pos += step;
      if (pos > turn) {
        pos = turn;
        dir = -1;
        amp -= kFlexLossForward;
      }
    } else if (dir == -1) {
      const int turn = -amp > kFlexBackmost ? -amp : kFlexBackmost;
      pos -= step;
      if (pos < turn) {
        pos = turn;
        dir = 1;
        amp -= kFlexLossBack;
      }
    }
  }
  if (amp < kFlexDies && ((pos >= 0 && dir == 1) || (pos <= 0 && dir == -1))) {
    amp = 0;
    pos = 0;
  }
}
