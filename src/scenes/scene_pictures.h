// Scene picture sets: the screen sprites each scene loads when it is entered.
//
// Loading a set empties the texture table and registers each of its pictures, in a fixed
// order, as a fixed sprite number with a fixed depth. The drawing of a scene refers to its
// pictures by those numbers only.
#pragma once

enum PictureSet : int {
  PICS_FIGHT,     // the fight and the continue screen
  PICS_SELECT,    // character select
  PICS_VERSUS,    // the versus picture (its two portraits follow the fixed entries)
  PICS_TITLE,     // title screen
  PICS_ENDING,    // ending panels (after the three effect models)
  PICS_RANKING,   // rankings
  PICS_OPENING,   // opening logo and title
  PICS_OPTIONS,   // options screen
  PICTURE_SETS,
};

constexpr int PICTURE_NAME_SIZE = 16;  // the longest name and its terminator

// One fixed entry of a set: the file, the sprite it becomes and the depth it is drawn at.
struct PictureEntry {
  char file[PICTURE_NAME_SIZE];
  int sprite;
  float depth;
};

// The number of fixed entries of a set, and entry `index` of it in load order (false for an
// index outside the set).
int Picture_SetSize(PictureSet set);
bool Picture_SetEntry(PictureSet set, int index, PictureEntry* out);

// The loaders. Each empties the texture table, then loads its entries in order; 1 when every
// file loaded, 0 at the first that failed (the later ones are not tried; Load_Raster has
// printed why). What a failure means is the caller's business.
int Load_FightPictures();
int Load_SelectPictures();
// After the fixed entries, and only when all of them loaded: the select portrait and name
// plate of each side's character (select_slot mod 15) as sprites 94 + 2s and 95 + 2s. Their
// results do not count.
int Load_VersusPictures();
int Load_TitlePictures();
// The effect models "FAR.3DM", "CARDFIRE.3DM" and "AXE.3DM" first (a failure there ends the
// program), then the panels.
int Load_EndingPictures();
int Load_RankingPictures();
int Load_OpeningPictures();
int Load_OptionsPictures();

// The two pictures the versus set adds for `side` (0 or 1): the select portrait and the name
// plate of its character, select_slot[side] mod 15. False when the side has no character.
bool Versus_SideEntries(int side, PictureEntry* portrait, PictureEntry* plate);
