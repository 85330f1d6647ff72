#include "zelmat/materials/MaterialHost.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "interfaces/KORIAlias.h"
#include "interfaces/KORIMaterialFeature.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/Program.h"

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

TEST(MaterialHost, ReportsAMissingSharedCatalog) {
    const CatalogFolder catalogs("\"format\": 1", "\"format\": 1");
    std::filesystem::remove(catalogs.Path() + "/ZELSharedCatalog.KORfct");
    const ProgramRun run = ShowOver(catalogs);

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, catalogs.Path() +
                           "/ZELSharedCatalog.KORfct: error[bad-catalog]: cannot be read: No such file or "
                           "directory\n");
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
    EXPECT_EQ(run.err, CatalogIn(catalogs) +
                           ": error[bad-catalog]: the analysis data of Two tables cannot be made "
                           "from it (status 0x80004005)\n");
}

TEST(MaterialHost, ReportsAMaterialTypeThatTheCatalogLacks) {
    const CatalogFolder catalogs("{\"name\": \"ZELMaterialLT\"", "{\"name\": \"OtherLT\"");
    const ProgramRun run = ShowOver(catalogs);

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, CatalogIn(catalogs) +
                           ": error[bad-catalog]: the analysis data of Two tables cannot be made "
                           "from it (status 0x80004005)\n");
}

TEST(MaterialHost, ReportsAnAttributeThatTheMaterialLacks) {
    const CatalogFolder catalogs("{\"name\": \"ZELDensity\"", "{\"name\": \"Other\"");
    const ProgramRun run = ShowOver(catalogs);

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, CatalogIn(catalogs) +
                           ": error[bad-catalog]: the analysis data of Two tables cannot be made "
                           "from it (status 0x80004005)\n");
}

TEST(MaterialHost, HangsTheFactorysDataOnAMaterialOfThePlatform) {
    zelmat::Material card;
    card.name = "S235";
    zelmat::Findings findings;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());

    const KORISpecObject_var data = host.NewMaterial(card, findings);

    ASSERT_TRUE(data);
    EXPECT_THAT(findings.All(), testing::IsEmpty());
    const auto father = KORISpecObject_var::Adopt(data->GetFather());
    ASSERT_TRUE(father);
    EXPECT_EQ(KORIAlias_var(father)->GetAlias(), "S235");
    const auto material = KORIMaterialFeature_var(father);
    EXPECT_EQ(KORISpecObject_var::Adopt(material->GetApplicativeFeature("ZELMaterialApplicative")), data);
    EXPECT_EQ(host.FeatureCount(), FeaturesOfAMaterial());
}

}  // namespace
