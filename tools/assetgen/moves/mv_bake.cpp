#include "moves/mv_bake.h"

#include <cstring>

#include "figures/fig_figure.h"
#include "motion/mot_shared.h"
#include "moves/mv_arch.h"

namespace mv {

FaKeyFrame Mv_KeyRecord(const mot::KeyFrame& key) {
  FaKeyFrame out{};
  for (int p = 0; p < mot::kKeyParts; ++p) {
    std::memcpy(out.parts[p].rot, key.rot[p], sizeof out.parts[p].rot);
    std::memcpy(out.parts[p].pos, key.pos[p], sizeof out.parts[p].pos);
  }
  return out;
}

namespace {

bool Same(const FaKeyFrame& a, const FaKeyFrame& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

TblFrame Frame_Of(int key, const mot::BakedFrame& f) {
  TblFrame t{};
  t.key = static_cast<std::int16_t>(key);
  t.offset[0] = f.offset.x / 10.0f;  // the table stores tenths
  t.offset[1] = f.offset.y / 10.0f;
  t.offset[2] = f.offset.z / 10.0f;
  t.part = f.part;
  t.hit = f.hit;
  return t;
}

// Appends one move's frames; returns its first frame.
int Append(const Move& mv, const mot::Joints& joints, const mot::Floor* floor, OwnFiles& out) {
  std::vector<mot::BakedFrame> frames;
  mot::Mot_Bake(mv.motion, joints, frames, floor);
  for (const Mark& m : mv.marks) {
    if (m.frame < 1 || m.frame > static_cast<int>(frames.size())) continue;
    mot::BakedFrame& f = frames[m.frame - 1];
    if (f.part < 0) f.part = 0;  // the mark wins over a cue
    if (m.part != 0) f.part = m.part;
    f.hit = m.hit;
  }
  const int first = static_cast<int>(out.table.frames.size());
  for (const mot::BakedFrame& f : frames) {
    FaKeyFrame rec = Mv_KeyRecord(f.key);
    if (out.keys.empty() || !Same(out.keys.back(), rec)) out.keys.push_back(rec);
    out.table.frames.push_back(Frame_Of(static_cast<int>(out.keys.size()) - 1, f));
  }
  return first;
}

// The body's points the floor can touch (props and the flexible piece left out), and its lowest
// point in the fighting stance.
std::vector<mot::MeshPoint> Mesh_Of(const fig::Model& model) {
  std::vector<mot::MeshPoint> out;
  for (int i = 1; i <= model.vertex_count; ++i) {
    const fig::Vertex& v = model.vertices[i];
    if (v.part >= 2 && v.part <= 18) out.push_back({v.part, {v.x, v.y, v.z}});
  }
  return out;
}

// The lowest point of the body standing in the shared idle's first frame, as the game shows it
// on this skeleton: the floor every own frame keeps to.
float Standing_Low(std::span<const mot::MeshPoint> mesh, const fig::Skeleton& skeleton) {
  mot::Joints ref;
  mot::Mot_JointsOf(fig::Fig_ReferenceSkeleton(), ref);
  std::vector<mot::BakedFrame> idle;
  mot::Mot_Bake(*mot::Mot_SharedByAction(0), ref, idle);
  mot::KeyFrame key = idle.front().key;
  mot::Mot_AsLoaded(key, true);
  mot::Mot_Fit(key, skeleton);
  mot::PartMatrix stand[22];
  mot::Mot_Unpack(key, stand);
  return mot::Mot_MeshLow(mesh, stand) + idle.front().offset.y;
}

}  // namespace

bool Mv_Bake(const std::vector<Move>& moves, const fig::Skeleton& skeleton, const fig::Model* model, OwnFiles& out,
             std::string* error) {
  mot::Joints joints;
  mot::Mot_JointsOf(skeleton, joints);
  std::vector<mot::MeshPoint> mesh;
  mot::Floor floor;
  if (model) {
    mesh = Mesh_Of(*model);
    floor.mesh = mesh;
    floor.rest = Standing_Low(mesh, skeleton);
  }
  const mot::Floor* on = model ? &floor : nullptr;
  out.keys.clear();
  out.table = TblFile{};
  // Frame 0: the fighting stance, which no action plays.
  Move rest;
  rest.motion.name = "rest";
  rest.motion.start = &Arch_Stance(false);
  rest.motion.phases[0].pose = rest.motion.start;
  rest.motion.phase_count = 1;
  Append(rest, joints, on, out);
  std::vector<int> first_of(moves.size(), 0);
  for (std::size_t i = 0; i < moves.size(); ++i) {
    const Move& mv = moves[i];
    const int length = mot::Mot_Length(mv.motion);
    int first;
    if (mv.share >= 0 && mv.share < static_cast<int>(i)) {
      first = first_of[mv.share];
    } else {
      first = Append(mv, joints, on, out);
    }
    first_of[i] = first;
    out.table.act[mv.action] = {static_cast<std::int16_t>(first), static_cast<std::int16_t>(first + length - 1)};
    if (mv.window > 0)
      out.table.win[mv.action] = {static_cast<std::int16_t>(first + (mv.entry < mv.window ? mv.entry : 0)),
                                  static_cast<std::int16_t>(first + mv.window - 1)};
  }
  if (static_cast<int>(out.keys.size()) > kOwnKeyLimit) {
    *error = "own key frames " + std::to_string(out.keys.size()) + " above " + std::to_string(kOwnKeyLimit);
    return false;
  }
  return true;
}

}  // namespace mv
