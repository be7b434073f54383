#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the demo need, only
# when one of them is missing. Needs root (or sudo) on a fresh machine.
# Recommendations are not installed: every package used is named here, with
# those that used to arrive only as a recommendation on a line of their own.
set -euo pipefail
PKGS="cmake g++ make pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools libarchive-dev libicu-dev
zlib1g-dev libgtest-dev libarchive-tools xvfb x11-utils clang
xauth libclang-rt-14-dev e2fsprogs fonts-dejavu-core fonts-wqy-microhei clang-format
qt6-base-dev qt6-tools-dev qt6-l10n-tools qt6-tools-dev-tools"
# xauth: Xvfb's authority files; libclang-rt-14-dev: clang's sanitizer and
# libFuzzer runtimes; e2fsprogs: the flush-failure test formats a small
# volume; fonts-dejavu-core: the dialog's Latin and Cyrillic texts;
# fonts-wqy-microhei: its Chinese, Japanese and Korean texts; clang-format:
# scripts/test checks the code's style; the qt6 packages: scripts/test builds
# and tests everything against Qt 6 too (lrelease and lconvert are in
# qt6-l10n-tools, the platform plug-ins come with Qt Gui).
missing=""
for p in $PKGS; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing="$missing $p"
done
[ -z "$missing" ] && exit 0
echo "Installing:$missing"
SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -q
# shellcheck disable=SC2086
$SUDO apt-get install -y -q --no-install-recommends $missing
