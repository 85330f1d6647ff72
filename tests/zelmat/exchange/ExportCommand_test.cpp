#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string Text(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

class ExportCommand : public testing::Test {
protected:
    ExportCommand() { std::filesystem::create_directories(folder_); }
    ~ExportCommand() override { std::filesystem::remove_all(folder_); }

    std::string folder_ = testing::TempDir() + "zelmat-export-" + std::to_string(getpid());
};

TEST_F(ExportCommand, WritesADeckToStandardOutput) {
    const ProgramRun run = RunZelmat({"export", Sample("foam_rohacell71.json"), "--to", "calculix"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, StartsWith("** Material: PMI foam Rohacell 71\n"));
    EXPECT_THAT(
        run.out,
        testing::EndsWith("*MATERIAL, NAME=PMI_foam_Rohacell_71\n*ELASTIC\n1.05e+08, 0.4\n*DENSITY\n75\n"));
    EXPECT_EQ(run.err, "");
}

TEST_F(ExportCommand, WritesSeveralMaterialsAndLayupsIntoOneFile) {
    const std::string deck = folder_ + "/deck.inp";
    const ProgramRun run =
        RunZelmat({"export", Sample("foam_rohacell71.json"), Sample("copper_ofhc.json"),
                   Sample("layups/cross_ply_t300_5208.json"), "--to", "calculix", "--output", deck});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out, "\nwritten: " + deck + "\n");
    EXPECT_THAT(Text(deck), HasSubstr("NAME=PMI_foam_Rohacell_71\n"));
    EXPECT_THAT(Text(deck), HasSubstr("NAME=OFHC_copper\n"));
    EXPECT_THAT(Text(deck), HasSubstr("*SHELL SECTION, COMPOSITE"));
}

TEST_F(ExportCommand, TakesOneMaterialOfADocumentByItsName) {
    const ProgramRun run =
        RunZelmat({"export", Sample("older/copper_and_rubber.json"), "OFHC", "--to", "calculix"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("*MATERIAL, NAME=OFHC_copper\n"));
    EXPECT_THAT(run.out, testing::Not(HasSubstr("*HYPERELASTIC")));
}

TEST_F(ExportCommand, NamesTheMaterialsThatThereAreForOneThatIsNot) {
    const ProgramRun run = RunZelmat({"export", Sample("foam_rohacell71.json"), "steel", "--to", "calculix"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, HasSubstr("PMI foam Rohacell 71"));
}

TEST_F(ExportCommand, WritesNothingWhenNothingIsCarried) {
    const std::string card = folder_ + "/card.json", deck = folder_ + "/deck.inp";
    std::ofstream(card) << R"({"name": "Gap", "hyperelastic": [{"model": "VAN_DER_WAALS", "order": 1,
        "temperature_dependent": false, "columns": ["mu", "lambda_m", "a", "beta"], "rows": [[4e5, 10, 0.3, 0]]}]})";
    const ProgramRun run = RunZelmat({"export", card, "--to", "calculix", "--output", deck});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("error[nothing-carried]: a deck of CalculiX can hold nothing of 'Gap'"));
    EXPECT_FALSE(std::filesystem::exists(deck));
}

TEST_F(ExportCommand, LetsTheChecksStopTheDeck) {
    const std::string card = Sample("faulty/steel_five_faults.json"), deck = folder_ + "/deck.inp";
    EXPECT_EQ(RunZelmat({"export", card, "--to", "calculix", "--output", deck}).exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(deck));
}

TEST_F(ExportCommand, LeavesAFullDiskWithAWord) {
    const ProgramRun run =
        RunZelmat({"export", Sample("foam_rohacell71.json"), "--to", "calculix", "--output", "/dev/full"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, HasSubstr("No space left on device"));
    EXPECT_EQ(RunZelmat({"export", Sample("foam_rohacell71.json"), "--to", "calculix", "--output",
                         folder_ + "/none/deck.inp"})
                  .exitCode,
              3);
}

TEST_F(ExportCommand, PrintsOneJsonObject) {
    const ProgramRun run =
        RunZelmat({"export", Sample("foam_rohacell71.json"), "--to", "calculix", "--json"});
    const auto json = nlohmann::json::parse(run.out);
    EXPECT_EQ(json["form"], "calculix");
    EXPECT_THAT(json["text"].get<std::string>(), HasSubstr("*ELASTIC\n1.05e+08, 0.4\n"));
    EXPECT_TRUE(json["findings"].empty());
}

TEST_F(ExportCommand, NeedsAFormAndAFile) {
    EXPECT_EQ(RunZelmat({"export", Sample("foam_rohacell71.json")}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"export", "--to", "calculix"}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"export", Sample("foam_rohacell71.json"), "--to", "fortran"}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"export", "missing.json", "--to", "calculix"}).exitCode, 3);
}

}  // namespace
