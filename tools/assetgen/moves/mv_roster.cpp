// Each character's moves as rows: which kind of move an action is, the hits it deals and
// whether it is done with the other side of the body. Hit codes are class x 100 + kind: kind
// 35 multi-hit rush blows, 20 launchers, 8 and 11 high blows, 12 heavy low blows, 10 heavy
// blows, 7 lighter mid blows (a few swings that a standing guard would stop almost every time
// are mid blows instead, which a guard misses now and then), 6 open blows no guard stops (the
// swings a guard would turn aside every time; they rock the opponent back), 24/25/42
// projectiles, 31/32 unblockable finishers, 0 a seizing hand no guard stops (the super grabs
// that a guard would otherwise turn aside); class 4 keeps a super move's owner from being
// struck out of it.
#include "moves/mv_roster.h"

#include <algorithm>
#include <cmath>
#include <deque>

#include "fight/fight_moves.h"
#include "figures/fig_figure.h"
#include "motion/mot_shared.h"
#include "moves/mv_arch.h"
#include "moves/mv_holds.h"
#include "moves/mv_manner.h"
#include "moves/mv_pose.h"
#include "moves/mv_reach.h"

namespace mv {
namespace {

using A = Arch;

// How a character moves: its tempo, how far its poses go, whether it strikes with a weapon.
// No two characters share a power, so no two characters' moves are the same.
struct Style {
  float speed;  // frames x speed: below 1 quicker
  float power;  // swing of every pose away from the stance
  bool weapon;  // cuts land with the weapon (part 19)
  Arch win1, win2;
};

// clang-format off
constexpr Style kStyles[15] = {
    {1.00f, 1.00f, false, A::VictoryStance, A::VictoryBow},  // 0
    {0.85f, 0.95f, false, A::VictoryHips,   A::VictoryPoint},  // 1
    {1.00f, 1.05f, false, A::VictoryArms,   A::VictoryBow},  // 2
    {1.15f, 0.97f, false, A::VictoryPoint,  A::VictoryArms},  // 3
    {1.26f, 1.15f, false, A::VictoryFist,   A::VictoryHips},  // 4
    {0.90f, 0.93f, true,  A::VictoryBlade,  A::VictoryHips},  // 5
    {0.85f, 0.98f, true,  A::VictoryBlade,  A::VictoryBow},  // 6
    {0.95f, 1.02f, false, A::VictoryStance, A::VictoryFist},  // 7
    {1.00f, 1.10f, false, A::VictoryArms,   A::VictoryFist},  // 8
    {0.85f, 1.03f, true,  A::VictoryBlade,  A::VictoryPoint},  // 9
    {0.80f, 1.12f, false, A::VictoryPoint,  A::VictoryStance},  // 10
    {0.93f, 1.09f, false, A::VictoryBow,    A::VictoryPoint},  // 11
    {0.95f, 1.07f, false, A::VictoryHips,   A::VictoryStance},  // 12
    {1.10f, 1.18f, true,  A::VictoryBlade,  A::VictoryFist},  // 13
    {0.75f, 1.20f, false, A::VictoryHips,   A::VictoryArms},  // 14
};
// clang-format on

struct Row {
  std::int16_t action;
  Arch arch;
  std::int16_t main, finish;
  bool mirror;
};
constexpr int kMaxRows = 20;

// clang-format off
constexpr Row kRows[15][kMaxRows] = {
    {{190, A::Straight, 10, 0, false}, {191, A::SuperRush, 435, 432, false}, {192, A::FlyingKick, 8, 0, false},
     {197, A::SuperGrab, 400, 0, false}, {220, A::Grab, 10, 0, true}, {221, A::Charge, 410, 0, false},
     {266, A::SuperSpin, 411, 431, false}, {267, A::SpinKick, 11, 0, false}, {273, A::SuperGrab, 400, 0, true},
     {274, A::Grab, 12, 0, false}, {305, A::Rush, 35, 10, false}, {306, A::Uppercut, 20, 0, false},
     {307, A::HeelDrop, 11, 0, false}, {500, A::SuperRush, 435, 431, true}, {510, A::SuperSpin, 411, 431, true}},  // 0
    {{190, A::SuperPalms, 424, 0, false}, {192, A::TwinKick, 7, 11, false}, {201, A::FlyingKick, 11, 0, true},
     {226, A::SpinKick, 11, 0, false}, {227, A::SuperSpin, 411, 431, false}, {228, A::Sweep, 9, 0, false},
     {266, A::SuperRush, 435, 432, true}, {268, A::Backfist, 10, 0, false}, {270, A::FlyingKnee, 10, 0, false},
     {271, A::HeelDrop, 11, 0, false}, {272, A::TwinKick, 7, 11, true}, {305, A::Rush, 35, 10, false},
     {306, A::SuperSpin, 411, 431, true}},  // 1
    {{190, A::Straight, 10, 0, true}, {191, A::Uppercut, 20, 0, false}, {192, A::Charge, 10, 0, false},
     {193, A::FlyingKick, 8, 0, false}, {197, A::SuperGrab, 410, 0, false}, {200, A::Backfist, 8, 0, false},
     {201, A::Palms, 25, 0, false}, {226, A::Sweep, 12, 0, false}, {266, A::SpinKick, 6, 0, true},
     {268, A::SuperRush, 435, 432, false}, {269, A::SuperSpin, 411, 431, false}, {305, A::Rush, 35, 6, true},
     {306, A::HeelDrop, 11, 0, false}, {307, A::TwinKick, 4, 8, false}},  // 2
    {{190, A::SpinKick, 11, 0, false}, {191, A::Sweep, 12, 0, false}, {192, A::Straight, 10, 0, false},
     {193, A::SuperSpin, 411, 431, false}, {195, A::SuperRush, 435, 432, false}, {196, A::FlyingKick, 8, 0, false},
     {226, A::TwinKick, 4, 8, false}, {227, A::HeelDrop, 11, 0, true}, {228, A::Backfist, 8, 0, false},
     {266, A::Rush, 35, 10, false}, {267, A::Uppercut, 20, 0, false}, {271, A::SuperSpin, 411, 431, true},
     {299, A::Charge, 410, 0, false}},  // 3
    {{190, A::Straight, 10, 0, false}, {191, A::Charge, 10, 0, false}, {192, A::Uppercut, 20, 0, false},
     {193, A::HeelDrop, 10, 0, false}, {194, A::FlyingKnee, 10, 0, false}, {195, A::TwinKick, 4, 8, false},
     {226, A::SuperSpin, 411, 431, false}, {227, A::SuperRush, 435, 432, false}, {266, A::Rush, 35, 6, false},
     {267, A::Backfist, 8, 0, true}, {268, A::Sweep, 12, 0, false}, {269, A::SpinKick, 11, 0, false},
     {270, A::FlyingKick, 8, 0, false}, {273, A::SuperGrab, 410, 0, false}, {274, A::SuperGrab, 412, 0, true},
     {211, A::Sweep, 12, 0, false}},  // 4
    {{190, A::Blades, 7, 10, false}, {191, A::SuperBlades, 407, 431, false}, {192, A::SpinKick, 11, 0, false},
     {193, A::Sweep, 12, 0, true}, {194, A::FlyingKick, 8, 0, false}, {195, A::TwinKick, 4, 8, false},
     {196, A::HeelDrop, 11, 0, false}, {226, A::Backfist, 6, 0, false}, {227, A::SuperSpin, 411, 431, false},
     {266, A::Blades, 8, 12, false}, {267, A::SuperRush, 435, 431, false}, {268, A::Straight, 10, 0, false},
     {269, A::Uppercut, 20, 0, false}, {270, A::Rush, 35, 10, false}, {271, A::FlyingKnee, 10, 0, false},
     {272, A::FlyingKick, 7, 0, true}, {305, A::Charge, 10, 0, false}, {306, A::Uppercut, 20, 0, true},
     {307, A::SuperBlades, 407, 432, false}},  // 5
    {{190, A::Throw, 42, 0, false}, {191, A::SuperBlades, 407, 431, false}, {192, A::SuperSpin, 411, 431, false},
     {226, A::Blades, 7, 10, false}, {227, A::SuperRush, 435, 432, false}, {266, A::SpinKick, 11, 0, false},
     {267, A::Sweep, 12, 0, false}, {268, A::Backfist, 8, 0, false}, {269, A::SuperPalms, 431, 0, false}},  // 6
    {{190, A::Rush, 35, 10, false}, {191, A::Straight, 10, 0, false}, {192, A::FlyingKick, 8, 0, false},
     {193, A::Uppercut, 20, 0, false}, {194, A::FlyingKnee, 10, 0, false}, {196, A::TwinKick, 4, 8, false},
     {197, A::Grab, 10, 0, false}, {226, A::SuperSpin, 411, 431, true}, {266, A::SpinKick, 11, 0, true},
     {267, A::Backfist, 8, 0, false}, {268, A::HeelDrop, 11, 0, false}, {269, A::Sweep, 12, 0, false},
     {270, A::Charge, 10, 0, false}, {273, A::SuperGrab, 410, 0, false}, {305, A::Blades, 7, 10, false}},  // 7
    {{192, A::FlyingKnee, 10, 0, false}, {197, A::SuperGrab, 400, 0, false}, {198, A::Grab, 410, 0, true},
     {226, A::Straight, 10, 0, false}, {227, A::Rush, 35, 10, false}, {228, A::Uppercut, 20, 0, false},
     {266, A::SuperRush, 435, 432, false}, {273, A::SuperGrab, 410, 0, true}, {305, A::HeelDrop, 11, 0, false},
     {306, A::FlyingKnee, 10, 0, false}, {307, A::Sweep, 12, 0, false}},  // 8
    {{190, A::Blades, 7, 10, false}, {191, A::SpinKick, 11, 0, false}, {197, A::SuperGrab, 400, 0, false},
     {220, A::Grab, 10, 0, false}, {221, A::SuperGrab, 410, 0, true}, {266, A::Backfist, 11, 0, false},
     {267, A::Blades, 8, 12, false}, {268, A::FlyingKick, 11, 0, false}, {269, A::SuperBlades, 407, 432, false},
     {270, A::Sweep, 12, 0, false}, {271, A::SuperSpin, 411, 431, false}, {305, A::Rush, 35, 10, false},
     {306, A::Uppercut, 20, 0, false}, {307, A::TwinKick, 7, 11, false}},  // 9
    {{190, A::TwinKick, 7, 11, false}, {191, A::SpinKick, 11, 0, true}, {192, A::Sweep, 12, 0, true},
     {193, A::SuperSpin, 411, 431, false}, {195, A::SuperRush, 435, 432, true}, {196, A::FlyingKnee, 10, 0, false},
     {226, A::HeelDrop, 11, 0, false}, {227, A::Straight, 10, 0, false}, {228, A::Uppercut, 20, 0, false},
     {266, A::Rush, 35, 10, true}, {267, A::Backfist, 11, 0, false}, {268, A::Charge, 10, 0, false},
     {269, A::FlyingKick, 11, 0, false}, {270, A::HeelDrop, 11, 0, true}, {272, A::Blades, 7, 10, false},
     {273, A::SuperGrab, 410, 0, false}, {305, A::SuperSpin, 411, 432, true}},  // 10
    {{190, A::Palms, 24, 0, false}, {191, A::Uppercut, 20, 0, true}, {193, A::SuperRush, 435, 431, false},
     {194, A::FlyingKick, 8, 0, false}, {195, A::SuperSpin, 411, 432, false}, {196, A::SuperRush, 435, 431, true},
     {200, A::Straight, 10, 0, true}, {266, A::Rush, 35, 10, false}, {267, A::SpinKick, 11, 0, true},
     {268, A::HeelDrop, 11, 0, false}},  // 11
    {{190, A::Backfist, 8, 0, false}, {191, A::SuperRush, 435, 432, false}, {192, A::Sweep, 12, 0, false},
     {197, A::SuperGrab, 410, 0, false}, {220, A::Grab, 10, 0, false}, {221, A::SuperGrab, 410, 0, true},
     {266, A::SpinKick, 11, 0, false}, {267, A::TwinKick, 4, 8, false}, {268, A::Straight, 10, 0, false},
     {270, A::FlyingKnee, 10, 0, false}, {271, A::FlyingKick, 8, 0, true}, {272, A::HeelDrop, 11, 0, false},
     {273, A::SuperGrab, 412, 0, false}, {305, A::Rush, 35, 10, false}, {306, A::SuperSpin, 411, 431, false},
     {500, A::SuperRush, 435, 431, true}},  // 12
    {{190, A::Blades, 8, 12, false}, {191, A::Charge, 10, 0, false}, {192, A::HeelDrop, 11, 0, false},
     {193, A::Uppercut, 20, 0, false}, {194, A::Throw, 24, 0, false}, {195, A::SuperBlades, 407, 432, false},
     {266, A::Rush, 35, 10, false}, {267, A::Straight, 10, 0, false}, {268, A::SpinKick, 11, 0, false},
     {271, A::SuperSpin, 411, 431, false}},  // 13
    {{193, A::FlyingKnee, 10, 0, true}},  // 14: character 0's moves, and one of its own
};
// clang-format on

// Stable storage for the poses the moves point at.
std::deque<mot::Pose>& Pose_Store() {
  static std::deque<mot::Pose> store;
  return store;
}
const mot::Pose* Keep(const mot::Pose& p) {
  Pose_Store().push_back(p);
  return &Pose_Store().back();
}

int Part_Of(Limb limb, bool mirror, const Style& st) {
  switch (limb) {
    case Limb::LeadHand: return mirror ? 7 : 13;
    case Limb::RearHand: return mirror ? 13 : 7;
    case Limb::LeadFoot: return mirror ? 10 : 16;
    case Limb::RearFoot: return mirror ? 16 : 10;
    case Limb::RearKnee: return mirror ? 15 : 9;
    case Limb::Weapon: return st.weapon ? 19 : 7;
    case Limb::Body: return 3;
    case Limb::None: break;
  }
  return 0;
}

// The link window closes at the end of the first link beat (where a chained move may start);
// later beats carry no link mark.
void Set_Window(Move& mv) {
  int frame = 0;
  for (int i = 0; i < mv.motion.phase_count; ++i) {
    mot::Phase& ph = mv.motion.phases[i];
    frame += ph.frames;
    if (ph.link && mv.window < 0) mv.window = frame;  // frames count from 1 within the move
    else ph.link = false;
  }
}

// A linked start skips the wind-up, but never reaches the first strike.
int Entry_Of(const mot::Motion& m, int wanted) {
  int frame = 0;
  for (int i = 0; i < m.phase_count; ++i) {
    if (m.phases[i].strike_part >= 2) return std::min(wanted, std::max(0, frame - 1));
    frame += m.phases[i].frames;
  }
  return std::min(wanted, std::max(0, frame - 1));
}

// Kicks: the moves whose first blow lands with a foot or a knee.
bool Is_Kick(const ArchDef& d) {
  for (int i = 0; i < d.beat_count; ++i) {
    const Limb l = d.beats[i].limb;
    if (l != Limb::None) return l == Limb::LeadFoot || l == Limb::RearFoot || l == Limb::RearKnee;
  }
  return false;
}

// One-handed blows: 1 when only the lead hand strikes, 2 when only the rear hand or the weapon
// in it, 0 otherwise.
int One_Hand(const ArchDef& d) {
  bool lead = false, rear = false, other = false;
  for (int i = 0; i < d.beat_count; ++i) {
    const Limb l = d.beats[i].limb;
    if (l == Limb::LeadHand) lead = true;
    else if (l == Limb::RearHand || l == Limb::Weapon) rear = true;
    else if (l != Limb::None) other = true;
  }
  if (other || lead == rear) return 0;
  return lead ? 1 : 2;
}

Move Build_Move(int character, int action, const Style& st, const Row& row) {
  const ArchDef& d = Arch_Def(row.arch);
  const bool blades = row.arch == Arch::Blades || row.arch == Arch::SuperBlades || row.arch == Arch::VictoryBlade;
  const bool mirror = row.mirror && !(blades && st.weapon);
  const mot::Pose& stance = Arch_Stance(d.low_stance);
  std::vector<const mot::Pose*> poses;
  const bool victory = row.arch >= Arch::VictoryFist;
  const bool kicking = Is_Kick(d);
  const int hand = One_Hand(d);
  for (const mot::Pose& p : d.poses) {
    mot::Pose q = victory ? p : Pose_Scale(stance, p, st.power);
    if (kicking) q = Mv_KickArms(character, q);
    if (hand != 0) q = Mv_FreeArm(character, q, hand == 1);
    if (!victory) q = Mv_Attitude(character, q);
    poses.push_back(Keep(mirror ? Pose_Mirror(q) : q));
  }
  Move mv;
  mv.action = action;
  mv.motion.name = d.name;
  mv.motion.action = action;
  mv.motion.start = &stance;
  // A spin turns on the supporting foot: the one that does not kick.
  Limb kick = Limb::None;
  for (int i = 0; i < d.beat_count && kick == Limb::None; ++i) kick = d.beats[i].limb;
  const int support = Part_Of(kick == Limb::LeadFoot ? Limb::RearFoot : Limb::LeadFoot, mirror, st);
  const mot::Pose* prev = &stance;
  int frame = 0;
  float carried = 0;
  for (int i = 0; i < d.beat_count && i < mot::kMaxPhases; ++i) {
    const Beat& b = d.beats[i];
    mot::Phase& ph = mv.motion.phases[mv.motion.phase_count++];
    ph.pose = b.pose < 0 ? &stance : poses[b.pose];
    if (std::fabs(ph.pose->ang[4][1] - prev->ang[4][1]) > 60 && b.up == 0) ph.plant = support;
    prev = ph.pose;
    ph.frames = b.timed ? std::max(1, static_cast<int>(std::lround(b.frames * st.speed))) : b.frames;
    if (b.limb != Limb::None) ph.frames = std::max(2, ph.frames);
    ph.ease = b.ease;
    // A long lunge steps its way in: not snapped (most of the way on the first frame) but eased.
    if (b.forward >= 1.0f && b.up == 0 && ph.ease == mot::Ease::Snap) ph.ease = mot::Ease::Out;
    if (b.forward >= 1.5f) ph.frames = std::max(4, ph.frames);
    ph.strike_part = Part_Of(b.limb, mirror, st);
    ph.hit = b.hit == 1 ? row.main : (b.hit == 2 ? row.finish : 0);
    ph.cue = b.cue;
    ph.link = b.link;
    ph.travel = {0, b.up, b.forward + carried};
    carried = 0;
    // A foot turned on stays on its spot: the ground a turning beat would cover is covered by the
    // beat after it, once the body has come round.
    if (ph.plant != 0 && i + 1 < d.beat_count) {
      carried = ph.travel.z;
      ph.travel.z = 0;
    }
    frame += ph.frames;
    if (b.hit == 3) mv.marks.push_back({frame, 0, 1});  // a foot settles
  }
  mv.entry = Entry_Of(mv.motion, static_cast<int>(std::lround(d.entry * st.speed)));
  Set_Window(mv);
  return mv;
}

// A hold's slam: no contact needed, never guarded (class 4), 15 points; struck with a forearm.
constexpr int kSlamHit = 431, kSlamPart = 6;

// One side of a hold script as a move. The attacker's side takes the character's style; the
// defender's side is the same for every character.
Move Build_Hold(int action, HoldScript script, bool attacker, const Style& st) {
  const HoldDef& d = Hold_Def(script);
  const mot::Pose& stance = Arch_Stance(false);
  Move mv;
  mv.action = action;
  mv.motion.name = Hold_Name(script);
  mv.motion.action = action;
  mv.motion.start = attacker ? &stance : &Hold_VictimPose(script, 0);
  int frame = 0;
  for (int i = 0; i < d.beat_count && i < mot::kMaxPhases; ++i) {
    const HoldBeat& b = d.beats[i];
    mot::Phase& ph = mv.motion.phases[mv.motion.phase_count++];
    if (attacker)
      ph.pose = b.attacker_pose < 0 ? &stance : Keep(Pose_Scale(stance, Hold_AttackerPose(script, b.attacker_pose), st.power));
    else
      ph.pose = &Hold_VictimPose(script, b.victim_pose);
    ph.frames = b.frames;
    ph.ease = b.ease;
    ph.cue = attacker ? b.attacker_cue : b.victim_cue;
    ph.link = attacker && b.link;
    if (attacker && b.floor) {  // the slam hurts (a command throw's; a hold's own blow hurt already)
      ph.strike_part = kSlamPart;
      ph.hit = kSlamHit;
    }
    if (!attacker) ph.travel = {0, b.victim_up, b.victim_forward};
    frame += b.frames;
    if (!attacker && b.floor) mv.marks.push_back({frame, 2, 5});
  }
  if (attacker) Set_Window(mv);
  return mv;
}

constexpr HoldPair kHoldPairs[] = {
    {340, 410}, {341, 411}, {342, 412}, {343, 413}, {344, 414}, {348, 418}, {349, 419}, {350, 420},
    {351, 421}, {354, 424}, {355, 425}, {357, 427}, {360, 430}, {361, 431}, {362, 432}, {363, 433},
    {364, 434}, {365, 435}, {367, 437}, {369, 439}, {370, 440}, {371, 441},
};

// The rows a character plays: the boss plays character 0's, then its own.
std::vector<const Row*> Rows_Of(int character) {
  std::vector<const Row*> out;
  auto add = [&](int c) {
    for (const Row& row : kRows[c]) {
      if (row.action == 0) break;
      out.push_back(&row);
    }
  };
  if (character == 14) add(0);
  add(character);
  return out;
}

// True when a queued link leads into the action from one of the character's rushes: a queued
// follow-up waits for the rush's last straight, which drives the opponent off.
bool Follows_Rush(int character, int action) {
  static const bool tables = (build_move_tables(), true);
  (void)tables;
  const std::vector<const Row*> rows = Rows_Of(character);
  for (const ChainLink& link : MoveTables.Chain_Table[character]) {
    if (link.running == NO_LINK) break;
    if (link.next != action || link.queued == 0) continue;
    for (const Row* row : rows)
      if (row->action == link.running && row->arch == A::Rush) return true;
  }
  return false;
}

bool Has_Action(const std::vector<Move>& moves, int action) {
  for (const Move& m : moves)
    if (m.action == action) return true;
  return false;
}

// Command throws and their later stages: the thrower is not held, so it keeps its standing offset.
bool Is_CommandThrow(int hold) {
  for (const CommandThrow& t : CommandThrow_Table)
    if (t.hold == hold) return true;
  for (const ForcedReaction& f : ForcedReaction_Table)
    if (f.hold == hold) return true;
  return false;
}

// The holds this character's moves lead into: its hit-grabs, command throws and forced stages.
void Add_Holds(int character, const Style& st, std::vector<Move>& out) {
  std::vector<int> holds;
  for (const HitGrab& g : HitGrab_Table)
    if ((g.characters & (1u << character)) && Has_Action(out, g.action)) holds.push_back(g.hold);
  for (const CommandThrow& t : CommandThrow_Table)
    if (t.character == character) holds.push_back(t.hold);
  if (character == 7)
    for (const ForcedReaction& f : ForcedReaction_Table) holds.push_back(f.hold);
  for (int h : holds) {
    if (Has_Action(out, h)) continue;
    Move mv = Build_Hold(h, Hold_ScriptOf(h), true, st);
    if (!Is_CommandThrow(h)) mv.motion.lift = fig::Fig_StandingOffset(character);
    out.push_back(std::move(mv));
  }
}

// Every held reaction: one motion per script, shared by the held actions that play it.
void Add_Held(int character, const Style& st, std::vector<Move>& out) {
  int first_of[static_cast<int>(HoldScript::Count)];
  for (int& f : first_of) f = -1;
  for (const HoldPair& p : kHoldPairs) {
    HoldScript s = Hold_ScriptOf(p.hold);
    int& first = first_of[static_cast<int>(s)];
    Move mv = Build_Hold(p.held, s, false, st);
    mv.motion.lift = fig::Fig_StandingOffset(character);
    if (first >= 0) mv.share = first;
    else first = static_cast<int>(out.size());
    out.push_back(std::move(mv));
  }
}

// Lying on the floor, and the motions that end or start there. The game refits the shared
// frames to a body from the chest outward, so a lying body would sit as much too high or too low
// as the character's legs are longer or shorter than the reference's; these actions are played
// from the character's own frames, baked on its own skeleton, where the floor is its own.
constexpr int kFloorActions[] = {50,  51,  55,  56,  57,  143, 144, 147, 148, 157, 158, 161, 162, 163,
                                 164, 165, 166, 167, 171, 172, 173, 174, 175};

// A thrown fighter is drawn without its standing offset; every character that has one plays the
// thrown reactions from its own frames, raised by it, so it is held at the height it stood at and
// lands on its own floor.
constexpr float kThrownOffsetLimit = 0.05f;

void Add_Floor(int character, std::vector<Move>& out) {
  auto own_copy = [&](int action, float lift) {
    const mot::Motion* shared = mot::Mot_SharedByAction(action);
    if (shared == nullptr || Has_Action(out, action)) return;
    Move mv;
    mv.action = action;
    mv.motion = *shared;
    mv.motion.lift = lift;
    out.push_back(mv);
  };
  for (int action : kFloorActions) own_copy(action, 0);
  const float offset = fig::Fig_StandingOffset(character);
  if (std::fabs(offset) >= kThrownOffsetLimit)
    for (int action = 82; action <= 101; ++action) own_copy(action, offset);
}

// A long lunge's wind-up is a skipping stride: the lead leg reaches for the floor ahead while the
// rear one trails from the push, so the strike lands on a step instead of a two-footed hop.
void Stride_Lunge(Move& mv, bool mirror) {
  for (int i = 0; i + 1 < mv.motion.phase_count; ++i) {
    mot::Phase& ph = mv.motion.phases[i];
    if (ph.arc <= 0 || mv.motion.phases[i + 1].strike_part < 2) continue;
    const int lead = mirror ? 8 : 14, rear = mirror ? 14 : 8;
    mot::Pose p = *ph.pose;
    p.ang[lead][0] -= 30;
    p.ang[lead + 1][0] += 20;
    p.ang[rear][0] += 25;
    p.ang[rear + 1][0] += 45;
    ph.pose = Keep(p);
  }
}

// A victory pose in the character's manner, rising out of its own guard.
Move Victory(int character, int which, Move mv) {
  mv.motion.start = Keep(Mv_GuardPose(character));
  for (int i = 0; i < mv.motion.phase_count; ++i) {
    mot::Phase& ph = mv.motion.phases[i];
    ph.pose = Keep(Mv_VictoryTouch(character, which, *ph.pose));
  }
  return mv;
}

}  // namespace

void Mv_CharacterMoves(int character, std::vector<Move>& out) {
  out.clear();
  if (character < 0 || character >= 15) return;
  const Style& st = kStyles[character];
  // Attacks reach where they are used: the computer starts some from its far bands.
  auto attack = [&](const Row& row) {
    Move mv = Build_Move(character, row.action, st, row);
    const int band = Mv_ReachBand(character, row.action);
    float target = band > 0 ? static_cast<float>(band) : kCloseReach;
    if (Mv_IsFollowUp(character, row.action)) target = std::max(target, kFollowReach);
    if (Follows_Rush(character, row.action)) target = std::max(target, kAfterRushReach);
    Mv_FitLine(mv, character, Keep);
    Mv_FitReach(mv, character, target);
    Stride_Lunge(mv, row.mirror);
    Mv_FitReach(mv, character, target);  // the stride moves the striking limb a little
    Mv_FitLine(mv, character, Keep);
    out.push_back(std::move(mv));
  };
  for (const Row* row : Rows_Of(character)) attack(*row);
  Add_Holds(character, st, out);
  attack(Row{241, Arch::LowPalm, 4, 0, false});
  attack(Row{242, Arch::LowKick, 8, 0, false});
  out.push_back(Victory(character, 0, Build_Move(character, 12, st, Row{12, st.win1, 0, 0, false})));
  out.push_back(Victory(character, 1, Build_Move(character, 13, st, Row{13, st.win2, 0, 0, false})));
  out.push_back(Mv_IdleGuard(character));
  Add_Held(character, st, out);
  Add_Floor(character, out);
}

Move Mv_StyledMove(int character, int action, int arch, int main_hit, int finish_hit, bool mirror) {
  const Style& st = kStyles[character < 0 || character >= 15 ? 0 : character];
  Row row{static_cast<std::int16_t>(action), static_cast<Arch>(arch), static_cast<std::int16_t>(main_hit),
          static_cast<std::int16_t>(finish_hit), mirror};
  return Build_Move(character < 0 || character >= 15 ? 0 : character, action, st, row);
}

int Mv_ProjectileKind(int character, int action) {
  if (character < 0 || character >= 15) return 0;
  for (const Row* row : Rows_Of(character)) {
    int kind = row->main % 100;
    if (row->action == action && (kind == 24 || kind == 25 || kind == 42 || kind == 43)) return kind;
  }
  return 0;
}

int Mv_HoldPairCount() { return static_cast<int>(sizeof(kHoldPairs) / sizeof(kHoldPairs[0])); }
const HoldPair& Mv_HoldPair(int index) { return kHoldPairs[index]; }

}  // namespace mv
