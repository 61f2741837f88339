#!/usr/bin/env bash
# A folder of a thousand executables thumbnailed as the desktop does it: one orvanne-icons
# thumbnail per file. The .exe and .dll files of the test data are taken in turn until RUNS.
#   bash bench/thumbnail_folder.sh [RUNS (1000)] [SIZE (128)]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
runs=${1:-1000}
size=${2:-128}
program="$root/build/bin/orvanne-icons"
[[ -x $program ]] || { echo "build orvanne-icons first (build/bin/orvanne-icons)" >&2; exit 1; }
mapfile -t files < <(find "$root/../shared/testdata/pe" -maxdepth 1 -type f \
    \( -iname '*.exe' -o -iname '*.dll' \) | sort)
(( ${#files[@]} > 0 )) || { echo "no .exe or .dll in ../shared/testdata/pe" >&2; exit 1; }
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
made=0 refused=0
start=$(date +%s.%N)
for ((i = 0; i < runs; ++i)); do
    file=${files[i % ${#files[@]}]}
    if "$program" thumbnail --size "$size" "$file" "$out/$i.png" 2>/dev/null; then
        made=$((made + 1))
    else
        refused=$((refused + 1))
    fi
done
end=$(date +%s.%N)
echo "$runs runs over ${#files[@]} files, size $size: $made thumbnails, $refused files without an icon"
awk -v a="$start" -v b="$end" 'BEGIN { printf "total %.2f s\n", b - a }'
