#!/usr/bin/env bash
# Sets up, builds everything and runs every test.
#   tools/test.sh [--build-only] [PRESET...]      presets of CMakePresets.json; debug when none is given
# With --build-only it builds what is shipped, and no test.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

testing=ON
if [[ "${1:-}" == --build-only ]]; then
    testing=OFF
    shift
fi
if (($# == 0)); then
    set -- debug
fi
for preset in "$@"; do
    extras=()
    if [[ $testing == ON ]]; then
        extras+=(browser html)
    fi
    if [[ "$preset" == clang ]]; then
        extras+=(clang)
    fi
    tools/install-dependencies.sh "${extras[@]}"
    echo "== Building: $preset"
    cmake --preset "$preset" -DBUILD_TESTING="$testing" >/dev/null
    cmake --build --preset "$preset"
    if [[ $testing == ON ]]; then
        echo "== Testing: $preset"
        ctest --preset "$preset"
    fi
done
