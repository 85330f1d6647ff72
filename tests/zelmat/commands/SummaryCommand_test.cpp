#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;

/// Of one material, as the table has them.
std::string Features() {
    return std::to_string(FeaturesOfAMaterial());
}

TEST(SummaryCommand, PrintsALineForEachMaterialOfOneDocument) {
    const ProgramRun run = RunZelmat({"summary", "two_tables.json", "long_conductivity.json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err,
              "long_conductivity.json:6: warning[several-rows]: conductivity has 3 rows and no temperatures "
              "(no temperature tells the rows apart)\n");
    EXPECT_EQ(run.out,
              "  material           features  switched on, with rows per table  notes\n"
              "  Two tables               " +
                  Features() +
                  "  elastic 2, thermal_expansion 1\n"
                  "  Long conductivity        " +
                  Features() +
                  "  conductivity 3\n"
                  "\n"
                  "materials: 2, features: " +
                  std::to_string(2 * FeaturesOfAMaterial()) + "\n");
}

TEST(SummaryCommand, LeavesACardWithAMistakeOutAndGoesOn) {
    const ProgramRun run = RunZelmat({"summary", "ragged.json", "first_strain.json", "cut_elastic.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out,
              "  material     features  switched on, with rows per table  notes\n"
              "  Cut elastic        " +
                  Features() +
                  "  elastic 1\n"
                  "\n"
                  "materials: 1, features: " +
                  Features() + "\n");
    EXPECT_THAT(run.err,
                HasSubstr("ragged.json:8: error[ragged-row]: row 2 of density has 1 value (expected 2: "
                          "density, temperature)\n"));
    EXPECT_THAT(run.err, HasSubstr("first_strain.json:8: error[first-plastic-strain]: row 1 of plastic: "
                                   "plastic strain is 0.002 (has to be 0)\n"));
}

TEST(SummaryCommand, TakesInACardWithErrorsWhenItIsToKeepGoing) {
    const ProgramRun run =
        RunZelmat({"summary", "--keep-going", "ragged.json", "shear_stiffness.json", "first_strain.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out,
              "  material      features  switched on, with rows per table  notes\n"
              "  First strain        " +
                  Features() +
                  "  plastic 2\n"
                  "\n"
                  "materials: 1, features: " +
                  Features() + "\n");
    EXPECT_THAT(run.err, HasSubstr("(has to be above 0, nothing of the table was stored)\n"));
    EXPECT_THAT(run.err, HasSubstr("(has to be 0, the table was stored all the same)\n"));
}

TEST(SummaryCommand, TellsWhatIsSpecialAboutAMaterial) {
    const ProgramRun run =
        RunZelmat({"summary", Sample("natural_rubber_treloar.json"), Sample("gasket_fibre_illustrative.json"),
                   Sample("concrete_c30_37.json")});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("stored OGDEN of 10 fits, test_data for information\n"));
    EXPECT_THAT(run.out, HasSubstr("density 1, gasket 8+12+12"));
    EXPECT_THAT(run.out, HasSubstr("  illustrative\n"));
    EXPECT_THAT(run.out, HasSubstr("  strength for information\n"));
}

TEST(SummaryCommand, PrintsOneJsonObjectForScripts) {
    const ProgramRun run = RunZelmat({"summary", "--json", "two_tables.json", "ragged.json"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "");
    const auto json = nlohmann::json::parse(run.out);
    ASSERT_EQ(json["materials"].size(), 1u);
    EXPECT_EQ(json["materials"][0]["name"], "Two tables");
    EXPECT_EQ(json["materials"][0]["features"], FeaturesOfAMaterial());
    EXPECT_EQ(json["findings"][0]["code"], "ragged-row");
}

TEST(SummaryCommand, EndsWithThreeWhenACardCannotBeRead) {
    const ProgramRun run = RunZelmat({"summary", "two_tables.json", "missing.json"});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "missing.json: error[unreadable]: cannot be read: No such file or directory\n");
    EXPECT_THAT(run.out, HasSubstr("\nmaterials: 1, features: " + Features() + "\n"));
}

TEST(SummaryCommand, WantsACard) {
    EXPECT_EQ(RunZelmat({"summary"}).exitCode, 2);
}

}  // namespace
