#!/usr/bin/env bash
# The whole program's memory while "Page suivante" is clicked through a folder of 10,000 icons,
# under Xvfb, as a new user:
#   bash bench/browser_memory.sh [PROGRAM] [FOLDER]
# PROGRAM defaults to build/bin/orvanne; FOLDER to a temporary one of 10,000 copies of the shared
# sample icons. Prints the resident size after start-up, after the clicks, and the peak.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
program=$(realpath "${1:-$root/build/bin/orvanne}")
[ -x "$program" ] || { echo "build the program first: $program" >&2; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/home" "$work/run"
chmod 700 "$work/run"
folder=${2:-}
if [ -z "$folder" ]; then
    folder="$work/dix mille"
    mkdir -p "$folder"
    mapfile -t icons < <(ls "$root/../shared/testdata/ico/valid/"*.ico)
    for i in $(seq 0 9999); do
        cp "${icons[i % ${#icons[@]}]}" "$folder/$(printf 'icone%05d.ico' "$i")"
    done
fi

cat >"$work/session.sh" <<'SESSION'
set -eu
work=$1 folder=$2 program=$3
cd "$folder"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share" \
XDG_RUNTIME_DIR="$work/run" "$program" &
pid=$!
rss() { awk -v f="$1:" '$1 == f { printf "%.1f MB", $2 / 1024 }' "/proc/$pid/status"; }
sleep 3
# The tips of a new user's first start, then the main window.
xdotool key Escape
sleep 0.5
window=$(xdotool search --onlyvisible --name '^Orvanne®$' | head -1)
eval "$(xdotool getwindowgeometry --shell "$window")"
echo "after start-up          $(rss VmRSS)"
# "Page suivante" (DeplaceHaut) lies at 489..518, 198..282 in the window.
for _ in $(seq 240); do
    xdotool mousemove $((X + 503)) $((Y + 240)) click 1
    sleep 0.02
done
sleep 0.5
echo "after 240 page moves    $(rss VmRSS)"
echo "peak                    $(rss VmHWM)"
kill $pid 2>/dev/null || true
wait $pid 2>/dev/null || true
SESSION

timeout 300 xvfb-run -a -n $((100 + RANDOM % 800)) -s "-screen 0 1024x768x24" \
    bash "$work/session.sh" "$work" "$folder" "$program"
