#include <gmock/gmock.h>

#include <filesystem>
#include <set>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/cards/CardFormKind.h"
#include "zelmat/cards/CardJson.h"
#include "zelmat/cards/WriteCard.h"
#include "zelmat/files/ReadText.h"

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

std::vector<std::string> Samples() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Sample(""))) {
        if (entry.path().extension() == ".json") names.push_back(entry.path().filename());
    }
    names.push_back("forms/steel_s235_mpa_degc.json");
    names.push_back("faulty/steel_five_faults.json");
    EXPECT_GT(names.size(), 16u);
    return names;
}

TEST(CardForms, OfEverySampleComeBackFromCsvAsTheyWere) {
    for (const std::string& name : Samples()) {
        zelmat::Findings findings;
        const std::string json = Written("json", zelmat::ReadCards(Sample(name), findings));
        EXPECT_EQ(Written("json", Read(json)), json) << name;
        EXPECT_EQ(Written("json", Read(Written("csv", Read(json)))), json) << name;
    }
}

TEST(CardForms, OfEverySampleComeBackFromFcmatBitForBitExceptWhatIsListed) {
    std::size_t carried = 0;
    for (const std::string& name : Samples()) {
        zelmat::Findings findings;
        const auto card = zelmat::ReadCard(Sample(name), findings);
        ASSERT_TRUE(card) << name;
        zelmat::Findings listed;
        const std::string text = zelmat::FindCardForm("fcmat")->write({*card}, listed);
        std::set<std::string> missing;
        for (const auto& finding : listed.All()) {
            // A unit that the form cannot name becomes the stored one, and the number with it.
            if (finding.code == "unit-not-held") continue;
            EXPECT_EQ(finding.code, "not-held") << zelmat::FindingLine(finding);
            missing.insert(finding.text.substr(finding.text.rfind(' ') + 1));
        }
        const auto back = Read(text);
        ASSERT_EQ(back.size(), 1u) << name;
        EXPECT_EQ(back.front().name, card->name);
        EXPECT_EQ(back.front().description, card->description);
        for (const zelmat::Block& block : card->blocks) {
            const zelmat::Block* found = back.front().Find(block.kind->name);
            EXPECT_NE(found != nullptr, missing.count(block.kind->name) == 1)
                << name << ": " << block.kind->name;
            if (!found) continue;
            ++carried;
            EXPECT_EQ(Rows(found->tables.front()), Rows(block.tables.front())) << name;
            EXPECT_EQ(found->values.Get<double>("reference_temperature"),
                      block.values.Get<double>("reference_temperature"))
                << name;
        }
        // And once more: nothing changes on the way.
        zelmat::Findings again;
        EXPECT_EQ(zelmat::FindCardForm("fcmat")->write(back, again), text) << name;
    }
    EXPECT_GT(carried, 20u);
}

/// What a document would hold, block by block.
void ExpectTheSameNumbers(const char* one, const char* other) {
    zelmat::Findings findings;
    const auto a = zelmat::ReadCard(Sample(one), findings);
    const auto b = zelmat::ReadCard(Sample(other), findings);
    ASSERT_THAT(findings.All(), IsEmpty());
    ASSERT_EQ(a->blocks.size(), b->blocks.size());
    for (std::size_t block = 0; block < a->blocks.size(); ++block) {
        const auto& tables = a->blocks[block].tables;
        for (std::size_t table = 0; table < tables.size(); ++table) {
            EXPECT_EQ(Rows(tables[table]), Rows(b->blocks[block].tables[table]))
                << a->blocks[block].kind->name;
        }
        EXPECT_EQ(a->blocks[block].values.Get<double>("reference_temperature"),
                  b->blocks[block].values.Get<double>("reference_temperature"));
    }
}

TEST(CardForms, OfOtherUnitsGiveTheVeryNumbersOfTheSameCardInSi) {
    ExpectTheSameNumbers("steel_s235_kinematic.json", "forms/steel_s235_mpa_degc.json");
    ExpectTheSameNumbers("aluminium_6061_t6.json", "forms/aluminium_6061_t6.csv");
}

TEST(CardForms, OfACsvSampleComeBackFromJsonByteForByte) {
    zelmat::Findings findings;
    const auto text = zelmat::ReadText(Sample("forms/aluminium_6061_t6.csv"), findings);
    ASSERT_TRUE(text);
    EXPECT_EQ(Written("csv", Read(Written("json", Read(*text)))), *text);
}

TEST(CardForms, OfTheFcmatSampleHoldWhatItsPropertiesSay) {
    zelmat::Findings findings;
    const auto card = zelmat::ReadCard(Sample("forms/steel_s235.FCMat"), findings);
    ASSERT_TRUE(card);
    EXPECT_THAT(findings.All(), IsEmpty());
    EXPECT_EQ(card->name, "Structural steel S235");
    EXPECT_EQ(card->materialClass, "metal");
    EXPECT_THAT(Rows(card->Find("elastic")->tables.front()), ElementsAre(ElementsAre(210e9, 0.3)));
    EXPECT_THAT(Rows(card->Find("density")->tables.front()), ElementsAre(ElementsAre(7850.0)));
    EXPECT_THAT(Rows(card->Find("thermal_expansion")->tables.front()), ElementsAre(ElementsAre(12e-6)));
    EXPECT_EQ(card->Find("thermal_expansion")->values.Get<double>("reference_temperature"), 293.15);
}

TEST(CardForms, AreToldByTheFirstLineThatSaysSomething) {
    using enum zelmat::CardFormKind;
    for (const char* yaml :
         {"General:\n", "Models:\n  Density:\n", "# x\n\nGeneral: # x\n", "General: {Name: A}\n",
          "\"General\":\n", "'Models': {}\n", "UUID: a, b\n", "--- # x\n", "\xef\xbb\xbfGeneral:\r\n"}) {
        EXPECT_EQ(zelmat::CardFormOf(yaml), FCMAT_YAML) << yaml;
    }
    EXPECT_EQ(zelmat::CardFormOf("{\"name\": \"General:\"}"), JSON);
    EXPECT_EQ(zelmat::CardFormOf("\"General: x\""), JSON);
    EXPECT_EQ(zelmat::CardFormOf("density [kg/m3]\n1\n"), CSV);
    EXPECT_EQ(zelmat::CardFormOf("name = General: x\n"), CSV);
    EXPECT_EQ(zelmat::CardFormOf("E [GPa]; nu\n"), CSV);
    EXPECT_EQ(zelmat::CardFormOf("; x\n[FCMat]\n"), FCMAT_INI);
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

TEST(CardForms, FcmatListsPartsOfItsOwnThatAreNoMaps) {
    const auto notHeld = [](const std::string& kept) {
        zelmat::Findings findings;
        const auto cards = Read(R"({"name": "a", "fcmat": )" + kept + "}");
        const std::string text = zelmat::FindCardForm("fcmat")->write(cards, findings);
        EXPECT_THAT(text, HasSubstr("General:\n  UUID: "));
        EXPECT_THAT(text, HasSubstr("  Name: \"a\"\n"));
        std::string lines;
        for (const auto& finding : findings.All()) lines += finding.text + '\n';
        return lines;
    };
    EXPECT_EQ(notHeld("{}"), "");
    EXPECT_EQ(notHeld("3"), "the form fcmat has no place for fcmat\n");
    EXPECT_EQ(notHeld(R"({"General": "x"})"), "the form fcmat has no place for fcmat.General\n");
    EXPECT_EQ(notHeld(R"({"Models": [1]})"), "the form fcmat has no place for fcmat.Models\n");
}

}  // namespace
