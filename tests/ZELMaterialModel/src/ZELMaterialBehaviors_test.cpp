// What the material builds after the upgrade, and what it answers over all of its behaviors.

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/support/ZELAllocationFault.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The five behaviors that come after the upgrade, as the material hands them out.
struct Later {
    explicit Later(const ZELIMaterial_var& material) {
        material->GetUserMaterialProperties(userMaterial);
        material->GetHyperelasticProperties(hyperelastic);
        material->GetGasketThicknessBehaviorProperties(thickness);
        material->GetGasketTransShearElasticProperties(transverseShear);
        material->GetGasketMembraneElasticProperties(membrane);
    }
    std::vector<bool> Built() const {
        return {userMaterial.IsObject(), hyperelastic.IsObject(), thickness.IsObject(),
                transverseShear.IsObject(), membrane.IsObject()};
    }
    std::vector<int> Counts() const {
        return {userMaterial.GetNumberOfReferences(), hyperelastic.GetNumberOfReferences(),
                thickness.GetNumberOfReferences(), transverseShear.GetNumberOfReferences(),
                membrane.GetNumberOfReferences()};
    }

    ZELGenHeapObjectProxy<ZELUserMaterial> userMaterial;
    ZELGenHeapObjectProxy<ZELHyperelastic> hyperelastic;
    ZELGenHeapObjectProxy<ZELGasketThicknessBehavior> thickness;
    ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior> transverseShear;
    ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior> membrane;
};

/// The material's own operations, which are in no interface.
KORVar<ZELMaterial> Implementation(const KORISpecObject_var& feature) {
    return KORGetImplementation<ZELMaterial>(ZELIMaterial_var(feature).Get());
}

/// Whether anything is enabled; the answer is true before, to see that it is set.
bool AnyEnabled(ZELMaterial& material) {
    bool enabled = true;
    EXPECT_EQ(material.IsAllZelmarPropertiesEnabled(enabled), S_OK);
    return enabled;
}

class ZELMaterialBehaviors : public ZELStoreTest {
protected:
    ZELFullMaterialTree tree_{Store()};
    ZELDiagnostics diagnostics_;
};

}  // namespace

TEST_P(ZELMaterialBehaviors, AreBuiltOverTheirOwnFeatures) {
    const ZELIMaterial_var material = tree_.material;
    Later later(material);
    ASSERT_THAT(later.Built(), Each(true));

    EXPECT_EQ(later.userMaterial->SetUserMaterialDependentVar(3), S_OK);
    EXPECT_EQ(later.hyperelastic->SetMaterialModelType("YEOH"), S_OK);
    EXPECT_EQ(later.thickness->SetGasketTensileStiffnessFactor(0.5), S_OK);
    EXPECT_EQ(later.transverseShear->SetGasketTransverseShearElasticFlag(1), S_OK);
    EXPECT_EQ(later.membrane->SetGasketMembraneElasticFlag(1), S_OK);

    EXPECT_EQ(GetWhole(tree_.userMaterial, "UserMaterialDepVar"), 3);
    EXPECT_EQ(GetText(tree_.hyperelasticity, "HyperelasticMatModelType"), "YEOH");
    EXPECT_EQ(GetNumber(tree_.thickness, "ZELGasketTensileStiffnessFactor"), 0.5);
    EXPECT_TRUE(GetFlag(tree_.transverseShear, "ZELGasketTransverseShearElasticFlag"));
    EXPECT_TRUE(GetFlag(tree_.membrane, "ZELGasketMembraneElasticFlag"));
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELMaterialBehaviors, AreSharedWithEachCaller) {
    const ZELIMaterial_var material = tree_.material;
    const Later first(material);
    const Later second(material);

    EXPECT_THAT(first.Counts(), Each(3)) << "the extension and two callers";
    EXPECT_EQ(first.membrane.GetProxyObject(), second.membrane.GetProxyObject());
}

TEST_P(ZELMaterialBehaviors, GiveAllReferencesBack) {
    const long material = References(tree_.material);
    const long thickness = References(tree_.thickness);
    const long userMaterial = References(tree_.userMaterial);
    {
        const Later later(ZELIMaterial_var(tree_.material));
        EXPECT_THAT(later.Counts(), Each(1)) << "they outlive the extension";
        EXPECT_GT(References(tree_.material), material);
    }
    EXPECT_EQ(References(tree_.material), material);
    EXPECT_EQ(References(tree_.thickness), thickness);
    EXPECT_EQ(References(tree_.userMaterial), userMaterial);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

TEST_P(ZELMaterialBehaviors, ThatCannotBeAllocatedAreReportedAndTheOthersBuilt) {
    Implementation(tree_.material);  // resolves what is resolved once
    std::vector<std::vector<std::string>> reports;
    std::vector<std::vector<bool>> built;
    for (int n = 1; n <= 30; ++n) {
        const ZELDiagnostics diagnostics;
        const ZELAllocationFault fault(n);
        const ZELIMaterial_var material = tree_.material;
        if (!material) continue;
        const Later later(material);
        if (testing::Value(later.Built(), Each(true))) continue;
        reports.push_back(diagnostics.Lines());
        built.push_back(later.Built());
    }

    const std::string gasket = "Construction of ZELGasketThicknessBehavior failed !";
    ASSERT_EQ(reports.size(), 6u);
    EXPECT_THAT(reports[0], IsEmpty()) << "the upgrade's binding: no upgrade, no later behaviors";
    EXPECT_THAT(built[0], Each(false));
    EXPECT_THAT(reports[1], ElementsAre("Construction of ZELUserMaterial failed !"));
    EXPECT_THAT(built[1], ElementsAre(false, true, true, true, true));
    EXPECT_THAT(reports[2], ElementsAre("Construction of ZELHyperelastic failed !"));
    EXPECT_THAT(built[2], ElementsAre(true, false, true, true, true));
    EXPECT_THAT(reports[3], ElementsAre(gasket));
    EXPECT_THAT(built[3], ElementsAre(true, true, false, true, true));
    EXPECT_THAT(reports[4], ElementsAre(gasket)) << "one text for all three";
    EXPECT_THAT(built[4], ElementsAre(true, true, true, false, true));
    EXPECT_THAT(reports[5], ElementsAre(gasket));
    EXPECT_THAT(built[5], ElementsAre(true, true, true, true, false));
}

TEST_P(ZELMaterialBehaviors, CannotAnswerForAnyWhileOneOfThemIsMissing) {
    SetFlag(tree_.material, "ZELHeatGenerationFlag", true);
    Implementation(tree_.material);  // resolves what is resolved once
    const std::vector<const char*> texts = {"Construction of ZELElastic failed !",
                                            "Construction of ZELPlastic failed !",
                                            "Construction of ZELDensity failed !",
                                            "Construction of ZELThermalExpansion failed !",
                                            "Construction of ZELConductivity failed !",
                                            "Construction of ZELSpecificHeat failed !",
                                            "Construction of ZELUserMaterial failed !",
                                            "Construction of ZELHyperelastic failed !",
                                            "Construction of ZELGasketThicknessBehavior failed !"};
    std::vector<std::string> met;
    for (int n = 1; n <= 30; ++n) {
        const ZELDiagnostics diagnostics;
        const ZELAllocationFault fault(n);
        const auto material = Implementation(tree_.material);
        if (!material || diagnostics.Lines().empty()) continue;
        met.push_back(diagnostics.Lines()[0]);
        bool enabled = true;

        const bool gasketMissing = met.back() == texts.back();
        EXPECT_EQ(material->IsAllZelmarPropertiesEnabled(enabled), gasketMissing ? S_OK : E_FAIL)
            << met.back();
        EXPECT_EQ(enabled, gasketMissing) << met.back();
        EXPECT_EQ(material->ISGasketEnabled(), 0);
    }
    for (const char* text : texts) EXPECT_THAT(met, Contains(text));
}

TEST_P(ZELMaterialBehaviors, AreAllOffOnAFreshMaterial) {
    const auto material = Implementation(tree_.material);

    EXPECT_FALSE(AnyEnabled(*material));
    EXPECT_EQ(material->ISGasketEnabled(), 0);
}

TEST_P(ZELMaterialBehaviors, MakeTheMaterialEnabledEachOnItsOwn) {
    for (const char* flag : {"ZELElasticFlag", "ZELPlasticFlag", "ZELDensityFlag", "ZELThermalExpansionFlag",
                             "ZELConductivityFlag", "ZELSpecificHeatFlag", "ZELUserMaterialFlag",
                             "ZELHyperelasticFlag", "ZELHeatGenerationFlag"}) {
        SetFlag(tree_.material, flag, true);
        EXPECT_TRUE(AnyEnabled(*Implementation(tree_.material))) << flag;

        SetFlag(tree_.material, flag, false);
        EXPECT_FALSE(AnyEnabled(*Implementation(tree_.material))) << flag;
    }
}

TEST_P(ZELMaterialBehaviors, DoNotCountTheGasketAmongWhatIsEnabled) {
    SetFlag(tree_.material, "ZELGasketFlag", true);
    SetFlag(tree_.membrane, "ZELGasketMembraneElasticFlag", true);
    SetFlag(tree_.transverseShear, "ZELGasketTransverseShearElasticFlag", true);
    const auto material = Implementation(tree_.material);

    EXPECT_FALSE(AnyEnabled(*material));
    EXPECT_EQ(material->ISGasketEnabled(), 1);

    SetFlag(tree_.material, "ZELGasketFlag", false);
    EXPECT_EQ(material->ISGasketEnabled(), 0) << "read at each call";
}

TEST_P(ZELMaterialBehaviors, CountTheTableBehaviorsAsMemoryHasThem) {
    const ZELIMaterial_var extension = tree_.material;
    const auto material = Implementation(tree_.material);
    SetFlag(tree_.material, "ZELDensityFlag", true);
    EXPECT_FALSE(AnyEnabled(*material)) << "not read again";

    ZELGenHeapObjectProxy<ZELMaterialDensity> density;
    extension->GetDensityProperties(density);
    density->SetDensityEnabled(1);

    EXPECT_TRUE(AnyEnabled(*material));
}

TEST_P(ZELMaterialBehaviors, CannotAnswerForAnyWhenAFlagCannotBeRead) {
    for (const char* flag : {"ZELUserMaterialFlag", "ZELHyperelasticFlag", "ZELHeatGenerationFlag"}) {
        const auto store = GetParam().make();
        store->OmitAttribute("ZELMaterialLT", flag);
        const ZELFullMaterialTree tree(*store);
        SetFlag(tree.material, "ZELDensityFlag", true);
        bool enabled = true;

        EXPECT_EQ(Implementation(tree.material)->IsAllZelmarPropertiesEnabled(enabled), E_FAIL) << flag;
        EXPECT_FALSE(enabled) << flag;
    }
}

TEST_P(ZELMaterialBehaviors, HaveNoGasketWhereItsFlagCannotBeRead) {
    Store().OmitAttribute("ZELMaterialLT", "ZELGasketFlag");
    const ZELFullMaterialTree tree(Store());

    EXPECT_EQ(Implementation(tree.material)->ISGasketEnabled(), 0);
}

ZEL_ON_BOTH_STORES(ZELMaterialBehaviors);

TEST(ZELMaterialBehaviorsCalls, AreBuiltAfterTheUpgradeWasAskedForInTheirOrder) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);
    const std::vector<std::string> steps = {"QueryInterface ZELMaterialLT KORISamUpgrade",
                                            "FindContainer VRBMatAppliCont",
                                            "GetAttrKey ZELMaterialLT.ZELGasketThicknessBehavior",
                                            "GetAttrKey ZELMaterialLT.ZELGasketTransverseShearElastic",
                                            "GetAttrKey ZELMaterialLT.ZELGasketMembraneElastic"};
    std::vector<std::string> found;

    const ZELIMaterial_var material = tree.material;

    std::ranges::copy_if(store.Calls().Log(), std::back_inserter(found), [&steps](const std::string& line) {
        return std::ranges::find(steps, line) != steps.end();
    });
    EXPECT_EQ(found, steps);
    EXPECT_THAT(store.Calls().Log("OpenCatalog"), IsEmpty()) << "nothing to upgrade";
}

TEST(ZELMaterialBehaviorsCalls, CannotAnswerForAnyOnAMaterialWithoutAnUpgrade) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);
    SetFlag(tree.material, "ZELGasketFlag", true);
    store.Calls().RefuseInterface("ZELMaterialLT", "KORISamUpgrade");
    const ZELDiagnostics diagnostics;
    const ZELIMaterial_var extension = tree.material;
    const auto material = Implementation(tree.material);
    bool enabled = true;

    EXPECT_THAT(Later(extension).Built(), Each(false));
    EXPECT_EQ(material->IsAllZelmarPropertiesEnabled(enabled), E_FAIL);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(material->ISGasketEnabled(), 0);
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST(ZELMaterialBehaviorsCalls, LookAtThreeFlagsInTheStoreOnly) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);
    const ZELIMaterial_var extension = tree.material;
    const auto material = Implementation(tree.material);
    store.Calls().ClearLog();

    AnyEnabled(*material);

    EXPECT_THAT(store.Calls().Log("GetBoolean"),
                ElementsAre("GetBoolean ZELMaterialLT.ZELUserMaterialFlag",
                            "GetBoolean ZELMaterialLT.ZELHyperelasticFlag",
                            "GetBoolean ZELMaterialLT.ZELHeatGenerationFlag"));
}

TEST(ZELMaterialBehaviorsFaults, LeaveNothingBehindWhicheverCallOfConstructionFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const ZELFullMaterialTree tree(run.store);
            const std::vector<long> before = {References(tree.material), References(tree.thickness),
                                              References(tree.elastic), References(tree.membrane)};
            const ZELDiagnostics diagnostics;

            run.Act([&] {
                const ZELIMaterial_var material = tree.material;
                if (material && !run.FaultHit()) {
                    EXPECT_THAT(Later(material).Built(), Each(true));
                }
            });

            const std::vector<long> after = {References(tree.material), References(tree.thickness),
                                             References(tree.elastic), References(tree.membrane)};
            EXPECT_EQ(after, before);
            EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
        });
    }
}

TEST(ZELMaterialBehaviorsFaults, AnswerFalseAndFailureWhicheverCallOfTheQuestionFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const ZELFullMaterialTree tree(run.store);
            SetFlag(tree.material, "ZELDensityFlag", true);
            const ZELIMaterial_var extension = tree.material;
            const auto material = Implementation(tree.material);
            const long references = References(tree.material);
            HRESULT status = S_OK;
            bool enabled = true;

            run.Act([&] { status = material->IsAllZelmarPropertiesEnabled(enabled); });

            EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
            EXPECT_EQ(enabled, !run.FaultHit());
            EXPECT_EQ(References(tree.material), references);
        });
        EXPECT_EQ(faults, fault == ZELFault::Throw ? 9 : 6) << "access, key and flag of each of the three";
    }
}
