#!/usr/bin/env bash
# Draws the module's pictures anew, elsewhere and with other habits of the user, and
# expects every file to the byte.
set -eu
again=$(mktemp -d)
trap 'rm -rf "$again"' EXIT
mkdir -p "$again/home/.config/fontconfig"
cat >"$again/home/.config/fontconfig/fonts.conf" <<'CONF'
<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><match target="pattern"><edit name="family" mode="assign"><string>DejaVu Serif</string></edit></match></fontconfig>
CONF
HOME="$again/home" LC_ALL=C TZ=Asia/Tokyo "$TARNWICK_ART_PROGRAM" make \
    "$TARNWICK_ART_SOURCES" "$TARNWICK_ART_FONTS" "$again/art"
for file in "$TARNWICK_ART_BUILT"/*.rc "$TARNWICK_ART_BUILT"/*.bmp "$TARNWICK_ART_BUILT"/*.ico \
    "$TARNWICK_ART_BUILT"/*.cur; do
    cmp "$file" "$again/art/$(basename "$file")"
done
