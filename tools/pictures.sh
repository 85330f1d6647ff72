#!/usr/bin/env bash
# Draws the pictures of README.md and of the guides from the samples. A test holds what is committed against this.
#   tools/pictures.sh [ZELMAT [FOLDER]]      the program (build/release/bin/zelmat), and where they go (docs/pictures)
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
zelmat=$(realpath "${1:-$root/build/release/bin/zelmat}")
folder=${2:-$root/docs/pictures}
mkdir -p "$folder"
folder=$(realpath "$folder")
cd "$root"
# A user's own units would change the pictures.
export XDG_CONFIG_HOME=/dev/null/none

drawn=$(mktemp -d)
trap 'rm -rf "$drawn"' EXIT
draw() { # NAME CARD PICTURE [OPTION...]
    local name=$1 card=$2 picture=$3
    shift 3
    "$zelmat" plot "$card" --output "$drawn/$name/" "$@" >/dev/null
    cp "$drawn/$name/$picture.svg" "$folder/$name.svg"
}
draw hardening samples/steel_s355.json plastic-hardening --block plastic
draw modulus samples/steel_s355.json compared-elastic-youngs_modulus --block elastic \
    --compare samples/stainless_304.json samples/aluminium_6061_t6.json
draw rubber samples/natural_rubber_treloar.json hyperelastic-OGDEN --block hyperelastic
draw gasket samples/gasket_fibre_illustrative.json gasket-unloading_elastic_plastic --block gasket
draw stack samples/layups/sandwich_t300_rohacell.json layup-stack --block stack
draw stiffness samples/layups/angle_ply_t300_5208.json laminate-stiffness --block laminate
echo "drawn: $folder"
