#!/usr/bin/env bash
# Installs, from Debian's packages, whatever the build needs and the machine lacks.
set -euo pipefail

packages=(
  cmake ninja-build g++ pkg-config clang clang-format clang-tidy libclang-rt-14-dev
  libfmt-dev libzip-dev libcurl4-openssl-dev libsqlite3-dev libxlsxwriter-dev libpugixml-dev
  libgtest-dev libbenchmark-dev liblua5.4-dev
  qt6-base-dev qt6-charts-dev libqscintilla2-qt6-dev
  qt6-translations-l10n
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
