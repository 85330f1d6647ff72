#!/usr/bin/env bash
# The pictures of README.md and the guides are those that the program draws today.
#   pictures_test.sh ZELMAT REPOSITORY
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$2/tools/pictures.sh" "$1" "$folder" >/dev/null
diff -rq "$2/docs/pictures" "$folder" || {
    echo "docs/pictures is not current: run tools/pictures.sh"
    exit 1
}
