// Motion tables: the shared table, a character's table merged after it, and refusals.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "assets/asset_report.h"
#include "assets/asset_table.h"
#include "assets/scratch_dir.h"
#include "fight/fight_state.h"
#include "writers/writer_tbl.h"

namespace {

TblFile make_table(int frames, int seed) {
  TblFile t;
  t.frames.resize(frames);
  for (int i = 0; i < frames; ++i) {
    TblFrame& f = t.frames[i];
    f.key = static_cast<std::int16_t>(i % 700);
    f.offset[0] = 0.35f, f.offset[1] = -0.1f * (i % 4), f.offset[2] = static_cast<float>(seed);
    f.part = static_cast<std::int16_t>(i % 23 - 3);
    f.hit = static_cast<std::int16_t>(seed * 100 + i % 50);
  }
  return t;
}

using Range = std::pair<int, int>;
Range range(const std::int32_t* first, const std::int32_t* last, int action) {
  return {first[action], last[action]};
}

class TableFiles : public ScratchDir {
 protected:
  // A shared table of frames 0..S with a few ranges, zeros included.
  void load_shared(int player, int frames) {
    TblFile shared = make_table(frames, 1);
    shared.act[0] = {0, 59};
    shared.act[5] = {100, 140};
    shared.act[7] = {0, 0};
    shared.win[5] = {110, 130};
    ASSERT_TRUE(Write_TBL("PRELOAD.TBL", shared));
    ASSERT_TRUE(Load_PreloadTBL("PRELOAD.TBL", player));
  }
};

TEST_F(TableFiles, SharedTableIsTakenAsRead) {
  fighters[0].act_first[7] = 99;
  load_shared(0, 3000);
  const Fighter& f = fighters[0];
  EXPECT_EQ(f.last_shared_frame, 2999);
  EXPECT_EQ(range(f.act_first, f.act_last, 5), Range(100, 140));
  EXPECT_EQ(range(f.act_win_first, f.act_win_last, 5), Range(110, 130));
  EXPECT_EQ(f.act_first[7], 0);  // zeros are ranges too
  EXPECT_EQ(f.frame_key[2999], 2999 % 700);
  EXPECT_FLOAT_EQ(f.frame_offset[0][0], 3.5f);  // stored in tenths
  EXPECT_FLOAT_EQ(f.frame_offset[3][1], -3.0f);
  EXPECT_EQ(f.frame_part[1], 1 % 23 - 3);
  EXPECT_EQ(f.frame_hit[49], 149);
}

TEST_F(TableFiles, CharacterTableFollowsTheSharedFramesAndKeys) {
  fighters[1].last_shared_key = 1499;
  load_shared(1, 3000);
  TblFile own = make_table(40, 2);
  own.act[5] = {10, 20};        // taken: frames 3010..3020
  own.act[0] = {0, 20};         // starts at 0: ignored
  own.act[6] = {30, 12};        // backwards: ignored
  own.win[5] = {12, 13499};     // beyond the tables once shifted: ignored
  own.win[9] = {1, 1};
  own.act[999] = {13499, 13499};  // inside 1..13499 but past the tables: ignored
  ASSERT_TRUE(Write_TBL("own.tbl", own));
  ASSERT_TRUE(Load_TBL("own.tbl", 1));
  const Fighter& f = fighters[1];
  EXPECT_EQ(range(f.act_first, f.act_last, 5), Range(3010, 3020));
  EXPECT_EQ(range(f.act_first, f.act_last, 0), Range(0, 59));  // the shared range stays
  EXPECT_EQ(f.act_first[6] + f.act_first[999], 0);
  EXPECT_EQ(range(f.act_win_first, f.act_win_last, 5), Range(110, 130));
  EXPECT_EQ(f.act_win_first[9], 3001);
  EXPECT_EQ(f.frame_key[3000], 1500);  // own key frame 0 comes after shared key 1499
  EXPECT_EQ(f.frame_key[3039], 1500 + 39);
  EXPECT_EQ(f.frame_key[2999], 2999 % 700);
  EXPECT_FLOAT_EQ(f.frame_offset[3000][2], 20.0f);
}

TEST_F(TableFiles, FramesBeyondTheTablesAreRefusedWholesale) {
  load_shared(0, 6000);  // S = 5999: 7500 frames are left
  const Fighter& f = fighters[0];
  TblFile own = make_table(7500, 3);
  own.act[5] = {1, 2};
  ASSERT_TRUE(Write_TBL("fits.tbl", own));
  ASSERT_TRUE(Load_TBL("fits.tbl", 0));  // S + N + 2 = 13500 exactly
  EXPECT_EQ(f.frame_hit[MAX_FRAMES - 1], 300 + 7499 % 50);

  own = make_table(7501, 4);
  own.act[5] = {3, 4};
  ASSERT_TRUE(Write_TBL("over.tbl", own));
  EXPECT_FALSE(Load_TBL("over.tbl", 0));
  EXPECT_STREQ(Report_File(), "over.tbl");
  EXPECT_STREQ(Report_Reason(), "7501 frames are past the capacity: 7500 of the 13500 frames are left");
  EXPECT_EQ(f.act_first[5], 6001);  // the accepted file's range, untouched
  EXPECT_EQ(f.frame_hit[6000], 300);
  EXPECT_EQ(f.frame_hit[MAX_FRAMES - 1], 300 + 7499 % 50);

  TblFile shared = make_table(MAX_FRAMES + 1, 5);
  ASSERT_TRUE(Write_TBL("big.tbl", shared));
  TblFile bad_range = make_table(10, 6);
  bad_range.act[3] = {0, MAX_FRAMES};
  ASSERT_TRUE(Write_TBL("range.tbl", bad_range));
  std::vector<std::uint8_t> bytes;
  ASSERT_TRUE(Encode_TBL(make_table(10, 7), &bytes));
  bytes.resize(bytes.size() - 1);
  std::FILE* file = std::fopen("short.tbl", "wb");
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
  for (const char* name : {"big.tbl", "range.tbl", "short.tbl"}) {
    EXPECT_FALSE(Load_PreloadTBL(name, 0));
    EXPECT_STREQ(Report_File(), name);
  }
  EXPECT_EQ(f.last_shared_frame, 5999);
  EXPECT_EQ(f.act_last[0], 59);
  EXPECT_EQ(f.frame_hit[0], 100);
  EXPECT_FALSE(Load_TBL("absent.tbl", 0));
  EXPECT_FALSE(Load_PreloadTBL("absent.tbl", 0));
}

}  // namespace
