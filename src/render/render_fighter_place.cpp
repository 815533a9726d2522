// Placing a single body part: the vertical placement rules and the part point.
#include "assets/asset_anim.h"
#include "fight/fight_state.h"
#include "render/render_fighter.h"

FighterDraw Draw;

// clang-format off
const CharacterHeights CharacterHeightTable[HEIGHT_ROWS] = {
    {0.0f, -0.3f, -5.288821f},   // 0
    {-0.4f, -0.1f, -5.305242f},  // 1
    {0.3f, 0.4f, -5.220606f},    // 2
    {0.1f, 0.3f, -5.230864f},    // 3
    {0.0f, 0.0f, -5.378345f},    // 4
    {-0.1f, 0.3f, -5.395651f},   // 5
    {0.0f, 0.0f, -5.428834f},    // 6
    {0.1f, 0.5f, -5.166887f},    // 7
    {1.0f, 0.6f, -5.305762f},    // 8
    {0.1f, 0.5f, -5.331778f},    // 9
    {0.2f, 0.5f, -5.01582f},     // 10
    {0.2f, 0.5f, -5.227478f},    // 11
    {0.2f, 0.5f, -5.1826f},      // 12
    {0.1f, 0.5f, -5.05587f},     // 13
    {0.0f, -0.3f, -5.288821f},   // 14
};
// clang-format on

namespace {

constexpr int kActionFeetOnFloor = 170;
constexpr int kActionCrouchDown = 30;
constexpr int kActionStandUp = 31;

bool valid_player(int player) { return player == 0 || player == 1; }

const CharacterHeights& heights_of(int player) {
  const int c = Match.character[player];
  return CharacterHeightTable[(c >= 0 && c < HEIGHT_ROWS) ? c : 0];
}

// How far the fighter is through its action: the single-precision quotient value / span,
// multiplied by the whole frames gone. An action of no length counts as not begun.
float through_action(const Fighter& f, float value) {
  if (f.action < 0 || f.action >= MAX_ACTIONS) return 0.0f;
  const int first = f.act_first[f.action];
  const int span = f.act_last[f.action] - first;
  if (span == 0) return 0.0f;
  return value / static_cast<float>(span) * static_cast<float>(f.frame - first);
}

int wrap_angle(int a) { return ((a % ANGLES) + ANGLES) % ANGLES; }

}  // namespace

PlacementRule Placement_Rule(int player) {
  const Fighter& f = fighters[player];
  if (f.action == kActionFeetOnFloor || (f.busy && !f.crouching && !f.reacting))
    return PLACE_FEET_ON_FLOOR;
  if (f.busy && f.reacting) return PLACE_HELD;
  return PLACE_POSTURE;
}

float Posture_Offset(int player) {
  const Fighter& f = fighters[player];
  const CharacterHeights& h = heights_of(player);
  if (f.rise_flag) return through_action(f, h.standing);
  if (f.action == kActionCrouchDown)
    return h.standing - through_action(f, h.standing - h.crouching);
  if (f.action == kActionStandUp) return h.crouching + through_action(f, h.standing - h.crouching);
  return f.crouching ? h.crouching : h.standing;
}

bool Part_PointMat(int player, int p, Mat43* out) {
  if (!valid_player(player) || p < ANIM_FIRST_PART || p > ANIM_LAST_PART) return false;
  const Fighter& f = fighters[player];
  Pose_Part(player, p);
  const Mat43* pose = &Anim.Pose[player][p];
  if (p == 2 && (f.extra_angle[0] != 0 || f.extra_angle[1] != 0)) {
    Mat43 turn;
    Mat_RotX(&turn, wrap_angle(f.extra_angle[0]));
    Mat_Mul(out, &turn, pose);
  } else {
    Mat_Copy(out, pose);
  }
  switch (Placement_Rule(player)) {
    case PLACE_FEET_ON_FLOOR:
      break;
    case PLACE_HELD:
      out->m[10] += f.height;
      break;
    case PLACE_POSTURE:
      out->m[10] += Posture_Offset(player) + f.height;
      break;
  }
  return true;
}

void Part_Point(int player, int p, float lx, float ly, float lz, float* ox, float* oy,
                float* oz) {
  Mat43 m;
  if (!Part_PointMat(player, p, &m)) {
    *ox = lx, *oy = ly, *oz = lz;
    return;
  }
  Mat_Apply(&m, lx, ly, lz, ox, oy, oz);
}
