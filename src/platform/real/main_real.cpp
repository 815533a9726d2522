// valdrune: the game on the real platform backend.
#include "shell/shell.h"

int main() { return Game_Main(); }
