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
    EXPECT_EQ(Store(path, {"Vulc", "--model", "voce"}).exitCode, 2);
    EXPECT_NE(Store(path, {"Copper", "--model", "YEOH"}).exitCode, 0);
    EXPECT_EQ(Store(path, {"Vulc", "--model", "REDUCED_POLYNOMIAL", "--order", "8"}).exitCode, 2);
    EXPECT_NE(Store(Sample("natural_rubber_treloar.json"), {"Vulc", "--model", "YEOH"}).exitCode, 0);

    EXPECT_EQ(ResultJson({"at", path, "Vulc", "hyperelastic"})["model"], "OGDEN");
}

}  // namespace
