#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks the tree: the programs answer
# --version, the manual pages are there, the desktop files validate, the completion knows
# every command the program lists.
# Usage: check_install.sh BUILD_DIR VERSION APPSTREAM_ID
set -euo pipefail
build=$1 version=$2 id=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/usr
failures=0
fail() { echo "ÉCHEC : $*" >&2; failures=$((failures + 1)); }

cmake --install "$build" --prefix "$prefix" >"$work/install.log" ||
    { cat "$work/install.log" >&2; exit 1; }

share=$prefix/share
for file in bin/orvanne bin/orvanne-icons \
    share/man/man1/orvanne.1 share/man/man1/orvanne-icons.1 \
    share/bash-completion/completions/orvanne-icons \
    share/applications/orvanne.desktop \
    share/icons/hicolor/scalable/apps/orvanne.svg share/icons/hicolor/48x48/apps/orvanne.png \
    "share/metainfo/$id.metainfo.xml" share/thumbnailers/orvanne.thumbnailer \
    share/mime/packages/orvanne.xml "share/orvanne/Orvanne®.icl"; do
    [ -s "$prefix/$file" ] || fail "$file absent ou vide"
done

# Both programs answer --version without a display.
[ "$(env -u DISPLAY -u WAYLAND_DISPLAY "$prefix/bin/orvanne" --version)" = "Orvanne $version" ] ||
    fail "orvanne --version"
[ "$("$prefix/bin/orvanne-icons" --version)" = "orvanne-icons $version" ] ||
    fail "orvanne-icons --version"

# The manual pages come from the programs' help: their title and the commands are there.
grep -q '^\.TH ORVANNE-ICONS "1"' "$share/man/man1/orvanne-icons.1" || fail "titre de orvanne-icons.1"
grep -q 'to\\-ico' "$share/man/man1/orvanne-icons.1" || fail "commandes absentes de orvanne-icons.1"
grep -q '/open' "$share/man/man1/orvanne.1" || fail "/open absent de orvanne.1"

# The picture is a 48x48 PNG.
png=$share/icons/hicolor/48x48/apps/orvanne.png
[ "$(head -c 8 "$png" | od -An -tx1 | tr -d ' \n')" = 89504e470d0a1a0a ] || fail "orvanne.png n'est pas un PNG"
[ "$(od -An -tu1 -j 16 -N 8 "$png" | tr -s ' ')" = " 0 0 0 48 0 0 0 48" ] || fail "orvanne.png n'est pas en 48x48"

# The new file types reached the prefix's database.
if command -v update-mime-database >/dev/null; then
    grep -q 'application/x-icon-library:\*\.icl' "$share/mime/globs2" || fail "type des .icl non enregistré"
    grep -q 'application/x-ms-dos-executable:\*\.dll' "$share/mime/globs2" || fail "type des .dll non enregistré"
fi

if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate "$share/applications/orvanne.desktop" || fail "entrée de menu invalide"
fi
if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml" || fail "metainfo invalide"
fi

# The completion: valid bash, and it offers every command the help lists.
completion=$share/bash-completion/completions/orvanne-icons
bash -n "$completion" || fail "complétion : erreur de syntaxe"
offered=$(bash -c 'source "$1"; COMP_WORDS=(orvanne-icons ""); COMP_CWORD=1
                   _orvanne_icons; printf "%s\n" "${COMPREPLY[@]}"' _ "$completion")
listed=$("$prefix/bin/orvanne-icons" --help | sed -n 's/^  \([a-z][a-z-]*\) .*/\1/p')
[ -n "$listed" ] || fail "aucune commande lue dans --help"
for command in $listed; do
    grep -qx -- "$command" <<<"$offered" || fail "complétion : commande $command absente"
done
options=$(bash -c 'source "$1"; COMP_WORDS=(orvanne-icons to-bmp in.ico --); COMP_CWORD=3
                   _orvanne_icons; printf "%s\n" "${COMPREPLY[@]}"' _ "$completion")
[ "$(sort <<<"$options" | tr '\n' ' ')" = "-- --background --size " ] ||
    fail "complétion : options de to-bmp ($options)"

[ "$failures" -eq 0 ] || exit 1
echo "Installation vérifiée dans $prefix"
