// Computer opponent: plays a fighter by writing its input record once a fight frame, exactly
// where the input reader writes a player's controls. Special and super moves are not entered
// as motions: the computer writes the fighter's cmd_code (and often its stance) and presses a
// button, and the fight takes the move from its tables as for a player.
#pragma once
#include <cstdint>

// Per-fighter skill, readiness and the frame's chance value, and the dispatcher's own counter.
// Written by: the fight set-up (CpuSetupLevels, CpuSetupDemoLevels: levels), the level tuning
// on hits (CpuAdjustLevel: level and readiness), CpuThink (readiness, random value, counter),
// and the fight's action machine (readiness: 0 at round start, the level while knocked about
// and at the end of a dodge, cut down at the end of a rising move).
struct CpuState {
  // Reaction delay in frames after an attack before the next may start; lower is stronger.
  std::int32_t CpuLevel[2] = {70, 70};
  // The level set at fight start; CpuLevel stays within [max(20, base - 30), base].
  std::int32_t CpuBaseLevel[2] = {70, 70};
  // The second frame counter, 0..10001, advanced once per computer step.
  std::int32_t CpuCounter = 0;
  // Frames since the computer last attacked, counted up to CpuLevel; ready when it gets there.
  std::int32_t CpuReady[2] = {0, 0};
  // The frame's chance value: 0..1332 for fighter 0, 1555..2887 for fighter 1.
  std::int32_t CpuRandom[2] = {0, 1555};
};
extern CpuState Cpu;

// Fight start of a game: the level of computer-played fighter `fighter` from the difficulty
// setting and the stage (computer opponents beaten so far). Level and base take one value; a
// difficulty outside 1..5 leaves both as they are.
void CpuSetupLevels(int fighter);
// Demonstration fight: level and base 90 - min(40, 5 x stage) for `fighter`, from the stage
// the demonstration set-up has just written for that side.
void CpuSetupDemoLevels(int fighter);

// The level a game's computer opponent gets at `difficulty` on `stage`, or -1 when the
// difficulty leaves the level alone.
std::int32_t Cpu_GameLevel(std::int32_t difficulty, std::int32_t stage);

// Once a fight frame for each fighter no player controls (unless the opponent's super move
// freezes it): clears the fighter's input record and writes this frame's controls into it,
// played by the routine of `character`.
void CpuThink(int fighter, int character);

// The routine (1..10) that plays `character` (0..14); 1 for anything else.
int Cpu_RoutineOf(int character);

// ---- hooks of the hit processing -----------------------------------------------------------
// A computer-played fighter was hit with strength `strength` by `attacker`: its level is tuned
// (faster after light plain blows, slower after heavy special ones) and its readiness cut.
void CpuAdjustLevel(int fighter, int strength, int attacker);
// `fighter` was hit by the opponent's action `attacker_action`: remembered, newest first.
void CpuRememberHit(int fighter, int attacker_action);
// `fighter` was hit: when its own strike was live outside a special move, the command it had
// chosen is remembered as interrupted and the strike stops being live.
void CpuRememberInterrupted(int fighter);
// 1 when the computer-played `fighter` has learnt to guard `action` (it hit it lately).
int CpuKnowsMove(int fighter, int action);

// ---- readiness writes of the action machine -----------------------------------------------
// While knocked about and at the end of a dodge: ready at once.
void CpuReadyAtOnce(int fighter);
// At the end of a rising move: readiness halved below 100, else divided by 1.5 (100..149) or
// 1.3 (from 150).
void CpuReadyAfterRising(int fighter);
// Round start: nobody is ready.
void CpuRoundStart();
