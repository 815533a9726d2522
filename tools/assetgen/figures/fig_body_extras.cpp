// Clothing pieces, the props of parts 19 and 20, the scarf on the flexible part, and the loose
// pieces hung on attachment chains.
#include <cmath>

#include "figures/fig_body_internal.h"

namespace fig {
namespace {

// Both sides of a flat fan of triangles round `pivot` (props are thin).
void Two_Sided(Model& m, int a, int b, int c, int region) {
  Mesh_Face(m, a, b, c, region);
  Mesh_Face(m, a, c, b, region);
}

// A chain of segments between points p[0..n]; segment k is tagged as point k of attachment i
// and ends with a vertex exactly on p[k], the chain's pivot for that link (the model loader takes
// the last vertex of each flag number as the point).
void Chain(Model& m, int attachment, int region, const Vec3* p, int n, float w0, float w1, float t0, float t1,
           int sides) {
  for (int k = 0; k < n; ++k) {
    float f0 = static_cast<float>(k) / n, f1 = static_cast<float>(k + 1) / n;
    Vec3 dir = Normalise(p[k + 1] - p[k]);
    Station st[] = {{0.0f, w0 + (w1 - w0) * f0, t0 + (t1 - t0) * f0}, {1.0f, w0 + (w1 - w0) * f1, t0 + (t1 - t0) * f1}};
    int part = Flag_Part(attachment, k);
    Body_Tube(m, part, region, p[k] - dir * 0.04f, p[k + 1] + dir * 0.06f, st, 2, sides, false, k == n - 1);
    Mesh_Vertex(m, p[k], 128, 128, part);
  }
}

// One rigid piece on attachment i (a single point): a short closed tube.
void Single(Model& m, int attachment, int region, Vec3 a, Vec3 b, float rx, float rz, int sides, bool caps = true) {
  Station st[] = {{0.0f, rx, rz}, {1.0f, rx * 0.8f, rz * 0.8f}};
  int part = Flag_Part(attachment, 0);
  Body_Tube(m, part, region, a, b, st, 2, sides, caps, caps, 0.8f);
  Mesh_Vertex(m, (a + b) * 0.5f, 128, 128, part);
}

Vec3 Back_Of_Head(const Look& lk, float x, float t) {
  return {x, lk.head_top - lk.head_h * (1.0f - t), -lk.head_w * 0.5f * 1.02f};
}

}  // namespace

void Body_Clothes(Model& m, const Look& lk, const BodyFrame& bf) {
  bool belt = lk.top != Top::Dress && lk.top != Top::Armour;
  if (belt) {
    Station st[] = {{0, lk.waist_w * 1.1f, lk.chest_d * 0.88f}, {1, lk.waist_w * 1.1f, lk.chest_d * 0.88f}};
    Body_Tube(m, P_PELVIS, R_BELT, {0, bf.waist - 0.02f, 0.0f}, {0, bf.waist + 0.26f, 0.0f}, st, 2, 8, false, false,
              0.9f);
  }
  if (lk.hair == Hair::Bald) {  // a monk's string of beads lying round the shoulders
    float nr = lk.head_w * 0.2f * (1.0f + 0.2f * lk.bulk);
    Station st[] = {{0, nr * 1.25f, nr * 1.2f}, {0.6f, nr * 2.2f, nr * 1.9f}, {1, lk.shoulder * 0.62f, lk.chest_d * 0.8f}};
    Body_Tube(m, P_CHEST, R_ACCS, {0, bf.neck_base + 0.05f, -0.02f}, {0, bf.neck_base - 0.3f, 0.04f}, st, 3, 12, false,
              false);
  }
  float hip = lk.hip_w + lk.leg_r;
  if (lk.top == Top::Dress || lk.top == Top::Coat) {
    float len = lk.top == Top::Coat ? 1.9f : 1.15f;
    float flare = lk.top == Top::Coat ? 1.3f : 1.45f;
    // The front stands well off the hips: a thigh raised in the fighting stance swings forward
    // under the skirt and must not push through it.
    Station st[] = {{0, hip * 0.98f, lk.chest_d * 1.15f}, {1, hip * flare, lk.chest_d * 1.25f * flare}};
    Body_Tube(m, P_PELVIS, R_PELVIS, {0, bf.hips + 0.45f, 0.04f}, {0, bf.hips + 0.45f - len, 0.02f}, st, 2, 10,
              false, false);
  }
  if (lk.gloves == Gloves::Gloves && lk.bulk > 0.8f) {  // leather wristbands
    for (int s = 0; s < 2; ++s) {
      int fore = s == 0 ? P_R_FOREARM : P_L_FOREARM;
      Vec3 a = bf.joint[fore], b = bf.joint[fore + 1];
      Station st[] = {{0, lk.arm_r * 0.72f, lk.arm_r * 0.78f}, {1, lk.arm_r * 0.7f, lk.arm_r * 0.76f}};
      Body_Tube(m, fore, R_BELT, Lerp(a, b, 0.72f), Lerp(a, b, 0.95f), st, 2, 8, false, false);
    }
  }
  if (lk.top == Top::Armour) {  // plated shoulders
    for (int s = 0; s < 2; ++s) {
      Vec3 sh = bf.joint[s == 0 ? P_R_UPPERARM : P_L_UPPERARM];
      float side = s == 0 ? 1.0f : -1.0f;
      Station st[] = {{0, lk.arm_r * 1.2f, lk.arm_r * 1.3f}, {1, lk.arm_r * 1.0f, lk.arm_r * 1.1f}};
      Body_Tube(m, s == 0 ? P_R_UPPERARM : P_L_UPPERARM, R_BELT, sh + Vec3{-side * 0.2f, 0.35f, 0},
                sh + Vec3{side * 0.35f, 0.05f, 0}, st, 2, 6, true, true, 0.7f);
    }
  }
}

void Body_Props(Model& m, const Look& lk, const BodyFrame& bf) {
  Vec3 g = bf.joint[P_WEAPON_R];
  Vec3 d = bf.arm_dir[0];
  Vec3 fwd{0, 0, 1};
  switch (lk.right_prop) {
    case Prop::Fan: {  // an open fan spread forward of the fist
      int pivot = Mesh_Vertex(m, g, 128, 250, P_WEAPON_R);
      int prev = 0;
      for (int k = 0; k <= 5; ++k) {
        float a = (-70.0f + 140.0f * k / 5) * kDeg;
        Vec3 dir = Normalise(fwd * std::cos(a) + Vec3{0, 1, 0} * std::sin(a) + d * 0.15f);
        int v = Mesh_Vertex(m, g + dir * 1.05f, 255.0f * k / 5, 10, P_WEAPON_R);
        if (prev) Two_Sided(m, pivot, prev, v, R_PROP);
        prev = v;
      }
      break;
    }
    case Prop::Cards: {  // three cards fanned between the fingers
      for (int k = 0; k < 3; ++k) {
        float a = (-25.0f + 25.0f * k) * kDeg;
        Vec3 up = Normalise(fwd * std::cos(a) + Vec3{0, 1, 0} * std::sin(a));
        Vec3 across = Normalise(Cross(up, Vec3{1, 0, 0})) * 0.2f;
        Vec3 base = g + Vec3{0.01f * k, 0, 0};
        int v0 = Mesh_Vertex(m, base - across, 0, 255, P_WEAPON_R);
        int v1 = Mesh_Vertex(m, base + across, 255, 255, P_WEAPON_R);
        int v2 = Mesh_Vertex(m, base + across + up * 0.62f, 255, 0, P_WEAPON_R);
        int v3 = Mesh_Vertex(m, base - across + up * 0.62f, 0, 0, P_WEAPON_R);
        Two_Sided(m, v0, v1, v2, R_PROP);
        Two_Sided(m, v0, v2, v3, R_PROP);
      }
      break;
    }
    case Prop::Knife: {  // a straight blade out of the front of the fist
      Station hilt[] = {{0, 0.07f, 0.07f}, {1, 0.06f, 0.06f}};
      Body_Tube(m, P_WEAPON_R, R_PROP, g - Vec3{0, 0, 0.25f}, g + Vec3{0, 0, 0.3f}, hilt, 2, 5, true, false);
      Station blade[] = {{0, 0.025f, 0.12f}, {0.7f, 0.02f, 0.1f}, {1, 0.004f, 0.01f}};
      Body_Tube(m, P_WEAPON_R, R_PROP, g + Vec3{0, 0, 0.28f}, g + Vec3{0, 0.05f, 1.25f}, blade, 3, 4, false, false);
      break;
    }
    case Prop::Axe: {  // a hand axe: a haft through the fist, the head forward at its end
      Vec3 top = g - d * 0.35f, end = g + d * 1.55f;
      Station haft[] = {{0, 0.07f, 0.07f}, {1, 0.08f, 0.08f}};
      Body_Tube(m, P_WEAPON_R, R_PROP, top, end, haft, 2, 5, false, true);
      Station head[] = {{0, 0.09f, 0.22f}, {0.6f, 0.06f, 0.32f}, {1, 0.02f, 0.42f}};
      Body_Tube(m, P_WEAPON_R, R_PROP, end - d * 0.25f + Vec3{0, 0, -0.1f}, end - d * 0.25f + Vec3{0, 0, 0.75f},
                head, 3, 4, true, true);
      break;
    }
    default: break;
  }
  if (lk.left_prop == Prop::Bracer) {  // a buckler on the outside of the left forearm
    Vec3 c = bf.joint[P_WEAPON_L];
    Station st[] = {{0, 0.62f, 0.62f}, {1, 0.5f, 0.5f}};
    Body_Tube(m, P_WEAPON_L, R_PROP, c + Vec3{-lk.arm_r * 0.7f, 0, 0}, c + Vec3{-lk.arm_r * 0.7f - 0.25f, 0, 0}, st,
              2, 6, false, true);
  }
}

void Body_Flex(Model& m, const Look& lk, const BodyFrame& bf) {
  if (!lk.flex) return;
  float nr = lk.head_w * 0.25f * (1.0f + 0.2f * lk.bulk);
  Station wrap[] = {{0, nr * 1.35f, nr * 1.3f}, {1, nr * 1.2f, nr * 1.2f}};
  Body_Tube(m, P_CHEST, R_FLEX, {0, bf.neck_base - 0.15f, -0.04f}, {0, bf.neck_base + 0.25f, -0.02f}, wrap, 2, 8,
            false, false);
  // Two tails hang over the chest; their lower ends stand off it, so a hit makes them bounce.
  float front = lk.chest_d * (lk.female ? 1.25f : 1.1f) + 0.1f;
  for (int s = 0; s < 2; ++s) {
    float x = s == 0 ? 0.16f : -0.2f;
    Station st[] = {{0, 0.15f, 0.04f}, {1, 0.19f, 0.04f}};
    Vec3 a{x, bf.neck_base - 0.05f, nr * 1.1f};
    Vec3 b{x * 1.4f, bf.neck_base - 1.55f - 0.25f * s, front + 0.1f};
    Body_Tube(m, P_FLEX, R_FLEX, a, b, st, 2, 4, false, true);
  }
}

void Body_Attachments(Model& m, int character, const Look& lk, const BodyFrame& bf) {
  int ponytails = 0, braids = 0, strands = 0, tails = 0, pads = 0, ribbons = 0, tassels = 0, cuffs = 0;
  for (int i = 0; i < 5; ++i) {
    if (lk.attach[i] == Piece::None) continue;
    int anchor = Fig_AttachAnchor(character, i);
    Vec3 p[6];
    switch (lk.attach[i]) {
      case Piece::Ponytail: {
        int count = 0;
        for (int j = 0; j < 5; ++j) count += lk.attach[j] == Piece::Ponytail;
        float x = count > 1 ? (ponytails++ == 0 ? 0.42f : -0.42f) * lk.head_w : 0.0f;
        p[0] = Back_Of_Head(lk, x, count > 1 ? 0.78f : 0.9f);
        for (int k = 1; k <= 4; ++k) p[k] = p[0] + Vec3{x * 0.25f * k, -0.52f * k, -0.12f * k + 0.02f * k * k};
        Chain(m, i, R_HAIR, p, 4, 0.2f, 0.07f, 0.18f, 0.07f, 5);
        break;
      }
      case Piece::Braid: {
        int count = 0;
        for (int j = 0; j < 5; ++j) count += lk.attach[j] == Piece::Braid;
        float x = count > 1 ? (braids++ == 0 ? 0.3f : -0.3f) * lk.head_w : 0.0f;
        p[0] = Back_Of_Head(lk, x, 0.35f);
        for (int k = 1; k <= 3; ++k) p[k] = p[0] + Vec3{x * 0.3f, -0.66f * k, -0.1f - 0.03f * k};
        Chain(m, i, R_HAIR, p, 3, 0.12f, 0.06f, 0.1f, 0.05f, 4);
        break;
      }
      case Piece::Strand: {  // locks falling from the temples and one down the back
        int which = strands++;
        float x = which == 0 ? 0.5f : (which == 1 ? -0.5f : 0.0f);
        float z = which < 2 ? 0.0f : -0.55f;
        p[0] = {x * lk.head_w * 1.02f, lk.head_top - lk.head_h * 0.4f, z * lk.head_w};
        for (int k = 1; k <= 2; ++k) p[k] = p[0] + Vec3{x * 0.12f * k, -0.75f * k, (which < 2 ? 0.1f : -0.12f) * k};
        Chain(m, i, R_HAIR, p, 2, 0.14f, 0.06f, 0.05f, 0.03f, 4);
        break;
      }
      case Piece::Sash: {  // belt ends hanging at the left hip
        p[0] = {-(lk.waist_w + 0.05f), bf.waist + 0.05f, 0.25f};
        for (int k = 1; k <= 3; ++k) p[k] = p[0] + Vec3{-0.06f * k, -0.56f * k, 0.04f * k};
        Chain(m, i, R_ACCS, p, 3, 0.14f, 0.1f, 0.03f, 0.03f, 4);
        break;
      }
      case Piece::CoatTail: {
        int count = 0;
        for (int j = 0; j < 5; ++j) count += lk.attach[j] == Piece::CoatTail;
        float x = count > 1 ? (tails++ == 0 ? 0.3f : -0.3f) : 0.0f;
        float w = count > 1 ? 0.3f : 0.5f;
        p[0] = {x, bf.waist - 0.1f, -lk.chest_d * 0.9f};
        for (int k = 1; k <= 2; ++k) p[k] = p[0] + Vec3{x * 0.12f * k, -0.92f * k, -0.08f * k};
        // A diamond section, creased down the middle: the fight is mostly seen from the side,
        // where a flat panel would show only its edge and read as a stick.
        Chain(m, i, lk.top != Top::Vest ? R_PELVIS : R_ACCS, p, 2, w, w * 1.15f, 0.12f, 0.2f, 4);
        break;
      }
      case Piece::Pad: {  // shoulder plates riding the chest
        bool right = lk.attach[3] == Piece::Pad ? (pads++ == 0) : false;
        float side = right ? 1.0f : -1.0f;
        Vec3 sh = bf.joint[right ? P_R_UPPERARM : P_L_UPPERARM];
        float r = lk.arm_r * 1.5f;
        // Capping the shoulder and sloping down over the upper arm, not standing out level.
        Single(m, i, R_ACCS, sh + Vec3{-side * 0.02f, r * 0.9f, 0}, sh + Vec3{side * (0.16f + lk.arm_r), -r * 0.35f, 0},
               r * 0.45f, r * 1.15f, 5);
        break;
      }
      case Piece::Ribbon: {
        if (anchor == P_HEAD) {  // headband tails behind the head
          p[0] = Back_Of_Head(lk, 0.0f, 0.75f);
          for (int k = 1; k <= 3; ++k) p[k] = p[0] + Vec3{0.05f * k, -0.45f * k, -0.16f * k};
          Chain(m, i, R_ACCS, p, 3, 0.1f, 0.08f, 0.02f, 0.02f, 4);
        } else {  // a bow tied round a leg, its ends trailing behind
          Vec3 j = bf.joint[anchor];
          float y = anchor == P_R_FOOT || anchor == P_L_FOOT ? j.y + 0.15f : j.y - 0.55f;
          float r = anchor == P_R_FOOT || anchor == P_L_FOOT ? 0.3f : lk.leg_r * 0.75f;
          p[0] = {j.x, y, j.z - r};
          p[1] = p[0] + Vec3{0, -0.35f, -0.12f};
          p[2] = p[1] + Vec3{0, -0.3f, -0.1f};
          Chain(m, i, R_ACCS, p, 2, 0.09f, 0.07f, 0.02f, 0.02f, 4);
          ++ribbons;
        }
        break;
      }
      case Piece::Tassel: {
        Vec3 j = bf.joint[anchor];
        p[0] = {j.x + (j.x > 0 ? 1.0f : -1.0f) * lk.leg_r * 0.8f, j.y - 0.35f, j.z + 0.1f};
        p[1] = p[0] + Vec3{0, -0.4f, 0};
        p[2] = p[1] + Vec3{0, -0.35f, 0};
        Chain(m, i, R_ACCS, p, 2, 0.08f, 0.12f, 0.08f, 0.12f, 5);
        ++tassels;
        break;
      }
      case Piece::Cuff: {
        Vec3 a = bf.joint[anchor], b = bf.joint[anchor + 1];
        Single(m, i, R_ACCS, Lerp(a, b, 0.45f), Lerp(a, b, 0.85f), lk.arm_r * 1.05f, lk.arm_r * 1.05f, 6, false);
        ++cuffs;
        break;
      }
      case Piece::None: break;
    }
  }
  (void)ribbons;
  (void)tassels;
  (void)cuffs;
}

}  // namespace fig
