// The fight display: where each piece lands for a given fight state, and how the counters it
// runs move from one drawn frame to the next. A sprite's own quad keeps the place it was last
// drawn at, so each check looks at the quad after the display has drawn.
#include <gtest/gtest.h>

#include "camera/camera_fight.h"
#include "fight/fight_ranking.h"
#include "fight/fight_state.h"
#include "hud/hud.h"
#include "hud/hud_fight_sprites.h"
#include "render/render_sprite.h"
#include "shell/shell.h"
#include "support/test_support.h"

namespace {

constexpr float kNotDrawn = -9999.0f;

class FightHud : public ::testing::Test {
 protected:
  void SetUp() override {
    test::ensure_gl();
    saved_match_ = Match;
    saved_ranks_ = Ranks;
    saved_shell_ = Shell;
    saved_camera_ = FightCamera;
    Match = MatchState{};
    Match.intro = -1;
    Match.character[0] = 3;
    Match.character[1] = 7;
    for (Fighter& f : fighters) set_scores(f);
    for (int s = 0; s < SPRITE_COUNT; ++s) {  // every picture 16 x 16 unless a test says else
      Sprites.Raster_Width[s] = 16;
      Sprites.Raster_Height[s] = 16;
    }
    forget();
  }
  void TearDown() override {
    Match = saved_match_;
    Ranks = saved_ranks_;
    Shell = saved_shell_;
    FightCamera = saved_camera_;
    for (Fighter& f : fighters) set_scores(f);
  }
  static void set_scores(Fighter& f) {
    f.wins = f.streak = f.damage = f.drain_delay = f.combo = f.combo_show = f.perfect = 0;
    f.gauge = 100, f.gauge_gain = f.gauge_spend = 0, f.stance = 0, f.life = 85;
  }
  // Marks every sprite as not drawn since.
  static void forget() {
    for (auto& q : Sprites.Raster_Quad) q[0].x = kNotDrawn;
    SpriteDraw.Scratch_Quad[0].x = kNotDrawn;
  }
  static bool drawn(int sprite) { return Sprites.Raster_Quad[sprite][0].x != kNotDrawn; }
  // Where a sprite was last drawn, in screen units: left, top, width, height.
  struct Rect {
    int x, y, w, h;
    bool operator==(const Rect&) const = default;
  };
  static Rect rect_of(const ScreenVertex* q) {
    const float l = std::min(q[0].x, q[1].x), r = std::max(q[0].x, q[1].x);
    const float t = std::min(q[0].y, q[2].y), b = std::max(q[0].y, q[2].y);
    return {static_cast<int>(l), static_cast<int>(t), static_cast<int>(r - l),
            static_cast<int>(b - t)};
  }
  static Rect at(int sprite) { return rect_of(Sprites.Raster_Quad[sprite]); }
  static Rect glow() { return rect_of(SpriteDraw.Scratch_Quad); }
  // The same place given in layout units.
  static Rect layout(int x, int y, int w, int h) { return {Layout(x), Layout(y), Layout(w), Layout(h)}; }
  // The same place given in screen units at the sprite's natural 16 x 16.
  static Rect screen(int x, int y) { return {x, y, 16, 16}; }

  MatchState saved_match_;
  Rankings saved_ranks_;
  ShellState saved_shell_;
  FightCameraState saved_camera_;
};

TEST_F(FightHud, DrainHoldsTheRemainingLifeAndBoundsTheGauge) {
  Fighter& f = fighters[0];
  f.life = 85, f.damage = 3, f.drain_delay = 2;
  f.gauge = 1, f.gauge_spend = 4;
  fighters[1].gauge = 300, fighters[1].gauge_gain = 5;
  for (int frame = 0; frame < 8; ++frame) {
    DrainGauges();
    EXPECT_EQ(f.life - f.damage, 82);
    EXPECT_EQ(f.damage, frame < 2 ? 3 : std::max(0, 3 - (frame - 1)));  // two frames of delay
  }
  EXPECT_EQ(f.gauge, 0);
  EXPECT_EQ(f.gauge_spend, 0);
  EXPECT_EQ(fighters[1].gauge, 300);
  EXPECT_EQ(fighters[1].gauge_gain, 0);
  f.life = 1, f.damage = 2, f.drain_delay = 0;
  DrainGauges();
  DrainGauges();
  EXPECT_EQ(f.life, 0);  // not below zero
  EXPECT_EQ(f.damage, 0);
}

// A 20-point hit at full life: the green part drops at once, the yellow part holds for the
// drain delay and then shrinks a point a frame, for every life setting, on both sides.
TEST_F(FightHud, LifeBarsDropAtOnceAndDrainAfterTheDelay) {
  struct Setting {
    int setting, full, after_hit, after_ten;  // bar widths in layout units
  };
  const Setting settings[] = {{1, 126, 92, 109}, {2, 126, 96, 111}, {3, 126, 102, 114}};
  for (const Setting& s : settings) {
    for (int side = 0; side < 2; ++side) {
      Match.life_setting = s.setting;
      Fighter& f = fighters[side];
      f.life = Start_Life(s.setting), f.damage = 20, f.drain_delay = 7;
      fighters[1 - side].life = 0;  // not drawn: each bar is looked at on its own
      auto expect_bar = [&](int green, int whole, const char* when) {
        forget();
        DrawHudBase();
        const Rect g = side == 0 ? layout(134 - green, 20, green, 6) : layout(184, 20, green, 6);
        const Rect y = side == 0 ? layout(134 - whole, 20, whole - green, 6)
                                 : layout(184 + green, 20, whole - green, 6);
        EXPECT_EQ(at(346), g) << "setting " << s.setting << " side " << side << " " << when;
        EXPECT_EQ(at(347), y) << "setting " << s.setting << " side " << side << " " << when;
      };
      expect_bar(s.after_hit, s.full, "at the hit");
      for (int i = 0; i < 7; ++i) DrainGauges();
      expect_bar(s.after_hit, s.full, "after the delay");
      for (int i = 0; i < 10; ++i) DrainGauges();
      expect_bar(s.after_hit, s.after_ten, "ten points drained");
      for (int i = 0; i < 10; ++i) DrainGauges();
      expect_bar(s.after_hit, s.after_hit, "drained");
      EXPECT_EQ(f.life, Start_Life(s.setting) - 20);
      set_scores(fighters[0]), set_scores(fighters[1]);
    }
  }
}

TEST_F(FightHud, ClockMarksAndTopLine) {
  Match.clock_left = 5998;
  Match.rounds_to_win = 3;
  fighters[0].wins = 2;
  DrawHudBase();
  EXPECT_EQ(at(5), screen(225, 12));  // 59 seconds
  EXPECT_EQ(at(9), screen(254, 12));
  EXPECT_EQ(at(360 + 3), layout(4, 30, 16, 16));  // name plates by character
  EXPECT_EQ(at(376 + 7), layout(252, 30, 16, 16));
  EXPECT_EQ(at(40), screen(172, 53));  // the left side's second mark is its last won one
  EXPECT_EQ(at(41), screen(341, 53));  // the right side's third, not won

  // The winner's newest mark blinks while the round ends.
  Match.ko_state = 1, Match.winner = 0;
  Match.ko_wait = 13;
  forget();
  DrawHudBase();
  EXPECT_EQ(at(40), screen(192, 53));
  Match.ko_wait = 12;
  forget();
  DrawHudBase();
  EXPECT_EQ(at(40), screen(172, 53));

  // A human with a streak is the champion; the computer's side invites a player while the
  // prompt is lit (not in frames 0..40 of every 200).
  Match.human[0] = 1;
  fighters[0].streak = 12;
  frame_count = 40;
  forget();
  DrawHudBase();
  EXPECT_FALSE(drawn(306));
  EXPECT_EQ(at(28), layout(20, 4, 16, 16));
  EXPECT_EQ(at(31), layout(82, 4, 16, 16));
  EXPECT_EQ(at(32), layout(90, 4, 16, 16));
  frame_count = 41;
  DrawHudBase();
  EXPECT_EQ(at(306), layout(185, 4, 16, 16));
  EXPECT_EQ(SpriteDraw.Layer_Z, -100.0f);
}

// The digits grow in as combo_show runs down from the 30 a hit sets, pop, then rest.
TEST_F(FightHud, ComboDigitsGrowPopAndRest) {
  Match.first_strike = 1;
  fighters[0].combo = 2, fighters[0].combo_show = 30;
  const int sizes[] = {6, 12, 18, 24, 36, 30, 30};
  for (int s : sizes) {
    forget();
    DrawHudMessages();
    EXPECT_EQ(at(127), layout(63, 50, s, s)) << s;
    EXPECT_EQ(at(129), layout(58 + s, 50, s, s)) << s;
  }
  EXPECT_EQ(at(309), layout(10, 49, 16, 16));
  EXPECT_EQ(Match.first_strike, -1);  // the combo took the first-strike banner's place
  EXPECT_FALSE(drawn(308));

  fighters[0].combo = 0;
  fighters[1].combo = 12;
  forget();
  DrawHudMessages();
  EXPECT_EQ(at(128), layout(215, 50, 30, 30));
  EXPECT_EQ(at(129), layout(240, 50, 30, 30));
  EXPECT_EQ(at(309), layout(270, 49, 16, 16));
}

// A banner stands for 25 frames, slides off its side and is over at 50; the first strike
// is over for the round, a reversal may come again.
TEST_F(FightHud, BannersStandSlideAndEnd) {
  Match.first_strike = 2;
  Match.reversal = 1;
  for (int frame = 1; frame <= 50; ++frame) {
    forget();
    DrawHudMessages();
    const int x = frame <= 25 ? 352 : 152 + 8 * frame;
    ASSERT_EQ(at(308), screen(x, 80)) << frame;
    ASSERT_FALSE(drawn(415));
  }
  EXPECT_EQ(Match.first_strike, -1);
  for (int frame = 1; frame <= 50; ++frame) {
    forget();
    DrawHudMessages();
    const int x = frame <= 25 ? 16 : 216 - 8 * frame;
    ASSERT_EQ(at(415), screen(x, 80)) << frame;
  }
  EXPECT_EQ(Match.reversal, 0);
  EXPECT_EQ(Match.reversal_frame, 0);
  forget();
  DrawHudMessages();
  EXPECT_FALSE(drawn(308));
  EXPECT_FALSE(drawn(415));
}

TEST_F(FightHud, PowerGaugeIconsAndFills) {
  struct Case {
    int power, icon_run, fill;
  };
  const Case cases[] = {{99, 0, 66}, {100, 1, 0}, {250, 2, 33}, {300, 3, 67}};
  frame_count = 1237;  // icon frame 2, strip frame 5
  for (const Case& c : cases) {
    fighters[0].gauge = c.power;
    fighters[1].gauge = c.icon_run == 0 ? 100 : 0;  // another run, so the left icon stays
    fighters[0].stance = 23;
    forget();
    DrawHudMessages();
    EXPECT_EQ(at(319 + 5 * c.icon_run + 2), layout(20, 219, 16, 16)) << c.power;
    EXPECT_EQ(hud::Power_Fill(0).x, 110 - c.fill) << c.power;  // fills toward the icon
    EXPECT_EQ(hud::Power_Fill(0).w, c.fill) << c.power;
    fighters[1].gauge = c.power;
    forget();
    DrawHudMessages();
    EXPECT_EQ(at(319 + 5 * c.icon_run + 2), layout(293, 219, 16, 16)) << c.power;
    EXPECT_EQ(at(347), layout(219, 229, c.fill, 1)) << c.power;  // the right one, drawn last
    EXPECT_EQ(at(348), layout(219, 230, c.fill, 4)) << c.power;
  }
  EXPECT_EQ(at(339 + 5), layout(223, 220, 16, 16));
  EXPECT_EQ(at(317), layout(242, 214, 16, 16));
  EXPECT_EQ(at(318), layout(71, 214, 16, 16));  // the left fighter stands low
  EXPECT_EQ(at(316), layout(190, 215, 16, 16));
  // Not over the winner's pose.
  Match.win_pose_count = 5;
  forget();
  DrawHudMessages();
  EXPECT_FALSE(drawn(316));
}

TEST_F(FightHud, TheRoundCallNamesTheRoundOrTheFinal) {
  Match.intro = 0;
  Match.rounds_to_win = 2;
  fighters[0].wins = 1;
  FightCamera.program_frame = 50;
  DrawHudMessages();
  EXPECT_EQ(at(315), screen(108, 177));  // ROUND 2
  EXPECT_EQ(at(311), screen(296, 177));
  EXPECT_FALSE(drawn(314));

  fighters[1].wins = 1;  // one round each: the deciding round
  forget();
  DrawHudMessages();
  EXPECT_EQ(at(314), screen(134, 145));
  EXPECT_FALSE(drawn(315));
  // Its glow closes in while the words are not yet there.
  FightCamera.program_frame = 20;
  forget();
  DrawHudMessages();
  EXPECT_EQ(glow(), layout(22, 90, 282, 80));
  EXPECT_EQ(SpriteDraw.Scratch_Quad[0].r, 200);
  EXPECT_FALSE(drawn(314));

  Match.rounds_to_win = 3;  // two of three: still an ordinary round
  FightCamera.program_frame = 50;
  forget();
  DrawHudMessages();
  EXPECT_EQ(at(312), screen(296, 177));  // ROUND 3
  Match.rounds_to_win = 1;
  fighters[0].wins = fighters[1].wins = 0;
  forget();
  DrawHudMessages();
  EXPECT_TRUE(drawn(314));
  // Before the opening sweep starts nothing is called.
  FightCamera.program_frame = -5;
  forget();
  DrawHudMessages();
  EXPECT_FALSE(drawn(314));
  EXPECT_EQ(glow().x, kNotDrawn);
}

TEST_F(FightHud, FightCallGlowsThenStands) {
  Match.fight_call = 10;  // the glow closes in, no word yet
  DrawHudMessages();
  EXPECT_EQ(glow(), layout(78 - 112, 90 - 56, 160 + 224, 80 + 112));
  EXPECT_EQ(SpriteDraw.Scratch_Quad[0].r, 100);
  EXPECT_FALSE(drawn(20));
  Match.fight_call = 20;  // the word, the glow fading off it
  DrawHudMessages();
  EXPECT_EQ(at(20), screen(126, 145));
  EXPECT_EQ(glow(), layout(78, 90, 160, 80));
  EXPECT_EQ(SpriteDraw.Scratch_Quad[0].r, 195);
}

TEST_F(FightHud, RecordTimeShowsSecondsAndHundredths) {
  Ranks.TimeRanking[2].value = 1234;
  DrawRecordMessage(2);
  EXPECT_EQ(at(418), screen(214, 223));  // 3rd
  EXPECT_EQ(at(422), screen(212, 263));  // 1
  EXPECT_EQ(at(423), screen(238, 263));  // 2
  EXPECT_EQ(at(442), screen(265, 263));  // the point
  EXPECT_EQ(at(434), screen(286, 271));  // 3
  EXPECT_EQ(at(435), screen(305, 271));  // 4
  EXPECT_EQ(at(443), screen(85, 225));
  EXPECT_EQ(at(444), screen(287, 225));
}

// The round's end: what the knock-out, the winner's pose and the replay show, in the order
// they take precedence.
TEST_F(FightHud, EndOfRoundMessages) {
  Match.ko_state = 1, Match.winner = 1;
  DrawHudMessages();
  EXPECT_EQ(at(21), screen(190, 271));  // KO
  fighters[1].perfect = 1;
  frame_count = 803;
  DrawHudMessages();
  EXPECT_TRUE(drawn(395));  // PERFECT flickers between its two pictures
  frame_count = 804;
  DrawHudMessages();
  EXPECT_TRUE(drawn(394));
  Match.time_rank = 1;
  Match.after_ko = 1, Match.after_ko_frames = 20;
  forget();
  DrawHudMessages();
  EXPECT_TRUE(drawn(416));  // a record time outranks PERFECT
  EXPECT_FALSE(drawn(394) || drawn(395));
  Match.after_ko_frames = 50;  // the closing replay shows REPLAY, without the gauges
  frame_count = 811;
  forget();
  DrawHudMessages();
  EXPECT_EQ(at(22), screen(344, 321));
  EXPECT_FALSE(drawn(316));

  // Over the winner's pose.
  Match.after_ko = 0, Match.time_rank = 0, Match.win_pose_count = 3;
  struct Case {
    int human0, human1, stage, sprite, x, y;
  };
  const Case cases[] = {
      {1, 0, 3, 393, 164, 271},   // the computer won: YOU LOSE
      {0, 1, 3, 392, 171, 271},   // the player won: YOU WIN
      {0, 1, 10, 446, 91, 302},   // ... the boss, for the match: congratulations
      {1, 1, 3, 21, 190, 271},    // two players: KO
  };
  fighters[1].wins = 2;
  for (const Case& c : cases) {
    Match.human[0] = c.human0, Match.human[1] = c.human1, Match.stage_count = c.stage;
    forget();
    DrawHudMessages();
    EXPECT_EQ(at(c.sprite), screen(c.x, c.y)) << c.sprite;
  }
  EXPECT_EQ(SpriteDraw.Layer_Z, -100.0f);

  Match.win_pose_count = 0, Match.ko_state = 0, Match.time_over = 1;
  forget();
  DrawHudMessages();
  EXPECT_EQ(at(23), screen(144, 168));
}

TEST_F(FightHud, DemonstrationShowsOnlyItsBanner) {
  Match.demo = 1;
  Match.time_over = 1;
  fighters[0].combo = 5, fighters[0].combo_show = 10;
  DrawHudMessages();
  EXPECT_EQ(at(445), screen(2, 7));
  EXPECT_FALSE(drawn(23));
  EXPECT_FALSE(drawn(316));
  EXPECT_EQ(fighters[0].combo_show, 10);
  EXPECT_EQ(SpriteDraw.Layer_Z, -100.0f);
}

// The notice stands for the frames the join gave it, then both players go to the select.
TEST_F(FightHud, ChallengerNoticeRunsOutIntoTheSelect) {
  Shell.GameMode = MODE_FIGHT;
  Match.challenger = 2, Match.challenger_phase = 3;
  Match.reverse[0] = 1;
  frame_count = 50;
  for (int i = 0; i < 2; ++i) {
    DrawHudMessages();
    EXPECT_EQ(at(27), layout(76, 101, 16, 16));
    EXPECT_EQ(Shell.GameMode, MODE_FIGHT);
  }
  EXPECT_EQ(at(414), layout(84, 167, 16, 16));  // the reversed controls are noticed meanwhile
  DrawHudMessages();
  EXPECT_EQ(Shell.GameMode, MODE_SELECT);
  EXPECT_EQ(Shell.SelectEnter, 1);
  EXPECT_EQ(Match.human[1], 1);
  EXPECT_EQ(Match.challenger, 0);
}

}  // namespace
