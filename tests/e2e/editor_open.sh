#!/usr/bin/env bash
# Starts orvanne under Xvfb with "/open" and a path typed in the wrong case, as a desktop or a
# script would, and checks that the editor came up on that icon.
set -euo pipefail
program=$1 testdata=$2 screenshots=$3
source "$(dirname "$0")/common.sh"

new_user
mkdir -p "$work/mes icônes"
cp "$testdata/ico/valid/qt_WORLD.ico" "$work/mes icônes/monde.ico"

run_until_report "$work/mes icônes" "$screenshots/e2e-editor-open.png" \
    "$program" /OPEN "$work/MES ICÔNES/MONDE.ICO"
expect_line "FrmIcoEd: Orvanne® - Monde.Ico"
echo "e2e: the editor opened monde.ico from /OPEN in capitals"
