// Shared by the fuzz targets: the readers' files served from memory (nothing touches the
// disk, nothing is left behind), quiet loaders, and the program's exit paths turned into a
// return so that a refusal that ends the game is not a crash.
#pragma once
#include <strings.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "platform/headless/headless.h"
#include "platform/headless/headless_catch.h"
#include "platform/platform.h"

namespace fuzz {

// The files the readers can open: a name and bytes that stay valid while the file is set.
struct MemoryFile {
  const char* name;
  const std::uint8_t* data;
  std::size_t size;
};
inline MemoryFile Files[8];
inline int FileCount = 0;

inline bool serve(const char* name, const std::uint8_t** data, std::size_t* size) {
  for (int i = 0; i < FileCount; ++i)
    if (strcasecmp(Files[i].name, name) == 0) {
      *data = Files[i].data;
      *size = Files[i].size;
      return true;
    }
  return false;  // every other name is missing
}

// Once per process: files from memory, loaders' messages and diagnostic lines silenced.
inline void start() {
  static bool started = false;
  if (started) return;
  Plat_SetFileSource(serve);
  Headless_SetQuietDiagnostics(true);
  if (std::freopen("/dev/null", "w", stdout) == nullptr) std::abort();  // loaders' messages
  started = true;
}

// Makes `name` readable with these bytes (replacing an earlier file of that name).
inline void set_file(const char* name, const std::uint8_t* data, std::size_t size) {
  start();
  for (int i = 0; i < FileCount; ++i)
    if (strcasecmp(Files[i].name, name) == 0) {
      Files[i] = {name, data, size};
      return;
    }
  if (FileCount == static_cast<int>(sizeof Files / sizeof Files[0])) std::abort();
  Files[FileCount++] = {name, data, size};
}

// Calls `read`; returns the exit status the reader ended the program with, or -1 when it
// returned normally.
template <typename F>
int run_reader(F read) {
  start();
  return Headless_CatchExit(read);
}

}  // namespace fuzz
