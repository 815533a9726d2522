// Scene picture sets: each file lands in its sprite in load order; the sprites the screens
// draw; a missing file stops a set; the versus portraits.
#include <string>

#include "fight/fight_state.h"
#include "scenes/scene_fixture.h"

namespace {

using scene_test::entries;
using scene_test::size_of;

class Pictures : public scene_test::SceneTest {};

int (*const kLoaders[PICTURE_SETS])() = {
    Load_FightPictures,  Load_SelectPictures,  Load_VersusPictures,  Load_TitlePictures,
    Load_EndingPictures, Load_RankingPictures, Load_OpeningPictures, Load_OptionsPictures,
};

// Position of (file, sprite) in the set's load order, or -1.
int position(PictureSet set, const char* file, int sprite) {
  const std::vector<PictureEntry> list = entries(set);
  for (std::size_t i = 0; i < list.size(); ++i)
    if (file == std::string(list[i].file) && list[i].sprite == sprite) return static_cast<int>(i);
  return -1;
}

}  // namespace

TEST_F(Pictures, EverySetLoadsEachFileIntoItsSpriteInOrder) {
  scene_test::write_match_files();  // the ending's effect models
  for (int set = 0; set < PICTURE_SETS; ++set) {
    SCOPED_TRACE(set);
    scene_test::write_set(static_cast<PictureSet>(set));
    Textures.Texture_Count = 77;  // a set starts from an empty table
    ASSERT_EQ(kLoaders[set](), 1);
    const std::vector<PictureEntry> list = entries(static_cast<PictureSet>(set));
    const int first = set == PICS_ENDING ? 3 : 0;  // after the ending's three models
    const int after = set == PICS_VERSUS ? 4 : 0;  // the versus portraits follow the set
    EXPECT_EQ(Textures.Texture_Count, first + static_cast<int>(list.size()) + after);
    for (std::size_t i = 0; i < list.size(); ++i) {
      const PictureEntry& e = list[i];
      EXPECT_EQ(Sprites.Raster_Slot[e.sprite], first + static_cast<int>(i)) << e.file;
      EXPECT_EQ(Sprites.Raster_Width[e.sprite], size_of(e.file).w) << e.file;
      EXPECT_EQ(Sprites.Raster_Height[e.sprite], size_of(e.file).h) << e.file;
      EXPECT_EQ(Sprites.Raster_Quad[e.sprite][2].z, 2 * e.depth + 2) << e.file;
    }
  }
}

TEST_F(Pictures, SetsHoldTheSpritesTheScreensDraw) {
  const int sizes[PICTURE_SETS] = {436, 82, 20, 37, 25, 50, 6, 41};
  for (int set = 0; set < PICTURE_SETS; ++set)
    EXPECT_EQ(Picture_SetSize(static_cast<PictureSet>(set)), sizes[set]) << set;
  // Each fight sprite 0..448 once, but for the thirteen the set leaves alone.
  std::vector<int> seen(449, 0);
  for (const PictureEntry& e : entries(PICS_FIGHT)) ++seen[static_cast<std::size_t>(e.sprite)];
  for (int s = 0; s <= 448; ++s)
    EXPECT_EQ(seen[s], (s >= 350 && s <= 359) || s == 375 || s == 391 || s == 441 ? 0 : 1) << s;

  struct Row {
    PictureSet set;
    const char* file;
    int sprite;
  };
  const Row rows[] = {
      {PICS_FIGHT, "hit20001.bmp", 45},  {PICS_FIGHT, "sspe0020.bmp", 188},
      {PICS_FIGHT, "mawn01.bmp", 324},   {PICS_FIGHT, "_evil.bmp", 390},
      {PICS_SELECT, "ikaiden1.bmp", 15}, {PICS_TITLE, "tit1_24.bmp", 297},
      {PICS_ENDING, "st_24.bmp", 124},   {PICS_OPTIONS, "9.bmp", 10},
  };
  for (const Row& r : rows) EXPECT_GE(position(r.set, r.file, r.sprite), 0) << r.file;
  // Pairs loaded against their sprite order.
  EXPECT_EQ(position(PICS_FIGHT, "round.bmp", 315) + 1, position(PICS_FIGHT, "finalrnd.bmp", 314));
  EXPECT_EQ(position(PICS_TITLE, "crdt.bmp", 413) + 1, position(PICS_TITLE, "crfbr.bmp", 412));
}

TEST_F(Pictures, AMissingFileStopsTheSetThere) {
  scene_test::write_set(PICS_FIGHT);
  for (const char* missing : {"life.bmp", "gur10005.bmp"}) {
    std::remove(missing);
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(Load_FightPictures(), 0);
    const std::string out = ::testing::internal::GetCapturedStdout();
    EXPECT_NE(out.find(std::string("Texture Loading Error ") + missing), std::string::npos);
    const int sprite = std::string(missing) == "life.bmp" ? 448 : 65;
    EXPECT_EQ(Textures.Texture_Count, position(PICS_FIGHT, missing, sprite));  // none after it
  }
}

TEST_F(Pictures, VersusPortraitsFollowOnlyACompleteSet) {
  select_slot[0] = 3;
  select_slot[1] = 24;  // character 9 in its second colours
  scene_test::write_set(PICS_VERSUS);
  for (const char* f : {"seunyu.bmp", "n_eunny.bmp", "sknif.bmp", "n_knif.bmp"})
    scene_test::write_picture(f);
  ASSERT_EQ(Load_VersusPictures(), 1);
  EXPECT_EQ(Sprites.Raster_Width[94], size_of("seunyu.bmp").w);
  EXPECT_EQ(Sprites.Raster_Width[95], size_of("n_eunny.bmp").w);
  EXPECT_EQ(Sprites.Raster_Width[96], size_of("sknif.bmp").w);
  EXPECT_EQ(Sprites.Raster_Slot[97], 23);
  EXPECT_EQ(Sprites.Raster_Quad[97][0].z, 4.0f);

  ::testing::internal::CaptureStdout();
  std::remove("sknif.bmp");
  EXPECT_EQ(Load_VersusPictures(), 1);  // a portrait's result does not count
  std::remove("vs_vs.bmp");
  Sprites.Raster_Slot[94] = -7;
  EXPECT_EQ(Load_VersusPictures(), 0);  // nor is it tried after a fixed entry failed
  ::testing::internal::GetCapturedStdout();
  EXPECT_EQ(Sprites.Raster_Slot[94], -7);
  select_slot[0] = 0;
  select_slot[1] = 9;
}
