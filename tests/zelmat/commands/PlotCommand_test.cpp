#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/TestFolder.h"
#include "tests/zelmat/support/XmlProblem.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class PlotCommand : public FolderTest {
protected:
    /// Copper, a laminate's material and a core of foam; layups of the latter two.
    std::string DocumentWithLayups() const {
        std::string document = In("a.zeldoc");
        const auto run = [](const std::vector<std::string>& arguments) {
            const ProgramRun ran = RunZelmat(arguments);
            EXPECT_EQ(ran.exitCode, 0) << ran.err;
        };
        run({"new", document});
        run({"add", document, Sample("copper_ofhc.json"), Sample("cfrp_t300_5208_quasi_isotropic.json"),
             Sample("foam_rohacell71.json")});
        run({"layup", document, "add", "Skin", "[0/45/-45/90]s", "--material", "CFRP", "--thickness",
             "0.125mm"});
        run({"layup", document, "add", "Core", "[0]", "--material", "PMI", "--thickness", "5mm"});
        return document;
    }
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
    EXPECT_THAT(run.out, StartsWith("drawn: " + In("a/b/elastic-youngs_modulus.svg") + "\ndrawn: "));
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

    ASSERT_EQ(std::system(("cd '" + folder_.Path() + "' && gnuplot -d kept.gp").c_str()), 0);

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

TEST_F(PlotCommand, DrawsTheLayupsOfADocument) {
    const std::string document = DocumentWithLayups();

    const ProgramRun one = RunZelmat({"plot", document, "Skin", "--output", In("skin")});
    const ProgramRun all = RunZelmat({"plot", document, "--output", In("all")});
    const ProgramRun second =
        RunZelmat({"plot", document, "#2", "--block", "stack", "--output", In("b.svg")});

    EXPECT_EQ(one.exitCode, 0) << one.err;
    EXPECT_THAT(Files("skin"),
                ElementsAre("laminate-stiffness.svg", "laminate-stresses.svg", "layup-stack.svg"));
    EXPECT_THAT(Contents(In("skin/laminate-stresses.svg")), HasSubstr("under Nx = 100 N/mm"));
    EXPECT_EQ(all.exitCode, 0) << all.err;
    EXPECT_THAT(Files("all"), ElementsAre("Core-laminate-stiffness.svg", "Core-laminate-stresses.svg",
                                          "Core-layup-stack.svg", "OFHC-copper-plastic-hardening.svg",
                                          "Skin-laminate-stiffness.svg", "Skin-laminate-stresses.svg",
                                          "Skin-layup-stack.svg"));
    EXPECT_EQ(second.exitCode, 0) << second.err;
    EXPECT_THAT(Contents(In("b.svg")), HasSubstr(">Core<")) << "layups alone are counted";
    EXPECT_THAT(Contents(In("b.svg")), HasSubstr("1: isotropic, 5 mm")) << "foam has no fibres";
}

TEST_F(PlotCommand, ChoosesAmongMaterialsAndLayupsByName) {
    const std::string document = DocumentWithLayups();

    const ProgramRun both = RunZelmat({"plot", document, "C", "--output", In("a")});
    const ProgramRun none = RunZelmat({"plot", document, "Core", "--block", "plastic", "--output", In("a")});
    const ProgramRun card =
        RunZelmat({"plot", Sample("layups/sandwich_t300_rohacell.json"), "Sandwich", "--output", In("a")});

    EXPECT_EQ(both.exitCode, 2);
    EXPECT_THAT(both.err, HasSubstr("error[several-names]: \"C\" can be 2 names (#2: CFRP T300/5208, "
                                    "quasi-isotropic equivalent, #5: Core)"));
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_THAT(none.err, HasSubstr("error[no-such-material]: there is no material \"Core\""));
    EXPECT_EQ(card.exitCode, 2);
    EXPECT_THAT(card.err, StartsWith("LAYUP: error[not-of-a-document]: "));
    EXPECT_THAT(Files(), ElementsAre("a.zeldoc"));
}

TEST_F(PlotCommand, DrawsAStackInEveryForm) {
    const std::string card = Sample("layups/sandwich_t300_rohacell.json");

    const ProgramRun png = RunZelmat({"plot", card, "--block", "stack", "--output", In("a.png")});
    const ProgramRun pdf = RunZelmat({"plot", card, "--output", In("a.pdf")});
    const ProgramRun svg = RunZelmat({"plot", card, "--output", In("a.svg")});

    EXPECT_EQ(png.exitCode, 0) << png.err;
    EXPECT_THAT(Contents(In("a.png")), StartsWith("\x89PNG"));
    EXPECT_EQ(pdf.exitCode, 0) << pdf.err;
    EXPECT_THAT(Contents(In("a.pdf")), StartsWith("%PDF-"));
    EXPECT_EQ(svg.exitCode, 0) << svg.err;
    const std::string joined = Contents(In("a.svg"));
    EXPECT_EQ(XmlProblem(joined), "");
    EXPECT_THAT(joined, HasSubstr("class=\"ply\""));
    EXPECT_THAT(joined, HasSubstr("Stiffness of the laminate in its plane"));
}

TEST_F(PlotCommand, SaysThatTheConverterIsMissingAndLeavesNothing) {
    const std::string programs = In("bin");
    fs::create_directory(programs);
    const ProgramRun run = RunZelmat(
        {"plot", Sample("layups/sandwich_t300_rohacell.json"), "--block", "stack", "--output", In("a.png")},
        {"PATH=" + programs});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err,
              "rsvg-convert: error[program-missing]: a picture of a stack as PDF or PNG needs the program "
              "rsvg-convert, which cannot be run (No such file or directory, package librsvg2-bin)\n");
    EXPECT_THAT(Files(), ElementsAre("bin"));
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
        RunZelmat({"plot", Sample("steel_s355.json"), "--output", In("a.svg")}, {"PATH=" + folder_.Path()});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, HasSubstr("gnuplot: error[program-missing]: drawing needs the program gnuplot"));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(PlotCommand, MakesNoFolderWhereNothingCanBeDrawn) {
    const ProgramRun run =
        RunZelmat({"plot", Sample("steel_s355.json"), "--output", In("a/b")}, {"PATH=" + folder_.Path()});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(PlotCommand, LeavesNoIntermediateFiles) {
    ASSERT_EQ(
        RunZelmat({"plot", Sample("copper_ofhc.json"), "--output", In("a.svg")}, {"TMPDIR=" + folder_.Path()})
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
