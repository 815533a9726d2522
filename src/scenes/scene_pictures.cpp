// Loading a picture set: empty the texture table, then each file into its sprite, in order.
#include "scenes/scene_pictures.h"

#include <cstdio>

#include "assets/asset_image.h"
#include "assets/asset_model.h"
#include "fight/fight_state.h"
#include "scenes/scene_picture_runs.h"

namespace {

// Versus portraits and name plates of the two sides.
constexpr int kVersusPortrait = 94;  // + 2 x side; the name plate follows it
constexpr float kVersusDepth = 1.0f;

std::span<const PictureRun> runs_of(PictureSet set) {
  return set == PICS_FIGHT ? Fight_Runs() : Front_Runs(set);
}

// The file name of entry k of run r. False when it does not fit (no table row does).
bool file_name(const PictureRun& r, int k, char* out) {
  int n;
  if (r.stems != nullptr)
    n = std::snprintf(out, PICTURE_NAME_SIZE, "%s%s.bmp", r.prefix, r.stems[k]);
  else if (r.digits > 0)
    n = std::snprintf(out, PICTURE_NAME_SIZE, "%s%0*d.bmp", r.prefix, r.digits, r.first + k);
  else
    n = std::snprintf(out, PICTURE_NAME_SIZE, "%s", r.prefix);
  return n > 0 && n < PICTURE_NAME_SIZE;
}

int load_runs(std::span<const PictureRun> runs) {
  char name[PICTURE_NAME_SIZE];
  for (const PictureRun& r : runs)
    for (int k = 0; k < r.count; ++k)
      if (!file_name(r, k, name) || !Load_Raster(name, r.sprite + k, r.depth)) return 0;
  return 1;
}

int load_set(PictureSet set) {
  Reset_Textures();
  return load_runs(runs_of(set));
}

void make_entry(const char* stem, int sprite, PictureEntry* out) {
  std::snprintf(out->file, PICTURE_NAME_SIZE, "%s.bmp", stem);
  out->sprite = sprite;
  out->depth = kVersusDepth;
}

}  // namespace

int Picture_SetSize(PictureSet set) {
  if (set < 0 || set >= PICTURE_SETS) return 0;
  return Runs_Entries(runs_of(set));
}

bool Picture_SetEntry(PictureSet set, int index, PictureEntry* out) {
  if (set < 0 || set >= PICTURE_SETS || index < 0) return false;
  for (const PictureRun& r : runs_of(set)) {
    if (index < r.count) {
      out->sprite = r.sprite + index;
      out->depth = r.depth;
      return file_name(r, index, out->file);
    }
    index -= r.count;
  }
  return false;
}

bool Versus_SideEntries(int side, PictureEntry* portrait, PictureEntry* plate) {
  if ((side != 0 && side != 1) || select_slot[side] < 0) return false;
  const int c = select_slot[side] % PICTURE_CHARACTERS;
  make_entry(PortraitStems[c], kVersusPortrait + 2 * side, portrait);
  make_entry(NamePlateStems[c], kVersusPortrait + 2 * side + 1, plate);
  return true;
}

int Load_FightPictures() { return load_set(PICS_FIGHT); }
int Load_SelectPictures() { return load_set(PICS_SELECT); }
int Load_TitlePictures() { return load_set(PICS_TITLE); }
int Load_RankingPictures() { return load_set(PICS_RANKING); }
int Load_OpeningPictures() { return load_set(PICS_OPENING); }
int Load_OptionsPictures() { return load_set(PICS_OPTIONS); }

int Load_VersusPictures() {
  if (!load_set(PICS_VERSUS)) return 0;
  for (int side = 0; side < 2; ++side) {
    PictureEntry portrait, plate;
    if (!Versus_SideEntries(side, &portrait, &plate)) continue;
    Load_Raster(portrait.file, portrait.sprite, portrait.depth);  // results do not count
    Load_Raster(plate.file, plate.sprite, plate.depth);
  }
  return 1;
}

int Load_EndingPictures() {
  Reset_Textures();
  Load_3DSprite("FAR.3DM", 0);
  Load_3DSprite("CARDFIRE.3DM", 1);
  Load_3DSprite("AXE.3DM", 2);
  return load_runs(runs_of(PICS_ENDING));
}
