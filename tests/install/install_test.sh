#!/bin/sh
# Installs the build into a temporary root and checks the tree as the desktop
# reads it: the menu entry, its icon at every size, the map file type, the
# software centre entry, and the pictures the installed programs find.
# Usage: install_test.sh BUILD_DIR INSTALL_PREFIX EXAMPLE_MAP
set -u
build=$1
prefix=$2
example=$3
id=io.github.wayscribe.Wayscribe

dest=$(mktemp -d)
trap 'rm -rf "$dest"' EXIT
failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

DESTDIR=$dest cmake --install "$build" >"$dest/install.log" 2>&1 || {
    cat "$dest/install.log"
    fail "cmake --install"
    exit 1
}
root=$dest$prefix
share=$root/share

for program in wayscribe wayscribe-cli; do
    [ -x "$root/bin/$program" ] || fail "bin/$program is missing or not executable"
done

# The menu entry, and what it names: the icon, the map type, the command.
desktop=$share/applications/$id.desktop
desktop-file-validate "$desktop" || fail "desktop-file-validate $desktop"
value() { sed -n "s/^$1=//p" "$desktop"; }
icon=$(value Icon)
[ "$(value Exec)" = "wayscribe %f" ] || fail "Exec is '$(value Exec)'"
[ "$(value MimeType)" = "application/x-wayscribe-map;" ] || fail "MimeType is '$(value MimeType)'"

[ -f "$share/icons/hicolor/scalable/apps/$icon.svg" ] || fail "no scalable icon $icon.svg"
for size in 16 24 32 48 64 128 256; do
    png=$share/icons/hicolor/${size}x${size}/apps/$icon.png
    # IHDR: the width and height are the 4-byte numbers at offsets 16 and 20.
    dims=$(od -An -tu1 -j16 -N8 "$png" 2>/dev/null | tr -s ' ' | sed 's/^ //')
    expected="0 0 $((size / 256)) $((size % 256)) 0 0 $((size / 256)) $((size % 256))"
    [ "$dims" = "$expected" ] || fail "$png is not a $size x $size PNG ($dims)"
done

# The map type: the database built from the installed entry knows the name
# pattern and the header's magic.
mime=$dest/mime
cp -r "$share/mime" "$mime"
update-mime-database "$mime" >"$dest/mime.log" 2>&1 || {
    cat "$dest/mime.log"
    fail "update-mime-database"
}
grep -q '^50:application/x-wayscribe-map:\*\.om1$' "$mime/globs2" || fail "*.om1 is not a map by its name"
grep -aq '^\[50:application/x-wayscribe-map\]$' "$mime/magic" || fail "the map type has no magic"

metainfo=$share/metainfo/$id.metainfo.xml
appstreamcli validate --no-net "$metainfo" || fail "appstreamcli validate $metainfo"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo" ||
    fail "the metainfo does not launch $id.desktop"

# The command-line tool finds the pictures installed beside its own folder in
# the temporary root: render needs every tile and marker.
"$root/bin/wayscribe-cli" render "$example" --out "$dest/world.png" || fail "the installed render"
[ -s "$dest/world.png" ] || fail "the installed render wrote no picture"

[ "$failures" -eq 0 ] || exit 1
echo "installed tree under $prefix checked"
