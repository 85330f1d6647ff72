#include "ZELMaterialModel/include/ZELHyperelastic.h"

#include <gmock/gmock.h>

#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZELHyperelasticTest : public ZELStoreTest {
protected:
    /// A hyperelastic feature that lacks one attribute, under the same material.
    void MakeFeatureWithout(const char* attribute) {
        Store().OmitAttribute("MRVHyperelasticityLT", attribute);
        tree_.hyperelasticity = Make("MRVHyperelasticityLT");
        Attach(tree_.material, "ZELHyperelasticity", tree_.hyperelasticity);
    }

    ZELFullMaterialTree tree_{Store()};
    ZELDiagnostics diagnostics_;
};

}  // namespace

TEST_P(ZELHyperelasticTest, AnswersFailureForEverythingWithoutAMaterial) {
    ZELHyperelastic hyperelastic(nullptr);
    unsigned char enabled = 7;
    KORUnicodeString type("kept");
    KORISpecObject_var model = tree_.model;

    EXPECT_EQ(hyperelastic.GetHyperelasticEnabled(enabled), E_FAIL);
    EXPECT_EQ(hyperelastic.SetHyperelasticEnabled(1), E_FAIL);
    EXPECT_EQ(hyperelastic.GetMaterialModelType(type), E_FAIL);
    EXPECT_EQ(hyperelastic.SetMaterialModelType("OGDEN"), E_FAIL);
    EXPECT_EQ(hyperelastic.GetHyperelasticMaterialModel(model), E_FAIL);
    EXPECT_EQ(hyperelastic.SetHyperelasticMaterialModel(tree_.model), E_FAIL);

    EXPECT_EQ(enabled, 7);
    EXPECT_EQ(type, "kept");
    EXPECT_EQ(model, tree_.model);
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELHyperelasticTest, AnswersFailureForAMaterialWithoutAttributeAccess) {
    const auto bare = ZELMakeBareFeature();
    ZELHyperelastic hyperelastic(bare.Get());
    unsigned char enabled = 7;

    EXPECT_EQ(hyperelastic.GetHyperelasticEnabled(enabled), E_FAIL) << "not E_NOINTERFACE, as others do";
    EXPECT_EQ(hyperelastic.SetHyperelasticEnabled(1), E_FAIL);
    EXPECT_EQ(enabled, 7);
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELHyperelasticTest, KeepsTheFlagUsableWithoutAHyperelasticFeature) {
    const auto material = Make("ZELMaterialLT");
    ZELHyperelastic hyperelastic(material.Get());
    unsigned char enabled = 0;
    KORUnicodeString type;
    KORISpecObject_var model;

    EXPECT_EQ(hyperelastic.SetHyperelasticEnabled(1), S_OK);
    EXPECT_EQ(hyperelastic.GetHyperelasticEnabled(enabled), S_OK);
    EXPECT_EQ(enabled, 1);
    EXPECT_TRUE(GetFlag(material, "ZELHyperelasticFlag"));
    EXPECT_EQ(hyperelastic.GetMaterialModelType(type), E_FAIL);
    EXPECT_EQ(hyperelastic.SetMaterialModelType("OGDEN"), E_FAIL);
    EXPECT_EQ(hyperelastic.GetHyperelasticMaterialModel(model), E_FAIL);
    EXPECT_EQ(hyperelastic.SetHyperelasticMaterialModel(tree_.model), E_FAIL);
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELHyperelasticTest, ReadsTheStoreOnEveryCall) {
    ZELHyperelastic hyperelastic(tree_.material.Get());
    unsigned char enabled = 7;
    EXPECT_EQ(hyperelastic.GetHyperelasticEnabled(enabled), S_OK);
    EXPECT_EQ(enabled, 0);

    SetFlag(tree_.material, "ZELHyperelasticFlag", true);
    SetText(tree_.hyperelasticity, "HyperelasticMatModelType", "YEOH");

    KORUnicodeString type;
    EXPECT_EQ(hyperelastic.GetHyperelasticEnabled(enabled), S_OK);
    EXPECT_EQ(enabled, 1);
    EXPECT_EQ(hyperelastic.GetMaterialModelType(type), S_OK);
    EXPECT_EQ(type, "YEOH");
}

TEST_P(ZELHyperelasticTest, StoresAnyModelType) {
    ZELHyperelastic hyperelastic(tree_.material.Get());
    for (const char* type : {"MOONEY_RIVLIN", "mooney", ""}) {
        EXPECT_EQ(hyperelastic.SetMaterialModelType(type), S_OK);
        EXPECT_EQ(GetText(tree_.hyperelasticity, "HyperelasticMatModelType"), type);
    }
}

TEST_P(ZELHyperelasticTest, StoresAndAnswersTheModelUnderItsCurrentAttribute) {
    const auto other = Make("ZELHyperelasticMaterialModelLT");
    const auto old = Make("ZELHyperelasticMaterialModelLT");
    Attach(tree_.hyperelasticity, "HyperelasticModel", old);
    ZELHyperelastic hyperelastic(tree_.material.Get());
    KORISpecObject_var model;
    EXPECT_EQ(hyperelastic.GetHyperelasticMaterialModel(model), S_OK);
    EXPECT_EQ(model, tree_.model);

    EXPECT_EQ(hyperelastic.SetHyperelasticMaterialModel(other), S_OK);

    EXPECT_EQ(Component(tree_.hyperelasticity, "HyperelasticModel_v2"), other);
    EXPECT_EQ(Component(tree_.hyperelasticity, "HyperelasticModel"), old) << "not this class's business";
    EXPECT_EQ(hyperelastic.GetHyperelasticMaterialModel(model), S_OK);
    EXPECT_EQ(model, other);
}

TEST_P(ZELHyperelasticTest, AnswersAnEmptyHandleWhereNoModelIsStored) {
    ZELHyperelastic hyperelastic(tree_.material.Get());
    EXPECT_EQ(hyperelastic.SetHyperelasticMaterialModel(nullptr), S_OK);
    KORISpecObject_var model = tree_.model;

    EXPECT_EQ(hyperelastic.GetHyperelasticMaterialModel(model), S_OK);

    EXPECT_FALSE(model);
    EXPECT_FALSE(Component(tree_.hyperelasticity, "HyperelasticModel_v2"));
}

TEST_P(ZELHyperelasticTest, FailsForMissingAttributes) {
    MakeFeatureWithout("HyperelasticMatModelType");
    MakeFeatureWithout("HyperelasticModel_v2");
    Store().OmitAttribute("ZELMaterialLT", "ZELHyperelasticFlag");
    const auto material = Make("ZELMaterialLT");
    Attach(material, "ZELHyperelasticity", tree_.hyperelasticity);
    ZELHyperelastic hyperelastic(material.Get());
    unsigned char enabled = 7;
    KORUnicodeString type("kept");
    KORISpecObject_var model = tree_.model;

    EXPECT_EQ(hyperelastic.GetHyperelasticEnabled(enabled), E_FAIL);
    EXPECT_EQ(hyperelastic.SetHyperelasticEnabled(1), E_FAIL);
    EXPECT_EQ(hyperelastic.GetMaterialModelType(type), E_FAIL);
    EXPECT_EQ(hyperelastic.SetMaterialModelType("OGDEN"), E_FAIL);
    EXPECT_EQ(hyperelastic.GetHyperelasticMaterialModel(model), E_FAIL);
    EXPECT_EQ(hyperelastic.SetHyperelasticMaterialModel(nullptr), E_FAIL);

    EXPECT_EQ(enabled, 7);
    EXPECT_EQ(type, "kept");
    EXPECT_EQ(model, tree_.model);
}

TEST_P(ZELHyperelasticTest, HoldsBothFeaturesAndGivesThemBack) {
    const long material = References(tree_.material);
    const long feature = References(tree_.hyperelasticity);
    {
        const ZELHyperelastic hyperelastic(tree_.material.Get());
        EXPECT_EQ(References(tree_.material), material + 1);
        EXPECT_EQ(References(tree_.hyperelasticity), feature + 1);
    }
    EXPECT_EQ(References(tree_.material), material);
    EXPECT_EQ(References(tree_.hyperelasticity), feature);
}

ZEL_ON_BOTH_STORES(ZELHyperelasticTest);

TEST(ZELHyperelasticCalls, TakeTheMaterialThenItsAttributesThenTheFeature) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);

    const ZELHyperelastic hyperelastic(tree.material.Get());

    EXPECT_THAT(store.Calls().Log(), ElementsAre("QueryInterface ZELMaterialLT KORISpecObject",
                                                 "QueryInterface ZELMaterialLT KORISpecAttrAccess",
                                                 "GetSpecObject ZELMaterialLT.ZELHyperelasticity"));
}

TEST(ZELHyperelasticCalls, ResolveKeysOnEveryCallAndGiveThemBack) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);
    ZELHyperelastic hyperelastic(tree.material.Get());
    const long keys = store.KeyReferences();
    KORUnicodeString type;

    hyperelastic.SetMaterialModelType("OGDEN");
    hyperelastic.GetMaterialModelType(type);

    EXPECT_THAT(store.Calls().Log("GetAttrKey"),
                ElementsAre("GetAttrKey MRVHyperelasticityLT.HyperelasticMatModelType",
                            "GetAttrKey MRVHyperelasticityLT.HyperelasticMatModelType"));
    EXPECT_EQ(store.KeyReferences(), keys);
}

TEST(ZELHyperelasticFaults, KeepArgumentsStoreAndReferencesWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const ZELFullMaterialTree tree(run.store);
            const auto other = run.store.Make("ZELHyperelasticMaterialModelLT");
            const long material = References(tree.material);
            const long model = References(tree.model);
            const long keys = run.store.KeyReferences();
            std::vector<HRESULT> statuses;

            run.Act([&] {
                ZELHyperelastic hyperelastic(tree.material.Get());
                unsigned char enabled = 0;
                KORUnicodeString type;
                KORISpecObject_var stored;
                statuses.push_back(hyperelastic.SetHyperelasticEnabled(1));
                statuses.push_back(hyperelastic.GetHyperelasticEnabled(enabled));
                statuses.push_back(hyperelastic.SetMaterialModelType("OGDEN"));
                statuses.push_back(hyperelastic.GetMaterialModelType(type));
                statuses.push_back(hyperelastic.GetHyperelasticMaterialModel(stored));
                statuses.push_back(hyperelastic.SetHyperelasticMaterialModel(other));
            });

            for (const HRESULT status : statuses) EXPECT_TRUE(status == S_OK || status == E_FAIL);
            if (!run.FaultHit()) {
                EXPECT_THAT(statuses, testing::Each(S_OK));
            }
            // A model that is null or no feature reads as none; that is no failure.
            const bool noModel = run.FailedCall().starts_with("GetComponent") ||
                                 run.FailedCall().find("MaterialModelLT KORISpecObject") != std::string::npos;
            if (run.FaultHit() && !run.Threw()) {
                EXPECT_EQ(testing::Value(statuses, testing::Contains(E_FAIL)), !noModel);
            }
            const bool replaced = Component(tree.hyperelasticity, "HyperelasticModel_v2") == other;
            EXPECT_EQ(replaced, statuses.size() == 6 && statuses.back() == S_OK);
            EXPECT_EQ(References(tree.material), material);
            EXPECT_EQ(References(tree.model), replaced ? model - 1 : model);
            EXPECT_EQ(run.store.KeyReferences(), keys);
        });
    }
}
