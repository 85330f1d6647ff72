#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/XmlProblem.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::string Contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A folder for pictures, gone with the test.
class PlotCommand : public testing::Test {
protected:
    PlotCommand() : folder_(testing::TempDir() + "plot-" + std::to_string(getpid())) {
        fs::create_directory(folder_);
    }
    ~PlotCommand() override { fs::remove_all(folder_); }

    std::string In(const std::string& name) const { return folder_ + "/" + name; }

    std::vector<std::string> Files(const std::string& name = "") const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(In(name))) names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string folder_;
};

TEST_F(PlotCommand, FillsAFolderThatItMakes) {
    const ProgramRun run = RunZelmat({"plot", Sample("steel_s355.json"), "--output", In("a/b")});

    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(Files("a/b"),
                ElementsAre("conductivity-conductivity.svg", "elastic-poissons_ratio.svg",
                            "elastic-youngs_modulus.svg", "plastic-hardening.svg",
                            "specific_heat-specific_heat.svg", "thermal_expansion-thermal_expansion.svg"));
    for (const std::string& file : Files("a/b"))
        EXPECT_EQ(XmlProblem(Contents(In("a/b/" + file))), "") << file;
    EXPECT_THAT(run.out, HasSubstr("drawn: " + In("a/b/elastic-youngs_modulus.svg") + "\n"));
}

TEST_F(PlotCommand, PutsAllPicturesOfABlockIntoOneFile) {
    const ProgramRun run =
        RunZelmat({"plot", Sample("steel_s355.json"), "--block", "elastic", "--output", In("elastic.svg")});

    EXPECT_EQ(run.exitCode, 0) << run.err;
    const std::string svg = Contents(In("elastic.svg"));
    EXPECT_THAT(svg, HasSubstr(">Elastic: Young’s modulus over temperature<"));
    EXPECT_THAT(svg, HasSubstr(">Elastic: Poisson’s ratio over temperature<"));
    EXPECT_THAT(svg, HasSubstr(">temperature [°C]<"));
    EXPECT_THAT(svg, HasSubstr(">Young’s modulus [MPa]<"));
}

TEST_F(PlotCommand, TakesTheFormFromTheEnding) {
    EXPECT_EQ(RunZelmat({"plot", Sample("steel_s355.json"), "--output", In("a.PDF")}).exitCode, 0);
    EXPECT_EQ(RunZelmat({"plot", Sample("copper_ofhc.json"), "--output", In("a.png")}).exitCode, 0);

    EXPECT_THAT(Contents(In("a.PDF")), StartsWith("%PDF-"));
    EXPECT_THAT(Contents(In("a.png")), StartsWith("\x89PNG"));
}

TEST_F(PlotCommand, RefusesAnEndingThatNoPictureHas) {
    const ProgramRun run = RunZelmat({"plot", Sample("steel_s355.json"), "--output", In("a.jpg")});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(
        run.err,
        "--output: error[wrong-ending]: there is no form of pictures that ends in .jpg (a file that ends in "
        ".svg, .pdf or .png, or a folder)\n");
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(PlotCommand, NeedsAnOutput) {
    const ProgramRun run = RunZelmat({"plot", Sample("steel_s355.json")});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, StartsWith("--output: error[missing-option]: it is not said where the pictures go"));
}

TEST_F(PlotCommand, KeepsAScriptThatDrawsTheSameAgain) {
    const ProgramRun run =
        RunZelmat({"plot", Sample("copper_ofhc.json"), "--output", In("kept.svg"), "--keep-script"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    ASSERT_THAT(Files(), ElementsAre("kept.gp", "kept.svg"));
    const std::string script = Contents(In("kept.gp"));

    ASSERT_EQ(std::system(("cd '" + folder_ + "' && gnuplot -d kept.gp").c_str()), 0);

    EXPECT_THAT(script, HasSubstr("$p1n0s0 << EOD\n0 90\n"));
    EXPECT_TRUE(fs::exists(In("plastic-hardening.svg"))) << "under the picture's own name";
}

TEST_F(PlotCommand, DrawsTheSameBytesAgain) {
    for (const char* name : {"one", "two"}) {
        ASSERT_EQ(
            RunZelmat({"plot", Sample("gasket_fibre_illustrative.json"), "--output", In(name)}).exitCode, 0);
    }

    EXPECT_EQ(Contents(In("one/gasket-unloading_damage.svg")),
              Contents(In("two/gasket-unloading_damage.svg")));
}

TEST_F(PlotCommand, ComparesMaterialsInOnePicture) {
    const ProgramRun run = RunZelmat({"plot", Sample("steel_s355.json"), "--block", "elastic", "--output",
                                      In("c"), "--compare", Sample("aluminium_6061_t6.json")});

    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(Files("c"),
                ElementsAre("compared-elastic-poissons_ratio.svg", "compared-elastic-youngs_modulus.svg"));
    const std::string svg = Contents(In("c/compared-elastic-youngs_modulus.svg"));
    EXPECT_THAT(svg, HasSubstr("Structural steel S355"));
    EXPECT_THAT(svg, HasSubstr("2 materials compared"));
}

TEST_F(PlotCommand, DrawsALayup) {
    const ProgramRun run = RunZelmat(
        {"plot", Sample("layups/sandwich_t300_rohacell.json"), "--output", In("layup"), "--units", "us"});

    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(Files("layup"),
                ElementsAre("laminate-stiffness.svg", "laminate-stresses.svg", "layup-stack.svg"));
    EXPECT_THAT(Contents(In("layup/layup-stack.svg")), HasSubstr("z [in]"));
    EXPECT_THAT(Contents(In("layup/laminate-stresses.svg")), HasSubstr("stress in the ply’s axes [psi]"));
}

TEST_F(PlotCommand, SaysThatThereIsNoSuchBlockOrNothingToDraw) {
    const ProgramRun unknown =
        RunZelmat({"plot", Sample("steel_s355.json"), "--block", "elastik", "--output", In("a")});
    const ProgramRun nothing =
        RunZelmat({"plot", Sample("steel_s355.json"), "--block", "density", "--output", In("a")});

    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_THAT(unknown.err,
                StartsWith("--block: error[no-such-block]: there is no block elastik (has: elastic, "));
    EXPECT_EQ(nothing.exitCode, 1);
    EXPECT_THAT(nothing.err, HasSubstr("error[nothing-to-draw]: there is nothing to draw of density\n"));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(PlotCommand, EndsWith3WithoutGnuplotAndLeavesNothing) {
    const ProgramRun run =
        RunZelmat({"plot", Sample("steel_s355.json"), "--output", In("a.svg")}, {"PATH=" + folder_});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, StartsWith("gnuplot: error[program-missing]: drawing needs the program gnuplot"));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(PlotCommand, LeavesNoIntermediateFiles) {
    ASSERT_EQ(RunZelmat({"plot", Sample("copper_ofhc.json"), "--output", In("a.svg")}, {"TMPDIR=" + folder_})
                  .exitCode,
              0);

    EXPECT_THAT(Files(), ElementsAre("a.svg"));
}

TEST_F(PlotCommand, ReportsWhatItDrewAsJson) {
    const ProgramRun run = RunZelmat({"plot", Sample("copper_ofhc.json"), "--output", In("a.svg"), "--json"});

    const auto told = nlohmann::json::parse(run.out);
    ASSERT_EQ(told["drawn"].size(), 1u);
    EXPECT_EQ(told["drawn"][0]["file"], In("a.svg"));
}

TEST_F(PlotCommand, WritesOntoStandardOutput) {
    const ProgramRun run = RunZelmat({"plot", Sample("copper_ofhc.json"), "--output", "-"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(XmlProblem(run.out), "");
    EXPECT_THAT(run.err, HasSubstr("drawn: standard output"));
}

}  // namespace
