#!/usr/bin/env bash
# Takes pictures of every page, form and dialog, light and dark, at one and two pixels to a point.
#   tools/screenshots.sh [NAME...]    into build/screenshots; all names when none is given
#   tools/screenshots.sh --readme     the pictures of the README, into docs/images
# KESTRAV_PROGRAM names another program than that of the release or the developer build.
set -euo pipefail
cd "$(dirname "$0")/.."

program=${KESTRAV_PROGRAM-}
for build in release dev; do
    [ -n "$program" ] || [ ! -x "build/$build/bin/kestrav" ] || program=build/$build/bin/kestrav
done
if [ -z "$program" ]; then
    echo "There is no program yet; ./run builds it." >&2
    exit 1
fi
program=$(realpath "$program")

# Neither the user's settings and charts nor the time of the day are to be seen.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
moment=$(date -d '2026-03-20 06:30 UTC' +%s)
picture() { # NAME FILE OPTION...
    mkdir -p "$(dirname "$2")"
    local file
    file=$(realpath "$2")
    (cd "$home" && env -i HOME="$home" PATH="$PATH" QT_QPA_PLATFORM=offscreen TZ=UTC \
        XDG_RUNTIME_DIR="$home" KESTRAV_CLOCK="$moment" QT_LOGGING_RULES="default.warning=false" \
        "$program" --batch --screenshot "$1" "$file" "${@:3}")
}

if [ "${1-}" = --readme ]; then
    for page in Chart Dashas Yogas; do
        file=docs/images/$(echo "$page" | tr '[:upper:]' '[:lower:]').png
        picture "$page" "$file" --scheme light --size 1440x900
        if command -v pngquant >/dev/null; then
            pngquant --force --skip-if-larger --output "$file" "$file" || true
        fi
        echo "$file"
    done
    exit 0
fi

names=("$@")
if [ ${#names[@]} -eq 0 ]; then
    mapfile -t names < <(QT_QPA_PLATFORM=offscreen HOME=$home XDG_RUNTIME_DIR=$home \
        "$program" --batch --screenshot list)
fi
failed=()
for scheme in light dark; do
    for scale in 1 2; do
        for name in "${names[@]}"; do
            picture "$name" "build/screenshots/$scheme-${scale}x/$name.png" --scheme "$scheme" \
                --scale "$scale" --size 1280x800 || failed+=("$name ($scheme, ${scale}x)")
        done
    done
done
echo "$((4 * ${#names[@]} - ${#failed[@]})) pictures are in build/screenshots."
if [ ${#failed[@]} -ne 0 ]; then
    printf 'No picture of %s\n' "${failed[@]}" >&2
    exit 1
fi
