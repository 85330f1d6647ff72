// Materials in the old container, or with coefficients in it, that have one model in common.

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;

constexpr const char* kOldContainer = "VRBMatAppliCont";

class UpgradeOfSharedModels : public testing::Test {
protected:
    UpgradeOfSharedModels() { std::filesystem::create_directories(folder_); }
    ~UpgradeOfSharedModels() override { std::filesystem::remove_all(folder_); }

    /// A rubber in the old container, with all that belongs to it, as material 3 with the model 6; `second`
    /// is called "Seal", has the same hyperelastic feature, and lies where it says.
    ProgramRun Upgrade(json second) {
        json document =
            json::parse(std::ifstream(Sample("../tests/data/older/old_container_hyperelastic_on.json")));
        json& features = document["features"];
        constexpr int platformMaterial = 20;
        constexpr int holder = 21;
        constexpr int data = 22;
        second["id"] = data;
        second["type"] = "ZELMaterialLT";
        second["attributes"]["Father"] = {{"ref", platformMaterial}};
        second["attributes"]["ZELUserMaterial"] = {{"ref", 4}};
        second["attributes"]["ZELHyperelasticity"] = {{"ref", 5}};
        const json added = {{{"id", platformMaterial},
                             {"type", "KORMaterialLT"},
                             {"alias", "Seal"},
                             {"attributes", {{"ApplicativeData", {{"refs", {holder}}}}}}},
                            {{"id", holder},
                             {"type", "KORApplicativeDataLT"},
                             {"attributes", {{"Name", "ZELMaterialApplicative"}, {"Data", {{"ref", data}}}}}},
                            second};
        for (const json& feature : added) features.push_back(feature);
        std::ofstream(older_) << document.dump(1);
        return RunZelmat({"upgrade", older_, "--output", newer_});
    }
    void ExpectRefused(const ProgramRun& run, const std::string& material) {
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_EQ(run.err, older_ + ": error[coefficients-lost]: of the 2 rows of coefficients of " +
                               material +
                               " the upgrade would leave 0 (give it a model of its own if another material "
                               "has the same)\n");
        EXPECT_EQ(run.out, "materials: 2, upgraded: 0\nrefused: nothing was changed\n");
        EXPECT_FALSE(std::filesystem::exists(newer_));
    }

    std::string folder_ = testing::TempDir() + "zelmat-upgrade-shared-" + std::to_string(getpid());
    std::string older_ = folder_ + "/older.json";
    std::string newer_ = folder_ + "/newer.json";
};

TEST_F(UpgradeOfSharedModels, TakesNoCoefficientsAlongThatAMaterialBesideItHas) {
    ExpectRefused(Upgrade({{"container", kOldContainer}, {"attributes", {{"ZELHyperelasticFlag", true}}}}),
                  "Seal");
}

TEST_F(UpgradeOfSharedModels, TakesNoCoefficientsAlongThatAMaterialElsewhereHas) {
    ExpectRefused(Upgrade({{"attributes", {{"ZELHyperelasticFlag", true}}}}), "Seal");
}

TEST_F(UpgradeOfSharedModels, MovesBothWhereOnlyOneIsSwitchedOn) {
    const ProgramRun run =
        Upgrade({{"container", kOldContainer}, {"attributes", {{"ZELHyperelasticFlag", false}}}});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, HasSubstr("materials: 2, upgraded: 2\n"));
    EXPECT_TRUE(std::filesystem::exists(newer_));
}

}  // namespace
