// Content review on the headless backend: fighters of the data set in the current directory
// drawn by the game's own drawing code, one pose to a picture or a contact sheet per
// character. Both need the shared animation file and return the program's exit status.
#pragma once

// Row `row` (0..29) in frame `frame` of `action` (counted from the action's first frame and
// held at its last) as a 640 x 480 PNG at `out`.
int Review_Pose(int row, int action, int frame, const char* out);

// One PNG per character, "OUTDIR/sheet-CC.png": idle, walk, a punch at its strike frame, each
// of the character's own special moves at its strike frame, a throw, a hit reaction, a
// knock-down and a victory pose, each cell labelled with its action and frame.
int Review_Sheets(const char* out_dir);

// A throw or hold seen from both sides: thrower row `thrower` in `action` (80, 81 or a hold
// 340..409) and victim row `victim` in the reaction the fight puts it in, both posed and placed
// as the fight places them, as a strip of frames across the throw in one PNG at `out`.
int Review_Pair(int thrower, int victim, int action, const char* out);
// Every throw and hold of every character against the next character, one strip each,
// "OUTDIR/pair-CC-AAA-RRR.png" (thrower, its action, the victim's reaction).
int Review_Pairs(const char* out_dir);
// "THROWER:VICTIM:ACTION" into its three numbers; false when not three numbers in range.
bool Review_ParsePair(const char* text, int* thrower, int* victim, int* action);

// "CHAR:ACTION:FRAME" into its three numbers; false when it is not three numbers in range.
bool Review_ParsePose(const char* text, int* row, int* action, int* frame);

// The steps both tools are made of. Review_Begin opens the GL context and reads the shared
// animation file (false, with a message, when it cannot); Review_LoadRow loads a character
// row as fighter 0 (a missing model ends the program, as in the game); Review_Draw draws that
// fighter in one frame of one action and presents it (false when the character's tables give
// the action no frames). The picture is then Headless_Pixels().
bool Review_Begin();
bool Review_LoadRow(int row);
bool Review_Draw(int action, int frame);
// The frame, counted from the action's first, on which the action first strikes; the middle
// of the action when it never does; -1 when the action has no frames.
int Review_StrikeFrame(int action);

// Pictures of cells, four to a row: each cell is the presented screen (Headless_Pixels) halved
// and labelled "ACTION FRAME". Clear, put cells 0..n-1, then write the first `cells` of them.
void Review_CellsClear();
void Review_CellPut(int n, int action, int frame);
bool Review_CellsWrite(const char* path, int cells);
// The fight's posture for a fighter shown in an action: standing at `x` on the line, facing
// `yaw`, none of the fight's flags set (crouching only for the crouching actions).
void Review_Posture(int player, int action, float x, int yaw);
