// Camera path files: the round trip into a slot, and the files a path refuses.
#include <cstring>

#include "assets/loader_harness.h"
#include "camera/camera_path.h"
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

}  // namespace
