// Front-end screen pictures: each draws one screen from the sprites of its scene's picture set.
#pragma once

// The versus picture (the versus set): plays its whole 19-frame sequence, each frame cleared,
// drawn and presented, the pictures sliding in from both sides and meeting in a white flash;
// then starts the versus music.
void DrawVersusScreen();

// Every routine below sets the sprite layer to the front first and back to the rest layer
// at its end, unless it says otherwise. f is frame_count.

// Continue (the fight's picture set): "continue" with the count-down digit n (0..9) between.
void DrawContinuePrompt(int n);
// Continue: the game-over picture.
void DrawGameOver();
// Continue (no layer change): the glowing backdrop, alternating two pictures every three
// frames and brighter as the count n runs down.
void DrawContinueBackdrop(int n);

// Rankings (the ranking set), at the ranking scene's frame t: the title slides down, then the
// two pages of five rows slide in from both sides and out again.
void DrawStreakRanking(int t);
void DrawTimeRanking(int t);

// Options (the options set; no layer change): the thirteen rows, their values, both
// players' button letters and the blinking cursor on `row`.
void DrawOptionsScreen(int row);

// Title (the title set): the picture with its rising flames, and the pulsing start prompt.
void DrawTitleBackground();
void DrawTitlePrompt();
// The prompt's level at frame f: up 4 a frame for 64 frames, then back down.
int Title_PromptLevel(int f);

// Opening (the opening set): the title logo, a shrinking glow before t = 30; and the maker's
// logo on white (no layer change).
void DrawOpeningTitle(int t);
void DrawOpeningLogo();

// Character select (the select set), with the count-down n (0..99).
void DrawCharacterSelect(int n);
