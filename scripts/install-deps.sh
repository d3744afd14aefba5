#!/usr/bin/env bash
# Installs every Debian package needed to build, run and test the project.
# Non-interactive and idempotent: packages already present are left alone.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  libgmp-dev libicu-dev nlohmann-json3-dev libexpat1-dev libcurl4-openssl-dev uuid-dev libsimdjson-dev
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-charts-dev libqt6opengl6-dev
  libgl-dev libqt6svg6 adwaita-icon-theme fonts-dejavu-core
  libgtest-dev libgmock-dev libbenchmark-dev
  clang
  python3 tzdata
  dbus
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then as_root=(sudo -E); fi
export DEBIAN_FRONTEND=noninteractive
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
