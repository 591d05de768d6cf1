#!/usr/bin/env bash
# Builds the Debian package and the archive and looks whether they are complete and work: unpacks
# them into an empty folder, runs the programs there, installs and removes the package.
#   tools/check_package.sh [PACKAGE.deb ARCHIVE.tar.gz]    checks these instead of new ones
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD
build=$top/build/package

fail() {
    echo "$*" >&2
    exit 1
}

if [ $# -eq 2 ]; then
    package=$(realpath "$1")
    archive=$(realpath "$2")
    mkdir -p "$build"
else
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DKESTRAV_TESTS=OFF \
        -DCMAKE_INSTALL_PREFIX=/usr >/dev/null
    cmake --build "$build" >/dev/null
    rm -f "$build"/*.deb "$build"/*.tar.gz
    (cd "$build" && cpack >cpack.log 2>&1) || fail "$(cat "$build/cpack.log")"
    package=$(echo "$build"/*.deb)
    archive=$(echo "$build"/*.tar.gz)
fi

# What the package says of itself.
for field in Package=kestrav Section=misc Recommends=fonts-dejavu-core Depends=libqt6widgets6 \
    Depends=libqt6printsupport6 Depends=libxml2; do
    dpkg-deb --field "$package" "${field%%=*}" | grep -q "${field#*=}" ||
        fail "the field ${field%%=*} of the package lacks ${field#*=}"
done

# Every delivered file is there, and the archive has the same ones.
root=$build/root
rm -rf "$root"
dpkg-deb -x "$package" "$root"
share=$root/usr/share
data=$share/kestrav
expected=(
    "$root"/usr/bin/{kestrav,kestrav-cli}
    "$data"/{JRaam.nam,cities.txt,countries.txt,zones.txt,Sample.ksc,"My Charts.ksc"}
    "$data/icons/kestrav.png"
    "$share"/applications/org.kestrav.Kestrav.desktop
    "$share"/metainfo/org.kestrav.Kestrav.metainfo.xml
    "$share"/mime/packages/org.kestrav.Kestrav.xml
    "$share"/icons/hicolor/scalable/apps/org.kestrav.Kestrav.svg
    "$share"/icons/hicolor/scalable/mimetypes/application-x-kestrav-{charts,yogas+xml}.svg
    "$share"/man/man1/{kestrav,kestrav-cli}.1
    "$share"/man/man5/kestrav-files.5
    "$share"/bash-completion/completions/kestrav
    "$share"/zsh/site-functions/_kestrav
    "$share"/fish/vendor_completions.d/kestrav.fish
    "$share"/doc/kestrav/{LICENSE,NOTICE,README.md,copyright}
)
for file in resources/{help,pages,reports,yogas}/*; do
    expected+=("$data/${file#resources/}")
done
for file in resources/icons/{light,dark}/*; do
    expected+=("$data/${file#resources/}")
done
for file in resources/icons/hicolor/*/*/*; do
    expected+=("$share/${file#resources/}")
done
for file in "${expected[@]}"; do
    [ -e "$file" ] || fail "the package lacks ${file#"$root"}"
done
find "$root" -type f | sed "s#^$root/usr/##" | sort >"$build/package.list"
tar tzf "$archive" | grep -v '/$' | sed 's#^[^/]*/##; s#^usr/##' | sort >"$build/archive.list"
diff "$build/package.list" "$build/archive.list" || fail "package and archive differ"

# What the desktop and the shells read is sound.
desktop-file-validate "$share/applications/org.kestrav.Kestrav.desktop"
appstreamcli validate-tree --no-net "$root/usr" >"$build/appstream.log" ||
    fail "$(cat "$build/appstream.log")"
bash -n "$share/bash-completion/completions/kestrav"
for page in "$share"/man/man*/*; do
    warnings=$(LC_ALL=C.UTF-8 man --warnings -l "$page" 2>&1 >/dev/null)
    [ -z "$warnings" ] || fail "$page: $warnings"
done

# The programs find what they need below their own prefix.
home=$build/home
rm -rf "$home"
mkdir -p "$home/work"
alone() {
    (cd "$home/work" && env -i HOME="$home" PATH="$PATH" QT_QPA_PLATFORM=offscreen "$@")
}
alone "$root/usr/bin/kestrav" --version
alone "$root/usr/bin/kestrav-cli" --version
alone "$root/usr/bin/kestrav-cli" chart --date 2000-01-01 --time 12:00 --place "London, England" \
    >"$build/chart.txt"
grep -q Ascendant "$build/chart.txt" || fail "kestrav-cli computes no chart"
alone "$root/usr/bin/kestrav" --batch --screenshot Chart "$build/chart.png" 2>"$build/window.log" ||
    fail "$(cat "$build/window.log")"
file "$build/chart.png" | grep -q "PNG image data" || fail "kestrav shows no page"

# Installed and removed, the package leaves nothing behind.
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(unshare --map-root-user)
system=$build/system
rm -rf "$system"
mkdir -p "$system"/var/lib/dpkg/{info,updates,triggers}
touch "$system"/var/lib/dpkg/{status,available}
find "$system" -mindepth 1 -not -path "$system/var*" | sort >"$build/before.list"
export PATH=$PATH:/usr/sbin:/sbin
"${as_root[@]}" dpkg --root="$system" --force-depends --install "$package" >"$build/dpkg.log" 2>&1 ||
    fail "$(cat "$build/dpkg.log")"
[ -x "$system/usr/bin/kestrav" ] || fail "dpkg installed no program"
"${as_root[@]}" dpkg --root="$system" --purge kestrav >>"$build/dpkg.log" 2>&1 ||
    fail "$(cat "$build/dpkg.log")"
find "$system" -mindepth 1 -not -path "$system/var*" | sort >"$build/after.list"
diff "$build/before.list" "$build/after.list" || fail "removing the package leaves files behind"

echo "The packages are sound."
