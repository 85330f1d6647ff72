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

TEST_F(ExportCommand, TellsADocumentWithNothingInIt) {
    const std::string document = folder_ + "/empty.zeldoc";
    ASSERT_EQ(RunZelmat({"new", document}).exitCode, 0);
    const ProgramRun run = RunZelmat({"export", document, "--to", "calculix"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("error[nothing-carried]: there is no material and no layup in it"));
}

/// A document with the layup [0/90] of a material whose card is given.
class LayupExport : public ExportCommand {
protected:
    void Make(const std::string& card) {
        std::ofstream(folder_ + "/card.json") << card;
        ASSERT_EQ(RunZelmat({"new", document_}).exitCode, 0);
        ASSERT_EQ(RunZelmat({"add", document_, folder_ + "/card.json"}).exitCode, 0);
        ASSERT_EQ(RunZelmat({"layup", document_, "add", "Laminate", "[0/90]", "--material", "Ply",
                             "--thickness", "1mm"})
                      .exitCode,
                  0);
    }
    std::string document_ = folder_ + "/lab.zeldoc";
};

TEST_F(LayupExport, TakesThePlyFromTheMaterialInTheDeck) {
    Make(
        R"({"name": "Ply", "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[1600]]},
             "other_properties": {"E1": 181e9, "E2": 10.3e9, "nu12": 0.28, "G12": 7.17e9}})");
    const ProgramRun run = RunZelmat({"export", document_, "--to", "calculix"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(
        run.out,
        HasSubstr("*MATERIAL, NAME=Ply\n*ELASTIC, TYPE=ENGINEERING CONSTANTS\n1.81e+11, 1.03e+10, 1.03e+10, "
                  "0.28, 0.28, 0.28, 7.17e+09, 7.17e+09\n4023437500\n*DENSITY\n1600\n"));
    EXPECT_THAT(run.out, HasSubstr("*SHELL SECTION, COMPOSITE, ELSET=Laminate\n0.001, , Ply, OR1\n"));
    EXPECT_THAT(run.out, testing::Not(HasSubstr("Ply_2")));
}

TEST_F(LayupExport, TakesTheLayupByItsName) {
    Make(R"({"name": "Ply", "other_properties": {"E1": 181e9, "E2": 10.3e9, "nu12": 0.28, "G12": 7.17e9}})");
    const ProgramRun run = RunZelmat({"export", document_, "Laminate", "--to", "code_aster"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("ELAS_ORTH=_F(E_L=1.81e+11, E_T=1.03e+10, NU_LT=0.28, G_LT=7.17e+09, ),"));
    EXPECT_THAT(run.out, HasSubstr("Laminat = DEFI_COMPOSITE("));
}

TEST_F(LayupExport, SaysOfWhichMaterialThePlyHasNoStiffness) {
    Make(R"({"name": "Ply", "notes": "only a name"})");
    const ProgramRun run = RunZelmat({"export", document_, "--to", "calculix"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("'Laminate': ply material 'Ply': it has no E1, E2, nu12, G12"));
    EXPECT_THAT(run.err, testing::Not(HasSubstr("can hold nothing of 'Ply'")));
}

TEST_F(ExportCommand, WritesAFolderOrNothingOfIt) {
    const std::string folder = folder_ + "/mf", taken = "/PMI_foam_Rohacell_71_PoissonRatio.mfront";
    std::filesystem::create_directories(folder + taken);
    const ProgramRun run =
        RunZelmat({"export", Sample("foam_rohacell71.json"), "--to", "mfront", "--output", folder});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, HasSubstr("cannot be replaced (Is a directory)"));
    EXPECT_FALSE(std::filesystem::exists(folder + "/PMI_foam_Rohacell_71_YoungModulus.mfront"));
    std::filesystem::remove(folder + taken);
    EXPECT_EQ(
        RunZelmat({"export", Sample("foam_rohacell71.json"), "--to", "mfront", "--output", folder}).exitCode,
        0);
    EXPECT_THAT(Text(folder + taken), HasSubstr("@Law PMI_foam_Rohacell_71_PoissonRatio;"));
}

TEST_F(ExportCommand, NeedsAFormAndAFile) {
    EXPECT_EQ(RunZelmat({"export", Sample("foam_rohacell71.json")}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"export", "--to", "calculix"}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"export", Sample("foam_rohacell71.json"), "--to", "fortran"}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"export", "missing.json", "--to", "calculix"}).exitCode, 3);
}

}  // namespace
