#!/usr/bin/env bash
# Sets up, builds the program and shows what it does: real material cards, read, written through the behaviors
# into a document, read back from the document and printed; an older document upgraded; all cards in one document.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

echo "== Dependencies"
tools/install-dependencies.sh

echo "== Building zelmat (preset release)"
cmake --preset release >/dev/null
cmake --build --preset release --target zelmat

zelmat=build/release/bin/zelmat
run() {
    echo
    echo "== zelmat $*"
    "$zelmat" "$@"
}

# Structural steel with its temperature tables, a Johnson-Cook metal, the gasket, a user's own routine.
for card in steel_s355 copper_ofhc gasket_fibre_illustrative user_routine_illustrative; do
    run show "samples/$card.json"
done

# Rubber: a material holds one of the card's fits, the first or the one that is asked for.
run show samples/natural_rubber_treloar.json
run show samples/natural_rubber_treloar.json --model MOONEY_RIVLIN --variant planar

# A card as analysts write it, in MPa, GPa, % and degC; the same steel as the small FCMat card that CAD users share.
run show samples/forms/steel_s235_mpa_degc.json
run show samples/forms/steel_s235.FCMat

# Tables in CSV become a JSON card and CSV again: numbers and units stay as written, so diff has nothing to say.
converted=$(mktemp --suffix=.json)
run convert samples/forms/aluminium_6061_t6.csv --to json --output "$converted"
"$zelmat" convert "$converted" --to csv | diff samples/forms/aluminium_6061_t6.csv -
echo "CSV, JSON and CSV again: no difference"

# What the numbers mean: fits to the rubber's tests ranked, where one becomes unstable, the copper's stress at 600 K, the
# laminate's moduli.
run fit samples/natural_rubber_treloar.json --all-models
run response samples/natural_rubber_treloar.json --model POLYNOMIAL
run at samples/copper_ofhc.json plastic --plastic-strain 0.1 --temperature 600K
run constants E=210GPa nu=0.3 density=7850kg/m3
run laminate "[0/45/-45/90]s" --ply E1=181GPa,E2=10.3GPa,nu12=0.28,G12=7.17GPa --thickness 0.125mm

# A document of an older release; the upgraded one needs nothing more.
upgraded=$(mktemp --suffix=.json)
trap 'rm -f "$converted" "$upgraded"' EXIT
run upgrade samples/older/copper_and_rubber.json --output "$upgraded"
run upgrade "$upgraded"

# A document in a file: all sample cards, a hardening curve from a CSV file with its units, one number; then back and forth
# in its history. diff ends with 1 because there are differences.
documents=$(mktemp -d)
trap 'rm -rf "$converted" "$upgraded" "$documents"' EXIT
document=$documents/lab.zeldoc
run new "$document"
run add "$document" samples/*.json
cat >"$documents/curve.csv" <<'CSV'
yield_stress [MPa],plastic_strain [%],temperature [degC]
355,0,20
420,5,20
480,12,20
CSV
run set "$document" "Structural steel S235" plastic="$documents/curve.csv"
run set "$document" "OFHC" density="8.94 g/cm^3"
run layup "$document" add Skin "[0/45/-45/90]s" --material "CFRP" --thickness 0.125mm
run layup "$document" list
run list "$document"
run find "$document" 'density<3000kg/m3 and elastic.youngs_modulus@20degC>60GPa'
run diff "$document#1" "$document" || echo "(exit code $?)"
run undo "$document" 2
run redo "$document"
run log "$document"

# A program that is killed in the middle of its work: the document is the old or the new one, and opens again.
for delay in 0.01 0.02 0.04 0.08; do
    "$zelmat" add "$document" samples/forms/*.FCMat samples/forms/*.csv --keep-going >/dev/null 2>&1 &
    killed=$!
    sleep "$delay"
    kill -KILL "$killed" 2>/dev/null || true
    wait "$killed" 2>/dev/null || true
done
run doctor "$document"
run log "$document"

# All materials in one document in memory.
run summary samples/*.json

# What the checks find on a card with five faults; errors end the command with 1.
run check samples/faulty/steel_five_faults.json || echo "(exit code $?)"

# A quasi-isotropic laminate: created in a document, checked, drawn.
run layup "[0/45/-45/90]s" --material "T300/5208" --thickness 0.125mm
run layup samples/layups/quasi_isotropic_t300_5208.json --section composite --svg build/quasi_isotropic.svg

# Pictures and a report of all samples, to be opened in a browser.
run plot samples/steel_s355.json --block plastic --output build/steel_s355_hardening.svg
run report samples/*.json samples/layups/*.json --title "Samples" --output build/samples.html || echo "(exit code $?)"
echo
echo "The report of all samples: $root/build/samples.html"
# Input for a solver, with what it has no place for, and the solver's own answers beside the formulas.
deck=$(mktemp --suffix=.inp)
trap 'rm -f "$converted" "$upgraded" "$deck"' EXIT
for card in steel_s355 natural_rubber_treloar; do
    run export "samples/$card.json" --to calculix --units mm-t-s --output "$deck"
    run prove "samples/$card.json" --solver ccx --units mm-t-s
done
