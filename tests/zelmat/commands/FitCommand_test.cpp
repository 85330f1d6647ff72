#include "tests/zelmat/commands/ResultJson.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::string Rubber() {
    return Sample("natural_rubber_treloar.json");
}

ProgramRun Fit(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "fit");
    return RunZelmat(arguments);
}

ResultJson FitJson(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "fit");
    return ResultJson(arguments);
}

/// Nominal stresses of MOONEY_RIVLIN 0.4, 0.1 MPa at 0.8, 1.5 and 2, uniaxial then equibiaxial.
constexpr const char* kMooney =
    "# synthetic\nStretch [-],NominalStress [MPa],Mode\n"
    "0.8,-0.800625,uniaxial\n1.5,0.9851851851851852,uniaxial\n2,1.575,uniaxial\n"
    "0.8,-2.08963125,equibiaxial\n1.5,1.7103909465020577,equibiaxial\n2,3.15,equibiaxial\n";

// Coefficients and deviations that the card publishes for its own tests.
TEST(FitCommand, FindsTheCoefficientsOfTreloarsRubber) {
    const ResultJson fit = FitJson({Rubber(), "--model", "VAN_DER_WAALS"});

    EXPECT_EQ(fit["measure"], "relative");
    EXPECT_NEAR(fit.Number("coefficients", 0, "value"), 424270.0, 50.0);
    EXPECT_NEAR(fit.Number("coefficients", 1, "value"), 10.546, 0.005);
    EXPECT_NEAR(fit.Number("coefficients", 2, "value"), 0.3029, 0.0005);
    EXPECT_NEAR(fit.Number("coefficients", 3, "value"), 0.0104, 0.0005);
    EXPECT_EQ(fit.Cell("coefficients", 0, "unit"), "Pa");
    EXPECT_GT(fit.Number("coefficients", 0, "standard_deviation"), 0.0);
    EXPECT_EQ(fit.Cell("deviation", 3, "mode"), "all");
    EXPECT_EQ(fit.Number("deviation", 3, "points"), 53.0);
    EXPECT_NEAR(fit.Number("deviation", 3, "rms_relative"), 0.0919, 5e-5);
    EXPECT_EQ(fit.Cell("stability", 0, "tests_inside"), "yes");
}

// The rms_relative_deviation of the card: every fit is at least as good.
TEST(FitCommand, IsAtLeastAsGoodAsThePublishedFits) {
    const std::pair<std::vector<std::string>, double> published[] = {
        {{"--model", "OGDEN"}, 0.0819},
        {{"--model", "NEO_HOOKE"}, 0.2235},
        {{"--model", "ARRUDA_BOYCE"}, 0.227},
        {{"--model", "YEOH"}, 0.1225},
        {{"--model", "REDUCED_POLYNOMIAL", "--order", "4"}, 0.1185},
        {{"--model", "POLYNOMIAL", "--order", "2"}, 0.1465},
        {{"--model", "MOONEY_RIVLIN", "--mode", "uniaxial"}, 0.371},
        {{"--model", "MOONEY_RIVLIN", "--mode", "equibiaxial"}, 0.154},
    };
    for (const auto& [options, deviation] : published) {
        std::vector<std::string> arguments = {Rubber()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const ResultJson fit = FitJson(arguments);
        EXPECT_LE(fit.Number("deviation", fit.Rows("deviation") - 1, "rms_relative"), deviation)
            << options[1];
    }
}

TEST(FitCommand, RanksAllModels) {
    const ResultJson ranking = FitJson({Rubber(), "--all-models"});

    ASSERT_EQ(ranking.Rows("ranking"), 12u);
    EXPECT_EQ(ranking.Cell("ranking", 0, "model"), "OGDEN 3");
    EXPECT_EQ(ranking.Cell("ranking", 11, "model"), "NEO_HOOKE");
    for (std::size_t row = 1; row < 12; ++row) {
        EXPECT_LE(ranking.Number("ranking", row - 1, "rms_relative"),
                  ranking.Number("ranking", row, "rms_relative"));
    }
    EXPECT_EQ(ranking.Cell("ranking", 0, "stable_drucker"), "yes");
    const ResultJson absolute = FitJson({Rubber(), "--all-models", "--absolute", "--order", "2"});
    ASSERT_EQ(absolute.Rows("ranking"), 8u);
    for (std::size_t row = 1; row < 8; ++row) {
        EXPECT_LE(absolute.Number("ranking", row - 1, "rms_absolute"),
                  absolute.Number("ranking", row, "rms_absolute"));
    }
}

TEST(FitCommand, FindsTheCoefficientsBehindPointsOfAFile) {
    const ResultJson fit = FitJson({FileOf("mooney.csv", kMooney), "--model", "MOONEY_RIVLIN"});

    EXPECT_NEAR(fit.Number("coefficients", 0, "value"), 400000.0, 0.1);
    EXPECT_NEAR(fit.Number("coefficients", 1, "value"), 100000.0, 0.1);
    EXPECT_THAT(fit.Findings(), IsEmpty());
}

TEST(FitCommand, TakesSeveralFilesAndModes) {
    const std::string uniaxial = FileOf(
        "uniaxial.csv", "Stretch [-];NominalStress [MPa]\n0.8;-0.800625\n1.5;0.9851851851851852\n2;1.575\n");
    // The same material by logarithmic strain and true stress: ln 2, 2 * 3.15 MPa; ln 1.5, 1.5 * 1.71039...
    const std::string biaxial =
        FileOf("biaxial.csv",
               "TrueStrain [%]\tTrueStress [N/mm^2]\n40.546510810816438\t2.5655864197530866\n"
               "69.314718055994531\t6.3\n");

    const ResultJson fit =
        FitJson({uniaxial, biaxial, "--mode", "uniaxial,equibiaxial", "--model", "MOONEY_RIVLIN"});
    EXPECT_NEAR(fit.Number("coefficients", 0, "value"), 400000.0, 0.5);
    EXPECT_NEAR(fit.Number("coefficients", 1, "value"), 100000.0, 0.5);
    EXPECT_EQ(fit.Cell("deviation", 1, "mode"), "equibiaxial");
    EXPECT_EQ(Fit({uniaxial, biaxial, uniaxial, "--mode", "uniaxial,planar", "--model", "YEOH"}).exitCode, 2);
}

TEST(FitCommand, WarnsOfOneModeForTwoInvariantsAndOfAModeThatIsNotSaid) {
    const std::string csv =
        FileOf("one.csv", "Stretch [-],NominalStress [MPa]\n1,0\n2,1.575\n1.5,0.985\n0.8,-0.8\n");
    const ProgramRun run = Fit({csv, "--model", "MOONEY_RIVLIN"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err, HasSubstr("warning[mode-not-said]: the tests are taken as uniaxial"));
    EXPECT_THAT(run.err, HasSubstr("warning[fit]: one mode of test only: it cannot tell the parts of the two "
                                   "invariants apart"));
    EXPECT_THAT(run.err, HasSubstr("warning[fit]: the stretches of a uniaxial test do not rise"));
    EXPECT_THAT(run.out, HasSubstr("note: 1 point of zero stress left out\n"));
    EXPECT_THAT(Fit({csv, "--model", "MOONEY_RIVLIN", "--absolute"}).out, Not(HasSubstr("left out")));
    EXPECT_EQ(Fit({csv, "--model", "MOONEY_RIVLIN", "--strict"}).exitCode, 1);
}

TEST(FitCommand, SaysWhenCoefficientsCannotBeToldApart) {
    // In the planar mode both invariants are the same.
    const ResultJson fit = FitJson({Rubber(), "--model", "MOONEY_RIVLIN", "--mode", "planar"});

    EXPECT_EQ(fit.Cell("coefficients", 0, "standard_deviation"), nullptr);
    EXPECT_THAT(fit.Findings(),
                Contains("fit: the tests cannot tell the coefficients apart: others give the same response"));
}

TEST(FitCommand, GivesNoStandardDeviationAtABound) {
    const std::string csv = FileOf(
        "soft.csv", "AmountOfShear [-],ShearStress [MPa]\n0.1,-0.01\n0.2,-0.02\n0.3,-0.03\n0.4,-0.04\n");
    const ResultJson fit = FitJson({csv, "--mode", "shear", "--model", "NEO_HOOKE"});

    EXPECT_EQ(fit.Cell("coefficients", 0, "standard_deviation"), nullptr);
    EXPECT_EQ(fit.Cell("coefficients", 0, "state"), "at its bound");
    EXPECT_THAT(fit.Findings(), Contains("fit: C10 is at its bound"));
}

TEST(FitCommand, TakesSpecimensWeightsAndRanges) {
    // Shear stress over shear: specimen A has 2 C10 = 1 MPa, B 2 MPa, three times as heavy; the last point
    // lies outside.
    const std::string csv =
        FileOf("specimens.csv",
               "AmountOfShear [-],ShearStress [MPa],Specimen,Weight\n1,1,A,1\n1,2,B,3\n5,100,A,1\n");
    const ResultJson fit =
        FitJson({csv, "--mode", "shear", "--model", "NEO_HOOKE", "--absolute", "--range", "0:2"});

    EXPECT_NEAR(fit.Number("coefficients", 0, "value"), 875000.0, 1e-3);
    EXPECT_THAT(fit["notes"], Contains("1 point outside the given range left out"));

    const std::string modes = FileOf("weights.csv", kMooney);
    EXPECT_EQ(
        Fit({modes, "--model", "NEO_HOOKE", "--weight", "equibiaxial=2", "--range", "uniaxial=1:2"}).exitCode,
        0);
    EXPECT_EQ(Fit({modes, "--model", "NEO_HOOKE", "--weight", "equibiaxial=-2"}).exitCode, 1);
    EXPECT_EQ(Fit({modes, "--model", "NEO_HOOKE", "--weight", "biaxial=2"}).exitCode, 2);
    EXPECT_EQ(Fit({modes, "--model", "NEO_HOOKE", "--range", "1"}).exitCode, 2);
    EXPECT_EQ(Fit({modes, "--model", "NEO_HOOKE", "--range", "a:b"}).exitCode, 2);
    EXPECT_EQ(Fit({modes, "--model", "NEO_HOOKE", "--range", "8:9"}).exitCode, 1);
    EXPECT_EQ(Fit({modes, "--model", "NEO_HOOKE", "--range", "2:1"}).exitCode, 2);
}

TEST(FitCommand, RefusesTestsThatCannotBe) {
    const auto refusal = [](const std::string& text) {
        const ProgramRun run = Fit({FileOf("wrong.csv", text), "--mode", "uniaxial", "--model", "NEO_HOOKE"});
        EXPECT_EQ(run.exitCode, 1) << run.out;
        EXPECT_EQ(run.out, "");
        return run.err.substr(run.err.find("wrong.csv"));
    };
    EXPECT_EQ(refusal("Stretch [-],NominalStress [MPa]\n1.5,1\n-0.2,1\n"),
              "wrong.csv:3: error[impossible-stretch]: the stretch is -0.2 (has to be above 0)\n");
    EXPECT_THAT(refusal("EngineeringStrain [%],NominalStress [MPa]\n-100,1\n"),
                HasSubstr("the stretch is 0"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress\n1.5,1\n"),
                StartsWith("wrong.csv:1: error[missing-unit]: 'NominalStress' has no unit"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [kg]\n1.5,1\n"), HasSubstr("error[wrong-unit]"));
    EXPECT_THAT(
        refusal("Stretch [-],Stress [MPa]\n1.5,1\n"),
        HasSubstr(
            "error[which-stress]: 'Stress' does not say whether it is engineering or true (NominalStress "
            "or TrueStress)"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [MPa],TrueStress [MPa]\n1.5,1,1\n"),
                HasSubstr("one-stress"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [MPa]\n1.5\n"),
                HasSubstr("error[row-length]: the row has 1 cell"));
    EXPECT_THAT(refusal("Stretch [-];NominalStress [MPa]\n1,5;1\n"),
                HasSubstr("(--decimal-comma reads decimal commas)"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [MPa]\n1.5,nan\n"), HasSubstr("not-a-number"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [MPa]\n1.5,\"1\n"), HasSubstr("open-quote"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [MPa]\n"), HasSubstr("no-rows"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [MPa],NominalStress [MPa]\n1,1,1\n"),
                HasSubstr("column-twice"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [MPa]\n1.0,0\n"),
                HasSubstr("there is no test point to fit to"));
    EXPECT_THAT(refusal("Stretch [-],NominalStress [MPa],Mode\n1.5,1,biaxial\n"),
                HasSubstr("'biaxial' is no mode"));
    EXPECT_THAT(refusal("AmountOfShear [-],NominalStress [MPa]\n1.5,1\n"), HasSubstr("no-stretch"));
}

TEST(FitCommand, RefusesTooFewPointsForTheCoefficients) {
    const std::string csv = FileOf("few.csv", "Stretch [-],NominalStress [MPa]\n1.5,1\n2,1.5\n");
    const ProgramRun run = Fit({csv, "--mode", "planar", "--model", "YEOH"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err,
                HasSubstr("error[no-fit]: 2 test points are too few for the 3 coefficients of YEOH"));
    EXPECT_EQ(Fit({Rubber(), "--model", "OGDEN", "--order", "9"}).exitCode, 1);
    EXPECT_EQ(Fit({Rubber(), "--model", "OGDEN", "--order", "0"}).exitCode, 1);
}

TEST(FitCommand, KeepsColumnsThatMeanNothingOutAndSaysSo) {
    const std::string csv =
        FileOf("more.csv", "\xEF\xBB\xBFStretch,NominalStress [MPa],Force [N]\r\n1.5,1,3\r\n2,1.5,4\r\n");
    const ProgramRun run = Fit({csv, "--mode", "planar", "--model", "NEO_HOOKE"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err,
                HasSubstr("warning[unknown-column]: the column 'Force' means nothing and is left out"));
}

TEST(FitCommand, ReadsDecimalCommasWhenTold) {
    const std::string csv = FileOf("comma.csv", "AmountOfShear [-];ShearStress [MPa]\n0,5;0,5\n1,0;1,0\n");
    const ResultJson fit = FitJson({csv, "--mode", "shear", "--model", "NEO_HOOKE", "--decimal-comma"});
    EXPECT_NEAR(fit.Number("coefficients", 0, "value"), 500000.0, 1e-3);
}

// Ludwik's law with 100 MPa, 300 MPa, 0.5 at 0, 0.01, 0.04, 0.25, 1.
TEST(FitCommand, FitsTheLawsOfMetals) {
    const std::string csv = FileOf(
        "metal.csv", "YieldStress [MPa],PlasticStrain [-]\n100,0\n130,0.01\n160,0.04\n250,0.25\n400,1\n");
    const ResultJson ludwik = FitJson({csv, "--model", "ludwik"});
    EXPECT_NEAR(ludwik.Number("coefficients", 0, "value"), 100e6, 1);
    EXPECT_NEAR(ludwik.Number("coefficients", 1, "value"), 300e6, 1);
    EXPECT_NEAR(ludwik.Number("coefficients", 2, "value"), 0.5, 1e-9);
    EXPECT_EQ(ludwik["formula"], "sigma_0 + K e^n");
    const ResultJson johnsonCook = FitJson({csv, "--model", "johnson-cook"});
    EXPECT_EQ(johnsonCook.Cell("coefficients", 0, "coefficient"), "A");
    EXPECT_NEAR(johnsonCook.Number("coefficients", 2, "value"), 0.5, 1e-9);
    const ResultJson ranking = FitJson({csv, "--all-models"});
    EXPECT_EQ(ranking.Cell("ranking", 0, "model"), "ludwik");
    EXPECT_EQ(ranking.Rows("ranking"), 3u);
    EXPECT_EQ(Fit({csv, "--model", "OGDEN"}).exitCode, 1);
    EXPECT_THAT(Fit({FileOf("mooney.csv", kMooney), "--model", "voce"}).err,
                HasSubstr("YieldStress [MPa],PlasticStrain [-], zelmat true-curve makes them"));
}

TEST(FitCommand, TakesTheHardeningCurveOfAMaterialAtOneTemperature) {
    const std::string steel = Sample("steel_s355.json");
    EXPECT_THAT(Fit({steel, "--model", "voce"}).err,
                HasSubstr("error[which-temperature]: there are curves at several temperatures"));
    EXPECT_EQ(Fit({steel, "--model", "voce", "--temperature", "200degC"}).exitCode, 0);
    EXPECT_THAT(Fit({steel, "--model", "voce", "--temperature", "210degC"}).err,
                HasSubstr("there is no curve at this temperature"));
    EXPECT_THAT(Fit({Sample("copper_ofhc.json"), "--model", "voce"}).err,
                HasSubstr("johnson-cook is a law already"));
}

TEST(FitCommand, ExplainsWhatItNeeds) {
    EXPECT_THAT(Fit({Rubber()}).err, HasSubstr("error[missing-option]: a fit needs a model"));
    EXPECT_THAT(Fit({Rubber(), "--model", "OGDN"}).err, HasSubstr("did you mean OGDEN?"));
    EXPECT_THAT(Fit({Rubber(), "--model", "NEO_HOOKE", "--order", "2"}).err,
                HasSubstr("error[not-for-this-model]: NEO_HOOKE takes no order (OGDEN, POLYNOMIAL and "
                          "REDUCED_POLYNOMIAL do)"));
    EXPECT_EQ(Fit({Rubber(), "--model", "YEOH", "--order", "3"}).exitCode, 0);
    EXPECT_EQ(Fit({Rubber(), "--model", "YEOH", "--all-models"}).exitCode, 2);
    EXPECT_EQ(Fit({Rubber(), "--model", "YEOH", "--relative", "--absolute"}).exitCode, 2);
    EXPECT_THAT(Fit({Sample("copper_ofhc.json"), "--model", "YEOH"}).err, HasSubstr("has no test_data"));
    EXPECT_THAT(Fit({Rubber(), "--model", "YEOH", "--mode", "shear"}).err,
                HasSubstr("has no tests in these modes"));
    EXPECT_EQ(Fit({Rubber(), "--model", "YEOH", "--mode", "biaxial"}).exitCode, 2);
    EXPECT_EQ(Fit({"missing.csv", "--model", "YEOH"}).exitCode, 3);
    EXPECT_EQ(Fit({Rubber(), "Vulc", "more", "--model", "YEOH"}).exitCode, 3);  // no such file of points
}

TEST(FitCommand, RefusesWeightsAndRangesOfModesWithoutTests) {
    for (const char* option : {"--weight", "--range"}) {
        const std::string value = option == std::string("--weight") ? "planar=2" : "planar=1:2";
        EXPECT_THAT(Fit({FileOf("uniaxial.csv", "Stretch [-],NominalStress [MPa]\n2,1.75\n"), "--mode",
                         "uniaxial", "--model", "NEO_HOOKE", option, value})
                        .err,
                    HasSubstr(std::string(option) + ": error[no-such-tests]: there is no planar test"));
    }
}

TEST(FitCommand, RefusesOptionsOfRubberTestsForLawsOfMetals) {
    const std::string csv =
        FileOf("law.csv", "YieldStress [MPa],PlasticStrain [-]\n300,0\n400,0.1\n440,0.2\n450,0.3\n");
    for (const auto& [option, value] :
         {std::pair{"--range", "0:0.05"}, {"--weight", "uniaxial=2"}, {"--mode", "uniaxial"}}) {
        const ProgramRun run = Fit({csv, "--model", "voce", option, value});
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_THAT(run.err, HasSubstr(std::string(option) + ": error[not-for-this-model]: a hardening curve "
                                                             "has no modes"));
    }
}

TEST(FitCommand, RefusesWhatNumbersCannotHold) {
    const ProgramRun run =
        Fit({FileOf("huge.csv", "Stretch [-],NominalStress [MPa]\n1.2,1e300\n1.3,2e300\n1.4,1e300\n"),
             "--mode", "uniaxial", "--model", "YEOH"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("error[no-fit]: the fitted response is too great for a number"));
    EXPECT_EQ(run.out, "");
}

TEST(FitCommand, ReadsMeasuredPointsFromStandardInput) {
    const std::string csv = FileOf("piped.csv", "Stretch [-],NominalStress [MPa]\n2,1.75\n");
    const ProgramRun run =
        RunZelmatWith({"fit", "-", "--model", "NEO_HOOKE", "--mode", "uniaxial"}, "< '" + csv + "'");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("tests of: standard input"));
    EXPECT_THAT(run.out, HasSubstr("initial shear modulus mu0: 1 MPa"));

    const ProgramRun behind =
        RunZelmatWith({"fit", csv, "-", "--model", "NEO_HOOKE", "--mode", "uniaxial"}, "< '" + csv + "'");
    EXPECT_THAT(behind.out, HasSubstr("tests of: " + csv + ", standard input"));
    const ProgramRun twice = RunZelmatWith({"fit", "-", "-", "--model", "NEO_HOOKE"}, "< '" + csv + "'");
    EXPECT_EQ(twice.exitCode, 2);
    EXPECT_THAT(twice.err, HasSubstr("error[given-twice]: standard input can be read only once"));
    const ProgramRun card =
        RunZelmatWith({"fit", "-", "--model", "YEOH"}, "< '" + Sample("natural_rubber_treloar.json") + "'");
    EXPECT_THAT(card.out, HasSubstr("tests of: Vulcanised natural rubber"));
}

TEST(FitCommand, FitsFilesOfPointsBehindAMaterialInThePlaceOfItsOwn) {
    const std::string csv = FileOf("own.csv", "Stretch [-],NominalStress [MPa]\n2,1.75\n");
    const ResultJson fit({"fit", Sample("natural_rubber_treloar.json"), "Vulc", csv, "--model", "NEO_HOOKE",
                          "--mode", "uniaxial"});
    EXPECT_EQ(fit["tests_of"], csv);
    EXPECT_NEAR(fit.Number("initial_shear_modulus"), 1e6, 1e-6);
}

TEST(FitCommand, WarnsOfPointsThatNoModelMeetsAndOfThoseOutOfOrder) {
    const std::string rest = FileOf("rest.csv", "Stretch [-],NominalStress [MPa]\n1,0.1\n2,1.75\n");
    EXPECT_THAT(ResultJson({"fit", rest, "--model", "NEO_HOOKE", "--mode", "uniaxial"}).Findings(),
                Contains("fit: 1 point with a stress and no strain: no potential meets that"));
    const std::string curve =
        FileOf("unsorted.csv", "YieldStress [MPa],PlasticStrain [-]\n500,0.3\n300,0\n0,0.05\n400,0.1\n");
    const ResultJson voce({"fit", curve, "--model", "voce"});
    EXPECT_THAT(voce.Findings(),
                Contains("fit: the plastic strains do not rise from point to point: taken as they stand"));
    EXPECT_THAT(voce["notes"], Contains("points of zero stress that do not count: 1"));
}

TEST(FitCommand, TellsAShearTestByItsColumn) {
    const std::string csv = FileOf("shear.csv", "AmountOfShear [-],ShearStress [MPa]\n0.5,0.4\n1,0.8\n");
    const ResultJson fit({"fit", csv, "--model", "NEO_HOOKE"});
    EXPECT_NEAR(fit.Number("initial_shear_modulus"), 0.8e6, 1e-6);
    EXPECT_EQ(fit.Cell("deviation", 0, "mode"), "shear");
    EXPECT_THAT(fit.Findings(), testing::IsEmpty());
}

TEST(FitCommand, SaysTheTemperaturesOfCurvesInTheUnitsThatAreShown) {
    const std::string csv = FileOf("two.csv",
                                   "YieldStress [MPa],PlasticStrain [-],Temperature [degC]\n"
                                   "300,0,20\n200,0,500\n");
    EXPECT_THAT(RunZelmat({"fit", csv, "--model", "voce"}).err,
                HasSubstr("--temperature: 20 degC, 500 degC"));
}

}  // namespace
