#!/usr/bin/env bash
# The real program as on a Wayland desktop, under Xvfb: the desktop picture must come from the
# screenshot portal (a fake one on a private session bus), not from the X server. K in the
# editor takes a frame of the portal's picture into the icon. Without a portal, the user is
# told that the screen cannot be read.
set -euo pipefail
program=$1 fake_portal=$2 testdata=$3 screenshots=$4
source "$(dirname "$0")/common.sh"

new_user
mkdir -p "$work/icônes"
cp "$testdata/ico/valid/qt_WORLD.ico" "$work/icônes/monde.ico"
# What the portal hands over: green on the left, red on the right, unlike the X screen.
convert -size 1024x768 xc:'#22aa44' -fill '#dd2211' -draw 'rectangle 100,0 1023,767' \
    "$work/portail.png"

cat >"$work/session.sh" <<'SESSION'
set -eu
work=$1 program=$2 fake_portal=$3 shots=$4 portal=$5
step() { echo "portal e2e: $*" >&2; }
window() {
    for _ in $(seq 100); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -1) || true
        [ -n "$id" ] && { echo "$id"; return 0; }
        sleep 0.1
    done
    step "no window named $1"
    return 1
}
# The colour of the screen at x y, as RRGGBB.
colour_at() {
    import -window root "$work/ecran.png"
    convert "$work/ecran.png" -format "%[hex:p{$1,$2}]" info: | cut -c1-6
}

dbus-daemon --session --nofork --print-address=1 >"$work/bus.txt" &
bus=$!
pids="$bus"
trap 'kill $pids 2>/dev/null || true' EXIT
for _ in $(seq 50); do [ -s "$work/bus.txt" ] && break; sleep 0.1; done
export DBUS_SESSION_BUS_ADDRESS=$(head -1 "$work/bus.txt")
if [ "$portal" = yes ]; then
    "$fake_portal" answer "$work/portail.png" >"$work/portal.txt" &
    pids="$pids $!"
    for _ in $(seq 50); do [ -s "$work/portal.txt" ] && break; sleep 0.1; done
fi

cd "$work/icônes"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share" \
XDG_RUNTIME_DIR="$work/run" XDG_SESSION_TYPE=wayland QT_QPA_PLATFORM=xcb ORVANNE_REPORT_FILE="$work/report.txt" \
    "$program" /open "$work/icônes/monde.ico" &
pids="$pids $!"
for _ in $(seq 300); do [ -s "$work/report.txt" ] && break; sleep 0.1; done

tips=$(window "Conseil du jour")
xdotool windowfocus --sync "$tips"
xdotool key Escape
editor=$(window "Monde")
xdotool windowfocus --sync "$editor"
xdotool key k
sleep 1.5
if [ "$portal" = no ]; then
    error=$(window "Orvanne® - Erreur")
    import -window root "$shots/e2e-capture-no-portal.png" || true
    step "told: $(xdotool getwindowname "$error")"
    echo told >"$work/result.txt"
    exit 0
fi
xdotool mousemove 100 75
sleep 0.3
import -window root "$shots/e2e-capture-portal-frame.png" || true
xdotool click 1
sleep 1
eval "$(xdotool getwindowgeometry --shell "$editor")"
# The canvas shows the icon ten times enlarged from (8, 32) of the editor.
left=$(colour_at $((X + 8 + 50)) $((Y + 32 + 100)))
right=$(colour_at $((X + 8 + 270)) $((Y + 32 + 100)))
cp "$work/ecran.png" "$shots/e2e-capture-portal-icon.png"
echo "$left $right" >"$work/result.txt"
SESSION

for portal in yes no; do
    rm -f "$work/result.txt"
    xvfb_run 90 \
        bash "$work/session.sh" "$work" "$program" "$fake_portal" "$screenshots" "$portal"
    [ -s "$work/result.txt" ] || { echo "the session with portal=$portal ended early" >&2; exit 1; }
    result=$(cat "$work/result.txt")
    case "$portal/$result" in
    yes/"22AA44 DD2211") echo "e2e: the icon came from the portal's picture" ;;
    no/told) echo "e2e: without a portal the user was told the screen cannot be read" ;;
    *) echo "portal=$portal gave: $result" >&2; exit 1 ;;
    esac
done
