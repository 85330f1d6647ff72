#include "zelmat/report/ReportStyle.h"

#include <array>
#include <cctype>
#include <cstdio>

#include "zelmat/text/Printable.h"
#include "zelmat/text/WrappedText.h"
#include "zelmat/text/XmlText.h"

namespace zelmat {

namespace {

/// Foreign text as a string of a style sheet: one line of it, everything that could end it as an escape.
std::string CssText(const std::string& text) {
    constexpr double kEms = 70.0;
    std::string css = "\"";
    for (const char symbol : ShortenedText(XmlCharacters(Printable(text)), kEms, 1.0)) {
        const auto byte = static_cast<unsigned char>(symbol);
        const bool plain = byte >= 0x80 || std::isalnum(byte) != 0 || symbol == ' ';
        if (plain) {
            css += symbol;
        } else {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\%02x ", byte);
            css += escape.data();
        }
    }
    return css + '"';
}

}  // namespace

std::string_view ReportStyle() {
    return R"css(
:root { color-scheme: light dark; --ground: #ffffff; --ink: #1c1c1c; --soft: #474747; --line: #b9b9b9;
  --band: #f1f3f5; --link: #0b3d91; --error: #8b0000; --warning: #5c3b00; }
@media (prefers-color-scheme: dark) { :root { --ground: #16181b; --ink: #ececec; --soft: #c3c6ca; --line: #555b62;
  --band: #22262b; --link: #a8c7ff; --error: #ffb3ad; --warning: #ffd58a; } }
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1.5rem; max-width: 60rem; background: var(--ground); color: var(--ink);
  font: 1rem/1.5 system-ui, "Helvetica Neue", Arial, sans-serif; overflow-wrap: anywhere; }
h1 { font-size: 1.9rem; line-height: 1.25; margin: 0 0 .5rem; }
h2 { font-size: 1.5rem; line-height: 1.3; margin: 3rem 0 .5rem; padding-top: .75rem; border-top: 3px solid var(--ink); }
h3 { font-size: 1.15rem; margin: 2rem 0 .5rem; }
a { color: var(--link); }
a:focus-visible { outline: 3px solid var(--link); outline-offset: 2px; }
.soft, figcaption, caption { color: var(--soft); }
.banner { border: 2px solid var(--warning); color: var(--warning); padding: .4rem .75rem; font-weight: 600; }
.wide { overflow-x: auto; }
table { border-collapse: collapse; margin: .75rem 0; font-size: .92rem; }
caption { text-align: left; padding: .25rem 0; white-space: nowrap; }
th, td { padding: .2rem .75rem; border-bottom: 1px solid var(--line); vertical-align: top; text-align: left; }
thead th { border-bottom: 2px solid var(--ink); background: var(--band); }
.numbers th, .numbers td { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
.numbers thead th { white-space: normal; vertical-align: bottom; }
.named th:first-child, .named td:first-child, .layers th:nth-child(2), .layers td:nth-child(2) { text-align: left; }
.layers td:nth-child(2) { white-space: normal; min-width: 8rem; }
.findings { min-width: 34rem; }
dl { display: grid; grid-template-columns: fit-content(16rem) minmax(0, 1fr); gap: .15rem 1rem; margin: .5rem 0; }
dt { color: var(--soft); }
dd { margin: 0; }
figure { margin: 1rem 0; }
img { display: block; max-width: 100%; height: auto; background: #ffffff; border: 1px solid var(--line); }
th, .error, .warning, .note, .findings td:nth-child(2) { overflow-wrap: normal; }
.error { color: var(--error); font-weight: 600; }
.warning { color: var(--warning); font-weight: 600; }
.sign { display: none; }
@page { size: A4; margin: 18mm 16mm;
  @bottom-right { content: "Page " counter(page) " of " counter(pages); font: 8pt/1.2 Arial, sans-serif; color: #333333; }
  @bottom-left { font: 8pt/1.2 Arial, sans-serif; color: #333333; } }
nav table { table-layout: fixed; width: 100%; }
@media (max-width: 40rem) {
  dl { grid-template-columns: minmax(0, 1fr); } dd { margin-bottom: .4rem; }
  caption { white-space: normal; min-width: 15rem; }
  nav th, nav td { padding: .2rem .3rem; }
}
@media print {
  :root { color-scheme: light; --ground: #ffffff; --ink: #000000; --soft: #333333; --line: #999999; --band: #eeeeee;
    --link: #000000; --error: #8b0000; --warning: #5c3b00; }
  body { max-width: none; padding: 0; font-size: 9.5pt; line-height: 1.35; }
  h1 { font-size: 17pt; } h2 { font-size: 14pt; margin-top: 0; } h3 { font-size: 11pt; margin-top: 6mm; }
  table { font-size: 8.5pt; }
  th, td { padding: .5mm 2.5mm; }
  .sheet { break-before: page; }
  h2, h3, caption { break-after: avoid; }
  dl { break-after: avoid; }
  dl, figure, tr, .banner, .end { break-inside: avoid; }
  thead, tbody tr:first-child { break-after: avoid; }
  tbody tr:last-child { break-before: avoid; }
  thead { display: table-header-group; }
  .wide { overflow: visible; }
  img { max-height: 104mm; width: auto; max-width: 100%; }
  .back { display: none; }
  .sign { display: flex; gap: 12mm; margin-top: 10mm; break-inside: avoid; }
  .sign span { flex: 1; border-top: 1px solid #000000; padding-top: 1mm; }
}
)css";
}

std::string SheetPageStyle(const std::string& id, const std::string& name) {
    return "#" + id + " { page: " + id + "; } @page " + id + " { @bottom-left { content: " + CssText(name) +
           "; } }\n";
}

}  // namespace zelmat
