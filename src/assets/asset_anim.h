// Fighter animation files: the shared key frames, skeletons, characters' key frames, posing.
#pragma once
#include <cstdint>

#include "render/render_math.h"

constexpr int SHARED_KEYS = 6700;       // key frames of the shared file
constexpr int CHARACTER_KEYS = 2500;    // a character's own key frames
constexpr int ANIM_FIRST_PART = 2;      // parts 2..21 are animated
constexpr int ANIM_LAST_PART = 21;
constexpr int ANIM_PARTS = ANIM_LAST_PART - ANIM_FIRST_PART + 1;  // stored at index p - 2
constexpr int SKELETON_LAST_PART = 29;  // joints of parts 0..29
constexpr int POSE_PARTS = 22;          // posed matrices of parts 0..21

// Key frames, skeleton and poses. The loaders below write everything except Pose, which only
// Pose_Fighter and Pose_Part write; the drawing reads Pose.
struct AnimState {
  // Rotations (x500) of the shared key frames, one table for both players.
  std::int16_t PreloadRot[SHARED_KEYS][ANIM_PARTS][9];
  // Translations (x50) of the shared key frames, each player's copy fitted to its skeleton.
  std::int16_t PreloadPos[2][SHARED_KEYS][ANIM_PARTS][3];
  // Each player's own key frames: nine rotation entries, then three translation values.
  std::int16_t CharKeys[2][CHARACTER_KEYS][ANIM_PARTS][12];
  std::int32_t shared_keys;    // key frames read from the shared file (K + 1)
  std::int32_t char_keys[2];   // own key frames read for each player
  // Joint position of each part, tenths of model units, from the skeleton file read last.
  float Skeleton[SKELETON_LAST_PART + 1][3];
  Mat43 Pose[2][POSE_PARTS];
};
extern AnimState Anim;

// Start-up: reads the shared key frames into PreloadRot and both players' PreloadPos, and sets
// both fighters' first_part and last_shared_key. False when the file cannot be opened or is
// refused (a count beyond the tables, a short file).
bool Load_PreloadFA(const char* name);
// Reads a skeleton into Skeleton; false (joints kept) when it cannot be opened or is refused.
bool Load_BSC(const char* name);
// Refits the player's copy of the shared translations to Skeleton.
void Fit_Skeleton(int player);
// Skeleton, fit, then the character's own key frames from `name`. False when the animation
// file cannot be opened ("file open error") or is refused; the key frames are then untouched.
bool Load_FA(const char* name, const char* skeleton, int player);
// Poses every part of the fighter's model for its current frame.
void Pose_Fighter(int player);
void Pose_Part(int player, int p);

// The file kind an animation file name gives: false when the name has no '.'.
struct AnimKind {
  bool plain;     // nine 16-bit rotation entries (else three packed rows)
  bool arm_free;  // parts 19 and 20 are filled, not read
};
bool Anim_KindOfName(const char* name, AnimKind* kind);
// One packed rotation row into entries 3r..3r+2.
void Unpack_Row(std::int32_t v, std::int16_t out[3]);
