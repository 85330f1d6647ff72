#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELHyperelastic.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "tests/ZELMaterialModel/src/ZELUpgradeTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZELUpgradeSteps : public ZELUpgradeTest {};

}  // namespace

TEST_P(ZELUpgradeSteps, DoesNothingBeforeItWasAsked) {
    const auto tree = MakeOldest();
    const long features = Store().LiveFeatures();

    EXPECT_EQ(KORISamUpgrade_var(tree.material)->Upgrade(), S_OK);

    EXPECT_EQ(Store().LiveFeatures(), features);
}

TEST_P(ZELUpgradeSteps, FailsForAMaterialOutsideAContainer) {
    const auto tree = MakeOldest();
    Store().Remove(tree.material);

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_FALSE(Component(tree.material, "ZELUserMaterial"));
}

TEST_P(ZELUpgradeSteps, AddsAUserMaterialBesideTheMaterial) {
    const ZELFullMaterialTree tree(Store());
    Attach(tree.material, "ZELUserMaterial", nullptr);
    const long features = Store().LiveFeatures();

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    const auto added = Component(tree.material, "ZELUserMaterial");
    ASSERT_TRUE(added);
    EXPECT_EQ(added->GetType(), "MRVUserMaterialLT");
    EXPECT_EQ(added->GetName(), "MRVUserMaterialLT");
    EXPECT_EQ(References(added), 3) << "container, material and this test";
    EXPECT_EQ(Store().LiveFeatures(), features + 1);
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeSteps, CannotAddAUserMaterialWithoutItsStartUpOrAttribute) {
    Store().OmitType("MRVUserMaterialLT");
    const auto tree = MakeOldest();
    EXPECT_EQ(Upgrade(tree.material), E_FAIL);
    EXPECT_FALSE(Component(tree.material, "ZELHyperelasticity")) << "the first failure is the last step";

    const auto store = GetParam().make();
    store->OmitAttribute("ZELMaterialLT", "ZELUserMaterial");
    const ZELMaterialTree lacking(*store);
    EXPECT_EQ(Upgrade(lacking.material), E_FAIL);
    EXPECT_FALSE(Component(lacking.material, "ZELHyperelasticity"));
}

TEST_P(ZELUpgradeSteps, AddsHyperelasticityWithAnEmptyModelInCurrentUnits) {
    const auto tree = MakeOldest();

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    const auto added = Component(tree.material, "ZELHyperelasticity");
    ASSERT_TRUE(added);
    EXPECT_EQ(added->GetType(), "MRVHyperelasticityLT");
    EXPECT_EQ(added->GetName(), "MRVHyperelasticityLT");
    EXPECT_TRUE(GetFlag(added, "HyperelasticUnitUpgradeRequired"));
    const auto model = Component(added, "HyperelasticModel_v2");
    ASSERT_TRUE(model);
    EXPECT_EQ(model->GetType(), "ZELHyperelasticMaterialModelLT");
    EXPECT_EQ(model->GetName(), "ZELHyperelasticMaterialModelLT");
    EXPECT_EQ(RowsOf(model), ZELRows());
    EXPECT_EQ(GetWhole(model, "HyperelasticMatModelPotentialOrder"), 0);
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeSteps, CannotAddHyperelasticityWithoutItsStartUp) {
    Store().OmitType("MRVHyperelasticityLT");
    const auto tree = MakeOldest();

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_TRUE(Component(tree.material, "ZELUserMaterial")) << "what was done before stays";
    EXPECT_FALSE(Component(tree.material, "ZELHyperelasticity"));
}

TEST_P(ZELUpgradeSteps, CannotAddHyperelasticityWithoutItsAttribute) {
    Store().OmitAttribute("ZELMaterialLT", "ZELHyperelasticity");
    const auto tree = MakeOldest();

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_TRUE(Component(tree.material, "ZELUserMaterial"));
}

TEST_P(ZELUpgradeSteps, LeavesHyperelasticityWithoutAModelWhereThatCannotBeMade) {
    Store().OmitType("ZELHyperelasticMaterialModelLT");
    const auto tree = MakeOldest();

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    const auto added = Component(tree.material, "ZELHyperelasticity");
    ASSERT_TRUE(added);
    EXPECT_FALSE(Component(added, "HyperelasticModel_v2"));
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 1, 0, 0)) << "the next run goes on from here";
    EXPECT_EQ(Upgrade(tree.material), S_OK) << "the behavior is off, so there is nothing to convert";
}

TEST_P(ZELUpgradeSteps, LeavesTheModelLooseWhereHyperelasticityCannotHoldIt) {
    Store().OmitAttribute("MRVHyperelasticityLT", "HyperelasticModel_v2");
    const auto tree = MakeOldest();

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_TRUE(Component(tree.material, "ZELHyperelasticity"));
}

TEST_P(ZELUpgradeSteps, MovesJohnsonCookDataIntoANewFeature) {
    const ZELFullMaterialTree tree(Store());
    const auto old = AddOldJohnsonCook(tree);

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_FALSE(Component(tree.plastic, "JohnsonCookData"));
    const auto moved = Component(tree.plastic, "JohnsonCookData_v2");
    ASSERT_TRUE(moved);
    EXPECT_NE(moved, old);
    EXPECT_EQ(GetNumber(moved, "CoeffA"), 350e6);
    EXPECT_EQ(GetNumber(moved, "CoeffB"), 275e6);
    EXPECT_EQ(GetNumber(moved, "CoeffN"), 0.36);
    EXPECT_EQ(GetNumber(moved, "CoeffM"), 1.03);
    EXPECT_EQ(GetNumber(moved, "MeltingTemperature"), 1793.0);
    EXPECT_EQ(GetNumber(moved, "TransitionTemperature"), 298.0);
    EXPECT_EQ(References(moved), 3) << "container, plastic feature and this test";
    EXPECT_EQ(References(old), 2) << "it stays in the document";
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeSteps, ReplacesCurrentJohnsonCookDataByTheOldOnes) {
    const ZELFullMaterialTree tree(Store());
    AddOldJohnsonCook(tree);
    Attach(tree.plastic, "JohnsonCookData_v2", Make("ZELPlasticJohnsonCookLT"));

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(GetNumber(Component(tree.plastic, "JohnsonCookData_v2"), "CoeffA"), 350e6);
}

TEST_P(ZELUpgradeSteps, MovesZerosFromAnObjectThatHoldsNoJohnsonCookData) {
    const ZELFullMaterialTree tree(Store());
    Attach(tree.plastic, "JohnsonCookData", tree.density);

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    const auto moved = Component(tree.plastic, "JohnsonCookData_v2");
    ASSERT_TRUE(moved);
    EXPECT_EQ(GetNumber(moved, "CoeffA"), 0.0);
    EXPECT_EQ(GetNumber(moved, "MeltingTemperature"), 0.0) << "not the default of a new one";
    EXPECT_EQ(GetNumber(moved, "TransitionTemperature"), 0.0);
    EXPECT_FALSE(Component(tree.plastic, "JohnsonCookData"));
}

TEST_P(ZELUpgradeSteps, KeepsOldJohnsonCookDataWithoutTheNewAttribute) {
    Store().OmitAttribute("ZELPlasticLT", "JohnsonCookData_v2");
    const ZELFullMaterialTree tree(Store());
    const auto old = AddOldJohnsonCook(tree);
    SetUnconverted(tree, "NEO_HOOKE", 1, {{1.0, 2.0}});

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_EQ(Component(tree.plastic, "JohnsonCookData"), old);
    EXPECT_FALSE(GetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired")) << "no step after it";
    EXPECT_EQ(RowsOf(tree.model), (ZELRows{{1.0, 2.0}}));
}

TEST_P(ZELUpgradeSteps, KeepsOldJohnsonCookDataWhenNoNewFeatureCanBeMade) {
    const ZELFullMaterialTree tree(Store());
    const auto old = AddOldJohnsonCook(tree);
    Store().OmitType("ZELPlasticJohnsonCookLT");

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_EQ(Component(tree.plastic, "JohnsonCookData"), old);
    EXPECT_FALSE(Component(tree.plastic, "JohnsonCookData_v2"));
}

TEST_P(ZELUpgradeSteps, MovesTheModelIntoANewFeature) {
    const ZELFullMaterialTree tree(Store());
    const auto old = AddOldModel(tree);

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_FALSE(Component(tree.hyperelasticity, "HyperelasticModel"));
    const auto moved = Component(tree.hyperelasticity, "HyperelasticModel_v2");
    ASSERT_TRUE(moved);
    EXPECT_NE(moved, old);
    EXPECT_EQ(GetWhole(moved, "HyperelasticMatModelPotentialOrder"), 2);
    EXPECT_TRUE(GetFlag(moved, "HyperelasticMatModelTempDependentFlag"));
    EXPECT_EQ(GetText(moved, "HyperelasticMatModelDataFile"), "rubber.csv");
    EXPECT_EQ(RowsOf(moved), (ZELRows{{1.0, 2.0, 3.0, 293.0}, {4.0, 5.0, 6.0}}));
    EXPECT_EQ(References(moved), 3) << "container, hyperelastic feature and this test";
    EXPECT_EQ(RowsOf(old), (ZELRows{{1.0, 2.0, 3.0, 293.0}, {4.0, 5.0, 6.0}})) << "it stays in the document";
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeSteps, MovesAnEmptyModelFromAnObjectThatIsNone) {
    const ZELFullMaterialTree tree(Store());
    Attach(tree.hyperelasticity, "HyperelasticModel", tree.density);

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    const auto moved = Component(tree.hyperelasticity, "HyperelasticModel_v2");
    EXPECT_NE(moved, tree.model);
    EXPECT_EQ(RowsOf(moved), ZELRows());
    EXPECT_FALSE(Component(tree.hyperelasticity, "HyperelasticModel"));
}

TEST_P(ZELUpgradeSteps, KeepsTheOldModelWithoutTheNewAttribute) {
    Store().OmitAttribute("MRVHyperelasticityLT", "HyperelasticModel_v2");
    const ZELMaterialTree tree(Store());
    Attach(tree.material, "ZELUserMaterial", Make("MRVUserMaterialLT"));
    const auto hyperelasticity = Make("MRVHyperelasticityLT");
    const auto old = Make("ZELHyperelasticMaterialModelLT");
    Attach(tree.material, "ZELHyperelasticity", hyperelasticity);
    Attach(hyperelasticity, "HyperelasticModel", old);

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_EQ(Component(hyperelasticity, "HyperelasticModel"), old);
    EXPECT_FALSE(GetFlag(hyperelasticity, "HyperelasticUnitUpgradeRequired"));
}

TEST_P(ZELUpgradeSteps, KeepsTheOldModelWhenItsRowsCannotBeMade) {
    const ZELFullMaterialTree tree(Store());
    const auto old = AddOldModel(tree);
    Store().OmitType("ZELMaterialModelRowDataLT");

    EXPECT_EQ(Upgrade(tree.material), E_FAIL);

    EXPECT_EQ(Component(tree.hyperelasticity, "HyperelasticModel"), old);
    EXPECT_FALSE(Component(tree.hyperelasticity, "HyperelasticModel_v2"));
}

TEST_P(ZELUpgradeSteps, DoesAllStepsOfAnOldMaterialInOneRun) {
    const ZELFullMaterialTree tree(Store());
    Attach(tree.material, "ZELUserMaterial", nullptr);
    AddOldJohnsonCook(tree);
    SetUnconverted(tree, "NEO_HOOKE", 1, {{9.0}});
    const auto old = AddOldModel(tree);
    EXPECT_THAT(Needs(tree.material), ElementsAre(1, 0, 1, 1, 1, 0, 0));

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_TRUE(Component(tree.material, "ZELUserMaterial"));
    EXPECT_EQ(GetNumber(Component(tree.plastic, "JohnsonCookData_v2"), "CoeffA"), 350e6);
    const auto model = Component(tree.hyperelasticity, "HyperelasticModel_v2");
    EXPECT_EQ(RowsOf(model), (ZELRows{{4.0, 0.5, 3.0, 293.0}, {16.0, 1.25, 6.0}})) << "moved, then converted";
    EXPECT_EQ(RowsOf(old)[0], (std::vector<double>{1.0, 2.0, 3.0, 293.0}));
    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELUpgradeSteps, ChangesNothingInASecondRun) {
    const auto tree = MakeOldest();
    AddOldJohnsonCook(tree);
    EXPECT_EQ(Upgrade(tree.material), S_OK);
    const auto hyperelasticity = Component(tree.material, "ZELHyperelasticity");
    const auto model = Component(hyperelasticity, "HyperelasticModel_v2");
    const auto johnsonCook = Component(tree.plastic, "JohnsonCookData_v2");
    const long features = Store().LiveFeatures();

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(Component(tree.material, "ZELHyperelasticity"), hyperelasticity);
    EXPECT_EQ(Component(hyperelasticity, "HyperelasticModel_v2"), model);
    EXPECT_EQ(Component(tree.plastic, "JohnsonCookData_v2"), johnsonCook);
    EXPECT_EQ(Store().LiveFeatures(), features);
}

TEST_P(ZELUpgradeSteps, GoesOnAfterAFailureFromWhatIsStored) {
    const auto tree = MakeOldest();
    Attach(tree.plastic, "JohnsonCookData", nullptr);
    AddOldJohnsonCook(tree);
    Store().OmitType("ZELPlasticJohnsonCookLT");
    EXPECT_THAT(Needs(tree.material), ElementsAre(1, 1, 1, 1, 1, 0, 0));
    EXPECT_EQ(Upgrade(tree.material), E_FAIL);
    const auto hyperelasticity = Component(tree.material, "ZELHyperelasticity");

    EXPECT_THAT(Needs(tree.material), ElementsAre(0, 0, 1, 0, 1, 0, 0));
    Attach(tree.plastic, "JohnsonCookData", nullptr);
    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(Component(tree.material, "ZELHyperelasticity"), hyperelasticity);
    EXPECT_TRUE(GetFlag(hyperelasticity, "HyperelasticUnitUpgradeRequired"));
}

TEST_P(ZELUpgradeSteps, RunsWhenTheMaterialIsFirstLookedAt) {
    const auto tree = MakeOldest();
    {
        const ZELIMaterial_var material = tree.material;
        ZELGenHeapObjectProxy<ZELHyperelastic> hyperelastic;
        material->GetHyperelasticProperties(hyperelastic);

        EXPECT_EQ(hyperelastic->SetMaterialModelType("OGDEN"), S_OK) << "it is built over what was added";
    }
    EXPECT_EQ(GetText(Component(tree.material, "ZELHyperelasticity"), "HyperelasticMatModelType"), "OGDEN");
    EXPECT_TRUE(Component(tree.material, "ZELUserMaterial"));
}

TEST_P(ZELUpgradeSteps, LeavesNoReferenceBehind) {
    const auto tree = MakeOldest();
    AddOldJohnsonCook(tree);
    const long material = References(tree.material);
    const long plastic = References(tree.plastic);

    EXPECT_EQ(Upgrade(tree.material), S_OK);

    EXPECT_EQ(References(tree.material), material);
    EXPECT_EQ(References(tree.plastic), plastic);
    EXPECT_EQ(References(Component(tree.material, "ZELHyperelasticity")), 3);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

ZEL_ON_BOTH_STORES(ZELUpgradeSteps);
