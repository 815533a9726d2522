// A character's manner: the guard it waits in between moves, how it carries itself in its
// attacks, and the touches that make its victory poses its own. All are turns added to poses
// every character shares.
#pragma once
#include "motion/mot_motion.h"
#include "moves/mv_roster.h"

namespace mv {

// The character's own guard: the fighting stance with its own hands, lean and weight.
mot::Pose Mv_GuardPose(int character);
// The character's idle (action 0): its guard, breathing or bouncing at its own beat.
Move Mv_IdleGuard(int character);
// A kicking pose with the arms carried the character's way: kept up in its own guard, the
// rear arm thrown back for balance, dropped low, crossed before the chest, or flung out.
mot::Pose Mv_KickArms(int character, const mot::Pose& pose);
// An attacking pose with the trunk and head carried the character's way.
mot::Pose Mv_Attitude(int character, const mot::Pose& pose);
// A one-handed blow with the other arm held in the character's own guard (`lead` true when the
// lead hand strikes, so the rear arm is the free one).
mot::Pose Mv_FreeArm(int character, const mot::Pose& pose, bool lead);
// Victory pose `which` (0: action 12, 1: action 13) of a kind's pose, touched in the character's
// manner (the head, the free hand, the weight).
mot::Pose Mv_VictoryTouch(int character, int which, const mot::Pose& pose);

}  // namespace mv
