#include "zelmat/commands/inputs/GivenMaterials.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/Program.h"
#include "zelmat/commands/frame/Arguments.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zelmat::Material;

constexpr const char* kTwoCards = R"([
  {"name": "Steel", "density": {"temperature_dependent": false, "columns": ["density [g/cm^3]"], "rows": [[7.85]]}},
  {"name": "Copper", "density": {"temperature_dependent": false, "columns": ["density"], "rows": [[8960.0]]}}
])";

/// Copper with an elastic table that is on and a conductivity that is off; a material of the platform alone.
constexpr const char* kDocument = R"({
  "format": 1,
  "catalogs": ["ZELMaterialPropertiesCatalog.KORfct"],
  "features": [
    {"id": 1, "type": "KORMaterialLT", "alias": "Copper", "attributes": {"ApplicativeData": {"refs": [2]}}},
    {"id": 2, "type": "KORApplicativeDataLT",
     "attributes": {"Name": "ZELMaterialApplicative", "Data": {"ref": 3}}},
    {"id": 3, "type": "ZELMaterialLT",
     "attributes": {"Father": {"ref": 1}, "ZELElasticFlag": true, "ZELElastic": {"ref": 4},
                    "ZELConductivity": {"ref": 5}}},
    {"id": 4, "type": "ZELElasticLT", "attributes": {"YoungData": [124e9], "PoissonData": [0.34]}},
    {"id": 5, "type": "ZELConductivityLT", "attributes": {"ConductivityData": [400]}},
    {"id": 6, "type": "KORMaterialLT", "alias": "Ply"},
    {"id": 7, "type": "ZELMaterialLT", "alias": "Older rubber"}
  ]
})";

/// What a command is given on its line and finds there.
struct Given {
    explicit Given(std::vector<std::string> words) {
        zelmat::Arguments line("zelmat", "a test");
        what.Declare(line);
        EXPECT_EQ(line.Read(std::move(words)).mistake, "");
    }

    std::vector<Material> All() { return what.ReadAll(context); }
    std::optional<Material> One() { return what.ReadOne(context); }

    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const Material& material : All()) names.push_back(material.name);
        return names;
    }

    std::vector<std::string> Findings(const CardFile& card) const {
        std::vector<std::string> lines;
        for (const auto& finding : findings.All()) lines.push_back(card.Shorten(FindingLine(finding)));
        return lines;
    }

    zelmat::GivenMaterials what;
    zelmat::CommonOptions options{.catalogs = CatalogFolderOfTheModule(), .output = {}, .units = {}};
    zelmat::UnitChoice units = zelmat::UnitChoice::Si();
    zelmat::Findings findings;
    std::ostringstream notes;
    zelmat::CommandContext context{options, units, findings, notes};
};

TEST(GivenMaterials, AreThoseOfACardAsItGivesThem) {
    const CardFile card(kTwoCards);
    Given given({card.Path()});
    const auto materials = given.All();

    ASSERT_EQ(materials.size(), 2u);
    EXPECT_THAT(given.Findings(card), IsEmpty());
    const zelmat::Table& density = materials[0].Find("density")->tables.front();
    EXPECT_EQ(density.columns[0].values, std::vector<double>{7850.0});
    EXPECT_EQ(density.columns[0].written->unit, "g/cm^3");
}

TEST(GivenMaterials, AreThoseOfADocumentInTheShapeOfACard) {
    const CardFile document(kDocument);
    Given given({document.Path()});
    const auto materials = given.All();

    EXPECT_THAT(given.Findings(document), IsEmpty());
    ASSERT_EQ(materials.size(), 3u);
    const Material& copper = materials[0];
    EXPECT_EQ(copper.name, "Copper");
    EXPECT_EQ(copper.file, document.Path());
    ASSERT_EQ(copper.blocks.size(), 1u);  // the conductivity is switched off
    EXPECT_EQ(copper.blocks[0].kind->name, "elastic");
    EXPECT_EQ(copper.blocks[0].tables[0].Row(0), (std::vector<double>{124e9, 0.34}));
    EXPECT_EQ(materials[1].name, "Ply");
    EXPECT_THAT(materials[1].blocks, IsEmpty());
    EXPECT_EQ(materials[2].name, "Older rubber");
}

TEST(GivenMaterials, OfAnOlderDocumentAreBroughtUpToDate) {
    Given given({Sample("older/copper_and_rubber.json")});
    const auto materials = given.All();

    ASSERT_EQ(materials.size(), 2u);
    EXPECT_EQ(materials[0].Find("plastic")->tables[0].Row(0),
              (std::vector<double>{90e6, 292e6, 0.31, 1.09, 1356.0, 298.0}));
    ASSERT_EQ(materials[1].fits.size(), 1u);
    EXPECT_EQ(materials[1].fits[0].tables[0].Row(0)[0], 630000.0);  // 0.63 MPa before
}

TEST(GivenMaterials, LeaveAnOlderDocumentAlone) {
    const std::string path = Sample("older/copper_and_rubber.json");
    const auto written = std::filesystem::last_write_time(path);
    Given({path}).All();

    EXPECT_EQ(std::filesystem::last_write_time(path), written);
}

TEST(GivenMaterials, AreNoneOfADocumentWhoseUpgradeWouldGuess) {
    std::ifstream file(Sample("older/copper_and_rubber.json"));
    std::string text((std::istreambuf_iterator<char>(file)), {});
    const std::string unit = "\"pressure_unit\": \"MPa\",";
    text.erase(text.find(unit), unit.size());
    const CardFile document(text);
    Given given({document.Path()});

    EXPECT_THAT(given.All(), IsEmpty());
    ASSERT_THAT(given.Findings(document), testing::SizeIs(1));
    EXPECT_EQ(given.findings.Exit(), zelmat::EXIT_FINDINGS);
}

TEST(GivenMaterials, CanBeNamedByNameBeginningOrNumber) {
    const CardFile card(kTwoCards);
    EXPECT_THAT(Given({card.Path(), "Copper"}).Names(), ElementsAre("Copper"));
    EXPECT_THAT(Given({card.Path(), "Co"}).Names(), ElementsAre("Copper"));
    EXPECT_THAT(Given({card.Path(), "#1"}).Names(), ElementsAre("Steel"));
    const CardFile document(kDocument);
    EXPECT_THAT(Given({document.Path(), "#2"}).Names(), ElementsAre("Ply"));
}

TEST(GivenMaterials, AreNoneWhenTheNameIsNotThere) {
    const CardFile card(kTwoCards);
    Given given({card.Path(), "Coper"});

    EXPECT_THAT(given.Names(), IsEmpty());
    EXPECT_THAT(given.Findings(card),
                ElementsAre("card.json: error[no-such-material]: there is no material \"Coper\" (did you "
                            "mean Copper?)"));
}

TEST(GivenMaterials, HaveToBeNamedWhereOneOfSeveralIsWanted) {
    const CardFile card(kTwoCards);
    Given given({card.Path()});

    EXPECT_FALSE(given.One());
    EXPECT_THAT(given.Findings(card), ElementsAre("card.json: error[several-materials]: it holds 2 materials "
                                                  "(name one of them, has: Steel, Copper)"));
    EXPECT_EQ(Given({card.Path(), "#2"}).One()->name, "Copper");
}

TEST(GivenMaterials, AreFoundMissingInAnEmptyDocument) {
    const CardFile document(R"({"format": 1, "features": []})");
    Given given({document.Path()});

    EXPECT_FALSE(given.One());
    EXPECT_THAT(given.Findings(document),
                ElementsAre("card.json: error[no-materials]: there are no materials in it"));
}

TEST(GivenMaterials, AreNoneOfABrokenDocument) {
    const CardFile document(R"({"format": 1, "features": [{"id": 0}]})");
    Given given({document.Path()});

    EXPECT_THAT(given.All(), IsEmpty());
    EXPECT_THAT(given.Findings(document),
                ElementsAre(testing::StartsWith("card.json:1: error[broken-document]")));
    EXPECT_EQ(given.findings.Exit(), zelmat::EXIT_UNREADABLE);
}

TEST(GivenMaterials, AreNoneOfALayupCard) {
    Given given({Sample("layups/kaw_0_30_m45.json")});

    EXPECT_THAT(given.All(), IsEmpty());
    ASSERT_EQ(given.findings.All().size(), 1u);
    EXPECT_EQ(given.findings.All()[0].code, "wrong-command");
}

TEST(GivenMaterials, AreNoneOfAFileThatIsNotThere) {
    Given given({"no-such-file.json"});

    EXPECT_THAT(given.All(), IsEmpty());
    EXPECT_EQ(given.findings.Exit(), zelmat::EXIT_UNREADABLE);
}

}  // namespace
