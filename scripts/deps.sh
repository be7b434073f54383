#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the demo need, only
# when one of them is missing. Needs root (or sudo) on a fresh machine.
# fonts-wqy-microhei draws the Chinese, Japanese and Korean texts of the dialog.
set -euo pipefail
PKGS="cmake g++ make qtbase5-dev qttools5-dev qttools5-dev-tools libarchive-dev libicu-dev
zlib1g-dev pkg-config libgtest-dev xvfb xauth x11-utils imagemagick libarchive-tools clang
fonts-dejavu-core fonts-wqy-microhei"
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
$SUDO apt-get install -y -q $missing
