#!/usr/bin/env bash
# Runs clang-tidy by the rules of .clang-tidy.
#   tools/lint.sh [FILE...]      when none is given: over the whole tree
# Tests are read ten at a time (cmake/ZELLintBatches.cmake). The benchmarks of the peer are looked at where it is
# installed.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

tools/install-dependencies.sh clang lint
# clang-tidy reads what clang compiles, with the tests' precompiled headers.
cmake --preset clang -B build/lint -DZEL_LINT=ON >/dev/null
cmake --build build/lint --target zel_test_headers >/dev/null
if (($# == 0)); then
    mapfile -t files < <(sed -n 's/^ *"file": "\(.*\)",\?$/\1/p' build/lint/compile_commands.json |
        grep -vE '/cmake/|cmake_pch' | sort -u)
    set -- "${files[@]}"
fi
echo "lint: $# sources"
printf '%s\n' "$@" | xargs -P "${LINT_JOBS:-$(nproc)}" -n 1 clang-tidy -p build/lint --quiet 2> >(grep -v ' warnings\? generated\.$' >&2)
echo "lint: clean"
