#include <gmock/gmock.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST(Program, SaysWhereAnOptionBelongsThatStandsBeforeTheCommand) {
    const ProgramRun run = RunZelmat({"--json", "list"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err,
              "zelmat: error[unknown-option]: \"--json\" stands in the place of the command (options stand "
              "behind it: zelmat COMMAND WHAT... --json)\n");
}

TEST(Program, EndsWithTwoForAWrongCommandLine) {
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {}, {"show"}, {"shwo", "two_tables.json"}, {"show", "two_tables.json", "--loud"}, {"--loud"}}) {
        const ProgramRun run = RunZelmat(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, Not(IsEmpty()));
    }
}

TEST(Program, NamesAnUnknownCommandWithTheNearest) {
    EXPECT_EQ(RunZelmat({"shwo", "two_tables.json"}).err,
              "zelmat: error[unknown-command]: there is no command \"shwo\" (did you mean show?)\n");
    EXPECT_THAT(RunZelmat({"frobnicate"}).err,
                HasSubstr("there is no command \"frobnicate\" (known: show, summary, check, convert"));
    EXPECT_EQ(RunZelmat({"help", "shwo"}).err, RunZelmat({"shwo"}).err);
}

TEST(Program, NamesAnUnknownOptionWithTheNearest) {
    const std::string told =
        "zelmat show: error[unknown-option]: there is no option \"--modle\" (did you mean --model?)\n";
    EXPECT_EQ(RunZelmat({"show", "two_tables.json", "--modle", "OGDEN"}).err, told);
    EXPECT_EQ(RunZelmat({"show", "--modle=OGDEN"}).err, told);
    EXPECT_EQ(RunZelmat({"show", "--modle=OGDEN"}).exitCode, 2);
}

TEST(Program, SaysWhatACommandLineLacksAndWhereToLook) {
    const ProgramRun run = RunZelmat({"show"});
    EXPECT_EQ(run.err, "zelmat show: error[usage]: CARD|DOC is required (see zelmat help show)\n");
}

TEST(Program, TellsAWrongCommandLineAsJsonWhereJsonIsWanted) {
    const ProgramRun run = RunZelmat({"show", "--json", "--modle", "OGDEN"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err, "");
    const auto told = nlohmann::json::parse(run.out)["findings"];
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0]["code"], "unknown-option");
    EXPECT_EQ(told[0]["text"], "there is no option \"--modle\"");
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {"show", "--json"}, {"shwo", "--json"}, {"--loud", "--json"}, {"help", "shwo", "--json"}}) {
        const ProgramRun other = RunZelmat(arguments);
        EXPECT_EQ(other.exitCode, 2);
        EXPECT_EQ(other.err, "");
        EXPECT_EQ(nlohmann::json::parse(other.out)["findings"].size(), 1u);
    }
}

TEST(Program, ExplainsItselfWhenAsked) {
    const ProgramRun run = RunZelmat({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("print the properties of a material"));
    EXPECT_THAT(run.out,
                HasSubstr("Exit codes: 0 clean or warnings alone, 1 errors (under --strict warnings, too),\n"
                          "2 wrong command line, 3 could not read or write.\n"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(RunZelmat({"help"}).out, run.out);
}

TEST(Program, ExplainsACommandWhenAsked) {
    const ProgramRun run = RunZelmat({"show", "--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("zelmat show"));
    EXPECT_THAT(run.out, HasSubstr("--json"));
    EXPECT_THAT(run.out, HasSubstr("--trace"));
    EXPECT_THAT(run.out, HasSubstr("--color"));
    EXPECT_THAT(run.out, Not(HasSubstr("--output")));
    EXPECT_EQ(RunZelmat({"help", "show"}).out, run.out);
    EXPECT_THAT(RunZelmat({"help", "upgrade"}).out, HasSubstr("--output"));
}

TEST(Program, TellsItsVersion) {
    const ProgramRun run = RunZelmat({"--version"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, "zelmat 0.1\n");
}

TEST(Program, SaysThatACleanRunFoundNothingOnATerminalOnly) {
    EXPECT_THAT(RunZelmatOnTerminal({"show", "two_tables.json", "--color", "never"}).out,
                testing::EndsWith("\r\nno findings\r\n"));
    EXPECT_EQ(RunZelmat({"show", "two_tables.json"}).err, "");
}

TEST(Program, ColoursOnATerminalUnlessToldOtherwise) {
    const std::string red = "\033[31merror[ragged-row]\033[0m";
    EXPECT_THAT(RunZelmatOnTerminal({"show", "ragged.json"}).out, HasSubstr(red));
    EXPECT_THAT(RunZelmatOnTerminal({"show", "ragged.json"}, {"NO_COLOR=1"}).out, Not(HasSubstr("\033")));
    EXPECT_THAT(RunZelmatOnTerminal({"show", "ragged.json"}, {"NO_COLOR="}).out, HasSubstr(red));
    EXPECT_THAT(RunZelmatOnTerminal({"show", "ragged.json"}, {"TERM=dumb"}).out, Not(HasSubstr("\033")));
    EXPECT_THAT(RunZelmatOnTerminal({"show", "ragged.json", "--color", "never"}).out, Not(HasSubstr("\033")));
    EXPECT_THAT(RunZelmat({"show", "ragged.json"}).err, Not(HasSubstr("\033")));
    EXPECT_THAT(RunZelmat({"show", "ragged.json", "--color=always"}).err, HasSubstr(red));
}

TEST(Program, EndsWithThreeWhenStandardOutputTakesNothing) {
    const std::string full =
        "standard output: error[not-written]: cannot be written: No space left on device\n";
    const std::string closed =
        "standard output: error[not-written]: cannot be written: Bad file descriptor\n";
    const std::vector<std::vector<std::string>> runs = {
        {"show", "two_tables.json"},
        {"show", "two_tables.json", "--json"},
        {"summary", "two_tables.json"},
        {"layup", "[0/90]s", "--material", "a", "--thickness", "1mm"},
        {"--help"},
        {"help", "show"},
        {"show", "--help"},
        {"--version"}};
    for (const auto& arguments : runs) {
        const ProgramRun toFull = RunZelmatWith(arguments, ">/dev/full");
        EXPECT_EQ(toFull.exitCode, 3) << arguments.front();
        EXPECT_EQ(toFull.err, full) << arguments.front();
        const ProgramRun toClosed = RunZelmatWith(arguments, ">&-");
        EXPECT_EQ(toClosed.exitCode, 3) << arguments.front();
        EXPECT_EQ(toClosed.err, closed) << arguments.front();
    }
}

TEST(Program, WritesAFileWholeAlsoWhenAllStandardDescriptorsAreClosed) {
    const std::string file = testing::TempDir() + "zelmat-closed-" + std::to_string(getpid());
    const std::vector<std::string> upgrade = {"upgrade", Sample("older/copper_and_rubber.json"), "--output"};
    auto open = upgrade;
    open.push_back(file + ".open");
    auto closed = upgrade;
    closed.push_back(file + ".closed");

    EXPECT_EQ(RunZelmat(open).exitCode, 0);
    EXPECT_EQ(RunZelmatWith(closed, "<&- >&- 2>&-").exitCode, 3);

    EXPECT_EQ(std::system(("cmp " + file + ".open " + file + ".closed").c_str()), 0);
    std::filesystem::remove(file + ".open");
    std::filesystem::remove(file + ".closed");
}

TEST(Program, GivesStandardOutputToTheFileThatGoesThere) {
    const ProgramRun document =
        RunZelmat({"upgrade", Sample("older/copper_and_rubber.json"), "--output", "-"});
    EXPECT_EQ(document.exitCode, 0);
    EXPECT_THAT(document.out, testing::StartsWith("{"));
    EXPECT_THAT(document.err, HasSubstr("\nwritten: standard output\n"));

    const ProgramRun drawing =
        RunZelmat({"layup", "[0/90]s", "--material", "a", "--thickness", "1mm", "--svg", "-", "--json"});
    EXPECT_EQ(drawing.exitCode, 0);
    EXPECT_THAT(drawing.out, testing::StartsWith("<?xml"));
    EXPECT_THAT(drawing.out, testing::EndsWith("</svg>\n"));
    EXPECT_THAT(drawing.err, HasSubstr("\"drawing\": \"-\""));
}

TEST(Program, SaysWhereItKeepsAnInputThatTheOutputReplaces) {
    const std::string file = testing::TempDir() + "zelmat-own-input-" + std::to_string(getpid());
    std::filesystem::copy_file(Sample("older/copper_and_rubber.json"), file);

    const ProgramRun run = RunZelmat({"upgrade", file, "--output", file});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("\nwritten: " + file + "\nwhat was there is kept as: " + file + ".bak\n"));
    EXPECT_EQ(std::filesystem::file_size(file + ".bak"),
              std::filesystem::file_size(Sample("older/copper_and_rubber.json")));

    const ProgramRun again = RunZelmat({"upgrade", file, "--output", file, "--json"});
    EXPECT_THAT(again.out, HasSubstr("\"backup\": \"" + file + ".bak.2\""));
    for (const char* ending : {"", ".bak", ".bak.2"}) std::filesystem::remove(file + ending);
}

TEST(Program, SaysWhereConvertAndNewKeepWhatTheyReplace) {
    const std::string file = testing::TempDir() + "zelmat-replaced-" + std::to_string(getpid());
    std::filesystem::copy_file(Sample("copper_ofhc.json"), file);

    const ProgramRun converted = RunZelmat({"convert", file, "--to", "csv", "--output", file});
    EXPECT_EQ(converted.exitCode, 0);
    EXPECT_EQ(converted.out, "\nwritten: " + file + "\nwhat was there is kept as: " + file + ".bak\n");
    EXPECT_EQ(std::filesystem::file_size(file + ".bak"),
              std::filesystem::file_size(Sample("copper_ofhc.json")));

    const ProgramRun made = RunZelmat({"new", "--card", "Steel", "--output", file});
    EXPECT_EQ(made.exitCode, 0);
    EXPECT_THAT(made.out, HasSubstr("what was there is kept as: " + file + ".bak.2\n"));
    for (const char* ending : {"", ".bak", ".bak.2"}) std::filesystem::remove(file + ending);
}

TEST(Program, WritesJsonAlsoForAPathThatIsNoUtf8) {
    const ProgramRun run = RunZelmat({"show", "Z\xe4hne.json", "--json"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.out, HasSubstr("\"file\": \"Z\xef\xbf\xbdhne.json\""));
}

}  // namespace
