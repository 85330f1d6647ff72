#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/TestFolder.h"

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

ProgramRun RunNotation(const std::string& notation, std::vector<std::string> more = {}) {
    std::vector<std::string> arguments = {"layup", notation, "--material", "T300", "--thickness", "0.125mm"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunZelmat(arguments);
}

TEST(LayupCommand, PrintsWhatTheDocumentHolds) {
    const ProgramRun run = RunNotation("[0/45_2]");

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "[0/45_2], T300\n"
              "\n"
              "Layup-1: 3 layers, 0.375 mm thick\n"
              "stacking sequence: [0/45_2]\n"
              "\n"
              "layers from the bottom up; z from the middle plane, upwards; angles from the x axis to the "
              "fibre, counter-clockwise\n"
              "  layer  material  thickness [mm]  angle [deg]  z bottom [mm]  z top [mm]\n"
              "      1  T300               0.125            0        -0.1875     -0.0625\n"
              "      2  T300               0.125           45        -0.0625      0.0625\n"
              "      3  T300               0.125           45         0.0625      0.1875\n"
              "\n"
              "valid: yes\n"
              "used by a composite section: no\n");
}

TEST(LayupCommand, PrintsACardWithTheConstantsOfItsMaterials) {
    const ProgramRun run = RunZelmat({"layup", Sample("layups/kaw_0_30_m45.json")});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, StartsWith("Unsymmetric [0/30/-45] graphite/epoxy\n"
                                    "Three plies of 5 mm, fully coupled: textbook example with published A, "
                                    "B and D.\n"
                                    "source: A. K. Kaw"));
    EXPECT_THAT(run.out, HasSubstr("Ply materials, for reference: the layup keeps a link to the material\n"
                                   "  graphite/epoxy: E1 = 181000 MPa, E2 = 10300 MPa, nu12 = 0.28, G12 = "
                                   "7170 MPa\n"
                                   "    source: A. K. Kaw"));
}

TEST(LayupCommand, GivesEverySampleBackAsItStandsOnTheCard) {
    const std::map<std::string, std::string> samples = {{"angle_ply_t300_5208.json", "[45/-45]4s"},
                                                        {"cross_ply_t300_5208.json", "[0/90]s"},
                                                        {"kaw_0_30_m45.json", "[0/30/-45]"},
                                                        {"nasa_rp1351_0_45_s.json", "[0/45]s"},
                                                        {"quasi_isotropic_t300_5208.json", "[0/45/-45/90]s"},
                                                        {"sandwich_t300_rohacell.json", "[0/(90/0)2]"}};
    for (const auto& [name, notation] : samples) {
        const std::string path = Sample("layups/" + name);
        const ProgramRun run = RunZelmat({"layup", path, "--json"});
        EXPECT_EQ(run.exitCode, 0) << name << run.err;
        const json told = json::parse(run.out);
        const json card = json::parse(Contents(path));

        EXPECT_EQ(told["layup"]["notation"], notation);
        EXPECT_EQ(told["layup"]["valid"], true) << name;
        EXPECT_THAT(told["findings"], IsEmpty()) << name;
        ASSERT_EQ(told["layup"]["layers"].size(), card["layers"].size()) << name;
        for (std::size_t i = 0; i < card["layers"].size(); ++i) {
            const json& layer = told["layup"]["layers"][i];
            EXPECT_EQ(layer["material"], card["layers"][i]["material"]) << name;
            EXPECT_EQ(layer["thickness"]["value"], card["layers"][i]["thickness"]) << name;
            EXPECT_EQ(layer["angle"]["value"], card["layers"][i]["angle_deg"]) << name;
        }
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Sample("layups")), {}), 6);
}

TEST(LayupCommand, SaysEveryUnitInJson) {
    const ProgramRun run = RunNotation("[0/90]", {"--json", "--section", "composite"});

    EXPECT_EQ(run.exitCode, 0);
    const json told = json::parse(run.out);
    const json& layup = told["layup"];
    EXPECT_EQ(layup["name"], "[0/90], T300");
    EXPECT_EQ(layup["layup"], "Layup-1");
    EXPECT_EQ(layup["one_ply"], true);
    EXPECT_EQ(layup["layers"][1], json::parse(R"({"layer": 2, "material": "T300",
                                                  "thickness": {"value": 0.000125, "unit": "m"},
                                                  "angle": {"value": 90.0, "unit": "deg"}})"));
    EXPECT_EQ(layup["interfaces"], json::parse(R"({"z": [-0.000125, 0.0, 0.000125], "unit": "m"})"));
    EXPECT_EQ(layup["total_thickness"], json::parse(R"({"value": 0.00025, "unit": "m"})"));
    EXPECT_EQ(layup["used"], true);
    EXPECT_EQ(told["drawing"], nullptr);
}

TEST(LayupCommand, TellsWhetherASectionUsesTheLayup) {
    EXPECT_THAT(RunNotation("[0]").out, HasSubstr("used by a composite section: no\n"));
    EXPECT_THAT(RunNotation("[0]", {"--section", "homogeneous"}).out,
                HasSubstr("used by a composite section: no\n"));
    EXPECT_THAT(RunNotation("[0]", {"--section", "composite"}).out,
                HasSubstr("used by a composite section: yes\n"));
    EXPECT_EQ(RunNotation("[0]", {"--section", "solid"}).exitCode, 2);
}

TEST(LayupCommand, SaysWhichLayerLacksItsMaterial) {
    const ProgramRun run = RunZelmat({"layup", "layup_no_material.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err,
              "layup_no_material.json:6: error[invalid-layup]: layer 2 has no material (status 0x80004005, "
              "name one of ply_materials)\n");
    EXPECT_THAT(run.out, HasSubstr("valid: no\n"));
    EXPECT_THAT(run.out,
                HasSubstr("      2  (none)                 2           90             -1           1\n"));
    EXPECT_THAT(run.out, HasSubstr("stacking sequence, angles only: [0/90/0]\n"));
}

TEST(LayupCommand, SaysThatThereAreNoLayers) {
    const ProgramRun run = RunZelmat({"layup", "layup_no_layers.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(
        run.err,
        "layup_no_layers.json:3: error[invalid-layup]: the layup has no layers (status 0x80004005, give "
        "at least one)\n");
    EXPECT_EQ(run.out,
              "No layup\n"
              "\n"
              "Layup-1: 0 layers, 0 mm thick\n"
              "\n"
              "valid: no\n"
              "used by a composite section: no\n");
}

TEST(LayupCommand, RunsTheChecksBeforeItDraws) {
    const std::string picture =
        testing::TempDir() + "zelmat-checked-layup-" + std::to_string(getpid()) + ".svg";
    const CardFile card(
        R"({"name": "L", "ply_materials": {"M": {"E1": 181e9, "E2": 10.3e9, "nu12": 5, "G12": 7e9}},
        "layers": [{"material": "M", "thickness": 0.001, "angle_deg": 0}]})");
    const std::vector<std::string> unstable = {"layup", card.Path(), "--svg", picture};

    const ProgramRun refused = RunZelmat(unstable);
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_THAT(refused.err, HasSubstr("error[ply-constants]: ply material \"M\": "));
    EXPECT_THAT(refused.out, HasSubstr("[0]")) << "it is shown all the same";
    EXPECT_FALSE(std::filesystem::exists(picture));

    std::vector<std::string> anyway = unstable;
    anyway.push_back("--keep-going");
    EXPECT_EQ(RunZelmat(anyway).exitCode, 1);
    EXPECT_TRUE(std::filesystem::remove(picture));
}

TEST(LayupCommand, RefusesACardWithAMistake) {
    const ProgramRun run = RunZelmat({"layup", "layup_bad_angle.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "layup_bad_angle.json:5: error[not-a-number]: layers[0].angle_deg is not a number (got "
              "\"45\", expected a number without quotes)\n");
}

TEST(LayupCommand, AnswersAWrongNotationWithThePositionOfTheMistake) {
    const ProgramRun run = RunNotation("[±45//90]s");

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "notation: error[wrong-notation]: an angle in degrees was expected here (position 6 of "
              "[±45//90]s)\n");
    EXPECT_THAT(RunNotation("0/90").err, HasSubstr("position 1 of 0/90"));
}

TEST(LayupCommand, NeedsMaterialAndThicknessOfANotation) {
    const ProgramRun run = RunZelmat({"layup", "[0]"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err,
              "--material: error[missing-option]: a notation needs the material of its plies\n"
              "--thickness: error[missing-option]: a notation needs the thickness of a ply with its unit "
              "(as in 0.125mm)\n");
}

TEST(LayupCommand, NeedsTheUnitOfAThickness) {
    const ProgramRun run = RunZelmat({"layup", "[0]", "--material", "M", "--thickness", "0.125"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(
        run.err,
        "--thickness: error[wrong-length]: length: '0.125' has no unit; expected m, mm, cm, µm, in, mil "
        "or ft (as in 0.125mm)\n");

    for (const char* thickness : {"0mm", "-1mm", "0.99nm", "10.1m", "125m"}) {
        const std::string option = std::string("--thickness=") + thickness;
        const ProgramRun other = RunZelmat({"layup", "[0]", "--material", "M", option});
        EXPECT_EQ(other.exitCode, 2) << thickness;
        EXPECT_THAT(other.err, HasSubstr("(expected 1 nm to 10 m)")) << thickness;
    }
}

TEST(LayupCommand, ReadsThicknessesInEveryUnitOfLength) {
    for (const char* thickness : {"0.127mm", "127 µm", "127um", "5 mil", "0.005in"}) {
        const std::string option = std::string("--thickness=") + thickness;
        const ProgramRun run = RunZelmat({"layup", "[0]", "--material", "M", option, "--json"});
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(json::parse(run.out)["layup"]["total_thickness"]["value"], 0.000127) << thickness;
    }
}

TEST(LayupCommand, RefusesThicknessesThatAreNoLength) {
    for (const char* thickness : {"inf m", "nan m", "1 kg", "1e-400 mm", "1,5 mm", "5 \x1b[31m"}) {
        const std::string option = std::string("--thickness=") + thickness;
        const ProgramRun run = RunZelmat({"layup", "[0]", "--material", "M", option});
        EXPECT_EQ(run.exitCode, 2) << thickness;
        EXPECT_THAT(run.err, StartsWith("--thickness: error[wrong-length]: ")) << thickness;
    }
}

TEST(LayupCommand, TakesNoMaterialAndNoThicknessForACard) {
    const ProgramRun run = RunZelmat({"layup", "layup_no_material.json", "--material", "M"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err,
              "--material, --thickness: error[not-for-a-card]: a card gives material and thickness of each "
              "layer itself\n");
}

TEST(LayupCommand, ReportsWhatCannotBeRead) {
    const ProgramRun missing = RunZelmat({"layup", "missing.json"});
    EXPECT_EQ(missing.exitCode, 3);
    EXPECT_EQ(missing.err, "missing.json: error[unreadable]: cannot be read: No such file or directory\n");

    const CatalogFolder folder("\"ZELLayupLayerLT\"", "\"Other\"");
    const ProgramRun run = RunNotation("[0]", {"--catalogs", folder.Path(), "--json"});
    EXPECT_EQ(run.exitCode, 3);
    const json told = json::parse(run.out);
    EXPECT_EQ(told["layup"], nullptr);
    EXPECT_EQ(told["findings"][0]["code"], "bad-catalog");
}

TEST(LayupCommand, DrawsTheStackIntoAFile) {
    const std::string path = testing::TempDir() + "layup-" + std::to_string(getpid()) + ".svg";

    const ProgramRun run = RunNotation("[0/90]s", {"--svg", path});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("\ndrawn: " + path + "\n"));
    EXPECT_THAT(Contents(path), StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
    EXPECT_THAT(Contents(path), HasSubstr(">[0/90]s, T300</text>"));
    EXPECT_TRUE(Contents(path).ends_with("</svg>\n"));
    std::filesystem::remove(path);
}

TEST(LayupCommand, DrawsForReadersAlsoWhereItPrintsForPrograms) {
    const std::string path = testing::TempDir() + "layup-" + std::to_string(getpid()) + ".svg";

    const ProgramRun run =
        RunZelmat({"layup", Sample("layups/sandwich_t300_rohacell.json"), "--svg", path, "--json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(Contents(path), HasSubstr("z [mm]"));
    EXPECT_THAT(Contents(path), HasSubstr("3: isotropic, M2, 10 mm")) << "the constants on the card say so";
    std::filesystem::remove(path);
}

TEST(LayupCommand, SaysWhenItCannotDraw) {
    const ProgramRun run = RunNotation("[0]", {"--svg", "/nowhere/layup.svg", "--json"});

    EXPECT_EQ(run.exitCode, 3);
    const json told = json::parse(run.out);
    EXPECT_EQ(told["layup"]["valid"], true);
    EXPECT_EQ(told["drawing"], nullptr);
    EXPECT_EQ(told["findings"][0]["text"], "cannot be written: No such file or directory");
}

TEST(LayupCommand, TakesTenThousandLayers) {
    const ProgramRun run = RunNotation("[0/90]5000", {"--json"});

    EXPECT_EQ(run.exitCode, 0);
    const json told = json::parse(run.out);
    EXPECT_EQ(told["layup"]["layers"].size(), 10000u);
    EXPECT_EQ(told["layup"]["interfaces"]["z"].size(), 10001u);
    EXPECT_EQ(told["layup"]["notation"], "[0/90]5000");
}

}  // namespace
