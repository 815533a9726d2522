// Formatted lines on the diagnostic channel.
#include <cstdarg>
#include <cstdio>

#include "platform/platform.h"

void Plat_DebugOutf(const char* format, ...) {
  char line[512];
  std::va_list args;
  va_start(args, format);
  std::vsnprintf(line, sizeof line, format, args);
  va_end(args);
  Plat_DebugOut(line);
}
