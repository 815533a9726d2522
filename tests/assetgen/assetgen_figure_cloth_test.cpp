// Clothing that hangs rigid from a body part must cover what moves beneath it in the fighting
// stance, and a face must still read when the fighter is a hand's width tall on screen.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "figures/fig_figure.h"
#include "figures/fig_paint.h"
#include "figures/fig_roster.h"
#include "motion/mot_pose.h"
#include "motion/mot_shared.h"

namespace {

using fig::Vec3;

struct P2 {
  float x, z;
};

float Turn(P2 o, P2 a, P2 b) { return (a.x - o.x) * (b.z - o.z) - (a.z - o.z) * (b.x - o.x); }

// Convex hull of the points, counter-clockwise (monotone chain).
std::vector<P2> Hull(std::vector<P2> p) {
  std::sort(p.begin(), p.end(), [](P2 a, P2 b) { return a.x < b.x || (a.x == b.x && a.z < b.z); });
  std::vector<P2> h(2 * p.size());
  size_t k = 0;
  for (size_t i = 0; i < p.size(); ++i) {
    while (k >= 2 && Turn(h[k - 2], h[k - 1], p[i]) <= 0) --k;
    h[k++] = p[i];
  }
  for (size_t i = p.size() - 1, t = k + 1; i-- > 0;) {
    while (k >= t && Turn(h[k - 2], h[k - 1], p[i]) <= 0) --k;
    h[k++] = p[i];
  }
  h.resize(k > 0 ? k - 1 : 0);
  return h;
}

// How far q lies outside the convex polygon (0 inside).
float Outside(const std::vector<P2>& h, P2 q) {
  float worst = 0;
  for (size_t i = 0; i < h.size(); ++i) {
    P2 a = h[i], b = h[(i + 1) % h.size()];
    float len = std::hypot(b.x - a.x, b.z - a.z);
    if (len > 0) worst = std::max(worst, -Turn(a, b, q) / len);
  }
  return worst;
}

// The pelvis's cloth cut at height y: where its triangles' edges cross the level.
std::vector<P2> Pelvis_Slice(const fig::Model& m, float y) {
  std::vector<P2> pts;
  for (int f = 1; f <= m.face_count; ++f) {
    const fig::Face& fc = m.faces[f];
    const int v[3] = {fc.a, fc.b, fc.c};
    if (m.vertices[v[0]].part != fig::P_PELVIS) continue;
    for (int e = 0; e < 3; ++e) {
      const fig::Vertex& a = m.vertices[v[e]];
      const fig::Vertex& b = m.vertices[v[(e + 1) % 3]];
      if ((a.y - y) * (b.y - y) > 0 || a.y == b.y) continue;
      float t = (y - a.y) / (b.y - a.y);
      pts.push_back({a.x + (b.x - a.x) * t, a.z + (b.z - a.z) * t});
    }
  }
  return Hull(pts);
}

// In the fighting stance every point of a thigh that is level with a dress's skirt stays inside
// the skirt. (A long coat may part over the legs: its wearers stand in trousers of their own.)
TEST(AssetgenFigureCloth, SkirtsCoverTheThighsOfTheFightingStance) {
  int skirts = 0;
  for (int c = 0; c < fig::kCharacters; ++c) {
    const fig::Look& lk = fig::Fig_Look(c);
    if (lk.top != fig::Top::Dress) continue;
    ++skirts;
    auto model = std::make_unique<fig::Model>();
    fig::TextureLayout layout;
    ASSERT_TRUE(fig::Fig_BuildModel(c, *model, layout));
    fig::Skeleton skel;
    fig::Fig_BuildSkeleton(c, skel);
    mot::Joints j;
    mot::Mot_JointsOf(skel, j);
    float hem = 1e9f;
    for (int v = 1; v <= model->vertex_count; ++v)
      if (model->vertices[v].part == fig::P_PELVIS) hem = std::min(hem, model->vertices[v].y);
    const float hip_y = j.at[fig::P_R_THIGH].y;
    // The fighting stance with the hips held still (the skirt turns with them), and with each
    // thigh lifted a little further as a step or a breath does.
    for (float raise : {0.0f, 10.0f, 20.0f}) {
      mot::Pose pose = mot::Mot_StancePose();
      pose.root = {};
      for (float& a : pose.ang[fig::P_PELVIS]) a = 0;
      pose.ang[fig::P_R_THIGH][0] -= raise;
      pose.ang[fig::P_L_THIGH][0] -= raise;
      mot::PartMatrix pm[22];
      mot::Mot_Solve(j, pose, pm);
      ASSERT_GT(mot::Mot_PosedJoint(j, pm, fig::P_L_SHIN).z, j.at[fig::P_L_SHIN].z + 0.5f);  // lead knee forward
      float worst = 0;
      for (int v = 1; v <= model->vertex_count; ++v) {
        const fig::Vertex& vx = model->vertices[v];
        if (vx.part != fig::P_R_THIGH && vx.part != fig::P_L_THIGH) continue;
        Vec3 p = fig::Apply(pm[vx.part].r, {vx.x, vx.y, vx.z}) + pm[vx.part].t;
        if (p.y < hem + 0.05f || p.y > hip_y + 0.1f) continue;
        worst = std::max(worst, Outside(Pelvis_Slice(*model, p.y), {p.x, p.z}));
      }
      EXPECT_LT(worst, 0.02f) << lk.name << " with the thighs raised " << raise << " degrees: " << worst;
    }
  }
  EXPECT_GE(skirts, 2);
}

// At fight size a head is some twenty pixels across and mostly seen from the side: each eye
// must be a solid dark mark (lids, iris, the outer corner), not a hairline, to survive that.
TEST(AssetgenFigureCloth, EyesAreBoldEnoughToReadAtFightSize) {
  for (int c = 0; c < fig::kCharacters; ++c) {
    const fig::Look& lk = fig::Fig_Look(c);
    if (lk.face.mark == fig::Mark::Visor) continue;
    fig::Image img;
    fig::Fig_PaintFace(c, fig::Expression::Calm, img, 0);
    const float skin_l = ((lk.skin >> 16 & 0xFF) + (lk.skin >> 8 & 0xFF) + (lk.skin & 0xFF)) / 3.0f;
    // A box round each eye: a tenth of the way round the head either side of the eye's line,
    // from the brows' underside to the cheek.
    const int y0 = static_cast<int>(fig::Face_V(0.66f) / 255.0f * img.height);
    const int y1 = static_cast<int>(fig::Face_V(0.55f) / 255.0f * img.height);
    for (int side = -1; side <= 1; side += 2) {
      const int centre = img.width / 2 + side * img.width * 20 / 256, half = img.width * 13 / 256;
      int ink = 0;
      for (int y = y0; y <= y1; ++y)
        for (int x = centre - half; x <= centre + half; ++x) {
          const std::uint8_t* px = &img.rgb[(static_cast<size_t>(y) * img.width + x) * 3];
          if ((px[0] + px[1] + px[2]) / 3.0f < skin_l * 0.5f) ++ink;
        }
      EXPECT_GE(ink, 65) << lk.name << (side < 0 ? ", right eye" : ", left eye");
    }
  }
}

}  // namespace
