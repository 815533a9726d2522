// Fighter record and match state: match and round starts.
#include <gtest/gtest.h>

#include "fight/fight_state.h"

namespace {

// A fighter in the middle of a fight: flags, effects and a pending link all set.
void dirty(Fighter& f) {
  f.life = 12, f.damage = 30, f.drain_delay = 4, f.perfect = 0, f.combo = 3;
  f.action = 180, f.frame = 4000, f.stance = 23, f.height = 2.5f;
  f.busy = f.floored = f.hit_power = 1, f.move_dx = 0.38f, f.loop_count = 7, f.air_timer = -20;
  f.queued = 1, f.part_fx_on[19] = 1;
  f.rot_x = 30, f.yaw = 45, f.face_yaw = 200, f.extra_angle[1] = 12, f.pos_x = 20, f.pos_y = 9;
  f.gauge = 250, f.wins = 1, f.streak = 4;
}

TEST(RoundStart, BothFightersStartInTheirCorners) {
  Match.life_setting = 3;
  for (int i = 0; i < 2; ++i) {
    dirty(fighters[i]);
    fighters[i].act_first[0] = 17 + i;
  }
  reset_round();
  for (int i = 0; i < 2; ++i) {
    SCOPED_TRACE(i);
    const Fighter& f = fighters[i];
    EXPECT_EQ(f.life, 103);
    EXPECT_EQ(f.damage + f.drain_delay + f.combo + f.action + f.stance, 0);
    EXPECT_EQ(f.perfect, 1);
    EXPECT_EQ(f.frame, 17 + i);  // the first frame of this fighter's idle
    EXPECT_EQ(f.air_timer, 1);
    EXPECT_EQ(f.busy + f.floored + f.hit_power + f.loop_count + f.queued + f.part_fx_on[19], 0);
    EXPECT_EQ(f.move_dx, 0.0f);
    EXPECT_EQ(f.height, 0.0f);
    EXPECT_FLOAT_EQ(f.pos_x, i == 0 ? -5.0f : 5.0f);
    EXPECT_FLOAT_EQ(f.pos_y, 3.2f);
    EXPECT_EQ(f.yaw, i == 0 ? 90 : 270);
    EXPECT_EQ(f.face_yaw, f.yaw);
    EXPECT_EQ(f.rot_x + f.extra_angle[1], 0);
    // Carried across rounds.
    EXPECT_EQ(f.gauge, 250);
    EXPECT_EQ(f.wins + f.streak, 5);
  }
  Match.life_setting = 1;
  reset_round();
  EXPECT_EQ(fighters[1].life, 75);
  Match.life_setting = 2;
  reset_round();
  EXPECT_EQ(fighters[0].life, 85);
}

TEST(RoundStart, MatchStateAndIntroVariant) {
  Match.ko_state = 1, Match.frozen = 1, Match.hit_stop = 5, Match.flash_state = 3;
  Match.light = 40, Match.side_a = 1, Match.side_b = 0, Match.time_rank = 2;
  Match.reverse[1] = 1, Match.after_ko = 1, Match.after_ko_frames = 50;
  Match.demo = 0;
  fighters[0].wins = fighters[1].wins = 0;
  reset_round();
  EXPECT_EQ(Match.intro, 2);  // a match's first round
  EXPECT_EQ(Match.ko_state + Match.frozen + Match.hit_stop + Match.flash_state, 0);
  EXPECT_EQ(Match.light, 255);
  EXPECT_EQ(Match.side_a, 0);
  EXPECT_EQ(Match.side_b, 1);
  EXPECT_EQ(Match.time_rank + Match.reverse[1] + Match.after_ko + Match.after_ko_frames, 0);
  fighters[1].wins = 1;
  for (int count : {1234, 1235}) {
    frame_count = count;
    reset_round();
    EXPECT_EQ(Match.intro, count % 2);
  }
  fighters[1].wins = 0;
  Match.demo = 1;
  frame_count = 7;
  reset_round();
  EXPECT_EQ(Match.intro, 1);
  Match.demo = 0;
}

TEST(MatchStart, GaugeStartsAtOneHundredAndModelDataIsCleared) {
  for (Fighter& f : fighters) {
    f.gauge = 0, f.gauge_spend = 40, f.model_flag = 1;
    for (Attachment& a : f.attach) a.present = 1, a.last_point = 3;
  }
  reset_match_fighters();
  for (const Fighter& f : fighters) {
    EXPECT_EQ(f.gauge, 100);
    EXPECT_EQ(f.gauge_spend, 0);
    EXPECT_EQ(f.model_flag, 0);
    for (const Attachment& a : f.attach) {
      EXPECT_EQ(a.present, 0);
      EXPECT_EQ(a.last_point, 3);  // highest point numbers are kept
    }
  }
}

}  // namespace
