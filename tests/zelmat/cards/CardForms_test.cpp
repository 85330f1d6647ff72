#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/cards/CardJson.h"
#include "zelmat/cards/WriteCard.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kWritten =
    R"({"name": "a \"quoted\" steel, # 1", "class": "metal", "source": ["x", " y "],
    "notes": "line\nbreak", "illustrative": true, "heat_generation": false,
    "elastic": {"temperature_dependent": true, "columns": ["E [GPa]", "nu", "T [degC]"],
                "rows": [[210.1, 0.1, 20.1], [1e-3, -0.0, 300]], "source": "12"},
    "plastic": {"temperature_dependent": false, "hardening": "kinematic",
                "columns": ["yield_stress [ksi]", "plastic_strain [%]", "temperature [degF]"],
                "rows": [[36.3, 0, 68]]},
    "density": {"temperature_dependent": false, "columns": ["density [g/cm^3]"], "rows": [[7.85]]},
    "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion [µm/m/K]"],
                "rows": [[11.7]], "reference_temperature": "20.1 degC", "kind": "mean"},
    "user_material": {"type": "THERMAL", "constants": [1, 2.5e-9, 3]},
    "hyperelastic": [
        {"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10 [MPa]"], "rows": [[0.2]]},
        {"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "variant": "true",
         "columns": ["C10", "D1 [1/MPa]"], "rows": [[1, 0.01]]}],
    "gasket": {"anchors": {"seal": [1, null]}, "yield_onset": {"method": "closure", "closure_value": "0.1 mm"},
               "loading": {"temperature_dependent": false, "columns": ["pressure [bar]", "closure [mm]", "temperature"],
                           "rows": [[0, 0, 293.15]]}},
    "strength": [1, 2], "other_properties": {"YieldStrength": "355 MPa", "12": "12"}})";

std::vector<zelmat::Material> Read(const std::string& text) {
    const CardFile file(text);
    zelmat::Findings findings;
    auto cards = zelmat::ReadCards(file.Path(), findings);
    for (const auto& finding : findings.All()) ADD_FAILURE() << zelmat::FindingLine(finding);
    return cards;
}

std::string Written(const std::string& form, const std::vector<zelmat::Material>& cards) {
    zelmat::Findings findings;
    std::string text = zelmat::FindCardForm(form)->write(cards, findings);
    EXPECT_THAT(findings.All(), IsEmpty());
    return text;
}

TEST(CardForms, CarryNumbersAndUnitsAsWrittenFromJsonToCsvAndBack) {
    const std::string json = Written("json", Read(kWritten));
    EXPECT_THAT(json,
                HasSubstr(R"("columns": ["youngs_modulus [GPa]", "poissons_ratio", "temperature [degC]"])"));
    EXPECT_THAT(json, HasSubstr("[210.1, 0.1, 20.1],\n      [0.001, -0.0, 300]"));
    EXPECT_THAT(json, HasSubstr(R"("reference_temperature": "20.1 degC")"));

    const std::string csv = Written("csv", Read(json));
    EXPECT_THAT(csv, HasSubstr("youngs_modulus [GPa],poissons_ratio,temperature [degC]\n210.1,0.1,20.1\n"));
    EXPECT_EQ(Written("json", Read(csv)), json);
}

TEST(CardForms, HoldSeveralMaterialsInOneText) {
    const auto two = Read(R"([{"name": "a", "density": {"temperature_dependent": false,
        "columns": ["density"], "rows": [[1]]}}, {"name": "b"}])");
    const std::string json = Written("json", two);

    EXPECT_EQ(Written("json", Read(Written("csv", two))), json);
    EXPECT_EQ(Read(json).at(1).name, "b");
}

TEST(CardForms, OfEverySampleComeBackFromCsvAsTheyWere) {
    for (const char* name : {"steel_s355.json", "copper_ofhc.json", "gasket_fibre_illustrative.json",
                             "natural_rubber_treloar.json", "user_routine_illustrative.json"}) {
        zelmat::Findings findings;
        const std::string json = Written("json", zelmat::ReadCards(Sample(name), findings));
        EXPECT_EQ(Written("json", Read(Written("csv", Read(json)))), json) << name;
    }
}

TEST(CardForms, FcmatHoldsOneNumberAPropertyAndListsTheRest) {
    zelmat::Findings findings;
    const auto card = Read(kWritten);
    const std::string text = zelmat::FindCardForm("fcmat")->write(card, findings);
    std::vector<std::string> lines;
    for (const auto& finding : findings.All()) lines.push_back(finding.text);

    EXPECT_THAT(
        lines,
        ElementsAre(
            "the form fcmat has no place for more than one source", "the form fcmat has no place for notes",
            "the form fcmat has no place for illustrative", "the form fcmat has no place for heat_generation",
            "the form fcmat has no place for elastic", "the form fcmat has no place for plastic",
            "the form fcmat cannot name the unit degC",
            "the form fcmat has no place for thermal_expansion.kind",
            "the form fcmat has no place for user_material", "the form fcmat has no place for gasket",
            "the form fcmat has no place for hyperelastic", "the form fcmat has no place for hyperelastic",
            "the form fcmat has no place for strength", "the form fcmat has no place for other_properties.12",
            "the form fcmat has no place for class"));
    EXPECT_THAT(text, HasSubstr("    Density: \"7.85 g/cm^3\"\n"));
    EXPECT_THAT(text, HasSubstr("    YieldStrength: \"355 MPa\"\n"));
    EXPECT_THAT(text, HasSubstr("    ThermalExpansionCoefficient: \"11.7 µm/m/K\"\n"));
    EXPECT_THAT(text, HasSubstr("    ThermalExpansionReferenceTemperature: \"293.25 K\"\n"));
}

}  // namespace
