#include <gmock/gmock.h>

#include "tests/zelmat/CatalogFolder.h"
#include "tests/zelmat/Program.h"

namespace {

/// Shows the card with two tables over another catalog.
ProgramRun ShowOver(const CatalogFolder& catalogs) {
    return RunZelmat({"show", "two_tables.json", "--catalogs", catalogs.Path()});
}

std::string CatalogIn(const CatalogFolder& catalogs) {
    return catalogs.Path() + "/ZELMaterialPropertiesCatalog.KORfct";
}

TEST(MaterialHost, ReportsAMissingCatalogOnce) {
    const ProgramRun run = RunZelmat({"show", "two_tables.json", "--catalogs", "no-such-folder"});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "no-such-folder/ZELMaterialPropertiesCatalog.KORfct: error[bad-catalog]: cannot be read: No "
              "such file "
              "or directory\n");
}

TEST(MaterialHost, ReportsTheLineOfAMistakeInTheCatalog) {
    const CatalogFolder catalogs("\"format\": 1", "\"format\": 99");
    const ProgramRun run = ShowOver(catalogs);

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, CatalogIn(catalogs) + ":2: error[bad-catalog]: expected \"format\": 1\n");
}

TEST(MaterialHost, ReportsALateTypeThatTheCatalogLacks) {
    const CatalogFolder catalogs("{\"name\": \"ZELDensityLT\"", "{\"name\": \"OtherLT\"");
    const ProgramRun run = ShowOver(catalogs);

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, CatalogIn(catalogs) + ": error[bad-catalog]: has no late type ZELDensityLT\n");
}

TEST(MaterialHost, ReportsAMaterialTypeThatTheCatalogLacks) {
    const CatalogFolder catalogs("{\"name\": \"ZELMaterialLT\"", "{\"name\": \"OtherLT\"");
    const ProgramRun run = ShowOver(catalogs);

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, CatalogIn(catalogs) + ": error[bad-catalog]: has no late type ZELMaterialLT\n");
}

TEST(MaterialHost, ReportsAnAttributeThatTheMaterialLacks) {
    const CatalogFolder catalogs("{\"name\": \"ZELDensity\"", "{\"name\": \"Other\"");
    const ProgramRun run = ShowOver(catalogs);

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err,
              CatalogIn(catalogs) + ": error[bad-catalog]: ZELMaterialLT has no attribute ZELDensity\n");
}

}  // namespace
