#!/usr/bin/env bash
# Sets up, builds the program and shows real material cards: read, written through the behaviors into a
# document, read back from the document and printed.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

echo "== Dependencies"
tools/install-dependencies.sh

echo "== Building zelmat (preset release)"
cmake --preset release >/dev/null
cmake --build --preset release --target zelmat

# Structural steel with its temperature tables, concrete, a carbon-fibre laminate, rubber.
for card in steel_s355 concrete_c30_37 cfrp_t300_5208_quasi_isotropic natural_rubber_treloar; do
    echo
    echo "== zelmat show samples/$card.json"
    build/release/bin/zelmat show "samples/$card.json"
done
