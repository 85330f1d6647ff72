#include "zelmat/report/SheetParts.h"

#include <cmath>

#include "zelmat/materials/InUnits.h"
#include "zelmat/pictures/GnuplotText.h"
#include "zelmat/pictures/SvgColumn.h"
#include "zelmat/quantities/NumberColumn.h"
#include "zelmat/text/Base64.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

std::string Trimmed(const std::string& text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

void OpenTable(HtmlWriter& html, const HtmlWriter::Attributes& attributes, const std::string& caption) {
    html.Open("div", {{"class", "wide"}});
    html.Open("table", attributes);
    if (!caption.empty()) html.Text("caption", caption);
}

void CloseTable(HtmlWriter& html) {
    html.Close("tbody");
    html.Close("table");
    html.Close("div");
}

void WriteRow(HtmlWriter& html, const std::vector<std::string>& cells) {
    html.Raw("<tr>\n");
    for (const std::string& cell : cells) html.Text("td", Trimmed(cell));
    html.Raw("</tr>\n");
}

void WriteFindings(HtmlWriter& html, const Findings& findings) {
    html.Open("div", {{"class", "wide"}});
    html.Raw("<table class=\"findings\">\n<thead>\n<tr>\n");
    for (const char* heading : {"Kind", "Code", "Text", "Line"}) html.Text("th", heading, {{"scope", "col"}});
    html.Raw("</tr>\n</thead>\n<tbody>\n");
    for (const Finding& finding : findings.All()) {
        const std::string details = finding.details.empty() ? "" : " (" + WordList(finding.details) + ")";
        html.Raw("<tr>\n");
        html.Text("td", KindWord(finding.kind), {{"class", KindWord(finding.kind)}});
        html.Text("td", finding.code);
        html.Text("td", finding.text + details);
        html.Text("td", finding.place.line > 0 ? std::to_string(finding.place.line) : "–");
        html.Raw("</tr>\n");
    }
    CloseTable(html);
}

}  // namespace

void WriteFacts(HtmlWriter& html, const std::vector<ReportFact>& facts) {
    if (facts.empty()) return;
    html.Open("dl");
    for (const ReportFact& fact : facts) {
        html.Text("dt", fact.name);
        html.Lines("dd", fact.value, {{"dir", "auto"}});
    }
    html.Close("dl");
}

void WriteTable(HtmlWriter& html, const Table& stored, const std::string& block, const std::string& caption,
                const UnitChoice& units) {
    const Table table = InUnits(stored, units);
    OpenTable(html, {{"class", "numbers"}, {"data-block", block}, {"data-table", table.kind->name}}, caption);
    html.Raw("<thead>\n<tr>\n");
    std::vector<std::vector<std::string>> columns;
    for (const Column& column : table.columns) {
        const std::string title = column.kind.title.empty() ? "(no name)" : column.kind.title;
        html.Text("th", TitleWithUnit(title, column.kind.unit),
                  {{"scope", "col"}, {"data-name", column.kind.name}, {"data-unit", column.kind.unit}});
        columns.push_back(NumberColumn(column.values));
    }
    html.Raw("</tr>\n</thead>\n<tbody>\n");
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        std::vector<std::string> cells;
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const bool missing = std::isnan(table.columns[column].values[row]);
            cells.push_back(missing ? "–" : columns[column][row]);
        }
        WriteRow(html, cells);
    }
    CloseTable(html);
}

void WriteColumns(HtmlWriter& html, const std::string& caption, const std::vector<SheetColumn>& columns,
                  const std::string& style) {
    OpenTable(html, {{"class", style}}, caption);
    html.Raw("<thead>\n<tr>\n");
    for (const SheetColumn& column : columns) html.Text("th", column.heading, {{"scope", "col"}});
    html.Raw("</tr>\n</thead>\n<tbody>\n");
    for (std::size_t row = 0; row < columns.front().cells.size(); ++row) {
        std::vector<std::string> cells;
        for (const SheetColumn& column : columns) cells.push_back(column.cells[row]);
        WriteRow(html, cells);
    }
    CloseTable(html);
}

void WritePicture(HtmlWriter& html, const std::string& svg, const std::string& description,
                  const std::string& caption) {
    html.Open("figure");
    html.Empty("img", {{"width", SvgAttribute(svg, "width")},
                       {"height", SvgAttribute(svg, "height")},
                       {"alt", description},
                       {"src", "data:image/svg+xml;base64," + Base64(svg)}});
    html.Text("figcaption", caption, {{"dir", "auto"}});
    html.Close("figure");
}

void WritePicture(HtmlWriter& html, const ReportPicture& picture) {
    WritePicture(html, picture.svg, Description(picture.picture), picture.picture.what);
}

void WriteEnd(HtmlWriter& html, const Findings& findings) {
    const bool few = findings.All().size() < 10;
    html.Open("div", {{"class", few ? "end" : "long"}});
    html.Text("h3", "Findings");
    if (findings.All().empty()) {
        html.Text("p", "No findings.");
    } else {
        // A finding guesses at units ("in MPa it would be plausible"): of the number as it is stored.
        html.Text("p", "Numbers are those that documents hold, in SI units.");
        WriteFindings(html, findings);
    }
    html.Raw("<p class=\"sign\"><span>Reviewed by</span> <span>Date</span> <span>Signature</span></p>\n");
    html.Raw("<p class=\"back\"><a href=\"#contents\">Contents</a></p>\n");
    html.Close("div");
}

}  // namespace zelmat
