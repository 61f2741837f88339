#!/usr/bin/env bash
# Installs what the benchmarks compare the program with (not what the program needs):
# wrestool, from Debian's icoutils. Does nothing when it is already there.
set -euo pipefail
if ! command -v wrestool >/dev/null 2>&1; then
    echo "Installation de icoutils (wrestool) pour les mesures comparées"
    sudo_cmd=()
    [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get update -q -o DPkg::Lock::Timeout=600
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q --no-install-recommends \
        -o DPkg::Lock::Timeout=600 icoutils
fi
