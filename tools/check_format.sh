#!/usr/bin/env bash
# Fails when a source file is not formatted as .clang-format says. `--fix` formats instead.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(find core astro analysis timing data yoga app tests tools bench fuzz \
    -name '*.cpp' -o -name '*.h' | sort)
if [ "${1-}" = --fix ]; then
    exec clang-format -i "${files[@]}"
fi
exec clang-format --dry-run -Werror "${files[@]}"
