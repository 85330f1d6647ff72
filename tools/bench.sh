#!/usr/bin/env bash
# Sets up, builds the benchmarks with optimisation and runs all of them: how fast this is, as ratios to the plain loop,
# a virtual call, dynamic_cast, and the same work over OCAF, the document framework of Open CASCADE, in the same run.
# Writes the ratios to docs/performance.md. Takes a few minutes.
#   tools/bench.sh [OPTION...]     options of the benchmark programs, such as --benchmark_filter=Undo; the file is
#                                  left alone then
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

tools/install-dependencies.sh peer
echo "== Building the benchmarks: preset release"
cmake --preset release -DZEL_BENCH=ON >/dev/null
cmake --build --preset release --target bench

programs=(access tables documents disk materials cards fits start)
tables=$(mktemp -d)
trap 'rm -rf "$tables"' EXIT
for program in "${programs[@]}"; do
    echo
    echo "== bench_$program"
    "build/release/bin/bench_$program" --markdown="$tables/$program.md" "$@"
done
if (($# > 0)); then
    exit 0
fi

page=docs/performance.md
{
    cat <<'TEXT'
# How fast it is

Written by `tools/bench.sh`; do not edit. Every figure is the median CPU time of one run, in which all that is compared
ran side by side, its repetitions mixed. Machines differ, so only the ratios mean anything elsewhere.

The benchmarks whose names begin with `Peer` do the same work over OCAF, the document framework of Open CASCADE:
a feature is a label, its attributes lie there under GUIDs of their own, a step is a command (`bench/peer`). `PlainLoop`
copies the same rows into three fresh columns and does nothing else: the least that a table can cost. A goal of
"x faster" is a ratio of at least that, a goal in "x" one of at most that; the last column says whether it was met.

TEXT
    echo "- Compiler: $("${CXX:-c++}" --version | head -n 1), preset \`release\`"
    echo "- OCAF: $(dpkg-query --show --showformat='${Version}' libocct-ocaf-dev)"
    echo "- Load for each core at the end of the run:" \
        "$(awk -v cores="$(nproc)" '{ printf "%.1f", $1 / cores }' /proc/loadavg) (a loaded machine blurs ratios)"
    for program in "${programs[@]}"; do
        question=$(sed -n '1s|^// ||p; 2s|^// | |p' "bench/bench_$program.cpp" | tr -d '\n')
        printf '\n## bench_%s\n\n%s\n\n' "$program" "$question"
        cat "$tables/$program.md"
    done
} >"$tables/page.md"
mv "$tables/page.md" "$page"
echo
echo "written: $page"
