#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/Program.h"
#include "tests/zelmat/support/TestFolder.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

/// A document from before the current Johnson-Cook data, with a material that is otherwise up to date.
constexpr const char* kOlderCopper = R"({
  "format": 1,
  "catalogs": ["ZELMaterialPropertiesCatalog.KORfct"],
  "features": [
    {"id": 1, "type": "ZELMaterialLT", "alias": "Copper",
     "attributes": {"ZELPlasticFlag": true, "ZELPlastic": {"ref": 2}, "ZELUserMaterial": {"ref": 4},
                    "ZELHyperelasticity": {"ref": 5}}},
    {"id": 2, "type": "ZELPlasticLT",
     "attributes": {"PlasticHardeningType": "JohnsonCookHardening", "JohnsonCookData": {"ref": 3}}},
    {"id": 3, "type": "ZELPlasticJohnsonCookLT", "attributes": {"CoeffA": 90e6, "CoeffN": 0.31}},
    {"id": 4, "type": "MRVUserMaterialLT"},
    {"id": 5, "type": "MRVHyperelasticityLT",
     "attributes": {"HyperelasticModel_v2": {"ref": 6}, "HyperelasticUnitUpgradeRequired": true}},
    {"id": 6, "type": "ZELHyperelasticMaterialModelLT"}
  ]
})";

/// A hyperelastic material that is switched on but holds no coefficients to convert.
constexpr const char* kOlderRubber = R"({
  "format": 1,
  "catalogs": ["ZELMaterialPropertiesCatalog.KORfct"],
  "features": [
    {"id": 1, "type": "ZELMaterialLT", "alias": "Rubber",
     "attributes": {"ZELHyperelasticFlag": true, "ZELUserMaterial": {"ref": 2},
                    "ZELHyperelasticity": {"ref": 3}}},
    {"id": 2, "type": "MRVUserMaterialLT"},
    {"id": 3, "type": "MRVHyperelasticityLT",
     "attributes": {"HyperelasticMatModelType": "OGDEN", "HyperelasticModel_v2": {"ref": 4}}},
    {"id": 4, "type": "ZELHyperelasticMaterialModelLT", "attributes": {"HyperelasticMatModelData": {"refs": []}}}
  ]
})";

class UpgradeCommand : public FolderTest {
protected:
    /// Puts a document into a file and runs the program on it.
    ProgramRun Upgrade(const std::string& text, std::vector<std::string> further = {}) {
        std::ofstream(older_) << text;
        further.insert(further.begin(), {"upgrade", older_});
        return RunZelmat(further);
    }

    json Written() const {
        std::ifstream file(newer_);
        return json::parse(file);
    }

    const std::string older_ = In("older.json");
    const std::string newer_ = In("newer.json");
};

TEST_F(UpgradeCommand, TellsWhatChangedOnWhichFeature) {
    const ProgramRun run = Upgrade(kOlderCopper);

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "materials: 1, upgraded: 1\n"
              "\n"
              "Copper\n"
              "  ZELPlasticJohnsonCookLT 7: created\n"
              "  ZELPlasticLT 2: JohnsonCookData_v2, JohnsonCookData\n"
              "  upgrade: done\n"
              "  still needed: no\n"
              "  in the document, but no longer listed anywhere: ZELPlasticJohnsonCookLT 3\n");
}

TEST_F(UpgradeCommand, LeavesTheDocumentAloneAndWritesTheUpgradedOneElsewhere) {
    const ProgramRun run = Upgrade(kOlderCopper, {"--output", newer_});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("\nwritten: " + newer_ + "\n"));
    EXPECT_EQ(Contents(older_), kOlderCopper);
    const json features = Written()["features"];
    ASSERT_EQ(features.size(), 7u);
    EXPECT_EQ(features[1]["attributes"]["JohnsonCookData_v2"], json::parse(R"({"ref": 7})"));
    EXPECT_FALSE(features[1]["attributes"].contains("JohnsonCookData"));
    EXPECT_EQ(features[6]["attributes"]["CoeffA"], 90e6);
    EXPECT_EQ(features[6]["attributes"]["CoeffN"], 0.31);
}

TEST_F(UpgradeCommand, WritesTheDocumentToStandardOutputAndTheReportBesideIt) {
    const ProgramRun run = Upgrade(kOlderCopper, {"--output", "-"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, testing::StartsWith("{"));
    EXPECT_THAT(run.err, HasSubstr("\nwritten: standard output\n"));
}

TEST_F(UpgradeCommand, HasNothingToDoTheSecondTime) {
    ASSERT_EQ(Upgrade(kOlderCopper, {"--output", newer_}).exitCode, 0);
    const ProgramRun again = RunZelmat({"upgrade", newer_});

    EXPECT_EQ(again.exitCode, 0);
    EXPECT_EQ(again.out, "materials: 1, upgraded: 0\n");
    EXPECT_EQ(again.err, "");
}

TEST_F(UpgradeCommand, TellsAFailureAndKeepsWhatWasDoneBefore) {
    const ProgramRun run = Upgrade(kOlderRubber, {"--output", newer_});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, older_ +
                           ": error[upgrade-failed]: the upgrade of Rubber failed (status 0x80004005, "
                           "what it did before stays done)\n");
    EXPECT_THAT(run.out, HasSubstr("  MRVHyperelasticityLT 3: HyperelasticUnitUpgradeRequired\n"
                                   "  upgrade: failed, status 0x80004005\n"
                                   "  still needed: no\n"));
    EXPECT_EQ(Written()["features"][2]["attributes"]["HyperelasticUnitUpgradeRequired"], true);
}

TEST_F(UpgradeCommand, ConvertsCoefficientsFromTheUnitOfPressureOfTheDocument) {
    const ProgramRun run =
        RunZelmat({"upgrade", Sample("older/copper_and_rubber.json"), "--output", newer_, "--json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    std::vector<json> rows;
    const json features = Written()["features"];
    for (const json& feature : features) {
        if (feature["type"] == "KORApplicativeDataLT") {
            const json& material = features[feature["attributes"]["Data"]["ref"].get<std::size_t>() - 1];
            EXPECT_FALSE(material.contains("container"));
        }
        if (feature["type"] == "ZELMaterialModelRowDataLT" && !feature.contains("container")) {
            rows.push_back(feature["attributes"]["MaterialModelRowData"]);
        }
    }
    ASSERT_FALSE(rows.empty());
    for (const json& row : rows) EXPECT_EQ(row, json::parse("[630000, 1.3, 1200, 5, -10000, -2, 0, 0, 0]"));

    const json told = json::parse(run.out);
    EXPECT_EQ(told["written"], newer_);
    EXPECT_EQ(told["upgrade"]["materials"], 2);
    EXPECT_EQ(told["upgrade"]["upgraded"][1]["name"], "Vulcanised natural rubber");
    EXPECT_EQ(told["upgrade"]["upgraded"][1]["feature"], 9);
    EXPECT_GT(told["upgrade"]["upgraded"][1]["replacement"], 13);
    EXPECT_EQ(told["upgrade"]["upgraded"][1]["still_needed"], false);
    EXPECT_EQ(told["findings"], json::array());
}

TEST_F(UpgradeCommand, SaysWhatHangsInThePlaceOfAMovedMaterial) {
    const ProgramRun run = RunZelmat({"upgrade", Sample("older/copper_and_rubber.json")});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.out, HasSubstr("\nOFHC copper\n"));
    EXPECT_THAT(run.out, HasSubstr("\nVulcanised natural rubber\n"));
    EXPECT_THAT(run.out, HasSubstr("  ZELMaterialLT 9: Father, moved or removed\n"));
    EXPECT_THAT(run.out, HasSubstr("  replaced by: ZELMaterialLT 22\n"));
}

TEST_F(UpgradeCommand, EndsWithThreeAndTheLineOfABrokenDocument) {
    const ProgramRun run =
        Upgrade("{\n\"format\": 1,\n\"features\": [\n{\"id\": \"one\", \"type\": \"OtherLT\"}]}",
                {"--output", newer_});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, StartsWith(older_ + ":4: error[broken-document]: "));
    EXPECT_FALSE(std::filesystem::exists(newer_));

    const ProgramRun syntax = Upgrade("{\n\"format\": }");
    EXPECT_EQ(syntax.exitCode, 3);
    EXPECT_THAT(syntax.err, StartsWith(older_ + ":2: error[broken-document]: "));
    EXPECT_THAT(syntax.err, HasSubstr("(column "));
}

TEST_F(UpgradeCommand, EndsWithThreeForADocumentThatIsNotThere) {
    const ProgramRun run = RunZelmat({"upgrade", "missing.json"});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, "missing.json: error[unreadable]: cannot be read: No such file or directory\n");
}

TEST_F(UpgradeCommand, EndsWithThreeWithoutACatalog) {
    const ProgramRun run = Upgrade(kOlderCopper, {"--catalogs", "no-such-folder", "--json"});

    EXPECT_EQ(run.exitCode, 3);
    const json told = json::parse(run.out);
    EXPECT_TRUE(told["upgrade"].is_null());
    EXPECT_TRUE(told["written"].is_null());
    EXPECT_EQ(told["findings"][0]["code"], "bad-catalog");
}

TEST_F(UpgradeCommand, EndsWithThreeWhenTheUpgradedDocumentCannotBeWritten) {
    const ProgramRun run = Upgrade(kOlderCopper, {"--output", In("no/newer.json")});

    EXPECT_EQ(run.exitCode, 3);
    EXPECT_EQ(run.err, In("no/newer.json") +
                           ": error[not-written]: cannot be written: No such file or "
                           "directory\n");
    EXPECT_THAT(run.out, StartsWith("materials: 1, upgraded: 1\n"));
}

TEST_F(UpgradeCommand, WantsADocument) {
    EXPECT_EQ(RunZelmat({"upgrade"}).exitCode, 2);
}

}  // namespace
