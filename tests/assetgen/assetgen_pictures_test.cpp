// Generated pictures: every file of every picture set, of the stage table and of the model
// rows' alternate faces loads through the game's image loader with a power-of-two size the
// loader takes; the generator writes the same bytes every time.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "assetgen.h"
#include "assets/asset_image.h"
#include "figures/fig_roster.h"
#include "render/render_stage.h"
#include "pictures/pic_groups.h"
#include "pictures/pic_text.h"
#include "support/test_support.h"

namespace {

using Names = std::vector<std::string>;

// "stem0001.bmp" ... for a numbered series.
void Series(Names& n, const char* stem, int first, int last, const char* format = "%s%d.bmp") {
  char buf[32];
  for (int i = first; i <= last; ++i) std::snprintf(buf, sizeof buf, format, stem, i), n.push_back(buf);
}
void List(Names& n, std::initializer_list<const char*> names) {
  for (const char* s : names) n.push_back(std::string(s) + ".bmp");
}

Names Fight_Set() {
  Names n;
  Series(n, "t", 0, 9);
  Series(n, "conti_", 0, 9);
  List(n, {"fight", "ko", "replay", "timeover", "continue", "gameover", "continu2", "chall", "t_champ", "t_challe"});
  Series(n, "cham_no", 0, 9);
  List(n, {"win_full", "win_empt", "ma01", "ma01_1", "effct"});
  for (const char* s : {"hit2", "gur1", "down", "ene1", "ene2", "blo1", "blam", "wave", "gur2", "exp1", "exp2", "fire",
                        "blo2", "pow2"})
    Series(n, s, 1, 16, "%s%04d.bmp");
  Series(n, "sspe", 1, 20, "%s%04d.bmp");
  List(n, {"dlight", "white", "card_j", "card_q", "card_k", "card_ace", "card_jok", "t_start", "t_insert", "frstat",
           "hitcombo", "round", "finalrnd", "ma03", "ma11", "ma12", "g", "y", "r", "s", "youwin", "youlose", "perfct1",
           "perfct2", "replyang", "rglow1", "finlglo", "fhtglo", "contibk1", "contibk2", "t_crdit", "t_slsh", "keychng",
           "rvrsl", "1st", "2nd", "3rd", "4th", "5th", "smcoma", "spfon1", "spfon2", "smvdr", "congrat", "congrat2",
           "life"});
  Series(n, "combo_", 0, 9);
  Series(n, "st", 1, 4);
  for (const char* s : {"mawn", "mabn", "marn", "macn", "mavn"}) Series(n, s, 0, 3, "%s%02d.bmp");
  Series(n, "ma", 4, 10, "%s%02d.bmp");
  for (const char* c : {"ban", "hana", "kaiden", "eunyu", "drung", "honoka", "rabalt", "reimei", "vashi", "knifed",
                        "eunhee", "henry", "enya", "mago", "evil"})
    n.push_back(std::string("s_") + c + ".bmp"), n.push_back(std::string("_") + c + ".bmp");
  Series(n, "cr_t", 0, 9);
  Series(n, "sl", 0, 9);
  Series(n, "sm", 0, 9);
  return n;
}

Names Select_Set() {
  Names n;
  Series(n, "x", 0, 9);
  for (const char* c : {"iban", "ihana", "ikaiden", "ieunyu", "idrong", "ihonoka", "irabalt", "ireimei", "ivash", "iknif"})
    n.push_back(std::string(c) + ".bmp"), n.push_back(std::string(c) + "1.bmp");
  List(n, {"slqus", "n_ban", "n_hana", "n_kaidn", "n_eunny", "n_dron", "n_hono", "n_rabal", "n_reime", "n_vash",
           "n_knif", "n_eunhe", "n_henly", "n_enya", "n_drmago", "n_evil", "sban", "shana", "skaid", "seunyu", "sdang",
           "shono", "srabal", "sreim", "sbash", "sknif", "seunhe", "shenly", "senya", "sdrmago", "sboss", "scom",
           "chrbx1_1", "chrbx1_2", "sbck1", "sbck2", "seleff", "seleff2", "fontbar", "slcom", "sp1p", "sp2p", "sp3p1",
           "sp3p2", "chslt1", "chslt2", "chslt3", "chsltblk", "slctply", "svs1", "svs2"});
  Series(n, "vs_", 0, 9);
  List(n, {"vsbck1", "vstag1", "vstag2", "vfnlstg1", "vfnlstg2", "vs_vs", "vsbck2", "vsbck3", "vfntbar"});
  return n;
}

Names Front_End_Sets() {
  Names n;
  List(n, {"titlbck", "tn31", "tn32", "tit1_21", "tit1_22", "tit1_23", "tit1_24", "tfir", "tit1_1", "tit1_2", "advanc",
           "fmly1", "fmly2", "bar", "pstrt1", "pstrt2", "insrt", "crdt", "crfbr", "flogo", "flogo2", "titlblk", "logo",
           "OPEN_BOT", "SB_HANA", "WHITE", "wscoma", "vdback1", "vdback2", "ranking", "wins", "rban", "rhana", "rkaid",
           "reunyu", "rdang", "rhono", "rrabal", "rreim", "rvashi", "rknif", "setup", "gameleve", "gametime", "damage",
           "gamepoin", "coins", "special", "sound", "exit", "off", "on", "high", "mideum", "low", "arrow01", "arrow02",
           "mode", "g_fps", "1pa", "1pb", "1pc", "1pd", "2pa", "2pb", "2pc", "2pd", "punch1", "punch2", "kick1",
           "kick2"});
  Series(n, "crf", 0, 9);
  Series(n, "f", 1, 10);
  Series(n, "w", 0, 9);
  Series(n, "ws", 0, 9);
  Series(n, "rsp", 1, 4);
  Series(n, "", 0, 9);
  Series(n, "st_", 1, 24, "%s%02d.bmp");
  return n;
}

// Every character's stage from the game's own stage table, and the model rows' faces.
Names Stage_Files() {
  Names n;
  for (const StagePictures& row : StageTable) {
    n.push_back(row.floor), n.push_back(row.light), n.push_back(row.super_move);
    for (const char* panel : row.backdrop) n.push_back(panel);
  }
  for (int row = 0; row < fig::kRows; ++row) n.push_back(fig::Fig_HurtFaceFile(row)), n.push_back(fig::Fig_ShoutFaceFile(row));
  return n;
}

std::string Read(const std::string& path) {
  std::string out;
  if (std::FILE* f = std::fopen(path.c_str(), "rb")) {
    char buf[65536];
    std::size_t k;
    while ((k = std::fread(buf, 1, sizeof buf, f)) > 0) out.append(buf, k);
    std::fclose(f);
  }
  return out;
}

// A picture file's size, components and pixels.
struct Picture {
  int w = 0, h = 0, c = 0;
  std::string px;
  int at(int x, int y, int k) const { return static_cast<unsigned char>(px[(static_cast<std::size_t>(y) * w + x) * c + k]); }
};
Picture Load_Picture(const std::string& path) {
  std::string b = Read(path);
  Picture p;
  if (b.size() < 6) return p;
  p.w = static_cast<unsigned char>(b[0]) | static_cast<unsigned char>(b[1]) << 8;
  p.h = static_cast<unsigned char>(b[2]) | static_cast<unsigned char>(b[3]) << 8;
  p.c = b[4] == 4 ? 4 : 3;
  p.px = b.substr(6);
  if (p.px.size() != static_cast<std::size_t>(p.w) * p.h * p.c) p.w = p.h = 0;
  return p;
}
// Mean colour difference between column xa of a and column xb of b.
double Column_Step(const Picture& a, int xa, const Picture& b, int xb) {
  double sum = 0;
  for (int y = 0; y < a.h; ++y)
    for (int k = 0; k < 3; ++k) sum += std::abs(a.at(xa, y, k) - b.at(xb, y, k));
  return sum / (a.h * 3);
}

bool Power_Of_Two(int v) { return v > 0 && (v & (v - 1)) == 0; }

// The whole picture set, generated once for the suite.
class AssetgenPictures : public ::testing::Test {
 protected:
  // The build's data set when it holds the pictures; otherwise fresh fighters and pictures in a
  // scratch directory.
  static void SetUpTestSuite() {
    if (!Read(std::string(VALDRUNE_DATA_DIR) + "/ma01.bmp").empty()) {
      dir_ = VALDRUNE_DATA_DIR;
      ok_ = true;
      return;
    }
    char templ[] = "/tmp/valdrune-pictures-XXXXXX";
    ASSERT_NE(mkdtemp(templ), nullptr);
    dir_ = scratch_ = templ;
    gen::Context ctx;
    ctx.out = dir_;
    ok_ = gen::Generate_Figures(ctx) && gen::Generate_Pictures(ctx);
  }
  static void TearDownTestSuite() {
    if (!scratch_.empty()) std::system(("rm -rf '" + scratch_ + "'").c_str());
  }

  // Loads every file as a screen sprite from the generated directory.
  static void Expect_Loads(const Names& names) {
    ASSERT_TRUE(ok_);
    test::ensure_gl();
    char cwd[1024];
    ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
    ASSERT_EQ(chdir(dir_.c_str()), 0);
    Reset_Textures();
    for (const std::string& name : names) {
      if (Textures.Texture_Count >= 900) Reset_Textures();
      ASSERT_TRUE(Load_Raster(name.c_str(), 500, 0.0f)) << name;
      int w = Sprites.Raster_Width[500], h = Sprites.Raster_Height[500];
      EXPECT_TRUE(Power_Of_Two(w) && Power_Of_Two(h) && w <= IMAGE_MAX_SIDE && h <= IMAGE_MAX_SIDE)
          << name << " is " << w << " x " << h;
    }
    Reset_Textures();
    ASSERT_EQ(chdir(cwd), 0);
  }

  static std::string dir_, scratch_;
  static bool ok_;
};
std::string AssetgenPictures::dir_, AssetgenPictures::scratch_;
bool AssetgenPictures::ok_ = false;

TEST_F(AssetgenPictures, FightSetLoads) { Expect_Loads(Fight_Set()); }
TEST_F(AssetgenPictures, SelectAndVersusSetsLoad) { Expect_Loads(Select_Set()); }
TEST_F(AssetgenPictures, TitleOpeningRankingOptionsAndEndingLoad) { Expect_Loads(Front_End_Sets()); }
TEST_F(AssetgenPictures, EveryStageSuperBackdropAndAlternateFaceLoads) { Expect_Loads(Stage_Files()); }

// Floors tile, and the three backdrop panels' scene wraps round: the step across the seam is
// no larger than across the same place inside the picture (the tile's middle, the panels'
// own joins).
TEST_F(AssetgenPictures, FloorsTileAndBackdropsWrap) {
  ASSERT_TRUE(ok_);
  for (int s = 1; s <= 12; ++s) {
    char stem[8];
    std::snprintf(stem, sizeof stem, "DS%02d", s);
    Picture floor = Load_Picture(dir_ + "/" + stem + "_MA1.bmp");
    Picture bg[3];
    for (int k = 0; k < 3; ++k) bg[k] = Load_Picture(dir_ + "/" + stem + "_BG" + std::to_string(k + 1) + ".bmp");
    ASSERT_GT(floor.w, 0) << stem;
    double middle = Column_Step(floor, floor.w / 2 - 1, floor, floor.w / 2);
    EXPECT_LE(Column_Step(floor, floor.w - 1, floor, 0), middle * 1.5 + 4) << stem << " floor seam";
    for (const Picture& p : bg) ASSERT_TRUE(p.w == bg[0].w && p.h == bg[0].h && p.w > 0) << stem;
    int last = bg[0].w - 1;
    double joins = std::max(Column_Step(bg[0], last, bg[1], 0), Column_Step(bg[1], last, bg[2], 0));
    EXPECT_LE(Column_Step(bg[2], last, bg[0], 0), joins * 2 + 8) << stem << " backdrop wrap";
  }
}

// Letters set whole into their sprite are not cut by its edges: the border stays clear.
TEST_F(AssetgenPictures, TextSpritesKeepTheirLettersInside) {
  ASSERT_TRUE(ok_);
  Names names;
  List(names, {"fight", "ko", "perfct1", "timeover", "youwin", "youlose", "gameover", "finalrnd", "vs_vs", "slctply",
               "ranking", "hitcombo", "keychng", "smvdr", "1st", "spfon1", "spfon2", "insrt", "advanc", "gameleve",
               "special", "mideum"});
  for (const char* set : {"t", "conti_", "combo_", "x", "vs_", "sl", "sm", "w", "ws"}) Series(names, set, 0, 9);
  for (const std::string& name : names) {
    Picture p = Load_Picture(dir_ + "/" + name);
    ASSERT_EQ(p.c, 4) << name;
    int worst = 0;
    for (int x = 0; x < p.w; ++x) worst = std::max({worst, p.at(x, 0, 3), p.at(x, p.h - 1, 3)});
    for (int y = 0; y < p.h; ++y) worst = std::max({worst, p.at(0, y, 3), p.at(p.w - 1, y, 3)});
    EXPECT_LT(worst, 40) << name << " has letters on its edge";
  }
}

// The ending's captions break into lines that fit their panels: no letter reaches the panel's
// sides, where the dark backing has faded out and the screen cuts the picture off.
TEST_F(AssetgenPictures, EndingCaptionsFitTheirPanels) {
  ASSERT_TRUE(ok_);
  for (int panel : {1, 4, 5, 7, 8, 9, 11, 12, 13, 14, 15, 16, 20, 24}) {
    char name[16];
    std::snprintf(name, sizeof name, "st_%02d.bmp", panel);
    Picture p = Load_Picture(dir_ + "/" + name);
    ASSERT_EQ(p.c, 4) << name;
    int worst = 0;
    for (int y = 0; y < p.h; ++y)
      for (int x : {0, 1, 2, p.w - 3, p.w - 2, p.w - 1}) worst = std::max(worst, p.at(x, y, 3));
    EXPECT_LT(worst, 40) << name << " has letters at its sides";
  }
}

// Another run of the text, effect and fighter pictures writes the same bytes.
TEST_F(AssetgenPictures, GenerationIsDeterministic) {
  ASSERT_TRUE(ok_);
  char templ[] = "/tmp/valdrune-pictures-again-XXXXXX";
  ASSERT_NE(mkdtemp(templ), nullptr);
  std::string again = templ;
  ASSERT_TRUE(pic::Text_Open());
  pic::Output out;
  out.dir = again;
  pic::Pictures_FightMessages(out);
  pic::Pictures_Effects(out);
  pic::Pictures_Portraits(out);
  pic::Text_Close();
  ASSERT_TRUE(out.ok);
  for (const char* name : {"fight.bmp", "continue.bmp", "exp10007.bmp", "fire0016.bmp", "sban.bmp", "iknif1.bmp",
                           "n_evil.bmp", "rsp4.bmp"}) {
    std::string a = Read(dir_ + "/" + name), b = Read(again + "/" + name);
    EXPECT_FALSE(a.empty()) << name;
    EXPECT_TRUE(a == b) << name << " differs between runs";
  }
  std::system(("rm -rf '" + again + "'").c_str());
}

}  // namespace
