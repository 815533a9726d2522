#!/usr/bin/env bash
# Sets everything up and runs every test: the unit and scenario tests, the same tests built
# with AddressSanitizer and UndefinedBehaviorSanitizer, and a short run of every fuzz target.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
install_packages
jobs="$(nproc)"

echo "== build and test"
build_game
(cd "$ROOT/build" && ctest --output-on-failure -j "$jobs")

echo "== sanitizers (address, undefined behaviour)"
cmake -S "$ROOT" -B "$ROOT/build-san" -DCMAKE_BUILD_TYPE=Debug -DVALDRUNE_SANITIZE=ON \
  -DVALDRUNE_REAL=OFF -DVALDRUNE_BENCH=OFF -DVALDRUNE_GENERATE_DATA=OFF \
  -DVALDRUNE_DATA_DIR="$ROOT/build/data"
cmake --build "$ROOT/build-san" -j "$jobs"
(cd "$ROOT/build-san" && ctest --output-on-failure -j "$jobs")

echo "== fuzz targets"
CC=clang CXX=clang++ cmake -S "$ROOT" -B "$ROOT/build-fuzz" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DVALDRUNE_FUZZ=ON -DVALDRUNE_REAL=OFF -DVALDRUNE_TESTS=OFF -DVALDRUNE_BENCH=OFF \
  -DVALDRUNE_GENERATE_DATA=OFF
cmake --build "$ROOT/build-fuzz" -j "$jobs"
(cd "$ROOT/build-fuzz" && ctest --output-on-failure -L fuzz -j "$jobs")
