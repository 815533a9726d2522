// The end of a round: the clock and time over, the closing set-up with its victory poses, and
// the match rules that choose what follows.
#include <cstring>

#include "audio/audio.h"
#include "camera/camera_fight.h"
#include "fight/fight.h"
#include "fight/fight_hit.h"
#include "fight/fight_ranking.h"
#include "fight/fight_round.h"
#include "fight/fight_state.h"
#include "render/render_effect.h"
#include "scenes/scenes.h"
#include "settings/settings.h"
#include "shell/shell.h"
#include "shell/shell_pacer.h"

namespace {

constexpr int kTimeOverFrames = 60;  // the time-over call runs this long before the verdict
constexpr int kLastStage = 11;       // computer opponents in a one-player run
constexpr int kLying = 50;

void to_mode(std::int32_t mode) { Shell.GameMode = mode; }

void clear_effects() {
  std::memset(Effects.Hit_Effect, 0, sizeof Effects.Hit_Effect);
  std::memset(Effects.Sparks, 0, sizeof Effects.Sparks);
  Clear_Projectiles();
  stop_launch(0);
  stop_launch(1);
}

// Both fighters settle for the victory: on the floor, no super, no effects.
void settle() {
  Match.frozen = 1;
  for (Fighter& f : fighters) {
    f.height = 0.0f;
    f.floored = 0;
  }
  Clear_SuperFlags();
  Match.light = 255;
  Match.flash_state = 0;
  Match.hit_stop = 0;
  clear_effects();
  Match.win_pose = frame_count % 3 + 2;
}

void enter_pose(int fighter, int action) {
  Fighter& f = fighters[fighter];
  f.action = action;
  f.frame = f.act_first[action];
}

// The winner into its victory pose and the loser onto the floor.
void victory_poses() {
  const int w = Match.winner;
  Fighter& winner = fighters[w];
  int pose = 12;
  if (Match.win_pose == 3) pose = 13;
  if (Match.win_pose == 4) pose = winner.wins % 2 == 0 ? 12 : 13;
  enter_pose(w, pose);
  if (Match.character[w] == 7 && pose == 12) Match.win_pose = 4;
  if (Match.character[w] == 4 && pose == 13) Match.win_pose = 3;
  winner.busy = 0;
  enter_pose(opponent(w), kLying);
  Match.win_pose_count = 1;  // the camera's win pose starts from its first frame
  FightCamera.program_frame = 0;
}

// A drawn last round: who takes the match, or false when both players lose it.
bool settle_draw() {
  Fighter& f0 = fighters[0];
  Fighter& f1 = fighters[1];
  const int r = Match.rounds_to_win;
  const bool won0 = f0.wins >= r, won1 = f1.wins >= r;
  if (won0 != won1) {
    Match.winner = won0 ? 0 : 1;
    return true;
  }
  if (Match.human[0] != Match.human[1]) {  // against the computer the human loses
    const int human = Match.human[0] ? 0 : 1;
    --fighters[human].wins;
    Match.winner = opponent(human);
    return true;
  }
  for (int side = 0; side < 2; ++side) {
    if (fighters[side].streak < 1) continue;
    --fighters[opponent(side)].wins;
    Match.winner = side;
    return true;
  }
  Match.human[0] = Match.human[1] = 0;
  Enter_StreakRanking(0);
  Enter_StreakRanking(1);
  Match.frozen = 0;
  to_mode(MODE_TITLE);
  Shell.TitleEnter = 1;
  return false;
}

// Fighter `loser` has lost the match.
void match_lost(int loser) {
  const int winner = opponent(loser);
  if (Match.human[winner] && Match.human[loser]) {
    ++fighters[winner].streak;
    Enter_StreakRanking(loser);
    Match.human[loser] = 0;
    to_mode(MODE_FIGHT_LOAD);
  } else if (Match.human[winner]) {
    ++Match.stage_count;
    to_mode(MODE_FIGHT_LOAD);
  } else {
    to_mode(MODE_CONTINUE);
    ContinueTimer = 0;
    Continue_Begin(loser);
    Enter_StreakRanking(loser);
  }
}

}  // namespace

void update_clock() {
  if (Match.clock_reset || Match.fight_call != 0 || Match.intro != -1) {
    Set_FrameRate(Settings_FrameRate());
    Match.clock = 0;
    Match.clock_reset = 0;
  } else {
    Match.clock += 2;
  }
  const bool out = Match.clock > Match.time_limit || Match.time_over;
  Match.clock_left = out ? 0 : Match.time_limit - Match.clock;
  if (Match.clock <= Match.time_limit) return;
  Match.clock_reset = 1;  // the clock stops
  Match.time_over = 1;
  Match.time_over_frames = 1;
  Play_Sound(SND_TIME_OVER);
  Clear_SuperFlags();
  if (Match.demo) {
    to_mode(MODE_TITLE);
    Shell.TitleEnter = 1;
  }
}

void resolve_time_over() {
  if (!Match.time_over) return;
  if (++Match.time_over_frames != kTimeOverFrames || Match.demo) return;
  Match.after_ko = 0;
  Match.after_ko_frames = 0;
  Match.time_over = 0;
  settle();
  Fighter& f0 = fighters[0];
  Fighter& f1 = fighters[1];
  if (f0.life != f1.life) {
    Match.winner = f0.life > f1.life ? 0 : 1;
    ++fighters[Match.winner].wins;
  } else {
    ++f0.wins;
    ++f1.wins;
    const int r = Match.rounds_to_win;
    if (f0.wins < r && f1.wins < r) {
      reset_round();
      return;
    }
    if (!settle_draw()) return;
  }
  victory_poses();
  fighters[Match.winner].perfect = 0;  // a time-over win is never perfect
  Match.ko_state = 2;
}

void Closing_Setup() {
  Match.after_ko = 0;
  Match.after_ko_frames = 0;
  Match.replay_state = 0;
  settle();
  victory_poses();
}

void Recentre_Camera() {
  const float mx = (fighters[0].pos_x + fighters[1].pos_x) * 0.5f;
  const float mz = (fighters[0].pos_z + fighters[1].pos_z) * 0.5f;
  FightCamera.target_x = FightCamera.look_x = mx;
  FightCamera.target_z = FightCamera.look_z = mz;
  FightCamera.distance = FightCamera.distance_target = OrbitDistance();
}

void end_round() {
  const int r = Match.rounds_to_win;
  if (Match.demo) {
    to_mode(MODE_TITLE);
    Shell.TitleEnter = 1;
    return;
  }
  if (fighters[0].wins < r && fighters[1].wins < r) {
    reset_round();
    return;
  }
  match_lost(fighters[1].wins >= r ? 0 : 1);
  if (Match.stage_count == kLastStage) {
    to_mode(MODE_ENDING);
    Shell.EndingEnter = 1;
  }
}
