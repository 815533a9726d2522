// Character loading: the row's files, attachments, and the table half of the sequence.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "assets/asset_anim.h"
#include "assets/asset_character.h"
#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "assets/asset_report.h"
#include "assets/model_fixture.h"
#include "assets/scratch_dir.h"
#include "fight/fight_state.h"
#include "writers/writer_bsc.h"
#include "writers/writer_fa.h"
#include "writers/writer_tbl.h"

namespace {

class CharacterLoad : public ScratchDir {
 protected:
  void SetUp() override {
    ScratchDir::SetUp();
    ASSERT_TRUE(Plat_OpenWindow("test"));  // the model's textures need a GL context
    Reset_Textures();
    writers::ImageFile skin{2, 2, 3, writers::Bytes(12, 200)};
    for (const char* name : {"T.BMP", "HONO2PDM.bmp", "HONO2PVC.bmp", "EUNYDM.bmp", "EUNYVC.bmp"})
      ASSERT_TRUE(writers::Write_Image(name, skin));
    ASSERT_TRUE(writers::Write_3DM("honoka2p.3dm", harness::sample_model(1)));
    ASSERT_TRUE(writers::Write_3DM("eunyu.3dm", harness::sample_model(12)));
    std::vector<FaKeyFrame> shared(10);
    ASSERT_TRUE(Write_FA("PRELOAD.FA", FaKind::PackedArmFree, 21, shared));
    ASSERT_TRUE(Load_PreloadFA("PRELOAD.FA"));
  }
};

TEST_F(CharacterLoad, SecondColourRowReadsTheCharactersFiles) {
  select_slot[1] = 20;  // character 5 in its second colours
  Fighter& f = fighters[1];
  f.gain_a = f.gain_b = 4;
  f.frame_part[13000] = 9;
  std::vector<FaKeyFrame> own(3);
  own[2].parts[19 - 2].rot[0] = 123;  // a weapon part of its own
  ASSERT_TRUE(Write_FA("honoka.fx3", FaKind::PlainFull, 21, own));
  ASSERT_TRUE(Write_BSC("honoka.bsc", std::vector<BscJoint>(20, {1, 2, 3})));
  TblFile shared;
  shared.frames.resize(100);
  shared.act[1] = {10, 20};
  ASSERT_TRUE(Write_TBL("PRELOAD.TBL", shared));
  TblFile mine;
  mine.frames.resize(5);
  mine.frames[4].key = 2;
  mine.act[190] = {1, 4};
  ASSERT_TRUE(Write_TBL("honoka.tbl", mine));

  capture();
  EXPECT_TRUE(Load_Character(1));
  EXPECT_EQ(captured(), "");
  EXPECT_EQ(Knight[1].max_tag, 21);  // the row's model, with both alternate faces
  EXPECT_NE(Knight[1].alt1_slot, Knight[1].alt2_slot);
  EXPECT_EQ(f.gain_a + f.gain_b + f.frame_part[13000], 0);
  EXPECT_FLOAT_EQ(Anim.Skeleton[21][2], 3.0f);
  EXPECT_EQ(Anim.CharKeys[1][2][19 - 2][0], 123);
  EXPECT_EQ(f.act_first[1], 10);
  EXPECT_EQ(std::make_pair(f.act_first[190], f.act_last[190]), std::make_pair(101, 104));
  EXPECT_EQ(f.frame_key[104], 10 + 2);  // after the ten shared key frames
  // Character 5's chains: (0, 2, 0, 100, 1) (1, 2, -80, 0, 0) (2, 10, 0, 0, 0) (3, 16, 0, 0, 0).
  EXPECT_EQ(f.attach[0].present, 1);
  EXPECT_EQ(f.attach[0].upper, 100);
  EXPECT_EQ(f.attach[1].lower, -80);
  EXPECT_EQ(f.attach[1].reverse, 0);
  EXPECT_EQ(f.attach[3].anchor_part, 16);
}

TEST_F(CharacterLoad, MissingFilesAreReportedAndLoadingGoesOn) {
  select_slot[0] = 3;
  fighters[0].frame_part[5] = 7;
  capture();
  EXPECT_TRUE(Load_Character(0));
  // The game's own messages, as they always ran together; then a line a file each.
  EXPECT_EQ(captured(), "file open error eunyu.fa0 FX3 Error\nPreload FX3 Table Error 0 Table Error\n");
  EXPECT_EQ(diagnostics(),
            "valdrune: eunyu.bsc: missing; the skeleton read before stays\n"
            "valdrune: eunyu.fa: missing; fighter 0 keeps the key frames it had\n"
            "valdrune: PRELOAD.TBL: missing; fighter 0 keeps the shared moves it had\n"
            "valdrune: eunyu.tbl: missing; fighter 0 keeps the moves it had\n");
  EXPECT_EQ(fighters[0].frame_part[5], 0);

  const std::uint8_t stub[7] = {};  // damaged files say what is wrong with them
  write_bytes("PRELOAD.TBL", stub, sizeof stub);
  write_bytes("eunyu.fa", stub, 3);
  capture();
  EXPECT_TRUE(Load_Character(0));
  captured();
  EXPECT_NE(diagnostics().find("valdrune: eunyu.fa: too short: 3 bytes, less than the 4-byte head; "
                               "fighter 0 keeps the key frames it had\n"),
            std::string::npos)
      << diagnostics();
  EXPECT_NE(diagnostics().find("valdrune: PRELOAD.TBL: too short: 7 bytes, less than the 8004-byte"),
            std::string::npos)
      << diagnostics();

  select_slot[0] = 100;  // nobody's row: the preparation that asked ends the game
  EXPECT_FALSE(Load_Character(0));
  EXPECT_STREQ(Report_File(), "the character table");
  EXPECT_STREQ(Report_Reason(), "fighter 0 has no row 100 (0 to 29)");
}

TEST(CharacterAttachments, LimitsAreOrderedAndSharedSetsFollow) {
  fighters[0].attach[4] = {};
  Setup_Attachments(0, 10);  // its own first chain, then character 3's four
  const Attachment* a = fighters[0].attach;
  EXPECT_EQ(a[0].upper, 99);
  EXPECT_EQ(std::make_pair(a[1].lower, a[1].upper), std::make_pair(-120, 0));
  EXPECT_EQ(std::make_pair(a[4].present, a[4].anchor_part), std::make_pair(1, 3));
  Set_Attachment(1, 2, 4, 120, 15, 1);
  EXPECT_EQ(std::make_pair(fighters[1].attach[2].lower, fighters[1].attach[2].upper),
            std::make_pair(15, 120));
  EXPECT_EQ(CharacterTable[19].replaced, 20);
  EXPECT_STREQ(CharacterTable[29].anim, CharacterTable[14].anim);
}

}  // namespace
