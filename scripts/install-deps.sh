#!/usr/bin/env bash
# Installs the Debian packages the program and its tests need, only those that are missing.
# Further packages may be named as arguments (the benchmarks' comparison tools).
set -euo pipefail

packages=(
  build-essential clang cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-base-dev-tools libqt6sql6 qt6-translations-l10n
  libsqlite3-dev libicu-dev libcups2-dev libxlsxwriter-dev libzip-dev
  xvfb xauth xdg-utils fonts-dejavu-core
  cups cups-client cups-bsd poppler-utils python3 sqlite3
  "$@"
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
echo "Installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
