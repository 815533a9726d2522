// The programs' command lines: each option is one row of a table, and one parser reads them
// all, so that a number is taken only whole and in range and every refusal names its option.
#pragma once
#include <cstdio>

struct OptionRow {
  const char* name;   // "--frames"
  const char* value;  // how the usage names the value ("N"); nullptr for a switch
  const char* help;   // one line for --help
  // Exactly one of these receives the option:
  const char** text = nullptr;  // the value as written
  long* number = nullptr;       // a whole number from `low` to `high`
  long low = 0;
  long high = 0;
  bool* flag = nullptr;                     // a switch: set to true
  bool (*check)(const char* v) = nullptr;  // a value with its own syntax: true when accepted
};

enum OptionsResult { OPTIONS_RUN, OPTIONS_HELP, OPTIONS_REFUSED };

// The exit status of a program whose command line is refused.
constexpr int OPTIONS_STATUS_REFUSED = 2;

// Reads argv[1..] against the rows. A refusal prints one line naming the option to standard
// error ("PROGRAM: --frames: "10x" is not a whole number from 1 to 2147483647"), followed by a
// hint to --help. --help or -h anywhere gives OPTIONS_HELP and nothing is refused.
OptionsResult Options_Parse(const char* program, const OptionRow* rows, int count, int argc,
                            char** argv);

// The whole reading for a program's entry: -1 when the program is to run, else the status it
// ends with: 0 after printing the usage for --help (on standard output), 2 after a refusal.
int Options_Read(const char* program, const char* synopsis, const OptionRow* rows, int count,
                 int argc, char** argv);

// The usage: `synopsis` (its own lines), then one line per row.
void Options_Usage(std::FILE* out, const char* synopsis, const OptionRow* rows, int count);

// A refusal of the options as a whole (two that do not go together, one that is missing): one
// line on standard error with the hint to --help.
void Options_Refuse(const char* program, const char* message);
