#include <gtest/gtest.h>

#include "interfaces/KORISamUpgrade.h"
#include "tests/ZELMaterialModel/older/ZELOlderDocument.h"
#include "tests/support/ZELFeatureValues.h"

namespace {

/// No coefficient is ever scaled twice, nor later than in the upgrade that marked its table as converted.
class ZELConvertOnce : public testing::Test {
protected:
    const ZELCatalogFolder catalogs_;
};

TEST_F(ZELConvertOnce, LeavesATableAloneThatWasMarkedWhileTheBehaviorWasOff) {
    ZELOlderDocument older(catalogs_, ZELOlderText("units_not_converted_behavior_off"));
    older.Upgrade();
    SetFlag(KORISpecObject_var(older.Find(3)), "ZELHyperelasticFlag", true);

    const KORUpgradeReport report = older.Upgrade();

    EXPECT_TRUE(report.upgraded.empty());
    EXPECT_EQ(older.Coefficients(), (ZELRows{{0.5, 0.1, 0.02, 293.15}, {0.4, 0.08, 0.025, 353.15}}));
}

TEST_F(ZELConvertOnce, LeavesAConvertedTableAloneWhenTheUnitOfPressureChanges) {
    ZELOlderDocument older(catalogs_, ZELOlderText("units_not_converted"));
    older.Upgrade();
    older.Document().Platform().Units().SetCurrentUnit("PRESSURE", "GPa");

    const KORUpgradeReport report = older.Upgrade();

    EXPECT_TRUE(report.upgraded.empty());
    EXPECT_EQ(older.Coefficients(), (ZELRows{{5e5, 1e5, 2e-8, 293.15}, {4e5, 8e4, 2.5e-8, 353.15}}));
}

TEST_F(ZELConvertOnce, ConvertsFromTheUnitOfPressureThatIsCurrentThen) {
    ZELOlderDocument older(catalogs_, ZELOlderText("units_not_converted"));
    older.Document().Platform().Units().SetCurrentUnit("PRESSURE", "kPa");

    const KORUpgradeReport report = older.Upgrade();

    ASSERT_EQ(report.upgraded.size(), 1u);
    EXPECT_EQ(report.upgraded[0].status, S_OK);
    EXPECT_EQ(older.Coefficients(), (ZELRows{{500.0, 100.0, 2e-5, 293.15}, {400.0, 80.0, 2.5e-5, 353.15}}));
}

TEST_F(ZELConvertOnce, LeavesATableAloneThatWasFilledAfterItFailed) {
    ZELOlderDocument older(catalogs_, ZELOlderText("units_empty_table"));
    older.Upgrade();
    const auto type = older.Document().Catalogs().Find(KORName::Find("ZELMaterialModelRowDataLT"));
    const KORIFeatureContainer_var container(KORBaseUnknown_var::Adopt(older.Document().GetFeatContainer()));
    const KORISpecObject_var row(container->NewFeature(type->layout, "Row"));
    SetList(row, "MaterialModelRowData", {0.5, 0.1, 0.02});
    AppendComponent(KORISpecObject_var(older.Find(6)), "HyperelasticMatModelData", row);

    const KORUpgradeReport report = older.Upgrade();

    EXPECT_TRUE(report.upgraded.empty());
    EXPECT_EQ(older.Coefficients(), (ZELRows{{0.5, 0.1, 0.02}}));
}

TEST_F(ZELConvertOnce, LeavesEverythingAloneThatARedoHasUpgradedSinceTheQuery) {
    ZELOlderDocument older(catalogs_, ZELOlderText("all_old_data_together"));
    older.Upgrade();
    const std::string upgraded = older.Text();
    ASSERT_TRUE(older.Document().Undo());
    std::vector<KORISamUpgrade_var> asked;
    older.Document().ForEachFeature(KORName::Find("ZELMaterialLT"), [&asked](KORFeature& material) {
        asked.push_back(KORISamUpgrade_var::Of(&material));
        EXPECT_TRUE(asked.back()->IsUpgradeNeeded());
    });
    ASSERT_FALSE(asked.empty());
    ASSERT_TRUE(older.Document().Redo());

    for (const auto& upgrade : asked)
        upgrade->Upgrade();  // a failure for one that was moved: it lies nowhere

    EXPECT_EQ(older.Text(), upgraded);
}

}  // namespace
