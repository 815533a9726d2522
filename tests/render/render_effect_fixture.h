// A clean effect pass for drawing tests: tables built, no textures, no effects, two blank
// fighters facing each other, the camera 30 units behind the origin looking along +z.
#pragma once
#include <gtest/gtest.h>

#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "fight/fight_state.h"
#include "render/render_effect.h"
#include "render/render_math.h"
#include "render/render_state.h"
#include "render/render_view.h"
#include "support/test_support.h"

namespace test {

class EffectPassTest : public TempDirTest {
 protected:
  void SetUp() override {
    TempDirTest::SetUp();
    ensure_gl();
    Build_SinCosTables();
    Build_AngleTables();
    Reset_Textures();
    Effects = EffectState{};
    static const Fighter kBlank{};
    fighters[0] = kBlank;
    fighters[1] = kBlank;
    fighters[0].yaw = 90;
    fighters[1].yaw = 270;
    Match = MatchState{};
    frame_count = 0;
    for (EffectModel& m : Polygon_Sprite) m.max_vtx = m.max_face = 0;
    Mat_Translate(&View, 0, 0, 30);
  }
  void TearDown() override {
    Reset_Textures();
    TempDirTest::TearDown();
  }
};

}  // namespace test
