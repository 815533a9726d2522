// The command-line parser.
#include "shell/shell_options.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace {

const OptionRow* find_row(const OptionRow* rows, int count, const char* name) {
  for (int i = 0; i < count; ++i)
    if (std::strcmp(rows[i].name, name) == 0) return &rows[i];
  return nullptr;
}

// A decimal whole number, all of `text`, from `low` to `high`.
bool parse_number(const char* text, long low, long high, long* out) {
  const char first = text[0];
  if (!(first == '-' || (first >= '0' && first <= '9'))) return false;
  char* end = nullptr;
  errno = 0;
  const long v = std::strtol(text, &end, 10);
  if (errno != 0 || end == text || *end != '\0' || v < low || v > high) return false;
  *out = v;
  return true;
}

// Takes the value of `row`; false with the refusal printed.
bool take_value(const char* program, const OptionRow& row, const char* v) {
  if (row.number != nullptr) {
    if (parse_number(v, row.low, row.high, row.number)) return true;
    std::fprintf(stderr, "%s: %s: \"%s\" is not a whole number from %ld to %ld\n", program,
                 row.name, v, row.low, row.high);
    return false;
  }
  if (row.check != nullptr) {
    if (row.check(v)) return true;
    std::fprintf(stderr, "%s: %s: \"%s\" is not of the form %s\n", program, row.name, v,
                 row.value);
    return false;
  }
  if (row.text != nullptr) *row.text = v;
  return true;
}

void hint(const char* program) {
  std::fprintf(stderr, "%s: --help lists the options\n", program);
}

bool asks_help(const char* arg) {
  return std::strcmp(arg, "--help") == 0 || std::strcmp(arg, "-h") == 0;
}

}  // namespace

OptionsResult Options_Parse(const char* program, const OptionRow* rows, int count, int argc,
                            char** argv) {
  for (int i = 1; i < argc; ++i)
    if (asks_help(argv[i])) return OPTIONS_HELP;  // wherever it stands, before any refusal
  for (int i = 1; i < argc; ++i) {
    const char* arg = argv[i];
    const OptionRow* row = find_row(rows, count, arg);
    if (row == nullptr) {
      std::fprintf(stderr, "%s: unknown option \"%s\"\n", program, arg);
      hint(program);
      return OPTIONS_REFUSED;
    }
    if (row->value == nullptr) {
      if (row->flag != nullptr) *row->flag = true;
      continue;
    }
    if (i + 1 >= argc) {
      std::fprintf(stderr, "%s: %s needs a value (%s)\n", program, row->name, row->value);
      hint(program);
      return OPTIONS_REFUSED;
    }
    if (!take_value(program, *row, argv[++i])) {
      hint(program);
      return OPTIONS_REFUSED;
    }
  }
  return OPTIONS_RUN;
}

void Options_Usage(std::FILE* out, const char* synopsis, const OptionRow* rows, int count) {
  std::fprintf(out, "%s\noptions:\n", synopsis);
  for (int i = 0; i < count; ++i) {
    char head[64];
    std::snprintf(head, sizeof head, "%s%s%s", rows[i].name, rows[i].value ? " " : "",
                  rows[i].value ? rows[i].value : "");
    std::fprintf(out, "  %-26s %s\n", head, rows[i].help);
  }
  std::fprintf(out, "  %-26s %s\n", "--help", "print this and exit");
}

void Options_Refuse(const char* program, const char* message) {
  std::fprintf(stderr, "%s: %s\n", program, message);
  hint(program);
}

int Options_Read(const char* program, const char* synopsis, const OptionRow* rows, int count,
                 int argc, char** argv) {
  switch (Options_Parse(program, rows, count, argc, argv)) {
    case OPTIONS_HELP:
      Options_Usage(stdout, synopsis, rows, count);
      return 0;
    case OPTIONS_REFUSED:
      return OPTIONS_STATUS_REFUSED;
    case OPTIONS_RUN:
      break;
  }
  return -1;
}
