#include "tests/zelmat/commands/ResultJson.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;

ResultJson Converted(const std::string& text, std::vector<std::string> more = {}) {
    std::vector<std::string> arguments = {"true-curve", FileOf("tensile.csv", text), "--youngs-modulus",
                                          "210GPa"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return ResultJson(arguments);
}

// Engineering (0.10, 500 MPa) with E 210 GPa: 0.0953101798, 550 MPa, plastic 0.0926911322.
TEST(TrueCurveCommand, TurnsEngineeringIntoTrueValues) {
    const ResultJson curve =
        Converted("EngineeringStrain [%],EngineeringStress [MPa]\n0,0\n1,300\n10,500\n20,510\n");

    EXPECT_NEAR(curve.Number("true_curve", 2, "true_strain"), 0.0953101798, 5e-11);
    EXPECT_NEAR(curve.Number("true_curve", 2, "true_stress"), 550e6, 1e-3);
    EXPECT_NEAR(curve.Number("true_curve", 2, "plastic_strain"), 0.0926911322, 5e-11);
    EXPECT_EQ(curve["necking"], "none: the curve still rises at its end");
}

TEST(TrueCurveCommand, PrintsYieldNeckingAndTheHardeningCurve) {
    const ProgramRun run = RunZelmat({"true-curve", "tensile_test.csv", "--youngs-modulus", "210 GPa"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(
        run.out,
        HasSubstr("offset yield stress, engineering: 303.169 MPa\n"
                  "at the engineering strain: 0.003443662\n"
                  "necking: by Considere's criterion, d sigma/d eps = sigma: the greatest engineering "
                  "stress\n"
                  "there the engineering stress: 455 MPa\n"
                  "there the engineering strain: 0.15\n"
                  "left out: 1 point after necking\n"));
    EXPECT_THAT(run.out, HasSubstr("Hardening curve, from the offset yield point\n"
                                   "  yield stress [MPa]  plastic strain\n"
                                   "             304.213     0.000000000\n"));
}

// 210 MPa at 0.1 % is steel: with 70 GPa the elastic strain alone would be 0.3 %.
TEST(TrueCurveCommand, WarnsOfAModulusThatTheTestIsStifferThan) {
    const std::string csv = FileOf(
        "steel.csv", "EngineeringStrain [-],EngineeringStress [MPa]\n0,0\n0.001,210\n0.01,400\n0.1,500\n");
    const ProgramRun run = RunZelmat({"true-curve", csv, "--youngs-modulus", "70GPa"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err,
                HasSubstr("steel.csv: warning[modulus-too-low]: the test is stiffer than the Young's "
                          "modulus that is given: the plastic strain is -0.002003 at the true strain "
                          "0.0009995"));
    EXPECT_EQ(RunZelmat({"true-curve", csv, "--youngs-modulus", "210GPa"}).err, "");
}

TEST(TrueCurveCommand, TakesAnotherOffsetAndTrueValues) {
    const std::string engineering = "EngineeringStrain [-],EngineeringStress [MPa]\n0,0\n0.01,300\n0.1,500\n";
    EXPECT_LT(Converted(engineering, {"--offset", "0.1%"}).Number("offset_yield_stress"),
              Converted(engineering).Number("offset_yield_stress"));
    const ResultJson back =
        Converted("TrueStrain [-],TrueStress [MPa]\n0,0\n0.01,300\n0.0953101798043249,550\n");
    EXPECT_NEAR(back.Number("true_curve", 2, "true_stress"), 550e6, 1);
    EXPECT_THAT(back["notes"],
                testing::Contains("true values of the file were turned into engineering ones"));
}

TEST(TrueCurveCommand, WarnsOfACurveThatDoesNotYield) {
    const ProgramRun run =
        RunZelmat({"true-curve",
                   FileOf("elastic.csv", "EngineeringStrain [-],EngineeringStress [MPa]\n0,0\n0.001,210\n"),
                   "--youngs-modulus", "210GPa"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.err, HasSubstr("warning[no-yield]"));
    EXPECT_THAT(run.out, HasSubstr("offset yield stress: none: the curve does not reach the offset line\n"));
}

TEST(TrueCurveCommand, RefusesWhatIsNoTensileTest) {
    const auto refusal = [](const std::string& text, const std::string& modulus, int exitCode) {
        const ProgramRun run =
            RunZelmat({"true-curve", FileOf("wrong.csv", text), "--youngs-modulus", modulus});
        EXPECT_EQ(run.exitCode, exitCode) << text;
        EXPECT_EQ(run.out, "");
        return run.err;
    };
    const std::string good = "EngineeringStrain [-],EngineeringStress [MPa]\n0,0\n0.01,300\n";
    EXPECT_THAT(refusal(good, "210", 2), HasSubstr("'210' has no unit"));
    EXPECT_THAT(refusal(good, "-210GPa", 1), HasSubstr("Young's modulus"));
    EXPECT_THAT(refusal("EngineeringStrain [-],EngineeringStress [MPa]\n0.01,1\n0,2\n", "210GPa", 1),
                HasSubstr("error[no-curve]"));
    EXPECT_THAT(refusal("EngineeringStrain [-],EngineeringStress [MPa]\n0,0\n", "210GPa", 1),
                HasSubstr("no-curve"));
    EXPECT_THAT(refusal("Strain [-],Stress [MPa]\n0,0\n0.1,1\n", "210GPa", 1),
                HasSubstr("'Strain' does not say whether it is engineering or true"));
    EXPECT_THAT(refusal("EngineeringStrain [-],Temperature [K]\n0,0\n0.1,1\n", "210GPa", 1),
                HasSubstr("columns"));
    EXPECT_EQ(RunZelmat({"true-curve", "missing.csv", "--youngs-modulus", "1GPa"}).exitCode, 3);
    EXPECT_EQ(RunZelmat({"true-curve", "tensile_test.csv"}).exitCode, 2);
}

}  // namespace
