#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/BehaviorBlocks.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"

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
              "switched on: elastic, thermal_expansion\n"
              "switched off: " +
                  BehaviorBlocksBut({"elastic", "thermal_expansion"}) +
                  "\n"
                  "\n"
                  "Elastic, temperature dependent\n"
                  "  Young's modulus [MPa]  Poisson's ratio [-]  temperature [degC]\n"
                  "                 210000                 0.30                  20\n"
                  "                 189000                 0.31                 200\n"
                  "  source: a handbook\n"
                  "\n"
                  "Thermal expansion, not temperature dependent\n"
                  "  reference temperature: 20 degC\n"
                  "  thermal expansion [1/K]\n"
                  "                  1.2e-05\n");
}

TEST(ShowCommand, ShowsTheWarningOfACutElasticTable) {
    const ProgramRun run = RunZelmat({"show", "cut_elastic.json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err,
              "cut_elastic.json:8: warning[several-rows]: elastic has 3 rows and no temperatures (no "
              "temperature tells the rows apart)\n"
              "cut_elastic.json:6: warning[table-cut]: elastic is not temperature dependent: only the first "
              "row was "
              "kept (3 rows given, 1 kept, make it temperature dependent or give one row)\n");
    EXPECT_EQ(run.out,
              "Cut elastic\n"
              "\n"
              "switched on: elastic\n"
              "switched off: " +
                  BehaviorBlocksBut({"elastic"}) +
                  "\n"
                  "\n"
                  "Elastic, not temperature dependent\n"
                  "  Young's modulus [MPa]  Poisson's ratio [-]\n"
                  "                 210000                  0.3\n");
}

TEST(ShowCommand, KeepsEveryRowOfTheOtherTables) {
    const ProgramRun run = RunZelmat({"show", "long_conductivity.json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err,
              "long_conductivity.json:6: warning[several-rows]: conductivity has 3 rows and no temperatures "
              "(no temperature tells the rows apart)\n");
    EXPECT_EQ(run.out,
              "Long conductivity\n"
              "\n"
              "switched on: conductivity\n"
              "switched off: " +
                  BehaviorBlocksBut({"conductivity"}) +
                  "\n"
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
    const ProgramRun run = RunZelmat({"show", "--json", "--strict", "cut_elastic.json"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "");

    const auto json = nlohmann::json::parse(run.out);
    EXPECT_EQ(json["material"]["name"], "Cut elastic");
    EXPECT_EQ(json["material"]["behaviors"][0]["name"], "elastic");
    EXPECT_EQ(json["material"]["behaviors"][0]["tables"][0]["rows"], nlohmann::json::parse("[[210e9, 0.3]]"));
    EXPECT_EQ(json["findings"][1]["code"], "table-cut");
    EXPECT_EQ(json["findings"][1]["line"], 6);
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

/// The cards in samples/, and a line of what each shows.
struct SampleCard {
    const char* file;
    const char* note;

    friend std::ostream& operator<<(std::ostream& out, const SampleCard& card) { return out << card.file; }
};

class Samples : public testing::TestWithParam<SampleCard> {};

TEST_P(Samples, AreShownWithoutErrors) {
    const ProgramRun run = RunZelmat({"show", Sample(GetParam().file)});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err, Not(HasSubstr("error[")));
    EXPECT_THAT(run.out, HasSubstr(GetParam().note));
}

INSTANTIATE_TEST_SUITE_P(
    All, Samples,
    testing::Values(
        SampleCard{"aluminium_2024_t351.json", "\nswitched on: elastic, plastic, density, specific_heat\n"},
        SampleCard{
            "aluminium_6061_t6.json",
            "\nswitched on: elastic, plastic, density, thermal_expansion, conductivity, specific_heat\n"},
        SampleCard{"cfrp_t300_5208_quasi_isotropic.json", "\nswitched on: elastic, density\n"},
        SampleCard{"concrete_c30_37.json",
                   "\nswitched on: elastic, density, thermal_expansion, conductivity, specific_heat\n"},
        SampleCard{"copper_ofhc.json",
                   "\nswitched on: elastic, plastic, density, conductivity, specific_heat\n"},
        SampleCard{"foam_rohacell71.json", "\nswitched on: elastic, density\n"},
        SampleCard{"gasket_fibre_illustrative.json", "\nswitched on: density, gasket\n"},
        SampleCard{"natural_rubber_treloar.json",
                   "\nswitched on: density, thermal_expansion, conductivity, specific_heat, hyperelastic\n"},
        SampleCard{"silicone_rtv141.json", "\nswitched on: hyperelastic\n"},
        SampleCard{
            "stainless_304.json",
            "\nswitched on: elastic, plastic, density, thermal_expansion, conductivity, specific_heat\n"},
        SampleCard{"steel_4340.json",
                   "\nswitched on: elastic, plastic, density, conductivity, specific_heat\n"},
        SampleCard{"steel_s235_kinematic.json",
                   "\nswitched on: elastic, plastic, density, thermal_expansion\n"},
        SampleCard{
            "steel_s355.json",
            "\nswitched on: elastic, plastic, density, thermal_expansion, conductivity, specific_heat\n"},
        SampleCard{
            "titanium_ti6al4v.json",
            "\nswitched on: elastic, plastic, density, thermal_expansion, conductivity, specific_heat\n"},
        SampleCard{"user_routine_illustrative.json", "\nswitched on: density, user_material\n"}),
    [](const testing::TestParamInfo<SampleCard>& sample) {
        const std::string file = sample.param.file;
        return file.substr(0, file.find('.'));
    });

TEST(SteelS355, IsShownWithItsTemperatureTables) {
    const ProgramRun run = RunZelmat({"show", Sample("steel_s355.json")});

    EXPECT_THAT(run.out, StartsWith("Structural steel S355\n"));
    EXPECT_THAT(run.out, HasSubstr("\nElastic, temperature dependent\n"
                                   "  Young's modulus [MPa]  Poisson's ratio [-]  temperature [degC]\n"
                                   "                 210000                  0.3                  20\n"));
    EXPECT_THAT(run.out, HasSubstr("                   4725                  0.3                1100\n"));
    EXPECT_THAT(run.out, HasSubstr("\nDensity, not temperature dependent\n"
                                   "  density [kg/m3]\n"
                                   "             7850\n"));
    EXPECT_THAT(run.out, HasSubstr("\nThermal expansion, temperature dependent\n"
                                   "  reference temperature: 20 degC\n"
                                   "  thermal expansion [1/K]  temperature [degC]\n"
                                   "               1.2480e-05                 100\n"));
    EXPECT_THAT(run.out, HasSubstr("\nSpecific heat, temperature dependent\n"));
    EXPECT_THAT(run.out, HasSubstr("                  5000.000                 735\n"));
}

/// The cells of the table that follows a caption, row by row; blanks between them.
std::string TableAfter(const std::string& out, const std::string& caption, std::size_t lines) {
    std::size_t at = out.find("\n" + caption + "\n");
    if (at == std::string::npos) return "no " + caption;
    at += caption.size() + 2;
    std::size_t end = at;
    for (std::size_t line = 0; line < lines; ++line) end = out.find('\n', end) + 1;
    return out.substr(at, end - at);
}

// 355 MPa (1 + 355/210000), and 355 MPa (1 + e) over ln(1 + e) - sigma/E at e = 0.14831 + 355/210000.
TEST(SteelS355, IsShownWithItsHardeningCurvesAsTrueStress) {
    const ProgramRun run = RunZelmat({"show", Sample("steel_s355.json")});

    EXPECT_EQ(TableAfter(run.out, "Plastic, temperature dependent", 4),
              "  hardening: isotropic\n"
              "   yield stress [MPa]     plastic strain [-]  temperature [degC]\n"
              "  355.600119047619050  0.0000000000000000000                  20\n"
              "  408.250169047619100  0.1378183080297116200                  20\n");
    EXPECT_THAT(run.out, HasSubstr("\n  stress given as, on the card: engineering\n"));
    EXPECT_THAT(run.err, HasSubstr("note[hardening-converted]: 12 curves of plastic from 293.15 K to 1373.15 K "
                                   "were converted to true stress over plastic strain (engineering stress "
                                   "over plastic strain given, Young's modulus 4.725e+09 to 2.1e+11 Pa)"));
}

TEST(JohnsonCookMetals, AreShownWithTheirParameters) {
    EXPECT_EQ(
        TableAfter(RunZelmat({"show", Sample("copper_ofhc.json")}).out, "Plastic, not temperature dependent",
                   3),
        "  hardening: johnson-cook\n"
        "  A [MPa]  B [MPa]  n [-]  m [-]  melting temperature [degC]  transition temperature [degC]\n"
        "       90      292   0.31   1.09                     1082.85                          24.85\n");
    EXPECT_EQ(
        TableAfter(RunZelmat({"show", Sample("steel_4340.json")}).out, "Plastic, not temperature dependent",
                   3),
        "  hardening: johnson-cook\n"
        "  A [MPa]  B [MPa]  n [-]  m [-]  melting temperature [degC]  transition temperature [degC]\n"
        "      792      510   0.26   1.03                     1519.85                          24.85\n");
}

TEST(NaturalRubber, IsStoredWithItsFirstFitAndSaysSo) {
    const ProgramRun run = RunZelmat({"show", Sample("natural_rubber_treloar.json")});

    EXPECT_EQ(TableAfter(run.out, "Hyperelastic, not temperature dependent", 4),
              "  model: OGDEN\n"
              "  order: 3\n"
              "  mu_1 [MPa]  alpha_1 [-]  mu_2 [MPa]  alpha_2 [-]  mu_3 [MPa]  alpha_3 [-]  D1 [1/MPa]  "
              "D2 [1/MPa]  D3 [1/MPa]\n"
              "      0.4095          1.3       0.003            5        0.01           -2           0  "
              "         0           0\n");
    EXPECT_THAT(run.err,
                HasSubstr(":90: note[ogden-converted]: the coefficients of OGDEN were converted from "
                          "mu/alpha to 2mu/alpha^2 (by its ogden_convention, mu times alpha/2 is "
                          "stored)\n"));
    EXPECT_THAT(run.out, HasSubstr("\n"
                                   "  strain energy: W = sum (2 mu_i/alpha_i^2) (l1^alpha_i + l2^alpha_i + "
                                   "l3^alpha_i - 3)\n"
                                   "  convention of mu: 2mu/alpha^2\n"
                                   "  initial shear modulus mu0: 0.4225 MPa\n"
                                   "  initial bulk modulus K0: none, incompressible\n"));
    EXPECT_THAT(run.out, HasSubstr("\nhyperelastic fits on the card: 10, stored: OGDEN\n"));
    EXPECT_THAT(run.out, HasSubstr("test_data (uniaxial 24 rows, equibiaxial 16 rows, planar 13 rows)\n"));
}

TEST(NaturalRubber, IsStoredWithTheFitThatIsAskedFor) {
    const ProgramRun run = RunZelmat(
        {"show", Sample("natural_rubber_treloar.json"), "--model", "MOONEY_RIVLIN", "--variant", "planar"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(TableAfter(run.out, "Hyperelastic, not temperature dependent", 4),
              "  model: MOONEY_RIVLIN\n"
              "  order: 1\n"
              "  C10 [MPa]  C01 [MPa]  D1 [1/MPa]\n"
              "     0.2348     -0.065           0\n");
}

TEST(NaturalRubber, IsRefusedWithAModelThatTheCardDoesNotHave) {
    const ProgramRun run = RunZelmat({"show", Sample("natural_rubber_treloar.json"), "--model", "NEO_HOOK"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("natural_rubber_treloar.json:90: error[no-such-model]: "));
}

TEST(NaturalRubber, ShowsEachOfItsFitsInTurn) {
    const ProgramRun run =
        RunZelmat({"show", Sample("natural_rubber_treloar.json"), "--all-models", "--json"});

    EXPECT_EQ(run.exitCode, 0);
    const auto json = nlohmann::json::parse(run.out);
    std::vector<std::string> models;
    for (const auto& behavior : json["material"]["behaviors"]) {
        if (behavior["name"] == "hyperelastic") models.push_back(behavior["values"]["model"]["value"]);
    }
    EXPECT_THAT(models, testing::ElementsAre("OGDEN", "NEO_HOOKE", "MOONEY_RIVLIN", "MOONEY_RIVLIN",
                                             "MOONEY_RIVLIN", "ARRUDA_BOYCE", "YEOH", "REDUCED_POLYNOMIAL",
                                             "POLYNOMIAL", "VAN_DER_WAALS"));
    EXPECT_THAT(
        RunZelmat({"show", Sample("natural_rubber_treloar.json"), "--all-models"}).out,
        HasSubstr("\nhyperelastic fits on the card: 10, each stored and read back in turn; a material "
                  "holds one\n"));
}

TEST(NaturalRubber, TakesNoChoiceTogetherWithAllModels) {
    EXPECT_EQ(RunZelmat({"show", Sample("natural_rubber_treloar.json"), "--all-models", "--model", "OGDEN"})
                  .exitCode,
              2);
}

TEST(ShowCommand, WritesNothingOfACardOnWhichTheChecksFindErrors) {
    const ProgramRun run = RunZelmat({"show", "first_strain.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "first_strain.json:3: warning[plasticity-without-elasticity]: plastic is there and no elastic "
              "(plastic strain is what elastic strain leaves of the total)\n"
              "first_strain.json:8: error[first-plastic-strain]: row 1 of plastic: plastic strain is 0.002 "
              "(has to be 0)\n");
}

TEST(ShowCommand, ShowsATableThatBreaksARuleButWasStored) {
    const ProgramRun run = RunZelmat({"show", "--keep-going", "first_strain.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("error[first-plastic-strain]: row 1 of plastic"));
    EXPECT_THAT(
        run.err,
        testing::EndsWith(
            "first_strain.json:8: warning[first-plastic-strain]: row 1 of plastic: plastic strain is 0.002 "
            "(has to be 0, the table was stored all the same)\n"));
    EXPECT_EQ(TableAfter(run.out, "Plastic, not temperature dependent", 3),
              "  hardening: isotropic\n"
              "  yield stress [MPa]  plastic strain [-]  temperature [degC]\n"
              "                 235               0.002                  20\n");
}

constexpr const char* kManyKept = R"({"name": "Ply", "colour": "black", "strength": [1.5, 2],
    "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[1600]], "batch": 7},
    "other_properties": {"YoungsModulusX": "181.00 GPa", "ply": {"nu12": 0.28, "notes": ["a", {"b": 1}]}}})";

TEST(ShowCommand, ShowsWhatNoBehaviorUsesAsItWasWritten) {
    const CardFile card(kManyKept);

    EXPECT_THAT(RunZelmat({"show", card.Path()}).out,
                testing::EndsWith("for information only, used by no behavior: strength, other_properties\n"
                                  "\n"
                                  "Strength, for information\n"
                                  "  1.5, 2\n"
                                  "\n"
                                  "Other properties, for information\n"
                                  "  YoungsModulusX: 181.00 GPa\n"
                                  "  ply.notes: [\"a\",{\"b\":1}]\n"
                                  "  ply.nu12: 0.28\n"
                                  "\n"
                                  "Kept as it is, used by no behavior\n"
                                  "  density.batch: 7\n"
                                  "  colour: black\n"));
    const nlohmann::json told =
        nlohmann::json::parse(RunZelmat({"show", card.Path(), "--json"}).out)["material"];
    EXPECT_EQ(told["for_information"]["other_properties"]["values"]["YoungsModulusX"], "181.00 GPa");
    EXPECT_EQ(told["for_information"]["strength"]["values"], nlohmann::json::parse("[1.5, 2]"));
    EXPECT_EQ(told["behaviors"][0]["kept"]["batch"], 7);
    EXPECT_EQ(told["kept"]["colour"], "black");
}

TEST(ShowCommand, ShowsTheFirstFiftyOfVeryManyValues) {
    std::string text = R"({"name": "M")";
    for (int i = 0; i < 60; ++i) text += ", \"key" + std::to_string(i) + "\": 1";
    const CardFile card(text + "}");

    EXPECT_THAT(RunZelmat({"show", card.Path()}).out,
                testing::EndsWith(": 1\n  and 10 more, all of them with --json\n"));
}

TEST(ShowCommand, PrintsNothingWhenATableWasNotStored) {
    const ProgramRun run = RunZelmat({"show", "--keep-going", "shear_stiffness.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, testing::EndsWith("shear_stiffness.json:8: error[shear-stiffness]: row 2 of "
                                           "gasket_transverse_shear: shear stiffness is -4e+11 Pa/m (has to "
                                           "be above 0, nothing of the table was stored)\n"));
}

}  // namespace
