// Front-end scenes: counters the frame loop shares with them.
#pragma once
#include <cstdint>

// Frames the title has waited without input; a coin or start press resets it. Written by the
// title scene, the system keys and the demonstration preparation.
extern std::int32_t TitleTimer;
// The continue screen's count-down; a coin or start press restarts it. Written by the
// continue scene and the system keys.
extern std::int32_t ContinueTimer;
