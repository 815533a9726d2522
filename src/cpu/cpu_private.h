// Inside the computer opponent: its memories, the controls it writes and the small behaviours
// the character routines are built from. Only src/cpu includes this.
#pragma once
#include <cstdint>
#include <initializer_list>

constexpr int CPU_MEMORY = 3;  // each memory keeps the three newest entries
constexpr std::int32_t CPU_EMPTY = -99;  // a memory entry nothing has filled yet

// What the computer remembers about each fighter it plays. Written only by the computer's own
// code (the dispatcher, the routines' behaviours and the hit hooks). Never cleared: the
// memories carry over rounds and fights.
struct CpuMindState {
  // Opponent actions that hit, newest first.
  std::int32_t hit_by[2][CPU_MEMORY] = {{CPU_EMPTY, CPU_EMPTY, CPU_EMPTY},
                                         {CPU_EMPTY, CPU_EMPTY, CPU_EMPTY}};
  // The (command, stance) pairs standing when a live strike of the fighter was interrupted.
  std::int32_t interrupted_cmd[2][CPU_MEMORY] = {{CPU_EMPTY, CPU_EMPTY, CPU_EMPTY},
                                                  {CPU_EMPTY, CPU_EMPTY, CPU_EMPTY}};
  std::int32_t interrupted_stance[2][CPU_MEMORY] = {};
  // Commands issued with a button.
  std::int32_t cmd_memory[2][CPU_MEMORY] = {{CPU_EMPTY, CPU_EMPTY, CPU_EMPTY},
                                             {CPU_EMPTY, CPU_EMPTY, CPU_EMPTY}};
  std::int32_t last_cmd[2] = {-1, -1};  // recorded by the routine's last closing step
  std::int32_t last_stance[2] = {};
  std::int32_t down_hold[2] = {};  // frames left to keep down held, 0..4
  std::int32_t walk_in[2] = {};    // 1 while an approach started by CpuWalkIn runs
  std::int32_t walk_in_frames[2] = {};
};
extern CpuMindState CpuMind;

// Pushes `value` into a memory of three, newest first.
void cpu_remember(std::int32_t (&memory)[CPU_MEMORY], std::int32_t value);

// ---- what the computer sees ----------------------------------------------------------------
float cpu_separation();          // the fight's separation of the two fighters
float cpu_body_x(int fighter);   // world x of the body point
float cpu_body_height(int fighter);  // the model's height value
int cpu_ready(int p);             // readiness has reached the level
int cpu_k(int p, int n);          // (life + CpuRandom + level) mod n
int cpu_even(int p);              // CpuRandom is even
bool cpu_in(int action, std::initializer_list<int> actions);

// ---- the controls it writes (p's input record) ---------------------------------------------
void cpu_forward(int p);
void cpu_back(int p);
void cpu_down(int p);
void cpu_press(int p, int button);  // button 1..4 pressed this frame
// Command c (c < 0: none written) in stance s (s < 0: kept), then the button.
void cpu_press_cmd(int p, int c, int s, int button);
int cpu_any_button(int p);
void cpu_release_all(int p);  // buttons 1..4, down and the down tap

// ---- shared behaviours ---------------------------------------------------------------------
int CpuCanAct(int p);
int CpuCanActCrouching(int p);
int CpuCanActAny(int p);  // CpuCanAct or CpuCanActCrouching
int CpuAirAttackChance(int p);
void CpuWalkForward(int p);
void CpuWalkBack(int p);
void CpuJumpIn(int p);
void CpuDashIn(int p);
void CpuDashOut(int p);
void CpuWalkIn(int p);
void CpuWalkInStep(int p);
void CpuToggleStance(int p);
void CpuDodge(int p);
int CpuLowAttackReaction(int p);
int CpuProjectileReaction(int p);
int CpuDashReaction(int p);
void CpuChargeOrWalk(int p);
void CpuRisingAttack(int p);
int CpuComboLink(int p);
void CpuAvoidInterrupted(int p);
void CpuDownHold(int p);  // keeps down held for four frames once it was set
// Ends the running action and what it carries (root motion, the strike) and stands the
// fighter in its idle, so that a move can start from it at once.
void cpu_end_action(int p);

// ---- the character routines ----------------------------------------------------------------
void Cpu_RunRoutine(int p, int routine);
