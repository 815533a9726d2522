// The stage table and the stage loaders: floor, light pool, backdrop panels, the one-square
// floor of the front end, and the super-move pictures.
#include <cstdio>

#include "assets/asset_report.h"
#include "fight/fight_state.h"
#include "platform/platform.h"
#include "render/render_stage.h"

StageState Stage;

// clang-format off
const StagePictures StageTable[STAGE_CHARACTERS] = {
    {"DS01_MA1.bmp", "WHITE.bmp", 0, {"DS01_BG1.bmp", "DS01_BG2.bmp", "DS01_BG3.bmp"}, "SB_BAN.bmp"},    // 0
    {"DS08_MA1.bmp", "WHITE.bmp", 0, {"DS08_BG1.bmp", "DS08_BG2.bmp", "DS08_BG3.bmp"}, "SB_HANA.bmp"},   // 1
    {"DS04_MA1.bmp", "WHITE.bmp", 0, {"DS04_BG1.bmp", "DS04_BG2.bmp", "DS04_BG3.bmp"}, "SB_KAIDE.bmp"},  // 2
    {"DS09_MA1.bmp", "WHITE.bmp", 0, {"DS09_BG1.bmp", "DS09_BG2.bmp", "DS09_BG3.bmp"}, "SB_EUNYU.bmp"},  // 3
    {"DS10_MA1.bmp", "WHITE.bmp", 0, {"DS10_BG1.bmp", "DS10_BG2.bmp", "DS10_BG3.bmp"}, "SB_DRUNG.bmp"},  // 4
    {"DS05_MA1.bmp", "LIGHT.bmp", 1, {"DS05_BG1.bmp", "DS05_BG2.bmp", "DS05_BG3.bmp"}, "SB_HONOK.bmp"},  // 5
    {"DS06_MA1.bmp", "WHITE.bmp", 0, {"DS06_BG1.bmp", "DS06_BG2.bmp", "DS06_BG3.bmp"}, "SB_RABAL.bmp"},  // 6
    {"DS07_MA1.bmp", "LIGHT.bmp", 1, {"DS07_BG1.bmp", "DS07_BG2.bmp", "DS07_BG3.bmp"}, "SB_REIME.bmp"},  // 7
    {"DS02_MA1.bmp", "LIGHT.bmp", 1, {"DS02_BG1.bmp", "DS02_BG2.bmp", "DS02_BG3.bmp"}, "SB_VASHI.bmp"},  // 8
    {"DS03_MA1.bmp", "LIGHT.bmp", 1, {"DS03_BG1.bmp", "DS03_BG2.bmp", "DS03_BG3.bmp"}, "SB_KNIFE.bmp"},  // 9
    {"DS12_MA1.bmp", "LIGHT.bmp", 1, {"DS12_BG1.bmp", "DS12_BG2.bmp", "DS12_BG3.bmp"}, "SB_EUNYU.bmp"},  // 10
    {"DS11_MA1.bmp", "LIGHT.bmp", 1, {"DS11_BG1.bmp", "DS11_BG2.bmp", "DS11_BG3.bmp"}, "SB_BAN.bmp"},    // 11
    {"DS12_MA1.bmp", "LIGHT.bmp", 1, {"DS12_BG1.bmp", "DS12_BG2.bmp", "DS12_BG3.bmp"}, "SB_REIME.bmp"},  // 12
    {"DS11_MA1.bmp", "LIGHT.bmp", 1, {"DS11_BG1.bmp", "DS11_BG2.bmp", "DS11_BG3.bmp"}, "SB_KNIFE.bmp"},  // 13
    {"DS11_MA1.bmp", "LIGHT.bmp", 1, {"DS11_BG1.bmp", "DS11_BG2.bmp", "DS11_BG3.bmp"}, "SB_BAN.bmp"},    // 14
};
// clang-format on

namespace {

constexpr float kSuperDepth = 20.0f;
constexpr float kSmallFloorHalf = 6.0f;
// Backdrop vertices: x along the strip, the top row's height, the strip's depth.
constexpr float kBackdropX[4] = {0.0f, 0.33f * BACKDROP_WIDTH, 0.67f * BACKDROP_WIDTH,
                                 BACKDROP_WIDTH};
constexpr float kBackdropTop = 0.33f * 130.0f - 6.1f;
constexpr float kBackdropBottom = -6.1f;
constexpr float kBackdropZ = 0.58f * 80.0f;
constexpr std::int32_t kPanels[BACKDROP_PANELS][4] = {{0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}};

// The next free slot takes the picture; a failure ends the program with `code`. With the
// table full nothing is loaded and the slot stays as it was.
void load_stage_picture(const char* name, std::int32_t* slot, const char* code) {
  if (Textures.Texture_Count >= TEXTURE_SLOTS) return;
  if (!Load_TextureSlot(name, Textures.Texture_Count)) {
    std::printf("Texture Loading Error %s", name);
    Report_Stop(code, 0);
  }
  *slot = Textures.Texture_Count++;
}

// The 8 x 8 grid with `spacing` between vertices, centred on the origin at height y. The
// texture coordinates step by 1/7 added up in single precision.
void build_grid(StageMesh& mesh, float spacing, float y) {
  const float half = spacing * static_cast<float>(FLOOR_GRID - 1) / 2.0f;
  const float step = 1.0f / static_cast<float>(FLOOR_GRID - 1);
  float t = 0.0f;
  for (int row = 0; row < FLOOR_GRID; ++row, t += step) {
    float s = 0.0f;
    for (int col = 0; col < FLOOR_GRID; ++col, s += step) {
      StagePoint& v = mesh.v[col + FLOOR_GRID * row];
      v.x = spacing * static_cast<float>(col) - half;
      v.y = y;
      v.z = spacing * static_cast<float>(row) - half;
      v.s = s;
      v.t = t;
    }
  }
  int n = 0;
  for (int row = 0; row < FLOOR_GRID - 1; ++row)
    for (int col = 0; col < FLOOR_GRID - 1; ++col) {
      const int i = col + FLOOR_GRID * row;
      const std::int32_t quad[2][3] = {{i, i + FLOOR_GRID, i + FLOOR_GRID + 1},
                                       {i, i + FLOOR_GRID + 1, i + 1}};
      for (const auto& tri : quad) {
        for (int k = 0; k < 3; ++k) mesh.tri[n][k] = tri[k];
        ++n;
      }
    }
  mesh.vertex_count = FLOOR_VERTICES;
  mesh.triangle_count = n;
}

}  // namespace

void Load_Floor(const char* name) {
  build_grid(Stage.floor, 10.0f, FLOOR_Y);
  load_stage_picture(name, &Stage.floor_slot, "018");
}

void Load_LightPool(const char* name) {
  build_grid(Stage.light, 20.0f, LIGHT_POOL_Y);
  load_stage_picture(name, &Stage.light_slot, "019");
}

void Load_SmallFloor(const char* name) {
  const float h = kSmallFloorHalf;
  const StagePoint corners[4] = {{-h, FLOOR_Y, -h, 0, 0},
                                 {h, FLOOR_Y, -h, 1, 0},
                                 {h, FLOOR_Y, h, 1, 1},
                                 {-h, FLOOR_Y, h, 0, 1}};
  StageMesh& mesh = Stage.floor;
  for (int k = 0; k < 4; ++k) mesh.v[k] = corners[k];
  const std::int32_t tris[2][3] = {{0, 1, 2}, {0, 2, 3}};
  for (int n = 0; n < 2; ++n)
    for (int k = 0; k < 3; ++k) mesh.tri[n][k] = tris[n][k];
  mesh.vertex_count = 4;
  mesh.triangle_count = 2;
  load_stage_picture(name, &Stage.floor_slot, "017");
}

void Load_Backdrop(const char* bg1, const char* bg2, const char* bg3) {
  for (int k = 0; k < BACKDROP_VERTICES; ++k) {
    Stage.backdrop[k][0] = kBackdropX[k % 4];
    Stage.backdrop[k][1] = k < 4 ? kBackdropTop : kBackdropBottom;
    Stage.backdrop[k][2] = kBackdropZ;
  }
  for (int p = 0; p < BACKDROP_PANELS; ++p)
    for (int k = 0; k < 4; ++k) Stage.panel[p][k] = kPanels[p][k];
  const char* names[BACKDROP_PANELS] = {bg1, bg2, bg3};
  const char* codes[BACKDROP_PANELS] = {"021", "022", "023"};
  for (int p = 0; p < BACKDROP_PANELS; ++p)
    load_stage_picture(names[p], &Stage.backdrop_slot[p], codes[p]);
}

void Load_Stage(int player) {
  for (int side = 0; side < 2; ++side) {
    const int c = Match.character[side];
    if (c >= 0 && c < STAGE_CHARACTERS)
      Load_Raster(StageTable[c].super_move, SUPER_SPRITE_0 + side, kSuperDepth);
  }
  const int c = Match.character[player == 1 ? 1 : 0];
  if (c < 0 || c >= STAGE_CHARACTERS) return;
  const StagePictures& row = StageTable[c];
  Load_Floor(row.floor);
  Load_LightPool(row.light);
  Stage.Stage_Light = row.light_on;
  Load_Backdrop(row.backdrop[0], row.backdrop[1], row.backdrop[2]);
}

void Stage_SetBrightness(std::uint16_t level) {
  for (ScreenVertex& v : Stage.floor_sv) v.r = v.g = v.b = level;
  for (ScreenVertex& v : Stage.light_sv) v.r = v.g = v.b = level;
  for (ScreenVertex& v : Stage.backdrop_sv) v.r = v.g = v.b = level;
}
