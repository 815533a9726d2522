#!/usr/bin/env bash
# A fuzzing campaign: builds the fuzz targets (clang, with AddressSanitizer and
# UndefinedBehaviorSanitizer) and runs each for SECONDS (default 60), or only the targets
# named after it. Each prints its inputs per second of wall-clock time and of processor time
# (the second is the fair figure on a busy machine); new corpus entries go to
# build-fuzz/corpus/TARGET, crashing inputs to build-fuzz/crash-*.
#   bash scripts/fuzz.sh [SECONDS] [TARGET...]
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
install_packages
seconds="${1:-60}"
shift || true
CC=clang CXX=clang++ cmake -S "$ROOT" -B "$ROOT/build-fuzz" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DVALDRUNE_FUZZ=ON -DVALDRUNE_REAL=OFF -DVALDRUNE_TESTS=OFF -DVALDRUNE_BENCH=OFF \
  -DVALDRUNE_GENERATE_DATA=OFF >/dev/null
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
  for src in "$ROOT"/fuzz/*_fuzz.cpp; do targets+=("$(basename "$src" .cpp)"); done
fi
cmake --build "$ROOT/build-fuzz" -j "$(nproc)" $(printf -- '--target %s ' "${targets[@]}")
for t in "${targets[@]}"; do
  corpus="$ROOT/build-fuzz/corpus/$t"
  mkdir -p "$corpus"
  log="$(mktemp)"
  status=0
  TIMEFORMAT='%U %S'
  { time LSAN_OPTIONS="suppressions=$ROOT/tests/lsan.supp" "$ROOT/build-fuzz/fuzz/$t" \
      -max_total_time="$seconds" -max_len=65536 -rss_limit_mb=2048 -print_final_stats=1 \
      -artifact_prefix="$ROOT/build-fuzz/" "$corpus" "$ROOT/fuzz/corpus/$t" 2>"$log"; } \
    2>"$log.time" || status=$?
  cpu="$(tail -n 1 "$log.time")"
  rm -f "$log.time"
  runs="$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")"
  rate="$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log")"
  cpu_rate="$(awk -v r="${runs:-0}" -v t="$cpu" 'BEGIN { split(t, a, " "); s = a[1] + a[2];
    if (s > 0) printf "%d", r / s; else print "?" }')"
  printf '%-16s %10s inputs in %ss: %8s inputs/s, %8s inputs per processor second%s\n' "$t" \
    "${runs:-?}" "$seconds" "${rate:-?}" "$cpu_rate" \
    "$([ $status -ne 0 ] && echo "  FAILED (see $log)")"
  [ $status -eq 0 ] && rm -f "$log"
done
