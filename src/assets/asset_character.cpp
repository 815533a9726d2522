#include "assets/asset_character.h"

#include <cstdio>
#include <cstring>

#include "assets/asset_anim.h"
#include "assets/asset_model.h"
#include "assets/asset_report.h"
#include "assets/asset_table.h"
#include "fight/fight_state.h"

// clang-format off
const CharacterRow CharacterTable[CHARACTER_ROWS] = {
    {"ban.3dm",      "BANDM.bmp",    "BANVC1.bmp",   0,  "ban.fa3",      "ban.bsc",      "ban.tbl"},       // 0
    {"hana.3dm",     "HANADM.bmp",   "HANAVC.bmp",   16, "hana.fa",      "hana.bsc",     "hana.tbl"},      // 1
    {"kaiden.3dm",   "KAIDDM.bmp",   "KAIDVC1.bmp",  6,  "kaiden.fa",    "kaiden.bsc",   "kaiden.tbl"},    // 2
    {"eunyu.3dm",    "EUNYDM.bmp",   "EUNYVC.bmp",   11, "eunyu.fa",     "eunyu.bsc",    "eunyu.tbl"},     // 3
    {"bruce.3dm",    "DANGDM.bmp",   "DANGVC.bmp",   0,  "bruce.fa",     "bruce.bsc",    "bruce.tbl"},     // 4
    {"honoka.3dm",   "HONO1PDM.bmp", "HONO1PVC.bmp", 0,  "honoka.fx3",   "honoka.bsc",   "honoka.tbl"},    // 5
    {"rabalt2p.3dm", "A8_.bmp",      "A8_.bmp",      0,  "rabalt.fx3",   "rabalt.bsc",   "rabalt.tbl"},    // 6
    {"reimei.3dm",   "REI1PDM.bmp",  "REI1PVC.bmp",  1,  "reimei.fa",    "reimei.bsc",   "reimei.tbl"},    // 7
    {"robot.3dm",    "SP3FAC3.bmp",  "VASH1PVC.bmp", 4,  "robot.fa",     "robot.bsc",    "robot.tbl"},     // 8
    {"crow.3dm",     "KNIFDM.bmp",   "C6FAC12.bmp",  17, "crow.fx3",     "crow.bsc",     "crow.tbl"},      // 9
    {"spc1_1p.3dm",  "EUNSPFDM.bmp", "EUNSPFVC.bmp", 19, "special1.fa",  "special1.bsc", "special1.tbl"},  // 10
    {"spc2_1p.3dm",  "GESTDM.bmp",   "GESTVC.bmp",   6,  "special2.fa3", "special2.bsc", "special2.tbl"},  // 11
    {"spc3_1p.3dm",  "ZXFACDM.bmp",  "ZXFACVC.bmp",  3,  "special3.fa",  "special3.bsc", "special3.tbl"},  // 12
    {"spc4_1p.3dm",  "OEWFACDM.bmp", "OEWFACVC.bmp", 5,  "special4.fx3", "special4.bsc", "special4.tbl"},  // 13
    {"banboss.3dm",  "21BOSSDM.bmp", "21BOSS.bmp",   0,  "banboss.fa3",  "banboss.bsc",  "banboss.tbl"},   // 14
    {"ban2p.3dm",    "BANDM.bmp",    "BANVC1.bmp",   0,  "ban.fa3",      "ban.bsc",      "ban.tbl"},       // 15
    {"hana2p.3dm",   "HANADM.bmp",   "HANAVC.bmp",   16, "hana.fa",      "hana.bsc",     "hana.tbl"},      // 16
    {"kaiden2p.3dm", "KAIDDM.bmp",   "KAIDVC1.bmp",  6,  "kaiden.fa",    "kaiden.bsc",   "kaiden.tbl"},    // 17
    {"eunyu2p.3dm",  "EUNYDM.bmp",   "EUNYVC.bmp",   10, "eunyu.fa",     "eunyu.bsc",    "eunyu.tbl"},     // 18
    {"bruce2p.3dm",  "DANGDM.bmp",   "DANGVC.bmp",   20, "bruce.fa",     "bruce.bsc",    "bruce.tbl"},     // 19
    {"honoka2p.3dm", "HONO2PDM.bmp", "HONO2PVC.bmp", 0,  "honoka.fx3",   "honoka.bsc",   "honoka.tbl"},    // 20
    {"rabalt.3dm",   "A8_.bmp",      "A8_.bmp",      0,  "rabalt.fx3",   "rabalt.bsc",   "rabalt.tbl"},    // 21
    {"reimei2p.3dm", "REI1PDM.bmp",  "REI1PVC.bmp",  1,  "reimei.fa",    "reimei.bsc",   "reimei.tbl"},    // 22
    {"robot2p.3dm",  "SP3FAC3.bmp",  "S2FAC3.bmp",   4,  "robot.fa",     "robot.bsc",    "robot.tbl"},     // 23
    {"crow2p.3dm",   "KNIFDM.bmp",   "C2PFAC12.bmp", 0,  "crow.fx3",     "crow.bsc",     "crow.tbl"},      // 24
    {"spc1_2p.3dm",  "EUNSP2DM.bmp", "SC2FAC2.bmp",  13, "special1.fa",  "special1.bsc", "special1.tbl"},  // 25
    {"spc2_2p.3dm",  "GESTDM.bmp",   "GESTVC.bmp",   0,  "special2.fa3", "special2.bsc", "special2.tbl"},  // 26
    {"spc3_2p.3dm",  "ZX2FDM.bmp",   "ZX2FVC.bmp",   3,  "special3.fa",  "special3.bsc", "special3.tbl"},  // 27
    {"spc4_2p.3dm",  "OEWFACDM.bmp", "OEWFACVC.bmp", 5,  "special4.fx3", "special4.bsc", "special4.tbl"},  // 28
    {"banboss.3dm",  "21BOSSDM.bmp", "21BOSS.bmp",   0,  "banboss.fa3",  "banboss.bsc",  "banboss.tbl"},   // 29
};
// clang-format on

namespace {

struct AttachCall {
  int i, part, a, b, flag;
};

// Characters 10 and 12 share character 3's sash and ribbons.
constexpr AttachCall kCalls3[] = {{1, 4, -120, 0, 0}, {2, 4, -120, 0, 0}, {3, 3, 0, 0, 0},
                                  {4, 3, 0, 0, 0}};

struct AttachSet {
  AttachCall calls[5];
  int count;
  bool then_calls3;  // followed by character 3's four calls
};

// clang-format off
constexpr AttachSet kAttachSets[CHARACTERS] = {
    {{}, 0, false},                                                                   // 0
    {{{0, 2, -80, 80, 1}}, 1, false},                                                 // 1
    {{{0, 2, -120, 0, 0}, {1, 2, 0, 120, 1}, {2, 2, 0, 120, 1}, {3, 4, 5, 5, 1},
      {4, 2, 0, 120, 1}}, 5, false},                                                  // 2
    {{kCalls3[0], kCalls3[1], kCalls3[2], kCalls3[3]}, 4, false},                     // 3
    {{}, 0, false},                                                                   // 4
    {{{0, 2, 0, 100, 1}, {1, 2, -80, 0, 0}, {2, 10, 0, 0, 0}, {3, 16, 0, 0, 0}}, 4,
     false},                                                                          // 5
    {{{1, 4, 15, 120, 1}}, 1, false},                                                 // 6
    {{{0, 2, 0, 80, 1}, {1, 2, -80, 0, 0}}, 2, false},                                // 7
    {{}, 0, false},                                                                   // 8
    {{{1, 4, 15, 120, 1}}, 1, false},                                                 // 9
    {{{0, 2, 0, 99, 1}}, 1, true},                                                    // 10
    {{{1, 9, 0, 0, 0}, {2, 15, 0, 0, 0}}, 2, false},                                  // 11
    {{{1, 2, 0, 100, 1}, {2, 9, 0, 0, 0}, {3, 15, 0, 0, 0}}, 3, false},               // 12
    {{{0, 2, 10, 120, 1}, {1, 3, 0, 0, 0}, {2, 4, 15, 120, 1}, {3, 6, 0, 0, 0},
      {4, 12, 0, 0, 0}}, 5, false},                                                   // 13
    {{}, 0, false},                                                                   // 14
};
// clang-format on

void run_calls(int player, const AttachCall* calls, int count) {
  for (int n = 0; n < count; ++n)
    Set_Attachment(player, calls[n].i, calls[n].part, calls[n].a, calls[n].b, calls[n].flag);
}

}  // namespace

void Set_Attachment(int player, int i, int part, int a, int b, int flag) {
  if (player < 0 || player > 1 || i < 0 || i >= ATTACHMENTS) return;
  Attachment& at = fighters[player].attach[i];
  at.present = 1;
  at.anchor_part = part;
  at.lower = a < b ? a : b;
  at.upper = a < b ? b : a;
  at.reverse = flag;
}

void Setup_Attachments(int player, int c) {
  if (c < 0 || c >= CHARACTERS) return;
  const AttachSet& set = kAttachSets[c];
  run_calls(player, set.calls, set.count);
  if (set.then_calls3) run_calls(player, kCalls3, 4);
}

bool Load_Character(int player) {
  if (player < 0 || player > 1) return false;
  const int r = select_slot[player];
  if (r < 0 || r >= CHARACTER_ROWS) {
    Load_Refused("the character table", "fighter %d has no row %d (0 to %d)", player, r,
                 CHARACTER_ROWS - 1);
    return false;
  }
  const CharacterRow& row = CharacterTable[r];
  Load_3DM(row.model, player, row.alt1, row.alt2);
  Setup_Attachments(player, r % CHARACTERS);

  Fighter& f = fighters[player];
  f.gain_a = 0;
  f.gain_b = 0;
  std::memset(f.frame_part, 0, sizeof f.frame_part);

  if (!Load_FA(row.anim, row.skeleton, player)) {
    std::printf("%d FX3 Error\n", player);
    std::fflush(stdout);
    Report_GoesOn("fighter %d keeps the key frames it had", player);
  }
  if (!Load_PreloadTBL("PRELOAD.TBL", player)) {
    std::printf("Preload FX3 Table Error ");
    std::fflush(stdout);
    Report_GoesOn("fighter %d keeps the shared moves it had", player);
  }
  if (!Load_TBL(row.table, player)) {
    std::printf("%d Table Error\n", player);
    std::fflush(stdout);
    Report_GoesOn("fighter %d keeps the moves it had", player);
  }
  return true;
}
