#!/usr/bin/env bash
# Starts orvanne under Xvfb as a new user would (fresh home, the current folder full of icons),
# waits for the main window, checks the count it shows, and saves a picture of the screen.
set -euo pipefail
program=$1 testdata=$2 screenshots=$3
source "$(dirname "$0")/common.sh"

new_user
mkdir -p "$work/icônes"
cp "$testdata"/ico/valid/*.ico "$work/icônes/"
# Two more files whose names are not all lower case: both are icons to the program.
cp "$testdata/ico/valid/decodeico_github.ico" "$work/icônes/GitHub.ICO"
cp "$testdata/ico/valid/decodeico_google.ico" "$work/icônes/Google.Ico"
expected=$(find "$work/icônes" -maxdepth 1 -type f -iname '*.ico' | wc -l)

run_until_report "$work/icônes" "$screenshots/e2e-start.png" "$program"
expect_line "NbrIco: $expected icônes"
# The first icon by name without regard to case, shown lower-cased.
first=$(ls "$work/icônes" | LC_ALL=C sort -f | head -1)
expect_line "Etiquette1: $(printf '%s' "$work/icônes/$first" | tr '[:upper:]' '[:lower:]')"
echo "e2e: the main window shows $expected icônes"
