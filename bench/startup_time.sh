#!/usr/bin/env bash
# From launch to the main window's first paint, under Xvfb, several runs in a row on one X
# server, as a new user (no settings) in a folder of icons:
#   bash bench/startup_time.sh [RUNS] [FOLDER]
# Prints each run's milliseconds from launch to the painted window and the processor time the
# program used until then, then the median.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
program="$root/build/bin/orvanne"
runs=${1:-10}
folder=$(cd "${2:-$root/../shared/testdata/ico/valid}" && pwd)
[ -x "$program" ] || { echo "build the program first: $program" >&2; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/home" "$work/run"
chmod 700 "$work/run"

cat >"$work/session.sh" <<'SESSION'
set -eu
work=$1 folder=$2 program=$3 runs=$4
cd "$folder"
for run in $(seq "$runs"); do
    rm -f "$work/paint"
    start=$(date +%s%N)
    HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share" \
    XDG_RUNTIME_DIR="$work/run" ORVANNE_FIRST_PAINT_FILE="$work/paint" "$program" &
    pid=$!
    for _ in $(seq 500); do
        [ -s "$work/paint" ] && break
        sleep 0.01
    done
    if [ -s "$work/paint" ]; then
        read -r painted cpu <"$work/paint"
        echo "$(( (painted - start) / 1000 )) $cpu"
    else
        echo "no paint" >&2
    fi
    kill $pid 2>/dev/null || true
    wait $pid 2>/dev/null || true
done
SESSION

timeout 300 xvfb-run -a -s "-screen 0 1024x768x24" \
    bash "$work/session.sh" "$work" "$folder" "$program" "$runs" >"$work/times"
echo "run  launch-to-paint(ms)  cpu(ms)"
awk '{ printf "%3d  %19.1f  %7.1f\n", NR, $1 / 1000, $2 / 1000 }' "$work/times"
sort -n "$work/times" | awk '{ t[NR] = $1 } END { printf "median %.1f ms over %d runs\n", t[int((NR + 1) / 2)] / 1000, NR }'
