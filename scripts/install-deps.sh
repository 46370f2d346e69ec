#!/usr/bin/env bash
# Installs the Debian packages that building and testing need, only those that
# are missing, so that running it again costs nothing.
set -euo pipefail

PACKAGES=(
    build-essential cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    libgtest-dev libgmock-dev libbenchmark-dev
    libsodium-dev
    libcanberra-dev
    fonts-dejavu-core
    clang libclang-rt-14-dev
    dpkg-dev file scdoc desktop-file-utils
)

missing=()
for package in "${PACKAGES[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -q
$sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
