// The front-end scenes' picture sets: select, versus, title, ending, ranking, opening, options.
#include "scenes/scene_picture_runs.h"

const char* const PortraitStems[PICTURE_CHARACTERS] = {
    "sban",   "shana", "skaid",  "seunyu", "sdang", "shono",   "srabal", "sreim",
    "sbash",  "sknif", "seunhe", "shenly", "senya", "sdrmago", "sboss",
};
const char* const NamePlateStems[PICTURE_CHARACTERS] = {
    "n_ban",  "n_hana", "n_kaidn", "n_eunny", "n_dron", "n_hono",   "n_rabal", "n_reime",
    "n_vash", "n_knif", "n_eunhe", "n_henly", "n_enya", "n_drmago", "n_evil",
};

namespace {

// Select icons of characters 0..9, first then second colours.
constexpr const char* kIconFiles[] = {
    "iban",   "iban1",   "ihana",   "ihana1",   "ikaiden", "ikaiden1", "ieunyu",
    "ieunyu1", "idrong", "idrong1", "ihonoka",  "ihonoka1", "irabalt", "irabalt1",
    "ireimei", "ireimei1", "ivash", "ivash1",   "iknif",   "iknif1",
};
// Ranking faces of characters 0..9.
constexpr const char* kRankingFaces[] = {
    "rban", "rhana", "rkaid", "reunyu", "rdang", "rhono", "rrabal", "rreim", "rvashi", "rknif",
};

// clang-format off
constexpr PictureRun kSelectRuns[] = {
    Series("x", 1, 0, 9, 0, 0),               // count-down digits
    Stems("", kIconFiles, 20, 10, 2),         // icons
    File("slqus.bmp", 30, 2),
    File("r.bmp", 31, 2),
    Stems("", NamePlateStems, 14, 32, 1),     // name plates 0..13
    Stems("", PortraitStems, 14, 48, 1),      // portraits 0..13
    File("scom.bmp", 62, 1),
    File("chrbx1_1.bmp", 63, 1),
    File("chrbx1_2.bmp", 64, 1),
    File("r.bmp", 65, 1),
    File("r.bmp", 66, 1),
    File("sbck1.bmp", 67, 1),
    File("sbck2.bmp", 68, 1),
    File("seleff.bmp", 69, 1),
    File("seleff2.bmp", 70, 1),
    File("fontbar.bmp", 71, 1),
    File("slcom.bmp", 72, 1),
    File("sp1p.bmp", 73, 0),                  // cursors and markers
    File("sp2p.bmp", 74, 0),
    File("sp3p1.bmp", 75, 0),
    File("sp3p2.bmp", 76, 0),
    File("chslt1.bmp", 77, 0),
    File("chslt2.bmp", 78, 0),
    File("chslt3.bmp", 79, 0),
    File("chsltblk.bmp", 80, 0),
    File("slctply.bmp", 81, 1),
    File("svs1.bmp", 82, 1),
    File("svs2.bmp", 83, 1),
};

constexpr PictureRun kVersusRuns[] = {
    Series("vs_", 1, 0, 9, 0, 0),             // stage digits
    File("vsbck1.bmp", 63, 3),                // backdrop
    File("vstag1.bmp", 84, 1),                // "stage"
    File("vstag2.bmp", 85, 1),
    File("vfnlstg1.bmp", 86, 1),              // "final stage"
    File("vfnlstg2.bmp", 87, 1),
    File("vs_vs.bmp", 88, 1),
    File("vsbck2.bmp", 89, 1),
    File("vsbck3.bmp", 90, 1),
    File("vfntbar.bmp", 91, 1),
    File("white.bmp", 92, 1),
};

constexpr PictureRun kTitleRuns[] = {
    File("titlbck.bmp", 290, 2),
    File("tn31.bmp", 291, 2),
    File("tn32.bmp", 292, 2),
    File("y.bmp", 293, 2),
    Series("tit1_2", 1, 1, 4, 294, 2),        // tit1_21..tit1_24
    File("r.bmp", 298, 2),
    File("r.bmp", 299, 2),
    File("r.bmp", 300, 2),
    File("r.bmp", 301, 2),
    File("tfir.bmp", 302, 2),                 // flames
    File("r.bmp", 303, 2),
    File("tit1_1.bmp", 304, 2),
    File("tit1_2.bmp", 305, 2),
    File("advanc.bmp", 306, 2),
    File("fmly1.bmp", 307, 2),
    File("fmly2.bmp", 308, 2),
    File("bar.bmp", 309, 2),
    File("r.bmp", 310, 2),
    File("pstrt1.bmp", 311, 1),               // start prompt
    File("pstrt2.bmp", 312, 1),
    File("insrt.bmp", 313, 1),
    File("r.bmp", 314, 1),
    Series("crf", 1, 0, 9, 402, 0),           // credit digits
    File("crdt.bmp", 413, 0),
    File("crfbr.bmp", 412, 0),
};

constexpr PictureRun kEndingRuns[] = {
    File("white.bmp", 100, 2),
    Series("st_", 2, 1, 24, 101, 2),          // the panels
};

constexpr PictureRun kRankingRuns[] = {
    File("wscoma.bmp", 100, 2),
    File("vdback1.bmp", 101, 2),
    File("vdback2.bmp", 102, 2),
    File("ranking.bmp", 103, 2),
    File("wins.bmp", 104, 2),
    Series("f", 1, 1, 10, 105, 2),            // places 1..10
    Series("w", 1, 0, 9, 115, 2),             // digits
    Series("ws", 1, 0, 9, 125, 2),            // small digits
    Stems("", kRankingFaces, 10, 135, 2),     // faces of characters 0..9
    Series("rsp", 1, 1, 4, 145, 2),
    File("white.bmp", 149, 2),
};

constexpr PictureRun kOpeningRuns[] = {
    File("flogo.bmp", 0, 0),
    File("flogo2.bmp", 1, 0),
    File("tit1_1.bmp", 2, 2),
    File("tit1_2.bmp", 3, 2),
    File("titlblk.bmp", 4, 0),
    File("logo.bmp", 7, 0),
};

constexpr PictureRun kOptionsRuns[] = {
    File("setup.bmp", 0, 0),
    Series("", 1, 0, 9, 1, 0),                // digits 0.bmp..9.bmp
    File("gameleve.bmp", 11, 0),              // row labels
    File("gametime.bmp", 12, 0),
    File("damage.bmp", 13, 0),
    File("gamepoin.bmp", 14, 0),
    File("coins.bmp", 15, 0),
    File("special.bmp", 16, 0),
    File("sound.bmp", 17, 0),
    File("exit.bmp", 18, 0),
    File("off.bmp", 19, 0),
    File("on.bmp", 20, 0),
    File("high.bmp", 21, 0),
    File("mideum.bmp", 22, 0),
    File("low.bmp", 23, 0),
    File("white.bmp", 24, 0),
    File("arrow01.bmp", 25, 0),
    File("arrow02.bmp", 26, 0),
    File("mode.bmp", 27, 0),
    File("g_fps.bmp", 28, 0),
    File("1pa.bmp", 29, 0),                   // button names, player 1
    File("1pb.bmp", 30, 0),
    File("1pc.bmp", 31, 0),
    File("1pd.bmp", 32, 0),
    File("2pa.bmp", 33, 0),                   // button names, player 2
    File("2pb.bmp", 34, 0),
    File("2pc.bmp", 35, 0),
    File("2pd.bmp", 36, 0),
    File("punch1.bmp", 37, 0),                // attack slots
    File("punch2.bmp", 38, 0),
    File("kick1.bmp", 39, 0),
    File("kick2.bmp", 40, 0),
};
// clang-format on

static_assert(Runs_Entries(kSelectRuns) == 82 && Runs_InSpriteTable(kSelectRuns));
static_assert(Runs_Entries(kVersusRuns) == 20 && Runs_InSpriteTable(kVersusRuns));
static_assert(Runs_Entries(kTitleRuns) == 37 && Runs_InSpriteTable(kTitleRuns));
static_assert(Runs_Entries(kEndingRuns) == 25 && Runs_InSpriteTable(kEndingRuns));
static_assert(Runs_Entries(kRankingRuns) == 50 && Runs_InSpriteTable(kRankingRuns));
static_assert(Runs_Entries(kOpeningRuns) == 6 && Runs_InSpriteTable(kOpeningRuns));
static_assert(Runs_Entries(kOptionsRuns) == 41 && Runs_InSpriteTable(kOptionsRuns));

}  // namespace

std::span<const PictureRun> Front_Runs(PictureSet set) {
  switch (set) {
    case PICS_SELECT: return kSelectRuns;
    case PICS_VERSUS: return kVersusRuns;
    case PICS_TITLE: return kTitleRuns;
    case PICS_ENDING: return kEndingRuns;
    case PICS_RANKING: return kRankingRuns;
    case PICS_OPENING: return kOpeningRuns;
    case PICS_OPTIONS: return kOptionsRuns;
    default: return {};
  }
}
