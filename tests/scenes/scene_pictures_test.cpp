// Scene picture sets: every set's files land in their sprites in load order; the layout the
// drawing relies on; a missing file stops a set; the versus portraits.
#include <algorithm>
#include <set>
#include <string>

#include "assets/loader_harness.h"
#include "fight/fight_state.h"
#include "scenes/scene_fixture.h"

namespace {

using scene_test::entries;
using scene_test::size_of;

class Pictures : public scene_test::SceneTest {};

int (*const kLoaders[PICTURE_SETS])() = {
    Load_FightPictures,   Load_SelectPictures,  Load_VersusPictures, Load_TitlePictures,
    Load_EndingPictures,  Load_RankingPictures, Load_OpeningPictures, Load_OptionsPictures,
};

const PictureEntry* find(const std::vector<PictureEntry>& list, const char* file, int sprite) {
  for (const PictureEntry& e : list)
    if (file == std::string(e.file) && e.sprite == sprite) return &e;
  return nullptr;
}

int position(const std::vector<PictureEntry>& list, int sprite) {
  for (std::size_t i = 0; i < list.size(); ++i)
    if (list[i].sprite == sprite) return static_cast<int>(i);
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
    const int first = set == PICS_ENDING ? 3 : 0;  // the ending's models take the first slots
    const int after = set == PICS_VERSUS ? 4 : 0;  // and the versus portraits follow the set
    EXPECT_EQ(Textures.Texture_Count, first + static_cast<int>(list.size()) + after);
    for (std::size_t i = 0; i < list.size(); ++i) {
      const PictureEntry& e = list[i];
      SCOPED_TRACE(e.file);
      EXPECT_EQ(Sprites.Raster_Slot[e.sprite], first + static_cast<int>(i));
      EXPECT_EQ(Sprites.Raster_Width[e.sprite], size_of(e.file).w);
      EXPECT_EQ(Sprites.Raster_Height[e.sprite], size_of(e.file).h);
      EXPECT_EQ(Sprites.Raster_Quad[e.sprite][2].z, 2 * e.depth + 2);
    }
  }
}

TEST_F(Pictures, SetsHoldTheSpritesTheScreensDraw) {
  const int sizes[PICTURE_SETS] = {436, 82, 20, 37, 25, 50, 6, 41};
  for (int set = 0; set < PICTURE_SETS; ++set)
    EXPECT_EQ(Picture_SetSize(static_cast<PictureSet>(set)), sizes[set]) << set;

  // Each sprite once; the fight set leaves 350-359, 375, 391 and 441 alone, select 46 and 47.
  const auto check_cover = [](PictureSet set, int last, std::set<int> gaps) {
    std::vector<int> seen(static_cast<std::size_t>(last + 1), 0);
    for (const PictureEntry& e : entries(set)) ++seen[static_cast<std::size_t>(e.sprite)];
    for (int s = 0; s <= last; ++s) EXPECT_EQ(seen[s], gaps.count(s) ? 0 : 1) << s;
  };
  check_cover(PICS_FIGHT, 448, {350, 351, 352, 353, 354, 355, 356, 357, 358, 359, 375, 391, 441});
  check_cover(PICS_SELECT, 83, {46, 47});

  struct Row {
    PictureSet set;
    const char* file;
    int sprite;
    float depth;
  };
  const Row rows[] = {
      {PICS_FIGHT, "t0.bmp", 0, 0},          {PICS_FIGHT, "conti_9.bmp", 19, 0},
      {PICS_FIGHT, "t_challe.bmp", 29, 1},   {PICS_FIGHT, "ma01_1.bmp", 43, 2},
      {PICS_FIGHT, "hit20001.bmp", 45, 3},   {PICS_FIGHT, "ene20016.bmp", 124, 3},
      {PICS_FIGHT, "blo10001.bmp", 137, 0},  {PICS_FIGHT, "sspe0020.bmp", 188, 3},
      {PICS_FIGHT, "pow20016.bmp", 300, 3},  {PICS_FIGHT, "ma10.bmp", 345, 1},
      {PICS_FIGHT, "mavn03.bmp", 338, 0},    {PICS_FIGHT, "mawn01.bmp", 324, 0},
      {PICS_FIGHT, "s_knifed.bmp", 369, 0},  {PICS_FIGHT, "_evil.bmp", 390, 0},
      {PICS_FIGHT, "life.bmp", 448, 0},      {PICS_SELECT, "ikaiden1.bmp", 15, 2},
      {PICS_SELECT, "n_drmago.bmp", 45, 1},  {PICS_SELECT, "sban.bmp", 48, 1},
      {PICS_SELECT, "r.bmp", 65, 1},         {PICS_SELECT, "svs2.bmp", 83, 1},
      {PICS_VERSUS, "vsbck1.bmp", 63, 3},    {PICS_VERSUS, "white.bmp", 92, 1},
      {PICS_TITLE, "tit1_24.bmp", 297, 2},   {PICS_TITLE, "r.bmp", 314, 1},
      {PICS_TITLE, "crf9.bmp", 411, 0},      {PICS_ENDING, "st_24.bmp", 124, 2},
      {PICS_RANKING, "f10.bmp", 114, 2},     {PICS_RANKING, "rknif.bmp", 144, 2},
      {PICS_OPENING, "logo.bmp", 7, 0},      {PICS_OPTIONS, "9.bmp", 10, 0},
      {PICS_OPTIONS, "kick2.bmp", 40, 0},
  };
  for (const Row& r : rows) {
    const std::vector<PictureEntry> list = entries(r.set);
    const PictureEntry* e = find(list, r.file, r.sprite);
    ASSERT_NE(e, nullptr) << r.file;
    EXPECT_EQ(e->depth, r.depth) << r.file;
  }
  // Pairs loaded against their sprite order.
  const std::vector<PictureEntry> fight = entries(PICS_FIGHT);
  EXPECT_EQ(position(fight, 315) + 1, position(fight, 314));  // round, then final round
  EXPECT_EQ(position(fight, 413) + 1, position(fight, 412));
  const std::vector<PictureEntry> title = entries(PICS_TITLE);
  EXPECT_EQ(position(title, 413) + 1, position(title, 412));
}

TEST_F(Pictures, AMissingFileStopsTheSetThere) {
  for (const char* missing : {"life.bmp", "gur10005.bmp"}) {
    SCOPED_TRACE(missing);
    scene_test::write_set(PICS_FIGHT);
    std::remove(missing);
    const std::vector<PictureEntry> list = entries(PICS_FIGHT);
    const auto at = std::find_if(list.begin(), list.end(),
                                 [&](const PictureEntry& e) { return missing == std::string(e.file); });
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(Load_FightPictures(), 0);
    const std::string out = ::testing::internal::GetCapturedStdout();
    EXPECT_NE(out.find(std::string("Texture Loading Error ") + missing), std::string::npos);
    EXPECT_EQ(Textures.Texture_Count, at - list.begin());  // nothing after it was tried
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

  // A missing portrait does not count; a missing fixed entry stops the portraits.
  std::remove("sknif.bmp");
  ::testing::internal::CaptureStdout();
  EXPECT_EQ(Load_VersusPictures(), 1);
  std::remove("vs_vs.bmp");
  Sprites.Raster_Slot[94] = -7;
  EXPECT_EQ(Load_VersusPictures(), 0);
  ::testing::internal::GetCapturedStdout();
  EXPECT_EQ(Sprites.Raster_Slot[94], -7);
  select_slot[0] = 0;
  select_slot[1] = 9;
}
