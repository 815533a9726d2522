// Shared between the pieces of the figure builder: the body frame (joints and sizes in model
// space) and the texture regions. Internal to the figure generator.
#pragma once
#include "figures/fig_figure.h"
#include "figures/fig_math.h"
#include "figures/fig_mesh.h"
#include "figures/fig_roster.h"

namespace fig {

// Texture regions: one picture each. The left-side and back regions share their counterpart's
// picture unless the row needs more textures (see Fig_TextureList).
enum Region : int {
  R_FACE, R_HAIR, R_SKIN, R_TORSO, R_PELVIS, R_BELT, R_UARM, R_FARM, R_HAND, R_THIGH, R_SHIN,
  R_FOOT, R_PROP, R_FLEX, R_ACCS,
  // split-off regions, in the order they are split off when a row needs more textures
  R_TORSO_BACK, R_PELVIS_BACK, R_HAIR_BACK, R_FOOT_L, R_SHIN_L, R_THIGH_L, R_HAND_L, R_FARM_L,
  R_UARM_L,
  R_COUNT
};
constexpr int kFirstSplit = R_TORSO_BACK;
// The region a split-off region falls back to.
constexpr int kSplitParent[R_COUNT] = {
    R_FACE, R_HAIR, R_SKIN, R_TORSO, R_PELVIS, R_BELT, R_UARM, R_FARM, R_HAND, R_THIGH, R_SHIN,
    R_FOOT, R_PROP, R_FLEX, R_ACCS, R_TORSO, R_PELVIS, R_HAIR, R_FOOT, R_SHIN, R_THIGH, R_HAND,
    R_FARM, R_UARM};

struct BodyFrame {
  Vec3 joint[22];   // model-space joint of each part (the skeleton file's points, x 10)
  float neck_base;  // y where the neck meets the shoulders
  float waist;      // y of the chest/pelvis joint
  float hips;       // y of the hip joints
  float thigh, shin;
  float upper_arm, forearm, hand;
  Vec3 arm_dir[2];  // rest direction of the right (+x) and left arm
  float sole;       // y of the soles
};

void Body_Frame(const Look& look, float leg_length, BodyFrame& out);

// Pieces; each adds geometry tagged with its part and region.
void Body_Head(Model& m, const Look& look, const BodyFrame& bf);
void Body_Hair(Model& m, const Look& look, const BodyFrame& bf);
void Body_Torso(Model& m, const Look& look, const BodyFrame& bf);
void Body_Pelvis(Model& m, const Look& look, const BodyFrame& bf);
void Body_Arms(Model& m, const Look& look, const BodyFrame& bf);
void Body_Legs(Model& m, const Look& look, const BodyFrame& bf);
void Body_Clothes(Model& m, const Look& look, const BodyFrame& bf);
void Body_Flex(Model& m, const Look& look, const BodyFrame& bf);
void Body_Props(Model& m, const Look& look, const BodyFrame& bf);
void Body_Attachments(Model& m, int character, const Look& look, const BodyFrame& bf);

// A tube along a straight segment, rings given as (fraction along, radius x, radius z).
struct Station {
  float t, rx, rz;
  float bulge_front = 0, bulge_back = 0;
};
// Hairline height (fraction of the head from chin to crown) round the head: the hair covers the
// head from this line up to the crown.
struct HairShape {
  float front, side, back;  // hairline heights
  float grow;               // how far the hair stands off the skin
  float shag;               // random unevenness of the shell
  int spikes;
};
HairShape Hair_Shape(Hair h);
// The hairline's height at angle theta round the head (degrees, 90 the front, -90 the back).
float Hair_Line(const HairShape& hs, float theta);

bool Body_Tube(Model& m, int part, int region, Vec3 a, Vec3 b, const Station* st, int n, int sides,
               bool cap_a, bool cap_b, float square = 1.0f);

}  // namespace fig
