// The fighters as the generated content presents them: names and voices. Characters 10..13
// fight as 3, 0, 7 and 9 and speak with their voices, under names of their own; 14 is the
// final opponent.
#pragma once

namespace gen {

struct RosterEntry {
  const char* name;     // as announced and written on name plates
  const char* voice;    // speech voice variant
  int pitch;            // speech base pitch 0..99
  int speed;            // words a minute
  int shift;            // extra pitch shift in cents
  const char* effects;  // extra sound shaping of every line this fighter says
};

constexpr int kRosterSize = 15;
constexpr RosterEntry kRoster[kRosterSize] = {
    {"Arden", "en+m3", 48, 175, 0, "overdrive 3"},                     // 0
    {"Suzu", "en+f2", 72, 185, 150, "treble +3"},                      // 1
    {"Brannoc", "en+m1", 22, 150, -400, "overdrive 8 bass +4"},        // 2
    {"Tavi", "en+m7", 62, 195, 200, ""},                               // 3
    {"Oksana", "en+f4", 55, 170, 0, "overdrive 2"},                    // 4
    {"Rhett", "en+m2", 38, 165, -150, "overdrive 6"},                  // 5
    {"Corvin", "en+croak", 42, 160, -100, "phaser 0.8 0.74 3 0.4 0.5 -t"},  // 6
    {"Isolde", "en+f1", 66, 175, 100, "chorus 0.6 0.9 40 0.4 0.25 2 -t"},   // 7
    {"Dario", "en+m4", 52, 185, 0, "overdrive 4"},                     // 8
    {"Hakon", "en+m6", 26, 150, -300, "overdrive 5 bass +5"},          // 9
    {"Kestrel", "en+m7", 62, 195, 200, ""},                           // 10: plays as 3
    {"Garrick", "en+m3", 48, 175, 0, "overdrive 3"},                   // 11: plays as 0
    {"Liesel", "en+f1", 66, 175, 100, ""},                             // 12: plays as 7
    {"Torsten", "en+m6", 26, 150, -300, "overdrive 5 bass +5"},        // 13: plays as 9
    {"Valdr", "en+m1", 20, 140, -500, "overdrive 10 reverb 30"},       // 14: the final opponent
};

// The announcer's voice.
constexpr RosterEntry kAnnouncer = {"", "en+m3", 30, 135, -250, "overdrive 4 reverb 45 bass +3"};

}  // namespace gen
