#include "scenes/scenes.h"

std::int32_t TitleTimer = 0;
std::int32_t ContinueTimer = 0;
