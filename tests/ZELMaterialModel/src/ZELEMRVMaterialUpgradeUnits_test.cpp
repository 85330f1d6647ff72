#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "tests/ZELMaterialModel/src/ZELUpgradeTest.h"

using testing::ElementsAre;

namespace {

class ZELUpgradeUnits : public ZELUpgradeTest {};

}  // namespace

TEST_P(ZELUpgradeUnits, ConvertsPressuresAndCompressibilitiesAndLeavesTheRest) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {{1.0, 2.0, 8.0, 293.0}, {3.0, 5.0, 16.0, 373.0}});
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 1, 0, 0));

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{4.0, 8.0, 2.0, 293.0}, {12.0, 20.0, 4.0, 373.0}}));
    EXPECT_TRUE(GetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired"));
    EXPECT_EQ(units_.AskedFor(), "PRESSURE");
    EXPECT_EQ(units_.References(), 1);
}

TEST_P(ZELUpgradeUnits, ConvertsByTheOrderOfTheModel) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "OGDEN", 2, {{1.0, 2.0, 3.0, 4.0, 8.0, 16.0, 293.0}});

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{4.0, 2.0, 12.0, 4.0, 2.0, 4.0, 293.0}}));
}

TEST_P(ZELUpgradeUnits, ConvertsRowsOfAnyLength) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "YEOH", 3, {{1.0}, {}, {1.0, 1.0, 1.0, 8.0, 8.0, 8.0, 293.0, 7.0}});

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{4.0}, {}, {4.0, 4.0, 4.0, 2.0, 2.0, 2.0, 293.0, 7.0}}));
}

TEST_P(ZELUpgradeUnits, ConvertsNothingOfAModelItDoesNotKnow) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MY_OWN", 1, {{1.0, 2.0}});

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{1.0, 2.0}}));
    EXPECT_TRUE(GetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired"));
}

TEST_P(ZELUpgradeUnits, ConvertsNothingWhileTheBehaviorIsOff) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {{1.0, 2.0, 8.0}});
    SetFlag(tree.material, "ZELHyperelasticFlag", false);

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{1.0, 2.0, 8.0}}));
    EXPECT_TRUE(GetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired"));
}

TEST_P(ZELUpgradeUnits, NeverConvertsTwice) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {{1.0, 2.0, 8.0}});
    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{4.0, 8.0, 2.0}}));
}

TEST_P(ZELUpgradeUnits, ConvertsOnceForOneQueryHoweverOftenItIsRun) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {{1.0, 2.0, 8.0}});
    const KORISamUpgrade_var upgrade = tree.material;
    EXPECT_TRUE(upgrade->IsUpgradeNeeded());
    EXPECT_EQ(upgrade->Upgrade(), S_OK);

    EXPECT_EQ(upgrade->Upgrade(), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{4.0, 8.0, 2.0}}));
}

TEST_P(ZELUpgradeUnits, ConvertsOnceWhereTheMaterialIsLookedAtBetweenQueryAndUpgrade) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {{1.0, 2.0, 8.0}});
    const KORISamUpgrade_var upgrade = tree.material;
    EXPECT_TRUE(upgrade->IsUpgradeNeeded());
    EXPECT_TRUE(ZELIMaterial_var(tree.material)) << "which upgrades it";

    EXPECT_EQ(upgrade->Upgrade(), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{4.0, 8.0, 2.0}}));
}

TEST_P(ZELUpgradeUnits, ConvertsOnceForTwoMaterialsThatWereBothAskedBefore) {
    const ZELFullMaterialTree tree(Store());
    const ZELFullMaterialTree other(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {{1.0, 2.0, 8.0}});
    SetFlag(other.material, "ZELHyperelasticFlag", true);
    Attach(other.material, "ZELHyperelasticity", tree.hyperelasticity);
    const KORISamUpgrade_var upgrade = tree.material;
    const KORISamUpgrade_var otherUpgrade = other.material;
    EXPECT_TRUE(upgrade->IsUpgradeNeeded());
    EXPECT_TRUE(otherUpgrade->IsUpgradeNeeded());

    EXPECT_EQ(upgrade->Upgrade(), S_OK);
    EXPECT_EQ(otherUpgrade->Upgrade(), S_OK);

    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{4.0, 8.0, 2.0}}));
}

TEST_P(ZELUpgradeUnits, MarksCoefficientsAsConvertedBeforeAConversionThatFails) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {});

    EXPECT_EQ(Upgrade(tree.material), E_FAIL) << "an empty table";

    EXPECT_TRUE(GetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired"));
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0)) << "it is not tried again";
}

TEST_P(ZELUpgradeUnits, FailsToConvertWithoutAModel) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {{1.0}});
    for (const KORISpecObject_var& none : {KORISpecObject_var(), tree.density}) {
        SetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired", false);
        Attach(tree.hyperelasticity, "HyperelasticModel_v2", none);

        EXPECT_EQ(Upgrade(tree.material), E_FAIL);

        EXPECT_TRUE(GetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired"));
    }
}

TEST_P(ZELUpgradeUnits, FailsToConvertWithoutACurrentUnitAndLeavesTheTable) {
    const ZELFullMaterialTree tree(Store());
    SetUnconverted(tree, "MOONEY_RIVLIN", 1, {{1.0, 2.0, 8.0}});
    services_.Table().units = nullptr;

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_TRUE(GetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired"));
    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{1.0, 2.0, 8.0}}));
}

ZEL_ON_BOTH_STORES(ZELUpgradeUnits);
