// The steps of the upgrade that move data between the containers of a document.

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "interfaces/KORIMaterialFeature.h"
#include "tests/ZELMaterialModel/src/ZELTestDataMaterial.h"
#include "tests/ZELMaterialModel/src/ZELUpgradeTest.h"
#include "tests/support/ZELMapStore.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

constexpr const char* kApplicativeName = "ZELMaterialApplicative";

class ZELUpgradeContainers : public ZELUpgradeTest {
protected:
    /// The platform's material, and the analysis data that hang on it.
    void HangOn(const KORISpecObject_var& platformMaterial, const KORISpecObject_var& data) {
        platformMaterial_ = platformMaterial;
        EXPECT_EQ(
            KORIMaterialFeature_var(platformMaterial)->SetApplicativeFeature(kApplicativeName, data.Get()),
            S_OK);
    }
    KORISpecObject_var Hanging() {
        return KORISpecObject_var::Adopt(
            KORIMaterialFeature_var(platformMaterial_)->GetApplicativeFeature(kApplicativeName));
    }

    const KORIContainer_var own_ = Store().Container();
    const KORIContainer_var old_ = Store().AddContainer("VRBMatAppliCont");
    const KORIContainer_var foreign_ = Store().AddContainer("TestData");
    KORISpecObject_var platformMaterial_ = Store().MakePlatformMaterial(own_);
};

}  // namespace

TEST_P(ZELUpgradeContainers, FindMaterialsInTheOldContainerOnly) {
    const ZELTestDataMaterial inOld(Store(), old_);
    const ZELTestDataMaterial inOwn(Store(), own_);
    const ZELTestDataMaterial inOther(Store(), foreign_);

    EXPECT_THAT(Needs(inOld.material), ElementsAre(0, 0, 0, 0, 0, 1, 0));
    EXPECT_THAT(Needs(inOwn.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(Needs(inOther.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeContainers, MoveTheMaterialBesideThePlatformsMaterial) {
    const ZELTestDataMaterial old(Store(), old_);
    SetList(old.density, "DensityData", {7850.0});
    HangOn(platformMaterial_, old.material);

    EXPECT_EQ(Upgrade(old.material), S_OK);

    const auto moved = Hanging();
    ASSERT_TRUE(moved);
    EXPECT_NE(moved, old.material);
    EXPECT_EQ(moved->GetType(), "ZELMaterialLT");
    EXPECT_EQ(ZELContainerOf(moved), KORBaseUnknown_var(own_));
    EXPECT_EQ(ZELContainerOf(old.material), nullptr) << "removed";
    EXPECT_EQ(KORISpecObject_var::Adopt(moved->GetFather()), platformMaterial_);
    const auto density = Component(moved, "ZELDensity");
    EXPECT_NE(density, old.density);
    EXPECT_EQ(ZELContainerOf(density), KORBaseUnknown_var(own_));
    EXPECT_THAT(List(density, "DensityData"), Optional(ElementsAre(7850.0)));
    EXPECT_THAT(Needs(moved), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeContainers, DoTheOtherStepsBeforeTheMaterialMoves) {
    const auto material = Store().MakeIn(old_, "ZELMaterialLT");
    HangOn(platformMaterial_, material);
    EXPECT_THAT(Needs(material), ElementsAre(1, 1, 0, 1, 1, 1, 0));

    EXPECT_EQ(Upgrade(material), S_OK);

    const auto moved = Hanging();
    ASSERT_TRUE(moved);
    EXPECT_EQ(ZELContainerOf(Component(moved, "ZELUserMaterial")), KORBaseUnknown_var(own_));
    const auto hyperelasticity = Component(moved, "ZELHyperelasticity");
    EXPECT_EQ(ZELContainerOf(hyperelasticity), KORBaseUnknown_var(own_));
    EXPECT_TRUE(GetFlag(hyperelasticity, "HyperelasticUnitUpgradeRequired"));
    EXPECT_EQ(ZELContainerOf(Component(hyperelasticity, "HyperelasticModel_v2")), KORBaseUnknown_var(own_));
}

TEST_P(ZELUpgradeContainers, CarryTheTestDataOfTheMovedMaterial) {
    ZELTestDataMaterial old(Store(), old_);
    old.SwitchOn(true);
    old.AddTestData(Store(), old_, {1.0, 2.0});
    old.AddTestData(Store(), old_, {3.0});
    HangOn(platformMaterial_, old.material);

    EXPECT_EQ(Upgrade(old.material), S_OK);

    const auto model = ZELModelOf(Hanging());
    EXPECT_EQ(ZELTestDataOf(model), (ZELRows{{1.0, 2.0}, {3.0}}));
    EXPECT_EQ(ZELTestDataContainers(model), std::vector(2, KORBaseUnknown_var(own_)));
    EXPECT_EQ(ZELTestDataOf(old.model), ZELRows()) << "they are listed once";
}

TEST_P(ZELUpgradeContainers, CarryTestDataThatLieInAThirdContainer) {
    ZELTestDataMaterial old(Store(), old_);
    old.SwitchOn(true);
    old.AddTestData(Store(), foreign_, {1.0, 2.0});
    HangOn(platformMaterial_, old.material);
    EXPECT_THAT(Needs(old.material), ElementsAre(0, 0, 0, 0, 0, 1, 0)) << "the old container decides";

    EXPECT_EQ(Upgrade(old.material), S_OK);

    const auto model = ZELModelOf(Hanging());
    EXPECT_EQ(ZELTestDataOf(model), (ZELRows{{1.0, 2.0}}));
    EXPECT_EQ(ZELTestDataContainers(model), std::vector(1, KORBaseUnknown_var(own_)));
}

TEST_P(ZELUpgradeContainers, UnlistTheTestDataOfAMovedMaterialThatIsSwitchedOff) {
    ZELTestDataMaterial old(Store(), old_);
    old.AddTestData(Store(), old_, {1.0, 2.0});
    HangOn(platformMaterial_, old.material);

    EXPECT_EQ(Upgrade(old.material), S_OK);

    EXPECT_EQ(ZELTestDataOf(ZELModelOf(Hanging())), ZELRows());
    EXPECT_EQ(ZELTestDataOf(old.model), (ZELRows{{1.0, 2.0}}));
}

TEST_P(ZELUpgradeContainers, LeaveAMaterialWhoseFatherLiesInTheOldContainer) {
    const ZELTestDataMaterial old(Store(), old_);
    HangOn(Store().MakePlatformMaterial(old_), old.material);

    EXPECT_EQ(Upgrade(old.material), S_OK);

    EXPECT_EQ(Hanging(), old.material);
    EXPECT_EQ(ZELContainerOf(old.material), KORBaseUnknown_var(old_));
}

TEST_P(ZELUpgradeContainers, CannotMoveAMaterialThatHangsNowhere) {
    const ZELTestDataMaterial old(Store(), old_);

    EXPECT_EQ(Upgrade(old.material), E_FAIL);

    EXPECT_EQ(ZELContainerOf(old.material), KORBaseUnknown_var(old_));
    EXPECT_THAT(Needs(old.material), ElementsAre(0, 0, 0, 0, 0, 1, 0));
}

TEST_P(ZELUpgradeContainers, MoveTheMaterialWhenItIsFirstLookedAt) {
    const ZELTestDataMaterial old(Store(), old_);
    HangOn(platformMaterial_, old.material);

    const ZELIMaterial_var extension = old.material;

    EXPECT_NE(Hanging(), old.material);
    EXPECT_EQ(KORISpecObject_var(extension), old.material) << "who holds it goes on over the old feature";
}

TEST_P(ZELUpgradeContainers, FindTestDataInAForeignContainer) {
    ZELTestDataMaterial material(Store(), own_);
    EXPECT_THAT(Needs(material.material), ElementsAre(0, 0, 0, 0, 0, 0, 0)) << "none";

    material.AddTestData(Store(), own_, {1.0});
    EXPECT_THAT(Needs(material.material), ElementsAre(0, 0, 0, 0, 0, 0, 0)) << "in its own";

    material.AddTestData(Store(), foreign_, {2.0});
    EXPECT_THAT(Needs(material.material), ElementsAre(0, 0, 0, 0, 0, 0, 0)) << "the first decides";

    ZELTestDataMaterial other(Store(), own_);
    other.AddTestData(Store(), foreign_, {1.0});
    EXPECT_THAT(Needs(other.material), ElementsAre(0, 0, 0, 0, 0, 0, 1));
}

TEST_P(ZELUpgradeContainers, FetchTestDataInTheirOrder) {
    ZELTestDataMaterial material(Store(), own_);
    material.SwitchOn(true);
    const auto first = material.AddTestData(Store(), foreign_, {1.0, 2.0});
    material.AddTestData(Store(), foreign_, {3.0});

    EXPECT_EQ(Upgrade(material.material), S_OK);

    EXPECT_EQ(ZELTestDataOf(material.model), (ZELRows{{1.0, 2.0}, {3.0}}));
    EXPECT_EQ(ZELTestDataContainers(material.model), std::vector(2, KORBaseUnknown_var(own_)));
    EXPECT_EQ(ZELContainerOf(first), KORBaseUnknown_var(foreign_)) << "the originals stay where they are";
    EXPECT_THAT(Needs(material.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeContainers, UnlistForeignTestDataOfAMaterialThatIsSwitchedOff) {
    ZELTestDataMaterial material(Store(), own_);
    material.AddTestData(Store(), foreign_, {1.0, 2.0});

    EXPECT_EQ(Upgrade(material.material), S_OK);

    EXPECT_THAT(Components(material.model, "HyperelasticMatModelData"), Optional(IsEmpty()));
    EXPECT_THAT(Needs(material.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeContainers, FetchAllTestDataWhereTheyDoNotLieTogether) {
    ZELTestDataMaterial material(Store(), own_);
    material.SwitchOn(true);
    material.AddTestData(Store(), foreign_, {1.0});
    const auto own = material.AddTestData(Store(), own_, {2.0});

    EXPECT_EQ(Upgrade(material.material), S_OK);

    EXPECT_EQ(ZELTestDataOf(material.model), (ZELRows{{1.0}, {2.0}}));
    EXPECT_EQ(ZELTestDataContainers(material.model), std::vector(2, KORBaseUnknown_var(own_)));
    EXPECT_NE(Components(material.model, "HyperelasticMatModelData").value()[1], own) << "copied, too";
    EXPECT_THAT(Needs(material.material), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeContainers, KeepTheListWhereOneOfTheTestDataLiesNowhere) {
    ZELTestDataMaterial material(Store(), own_);
    material.SwitchOn(true);
    material.AddTestData(Store(), foreign_, {1.0});
    Store().Remove(material.AddTestData(Store(), own_, {2.0}));

    EXPECT_EQ(Upgrade(material.material), E_FAIL);

    EXPECT_EQ(ZELTestDataOf(material.model), (ZELRows{{1.0}, {2.0}}));
    EXPECT_THAT(Needs(material.material), ElementsAre(0, 0, 0, 0, 0, 0, 1));
}

// The material alone lies in the old container: its copy goes on with the same hyperelastic feature, or with
// the same model.
TEST_P(ZELUpgradeContainers, KeepTheCoefficientsOfAMaterialWhoseHyperelasticityLiesElsewhere) {
    ZELTestDataMaterial data(Store(), own_);
    data.AddTestData(Store(), foreign_, {1.0, 2.0});
    const auto old = Store().MakeIn(old_, "ZELMaterialLT");
    Attach(old, "ZELUserMaterial", Component(data.material, "ZELUserMaterial"));
    Attach(old, "ZELHyperelasticity", data.hyperelasticity);
    SetFlag(old, "ZELHyperelasticFlag", true);
    HangOn(platformMaterial_, old);

    EXPECT_EQ(Upgrade(old), S_OK);

    ASSERT_NE(Hanging(), old);
    EXPECT_EQ(ZELModelOf(Hanging()), data.model);
    EXPECT_EQ(ZELTestDataOf(data.model), (ZELRows{{1.0, 2.0}}));
    EXPECT_EQ(ZELTestDataContainers(data.model), std::vector(1, KORBaseUnknown_var(own_)));
    EXPECT_THAT(Needs(Hanging()), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_P(ZELUpgradeContainers, KeepTheCoefficientsOfAMaterialWhoseModelLiesElsewhere) {
    ZELTestDataMaterial old(Store(), old_);
    const ZELTestDataMaterial elsewhere(Store(), own_);
    Attach(old.hyperelasticity, "HyperelasticModel_v2", elsewhere.model);
    old.model = elsewhere.model;
    old.AddTestData(Store(), foreign_, {1.0, 2.0});
    old.SwitchOn(true);
    HangOn(platformMaterial_, old.material);

    EXPECT_EQ(Upgrade(old.material), S_OK);

    ASSERT_NE(Hanging(), old.material);
    EXPECT_NE(Component(Hanging(), "ZELHyperelasticity"), old.hyperelasticity);
    EXPECT_EQ(ZELModelOf(Hanging()), elsewhere.model);
    EXPECT_EQ(ZELTestDataOf(elsewhere.model), (ZELRows{{1.0, 2.0}}));
    EXPECT_EQ(ZELTestDataContainers(elsewhere.model), std::vector(1, KORBaseUnknown_var(own_)));
}

ZEL_ON_BOTH_STORES(ZELUpgradeContainers);
