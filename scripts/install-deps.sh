#!/usr/bin/env bash
# Installs every Debian package the project needs to build, test and run.
# Idempotent: packages already present are left alone, so a second run is quick.
set -euo pipefail

packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-serialport-dev libqt6sql6-sqlite fonts-dejavu-core
  mdbtools-dev libglib2.0-dev
  xvfb xauth
  libbenchmark-dev
  sqlite3
  poppler-utils
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
