// Data-file opening with a case-insensitive fallback, and files served from memory.
#include <dirent.h>
#include <strings.h>

#include <cerrno>
#include <cstring>

#include "platform/platform.h"

namespace {

// Written only by Plat_OpenFile and Plat_SetFileSource.
struct FileState {
  int last_errno = 0;              // of the last open that failed
  Plat_FileSource source = nullptr;  // files from memory instead of the directory
};
FileState Files;

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

std::FILE* open_from_memory(const char* name) {
  const std::uint8_t* data = nullptr;
  std::size_t size = 0;
  if (!Files.source(name, &data, &size)) {
    Files.last_errno = ENOENT;
    return nullptr;
  }
  static std::uint8_t empty[1];
  void* bytes = size > 0 ? const_cast<std::uint8_t*>(data) : empty;  // read mode: never written
  std::FILE* file = fmemopen(bytes, size, "rb");
  if (file == nullptr) Files.last_errno = errno;
  return file;
}

}  // namespace

std::FILE* Plat_OpenFile(const char* name, const char* mode) {
  if (Files.source != nullptr && mode[0] == 'r') return open_from_memory(name);
  std::FILE* file = std::fopen(name, mode);
  if (file != nullptr || mode[0] != 'r') {
    if (file == nullptr) Files.last_errno = errno;
    return file;
  }
  Files.last_errno = errno;
  char found[256];
  if (!find_case_insensitive(name, found, sizeof found)) return nullptr;
  file = std::fopen(found, mode);
  if (file == nullptr) Files.last_errno = errno;
  return file;
}

const char* Plat_OpenFailure() {
  return Files.last_errno == ENOENT ? "missing" : std::strerror(Files.last_errno);
}

void Plat_SetFileSource(Plat_FileSource source) { Files.source = source; }
