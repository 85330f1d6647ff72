#include <gmock/gmock.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/TestFolder.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(ConvertCommand, WritesNothingOfACardOnWhichTheChecksFindErrors) {
    const ProgramRun run = RunZelmat({"convert", "first_strain.json", "--to", "csv"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("first_strain.json:8: error[first-plastic-strain]: row 1 of plastic: "
                                   "plastic strain is 0.002 (has to be 0)\n"));
}

TEST(ConvertCommand, WritesSuchACardWhenItIsToKeepGoing) {
    const ProgramRun run = RunZelmat({"convert", "first_strain.json", "--to", "csv", "--keep-going"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr("\n[plastic]\n"));
    EXPECT_THAT(run.err, HasSubstr("error[first-plastic-strain]"));
}

void Write(const std::string& path, const std::string& text) {
    std::ofstream(path) << text;
}

TEST(ConvertCommand, EndsWithThreeForWhatItCannotReadOrWrite) {
    EXPECT_EQ(RunZelmat({"convert", "missing.json", "--to", "csv"}).exitCode, 3);
    EXPECT_EQ(RunZelmatWith({"convert", "-", "--to", "csv"}, "</dev/null").exitCode, 3);

    const ProgramRun full = RunZelmatWith({"convert", "two_tables.json", "--to", "csv"}, ">/dev/full");
    EXPECT_EQ(full.exitCode, 3);
    EXPECT_THAT(full.err, HasSubstr("standard output: error[not-written]"));
    const ProgramRun file = RunZelmat({"convert", "two_tables.json", "--to", "csv", "--output", "/dev/full"});
    EXPECT_EQ(file.exitCode, 3);
    EXPECT_THAT(file.err, HasSubstr("/dev/full: error[not-written]"));
    EXPECT_EQ(RunZelmat({"convert", "two_tables.json", "--to", "csv", "--output", "two_tables.json/a.csv"})
                  .exitCode,
              3);
}

TEST(ConvertCommand, TellsAFileThatCannotBeMadeByItsName) {
    const std::string longName = "/tmp/" + std::string(300, 'x');
    const ProgramRun run = RunZelmat({"convert", "two_tables.json", "--to", "csv", "--output", longName});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, longName + ": error[not-written]: cannot be written: File name too long\n");
    const ProgramRun none = RunZelmat({"convert", "two_tables.json", "--to", "csv", "--output", ""});
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_EQ(none.out, "");
    EXPECT_THAT(none.err, HasSubstr("error[usage]: --output: the name of the file is missing"));
}

TEST(ConvertCommand, WantsAFormThatThereIs) {
    const ProgramRun run = RunZelmat({"convert", "two_tables.json", "--to", "xml"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("error[usage]: --to: "));
    EXPECT_EQ(RunZelmat({"convert", "two_tables.json"}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"convert", "--to", "csv"}).exitCode, 2);
}

TEST(ConvertCommand, ReadsStandardInputAndWritesStandardOutput) {
    const ProgramRun csv = RunZelmatWith({"convert", "-", "--to", "csv"}, "<two_tables.json");
    EXPECT_EQ(csv.exitCode, 0);
    EXPECT_THAT(csv.out, StartsWith("[material]\nname = Two tables\n"));
    EXPECT_EQ(RunZelmat({"convert", "two_tables.json", "--to", "csv"}).out, csv.out);

    const ProgramRun there = RunZelmat({"convert", "two_tables.json", "--to", "csv", "--output", "-"});
    EXPECT_THAT(there.out, StartsWith("[material]\nname = Two tables\n"));
}

TEST(ConvertCommand, PutsSeveralCardsIntoOneTextOrNone) {
    const ProgramRun both = RunZelmat({"convert", "two_tables.json", "cut_elastic.json", "--to", "json"});
    EXPECT_THAT(both.out, StartsWith("[\n"));
    EXPECT_THAT(both.out, HasSubstr("\"name\": \"Two tables\""));

    const ProgramRun none = RunZelmat({"convert", "two_tables.json", "ragged.json", "--to", "json"});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_EQ(none.out, "");

    const ProgramRun fcmat = RunZelmat({"convert", "two_tables.json", "cut_elastic.json", "--to", "fcmat"});
    EXPECT_EQ(fcmat.exitCode, 2);
    EXPECT_EQ(fcmat.out, "");
    EXPECT_THAT(fcmat.err,
                HasSubstr("error[several-materials]: a file of the form fcmat holds one material, not 2 "
                          "(give a folder with --output)"));
}

TEST(ConvertCommand, WritesAFileForEachCardIntoAFolder) {
    const TestFolder folder;
    Write(folder / "pair.json", R"([{"name": "A"}, {"name": "B"}])");
    const std::string out = folder / "out";
    std::filesystem::create_directory(out);

    const ProgramRun run = RunZelmat({"convert", folder / "pair.json", "two_tables.json", "ragged.json",
                                      "--to", "fcmat", "--output", out});

    EXPECT_EQ(run.exitCode, 1) << "one has a mistake";
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(out))
        files.push_back(entry.path().filename());
    EXPECT_THAT(files, testing::UnorderedElementsAre("pair-1.FCMat", "pair-2.FCMat", "two_tables.FCMat"));
    EXPECT_THAT(RunZelmat({"check", out + "/pair-2.FCMat"}).out, HasSubstr("pair-2.FCMat: B: clean\n"));
}

TEST(ConvertCommand, PutsNoTwoCardsOfOneNameIntoOneFile) {
    const TestFolder folder;
    std::filesystem::create_directory(folder / "one");
    std::filesystem::create_directory(folder / "out");
    Write(folder / "a.json", R"({"name": "first"})");
    Write(folder / "one/a.json", R"({"name": "second"})");

    const ProgramRun run = RunZelmat(
        {"convert", folder / "a.json", folder / "one/a.json", "--to", "csv", "--output", folder / "out"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("error[same-file]: another card of this name is in "));
    EXPECT_THAT(RunZelmat({"convert", folder / "out/a.csv", "--to", "json"}).out, HasSubstr("\"first\""));
}

TEST(ConvertCommand, ListsWhatTheNewFormCannotHold) {
    const ProgramRun run = RunZelmat({"convert", Sample("natural_rubber_treloar.json"), "--to", "fcmat"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err, HasSubstr("warning[not-held]: the form fcmat has no place for hyperelastic\n"));
    EXPECT_THAT(run.err, HasSubstr("warning[not-held]: the form fcmat has no place for test_data\n"));
    EXPECT_EQ(
        RunZelmat({"convert", Sample("natural_rubber_treloar.json"), "--to", "fcmat", "--strict"}).exitCode,
        1);
}

TEST(NewCommand, WritesATemplateInWhichEveryNumberIsMissing) {
    const TestFolder folder;
    const std::string card = folder / "card.json";
    EXPECT_EQ(RunZelmat({"new", "--card", "Steel \"x\"", "--output", card}).exitCode, 0);

    const ProgramRun run = RunZelmat({"check", card});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("error[not-a-number]: elastic.rows[0][0] is not a number (got null"));
    EXPECT_EQ(folder.Files(), std::vector<std::string>{"card.json"});
}

TEST(NewCommand, WantsANameAndAPlaceToWriteTo) {
    EXPECT_EQ(RunZelmat({"new"}).exitCode, 2);
    EXPECT_THAT(
        RunZelmat({"new"}).err,
        HasSubstr("zelmat new: error[usage]: expected the path of a document, or --card with a name"));
    EXPECT_EQ(RunZelmat({"new", "--card", ""}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"new", "--card", "M", "--schema"}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"new", "--card", "M", "--output", "/dev/full"}).exitCode, 3);
    EXPECT_EQ(RunZelmatWith({"new", "--card", "M"}, ">/dev/full").exitCode, 3);
    EXPECT_THAT(RunZelmat({"new", "--schema"}).out,
                HasSubstr("\"$schema\": \"https://json-schema.org/draft/2020-12/schema\""));
}

}  // namespace
