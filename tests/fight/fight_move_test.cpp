// Movement, facing and spacing: walking speed and the 4.0 the fighters keep apart, a jump
// over the opponent and the change of sides, the arena's edge and its moving centre,
// knock-back, and the root synchronisation.
#include <cmath>

#include "fight_fixture.h"

namespace {

using fightfix::FightTest;
using fightfix::kKeys;

using MoveTest = FightTest;


TEST_F(MoveTest, FightersWalkInAndStopFourApart) {
  Headless_SetKey(kKeys[0].right, true);
  Headless_SetKey(kKeys[1].left, true);
  float last0 = fighters[0].pos_x, last1 = fighters[1].pos_x;
  for (int k = 0; k < 8; ++k) {  // free walking
    step();
    EXPECT_NEAR(fighters[0].pos_x - last0, 0.24f, 1e-4f) << "frame " << k;
    EXPECT_NEAR(last1 - fighters[1].pos_x, 0.24f, 1e-4f) << "frame " << k;
    last0 = fighters[0].pos_x, last1 = fighters[1].pos_x;
  }
  steps(60);
  EXPECT_NEAR(fighters[1].pos_x - fighters[0].pos_x, 4.0f, 0.01f);
  EXPECT_NEAR(fighters[0].pos_x, -fighters[1].pos_x, 0.01f);  // each pushed half
  EXPECT_EQ(fighters[0].action, 1);
  Headless_ResetInput();
  steps(2);
  EXPECT_EQ(fighters[0].action, 22);
}

TEST_F(MoveTest, WalkingBackIsSlowerAndGuardsAgainstALiveAttack) {
  Headless_SetKey(kKeys[0].left, true);
  const float x0 = fighters[0].pos_x;
  steps(10);
  EXPECT_NEAR(fighters[0].pos_x - x0, -2.0f, 1e-3f);
  EXPECT_EQ(fighters[0].action, 2);
  fighters[1].act_last[210] = fighters[1].act_first[210] + 40;
  start_action(1, 210, 1);  // the opponent's kick is live and close
  step();
  EXPECT_EQ(fighters[0].action, 8);
  EXPECT_EQ(fighters[0].guarding, 1);
  int held = 0;
  for (int k = 0; k < 10; ++k) {
    fighters[1].hit_live = 1;
    const int before = fighters[0].frame;
    step();
    if (fighters[0].frame == before) ++held;
  }
  EXPECT_EQ(fighters[0].action, 8);
  EXPECT_GE(held, 6);  // the guard pose is held while the key is
  Headless_ResetInput();
}

TEST_F(MoveTest, JumpOverTheOpponentChangesSidesOnceBothFacingsFlip) {
  fighters[0].pos_x = -2.5f;
  fighters[1].pos_x = 2.5f;
  fightfix::draw();
  Headless_SetKey(kKeys[0].up, true);
  Headless_SetKey(kKeys[0].right, true);
  step();
  Headless_ResetInput();
  int swapped_at = -1, crossed_at = -1;
  for (int k = 1; k < 60 && swapped_at < 0; ++k) {
    step();
    if (crossed_at < 0 && fighters[0].pos_x > fighters[1].pos_x) crossed_at = k;
    if (Match.side_a == 1) {
      swapped_at = k;
      EXPECT_EQ(fighters[0].face_yaw, 270);
      EXPECT_EQ(fighters[1].face_yaw, 90);
    }
  }
  EXPECT_GT(crossed_at, 0);
  EXPECT_GE(swapped_at, crossed_at);
  EXPECT_EQ(Match.side_b, 0);
  EXPECT_GT(fighters[0].pos_x, fighters[1].pos_x);  // not pushed back while passing over
  steps(40);
  EXPECT_EQ(fighters[0].yaw, 270);  // both turned round to face again
  EXPECT_EQ(fighters[1].yaw, 90);
}

TEST_F(MoveTest, ArenaCentreFollowsAThrownFighter) {
  Fighter& f = fighters[1];
  f.pos_x = 27.0f;
  fighters[0].pos_x = 20.0f;
  f.busy = 1;
  fightfix::draw();
  move_step();
  EXPECT_NEAR(Spacing.centre_x, 27.25f - 25.0f, 1e-3f);  // the circle reaches the body point
  EXPECT_FLOAT_EQ(f.pos_x, 27.0f);
  f.busy = 0;  // a fighter on its feet is held back by the edge instead
  f.pos_x = 29.0f;
  fightfix::draw();
  const float centre = Spacing.centre_x;
  move_step();
  EXPECT_FLOAT_EQ(Spacing.centre_x, centre);
  EXPECT_NEAR(f.pos_x, 29.0f - (29.25f - centre - 25.0f), 1e-3f);
}

TEST_F(MoveTest, KnockBackPushesAwayFromTheOpponent) {
  Fighter& f = fighters[1];
  f.act_last[150] = f.act_first[150] + 30;
  start_action(1, 150, 1);
  f.knock_force = 10;
  f.reel_frames = 14;
  const float x0 = f.pos_x;
  steps(14);
  float expected = 0;
  const float table[15] = {0, 0, 0, 0, 0, 0.00195f, 0.0039f, 0.00781f, 0.0025f, 0.05f, 0.075f, 0.125f, 0.25f, 0.5f, 0.5f};
  for (int r = 1; r <= 14; ++r) expected += 10 * table[r] * 0.2f;
  EXPECT_NEAR(f.pos_x - x0, expected, 1e-3f);
  EXPECT_EQ(f.reel_frames, 0);
}

TEST_F(MoveTest, RootSynchronisationKeepsTheFightersOnOneLine) {
  Fighter& f = fighters[0];
  f.pos_z = 0.7f;
  step();
  EXPECT_EQ(f.pos_z, 0.0f);
  // Ending tracked root motion moves the position as far as the body point travelled.
  steps(3);  // the idle's tracking has begun and seen its first drawing
  Draw.Body_Centre[0][0] += 4.0f;
  Draw.Body_Centre[1][0] -= 2.0f;
  root_track_end(0);
  root_track_end(1);
  EXPECT_FLOAT_EQ(f.pos_x, -1.0f);
  EXPECT_FLOAT_EQ(fighters[1].pos_x, 3.0f);
  EXPECT_EQ(f.root_sync, 1);
  root_sync(0);  // not before the model has been drawn again
  EXPECT_EQ(f.root_sync, 1);
  ++frame_count;
  f.frame_offset[f.frame][2] = 0.5f;
  root_sync(0);
  EXPECT_EQ(f.root_sync, 0);
  EXPECT_FLOAT_EQ(f.pos_x, -1.5f);  // the new frame's own offset taken back out
}

TEST_F(MoveTest, DashCarriesTheBodyAndEndsWhereTheBodyIs) {
  Fighter& f = fighters[0];
  const float x0 = f.pos_x;
  start_action(0, 3, 1);
  step();
  move_step();  // the dash's first drawing gives the body point its travel is taken from
  for (int k = 0; k < 10; ++k) {
    fighter_animate(0);
    Draw.Body_Centre[0][0] += 0.5f;  // the animation carries the body forward
  }
  fighter_animate(0);  // the dash ends: the position joins the body
  EXPECT_NEAR(f.pos_x, x0 + 5.0f, 1e-4f);
  EXPECT_EQ(f.action, 22);
}

}  // namespace
