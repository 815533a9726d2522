#!/usr/bin/env bash
# Sets everything up and starts the game on the generated data set (full screen; Escape
# quits). Arguments go to the game (valdrune --help lists them).
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
install_packages
build_game valdrune valdrune_data
exec "$ROOT/build/valdrune" --data "$ROOT/build/data" "$@"
