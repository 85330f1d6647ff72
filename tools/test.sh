#!/usr/bin/env bash
# Sets up, builds everything and runs every test.
#   tools/test.sh [PRESET...]      presets of CMakePresets.json; debug when none is given
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

tools/install-dependencies.sh
if (($# == 0)); then
    set -- debug
fi
for preset in "$@"; do
    echo "== Building and testing: $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
