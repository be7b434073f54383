#!/usr/bin/env bash
# Start-up benchmark of the launcher:
#   bash bench/startup/run.sh [RUNS]      (default 41 runs per variant)
#
# 1. No-upgrade launch: the launcher from exec to exit, with the per-user copy
#    current and the client already running (so nothing new is started),
#    against qapp_floor, which only creates a QApplication. Offscreen, then
#    under an Xvfb of our own. Target: the launcher within 1.4x of the floor.
# 2. Whole upgrade of the demo package, launch to exit (installed copy made to
#    look older, client not running), against `bsdtar -xf` of the same package.
#
# Works on a copy of the bundle (without the demo's debug log levels) and a
# sandbox home in a temporary folder; stops every process it started.
# BUILD_DIR picks the build folder (default: build).
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

# Run before each timed upgrade: stop the client that the last launch started
# and make the installed copy one that the bundle's build supersedes.
if [ "${1:-}" = --age-installed-copy ]; then
  wait_for_client
  stop_client
  sed -i 's/^build_version=.*/build_version=0/' "$HOME/.Driftwell/Driftwell.app/Contents/Resources/INFO"
  exit 0
fi

cd "$(dirname "$0")/../.."
top=$(pwd)
runs=${1:-41}

bash scripts/deps.sh
build=$top/${BUILD_DIR:-build}
cmake -S . -B "$build" -DDW_BENCH=ON >/dev/null
cmake --build "$build" --target bundle qapp_floor startup_timer -j"$(nproc 2>/dev/null || echo 2)" >/dev/null

work=$(mktemp -d "${TMPDIR:-/tmp}/dw-startup.XXXXXX")
# The sandbox home comes first: cleanup stops the client that it names.
export HOME=$work/home TMPDIR=$work/tmp
mkdir -p "$HOME" "$TMPDIR"
xvfb_pid=""
cleanup() {
  stop_client
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null && wait "$xvfb_pid" 2>/dev/null
  rm -rf "$work"
}
trap cleanup EXIT

cp -a "$build/Driftwell.app" "$work/"
rm -rf "$work/Driftwell.app/log"
launcher=$work/Driftwell.app/Contents/MacOS/launcher
package=$work/Driftwell.app/Contents/Resources/package/driftwell.tpk
floor=$build/bench/startup/qapp_floor
timer=$build/bench/startup/startup_timer

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
export DISPLAY=$display
"$timer" "$runs" --name launcher -- "$launcher" \; --name floor -- "$floor" \;

echo "== Upgrade of the demo package ($(stat -c %s "$package") bytes), offscreen, against bsdtar -xf"
export QT_QPA_PLATFORM=offscreen
unset DISPLAY
upgrade_runs=$(( (runs + 1) / 2 ))
"$timer" "$upgrade_runs" \
  --name upgrade --prepare "bash '$top/bench/startup/run.sh' --age-installed-copy" -- "$launcher" \; \
  --name bsdtar --prepare "rm -rf '$work/x' && mkdir '$work/x'" -- "$(command -v bsdtar)" -xf "$package" -C "$work/x" \;
# The last upgrade must have put the bundle's record in place.
wait_for_client
cmp -s "$work/Driftwell.app/Contents/Resources/INFO" "$HOME/.Driftwell/Driftwell.app/Contents/Resources/INFO" ||
  { echo "bench: the last launch did not upgrade the installed copy" >&2; exit 1; }
