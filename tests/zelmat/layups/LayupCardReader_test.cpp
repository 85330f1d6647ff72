#include "zelmat/layups/LayupCardReader.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Mistakes(const std::string& text) {
    const CardFile file(text);
    zelmat::Findings findings;
    const auto card = zelmat::LayupCardReader(findings).Read(file.Path());
    std::vector<std::string> lines;
    for (const auto& finding : findings.All()) lines.push_back(file.Shorten(FindingLine(finding)));
    EXPECT_EQ(card.has_value(), lines.empty()) << "a card with a mistake is refused as a whole";
    return lines;
}

/// A card of one layer; its keys start on line 2, the layer stands on line 4.
std::string CardWith(const std::string& more, const std::string& layer) {
    return "{\n\"name\": \"x\",\n\"layers\": [\n" + layer + "],\n\"ply_materials\": {\"M\": {}}" + more +
           "\n}\n";
}

constexpr const char* kLayer = R"({"material": "M", "thickness": 0.001, "angle_deg": 0})";

TEST(LayupCardReader, ReadsEveryKey) {
    const CardFile file(R"({
  "name": "Two plies",
  "description": "For a test.",
  "source": "made up",
  "units": {"length": "m", "angle": "deg", "stress": "Pa", "A": "N/m", "B": "N", "D": "N m", "density": "kg/m3"},
  "convention": "bottom first",
  "ply_materials": {
    "Carbon": {"E1": 1.81e11, "nu12": 0.28, "density": 1600, "source": "a handbook"},
    "Core": {}
  },
  "layers": [
    {"material": "Carbon", "thickness": 0.000125, "angle_deg": 45},
    {"material": "Core", "thickness": 0.01, "angle_deg": -12.5}
  ],
  "total_thickness": 0.010125,
  "published": {"A": []},
  "computed": {"B": []}
})");
    zelmat::Findings findings;

    const auto card = zelmat::LayupCardReader(findings).Read(file.Path());

    ASSERT_TRUE(card);
    EXPECT_THAT(findings.All(), IsEmpty());
    EXPECT_EQ(card->name, "Two plies");
    EXPECT_EQ(card->description, "For a test.");
    EXPECT_THAT(card->sources, ElementsAre("made up"));
    ASSERT_EQ(card->materials.size(), 2u);
    EXPECT_EQ(card->materials[0].name, "Carbon");
    EXPECT_THAT(card->materials[0].constants, ElementsAre(std::pair<std::string, double>("E1", 1.81e11),
                                                          std::pair<std::string, double>("nu12", 0.28),
                                                          std::pair<std::string, double>("density", 1600.0)));
    EXPECT_EQ(card->materials[0].source, "a handbook");
    ASSERT_EQ(card->layers.size(), 2u);
    EXPECT_EQ(card->layersLine, 11);
    EXPECT_EQ(card->layers[0].line, 12);
    EXPECT_EQ(card->layers[0].material, "Carbon");
    EXPECT_EQ(card->layers[0].thickness, 0.000125);
    EXPECT_EQ(card->layers[0].angle, 45.0);
    EXPECT_EQ(card->layers[1].angle, -12.5);
}

TEST(LayupCardReader, LeavesLayersWithoutMaterialAndNoLayersToTheModule) {
    EXPECT_THAT(Mistakes(R"({"name": "x", "layers": []})"), IsEmpty());
    EXPECT_THAT(Mistakes(R"({"name": "x", "layers": [{"thickness": 0.001, "angle_deg": 0}]})"), IsEmpty());
}

TEST(LayupCardReader, ReportsFilesThatAreNoCard) {
    zelmat::Findings findings;
    EXPECT_FALSE(zelmat::LayupCardReader(findings).Read("/nowhere/layup.json"));
    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(FindingLine(findings.All()[0]),
              "/nowhere/layup.json: error[unreadable]: cannot be read: No such file or directory");
    EXPECT_EQ(findings.Exit(), zelmat::EXIT_UNREADABLE);

    const auto broken = Mistakes("{\n\"name\": \"x\",,\n}");
    ASSERT_EQ(broken.size(), 1u);
    EXPECT_THAT(broken[0], testing::StartsWith("card.json:2: error[broken-json]: "));
    EXPECT_THAT(Mistakes("[1]"),
                ElementsAre("card.json:1: error[wrong-type]: the card is not an object in braces (got [1])"));
}

TEST(LayupCardReader, ReportsMissingAndUnknownKeys) {
    EXPECT_THAT(Mistakes("{\n}"),
                ElementsAre("card.json:1: error[missing-key]: the card lacks the key \"name\"",
                            "card.json:1: error[missing-key]: the card lacks the key \"layers\""));
    EXPECT_THAT(Mistakes(CardWith(",\n\"layer\": []", kLayer)),
                ElementsAre("card.json:6: error[unknown-key]: the card has no key \"layer\" (known: name, "
                            "description, source, notes, units, convention, ply_materials, layers, "
                            "total_thickness, published, computed)"));
    EXPECT_THAT(Mistakes(CardWith("", R"({"material": "M", "angle": 0})")),
                ElementsAre("card.json:4: error[unknown-key]: layers[0] has no key \"angle\" (known: "
                            "material, thickness, angle_deg)",
                            "card.json:4: error[missing-key]: layers[0] lacks the key \"thickness\"",
                            "card.json:4: error[missing-key]: layers[0] lacks the key \"angle_deg\""));
}

TEST(LayupCardReader, ReportsUnitsThatAreNotItsOwn) {
    EXPECT_THAT(
        Mistakes(CardWith(",\n\"units\": {\"length\": \"mm\",\n\"colour\": \"red\"}", kLayer)),
        ElementsAre("card.json:6: error[wrong-unit]: length is given in \"mm\" (expected m, convert the "
                    "values)",
                    "card.json:7: error[unknown-unit]: there is no quantity \"colour\" (known: length, "
                    "angle, stress, density, A, B, D)"));
    EXPECT_THAT(Mistakes(CardWith(",\n\"units\": 1", kLayer)),
                ElementsAre("card.json:6: error[wrong-type]: units is not an object in braces (got 1)"));
}

TEST(LayupCardReader, ReportsLayersThatAreNone) {
    EXPECT_THAT(Mistakes("{\"name\": \"x\",\n\"layers\": {}}"),
                ElementsAre("card.json:2: error[wrong-type]: layers is not a list (got {})"));
    EXPECT_THAT(Mistakes(CardWith("", "0")),
                ElementsAre("card.json:4: error[wrong-type]: layers[0] is not an object in braces (got 0)"));
    EXPECT_THAT(Mistakes(CardWith("", R"({"material": 1, "thickness": "1", "angle_deg": null})")),
                ElementsAre("card.json:4: error[wrong-type]: layers[0].material is not a text (got 1)",
                            "card.json:4: error[not-a-number]: layers[0].thickness is not a number (got "
                            "\"1\", expected a number without quotes)",
                            "card.json:4: error[not-a-number]: layers[0].angle_deg is not a number (got "
                            "null, expected a number without quotes)"));
}

TEST(LayupCardReader, ReportsAMaterialThatTheCardDoesNotHave) {
    EXPECT_THAT(
        Mistakes(CardWith("", R"({"material": "Glass", "thickness": 0.001, "angle_deg": 0})")),
        ElementsAre("card.json:4: error[unknown-material]: there is no ply material \"Glass\" (known: M)"));
}

TEST(LayupCardReader, ReportsThicknessesThatAreNone) {
    EXPECT_THAT(Mistakes(CardWith("", R"({"thickness": 0, "angle_deg": 0})")),
                ElementsAre("card.json:4: error[out-of-range]: layers[0].thickness is 0 m (expected 1 nm "
                            "to 10 m)"));
    EXPECT_THAT(Mistakes(CardWith(",\n\"total_thickness\": 1", R"({"thickness": -0.001, "angle_deg": 0})")),
                ElementsAre("card.json:4: error[out-of-range]: layers[0].thickness is -0.001 m (expected "
                            "1 nm to 10 m)"));
    EXPECT_THAT(Mistakes(CardWith("", R"({"thickness": 10.5, "angle_deg": 0})")),
                ElementsAre("card.json:4: error[out-of-range]: layers[0].thickness is 10.5 m (expected 1 nm "
                            "to 10 m)"));
    EXPECT_THAT(Mistakes(CardWith("", R"({"thickness": 9e-10, "angle_deg": 0})")), testing::SizeIs(1));
    EXPECT_THAT(Mistakes(CardWith("", R"({"thickness": 1e-9, "angle_deg": 0})")), IsEmpty());
    EXPECT_THAT(Mistakes(CardWith("", R"({"thickness": 10, "angle_deg": 0})")), IsEmpty());
}

TEST(LayupCardReader, ReportsAnglesBeyondATurn) {
    EXPECT_THAT(Mistakes(CardWith("", R"({"thickness": 0.001, "angle_deg": -360.5})")),
                ElementsAre("card.json:4: error[out-of-range]: layers[0].angle_deg is -360.5 deg (expected "
                            "-360 deg to 360 deg)"));
    EXPECT_THAT(Mistakes(CardWith("", R"({"thickness": 0.001, "angle_deg": 360})")), IsEmpty());
    EXPECT_THAT(Mistakes(CardWith("", R"({"thickness": 0.001, "angle_deg": -360})")), IsEmpty());
}

TEST(LayupCardReader, ReportsATotalThatTheLayersDoNotAddUpTo) {
    EXPECT_THAT(Mistakes(CardWith(",\n\"total_thickness\": 0.002", kLayer)),
                ElementsAre("card.json:6: error[wrong-total]: total_thickness is 0.002 m (the layers add up "
                            "to 0.001 m)"));
    EXPECT_THAT(Mistakes(CardWith(",\n\"total_thickness\": 0.0010000000000001", kLayer)), IsEmpty());
    EXPECT_THAT(Mistakes(CardWith(",\n\"total_thickness\": \"1\"", kLayer)),
                ElementsAre("card.json:6: error[not-a-number]: total_thickness is not a number (got \"1\", "
                            "expected a number without quotes)"));
}

TEST(LayupCardReader, ReportsConstantsThatAreNone) {
    EXPECT_THAT(
        Mistakes("{\"name\": \"x\", \"layers\": [],\n\"ply_materials\": {\"M\":\n{\"E1\": \"big\", "
                 "\"e2\": 1, \"source\": 5}}}"),
        ElementsAre(
            "card.json:3: error[not-a-number]: ply_materials.M.E1 is not a number (got "
            "\"big\", expected a number without quotes)",
            "card.json:3: error[wrong-type]: ply_materials.M.source is not a text (got 5)",
            "card.json:3: error[unknown-key]: ply_materials.M has no key \"e2\" (known: E1, "
            "E2, E3, nu12, nu13, nu23, G12, G13, G23, E, nu, density, alpha, alpha1, alpha2, Xt, Xc, Yt, "
            "Yc, S, source)"));
    EXPECT_THAT(Mistakes("{\"name\": \"x\", \"layers\": [], \"ply_materials\": []}"),
                ElementsAre("card.json:1: error[wrong-type]: ply_materials is not an object in braces (got "
                            "[])"));
    EXPECT_THAT(Mistakes("{\"name\": \"x\", \"layers\": [], \"ply_materials\": {\"M\": 1}}"),
                ElementsAre("card.json:1: error[wrong-type]: ply_materials.M is not an object in braces (got "
                            "1)"));
}

TEST(LayupCardReader, KnowsTheUnitOfEveryConstant) {
    for (const std::string& constant : zelmat::PlyConstants()) {
        EXPECT_NE(zelmat::PlyConstantUnit(constant), "") << constant;
    }
    EXPECT_EQ(zelmat::PlyConstantUnit("E1"), "Pa");
    EXPECT_EQ(zelmat::PlyConstantUnit("nu12"), "-");
    EXPECT_EQ(zelmat::PlyConstantUnit("E9"), "");
}

}  // namespace
