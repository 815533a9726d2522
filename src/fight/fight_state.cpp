#include "fight/fight_state.h"

MatchState Match;
std::int32_t frame_count = 0;
Fighter fighters[2];
