#!/usr/bin/env python3
"""Reports are valid HTML5, whatever cards hold: neither the parser that follows the standard letter by letter (html5lib)
nor the one that knows which elements and attributes there are and what they may hold (tidy) has a word to say.

Usage: html_validity_test.py ZELMAT REPOSITORY
"""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

import html5lib

PROGRAM, ROOT = sys.argv[1], pathlib.Path(sys.argv[2])
LSAN = {name: value for name, value in os.environ.items() if name == "LSAN_OPTIONS"}
failures = []

NAMES = ["<b>&amp;\"'</style></script>-->", "]]> <![CDATA[", "\u202e\u0007\u0000\ufffe", "a\nb\r\nc", "x" * 10000, " ",
         "&bogus;&#0;", "`id` ${x} @import url(a) \\3c"]


def faults(page):
    """What the two validators say of a page."""
    parser = html5lib.HTMLParser()
    parser.parse(page)
    said = [f"html5lib: {place} {code}" for place, code, _ in parser.errors]
    tidy = subprocess.run(["tidy", "-errors", "-quiet", "-utf8", "--drop-empty-elements", "no"], input=page,
                          capture_output=True, text=True, check=False)
    return said + [f"tidy: {line}" for line in tidy.stderr.splitlines()]


def expect_valid(what, page):
    said = faults(page)
    if said:
        failures.append(f"{what}: {said[:5]}")


def zelmat(*arguments):
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, check=False,
                          env={"XDG_CONFIG_HOME": "/dev/null/none", "LANG": "C.UTF-8", "PATH": os.environ["PATH"],
                               **LSAN})


def report(what, folder, *arguments):
    page = folder / "page.html"
    page.unlink(missing_ok=True)
    run = zelmat("report", *arguments, "--output", page)
    if page.exists():
        expect_valid(what, page.read_text())
    else:
        failures.append(f"{what}: no page: {run.stderr[:300]}")


def card_named(name):
    return {"name": name, "description": name, "class": name, "source": [name], "notes": name,
            "elastic": {"temperature_dependent": True, "source": name,
                        "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
                        "rows": [[2.1e11, 0.3, 293.15], [2e11, 0.3, 393.15]]},
            "strength": {name: name}}


def validators_can_fail():
    """They would be of no use otherwise."""
    begin = '<!DOCTYPE html>\n<html lang="en"><head><title>x</title></head><body>'
    broken = {"<p>a<div>b</div></p>": "html5lib", "<p>&bogus;</p>": "html5lib", '<img src="data:,">': "tidy",
              '<p id="a">x</p><p id="a">x</p>': "tidy", "<dl><p>x</p></dl>": "tidy", "<font>x</font>": "tidy"}
    for markup, validator in broken.items():
        said = faults(begin + markup + "</body></html>\n")
        if not any(line.startswith(validator) for line in said):
            failures.append(f"{validator} takes {markup}")


def main():
    validators_can_fail()
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        samples = sorted((ROOT / "samples").glob("*.json")) + sorted((ROOT / "samples" / "layups").glob("*.json"))
        report("samples", folder, *samples)
        report("a card with errors", folder, ROOT / "samples" / "faulty" / "steel_five_faults.json")
        cards = []
        for number, name in enumerate(NAMES):
            cards.append(folder / f"card{number}.json")
            cards[-1].write_text(json.dumps(card_named(name)))
        report("names that mean harm, each twice", folder, *cards, *cards, "--title", NAMES[0])
        document = folder / "a.zeldoc"
        zelmat("new", document)
        zelmat("add", document, cards[0], ROOT / "samples" / "copper_ofhc.json")
        zelmat("layup", document, "add", NAMES[0], "[0/90]s", "--material", "OFHC", "--thickness", "1mm")
        report("a document with changes", folder, document, "--since", "0")
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
