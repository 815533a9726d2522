// Fighter models (".3DM") into the two model records, and effect models.
#pragma once

// Reads a fighter's model into Knight[player], with the two alternate face pictures.
// Completes, or prints why and ends the program.
void Load_3DM(const char* file, int player, const char* alt1, const char* alt2);
