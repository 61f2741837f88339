#!/usr/bin/env bash
# Starts orvanne under Xvfb as a new user would (fresh home, the current folder full of icons),
# waits for the main window, checks the count it shows, and saves a picture of the screen.
set -euo pipefail
program=$1 testdata=$2 screenshots=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/home" "$work/icônes" "$work/run"
chmod 700 "$work/run"
cp "$testdata"/ico/valid/*.ico "$work/icônes/"
# Two more files whose names are not all lower case: both are icons to the program.
cp "$testdata/ico/valid/decodeico_github.ico" "$work/icônes/GitHub.ICO"
cp "$testdata/ico/valid/decodeico_google.ico" "$work/icônes/Google.Ico"
expected=$(find "$work/icônes" -maxdepth 1 -type f -iname '*.ico' | wc -l)

cat > "$work/session.sh" <<SESSION
set -eu
cd "$work/icônes"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share" \
XDG_RUNTIME_DIR="$work/run" ORVANNE_REPORT_FILE="$work/report.txt" "$program" &
pid=\$!
for _ in \$(seq 300); do
    [ -s "$work/report.txt" ] && break
    sleep 0.1
done
sleep 0.5
if command -v import >/dev/null; then
    import -window root "$screenshots/e2e-start.png" || true
fi
kill \$pid 2>/dev/null || true
wait \$pid 2>/dev/null || true
SESSION

timeout 60 xvfb-run -a -s "-screen 0 1024x768x24" bash "$work/session.sh"

if [ ! -s "$work/report.txt" ]; then
    echo "the main window never came up" >&2
    exit 1
fi
cat "$work/report.txt"
grep -qx "NbrIco: $expected icônes" "$work/report.txt" || {
    echo "expected: NbrIco: $expected icônes" >&2
    exit 1
}
# The first icon by name without regard to case, shown lower-cased.
first=$(ls "$work/icônes" | LC_ALL=C sort -f | head -1)
shown=$(printf '%s' "$work/icônes/$first" | tr '[:upper:]' '[:lower:]')
grep -qxF "Etiquette1: $shown" "$work/report.txt" || {
    echo "expected: Etiquette1: $shown" >&2
    exit 1
}
echo "e2e: the main window shows $expected icônes"
