#!/usr/bin/env bash
# Starts orvanne under Xvfb in conditions met by attacking it: started in a folder whose name is
# not valid UTF-8 holding such a file, with its settings file replaced by a FIFO, then by a value
# nested deep enough to overflow a parser. Each time the main window must come up and count
# every icon.
set -euo pipefail
program=$1 testdata=$2 screenshots=$3
source "$(dirname "$0")/common.sh"

new_user
folder="$work/$(printf 'dossier\xe9\xff')"
mkdir -p "$folder" "$work/home/.config"
cp "$testdata/ico/valid/decodeico_apple.ico" "$folder/$(printf 'bad\xff\xfe.ico')"
cp "$testdata/ico/valid/decodeico_github.ico" "$folder/bon.ico"
store="$work/home/.config/Orvanne®.ini"

mkfifo "$store"
run_until_report "$folder" "$screenshots/e2e-hostile-fifo.png" "$program"
expect_line "NbrIco: 2 icônes"
ls "$work/home/.config" | grep -q "^Orvanne®.ini.mis-de-côté-" || {
    echo "the FIFO in place of the settings file was not set aside" >&2
    exit 1
}

rm -f "$work/report.txt" "$work/home/.config"/Orvanne®.ini*
{
    printf '[Conseils%%20du%%20jour]\nConseil%%20au%%20d%%E9marrage='
    for _ in $(seq 20000); do printf '@Variant('; done
    for _ in $(seq 20000); do printf ')'; done
    printf '\n'
} >"$store"
run_until_report "$folder" "$screenshots/e2e-hostile-variant.png" "$program"
expect_line "NbrIco: 2 icônes"
echo "e2e: the program starts in a folder named by bytes, over a FIFO and a hostile settings file"
