#include "tests/zelmat/commands/ResultJson.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string Refusal(std::vector<std::string> arguments, int exitCode) {
    arguments.insert(arguments.begin(), "constants");
    const ProgramRun run = RunZelmat(arguments);
    EXPECT_EQ(run.exitCode, exitCode) << run.out;
    EXPECT_EQ(run.out, "");
    return run.err;
}

TEST(ConstantsCommand, PrintsAllConstantsOfAnIsotropicMaterial) {
    const ProgramRun run = RunZelmat({"constants", "E=210GPa", "nu=0.3"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "material: isotropic; E > 0 and -1 < nu < 0.5 hold\n"
              "\n"
              "  constant     value  unit  meaning\n"
              "  E           210000  MPa   Young's modulus\n"
              "  nu             0.3  -     Poisson's ratio\n"
              "  G         80769.23  MPa   shear modulus\n"
              "  K           175000  MPa   bulk modulus\n"
              "  lambda    121153.8  MPa   Lame's first constant\n"
              "  M         282692.3  MPa   P-wave modulus\n");
}

TEST(ConstantsCommand, TakesAnyTwoConstantsInTheirUnits) {
    const ResultJson result({"constants", "K=175000 N/mm^2", "G=80769.23076923077MPa"});

    EXPECT_NEAR(result.Number("constants", 0, "value"), 210e9, 1);
    EXPECT_NEAR(result.Number("constants", 1, "value"), 0.3, 1e-12);
    EXPECT_EQ(result.Cell("constants", 1, "unit"), "-");
}

// sqrt(M/rho), sqrt(G/rho), sqrt(E/rho) with M = 282.6923 GPa, G = 80.76923 GPa
TEST(ConstantsCommand, GivesWaveSpeedsWithADensity) {
    const ResultJson result({"constants", "E=210GPa", "nu=0.3", "rho=7.85 g/cm^3"});

    EXPECT_NEAR(result.Number("constants", 6, "value"), 6000.98, 0.005);
    EXPECT_NEAR(result.Number("constants", 7, "value"), 3207.66, 0.005);
    EXPECT_NEAR(result.Number("constants", 8, "value"), 5172.19, 0.005);
}

// S. W. Tsai, H. T. Hahn 1980, T300/5208: Q = 181.8, 2.897, 10.35, 7.17 GPa
TEST(ConstantsCommand, GivesThePlaneStressStiffnessOfAPly) {
    const ResultJson result({"constants", "E1=181GPa", "E2=10.3GPa", "nu12=0.28", "G12=7.17GPa"});

    EXPECT_NEAR(result.Number("constants", 6, "value"), 181.8e9, 0.05e9);
    EXPECT_NEAR(result.Number("constants", 7, "value"), 2.897e9, 0.0005e9);
    EXPECT_NEAR(result.Number("constants", 8, "value"), 10.35e9, 0.005e9);
    EXPECT_NEAR(result.Number("constants", 9, "value"), 7.17e9, 1);
}

TEST(ConstantsCommand, PrintsCsvInSi) {
    EXPECT_THAT(RunZelmat({"constants", "E=210GPa", "nu=0.3", "--csv"}).out,
                HasSubstr("# constants\nconstant,value,unit,meaning\nE,2.1e+11,Pa,Young's modulus\n"));
    EXPECT_THAT(RunZelmat({"constants", "E=210GPa", "nu=0.3", "--csv", "--units", "stress=GPa"}).out,
                HasSubstr("\nE,210,GPa,Young's modulus\n"));
}

TEST(ConstantsCommand, RefusesWhatIsNoStableMaterial) {
    EXPECT_EQ(
        Refusal({"E=210GPa", "nu=0.5"}, 1),
        "KEY=VALUE: error[impossible-constants]: no stable material has these constants: E > 0 and -1 < nu "
        "< 0.5 have to hold\n");
    EXPECT_THAT(Refusal({"E=210GPa", "G=60GPa"}, 1), HasSubstr("impossible-constants"));
    EXPECT_THAT(Refusal({"E1=1GPa", "E2=1GPa", "nu12=1", "G12=1GPa"}, 1), HasSubstr("impossible-constants"));
    EXPECT_THAT(Refusal({"E=210GPa", "nu=0.3", "rho=-1 kg/m3"}, 1), HasSubstr("impossible-density"));
}

TEST(ConstantsCommand, RefusesWhatIsNoPairOfConstants) {
    EXPECT_THAT(Refusal({"E=210GPa"}, 2),
                HasSubstr("two elastic constants fix an isotropic material, not 1"));
    EXPECT_THAT(Refusal({"E=210GPa", "nu=0.3", "G=1GPa"}, 2), HasSubstr("not 3"));
    EXPECT_THAT(Refusal({"E=210GPa", "E=210GPa"}, 2), HasSubstr("E is given twice"));
    EXPECT_THAT(Refusal({"E=210", "nu=0.3"}, 2),
                StartsWith("E: error[wrong-number]: modulus: '210' has no unit"));
    EXPECT_THAT(Refusal({"E=210K", "nu=0.3"}, 2), HasSubstr("measures something else"));
    EXPECT_THAT(Refusal({"Lambda=210GPa", "nu=0.3"}, 2), HasSubstr("did you mean lambda?"));
    EXPECT_THAT(Refusal({"E", "nu=0.3"}, 2), StartsWith("E: error[wrong-number]"));
    EXPECT_THAT(Refusal({"E1=1GPa", "nu=0.3"}, 2), HasSubstr("a ply has E1, E2, nu12 and G12"));
    EXPECT_THAT(Refusal({""}, 2), HasSubstr("unknown-constant"));
}

}  // namespace
