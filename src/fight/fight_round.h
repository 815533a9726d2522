// The round's own steps that the replay and the frame share: a challenger's join, the set-up
// that closes a round, and the camera's re-centring after the closing replay.
#pragma once

// A side's start press joins the fight as challenger (when the side may join); 1 when it did.
int Challenger_Join(int side);
// The round is over: both fighters frozen, the winner into its victory pose, the loser down.
void Closing_Setup();
// The closing replay's fresh look at the fighters.
void Recentre_Camera();
