#!/usr/bin/env bash
# Installs every Debian package that building, running and testing Tarvelle-Forge needs.
# Safe to run again: packages already present are left as they are.
set -euo pipefail

packages=(
  build-essential cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
  qt6-image-formats-plugins qt6-translations-l10n libgl1-mesa-dev
  libpng-dev libjpeg62-turbo-dev zlib1g-dev
  googletest libgtest-dev libgmock-dev libbenchmark-dev
  fonts-liberation fonts-dejavu-core
  xvfb xauth x11-utils
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
echo "Installing: ${missing[*]}"
$sudo apt-get update
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
