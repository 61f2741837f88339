#!/usr/bin/env bash
# Sets up, builds and runs every test: unit and window tests, the end-to-end test under Xvfb,
# and a short run of each fuzz target under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
bash "$root/scripts/build.sh"
if [ -f "$root/scripts/fuzz.sh" ]; then
    bash "$root/scripts/fuzz.sh" smoke
fi
cd "$root/build"
ctest --output-on-failure -j "$(nproc)" --timeout 300
