#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/TestFolder.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

using ReportCommand = FolderTest;

TEST_F(ReportCommand, PutsMaterialsAndLayupsOnOnePageAndTellsItsSize) {
    const ProgramRun run =
        RunZelmat({"report", Sample("steel_s355.json"), Sample("layups/sandwich_t300_rohacell.json"),
                   "--output", In("r.html")});

    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("written: " + In("r.html") + "\n1 material, 1 layup, 9 pictures, "));
    const std::string page = Contents(In("r.html"));
    EXPECT_THAT(page, HasSubstr("<title>Material data sheets</title>"));
    EXPECT_THAT(page, HasSubstr("<td>210000</td>\n<td>0.3</td>\n<td>20</td>"));
    EXPECT_THAT(page, HasSubstr("<td>80769.20</td>\n<td>175000.0</td>\n<td>20</td>")) << "G and K";
    EXPECT_THAT(page, HasSubstr("Sandwich: [0/90] faces of T300/5208, 10 mm Rohacell 71 core"));
    EXPECT_THAT(page,
                HasSubstr("<td>in its plane</td>\n<td>4686.89</td>\n<td>4686.89</td>\n<td>377.143</td>"))
        << "4.6869 GPa on the card";
}

TEST_F(ReportCommand, KeepsWhatIsStoredAndWhatTheCardSaysApart) {
    const ProgramRun run =
        RunZelmat({"report", Sample("natural_rubber_treloar.json"), "--output", In("r.html")});

    EXPECT_EQ(run.exitCode, 0) << run.err;
    const std::string page = Contents(In("r.html"));
    EXPECT_THAT(page, HasSubstr("<dt>convention of mu</dt>\n<dd dir=\"auto\">2mu/alpha^2</dd>"));
    EXPECT_THAT(page, HasSubstr("<dt>convention of mu, on the card</dt>\n<dd dir=\"auto\">mu/alpha</dd>"));
}

TEST_F(ReportCommand, HasASheetForAMaterialWithErrorsAndEndsWith1) {
    const ProgramRun run =
        RunZelmat({"report", Sample("faulty/steel_five_faults.json"), "--output", In("r.html")});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("error["));
    EXPECT_THAT(Contents(In("r.html")), HasSubstr("<td class=\"error\">error</td>"));
}

TEST_F(ReportCommand, SaysWhatCannotBeReadAndReportsTheRest) {
    const ProgramRun run =
        RunZelmat({"report", Sample("copper_ofhc.json"), "/no-such-card", "--output", In("r.html")});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, StartsWith("/no-such-card: error["));
    EXPECT_THAT(Contents(In("r.html")), HasSubstr("OFHC copper"));
}

TEST_F(ReportCommand, NeedsToKnowWhereThePageGoes) {
    const ProgramRun run = RunZelmat({"report", Sample("copper_ofhc.json")});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, StartsWith("--output: error[missing-option]: it is not said where the report goes"));
}

TEST_F(ReportCommand, WritesNothingWithoutGnuplot) {
    const ProgramRun run = RunZelmat({"report", Sample("copper_ofhc.json"), "--output", In("r.html")},
                                     {"PATH=" + folder_.Path()});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, HasSubstr("gnuplot: error[program-missing]"));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(ReportCommand, PrintsThePageAsPdf) {
    const ProgramRun run =
        RunZelmat({"report", Sample("copper_ofhc.json"), "--output", In("r.html"), "--pdf", In("r.pdf")});

    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(Contents(In("r.pdf")), StartsWith("%PDF-"));
    EXPECT_THAT(run.out, HasSubstr("printed: " + In("r.pdf")));
}

TEST_F(ReportCommand, KeepsThePageWhereChromiumFailsAndSaysSo) {
    fs::create_directory(In("bin"));
    fs::create_symlink("/usr/bin/gnuplot", In("bin/gnuplot"));
    std::ofstream(In("bin/chromium")) << "#!/bin/sh\nkill -9 $$\n";
    fs::permissions(In("bin/chromium"), fs::perms::owner_all);

    const ProgramRun run =
        RunZelmat({"report", Sample("copper_ofhc.json"), "--output", In("r.html"), "--pdf", In("r.pdf")},
                  {"PATH=" + In("bin")});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err,
                HasSubstr("chromium: error[program-failed]: the program was ended by signal 9 (Killed)"));
    EXPECT_TRUE(fs::exists(In("r.html")));
    EXPECT_FALSE(fs::exists(In("r.pdf")));
}

TEST_F(ReportCommand, IsTheSameAgain) {
    for (const char* name : {"1.html", "2.html"}) {
        ASSERT_EQ(RunZelmat({"report", Sample("natural_rubber_treloar.json"), "--output", In(name)}).exitCode,
                  0);
    }

    EXPECT_EQ(Contents(In("1.html")), Contents(In("2.html")));
}

TEST_F(ReportCommand, ShowsProgressOnATerminalAlone) {
    const ProgramRun quiet = RunZelmat({"report", Sample("copper_ofhc.json"), "--output", In("r.html")});
    const ProgramRun loud =
        RunZelmatOnTerminal({"report", Sample("copper_ofhc.json"), "--output", In("r.html")});

    EXPECT_EQ(quiet.err, "");
    EXPECT_THAT(loud.out, HasSubstr("drawn 1 of 1 pictures"));
}

TEST_F(ReportCommand, TellsProgramsWhatItWrote) {
    const ProgramRun run =
        RunZelmat({"report", Sample("copper_ofhc.json"), "--output", In("r.html"), "--json"});

    const auto told = nlohmann::json::parse(run.out);
    EXPECT_EQ(told["report"]["materials"], 1);
    EXPECT_EQ(told["report"]["pictures"], 1);
    EXPECT_EQ(told["report"]["bytes"], fs::file_size(In("r.html")));
    EXPECT_EQ(told["report"]["file"], In("r.html"));
    EXPECT_EQ(told["pdf"], nullptr);
}

}  // namespace
