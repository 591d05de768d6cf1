#!/usr/bin/env bash
# Runs clang-tidy over every source of a build folder that has compile_commands.json.
set -euo pipefail
build=$1
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files 'core/*.cpp' 'astro/*.cpp' 'analysis/*.cpp' 'timing/*.cpp' \
    'data/*.cpp' 'yoga/*.cpp' 'app/*.cpp' 'tools/*.cpp')
printf '%s\0' "${files[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p "$build" --quiet
