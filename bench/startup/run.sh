#!/usr/bin/env bash
# Start-up benchmark of the launcher:
#   bash bench/startup/run.sh [RUNS [UPGRADE_RUNS [PHASE_RUNS]]]   (default 41, 15 and 7)
#
# 1. No-upgrade launch: the launcher from exec to exit, with the per-user copy
#    current and the client already running (so nothing new is started),
#    against qapp_floor, which only creates a QApplication. Offscreen, then
#    under an Xvfb of our own. Target: the launcher within 1.4x of the floor.
#    RUNS 0 skips this part.
# 2. Whole upgrade, launch to exit, with the client running (it quits at once
#    on SIGTERM), on tmpfs (/dev/shm) and on the main disk: the 140 MiB package
#    of bench/extract's generator as tar.zst, with the demo client in place of
#    the generator's drift-ui, against `bsdtar -xf` of the same package into
#    an empty folder, interleaved. Then PHASE_RUNS more upgrades with the debug
#    levels on, watched by upgrade_phases: where the time goes. Both are bound
#    to one CPU and to two, taking turns (as `taskset -c 0` and `taskset -c
#    0,1`: the first one or two CPUs this script may use).
#
# Works on copies of the bundle (without the demo's debug log levels) and
# sandbox home folders; stops every process it started. BUILD_DIR picks the
# build folder (default: build-bench, shared with bench/extract).
set -euo pipefail

# Whether process $1 runs (a zombie no longer counts).
alive() {
  local state
  state=$(sed 's/.*) \(.\).*/\1/' "/proc/$1/stat" 2>/dev/null || true)
  [ -n "$state" ] && [ "$state" != Z ]
}

# The pid of the client that the pid file names, if that process runs.
client_pid() {
  local pid
  pid=$(sed -n 's/^pid=\([0-9][0-9]*\)$/\1/p' "$HOME/.Driftwell/ui.pid" 2>/dev/null | head -n 1)
  [ -n "$pid" ] && [ "$pid" -gt 0 ] && alive "$pid" && echo "$pid"
  return 0
}

wait_for_client() {
  for _ in $(seq 100); do
    [ -n "$(client_pid)" ] && return 0
    sleep 0.1
  done
  echo "bench: the launcher did not start the client; log: $HOME/.Driftwell/log/launcher.log" >&2
  return 1
}

stop_client() {
  local pid
  pid=$(client_pid)
  [ -n "$pid" ] && kill "$pid" 2>/dev/null || return 0
  for _ in $(seq 250); do
    alive "$pid" || return 0
    sleep 0.02
  done
}

# Run before each timed upgrade: with the client that the last launch started
# running (and settled), make the installed copy one that the bundle's build
# supersedes; flush the last run's writes so that they do not land in this one.
if [ "${1:-}" = --age-installed-copy ]; then
  wait_for_client
  sleep 0.2
  sed -i 's/^build_version=.*/build_version=0/' "$HOME/.Driftwell/Driftwell.app/Contents/Resources/INFO"
  sync
  exit 0
fi

cd "$(dirname "$0")/../.."
top=$(pwd)
self=$top/bench/startup/run.sh
runs=${1:-41}
upgrade_runs=${2:-15}
phase_runs=${3:-7}

bash scripts/deps.sh
build=$top/${BUILD_DIR:-build-bench}
cmake -S . -B "$build" -DDW_TESTS=OFF -DDW_BENCH=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --target bundle qapp_floor startup_timer upgrade_phases extract_gen make_package \
  -j"$(nproc 2>/dev/null || echo 2)" >/dev/null
command -v bsdtar >/dev/null || { echo "bsdtar is missing (Debian package libarchive-tools)" >&2; exit 1; }
bsdtar=$(command -v bsdtar)
# The first one and the first two CPUs this script may use.
mapfile -t cpus < <(sed -n 's/^Cpus_allowed_list:[[:space:]]*//p' /proc/self/status | tr , '\n' |
  while IFS=- read -r from to; do seq "$from" "${to:-$from}"; done | head -n 2)
cpu_settings=("${cpus[0]}")
[ "${#cpus[@]}" -gt 1 ] && cpu_settings+=("${cpus[0]},${cpus[1]}")
floor=$build/bench/startup/qapp_floor
timer=$build/bench/startup/startup_timer
phases=$build/bench/startup/upgrade_phases

# One sandbox per file system: bundle copy, home and temporary folder.
sandboxes=()
xvfb_pid=""
cleanup() {
  local box
  for box in "${sandboxes[@]}"; do
    HOME=$box/home stop_client
    rm -rf "$box"
  done
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null && wait "$xvfb_pid" 2>/dev/null
  return 0
}
trap cleanup EXIT

# sandbox BASE: a fresh sandbox below BASE; sets work, HOME, TMPDIR, launcher, package.
sandbox() {
  work=$(mktemp -d "$1/dw-startup.XXXXXX")
  sandboxes+=("$work")
  export HOME=$work/home TMPDIR=$work/tmp
  mkdir -p "$HOME" "$TMPDIR"
  cp -a "$build/Driftwell.app" "$work/"
  rm -rf "$work/Driftwell.app/log"
  launcher=$work/Driftwell.app/Contents/MacOS/launcher
  package=$work/Driftwell.app/Contents/Resources/package/driftwell.tpk
}

if [ "$runs" -gt 0 ]; then
  sandbox "${TMPDIR:-/tmp}"
  echo "== No-upgrade launch, offscreen"
  export QT_QPA_PLATFORM=offscreen
  "$launcher" >/dev/null 2>&1 # installs and starts the client
  wait_for_client
  "$timer" "$runs" --name launcher -- "$launcher" \; --name floor -- "$floor" \;

  echo "== No-upgrade launch, Xvfb"
  unset QT_QPA_PLATFORM
  display=""
  for n in $(seq 90 140); do
    if [ ! -e "/tmp/.X$n-lock" ] && [ ! -e "/tmp/.X11-unix/X$n" ]; then display=:$n; break; fi
  done
  [ -n "$display" ] || { echo "bench: no free X display number" >&2; exit 1; }
  Xvfb "$display" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 &
  xvfb_pid=$!
  for _ in $(seq 100); do xdpyinfo -display "$display" >/dev/null 2>&1 && break; sleep 0.1; done
  DISPLAY=$display "$timer" "$runs" --name launcher -- "$launcher" \; --name floor -- "$floor" \;
  kill "$xvfb_pid" 2>/dev/null
  wait "$xvfb_pid" 2>/dev/null || true
  xvfb_pid=""
fi

# The upgrade package: the generator's tree, its drift-ui kept as drift-core
# (same size), with the demo client, its icon and its version record on top.
data=$build/bench/extract/data
upgrade_package=$build/bench/startup/upgrade.tpk
mkdir -p "$data"
"$build/bench/extract/extract_gen" "$data"
demo_package=$build/Driftwell.app/Contents/Resources/package/driftwell.tpk
if [ ! -s "$upgrade_package" ] || [ "$upgrade_package" -ot "$data/package.stats" ] ||
   [ "$upgrade_package" -ot "$demo_package" ]; then
  stage=$build/bench/startup/upgrade-root
  rm -rf "$stage" && mkdir -p "$stage"
  bsdtar -xf "$data/package.tar" -C "$stage"
  mv "$stage/Contents/MacOS/drift-ui" "$stage/Contents/MacOS/drift-core"
  bsdtar -xf "$demo_package" -C "$stage"
  "$build/bundle/make_package" tar.zst "$upgrade_package" "$stage"
  rm -rf "$stage"
fi

export QT_QPA_PLATFORM=offscreen
unset DISPLAY
for place in tmpfs disk; do
  if [ "$place" = tmpfs ]; then sandbox /dev/shm; else sandbox "$build/bench/startup"; fi
  cp "$upgrade_package" "$package"
  echo "== Whole upgrade with the client running, $place ($(stat -f -c %T "$work")), package $(stat -c %s "$package") bytes: launcher against bsdtar -xf, NAME@CPUS bound to those CPUs"
  "$launcher" >/dev/null 2>&1 # installs and starts the client
  variants=()
  phase_cpus=()
  for set in "${cpu_settings[@]}"; do
    variants+=(--name "upgrade@$set" --vs "bsdtar@$set" --cpus "$set" --prepare "bash '$self' --age-installed-copy"
      -- "$launcher" \;
      --name "bsdtar@$set" --cpus "$set" --prepare "rm -rf '$work/x' && mkdir '$work/x' && sync"
      -- "$bsdtar" -xf "$package" -C "$work/x" \;)
    phase_cpus+=(--cpus "$set")
  done
  "$timer" "$upgrade_runs" "${variants[@]}"
  # The last upgrade must have put the whole package in place and started the client.
  wait_for_client
  [ "$(cd "$work/x" && find . | sort)" = "$(cd "$HOME/.Driftwell/Driftwell.app" && find . | sort)" ] ||
    { echo "bench: the last upgrade did not install the whole package" >&2; exit 1; }
  rm -rf "$work/x"

  mkdir -p "$work/Driftwell.app/log"
  printf '%s = 7\n' launcher_debug service_debug extractor_debug >"$work/Driftwell.app/log/launcher.debug"
  "$phases" "$phase_runs" "$HOME" \
    --prepare "bash '$self' --age-installed-copy && rm -f '$HOME/.Driftwell/log/launcher.log'" \
    "${phase_cpus[@]}" -- "$launcher"
  wait_for_client
  stop_client
  rm -rf "$work"
done
