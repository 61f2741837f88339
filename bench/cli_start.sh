#!/usr/bin/env bash
# orvanne-icons as whole processes, each beside what it is compared to, in the same run:
#   - "orvanne-icons --help" beside /bin/true (what starting costs);
#   - extracting every icon of a small PE file beside "wrestool -x -t 14";
#   - the same on Wine's shell32.dll (Debian's wine64, installed here for this comparison only).
#   bash bench/cli_start.sh [RUNS]      (ORVANNE_ICONS=PATH measures another build)
# build/bin/process_time runs the commands in turn, RUNS times each, and prints their medians.
# Each extraction writes into a folder of its own, as a new extraction does.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
runs=${1:-300}
cli=${ORVANNE_ICONS:-"$root/build/bin/orvanne-icons"}
timer="$root/build/bin/process_time"
small="$root/../shared/testdata/pe/aclock-i386-wince.exe"
shell32=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/shell32.dll

bash "$root/bench/setup.sh"
if [ ! -f "$shell32" ]; then
    echo "Installation de wine64 (shell32.dll) pour les mesures comparées"
    sudo_cmd=()
    [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get update -q -o DPkg::Lock::Timeout=600
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q --no-install-recommends \
        -o DPkg::Lock::Timeout=600 wine64 >/dev/null || true
fi
for program in "$cli" "$timer"; do
    [ -x "$program" ] || { echo "build the program first: $program" >&2; exit 1; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/ours" "$work/theirs"
# wrestool does not create its output folder.
for ((i = 0; i < runs; i++)); do mkdir -p "$work/theirs/small$i" "$work/theirs/big$i"; done

echo "Démarrage, $runs processus chacun (médianes) :"
"$timer" "$runs" \
    "/bin/true" -- /bin/true \
    "orvanne-icons --help" -- "$cli" --help
echo "Toutes les icônes de $(basename "$small"), $runs processus chacun :"
"$timer" "$runs" \
    "wrestool -x -t 14" -- wrestool -x -t 14 -o "$work/theirs/small{}/" "$small" \
    "orvanne-icons extract" -- "$cli" extract "$small" "$work/ours/small{}"
if [ -f "$shell32" ]; then
    big_runs=$((runs / 10 > 3 ? runs / 10 : 3))
    echo "Toutes les icônes de shell32.dll (Wine), $big_runs processus chacun :"
    "$timer" "$big_runs" \
        "wrestool -x -t 14" -- wrestool -x -t 14 -o "$work/theirs/big{}/" "$shell32" \
        "orvanne-icons extract" -- "$cli" extract "$shell32" "$work/ours/big{}"
    echo "  fichiers écrits par tour : $(ls "$work/ours/big0" | wc -l) par orvanne-icons," \
        "$(ls "$work/theirs/big0" | wc -l) par wrestool"
else
    echo "shell32.dll absent ($shell32) : comparaison sautée"
fi
