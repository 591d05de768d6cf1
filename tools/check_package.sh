#!/usr/bin/env bash
# Builds the packages, unpacks the Debian one into an empty folder and computes a chart with it.
set -euo pipefail
cd "$(dirname "$0")/.."
build=build/package
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DKESTRAV_TESTS=OFF \
    -DCMAKE_INSTALL_PREFIX=/usr >/dev/null
cmake --build "$build" >/dev/null
rm -f "$build"/*.deb "$build"/*.tar.gz
(cd "$build" && cpack >/dev/null)
root=$build/root
rm -rf "$root"
dpkg-deb -x "$build"/*.deb "$root"
top=$PWD
cd "$root"
HOME=$PWD usr/bin/kestrav-cli --version
HOME=$PWD usr/bin/kestrav-cli chart --date 2000-01-01 --time 12:00 --zone 0 --lat 51N30 \
    --lon 0W7 >chart.txt
grep -q Ascendant chart.txt
cd "$top"
tar tzf "$build"/*.tar.gz >/dev/null
echo "The packages are sound."
