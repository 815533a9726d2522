// Front-end screen pictures: each draws one screen from the sprites of its scene's picture set.
#pragma once

// The versus picture (the versus set): plays its whole 19-frame sequence, each frame cleared,
// drawn and presented, the pictures sliding in from both sides and meeting in a white flash;
// then starts the versus music.
void DrawVersusScreen();
