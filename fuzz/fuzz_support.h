// Shared by the fuzz targets: run a reader on bytes written to a file, with the program's
// exit paths turned into a return so that a refusal that ends the game is not a crash.
#pragma once
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#include "platform/headless/headless_catch.h"

namespace fuzz {

// Runs in a private temporary directory, created on first use.
inline void enter_work_dir() {
  static bool entered = false;
  if (entered) return;
  char templ[] = "/tmp/valdrune-fuzz-XXXXXX";
  if (mkdtemp(templ) == nullptr || chdir(templ) != 0) std::abort();
  std::freopen("/dev/null", "w", stdout);  // loaders' messages
  entered = true;
}

inline void write_file(const char* name, const std::uint8_t* data, std::size_t size) {
  std::FILE* f = std::fopen(name, "wb");
  if (f == nullptr) std::abort();
  if (size) std::fwrite(data, 1, size, f);
  std::fclose(f);
}

// Calls `read` (which loads from the file written just before); returns the exit status the
// reader ended the program with, or -1 when it returned normally.
template <typename F>
int run_reader(F read) {
  enter_work_dir();
  return Headless_CatchExit(read);
}

}  // namespace fuzz
