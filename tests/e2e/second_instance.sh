#!/usr/bin/env bash
# Starts orvanne twice under Xvfb for the same user: the second start asks whether to run a new
# instance, and Enter (the default answer, "Non") ends it while the first one keeps running.
set -euo pipefail
program=$1 screenshots=$2
source "$(dirname "$0")/common.sh"

new_user
mkdir -p "$work/empty"

cat > "$work/session.sh" <<SESSION
set -eu
cd "$work/empty"
export HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_RUNTIME_DIR="$work/run"
ORVANNE_REPORT_FILE="$work/first.txt" "$program" &
first=\$!
for _ in \$(seq 300); do [ -s "$work/first.txt" ] && break; sleep 0.1; done
"$program" &
second=\$!
window=\$(timeout 20 xdotool search --sync --pid \$second | head -1)
sleep 0.5
if command -v import >/dev/null; then
    import -window root "$screenshots/e2e-second-instance.png" || true
fi
xdotool windowfocus --sync \$window key Return
status=0
timeout 10 tail --pid=\$second -f /dev/null || status=\$?
if kill -0 \$second 2>/dev/null; then
    echo "the second instance is still running" >&2
    kill \$second
    status=1
fi
kill -0 \$first 2>/dev/null || { echo "the first instance has gone" >&2; status=1; }
kill \$first 2>/dev/null || true
exit \$status
SESSION

xvfb_run 60 bash "$work/session.sh"
grep -qx "NbrIco: Dossier vide..." "$work/first.txt"
echo "e2e: a second start asked first and ended on the default answer"
