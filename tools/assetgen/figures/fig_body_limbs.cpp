// The body frame and the trunk and limb pieces.
#include <cmath>

#include "figures/fig_body_internal.h"

namespace fig {

void Body_Frame(const Look& lk, float leg_length, BodyFrame& bf) {
  for (Vec3& j : bf.joint) j = {};
  Vec3 neck{0, lk.head_top - 0.93f * lk.head_h, -0.06f};
  bf.neck_base = neck.y - 0.42f;
  bf.hips = bf.neck_base - lk.torso;
  bf.waist = bf.hips + 0.80f;
  float arm_scale = lk.torso / 2.9f;
  bf.upper_arm = 1.62f * arm_scale;
  bf.forearm = 1.38f * arm_scale;
  bf.hand = 0.80f * (1.0f + 0.12f * lk.bulk);
  bf.thigh = 0.515f * leg_length;
  bf.shin = 0.485f * leg_length;
  constexpr float kArmSpread = 7.0f;  // the arms hang slightly away from the body at rest
  bf.arm_dir[0] = {std::sin(kArmSpread * kDeg), -std::cos(kArmSpread * kDeg), 0};
  bf.arm_dir[1] = {-bf.arm_dir[0].x, bf.arm_dir[0].y, 0};

  bf.joint[P_HEAD] = neck;
  bf.joint[P_CHEST] = {0, bf.waist, 0};
  bf.joint[P_PELVIS] = {0, bf.waist, 0};
  for (int s = 0; s < 2; ++s) {
    float side = s == 0 ? 1.0f : -1.0f;
    int upper = s == 0 ? P_R_UPPERARM : P_L_UPPERARM;
    Vec3 shoulder{side * lk.shoulder, bf.neck_base - 0.26f, -0.04f};
    Vec3 elbow = shoulder + bf.arm_dir[s] * bf.upper_arm;
    Vec3 wrist = elbow + bf.arm_dir[s] * bf.forearm;
    bf.joint[upper] = shoulder;
    bf.joint[upper + 1] = elbow;
    bf.joint[upper + 2] = wrist;
    int thigh = s == 0 ? P_R_THIGH : P_L_THIGH;
    Vec3 hip{side * lk.hip_w, bf.hips, 0.02f};
    Vec3 knee = hip + Vec3{0, -bf.thigh, 0.06f};
    Vec3 ankle = knee + Vec3{0, -bf.shin, -0.08f};
    bf.joint[thigh] = hip;
    bf.joint[thigh + 1] = knee;
    bf.joint[thigh + 2] = ankle;
  }
  bf.sole = bf.joint[P_R_FOOT].y - 0.42f;
  bf.joint[P_R_HAND2] = bf.joint[P_R_HAND];
  bf.joint[P_L_HAND2] = bf.joint[P_L_HAND] + bf.arm_dir[1] * 0.4f;
  bf.joint[P_WEAPON_R] = bf.joint[P_R_HAND] + bf.arm_dir[0] * 0.42f;
  bf.joint[P_WEAPON_L] = (bf.joint[P_L_FOREARM] + bf.joint[P_L_HAND]) * 0.5f;
  bf.joint[P_FLEX] = {0, bf.neck_base - 0.9f, 0.3f};
}

bool Body_Tube(Model& m, int part, int region, Vec3 a, Vec3 b, const Station* st, int n, int sides,
               bool cap_a, bool cap_b, float square) {
  Vec3 d = Normalise(b - a);
  Vec3 ref = std::fabs(d.z) > 0.9f ? Vec3{0, 1, 0} : Vec3{0, 0, 1};
  Vec3 fwd = Normalise(ref - d * Dot(ref, d));
  Vec3 side = Normalise(Cross(fwd, d));
  if (side.x < 0 && std::fabs(d.z) <= 0.9f) side = side * -1.0f;  // keep the seam at the back
  Ring rings[8];
  if (n > 8) n = 8;
  for (int i = 0; i < n; ++i) {
    rings[i].centre = Lerp(a, b, st[i].t);
    rings[i].rx = st[i].rx;
    rings[i].rz = st[i].rz;
    rings[i].square = square;
    rings[i].bulge_front = st[i].bulge_front;
    rings[i].bulge_back = st[i].bulge_back;
    rings[i].side = side;
    rings[i].fwd = fwd;
  }
  Loft lf;
  lf.part = part;
  lf.tex = region;
  lf.sides = sides;
  lf.cap_first = cap_a;
  lf.cap_last = cap_b;
  return Mesh_Loft(m, lf, rings, n);
}

void Body_Torso(Model& m, const Look& lk, const BodyFrame& bf) {
  bool armour = lk.top == Top::Armour;
  float sq = armour ? 0.7f : 0.9f;
  float h = bf.neck_base - bf.waist;
  float chest_bulge = lk.female ? 0.20f : 0.04f + 0.10f * lk.bulk;
  Ring r[5];
  r[0] = {{0, bf.waist - 0.25f, 0}, lk.waist_w * 0.98f, lk.chest_d * 0.78f, sq};
  r[1] = {{0, bf.waist + 0.30f * h, 0.01f}, lk.waist_w + (lk.chest_w - lk.waist_w) * 0.3f, lk.chest_d * 0.82f, sq};
  r[2] = {{0, bf.waist + 0.62f * h, 0.03f}, lk.chest_w, lk.chest_d, sq, chest_bulge, 0.06f};
  r[3] = {{0, bf.waist + 0.86f * h, 0.0f}, lk.shoulder * 0.92f + lk.arm_r * 0.45f, lk.chest_d * 0.86f, 0.72f};
  r[4] = {{0, bf.neck_base + 0.04f, -0.03f}, lk.shoulder * 0.50f, lk.chest_d * 0.55f, 0.9f};
  Loft lf;
  lf.part = P_CHEST;
  lf.tex = R_TORSO;
  lf.sides = 10;
  lf.v0 = 255;
  lf.v1 = 0;
  lf.cap_last = true;
  Mesh_Loft(m, lf, r, 5);

  float nr = lk.head_w * (lk.female ? 0.25f : 0.29f) * (1.0f + 0.25f * lk.bulk);  // thin necks read as mannequins
  Station neck[] = {{0, nr * 1.15f, nr * 1.1f}, {1, nr, nr * 0.95f}};
  Vec3 top = bf.joint[P_HEAD] + Vec3{0, 0.32f, 0.04f};
  Body_Tube(m, P_CHEST, armour ? R_PELVIS : R_SKIN, Vec3{0, bf.neck_base - 0.12f, -0.05f}, top, neck, 2, 8,
            false, false);
}

void Body_Pelvis(Model& m, const Look& lk, const BodyFrame& bf) {
  float sq = lk.top == Top::Armour ? 0.7f : 0.9f;
  Ring r[4];
  r[0] = {{0, bf.waist + 0.15f, 0}, lk.waist_w * 0.95f, lk.chest_d * 0.76f, sq};
  r[1] = {{0, bf.hips + 0.32f, 0}, lk.hip_w + lk.leg_r * 0.66f, lk.chest_d * 0.8f, sq, 0.0f, 0.14f};
  r[2] = {{0, bf.hips - 0.22f, -0.02f}, lk.hip_w + lk.leg_r * 0.5f, lk.chest_d * 0.72f, sq, 0.0f, 0.12f};
  r[3] = {{0, bf.hips - 0.55f, 0}, lk.hip_w * 0.38f, lk.chest_d * 0.36f, 1.0f};
  Loft lf;
  lf.part = P_PELVIS;
  lf.tex = R_PELVIS;
  lf.sides = 8;
  lf.v0 = 0;
  lf.v1 = 255;
  lf.cap_last = true;
  Mesh_Loft(m, lf, r, 4);
}

void Body_Arms(Model& m, const Look& lk, const BodyFrame& bf) {
  float ar = lk.arm_r, bulk = lk.bulk;
  float sq = lk.top == Top::Armour ? 0.7f : 1.0f;
  for (int s = 0; s < 2; ++s) {
    int upper = s == 0 ? P_R_UPPERARM : P_L_UPPERARM;
    bool left = s == 1;
    Vec3 d = bf.arm_dir[s];
    Vec3 sh = bf.joint[upper], el = bf.joint[upper + 1], wr = bf.joint[upper + 2];
    Station up[] = {{0.0f, ar * 0.95f, ar * 1.0f}, {0.2f, ar * (1.15f + 0.1f * bulk), ar * 1.1f},
                    {1.0f, ar * 0.78f, ar * 0.8f}};
    Body_Tube(m, upper, left ? R_UARM_L : R_UARM, sh + Vec3{0, 0.2f, 0} - d * 0.05f, el + d * 0.08f, up, 3, 8,
              false, false, sq);
    Station fo[] = {{0.0f, ar * 0.8f, ar * 0.8f}, {0.3f, ar * (0.84f + 0.12f * bulk), ar * (0.88f + 0.12f * bulk)},
                    {1.0f, ar * 0.56f, ar * 0.62f}};
    Body_Tube(m, upper + 1, left ? R_FARM_L : R_FARM, el - d * 0.1f, wr + d * 0.05f, fo, 3, 8, false, false, sq);
    float hw = 0.24f * (1.0f + 0.3f * bulk) * (lk.gloves == Gloves::Gauntlets ? 1.2f : 1.0f);
    float ht = 0.13f * (1.0f + 0.25f * bulk) * (lk.gloves == Gloves::Gauntlets ? 1.2f : 1.0f);
    Station ha[] = {{0.0f, ht * 0.85f, hw * 0.7f}, {0.5f, ht, hw}, {1.0f, ht * 0.8f, hw * 0.85f}};
    Body_Tube(m, upper + 2, left ? R_HAND_L : R_HAND, wr, wr + d * bf.hand, ha, 3, 6, false, true, 0.8f);
  }
}

void Body_Legs(Model& m, const Look& lk, const BodyFrame& bf) {
  float lr = lk.leg_r;
  float wide = lk.legs == Legwear::Hakama ? 1.35f : (lk.legs == Legwear::Trousers ? 1.08f : 1.0f);
  float sq = lk.legs == Legwear::Armour ? 0.7f : 1.0f;
  bool boots = lk.feet == Footwear::Boots || lk.feet == Footwear::Armour;
  for (int s = 0; s < 2; ++s) {
    int thigh = s == 0 ? P_R_THIGH : P_L_THIGH;
    bool left = s == 1;
    Vec3 hip = bf.joint[thigh], knee = bf.joint[thigh + 1], ankle = bf.joint[thigh + 2];
    // Thigh and shin overlap deep at the knee and narrow to a small opening inside each other,
    // so a bent knee shows no gap between them.
    Station th[] = {{0.0f, lr * 1.05f * wide, lr * 1.05f * wide}, {0.55f, lr * 0.88f * wide, lr * 0.9f * wide},
                    {1.0f, lr * 0.36f * wide, lr * 0.38f * wide}};
    // Under a skirt the thigh's top stays low and slim: the skirt hangs rigid from the hips, and
    // a raised thigh would push its top out through the cloth.
    const bool skirt = lk.top == Top::Dress || lk.top == Top::Coat;
    if (skirt) th[0].rx = th[0].rz = lr * 0.85f * wide;
    Body_Tube(m, thigh, left ? R_THIGH_L : R_THIGH, hip + Vec3{0, skirt ? 0.12f : 0.38f, 0}, knee + Vec3{0, -0.28f, 0},
              th, 3, 8, false, false, sq);
    float flare = lk.legs == Legwear::Hakama ? 1.5f : 1.0f;
    float boot = boots ? 1.25f : 1.0f;
    Station sh[] = {{0.0f, lr * 0.42f * wide, lr * 0.44f * wide},
                    {0.25f, lr * 0.72f * wide, lr * 0.74f * wide, 0.0f, 0.28f},
                    {1.0f, lr * 0.4f * flare * boot, lr * 0.42f * flare * boot}};
    Body_Tube(m, thigh + 1, left ? R_SHIN_L : R_SHIN, knee + Vec3{0, 0.3f, 0}, ankle + Vec3{0, -0.1f, 0}, sh, 3, 8,
              false, false, sq);
    // The foot is lofted from heel to toe; its sections face up.
    float fw = 0.22f * (1.0f + 0.2f * lk.bulk) * (boots ? 1.12f : 1.0f);
    float sole = bf.sole;
    Ring r[4];
    Vec3 sd{1, 0, 0}, up{0, 1, 0};
    r[0] = {{ankle.x, sole + 0.2f, ankle.z - 0.34f}, fw * 0.75f, 0.2f, 0.7f, 0, 0, sd, up};
    r[1] = {{ankle.x, sole + 0.32f, ankle.z}, fw * 0.95f, 0.32f, 0.7f, 0, 0, sd, up};
    r[2] = {{ankle.x, sole + 0.17f, ankle.z + 0.55f}, fw, 0.17f, 0.7f, 0, 0, sd, up};
    r[3] = {{ankle.x, sole + 0.09f, ankle.z + 1.0f}, fw * 0.85f, 0.09f, 0.7f, 0, 0, sd, up};
    Loft lf;
    lf.part = thigh + 2;
    lf.tex = left ? R_FOOT_L : R_FOOT;
    lf.sides = 6;
    lf.cap_first = lf.cap_last = true;
    Mesh_Loft(m, lf, r, 4);
  }
}

}  // namespace fig
