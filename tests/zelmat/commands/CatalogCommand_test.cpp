#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

TEST(CatalogCommand, PrintsOneLateType) {
    const ProgramRun run = RunZelmat({"catalog", "ZELDensityLT"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out,
              "## ZELDensityLT\n\n"
              "Mass density. Since release 1.\n\n"
              "| Attribute | Kind | Unit | Default | Release | Meaning |\n"
              "|---|---|---|---|---|---|\n"
              "| `TemperatureDependent` | boolean |  | false | 1 | the table has a temperature column |\n"
              "| `DataFile` | string |  | \"\" | 1 | name of an external data file |\n"
              "| `DensityData` | list of doubles | kg/m3 |  | 1 | density; mass per volume |\n"
              "| `TemperatureData` | list of doubles | K |  | 1 | temperature; of each row |\n");
}

TEST(CatalogCommand, PrintsTheWholeCatalogAsAPage) {
    const ProgramRun run = RunZelmat({"catalog"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, StartsWith("# Catalog\n"));
    EXPECT_THAT(run.out, HasSubstr("\n## ZELLayupLayerLT\n"));
}

TEST(CatalogCommand, PrintsOneJsonObject) {
    const json printed = json::parse(RunZelmat({"catalog", "MRVHyperelasticityLT", "--json"}).out);

    ASSERT_EQ(printed["types"].size(), 1u);
    EXPECT_EQ(printed["types"][0]["since"], 2);
    EXPECT_EQ(printed["types"][0]["attributes"][1], json::parse(R"({"name": "HyperelasticModel",
        "kind": "component", "since": 2, "meaning": "ZELHyperelasticMaterialModelLT",
        "superseded_by": "HyperelasticModel_v2"})"));
}

TEST(CatalogCommand, NamesTheNearestLateType) {
    const ProgramRun run = RunZelmat({"catalog", "ZELDensiyLT"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "TYPE: error[unknown-type]: the catalog has no late type 'ZELDensiyLT' (did you mean "
              "ZELDensityLT?)\n");
}

}  // namespace
