// The roster: who the fifteen fighters are and how they look.
#include "figures/fig_roster.h"

namespace fig {
namespace {

using H = Hair;
using T = Top;
using S = Sleeve;
using L = Legwear;
using F = Footwear;
using G = Gloves;
using Pr = Prop;
using Pc = Piece;

// Columns: name, code, female,
//   head_top, head_w, head_h, shoulder, chest_w, chest_d, waist_w, hip_w, torso, arm_r, leg_r, bulk,
//   hair, top, sleeve, legs, feet, gloves, right prop, left prop, flex scarf, attachments,
//   face {eye size, iris, brow, mouth, beard, mark}, skin, colourings {main, second, trim, hair, accent}.
constexpr Look kRoster[kCharacters] = {
    {"Ban", "BAN", false,  // a karate man in a sleeveless gi, bare feet, fists taped
     0.80f, 0.96f, 1.30f, 1.02f, 0.82f, 0.60f, 0.62f, 0.46f, 2.90f, 0.30f, 0.44f, 0.55f,
     H::Spiky, T::Gi, S::None, L::Trousers, F::Bare, G::Wraps, Pr::None, Pr::None, false,
     {Pc::None, Pc::None, Pc::None, Pc::None, Pc::None},
     {1.0f, 0x3A2614, Brow::Thick, 1.0f, Beard::Stubble, Mark::None}, 0xE0AA84,
     {{0xE8E4DA, 0xDCD6CA, 0xB01E1E, 0x1A1612, 0xC02020},
      {0x2A4A9C, 0x243F86, 0xF0F0EC, 0x1A1612, 0xF0F0EC}}},  // Ban
    {"Hana", "HAN", true,  // quick and light: high ponytail, short-sleeved dress over tights
     0.55f, 0.88f, 1.22f, 0.84f, 0.66f, 0.50f, 0.48f, 0.43f, 2.62f, 0.22f, 0.38f, 0.15f,
     H::Slick, T::Dress, S::Short, L::Tights, F::Shoes, G::None, Pr::None, Pr::None, false,
     {Pc::Ponytail, Pc::None, Pc::None, Pc::None, Pc::None},
     {1.2f, 0x2A6A30, Brow::Arched, 0.9f, Beard::None, Mark::None}, 0xF2CCAC,
     {{0xD04878, 0x2A2030, 0xF0C040, 0x2A1810, 0xF0C040},
      {0x1F8A8A, 0x1A1A1E, 0xD8D8E0, 0x0E0C10, 0xF0F0F0}}},  // Hana
    {"Kaiden", "KAI", false,  // tall swordless swordsman: long silver hair, open vest, hakama, scarf
     1.25f, 0.92f, 1.34f, 1.04f, 0.78f, 0.56f, 0.58f, 0.46f, 3.15f, 0.28f, 0.42f, 0.35f,
     H::Long, T::Vest, S::None, L::Hakama, F::Shoes, G::Wraps, Pr::None, Pr::None, true,
     {Pc::Braid, Pc::Strand, Pc::Strand, Pc::Sash, Pc::Strand},
     {0.9f, 0x5A4A8A, Brow::Angry, 0.9f, Beard::None, Mark::Scar}, 0xD8A888,
     {{0x283C78, 0x30303A, 0xE8E8E8, 0xC8C8D0, 0xB02030},
      {0x8C1C24, 0x1C1C20, 0xD0A030, 0x141010, 0xE8E8E8}}},  // Kaiden
    {"Eunyu", "EUN", true,  // a long fighting coat with tails and shoulder pads, boots, gloves
     0.85f, 0.90f, 1.24f, 0.92f, 0.72f, 0.52f, 0.52f, 0.44f, 2.80f, 0.24f, 0.41f, 0.30f,
     H::Bob, T::Coat, S::Long, L::Trousers, F::Boots, G::Gloves, Pr::None, Pr::None, false,
     {Pc::None, Pc::CoatTail, Pc::CoatTail, Pc::Pad, Pc::Pad},
     {1.1f, 0x3A2418, Brow::Thin, 0.9f, Beard::None, Mark::None}, 0xF0CCB0,
     {{0xE6E8F0, 0x1C2850, 0x3060C0, 0x141418, 0x60A0E0},
      {0x1E1E22, 0x801818, 0xD03030, 0x7A2A14, 0xE04040}}},  // Eunyu
    {"Bruce", "BRU", false,  // a heavy brawler: buzz cut, full beard, tank top, cargo trousers
     0.90f, 1.06f, 1.32f, 1.28f, 1.10f, 0.82f, 0.94f, 0.56f, 2.95f, 0.45f, 0.58f, 1.00f,
     H::Crop, T::Tank, S::None, L::Trousers, F::Boots, G::Gloves, Pr::None, Pr::None, false,
     {Pc::None, Pc::None, Pc::None, Pc::None, Pc::None},
     {0.85f, 0x2A3A5A, Brow::Thick, 1.1f, Beard::Full, Mark::None}, 0xB87C58,
     {{0x58683A, 0xA89870, 0x4A3420, 0x3A2A1A, 0xC0A040},
      {0x707478, 0xC06020, 0x1A1A1A, 0x3A2A1A, 0x1A1A1A}}},  // Bruce
    {"Honoka", "HON", true,  // the smallest: twin tails, ankle ribbons, a folding fan
     0.40f, 0.90f, 1.20f, 0.80f, 0.62f, 0.46f, 0.46f, 0.40f, 2.50f, 0.21f, 0.36f, 0.05f,
     H::Bob, T::Dress, S::Short, L::Shorts, F::Shoes, G::None, Pr::Fan, Pr::None, false,
     {Pc::Ponytail, Pc::Ponytail, Pc::Ribbon, Pc::Ribbon, Pc::None},
     {1.3f, 0x6A3A18, Brow::Arched, 0.8f, Beard::None, Mark::None}, 0xF6D6BC,
     {{0xE8B828, 0xE06A20, 0xF8F8F0, 0x6A3A1E, 0xD02830},
      {0x9070C0, 0xF0F0F0, 0xE070A0, 0x141014, 0x40C0C0}}},  // Honoka
    {"Rabalt", "RAB", false,  // a card sharp in a tailcoat and white gloves, slicked hair
     1.15f, 0.88f, 1.32f, 0.96f, 0.72f, 0.52f, 0.54f, 0.43f, 3.10f, 0.24f, 0.38f, 0.15f,
     H::Slick, T::Suit, S::Long, L::Trousers, F::Shoes, G::Gloves, Pr::Cards, Pr::None, false,
     {Pc::None, Pc::CoatTail, Pc::None, Pc::None, Pc::None},
     {0.9f, 0x6A2A8A, Brow::Arched, 1.0f, Beard::Moustache, Mark::None}, 0xE8C4A8,
     {{0x1C1A24, 0x24222C, 0x8030B0, 0x101010, 0xF0F0F4},
      {0xE8E8E0, 0x8A8A92, 0x208040, 0x101010, 0x30A050}}},  // Rabalt
    {"Reimei", "REI", true,  // a kung-fu stylist: two braids, wrap top, loose trousers
     0.80f, 0.92f, 1.24f, 0.92f, 0.72f, 0.54f, 0.54f, 0.45f, 2.80f, 0.25f, 0.42f, 0.35f,
     H::Slick, T::Gi, S::Short, L::Trousers, F::Shoes, G::Wraps, Pr::None, Pr::None, false,
     {Pc::Braid, Pc::Braid, Pc::None, Pc::None, Pc::None},
     {1.1f, 0x2A1A10, Brow::Thin, 0.95f, Beard::None, Mark::None}, 0xEEC49E,
     {{0x2A8C5A, 0x1E2220, 0xD0A838, 0x18100C, 0xC02828},
      {0xD86A20, 0x4A3020, 0xF0E6C8, 0x5A1A12, 0x3060A0}}},  // Reimei
    {"Robot", "ROB", false,  // a combat machine: plated, helmeted, long-legged, a glowing visor
     0.45f, 1.02f, 1.30f, 1.30f, 1.08f, 0.74f, 0.76f, 0.54f, 2.85f, 0.40f, 0.54f, 0.80f,
     H::Helmet, T::Armour, S::Long, L::Armour, F::Armour, G::Gauntlets, Pr::None, Pr::None, false,
     {Pc::None, Pc::None, Pc::None, Pc::None, Pc::None},
     {1.0f, 0xFF3020, Brow::Thin, 1.0f, Beard::None, Mark::Visor}, 0x9098A8,
     {{0x5870A0, 0x404858, 0xE0B020, 0x6A7890, 0xFF3020},
      {0x3A3C40, 0x902020, 0xE8E8E8, 0x505258, 0x20E0FF}}},  // Robot
    {"Crow", "CRO", false,  // a rangy knife fighter: shaggy hair, scarred, long coat, red scarf
     1.20f, 0.90f, 1.32f, 1.00f, 0.74f, 0.52f, 0.56f, 0.44f, 3.10f, 0.25f, 0.40f, 0.30f,
     H::Wild, T::Coat, S::Long, L::Trousers, F::Boots, G::Gloves, Pr::Knife, Pr::None, true,
     {Pc::None, Pc::Sash, Pc::None, Pc::None, Pc::None},
     {0.9f, 0x505A60, Brow::Angry, 0.9f, Beard::Stubble, Mark::Scar}, 0xD4A482,
     {{0x18181C, 0x2C2C30, 0xA0A0A8, 0x0E0E12, 0xA01818},
      {0x5A3A22, 0x8A7050, 0xC09040, 0x3A2A1A, 0x2A5A8A}}},  // Crow
    {"Seori", "SEO", true,  // a masked agent: headband tails, coat tails, shoulder plates
     0.65f, 0.88f, 1.22f, 0.88f, 0.68f, 0.50f, 0.50f, 0.43f, 2.70f, 0.23f, 0.39f, 0.25f,
     H::Bob, T::Coat, S::Long, L::Tights, F::Boots, G::Gloves, Pr::None, Pr::None, false,
     {Pc::Ribbon, Pc::CoatTail, Pc::CoatTail, Pc::Pad, Pc::Pad},
     {1.1f, 0x8A2040, Brow::Thin, 0.85f, Beard::None, Mark::Mask}, 0xF0D0B8,
     {{0x402060, 0x18141C, 0xC8C8D8, 0xE0D8C8, 0xC03060},
      {0xE8E8F0, 0x34405A, 0x3060C0, 0x101014, 0x3070E0}}},  // Seori
    {"Gest", "GES", false,  // a bald monk who throws his spirit: robe, hakama, shin tassels
     0.70f, 1.02f, 1.28f, 1.18f, 0.98f, 0.72f, 0.84f, 0.52f, 2.85f, 0.38f, 0.52f, 0.85f,
     H::Bald, T::Gi, S::None, L::Hakama, F::Bare, G::Wraps, Pr::None, Pr::None, false,
     {Pc::None, Pc::Tassel, Pc::Tassel, Pc::None, Pc::None},
     {0.9f, 0x3A2A1A, Brow::Thick, 1.0f, Beard::Moustache, Mark::Paint}, 0xA86C48,
     {{0xD88A20, 0x6A1A1A, 0xE0C040, 0x2A2A2A, 0xE0C040},
      {0x8A8C90, 0x1E2A48, 0xF0F0F0, 0x2A2A2A, 0x40A0E0}}},  // Gest
    {"Zexa", "ZEX", true,  // an acrobat: platinum ponytail, face paint, leg ribbons, shorts
     0.62f, 0.88f, 1.22f, 0.86f, 0.66f, 0.48f, 0.48f, 0.43f, 2.66f, 0.22f, 0.40f, 0.20f,
     H::Slick, T::Tank, S::None, L::Shorts, F::Boots, G::Gloves, Pr::None, Pr::None, true,
     {Pc::None, Pc::Ponytail, Pc::Ribbon, Pc::Ribbon, Pc::None},
     {1.15f, 0x2070C0, Brow::Arched, 0.9f, Beard::None, Mark::Paint}, 0xF0C8A8,
     {{0xC02828, 0x18181C, 0xF0F0F0, 0xE8E0D0, 0xF0F0F0},
      {0x2848B0, 0xF0F0F0, 0xE8C020, 0xC05080, 0xE8C020}}},  // Zexa
    {"Oewen", "OEW", false,  // a northern axeman: red braid and beard, fur, pauldron, buckler
     1.20f, 1.06f, 1.36f, 1.30f, 1.10f, 0.80f, 0.90f, 0.56f, 3.10f, 0.44f, 0.58f, 1.00f,
     H::Wild, T::Vest, S::None, L::Trousers, F::Boots, G::Wraps, Pr::Axe, Pr::Bracer, false,
     {Pc::Braid, Pc::Pad, Pc::CoatTail, Pc::Cuff, Pc::Cuff},
     {0.9f, 0x4A6A8A, Brow::Angry, 1.1f, Beard::Full, Mark::None}, 0xE4B494,
     {{0x6A4A2A, 0x4A3222, 0x707070, 0xA04018, 0xC0B090},
      {0x8A8A88, 0x1A2438, 0xB08040, 0xA04018, 0x902020}}},  // Oewen
    {"Shadow Ban", "BOS", false,  // the boss: Ban grown larger and darker, wild white mane
     2.00f, 1.10f, 1.46f, 1.46f, 1.18f, 0.86f, 0.88f, 0.60f, 3.50f, 0.47f, 0.62f, 1.00f,
     H::Wild, T::Gi, S::None, L::Trousers, F::Bare, G::Wraps, Pr::None, Pr::None, false,
     {Pc::None, Pc::None, Pc::None, Pc::None, Pc::None},
     {1.0f, 0xFF2010, Brow::Angry, 1.1f, Beard::Stubble, Mark::Paint}, 0x8E5E44,
     {{0x1A1418, 0x201A1E, 0x801010, 0xE8E8E8, 0xD01010},
      {0x3A0C14, 0x240A10, 0xD8A038, 0xE8E8E8, 0xFFB020}}},  // Shadow Ban
};

// Body part each attachment hangs on, from the character loader's set-up calls.
constexpr int kAttachAnchor[kCharacters][5] = {
    {0, 0, 0, 0, 0},     // Ban
    {2, 0, 0, 0, 0},     // Hana
    {2, 2, 2, 4, 2},     // Kaiden
    {0, 4, 4, 3, 3},     // Eunyu
    {0, 0, 0, 0, 0},     // Bruce
    {2, 2, 10, 16, 0},   // Honoka
    {0, 4, 0, 0, 0},     // Rabalt
    {2, 2, 0, 0, 0},     // Reimei
    {0, 0, 0, 0, 0},     // Robot
    {0, 4, 0, 0, 0},     // Crow
    {2, 4, 4, 3, 3},     // Seori
    {0, 9, 15, 0, 0},    // Gest
    {0, 2, 9, 15, 0},    // Zexa
    {2, 3, 4, 6, 12},    // Oewen
    {0, 0, 0, 0, 0},     // Shadow Ban
};

constexpr int kReplaced[kRows] = {0, 16, 6, 11, 0, 0, 0, 1, 4, 17, 19, 6, 3, 5, 0,
                                  0, 16, 6, 10, 20, 0, 0, 1, 4, 0, 13, 0, 3, 5, 0};

constexpr const char* kModelFile[kRows] = {
    "ban.3dm",     "hana.3dm",     "kaiden.3dm",  "eunyu.3dm",   "bruce.3dm",
    "honoka.3dm",  "rabalt2p.3dm", "reimei.3dm",  "robot.3dm",   "crow.3dm",
    "spc1_1p.3dm", "spc2_1p.3dm",  "spc3_1p.3dm", "spc4_1p.3dm", "banboss.3dm",
    "ban2p.3dm",   "hana2p.3dm",   "kaiden2p.3dm", "eunyu2p.3dm", "bruce2p.3dm",
    "honoka2p.3dm", "rabalt.3dm",  "reimei2p.3dm", "robot2p.3dm", "crow2p.3dm",
    "spc1_2p.3dm", "spc2_2p.3dm",  "spc3_2p.3dm", "spc4_2p.3dm", "banboss.3dm"};

constexpr const char* kHurtFace[kRows] = {
    "BANDM.bmp",    "HANADM.bmp",  "KAIDDM.bmp",   "EUNYDM.bmp",   "DANGDM.bmp",
    "HONO1PDM.bmp", "A8_.bmp",     "REI1PDM.bmp",  "SP3FAC3.bmp",  "KNIFDM.bmp",
    "EUNSPFDM.bmp", "GESTDM.bmp",  "ZXFACDM.bmp",  "OEWFACDM.bmp", "21BOSSDM.bmp",
    "BANDM.bmp",    "HANADM.bmp",  "KAIDDM.bmp",   "EUNYDM.bmp",   "DANGDM.bmp",
    "HONO2PDM.bmp", "A8_.bmp",     "REI1PDM.bmp",  "SP3FAC3.bmp",  "KNIFDM.bmp",
    "EUNSP2DM.bmp", "GESTDM.bmp",  "ZX2FDM.bmp",   "OEWFACDM.bmp", "21BOSSDM.bmp"};

constexpr const char* kShoutFace[kRows] = {
    "BANVC1.bmp",   "HANAVC.bmp",  "KAIDVC1.bmp",  "EUNYVC.bmp",   "DANGVC.bmp",
    "HONO1PVC.bmp", "A8_.bmp",     "REI1PVC.bmp",  "VASH1PVC.bmp", "C6FAC12.bmp",
    "EUNSPFVC.bmp", "GESTVC.bmp",  "ZXFACVC.bmp",  "OEWFACVC.bmp", "21BOSS.bmp",
    "BANVC1.bmp",   "HANAVC.bmp",  "KAIDVC1.bmp",  "EUNYVC.bmp",   "DANGVC.bmp",
    "HONO2PVC.bmp", "A8_.bmp",     "REI1PVC.bmp",  "S2FAC3.bmp",   "C2PFAC12.bmp",
    "SC2FAC2.bmp",  "GESTVC.bmp",  "ZX2FVC.bmp",   "OEWFACVC.bmp", "21BOSS.bmp"};

constexpr const char* kAnimFile[kCharacters] = {
    "ban.fa3",  "hana.fa",     "kaiden.fa",   "eunyu.fa",    "bruce.fa",
    "honoka.fx3", "rabalt.fx3", "reimei.fa",  "robot.fa",    "crow.fx3",
    "special1.fa", "special2.fa3", "special3.fa", "special4.fx3", "banboss.fa3"};

constexpr const char* kSkeletonFile[kCharacters] = {
    "ban.bsc",    "hana.bsc",     "kaiden.bsc",   "eunyu.bsc",    "bruce.bsc",
    "honoka.bsc", "rabalt.bsc",   "reimei.bsc",   "robot.bsc",    "crow.bsc",
    "special1.bsc", "special2.bsc", "special3.bsc", "special4.bsc", "banboss.bsc"};

int Clamp_Character(int c) { return c < 0 ? 0 : (c >= kCharacters ? kCharacters - 1 : c); }
int Clamp_Row(int r) { return r < 0 ? 0 : (r >= kRows ? kRows - 1 : r); }

}  // namespace

const Look& Fig_Look(int character) { return kRoster[Clamp_Character(character)]; }

int Fig_AttachAnchor(int character, int attachment) {
  if (attachment < 0 || attachment > 4) return 0;
  return kAttachAnchor[Clamp_Character(character)][attachment];
}

int Fig_ReplacedTexture(int row) { return kReplaced[Clamp_Row(row)]; }
const char* Fig_ModelFile(int row) { return kModelFile[Clamp_Row(row)]; }
const char* Fig_HurtFaceFile(int row) { return kHurtFace[Clamp_Row(row)]; }
const char* Fig_ShoutFaceFile(int row) { return kShoutFace[Clamp_Row(row)]; }
const char* Fig_AnimFile(int character) { return kAnimFile[Clamp_Character(character)]; }
const char* Fig_SkeletonFile(int character) { return kSkeletonFile[Clamp_Character(character)]; }

bool Fig_CarriesProps(int character) {
  const char* name = kAnimFile[Clamp_Character(character)];
  const char* dot = name;
  while (*dot && *dot != '.') ++dot;
  return dot[0] == '.' && dot[1] != '\0' && dot[2] != 'a' && dot[2] != 'A';
}

}  // namespace fig
