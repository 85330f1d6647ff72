#!/usr/bin/env bash
# Runs clang-tidy over source files of the house, by the rules of .clang-tidy.
#   tools/lint.sh [FILE...]      when none is given: every source file, of the tests only what they stand on
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

tools/install-dependencies.sh clang lint peer
# clang-tidy reads what clang compiles, with the tests' precompiled headers.
cmake --preset clang -B build/lint >/dev/null
cmake --build build/lint --target zel_test_headers >/dev/null
if (($# == 0)); then
    mapfile -t files < <(git ls-files '*.cpp' | grep -vE '^cmake/|^tests/')
    mapfile -t -O "${#files[@]}" files < <(git ls-files 'tests/support/*.cpp')
    set -- "${files[@]}"
fi
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/lint --quiet
