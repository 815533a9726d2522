// The fight camera against fighter positions and match states set up by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "camera/camera_fight.h"
#include "fight/fight.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "render/render_fighter.h"
#include "render/render_math.h"

namespace {

class FightCameraTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Build_AngleTables();
    Match = MatchState{};
    Spacing = SpacingState{};
    for (int i = 0; i < 2; ++i) {
      Fighter& f = fighters[i];
      f.wins = f.damage = f.reacting = f.busy = f.freeze_other = f.action = 0;
      f.special_cam = f.special_shot = 0;
      f.life = 85;
      Players[i] = PlayerInput{};
    }
    FightCamera = FightCameraState{};
    Match.intro = -1;  // the opening is over: the camera follows
    place(-5.0f, 5.0f);
  }

  // Both fighters on the x line at heights h0, h1, spaced as the movement step leaves them.
  static void place(float x0, float x1, float h0 = 0.0f, float h1 = 0.0f) {
    const float xs[2] = {x0, x1}, hs[2] = {h0, h1};
    for (int i = 0; i < 2; ++i) {
      Spacing.track_x[i] = fighters[i].pos_x = Draw.Body_Centre[i][0] = xs[i];
      Spacing.track_z[i] = fighters[i].pos_z = Draw.Body_Centre[i][2] = 0.0f;
      fighters[i].height = hs[i];
    }
    fighters[0].yaw = 90;
    fighters[1].yaw = 270;
    Spacing.distance = std::fabs(x1 - x0);
    Spacing.height_gap = std::fabs(std::max(h0, 0.0f) - std::max(h1, 0.0f));
  }

  static void run(int frames) {
    for (int k = 0; k < frames; ++k) UpdateFightCamera();
  }
};

TEST_F(FightCameraTest, HeadingTurnsTheShortWayThroughNorthAndStopsOnItsTarget) {
  FightCamera.heading = 0;
  FightCamera.heading_target = 359;
  SmoothCameraAngles();
  EXPECT_EQ(FightCamera.heading, 359) << "one degree back through 0, not 359 forward";

  FightCamera.heading = 300;  // up through 359: a tenth of the 70-degree arc first
  FightCamera.heading_target = 10;
  SmoothCameraAngles();
  EXPECT_EQ(FightCamera.heading, 307);
  int travelled = 7;
  for (int k = 0; k < 100 && FightCamera.heading != 10; ++k) {
    const int before = FightCamera.heading;
    SmoothCameraAngles();
    travelled += (FightCamera.heading - before + 360) % 360;
  }
  EXPECT_EQ(FightCamera.heading, 10);
  EXPECT_EQ(travelled, 70) << "never past the target and back";

  FightCamera.heading = 20;  // down through 0
  FightCamera.heading_target = 340;
  FightCamera.pitch_target = 35;
  SmoothCameraAngles();
  EXPECT_EQ(FightCamera.heading, 16);
  EXPECT_EQ(FightCamera.pitch, 3);
}

TEST_F(FightCameraTest, LookAtAndDistanceCloseANinthAndSnapOnceTheStepIsTiny) {
  FightCamera.target_x = 9.0f;
  FightCamera.look_y = 1.0f;
  FightCamera.target_y = 1.15f;  // 0.15 / 9 is below 0.02
  FightCamera.target_z = 4.0f;
  SmoothLookAt();
  EXPECT_FLOAT_EQ(FightCamera.look_x, 1.0f);
  EXPECT_EQ(FightCamera.look_y, 1.15f);
  EXPECT_EQ(FightCamera.look_z, 0.0f) << "the look-at z moves only by cuts and the clamp";

  place(-7.0f, 7.075f);  // 14.075 apart: 15.075 wanted, 0.15 away
  FightCamera.distance = 15.225f;
  UpdateFightCamera();
  EXPECT_FLOAT_EQ(FightCamera.distance, 15.075f);
  place(-8.0f, 8.0f);  // 17 wanted, 1.8 away
  FightCamera.distance = 15.2f;
  UpdateFightCamera();
  EXPECT_FLOAT_EQ(FightCamera.distance, 15.4f);
}

TEST_F(FightCameraTest, FollowDistanceGrowsWithTheSeparationAndLiftsTheView) {
  struct Case { float separation, desired; };
  for (const Case c : {Case{14.0f, 15.0f}, Case{20.0f, 21.0f}, Case{50.0f, 45.0f}}) {
    place(-c.separation / 2, c.separation / 2);
    UpdateFightCamera();
    EXPECT_FLOAT_EQ(FightCamera.distance_target, c.desired) << c.separation;
    EXPECT_FLOAT_EQ(FightCamera.target_y, (c.desired - 15.0f) / 2.6f) << c.separation;
  }
  place(-3.0f, 3.0f, 4.0f, 1.0f);  // the mean height of the bodies
  UpdateFightCamera();
  EXPECT_FLOAT_EQ(FightCamera.target_y, 2.5f);
  fighters[1].reacting = 1;  // level while one is knocked about
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.target_y, 0.0f);
}

TEST_F(FightCameraTest, FollowLooksAtTheMidpointFromTheSideAndStaysInsideTheStage) {
  place(2.0f, 8.0f);
  FightCamera.heading = 200;
  run(200);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 5.0f);
  EXPECT_EQ(FightCamera.heading, 359);
  EXPECT_EQ(FightCamera.pitch, 0);

  place(20.0f, 40.0f);  // knocked out past the edge: the view holds 17 from the centre
  FightCamera.look_z = -30.0f;
  run(200);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 17.0f);
  EXPECT_FLOAT_EQ(FightCamera.look_z, -17.0f);
  Spacing.centre_x = 10.0f;  // the circle has followed a fighter out
  run(200);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 27.0f);

  fighters[0].special_cam = fighters[0].special_shot = 1;  // a throw shot is not held in
  run(200);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 30.0f);
  fighters[0].special_cam = 0;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.throw_mode, 0);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 27.0f);
}

TEST_F(FightCameraTest, KnockOutCloseUpsFrameTheWinnerOrTheBeatenFighter) {
  place(-4.0f, 4.0f);
  fighters[1].damage = 85;  // fighter 1 is down
  fighters[0].yaw = 330;    // a heading base past a full turn still gives 0..359
  Match.ko_state = 1;
  Match.ko_closeup = 1;
  run(50);
  EXPECT_EQ(FightCamera.target_x, -4.0f);
  EXPECT_FLOAT_EQ(FightCamera.distance_target, 9.0f);
  EXPECT_EQ(FightCamera.heading, 344);  // 359 - (330 + 45), wrapped

  Match.ko_closeup = 2;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.target_x, 4.0f);
  EXPECT_FLOAT_EQ(FightCamera.distance_target, 13.0f);
  EXPECT_EQ(FightCamera.heading_target, 89);  // 359 - 270
}

TEST_F(FightCameraTest, ThrowShotsSetTheirAnglesAndFallBackToTheSideView) {
  place(-2.0f, 2.0f, 1.0f, 1.0f);
  frame_count = 1001;  // a throw starting on this frame takes angle 2
  fighters[1].special_cam = 1;
  fighters[1].special_shot = 2;  // shots 2 and 3 tilt down on the higher body
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.throw_mode, 2);
  EXPECT_EQ(FightCamera.target_y, 1.0f);
  EXPECT_FLOAT_EQ(FightCamera.distance_target, 4.0f + 8.0f + 5.0f);  // 100 frames to settle
  EXPECT_EQ(FightCamera.heading_target, 44);
  frame_count = 1002;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.throw_mode, 2) << "the angle holds for the whole throw";

  place(-2.0f, 2.0f, 20.0f, 0.0f);  // from above a body 20 high tilts past 80: shot 1
  FightCamera.throw_mode = 3;
  UpdateFightCamera();
  EXPECT_EQ(fighters[0].special_shot, 0);
  EXPECT_EQ(fighters[1].special_shot, 1);
  EXPECT_EQ(FightCamera.pitch_target, 0);
}

TEST_F(FightCameraTest, OrbitDistanceStretchesWithTheSeparationUpTo45) {
  struct Case { float separation, gap, want; };
  for (const Case c : {Case{30.0f, 0.5f, 31.9f}, Case{40.0f, 0.0f, 42.9f},
                       Case{45.0f, 0.0f, 45.0f}, Case{5.0f, 40.0f, 50.0f}}) {
    Spacing.distance = c.separation;
    Spacing.height_gap = c.gap;
    EXPECT_NEAR(OrbitDistance(), c.want, 1e-4f) << c.separation << " / " << c.gap;
  }
}

TEST_F(FightCameraTest, ClosingReplayOrbitsAndTheKoReplayCutsToItsTwoAngles) {
  place(-6.0f, 6.0f, 2.0f, 3.0f);
  Match.after_ko = 1;
  Match.after_ko_frames = 50;
  frame_count = 600;  // circling from high above
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.pitch, 50);
  EXPECT_EQ(FightCamera.heading, 240);
  EXPECT_EQ(FightCamera.target_y, 3.0f);

  Match = MatchState{};
  Match.intro = -1;
  for (int pass = 1; pass <= 2; ++pass) {
    Match.replay_state = pass;
    UpdateFightCamera();
    EXPECT_EQ(FightCamera.heading, pass == 1 ? 30 : 150);
    EXPECT_EQ(FightCamera.pitch, 30);
  }
}

TEST_F(FightCameraTest, FirstRoundOpensWithTheOverheadSweepAndLaterRoundsWithAShortOne) {
  reset_round();
  ASSERT_EQ(Match.intro, 2);
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.pitch, 90) << "straight down";
  EXPECT_EQ(FightCamera.heading, 180);
  EXPECT_FLOAT_EQ(FightCamera.distance, 25.0f);
  int frames = 1;
  for (; Match.intro != -1 && frames < 500; ++frames) {
    UpdateFightCamera();
    EXPECT_GE(FightCamera.pitch, 0) << "never from below the floor";
  }
  EXPECT_EQ(frames, 90);
  EXPECT_EQ(Match.fight_call, 1);

  fighters[1].wins = 1;
  for (int parity = 0; parity < 2; ++parity) {
    frame_count = 100 + parity;
    reset_round();
    ASSERT_EQ(Match.intro, parity);
    UpdateFightCamera();
    EXPECT_FLOAT_EQ(FightCamera.distance, parity == 0 ? 25.0f : 45.0f);
    for (frames = 1; Match.intro != -1 && frames < 500; ++frames) UpdateFightCamera();
    EXPECT_EQ(frames, 60);
    EXPECT_EQ(FightCamera.heading, 0);
  }
}

TEST_F(FightCameraTest, WinPoseCirclesTheWinnerAndHandsTheRoundOn) {
  fighters[1].wins = 1;
  fighters[1].pos_x = 3.0f;
  fighters[1].action = 13;
  Match.character[1] = 8;
  Match.winner = 1;
  Match.win_pose = 4;
  Match.win_pose_count = 1;
  for (int t = 0; t < 179; ++t) {
    UpdateFightCamera();
    ASSERT_EQ(FightCamera.heading, (180 + t) % 360) << t;  // yaw 270 + 270 + t
    ASSERT_EQ(FightCamera.distance, 6.0f);
  }
  EXPECT_EQ(FightCamera.look_x, 3.0f);
  EXPECT_EQ(FightCamera.look_y, 4.5f);  // character 8's height for its second victory
  UpdateFightCamera();  // frame 180: the round is handed on and the next one opens
  EXPECT_EQ(Match.win_pose_count, 0);
  EXPECT_NE(Match.intro, -1);

  // Start skips a pose: the loser's press only when the winner is the computer.
  Match.intro = -1;
  Match.win_pose_count = 1;
  Match.human[1] = 1;
  Players[0].start_pressed = 1;
  run(3);
  EXPECT_EQ(Match.win_pose_count, 4);
  Match.human[1] = 0;
  UpdateFightCamera();
  EXPECT_EQ(Match.win_pose_count, 0);
}

}  // namespace
