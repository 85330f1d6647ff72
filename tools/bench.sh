#!/usr/bin/env bash
# Sets up, builds the benchmarks with optimisation and runs all of them: how fast this is, as ratios to the plain
# loop, a virtual call, dynamic_cast and the figures of a comparable store. Takes about a minute.
#   tools/bench.sh [OPTION...]     options of the benchmark programs, such as --benchmark_filter=Undo
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

tools/install-dependencies.sh
echo "== Building the benchmarks: preset release"
cmake --preset release -DZEL_BENCH=ON >/dev/null
cmake --build --preset release --target bench
for program in access tables documents materials; do
    echo
    echo "== bench_$program"
    "build/release/bin/bench_$program" "$@"
done
