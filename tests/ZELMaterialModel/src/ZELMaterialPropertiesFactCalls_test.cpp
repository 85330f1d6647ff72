// What the factory asks of the platform and in which order, and what it leaves when a call fails.

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "tests/ZELMaterialModel/src/ZELCreatedTree.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"

using testing::ElementsAre;
using testing::ElementsAreArray;

TEST(ZELMaterialPropertiesFactCalls, OpenTheCatalogOnceAndMakeTheTreeInItsOrder) {
    ZELMapStore store;
    std::vector<std::string> startUps = {"RetrieveStartUp ZELMaterialLT KORISpecObject"};
    std::vector<std::string> instances = {"Instantiate ZELMaterialLT(start-up) \"ZELMaterialLT\""};
    std::vector<std::string> hung;
    for (const ZELBranch& branch : kZELBranches) {
        const std::string type = branch.lateType;
        startUps.push_back("RetrieveStartUp " + type + " KORISpecObject");
        instances.push_back("Instantiate " + type + "(start-up) \"" + type + "\"");
        hung.push_back(std::string("SetComponent ") +
                       (branch.onThickness ? "ZELGasketThicknessBehaviorLT." : "ZELMaterialLT.") +
                       branch.attribute + " " + type);
    }
    // Without it there is no upgrade, whose own steps would follow.
    store.Calls().RefuseInterface("ZELMaterialLT", "KORISamUpgrade");

    const ZELCreation creation(store);

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

    const ZELCreation creation(store);

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
    const ZELCreation first(store);
    const long keys = store.KeyReferences();

    const ZELCreation second(store);

    EXPECT_EQ(store.KeyReferences(), keys);
}

TEST(ZELMaterialPropertiesFactCalls, AnswerNullWhenTheRootCannotBeInstantiated) {
    ZELMapStore store;
    const KORISpecObject_var feature = store.Make("ZELDensityLT");
    const auto material = KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(store.Container()));
    KORIMaterialFeature* asked = material.Get();
    KORISpecObject* created = feature.Get();
    store.Calls().Inject(ZELFault::Refuse, 1, "Instantiate");

    EXPECT_EQ(ZELFactory()->CreateZELMaterialProperty(asked, created), E_FAIL);

    EXPECT_EQ(created, nullptr);
    EXPECT_EQ(store.LiveFeatures(), 1);
}

TEST(ZELMaterialPropertiesFactCalls, FailOverACompleteTreeWithoutTheMaterialInterface) {
    ZELMapStore store;
    store.Calls().RefuseInterface("ZELMaterialLT", "ZELIMaterial");

    const ZELCreation creation(store);

    EXPECT_EQ(creation.status, E_FAIL);
    EXPECT_THAT(ZELHung(creation.root), ElementsAreArray(ZELAllTypes()));
    EXPECT_EQ(
        GetWhole(Component(creation.root, "ZELGasketThicknessBehavior"), "ZELGasketThicknessBehaviorType"),
        0);
}

namespace {

class ZELMaterialPropertiesFactFaults : public testing::TestWithParam<ZELFault> {};

}  // namespace

TEST_P(ZELMaterialPropertiesFactFaults, LeaveAPartialTreeAndNothingElseWhicheverCallFails) {
    ZELFaultSweep(GetParam(), [](ZELFaultRun& run) {
        const auto material =
            KORVar<ZELMapMaterial>::Adopt(new ZELMapMaterial(run.store.Container(), run.store.World()));
        const KORISpecObject_var untouched = run.store.Make("ZELDensityLT");
        const auto factory = ZELFactory();
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
            EXPECT_THAT(ZELHung(root), ElementsAreArray(ZELAllTypes()));
        }
        if (status == S_OK && !run.Threw()) {
            ASSERT_TRUE(root) << "what fails after the tree stands is not looked at";
            EXPECT_THAT(ZELHung(root), ElementsAreArray(ZELAllTypes()));
        }
        if (root) {
            EXPECT_EQ(References(root), 2) << "container and caller";
            const auto hung = ZELHung(root);
            EXPECT_EQ(hung, ZELFirstTypes(hung.size())) << "none is left out";
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
