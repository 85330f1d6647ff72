#include <cmath>

#include "tests/zelmat/commands/ResultJson.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A card with one fit; coefficients in Pa.
std::string Fit(const std::string& model, int order, const std::string& columns, const std::string& row) {
    return FileOf("fit.json", R"({"name": "Rubber", "hyperelastic": [{"model": ")" + model +
                                  R"(", "order": )" + std::to_string(order) +
                                  R"(, "temperature_dependent": false, "columns": [)" + columns +
                                  R"(], "rows": [[)" + row + "]]}]}");
}

double Nominal(const std::string& card, const std::string& mode, const std::string& stretch) {
    const ResultJson result({"response", card, "--mode", mode, "--stretch", stretch});
    EXPECT_EQ(result.Unit("response", "nominal_stress"), "Pa");
    return result.Number("response", 0, "nominal_stress");
}

TEST(ResponseCommand, GivesTheStressesOfEveryPotential) {
    const struct {
        const char *model, *columns, *row, *mode, *stretch;
        int order;
        double stress, tolerance;
    } cases[] = {
        {"NEO_HOOKE", R"("C10")", "0.5", "uniaxial", "2", 1, 1.75, 1e-9},
        {"NEO_HOOKE", R"("C10")", "0.5", "equibiaxial", "2", 1, 1.96875, 1e-9},
        {"NEO_HOOKE", R"("C10")", "0.5", "planar", "2", 1, 1.875, 1e-9},
        {"MOONEY_RIVLIN", R"("C10", "C01")", "0.4, 0.1", "uniaxial", "0.8", 1, -0.800625, 1e-9},
        {"MOONEY_RIVLIN", R"("C10", "C01")", "0.4, 0.1", "equibiaxial", "1.5", 1, 1.710390947, 1e-9},
        {"MOONEY_RIVLIN", R"("C10", "C01")", "0.5, -0.1", "uniaxial", "1.5", 1, 0.914814815, 1e-9},
        {"YEOH", R"("C10", "C20", "C30")", "0.5, -0.01, 0.001", "equibiaxial", "2", 3, 1.872819580, 1e-9},
        {"POLYNOMIAL", R"("C10", "C01", "C20", "C11", "C02")",
         "0.14514, 0.032439, 0.0016867, -0.0018623, 0.000096132", "uniaxial", "0.8", 2, -0.2829966189, 1e-9},
        {"POLYNOMIAL", R"("C10", "C01", "C20", "C11", "C02")",
         "0.14514, 0.032439, 0.0016867, -0.0018623, 0.000096132", "equibiaxial", "2", 2, 0.9430449072, 1e-9},
        {"OGDEN", R"("mu_1", "alpha_1")", "1, 3", "uniaxial", "2", 1, 2.548815536, 1e-9},
        {"OGDEN", R"("mu_1", "alpha_1")", "1, 3", "equibiaxial", "2", 1, 2.661458333, 1e-9},
        {"ARRUDA_BOYCE", R"("mu", "lambda_m")", "1, 3", "planar", "2", 1, 2.143608152, 1e-9},
        {"VAN_DER_WAALS", R"("mu", "lambda_m", "a", "beta")", "1, 5, 0.5, 0.1", "equibiaxial", "2", 1,
         3.112316559, 1e-9},
    };
    for (const auto& one : cases) {
        EXPECT_NEAR(Nominal(Fit(one.model, one.order, one.columns, one.row), one.mode, one.stretch),
                    one.stress, one.tolerance)
            << one.model << one.mode;
    }
}

// In the other convention of Ogden's coefficients the same material has mu = 2/3.
TEST(ResponseCommand, ConvertsOgdensCoefficients) {
    const std::string card = FileOf("ogden.json", R"({"name": "Rubber", "hyperelastic": [{"model": "OGDEN",
        "order": 1, "ogden_convention": "mu/alpha", "temperature_dependent": false,
        "columns": ["mu_1", "alpha_1"], "rows": [[0.6666666666666666, 3]]}]})");

    EXPECT_NEAR(Nominal(card, "uniaxial", "2"), 2.548815536, 1e-9);
}

TEST(ResponseCommand, GivesTheFirstUnstableStretchesByEachCriterion) {
    const ResultJson drucker({"response", Fit("MOONEY_RIVLIN", 1, R"("C10", "C01")", "0.5, -0.1")});
    EXPECT_EQ(drucker.Cell("stability", 0, "criterion"), "drucker");
    EXPECT_NEAR(drucker.Number("stability", 0, "tension"), 2.2361, 5e-5);
    EXPECT_NEAR(drucker.Number("stability", 0, "compression"), 0.372, 5e-4);
    EXPECT_EQ(drucker.Cell("stability", 2, "mode"), "equibiaxial");
    EXPECT_NEAR(drucker.Number("stability", 2, "tension"), 1.6396, 5e-5);
    EXPECT_NEAR(drucker.Number("stability", 2, "compression"), 0.6687, 5e-5);
    EXPECT_NEAR(drucker.Number("stability", 4, "tension"), 2.1218, 5e-5);
    EXPECT_NEAR(drucker.Number("stability", 4, "compression"), 0.4713, 5e-5);

    const ResultJson load({"response", Fit("MOONEY_RIVLIN", 1, R"("C10", "C01")", "0.5, 0.5")});
    EXPECT_EQ(load.Cell("stability", 2, "tension"), nullptr);
    EXPECT_EQ(load.Cell("stability", 3, "criterion"), "dead-load");
    EXPECT_NEAR(load.Number("stability", 3, "tension"), 1.39179, 5e-6);
    EXPECT_NEAR(load.Number("stability", 5, "tension"), 2.22512, 5e-6);
}

TEST(ResponseCommand, TellsWhereThePotentialEndsAndNeverANotANumber) {
    const ProgramRun run = RunZelmat({"response", Sample("natural_rubber_treloar.json"), "--model",
                                      "VAN_DER_WAALS", "--mode", "uniaxial", "--stretch", "2", "12"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr("  uniaxial  0.02203881  10.58184  no energy beyond\n"));
    EXPECT_THAT(run.out, HasSubstr("at and beyond the locking stretch the potential has no energy"));
    EXPECT_THAT(run.err, HasSubstr("error[no-response]: uniaxial at 12: at and beyond the locking stretch"));
    EXPECT_THAT(run.out, testing::Not(HasSubstr("nan")));

    const std::string card = Fit("ARRUDA_BOYCE", 1, R"("mu", "lambda_m")", "1, 3");
    const ResultJson beyond({"response", card, "--stretch", "6", "--mode", "uniaxial"});
    EXPECT_EQ(beyond.Cell("response", 0, "note"), "beyond the locking stretch");
}

TEST(ResponseCommand, PrintsModelModuliLimitsAndResponse) {
    const ProgramRun run = RunZelmat({"response", Sample("natural_rubber_treloar.json"), "--model",
                                      "NEO_HOOKE", "--mode", "uniaxial", "--stretch", "1:2:3"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(
        run.out,
        "material: Vulcanised natural rubber (Treloar, 8 % sulphur)\n"
        "model: NEO_HOOKE\n"
        "initial shear modulus mu0: 0.39 MPa\n"
        "responses: incompressible\n"
        "\n"
        "Stability: the first stretches at which a criterion fails\n"
        "  mode      criterion  compression  tension  searched from  to  state\n"
        "  uniaxial  drucker              -        -            0.1  10  stable throughout\n"
        "  uniaxial  dead-load            -        -            0.1  10  stable throughout\n"
        "\n"
        "Deviation from the material's tests\n"
              "  tests     points  from   to  RMS relative  RMS absolute [MPa]        R^2\n"
              "  uniaxial      24  1.02  7.6     0.2824609            1.221634  0.6033608\n"
              "  all           24     -    -     0.2824609            1.221634  0.6033608\n"
              "\n"
              "Response\n"
        "  mode      stretch  energy per volume [MPa]  nominal stress [MPa]  true stress [MPa]  tangent "
        "[MPa]\n"
        "  uniaxial      1.0                  0.00000             0.0000000             0.0000      "
        "1.1700000\n"
        "  uniaxial      1.5                  0.11375             0.4116667             0.6175      "
        "0.6211111\n"
        "  uniaxial      2.0                  0.39000             0.6825000             1.3650      "
        "0.4875000\n");
}

// In simple shear by g the stress is 2 C10 g.
TEST(ResponseCommand, TakesAmountsOfShear) {
    const std::string card = Fit("NEO_HOOKE", 1, R"("C10", "D1")", "500000, 1e-9");
    const ResultJson result({"response", card, "--mode", "shear", "--stretch", "-0.5", "0", "0.25"});

    EXPECT_NEAR(result.Number("response", 0, "nominal_stress"), -500000.0, 1e-6);
    EXPECT_EQ(result.Number("response", 1, "true_stress"), 0.0);
    EXPECT_NEAR(result.Number("response", 2, "true_stress"), 250000.0, 1e-6);
    EXPECT_EQ(result.Number("response", 2, "shear"), 0.25);
    EXPECT_NEAR(result.Number("initial_bulk_modulus"), 2e9, 1e-3);
}

TEST(ResponseCommand, InterpolatesCoefficientsOverTemperatureAndSaysSo) {
    const std::string card = FileOf("hot.json", R"({"name": "Rubber", "hyperelastic": [{"model": "NEO_HOOKE",
        "order": 1, "temperature_dependent": true, "columns": ["C10", "temperature [degC]"],
        "rows": [[500000, 0], [400000, 100]]}]})");

    const ResultJson result(
        {"response", card, "--temperature", "25degC", "--stretch", "2", "--mode", "uniaxial"});
    EXPECT_NEAR(result.Number("response", 0, "nominal_stress"), 1.75 * 950000.0, 1e-6);
    EXPECT_THAT(result["notes"], ElementsAre("interpolated between rows"));

    const ProgramRun none = RunZelmat({"response", card});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_THAT(none.err, HasSubstr("error[no-response]: the table depends on temperature, and none is given "
                                    "(--temperature from 0 degC to 100 degC)"));
    EXPECT_THAT(RunZelmat({"response", card, "--temperature", "25"}).err,
                HasSubstr("error[wrong-number]: temperature: '25' has no unit"));
    EXPECT_THAT(RunZelmat({"response", card, "--temperature", "-300degC"}).err,
                HasSubstr("below absolute zero"));
    EXPECT_EQ(RunZelmat({"response", card, "--temperature", "101degC"}).exitCode, 1);
}

TEST(ResponseCommand, AgreesInAllSystemsOfUnits) {
    const std::vector<std::string> run = {
        "response", Sample("natural_rubber_treloar.json"), "--mode", "planar", "--stretch", "3"};
    const auto in = [&](const char* units) {
        auto arguments = run;
        arguments.insert(arguments.end(), {"--units", units});
        return ResultJson(arguments).Number("response", 0, "nominal_stress");
    };
    const double pascal = in("si");
    EXPECT_NEAR(in("mm-t-s") * 1e6 / pascal, 1.0, 1e-12);
    EXPECT_NEAR(in("us") * (4.4482216152605 / 0.00064516) / pascal, 1.0, 1e-12);
}

TEST(ResponseCommand, RefusesStretchesThatAreNone) {
    const std::string card = Sample("natural_rubber_treloar.json");
    for (const char* stretch :
         {"x", "1:2", "1:2:1", "1:2:2.5", "1:2:1e9", "1:2:3:4", "", ":", "nan", "1,5"}) {
        const ProgramRun run = RunZelmat({"response", card, std::string("--stretch=") + stretch});
        EXPECT_EQ(run.exitCode, 2) << stretch << run.err;
        EXPECT_EQ(run.out, "") << stretch;
    }
    EXPECT_EQ(RunZelmat({"response", card, "--stretch", "-1"}).exitCode, 1);
    EXPECT_EQ(RunZelmat({"response", card, "--mode", "biaxial"}).exitCode, 2);
}

// What the card publishes as rms_relative_deviation of its fits.
TEST(ResponseCommand, SaysHowNearAFitComesToTheTestsOfItsMaterial) {
    const std::pair<const char*, double> published[] = {{"OGDEN", 0.0819},
                                                        {"NEO_HOOKE", 0.223},
                                                        {"YEOH", 0.122},
                                                        {"REDUCED_POLYNOMIAL", 0.118},
                                                        {"POLYNOMIAL", 0.146}};
    for (const auto& [model, deviation] : published) {
        const ResultJson result({"response", Sample("natural_rubber_treloar.json"), "--model", model});
        EXPECT_NEAR(result.Number("deviation", 3, "rms_relative"), deviation, 5e-4) << model;
    }
    const ResultJson planar({"response", Sample("natural_rubber_treloar.json"), "--model", "MOONEY_RIVLIN",
                             "--variant", "planar", "--mode", "planar"});
    EXPECT_NEAR(planar.Number("deviation", 0, "rms_relative"), 0.139, 5e-4);
}

TEST(ResponseCommand, SaysWhichFitItTakes) {
    const ProgramRun first = RunZelmat({"response", Sample("natural_rubber_treloar.json")});
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_THAT(first.err,
                HasSubstr("note[first-fit]: of 10 hyperelastic fits the first is taken (OGDEN, --model "
                          "and --variant choose another)"));
    EXPECT_EQ(RunZelmat({"response", Sample("natural_rubber_treloar.json"), "--model", "MARLOW"}).exitCode,
              2);
    EXPECT_THAT(RunZelmat({"response", Sample("copper_ofhc.json")}).err,
                HasSubstr("no block 'hyperelastic'"));
}

TEST(ResponseCommand, ReadsAMaterialOfADocument) {
    const ResultJson result({"response", Sample("older/copper_and_rubber.json"), "Vulcanised", "--mode",
                             "uniaxial", "--stretch", "2"});
    EXPECT_TRUE(std::isfinite(result.Number("response", 0, "nominal_stress")));
    EXPECT_EQ(result["material"], "Vulcanised natural rubber");
}

}  // namespace
