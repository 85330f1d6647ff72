#include <filesystem>

#include "tests/zelmat/commands/ResultJson.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;

/// A new document with Treloar's rubber in it.
std::string RubberDocument() {
    std::string path = FileOf("rubber.zeldoc", "");
    std::filesystem::remove(path);
    EXPECT_EQ(RunZelmat({"new", path}).exitCode, 0);
    EXPECT_EQ(RunZelmat({"add", path, Sample("natural_rubber_treloar.json")}).exitCode, 0);
    return path;
}

ProgramRun Store(const std::string& path, std::vector<std::string> more) {
    std::vector<std::string> arguments = {"fit", path};
    arguments.insert(arguments.end(), more.begin(), more.end());
    arguments.emplace_back("--store");
    return RunZelmat(arguments);
}

double FirstCoefficient(const std::string& path) {
    return ResultJson({"at", path, "Vulc", "hyperelastic"}).Number("C10");
}

// YEOH 193090, -1787.7, 44.009 Pa, as the card computes it for its tests.
TEST(FitStore, PutsAFitIntoTheMaterialAsOneStepThatUndoTakesBack) {
    const std::string path = RubberDocument();
    const ProgramRun run = Store(path, {"Vulc", "--model", "YEOH"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("stored: step "));
    EXPECT_THAT(RunZelmat({"log", path}).out, HasSubstr("Store a fit in Vulcanised"));

    const ResultJson stored({"at", path, "Vulc", "hyperelastic"});
    EXPECT_EQ(stored["model"], "YEOH");
    EXPECT_NEAR(stored.Number("C10"), 193090.0, 50.0);
    EXPECT_NEAR(stored.Number("C30"), 44.009, 0.05);

    EXPECT_EQ(RunZelmat({"undo", path}).exitCode, 0);
    EXPECT_EQ(ResultJson({"at", path, "Vulc", "hyperelastic"})["model"], "OGDEN");
    EXPECT_EQ(RunZelmat({"redo", path}).exitCode, 0);
    EXPECT_NEAR(FirstCoefficient(path), 193090.0, 50.0);
}

TEST(FitStore, LeavesTheDocumentAsItWasWhenNothingCanBeStored) {
    const std::string path = RubberDocument();
    EXPECT_EQ(Store(path, {"--model", "YEOH"}).exitCode, 2);
    EXPECT_THAT(Store(path, {"--model", "YEOH"}).err, HasSubstr("the material to store it in is missing"));
    EXPECT_EQ(Store(path, {"Vulc", "--all-models"}).exitCode, 2);
    EXPECT_THAT(Store(path, {"Vulc", "--model", "voce"}).err, HasSubstr("has no block 'plastic'"));
    EXPECT_NE(Store(path, {"Copper", "--model", "YEOH"}).exitCode, 0);
    EXPECT_EQ(Store(path, {"Vulc", "--model", "REDUCED_POLYNOMIAL", "--order", "8"}).exitCode, 2);
    EXPECT_NE(Store(Sample("natural_rubber_treloar.json"), {"Vulc", "--model", "YEOH"}).exitCode, 0);

    EXPECT_EQ(ResultJson({"at", path, "Vulc", "hyperelastic"})["model"], "OGDEN");
}

/// A new document with one card in it.
std::string DocumentOf(const std::string& name, const std::string& card) {
    std::string path = FileOf(name, "");
    std::filesystem::remove(path);
    EXPECT_EQ(RunZelmat({"new", path}).exitCode, 0);
    EXPECT_EQ(RunZelmat({"add", path, card}).exitCode, 0);
    return path;
}

/// 300 MPa + 500 MPa e^0.4.
std::string Ludwik() {
    return FileOf("ludwik.csv",
                  "YieldStress [MPa],PlasticStrain [-]\n300,0\n379.24465962305567,0.01\n"
                  "499.05358527674864,0.1\n562.6527804403768,0.2\n");
}

std::string Copper() {
    return DocumentOf("copper.zeldoc", FileOf("copper.json", R"({"name": "Copper", "elastic": {
        "temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"], "rows": [[124e9, 0.34]]},
        "plastic": {"hardening": "johnson-cook", "C": 0.025, "reference_strain_rate": "1 1/s",
        "temperature_dependent": false,
        "columns": ["A", "B", "n", "m", "melting_temperature", "transition_temperature"],
        "rows": [[90e6, 292e6, 0.31, 1.09, 1356, 298]]}})"));
}

double StressOf(const std::string& path, const std::string& strain, const std::string& temperature) {
    return ResultJson({"at", path, "#1", "plastic", "--plastic-strain", strain, "--temperature", temperature})
        .Number("stress");
}

TEST(FitStore, PutsTheCoefficientsOfJohnsonAndCookIntoTheLawThatTheMaterialHas) {
    const std::string path = Copper();
    const ProgramRun run = Store(path, {"Copper", Ludwik(), "--model", "johnson-cook"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("note: the points say no temperature: taken as measured at the transition "
                                   "temperature"));
    EXPECT_THAT(run.out, HasSubstr("stored: step 2: Store a fit in Copper"));

    EXPECT_NEAR(StressOf(path, "0.1", "298K"), 499.05358527674864e6, 10.0);
    // m and the temperatures are the material's own: T* = (600 - 298)/(1356 - 298), the factor 0.7450129.
    EXPECT_NEAR(StressOf(path, "0.1", "600K") / 499.05358527674864e6, 0.7450129, 2e-7);
    const ResultJson fast({"at", path, "Copper", "plastic", "--plastic-strain", "0.1", "--temperature",
                           "298K", "--strain-rate", "10 1/s"});
    EXPECT_NEAR(fast.Number("stress") / 499.05358527674864e6, 1.0 + 0.025 * 2.302585092994046, 1e-7);

    EXPECT_EQ(RunZelmat({"undo", path}).exitCode, 0);
    EXPECT_NEAR(StressOf(path, "0.1", "298K"), 233.0154153e6, 0.1);
}

TEST(FitStore, BringsACurveAboveTheTransitionTemperatureThere) {
    const std::string path = Copper();
    const ProgramRun run =
        Store(path, {"Copper", Ludwik(), "--model", "johnson-cook", "--temperature", "600K"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("divided by 1 - T*^m = 0.7450129"));
    EXPECT_NEAR(StressOf(path, "0.1", "600K"), 499.05358527674864e6, 10.0);
    EXPECT_NEAR(StressOf(path, "0.1", "298K") * 0.7450129, 499.05358527674864e6, 100.0);
    EXPECT_THAT(Store(path, {"Copper", Ludwik(), "--model", "johnson-cook", "--temperature", "1400K"}).err,
                HasSubstr("error[incomplete-law]: the points are of a temperature at which the law has no "
                          "stress"));
}

TEST(FitStore, NamesWhatAMaterialLacksForTheWholeLaw) {
    const std::string path = DocumentOf("s235.zeldoc", Sample("steel_s235_kinematic.json"));
    const ProgramRun run = Store(path, {"#1", Ludwik(), "--model", "johnson-cook"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err,
                HasSubstr("error[incomplete-law]: a material holds the whole of Johnson and Cook's law, "
                          "and this one does not give m, melting_temperature, transition_temperature"));
    EXPECT_THAT(RunZelmat({"log", path}).out, testing::Not(HasSubstr("Store")));
}

TEST(FitStore, PutsTheOtherLawsIntoATableAndSaysHowNearThatIs) {
    const std::string path = Copper();
    const ProgramRun run = Store(path, {"Copper", Ludwik(), "--model", "ludwik"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("note: stored as a table of 41 plastic strains from 0 to 0.2"));
    EXPECT_THAT(run.out, HasSubstr("note: the hardening was johnson-cook and is isotropic now"));

    const ResultJson at({"at", path, "Copper", "plastic", "--plastic-strain", "0.05"});
    EXPECT_EQ(at["hardening"], "isotropic");
    EXPECT_NEAR(at.Number("stress"), 300e6 + 500e6 * 0.30170881682725817,
                1.0);  // 0.05^0.4; a row of the table
    EXPECT_EQ(at.Number("plastic_strain_to"), 0.2);
    EXPECT_THAT(RunZelmat({"show", path}).out,
                HasSubstr("source: ludwik: sigma_0 + K e^n, sigma_0 = 300 MPa"));
}

TEST(FitStore, PutsACurveAmongThoseOfOtherTemperatures) {
    const std::string path = DocumentOf("s355.zeldoc", Sample("steel_s355.json"));
    EXPECT_THAT(
        Store(path, {"#1", Ludwik(), "--model", "voce"}).err,
        HasSubstr("error[no-table]: the material's curves depend on temperature, and the points do not "
                  "say theirs (--temperature 20degC)"));
    const ProgramRun run = Store(path, {"#1", Ludwik(), "--model", "ludwik", "--temperature", "50degC"});
    EXPECT_EQ(run.exitCode, 0) << run.err;

    EXPECT_NEAR(StressOf(path, "0.2", "50degC"), 562.65e6, 1e4);
    EXPECT_NEAR(StressOf(path, "0.1", "20degC"), 393802626.9, 1.0) << "true stress of the plateau of 355 MPa";
    EXPECT_NEAR(StressOf(path, "0", "1100degC"), 4441667.5, 1.0) << "4.4375 MPa (1 + 4.4375/4725)";
}

TEST(FitStore, TakesTheTestsOfARubberFromFilesToo) {
    const std::string path = RubberDocument();
    const std::string tests = FileOf("uniaxial.csv", "Stretch [-],NominalStress [MPa]\n2,1.75\n");
    EXPECT_EQ(Store(path, {"Vulc", tests, "--mode", "uniaxial", "--model", "NEO_HOOKE"}).exitCode, 0);
    EXPECT_NEAR(FirstCoefficient(path), 0.5e6, 1e-6);
}

}  // namespace
