#include <gmock/gmock.h>

#include <algorithm>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A material that offers no upgrade, so that nothing but the six first behaviors is built.
void WithoutUpgrade(ZELMapStore& store) {
    store.Calls().RefuseInterface("ZELMaterialLT", "KORISamUpgrade");
}

/// The lines that are among those named, in their order.
std::vector<std::string> Among(const std::vector<std::string>& lines, const std::vector<std::string>& names) {
    std::vector<std::string> found;
    std::ranges::copy_if(lines, std::back_inserter(found), [&](const std::string& line) {
        return std::ranges::find(names, line) != names.end();
    });
    return found;
}

std::string NameOf(ZELFault fault) {
    if (fault == ZELFault::Throw) return "Throw";
    return fault == ZELFault::Refuse ? "Refuse" : "SuccessWithNull";
}

}  // namespace

TEST(ZELMaterialCalls, BuildTheFirstBehaviorsInOrderBeforeTheyAskForTheUpgrade) {
    ZELMapStore store;
    WithoutUpgrade(store);
    const ZELMaterialTree tree(store);
    const std::vector<std::string> steps = {
        "QueryInterface ZELMaterialLT KORISpecObject",     "GetSpecObject ZELMaterialLT.ZELElastic",
        "GetSpecObject ZELMaterialLT.ZELPlastic",          "GetSpecObject ZELMaterialLT.ZELDensity",
        "GetSpecObject ZELMaterialLT.ZELThermalExpansion", "GetSpecObject ZELMaterialLT.ZELConductivity",
        "GetSpecObject ZELMaterialLT.ZELSpecificHeat",     "QueryInterface ZELMaterialLT KORISamUpgrade"};

    const ZELIMaterial_var material = tree.material;

    EXPECT_EQ(Among(store.Calls().Log(), steps), steps);
    EXPECT_EQ(store.Calls().Log().back(), "QueryInterface ZELMaterialLT KORISamUpgrade");
}

TEST(ZELMaterialCalls, HandOutNoneOfTheLaterBehaviorsWithoutAnUpgradeAndReportNothing) {
    ZELMapStore store;
    WithoutUpgrade(store);
    const ZELMaterialTree tree(store);
    const ZELDiagnostics diagnostics;
    const ZELIMaterial_var material = tree.material;

    ZELGenHeapObjectProxy<ZELUserMaterial> userMaterial;
    ZELGenHeapObjectProxy<ZELHyperelastic> hyperelastic;
    ZELGenHeapObjectProxy<ZELGasketThicknessBehavior> thickness;
    ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior> shear;
    ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior> membrane;
    material->GetUserMaterialProperties(userMaterial);
    material->GetHyperelasticProperties(hyperelastic);
    material->GetGasketThicknessBehaviorProperties(thickness);
    material->GetGasketTransShearElasticProperties(shear);
    material->GetGasketMembraneElasticProperties(membrane);

    EXPECT_FALSE(userMaterial.IsObject());
    EXPECT_FALSE(hyperelastic.IsObject());
    EXPECT_FALSE(thickness.IsObject());
    EXPECT_FALSE(shear.IsObject());
    EXPECT_FALSE(membrane.IsObject());
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST(ZELMaterialCalls, ReportMissingFeaturesInTheOrderOfTheBehaviors) {
    ZELMapStore store;
    WithoutUpgrade(store);
    const auto material = store.Make("ZELMaterialLT");
    const ZELDiagnostics diagnostics;

    const ZELIMaterial_var extension = material;

    const std::vector<std::string> reports = {"No ZELElastic object found !", "No ZELDensity object found !",
                                              "No ZELThermalExpansion object found !",
                                              "No ZELConductivity object found !",
                                              "No ZELSpecificHeat object found !"};
    EXPECT_EQ(Among(diagnostics.Lines(), reports), reports);
    ZELGenHeapObjectProxy<ZELMaterialDensity> density;
    extension->GetDensityProperties(density);
    EXPECT_TRUE(density.IsObject()) << "it reports on its own and is there";
}

TEST(ZELMaterialCalls, ReportAMaterialThatIsNoSpecObjectAndAnswerTheInterfaceAllTheSame) {
    ZELMapStore store;
    const ZELMaterialTree tree(store);
    store.Calls().RefuseInterface("ZELMaterialLT", "KORISpecObject");
    const ZELDiagnostics diagnostics;

    const ZELIMaterial_var material = tree.material;

    ASSERT_TRUE(material);
    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Construction of ZELMaterial failed !"));
    ZELGenHeapObjectProxy<ZELMaterialElastic> elastic;
    material->GetElasticProperties(elastic);
    EXPECT_FALSE(elastic.IsObject());
}

TEST(ZELMaterialCalls, FailHeatGenerationWithoutAttributeAccessAndLeaveTheAnswer) {
    ZELMapStore store;
    WithoutUpgrade(store);
    const ZELMaterialTree tree(store);
    const auto material = KORGetImplementation<ZELMaterial>(ZELIMaterial_var(tree.material).Get());
    store.Calls().RefuseInterface("ZELMaterialLT", "KORISpecAttrAccess");
    bool enabled = true;

    EXPECT_EQ(material->GetHeatGenerationEnabled(enabled), E_FAIL);
    EXPECT_TRUE(enabled);
    EXPECT_EQ(material->SetHeatGenerationEnabled(true), E_FAIL);
}

TEST(ZELMaterialCalls, ReleaseTheMaterialFirstAndThenTheBehaviorsFromLastToFirst) {
    ZELMapStore store;
    WithoutUpgrade(store);
    const auto feature = store.Make("ZELMaterialLT");
    const std::vector<const char*> components = {"ZELElastic", "ZELDensity", "ZELThermalExpansion",
                                                 "ZELConductivity", "ZELSpecificHeat"};
    std::vector<std::string> gone;
    std::vector<long> references;
    for (const char* component : components) {
        Attach(feature, component, ZELMakeBareFeature([&, component] {
                   gone.emplace_back(component);
                   references.push_back(References(feature));
               }));
    }
    const ZELDiagnostics diagnostics;
    ZELIMaterial_var material = feature;
    for (const char* component : components) Attach(feature, component, nullptr);
    EXPECT_THAT(gone, IsEmpty()) << "the behaviors hold them";
    const long alive = References(feature);

    material = nullptr;

    EXPECT_THAT(gone, ElementsAre("ZELSpecificHeat", "ZELConductivity", "ZELThermalExpansion", "ZELDensity",
                                  "ZELElastic"));
    EXPECT_EQ(references.front(), alive - 1);
    EXPECT_LT(References(feature), references.back());
}

class ZELMaterialFaults : public testing::TestWithParam<ZELFault> {};

TEST_P(ZELMaterialFaults, LeaveNothingBehindWhicheverOfConstructionFails) {
    ZELFaultSweep(GetParam(), [](ZELFaultRun& run) {
        WithoutUpgrade(run.store);
        const ZELMaterialTree tree(run.store);
        SetFlag(tree.material, "ZELDensityFlag", true);
        const long references = References(tree.material);
        const long density = References(tree.density);
        const long features = run.store.LiveFeatures();
        const ZELDiagnostics diagnostics;

        run.Act([&] {
            const ZELIMaterial_var material = tree.material;
            EXPECT_EQ(!material, run.FailedCall() == "QueryInterface ZELMaterialLT ZELIMaterial");
            if (!material) return;
            ZELGenHeapObjectProxy<ZELMaterialDensity> proxy;
            material->GetDensityProperties(proxy);
            EXPECT_EQ(!proxy.IsObject(), run.FailedCall() == "QueryInterface ZELMaterialLT KORISpecObject");
        });

        EXPECT_TRUE(GetFlag(tree.material, "ZELDensityFlag"));
        EXPECT_EQ(References(tree.material), references);
        EXPECT_EQ(References(tree.density), density);
        EXPECT_EQ(run.store.LiveFeatures(), features);
        EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
    });
}

TEST_P(ZELMaterialFaults, KeepTheStoredHeatGenerationAndTheAnswerWhicheverCallFails) {
    const int writes = ZELFaultSweep(GetParam(), [](ZELFaultRun& run) {
        WithoutUpgrade(run.store);
        const ZELMaterialTree tree(run.store);
        const ZELIMaterial_var interface = tree.material;
        const auto material = KORGetImplementation<ZELMaterial>(interface.Get());
        const long references = References(tree.material);
        HRESULT status = S_OK;

        run.Act([&] { status = material->SetHeatGenerationEnabled(true); });

        EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
        EXPECT_EQ(GetFlag(tree.material, "ZELHeatGenerationFlag"), !run.FaultHit());
        EXPECT_EQ(References(tree.material), references);
    });
    const int reads = ZELFaultSweep(GetParam(), [](ZELFaultRun& run) {
        WithoutUpgrade(run.store);
        const ZELMaterialTree tree(run.store);
        const ZELIMaterial_var interface = tree.material;
        const auto material = KORGetImplementation<ZELMaterial>(interface.Get());
        const long references = References(tree.material);
        HRESULT status = S_OK;
        bool enabled = true;

        run.Act([&] { status = material->GetHeatGenerationEnabled(enabled); });

        EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
        EXPECT_EQ(enabled, run.FaultHit());
        EXPECT_EQ(References(tree.material), references);
    });

    const int calls = GetParam() == ZELFault::Throw ? 3 : 2;
    EXPECT_EQ(writes, calls);
    EXPECT_EQ(reads, calls);
}

INSTANTIATE_TEST_SUITE_P(, ZELMaterialFaults,
                         testing::Values(ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw),
                         [](const auto& choice) { return NameOf(choice.param); });
