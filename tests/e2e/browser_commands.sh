#!/usr/bin/env bash
# The main window in the real program under Xvfb: the count and the first icon it shows at
# start, then its file commands as a user clicks them: copy through the file dialog, rename
# through its window, delete to the trash, the picture to the clipboard and the clipboard
# viewer, the help; then closing the main window ends the program even with other windows open.
set -euo pipefail
program=$1 testdata=$2 screenshots=$3
source "$(dirname "$0")/common.sh"

new_user
folder="$work/icônes"
mkdir -p "$folder" "$work/copies"
for name in a b c; do
    cp "$testdata/ico/valid/moz_ico-size-32x32-24bpp.ico" "$folder/$name.ico"
done
# A name not all in lower case is an icon to the program too; it sorts last.
cp "$testdata/ico/valid/decodeico_github.ico" "$folder/GitHub.ICO"

cat >"$work/session.sh" <<SESSION
set -eu
cd "$folder"
export HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" \
    XDG_DATA_HOME="$work/home/.local/share" XDG_RUNTIME_DIR="$work/run" \
    ORVANNE_REPORT_FILE="$work/report.txt" PATH="/usr/bin:/bin"
"$program" &
pid=\$!
for _ in \$(seq 300); do [ -s "$work/report.txt" ] && break; sleep 0.1; done
shoot() { command -v import >/dev/null && import -window root "$screenshots/\$1.png" || true; }
# The tips come first at a new user's start.
tips=\$(timeout 20 xdotool search --sync --name "Conseil du jour" | head -1)
xdotool windowfocus --sync \$tips key Escape
sleep 0.5
# The main window is centred on the 1024x768 screen, at 250, 202.
click() { xdotool mousemove \$((250 + \$1)) \$((202 + \$2)) click 1; sleep 1; }
# A dialog is typed into once it is up and focused, and the next click waits until it is gone,
# however slowly a loaded machine opens and closes windows.
focus() {
    local id
    id=\$(timeout 20 xdotool search --sync --onlyvisible --name "\$1" | head -1)
    xdotool windowfocus --sync "\$id"
}
gone() {
    for _ in \$(seq 200); do
        xdotool search --onlyvisible --name "\$1" >/dev/null || return 0
        sleep 0.1
    done
    echo "the window \$1 stayed open" >&2
    return 1
}
click 58 225 # Copier: the save dialog proposes a.ico
focus "Copier l'icône"
xdotool key ctrl+a type --delay 20 "$work/copies/copie.ico"
shoot e2e-copy-dialog
xdotool key Return
gone "Copier l'icône"
click 161 225 # Renommer: FenRen, "a.ico" at the end of the proposed name replaced by "neuf"
focus "Renommer l'icône"
# Typed in ASCII only: under load, xdotool may lose the accented letter of the folder's name.
xdotool key End BackSpace BackSpace BackSpace BackSpace BackSpace
xdotool type --delay 20 neuf
shoot e2e-FenRen
xdotool key Return
gone "Renommer l'icône"
click 58 245  # Supprimer: the centred icon, now b.ico, to the trash
click 161 245 # Copier l'image
click 58 325  # Presse-papiers
shoot e2e-clipboard-viewer
click 161 325 # Aide
shoot e2e-help
# The help may lie over the main window: bring the main window up, then its CmdFermer.
main=\$(xdotool search --onlyvisible --name "^Orvanne®\$" | head -1)
xdotool windowraise \$main
shoot e2e-before-close
sleep 0.5
xdotool mousemove 760 217 click 1
status=0
timeout 10 tail --pid=\$pid -f /dev/null || status=\$?
if kill -0 \$pid 2>/dev/null; then
    echo "the program kept running after its main window closed" >&2
    kill \$pid
    status=1
fi
exit \$status
SESSION

xvfb_run 120 bash "$work/session.sh"
fail() { echo "$1" >&2; exit 1; }
expect_line "NbrIco: 4 icônes"
expect_line "Etiquette1: $(printf '%s' "$folder/a.ico" | tr '[:upper:]' '[:lower:]')"
cmp -s "$folder/neuf.ico" "$work/copies/copie.ico" || fail "no copy of the first icon"
[ ! -e "$folder/a.ico" ] && [ -e "$folder/neuf.ico" ] || fail "a.ico was not renamed neuf.ico"
[ -e "$work/home/.local/share/Trash/files/b.ico" ] || fail "b.ico is not in the trash"
[ -e "$work/home/.local/share/Trash/info/b.ico.trashinfo" ] || fail "the trash has no note"
[ ! -e "$folder/b.ico" ] || fail "b.ico is still in the folder"
echo "e2e: copy, rename, delete, clipboard viewer and help work, and closing ends the program"
