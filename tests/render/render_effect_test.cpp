// The effect pass: lifetimes and slot exhaustion, mirrored billboards and the near-camera guard,
// projectile flight, the spark burst, flames on body parts and the glow ring.
#include "render/render_effect.h"

#include <gtest/gtest.h>

#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "fight/fight_state.h"
#include "render/render_math.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "render/render_effect_fixture.h"
#include "support/test_support.h"
#include "writers/writer_image.h"

namespace {

class EffectPass : public test::EffectPassTest {
 protected:
  // Runs the pass until the slot retires; the number of passes it was active for.
  static int passes_until_retired(const std::int32_t& active) {
    int n = 0;
    while (active && n < 200) {
      Draw_Effects();
      ++n;
    }
    return n;
  }
  static const std::uint8_t* pixel(int x, int y) {
    const int px = x * HEADLESS_WIDTH / 512, py = y * HEADLESS_HEIGHT / 384;
    return Headless_Pixels() + (py * HEADLESS_WIDTH + px) * 4;
  }
};

TEST_F(EffectPass, HitEffectsLiveTheirKindsLifetimeAndFullSlotsDropSpawns) {
  struct Case {
    int kind, start, passes;
  };
  const Case cases[] = {
      {1, 0, 16},   // hit flash
      {5, 0, 20},   // closing flash
      {6, 0, 15},   // floor wave
      {17, 0, 20},  // card
      {0, 4, 12},   // projectile dust starts at its fourth picture
      {3, -3, 19},  // delayed: waits three frames, then its whole life
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.kind);
    Effects = EffectState{};
    ASSERT_EQ(Spawn_HitEffect(1, 0, 0, 0, c.kind, c.start), 0);
    EXPECT_EQ(passes_until_retired(Effects.Hit_Effect[0].active), c.passes);
  }

  Effects = EffectState{};
  for (int i = 0; i < HIT_EFFECTS; ++i) ASSERT_EQ(Spawn_HitEffect(0, 0, 0, 0, 1, 0), i);
  EXPECT_EQ(Spawn_HitEffect(0, 0, 0, 0, 2, 0), -1);  // all busy: dropped
  for (int n = 0; n < 15; ++n) Draw_Effects();
  EXPECT_EQ(Spawn_HitEffect(0, 0, 0, 0, 2, 0), -1);
  Draw_Effects();
  EXPECT_EQ(Spawn_HitEffect(0, 0, 0, 0, 2, 0), 0);  // freed after 16 frames

  Start_GlowRing(0, -5.8f, 0, RING_BLUE);
  for (int n = 0; n < GLOW_RING_FRAMES - 1; ++n) Run_GlowRing();
  EXPECT_EQ(Effects.Glow_Ring.running, 1);
  Run_GlowRing();
  EXPECT_EQ(Effects.Glow_Ring.running, 0);
}

TEST_F(EffectPass, BillboardsAreMirroredUnlessFacingPlusXAndNothingDrawsAtTheCamera) {
  // A 4 x 4 picture: red first column, blue elsewhere, in the first hit-flash slot.
  writers::Bytes px(4 * 4 * 4);
  for (int i = 0; i < 16; ++i) {
    px[i * 4 + (i % 4 == 0 ? 0 : 2)] = 255;
    px[i * 4 + 3] = 255;
  }
  ASSERT_TRUE(writers::Write_Image("H.BMP", {4, 4, 4, px}));
  ASSERT_TRUE(Load_TextureSlot("H.BMP", 45));
  Textures.Texture_Count = 46;

  fighters[1].yaw = 270;
  Spawn_HitEffect(0, -6, 0, 0, 1, 0);      // facing 90: as stored, screen x 38..147
  Spawn_HitEffect(1, 6, 0, 0, 1, 0);       // facing 270: mirrored, screen x 365..474
  Spawn_HitEffect(1, 0, 0, -29.5f, 1, 0);  // half a unit from the camera: not drawn
  Clear_Screen(0, 0, 0);
  Clear_Depth();
  Draw_Effects();
  Blend_Normal();
  Swap_Buffers();
  EXPECT_GT(pixel(42, 192)[0], 200);  // red on the left
  EXPECT_GT(pixel(143, 192)[2], 200);
  EXPECT_EQ(pixel(143, 192)[0], 0);
  EXPECT_GT(pixel(470, 192)[0], 200);  // red on the right
  EXPECT_GT(pixel(369, 192)[2], 200);
  EXPECT_EQ(pixel(369, 192)[0], 0);
  EXPECT_EQ(pixel(256, 100)[0] + pixel(256, 100)[2], 0);  // no giant square over the screen
}

TEST_F(EffectPass, ProjectilesFlyAlongTheThrowersYawLeaveDustAndWaitOutTheHitStop) {
  Fighter& f = fighters[0];
  f.hit_kind = 24;
  f.hit_height = 1;
  f.hit_power = 7;
  f.part_box[BOX_X_MIN][7] = 1.0f;
  f.part_box[BOX_X_MAX][7] = 2.0f;
  f.part_box[BOX_Y_MIN][7] = 0.5f;
  f.part_box[BOX_Y_MAX][7] = 1.5f;
  ASSERT_EQ(Launch_Projectile(0, 7), 0);
  const ProjectileSlot& p = Effects.Projectile[0];
  EXPECT_EQ(p.kind, 24);
  EXPECT_FLOAT_EQ(p.x, 1.5f);
  EXPECT_FLOAT_EQ(p.y, 0.5f);

  frame_count = 1;
  Draw_Effects();
  EXPECT_NEAR(p.x, 2.0f, 1e-5);  // half a unit a frame toward +x
  EXPECT_NEAR(p.z, 0.0f, 0.01);  // the step table's cosine of 90 is not quite 0
  EXPECT_FALSE(Effects.Hit_Effect[0].active);
  frame_count = 4;
  Draw_Effects();
  EXPECT_TRUE(Effects.Hit_Effect[0].active);  // dust on the floor under it
  EXPECT_FLOAT_EQ(Effects.Hit_Effect[0].y, -5.6f);
  EXPECT_FLOAT_EQ(Effects.Hit_Effect[0].x, 2.0f);
  EXPECT_EQ(Effects.Hit_Effect[0].frame, 4);

  Match.hit_stop = 3;
  Draw_Effects();
  Match.hit_stop = 0;
  fighters[1].freeze_other = 1;
  Draw_Effects();
  fighters[1].freeze_other = 0;
  EXPECT_EQ(p.age, 2);
  EXPECT_NEAR(p.x, 2.5f, 1e-5);
  frame_count = 5;
  EXPECT_EQ(passes_until_retired(p.active), PROJECTILE_LIFE - 2);
  EXPECT_NEAR(p.x, 1.5f + 0.5f * (PROJECTILE_LIFE - 1), 1e-3);

  // Who throws what: the axe thrower and the card thrower store their own kinds.
  struct Case {
    int character, kind, stored, hit_points;
  };
  const Case cases[] = {{13, 24, PROJECTILE_AXE, 1},
                        {13, 25, PROJECTILE_HEAVY_AXE, 10},
                        {6, 25, PROJECTILE_CARDS, 10},
                        {6, 42, 42, 1}};
  for (const Case& c : cases) {
    Match.character[0] = c.character;
    f.hit_kind = c.kind;
    const int slot = Launch_Projectile(0, 7);
    ASSERT_GE(slot, 0);
    EXPECT_EQ(Effects.Projectile[slot].kind, c.stored);
    EXPECT_EQ(Effects.Projectile[slot].hit_points, c.hit_points);
  }
  EXPECT_EQ(Launch_Projectile(0, 7), -1);  // four in flight
}

TEST_F(EffectPass, SparksBurstAwayFromTheBlowAndBurnFiftyFrames) {
  Match.side_a = 0;
  Spawn_Sparks(1, 1, 2, 3);
  EXPECT_EQ(Effects.Burst.flag, 1);  // recorded for the replay
  EXPECT_FLOAT_EQ(Effects.Sparks[3].vx, 10.0f / 50 * 4);  // pushed far toward +x
  EXPECT_FLOAT_EQ(Effects.Sparks[15].vx, -7.0f / 50 * 1.5f);
  Spawn_Sparks(0, 1, 2, 3);  // the left-hand side's burst is the mirror image
  EXPECT_FLOAT_EQ(Effects.Sparks[3].vx, -10.0f / 50 * 4);
  EXPECT_FLOAT_EQ(Effects.Sparks[15].vx, 7.0f / 50 * 1.5f);
  EXPECT_EQ(passes_until_retired(Effects.Sparks[22].active), SPARK_LIFE);
  EXPECT_NEAR(Effects.Sparks[22].y, 2 + 10.0f / 50 * SPARK_LIFE, 1e-4);
}

TEST_F(EffectPass, BodyPartEffectsLoopOnlyWhileTheirCauseLasts) {
  Fighter& f = fighters[0];
  f.action = 150;
  f.act_last[150] = 200;
  f.frame = 100;
  f.busy = 1;
  auto start = [&](int kind, int hold, int phase) {
    f.part_fx_on[3] = 1;
    f.part_fx_kind[3] = kind;
    f.part_fx_hold[3] = hold;
    f.part_fx_phase[3] = phase;
  };
  auto burn = [&](int kind, int hold, int phase) {
    start(kind, hold, phase);
    return passes_until_retired(f.part_fx_on[3]);
  };
  EXPECT_EQ(burn(0, 1, 0), 16);  // a flame set by a blow burns once
  EXPECT_EQ(burn(2, 0, 0), 16);  // the flare never loops
  start(1, 1, 0);
  for (int n = 0; n < 100; ++n) Draw_Effects();
  EXPECT_EQ(f.part_fx_on[3], 1);  // power set by a blow glows on
  f.busy = 0;
  EXPECT_EQ(burn(0, 0, -4), 20);  // a spread flame waits out its delay, then burns once
  f.frame = 170;
  EXPECT_EQ(burn(1, 1, 0), 32);  // not into the last 32 frames of the action
  f.busy = 1;
  f.frame = 100;
  start(0, 0, 0);
  for (int n = 0; n < 16; ++n) Draw_Effects();
  EXPECT_EQ(f.part_fx_on[3], 1);  // a spread flame on a busy fighter starts again
  EXPECT_EQ(f.part_fx_phase[3], 0);
}

}  // namespace
