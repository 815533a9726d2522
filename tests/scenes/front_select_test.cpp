// Character select: the cursor's wrap over 10 and 14 characters, colours, the boss, a second
// player joining, confirming, the count-down, and leaving for the match.
#include <set>

#include "scenes/front_fixture.h"
#include "shell/shell_prepare.h"

namespace {

using namespace front_test;

class CharacterSelect : public FrontTest {
 protected:
  void SetUp() override {
    FrontTest::SetUp();
    for (const PictureEntry& e : scene_test::entries(PICS_SELECT))
      scene_test::write_colour(e.file, 40, 40, 90, 16, 16);
  }
  // Player 1 alone in the select screen, on `slot`.
  static void enter_alone(int slot) {
    Match.human[0] = 1;
    Match.human[1] = 0;
    select_slot[0] = slot;
    Match.character[0] = slot % 15;
    Shell.GameMode = MODE_SELECT;
    Shell.SelectEnter = 1;
    frames(1);
  }
};

}  // namespace

TEST_F(CharacterSelect, TheCursorWrapsOverTenCharactersAndOverFourteenWithTheExtraOnes) {
  for (int count : {10, 14}) {
    Settings.extra_characters = count == 14 ? 1 : 0;
    enter_alone(0);
    ASSERT_EQ(Select.CharacterCount, count);
    press({P1_LEFT});
    EXPECT_EQ(select_slot[0], count - 1) << count;
    EXPECT_EQ(Select.SelectSlide[0], 4);  // the slide has started and runs back toward 0
    EXPECT_EQ(Select.SelectPrevious[0], 0);
    press({P1_RIGHT});
    EXPECT_EQ(select_slot[0], 0) << count;
    // From the second colours of character 0, left goes to the last character's first.
    select_slot[0] = 15;
    press({P1_LEFT});
    EXPECT_EQ(select_slot[0], count - 1) << count;
    // All the way round to the right: every character once, never the boss.
    std::set<int> seen;
    for (int k = 0; k < count; ++k) {
      press({P1_RIGHT});
      seen.insert(Match.character[0]);
    }
    EXPECT_EQ(static_cast<int>(seen.size()), count);
    EXPECT_EQ(seen.count(BOSS_CHARACTER), 0u);
    EXPECT_EQ(select_slot[0], count - 1);
  }
}

TEST_F(CharacterSelect, HoldingUpChoosesTheSecondColours) {
  enter_alone(3);
  Headless_SetKey(P1_UP, true);
  frames(1);
  EXPECT_EQ(select_slot[0], 18);
  EXPECT_EQ(Match.character[0], 3);
  Headless_SetKey(P1_UP, false);
  frames(1);
  EXPECT_EQ(select_slot[0], 3);
}

TEST_F(CharacterSelect, ASideThatMetTheBossStartsOverOnTheFirstCharacter) {
  Match.human[0] = 1;
  select_slot[0] = BOSS_CHARACTER;
  Match.character[0] = BOSS_CHARACTER;
  Match.character[1] = BOSS_CHARACTER;
  Shell.GameMode = MODE_SELECT;
  Shell.SelectEnter = 1;
  frames(1);
  EXPECT_EQ(Match.character[0], 0);
  EXPECT_EQ(select_slot[0], 0);
  EXPECT_EQ(select_slot[1], 0);  // the computer's side gives up the boss too
}

TEST_F(CharacterSelect, ASecondPlayerJoinsAndBothChooseBeforeTheMatchIsPrepared) {
  enter_alone(9);
  EXPECT_EQ(select_done[1], 1);  // nobody plays side 1: it counts as settled
  EXPECT_EQ(select_slot[1], SLOT_NOBODY);
  frames(130);
  const int timer_before = Select.SelectTimer;
  ASSERT_LT(timer_before, SELECT_SECONDS);
  press({P2_START});
  EXPECT_EQ(Match.human[1], 1);
  EXPECT_EQ(select_done[1], 0);
  EXPECT_EQ(select_slot[1], 24);  // player 1 sits on 9: the second colours
  EXPECT_EQ(Select.SelectTimer, SELECT_SECONDS);  // the count-down starts again

  // Player 1 confirms: a white frame; player 2 is still choosing.
  Headless_SetKey(P1_A1, true);
  frames(1);
  EXPECT_EQ(select_done[0], 1);
  EXPECT_TRUE(shows(256, 192, 255, 255, 255));
  Headless_SetKey(P1_A1, false);
  frames(1);
  EXPECT_FALSE(shows(256, 192, 255, 255, 255));
  press({P1_RIGHT});  // a confirmed side no longer moves
  EXPECT_EQ(select_slot[0], 9);

  press({P2_LEFT});
  EXPECT_EQ(select_slot[1], 8);  // leaving 9 takes the first colours again
  EXPECT_EQ(Shell.GameMode, MODE_SELECT);
  Headless_SetKey(P2_A1, true);
  frames(1);
  EXPECT_EQ(select_done[1], 1);
  EXPECT_EQ(Shell.GameMode, MODE_SELECT);
  Headless_SetKey(P2_A1, false);
  frames(1);  // the second frame after both are done
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT_LOAD);
  EXPECT_EQ(Match.character[0], 9);
  EXPECT_EQ(Match.character[1], 8);
}

TEST_F(CharacterSelect, TheCountDownConfirmsASecondAfterItShowsZero) {
  enter_alone(4);
  frames(SECOND_FRAMES - 2);  // the entry frame counted as the first
  EXPECT_EQ(Select.SelectTimer, SELECT_SECONDS);
  frames(1);
  EXPECT_EQ(Select.SelectTimer, SELECT_SECONDS - 1);
  frames(SECOND_FRAMES * (SELECT_SECONDS - 1));
  EXPECT_EQ(Select.SelectTimer, 0);
  EXPECT_EQ(select_done[0], 0);
  frames(SECOND_FRAMES - 1);
  EXPECT_EQ(select_done[0], 0);
  frames(1);
  EXPECT_EQ(select_done[0], 1);
  EXPECT_EQ(Match.character[0], 4);
  frames(1);  // one player: the match follows two frames after the confirmation
  EXPECT_EQ(Shell.GameMode, MODE_FIGHT_LOAD);
}
