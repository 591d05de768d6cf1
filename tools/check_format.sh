#!/usr/bin/env bash
# Fails when a source file is not formatted as .clang-format says. `--fix` formats instead.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(find . \( -path ./build -o -path ./.git \) -prune -o \( -name '*.cpp' -o -name '*.h' \) -print | sort)
if [ "${1-}" = --fix ]; then
    exec clang-format -i "${files[@]}"
fi
exec clang-format --dry-run -Werror "${files[@]}"
