#!/usr/bin/env python3
"""Holds docs/output.schema.json against what every command prints with --json, by a validator that is not ours
(Debian's python3-jsonschema). A key that the schema does not name fails, too.

Usage: output_schema_test.py ZELMAT REPOSITORY
"""

import copy
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

import jsonschema

PROGRAM, ROOT = sys.argv[1], pathlib.Path(sys.argv[2])
DATA, SAMPLES = ROOT / "tests" / "zelmat" / "data", ROOT / "samples"
LSAN = {name: value for name, value in os.environ.items() if name == "LSAN_OPTIONS"}
failures = []


def zelmat(*arguments, home="/dev/null/none"):
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, check=False,
                          env={"XDG_CONFIG_HOME": str(home), "LANG": "C.UTF-8", "PATH": os.environ["PATH"], **LSAN})


def closed(schema):
    """The same schema, in which an object has no keys but those that are named."""
    if isinstance(schema, list):
        return [closed(entry) for entry in schema]
    if not isinstance(schema, dict):
        return schema
    result = {key: closed(value) for key, value in schema.items()}
    if result.get("type") == "object" and "properties" in result and "allOf" not in result:
        result["additionalProperties"] = False
    return result


def runs(folder):
    """Command lines of every command: what works, what is refused, what cannot be read."""
    cards = sorted(SAMPLES.glob("*.json"))
    target = pathlib.Path(folder) / "out.json"
    yield from (["show", card] for card in cards)
    yield ["show", SAMPLES / "natural_rubber_treloar.json", "--all-models", "--units", "us"]
    yield ["show", SAMPLES / "faulty" / "steel_five_faults.json", "--keep-going"]
    yield ["show", DATA / "ragged.json"]
    yield ["show", DATA / "cut_elastic.json"]
    yield ["show", "/no-such-card"]
    yield ["show"]
    yield ["summary", *cards]
    yield ["summary", DATA / "ragged.json"]
    yield ["check", *cards, SAMPLES / "faulty" / "steel_five_faults.json", "/no-such-card"]
    yield ["check", SAMPLES / "layups" / "kaw_0_30_m45.json", DATA / "layup_no_material.json"]
    yield ["check"]
    yield ["convert", "--to", "csv", cards[0]]
    yield ["convert", "--to", "fcmat", *cards]
    yield ["convert", "--to", "fcmat", *cards, "--output", folder]
    yield ["convert", "--to", "json", cards[0], "--output", target]
    yield ["convert", "--to", "json", cards[1], "--output", target]
    yield ["convert", "--to", "xml", cards[0]]
    deck = pathlib.Path(folder) / "deck.inp"
    yield ["export", "--to", "calculix", cards[0]]
    yield ["export", "--to", "calculix", *cards, "--output", deck]
    yield ["export", "--carries"]
    yield ["export", cards[0]]
    yield ["import", deck, "--units", "si"]
    yield ["import", deck, "--units", "si", "--output", target]
    yield ["import", deck]
    yield ["import", "/no-such-deck", "--units", "si"]
    yield ["prove", SAMPLES / "foam_rohacell71.json", "--solver", "ccx"]
    yield ["prove", SAMPLES / "foam_rohacell71.json", "--solver", "no-such-solver"]
    yield ["new", "--card", "M"]
    yield ["new", "--card", "M", "--output", target]
    yield ["new", "--schema"]
    yield ["new"]
    yield ["upgrade", SAMPLES / "older" / "copper_and_rubber.json"]
    yield ["upgrade", SAMPLES / "older" / "copper_and_rubber.json", "--output", target]
    yield ["upgrade", cards[0]]
    yield from (["layup", card] for card in sorted((SAMPLES / "layups").glob("*.json")))
    yield ["layup", "[0/90]s", "--material", "a", "--thickness", "1mm", "--svg", target.with_suffix(".svg")]
    yield ["layup", DATA / "layup_no_material.json"]
    yield ["layup", "[0/", "--material", "a", "--thickness", "1mm"]
    yield ["plot", cards[0], "--output", target.with_suffix(".svg")]
    yield ["plot", SAMPLES / "layups" / "kaw_0_30_m45.json", "--output", folder]
    yield ["plot", cards[0], "--output", target.with_suffix(".jpg")]
    yield ["plot", DATA / "ragged.json", "--output", folder]
    yield ["plot"]
    rubber, copper = SAMPLES / "natural_rubber_treloar.json", SAMPLES / "copper_ofhc.json"
    yield ["at", copper, "plastic", "--plastic-strain", "0.1", "--temperature", "600K"]
    yield ["at", SAMPLES / "gasket_fibre_illustrative.json", "gasket", "--closure", "0.1mm"]
    yield ["at", rubber, "hyperelastic"]
    yield ["at", copper, "density", "--closure", "1mm"]
    yield ["response", rubber, "--model", "VAN_DER_WAALS", "--stretch", "2", "12"]
    yield ["response", copper]
    yield ["fit", rubber, "--model", "VAN_DER_WAALS"]
    yield ["fit", rubber, "--all-models"]
    yield ["fit", copper, "--model", "OGDEN"]
    yield ["true-curve", DATA / "tensile_test.csv", "--youngs-modulus", "210GPa"]
    yield ["true-curve", copper, "--youngs-modulus", "210GPa"]
    yield ["laminate", "[0/90]s", "--ply", "E1=181GPa,E2=10.3GPa,nu12=0.28,G12=7.17GPa,Xt=1GPa,Xc=1GPa,Yt=1GPa,Yc=1GPa,S=1GPa",
           "--thickness", "0.125mm", "--N", "100,0,0N/mm"]
    yield from (["laminate", card] for card in sorted((SAMPLES / "layups").glob("*.json")))
    yield ["laminate", "[0/90]s"]
    yield ["constants", "E=210GPa", "nu=0.3"]
    yield ["constants", "E=210GPa"]
    yield ["report", cards[0], "--output", target.with_suffix(".html")]
    yield ["report", "/no-such-card", "--output", target.with_suffix(".html")]
    yield ["report"]
    yield ["unit", "210 GPa", "psi"]
    yield ["unit", "210 GPa", "kg"]
    yield ["unit", "--list", "all"]
    yield ["config"]
    yield ["config", "units=us"]
    yield ["config", "units=none"]
    yield ["catalog"]
    yield ["catalog", "MRVHyperelasticityLT"]
    yield ["catalog", "OtherLT"]
    document = pathlib.Path(folder) / "a.zeldoc"
    yield ["new", document]
    yield ["new", document]
    yield ["add", document, *cards]
    yield ["add", document, cards[0]]
    yield ["list", document]
    yield ["show", document]
    yield ["show", document, "OFHC"]
    yield ["set", document, "OFHC", "density=8.94 g/cm^3", "class=copper"]
    yield ["set", document, "OFHC", "density=8.94"]
    yield ["rename", document, "#1", "One"]
    yield ["copy", document, "One"]
    yield ["copy", document, document.with_name("b.zeldoc")]
    yield ["remove", document, "One (2)"]
    yield ["layup", document, "add", "Skin", "[0/90]s", "--material", "One", "--thickness", "1mm"]
    yield ["layup", document, "list"]
    yield ["layup", document, "show", "Skin"]
    yield ["layup", document, "remove", "None"]
    yield ["extract", document, "One"]
    yield ["extract", document, "One", "--output", target]
    yield ["extract", document]
    yield ["find", document, "density<3000kg/m3"]
    yield ["find", document, "density"]
    yield ["diff", f"{document}#1", document]
    yield ["diff", document, "/no-such-card"]
    yield ["compact", document]
    yield ["compact", cards[0]]
    yield ["doctor", document, cards[0]]
    yield ["completion", "bash"]
    yield ["completion", "ksh"]
    yield ["upgrade", document, document.with_name("b.zeldoc"), "/no-such-document"]
    yield ["upgrade", SAMPLES / "older" / "copper_and_rubber.json", "--output", document.with_name("c.zeldoc")]
    yield ["upgrade", document]
    yield ["log", document]
    yield ["undo", document]
    yield ["redo", document, "2"]
    yield ["redo", document]
    yield ["no-such-command"]
    yield ["help", "no-such-command"]


def broken(output):
    """The same output with faults that a reader could not live with."""
    for key in ("version", "command", "findings"):
        without = copy.deepcopy(output)
        del without[key]
        yield f"without {key}", without
    yield "of another version", {**output, "version": 2}
    material = copy.deepcopy(output)
    del material["material"]["behaviors"][0]["tables"][0]["columns"][0]["unit"]
    yield "with a column without its unit", material
    rows = copy.deepcopy(output)
    rows["material"]["behaviors"][0]["tables"][0]["rows"][0][0] = "210 GPa"
    yield "with a text for a number", rows
    yield "with a finding without a code", {**output, "findings": [{"kind": "error", "file": "", "line": 0}]}


def main():
    schema = json.loads((ROOT / "docs" / "output.schema.json").read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    definitions = schema["$defs"]
    validator = jsonschema.Draft202012Validator(closed(schema))

    told = set()
    with tempfile.TemporaryDirectory() as folder:
        for run in runs(folder):
            words = " ".join(map(str, run))
            result = zelmat(*run, "--json", home=folder)
            try:
                output = json.loads(result.stdout)
            except json.JSONDecodeError as problem:
                failures.append(f"{words}: no JSON: {problem}: {result.stdout[:200]!r} {result.stderr[:200]!r}")
                continue
            for error in validator.iter_errors(output):
                failures.append(f"{words}: {error.json_path}: {error.message[:300]}")
            command = output.get("command")
            own = definitions.get(f"command_{command}", {}).get("properties", {})
            for key in set(output) - set(own) - set(schema["properties"]):
                failures.append(f"{words}: the schema does not name the key {key}")
            if command and set(own) & set(output):
                told.add(command)

    material = json.loads(zelmat("show", SAMPLES / "steel_s355.json", "--json").stdout)
    for what, output in broken(material):
        if validator.is_valid(output):
            failures.append(f"the schema takes an output {what}")

    described = {name.removeprefix("command_") for name in definitions if name.startswith("command_")}
    listed = re.findall(r"^  ([a-z][a-z-]*) {2,}", zelmat("help").stdout, re.MULTILINE)
    if len(listed) < 9:
        failures.append("zelmat help lists no commands")
    for command in listed:
        if command not in described:
            failures.append(f"docs/output.schema.json does not describe {command}: add command_{command} and a run above")
    for command in sorted(described - told):
        failures.append(f"no run above prints what the schema says of {command}")
    for failure in failures:
        print("FAILED:", failure)
    return 1 if failures else 0


sys.exit(main())
