#!/usr/bin/env bash
# The real program under Xvfb, over a desktop painted with a known picture: N opens the capture
# window, a zone is drawn on the frozen screen and saved as a bitmap, whose pixels must be the
# desktop's; then K in the editor takes a 32x32 frame of the desktop into the icon.
set -euo pipefail
program=$1 testdata=$2 screenshots=$3
source "$(dirname "$0")/common.sh"

new_user
mkdir -p "$work/icônes"
cp "$testdata/ico/valid/qt_WORLD.ico" "$work/icônes/monde.ico"
# Left half blue, right half ochre.
convert -size 200x150 xc:'#3366cc' -fill '#cc9933' -draw 'rectangle 100,0 199,149' \
    "$work/fond.png"

cat >"$work/session.sh" <<'SESSION'
set -eu
work=$1 program=$2 shots=$3
step() { echo "capture e2e: $*" >&2; }
# Waits for a visible window whose title holds $1 and prints its id.
window() {
    for _ in $(seq 100); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -1) || true
        [ -n "$id" ] && { echo "$id"; return 0; }
        sleep 0.1
    done
    step "no window named $1"
    return 1
}
# Clicks at x y inside window $1.
click_in() {
    eval "$(xdotool getwindowgeometry --shell "$1")"
    xdotool mousemove $((X + $2)) $((Y + $3)) click 1
}
# The picture in a window of another program at the desktop's corner.
display -geometry +0+0 -borderwidth 0 "$work/fond.png" &
shown=$!
cd "$work/icônes"
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share" \
XDG_RUNTIME_DIR="$work/run" ORVANNE_REPORT_FILE="$work/report.txt" \
    "$program" /open "$work/icônes/monde.ico" &
pid=$!
trap 'kill $pid $shown 2>/dev/null || true' EXIT
for _ in $(seq 300); do [ -s "$work/report.txt" ] && break; sleep 0.1; done

# The tip of the day comes first, as for any new user.
tips=$(window "Conseil du jour")
xdotool windowfocus --sync "$tips"
xdotool key Escape
editor=$(window "Monde")
xdotool windowfocus --sync "$editor"
xdotool key n
snap=$(window "Capture de zone")
step "capture window up"
click_in "$snap" 70 49            # CmdStart
sleep 1.5
xdotool mousemove 10 10 mousedown 1 mousemove 60 40 mousemove 110 80 mouseup 1
sleep 0.3
import -window root "$shots/e2e-capture-overlay.png" || true
xdotool key Return
sleep 1
import -window root "$shots/e2e-capture-zone.png" || true
click_in "$snap" 70 113           # CmdSave
dialog=$(window "Sauvegarde bitmap")
xdotool windowfocus --sync "$dialog"
sleep 0.5
xdotool type "$work/zone.bmp"
xdotool key Return
sleep 1
step "zone saved"

click_in "$snap" 70 145           # CmdEdit
sleep 0.5
xdotool windowfocus --sync "$editor"
xdotool key k
sleep 1.5
xdotool mousemove 100 75
sleep 0.3
import -window root "$shots/e2e-capture-frame.png" || true
xdotool click 1
sleep 1
import -window root "$shots/e2e-capture-icon.png"
# The canvas shows the icon ten times enlarged from (8, 32) of the editor.
eval "$(xdotool getwindowgeometry --shell "$editor")"
for at in "$((X + 58)) $((Y + 132))" "$((X + 278)) $((Y + 132))"; do
    set -- $at
    convert "$shots/e2e-capture-icon.png" -format "%[hex:p{$1,$2}] " info: >>"$work/icon.txt"
done
step "icon captured"
SESSION
xvfb_run 90 \
    bash "$work/session.sh" "$work" "$program" "$screenshots"

[ -f "$work/zone.bmp" ] || { echo "the zone was not saved" >&2; exit 1; }
size=$(identify -format '%w %h' "$work/zone.bmp")
[ "$size" = "101 71" ] || { echo "zone of $size, expected 101 71" >&2; exit 1; }
left=$(convert "$work/zone.bmp" -format '%[hex:p{5,5}]' info:)
right=$(convert "$work/zone.bmp" -format '%[hex:p{95,5}]' info:)
case "$left/$right" in
3366CC*/CC9933*) ;;
*) echo "zone pixels $left and $right, expected 3366CC and CC9933" >&2; exit 1 ;;
esac
echo "e2e: a 101x71 zone of the desktop was captured and saved with its own pixels"
read -r left right <"$work/icon.txt" || true
case "${left:0:6}/${right:0:6}" in
3366CC/CC9933) echo "e2e: K took the framed 32x32 zone of the desktop into the icon" ;;
*) echo "icon pixels $left and $right, expected 3366CC and CC9933" >&2; exit 1 ;;
esac
