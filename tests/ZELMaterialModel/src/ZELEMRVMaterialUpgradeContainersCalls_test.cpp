// The order in which the upgrade moves data between containers, and what it leaves when a call fails.

#include <gmock/gmock.h>

#include "interfaces/KORIMaterialFeature.h"
#include "tests/ZELMaterialModel/src/ZELTestDataMaterial.h"
#include "tests/ZELMaterialModel/src/ZELUpgradeTest.h"
#include "tests/support/ZELMapStore.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kApplicativeName = "ZELMaterialApplicative";

/// A material in the old container that hangs on one of the platform, over the map store.
struct Moving {
    Moving() {
        data.SwitchOn(true);
        data.AddTestData(store, store.AddContainer("VRBMatAppliCont"), {1.0});
        EXPECT_EQ(platformMaterial->SetApplicativeFeature(kApplicativeName, data.material.Get()), S_OK);
        store.Calls().ClearLog();
    }
    /// The upgrade, with one call of some kind failing after the query.
    HRESULT Upgrade(ZELFault fault, int n, const char* kind) {
        const KORISamUpgrade_var upgrade = data.material;
        EXPECT_TRUE(upgrade->IsUpgradeNeeded());
        store.Calls().Inject(fault, n, kind);
        const HRESULT status = upgrade->Upgrade();
        EXPECT_TRUE(store.Calls().FaultHit()) << kind;
        return status;
    }
    bool Hangs() {
        const ZELUnrecorded unrecorded;
        return KORISpecObject_var::Adopt(platformMaterial->GetApplicativeFeature(kApplicativeName)) ==
               data.material;
    }
    bool InOldContainer() { return ZELContainerOf(data.material) != nullptr; }

    ZELMapStore store;
    ZELTestDataMaterial data{store, store.AddContainer("VRBMatAppliCont")};
    KORIMaterialFeature_var platformMaterial = store.MakePlatformMaterial(store.Container());
};

}  // namespace

TEST(ZELUpgradeContainersCalls, CopyCarryDetachRemoveAndAttachInThatOrder) {
    Moving moving;
    const KORISamUpgrade_var upgrade = moving.data.material;
    upgrade->IsUpgradeNeeded();
    EXPECT_EQ(upgrade->Upgrade(), S_OK);

    std::vector<std::string> steps;
    for (const std::string& line : moving.store.Calls().Log()) {
        for (const char* kind : {"Extract ", "Paste ", "Remove ", "RemoveAllValues ", "AppendComponent ",
                                 "RemoveApplicativeFeature ", "SetApplicativeFeature "}) {
            if (line.starts_with(kind)) steps.push_back(line);
        }
    }
    EXPECT_THAT(steps, ElementsAre("Extract VRBMatAppliCont 1", "Paste Container 6",
                                   "RemoveAllValues ZELHyperelasticMaterialModelLT.HyperelasticMatModelData",
                                   "Extract VRBMatAppliCont 1", "Paste Container 1",
                                   "AppendComponent ZELHyperelasticMaterialModelLT.HyperelasticMatModelData "
                                   "ZELMaterialModelRowDataLT",
                                   "RemoveAllValues ZELHyperelasticMaterialModelLT.HyperelasticMatModelData",
                                   "RemoveApplicativeFeature ZELMaterialApplicative",
                                   "Remove VRBMatAppliCont", "SetApplicativeFeature ZELMaterialApplicative"));
}

TEST(ZELUpgradeContainersCalls, LeaveTheMaterialWhenTheOldContainerIsGoneSinceTheQuery) {
    Moving moving;

    EXPECT_EQ(moving.Upgrade(ZELFault::Refuse, 1, "FindContainer"), S_OK);

    EXPECT_TRUE(moving.Hangs());
    EXPECT_TRUE(moving.InOldContainer());
}

TEST(ZELUpgradeContainersCalls, FailAndKeepTheMaterialWhereItCannotBeCopied) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull}) {
        for (const char* kind : {"GetFather", "Extract", "Paste"}) {
            Moving moving;

            EXPECT_EQ(moving.Upgrade(fault, 1, kind), E_FAIL) << kind;

            EXPECT_TRUE(moving.Hangs()) << kind;
            EXPECT_TRUE(moving.InOldContainer()) << kind;
            EXPECT_EQ(ZELTestDataOf(moving.data.model), (ZELRows{{1.0}})) << kind;
        }
    }
}

TEST(ZELUpgradeContainersCalls, FailAndKeepTheMaterialWhereItsTestDataCannotBeCarried) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull}) {
        for (const char* kind : {"Extract", "Paste"}) {
            Moving moving;

            EXPECT_EQ(moving.Upgrade(fault, 2, kind), E_FAIL) << kind;

            EXPECT_TRUE(moving.Hangs()) << kind;
            EXPECT_TRUE(moving.InOldContainer()) << kind;
            EXPECT_EQ(ZELTestDataOf(moving.data.model), (ZELRows{{1.0}}))
                << "the copy's list was reset, not this";
        }
    }
}

TEST(ZELUpgradeContainersCalls, FailWhereTheExchangeOnThePlatformsMaterialFailsAndUndoNothing) {
    {
        Moving moving;
        EXPECT_EQ(moving.Upgrade(ZELFault::Refuse, 1, "RemoveApplicativeFeature"), E_FAIL);
        EXPECT_TRUE(moving.Hangs());
        EXPECT_TRUE(moving.InOldContainer());
    }
    {
        Moving moving;
        EXPECT_EQ(moving.Upgrade(ZELFault::Refuse, 1, "Remove"), E_FAIL);
        EXPECT_FALSE(moving.Hangs());
        EXPECT_TRUE(moving.InOldContainer());
    }
    {
        Moving moving;
        EXPECT_EQ(moving.Upgrade(ZELFault::Refuse, 1, "SetApplicativeFeature"), E_FAIL);
        EXPECT_FALSE(moving.Hangs());
        EXPECT_FALSE(moving.InOldContainer());
    }
}

TEST(ZELUpgradeContainersCalls, FailWhereTheFatherOrAContainerLacksAnInterface) {
    const std::vector<std::pair<const char*, const char*>> lacking = {
        {"Material", "KORIMaterialFeature"},
        {"VRBMatAppliCont", "KORICutAndPastable"},
        {"Container", "KORICutAndPastable"}};
    for (const auto& [object, interfaceName] : lacking) {
        Moving moving;
        moving.store.Calls().RefuseInterface(object, interfaceName);
        const KORISamUpgrade_var upgrade = moving.data.material;
        EXPECT_TRUE(upgrade->IsUpgradeNeeded());

        EXPECT_EQ(upgrade->Upgrade(), E_FAIL) << object;

        EXPECT_TRUE(moving.Hangs()) << object;
        EXPECT_TRUE(moving.InOldContainer()) << object;
    }
}

TEST(ZELUpgradeContainersCalls, TakeAnOldContainerThatIsNoneForNone) {
    Moving moving;
    moving.store.Calls().RefuseInterface("VRBMatAppliCont", "KORIContainer");

    EXPECT_FALSE(KORISamUpgrade_var(moving.data.material)->IsUpgradeNeeded());
}

TEST(ZELUpgradeContainersCalls, FindNothingOnAMaterialWithoutAttributeAccess) {
    ZELMapStore store;
    const auto material = store.Make("ZELMaterialLT");
    store.Calls().RefuseInterface("ZELMaterialLT", "KORISpecAttrAccess");
    const KORISamUpgrade_var upgrade = material;

    EXPECT_FALSE(upgrade->IsUpgradeNeeded());
    EXPECT_THAT(FlagsOf(upgrade), ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST(ZELUpgradeContainersCalls, AskForNoUpgradeOfAMaterialThatIsNoLiveObject) {
    ZELMapStore store;
    const auto material = store.Make("ZELMaterialLT");
    store.Calls().RefuseInterface("ZELMaterialLT", "KORILinkableObject");

    EXPECT_FALSE(KORISamUpgrade_var(material)->IsUpgradeNeeded()) << "whatever is missing on it";
}

TEST(ZELUpgradeContainersCalls, AskForNoUpgradeOfAMaterialWhoseDocumentIsNotThere) {
    ZELMapStore store;
    const auto material = store.Make("ZELMaterialLT");
    const KORISamUpgrade_var upgrade = material;
    store.Calls().Inject(ZELFault::Refuse, 1, "GetDocument");

    EXPECT_FALSE(upgrade->IsUpgradeNeeded()) << "whatever is missing on it";

    EXPECT_TRUE(store.Calls().FaultHit());
    EXPECT_THAT(store.Calls().Log("FindContainer"), IsEmpty()) << "the query ends there";
    EXPECT_TRUE(upgrade->IsUpgradeNeeded());
}

TEST(ZELUpgradeContainersCalls, KeepTheListWhereTestDataCannotBeFetched) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull}) {
        for (const char* kind : {"Extract", "Paste"}) {
            ZELMapStore store;
            ZELTestDataMaterial data(store, store.Container());
            data.SwitchOn(true);
            data.AddTestData(store, store.AddContainer("TestData"), {1.0});
            const KORISamUpgrade_var upgrade = data.material;
            EXPECT_TRUE(upgrade->IsUpgradeNeeded());
            store.Calls().Inject(fault, 1, kind);

            EXPECT_EQ(upgrade->Upgrade(), E_FAIL) << kind;

            EXPECT_EQ(ZELTestDataOf(data.model), (ZELRows{{1.0}})) << kind;
        }
    }
}
