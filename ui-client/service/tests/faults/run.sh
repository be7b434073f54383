#!/usr/bin/env bash
# Fault injection: kills the launcher with SIGKILL at chosen points of
# upgrades, starts it again and checks what that launch leaves (fault_driver.cpp).
#
#     bash ui-client/service/tests/faults/run.sh [--trials N] [--seed S] [--files F] [--only T] [-v]
#
# Defaults: 60 trials, seed 1, 2,400 files (about 2,650 package entries).
# Configures and builds what it needs in build-faults (another folder with
# DW_BUILD_DIR=...), and works in a temporary folder ($TMPDIR, else /tmp).
# The default run took 15 minutes on two cores shared with other builds.
set -euo pipefail
root=$(cd "$(dirname "$0")/../../../.." && pwd)
build="${DW_BUILD_DIR:-$root/build-faults}"
cmake -S "$root" -B "$build" -DDW_WERROR=ON -DDW_BENCH=OFF -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --target fault_driver -j2 >/dev/null
exec "$build/ui-client/service/tests/faults/fault_driver" "$@"
