#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/Program.h"

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(ShowCommand, PrintsWhatTheDocumentHolds) {
    const ProgramRun run = RunZelmat({"show", "two_tables.json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "Two tables\n"
              "A small card with every shape of table that is shown.\n"
              "source: made up for tests\n"
              "\n"
              "Elastic, temperature dependent\n"
              "  Young's modulus [Pa]  Poisson's ratio [-]  temperature [K]\n"
              "               2.1e+11                  0.3           293.15\n"
              "              1.89e+11                 0.31           473.15\n"
              "  source: a handbook\n"
              "\n"
              "Thermal expansion, not temperature dependent, from 293.15 K\n"
              "  thermal expansion [1/K]\n"
              "                  1.2e-05\n");
}

TEST(ShowCommand, ShowsTheWarningOfACutElasticTable) {
    const ProgramRun run = RunZelmat({"show", "cut_elastic.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err,
              "cut_elastic.json:6: warning[table-cut]: elastic is not temperature dependent: only the first "
              "row was "
              "kept (3 rows given, 1 kept, make it temperature dependent or give one row)\n");
    EXPECT_EQ(run.out,
              "Cut elastic\n"
              "\n"
              "Elastic, not temperature dependent\n"
              "  Young's modulus [Pa]  Poisson's ratio [-]\n"
              "               2.1e+11                  0.3\n");
}

TEST(ShowCommand, KeepsEveryRowOfTheOtherTables) {
    const ProgramRun run = RunZelmat({"show", "long_conductivity.json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "Long conductivity\n"
              "\n"
              "Conductivity, not temperature dependent\n"
              "  conductivity [W/(m K)]\n"
              "                      50\n"
              "                      40\n"
              "                      30\n");
}

TEST(ShowCommand, PrintsNothingOfACardWithAMistake) {
    const ProgramRun run = RunZelmat({"show", "ragged.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "ragged.json:8: error[ragged-row]: row 2 of density has 1 value (expected 2: density, "
              "temperature)\n");
}

TEST(ShowCommand, EndsWithThreeWhenTheCardCannotBeRead) {
    const ProgramRun broken = RunZelmat({"show", "broken.json"});
    EXPECT_EQ(broken.exitCode, 3);
    EXPECT_EQ(broken.out, "");
    EXPECT_THAT(broken.err, StartsWith("broken.json:4: error[broken-json]: "));

    const ProgramRun missing = RunZelmat({"show", "missing.json"});
    EXPECT_EQ(missing.exitCode, 3);
    EXPECT_EQ(missing.out, "");
    EXPECT_EQ(missing.err, "missing.json: error[unreadable]: cannot be read: No such file or directory\n");
}

TEST(ShowCommand, PrintsOneJsonObjectForScripts) {
    const ProgramRun run = RunZelmat({"show", "--json", "cut_elastic.json"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "");

    const auto json = nlohmann::json::parse(run.out);
    EXPECT_EQ(json["material"]["name"], "Cut elastic");
    EXPECT_EQ(json["material"]["tables"][0]["block"], "elastic");
    EXPECT_EQ(json["material"]["tables"][0]["rows"], nlohmann::json::parse("[[210e9, 0.3]]"));
    EXPECT_EQ(json["findings"][0]["code"], "table-cut");
    EXPECT_EQ(json["findings"][0]["line"], 6);
}

TEST(ShowCommand, PutsTheMistakesOfARefusedCardIntoTheJson) {
    const ProgramRun run = RunZelmat({"show", "--json", "ragged.json"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "");

    const auto json = nlohmann::json::parse(run.out);
    EXPECT_TRUE(json["material"].is_null());
    EXPECT_EQ(json["findings"][0]["code"], "ragged-row");
    EXPECT_EQ(json["findings"][0]["line"], 8);
}

TEST(ShowCommand, TracesEveryInterfaceCallOnStandardError) {
    const ProgramRun traced = RunZelmat({"show", "--trace", "two_tables.json"});
    EXPECT_EQ(traced.exitCode, 0);
    EXPECT_THAT(traced.err, HasSubstr("trace: ZELIMaterial.GetElasticProperties on ZELMaterial\n"));
    EXPECT_THAT(traced.err, HasSubstr("trace: ZELIMaterial.GetThermalExpansionProperties on ZELMaterial\n"));
    EXPECT_EQ(traced.out, RunZelmat({"show", "two_tables.json"}).out);
    EXPECT_THAT(RunZelmat({"show", "two_tables.json"}).err, Not(HasSubstr("trace:")));
}

TEST(Program, EndsWithTwoForAWrongCommandLine) {
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {}, {"show"}, {"shwo", "two_tables.json"}, {"show", "two_tables.json", "--loud"}}) {
        const ProgramRun run = RunZelmat(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, Not(testing::IsEmpty()));
    }
}

TEST(Program, ExplainsItselfWhenAsked) {
    const ProgramRun run = RunZelmat({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("show"));
    EXPECT_THAT(
        run.out,
        HasSubstr("Exit codes: 0 clean, 1 findings, 2 wrong command line, 3 could not read or write."));
    EXPECT_EQ(run.err, "");

    const ProgramRun show = RunZelmat({"show", "--help"});
    EXPECT_EQ(show.exitCode, 0);
    EXPECT_THAT(show.out, HasSubstr("--json"));
    EXPECT_THAT(show.out, HasSubstr("--trace"));
}

/// The cards in samples/, and what of each is not shown yet.
struct SampleCard {
    const char* file;
    const char* note;

    friend std::ostream& operator<<(std::ostream& out, const SampleCard& card) { return out << card.file; }
};

class Samples : public testing::TestWithParam<SampleCard> {};

TEST_P(Samples, AreShownWithoutFindings) {
    const ProgramRun run = RunZelmat({"show", Sample(GetParam().file)});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr(GetParam().note));
}

INSTANTIATE_TEST_SUITE_P(
    All, Samples,
    testing::Values(
        SampleCard{"aluminium_2024_t351.json", "\nnot shown yet: plastic\n"},
        SampleCard{"aluminium_6061_t6.json", "\nnot shown yet: plastic\n"},
        SampleCard{"cfrp_t300_5208_quasi_isotropic.json", "\nElastic, not temperature dependent\n"},
        SampleCard{"concrete_c30_37.json", "\nfor information only, used by no behavior: strength\n"},
        SampleCard{"copper_ofhc.json", "\nnot shown yet: plastic\n"},
        SampleCard{"foam_rohacell71.json", "\nElastic, not temperature dependent\n"},
        SampleCard{"gasket_fibre_illustrative.json", "\nillustrative: the values are made up\n"},
        SampleCard{"natural_rubber_treloar.json", "\nnot shown yet: hyperelastic, test_data\n"},
        SampleCard{"silicone_rtv141.json", "\nnot shown yet: hyperelastic, test_data\n"},
        SampleCard{"stainless_304.json", "\nnot shown yet: plastic\n"},
        SampleCard{"steel_4340.json", "\nnot shown yet: plastic\n"},
        SampleCard{"steel_s235_kinematic.json", "\nnot shown yet: plastic\n"},
        SampleCard{"steel_s355.json", "\nnot shown yet: plastic\n"},
        SampleCard{"titanium_ti6al4v.json", "\nnot shown yet: plastic\n"}),
    [](const testing::TestParamInfo<SampleCard>& sample) {
        const std::string file = sample.param.file;
        return file.substr(0, file.find('.'));
    });

TEST(SteelS355, IsShownWithItsTemperatureTables) {
    const ProgramRun run = RunZelmat({"show", Sample("steel_s355.json")});

    EXPECT_THAT(run.out, StartsWith("Structural steel S355\n"));
    EXPECT_THAT(run.out, HasSubstr("\nElastic, temperature dependent\n"
                                   "  Young's modulus [Pa]  Poisson's ratio [-]  temperature [K]\n"
                                   "               2.1e+11                  0.3           293.15\n"));
    EXPECT_THAT(run.out, HasSubstr("             4.725e+09                  0.3          1373.15\n"));
    EXPECT_THAT(run.out, HasSubstr("\nDensity, not temperature dependent\n"
                                   "  density [kg/m3]\n"
                                   "             7850\n"));
    EXPECT_THAT(run.out, HasSubstr("\nThermal expansion, temperature dependent, from 293.15 K\n"
                                   "  thermal expansion [1/K]  temperature [K]\n"
                                   "                1.248e-05           373.15\n"));
    EXPECT_THAT(run.out, HasSubstr("\nSpecific heat, temperature dependent\n"));
    EXPECT_THAT(run.out, HasSubstr("                      5000          1008.15\n"));
}

}  // namespace
