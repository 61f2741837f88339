#!/usr/bin/env bash
# The icon picker and the BMP commands in the real program under Xvfb, driven with xdotool as a
# user would: the picker opens on the program's own library, the panel of system files opens
# Wine's shell32.dll (a fake Wine prefix here), the second icon is taken, written as a BMP, the
# centred icon of the folder too, an icon library and an animated cursor are browsed to, and
# the BMP viewer comes up. Screenshots of each step go to the screenshot folder.
set -euo pipefail
program=$1 testdata=$2 screenshots=$3
source "$(dirname "$0")/common.sh"

new_user
mkdir -p "$work/icônes" "$work/bmp" "$work/wine/drive_c/windows/system32"
cp "$testdata/ico/valid/qt_WORLD.ico" "$work/icônes/monde.ico"
cp "$testdata/pe/penet_firefox_x64.exe" "$work/wine/drive_c/windows/system32/shell32.dll"

cat >"$work/session.sh" <<SESSION
set -eu
cd "$work/icônes"
export HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_DATA_HOME="$work/home/.local/share"
export XDG_RUNTIME_DIR="$work/run" WINEPREFIX="$work/wine" ORVANNE_REPORT_FILE="$work/report.txt"
"$program" &
pid=\$!
shot() { sleep 0.6; import -window root "$screenshots/e2e-picker-\$1.png" || true; }
# click WINDOW X Y: a left click at a point of a window.
click() {
    eval \$(xdotool getwindowgeometry --shell "\$1")
    xdotool mousemove \$((X + \$2)) \$((Y + \$3)) click 1
    sleep 0.4
}
window() { timeout 20 xdotool search --sync --onlyvisible --name "\$1" | head -1; }
# type_path WINDOW PATH: a file dialog's name field takes the path, Enter accepts it.
type_path() {
    xdotool windowfocus --sync "\$1" key ctrl+a
    xdotool type --delay 5 "\$2"
    xdotool key Return
    sleep 0.6
}
for _ in \$(seq 300); do [ -s "$work/report.txt" ] && break; sleep 0.1; done
tips=\$(window '^Conseil du jour\$')
xdotool windowfocus --sync \$tips key Escape
sleep 0.5
main=\$(window '^Orvanne®\$')

click \$main 58 285                                   # CmdDLL
picker=\$(window 'Visualisation DLL')
shot library
click \$picker 160 260                                # CmdIcoWin
shot panel
click \$picker 160 136                                # Shell32.dll
click \$picker 65 49                                  # the second icon
shot shell32
click \$picker 260 260                                # CmdOK
sleep 0.5

click \$main 161 285                                  # CmdIcoBmpDLL
type_path \$(window 'Transformation fichier ICO') "$work/bmp/prise.bmp"
click \$main 58 265                                   # CmdIcoBmp
type_path \$(window 'Transformation fichier ICO') "$work/bmp/centre.bmp"

click \$main 58 285
picker=\$(window 'Visualisation DLL')
click \$picker 55 260                                 # CmdBrowse
type_path \$(window 'Ouvrir') "$testdata/icl/psc_robanderson_test.icl"
shot icl
click \$picker 55 260
type_path \$(window 'Ouvrir') "$testdata/ani/breeze_wait.ani"
shot ani
click \$picker 362 260                                # CmdCancel

click \$main 161 265                                  # CmdVisuBmp
viewer=\$(window 'Visualisation des fichiers BMP')
shot visubmp
kill \$pid 2>/dev/null || true
wait \$pid 2>/dev/null || true
SESSION

xvfb_run 120 bash "$work/session.sh"
for bmp in prise centre; do
    [ -s "$work/bmp/$bmp.bmp" ] || { echo "$bmp.bmp was not written" >&2; exit 1; }
done
# Width and height in the BMP header, and 24 bits per pixel.
read -r width height < <(od -An -tu4 -j18 -N8 "$work/bmp/prise.bmp")
bits=$(od -An -tu2 -j28 -N2 "$work/bmp/prise.bmp" | tr -d ' ')
[ "$width $height $bits" = "32 32 24" ] || { echo "prise.bmp is $width x $height, $bits bits" >&2; exit 1; }
echo "e2e: the picker took an icon from shell32.dll and both BMP files were written"
