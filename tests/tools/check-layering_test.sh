#!/usr/bin/env bash
# tools/check-layering.sh over small trees of its own: what it lets pass and what it refuses.
#   tests/tools/check-layering_test.sh
set -euo pipefail
check=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../tools" && pwd)/check-layering.sh
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
mkdir -p "$tree/interfaces" "$tree/platform/analysis" "$tree/build"
printf 'interfaces: interfaces\nplatform/analysis: platform/analysis interfaces\n' >"$tree/build/layering.txt"
touch "$tree/interfaces/Thing.h" "$tree/platform/analysis/Extension.h"

failures=0
# expect STATUS TEXT FILE CONTENT: what the check answers, and says, of a tree with that file.
expect() {
    printf '%b' "$4" >"$tree/$3"
    local status=0 said
    said=$("$check" "$tree/build" "$tree" 2>&1) || status=$?
    if [[ $status != "$1" || "$said" != *"$2"* ]]; then
        echo "of $3 with: $4"
        echo "  expected $1 and: $2"
        echo "  answered $status and: $said"
        failures=$((failures + 1))
    fi
    rm "$tree/$3"
}

source=platform/analysis/Extension.cpp
expect 0 "1 includes checked, 0 forbidden, 0 names" $source '#include "interfaces/Thing.h"\n'
expect 1 "interfaces may not include" interfaces/Other.h '#include "platform/analysis/Extension.h"\n'
expect 1 "write the path from the root" $source '#include "Extension.h"\n'
expect 1 "$source:2:\"ZELLayupLT" $source '\nconst char* kLayup = "ZELLayupLT";\n'
expect 1 "$source:1:\"MRVUserMaterialLT" $source '/// Implements something on "MRVUserMaterialLT".\n'
expect 1 "platform/analysis/Own.KORfct:1:\"ZELSetLT" platform/analysis/Own.KORfct '{"types": [{"name": "ZELSetLT"}]}'
expect 0 "0 names" $source 'const char* kText = "KORMaterialLT, BAZEL";\n'
exit $((failures > 0))
