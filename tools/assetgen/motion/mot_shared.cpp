// The shared catalogue as one list: the parts of mot_shared_*.cpp in a fixed order.
#include "motion/mot_shared.h"

#include "motion/mot_shared_build.h"
#include "motion/mot_shared_poses.h"

namespace mot {
namespace {

using Section = std::span<const Motion> (*)();
constexpr Section kSections[] = {
    shared::Mot_StandMotions,     // idles, walks, dashes, turns, guards, crouching
    shared::Mot_AirFloorMotions,  // jumps, lying, rising, dodges, charge, victory
    shared::Mot_AttackMotions,    // attacks
    shared::Mot_ReactionMotions,  // hit reactions and falls
    shared::Mot_ThrowMotions,     // throws, escapes, the counter hold
};

}  // namespace

int Mot_SharedCount() {
  int n = 0;
  for (Section s : kSections) n += static_cast<int>(s().size());
  return n;
}

const Motion& Mot_Shared(int index) {
  if (index < 0) index = 0;
  const Motion* last = nullptr;
  for (Section s : kSections) {
    std::span<const Motion> part = s();
    if (index < static_cast<int>(part.size())) return part[index];
    index -= static_cast<int>(part.size());
    if (!part.empty()) last = &part.back();
  }
  return *last;
}

const Motion* Mot_SharedByAction(int action) {
  for (Section s : kSections)
    for (const Motion& m : s())
      if (m.action == action) return &m;
  return nullptr;
}

int Mot_ReachCount() { return static_cast<int>(shared::Mot_AttackReaches().size()); }
const Reach& Mot_ReachOf(int index) {
  std::span<const Reach> r = shared::Mot_AttackReaches();
  return r[index < 0 ? 0 : (index >= static_cast<int>(r.size()) ? r.size() - 1 : index)];
}
const Pose& Mot_StancePose() { return shared::kStance; }

}  // namespace mot
