// The calls by which the gasket behaviors bind and work, and what each of them leaves behind when one fails.

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELGasketMembraneElasticBehavior.h"
#include "ZELMaterialModel/include/ZELGasketThicknessBehavior.h"
#include "ZELMaterialModel/include/ZELGasketTransverseShearElasticBehavior.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/ZELMaterialModel/src/ZELGasketKeys.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Optional;

namespace {

const std::vector<ZELFault> kFaults = {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw};

}  // namespace

TEST(ZELGasketBehaviorCalls, TakeTheThicknessKeysInTheirOrderAfterTheFeatures) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);
    std::vector<std::string> expected = {
        "GetAttrKey ZELMaterialLT.ZELGasketThicknessBehavior",
        "GetAttrKey ZELGasketThicknessBehaviorLT.ZELGasketThicknessBehaviorLoading",
        "GetAttrKey ZELGasketThicknessBehaviorLT.ZELGasketThicknessBehaviorUnLoadingElasticPlastic",
        "GetAttrKey ZELGasketThicknessBehaviorLT.ZELGasketThicknessBehaviorUnLoadingDamage"};
    for (const auto& [lateType, attribute] : ZELGasketThicknessKeys()) {
        expected.push_back(std::string("GetAttrKey ") + lateType + "." + attribute);
    }

    const ZELGasketThicknessBehavior gasket(tree.material.Get());

    EXPECT_THAT(store.Calls().Log("GetAttrKey"), ElementsAreArray(expected));
}

TEST(ZELGasketBehaviorCalls, TakeTheElasticKeysInTheirOrderTheEnabledFlagLast) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);

    const ZELGasketMembraneElasticBehavior membrane(tree.material.Get());
    const ZELGasketTransverseShearElasticBehavior shear(tree.material.Get());

    EXPECT_THAT(
        store.Calls().Log("GetAttrKey"),
        ElementsAre(
            "GetAttrKey ZELMaterialLT.ZELGasketMembraneElastic",
            "GetAttrKey ZELGasketMembraneElasticLT.ZELGasketMembraneElasticDataFile",
            "GetAttrKey ZELGasketMembraneElasticLT.ZELGasketMembraneElasticTemperatureDepFlag",
            "GetAttrKey ZELGasketMembraneElasticLT.ZELGasketMembraneElasticYoungsModulusData",
            "GetAttrKey ZELGasketMembraneElasticLT.ZELGasketMembraneElasticPoissonsRatioData",
            "GetAttrKey ZELGasketMembraneElasticLT.ZELGasketMembraneElasticTemperatureData",
            "GetAttrKey ZELGasketMembraneElasticLT.ZELGasketMembraneElasticFlag",
            "GetAttrKey ZELMaterialLT.ZELGasketTransverseShearElastic",
            "GetAttrKey ZELGasketTransverseShearElasticLT.ZELGasketTransverseShearElasticDataFile",
            "GetAttrKey ZELGasketTransverseShearElasticLT.ZELGasketTransverseShearElasticTemperatureDepFlag",
            "GetAttrKey ZELGasketTransverseShearElasticLT.ZELGasketTransverseShearElasticShearStiffnessData",
            "GetAttrKey ZELGasketTransverseShearElasticLT.ZELGasketTransverseShearElasticTemperatureData",
            "GetAttrKey ZELGasketTransverseShearElasticLT.ZELGasketTransverseShearElasticFlag"));
}

TEST(ZELGasketBehaviorCalls, GoOnWithWhatIsNoSpecObjectButHasAttributes) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);
    for (const char* lateType : {"ZELGasketThicknessBehaviorLT", "ZELGasketMembraneElasticLT",
                                 "ZELGasketTransverseShearElasticLT"}) {
        store.Calls().RefuseInterface(lateType, "KORISpecObject");
    }
    const ZELDiagnostics diagnostics;

    ZELGasketThicknessBehavior gasket(tree.material.Get());
    ZELGasketMembraneElasticBehavior membrane(tree.material.Get());
    ZELGasketTransverseShearElasticBehavior shear(tree.material.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("No ZELGasketMembraneBehavior object found !",
                                                 "No ZELGasketMembraneBehavior object found !",
                                                 "No ZELGasketTransShearBehavior object found !"));
    EXPECT_EQ(gasket.SetGasketTensileStiffnessFactor(0.5), S_OK);
    EXPECT_EQ(membrane.SetGasketMembraneElasticFlag(1), S_OK);
    EXPECT_EQ(shear.SetGasketTransverseShearElasticFlag(1), S_OK);
}

TEST(ZELGasketBehaviorCalls, WriteTheLoadingCurveBeforeItIsChecked) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);
    ZELGasketThicknessBehavior gasket(tree.material.Get());
    store.Calls().ClearLog();

    EXPECT_EQ(gasket.SetGasketLoadingDataArray(ZELTableOf({{1.0, 2.0, 3.0}})), E_FAIL);

    EXPECT_THAT(
        store.Calls().Log(),
        ElementsAre(
            "SetListOfDouble ZELGasketThicknessBehaviorLoadingLT.ZELGasketLoadingPressureData [1]",
            "SetListOfDouble ZELGasketThicknessBehaviorLoadingLT.ZELGasketLoadingClosureData [2]",
            "SetListOfDouble ZELGasketThicknessBehaviorLoadingLT.ZELGasketLoadingTemperatureData [3]"));
}

TEST(ZELGasketBehaviorCalls, CheckTheShearStiffnessBeforeItIsWritten) {
    ZELMapStore store;
    const ZELFullMaterialTree tree(store);
    ZELGasketTransverseShearElasticBehavior shear(tree.material.Get());
    shear.SetGasketTransverseShearElasticFlag(1);
    store.Calls().ClearLog();

    EXPECT_EQ(shear.SetGasketTransverseShearElasticDataArray(ZELTableOf({{1.0, 2.0}, {0.0, 2.0}})), E_FAIL);

    EXPECT_THAT(
        store.Calls().Log(),
        ElementsAre("GetBoolean ZELGasketTransverseShearElasticLT.ZELGasketTransverseShearElasticFlag"));
}

TEST(ZELGasketBehaviorFaults, LeaveNothingBehindWhicheverCallOfBindingFails) {
    for (const ZELFault fault : kFaults) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const ZELFullMaterialTree tree(run.store);
            const std::vector<long> before = {References(tree.material), References(tree.thickness),
                                              References(tree.loading), References(tree.membrane),
                                              References(tree.transverseShear)};
            const long keys = run.store.KeyReferences();
            const ZELDiagnostics diagnostics;
            HRESULT last = E_FAIL;

            run.Act([&] {
                ZELGasketThicknessBehavior gasket(tree.material.Get());
                ZELGasketMembraneElasticBehavior membrane(tree.material.Get());
                ZELGasketTransverseShearElasticBehavior shear(tree.material.Get());
                last = shear.SetGasketTransverseShearElasticFlag(1);
            });

            if (!run.FaultHit()) {
                EXPECT_EQ(last, S_OK);
                EXPECT_THAT(diagnostics.Lines(), IsEmpty());
            }
            const std::vector<long> after = {References(tree.material), References(tree.thickness),
                                             References(tree.loading), References(tree.membrane),
                                             References(tree.transverseShear)};
            EXPECT_EQ(after, before);
            EXPECT_EQ(run.store.KeyReferences(), keys);
            EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
        });
        EXPECT_GT(faults, 50);
    }
}

TEST(ZELGasketBehaviorFaults, LeaveTheCallersTableAndNoListBehindWhicheverReadFails) {
    for (const ZELFault fault : kFaults) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const ZELFullMaterialTree tree(run.store);
            ZELGasketThicknessBehavior gasket(tree.material.Get());
            gasket.SetGasketUnLoadingEPDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0}}));
            HRESULT status = S_OK;
            auto table = ZELTableOf({{9.0}});

            run.Act([&] { status = gasket.GetGasketUnLoadingEPDataArray(table); });

            EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
            EXPECT_EQ(table.size(), run.FaultHit() ? 1 : 2);
        });
        EXPECT_EQ(faults, 4) << "a list for each column";
    }
}

TEST(ZELGasketBehaviorFaults, KeepTheColumnsThatWereWrittenBeforeTheStoreThrows) {
    const int faults = ZELFaultSweep(ZELFault::Throw, [](ZELFaultRun& run) {
        const ZELFullMaterialTree tree(run.store);
        ZELGasketMembraneElasticBehavior membrane(tree.material.Get());

        run.Act([&] { membrane.SetGasketMembraneElasticDataArray(ZELTableOf({{1.0, 0.3, 2.0}})); });

        const bool first = List(tree.membrane, "ZELGasketMembraneElasticYoungsModulusData").has_value();
        const bool last = List(tree.membrane, "ZELGasketMembraneElasticTemperatureData").has_value();
        EXPECT_EQ(last, !run.FaultHit());
        EXPECT_EQ(first, run.FailedCall().find("YoungsModulus") == std::string::npos);
    });
    EXPECT_EQ(faults, 3);
}
