#!/usr/bin/env bash
# Runs every fuzz target for a number of seconds (60 by default).
set -euo pipefail
seconds=${1:-60}
cd "$(dirname "$0")/.."
cmake --preset fuzz >/dev/null
cmake --build build/fuzz >/dev/null
for target in build/fuzz/bin/fuzz_*; do
    [ -x "$target" ] || continue
    echo "$(basename "$target"): $seconds seconds"
    corpus=build/fuzz/corpus/$(basename "$target")
    mkdir -p "$corpus"
    seeds=fuzz/corpus/$(basename "$target")
    [ -d "$seeds" ] || seeds=
    "$target" -max_total_time="$seconds" -rss_limit_mb=2048 -verbosity=0 -print_final_stats=0 "$corpus" ${seeds:+"$seeds"}
done
