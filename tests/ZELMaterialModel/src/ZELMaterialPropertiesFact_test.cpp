#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFact.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialPropertiesFactInst.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELIMaterialPropertiesFact.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORInstantiateComponent.h"
#include "tests/support/ZELAllocationFault.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELMapMaterial.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

/// A feature of the tree: what it is and where it hangs.
struct Branch {
    const char* lateType;
    const char* attribute;
    bool onThickness;  ///< under the gasket thickness feature; else under the root
};

/// In the order in which they are made.
const std::vector<Branch> kBranches = {
    {"ZELElasticLT", "ZELElastic", false},
    {"ZELPlasticLT", "ZELPlastic", false},
    {"ZELDensityLT", "ZELDensity", false},
    {"ZELThermalExpansionLT", "ZELThermalExpansion", false},
    {"ZELConductivityLT", "ZELConductivity", false},
    {"ZELSpecificHeatLT", "ZELSpecificHeat", false},
    {"MRVUserMaterialLT", "ZELUserMaterial", false},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessBehavior", false},
    {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketThicknessBehaviorLoading", true},
    {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketThicknessBehaviorUnLoadingElasticPlastic", true},
    {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketThicknessBehaviorUnLoadingDamage", true},
    {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElastic", false},
    {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElastic", false},
};

/// The root, its branches, and what the first query adds: hyperelasticity, its model and a superseded one.
const long kFeaturesOfATree = 1 + static_cast<long>(kBranches.size()) + 3;

ZELIMaterialPropertiesFact_var Factory() {
    ZELIMaterialPropertiesFact_var factory;
    EXPECT_EQ(KORInstantiate("ZELMaterialPropertiesFact", factory), S_OK);
    return factory;
}

/// What of the tree a root has, in the order of the branches.
std::vector<std::string> Hung(const KORISpecObject_var& root) {
    std::vector<std::string> found;
    const auto thickness = Component(root, "ZELGasketThicknessBehavior");
    for (const Branch& branch : kBranches) {
        const KORISpecObject_var& parent = branch.onThickness ? thickness : root;
        const auto child = parent ? Component(parent, branch.attribute) : KORISpecObject_var();
        if (child) found.emplace_back(child->GetType().View());
    }
    return found;
}

/// The late types of the first branches.
std::vector<std::string> FirstTypes(std::size_t count) {
    std::vector<std::string> types;
    for (std::size_t i = 0; i < count; ++i) types.emplace_back(kBranches[i].lateType);
    return types;
}

std::vector<std::string> AllTypes() {
    return FirstTypes(kBranches.size());
}

/// One call of the factory for a platform material in the store's container.
struct Creation {
    explicit Creation(ZELTestStore& store)
        : material(KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(store.Container()))) {
        KORIMaterialFeature* feature = material.Get();
        KORISpecObject* created = nullptr;
        status = Factory()->CreateZELMaterialProperty(feature, created);
        root = KORISpecObject_var::Adopt(created);
        EXPECT_EQ(feature, static_cast<KORIMaterialFeature*>(material.Get()));
    }

    KORVar<ZELMapMaterial> material;
    HRESULT status;
    KORISpecObject_var root;
};

class ZELMaterialPropertiesFactTest : public ZELStoreTest {};

}  // namespace

TEST_P(ZELMaterialPropertiesFactTest, MakesTheWholeTree) {
    const ZELDiagnostics diagnostics;

    const Creation creation(Store());

    EXPECT_EQ(creation.status, S_OK);
    ASSERT_TRUE(creation.root);
    EXPECT_EQ(creation.root->GetType(), "ZELMaterialLT");
    EXPECT_EQ(creation.root->GetName(), "ZELMaterialLT");
    EXPECT_THAT(Hung(creation.root), ElementsAreArray(AllTypes()));
    const auto userMaterial = Component(creation.root, "ZELUserMaterial");
    EXPECT_EQ(userMaterial->GetName(), "MRVUserMaterialLT");
    EXPECT_EQ(References(userMaterial), 3) << "container, root and this test";
    EXPECT_EQ(References(creation.root), 2) << "container and caller";
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST_P(ZELMaterialPropertiesFactTest, LeavesHyperelasticityToTheUpgradeAndJohnsonCookToItsFirstUse) {
    const Creation creation(Store());

    const auto hyperelasticity = Component(creation.root, "ZELHyperelasticity");
    ASSERT_TRUE(hyperelasticity);
    EXPECT_EQ(hyperelasticity->GetType(), "MRVHyperelasticityLT");
    EXPECT_TRUE(GetFlag(hyperelasticity, "HyperelasticUnitUpgradeRequired")) << "in current units";
    EXPECT_TRUE(Component(hyperelasticity, "HyperelasticModel_v2"));
    EXPECT_FALSE(Component(hyperelasticity, "HyperelasticModel"));
    const auto plastic = Component(creation.root, "ZELPlastic");
    EXPECT_FALSE(Component(plastic, "JohnsonCookData_v2"));
    EXPECT_FALSE(Component(plastic, "JohnsonCookData"));
    EXPECT_EQ(Store().LiveFeatures(), kFeaturesOfATree);
}

TEST_P(ZELMaterialPropertiesFactTest, GivesTheGasketItsStartingValues) {
    const Creation creation(Store());

    const auto thickness = Component(creation.root, "ZELGasketThicknessBehavior");
    EXPECT_EQ(GetWhole(thickness, "ZELGasketThicknessBehaviorType"), 10);
    EXPECT_EQ(GetWhole(thickness, "ZELGasketYieldOnsetMethodType"), 20);
    EXPECT_EQ(GetNumber(thickness, "ZELGasketYieldOnsetMethodRelativeValue"), 0.1);
    EXPECT_EQ(GetNumber(thickness, "ZELGasketYieldOnsetMethodClosureValue"), 0.0001);
    EXPECT_EQ(GetNumber(thickness, "ZELGasketTensileStiffnessFactor"), 0.001);
    EXPECT_FALSE(GetFlag(thickness, "ZELGasketThicknessUnLoadingFlag"));
}

TEST_P(ZELMaterialPropertiesFactTest, ReadsBackThroughTheMaterialWithEverythingOff) {
    const Creation creation(Store());
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
    const Creation first(Store());
    const Creation second(Store());

    EXPECT_NE(first.root, second.root);
    EXPECT_NE(Component(first.root, "ZELDensity"), Component(second.root, "ZELDensity"));
    EXPECT_EQ(Store().LiveFeatures(), 2 * kFeaturesOfATree);
    const auto hung =
        KORISpecObject_var::Adopt(first.material->GetApplicativeFeature("ZELMaterialApplicative"));
    EXPECT_FALSE(hung);
}

TEST_P(ZELMaterialPropertiesFactTest, RefusesANullMaterialAndLeavesTheResult) {
    const KORISpecObject_var feature = Make("ZELDensityLT");
    KORIMaterialFeature* material = nullptr;
    KORISpecObject* created = feature.Get();

    EXPECT_EQ(Factory()->CreateZELMaterialProperty(material, created), E_FAIL);

    EXPECT_EQ(created, feature.Get());
}

TEST_P(ZELMaterialPropertiesFactTest, RefusesAMaterialThatLiesInNoContainer) {
    const auto material = KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(nullptr));
    const KORISpecObject_var feature = Make("ZELDensityLT");
    KORIMaterialFeature* asked = material.Get();
    KORISpecObject* created = feature.Get();

    EXPECT_EQ(Factory()->CreateZELMaterialProperty(asked, created), E_FAIL);

    EXPECT_EQ(created, feature.Get());
    EXPECT_EQ(Store().LiveFeatures(), 1);
}

TEST_P(ZELMaterialPropertiesFactTest, EndsAtAStartUpThatIsMissing) {
    for (std::size_t missing = 0; missing < kBranches.size(); ++missing) {
        const auto store = GetParam().make();
        store->OmitType(kBranches[missing].lateType);

        const Creation creation(*store);

        EXPECT_EQ(creation.status, E_FAIL) << kBranches[missing].lateType;
        ASSERT_TRUE(creation.root) << "the root is the caller's all the same";
        EXPECT_THAT(Hung(creation.root), ElementsAreArray(FirstTypes(missing)));
        EXPECT_EQ(store->LiveFeatures(), static_cast<long>(missing) + 1);
        EXPECT_EQ(References(creation.root), 2);
    }
}

TEST_P(ZELMaterialPropertiesFactTest, MakesNothingWithoutTheStartUpOfTheRoot) {
    Store().OmitType("ZELMaterialLT");

    const Creation creation(Store());

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

    EXPECT_EQ(Factory()->CreateZELMaterialProperty(feature, created), E_FAIL);

    EXPECT_EQ(created, callers.Get());
    EXPECT_EQ(References(callers), 2);
}

TEST_P(ZELMaterialPropertiesFactTest, EndsAtAnAttributeThatIsMissingAndLeavesTheLooseFeature) {
    for (std::size_t missing = 0; missing < kBranches.size(); ++missing) {
        const auto store = GetParam().make();
        const Branch& branch = kBranches[missing];
        store->OmitAttribute(branch.onThickness ? "ZELGasketThicknessBehaviorLT" : "ZELMaterialLT",
                             branch.attribute);

        const Creation creation(*store);

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

    const Creation creation(Store());

    EXPECT_EQ(creation.status, S_OK);
    EXPECT_THAT(Hung(creation.root), ElementsAreArray(AllTypes()));
}

TEST_P(ZELMaterialPropertiesFactTest, LooksAtNoResultOfTheUpgrade) {
    Store().OmitType("MRVHyperelasticityLT");

    const Creation creation(Store());

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

TEST(ZELMaterialPropertiesFactCalls, OpenTheCatalogOnceAndMakeTheTreeInItsOrder) {
    ZELMapStore store;
    std::vector<std::string> startUps = {"RetrieveStartUp ZELMaterialLT KORISpecObject"};
    std::vector<std::string> instances = {"Instantiate ZELMaterialLT(start-up) \"ZELMaterialLT\""};
    std::vector<std::string> hung;
    for (const Branch& branch : kBranches) {
        const std::string type = branch.lateType;
        startUps.push_back("RetrieveStartUp " + type + " KORISpecObject");
        instances.push_back("Instantiate " + type + "(start-up) \"" + type + "\"");
        hung.push_back(std::string("SetComponent ") +
                       (branch.onThickness ? "ZELGasketThicknessBehaviorLT." : "ZELMaterialLT.") +
                       branch.attribute + " " + type);
    }
    // Without it there is no upgrade, whose own steps would follow.
    store.Calls().RefuseInterface("ZELMaterialLT", "KORISamUpgrade");

    const Creation creation(store);

    EXPECT_EQ(creation.status, S_OK);
    EXPECT_THAT(store.Calls().Log("OpenCatalog"),
                ElementsAre("OpenCatalog ZELMaterialPropertiesCatalog.KORfct ZELMAR"));
    EXPECT_EQ(store.Calls().Log("RetrieveStartUp"), startUps);
    EXPECT_EQ(store.Calls().Log("Instantiate"), instances);
    EXPECT_EQ(store.Calls().Log("SetComponent"), hung);
    EXPECT_FALSE(Component(creation.root, "ZELHyperelasticity")) << "it comes from the upgrade alone";
    EXPECT_EQ(
        GetWhole(Component(creation.root, "ZELGasketThicknessBehavior"), "ZELGasketThicknessBehaviorType"), 0)
        << "without gasket behaviors nobody writes starting values, and nothing fails";
}

TEST(ZELMaterialPropertiesFactCalls, WriteTheStartingValuesInTheirOrder) {
    ZELMapStore store;

    const Creation creation(store);

    std::vector<std::string> writes;
    for (const std::string& line : store.Calls().Log()) {
        if (line.starts_with("Set") && line.find("Gasket") != std::string::npos &&
            !line.starts_with("SetComponent")) {
            writes.push_back(line);
        }
    }
    const std::string thickness = "ZELGasketThicknessBehaviorLT.ZELGasket";
    EXPECT_THAT(
        writes,
        ElementsAre(
            "SetInteger " + thickness + "ThicknessBehaviorType 10",
            "SetInteger " + thickness + "YieldOnsetMethodType 20",
            "SetDouble " + thickness + "YieldOnsetMethodRelativeValue 0.1",
            "SetDouble " + thickness + "YieldOnsetMethodClosureValue 1e-04",
            "SetDouble " + thickness + "TensileStiffnessFactor 0.001",
            "SetBoolean " + thickness + "ThicknessUnLoadingFlag 0",
            "SetBoolean ZELGasketThicknessBehaviorLoadingLT.ZELGasketLoadingTemperatureDepFlag 0",
            "SetBoolean ZELGasketThicknessBehaviorUnLoadingEPLT.ZELGasketUnLoadingEPTemperatureDepFlag 0",
            "SetBoolean "
            "ZELGasketThicknessBehaviorUnLoadingDamageLT.ZELGasketUnLoadingDamageTemperatureDepFlag 0",
            "SetBoolean ZELGasketMembraneElasticLT.ZELGasketMembraneElasticTemperatureDepFlag 0",
            "SetBoolean ZELGasketMembraneElasticLT.ZELGasketMembraneElasticFlag 0",
            "SetBoolean ZELGasketTransverseShearElasticLT.ZELGasketTransverseShearElasticTemperatureDepFlag "
            "0",
            "SetBoolean ZELGasketTransverseShearElasticLT.ZELGasketTransverseShearElasticFlag 0"));
}

TEST(ZELMaterialPropertiesFactCalls, GiveEveryKeyBackThatIsNotKeptForGood) {
    ZELMapStore store;
    const Creation first(store);
    const long keys = store.KeyReferences();

    const Creation second(store);

    EXPECT_EQ(store.KeyReferences(), keys);
}

TEST(ZELMaterialPropertiesFactCalls, AnswerNullWhenTheRootCannotBeInstantiated) {
    ZELMapStore store;
    const KORISpecObject_var feature = store.Make("ZELDensityLT");
    const auto material = KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(store.Container()));
    KORIMaterialFeature* asked = material.Get();
    KORISpecObject* created = feature.Get();
    store.Calls().Inject(ZELFault::Refuse, 1, "Instantiate");

    EXPECT_EQ(Factory()->CreateZELMaterialProperty(asked, created), E_FAIL);

    EXPECT_EQ(created, nullptr);
    EXPECT_EQ(store.LiveFeatures(), 1);
}

TEST(ZELMaterialPropertiesFactCalls, FailOverACompleteTreeWithoutTheMaterialInterface) {
    ZELMapStore store;
    store.Calls().RefuseInterface("ZELMaterialLT", "ZELIMaterial");

    const Creation creation(store);

    EXPECT_EQ(creation.status, E_FAIL);
    EXPECT_THAT(Hung(creation.root), ElementsAreArray(AllTypes()));
    EXPECT_EQ(
        GetWhole(Component(creation.root, "ZELGasketThicknessBehavior"), "ZELGasketThicknessBehaviorType"),
        0);
}

class ZELMaterialPropertiesFactFaults : public testing::TestWithParam<ZELFault> {};

TEST_P(ZELMaterialPropertiesFactFaults, LeaveAPartialTreeAndNothingElseWhicheverCallFails) {
    ZELFaultSweep(GetParam(), [](ZELFaultRun& run) {
        const auto material =
            KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(run.store.Container(), run.store.World()));
        const KORISpecObject_var untouched = run.store.Make("ZELDensityLT");
        const auto factory = Factory();
        const long objects = KORModule::Of("ZELMaterialModel").LiveObjects();
        const ZELDiagnostics diagnostics;
        KORIMaterialFeature* asked = material.Get();
        KORISpecObject* created = untouched.Get();
        HRESULT status = S_OK;

        run.Act([&] { status = factory->CreateZELMaterialProperty(asked, created); });

        EXPECT_TRUE(status == S_OK || status == E_FAIL);
        KORISpecObject_var root;
        if (created != untouched.Get()) root = KORISpecObject_var::Adopt(created);
        if (!run.FaultHit()) {
            EXPECT_EQ(status, S_OK);
            EXPECT_THAT(Hung(root), ElementsAreArray(AllTypes()));
        }
        if (status == S_OK && !run.Threw()) {
            ASSERT_TRUE(root) << "what fails after the tree stands is not looked at";
            EXPECT_THAT(Hung(root), ElementsAreArray(AllTypes()));
        }
        if (root) {
            EXPECT_EQ(References(root), 2) << "container and caller";
            const auto hung = Hung(root);
            EXPECT_EQ(hung, FirstTypes(hung.size())) << "none is left out";
        }
        EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), objects) << "the factory's own";
    });
}

static std::string NameOf(const testing::TestParamInfo<ZELFault>& fault) {
    const char* names[] = {"Refuse", "SuccessWithNull", "Throw"};
    return names[static_cast<int>(fault.param)];
}

INSTANTIATE_TEST_SUITE_P(, ZELMaterialPropertiesFactFaults,
                         testing::Values(ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw),
                         NameOf);
