// Shared key frames. The reader proper lands with the animation formats; until then the file
// is only opened, so that start-up stops where it must when the data set is missing.
#include "assets/asset_anim.h"

#include "platform/platform.h"

bool Load_PreloadFA(const char* name) {
  std::FILE* file = Plat_OpenFile(name, "rb");
  if (file == nullptr) return false;
  std::fclose(file);
  return true;
}
