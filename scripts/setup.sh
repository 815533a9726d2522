#!/usr/bin/env bash
# Installs what the build needs (Debian 12 packages), then configures and builds the game,
# its tools and the default data set into build/. Sourced by play.sh and test.sh.
set -euo pipefail
ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

PACKAGES=(
  build-essential cmake pkg-config g++ clang libclang-rt-14-dev   # compilers, fuzzing runtime
  libgtest-dev libgmock-dev libbenchmark-dev                       # tests and benchmarks
  freeglut3-dev libgl1-mesa-dev libglu1-mesa-dev libx11-dev        # the game's window and GL
  libosmesa6-dev libpng-dev                                        # headless backend
  libsdl2-dev libsdl2-mixer-dev                                    # joysticks, sound, music
  libfreetype-dev fonts-dejavu-core                                # text pictures
  espeak-ng sox fluidsynth fluid-soundfont-gm vorbis-tools         # voices and music
  xvfb xauth xdotool python3                                       # real-window tests (python3 keeps their pictures)
)

install_packages() {
  local missing=()
  for p in "${PACKAGES[@]}"; do
    dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# Every script configures build/ the same way, so that running one after another never
# reconfigures and rebuilds it. Arguments name the targets to build (default: all).
build_game() {
  cmake -S "$ROOT" -B "$ROOT/build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVALDRUNE_BENCH=ON \
    -DVALDRUNE_GENERATE_DATA=ON -DVALDRUNE_REAL=ON -DVALDRUNE_TESTS=ON
  local targets=()
  for t in "$@"; do targets+=(--target "$t"); done
  cmake --build "$ROOT/build" -j "$(nproc)" "${targets[@]}"
}
