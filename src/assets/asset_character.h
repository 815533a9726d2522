// Character loading: the character table and the sequence that reads a fighter's model,
// attachments, animation and motion tables before a match.
#pragma once
#include <cstdint>

constexpr int CHARACTER_ROWS = 30;  // 15 characters, then the same 15 in their second colours
constexpr int CHARACTERS = 15;

struct CharacterRow {
  const char* model;      // ".3dm" model
  const char* alt1;       // first alternate face picture
  const char* alt2;       // second alternate face picture
  std::int32_t replaced;  // model texture number the alternate faces replace
  const char* anim;       // animation file
  const char* skeleton;   // skeleton file
  const char* table;      // motion table
};
extern const CharacterRow CharacterTable[CHARACTER_ROWS];

// Marks attachment i of the player present, hung on body part `part`, swinging between
// min(a, b) and max(a, b) degrees, with its reverse flag.
void Set_Attachment(int player, int i, int part, int a, int b, int flag);
// The fixed attachments of character c (0..14), after its model is loaded.
void Setup_Attachments(int player, int c);

// Loads the character of the player's selected row (select_slot): model and face pictures,
// attachments, animation, shared then own motion table. Missing animation or table files
// print a message and loading goes on. False only for a row outside 0..29.
bool Load_Character(int player);
