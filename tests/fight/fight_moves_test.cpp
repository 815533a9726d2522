// Move links: the tables every character's commands and chains read.
#include <gtest/gtest.h>

#include "fight/fight_moves.h"

namespace {

bool is_special(int a) {
  return (a >= 190 && a <= 208) || (a >= 220 && a <= 238) || (a >= 266 && a <= 284) ||
         (a >= 299 && a <= 316) || (a >= 500 && a <= 519);
}
bool is_directional(int a) {
  return a == 181 || a == 188 || a == 189 || a == 211 || a == 216 || a == 217;
}

int link_count(int c) {
  int n = 0;
  for (const ChainLink& l : MoveTables.Chain_Table[c]) n += l.running != NO_LINK;
  return n;
}

TEST(MoveTables, RowsLandWhereTheCharactersCommandsLookThemUp) {
  build_move_tables();
  const auto& st = MoveTables.Special_Table;
  EXPECT_EQ(st[0][0], 273);
  EXPECT_EQ(st[0][27], 192);
  EXPECT_EQ(st[0][17], NO_MOVE);
  EXPECT_EQ(st[5][31], 190);  // the longest row keeps its last slot
  EXPECT_EQ(st[12][0], NO_MOVE);
  EXPECT_EQ(st[13][25], 194);
  for (int s = 0; s < MOVE_SLOTS; ++s) {
    EXPECT_EQ(st[15][s], NO_MOVE);
    EXPECT_EQ(st[14][s], s == 17 ? 193 : st[0][s]) << "slot " << s;
  }
  EXPECT_EQ(link_count(0), 18);
  EXPECT_EQ(link_count(5), 34);
  EXPECT_EQ(link_count(7), 34);
  EXPECT_EQ(link_count(15), 0);
  EXPECT_EQ(link_count(14), 18);
  const ChainLink& last7 = MoveTables.Chain_Table[7][33];
  EXPECT_EQ(last7.running, 362);
  EXPECT_EQ(last7.next, 363);
  EXPECT_EQ(last7.queued, 1);
  EXPECT_EQ(MoveTables.Chain_Table[1][0].spare, 0);
  EXPECT_EQ(MoveTables.Chain_Table[7][34].slot, NO_LINK);
}

TEST(MoveTables, EveryEntryNamesAMoveOfTheRightKind) {
  build_move_tables();
  for (int c = 0; c < MOVE_CHARACTERS; ++c) {
    for (int s = 0; s < MOVE_SLOTS; ++s) {
      int a = MoveTables.Special_Table[c][s];
      EXPECT_TRUE(a == NO_MOVE || is_special(a)) << c << " slot " << s;
    }
    for (const ChainLink& l : MoveTables.Chain_Table[c]) {
      if (l.running == NO_LINK) continue;
      auto hold = [](int a) { return a >= 340 && a <= 409; };
      EXPECT_TRUE(is_special(l.next) || is_directional(l.next) || hold(l.next)) << c << " " << l.next;
      EXPECT_TRUE(is_special(l.running) || is_directional(l.running) || hold(l.running)) << c << " " << l.running;
      EXPECT_TRUE(l.slot < MOVE_SLOTS || l.slot == l.next) << c << " slot " << l.slot;
    }
  }
}

TEST(MoveTables, HitGrabsPairEachCharactersMoveWithItsHold) {
  int hold = 0, held = 0, any = -1;
  ASSERT_TRUE(find_hit_grab(12, 220, &hold, &held, &any));
  EXPECT_EQ(hold, 343);
  EXPECT_EQ(held, 413);
  EXPECT_EQ(any, 0);
  ASSERT_TRUE(find_hit_grab(13, 197, &hold, &held, &any));
  EXPECT_EQ(hold, 355);
  EXPECT_EQ(any, 1);
  ASSERT_TRUE(find_hit_grab(10, 273, &hold, &held, &any));
  EXPECT_EQ(held, 437);
  EXPECT_FALSE(find_hit_grab(1, 197, &hold, &held, &any));
  EXPECT_FALSE(find_hit_grab(16, 197, &hold, &held, &any));
  for (const HitGrab& g : HitGrab_Table) EXPECT_EQ(g.held - g.hold, 70) << g.hold;
}

}  // namespace
