// The shared motions every character plays: PRELOAD.FA (packed, arm-free key frames authored on
// the reference skeleton) and PRELOAD.TBL (each action's frames, whole-body offsets, strike and
// sound marks). Frame 0 and key frame 0 hold the stance and belong to no action; identical key
// frames (held poses) are stored once.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "assetgen.h"
#include "figures/fig_figure.h"
#include "motion/mot_shared.h"
#include "writers/writer_fa.h"
#include "writers/writer_tbl.h"

namespace gen {
namespace {

constexpr int kSharedKeyBudget = 6700;     // the shared key-frame table
constexpr int kSharedFrameBudget = 8000;   // leaves every character room for its own frames
constexpr int kLinkDelay = 3;              // frames after an attack's last strike that still link

static_assert(sizeof(FaKeyFrame) == sizeof(mot::KeyFrame), "a key frame converts part for part");

FaKeyFrame To_File(const mot::KeyFrame& k) {
  FaKeyFrame out;
  for (int p = 0; p < mot::kKeyParts; ++p) {
    std::memcpy(out.parts[p].rot, k.rot[p], sizeof out.parts[p].rot);
    std::memcpy(out.parts[p].pos, k.pos[p], sizeof out.parts[p].pos);
  }
  return out;
}

// Key frames in order of first use; a repeated pose gets the number it had.
struct KeyStore {
  std::vector<FaKeyFrame> keys;
  std::map<std::string, int> index;
  int Add(const mot::KeyFrame& k) {
    std::string bytes(reinterpret_cast<const char*>(&k), sizeof k);
    auto [it, fresh] = index.emplace(bytes, static_cast<int>(keys.size()));
    if (fresh) keys.push_back(To_File(k));
    return it->second;
  }
};

// An attack links from its second frame until a little after its last strike.
TblRange Link_Window(const std::vector<mot::BakedFrame>& frames, int first) {
  int last_strike = -1;
  for (int f = 0; f < static_cast<int>(frames.size()); ++f)
    if (frames[f].part >= 2 && frames[f].hit != mot::kImpactHit) last_strike = f;
  if (last_strike < 0) return {0, 0};
  int last = std::min(last_strike + kLinkDelay, static_cast<int>(frames.size()) - 2);
  return {static_cast<std::int16_t>(first + 1), static_cast<std::int16_t>(first + std::max(last, 1))};
}

bool Add_Motion(const mot::Motion& mo, const mot::Joints& joints, KeyStore& store, TblFile& table) {
  if (mo.action < 0 || mo.action >= 1000 || table.act[mo.action].first != 0) {
    std::fprintf(stderr, "PRELOAD.TBL: motion %s has action %d twice or out of range\n", mo.name, mo.action);
    return false;
  }
  std::vector<mot::BakedFrame> frames;
  mot::Mot_Bake(mo, joints, frames);
  int first = static_cast<int>(table.frames.size());
  for (const mot::BakedFrame& f : frames) {
    TblFrame row;
    row.key = static_cast<std::int16_t>(store.Add(f.key));
    row.offset[0] = f.offset.x / 10.0f;  // stored in tenths
    row.offset[1] = f.offset.y / 10.0f;
    row.offset[2] = f.offset.z / 10.0f;
    row.part = f.part;
    row.hit = f.hit;
    table.frames.push_back(row);
  }
  int last = static_cast<int>(table.frames.size()) - 1;
  table.act[mo.action] = {static_cast<std::int16_t>(first), static_cast<std::int16_t>(last)};
  table.win[mo.action] = Link_Window(frames, first);
  return true;
}

}  // namespace

bool Generate_Motions(const Context& ctx) {
  mot::Joints joints;
  mot::Mot_JointsOf(fig::Fig_ReferenceSkeleton(), joints);
  KeyStore store;
  auto table = std::make_unique<TblFile>();
  // Frame 0 and key frame 0: the stance, shown by no action.
  std::vector<mot::BakedFrame> rest;
  mot::Mot_Bake(*mot::Mot_SharedByAction(0), joints, rest);
  store.Add(rest.front().key);
  table->frames.push_back(TblFrame{0, {0, 0, 0}, 0, 0});
  for (int i = 0; i < mot::Mot_SharedCount(); ++i)
    if (!Add_Motion(mot::Mot_Shared(i), joints, store, *table)) return false;

  int keys = static_cast<int>(store.keys.size()), frames = static_cast<int>(table->frames.size());
  if (keys > kSharedKeyBudget || frames > kSharedFrameBudget) {
    std::fprintf(stderr, "PRELOAD: %d key frames (at most %d), %d frames (at most %d)\n", keys, kSharedKeyBudget,
                 frames, kSharedFrameBudget);
    return false;
  }
  std::string fa = (ctx.out / "PRELOAD.FA").string(), tbl = (ctx.out / "PRELOAD.TBL").string();
  if (!Write_FA(fa.c_str(), FaKind::PackedArmFree, 21, store.keys)) {
    std::fprintf(stderr, "%s: cannot be encoded or written\n", fa.c_str());
    return false;
  }
  if (!Write_TBL(tbl.c_str(), *table)) {
    std::fprintf(stderr, "%s: cannot be encoded or written\n", tbl.c_str());
    return false;
  }
  std::printf("assetgen: %d shared motions, %d frames, %d key frames\n", mot::Mot_SharedCount(), frames, keys);
  return true;
}

}  // namespace gen
