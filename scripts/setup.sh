#!/usr/bin/env bash
# Installs what building and testing Orvanne needs, from Debian's packages.
# Does nothing (and asks for nothing) when every package is already there.
set -euo pipefail

packages=(
    cmake g++ ninja-build pkgconf
    qt6-base-dev qt6-translations-l10n
    libgtest-dev libgmock-dev libbenchmark-dev
    clang libclang-rt-14-dev
    xvfb xauth xdotool imagemagick dbus-daemon
    libcanberra-dev fonts-dejavu-core
    help2man librsvg2-bin appstream desktop-file-utils
    libspng-dev icoutils
)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -gt 0 ]; then
    echo "Installation des paquets manquants : ${missing[*]}"
    sudo_cmd=()
    [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get update -q -o DPkg::Lock::Timeout=600
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q --no-install-recommends \
        -o DPkg::Lock::Timeout=600 "${missing[@]}"
fi
