// The opening's choreography. Each side's performance is one long action: its moves fall in
// the script ranges where the scene shows that side (side 0 in 0..199, 452..569, 723..795,
// 855..1027 and 1152..1280, side 1 in the rest), and it breathes in its stance between
// them. Nothing in it strikes (both fighters stand on the same spot), but the swings keep
// their whooshes.
#include "moves/mv_opening.h"

#include <cmath>

#include "figures/fig_figure.h"
#include "moves/mv_arch.h"
#include "moves/mv_roster.h"
#include "motion/mot_shared.h"

namespace mv {
namespace {

constexpr int kCharacterOf[2] = {0, 9};

// One move of a performance, started at a script frame.
struct Cue {
  int at;
  Arch arch;
  bool mirror;
};
// clang-format off
constexpr Cue kBan[] = {
    {130, Arch::Straight, false},   // first shot after the intro: a stepping straight
    {165, Arch::Backfist, false},
    {462, Arch::Rush, false},       // the combination, orbited
    {515, Arch::SpinKick, false},
    {735, Arch::Uppercut, false},   // low camera
    {865, Arch::TwinKick, false},
    {930, Arch::HeelDrop, false},   // close
    {968, Arch::SuperRush, false},  // wide
    {1160, Arch::SuperSpin, false}, // the finale
    {1232, Arch::VictoryFist, false},
};
constexpr Cue kKnight[] = {
    {210, Arch::Blades, false},       // knife drawn
    {262, Arch::SpinKick, true},
    {330, Arch::Backfist, false},     // close on the upper body
    {365, Arch::Blades, false},
    {412, Arch::Sweep, false},        // wide
    {580, Arch::SuperBlades, false},
    {660, Arch::FlyingKick, false},
    {800, Arch::TwinKick, true},
    {1035, Arch::Rush, false},
    {1092, Arch::FlyingKnee, false},
    {1115, Arch::Uppercut, false},
    {1284, Arch::VictoryBlade, false},
};
// clang-format on

struct Performance {
  const Cue* cues;
  int count;
};
Performance Performance_Of(int side) {
  if (side == 0) return {kBan, static_cast<int>(sizeof kBan / sizeof kBan[0])};
  return {kKnight, static_cast<int>(sizeof kKnight / sizeof kKnight[0])};
}

// A move baked for the opening: no strikes and no travel along the floor, so the performer
// stays on the spot the camera circles.
std::vector<mot::BakedFrame> Bake_Cue(int character, const Cue& cue, const mot::Joints& joints) {
  Move mv = Mv_StyledMove(character, 0, static_cast<int>(cue.arch), 0, 0, cue.mirror);
  for (int i = 0; i < mv.motion.phase_count; ++i) {
    mv.motion.phases[i].strike_part = 0;
    mv.motion.phases[i].hit = 0;
    mv.motion.phases[i].link = false;
    mv.motion.phases[i].travel.z = 0;
  }
  std::vector<mot::BakedFrame> frames;
  mot::Mot_Bake(mv.motion, joints, frames);
  for (mot::BakedFrame& f : frames) {
    if (f.part > 0) f.part = 0;
    f.hit = 0;
  }
  return frames;
}

int Add_Key(const mot::KeyFrame& key, OwnFiles& out) {
  out.keys.push_back(Mv_KeyRecord(key));
  return static_cast<int>(out.keys.size()) - 1;
}

TblFrame Table_Frame(int key, const mot::BakedFrame& f) {
  TblFrame t{};
  t.key = static_cast<std::int16_t>(key);
  t.offset[1] = f.offset.y / 10.0f;
  t.part = f.part;
  return t;
}

// ---- camera ---------------------------------------------------------------------------------
// A shot: the eye circles the fighter at angle `turn` (0 in front, 90 on its left... as the
// world's z runs), `radius` out and `height` up (relative to the fighter's position), looking
// at `look` on the fighter's axis. Every value eases from its first to its second.
struct Shot {
  int first;  // script frame the shot starts on (a cut)
  float turn[2], radius[2], height[2], look[2];
};
// clang-format off
constexpr Shot kShots[] = {
    {0,    {30, 80},   {14, 11}, {-6, -3},   {-3, -3}},    // side 0: low, slow circle in
    {118,  {100, 90},  {16, 13}, {-2, -2},   {-4, -4}},    // side 0: from its side, closing
    {200,  {-40, 10},  {12, 15}, {-7, 0},    {-4, -3}},    // side 1: rising
    {325,  {140, 170}, {8, 9},   {-1, -1},   {-2, -2}},    // side 1: close on the upper body
    {408,  {80, 60},   {20, 20}, {2, 2},     {-4, -4}},    // side 1: wide
    {453,  {200, 320}, {16, 16}, {-3, -3},   {-4, -4}},    // side 0: orbiting the combination
    {570,  {90, 30},   {18, 12}, {-5, -2},   {-4, -3}},    // side 1
    {724,  {60, 70},   {10, 10}, {-8, -6},   {-2, 0}},     // side 0: from the floor
    {796,  {120, 100}, {18, 18}, {0, 0},     {-4, -4}},    // side 1
    {851,  {-60, -20}, {14, 14}, {-3, -3},   {-4, -4}},    // side 0
    {920,  {80, 85},   {6, 6},   {-1.5f, -1.5f}, {-1, -1}},  // side 0: the face
    {958,  {0, 90},    {22, 17}, {3, -1},    {-4, -4}},    // side 0: wide
    {1028, {250, 290}, {14, 14}, {-4, -4},   {-4, -4}},    // side 1
    {1090, {100, 100}, {10, 10}, {-2, -2},   {-3, -3}},    // side 1
    {1110, {140, 120}, {16, 16}, {-5, -2},   {-4, -4}},    // side 1
    {1152, {40, 230},  {20, 13}, {4, -2},    {-4, -3}},    // the finale, both sides in turn
};
// clang-format on

float Ease(float a, float b, float t) {
  float e = t * t * (3.0f - 2.0f * t);
  return a + (b - a) * e;
}

}  // namespace

const char* Mv_OpeningAnimFile(int side) { return side == 0 ? "OPEN_BAN.FA" : "OPEN_KNI.FX"; }
std::string Mv_OpeningTableFile(int side) { return side == 0 ? "OPEN_BAN.TBL" : "OPEN_KNI.TBL"; }

bool Mv_BakeOpening(int side, OwnFiles& out, std::string* error) {
  const int character = kCharacterOf[side == 0 ? 0 : 1];
  fig::Skeleton skel;
  fig::Fig_BuildSkeleton(character, skel);
  mot::Joints joints;
  mot::Mot_JointsOf(skel, joints);
  out.keys.clear();
  out.table = TblFile{};

  // The breathing stance between moves, baked once and looped.
  std::vector<mot::BakedFrame> idle;
  if (const mot::Motion* breathe = mot::Mot_SharedByAction(0)) mot::Mot_Bake(*breathe, joints, idle);
  if (idle.empty()) {
    mot::Motion still{"stance", 0, &Arch_Stance(false), {}, 1};
    still.phases[0].pose = still.start;
    mot::Mot_Bake(still, joints, idle);
  }
  std::vector<int> idle_keys;
  for (const mot::BakedFrame& f : idle) idle_keys.push_back(Add_Key(f.key, out));

  out.table.frames.push_back(Table_Frame(idle_keys[0], idle[0]));  // frame 0, unused
  const Performance perf = Performance_Of(side);
  int s = 0, next = 0;
  while (s < kOpeningFrames) {
    if (next < perf.count && s >= perf.cues[next].at) {
      std::vector<mot::BakedFrame> move = Bake_Cue(character, perf.cues[next], joints);
      ++next;
      const int end = next < perf.count ? perf.cues[next].at : kOpeningFrames;
      const bool last = next == perf.count;  // the closing pose is held to the end
      for (std::size_t k = 0; s < end; ++k, ++s) {
        if (k >= move.size() && !last) break;
        if (k >= move.size()) {
          out.table.frames.push_back(out.table.frames.back());
          continue;
        }
        out.table.frames.push_back(Table_Frame(Add_Key(move[k].key, out), move[k]));
      }
      continue;
    }
    const int k = s % static_cast<int>(idle_keys.size());
    out.table.frames.push_back(Table_Frame(idle_keys[k], idle[k]));
    ++s;
  }
  out.table.act[0] = {1, static_cast<std::int16_t>(kOpeningFrames)};
  if (static_cast<int>(out.keys.size()) > kOwnKeyLimit) {
    *error = "key frames " + std::to_string(out.keys.size()) + " above " + std::to_string(kOwnKeyLimit);
    return false;
  }
  return true;
}

void Mv_OpeningCamera(writers::CameraPathFile& eye, writers::CameraPathFile& look) {
  constexpr int kShots_ = static_cast<int>(sizeof kShots / sizeof kShots[0]);
  eye.points.clear();
  look.points.clear();
  for (int s = 0; s < kOpeningFrames; ++s) {
    int i = 0;
    while (i + 1 < kShots_ && kShots[i + 1].first <= s) ++i;
    const Shot& sh = kShots[i];
    const int end = i + 1 < kShots_ ? kShots[i + 1].first : kOpeningFrames;
    const float t = static_cast<float>(s - sh.first) / static_cast<float>(end - sh.first);
    const float turn = Ease(sh.turn[0], sh.turn[1], t) * fig::kDeg;
    const float r = Ease(sh.radius[0], sh.radius[1], t);
    const float h = Ease(sh.height[0], sh.height[1], t);
    const float l = Ease(sh.look[0], sh.look[1], t);
    // File values are five times the world's.
    eye.points.push_back({5.0f * r * std::cos(turn), 5.0f * h, 5.0f * r * std::sin(turn)});
    look.points.push_back({0.0f, 5.0f * l, 0.0f});
  }
}

}  // namespace mv
