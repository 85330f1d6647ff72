#include <gmock/gmock.h>

#include "framework/KORBaseUnknown.h"
#include "tests/zelmat/CardFile.h"
#include "tests/zelmat/CatalogFolder.h"
#include "tests/zelmat/Program.h"
#include "zelmat/MaterialHost.h"
#include "zelmat/MaterialReader.h"
#include "zelmat/MaterialWriter.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string CatalogFolderOfTheModule() {
    const std::string catalog = ZELMAT_CATALOG;
    return catalog.substr(0, catalog.rfind('/'));
}

TEST(MaterialPasses, WriteToTheStoreAndReadFromItAgain) {
    const auto card = CardOf(R"({"name": "x",
        "density": {"temperature_dependent": true, "columns": ["density", "temperature"],
                    "rows": [[7850, 293.15], [7700, 773.15]]},
        "thermal_expansion": {"temperature_dependent": false, "columns": ["thermal_expansion"],
                              "rows": [[1.2e-5]], "reference_temperature": 300}})");
    zelmat::Findings findings;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());
    const auto material = host.NewMaterial(card, findings);
    ASSERT_TRUE(material);

    zelmat::WriteMaterial(material.Get(), card, findings);
    const auto tables = zelmat::ReadMaterial(material.Get(), card.file, card.name, findings);

    EXPECT_THAT(findings.All(), IsEmpty());
    ASSERT_EQ(tables.size(), 2u);
    EXPECT_EQ(tables[0].block->name, "density");
    EXPECT_TRUE(tables[0].temperatureDependent);
    EXPECT_THAT(tables[0].rows, ElementsAre(ElementsAre(7850.0, 293.15), ElementsAre(7700.0, 773.15)));
    EXPECT_EQ(tables[0].referenceTemperature, std::nullopt);
    EXPECT_EQ(tables[1].block->name, "thermal_expansion");
    EXPECT_FALSE(tables[1].temperatureDependent);
    EXPECT_THAT(tables[1].rows, ElementsAre(ElementsAre(1.2e-5)));
    EXPECT_EQ(tables[1].referenceTemperature, 300.0);
}

TEST(MaterialPasses, LeaveOutWhatIsNotSwitchedOn) {
    const auto card = CardOf(R"({"name": "x"})");
    zelmat::Findings findings;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());
    const auto material = host.NewMaterial(card, findings);

    zelmat::WriteMaterial(material.Get(), card, findings);

    EXPECT_THAT(zelmat::ReadMaterial(material.Get(), card.file, card.name, findings), IsEmpty());
    EXPECT_THAT(findings.All(), IsEmpty());
}

TEST(MaterialPasses, HoldNoReferenceOnTheMaterialAfterwards) {
    const auto card =
        CardOf(R"({"name": "x", "density": {"temperature_dependent": false, "columns": ["density"],
        "rows": [[7850]]}})");
    zelmat::Findings findings;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());
    const auto material = host.NewMaterial(card, findings);
    const KORBaseUnknown_var object = material;
    const int before = object->References();

    zelmat::WriteMaterial(material.Get(), card, findings);
    EXPECT_EQ(object->References(), before);

    zelmat::ReadMaterial(material.Get(), card.file, card.name, findings);
    EXPECT_EQ(object->References(), before);
}

TEST(MaterialPasses, ReportAFeatureThatIsNoMaterial) {
    zelmat::MaterialCard card;
    card.file = "card.json";
    card.name = "x";
    zelmat::Findings findings;

    zelmat::WriteMaterial(nullptr, card, findings);
    EXPECT_THAT(zelmat::ReadMaterial(nullptr, card.file, card.name, findings), IsEmpty());

    ASSERT_EQ(findings.All().size(), 2u);
    EXPECT_EQ(zelmat::FindingLine(findings.All()[0]),
              "card.json: error[no-material-interface]: x offers no material properties to write to");
    EXPECT_EQ(zelmat::FindingLine(findings.All()[1]),
              "card.json: error[no-material-interface]: x offers no material properties to read");
}

TEST(MaterialPasses, ReportATableThatCannotBeWritten) {
    const CatalogFolder catalogs("{\"name\": \"PoissonData\"", "{\"name\": \"OtherData\"");
    const ProgramRun run = RunZelmat({"show", "two_tables.json", "--catalogs", catalogs.Path()});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(
        run.err,
        "two_tables.json:9: error[not-written]: elastic could not be written (status 0x80004005)\n"
        "two_tables.json: warning[diagnostic]: Two tables: Failed to read elastic data\n"
        "two_tables.json: error[not-read]: elastic of Two tables could not be read back (status 0x80004005)\n"
        "two_tables.json: warning[diagnostic]: Two tables: Failed to read elastic data\n");
}

}  // namespace
