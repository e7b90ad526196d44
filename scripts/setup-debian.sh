#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need. As root it
# installs what is missing; otherwise it names the missing packages.
set -euo pipefail

packages=(cmake ninja-build g++ clang clang-format pkg-config libgtest-dev libbenchmark-dev as31 srecord sdcc-ucsim d52
          qt6-base-dev qt6-svg-dev qt6-translations-l10n libgl-dev)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -eq 0 ]; then
    echo "Installiere fehlende Pakete: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
else
    echo "Es fehlen Debian-Pakete: ${missing[*]}" >&2
    echo "Bitte als root installieren: apt-get install ${missing[*]}" >&2
    exit 1
fi
