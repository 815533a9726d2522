// Contact sheets: for every character one picture of its key poses side by side, each cell
// half the screen's size and labelled with its action and frame.
#include <png.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstring>

#include "assets/asset_character.h"
#include "fight/fight_state.h"
#include "platform/headless/headless.h"
#include "review/review.h"

namespace {

constexpr int kCellW = HEADLESS_WIDTH / 2, kCellH = HEADLESS_HEIGHT / 2;
constexpr int kColumns = 4;
constexpr int kMaxCells = 40;
constexpr int kMaxRows = kMaxCells / kColumns;
constexpr int kSheetW = kColumns * kCellW;
constexpr int kLabelScale = 3;
constexpr std::uint8_t kEmpty = 120;  // grey of the cells left over in the last row

struct Cell {
  int action;
  int frame;
};

// The sheet being composed, RGB, top row first.
struct SheetState {
  std::uint8_t rgb[kMaxRows * kCellH][kSheetW * 3];
  Cell cells[kMaxCells];
  int count;
};
SheetState Sheet;

// Action numbers of the special moves, and the fixed poses around them.
constexpr int kSpecialRanges[][2] = {{190, 208}, {220, 238}, {266, 284}, {299, 316}, {500, 519}};
constexpr int kIdle = 0, kWalk = 1, kPunch = 180, kThrow = 80, kHitReaction = 145;
constexpr int kKnockDown = 143, kVictory = 12;

// Three-by-five digits, one row of three bits per line, top line first.
constexpr std::uint8_t kDigits[10][5] = {
    {7, 5, 5, 5, 7}, {2, 6, 2, 2, 7}, {7, 1, 7, 4, 7}, {7, 1, 7, 1, 7}, {5, 5, 7, 1, 1},
    {7, 4, 7, 1, 7}, {7, 4, 7, 5, 7}, {7, 1, 1, 1, 1}, {7, 5, 7, 5, 7}, {7, 5, 7, 1, 7},
};

void add(int action, int frame) {
  if (frame >= 0 && Sheet.count < kMaxCells) Sheet.cells[Sheet.count++] = {action, frame};
}

int middle_of(int action) {
  const Fighter& f = fighters[0];
  if (Review_StrikeFrame(action) < 0) return -1;
  return (f.act_last[action] - f.act_first[action]) / 2;
}

// Only actions the character's own table gives count as its special moves.
void add_specials() {
  const Fighter& f = fighters[0];
  for (const auto& range : kSpecialRanges)
    for (int a = range[0]; a <= range[1]; ++a)
      if (f.act_first[a] > f.last_shared_frame) add(a, Review_StrikeFrame(a));
}

void choose_cells() {
  const Fighter& f = fighters[0];
  Sheet.count = 0;
  add(kIdle, Review_StrikeFrame(kIdle) < 0 ? -1 : 0);
  add(kWalk, middle_of(kWalk));
  add(kPunch, Review_StrikeFrame(kPunch));
  add_specials();
  add(kThrow, Review_StrikeFrame(kThrow));
  add(kHitReaction, middle_of(kHitReaction));
  add(kKnockDown, middle_of(kKnockDown));
  add(kVictory, Review_StrikeFrame(kVictory) < 0 ? -1 : f.act_last[kVictory] - f.act_first[kVictory]);
}

// The presented screen, halved, into cell n.
void copy_cell(int n, const std::uint8_t* rgba) {
  const int x0 = (n % kColumns) * kCellW, y0 = (n / kColumns) * kCellH;
  for (int y = 0; y < kCellH; ++y)
    for (int x = 0; x < kCellW; ++x)
      for (int c = 0; c < 3; ++c) {
        int sum = 0;
        for (int dy = 0; dy < 2; ++dy)
          for (int dx = 0; dx < 2; ++dx)
            sum += rgba[((2 * y + dy) * HEADLESS_WIDTH + 2 * x + dx) * 4 + c];
        Sheet.rgb[y0 + y][(x0 + x) * 3 + c] = static_cast<std::uint8_t>(sum / 4);
      }
}

}  // namespace

void Review_CellsClear() { std::memset(Sheet.rgb, kEmpty, sizeof Sheet.rgb); }

namespace {

void put_digit(int x0, int y0, int d) {
  for (int line = 0; line < 5; ++line)
    for (int bit = 0; bit < 3; ++bit) {
      if (!(kDigits[d][line] & (4 >> bit))) continue;
      for (int sy = 0; sy < kLabelScale; ++sy)
        for (int sx = 0; sx < kLabelScale; ++sx) {
          std::uint8_t* px = &Sheet.rgb[y0 + line * kLabelScale + sy][(x0 + bit * kLabelScale + sx) * 3];
          px[0] = px[1] = px[2] = 20;
        }
    }
}

// "ACTION FRAME" in the cell's top-left corner.
void label_cell(int n, const Cell& cell) {
  char text[24];
  std::snprintf(text, sizeof text, "%d %d", cell.action, cell.frame);
  if (n < 0 || n >= kMaxCells) return;
  int x = (n % kColumns) * kCellW + 6;
  const int y = (n / kColumns) * kCellH + 6;
  for (const char* c = text; *c; ++c, x += 4 * kLabelScale)
    if (*c >= '0' && *c <= '9') put_digit(x, y, *c - '0');
}

bool write_png(const char* path, int rows) {
  std::FILE* file = std::fopen(path, "wb");
  if (file == nullptr) return false;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  bool ok = false;
  if (png && info && !setjmp(png_jmpbuf(png))) {
    png_init_io(png, file);
    png_set_IHDR(png, info, kSheetW, rows * kCellH, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    for (int y = 0; y < rows * kCellH; ++y) png_write_row(png, Sheet.rgb[y]);
    png_write_end(png, nullptr);
    ok = true;
  }
  png_destroy_write_struct(&png, &info);
  std::fclose(file);
  return ok;
}

}  // namespace

void Review_CellPut(int n, int action, int frame) {
  if (n < 0 || n >= kMaxCells) return;
  copy_cell(n, Headless_Pixels());
  label_cell(n, Cell{action, frame});
}

bool Review_CellsWrite(const char* path, int cells) {
  if (cells < 1) cells = 1;
  if (cells > kMaxCells) cells = kMaxCells;
  return write_png(path, (cells + kColumns - 1) / kColumns);
}

namespace {

bool sheet_of(int character, const char* out_dir) {
  if (!Review_LoadRow(character)) return false;
  choose_cells();
  Review_CellsClear();
  int drawn = 0;
  for (int n = 0; n < Sheet.count; ++n) {
    if (!Review_Draw(Sheet.cells[n].action, Sheet.cells[n].frame)) continue;
    Review_CellPut(drawn, Sheet.cells[n].action, Sheet.cells[n].frame);
    ++drawn;
  }
  if (drawn == 0) {
    std::fprintf(stderr, "valdrune-headless: character %d has no frames to show\n", character);
    return false;
  }
  char path[1024];
  std::snprintf(path, sizeof path, "%s/sheet-%02d.png", out_dir, character);
  if (!Review_CellsWrite(path, drawn)) {
    std::fprintf(stderr, "valdrune-headless: cannot write %s\n", path);
    return false;
  }
  std::printf("%s: %d poses\n", path, drawn);
  return true;
}

}  // namespace

int Review_Sheets(const char* out_dir) {
  mkdir(out_dir, 0755);  // one that is already there is fine; a failure shows when writing
  if (!Review_Begin()) return 1;
  int status = 0;
  for (int c = 0; c < CHARACTERS; ++c)
    if (!sheet_of(c, out_dir)) status = 1;
  return status;
}
