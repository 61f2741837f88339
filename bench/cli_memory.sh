#!/usr/bin/env bash
# Peak memory and time of orvanne-icons on large inputs (default 250 MB), from /usr/bin/time.
#   bash bench/cli_memory.sh [SIZE_MB]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
size=${1:-250}
cmake --build "$root/build" --target make_big_inputs orvanne-icons >/dev/null
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$root/build/bin/make_big_inputs" "$work" "$size"
cli="$root/build/bin/orvanne-icons"
measure() {
    local label=$1
    shift
    /usr/bin/time -f "%M %e" -o "$work/time" "$cli" "$@" >/dev/null 2>"$work/err" || true
    read -r kib seconds < <(tail -1 "$work/time")
    printf '%-34s peak %5d MB  %6.2f s  %s\n' "$label" $((kib / 1024)) "$seconds" \
        "$(head -c 100 "$work/err" | tr '\n' ' ')"
}
echo "inputs: big.ico $(du -m "$work/big.ico" | cut -f1) MB, big.dll $(du -m "$work/big.dll" | cut -f1) MB, shared.dll $(du -k "$work/shared.dll" | cut -f1) KB"
measure "to-ico big.ico" to-ico "$work/big.ico" "$work/out1.ico"
measure "list big.ico" list "$work/big.ico"
measure "extract big.ico" extract "$work/big.ico" "$work/x1"
measure "to-ico big.dll" to-ico "$work/big.dll" "$work/out2.ico"
measure "list big.dll" list "$work/big.dll"
measure "extract big.dll" extract "$work/big.dll" "$work/x2"
rm -rf "$work/x1" "$work/x2"
measure "list shared.dll (65,535 groups)" list "$work/shared.dll"
measure "extract shared.dll" extract "$work/shared.dll" "$work/x3"
measure "list sections.dll (65,535 sections)" list "$work/sections.dll"
