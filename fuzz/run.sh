#!/usr/bin/env bash
# Builds the libFuzzer targets (clang, ASan + UBSan) and runs each one for the
# given number of seconds, one after the other: first over its regression
# inputs, then fuzzing from its seeds. New inputs are kept in the build folder
# for the next run. CI runs it with 20; the long run is 600.
#   bash fuzz/run.sh [seconds] [target...]     (default: 600, all three)
# DW_FUZZ_BUILD names the build folder (default build-fuzz).
set -euo pipefail
cd "$(dirname "$0")/.."
SECS=${1:-600}
shift || true
TARGETS=${*:-fuzz_ustring fuzz_config fuzz_extract}
BUILD=${DW_FUZZ_BUILD:-build-fuzz}

CC=clang CXX=clang++ cmake -S . -B "$BUILD" -DDW_FUZZ=ON -DDW_SANITIZE=ON -DDW_TESTS=OFF -DDW_BENCH=OFF \
  -DDW_WERROR=ON >/dev/null
# shellcheck disable=SC2086
cmake --build "$BUILD" --target $TARGETS -j"$(nproc 2>/dev/null || echo 2)" >/dev/null
# Extraction writes a tree per input: a memory file system is three times faster.
[ -w /dev/shm ] && export TMPDIR=/dev/shm
# libarchive trusts sizes read from the input and may ask for up to 4 GiB at
# once (see README.md); anything beyond is still reported.
FLAGS="-timeout=25 -rss_limit_mb=2560 -malloc_limit_mb=4200"

for t in $TARGETS; do
  name=${t#fuzz_}
  seeds=fuzz/seeds/$name
  [ "$name" = extract ] && seeds=$BUILD/fuzz/seeds/extract
  mkdir -p "$BUILD/corpus/$name" "$BUILD/artifacts"
  log=$BUILD/$t.log
  # shellcheck disable=SC2086
  if [ -d "fuzz/regressions/$name" ] && ! "$BUILD/fuzz/$t" $FLAGS fuzz/regressions/$name/* >"$log" 2>&1; then
    tail -40 "$log"; echo "$t: a regression input fails again" >&2; exit 1
  fi
  # shellcheck disable=SC2086
  if ! "$BUILD/fuzz/$t" $FLAGS -max_total_time="$SECS" -print_final_stats=1 \
      -artifact_prefix="$BUILD/artifacts/$t-" "$BUILD/corpus/$name" "$seeds" >"$log" 2>&1; then
    tail -60 "$log"; echo "$t: failed, input kept in $BUILD/artifacts" >&2; exit 1
  fi
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  echo "$t: $runs runs in ${SECS} s, no failure"
done
