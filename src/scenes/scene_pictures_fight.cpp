// The fight's picture set: heads-up pieces, messages, effect flip-books, the continue screen.
#include "scenes/scene_picture_runs.h"

namespace {

// Super-move marks and champion faces, by character.
constexpr const char* kFighterStems[PICTURE_CHARACTERS] = {
    "ban", "hana",  "kaiden", "eunyu",  "drung", "honoka", "rabalt", "reimei",
    "vashi", "knifed", "eunhee", "henry", "enya",  "mago",   "evil",
};

// clang-format off
constexpr PictureRun kFightRuns[] = {
    Series("t", 1, 0, 9, 0, 0),              // clock digits
    Series("conti_", 1, 0, 9, 10, 0),        // continue count-down digits
    File("fight.bmp", 20, 1),                // messages
    File("ko.bmp", 21, 1),
    File("replay.bmp", 22, 1),
    File("timeover.bmp", 23, 1),
    File("continue.bmp", 24, 1),
    File("gameover.bmp", 25, 1),
    File("continu2.bmp", 26, 1),
    File("chall.bmp", 27, 1),
    File("t_champ.bmp", 28, 1),
    File("t_challe.bmp", 29, 1),
    Series("cham_no", 1, 0, 9, 30, 0),       // streak digits
    File("win_full.bmp", 40, 0),             // win marks
    File("win_empt.bmp", 41, 0),
    File("ma01.bmp", 42, 2),                 // life bar frame
    File("ma01_1.bmp", 43, 2),
    File("effct.bmp", 44, 0),
    Series("hit2", 4, 1, 16, 45, 3),         // hit flash
    Series("gur1", 4, 1, 16, 61, 3),         // guard spark
    Series("down", 4, 1, 16, 77, 3),         // dust
    Series("ene1", 4, 1, 16, 93, 3),         // energy
    Series("ene2", 4, 1, 16, 109, 3),
    File("dlight.bmp", 125, 0),              // light pool
    File("white.bmp", 126, 0),
    Series("combo_", 1, 0, 9, 127, 0),       // combo digits
    Series("blo1", 4, 1, 16, 137, 0),        // impact
    Series("blam", 4, 1, 16, 153, 3),
    Series("sspe", 4, 1, 20, 169, 3),        // super spark, twenty frames
    Series("wave", 4, 1, 16, 189, 3),
    Series("gur2", 4, 1, 16, 205, 3),
    Series("exp1", 4, 1, 16, 221, 3),        // explosions
    Series("exp2", 4, 1, 16, 237, 3),
    Series("fire", 4, 1, 16, 253, 3),
    Series("blo2", 4, 1, 16, 269, 3),
    Series("pow2", 4, 1, 16, 285, 3),
    File("card_j.bmp", 301, 0),              // cards
    File("card_q.bmp", 302, 0),
    File("card_k.bmp", 303, 0),
    File("card_ace.bmp", 304, 0),
    File("card_jok.bmp", 305, 0),
    File("t_start.bmp", 306, 1),             // start prompts
    File("t_insert.bmp", 307, 1),
    File("frstat.bmp", 308, 0),
    File("hitcombo.bmp", 309, 0),
    Series("st", 1, 1, 4, 310, 0),           // round numbers
    File("round.bmp", 315, 0),               // "round" goes before "final round"
    File("finalrnd.bmp", 314, 0),
    File("ma03.bmp", 316, 2),
    File("ma11.bmp", 317, 0),                // gauge pieces
    File("ma12.bmp", 318, 0),
    File("mawn00.bmp", 319, 0),              // gauge levels 00
    File("mabn00.bmp", 320, 0),
    File("marn00.bmp", 321, 0),
    File("macn00.bmp", 322, 0),
    File("mavn00.bmp", 323, 0),
    File("mawn01.bmp", 324, 0),              // gauge levels 01
    File("mabn01.bmp", 325, 0),
    File("marn01.bmp", 326, 0),
    File("macn01.bmp", 327, 0),
    File("mavn01.bmp", 328, 0),
    File("mawn02.bmp", 329, 0),              // gauge levels 02
    File("mabn02.bmp", 330, 0),
    File("marn02.bmp", 331, 0),
    File("macn02.bmp", 332, 0),
    File("mavn02.bmp", 333, 0),
    File("mawn03.bmp", 334, 0),              // gauge levels 03
    File("mabn03.bmp", 335, 0),
    File("marn03.bmp", 336, 0),
    File("macn03.bmp", 337, 0),
    File("mavn03.bmp", 338, 0),
    Series("ma", 2, 4, 10, 339, 1),          // bar ornaments ma04..ma10
    File("g.bmp", 346, 0),                   // plain colours
    File("y.bmp", 347, 0),
    File("r.bmp", 348, 0),
    File("s.bmp", 349, 0),
    Stems("s_", kFighterStems, 15, 360, 0),  // super-move marks by character
    Stems("_", kFighterStems, 15, 376, 0),   // champion faces by character
    File("youwin.bmp", 392, 0),
    File("youlose.bmp", 393, 0),
    File("perfct1.bmp", 394, 0),
    File("perfct2.bmp", 395, 0),
    File("replyang.bmp", 396, 0),            // replay and glows
    File("rglow1.bmp", 397, 0),
    File("finlglo.bmp", 398, 0),
    File("fhtglo.bmp", 399, 0),
    File("contibk1.bmp", 400, 0),            // continue backdrop
    File("contibk2.bmp", 401, 0),
    Series("cr_t", 1, 0, 9, 402, 0),         // credit digits
    File("t_crdit.bmp", 413, 0),             // "credit" goes before the slash
    File("t_slsh.bmp", 412, 0),
    File("keychng.bmp", 414, 0),
    File("rvrsl.bmp", 415, 0),
    File("1st.bmp", 416, 0),                 // ranking places
    File("2nd.bmp", 417, 0),
    File("3rd.bmp", 418, 0),
    File("4th.bmp", 419, 0),
    File("5th.bmp", 420, 0),
    Series("sl", 1, 0, 9, 421, 0),           // record-time digits, large
    Series("sm", 1, 0, 9, 431, 0),           // record-time digits, small
    File("smcoma.bmp", 442, 0),
    File("spfon1.bmp", 443, 0),
    File("spfon2.bmp", 444, 0),
    File("smvdr.bmp", 445, 0),
    File("congrat.bmp", 446, 0),
    File("congrat2.bmp", 447, 0),
    File("life.bmp", 448, 0),                // life bar
};
// clang-format on

// Sprites 0..448 less the thirteen the set leaves alone (350-359, 375, 391, 441).
static_assert(Runs_Entries(kFightRuns) == 449 - 13);
static_assert(Runs_InSpriteTable(kFightRuns));

}  // namespace

std::span<const PictureRun> Fight_Runs() { return kFightRuns; }
