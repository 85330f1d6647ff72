#!/usr/bin/env bash
# Builds with coverage counters, runs every test, and reports the line and branch coverage of the module (its
# sources and its store). Branches that only exceptions take are left out. Lines not covered are listed.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# Counters of an earlier run would count as covered what no test reaches any more.
if [[ -d build/coverage ]]; then
    find build/coverage -name '*.gcda' -delete
fi
tools/test.sh coverage

report() {
    gcovr --root . --object-directory build/coverage --exclude-throw-branches --exclude-unreachable-branches \
        --filter 'ZELMaterialModel/ZELMaterialPropertiesModel\.m/' "$@" build/coverage
}
echo "== Lines (the last column names those not covered)"
report
echo "== Branches"
report --branches
