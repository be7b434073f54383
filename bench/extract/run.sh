#!/usr/bin/env bash
# Extraction benchmark: our Extractor against the bare two libarchive passes
# and bsdtar, on tmpfs and on the main disk, for tar, tar.gz, tar.zst and zip,
# each bound to one CPU and to two (as `taskset -c 0` and `taskset -c 0,1`:
# the first one or two CPUs this script may use).
#
#     bash bench/extract/run.sh [TMPFS_RUNS [DISK_RUNS]]     (default 9 and 5; 0 disk runs: tmpfs only)
#
# Configures and builds what it needs in build-bench, writes the synthetic
# package once into build-bench/bench/extract/data (about 320 MB), and works
# in build-bench/bench/extract/work (main disk) and /dev/shm (tmpfs).
# About twelve minutes on two cores, most of it on the disk.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build="$root/build-bench"
here="$build/bench/extract"
tmpfs_runs="${1:-9}"
disk_runs="${2:-5}"

cmake -S "$root" -B "$build" -DDW_TESTS=OFF -DDW_BENCH=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --target extract_gen extract_ours extract_plain extract_bench -j2 >/dev/null
command -v bsdtar >/dev/null || { echo "bsdtar is missing (Debian package libarchive-tools)" >&2; exit 1; }

mkdir -p "$here/data" "$here/work"
"$here/extract_gen" "$here/data"
"$here/extract_bench" "$here/data" "$here/work" /dev/shm "$tmpfs_runs" "$disk_runs"
