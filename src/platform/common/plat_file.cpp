// Data-file opening with a case-insensitive fallback.
#include "platform/platform.h"

#include <dirent.h>
#include <strings.h>

#include <cstring>

namespace {

// Finds a directory entry of the working directory equal to `name` ignoring case; copies it
// into `found` (capacity `cap`) and returns 1, or returns 0.
int find_case_insensitive(const char* name, char* found, std::size_t cap) {
  if (std::strchr(name, '/') != nullptr) return 0;  // only names in the working directory
  DIR* dir = opendir(".");
  if (dir == nullptr) return 0;
  int ok = 0;
  while (dirent* entry = readdir(dir)) {
    if (strcasecmp(entry->d_name, name) == 0 && std::strlen(entry->d_name) < cap) {
      std::strcpy(found, entry->d_name);
      ok = 1;
      break;
    }
  }
  closedir(dir);
  return ok;
}

}  // namespace

std::FILE* Plat_OpenFile(const char* name, const char* mode) {
  std::FILE* file = std::fopen(name, mode);
  if (file != nullptr || mode[0] != 'r') return file;
  char found[256];
  if (!find_case_insensitive(name, found, sizeof found)) return nullptr;
  return std::fopen(found, mode);
}
