#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;

/// A run that ends with this code and finds nothing; its standard output.
class DiffCommand : public DocumentFolder {
protected:
    std::string Diff(int exitCode, const std::string& a, const std::string& b,
                     const std::vector<std::string>& further = {}) {
        std::vector<std::string> arguments = {"diff", a, b};
        arguments.insert(arguments.end(), further.begin(), further.end());
        const ProgramRun run = RunZelmat(arguments);
        EXPECT_EQ(run.exitCode, exitCode);
        EXPECT_EQ(run.err, "");
        return run.out;
    }

    std::string Steel(const std::string& name, const std::string& density) {
        return File(name, R"({"name": "Steel", "density": {"temperature_dependent": false,
            "columns": ["density [)" +
                              density.substr(density.find(' ') + 1) + "]\"], \"rows\": [[" +
                              density.substr(0, density.find(' ')) + "]]}}");
    }
};

TEST_F(DiffCommand, ReadsStandardInputOnce) {
    EXPECT_EQ(RunZelmat({"diff", "-", "-"}).err,
              "zelmat diff: error[usage]: standard input is read once, and can be one of the two alone\n");
}

TEST_F(DiffCommand, SaysNothingOfTheSameMaterial) {
    EXPECT_EQ(Diff(0, Steel("a.json", "7.85 g/cm^3"), Steel("b.json", "7850 kg/m3")), "");
    const std::string document = DocumentOf({"natural_rubber_treloar.json"});
    EXPECT_EQ(Diff(0, document, Sample("natural_rubber_treloar.json")), "");
}

TEST_F(DiffCommand, TellsEachValueWithItsUnit) {
    EXPECT_EQ(Diff(1, Steel("a.json", "7850 kg/m3"), Steel("b.json", "7800 kg/m3"), {"--units", "si"}),
              "Steel\n  density.density row 1: 7850 kg/m3 -> 7800 kg/m3\n");
    EXPECT_EQ(
        Diff(1, Steel("a.json", "7850 kg/m3"), Steel("b.json", "7800 kg/m3"), {"--units", "density=g/cm^3"}),
        "Steel\n  density.density row 1: 7.85 g/cm^3 -> 7.8 g/cm^3\n");
}

TEST_F(DiffCommand, ComparesTheStepsOfADocument) {
    const std::string document = NewDocument();
    Run({"add", document, Steel("a.json", "7850 kg/m3")});
    Run({"set", document, "Steel", "density=7800 kg/m3"});
    Run({"set", document, "Steel", "class=metal"});

    EXPECT_EQ(Diff(1, document + "#1", document + "#2", {"--units", "si"}),
              "Steel\n  density.density row 1: 7850 kg/m3 -> 7800 kg/m3\n");
    EXPECT_EQ(Diff(1, document + "#2", document), "Steel\n  class: - -> metal\n");
    EXPECT_EQ(Diff(0, document + "#3", document), "");
    EXPECT_THAT(Diff(1, document + "#0", document + "#1"), HasSubstr("Steel: only in "));
    EXPECT_THAT(Refusal(2, {"diff", document + "#9", document}),
                HasSubstr("error[no-such-step]: the document has no step 9 (has: 0, 1, 2, 3)"));
}

TEST_F(DiffCommand, ComparesMaterialsByNameAndTellsThoseOfOneSide) {
    const std::string a = DocumentOf({"copper_ofhc.json", "foam_rohacell71.json"}, "a.zeldoc");
    const std::string b = DocumentOf({"foam_rohacell71.json", "steel_4340.json"}, "b.zeldoc");

    const std::string out = Diff(1, a, b);
    EXPECT_EQ(out, "OFHC copper: only in " + a + "\nAISI 4340 steel: only in " + b + "\n");
}

TEST_F(DiffCommand, TellsRowsAndBlocksThatOnlyOneSideHas) {
    const std::string a = File("a.json", R"({"name": "A", "conductivity": {"temperature_dependent": true,
        "columns": ["conductivity", "T"], "rows": [[45, 300], [43, 400]]}})");
    const std::string b = File("b.json", R"({"name": "A", "conductivity": {"temperature_dependent": true,
        "columns": ["conductivity", "T"], "rows": [[45, 300]]}, "density": {"temperature_dependent": false,
        "columns": ["density"], "rows": [[1]]}})");

    EXPECT_EQ(Diff(1, a, b, {"--units", "si"}), "A\n  density: - -> there\n  conductivity.rows: 2 -> 1\n");
}

TEST_F(DiffCommand, TellsItsDifferencesAsJson) {
    const json out =
        json::parse(Diff(1, Steel("a.json", "7850 kg/m3"), Steel("b.json", "7800 kg/m3"), {"--json"}));

    EXPECT_EQ(out["same"], false);
    EXPECT_EQ(out["materials"][0]["differences"][0]["key"], "density.density");
    EXPECT_EQ(out["materials"][0]["differences"][0]["a"],
              json::parse(R"({"value": "7850", "unit": "kg/m3"})"));
}

TEST_F(DiffCommand, ComparesLayupCardsWithEachOtherAndWithTheLayupsOfADocument) {
    const auto card = [&](const std::string& name, const std::string& angle) {
        return File(name, R"({"name": "Skin", "ply_materials": {"P": {"E1": 181e9}}, "layers": [
            {"material": "P", "thickness": 0.001, "angle_deg": 0},
            {"material": "P", "thickness": 0.001, "angle_deg": )" +
                              angle + "}]}");
    };
    const std::string one = card("one.json", "90");
    const std::string other = card("other.json", "45");
    const std::string document = NewDocument();
    Run({"add", document, File("p.json", R"({"name": "P"})"), Steel("s.json", "7850 kg/m3")});
    Run({"layup", document, "add", one});

    EXPECT_EQ(Diff(0, one, one), "");
    EXPECT_EQ(Diff(1, one, other), "layup Skin\n  layers.angle_deg row 2: 90 deg -> 45 deg\n");
    EXPECT_EQ(Diff(0, one, document), "");
    EXPECT_EQ(Diff(1, document, other), "layup Skin\n  layers.angle_deg row 2: 90 deg -> 45 deg\n");
    EXPECT_EQ(json::parse(Diff(1, one, other, {"--json"}))["layups"][0]["differences"][0]["row"], 2);
    EXPECT_THAT(Refusal(2, {"diff", one, Steel("s.json", "7850 kg/m3")}), HasSubstr("error[not-comparable]"));
}

TEST_F(DiffCommand, ComparesAMaterialCardWithTheMaterialsOfADocumentAlone) {
    const std::string steel = Steel("s.json", "7850 kg/m3");
    const std::string document = NewDocument();
    Run({"add", document, steel});
    Run({"layup", document, "add", "Plate", "[0]", "--material", "Steel", "--thickness", "1mm"});

    EXPECT_EQ(Diff(0, steel, document), "");
}

TEST_F(DiffCommand, TellsThatTheOnlyMaterialHasAnotherName) {
    const std::string document = NewDocument();
    Run({"add", document, Steel("s.json", "7850 kg/m3")});
    Run({"rename", document, "Steel", "Iron"});

    EXPECT_EQ(Diff(1, document + "#1", document), "Steel\n  name: Steel -> Iron\n");
}

TEST_F(DiffCommand, EndsWithThreeWhenOneSideCannotBeRead) {
    EXPECT_THAT(Refusal(3, {"diff", Path("none"), Steel("a.json", "1 kg/m3")}), HasSubstr("none: error"));
}

class FindCommand : public DocumentFolder {
protected:
    std::string Find(const std::string& condition) const { return Run({"find", document_, condition}); }

    const std::string document_ = DocumentOf({"steel_s355.json", "foam_rohacell71.json", "copper_ofhc.json"});
};

TEST_F(FindCommand, FindsThoseThatKeepEveryBound) {
    EXPECT_EQ(Find("density<3000kg/m3"), "#2  PMI foam Rohacell 71\nfound: 1\n");
    EXPECT_EQ(Find("density > 3 g/cm^3 and elastic.youngs_modulus@20degC >= 200GPa"),
              "#1  Structural steel S355\nfound: 1\n");
}

TEST_F(FindCommand, WantsEveryRowWithoutATemperature) {
    EXPECT_EQ(Find("elastic.youngs_modulus>200GPa"), "found: 0\n");  // the steel is soft when it is hot
    EXPECT_EQ(Find("elastic.youngs_modulus>1GPa"), "#1  Structural steel S355\n#3  OFHC copper\nfound: 2\n");
}

TEST_F(FindCommand, FindsNoneBeyondTheTemperaturesOfATable) {
    EXPECT_EQ(Find("elastic.youngs_modulus@5000degC>1Pa and conductivity>0W/m/K"),
              "#3  OFHC copper\nfound: 1\n");
}

TEST_F(FindCommand, DoesNotFindWhatHasNoSuchValue) {
    EXPECT_EQ(Find("thermal_expansion>0 1/K"), "#1  Structural steel S355\nfound: 1\n");
    EXPECT_EQ(Find("hyperelastic.C10>0Pa"), "found: 0\n");
}

TEST_F(FindCommand, RefusesConditionsThatMeanNothing) {
    for (const char* wrong : {"density", "density<", "density<3000", "density<3000K", "desity<1kg/m3",
                              "density<1kg/m3 and", "elastic.youngs_modulus@20>1GPa", "", "<1"}) {
        EXPECT_THAT(Refusal(2, {"find", document_, wrong}), HasSubstr("error[wrong-condition]")) << wrong;
    }
}

}  // namespace
