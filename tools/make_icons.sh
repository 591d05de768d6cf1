#!/usr/bin/env bash
# Makes the PNG files of resources/icons from the drawings there.
#   tools/make_icons.sh [FOLDER]    writes into FOLDER instead of resources/icons
# It needs rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")/.."
source=resources/icons
target=${1:-$source}

render() { # DRAWING SIZE FILE
    mkdir -p "$(dirname "$3")"
    rsvg-convert --width "$2" --height "$2" --output "$3" "$1"
}

for size in 16 24 32 48 64 128 256 512; do
    render "$source/org.kestrav.Kestrav.svg" "$size" \
        "$target/hicolor/${size}x$size/apps/org.kestrav.Kestrav.png"
done
for type in application-x-kestrav-charts application-x-kestrav-yogas+xml; do
    for size in 16 24 32 48 64 128 256; do
        render "$source/$type.svg" "$size" "$target/hicolor/${size}x$size/mimetypes/$type.png"
    done
done
render "$source/org.kestrav.Kestrav.svg" 128 "$target/kestrav.png"

# The icons inside the window, in the colour of text on a light and on a dark ground.
coloured=$(mktemp)
trap 'rm -f "$coloured"' EXIT
for scheme in light:#3a3f4b dark:#dfe2ea; do
    for drawing in "$source"/symbols/*.svg; do
        name=$(basename "$drawing" .svg)
        sed "s/currentColor/${scheme#*:}/g" "$drawing" >"$coloured"
        render "$coloured" 22 "$target/${scheme%%:*}/$name.png"
        render "$coloured" 44 "$target/${scheme%%:*}/$name@2x.png"
    done
done
