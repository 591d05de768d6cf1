#!/usr/bin/env bash
# Builds and runs the benchmarks and prints their times with ratios.
#   bench/run.sh            the table of times
#   bench/run.sh accuracy   writes docs/accuracy.md anew
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/packages.sh
need_packages "${BUILD_PACKAGES[@]}" libbenchmark-dev python3
cmake --preset bench >/dev/null
cmake --build build/bench >/dev/null
if [ "${1-}" = accuracy ]; then
    exec build/bench/bin/accuracy tests/data/sky.csv build/bench/bin/JRaam.nam \
        bench/accuracy-head.md docs/accuracy.md
fi
for program in build/bench/bin/*_bench*; do
    "$program" --benchmark_out="$program.json" --benchmark_out_format=json \
        --benchmark_repetitions=3 --benchmark_min_time=0.3 >/dev/null 2>&1
done
exec /usr/bin/python3 bench/table.py build/bench/bin/*_bench*.json
