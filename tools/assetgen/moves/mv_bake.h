// Baking a list of moves on a character's skeleton into the records of its animation file
// (key frames) and its table file (frames and action ranges).
#pragma once
#include <string>
#include <vector>

#include "figures/fig_types.h"
#include "moves/mv_roster.h"
#include "writers/writer_fa.h"
#include "writers/writer_tbl.h"

namespace mv {

constexpr int kOwnKeyLimit = 2500;   // a character's own key frames
constexpr int kFrameLimit = 13500;   // shared frames + own frames + 2

struct OwnFiles {
  std::vector<FaKeyFrame> keys;
  TblFile table;  // frame 0 is a rest frame no action uses; ranges count from 1
};

// Bakes every move (a move that shares another's frames points its range at them), with the
// lowest point of the character's mesh (when given) on the floor it stands on. Repeated key
// frames are stored once. False, with the reason, when the key frames overflow.
bool Mv_Bake(const std::vector<Move>& moves, const fig::Skeleton& skeleton, const fig::Model* model, OwnFiles& out,
             std::string* error);

// The key frame record of a baked pose.
FaKeyFrame Mv_KeyRecord(const mot::KeyFrame& key);

}  // namespace mv
