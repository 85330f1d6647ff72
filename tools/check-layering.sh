#!/usr/bin/env bash
# Holds every #include of the house against the libraries' declared dependencies, and the platform to its silence on
# the add-on.
#   tools/check-layering.sh BUILD_DIR [ROOT]
#
# BUILD_DIR/layering.txt, written at configure time, has one line a library: "folder: allowed folders...". A
# declared folder's files may include headers of the allowed folders only. A folder speaks for its sub-folders,
# except where a deeper folder is declared: then the deepest one decides. Prints each forbidden arrow.
#
# The platform serves any add-on: what it has to know of one's late types stands in catalog files, and no text in
# platform/ begins with a prefix of this one's names, ZEL or MRV.
set -euo pipefail
if (($# < 1 || $# > 2)); then
    echo "usage: tools/check-layering.sh BUILD_DIR [ROOT]" >&2
    exit 2
fi
layering="$1/layering.txt"
root=${2:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)}
if [[ ! -s "$layering" ]]; then
    echo "$layering: no declared libraries; configure the build directory first" >&2
    exit 2
fi

declare -A allowed=()
while IFS=: read -r folder folders; do
    allowed[$folder]+=$folders
done <"$layering"

# The deepest declared folder that holds a path, in `owner`; the path's own first folder if none is declared.
find_owner() {
    owner=${1%/*}
    while [[ -z "${allowed[$owner]:-}" && "$owner" == */* ]]; do
        owner=${owner%/*}
    done
}

forbidden=0
checked=0
while IFS=: read -r file line include; do
    file=${file#./}
    find_owner "$file"
    from=$owner
    if [[ -z "${allowed[$from]:-}" ]]; then
        continue # tests, benchmarks and tools may include anything
    fi
    header=${include#*\"}
    header=${header%%\"*}
    if [[ "$header" != */* ]]; then
        echo "$file:$line: includes \"$header\": write the path from the root"
        forbidden=$((forbidden + 1))
        continue
    fi
    find_owner "$header"
    checked=$((checked + 1))
    if [[ " ${allowed[$from]} " != *" $owner "* ]]; then
        echo "$file:$line: $from may not include \"$header\" (allowed:${allowed[$from]})"
        forbidden=$((forbidden + 1))
    fi
done < <(cd "$root" && find "${!allowed[@]}" -type f \( -name '*.h' -o -name '*.cpp' \) -print0 2>/dev/null |
    sort -zu | xargs -0 -r grep -HnE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' || true)

names=0
while IFS= read -r place; do
    echo "$place: a name of the add-on; catalog files say what its late types are"
    names=$((names + 1))
done < <(cd "$root" && grep -rnoE '["'"'"']\s*(ZEL|MRV)\w*' platform 2>/dev/null | sort || true)

echo "layering: $checked includes checked, $forbidden forbidden, $names names of the add-on in platform"
((forbidden == 0 && names == 0))
