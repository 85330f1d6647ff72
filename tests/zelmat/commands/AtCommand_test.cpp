#include "tests/zelmat/commands/ResultJson.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::string Refusal(std::vector<std::string> arguments, int exitCode) {
    arguments.insert(arguments.begin(), "at");
    const ProgramRun run = RunZelmat(arguments);
    EXPECT_EQ(run.exitCode, exitCode) << run.out;
    EXPECT_EQ(run.out, "");
    return run.err;
}

// Johnson and Cook 1983.
TEST(AtCommand, GivesTheStressOfJohnsonAndCooksCopper) {
    const ProgramRun run = RunZelmat(
        {"at", Sample("copper_ofhc.json"), "plastic", "--plastic-strain", "0.1", "--temperature", "600K"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "material: OFHC copper\n"
              "block: plastic\n"
              "temperature: 326.85 degC\n"
              "hardening: johnson-cook\n"
              "plastic strain: 0.1\n"
              "true stress: 173.5995 MPa\n"
              "note: the factor of the strain rate is 1\n");

    const ResultJson hot(
        {"at", Sample("copper_ofhc.json"), "plastic", "--plastic-strain", "10%", "--temperature", "600K"});
    EXPECT_NEAR(hot.Number("stress"), 173.5994930e6, 0.05);
    const ResultJson cold(
        {"at", Sample("copper_ofhc.json"), "plastic", "--plastic-strain", "0.1", "--temperature", "298 K"});
    EXPECT_NEAR(cold.Number("stress"), 233.0154153e6, 0.05);
}

TEST(AtCommand, TakesAStrainRateOnlyWhereTheCardGivesCAndTheReferenceRate) {
    const std::vector<std::string> question = {"plastic", "--plastic-strain", "0.1",   "--temperature",
                                               "298K",    "--strain-rate",    "10 1/s"};
    std::vector<std::string> arguments = {Sample("copper_ofhc.json")};
    arguments.insert(arguments.end(), question.begin(), question.end());
    EXPECT_THAT(Refusal(arguments, 1), HasSubstr("a strain rate needs C and the reference rate"));

    const std::string card =
        FileOf("rate.json", R"({"name": "Copper", "plastic": {"hardening": "johnson-cook",
        "temperature_dependent": false, "columns": ["A", "B", "n", "m", "melting_temperature",
        "transition_temperature"], "rows": [[90e6, 292e6, 0.31, 1.09, 1356, 298]], "C": 0.025,
        "reference_strain_rate": "1 1/s"}})");
    arguments = {"at", card};
    arguments.insert(arguments.end(), question.begin(), question.end());
    EXPECT_NEAR(ResultJson(arguments).Number("stress"), 246.4288608e6, 0.05);
    arguments.back() = "10";
    EXPECT_EQ(RunZelmat(arguments).exitCode, 2);
}

TEST(AtCommand, ReadsATableBetweenItsRowsAndTellsItsRange) {
    const ResultJson steel({"at", Sample("steel_s355.json"), "elastic", "--temperature", "150degC"});

    EXPECT_NEAR(steel.Number("youngs_modulus"), 199.5e9, 1e-3);
    EXPECT_NEAR(steel.Number("shear_modulus"), 199.5e9 / 2.6, 1e-3);
    EXPECT_EQ(steel.Number("table_from"), 293.15);
    EXPECT_EQ(steel.Number("table_to"), 1373.15);
    EXPECT_THAT(steel["notes"], ElementsAre("interpolated between rows"));
}

TEST(AtCommand, AnswersOutsideATableByThePolicyAndNamesIt) {
    const std::string card =
        FileOf("density.json", R"({"name": "M", "density": {"temperature_dependent": true,
        "columns": ["density", "temperature"], "rows": [[1000, 300], [900, 400]]}})");

    EXPECT_EQ(
        Refusal({card, "density", "--temperature", "500K"}, 1),
        card +
            ":1: error[no-value]: the temperature lies outside the table (the table goes from 26.85 degC to "
            "126.85 degC)\n");
    EXPECT_EQ(Refusal({card, "density", "--temperature", "500K", "--outside", "error"}, 1),
              Refusal({card, "density", "--temperature", "500K"}, 1));
    const ResultJson constant({"at", card, "density", "--temperature", "500K", "--outside", "constant"});
    EXPECT_EQ(constant.Number("density"), 900.0);
    EXPECT_EQ(constant["outside"], "constant");
    EXPECT_THAT(constant["notes"], ElementsAre("above the table: value of its last row"));
    const ResultJson linear({"at", card, "density", "--temperature", "500K", "--outside", "linear"});
    EXPECT_NEAR(linear.Number("density"), 800.0, 1e-9);
    EXPECT_EQ(linear["outside"], "linear");
}

TEST(AtCommand, ReadsAHardeningTableConstantOutsideAndSaysSo) {
    const std::string steel = Sample("steel_s355.json");
    const ResultJson beyond({"at", steel, "plastic", "--plastic-strain", "0.5", "--temperature", "20degC"});

    // The plateau of 355 MPa is engineering stress: 355 MPa (1 + 0.14831 + 355/210000) at its end.
    EXPECT_NEAR(beyond.Number("stress"), 408250169.0476, 1e-3);
    EXPECT_THAT(beyond["notes"], ElementsAre("beyond the last plastic strain: stress of the last point"));
    EXPECT_THAT(Refusal({steel, "plastic", "--plastic-strain", "0.5", "--temperature", "20degC", "--outside",
                         "error"},
                        1),
                HasSubstr("the plastic strain lies beyond the last point of the curve"));
    EXPECT_THAT(Refusal({steel, "plastic", "--plastic-strain", "0.1", "--temperature", "20degC", "--outside",
                         "linear"},
                        1),
                HasSubstr("a hardening table is not extended linearly"));
    EXPECT_THAT(
        Refusal({steel, "plastic", "--temperature", "20degC"}, 1),
        HasSubstr("the stress depends on the plastic strain, and none is given (--plastic-strain 0.1)"));
    EXPECT_THAT(Refusal({steel, "plastic", "--plastic-strain", "-0.1", "--temperature", "20degC"}, 1),
                HasSubstr("a plastic strain has to be a finite number from 0 on"));
}

TEST(AtCommand, RefusesToLookOutsideALaw) {
    EXPECT_THAT(Refusal({Sample("copper_ofhc.json"), "plastic", "--plastic-strain", "0.1", "--temperature",
                         "600K", "--outside", "linear"},
                        1),
                HasSubstr("Johnson and Cook's law has no end that --outside could mean"));
}

// 12e-6 at 100 degC and 14e-6 at 300 degC from 20 degC, referred to 100 degC.
TEST(AtCommand, RefersAThermalExpansionToAnotherTemperature) {
    const std::string card = FileOf("expansion.json", R"({"name": "M", "thermal_expansion": {
        "temperature_dependent": true, "columns": ["thermal_expansion", "temperature [degC]"],
        "rows": [[12e-6, 100], [14e-6, 300]], "reference_temperature": "20 degC"}})");
    const ResultJson result({"at", card, "thermal_expansion", "--temperature", "300degC",
                             "--reference-temperature", "100degC", "--instantaneous"});

    EXPECT_NEAR(result.Number("mean_expansion"), 14e-6, 1e-18);
    EXPECT_NEAR(result.Number("thermal_strain"), 14e-6 * 280, 1e-15);
    EXPECT_NEAR(result.Number("mean_expansion_exact"), 1.47858056e-5, 5e-14);
    EXPECT_NEAR(result.Number("mean_expansion_linearised"), 1.48e-5, 1e-17);
    EXPECT_NEAR(result.Number("instantaneous_expansion"), 14e-6 + 1e-8 * 280, 1e-17);
    EXPECT_THAT(Refusal({card, "thermal_expansion", "--instantaneous"}, 1),
                HasSubstr("these need a temperature"));
    EXPECT_EQ(RunZelmat({"at", card, "thermal_expansion", "--temperature", "300degC",
                         "--reference-temperature", "100"})
                  .exitCode,
              2);
}

TEST(AtCommand, SaysWhyAnExpansionHasNoStrain) {
    const std::string card = FileOf("no_reference.json", R"({"name": "M", "thermal_expansion": {
        "temperature_dependent": false, "columns": ["thermal_expansion"], "rows": [[12e-6]]}})");
    const ResultJson result({"at", card, "thermal_expansion", "--temperature", "300degC"});

    EXPECT_EQ(result.Number("thermal_expansion"), 12e-6);
    EXPECT_THAT(result["notes"],
                Contains("no thermal strain: thermal_expansion has no reference_temperature"));
    EXPECT_THAT(Refusal({card, "thermal_expansion", "--temperature", "300degC", "--instantaneous"}, 1),
                HasSubstr("thermal_expansion has no reference_temperature"));
}

TEST(AtCommand, ReadsEveryBranchOfAGasketAtAClosure) {
    const ResultJson gasket(
        {"at", Sample("gasket_fibre_illustrative.json"), "gasket", "--closure", "0.12mm"});

    EXPECT_EQ(gasket.Cell("branches", 0, "branch"), "loading");
    EXPECT_EQ(gasket.Number("branches", 0, "pressure"), 10e6);
    EXPECT_NEAR(gasket.Number("branches", 0, "secant_stiffness"), 10e6 / 0.00012, 1e-3);
    EXPECT_NEAR(gasket.Number("branches", 0, "tangent_stiffness_below"), 5e6 / 0.00004, 1);
    EXPECT_NEAR(gasket.Number("branches", 0, "tangent_stiffness"), 10e6 / 0.000045, 1);
    EXPECT_EQ(gasket.Rows("branches"), 7u);
    EXPECT_EQ(gasket.Cell("branches", 5, "branch"), "unloading, damage");
    EXPECT_EQ(gasket.Number("branches", 5, "greatest_closure"), 0.0002);
    EXPECT_NEAR(gasket.Number("branches", 5, "pressure"), 11213800.0, 1e-3);
    // Loading 0..0.12 mm: 40 + 140 + 300 J/m2; unloading 0.06..0.12 mm: 6.1854 + 50.5253 + 167.8469 J/m2.
    EXPECT_NEAR(gasket.Number("energy_loss_elastic-plastic"), 255.4424, 5e-3);
}

TEST(AtCommand, NeedsTheClosureWithItsUnit) {
    const std::string card = Sample("gasket_fibre_illustrative.json");
    EXPECT_THAT(Refusal({card, "gasket"}, 1),
                HasSubstr("the pressure depends on the closure, and none is given"));
    EXPECT_EQ(
        Refusal({card, "gasket", "--closure", "0.1"}, 2),
        "--closure: error[wrong-number]: length: '0.1' has no unit; expected m, mm, cm, µm, in, mil or ft\n");
    EXPECT_THAT(Refusal({card, "gasket", "--closure", "1mm"}, 1),
                HasSubstr("the closure lies beyond the loading curve"));
    EXPECT_THAT(Refusal({card, "gasket", "--closure=-1mm"}, 1),
                HasSubstr("a closure has to be a finite number from 0 on"));
    const ResultJson beyond({"at", card, "gasket", "--closure", "1mm", "--outside", "constant"});
    EXPECT_EQ(beyond.Number("branches", 0, "pressure"), 70e6);
    EXPECT_THAT(beyond["notes"], ElementsAre("beyond the loading curve: pressure of its last point"));
}

TEST(AtCommand, RefusesOptionsThatDoNotBelongToTheBlock) {
    const std::string card = Sample("copper_ofhc.json");
    EXPECT_EQ(Refusal({card, "density", "--closure", "1mm"}, 2),
              "--closure: error[not-for-this-block]: density takes no --closure (it takes --temperature, "
              "--outside)\n");
    EXPECT_THAT(Refusal({card, "elastic", "--plastic-strain", "0.1"}, 2), HasSubstr("not-for-this-block"));
    EXPECT_THAT(Refusal({card, "plastic", "--instantaneous"}, 2), HasSubstr("not-for-this-block"));
    EXPECT_THAT(Refusal({card, "density", "--model", "OGDEN"}, 2), HasSubstr("not-for-this-block"));
    EXPECT_THAT(Refusal({card, "density", "--outside", "nearest"}, 2), HasSubstr("--outside"));
}

TEST(AtCommand, RefusesAnEmptyNumber) {
    EXPECT_THAT(Refusal({Sample("copper_ofhc.json"), "elastic", "--temperature", ""}, 2),
                HasSubstr("--temperature: a number is missing"));
}

TEST(AtCommand, NamesTheBlocksThatThereAre) {
    EXPECT_THAT(Refusal({Sample("copper_ofhc.json"), "densty"}, 2), HasSubstr("did you mean density?"));
    EXPECT_THAT(Refusal({Sample("copper_ofhc.json")}, 2), StartsWith("BLOCK: error[missing-block]"));
    EXPECT_THAT(
        Refusal({Sample("copper_ofhc.json"), "gasket", "--closure", "1mm"}, 1),
        HasSubstr("no block 'gasket' (it has elastic, plastic, density, conductivity, specific_heat)"));
    EXPECT_THAT(Refusal({Sample("user_routine_illustrative.json"), "user_material"}, 2),
                HasSubstr("no-such-block"));
}

TEST(AtCommand, ReadsAMaterialOfADocument) {
    const ResultJson copper({"at", Sample("older/copper_and_rubber.json"), "OFHC", "plastic",
                             "--plastic-strain", "0.1", "--temperature", "600K"});
    EXPECT_NEAR(copper.Number("stress"), 173.5994930e6, 0.05);
    EXPECT_THAT(Refusal({Sample("older/copper_and_rubber.json"), "plastic", "--plastic-strain", "0.1"}, 2),
                HasSubstr("several-materials"));
}

TEST(AtCommand, PrintsValuesAsCsv) {
    EXPECT_EQ(RunZelmat({"at", Sample("copper_ofhc.json"), "density", "--csv"}).out,
              "# values\nname,value,unit\nmaterial,OFHC copper,\nblock,density,\ndensity,8960,kg/m3\n");
}

TEST(AtCommand, TellsHowFarAHardeningTableGoes) {
    const std::string card = Sample("steel_s355.json");
    const ResultJson inside({"at", card, "plastic", "--plastic-strain", "0.1", "--temperature", "20degC"});
    // 0.14831 and 355/210000 are the engineering strain there: ln(1 + e) - sigma/E.
    EXPECT_NEAR(inside.Number("plastic_strain_to"), 0.1378183080297, 1e-12);
    EXPECT_THAT(
        Refusal({card, "plastic", "--plastic-strain", "0.5", "--temperature", "20degC", "--outside", "error"},
                1),
        HasSubstr("the plastic strain lies beyond the last point of the curve (the table goes from 20 "
                  "degC to 1100 degC, plastic strains up to 0.1378183)"));
    const ResultJson bilinear({"at", Sample("steel_s235_kinematic.json"), "plastic", "--plastic-strain",
                               "0.01", "--temperature", "20degC"});
    EXPECT_THAT(bilinear["notes"], Contains("does not depend on temperature"));
}

TEST(AtCommand, HasNoSecantStiffnessWithoutClosure) {
    const ResultJson open({"at", Sample("gasket_fibre_illustrative.json"), "gasket", "--closure", "0mm"});
    EXPECT_TRUE(open.Cell("branches", 0, "secant_stiffness").is_null());
    EXPECT_NEAR(open.Number("branches", 0, "tangent_stiffness"), 5e10, 1e-3);
}

// 10e-6 at 0 degC, 20e-6 at 100 and 200 degC: what the card says is what is answered.
TEST(AtCommand, KeepsTheInstantaneousCoefficientsOfACard) {
    const std::string card = FileOf("instantaneous.json", R"({"name": "M", "thermal_expansion": {
        "temperature_dependent": true, "columns": ["thermal_expansion", "temperature [degC]"],
        "rows": [[10e-6, 0], [20e-6, 100], [20e-6, 200]], "reference_temperature": "0 degC",
        "kind": "instantaneous"}})");
    const ResultJson result({"at", card, "thermal_expansion", "--temperature", "150degC", "--instantaneous"});
    EXPECT_NEAR(result.Number("instantaneous_expansion"), 20e-6, 1e-18);
    EXPECT_NEAR(result.Number("thermal_strain"), 2.5e-3, 1e-15);
    EXPECT_NEAR(result.Number("mean_expansion"), 2.5e-3 / 150, 1e-17);
}

}  // namespace
