#pragma once

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEMRVMaterialUpgrade.h"
#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "interfaces/KORISamUpgrade.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFakeUnits.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestAccess.h"
#include "tests/support/ZELTestServices.h"

inline std::vector<int> FlagsOf(const KORISamUpgrade_var& upgrade) {
    return ZELTestAccess::Flags(*KORGetImplementation<ZELEMRVMaterialUpgrade>(upgrade.Get()));
}

/// The flags that a material's query finds, after it was checked that its answer fits them.
inline std::vector<int> Needs(const KORISpecObject_var& material) {
    const KORISamUpgrade_var upgrade = material;
    const bool needed = upgrade->IsUpgradeNeeded();
    auto flags = FlagsOf(upgrade);
    EXPECT_EQ(needed, flags != std::vector<int>(7, 0));
    return flags;
}

/// Query and upgrade, as a platform that opens a document does them.
inline HRESULT Upgrade(const KORISpecObject_var& material) {
    const KORISamUpgrade_var upgrade = material;
    upgrade->IsUpgradeNeeded();
    return upgrade->Upgrade();
}

inline ZELRows RowsOf(const KORISpecObject_var& model) {
    ZELCftArrayZELCftArrayDouble table;
    EXPECT_EQ(ZELIHyperelasticMaterialModel_var(model)->GetPropertyData(table), S_OK);
    return ZELRowsOf(table);
}

/// A test of the upgrade, with a current unit of pressure of 4 stored ones.
class ZELUpgradeTest : public ZELStoreTest {
protected:
    /// An older material: no user material, no hyperelasticity.
    ZELMaterialTree MakeOldest() { return ZELMaterialTree(Store()); }

    /// Johnson-Cook data of an older release, under the plastic feature.
    KORISpecObject_var AddOldJohnsonCook(const ZELMaterialTree& tree) {
        auto old = Make("ZELPlasticJohnsonCookLT");
        SetNumber(old, "CoeffA", 350e6);
        SetNumber(old, "CoeffB", 275e6);
        SetNumber(old, "CoeffN", 0.36);
        SetNumber(old, "CoeffM", 1.03);
        SetNumber(old, "MeltingTemperature", 1793.0);
        SetNumber(old, "TransitionTemperature", 298.0);
        Attach(tree.plastic, "JohnsonCookData", old);
        return old;
    }

    /// A model as an older release kept it, in place of the current one.
    KORISpecObject_var AddOldModel(const ZELFullMaterialTree& tree) {
        auto old = Make("ZELHyperelasticMaterialModelLT");
        SetWhole(old, "HyperelasticMatModelPotentialOrder", 2);
        SetFlag(old, "HyperelasticMatModelTempDependentFlag", true);
        SetText(old, "HyperelasticMatModelDataFile", "rubber.csv");
        for (const std::vector<double>& values : ZELRows{{1.0, 2.0, 3.0, 293.0}, {4.0, 5.0, 6.0}}) {
            const auto row = Make("ZELMaterialModelRowDataLT");
            SetList(row, "MaterialModelRowData", values);
            AppendComponent(old, "HyperelasticMatModelData", row);
        }
        Attach(tree.hyperelasticity, "HyperelasticModel", old);
        Attach(tree.hyperelasticity, "HyperelasticModel_v2", nullptr);
        return old;
    }

    /// Coefficients of an enabled model that were never converted.
    void SetUnconverted(const ZELFullMaterialTree& tree, const char* type, int order, const ZELRows& rows) {
        SetFlag(tree.material, "ZELHyperelasticFlag", true);
        SetText(tree.hyperelasticity, "HyperelasticMatModelType", type);
        SetFlag(tree.hyperelasticity, "HyperelasticUnitUpgradeRequired", false);
        const ZELIHyperelasticMaterialModel_var model = tree.model;
        model->SetStrainEnergyPotentialOrder(order);
        model->SetPropertyData(ZELTableOf(rows));
    }

    ZELTestServices services_;
    ZELFakeUnits units_{services_.Table(), 4.0};  // so that every number is exact
    ZELDiagnostics diagnostics_;
};
