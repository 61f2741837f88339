#!/usr/bin/env bash
# Sets up, builds and starts Orvanne. Arguments are passed to the program (e.g. /open icon.ico).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
bash "$root/scripts/build.sh"
if [ -x "$root/build/bin/orvanne" ]; then
    exec "$root/build/bin/orvanne" "$@"
fi
# Until the desktop program is built, show what the command-line companion offers.
exec "$root/build/bin/orvanne-icons" --help
