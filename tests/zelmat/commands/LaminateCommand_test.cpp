#include <cmath>

#include "tests/zelmat/commands/ResultJson.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::StartsWith;

/// T300/5208 of Tsai and Hahn, with strengths of the same book.
constexpr const char* kPly =
    "E1=181GPa,E2=10.3GPa,nu12=0.28,G12=7.17GPa,alpha1=0.02e-6/K,alpha2=22.5e-6/K,density=1600kg/m3,"
    "Xt=1500MPa,Xc=1500MPa,Yt=40MPa,Yc=246MPa,S=68MPa";

ResultJson Laminate(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "laminate");
    return ResultJson(arguments);
}

std::string Refusal(std::vector<std::string> arguments, int exitCode) {
    arguments.insert(arguments.begin(), "laminate");
    const ProgramRun run = RunZelmat(arguments);
    EXPECT_EQ(run.exitCode, exitCode) << run.out << run.err;
    EXPECT_EQ(run.out, "");
    return run.err;
}

// S. W. Tsai, H. T. Hahn 1980.
TEST(LaminateCommand, GivesTheModuliOfTheQuasiIsotropicLaminate) {
    const ResultJson laminate = Laminate(
        {"[0/45/-45/90]s", "--ply", "E1=181GPa,E2=10.3GPa,nu12=.28,G12=7.17GPa", "--thickness", "0.125mm"});

    EXPECT_NEAR(laminate.Number("moduli", 0, "Ex"), 69.6757e9, 0.00005e9);
    EXPECT_NEAR(laminate.Number("moduli", 0, "Ey"), 69.6757e9, 0.00005e9);
    EXPECT_NEAR(laminate.Number("moduli", 0, "Gxy"), 26.8804e9, 0.00005e9);
    EXPECT_NEAR(laminate.Number("moduli", 0, "nuxy"), 0.29603, 5e-6);
    EXPECT_EQ(
        laminate["convention"],
        "z upwards from the middle plane, first layer at the bottom; angles from the x axis to the fibre, "
        "counter-clockwise; shear as engineering strain; strain at z = strain + z curvature");
    EXPECT_EQ(laminate["coupled"], "no: B is 0");
    EXPECT_EQ(laminate.Number("lamination_parameters", 2, "cos 2t"), 0.5625);
}

TEST(LaminateCommand, PrintsNoZeroWithASign) {
    const ProgramRun run =
        RunZelmat({"laminate", "[0/90]", "--ply", kPly, "--thickness", "5mm", "--dT", "-75K"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, testing::Not(testing::ContainsRegex(" -0(\\.0+)?(e\\+00)?[ \n]")));
}

// A. K. Kaw, Mechanics of Composite Materials, example 4.2.
TEST(LaminateCommand, GivesThePublishedStiffnessOfALayupCard) {
    const ResultJson kaw = Laminate({Sample("layups/kaw_0_30_m45.json")});

    const double a[3][3] = {
        {1.739e9, 388.4e6, 56.63e6}, {388.4e6, 453.3e6, -114.1e6}, {56.63e6, -114.1e6, 452.5e6}};
    const double b[3][3] = {
        {-3.129e6, 985.5e3, -1.072e6}, {985.5e3, 1.158e6, -1.072e6}, {-1.072e6, -1.072e6, 985.5e3}};
    const double d[3][3] = {{33.43e3, 6461, -5240}, {6461, 9320, -5596}, {-5240, -5596, 7663}};
    const char* axes[] = {"x", "y", "xy"};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            EXPECT_NEAR(kaw.Number("A", i, axes[k]), a[i][k], 5e-4 * std::abs(a[i][k]));
            EXPECT_NEAR(kaw.Number("B", i, axes[k]), b[i][k], 5e-4 * std::abs(b[i][k]));
            EXPECT_NEAR(kaw.Number("D", i, axes[k]), d[i][k], 5e-4 * std::abs(d[i][k]));
        }
    }
    EXPECT_EQ(kaw.Unit("A", "x"), "N/m");
    EXPECT_EQ(kaw.Unit("B", "x"), "N");
    EXPECT_EQ(kaw.Unit("D", "x"), "N m");
    EXPECT_EQ(kaw["coupled"], "yes: B is not 0");
}

// P. T. R. Mendonca 2005, p. 201; units of the book taken for Pa and m.
TEST(LaminateCommand, AgreesWithMendoncaToAllDigits) {
    const std::string card = FileOf("mendonca.json", R"({"name": "Mendonca", "ply_materials": {"glass":
        {"E1": 54870, "E2": 18320, "nu12": 0.25, "G12": 8900}}, "layers": [
        {"material": "glass", "thickness": 3, "angle_deg": 45}, {"material": "glass", "thickness": 6, "angle_deg": 0},
        {"material": "glass", "thickness": 3, "angle_deg": 45}]})");
    const ResultJson laminate = Laminate({card});

    EXPECT_NEAR(laminate.Number("A", 0, "x"), 515794.00930665, 1e-6);
    EXPECT_NEAR(laminate.Number("A", 0, "y"), 100823.25453699, 1e-6);
    EXPECT_NEAR(laminate.Number("D", 0, "x"), 4779418.7240577, 1e-5);
}

// NASA RP-1351: 500 lb/in gives 0.00221, -0.0007, -0.00115; 5 lb in/in curvatures 0.418, -0.165, -0.0975
// 1/in.
TEST(LaminateCommand, GivesStrainsAndCurvaturesUnderLoad) {
    const std::string card = Sample("layups/nasa_rp1351_0_45_s.json");
    const ResultJson pulled = Laminate({card, "--N", "500,0,0 lbf/in"});
    EXPECT_NEAR(pulled.Number("middle_plane", 0, "strain"), 0.00221, 2e-5);
    EXPECT_NEAR(pulled.Number("middle_plane", 1, "strain"), -0.0007, 1e-5);
    EXPECT_NEAR(pulled.Number("middle_plane", 2, "strain"), -0.00115, 1e-5);
    EXPECT_EQ(pulled.Number("middle_plane", 0, "curvature"), 0.0);
    EXPECT_NEAR(pulled.Number("middle_plane", 0, "force"), 87563.4, 0.1);

    const ResultJson bent = Laminate({card, "--M", "5,0,0 lbf in/in", "--units", "us"});
    EXPECT_NEAR(bent.Number("middle_plane", 0, "curvature"), 0.418, 0.003);
    EXPECT_NEAR(bent.Number("middle_plane", 1, "curvature"), -0.165, 0.0015);
    EXPECT_NEAR(bent.Number("middle_plane", 2, "curvature"), -0.0975, 0.0015);
    EXPECT_EQ(bent.Rows("ply_stresses"), 8u);
}

// A. K. Kaw, graphite/epoxy lamina at 60 degrees under 2, -3, 4 MPa: load factors 16.33, 16.06, 22.39.
TEST(LaminateCommand, GivesFirstPlyFailureAsIndexAndLoadFactor) {
    const ResultJson failed = Laminate({"[60]", "--ply", kPly, "--thickness", "1mm", "--N", "2,-3,4N/mm"});

    EXPECT_EQ(failed.Cell("failure", 0, "criterion"), "maximum-stress");
    EXPECT_NEAR(failed.Number("failure", 0, "load_factor"), 16.33, 0.05);
    EXPECT_NEAR(failed.Number("failure", 0, "index"), 1 / 16.33, 0.0005);
    EXPECT_EQ(failed.Cell("failure", 2, "criterion"), "tsai-wu");
    EXPECT_NEAR(failed.Number("failure", 2, "load_factor"), 22.39, 0.05);
    EXPECT_EQ(failed.Number("failure", 2, "layer"), 1.0);
    EXPECT_EQ(failed.Cell("failure", 2, "place"), "bottom");
}

TEST(LaminateCommand, GivesExpansionMassAndThermalStress) {
    const ResultJson laminate =
        Laminate({"[0/90]s", "--ply", kPly, "--thickness", "0.125mm", "--dT=-100 degC"});

    EXPECT_NEAR(laminate.Number("mass_per_area"), 0.8, 1e-12);
    EXPECT_NEAR(laminate.Number("thickness"), 0.0005, 1e-18);
    const double expansion = laminate.Number("expansion", 0, "expansion");
    EXPECT_GT(expansion, 0.02e-6);
    EXPECT_LT(expansion, 22.5e-6);
    EXPECT_NEAR(laminate.Number("middle_plane", 0, "strain"), -100 * expansion, 1e-15);
    EXPECT_EQ(laminate.Number("middle_plane", 2, "strain"), 0.0);
    EXPECT_EQ(laminate.Number("temperature_change"), -100.0);
}

TEST(LaminateCommand, RefusesAChangeOfTemperatureWhereAnExpansionIsNotKnown) {
    const std::string elastic = "E1=181GPa,E2=10.3GPa,nu12=0.28,G12=7.17GPa";
    const std::vector<std::string> plate = {"[0/90]s", "--thickness", "0.125mm", "--ply", elastic};
    auto cooled = plate;
    cooled.emplace_back("--dT=-100K");
    EXPECT_THAT(Refusal(cooled, 1), HasSubstr("layer 1: the thermal expansion of its material is not known"));
    EXPECT_THAT(Laminate(plate)["notes"],
                Contains("no free expansion: layer 1: the thermal expansion of its material is not known"));
    cooled[4] += ",alpha1=0.02e-6/K";
    EXPECT_THAT(Refusal(cooled, 1), HasSubstr("of its thermal expansion alpha2 is missing"));
    cooled[4] += ",alpha2=22.5e-6/K";
    cooled.insert(cooled.begin(), "laminate");
    EXPECT_THAT(RunZelmat(cooled).out, HasSubstr("change of temperature: -100 K\n"));
}

TEST(LaminateCommand, TakesThePliesOfAMaterialCard) {
    const std::string card =
        FileOf("ply.json", R"({"name": "T300", "version": 1, "E1": "181 GPa", "E2": "10.3 GPa",
        "nu12": 0.28, "G12": "7.17 GPa"})");
    const std::vector<std::string> arguments = {"laminate",    "[0/45/-45/90]s", "--material", card,
                                                "--thickness", "0.125mm",        "--json"};
    const ProgramRun run = RunZelmat(arguments);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("6967574"));
    const ResultJson foam =
        Laminate({"[0]", "--material", Sample("foam_rohacell71.json"), "--thickness", "10mm"});
    EXPECT_NEAR(foam.Number("moduli", 0, "Ex"), 105e6, 1e-3);
    EXPECT_NEAR(foam.Number("moduli", 1, "Gxy"), 37.5e6, 1e-3);
    EXPECT_NEAR(foam.Number("mass_per_area"), 0.75, 1e-12);
}

TEST(LaminateCommand, AgreesInAllSystemsOfUnits) {
    const auto a11 = [](const char* units) {
        return Laminate({Sample("layups/kaw_0_30_m45.json"), "--units", units}).Number("A", 0, "x");
    };
    const auto d11 = [](const char* units) {
        return Laminate({Sample("layups/kaw_0_30_m45.json"), "--units", units}).Number("D", 0, "x");
    };
    EXPECT_NEAR(a11("mm-t-s") * 1e3 / a11("si"), 1.0, 1e-12);
    EXPECT_NEAR(a11("us") * (4.4482216152605 / 0.0254) / a11("si"), 1.0, 1e-12);
    EXPECT_NEAR(d11("mm-t-s") * 1e-3 / d11("si"), 1.0, 1e-12);
    EXPECT_NEAR(d11("us") * (4.4482216152605 * 0.0254) / d11("si"), 1.0, 1e-12);
}

TEST(LaminateCommand, RefusesLoadsWithoutAUnit) {
    const std::string card = Sample("layups/kaw_0_30_m45.json");
    EXPECT_THAT(Refusal({card, "--N", "100,0,0"}, 2),
                StartsWith("--N: error[wrong-number]: force per length: '100' has "
                           "no unit"));
    EXPECT_THAT(Refusal({card, "--N", "100,0,0 MPa"}, 2), HasSubstr("measures something else"));
    EXPECT_THAT(Refusal({card, "--N", "100N/mm,0"}, 2), HasSubstr("is no list of three numbers"));
    EXPECT_THAT(Refusal({card, "--M", "1,x,0N"}, 2), StartsWith("--M: "));
    EXPECT_THAT(Refusal({card, "--dT", "100"}, 2), HasSubstr("'100' has no unit"));
    EXPECT_THAT(Refusal({card, "--N", ",,"}, 2), StartsWith("--N: "));
    EXPECT_THAT(Refusal({card, "--N", ""}, 2), HasSubstr("--N: a number is missing"));
    EXPECT_THAT(Refusal({card, "--N", "1e308,0,0N/m", "--M", "1e308,0,0N"}, 1),
                HasSubstr("error[no-laminate]: the answer to the load is too great for a number"));
}

TEST(LaminateCommand, NamesWhatIsMissing) {
    EXPECT_THAT(
        Refusal({"[0/90]s", "--thickness", "1mm"}, 2),
        StartsWith("--material, --ply: error[missing-option]: a notation needs the material of its plies"));
    EXPECT_THAT(Refusal({"[0/90]s", "--ply", kPly}, 2), HasSubstr("--thickness: error[missing-option]"));
    EXPECT_THAT(Refusal({"[0/90", "--ply", kPly, "--thickness", "1mm"}, 2),
                HasSubstr("error[wrong-notation]"));
    EXPECT_THAT(Refusal({"[0]", "--ply", "E1=1GPa", "--thickness", "1mm"}, 1),
                HasSubstr("it has no E2, nu12, G12 (or E and nu of an isotropic one)"));
    EXPECT_THAT(Refusal({"[0]", "--ply", "E1=1", "--thickness", "1mm"}, 2),
                StartsWith("--ply E1: error[wrong-number]"));
    EXPECT_THAT(Refusal({"[0]", "--ply", "Ex=1GPa", "--thickness", "1mm"}, 2), HasSubstr("unknown-constant"));
    EXPECT_THAT(Refusal({"[0]", "--ply", "E=1GPa,nu=.3,Xt=1MPa", "--thickness", "1mm"}, 1),
                HasSubstr("of its strengths Xc, Yt, Yc, S is missing"));
    EXPECT_THAT(Refusal({"[0]", "--ply", "E1=1GPa,E2=1GPa,nu12=1.2,G12=1GPa", "--thickness", "1mm"}, 1),
                HasSubstr("no-laminate"));
    EXPECT_THAT(Refusal({"[0]", "--ply", kPly, "--thickness", "1"}, 2), HasSubstr("has no unit"));
    EXPECT_THAT(Refusal({Sample("layups/kaw_0_30_m45.json"), "--thickness", "1mm"}, 2),
                HasSubstr("not-for-a-card"));
    EXPECT_THAT(Refusal({"layup_no_material.json"}, 1), HasSubstr("no-laminate"));
    EXPECT_EQ(RunZelmat({"laminate", "missing.json"}).exitCode, 3);
}

TEST(LaminateCommand, SaysWhyThereIsNoFailure) {
    const ResultJson kaw = Laminate({Sample("layups/kaw_0_30_m45.json"), "--N", "1,0,0N/m"});
    EXPECT_THAT(kaw["notes"], Contains("no failure: not all plies have the strengths Xt, Xc, Yt, Yc and S"));
    const ResultJson sandwich = Laminate({Sample("layups/sandwich_t300_rohacell.json")});
    EXPECT_THAT(sandwich["notes"],
                Contains("no lamination parameters: lamination parameters exist for one ply material only"));
}

TEST(LaminateCommand, AsksWhichOfSeveralMaterialsThePliesAreOf) {
    const std::string two = FileOf("two_plies.json", R"([{"name": "Glass", "E": "70 GPa", "nu": 0.22},
        {"name": "Foam", "E": "70 MPa", "nu": 0.3}])");
    EXPECT_THAT(
        Refusal({"[0]", "--material", two, "--thickness", "1mm"}, 2),
        HasSubstr("error[several-materials]: it holds 2 materials (name one of them, has: Glass, Foam)"));
}

TEST(LaminateCommand, ReadsALayupCardFromStandardInput) {
    const std::string card = "< '" + Sample("layups/kaw_0_30_m45.json") + "'";
    const ProgramRun run = RunZelmatWith({"laminate", "-"}, card);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, StartsWith("laminate: Unsymmetric [0/30/-45] graphite/epoxy\n"));
    EXPECT_EQ(RunZelmatWith({"layup", "-"}, card).exitCode, 0);
    EXPECT_THAT(RunZelmatWith({"laminate", "-", "Skin"}, card).err, HasSubstr("not-of-a-document"));
}

}  // namespace
