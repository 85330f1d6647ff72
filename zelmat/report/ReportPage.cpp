#include "zelmat/report/ReportPage.h"

#include "zelmat/report/LayupSheet.h"
#include "zelmat/report/MaterialSheet.h"
#include "zelmat/report/ReportStyle.h"
#include "zelmat/report/SheetParts.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WordList.h"
#include "zelmat/text/WrappedText.h"
#include "zelmat/text/XmlText.h"

namespace zelmat {

namespace {

constexpr const char* kChanges = "changes";

std::string MaterialId(std::size_t index) {
    return "material-" + std::to_string(index + 1);
}
std::string LayupId(std::size_t index) {
    return "layup-" + std::to_string(index + 1);
}

void WriteHead(HtmlWriter& html, const ReportContent& content) {
    html.Raw("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n");
    // Nothing is loaded and nothing runs, whatever a name from a card may hold.
    html.Raw(
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; "
        "style-src 'unsafe-inline'\">\n");
    html.Raw("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
    html.Text("title", content.title);
    html.Raw("<style>");
    html.Raw(std::string(ReportStyle()));
    for (std::size_t i = 0; i < content.materials.size(); ++i) {
        html.Raw(SheetPageStyle(MaterialId(i), content.materials[i].given.name));
    }
    for (std::size_t i = 0; i < content.layups.size(); ++i) {
        html.Raw(SheetPageStyle(LayupId(i), content.layups[i].card.name));
    }
    if (!content.since.empty()) html.Raw(SheetPageStyle(kChanges, "Changes"));
    html.Raw("</style>\n</head>\n<body>\n");
}

std::string Count(const ReportContent& content) {
    std::vector<std::string> counts = {CountText(content.materials.size(), "material")};
    if (!content.layups.empty()) counts.push_back(CountText(content.layups.size(), "layup"));
    std::size_t findings = 0;
    for (const ReportMaterial& material : content.materials) findings += material.findings.All().size();
    for (const ReportLayup& layup : content.layups) findings += layup.findings.All().size();
    counts.push_back(findings == 0 ? "no findings" : CountText(findings, "finding"));
    return WordList(counts);
}

void WriteLink(HtmlWriter& html, const std::string& id, const std::string& name, const std::string& more) {
    constexpr double kEms = 150.0;  // some lines; the sheet has all of it
    html.Raw("<tr>\n<td dir=\"auto\"><a href=\"#" + id + "\">" +
             XmlText(ShortenedText(Printable(name), kEms, 1.0)) + "</a></td>\n");
    html.Text("td", more);
    html.Raw("</tr>\n");
}

void WriteContents(HtmlWriter& html, const ReportContent& content) {
    html.Open("nav", {{"id", "contents"}, {"aria-label", "Contents"}});
    html.Text("h2", "Contents");
    html.Raw("<table>\n<thead>\n<tr>\n");
    for (const char* heading : {"Name", "Behaviors or layers"}) html.Text("th", heading, {{"scope", "col"}});
    html.Raw("</tr>\n</thead>\n<tbody>\n");
    for (std::size_t i = 0; i < content.materials.size(); ++i) {
        const ReportMaterial& material = content.materials[i];
        WriteLink(html, MaterialId(i), material.given.name, WordList(material.stored.Names(true)));
    }
    for (std::size_t i = 0; i < content.layups.size(); ++i) {
        const LayupCard& card = content.layups[i].card;
        WriteLink(html, LayupId(i), card.name, CountText(card.layers.size(), "layer"));
    }
    html.Raw("</tbody>\n</table>\n");
    if (!content.since.empty()) html.Raw("<p><a href=\"#changes\">Changes</a></p>\n");
    html.Close("nav");
}

void WriteChanges(HtmlWriter& html, const ReportContent& content) {
    if (content.since.empty()) return;
    html.Open("section", {{"class", "sheet"}, {"id", kChanges}, {"aria-labelledby", "changes-title"}});
    html.Text("h2", "Changes " + content.since, {{"id", "changes-title"}});
    if (content.changes.empty()) html.Text("p", "No changes.");
    for (const ReportChange& change : content.changes) {
        html.Text("h3", change.title, {{"dir", "auto"}});
        html.Open("ul");
        for (const std::string& line : change.lines) html.Text("li", line);
        html.Close("ul");
    }
    html.Close("section");
}

}  // namespace

std::string ReportPage(const ReportContent& content, const UnitChoice& units) {
    HtmlWriter html;
    WriteHead(html, content);
    html.Open("header");
    html.Text("h1", content.title, {{"dir", "auto"}});
    html.Text("p", Count(content), {{"class", "soft"}});
    html.Close("header");
    WriteContents(html, content);
    html.Open("main");
    for (std::size_t i = 0; i < content.materials.size(); ++i) {
        WriteMaterialSheet(html, content.materials[i], MaterialId(i), units);
    }
    for (std::size_t i = 0; i < content.layups.size(); ++i) {
        WriteLayupSheet(html, content.layups[i], LayupId(i), units);
    }
    WriteChanges(html, content);
    html.Close("main");
    html.Raw("</body>\n</html>\n");
    return html.Take();
}

}  // namespace zelmat
