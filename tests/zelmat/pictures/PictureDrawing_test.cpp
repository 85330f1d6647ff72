#include "zelmat/pictures/PictureDrawing.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tests/zelmat/support/XmlProblem.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using zelmat::DrawSheets;
using zelmat::Findings;
using zelmat::Picture;
using zelmat::PictureFormat;
using zelmat::PictureKind;
using zelmat::PictureSheet;
using zelmat::SeriesStyle;

Picture Line(const std::string& text) {
    return {.name = "line",
            .title = text,
            .what = text,
            .x = {.title = text},
            .y = {.title = text, .unit = "MPa"},
            .legend = text,
            .series = {{.label = text, .style = SeriesStyle::ROWS, .points = {{1.0, 2.0}, {2.0, 3.0}}}},
            .notes = {text}};
}

/// PATH with a folder of one's own in front, and back.
class PathWith {
public:
    PathWith()
        : folder_(testing::TempDir() + "path-" + std::to_string(getpid())), before_(std::getenv("PATH")) {
        std::filesystem::create_directory(folder_);
    }
    ~PathWith() {
        ::setenv("PATH", before_.c_str(), 1);
        std::filesystem::remove_all(folder_);
    }
    PathWith(const PathWith&) = delete;
    PathWith& operator=(const PathWith&) = delete;

    void OnlyGnuplot(const std::string& script) const {
        if (!script.empty()) {
            std::ofstream(folder_ + "/gnuplot") << "#!/bin/sh\n" << script << '\n';
            std::filesystem::permissions(folder_ + "/gnuplot", std::filesystem::perms::owner_all);
        }
        ::setenv("PATH", folder_.c_str(), 1);
    }

private:
    std::string folder_;
    std::string before_;
};

std::string Lines(const Findings& findings) {
    std::string lines;
    for (const auto& finding : findings.All()) lines += FindingLine(finding) + "\n";
    return lines;
}

TEST(PictureDrawing, DrawsTheSameBytesAgainAndSaysNothingOfTheRelease) {
    const Picture line = Line("a line");
    Findings findings;

    const auto first = DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings);
    const auto second = DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings);

    ASSERT_TRUE(first && second) << Lines(findings);
    EXPECT_EQ(*first, *second);
    EXPECT_THAT(first->front(), Not(HasSubstr("patchlevel")));
    EXPECT_THAT(first->front(), HasSubstr("<title>a line: a line."));
    EXPECT_THAT(first->front(),
                HasSubstr("font-family=\"sans-serif\" font-weight=\"bold\" font-size=\"15.00\""));
    EXPECT_EQ(first->front().find("<title>"), first->front().rfind("<title>")) << "the picture's own alone";
    EXPECT_EQ(XmlProblem(first->front()), "");
}

TEST(PictureDrawing, NeverRunsWhatATextSays) {
    const std::string trace = testing::TempDir() + "trace-" + std::to_string(getpid());
    const std::string names[] = {"`touch " + trace + "`", "'`touch " + trace + "`'", "$(touch " + trace + ")",
                                 "x'\nsystem('touch " + trace + "')\n'", "\"; !touch " + trace};
    for (const std::string& name : names) {
        const Picture line = Line(name);
        Findings findings;

        const auto drawn = DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings);

        EXPECT_TRUE(drawn) << Lines(findings);
        EXPECT_FALSE(std::filesystem::exists(trace)) << name;
    }
}

TEST(PictureDrawing, IsWellFormedWhateverTextsHold) {
    const std::string names[] = {"]]>",
                                 "<script>alert(1)</script>",
                                 "a & \"b\"",
                                 std::string("NUL\0", 4),
                                 "\xff\x80",
                                 "\xef\xbf\xbf",
                                 "{/=99 x}_2^3",
                                 "%g @a \\n $x",
                                 std::string(10000, 'x')};
    for (const std::string& name : names) {
        Picture line = Line(name);
        Picture bars = Line(name);
        bars.kind = PictureKind::BARS;
        bars.bars = {{name, 1.0}, {name, -2.0}};
        Picture polar = Line(name);
        polar.kind = PictureKind::POLAR;
        Findings findings;

        const auto drawn = DrawSheets({{"all.svg", {&line, &bars, &polar}}}, PictureFormat::SVG, findings);

        ASSERT_TRUE(drawn) << Lines(findings);
        EXPECT_EQ(XmlProblem(drawn->front()), "") << name;
        EXPECT_THAT(drawn->front(), Not(HasSubstr("<script")));
    }
}

TEST(PictureDrawing, TakesPointsThatAreNoNumbersAndNoPointsAtAll) {
    Picture empty = Line("empty");
    empty.series.front().points.clear();
    Picture none = Line("none");
    none.series.clear();
    Picture broken = Line("broken");
    broken.series.front().points = {{1.0, std::nan("")}, {2.0, 1.0}, {3.0, std::nan("")}, {4.0, 1e300}};
    Picture bars = Line("bars");
    bars.kind = PictureKind::BARS;
    Findings findings;

    const auto drawn =
        DrawSheets({{"all.svg", {&empty, &none, &broken, &bars}}}, PictureFormat::SVG, findings);

    ASSERT_TRUE(drawn) << Lines(findings);
    EXPECT_EQ(XmlProblem(drawn->front()), "");
}

TEST(PictureDrawing, SaysThatTheGreatestNumbersAreNotDrawn) {
    Picture picture = Line("Steel");
    picture.series[0].points = {{1.0, 1.7976931348623157e308}, {2.0, -1.7976931348623157e308}, {3.0, 5e-324}};
    Findings findings;

    const auto drawn = DrawSheets({{"line.svg", {&picture}}}, PictureFormat::SVG, findings);

    ASSERT_TRUE(drawn) << Lines(findings);
    EXPECT_THAT(drawn->front(), HasSubstr("Numbers beyond 1e300 are not drawn."));
}

TEST(PictureDrawing, DrawsPdfAndPng) {
    const Picture line = Line("a line");
    Findings findings;

    const auto pdf = DrawSheets({{"line.pdf", {&line, &line}}}, PictureFormat::PDF, findings);
    const auto png = DrawSheets({{"line.png", {&line}}}, PictureFormat::PNG, findings);
    const auto again = DrawSheets({{"line.png", {&line}}}, PictureFormat::PNG, findings);

    ASSERT_TRUE(pdf && png && again) << Lines(findings);
    EXPECT_THAT(pdf->front(), StartsWith("%PDF-"));
    EXPECT_THAT(png->front(), StartsWith("\x89PNG"));
    EXPECT_EQ(*png, *again);
}

TEST(PictureDrawing, IsTheSameInEveryEnvironment) {
    Picture line = Line("a line");
    line.series.front().points = {{1.5, 2.25}, {2.5, 1.2345e-5}};
    Findings findings;
    const auto here = DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings);

    for (const auto& [name, value] : {std::pair{"GNUTERM", "x11"},
                                      {"GNUPLOT_LIB", "/none"},
                                      {"TZ", "Asia/Tokyo"},
                                      {"LC_ALL", "de_DE.UTF-8"},
                                      {"LC_NUMERIC", "de_DE.UTF-8"}}) {
        ::setenv("LOCPATH", ZELMAT_LOCALES, 1);
        ::setenv(name, value, 1);
        const auto there = DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings);
        ::unsetenv(name);
        ASSERT_TRUE(here && there) << name << ": " << Lines(findings);
        EXPECT_EQ(*here, *there) << name;
    }
}

TEST(PictureDrawing, HasTheWholeLegendHoweverLongItIs) {
    Picture many = Line("many");
    many.series.clear();
    for (int i = 0; i < 60; ++i) {
        many.series.push_back({.label = "material " + std::to_string(i),
                               .style = SeriesStyle::ROWS,
                               .color = static_cast<std::size_t>(i),
                               .points = {{1.0, i + 0.0}, {2.0, i + 1.0}}});
    }
    Findings findings;

    const auto drawn = DrawSheets({{"many.svg", {&many}}}, PictureFormat::SVG, findings);

    ASSERT_TRUE(drawn) << Lines(findings);
    for (int i = 0; i < 60; ++i) {
        EXPECT_THAT(drawn->front(), HasSubstr(">material " + std::to_string(i) + "<"));
    }
}

TEST(PictureDrawing, StaysSmallWithManyRows) {
    Picture many = Line("many");
    many.series.front().points.clear();
    for (int i = 0; i < 100000; ++i) {
        many.series.front().points.push_back({i + 0.0, std::sin(0.001 * i)});
    }
    Findings findings;

    const auto drawn = DrawSheets({{"many.svg", {&many}}}, PictureFormat::SVG, findings);

    ASSERT_TRUE(drawn) << Lines(findings);
    EXPECT_LT(drawn->front().size(), 100000u);
    EXPECT_THAT(drawn->front(), HasSubstr("Of more than 150 rows not every one is marked."));
}

TEST(PictureDrawing, TellsHowFarItIs) {
    const Picture line = Line("a line");
    std::vector<PictureSheet> sheets;
    for (int i = 0; i < 70; ++i) sheets.push_back({"line" + std::to_string(i) + ".svg", {&line}});
    std::vector<std::size_t> told;
    Findings findings;

    const auto drawn =
        DrawSheets(sheets, PictureFormat::SVG, findings, [&](std::size_t count) { told.push_back(count); });

    ASSERT_TRUE(drawn) << Lines(findings);
    EXPECT_EQ(drawn->size(), 70u);
    EXPECT_THAT(told, ElementsAre(64u, 70u));
}

TEST(PictureDrawing, SaysThatGnuplotIsMissing) {
    const Picture line = Line("a line");
    const PathWith path;
    path.OnlyGnuplot("");
    Findings findings;

    EXPECT_FALSE(DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings));
    EXPECT_EQ(Lines(findings),
              "gnuplot: error[program-missing]: drawing needs the program gnuplot, which cannot be run (No "
              "such file "
              "or directory, package gnuplot-nox)\n");
}

TEST(PictureDrawing, SaysHowGnuplotFailed) {
    const Picture line = Line("a line");
    const PathWith path;
    path.OnlyGnuplot("echo 'line 3: undefined'; exit 2");
    Findings findings;

    EXPECT_FALSE(DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings));
    EXPECT_EQ(Lines(findings),
              "gnuplot: error[program-failed]: the program ended with 2 (line 3: undefined)\n");
}

TEST(PictureDrawing, SaysThatGnuplotWasKilledOrMadeNothing) {
    const Picture line = Line("a line");
    const PathWith path;
    Findings findings;

    path.OnlyGnuplot("kill -9 $$");
    EXPECT_FALSE(DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings));
    path.OnlyGnuplot("exit 0");
    EXPECT_FALSE(DrawSheets({{"line.svg", {&line}}}, PictureFormat::SVG, findings));

    EXPECT_EQ(Lines(findings),
              "gnuplot: error[program-failed]: the program was ended by signal 9 (Killed)\n"
              "gnuplot: error[program-failed]: the program made no picture line.svg\n");
}

}  // namespace
