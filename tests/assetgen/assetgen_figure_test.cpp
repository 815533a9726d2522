// Generated fighter models, skeletons and skins: budgets the loaders check, the texture layout
// the character table expects, and geometry the fight depends on.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "figures/fig_figure.h"
#include "figures/fig_math.h"
#include "figures/fig_mesh.h"
#include "figures/fig_paint.h"
#include "figures/fig_roster.h"
#include "motion/mot_shared.h"

namespace {

using namespace fig;

struct Built {
  std::unique_ptr<Model> model = std::make_unique<Model>();
  TextureLayout layout;
  bool ok = false;
};

const Built& Row(int row) {
  static Built rows[kRows];
  Built& b = rows[row];
  if (!b.ok) b.ok = Fig_BuildModel(row, *b.model, b.layout);
  return b;
}

TEST(AssetgenFigure, EveryRowFitsTheModelBudgets) {
  for (int row = 0; row < kRows; ++row) {
    const Built& b = Row(row);
    ASSERT_TRUE(b.ok) << Fig_ModelFile(row);
    const Model& m = *b.model;
    EXPECT_GE(m.vertex_count, 600) << Fig_ModelFile(row);
    EXPECT_LE(m.vertex_count, 850) << Fig_ModelFile(row);
    EXPECT_GE(m.face_count, 800) << Fig_ModelFile(row);
    EXPECT_LE(m.face_count, 990) << Fig_ModelFile(row);
    EXPECT_EQ(m.texcoord_count, m.vertex_count);
    EXPECT_LE(m.max_tag, kMaxPart);
    for (int f = 1; f <= m.face_count; ++f) {
      const Face& fc = m.faces[f];
      for (int v : {fc.a, fc.b, fc.c}) ASSERT_TRUE(v >= 1 && v <= m.vertex_count);
      for (int t : {fc.ta, fc.tb, fc.tc}) ASSERT_TRUE(t >= 1 && t <= m.texcoord_count);
      ASSERT_TRUE(fc.tex >= 0 && fc.tex < m.texture_count);
      if (f > 1) {
        ASSERT_GE(fc.tex, m.faces[f - 1].tex) << "faces must be grouped by texture";
      }
    }
  }
}

TEST(AssetgenFigure, FaceTextureSitsAtTheReplacedIndex) {
  for (int row = 0; row < kRows; ++row) {
    const Built& b = Row(row);
    ASSERT_TRUE(b.ok);
    int replaced = Fig_ReplacedTexture(row);
    ASSERT_GT(b.model->texture_count, replaced) << Fig_ModelFile(row);
    EXPECT_NE(std::strstr(b.model->textures[replaced], "FACE"), nullptr) << Fig_ModelFile(row);
    // The head's front is painted with that texture.
    bool head_uses_it = false;
    for (int f = 1; f <= b.model->face_count; ++f)
      head_uses_it |= b.model->faces[f].tex == replaced && b.model->vertices[b.model->faces[f].a].part == P_HEAD;
    EXPECT_TRUE(head_uses_it) << Fig_ModelFile(row);
    std::set<std::string> names;
    for (int t = 0; t < b.model->texture_count; ++t) {
      EXPECT_LT(std::strlen(b.model->textures[t]), static_cast<std::size_t>(kNameBytes));
      names.insert(b.model->textures[t]);
    }
    EXPECT_EQ(names.size(), static_cast<std::size_t>(b.model->texture_count)) << "one picture per entry";
  }
  EXPECT_GE(Row(1).model->texture_count, 17);
  EXPECT_GE(Row(19).model->texture_count, 21);
}

TEST(AssetgenFigure, RowsSharingAModelFileAreIdentical) {
  const Model& a = *Row(14).model;
  const Model& b = *Row(29).model;
  EXPECT_STREQ(Fig_ModelFile(14), Fig_ModelFile(29));
  EXPECT_EQ(0, std::memcmp(&a, &b, sizeof(Model)));
  // Second colourings differ in their pictures, not their shape.
  EXPECT_STRNE(Row(0).model->textures[0], Row(15).model->textures[0]);
  EXPECT_EQ(Row(0).model->face_count, Row(15).model->face_count);
}

TEST(AssetgenFigure, BodyPartsAndPropsAreWhereTheLoaderExpectsThem) {
  for (int row = 0; row < 15; ++row) {
    const Model& m = *Row(row).model;
    const Look& lk = Fig_Look(row);
    int count[60] = {};
    for (int i = 1; i <= m.vertex_count; ++i) {
      int p = m.vertices[i].part;
      ASSERT_TRUE((p >= 2 && p <= 21) || (p >= 30 && p <= 54)) << p;
      ++count[p];
    }
    for (int p = 2; p <= 16; ++p) EXPECT_GT(count[p], 0) << lk.name << " part " << p;
    EXPECT_EQ(count[P_FLEX] > 0, lk.flex) << lk.name;
    // Props ride only in files that carry their own parts 19 and 20.
    if (count[P_WEAPON_R] > 0 || count[P_WEAPON_L] > 0) {
      EXPECT_TRUE(Fig_CarriesProps(row)) << lk.name;
    }
    if (Fig_CarriesProps(row)) {
      EXPECT_GT(count[P_WEAPON_R], 0) << lk.name;
    }
    // Every flag point belongs to an attachment the character loader sets up, and each link's
    // point (the last vertex of its number) is where the chain hangs.
    for (int tag = 30; tag <= 54; ++tag) {
      if (count[tag] == 0) continue;
      int i = (tag - 30) / 5;
      EXPECT_NE(Fig_AttachAnchor(row, i), 0) << lk.name << " attachment " << i;
      EXPECT_EQ(lk.attach[i] != Piece::None, true);
    }
  }
}

TEST(AssetgenFigure, PartsAreClosedOutward) {
  // The game culls by winding: the signed volume of each body part's surface must be positive.
  const Model& m = *Row(4).model;
  for (int p = 2; p <= 16; ++p) {
    double vol = 0;
    for (int f = 1; f <= m.face_count; ++f) {
      const Face& fc = m.faces[f];
      if (m.vertices[fc.a].part != p) continue;
      const Vertex &a = m.vertices[fc.a], &b = m.vertices[fc.b], &c = m.vertices[fc.c];
      vol += (a.x * (b.y * c.z - b.z * c.y) - a.y * (b.x * c.z - b.z * c.x) + a.z * (b.x * c.y - b.y * c.x)) / 6.0;
    }
    EXPECT_GT(vol, 0.0) << "part " << p;
  }
  // Normals point away from the part's middle.
  int outward = 0, total = 0;
  for (int i = 1; i <= m.vertex_count; ++i) {
    const Vertex& v = m.vertices[i];
    if (v.part != P_HEAD) continue;
    const PartBox& box = m.boxes[P_HEAD];
    float cx = (box.corner[0][0] + box.corner[6][0]) / 2, cz = (box.corner[0][2] + box.corner[6][2]) / 2;
    ++total;
    outward += (v.x - cx) * v.nx + (v.z - cz) * v.nz > -0.01f;
  }
  EXPECT_GT(outward, total * 9 / 10);
}

TEST(AssetgenFigure, PartBoxesHoldTheirVertices) {
  const Model& m = *Row(9).model;
  for (int i = 1; i <= m.vertex_count; ++i) {
    int p = m.vertices[i].part;
    if (p > m.max_tag) continue;
    const PartBox& b = m.boxes[p];
    EXPECT_GE(m.vertices[i].x, b.corner[0][0] - 1e-4f);
    EXPECT_LE(m.vertices[i].x, b.corner[6][0] + 1e-4f);
    EXPECT_GE(m.vertices[i].y, b.corner[0][1] - 1e-4f);
    EXPECT_LE(m.vertices[i].y, b.corner[6][1] + 1e-4f);
  }
  for (int s = 0; s < 18; ++s) EXPECT_LT(m.boxes[2].shadow[s], 8);
}

TEST(AssetgenFigure, FigureSpansTheModelSpaceTheGameExpects) {
  for (int c = 0; c < kCharacters; ++c) {
    const Model& m = *Row(c).model;
    float lo = 1e9f, hi = -1e9f;
    for (int i = 1; i <= m.vertex_count; ++i)
      if (m.vertices[i].part <= 21) {
        lo = std::min(lo, m.vertices[i].y);
        hi = std::max(hi, m.vertices[i].y);
      }
    // Slight and tall builds stand lower and higher; the boss stands above them all.
    EXPECT_NEAR(hi, c == 14 ? 2.3f : 0.8f, 0.7f) << Fig_Look(c).name;
    // Soles a little below the foot's centre, which the stance puts at the character's foot height.
    float foot = Fig_FootHeight(c) - kStandingY - Fig_StandingOffset(c);
    EXPECT_NEAR(lo, foot - 0.35f, 0.6f) << Fig_Look(c).name;
    EXPECT_NEAR(foot, -8.5f, 1.1f) << Fig_Look(c).name;
  }
}

// Crown-to-sole height and the breadth of the chest piece of a character's mesh.
void Measure(int c, float* height, float* breadth) {
  const Model& m = *Row(c).model;
  float lo = 1e9f, hi = -1e9f, left = 1e9f, right = -1e9f;
  for (int i = 1; i <= m.vertex_count; ++i) {
    const Vertex& v = m.vertices[i];
    if (v.part > 21) continue;
    lo = std::min(lo, v.y), hi = std::max(hi, v.y);
    if (v.part == P_CHEST) left = std::min(left, v.x), right = std::max(right, v.x);
  }
  *height = hi - lo;
  *breadth = right - left;
}

TEST(AssetgenFigure, BuildsSetTheFightersApartAndTheBossIsTheLargest) {
  float height[kCharacters], breadth[kCharacters];
  for (int c = 0; c < kCharacters; ++c) Measure(c, &height[c], &breadth[c]);
  const float h0 = height[0], b0 = breadth[0];
  int heavy = 0, tall = 0, slight = 0, average = 0;
  for (int c = 0; c < 14; ++c) {
    EXPECT_GT(height[14], height[c] + 0.3f) << Fig_Look(c).name;
    EXPECT_GT(breadth[14], breadth[c]) << Fig_Look(c).name;
    if (breadth[c] >= 1.15f * b0) ++heavy;
    else if (height[c] >= h0 + 0.3f) ++tall;
    else if (height[c] <= h0 - 0.2f && breadth[c] <= 0.9f * b0) ++slight;
    else if (std::fabs(height[c] - h0) < 0.2f) ++average;
  }
  EXPECT_GE(heavy, 2);
  EXPECT_GE(tall, 2);
  EXPECT_GE(slight, 2);
  EXPECT_GE(average, 2);
}

// The game lays each part's box on the floor as (x, z + (y + 5.8) / 2) and fills the box's six
// shadow triangles: whichever way a limb lies, they must fill the box's floor outline.
TEST(AssetgenFigure, ShadowTrianglesFillTheBoxesFloorOutline) {
  const float sizes[][3] = {{0.5f, 2.0f, 0.5f}, {2.2f, 0.4f, 0.6f}, {0.6f, 0.5f, 1.8f}, {1.0f, 1.1f, 0.9f}};
  std::uint32_t seed = 12345;
  auto next = [&] {
    seed = seed * 1664525u + 1013904223u;
    return (seed >> 8) / 16777216.0f;
  };
  auto side = [](const float* a, const float* b, const float* p) {
    return (b[0] - a[0]) * (p[1] - a[1]) - (b[1] - a[1]) * (p[0] - a[0]);
  };
  float worst = 1;
  for (const auto& sz : sizes)
    for (int turn = 0; turn < 40; ++turn) {
      const fig::Rot r = fig::Then(fig::Then(fig::RotX(next() * 360), fig::RotY(next() * 360)), fig::RotZ(next() * 360));
      std::int16_t tri[18];
      Box_Shadow(sz[0], sz[1], sz[2], tri);
      float floor[8][2];
      for (int c = 0; c < 8; ++c) {
        const int ix = (c & 1) ^ ((c >> 1) & 1), iz = (c >> 1) & 1, iy = c >= 4;
        const fig::Vec3 w = fig::Apply(r, fig::Vec3{ix * sz[0], iy * sz[1], iz * sz[2]});
        floor[c][0] = w.x;
        floor[c][1] = w.z + (w.y + 5.8f) / 2;
      }
      // Points of the outline (inside every corner's convex hull) against the triangles' union.
      int inside = 0, covered = 0;
      for (int k = 0; k < 400; ++k) {
        float wsum = 0, p[2] = {0, 0}, wts[8];
        for (float& w : wts) wsum += (w = next());
        for (int c = 0; c < 8; ++c) p[0] += floor[c][0] * wts[c] / wsum, p[1] += floor[c][1] * wts[c] / wsum;
        ++inside;
        for (int t = 0; t < 6; ++t) {
          const float *a = floor[tri[3 * t]], *b = floor[tri[3 * t + 1]], *c = floor[tri[3 * t + 2]];
          const float s0 = side(a, b, p), s1 = side(b, c, p), s2 = side(c, a, p);
          if ((s0 >= 0 && s1 >= 0 && s2 >= 0) || (s0 <= 0 && s1 <= 0 && s2 <= 0)) {
            ++covered;
            break;
          }
        }
      }
      worst = std::min(worst, static_cast<float>(covered) / inside);
    }
  EXPECT_GT(worst, 0.97f);
}

// The face picture wraps the whole head: wherever the hair covers it (the crown, the back of the
// head) it carries the hair's colour, so no scalp shows between the hair and the skin; a bald
// head is skin all over, and the face below the hairline stays skin.
TEST(AssetgenFigure, HairColoursTheScalpUnderIt) {
  auto texel = [](const Image& img, float u, float t) {
    const int x = static_cast<int>(u / 255.0f * img.width) % img.width;
    const int y = std::clamp(static_cast<int>(Face_V(t) / 255.0f * img.height), 0, img.height - 1);
    const std::uint8_t* p = &img.rgb[(static_cast<std::size_t>(y) * img.width + x) * 3];
    return std::array<int, 3>{p[0], p[1], p[2]};
  };
  auto nearer = [](const std::array<int, 3>& px, std::uint32_t a, std::uint32_t b) {
    int da = 0, db = 0;
    for (int k = 0; k < 3; ++k) {
      const int ca = (a >> (16 - 8 * k)) & 255, cb = (b >> (16 - 8 * k)) & 255;
      da += std::abs(px[k] - ca), db += std::abs(px[k] - cb);
    }
    return da < db;
  };
  for (int c = 0; c < kCharacters; ++c) {
    const Look& lk = Fig_Look(c);
    if (lk.hair == Hair::Helmet) continue;
    for (int colouring = 0; colouring < 2; ++colouring) {
      Image img;
      Fig_PaintFace(c, Expression::Calm, img, colouring);
      const std::uint32_t hair = lk.colours[colouring].hair;
      const bool bald = lk.hair == Hair::Bald;
      int contrast = 0;  // fair hair close to the skin's colour tells nothing apart
      for (int k = 0; k < 3; ++k) contrast += std::abs(int((hair >> (8 * k)) & 255) - int((lk.skin >> (8 * k)) & 255));
      if (contrast < 120) continue;
      for (float u : {0.0f, 64.0f, 192.0f})  // the back and both sides of the crown
        EXPECT_EQ(nearer(texel(img, u, 0.88f), hair, lk.skin), !bald) << lk.name << " u " << u;
      EXPECT_TRUE(nearer(texel(img, 128, 0.45f), lk.skin, hair)) << lk.name << " cheek between the eyes";
    }
  }
}

TEST(AssetgenFigure, TexturesArePowerOfTwoAndPalettesDiffer) {
  std::vector<NamedImage> tex[2], faces[2];
  for (int k = 0; k < 2; ++k) {
    int row = k == 0 ? 3 : 18;
    Fig_PaintRow(row, *Row(row).model, Row(row).layout, tex[k], faces[k]);
    ASSERT_EQ(static_cast<int>(tex[k].size()), Row(row).model->texture_count);
    for (const NamedImage& ni : tex[k]) {
      EXPECT_EQ(ni.image.width & (ni.image.width - 1), 0) << ni.name;
      EXPECT_EQ(ni.image.height & (ni.image.height - 1), 0) << ni.name;
      EXPECT_LE(ni.image.width * ni.image.height * 4, 262144);
      EXPECT_EQ(ni.image.rgb.size(), static_cast<std::size_t>(ni.image.width * ni.image.height * 3));
    }
    EXPECT_EQ(faces[k][0].name, Fig_HurtFaceFile(row));
    EXPECT_EQ(faces[k][1].name, Fig_ShoutFaceFile(row));
  }
  // The second colouring is clearly different where the clothes are.
  auto mean = [](const Image& img) {
    double s[3] = {};
    for (std::size_t i = 0; i < img.rgb.size(); ++i) s[i % 3] += img.rgb[i];
    double n = img.rgb.size() / 3.0;
    return std::vector<double>{s[0] / n, s[1] / n, s[2] / n};
  };
  int torso = -1;
  for (int t = 0; t < static_cast<int>(tex[0].size()); ++t)
    if (tex[0][t].name.find("TORS") != std::string::npos) torso = t;
  ASSERT_GE(torso, 0);
  int torso2 = -1;
  for (int t = 0; t < static_cast<int>(tex[1].size()); ++t)
    if (tex[1][t].name.find("TORS") != std::string::npos) torso2 = t;
  ASSERT_GE(torso2, 0);
  auto a = mean(tex[0][torso].image), b = mean(tex[1][torso2].image);
  EXPECT_GT(std::fabs(a[0] - b[0]) + std::fabs(a[1] - b[1]) + std::fabs(a[2] - b[2]), 120.0);
  // The hurt and shouting faces differ from the calm one and from each other.
  Image calm, hurt, shout;
  Fig_PaintFace(3, Expression::Calm, calm);
  Fig_PaintFace(3, Expression::Hurt, hurt);
  Fig_PaintFace(3, Expression::Shout, shout);
  EXPECT_NE(calm.rgb, hurt.rgb);
  EXPECT_NE(calm.rgb, shout.rgb);
  EXPECT_NE(hurt.rgb, shout.rgb);
}

TEST(AssetgenFigure, GenerationIsDeterministic) {
  auto again = std::make_unique<Model>();
  TextureLayout lay;
  ASSERT_TRUE(Fig_BuildModel(12, *again, lay));
  EXPECT_EQ(0, std::memcmp(again.get(), Row(12).model.get(), sizeof(Model)));
  std::vector<NamedImage> t1, f1, t2, f2;
  Fig_PaintRow(12, *again, lay, t1, f1);
  Fig_PaintRow(12, *Row(12).model, Row(12).layout, t2, f2);
  ASSERT_EQ(t1.size(), t2.size());
  for (std::size_t i = 0; i < t1.size(); ++i) EXPECT_EQ(t1[i].image.rgb, t2[i].image.rgb) << t1[i].name;
  Skeleton s1, s2;
  Fig_BuildSkeleton(7, s1);
  Fig_BuildSkeleton(7, s2);
  EXPECT_EQ(0, std::memcmp(&s1, &s2, sizeof(Skeleton)));
}

}  // namespace
