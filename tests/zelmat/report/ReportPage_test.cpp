#include "zelmat/report/ReportPage.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"
#include "zelmat/report/ReportStyle.h"

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using zelmat::FindingKind;
using zelmat::ReportContent;
using zelmat::ReportMaterial;
using zelmat::ReportPage;
using zelmat::UnitChoice;

/// Not stored: identity and findings alone.
void AddSteel(ReportContent& content, const std::string& name) {
    ReportMaterial& material = content.materials.emplace_back();
    material.given = CardOf(R"({"name": "Steel", "class": "metal", "source": ["A handbook"]})");
    material.given.name = name;
    material.stored.given = &material.given;
}

std::string Page(const ReportContent& content) {
    return ReportPage(content, UnitChoice::ForText());
}

TEST(ReportPage, IsOneHtmlPageThatLoadsNothing) {
    ReportContent content{.title = "Sheets", .materials = {}, .layups = {}};
    AddSteel(content, "Steel");

    const std::string page = Page(content);

    EXPECT_THAT(page,
                StartsWith("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "));
    EXPECT_THAT(page, HasSubstr("<title>Sheets</title>"));
    EXPECT_THAT(page, Not(HasSubstr("http:")));
    EXPECT_THAT(page, Not(HasSubstr("https:")));
    EXPECT_TRUE(page.ends_with("</body>\n</html>\n"));
}

TEST(ReportPage, IsTheSameForTheSameContent) {
    ReportContent content{.title = "Sheets", .materials = {}, .layups = {}};
    AddSteel(content, "Steel");

    EXPECT_EQ(Page(content), Page(content));
}

TEST(ReportPage, LinksEverySheetFromTheContents) {
    ReportContent content{.title = "Sheets", .materials = {}, .layups = {}};
    AddSteel(content, "Steel");
    AddSteel(content, "Steel");

    const std::string page = Page(content);

    EXPECT_THAT(page, HasSubstr("<a href=\"#material-2\">Steel</a>"));
    EXPECT_THAT(
        page, HasSubstr("<section class=\"sheet\" id=\"material-2\" aria-labelledby=\"material-2-title\">"));
    EXPECT_THAT(page, HasSubstr("<p class=\"soft\">2 materials, no findings</p>"));
    EXPECT_THAT(page, HasSubstr("<dt>Source</dt>\n<dd dir=\"auto\">A handbook</dd>"));
}

TEST(ReportPage, EscapesWhatCardsHold) {
    ReportContent content{.title = "<script>", .materials = {}, .layups = {}};
    AddSteel(content, "\"><script>alert(1)</script>\x1b ]]> \xff");

    const std::string page = Page(content);

    EXPECT_THAT(page, Not(HasSubstr("<script")));
    EXPECT_THAT(page, HasSubstr("&quot;&gt;&lt;script&gt;alert(1)&lt;/script&gt;\\x1b ]]&gt; \xef\xbf\xbd"));
}

TEST(ReportPage, KeepsTheLinesOfATextAndItsFactsApart) {
    ReportContent content{.title = "Sheets", .materials = {}, .layups = {}};
    AddSteel(content, "Steel");
    content.materials.front().given.description = "first <b>\r\nsecond";
    content.materials.front().given.notes = {"one\ntwo"};

    const std::string page = Page(content);

    EXPECT_THAT(page, HasSubstr("<p dir=\"auto\">first &lt;b&gt;<br>\nsecond</p>"));
    EXPECT_THAT(page, HasSubstr("<dd dir=\"auto\">one<br>\ntwo</dd>"));
}

TEST(ReportPage, NamesTheSheetOnItsPages) {
    ReportContent content{.title = "Sheets", .materials = {}, .layups = {}, .since = "since step 4"};
    AddSteel(content, "Steel 304");
    AddSteel(content, "\"</style>\n\\" + std::string(1000, 'x'));

    const std::string page = Page(content);

    EXPECT_THAT(page,
                HasSubstr("#material-1 { page: material-1; } @page material-1 { @bottom-left { content: "
                          "\"Steel 304\"; } }\n"));
    EXPECT_THAT(page, HasSubstr("content: \"\\22 \\3c \\2f style\\3e \\5c n\\5c xxxx"));
    EXPECT_THAT(page, HasSubstr("xxx…\"; } }\n")) << "a page is no wider";
    EXPECT_THAT(page, HasSubstr("@page changes {"));
}

TEST(ReportPage, ShowsFindingsWhereTheyBelong) {
    ReportContent content{.title = "Sheets", .materials = {}, .layups = {}};
    AddSteel(content, "Steel");
    content.materials.front().findings.Add(
        {FindingKind::WARNING, {"card.json", 7}, "odd", "the density is odd", {"70", "expected 7850"}});

    const std::string page = Page(content);

    EXPECT_THAT(page, HasSubstr("1 material, 1 finding"));
    EXPECT_THAT(page,
                HasSubstr("<h3>Findings</h3>\n<p>Numbers are those that documents hold, in SI units.</p>"));
    EXPECT_THAT(page, HasSubstr("<td class=\"warning\">warning</td>\n<td>odd</td>\n"
                                "<td>the density is odd (70, expected 7850)</td>\n<td>7</td>"));
}

TEST(ReportPage, ListsWhatNoBehaviorUses) {
    ReportContent content{.title = "Sheets", .materials = {}, .layups = {}};
    AddSteel(content, "Steel");
    content.materials.front().further.push_back({"Strength, for information", {{"f_ck", "3e+07"}}});

    EXPECT_THAT(Page(content), HasSubstr("<h3>Strength, for information</h3>\n<dl>\n<dt>f_ck</dt>\n"
                                         "<dd dir=\"auto\">3e+07</dd>\n</dl>"));
}

TEST(ReportPage, TellsChangesSinceAStepWhereAsked) {
    ReportContent content{.title = "Sheets", .materials = {}, .layups = {}, .since = "since step 4"};
    AddSteel(content, "Steel");
    EXPECT_THAT(Page(content), HasSubstr("<p>No changes.</p>"));

    content.changes.push_back({"step 5", {"Steel: density 7800 became 7850"}});

    EXPECT_THAT(Page(content),
                HasSubstr("<h3 dir=\"auto\">step 5</h3>\n<ul>\n<li>Steel: density 7800 became 7850</li>"));
    EXPECT_THAT(Page(content), HasSubstr("<a href=\"#changes\">"));
}

TEST(ReportStyle, PrintsOnA4InBothSchemes) {
    EXPECT_THAT(std::string(zelmat::ReportStyle()), HasSubstr("@page { size: A4;"));
    EXPECT_THAT(std::string(zelmat::ReportStyle()), HasSubstr("prefers-color-scheme: dark"));
    EXPECT_THAT(std::string(zelmat::ReportStyle()),
                HasSubstr("\"Page \" counter(page) \" of \" counter(pages)"));
}

}  // namespace
