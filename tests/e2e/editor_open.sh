#!/usr/bin/env bash
# Starts orvanne under Xvfb with "/open" and a path typed in the wrong case, as a desktop or a
# script would, and checks that the editor came up on that icon.
set -euo pipefail
program=$1 testdata=$2 screenshots=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/home" "$work/mes icônes" "$work/run"
chmod 700 "$work/run"
cp "$testdata/ico/valid/qt_WORLD.ico" "$work/mes icônes/monde.ico"
typed=$(printf '%s' "$work/MES ICÔNES/MONDE.ICO")

cat > "$work/session.sh" <<SESSION
set -eu
cd "$work/mes icônes"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share" \
XDG_RUNTIME_DIR="$work/run" ORVANNE_REPORT_FILE="$work/report.txt" "$program" /OPEN "$typed" &
pid=\$!
for _ in \$(seq 300); do
    [ -s "$work/report.txt" ] && break
    sleep 0.1
done
sleep 0.5
if command -v import >/dev/null; then
    import -window root "$screenshots/e2e-editor-open.png" || true
fi
kill \$pid 2>/dev/null || true
wait \$pid 2>/dev/null || true
SESSION

timeout 60 xvfb-run -a -s "-screen 0 1024x768x24" bash "$work/session.sh"

cat "$work/report.txt"
grep -qx "FrmIcoEd: Orvanne® - Monde.Ico" "$work/report.txt" || {
    echo "expected: FrmIcoEd: Orvanne® - Monde.Ico" >&2
    exit 1
}
echo "e2e: the editor opened monde.ico from /OPEN in capitals"
