#include "zelmat/materials/CardExtras.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "platform/document/KORTextDocument.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/cards/CardJson.h"
#include "zelmat/materials/DocumentMaterials.h"
#include "zelmat/materials/HostPlatform.h"
#include "zelmat/materials/MaterialWriter.h"
#include "zelmat/materials/NewMaterial.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using zelmat::Block;
using zelmat::Findings;
using zelmat::HostPlatform;
using zelmat::Material;

/// A document that was made of cards, written as a text and read from there by another platform.
class CardsInADocument {
public:
    explicit CardsInADocument(const std::vector<Material>& cards) {
        EXPECT_TRUE(host_.OpenCatalog(findings_));
        for (const Material& card : cards) {
            const Block* fit = card.fits.empty() ? nullptr : &card.fits.front();
            EXPECT_TRUE(zelmat::AddMaterial(host_.Document(), card, fit, findings_));
        }
        EXPECT_FALSE(findings_.HasErrors());
    }

    std::string Text() {
        KORFileError error;
        const auto text = KORTextDocument(host_.Document()).Write(error);
        EXPECT_TRUE(text) << error.Text();
        return text.value_or("");
    }

    std::vector<Material> ReadHere() { return Read(host_.Document()); }

    KORMemoryDocument& Document() { return host_.Document(); }

    static std::vector<Material> Read(KORMemoryDocument& document) {
        Findings findings;
        std::vector<Material> materials;
        for (const auto& material : zelmat::MaterialsOf(document)) {
            materials.push_back(zelmat::ReadDocumentMaterial(material, "a document", findings));
        }
        for (const auto& finding : findings.All()) ADD_FAILURE() << FindingLine(finding);
        return materials;
    }

private:
    HostPlatform host_{CatalogFolderOfTheModule()};
    Findings findings_;
};

/// The same from the document's text, on a platform of its own.
std::vector<Material> ReadText(const std::string& text) {
    HostPlatform host(CatalogFolderOfTheModule());
    Findings findings;
    EXPECT_TRUE(host.OpenCatalog(findings));
    KORFileError error;
    EXPECT_TRUE(KORTextDocument(host.Document()).ReadText(text, "text", error)) << error.Text();
    return CardsInADocument::Read(host.Document());
}

/// Also of cards that the reader warns of.
Material ReadSloppyCard(const std::string& text) {
    Findings findings;
    auto cards = zelmat::ReadCardText(text, "card.json", findings);
    EXPECT_EQ(cards.size(), 1u) << (findings.All().empty() ? "" : FindingLine(findings.All().front()));
    return cards.empty() ? Material() : cards.front();
}

std::string Card(const Material& material) {
    return zelmat::JsonCardText({material});
}

void ExpectToComeBack(const Material& card) {
    CardsInADocument document({card});
    const std::string text = document.Text();
    ASSERT_THAT(document.ReadHere(), SizeIs(1));
    EXPECT_EQ(Card(document.ReadHere().front()), Card(card));
    ASSERT_THAT(ReadText(text), SizeIs(1));
    EXPECT_EQ(Card(ReadText(text).front()), Card(card));
}

std::vector<std::string> SampleCards() {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::directory_iterator(Sample(""))) {
        if (entry.path().extension() == ".json") paths.push_back(entry.path().filename());
    }
    return paths;
}

class SampleCardsInADocument : public testing::TestWithParam<std::string> {};

TEST_P(SampleCardsInADocument, ComeBackAsTheyWere) {
    Findings findings;
    const auto card = zelmat::ReadCard(Sample(GetParam()), findings);
    ASSERT_TRUE(card);
    ExpectToComeBack(*card);
}

INSTANTIATE_TEST_SUITE_P(All, SampleCardsInADocument, testing::ValuesIn(SampleCards()),
                         [](const auto& name) { return name.param.substr(0, name.param.find('.')); });

TEST(CardExtras, KeepNumbersAndUnitsAsWritten) {
    ExpectToComeBack(CardOf(R"({"name": "Steel", "heat_generation": false, "class": "metal",
        "elastic": {"temperature_dependent": true, "columns": ["E [GPa]", "nu", "T [degC]"],
                    "rows": [[210.1, 0.1, 20.1], [1e-3, -0.0, 300]], "source": "a handbook"},
        "density": {"temperature_dependent": false, "columns": ["density [g/cm^3]"], "rows": [[7.85]]},
        "conductivity": {"temperature_dependent": false, "columns": ["conductivity [W/m/K]"], "rows": [[40]]},
        "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion [µm/m/K]"],
                    "rows": [[11.7]], "reference_temperature": "20.1 degC", "kind": "mean"}})"));
}

TEST(CardExtras, KeepACurveInTheMeaningInWhichItWasMeasured) {
    ExpectToComeBack(CardOf(R"({"name": "Steel",
        "elastic": {"temperature_dependent": false, "columns": ["E [GPa]", "nu"], "rows": [[200, 0.3]]},
        "plastic": {"temperature_dependent": false, "hardening": "isotropic", "stress": "engineering",
                    "strain": "total", "columns": ["yield_stress [MPa]", "plastic_strain [%]", "temperature"],
                    "rows": [[400, 0.2, 293.15], [500, 5, 293.15]], "source": "a test"}})"));
}

TEST(CardExtras, KeepAnotherConventionOfOgden) {
    ExpectToComeBack(CardOf(R"({"name": "Rubber", "hyperelastic": [
        {"model": "OGDEN", "order": 1, "ogden_convention": "mu/alpha", "variant": "first", "status": "published",
         "temperature_dependent": false, "columns": ["mu_1 [MPa]", "alpha_1"], "rows": [[0.63, 1.3]]}]})"));
}

TEST(CardExtras, KeepTheFitsThatAreNotStored) {
    ExpectToComeBack(CardOf(R"({"name": "Rubber", "hyperelastic": [
        {"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10 [MPa]"],
         "rows": [[0.2]], "rms_relative_deviation": 0.1, "source": "a"},
        {"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "variant": "true",
         "columns": ["C10 [MPa]", "D1 [1/MPa]"], "rows": [[1, 0.01]], "source": "b"},
        {"model": "YEOH", "order": 3, "temperature_dependent": true, "columns": ["C10", "C20", "C30", "T [degC]"],
         "rows": [[1e5, 2, 3, 20]]}]})"));
}

TEST(CardExtras, KeepWhatTheProgramDoesNotKnow) {
    ExpectToComeBack(
        ReadSloppyCard(R"({"name": "Steel", "colour": {"red": 1, "nested": [null, 1.50, "x\u0000y"]},
        "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[7850]],
                    "batch": "A-1", "lab": ["x", 1e300]},
        "strength": {"tensile": {"value": 510, "unit": "MPa"}},
        "other_properties": {"x": [1, 2]},
        "gasket": {"anchors": {"seal": [1, null]}, "initial_thickness": "1.5 mm",
                   "yield_onset": {"method": "closure", "closure_value": "0.1 mm", "why": "so"},
                   "loading": {"temperature_dependent": false,
                               "columns": ["pressure [MPa]", "closure [mm]", "temperature"],
                               "rows": [[0, 0, 293.15], [10, 0.1, 293.15], [20, 0.15, 293.15]]}}})"));
}

TEST(CardExtras, KeepTextsOfAnyKind) {
    ExpectToComeBack(
        ReadSloppyCard(R"({"name": "a \"quoted\" steel, # 1", "description": "line\nbreak é \u0000 end",
        "source": ["x", " y ", ""], "notes": "one", "illustrative": true})"));
}

TEST(CardExtras, KeepTestDataInItsUnits) {
    ExpectToComeBack(CardOf(R"({"name": "Rubber", "test_data": {"note": "dry", "uniaxial":
        {"columns": ["stretch", "nominal_stress [MPa]"], "rows": [[1, 0], [2, 0.4]], "source": "lab"}}})"));
}

TEST(CardExtras, LeaveOutWhatTheCardLeftOut) {
    const Material card = CardOf(R"({"name": "A", "thermal_expansion": {"temperature_dependent": false,
        "columns": ["thermal_expansion"], "rows": [[1e-5]]}})");
    CardsInADocument document({card});
    const Material read = document.ReadHere().front();

    EXPECT_EQ(read.heatGeneration, std::nullopt);
    EXPECT_EQ(read.Find("thermal_expansion")->values.Find("reference_temperature"), nullptr);
}

/// A document of one card, whose blocks somebody changes through the module.
struct Changed {
    explicit Changed(const std::string& card) : document({CardOf(card)}) {}

    Material After(const std::string& card) {
        const Material change = CardOf(card);
        std::vector<const Block*> blocks;
        for (const Block& block : change.blocks) blocks.push_back(&block);
        for (const Block& block : change.fits) blocks.push_back(&block);
        Findings findings;
        const auto materials = zelmat::MaterialsOf(document.Document());
        zelmat::WriteBlocks(materials.front().feature.Get(), change, blocks, findings);
        EXPECT_FALSE(findings.HasErrors());
        return document.ReadHere().front();
    }

    CardsInADocument document;
};

TEST(CardExtras, AreNotTakenForNumbersThatWereChangedSince) {
    Changed changed(
        R"({"name": "A", "elastic": {"temperature_dependent": false, "columns": ["E [GPa]", "nu [%]"],
        "rows": [[210, 30]], "source": "a handbook"}})");
    const Material read = changed.After(R"({"name": "A", "elastic": {"temperature_dependent": false,
        "columns": ["E", "nu"], "rows": [[205e9, 0.3]]}})");

    const zelmat::Table& table = read.Find("elastic")->tables.front();
    EXPECT_FALSE(table.columns[0].written);
    EXPECT_EQ(table.columns[0].values, std::vector<double>{205e9});
    EXPECT_EQ(table.columns[1].written->numbers, std::vector<double>{30.0});  // this one is as it was
    EXPECT_EQ(table.source, "a handbook");
}

TEST(CardExtras, AreNotTakenForACurveThatMeansAnotherOneByNow) {
    const std::string plastic = R"("plastic": {"temperature_dependent": false, "hardening": "isotropic",
        "stress": "engineering", "strain": "total", "columns": ["yield_stress [MPa]", "plastic_strain", "T"],
        "rows": [[400, 0.002, 293.15], [500, 0.05, 293.15]], "source": "a test"}})";
    const auto elastic = [](const char* modulus) {
        return std::string(
                   R"({"name": "A", "elastic": {"temperature_dependent": false, "columns": ["E [GPa]", "nu"],
            "rows": [[)") +
               modulus + ", 0.3]]}";
    };
    Changed changed(elastic("200") + ", " + plastic);
    const Material read = changed.After(elastic("190") + "}");

    const Block& block = *read.Find("plastic");
    EXPECT_EQ(block.values.Find("stress"), nullptr);
    EXPECT_EQ(block.values.Find("strain"), nullptr);
    EXPECT_EQ(block.tables.front().columns[1].values[0], 0.0);  // plastic strain, as the document holds it
    EXPECT_EQ(block.tables.front().source, "a test");
}

TEST(CardExtras, TellAValueThatWasLeftOutAndIsChangedSince) {
    const std::string open = R"({"name": "A", "thermal_expansion": {"temperature_dependent": false,
        "columns": ["thermal_expansion"], "rows": [[1e-5]])";
    Changed changed(open + "}}");
    const Material read = changed.After(open + R"(, "reference_temperature": 300}})");

    EXPECT_EQ(read.Find("thermal_expansion")->values.Get<double>("reference_temperature"), 300.0);
}

TEST(CardExtras, TakeThePlaceOfThoseBefore) {
    CardsInADocument document({CardOf(R"({"name": "A", "description": "first", "test_data": {"uniaxial":
        {"columns": ["stretch", "nominal_stress"], "rows": [[1, 0]]}}})")});
    const std::size_t before = document.Document().FeatureCount();
    const auto material = zelmat::MaterialsOf(document.Document()).front();
    const Material second = CardOf(R"({"name": "A", "description": "second"})");
    ASSERT_TRUE(zelmat::WriteCardExtras(document.Document(), material.feature.Get(), second, nullptr, {}));

    EXPECT_EQ(document.ReadHere().front().description, "second");
    EXPECT_THAT(document.ReadHere().front().information, IsEmpty());
    EXPECT_EQ(document.Document().FeatureCount(), before - 4);  // block, table and its two columns
}

TEST(CardExtras, HoldNoNumberThatTheModuleHolds) {
    CardsInADocument document({CardOf(R"({"name": "A", "elastic": {"temperature_dependent": false,
        "columns": ["E", "nu"], "rows": [[123456789, 0.3]]}})")});

    const std::string text = document.Text();
    EXPECT_EQ(text.find("123456789"), text.rfind("123456789"));
}

TEST(CardExtras, OfSomeOtherProgramAreLeftAloneWhereTheyMeanNothing) {
    CardsInADocument document({CardOf(R"({"name": "A", "description": "still there", "notes": "n",
        "test_data": {"uniaxial": {"columns": ["stretch", "nominal_stress"], "rows": [[1, 0]]}},
        "hyperelastic": [{"model": "NEO_HOOKE", "order": 1, "temperature_dependent": false, "columns": ["C10"],
                          "rows": [[2e5]], "status": "published"}]})")});
    std::string text = document.Text();
    const auto replace = [&](const std::string& from, const std::string& to) {
        ASSERT_THAT(text, HasSubstr(from));
        text.replace(text.find(from), from.size(), to);
    };
    replace("\"nominal_stress\"", "\"force\"");
    replace(R"([\"n\"])", "no list");
    replace(R"({\"status\":\"published\"})", R"({\"status\":1})");
    const auto materials = ReadText(text);

    ASSERT_THAT(materials, SizeIs(1));
    EXPECT_EQ(materials[0].description, "still there");
    EXPECT_THAT(materials[0].notes, IsEmpty());
    EXPECT_THAT(materials[0].information, IsEmpty());
    ASSERT_THAT(materials[0].fits, SizeIs(1));
    EXPECT_EQ(materials[0].fits[0].values.Find("status"), nullptr);
}

}  // namespace
