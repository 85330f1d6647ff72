#include "ZELMaterialModel/include/ZELMaterialThermalExpansion.h"

#include <gmock/gmock.h>

#include "tests/ZELMaterialModel/ZELMaterialTree.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;

namespace {

/// The reference temperature; all else is as with the other single-table behaviors.
class ZELMaterialThermalExpansionTest : public ZELStoreTest {};

}  // namespace

TEST_P(ZELMaterialThermalExpansionTest, ReadsTheReferenceTemperatureWhenItIsBuilt) {
    const ZELMaterialTree tree(Store());
    SetNumber(tree.thermalExpansion, "ReferenceTemperature", 293.15);

    const ZELMaterialThermalExpansion expansion(tree.material.Get());

    EXPECT_EQ(expansion.GetReferenceTemperature(), 293.15);
}

TEST_P(ZELMaterialThermalExpansionTest, HasZeroAsReferenceTemperatureWithoutAFeature) {
    const auto material = Make("ZELMaterialLT");
    const ZELDiagnostics diagnostics;

    ZELMaterialThermalExpansion expansion(material.Get());

    EXPECT_EQ(expansion.GetReferenceTemperature(), 0.0);
    EXPECT_EQ(expansion.SetReferenceTemperature(293.15), E_NOINTERFACE);
    EXPECT_EQ(expansion.GetPropertyReferenceTemperature(), E_NOINTERFACE);
    EXPECT_EQ(expansion.GetReferenceTemperature(), 293.15);
}

TEST_P(ZELMaterialThermalExpansionTest, WritesAndReloadsTheReferenceTemperature) {
    const ZELMaterialTree tree(Store());
    ZELMaterialThermalExpansion expansion(tree.material.Get());

    EXPECT_EQ(expansion.SetReferenceTemperature(293.15), S_OK);
    EXPECT_EQ(GetNumber(tree.thermalExpansion, "ReferenceTemperature"), 293.15);

    SetNumber(tree.thermalExpansion, "ReferenceTemperature", 300.0);
    EXPECT_EQ(expansion.GetReferenceTemperature(), 293.15);
    EXPECT_EQ(expansion.GetPropertyReferenceTemperature(), S_OK);
    EXPECT_EQ(expansion.GetReferenceTemperature(), 300.0);
}

TEST_P(ZELMaterialThermalExpansionTest, StoresItsReferenceTemperatureAgain) {
    const ZELMaterialTree tree(Store());
    ZELMaterialThermalExpansion expansion(tree.material.Get());
    expansion.SetReferenceTemperature(293.15);
    SetNumber(tree.thermalExpansion, "ReferenceTemperature", 300.0);

    EXPECT_EQ(expansion.SetPropertyReferenceTemperature(), S_OK);

    EXPECT_EQ(GetNumber(tree.thermalExpansion, "ReferenceTemperature"), 293.15);
}

TEST_P(ZELMaterialThermalExpansionTest, ForgetsTheReferenceTemperatureThatTheFeatureLacks) {
    Store().OmitAttribute("ZELThermalExpansionLT", "ReferenceTemperature");
    const ZELMaterialTree tree(Store());
    const ZELDiagnostics diagnostics;
    ZELMaterialThermalExpansion expansion(tree.material.Get());

    EXPECT_THAT(diagnostics.Lines(), ElementsAre("Can't get property ReferenceTemperature"));
    EXPECT_EQ(expansion.SetReferenceTemperature(293.15), E_FAIL);
    EXPECT_EQ(expansion.GetReferenceTemperature(), 293.15);
    EXPECT_EQ(expansion.GetPropertyReferenceTemperature(), E_FAIL);
    EXPECT_EQ(expansion.GetReferenceTemperature(), 0.0);
}

ZEL_ON_BOTH_STORES(ZELMaterialThermalExpansionTest);

TEST(ZELMaterialThermalExpansionFaults, KeepTheStoredReferenceTemperatureWhenTheWriteFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int faults = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const ZELMaterialTree tree(run.store);
            SetNumber(tree.thermalExpansion, "ReferenceTemperature", 300.0);
            ZELMaterialThermalExpansion expansion(tree.material.Get());
            const long references = References(tree.thermalExpansion);
            HRESULT status = S_OK;

            run.Act([&] { status = expansion.SetReferenceTemperature(293.15); });

            if (!run.Threw()) {
                EXPECT_EQ(status, run.FaultHit() ? E_NOINTERFACE : S_OK);
            }
            EXPECT_EQ(expansion.GetReferenceTemperature(), 293.15);
            EXPECT_EQ(GetNumber(tree.thermalExpansion, "ReferenceTemperature"),
                      run.FaultHit() ? 300.0 : 293.15);
            EXPECT_EQ(References(tree.thermalExpansion), references);
        });
        EXPECT_EQ(faults, fault == ZELFault::Throw ? 2 : 1);
    }
}
