#!/usr/bin/env python3
"""Opens the report of all samples, and one of a card that means harm, in Chromium: nothing on the console, no request
leaves the page, every picture has a size, links lead somewhere, tables have headings and hold what `show --json` prints.

Usage: report_page_test.py ZELMAT REPOSITORY
"""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

from browser import Browser

PROGRAM, ROOT = sys.argv[1], pathlib.Path(sys.argv[2])
SAMPLES = ROOT / "samples"
LSAN = {name: value for name, value in os.environ.items() if name == "LSAN_OPTIONS"}
failures = []

EVIL = "\"><script>window.harmed = 1</script><img src=x onerror='window.harmed = 1'> ]]> `id` \u202e\u0007 &lt; "

TABLES = """
[...document.querySelectorAll('section')].map(section => ({
  name: section.querySelector('h2').textContent,
  tables: [...section.querySelectorAll('table[data-block]')].map(table => ({
    block: table.dataset.block, table: table.dataset.table,
    columns: [...table.querySelectorAll('thead th')].map(th => ({name: th.dataset.name, unit: th.dataset.unit})),
    rows: [...table.querySelectorAll('tbody tr')].map(row => [...row.children].map(cell => cell.textContent)),
  }))}))
"""


def expect(condition, text):
    if not condition:
        failures.append(text)


def zelmat(*arguments):
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, check=False,
                          env={"XDG_CONFIG_HOME": "/dev/null/none", "LANG": "C.UTF-8", "PATH": os.environ["PATH"],
                               **LSAN})


def look_at(browser, page):
    """What has to hold of every page."""
    browser.open(page.as_uri())
    expect(browser.complaints() == [], f"{page.name}: the console says {browser.complaints()[:3]}")
    outside = [url for url in browser.requests() if not url.startswith(("data:", page.as_uri()))]
    expect(outside == [], f"{page.name}: it asks for {outside[:3]}")
    lost = browser.evaluate("[...document.images].filter(i => !(i.naturalWidth > 100 && i.width > 100 && i.height > 50"
                            " && i.alt && i.getAttribute('width') && i.getAttribute('height'))).length")
    expect(lost == 0, f"{page.name}: {lost} pictures without a size or a description")
    dead = browser.evaluate("[...document.links].filter(a => !a.getAttribute('href').startsWith('#') || "
                            "!document.getElementById(a.getAttribute('href').slice(1))).length")
    expect(dead == 0, f"{page.name}: {dead} links that lead nowhere")
    bare = browser.evaluate("[...document.querySelectorAll('table')].filter(t => !t.querySelector('thead th[scope]'))"
                            ".length")
    expect(bare == 0, f"{page.name}: {bare} tables without headings")
    twice = browser.evaluate("(ids => ids.length - new Set(ids).size)([...document.querySelectorAll('[id]')]"
                             ".map(e => e.id))")
    expect(twice == 0, f"{page.name}: {twice} ids stand twice")
    expect(browser.evaluate("document.doctype !== null && document.compatMode === 'CSS1Compat' && "
                            "document.documentElement.lang === 'en'"), f"{page.name}: not a page of standard HTML")
    wide = browser.evaluate("document.documentElement.scrollWidth - document.documentElement.clientWidth")
    expect(wide <= 0, f"{page.name}: {wide} pixels wider than the window")


def follow(browser):
    """A click on a link of the contents shows the sheet."""
    browser.evaluate("document.querySelector('nav a[href=\"#material-3\"]').click()")
    top = browser.evaluate("document.getElementById('material-3').getBoundingClientRect().top")
    expect(-1 <= top <= 100, f"the link leads to {top} pixels from the sheet")


def contrast(browser, scheme):
    """Every text over its own ground, by the WCAG's formula."""
    browser.call("Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": scheme}]})
    ratio = browser.evaluate("""(() => {
      const luminance = color => color.match(/[\\d.]+/g).slice(0, 3).map(Number).map(v => v / 255)
        .map(v => v <= 0.03928 ? v / 12.92 : ((v + 0.055) / 1.055) ** 2.4)
        .reduce((sum, v, i) => sum + v * [0.2126, 0.7152, 0.0722][i], 0);
      const ground = element => {
        const color = getComputedStyle(element).backgroundColor;
        return color === 'rgba(0, 0, 0, 0)' ? ground(element.parentElement) : luminance(color);
      };
      const hasText = element => [...element.childNodes].some(node => node.nodeType === 3 && node.data.trim());
      return Math.min(...[...document.body.querySelectorAll('*')].filter(hasText).map(element => {
        const ink = luminance(getComputedStyle(element).color), behind = ground(element);
        return (Math.max(ink, behind) + 0.05) / (Math.min(ink, behind) + 0.05);
      }));
    })()""")
    expect(ratio >= 7.0, f"{scheme}: a contrast of {ratio}")


def on_a_phone(browser):
    """Narrow tables are seen whole, wide ones scroll, and nothing else is wider than the window."""
    browser.call("Emulation.setDeviceMetricsOverride",
                 {"width": 360, "height": 740, "deviceScaleFactor": 1, "mobile": True})
    wide = browser.evaluate("document.documentElement.scrollWidth - document.documentElement.clientWidth")
    expect(wide <= 0, f"on a phone {wide} pixels wider than the window")
    cut = browser.evaluate("[...document.querySelectorAll('.wide')].filter(d => d.scrollWidth > d.clientWidth && "
                           "d.querySelectorAll('thead th').length === 1).length")
    expect(cut == 0, f"on a phone {cut} tables of one column are cut")
    browser.call("Emulation.clearDeviceMetricsOverride")


def compare(shown, section, card):
    """The tables of a sheet against `show --json`, value for value."""
    wanted = [(behavior["name"], table) for behavior in shown["behaviors"] for table in behavior["tables"]]
    behaviors = {name for name, _ in wanted}
    found = [table for table in section["tables"] if table["block"] in behaviors]
    expect(len(found) == len(wanted), f"{card}: {len(found)} tables, {len(wanted)} shown")
    for (block, table), on_page in zip(wanted, found):
        place = f"{card}: {block} {table['table']}"
        expect((on_page["block"], on_page["table"]) == (block, table["table"]), f"{place}: another table")
        expect(on_page["columns"] == table["columns"], f"{place}: {on_page['columns']} for {table['columns']}")
        values = [[None if cell == "–" else float(cell) for cell in row] for row in on_page["rows"]]
        expect(values == table["rows"], f"{place}: other values")


def main():
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        cards = sorted(SAMPLES.glob("*.json")) + sorted((SAMPLES / "forms").iterdir())
        layups = sorted((SAMPLES / "layups").glob("*.json"))
        page = folder / "report.html"
        made = zelmat("report", *cards, *layups, "--units", "si", "--output", page)
        expect(made.returncode == 0, f"report: {made.stderr}")
        evil = folder / "evil.json"
        evil.write_text(json.dumps({"name": EVIL, "description": EVIL, "class": "metal", "source": [EVIL, "x" * 10000],
                                    "elastic": {"temperature_dependent": True, "source": EVIL,
                                                "columns": ["youngs_modulus", "poissons_ratio", "temperature"],
                                                "rows": [[2.1e11, 0.3, 293.15], [2e11, 0.3, 393.15]]},
                                    "strength": {EVIL: EVIL}, EVIL: {EVIL: EVIL}}))
        evil_page = folder / "evil.html"
        # Two of one name, and a card with errors.
        zelmat("report", evil, evil, SAMPLES / "faulty" / "steel_five_faults.json", "--title", EVIL, "--output",
               evil_page)
        browser = Browser()
        try:
            look_at(browser, page)
            follow(browser)
            contrast(browser, "light")
            contrast(browser, "dark")
            on_a_phone(browser)
            sections = browser.evaluate(TABLES)
            expect(len(sections) == len(cards) + len(layups), f"{len(sections)} sheets")
            for card, section in zip(cards, sections):
                shown = json.loads(zelmat("show", card, "--json").stdout)["material"]
                expect(section["name"] == shown["name"], f"{card.name}: the sheet of {section['name']}")
                compare(shown, section, card.name)
            look_at(browser, evil_page)
            contrast(browser, "light")
            contrast(browser, "dark")
            expect(browser.evaluate("window.harmed") is None, "a script from a card ran")
            expect(browser.evaluate("document.scripts.length") == 0, "there is a script on the page")
        finally:
            browser.close()
    for failure in failures:
        print(failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
