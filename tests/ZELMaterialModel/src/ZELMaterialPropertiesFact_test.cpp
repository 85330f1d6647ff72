#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFact.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFactInst.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "tests/ZELMaterialModel/src/ZELCreatedTree.h"
#include "tests/support/ZELAllocationFault.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

class ZELMaterialPropertiesFactTest : public ZELStoreTest {};

}  // namespace

TEST_P(ZELMaterialPropertiesFactTest, MakesTheWholeTree) {
    const ZELDiagnostics diagnostics;

    const ZELCreation creation(Store());

    EXPECT_EQ(creation.status, S_OK);
    ASSERT_TRUE(creation.root);
    EXPECT_EQ(creation.root->GetType(), "ZELMaterialLT");
    EXPECT_EQ(creation.root->GetName(), "ZELMaterialLT");
    EXPECT_THAT(ZELHung(creation.root), ElementsAreArray(ZELAllTypes()));
    const auto userMaterial = Component(creation.root, "ZELUserMaterial");
    EXPECT_EQ(userMaterial->GetName(), "MRVUserMaterialLT");
    EXPECT_EQ(References(userMaterial), 3) << "container, root and this test";
    EXPECT_EQ(References(creation.root), 2) << "container and caller";
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST_P(ZELMaterialPropertiesFactTest, LeavesHyperelasticityToTheUpgradeAndJohnsonCookToItsFirstUse) {
    const ZELCreation creation(Store());

    const auto hyperelasticity = Component(creation.root, "ZELHyperelasticity");
    ASSERT_TRUE(hyperelasticity);
    EXPECT_EQ(hyperelasticity->GetType(), "MRVHyperelasticityLT");
    EXPECT_TRUE(GetFlag(hyperelasticity, "HyperelasticUnitUpgradeRequired")) << "in current units";
    EXPECT_TRUE(Component(hyperelasticity, "HyperelasticModel_v2"));
    EXPECT_FALSE(Component(hyperelasticity, "HyperelasticModel"));
    const auto plastic = Component(creation.root, "ZELPlastic");
    EXPECT_FALSE(Component(plastic, "JohnsonCookData_v2"));
    EXPECT_FALSE(Component(plastic, "JohnsonCookData"));
    EXPECT_EQ(Store().LiveFeatures(), kZELFeaturesOfATree);
}

TEST_P(ZELMaterialPropertiesFactTest, GivesTheGasketItsStartingValues) {
    const ZELCreation creation(Store());

    const auto thickness = Component(creation.root, "ZELGasketThicknessBehavior");
    EXPECT_EQ(GetWhole(thickness, "ZELGasketThicknessBehaviorType"), 10);
    EXPECT_EQ(GetWhole(thickness, "ZELGasketYieldOnsetMethodType"), 20);
    EXPECT_EQ(GetNumber(thickness, "ZELGasketYieldOnsetMethodRelativeValue"), 0.1);
    EXPECT_EQ(GetNumber(thickness, "ZELGasketYieldOnsetMethodClosureValue"), 0.0001);
    EXPECT_EQ(GetNumber(thickness, "ZELGasketTensileStiffnessFactor"), 0.001);
    EXPECT_FALSE(GetFlag(thickness, "ZELGasketThicknessUnLoadingFlag"));
}

TEST_P(ZELMaterialPropertiesFactTest, ReadsBackThroughTheMaterialWithEverythingOff) {
    const ZELCreation creation(Store());
    const ZELIMaterial_var material = creation.root;
    ASSERT_TRUE(material);
    bool any = true;
    EXPECT_EQ(KORGetImplementation<ZELMaterial>(material.Get())->IsAllZelmarPropertiesEnabled(any), S_OK);
    EXPECT_FALSE(any);

    ZELGenHeapObjectProxy<ZELGasketThicknessBehavior> thickness;
    material->GetGasketThicknessBehaviorProperties(thickness);
    ASSERT_TRUE(thickness.IsObject());
    ZELGasketThicknessBehavior::GasketThicknessType type{};
    ZELGasketThicknessBehavior::GasketYieldOnsetMethodType method{};
    EXPECT_EQ(thickness->GetGasketThicknessBehaviorType(type), S_OK);
    EXPECT_EQ(static_cast<int>(type), 10);
    EXPECT_EQ(thickness->GetGasketYieldOnsetMethodType(method), S_OK);
    EXPECT_EQ(static_cast<int>(method), 20);
    std::vector<unsigned char> flags(8, 7);
    EXPECT_EQ(thickness->GetGasketThicknessUnLoadingFlag(flags[0]), S_OK);
    EXPECT_EQ(thickness->GetGasketLoadingTemperatureDependentFlag(flags[1]), S_OK);
    EXPECT_EQ(thickness->GetGasketUnLoadingEPTemperatureDependentFlag(flags[2]), S_OK);
    EXPECT_EQ(thickness->GetGasketUnLoadingDamageTemperatureDependentFlag(flags[3]), S_OK);

    ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior> membrane;
    material->GetGasketMembraneElasticProperties(membrane);
    ASSERT_TRUE(membrane.IsObject());
    EXPECT_EQ(membrane->GetGasketMembraneElasticFlag(flags[4]), S_OK);
    EXPECT_EQ(membrane->GetGasketMembraneElasticTempDepFlag(flags[5]), S_OK);

    ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior> transverseShear;
    material->GetGasketTransShearElasticProperties(transverseShear);
    ASSERT_TRUE(transverseShear.IsObject());
    EXPECT_EQ(transverseShear->GetGasketTransverseShearElasticFlag(flags[6]), S_OK);
    EXPECT_EQ(transverseShear->GetGasketTransverseShearElasticTempDepFlag(flags[7]), S_OK);
    EXPECT_THAT(flags, testing::Each(0));
}

TEST_P(ZELMaterialPropertiesFactTest, MakesAnotherTreeAtEachCallAndHangsNoneOnTheMaterial) {
    const ZELCreation first(Store());
    const ZELCreation second(Store());

    EXPECT_NE(first.root, second.root);
    EXPECT_NE(Component(first.root, "ZELDensity"), Component(second.root, "ZELDensity"));
    EXPECT_EQ(Store().LiveFeatures(), 2 * kZELFeaturesOfATree);
    const auto hung =
        KORISpecObject_var::Adopt(first.material->GetApplicativeFeature("ZELMaterialApplicative"));
    EXPECT_FALSE(hung);
}

TEST_P(ZELMaterialPropertiesFactTest, RefusesANullMaterialAndLeavesTheResult) {
    const KORISpecObject_var feature = Make("ZELDensityLT");
    KORIMaterialFeature* material = nullptr;
    KORISpecObject* created = feature.Get();

    EXPECT_EQ(ZELFactory()->CreateZELMaterialProperty(material, created), E_FAIL);

    EXPECT_EQ(created, feature.Get());
}

TEST_P(ZELMaterialPropertiesFactTest, RefusesAMaterialThatLiesInNoContainer) {
    const auto material = KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(nullptr));
    const KORISpecObject_var feature = Make("ZELDensityLT");
    KORIMaterialFeature* asked = material.Get();
    KORISpecObject* created = feature.Get();

    EXPECT_EQ(ZELFactory()->CreateZELMaterialProperty(asked, created), E_FAIL);

    EXPECT_EQ(created, feature.Get());
    EXPECT_EQ(Store().LiveFeatures(), 1);
}

TEST_P(ZELMaterialPropertiesFactTest, EndsAtAStartUpThatIsMissing) {
    for (std::size_t missing = 0; missing < kZELBranches.size(); ++missing) {
        const auto store = GetParam().make();
        store->OmitType(kZELBranches[missing].lateType);

        const ZELCreation creation(*store);

        EXPECT_EQ(creation.status, E_FAIL) << kZELBranches[missing].lateType;
        ASSERT_TRUE(creation.root) << "the root is the caller's all the same";
        EXPECT_THAT(ZELHung(creation.root), ElementsAreArray(ZELFirstTypes(missing)));
        EXPECT_EQ(store->LiveFeatures(), static_cast<long>(missing) + 1);
        EXPECT_EQ(References(creation.root), 2);
    }
}

TEST_P(ZELMaterialPropertiesFactTest, MakesNothingWithoutTheStartUpOfTheRoot) {
    Store().OmitType("ZELMaterialLT");

    const ZELCreation creation(Store());

    EXPECT_EQ(creation.status, E_FAIL);
    EXPECT_FALSE(creation.root);
    EXPECT_EQ(Store().LiveFeatures(), 0);
}

TEST_P(ZELMaterialPropertiesFactTest, LeavesTheCallersPointerAloneWithoutTheStartUpOfTheRoot) {
    Store().OmitType("ZELMaterialLT");
    const auto material = KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(Store().Container()));
    const KORISpecObject_var callers = Make("ZELDensityLT");
    KORIMaterialFeature* feature = material.Get();
    KORISpecObject* created = callers.Get();

    EXPECT_EQ(ZELFactory()->CreateZELMaterialProperty(feature, created), E_FAIL);

    EXPECT_EQ(created, callers.Get());
    EXPECT_EQ(References(callers), 2);
}

TEST_P(ZELMaterialPropertiesFactTest, EndsAtAnAttributeThatIsMissingAndLeavesTheLooseFeature) {
    for (std::size_t missing = 0; missing < kZELBranches.size(); ++missing) {
        const auto store = GetParam().make();
        const ZELBranch& branch = kZELBranches[missing];
        store->OmitAttribute(branch.onThickness ? "ZELGasketThicknessBehaviorLT" : "ZELMaterialLT",
                             branch.attribute);

        const ZELCreation creation(*store);

        EXPECT_EQ(creation.status, E_FAIL) << branch.attribute;
        EXPECT_EQ(store->LiveFeatures(), static_cast<long>(missing) + 2) << branch.attribute;
        EXPECT_EQ(References(creation.root), 2);
    }
}

TEST_P(ZELMaterialPropertiesFactTest, LooksAtNoResultOfTheStartingValues) {
    for (const char* attribute : {"ZELGasketThicknessBehaviorType", "ZELGasketTensileStiffnessFactor"}) {
        Store().OmitAttribute("ZELGasketThicknessBehaviorLT", attribute);
    }
    Store().OmitAttribute("ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticFlag");

    const ZELCreation creation(Store());

    EXPECT_EQ(creation.status, S_OK);
    EXPECT_THAT(ZELHung(creation.root), ElementsAreArray(ZELAllTypes()));
}

TEST_P(ZELMaterialPropertiesFactTest, LooksAtNoResultOfTheUpgrade) {
    Store().OmitType("MRVHyperelasticityLT");

    const ZELCreation creation(Store());

    EXPECT_EQ(creation.status, S_OK);
    EXPECT_FALSE(Component(creation.root, "ZELHyperelasticity"));
    EXPECT_EQ(
        GetWhole(Component(creation.root, "ZELGasketThicknessBehavior"), "ZELGasketThicknessBehaviorType"),
        10);
}

ZEL_ON_BOTH_STORES(ZELMaterialPropertiesFactTest);

TEST(ZELMaterialPropertiesFact, IsAComponentThatTheFrameworkCannotMakeByItself) {
    EXPECT_EQ(ZELMaterialPropertiesFact::CreateItself(), nullptr);
    const KORMetaClass& record = ZELMaterialPropertiesFact::MetaObject();
    EXPECT_EQ(record.Kind(), KORClassKind::Component);
    EXPECT_STREQ(ZELMaterialPropertiesFact::ClassName(), "ZELMaterialPropertiesFact");
    EXPECT_EQ(ZELMaterialPropertiesFactInst::MetaObject().Kind(), KORClassKind::CodeExtension);
}

TEST(ZELMaterialPropertiesFact, ComesFromItsInstanceFactory) {
    const auto instances = KORBaseUnknown_var::Adopt(ZELMaterialPropertiesFactInst::CreateItself());
    void* out = nullptr;

    EXPECT_EQ(dynamic_cast<ZELMaterialPropertiesFactInst&>(*instances).CreateInstance(&out), S_OK);

    const auto made = KORBaseUnknown_var::Adopt(static_cast<KORBaseUnknown*>(out));
    ASSERT_TRUE(made);
    EXPECT_EQ(made->References(), 1);
    EXPECT_STREQ(made->IsA(), "ZELMaterialPropertiesFact");
    EXPECT_TRUE(made->IsAKindOf("ZELMaterialPropertiesFact"));
    EXPECT_TRUE(made->IsAKindOf("KORBaseUnknown"));
    EXPECT_FALSE(made->IsAKindOf("ZELMaterial"));
    EXPECT_TRUE(ZELIMaterialPropertiesFact_var(made)) << "a working factory";
}

TEST(ZELMaterialPropertiesFact, IsNullAndOutOfMemoryWhenItCannotBeAllocated) {
    const auto instances = KORBaseUnknown_var::Adopt(ZELMaterialPropertiesFactInst::CreateItself());
    void* out = instances.Get();
    const ZELAllocationFault fault(1);

    EXPECT_EQ(dynamic_cast<ZELMaterialPropertiesFactInst&>(*instances).CreateInstance(&out), E_OUTOFMEMORY);

    EXPECT_TRUE(fault.Hit());
    EXPECT_EQ(out, nullptr);
}
