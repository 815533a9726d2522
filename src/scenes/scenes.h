// Front-end scenes: title and attract cycle, opening, character select, continue, ranking,
// ending and options; and the counters the frame loop shares with them.
//
// Each scene is one function that Run_Frame calls once a frame while GameMode selects it. A
// scene runs its entry step first when its entry flag (ShellState) is 1, then reads input,
// updates its own state, draws and presents.
#pragma once
#include <cstdint>

// ---- shared counters -------------------------------------------------------------------
// Frames the title has waited without input; a coin or start press resets it. Written by the
// title scene, the system keys and the demonstration preparation.
extern std::int32_t TitleTimer;
// The continue screen's seconds; a coin or start press restarts the count-down. Written by
// the continue scene, the system keys and the end of a lost match.
extern std::int32_t ContinueTimer;

constexpr int SECOND_FRAMES = 65;  // a front-end second
// The select and continue screens' second counter: Second_Tick(0) restarts it and returns 0;
// Second_Tick(1) counts a frame and returns 1 on every 65th call.
int Second_Tick(int run);

// ---- title and attract cycle -----------------------------------------------------------
constexpr std::int32_t TITLE_WAIT = 700;  // frames before the attract cycle moves on
enum : std::int32_t { RANKING_STREAK = 0, RANKING_TIME = 1 };

// Written by the title scene only.
struct TitleState {
  std::int32_t AttractStep = 1;             // the attract item after the next title wait, 0..3
  std::int32_t RankingPage = RANKING_TIME;  // the ranking shown last; switched before each
};
extern TitleState Title;

void Title_Scene();
void Title_Enter();
void Title_Input();

// ---- opening ---------------------------------------------------------------------------
constexpr std::int32_t OPENING_LOGO_FRAMES = 260;
constexpr std::int32_t OPENING_CLOSE_FRAMES = 150;

// Written by the opening scene only.
struct OpeningState {
  std::int32_t OpeningFrames = 0;  // frames of the logo, 0..260
  std::int32_t OpeningFade = 0;    // 0 during the fight, then frames of the closing title
  std::int32_t OpeningWhite = 0;   // level of the white fade when the camera path ends
  std::int32_t Script = 0;         // the script frame the last frame ran at
};
extern OpeningState Opening;

void Opening_Scene();
void Opening_Setup();
// Which of the two fighters the opening shows at script frame s.
int Opening_ShownFighter(int s);

// ---- character select ------------------------------------------------------------------
constexpr std::int32_t SELECT_SECONDS = 20;
constexpr std::int32_t SELECT_BASE = 10;     // characters without the extra ones
constexpr std::int32_t SELECT_EXTRA = 14;    // with the extra characters
constexpr std::int32_t SLOT_NOBODY = 100;    // select_slot of a side nobody plays
constexpr std::int32_t SECOND_COLOURS = 15;  // a slot of 15..29 is the character in its second colours

// Both sides' settled flags. Written by the select scene, the title's entry and the end of a
// challenger interruption.
extern std::int32_t select_done[2];

// Written by the select scene only.
struct SelectState {
  std::int32_t SelectSlide[2] = {0, 0};     // -5..5 after a cursor move, back to 0
  std::int32_t SelectPrevious[2] = {0, 0};  // the character before the last move
  std::int32_t SelectConfirmFrames[2] = {0, 0};
  std::int32_t SelectTimer = SELECT_SECONDS;  // seconds left
  std::int32_t SelectLeaveCount = 0;          // frames since both sides were done
  std::int32_t CharacterCount = SELECT_BASE;  // characters the cursors run over
};
extern SelectState Select;

void Select_Scene();
void Select_Enter();
void Select_Update();
void Select_Draw();

// ---- continue and game over ------------------------------------------------------------
constexpr std::int32_t CONTINUE_GAME_OVER = 10;  // the second the game-over picture shows from
constexpr std::int32_t CONTINUE_END = 13;        // the second the scene ends at

// Written by the continue scene only (ContinueTimer above is shared).
struct ContinueState {
  std::int32_t ContinueCall = 1;    // 1 until the game-over call has sounded
  std::int32_t ContinueCamera = 0;  // frames since entry, up to 500: the slow zoom out
  std::int32_t ContinueLoser = 0;
};
extern ContinueState Continue;

// The fight's end calls this when the computer has beaten the only human player.
void Continue_Begin(int loser);
void Continue_Scene();

// ---- ranking ---------------------------------------------------------------------------
constexpr std::int32_t RANKING_FRAMES = 900;
constexpr std::int32_t RANKING_FADE_FROM = 875;

// Written by the ranking scene only.
struct RankingState {
  std::int32_t RankingFrames = 1;  // 1..900
  std::int32_t RankingStage = 0;   // the next backdrop, 0..6
};
extern RankingState Ranking;

void Ranking_Scene();
// The character whose stage the ranking shows for backdrop number n (0..6).
int Ranking_StageCharacter(int n);

// ---- ending ----------------------------------------------------------------------------
constexpr std::int32_t ENDING_PANELS = 24;
constexpr std::int32_t ENDING_PANEL_STEPS = 150;
constexpr std::int32_t ENDING_STEPS = ENDING_PANELS * ENDING_PANEL_STEPS;

// Written by the ending scene only.
struct EndingState {
  std::int32_t EndingStep = 0;  // 0..3600: panel EndingStep / 150, phase EndingStep mod 150
};
extern EndingState Ending;

// Where each panel sits, in 320 x 240 layout units.
struct PanelRect {
  std::int16_t x, y, w, h;
};
extern const PanelRect EndingPanels[ENDING_PANELS];

void Ending_Scene(int winner);
void Ending_Setup();
// A panel's grey-and-alpha level at phase q: fades in, holds, fades out.
int Ending_PanelLevel(int q);
// The camera's pitch and heading for panel p at phase q.
void Ending_CameraAngles(int p, int q, std::int32_t* pitch, std::int32_t* heading);

// ---- options ---------------------------------------------------------------------------
enum : std::int32_t {
  OPT_DIFFICULTY,
  OPT_TIME,
  OPT_LIFE,
  OPT_ROUNDS,
  OPT_EXTRA,
  OPT_SOUND,
  OPT_COINS,
  OPT_RATE,
  OPT_BUTTON_1,  // the four attack slots' buttons, rows 8..11
  OPT_BUTTON_4 = OPT_BUTTON_1 + 3,
  OPT_EXIT,
  OPTION_ROWS,
};

// Written by the options scene only.
struct OptionsState {
  std::int32_t OptionsRow = 0;  // 0..12
};
extern OptionsState Options;

void Options_Scene();
void Options_Update();
// Steps the value of `row` down (dir < 0) or up (dir > 0), wrapping at its ends.
void Options_Step(int row, int dir);
// Gives player p's attack slot a the button that slot b has, and b the button a had.
void Assign_Button(int player, int slot, int button);
