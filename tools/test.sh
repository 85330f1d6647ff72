#!/usr/bin/env bash
# Sets up, builds everything and runs every test.
#   tools/test.sh [--build-only] [PRESET...]      presets of CMakePresets.json; debug when none is given
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

build_only=false
if [[ "${1:-}" == --build-only ]]; then
    build_only=true
    shift
fi
if (($# == 0)); then
    set -- debug
fi
for preset in "$@"; do
    extras=()
    if [[ "$preset" == clang ]]; then
        extras=(clang)
    fi
    tools/install-dependencies.sh "${extras[@]}"
    echo "== Building: $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    if ! $build_only; then
        echo "== Testing: $preset"
        ctest --preset "$preset"
    fi
done
