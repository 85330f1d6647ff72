#include "framework/KORModule.h"
#include "tests/ZELMaterialModel/older/ZELOlderDocument.h"

namespace {

/// One document of tests/data/older. Its text after the upgrade stands beside it, in
/// "<document>.expected.json".
struct OlderDocument {
    const char* document;
    std::vector<ZELTold> told;
    std::size_t living;  ///< features, once nothing can be undone any more
};

void PrintTo(const OlderDocument& older, std::ostream* out) {
    *out << older.document;
}

std::string ExpectedText(const OlderDocument& older) {
    return ZELOlderText(std::string(older.document) + ".expected");
}

const std::vector<OlderDocument> kDocuments = {
    {"already_upgraded", {}, 7},
    {"user_material_missing",
     {{"Structural steel", 3, 0, S_OK, false, {"7 Container", "3 ZELUserMaterial"}, {}}},
     7},

    // Two new models: the second one takes the place of the first.
    {"hyperelasticity_missing",
     {{"Structural steel",
       3,
       0,
       S_OK,
       false,
       {"5 Container", "3 ZELHyperelasticity", "6 Container", "7 Container"},
       {6}}},
     7},
    {"hyperelasticity_missing_behavior_on",
     {{"Structural steel",
       3,
       0,
       E_FAIL,
       false,
       {"5 Container", "3 ZELHyperelasticity", "6 Container", "7 Container"},
       {6}}},
     7},

    {"johnson_cook_old_key",
     {{"OFHC copper", 3, 0, S_OK, false, {"9 Container", "4 JohnsonCookData_v2", "4 JohnsonCookData"}, {5}}},
     9},
    {"johnson_cook_old_key_without_data",
     {{"OFHC copper", 3, 0, S_OK, false, {"9 Container", "4 JohnsonCookData_v2", "4 JohnsonCookData"}, {5}}},
     9},
    {"hyperelastic_model_old_key",
     {{"Vulcanised natural rubber",
       3,
       0,
       S_OK,
       false,
       {"9 Container", "10 Container", "11 Container", "5 HyperelasticModel", "5 HyperelasticModel_v2"},
       {6, 7, 8}}},
     11},

    {"units_not_converted",
     {{"Vulcanised natural rubber",
       3,
       0,
       S_OK,
       false,
       {"5 HyperelasticUnitUpgradeRequired", "6 HyperelasticMatModelData", "9 Container", "10 Container"},
       {7, 8}}},
     10},
    {"units_not_converted_behavior_off",
     {{"Vulcanised natural rubber", 3, 0, S_OK, false, {"5 HyperelasticUnitUpgradeRequired"}, {}}},
     8},
    {"units_empty_table",
     {{"Vulcanised natural rubber", 3, 0, E_FAIL, false, {"5 HyperelasticUnitUpgradeRequired"}, {}}},
     6},

    // The test data are copied twice, with the material and by themselves; the first copies are unlisted.
    {"old_container_hyperelastic_on",
     {{"Vulcanised natural rubber",
       3,
       9,
       S_OK,
       false,
       {"9 Container", "10 Container", "11 Container", "12 Container", "13 Container", "14 Container",
        "15 Container", "16 Container", "6 HyperelasticMatModelData", "3 Father", "1 ApplicativeData",
        "2 Container", "3 Container", "17 Container"},
       {13, 14, 7, 8, 4, 5, 6}}},
     15},
    {"old_container_hyperelastic_off",
     {{"Vulcanised natural rubber",
       3,
       9,
       S_OK,
       false,
       {"9 Container", "10 Container", "11 Container", "12 Container", "13 Container", "14 Container",
        "3 Father", "1 ApplicativeData", "2 Container", "3 Container", "15 Container"},
       {13, 14, 4, 5, 6, 7, 8}}},
     13},
    // The copy goes on with the one model that there is, and with copies of its test data.
    {"old_container_hyperelasticity_elsewhere",
     {{"Vulcanised natural rubber",
       3,
       9,
       S_OK,
       false,
       {"9 Container", "10 Container", "11 Container", "6 HyperelasticMatModelData", "3 Father",
        "1 ApplicativeData", "2 Container", "3 Container", "12 Container"},
       {7, 8}}},
     10},
    {"old_container_hyperelasticity_elsewhere_off",
     {{"Vulcanised natural rubber",
       3,
       9,
       S_OK,
       false,
       {"9 Container", "6 HyperelasticMatModelData", "3 Father", "1 ApplicativeData", "2 Container",
        "3 Container", "10 Container"},
       {7, 8}}},
     8},
    {"old_container_model_elsewhere",
     {{"Vulcanised natural rubber",
       3,
       9,
       S_OK,
       false,
       {"9 Container", "10 Container", "11 Container", "12 Container", "13 Container",
        "6 HyperelasticMatModelData", "3 Father", "1 ApplicativeData", "2 Container", "3 Container",
        "14 Container"},
       {7, 8, 4, 5}}},
     12},
    // There is nowhere to move it.
    {"old_container_of_the_platform_material", {{"Structural steel", 3, 0, S_OK, true, {}, {}}}, 6},

    {"foreign_test_data_on",
     {{"Vulcanised natural rubber",
       3,
       0,
       S_OK,
       false,
       {"9 Container", "10 Container", "6 HyperelasticMatModelData"},
       {7, 8}}},
     10},
    {"foreign_test_data_off",
     {{"Vulcanised natural rubber", 3, 0, S_OK, false, {"6 HyperelasticMatModelData"}, {7, 8}}},
     8},
    // Container by container, but listed in the old order.
    {"foreign_test_data_in_several_containers",
     {{"Vulcanised natural rubber",
       3,
       0,
       S_OK,
       false,
       {"10 Container", "11 Container", "12 Container", "6 HyperelasticMatModelData"},
       {7, 8, 9}}},
     12},
    // Converting makes new rows in the material's container, which are then copied like those elsewhere.
    {"foreign_test_data_not_converted",
     {{"Vulcanised natural rubber",
       3,
       0,
       S_OK,
       false,
       {"5 HyperelasticUnitUpgradeRequired", "6 HyperelasticMatModelData", "9 Container", "10 Container",
        "11 Container", "12 Container"},
       {7, 8, 9, 10}}},
     12},

    {"all_flags_together",
     {{"OFHC copper",
       3,
       11,
       S_OK,
       false,
       {"6 Container",  "3 ZELUserMaterial",    "7 Container",       "3 ZELHyperelasticity", "8 Container",
        "9 Container",  "4 JohnsonCookData_v2", "4 JohnsonCookData", "10 Container",         "11 Container",
        "12 Container", "13 Container",         "14 Container",      "15 Container",         "16 Container",
        "3 Father",     "1 ApplicativeData",    "2 Container",       "3 Container",          "17 Container"},
       {6, 7, 8, 9, 5, 10, 4}}},
     15},
    {"all_old_data_together",
     {{"Copper-filled rubber",
       3,
       14,
       S_OK,
       false,
       {"9 Container",
        "3 ZELUserMaterial",
        "10 Container",
        "4 JohnsonCookData_v2",
        "4 JohnsonCookData",
        "11 Container",
        "12 Container",
        "6 HyperelasticModel",
        "6 HyperelasticModel_v2",
        "6 HyperelasticUnitUpgradeRequired",
        "13 Container",
        "14 Container",
        "15 Container",
        "16 Container",
        "17 Container",
        "18 Container",
        "19 Container",
        "20 Container",
        "21 Container",
        "3 Father",
        "1 ApplicativeData",
        "2 Container",
        "3 Container",
        "22 Container"},
       {9, 10, 5, 11, 12, 7, 13, 20, 8, 4, 6}}},
     20},

    {"several_materials",
     {{"Structural steel", 3, 0, S_OK, false, {"25 Container", "3 ZELUserMaterial"}, {}},
      {"Silicone rubber",
       8,
       0,
       S_OK,
       false,
       {"10 HyperelasticUnitUpgradeRequired", "11 HyperelasticMatModelData", "26 Container"},
       {12}},
      {"Unmeasured rubber", 15, 0, E_FAIL, false, {"17 HyperelasticUnitUpgradeRequired"}, {}}},
     26},
};

class ZELOlderDocuments : public testing::TestWithParam<OlderDocument> {
protected:
    const ZELCatalogFolder catalogs_;
    ZELOlderDocument older_{catalogs_, ZELOlderText(GetParam().document)};
};

TEST_P(ZELOlderDocuments, BecomeWhatStandsBesideThem) {
    older_.Upgrade();

    EXPECT_EQ(older_.Text(), ExpectedText(GetParam()));
}

TEST_P(ZELOlderDocuments, AreToldMaterialByMaterial) {
    const KORUpgradeReport report = older_.Upgrade();

    EXPECT_EQ(ZELToldOf(report), GetParam().told);
}

TEST_P(ZELOlderDocuments, AreLeftAloneByTheNextUpgrade) {
    older_.Upgrade();
    const std::size_t steps = older_.Document().Log().Steps().size();

    const KORUpgradeReport again = older_.Upgrade();

    std::vector<ZELTold> stillNeeded;
    for (const ZELTold& told : GetParam().told) {
        if (told.stillNeeded) stillNeeded.push_back({told.name, told.feature, 0, S_OK, true, {}, {}});
    }
    EXPECT_EQ(ZELToldOf(again), stillNeeded);
    EXPECT_EQ(older_.Text(), ExpectedText(GetParam()));
    EXPECT_EQ(older_.Document().Log().Steps().size(), steps);
}

TEST_P(ZELOlderDocuments, AreLeftAloneOnceTheyWereSavedUpgraded) {
    ZELOlderDocument saved(catalogs_, ExpectedText(GetParam()));

    const KORUpgradeReport report = saved.Upgrade();

    for (const ZELTold& told : ZELToldOf(report)) {
        EXPECT_TRUE(told.stillNeeded) << told;
        EXPECT_EQ(told.changes, ZELChanges{});
    }
    EXPECT_EQ(saved.Text(), ExpectedText(GetParam()));
}

TEST_P(ZELOlderDocuments, AreUndoneAndRedoneInOneStep) {
    const std::string original = older_.Text();
    const bool changes = original != ExpectedText(GetParam());

    older_.Upgrade();

    EXPECT_EQ(older_.Document().Log().Steps().size(), changes ? 1u : 0u);
    EXPECT_EQ(older_.Document().Undo(), changes);
    EXPECT_EQ(older_.Text(), original);
    EXPECT_EQ(older_.Document().Redo(), changes);
    EXPECT_EQ(older_.Text(), ExpectedText(GetParam()));
}

TEST_P(ZELOlderDocuments, AreUpgradedJustSoAfterAnUndo) {
    older_.Upgrade();
    older_.Document().Undo();

    const std::vector<ZELTold> told = ZELToldOf(older_.Upgrade());

    ASSERT_EQ(told.size(), GetParam().told.size());
    for (std::size_t index = 0; index < told.size(); ++index) {
        EXPECT_EQ(told[index].status, GetParam().told[index].status);
        EXPECT_EQ(told[index].changes.size(), GetParam().told[index].changes.size());
    }
    EXPECT_EQ(older_.Text(), ExpectedText(GetParam()));
}

TEST_P(ZELOlderDocuments, KeepNoFeatureAliveThatNothingHolds) {
    const KORVar<KORFeature> platformMaterial = older_.Find(1);
    const auto references = platformMaterial->References();

    older_.Upgrade();
    older_.Document().Log().Clear();

    EXPECT_EQ(older_.Document().Features().Size(), GetParam().living);
    EXPECT_EQ(older_.Document().FeatureCount(), GetParam().living);
    EXPECT_EQ(platformMaterial->References(), references);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

TEST_P(ZELOlderDocuments, CloseWithNoFeatureLeft) {
    older_.Upgrade();

    older_.Document().Close();

    EXPECT_EQ(older_.Document().Features().Size(), 0u);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

// Nothing is rolled back: the copy of the material stays in the document, and a further upgrade, which fails
// again, makes another one.
TEST(ZELOlderDocument, NamesTheCopyThatAFailedMoveLeavesBehind) {
    const ZELCatalogFolder catalogs;
    ZELOlderDocument older(catalogs, ZELOlderText("old_container_model_missing"));

    const ZELTold failed{"Vulcanised natural rubber",
                         3,
                         0,
                         E_FAIL,
                         true,
                         {"6 Container", "7 Container", "8 Container"},
                         {6, 7, 8}};
    EXPECT_EQ(ZELToldOf(older.Upgrade()), std::vector{failed});
    EXPECT_EQ(older.Document().FeatureCount(), 8u);
}

INSTANTIATE_TEST_SUITE_P(, ZELOlderDocuments, testing::ValuesIn(kDocuments),
                         [](const auto& test) { return std::string(test.param.document); });

}  // namespace
