#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "tests/ZELMaterialModel/src/ZELUpgradeTest.h"

using testing::ElementsAre;

namespace {

class ZELUpgradeQuery : public ZELUpgradeTest {};

}  // namespace

TEST_P(ZELUpgradeQuery, IsAnotherObjectThanTheMaterialOnTheSameFeature) {
    const ZELFullMaterialTree tree(Store());
    const ZELIMaterial_var material = tree.material;
    const KORISamUpgrade_var upgrade = tree.material;
    ASSERT_TRUE(upgrade);

    EXPECT_TRUE(KORGetImplementation<ZELEMRVMaterialUpgrade>(upgrade.Get()));
    EXPECT_FALSE(KORGetImplementation<ZELEMRVMaterialUpgrade>(material.Get()));
    EXPECT_EQ(KORBaseUnknown_var(upgrade), KORBaseUnknown_var(material)) << "one component";
}

TEST_P(ZELUpgradeQuery, FindsNothingToDoOnACurrentMaterial) {
    const ZELFullMaterialTree tree(Store());

    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeQuery, FindsEverythingMissingOnTheOldestMaterial) {
    const auto tree = MakeOldest();

    EXPECT_THAT(Needs(tree.material), ElementsAre(1, 1, 0, 1, 1, 0, 0));
}

TEST_P(ZELUpgradeQuery, FindsAMissingUserMaterial) {
    const ZELFullMaterialTree tree(Store());
    Attach(tree.material, "ZELUserMaterial", nullptr);

    EXPECT_THAT(Needs(tree.material), ElementsAre(1, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeQuery, FindsJohnsonCookDataUnderTheOldAttribute) {
    const ZELFullMaterialTree tree(Store());
    AddOldJohnsonCook(tree);
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 1, 0, 0, 0, 0));

    Attach(tree.material, "ZELPlastic", nullptr);
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0)) << "no plasticity";
}

TEST_P(ZELUpgradeQuery, FindsAModelUnderTheOldAttribute) {
    const ZELFullMaterialTree tree(Store());
    AddOldModel(tree);

    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 1, 0, 0, 0));
}

TEST_P(ZELUpgradeQuery, FindsUnconvertedCoefficientsByAFlagThatSaysTheOpposite) {
    const ZELFullMaterialTree tree(Store());
    SetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired", false);
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 1, 0, 0));

    const auto older = Make("MRVHyperelasticityLT");
    Attach(tree.material, "ZELHyperelasticity", older);
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 1, 0, 0)) << "never valued";
}

TEST_P(ZELUpgradeQuery, TakesAMissingAttributeForNothingToDo) {
    Store().OmitAttribute("ZELPlasticLT", "JohnsonCookData");
    Store().OmitAttribute("MRVHyperelasticityLT", "HyperelasticModel");
    const ZELFullMaterialTree tree(Store());
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));

    Store().OmitAttribute("MRVHyperelasticityLT", "HyperelasticUnitUpgradeRequired");
    Attach(tree.material, "ZELHyperelasticity", Make("MRVHyperelasticityLT"));
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeQuery, StartsEachQueryWithAllFlagsOff) {
    const ZELFullMaterialTree tree(Store());
    Attach(tree.material, "ZELUserMaterial", nullptr);
    const KORISamUpgrade_var upgrade = tree.material;
    EXPECT_TRUE(upgrade->IsUpgradeNeeded());

    Attach(tree.material, "ZELUserMaterial", tree.userMaterial);

    EXPECT_FALSE(upgrade->IsUpgradeNeeded());
    EXPECT_THAT(FlagsOf(upgrade), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

ZEL_ON_BOTH_STORES(ZELUpgradeQuery);
