// The fight camera against fighter positions and match states set up by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "camera/camera_fight.h"
#include "fight/fight.h"
#include "fight/fight_state.h"
#include "input/input.h"
#include "render/render_fighter.h"
#include "render/render_math.h"
#include "render/render_view.h"

namespace {

class FightCameraTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Build_SinCosTables();
    Build_AngleTables();
    Match = MatchState{};
    Spacing = SpacingState{};
    for (int i = 0; i < 2; ++i) {
      fighters[i].wins = 0;
      fighters[i].life = 85;
      fighters[i].damage = 0;
      fighters[i].reacting = fighters[i].busy = 0;
      fighters[i].special_cam = fighters[i].special_shot = 0;
      fighters[i].freeze_other = 0;
      fighters[i].action = 0;
      Players[i] = PlayerInput{};
    }
    FightCamera = FightCameraState{};
    Match.intro = -1;  // the opening is over: the camera follows
    place(-5.0f, 5.0f);
  }

  // Both fighters on the x line, standing, their spacing as the movement step leaves it.
  static void place(float x0, float x1, float h0 = 0.0f, float h1 = 0.0f) {
    const float xs[2] = {x0, x1}, hs[2] = {h0, h1};
    for (int i = 0; i < 2; ++i) {
      Spacing.track_x[i] = fighters[i].pos_x = xs[i];
      Spacing.track_z[i] = fighters[i].pos_z = 0.0f;
      fighters[i].height = hs[i];
      Draw.Body_Centre[i][0] = xs[i];
      Draw.Body_Centre[i][2] = 0.0f;
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

// ---- easing ---------------------------------------------------------------------------------

TEST_F(FightCameraTest, HeadingTurnsTheShortWayThroughNorthAndStopsOnItsTarget) {
  FightCamera.heading = 0;
  FightCamera.heading_target = 359;
  SmoothCameraAngles();
  EXPECT_EQ(FightCamera.heading, 359) << "one degree back through 0, not 359 forward";

  // Upward through 359: 7 first (a tenth of the 70-degree arc), then on, and exactly onto 10.
  FightCamera.heading = 300;
  FightCamera.heading_target = 10;
  SmoothCameraAngles();
  EXPECT_EQ(FightCamera.heading, 307);
  int frames = 1, travelled = 7;
  while (FightCamera.heading != 10 && frames < 100) {
    const int before = FightCamera.heading;
    SmoothCameraAngles();
    travelled += (FightCamera.heading - before + 360) % 360;
    ++frames;
  }
  EXPECT_EQ(FightCamera.heading, 10);
  EXPECT_EQ(travelled, 70) << "never past the target and back";
  EXPECT_LT(frames, 100);

  // Downward through 0.
  FightCamera.heading = 20;
  FightCamera.heading_target = 340;
  SmoothCameraAngles();
  EXPECT_EQ(FightCamera.heading, 16);
  for (int k = 0; k < 60; ++k) SmoothCameraAngles();
  EXPECT_EQ(FightCamera.heading, 340);

  // A plain gap: a tenth of it, at least one degree, for pitch and heading alike.
  FightCamera.pitch = 0;
  FightCamera.pitch_target = 35;
  FightCamera.heading = 100;
  FightCamera.heading_target = 95;
  SmoothCameraAngles();
  EXPECT_EQ(FightCamera.pitch, 3);
  EXPECT_EQ(FightCamera.heading, 99);
}

TEST_F(FightCameraTest, LookAtAndDistanceCloseANinthAndSnapOnceTheStepIsTiny) {
  FightCamera.look_x = 0.0f;
  FightCamera.target_x = 9.0f;
  FightCamera.look_y = 1.0f;
  FightCamera.target_y = 1.15f;  // 0.15 / 9 is below 0.02
  FightCamera.look_z = 4.0f;
  FightCamera.target_z = 0.0f;
  SmoothLookAt();
  EXPECT_FLOAT_EQ(FightCamera.look_x, 1.0f);
  EXPECT_EQ(FightCamera.look_y, 1.15f);
  EXPECT_EQ(FightCamera.look_z, 4.0f) << "the look-at z only moves by cuts and the clamp";

  // The follow distance: a gap of 0.15 closes at once, a gap of 1.8 by 0.2.
  place(-7.0f, 7.075f);  // 14.075 apart: 15.075 wanted
  FightCamera.distance = 15.225f;
  UpdateFightCamera();
  EXPECT_FLOAT_EQ(FightCamera.distance, 15.075f);
  place(-8.0f, 8.0f);
  FightCamera.distance = 15.2f;
  UpdateFightCamera();
  EXPECT_FLOAT_EQ(FightCamera.distance, 15.4f);
}

// ---- follow mode ------------------------------------------------------------------------------

TEST_F(FightCameraTest, FollowDistanceGrowsWithTheSeparationAndLiftsTheView) {
  struct Case { float separation, desired, lift; };
  const Case cases[] = {
      {10.0f, 15.0f, 0.0f}, {14.0f, 15.0f, 0.0f}, {20.0f, 21.0f, 6.0f / 2.6f},
      {50.0f, 45.0f, 30.0f / 2.6f},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.separation);
    place(-c.separation / 2, c.separation / 2);
    UpdateFightCamera();
    EXPECT_FLOAT_EQ(FightCamera.desired_distance, c.desired);
    EXPECT_FLOAT_EQ(FightCamera.distance_target, c.desired);
    EXPECT_FLOAT_EQ(FightCamera.target_y, c.lift);
  }
  // The view rises with the bodies' mean height, not below the floor line, and stays level
  // while a fighter is knocked about.
  place(-3.0f, 3.0f, 4.0f, 1.0f);
  UpdateFightCamera();
  EXPECT_FLOAT_EQ(FightCamera.target_y, 2.5f);
  place(-3.0f, 3.0f, -4.0f, 1.0f);
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.target_y, 0.0f);
  place(-3.0f, 3.0f, 4.0f, 1.0f);
  fighters[1].reacting = 1;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.target_y, 0.0f);
}

TEST_F(FightCameraTest, FollowLooksFromTheSideAtTheMidpointAndStaysInsideTheStage) {
  place(2.0f, 8.0f);
  Spacing.track_z[0] = -1.0f;
  Spacing.track_z[1] = 3.0f;
  FightCamera.heading = 200;
  run(200);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 5.0f);
  EXPECT_EQ(FightCamera.target_z, 1.0f);
  EXPECT_EQ(FightCamera.heading, 359);
  EXPECT_EQ(FightCamera.pitch, 0);

  // Knocked out past the edge: the view holds 17 units from the arena centre.
  place(20.0f, 40.0f);
  FightCamera.look_z = -30.0f;
  run(200);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 17.0f);
  EXPECT_FLOAT_EQ(FightCamera.look_z, -17.0f);
  Spacing.centre_x = 10.0f;  // the circle has followed a fighter out
  run(200);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 27.0f);

  // A throw shot is not held in by the stage.
  FightCamera.throw_mode = 1;
  fighters[0].special_cam = 1;
  fighters[0].special_shot = 1;
  run(200);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 30.0f);
  fighters[0].special_cam = 0;  // the throw is over: back inside the stage
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.throw_mode, 0);
  EXPECT_FLOAT_EQ(FightCamera.look_x, 27.0f);
}

TEST_F(FightCameraTest, KnockOutCloseUpsFrameTheWinnerOrTheBeatenFighter) {
  place(-4.0f, 4.0f);
  fighters[1].damage = 85;  // fighter 1 is down
  Match.ko_state = 1;
  Match.ko_closeup = 1;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.target_x, -4.0f);
  EXPECT_FLOAT_EQ(FightCamera.desired_distance, 9.0f);
  EXPECT_EQ(FightCamera.heading_target, 359 - 135);  // winner's yaw 90 + 45

  Match.ko_closeup = 2;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.target_x, 4.0f);
  EXPECT_FLOAT_EQ(FightCamera.desired_distance, 13.0f);
  EXPECT_EQ(FightCamera.heading_target, 89);  // 359 - 270

  fighters[1].yaw = 330;  // a heading base past a full turn still gives a heading 0..359
  fighters[0].damage = 85;
  fighters[1].damage = 0;
  Match.ko_closeup = 1;
  run(50);
  EXPECT_EQ(FightCamera.heading_target, 344);
  EXPECT_EQ(FightCamera.heading, FightCamera.heading_target);
}

TEST_F(FightCameraTest, ThrowShotsSetTheirAnglesAndFallBackToTheSideView) {
  place(-2.0f, 2.0f, 1.0f, 1.0f);
  frame_count = 1001;  // a throw starting on this frame takes angle 2
  fighters[1].special_cam = 1;
  fighters[1].special_shot = 2;  // shots 2 and 3 tilt down on the higher body
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.target_y, 1.0f);
  EXPECT_FLOAT_EQ(FightCamera.desired_distance, 4.0f + 8.0f + 5.0f);  // 100 frames to settle
  EXPECT_EQ(FightCamera.heading_target, 44);
  EXPECT_EQ(FightCamera.shot_frame, 1);
  EXPECT_EQ(FightCamera.throw_mode, 2);
  frame_count = 1002;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.throw_mode, 2) << "the angle holds for the whole throw";

  // Mode 3 from above with a body lifted 20 units tilts past 80 degrees: back to shot 1.
  FightCamera = FightCameraState{};
  place(-2.0f, 2.0f, 20.0f, 0.0f);
  FightCamera.throw_mode = 3;
  UpdateFightCamera();
  EXPECT_EQ(fighters[0].special_shot, 0);
  EXPECT_EQ(fighters[1].special_shot, 1);
  EXPECT_EQ(FightCamera.pitch_target, 0);

  // Shot 4 turns with the thrower's move and sits just below level.
  fighters[0].special_shot = 2;
  fighters[1].special_shot = 2;
  fighters[0].special_cam = 1;
  fighters[0].action = 340;
  fighters[0].act_last[340] = 500;
  fighters[0].frame = 470;
  FightCamera.throw_mode = 4;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.heading_base, 330);
  EXPECT_EQ(FightCamera.pitch, -4) << "-5, then one easing step toward level";
}

// ---- orbit and replay -------------------------------------------------------------------------

TEST_F(FightCameraTest, OrbitDistanceStretchesWithTheSeparationUpTo45) {
  struct Case { float separation, gap, want; };
  const Case cases[] = {
      {30.0f, 0.5f, 31.9f}, {40.0f, 0.0f, 42.9f}, {45.0f, 0.0f, 45.0f},
      {8.0f, 0.0f, 11.0f},  {8.0f, 3.0f, 13.0f},  {5.0f, 40.0f, 50.0f},  // close: no cap
  };
  for (const Case& c : cases) {
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
  EXPECT_NEAR(FightCamera.desired_distance, 12.1f, 1e-4f);  // a gap of 1 adds nothing
  frame_count = 1600;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.pitch, -4);
  EXPECT_EQ(FightCamera.heading, 330);

  // The super flash pulls the orbit in on the fighter who froze the other.
  Match.flash_state = 2;
  fighters[1].freeze_other = 1;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.target_x, 6.0f);
  EXPECT_FLOAT_EQ(FightCamera.desired_distance, 7.0f);

  Match = MatchState{};
  Match.intro = -1;
  Match.replay_state = 1;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.heading, 30);
  EXPECT_EQ(FightCamera.pitch, 30);
  EXPECT_EQ(FightCamera.target_y, 0.0f);
  Match.replay_state = 2;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.heading, 150);
}

// ---- set pieces -------------------------------------------------------------------------------

TEST_F(FightCameraTest, FirstRoundOpensWithTheOverheadSweepAndLaterRoundsWithAShortOne) {
  reset_round();
  ASSERT_EQ(Match.intro, 2);
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.pitch, 90) << "straight down";
  EXPECT_EQ(FightCamera.heading, 180);
  EXPECT_FLOAT_EQ(FightCamera.distance, 25.0f);
  int frames = 1;
  while (Match.intro != -1 && frames < 500) {
    UpdateFightCamera();
    EXPECT_GE(FightCamera.pitch, 0) << "never from below the floor";
    ++frames;
  }
  EXPECT_EQ(frames, 90);
  EXPECT_EQ(Match.fight_call, 1);
  UpdateFightCamera();  // the "fight" call: the camera holds the side view
  EXPECT_EQ(FightCamera.heading, 0);
  EXPECT_EQ(FightCamera.pitch, 0);
  EXPECT_FLOAT_EQ(FightCamera.distance, 15.0f);

  fighters[1].wins = 1;
  for (int parity = 0; parity < 2; ++parity) {
    frame_count = 100 + parity;
    Match.fight_call = 0;
    reset_round();
    ASSERT_EQ(Match.intro, parity);
    frames = 0;
    float first = 0.0f;
    while (Match.intro != -1 && frames < 500) {
      UpdateFightCamera();
      if (frames++ == 0) first = FightCamera.distance;
    }
    EXPECT_EQ(frames, 60);
    EXPECT_FLOAT_EQ(first, parity == 0 ? 25.0f : 45.0f);
    EXPECT_FLOAT_EQ(FightCamera.distance, 15.0f + (parity == 0 ? 10.0f / 60.0f : 0.0f));
    EXPECT_EQ(FightCamera.heading, 0);
  }
}

TEST_F(FightCameraTest, WinPoseCirclesTheWinnerAndHandsTheRoundOn) {
  fighters[1].wins = 1;
  fighters[1].pos_x = 3.0f;
  fighters[1].pos_z = 2.0f;
  fighters[1].yaw = 270;
  fighters[1].action = 13;
  Match.character[1] = 8;
  Match.winner = 1;
  Match.win_pose = 4;
  Match.win_pose_count = 1;
  Match.ko_state = 2;
  UpdateFightCamera();
  EXPECT_EQ(FightCamera.heading, 180);  // yaw + 270
  EXPECT_EQ(FightCamera.look_x, 3.0f);
  EXPECT_EQ(FightCamera.look_y, 4.5f);  // character 8's height for its second victory
  EXPECT_EQ(FightCamera.look_z, 2.0f);
  EXPECT_EQ(FightCamera.distance, 6.0f);
  for (int t = 1; t < 179; ++t) {
    UpdateFightCamera();
    ASSERT_EQ(FightCamera.heading, (180 + t) % 360) << t;
    ASSERT_EQ(FightCamera.distance, 6.0f);
  }
  EXPECT_EQ(Match.win_pose_count, 180);
  UpdateFightCamera();  // frame 180: the round is handed on and the next one opens
  EXPECT_EQ(Match.win_pose_count, 0);
  EXPECT_NE(Match.intro, -1);

  // Kind 2 closes in from 13 at 0.4 a frame down to 4, looking up at the winner.
  Match.intro = -1;
  Match.win_pose = 2;
  Match.win_pose_count = 1;
  FightCamera.program_frame = 0;
  fighters[1].action = 12;
  run(10);
  EXPECT_FLOAT_EQ(FightCamera.distance, 13.0f - 3.6f);
  EXPECT_EQ(FightCamera.pitch, 355);
  EXPECT_EQ(FightCamera.look_y, 2.5f);
  run(40);
  EXPECT_FLOAT_EQ(FightCamera.distance, 4.0f);
}

TEST_F(FightCameraTest, StartSkipsTheWinPoseOnlyForTheWinnerOrAgainstTheComputer) {
  Match.winner = 0;
  Match.win_pose = 3;
  Match.human[0] = 1;
  Players[1].start_pressed = 1;  // the loser cannot cut a human winner's pose
  Match.win_pose_count = 1;
  run(5);
  EXPECT_EQ(Match.win_pose_count, 6);
  EXPECT_EQ(FightCamera.program_frame, 5);

  Match.human[0] = 0;  // against a computer winner it can
  UpdateFightCamera();
  EXPECT_EQ(Match.win_pose_count, 0);

  Match.intro = -1;
  Match.win_pose_count = 1;
  Players[1].start_pressed = 0;
  Players[0].start_pressed = 1;
  UpdateFightCamera();
  EXPECT_EQ(Match.win_pose_count, 0);
  EXPECT_EQ(Players[0].start_pressed, 0) << "the press is used up";
}

}  // namespace
