#!/usr/bin/env bash
# Extracting the icon groups of PE files: Orvanne against wrestool, with the outputs compared.
#   bash bench/pe_extract.sh [--rounds N] [--all | FILE...]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
bash "$root/bench/setup.sh"
bash "$root/scripts/build.sh" >/dev/null
exec "$root/build/bin/bench_pe_extract" "$@"
