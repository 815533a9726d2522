// Camera path files: the round trip into a slot, and the files a path refuses.
#include <cstring>

#include <cmath>

#include "assets/loader_harness.h"
#include "camera/camera_fight.h"
#include "camera/camera_path.h"
#include "fight/fight_state.h"
#include "render/render_math.h"
#include "render/render_view.h"
#include "writers/writer_cam.h"

namespace {

using harness::run;
using CameraPathLoad = harness::LoaderTest;

writers::CameraPathFile path_of(int frames) {
  writers::CameraPathFile f;
  for (int k = 0; k < frames; ++k) f.points.push_back({5.0f * k, 10.0f, -15.0f});
  return f;
}

TEST_F(CameraPathLoad, EyeAndLookAtFilesFillTheirSlotsInWorldUnits) {
  CameraPath[1] = {};
  ASSERT_TRUE(writers::Write_CameraPath("OPEN_POS.CAM", path_of(3)));
  writers::CameraPathFile look = path_of(2);
  look.points[1] = {-2.5f, 0.5f, 1e6f};
  ASSERT_TRUE(writers::Write_CameraPath("open_poi.cam", look));

  EXPECT_EQ(LoadCameraPath("OPEN_POS.CAM", 1, CAMERA_PATH_EYE), 1);
  EXPECT_EQ(CameraPath[1].frame_count, 3);
  EXPECT_EQ(CameraPath[1].x[2][1], 2.0f);
  EXPECT_EQ(CameraPath[1].height[0][1], 2.0f);
  EXPECT_EQ(CameraPath[1].z[0][1], -3.0f);
  EXPECT_EQ(CameraPath[1].x[1][0], 0.0f) << "the look-at slot is untouched";

  EXPECT_EQ(LoadCameraPath("OPEN_POI.CAM", 1, CAMERA_PATH_LOOK_AT), 1);
  EXPECT_EQ(CameraPath[1].frame_count, 2);  // the count of the file read last
  EXPECT_EQ(CameraPath[1].x[1][0], -0.5f);
  EXPECT_EQ(CameraPath[1].height[1][0], 0.1f);
  EXPECT_EQ(CameraPath[1].z[1][0], 200000.0f);
  EXPECT_EQ(CameraPath[1].x[2][1], 2.0f) << "the eye slot is untouched";
}

TEST_F(CameraPathLoad, AFullPathLoadsAndLongerShortOrMissingFilesLeaveThePathAsItWas) {
  ASSERT_TRUE(writers::Write_CameraPath("FULL.CAM", path_of(CAMERA_PATH_FRAMES)));
  EXPECT_EQ(LoadCameraPath("FULL.CAM", 0, 1), 1);
  EXPECT_EQ(CameraPath[0].x[CAMERA_PATH_FRAMES - 1][1], CAMERA_PATH_FRAMES - 1.0f);

  writers::Bytes bytes;
  ASSERT_TRUE(writers::Encode_CameraPath(path_of(CAMERA_PATH_FRAMES + 1), bytes));
  ASSERT_TRUE(writer_bytes::save("LONG.CAM", bytes));
  ASSERT_TRUE(writers::Encode_CameraPath(path_of(4), bytes));
  bytes.resize(bytes.size() - 1);
  ASSERT_TRUE(writer_bytes::save("SHORT.CAM", bytes));
  ASSERT_TRUE(writer_bytes::save("NEG.CAM", {0xff, 0xff}));
  // Nothing on standard output (the game's rules keep these silent); one line each on the
  // diagnostic channel.
  const std::string kept = "; camera path 0 keeps what it held\n";
  struct Case { const char* file; int path, slot; std::string err; };
  const Case cases[] = {
      {"LONG.CAM", 0, 1, "valdrune: LONG.CAM: 1351 frames are past the capacity of a path (0 to 1350)" + kept},
      {"SHORT.CAM", 0, 1, "valdrune: SHORT.CAM: too short: it ends at frame 3 of 4" + kept},
      {"NEG.CAM", 0, 0, "valdrune: NEG.CAM: damaged: -1 frames" + kept},
      {"NONE.CAM", 0, 1, "valdrune: NONE.CAM: missing" + kept},
      {"FULL.CAM", 2, 0, "valdrune: FULL.CAM: there is no camera path 2 slot 0; the file is not read\n"},
  };
  static CameraPathRecord before[CAMERA_PATHS];
  std::memcpy(before, CameraPath, sizeof CameraPath);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.file);
    const auto o = run([&] { EXPECT_EQ(LoadCameraPath(c.file, c.path, c.slot), 0); });
    EXPECT_EQ(o.out, "");
    EXPECT_EQ(o.err, c.err);
    EXPECT_EQ(std::memcmp(before, CameraPath, sizeof CameraPath), 0);
  }
}

// ---- playback --------------------------------------------------------------------------------

class CameraPathPlay : public ::testing::Test {
 protected:
  void SetUp() override {
    Build_SinCosTables();
    Build_AngleTables();
    FightCamera = FightCameraState{};
    CameraPath[1] = {};
    fighters[0].pos_x = 2.0f;
    fighters[0].pos_y = 3.2f;
    fighters[0].pos_z = 1.0f;
    fighters[0].yaw = 90;
  }
  static void set_frame(int k, const float look[3], const float eye[3]) {
    for (int slot = 0; slot < 2; ++slot) {
      const float* p = slot == CAMERA_PATH_EYE ? eye : look;
      CameraPath[1].x[k][slot] = p[0];
      CameraPath[1].height[k][slot] = p[1];
      CameraPath[1].z[k][slot] = p[2];
    }
  }
};

TEST_F(CameraPathPlay, PointsFollowTheAnchorTurnedByItsYawAndTheLastFrameReportsTheEnd) {
  const float look[3] = {1.0f, 2.0f, -3.0f}, eye[3] = {0.0f, 4.0f, -20.0f};
  for (int k = 0; k < 3; ++k) set_frame(k, look, eye);
  CameraPath[1].frame_count = 3;
  EXPECT_EQ(PlayCameraPath(1, 0, 3), 0);  // facing 90: no turn, just moved to the fighter
  EXPECT_FLOAT_EQ(FightCamera.look_x, 3.0f);
  EXPECT_FLOAT_EQ(FightCamera.look_y, 5.2f);
  EXPECT_FLOAT_EQ(FightCamera.eye_z, -19.0f);
  fighters[0].yaw = 0;  // a quarter turn the other way: (x, z) becomes (-z, x)
  EXPECT_EQ(PlayCameraPath(1, 0, 3), 0);
  EXPECT_NEAR(FightCamera.target_x, 2.0f + 3.0f, 1e-5f);
  EXPECT_NEAR(FightCamera.eye_x, 2.0f + 20.0f, 1e-5f);
  EXPECT_EQ(PlayCameraPath(1, 0, 3), 1) << "the third of three frames is the last";

  CameraPath[1].current_frame = CAMERA_PATH_FRAMES;  // out of range: nothing is played
  const FightCameraState before = FightCamera;
  for (const int path : {1, 2, -1}) {
    const auto o = run([&] { EXPECT_EQ(PlayCameraPath(path, path == 2 ? 0 : 2, 3), 1); });
    EXPECT_EQ(o.out, "\r\r\rCamera ERROR!!!\r\r\r");
  }
  EXPECT_EQ(std::memcmp(&before, &FightCamera, sizeof before), 0);
}

TEST_F(CameraPathPlay, TheViewLooksFromThePathsEyePoint) {
  // Eye points all round and above the look-at point: the view set-up must put its eye in
  // the same direction, within the whole degrees of the arcsine table.
  const float look[3] = {0.0f, 0.0f, 0.0f};
  const float eyes[][3] = {{0, 3, -20}, {0, 3, 20},   {20, 3, 0},     {-20, 3, 0},
                           {14, 8, 14}, {-14, 2, -14}, {10, 12, -17}, {-5, -3, 18}};
  for (const auto& e : eyes) {
    set_frame(0, look, e);
    CameraPath[1].frame_count = 1;
    CameraPath[1].current_frame = 0;
    PlayCameraPath(1, 0, 3);
    Set_View();
    const float* m = View.m;  // the eye is where the view carries the origin from
    float dot = 0, lw = 0, lg = 0;
    for (int i = 0; i < 3; ++i) {
      const float seen = -(m[9] * m[3 * i] + m[10] * m[3 * i + 1] + m[11] * m[3 * i + 2]);
      const float at = i == 0 ? FightCamera.look_x : i == 1 ? FightCamera.look_y : FightCamera.look_z;
      const float want = e[i] + (i == 0 ? 2.0f : i == 1 ? 3.2f : 1.0f) - at;
      dot += want * (seen - at);
      lw += want * want;
      lg += (seen - at) * (seen - at);
    }
    EXPECT_GT(dot / std::sqrt(lw * lg), std::cos(4.0f * 3.14159f / 180.0f))
        << e[0] << "," << e[1] << "," << e[2];
  }
}

}  // namespace
