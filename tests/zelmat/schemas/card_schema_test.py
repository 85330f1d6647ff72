#!/usr/bin/env python3
"""Holds docs/material-card.schema.json against real cards, by a validator that is not ours (Debian's
python3-jsonschema), and against the program: what the schema refuses, zelmat refuses.

Usage: card_schema_test.py ZELMAT REPOSITORY
"""

import json
import pathlib
import subprocess
import sys
import tempfile

import jsonschema

PROGRAM, ROOT = sys.argv[1], pathlib.Path(sys.argv[2])
SCHEMA_FILE = ROOT / "docs" / "material-card.schema.json"
failures = []


def expect(holds, what):
    if not holds:
        failures.append(what)


def zelmat(*arguments, text=None):
    return subprocess.run([PROGRAM, *arguments], input=text, capture_output=True, text=True, check=False)


def elastic(**changes):
    return {"temperature_dependent": False, "columns": ["youngs_modulus", "poissons_ratio"],
            "rows": [[210e9, 0.3]], **changes}


def plastic(**changes):
    return {"temperature_dependent": False, "hardening": "isotropic",
            "columns": ["yield_stress", "plastic_strain", "temperature"], "rows": [[355e6, 0, 293.15]], **changes}


def fit(**changes):
    return {"model": "OGDEN", "order": 1, "temperature_dependent": False, "columns": ["mu_1", "alpha_1"],
            "rows": [[1e6, 2]], **changes}


def gasket(**changes):
    return {"loading": {"temperature_dependent": False, "columns": ["pressure", "closure", "temperature"],
                        "rows": [[0, 0, 293.15], [1e6, 1e-5, 293.15], [2e6, 2e-5, 293.15]]}, **changes}


def without(block, key):
    return {name: value for name, value in block.items() if name != key}


# Cards that schema and program take.
GOOD = {
    "nothing but a name": {"name": "M"},
    "comments and unknown keys": {"//": "x", "name": "M", "colour": "red", "elastic": elastic(**{"//": 1, "x": 2})},
    "a list of cards": [{"name": "a"}, {"name": "b", "elastic": elastic()}],
    "units of the card and of a column": {"name": "M", "units": {"stress": "MPa", "thermal_expansion": "1e-6/K"},
                                          "elastic": elastic(columns=["E [GPa]", "nu"], rows=[[210, 0.3]])},
    "the names of the field": {"name": "M", "elastic": elastic(columns=["YOUNG_MODULUS", "Poisson's ratio"])},
    "no temperature column where none is needed": {"name": "M", "elastic": elastic()},
    "a temperature column": {"name": "M", "elastic": elastic(
        temperature_dependent=True, columns=["youngs_modulus", "poissons_ratio", "T [degC]"],
        rows=[[210e9, 0.3, 20]])},
    "compressibility or none": {"name": "M", "hyperelastic": [fit(), fit(columns=["mu_1", "alpha_1", "D1"],
                                                                         rows=[[1e6, 2, 1e-9]])]},
    "a gasket": {"name": "M", "gasket": gasket(yield_onset={"method": "closure", "closure_value": "0.1 mm"})},
    "properties beside the blocks": {"name": "M", "E": "210 GPa", "nu": 0.3, "rho": "7850 kg/m3", "specific_heat": 460},
    "a table of one row, value by value": {"name": "M", "elastic": {"E": "210 GPa", "nu": 0.3}, "plastic": {
        "hardening": "johnson-cook", "A": "90 MPa", "B": "292 MPa", "n": 0.31, "m": 1.09,
        "melting_temperature": "1083 degC", "transition_temperature": "25 degC"}},
    "a number with its unit": {"name": "M", "thermal_expansion": {
        "temperature_dependent": False, "columns": ["alpha"], "rows": [[1.2e-5]], "reference_temperature": "20 degC"}},
}

# Cards that both refuse.
BAD = {
    "no name": {"elastic": elastic()},
    "a name that is a number": {"name": 1},
    "a newer version": {"name": "M", "version": 2},
    "an empty list": [],
    "a text": "card",
    "a flag in words": {"name": "M", "illustrative": "yes"},
    "a source that is a number": {"name": "M", "source": [1]},
    "an unknown quantity": {"name": "M", "units": {"streß": "MPa"}},
    "a unit that is no text": {"name": "M", "units": {"stress": 1e6}},
    "a block that is a list": {"name": "M", "elastic": [1]},
    "no flag": {"name": "M", "elastic": without(elastic(), "temperature_dependent")},
    "a flag that is a number": {"name": "M", "elastic": elastic(temperature_dependent=0)},
    "no columns": {"name": "M", "elastic": without(elastic(), "columns")},
    "no rows": {"name": "M", "elastic": without(elastic(), "rows")},
    "empty rows": {"name": "M", "elastic": elastic(rows=[])},
    "a row that is a number": {"name": "M", "elastic": elastic(rows=[1, 2])},
    "a text for a number": {"name": "M", "elastic": elastic(rows=[["210e9", 0.3]])},
    "null for a number": {"name": "M", "elastic": elastic(rows=[[None, 0.3]])},
    "an unknown column": {"name": "M", "elastic": elastic(columns=["youngs_modulus", "poisons_ratio"])},
    "a missing column": {"name": "M", "elastic": elastic(columns=["youngs_modulus"], rows=[[210e9]])},
    "a repeated column": {"name": "M", "elastic": elastic(columns=["youngs_modulus", "youngs_modulus"])},
    "a temperature column without the flag": {"name": "M", "elastic": elastic(
        columns=["youngs_modulus", "poissons_ratio", "temperature"], rows=[[210e9, 0.3, 293]])},
    "the flag without a temperature column": {"name": "M", "elastic": elastic(temperature_dependent=True)},
    "a hardening curve without temperatures": {"name": "M", "plastic": plastic(
        columns=["yield_stress", "plastic_strain"], rows=[[355e6, 0]])},
    "no hardening": {"name": "M", "plastic": without(plastic(), "hardening")},
    "an unknown hardening": {"name": "M", "plastic": plastic(hardening="mixed")},
    "the columns of another hardening": {"name": "M", "plastic": plastic(hardening="johnson-cook")},
    "a stress that is neither": {"name": "M", "plastic": plastic(stress="nominal")},
    "a fit outside a list": {"name": "M", "hyperelastic": fit()},
    "no fits": {"name": "M", "hyperelastic": []},
    "an unknown model": {"name": "M", "hyperelastic": [fit(model="HOOKE")]},
    "an order too high": {"name": "M", "hyperelastic": [fit(order=7)]},
    "an order that is no whole number": {"name": "M", "hyperelastic": [fit(order=1.5)]},
    "coefficients of another model": {"name": "M", "hyperelastic": [fit(columns=["C10", "C01"])]},
    "constants in words": {"name": "M", "user_material": {"type": "MECHANICAL", "constants": ["a"]}},
    "an unknown type": {"name": "M", "user_material": {"type": "OPTICAL", "constants": [1]}},
    "a gasket without loading": {"name": "M", "gasket": {}},
    "a group that is a number": {"name": "M", "gasket": gasket(yield_onset=1)},
    "an unknown method": {"name": "M", "gasket": gasket(yield_onset={"method": "none"})},
    "a reference without a number": {"name": "M", "thermal_expansion": {
        "temperature_dependent": False, "columns": ["alpha"], "rows": [[1e-5]], "reference_temperature": "warm"}},
    "a block that is a word": {"name": "M", "density": "heavy"},
    "a block of nothing": {"name": "M", "elastic": {}},
    "test data of no kind": {"name": "M", "test_data": {"uniaxial": {"columns": ["stretch"], "rows": [[1]]}}},
}


def main():
    text = SCHEMA_FILE.read_text(encoding="utf-8")
    expect(zelmat("new", "--schema").stdout == text, "docs/material-card.schema.json is not what zelmat new --schema"
                                                     " prints: zelmat new --schema > docs/material-card.schema.json")
    schema = json.loads(text)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)

    samples = sorted((ROOT / "samples").glob("*.json")) + sorted((ROOT / "samples" / "faulty").glob("*.json"))
    expect(len(samples) > 15, "there are no samples")
    for sample in samples:
        card = json.loads(sample.read_text(encoding="utf-8"))
        for error in validator.iter_errors(card):
            expect(False, f"{sample.name}: {error.json_path}: {error.message}")
        written = zelmat("convert", "--keep-going", "--to", "json", str(sample))
        expect(validator.is_valid(json.loads(written.stdout)), f"{sample.name}: what convert writes is refused")

    # Every number of a template is still to be filled in.
    template = zelmat("new", "--card", "M").stdout
    expect(not validator.is_valid(json.loads(template)), "an empty template is taken")
    expect(validator.is_valid(json.loads(template.replace("null", "1"))), "a filled template is refused")

    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "card.json"
        for cards, good in ((GOOD, True), (BAD, False)):
            for what, card in cards.items():
                file.write_text(json.dumps(card), encoding="utf-8")
                expect(validator.is_valid(card) == good, f"the schema on: {what}")
                run = zelmat("convert", "--keep-going", "--to", "json", str(file))
                expect((run.returncode == 0) == good, f"zelmat on: {what}: {run.stderr}")

    for failure in failures:
        print("FAILED:", failure)
    return 1 if failures else 0


sys.exit(main())
