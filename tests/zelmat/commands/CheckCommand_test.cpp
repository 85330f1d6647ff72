#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(CheckCommand, PrintsALineForEachCard) {
    const ProgramRun run = RunZelmat({"check", "two_tables.json", "first_strain.json", "ragged.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out,
              "two_tables.json: Two tables: clean\n"
              "first_strain.json: First strain: 1 error, 1 warning\n"
              "ragged.json: 1 error\n");
    EXPECT_THAT(run.err, HasSubstr("first_strain.json:8: error[first-plastic-strain]: row 1 of plastic: "
                                   "plastic strain is 0.002 (has to be 0)\n"));
}

TEST(CheckCommand, EndsCleanForWarningsAloneUnlessItIsStrict) {
    EXPECT_EQ(RunZelmat({"check", "two_tables.json"}).exitCode, 0);
    EXPECT_EQ(RunZelmat({"check", "--strict", "two_tables.json"}).exitCode, 0);
    EXPECT_EQ(RunZelmat({"check", "cut_elastic.json"}).exitCode, 0);
    EXPECT_EQ(RunZelmat({"check", "--strict", "cut_elastic.json"}).exitCode, 1);
    EXPECT_EQ(RunZelmat({"check", "--strict", "--json", "cut_elastic.json"}).exitCode, 1);
}

TEST(CheckCommand, KnowsALayupCardByItsContent) {
    const ProgramRun run =
        RunZelmat({"check", Sample("layups/cross_ply_t300_5208.json"), "layup_no_material.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr("T300/5208: clean\n"));
    EXPECT_EQ(run.err,
              "layup_no_material.json:6: error[layer-material]: layer 2: it has no material (every layer "
              "needs one)\n");
}

TEST(CheckCommand, EndsWithThreeWhenACardCannotBeRead) {
    const ProgramRun run = RunZelmat({"check", "missing.json", "two_tables.json"});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.out, "missing.json: 1 error\ntwo_tables.json: Two tables: clean\n");
}

TEST(CheckCommand, CountsFindingsByCardInJson) {
    const ProgramRun run = RunZelmat({"check", "--json", "first_strain.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "");
    const auto json = nlohmann::json::parse(run.out);
    EXPECT_EQ(json["cards"][0]["name"], "First strain");
    EXPECT_EQ(json["cards"][0]["errors"], 1);
    EXPECT_EQ(json["cards"][0]["warnings"], 1);
    EXPECT_EQ(json["findings"][1]["code"], "first-plastic-strain");
}

TEST(CheckCommand, FindsFiveFaultsOnTheFaultySample) {
    const ProgramRun run = RunZelmat({"check", "--json", Sample("faulty/steel_five_faults.json")});

    EXPECT_EQ(run.exitCode, 1);
    std::vector<std::string> codes;
    const auto json = nlohmann::json::parse(run.out);
    for (const auto& finding : json["findings"]) codes.push_back(finding["code"]);
    EXPECT_THAT(codes,
                testing::ElementsAre("implausible-modulus", "impossible-density", "first-plastic-strain",
                                     "temperature-order", "impossible-expansion"));
}

TEST(CheckCommand, PrintsItsRules) {
    const ProgramRun run = RunZelmat({"check", "--rules"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, StartsWith("# Checks\n"));
    EXPECT_THAT(run.out, HasSubstr("| `poissons-ratio` | error | Poisson's ratio lies between -1 and 0.5"));
}

TEST(CheckCommand, ReadsMaterialsAndLayupsFromStandardInput) {
    const ProgramRun card = RunZelmatWith({"check", "-"}, "<first_strain.json");
    EXPECT_EQ(card.exitCode, 1);
    EXPECT_EQ(card.out, "-: First strain: 1 error, 1 warning\n");
    EXPECT_THAT(card.err, HasSubstr("standard input:8: error[first-plastic-strain]"));

    const ProgramRun layup = RunZelmatWith({"check", "-"}, "<layup_no_material.json");
    EXPECT_EQ(layup.exitCode, 1);
    EXPECT_EQ(
        layup.err,
        "standard input:6: error[layer-material]: layer 2: it has no material (every layer needs one)\n");

    const ProgramRun nothing = RunZelmatWith({"check", "-"}, "</dev/null");
    EXPECT_EQ(nothing.exitCode, 3);
    EXPECT_THAT(nothing.err, HasSubstr("standard input:1: error[broken-json]"));
}

TEST(CheckCommand, ChecksEveryMaterialOfACard) {
    const CardFile file(R"([
        {"name": "A", "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[-1]]}},
        {"name": "B", "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[7850]]}},
        {"name": "C", "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[-2]]}}])");
    const ProgramRun run = RunZelmat({"check", file.Path()});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, file.Path() + ": A, B, C: 2 errors\n");
    EXPECT_THAT(run.err, HasSubstr(":2: error[density]: row 1 of density: density is -1 kg/m3"));
    EXPECT_THAT(run.err, HasSubstr(":4: error[density]: row 1 of density: density is -2 kg/m3"));
}

TEST(CheckCommand, ReadsDecimalCommasAsAllThatReadCardsDo) {
    const CardFile file("E [GPa]; nu\n210,5; 0,3\n");
    EXPECT_EQ(RunZelmat({"check", file.Path()}).exitCode, 1);
    EXPECT_EQ(RunZelmat({"check", file.Path(), "--decimal-comma"}).out, file.Path() + ": card: clean\n");
    EXPECT_THAT(RunZelmat({"show", file.Path(), "--decimal-comma"}).out, HasSubstr("210500"));
    EXPECT_THAT(RunZelmat({"summary", file.Path(), "--decimal-comma"}).out, HasSubstr("elastic 1"));
    EXPECT_THAT(RunZelmat({"convert", file.Path(), "--decimal-comma", "--to", "json"}).out,
                HasSubstr("\n      [210.5, 0.3]\n"));
}

TEST(CheckCommand, WantsACard) {
    const ProgramRun run = RunZelmat({"check"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, HasSubstr("zelmat check: error[usage]: CARD is required"));
}

}  // namespace
