#include "fight/fight_state.h"

#include <cstddef>
#include <cstring>

#include "camera/camera_fight.h"
#include "cpu/cpu.h"
#include "fight/fight.h"
#include "render/render_effect.h"
#include "shell/shell.h"

MatchState Match;
std::int32_t frame_count = 0;
std::int32_t select_slot[2] = {0, 9};
Fighter fighters[2];

namespace {

// Round-start corners: fighter 0 on the left facing +x, fighter 1 on the right facing -x.
struct Corner {
  float x;
  std::int32_t yaw;
};
constexpr Corner kCorners[2] = {
    {-5.0f, 90},   // fighter 0
    {5.0f, 270},   // fighter 1
};
constexpr float kStandY = 3.2f;

// The fight flags and hit data run from root_track up to air_timer in record order; a round
// start clears them all at once.
static_assert(offsetof(Fighter, root_track) < offsetof(Fighter, air_timer));
static_assert((offsetof(Fighter, air_timer) - offsetof(Fighter, root_track)) %
                  sizeof(std::int32_t) ==
              0);

void clear_fight_flags(Fighter& f) {
  auto* first = reinterpret_cast<unsigned char*>(&f.root_track);
  auto* end = reinterpret_cast<unsigned char*>(&f.air_timer);
  std::memset(first, 0, static_cast<std::size_t>(end - first));  // floats too: 0 is 0.0f
  f.queued = 0;
  f.queued_action = 0;
}

void reset_fighter(int i) {
  Fighter& f = fighters[i];
  f.height = 0.0f;
  f.life = Start_Life(Match.life_setting);
  f.damage = 0;
  f.drain_delay = 0;
  f.perfect = 1;
  f.action = 0;
  f.frame = f.act_first[0];
  f.stance = 0;
  clear_fight_flags(f);
  f.air_timer = 1;
  f.combo = 0;
  f.combo_show = 0;
  std::memset(f.part_fx_on, 0, sizeof f.part_fx_on);
  std::memset(f.part_fx_phase, 0, sizeof f.part_fx_phase);
  std::memset(f.part_fx_kind, 0, sizeof f.part_fx_kind);
  std::memset(f.part_fx_hold, 0, sizeof f.part_fx_hold);
  f.pos_x = kCorners[i].x;
  f.pos_y = kStandY;
  f.pos_z = 0.0f;
  f.yaw = f.face_yaw = kCorners[i].yaw;
  f.rot_x = f.rot_z = 0;
  f.extra_angle[0] = f.extra_angle[1] = f.extra_angle[2] = 0;
}

}  // namespace

std::int32_t Start_Life(std::int32_t life_setting) {
  if (life_setting == 1) return 75;
  if (life_setting == 2) return 85;
  return 103;
}

void reset_match_fighters() {
  for (Fighter& f : fighters) {
    f.gauge = 100;
    f.gauge_spend = 0;
    f.model_flag = 0;
    for (Attachment& a : f.attach) a.present = 0;
  }
}

void reset_round() {
  reset_fighter(0);
  reset_fighter(1);
  const bool later_round = fighters[0].wins > 0 || fighters[1].wins > 0 || Match.demo == 1;
  Match.intro = later_round ? frame_count % 2 : 2;
  Reset_FightCamera();  // and the sweep that opens the round
  Match.ko_state = 0;
  Match.after_ko = 0;
  Match.after_ko_frames = 0;
  Match.frozen = 0;
  Match.time_over = 0;
  Match.replay_state = 0;
  Match.hit_stop = 0;
  Match.flash_state = 0;
  Match.light = 255;
  Match.side_a = 0;
  Match.side_b = 1;
  Match.time_rank = 0;
  Match.reverse[0] = Match.reverse[1] = 0;
  CpuRoundStart();
  Match.first_strike = Match.first_strike_frame = 0;
  Match.reversal = Match.reversal_frame = 0;
  Clear_Projectiles();  // body-part effects went with each fighter's reset
  reset_spacing();
  Shell.SkipPresent = 1;  // the round's first picture is drawn but not shown
}
