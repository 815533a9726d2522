#!/usr/bin/env bash
# Sets everything up and starts the game (full screen; Escape quits).
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
install_packages
build_game -DVALDRUNE_BENCH=OFF
cd "$ROOT/build/data" 2>/dev/null || { mkdir -p "$ROOT/build/data" && cd "$ROOT/build/data"; }
exec "$ROOT/build/valdrune" "$@"
