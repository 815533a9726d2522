// The fighters' looks: one row per character, the single place a fighter's body, clothing,
// colours and face are decided. Generators read it; nothing writes it.
#pragma once
#include <cstdint>

#include "figures/fig_types.h"

namespace fig {

enum class Hair : std::uint8_t { Bald, Crop, Spiky, Slick, Bob, Long, Bun, Wild, Helmet };
enum class Top : std::uint8_t { Gi, Vest, Tank, Dress, Coat, Armour, Suit };
enum class Sleeve : std::uint8_t { None, Short, Long };
enum class Legwear : std::uint8_t { Trousers, Tights, Shorts, Armour, Hakama };
enum class Footwear : std::uint8_t { Bare, Shoes, Boots, Armour };
enum class Gloves : std::uint8_t { None, Wraps, Gloves, Gauntlets };
enum class Prop : std::uint8_t { None, Fan, Cards, Knife, Axe, Bracer };
// Loose pieces hung on the attachment chains (flag points).
enum class Piece : std::uint8_t { None, Ponytail, Braid, Strand, Sash, CoatTail, Pad, Ribbon, Tassel, Cuff };
enum class Brow : std::uint8_t { Thin, Thick, Angry, Arched };
enum class Beard : std::uint8_t { None, Stubble, Moustache, Full };
enum class Mark : std::uint8_t { None, Scar, Paint, Visor, Mask };

struct Palette {
  std::uint32_t main;    // the dominant cloth colour, 0xRRGGBB
  std::uint32_t second;  // trousers or the second garment
  std::uint32_t trim;    // edges, belts, piping
  std::uint32_t hair;
  std::uint32_t accent;  // ribbons, sashes, props
};

struct FaceLook {
  float eye_size;       // 0.8 .. 1.3 of the average eye
  std::uint32_t iris;
  Brow brow;
  float mouth;          // mouth width, 0.8 .. 1.3
  Beard beard;
  Mark mark;
};

struct Look {
  const char* name;
  const char* code;   // three letters, the start of every texture name of the character
  bool female;
  // Proportions in model units (the figure stands about 9.3 units tall).
  float head_top;     // model y of the crown
  float head_w;       // head width
  float head_h;       // crown to chin
  float shoulder;     // half distance between the shoulder joints
  float chest_w;      // torso half width at the chest
  float chest_d;      // torso half depth at the chest
  float waist_w;      // half width at the waist
  float hip_w;        // half distance between the hip joints
  float torso;        // neck base to hip joints
  float arm_r;        // upper arm radius
  float leg_r;        // thigh radius
  float bulk;         // 0 lean .. 1 heavy: muscle bulges and hand size
  Hair hair;
  Top top;
  Sleeve sleeve;
  Legwear legs;
  Footwear feet;
  Gloves gloves;
  Prop right_prop;    // part 19, in the right hand
  Prop left_prop;     // part 20, on the left forearm
  bool flex;          // a scarf whose tails ride the chest and bounce on a hit
  Piece attach[5];    // what hangs on attachment i (see the loader's per-character set-up)
  FaceLook face;
  std::uint32_t skin;
  Palette colours[2];  // first colouring (rows 0..14), second colouring (rows 15..29)
};

const Look& Fig_Look(int character);  // character 0..14

// The body part each attachment of a character hangs on, as the character loader sets it up
// (0 where the loader sets up nothing, so a flag point there would hang rigidly on the pelvis).
int Fig_AttachAnchor(int character, int attachment);

// Rows 0..14 show characters 0..14 in their first colouring, rows 15..29 in their second.
inline int Fig_RowCharacter(int row) { return row % 15; }
inline int Fig_RowColouring(int row) { return row / 15; }

// The model texture the alternate faces replace, and the row's file names.
int Fig_ReplacedTexture(int row);
const char* Fig_ModelFile(int row);
const char* Fig_HurtFaceFile(int row);
const char* Fig_ShoutFaceFile(int row);
const char* Fig_AnimFile(int character);
const char* Fig_SkeletonFile(int character);
// True when the character's animation file carries its own parts 19 and 20 (".fx", ".fx3").
bool Fig_CarriesProps(int character);

}  // namespace fig
