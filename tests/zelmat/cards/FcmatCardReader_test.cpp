#include "zelmat/cards/FcmatCardReader.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::string OtherProperties(const zelmat::Material& card) {
    for (const auto& block : card.information) {
        if (block.kind->name == "other_properties") return block.kept.front().json;
    }
    return "";
}

TEST(FcmatCardReader, GivesBareNumbersOfTheFlatFormItsOwnUnits) {
    const auto card = CardOf(
        "; a comment\n[FCMat]\nName = Alloy\nFather = Metal\nYoungsModulus = 70000\n"
        "PoissonRatio = 0.3\nThermalExpansionCoefficient = 2.3E-005\nDensity = 2700 kg/m^3\n"
        "ModulusOfShare = 27000\nUltimateStrain = 5\nNameDE = Legierung\nVendor =\n");

    EXPECT_EQ(card.name, "Alloy");
    EXPECT_EQ(card.materialClass, "metal");
    EXPECT_THAT(Rows(card.Find("elastic")->tables[0]), ElementsAre(ElementsAre(70e9, 0.3)));
    EXPECT_EQ(card.Find("elastic")->tables[0].columns[0].written->unit, "MPa");
    EXPECT_THAT(Rows(card.Find("thermal_expansion")->tables[0]), ElementsAre(ElementsAre(2.3e-5)));
    EXPECT_THAT(Rows(card.Find("density")->tables[0]), ElementsAre(ElementsAre(2700.0)));
    EXPECT_EQ(OtherProperties(card),
              R"({"Father":"Metal","ShearModulus":"27000 MPa","UltimateStrain":"5 %"})");
}

TEST(FcmatCardReader, ReadsSections) {
    const auto card = CardOf(
        "[General]\nName = Alloy\nNorm = EN 1\n\n[Mechanical]\nDensity = 2.7 g/cm^3\n"
        "[Thermal]\nThermalConductivity = 170 W/m/K\n");

    EXPECT_THAT(Rows(card.Find("density")->tables[0]), ElementsAre(ElementsAre(2700.0)));
    EXPECT_THAT(Rows(card.Find("conductivity")->tables[0]), ElementsAre(ElementsAre(170.0)));
    EXPECT_EQ(OtherProperties(card), R"({"Norm":"EN 1"})");
}

TEST(FcmatCardReader, ReadsModels) {
    const auto card = CardOf(
        "---\nGeneral:\n  Name: \"Alloy\"\n  License: \"CC0\"\nModels:\n"
        "  Linear Elastic:\n    UUID: \"7b561d1d-fb9b-44f6-9da9-56a4f74d7536\"\n"
        "    YoungsModulus: \"70 GPa\"\n    PoissonRatio: '0.33'\n"
        "    YieldStrength: \"250 MPa\"\n  Thermal:\n"
        "    UUID: \"9959d007-a970-4ea7-bae4-3eb1b8b883c7\"\n"
        "    ThermalExpansionCoefficient: \"23.1 µm/m/K\"\n"
        "    ThermalExpansionReferenceTemperature: \"293 K\"\n  Own:\n    Thing: \"1\"\n");

    EXPECT_THAT(Rows(card.Find("elastic")->tables[0]), ElementsAre(ElementsAre(70e9, 0.33)));
    EXPECT_THAT(Rows(card.Find("thermal_expansion")->tables[0]), ElementsAre(ElementsAre(2.31e-5)));
    EXPECT_EQ(card.Find("thermal_expansion")->values.Get<double>("reference_temperature"), 293.0);
    EXPECT_EQ(OtherProperties(card), R"({"YieldStrength":"250 MPa"})");
    EXPECT_EQ(card.information.back().kept.front().json,
              R"({"General":{"License":"CC0"},"Models":{"Own":{"Thing":"1"}}})");
}

TEST(FcmatCardReader, FindsNumbersWithoutAUnitAndInAWrongOne) {
    EXPECT_THAT(
        FindingsOf(
            "General:\n  Name: x\nModels:\n  A:\n    Density: \"7800\"\n    YoungsModulus: \"1 MPa\"\n"),
        ElementsAre(StartsWith("card.json:5: warning[no-unit]: Density: '7800' has no unit (expected kg/m3"),
                    "card.json:6: warning[incomplete]: YoungsModulus alone makes no elastic (kept, and "
                    "no behavior uses it)"));
    EXPECT_THAT(
        FindingsOf("[General]\nName = x\n[Thermal]\nSpecificHeat = 470 W/m/K\n"),
        ElementsAre(StartsWith("card.json:4: error[wrong-unit]: SpecificHeat: specific heat: the unit "
                               "'W/m/K' measures something else")));
}

TEST(FcmatCardReader, RefusesWhatBlowsUpOrMakesNoSense) {
    const auto finding = [](const std::string& text) { return FindingsOf(text).at(0); };
    EXPECT_THAT(finding("---\na: &x [1]\nb: [*x, *x]\n"),
                HasSubstr("card.json:2: error[broken-yaml]: anchors"));
    EXPECT_THAT(finding("---\na: " + std::string(100, '[') + std::string(100, ']') + "\n"),
                HasSubstr("nested deeper than 50"));
    EXPECT_THAT(finding("---\na: " + std::string(100000, '[') + "\n"), HasSubstr("error[broken-yaml]"));
    EXPECT_THAT(finding("---\na: 1\na: 2\n"), HasSubstr("the key 'a' is given twice"));
    EXPECT_THAT(finding("---\nGeneral: {\n"), HasSubstr("error[broken-yaml]"));
    EXPECT_THAT(finding("---\n- 1\n"), HasSubstr("the card is no map of keys"));
    EXPECT_THAT(finding("; x\nkey = value\n"), HasSubstr("card.json:2: error[broken-line]"));
    EXPECT_THAT(finding("[FCMat]\nDensity = 1 kg/m^3\nDensity = 2 kg/m^3\n"),
                HasSubstr("card.json:3: error[repeated-key]"));
}

}  // namespace
