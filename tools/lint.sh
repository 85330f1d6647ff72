#!/usr/bin/env bash
# Runs clang-tidy over source files of the house, by the rules of .clang-tidy.
#   tools/lint.sh [FILE...]      every source file outside tests and bench when none is given
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

cmake --preset debug >/dev/null
# clang does not know every option that g++ is given.
mkdir -p build/lint
sed -E 's/ -fno-gnu-unique| -fpch-preprocess| -Winvalid-pch -include [^ ]*//g' build/debug/compile_commands.json >build/lint/compile_commands.json
if (($# == 0)); then
    mapfile -t files < <(git ls-files '*.cpp' | grep -vE '^(tests|bench|cmake)/')
    set -- "${files[@]}"
fi
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/lint --quiet
