// What the behaviors do with the features that they keep, once undo or somebody else took them away.

#include "ZELMaterialModel/include/ZELRememberedFeature.h"

#include <gmock/gmock.h>

#include <optional>

#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORServices.h"
#include "tests/ZELMaterialModel/ZELFullMaterialTree.h"
#include "tests/ZELMaterialModel/ZELRows.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELPlatformStore.h"

using testing::ElementsAre;
using testing::Optional;

namespace {

/// A material that was made, with a feature for every behavior, in a step that can be undone, and is held by
/// its interface.
class ZELFeaturesTakenAway : public testing::Test {
protected:
    ZELFeaturesTakenAway() {
        KORStep step(store_.MemoryDocument(), "material");
        tree_.emplace(store_);
        step.Commit();
        material_ = tree_->material;
    }
    void Undo() { ASSERT_TRUE(store_.MemoryDocument().Undo()); }
    template <class Behavior>
    ZELGenHeapObjectProxy<Behavior> Held(void (ZELIMaterial::*get)(ZELGenHeapObjectProxy<Behavior>& proxy)) {
        ZELGenHeapObjectProxy<Behavior> proxy;
        (material_.Get()->*get)(proxy);
        return proxy;
    }

    const ZELDiagnostics diagnostics_;
    ZELPlatformStore store_;
    std::optional<ZELFullMaterialTree> tree_;
    ZELIMaterial_var material_;
    const unsigned char on_ = 1;
};

}  // namespace

TEST_F(ZELFeaturesTakenAway, AreNotWrittenByATableBehavior) {
    const auto density = Held(&ZELIMaterial::GetDensityProperties);
    EXPECT_EQ(density->SetDensityDataArray(ZELTableOf({{7850.0}})), S_OK);
    Undo();

    EXPECT_EQ(density->SetDensityDataArray(ZELTableOf({{2700.0}})), E_NOINTERFACE);
    EXPECT_EQ(density->SetTemperatureDependent(on_), E_NOINTERFACE);
    EXPECT_EQ(density->SetDataFile("aluminium.csv"), E_NOINTERFACE);

    EXPECT_THAT(List(tree_->density, "DensityData"), Optional(ElementsAre(7850.0)));
    EXPECT_FALSE(GetFlag(tree_->density, "TemperatureDependent"));
    EXPECT_EQ(GetText(tree_->density, "DataFile"), "");
    EXPECT_EQ(ZELRowsOf(density->GetDensityDataArray()), (ZELRows{{2700.0}}))
        << "memory keeps what was given";
    EXPECT_EQ(density->SetTemperatureDependent(0), E_NOINTERFACE);
    EXPECT_EQ(density->GetPropertyDensityDataArray(), S_OK) << "reading is no harm";
    EXPECT_EQ(ZELRowsOf(density->GetDensityDataArray()), (ZELRows{{7850.0}}));
}

TEST_F(ZELFeaturesTakenAway, AreNotWrittenByTheElasticAndTheThermalBehavior) {
    const auto elastic = Held(&ZELIMaterial::GetElasticProperties);
    const auto expansion = Held(&ZELIMaterial::GetThermalExpansionProperties);
    Undo();

    EXPECT_EQ(elastic->SetElasticDataArray(ZELTableOf({{210e9, 0.3}})), E_NOINTERFACE);
    EXPECT_EQ(expansion->SetReferenceTemperature(293.15), E_NOINTERFACE);

    EXPECT_EQ(List(tree_->elastic, "YoungData"), std::nullopt);
    EXPECT_EQ(GetNumber(tree_->thermalExpansion, "ReferenceTemperature"), 0.0);
}

TEST_F(ZELFeaturesTakenAway, AreNotWrittenByPlasticity) {
    const auto plastic = Held(&ZELIMaterial::GetPlasticProperties);
    EXPECT_EQ(plastic->SetHardeningType("IsotropicHardening"), E_FAIL) << "its answer to a successful write";
    Undo();

    EXPECT_EQ(plastic->SetPlasticDataArray(ZELTableOf({{250e6, 0.0, 293.15}})), E_NOINTERFACE);
    EXPECT_EQ(plastic->SetHardeningType("JohnsonCookHardening"), E_NOINTERFACE);

    EXPECT_EQ(List(tree_->plastic, "StressData"), std::nullopt);
    EXPECT_EQ(GetText(tree_->plastic, "PlasticHardeningType"), "IsotropicHardening");
}

TEST_F(ZELFeaturesTakenAway, AreNotWrittenByPlasticityWithJohnsonCookData) {
    const auto plastic = Held(&ZELIMaterial::GetPlasticProperties);
    plastic->SetHardeningType("JohnsonCookHardening");
    EXPECT_EQ(plastic->SetPlasticDataArray(ZELTableOf({{90e6, 292e6, 0.31, 1.09, 1356.0, 298.0}})), S_OK);
    const auto data = Component(tree_->plastic, "JohnsonCookData_v2");
    Undo();

    EXPECT_EQ(plastic->SetPlasticDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}})), E_NOINTERFACE);

    EXPECT_EQ(GetNumber(data, "CoeffA"), 90e6);
}

TEST_F(ZELFeaturesTakenAway, GetNoJohnsonCookDataMadeForThem) {
    const auto plastic = Held(&ZELIMaterial::GetPlasticProperties);
    plastic->SetHardeningType("JohnsonCookHardening");
    Undo();
    const std::size_t reports = KORServices::Current().fatalReports.size();

    EXPECT_EQ(plastic->SetPlasticDataArray(ZELTableOf({{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}})), E_NOINTERFACE);

    EXPECT_EQ(Component(tree_->plastic, "JohnsonCookData_v2"), nullptr);
    EXPECT_EQ(KORServices::Current().fatalReports.size(), reports) << "it is no broken invariant";
}

TEST_F(ZELFeaturesTakenAway, AreNotWrittenByAUserMaterial) {
    const auto user = Held(&ZELIMaterial::GetUserMaterialProperties);
    Undo();

    EXPECT_EQ(user->SetUserMaterialType("THERMAL"), E_FAIL);
    EXPECT_EQ(user->SetUnSymmMatrixFlag(1), E_FAIL);
    EXPECT_EQ(user->SetUserMaterialDependentVar(7), E_FAIL);
    EXPECT_EQ(user->SetPropertyDataFile("umat.f"), E_FAIL);
    EXPECT_EQ(user->SetUserMaterialDataArray(ZELTableOf({{210000.0}})), E_FAIL);

    EXPECT_EQ(GetText(tree_->userMaterial, "UserMaterialType"), "");
    EXPECT_FALSE(GetFlag(tree_->userMaterial, "UnsymmStiffnessMatrix"));
    EXPECT_EQ(GetWhole(tree_->userMaterial, "UserMaterialDepVar"), 0);
    EXPECT_EQ(GetText(tree_->userMaterial, "UserMaterialDataFile"), "");
    EXPECT_EQ(List(tree_->userMaterial, "UserMaterialData"), std::nullopt);
}

TEST_F(ZELFeaturesTakenAway, AreNotWrittenByHyperelasticity) {
    const auto hyperelastic = Held(&ZELIMaterial::GetHyperelasticProperties);
    Undo();

    EXPECT_EQ(hyperelastic->SetMaterialModelType("YEOH"), E_FAIL);
    EXPECT_EQ(hyperelastic->SetHyperelasticMaterialModel(tree_->model), E_FAIL);

    EXPECT_EQ(GetText(tree_->hyperelasticity, "HyperelasticMatModelType"), "");
}

TEST_F(ZELFeaturesTakenAway, AreNotWrittenByTheGasketBehaviors) {
    const auto thickness = Held(&ZELIMaterial::GetGasketThicknessBehaviorProperties);
    const auto membrane = Held(&ZELIMaterial::GetGasketMembraneElasticProperties);
    Undo();

    EXPECT_EQ(thickness->SetGasketTensileStiffnessFactor(0.001), E_FAIL);
    EXPECT_EQ(thickness->SetGasketLoadingDataFile("gasket.csv"), E_FAIL);
    EXPECT_EQ(thickness->SetGasketLoadingDataArray(
                  ZELTableOf({{0.0, 0.0, 293.0}, {1e6, 1e-4, 293.0}, {2e6, 2e-4, 293.0}})),
              E_FAIL);
    EXPECT_EQ(thickness->SetGasketUnLoadingEPDataFile("unloading.csv"), E_FAIL);
    EXPECT_EQ(thickness->SetGasketUnLoadingDamageDataFile("damage.csv"), E_FAIL);
    EXPECT_EQ(membrane->SetGasketMembraneElasticDataFile("membrane.csv"), E_FAIL);
    EXPECT_EQ(membrane->SetGasketMembraneElasticDataArray(ZELTableOf({{75e6, 0.3, 293.0}})), E_FAIL);

    EXPECT_EQ(GetNumber(tree_->thickness, "ZELGasketTensileStiffnessFactor"), 0.0);
    EXPECT_EQ(List(tree_->loading, "ZELGasketLoadingPressureData"), std::nullopt);
    EXPECT_EQ(GetText(tree_->unloadingEP, "ZELGasketUnLoadingEPDataFile"), "");
    EXPECT_EQ(GetText(tree_->unloadingDamage, "ZELGasketUnLoadingDamageDataFile"), "");
    EXPECT_EQ(List(tree_->membrane, "ZELGasketMembraneElasticYoungsModulusData"), std::nullopt);
}

// The material and its model are not kept by a behavior but held by whoever has their interface.
TEST_F(ZELFeaturesTakenAway, ComeBackAsTheyWereWhateverTheirOwnInterfacesAreTold) {
    const ZELIHyperelasticMaterialModel_var model = tree_->model;
    const auto elastic = Held(&ZELIMaterial::GetElasticProperties);
    EXPECT_EQ(elastic->SetElasticEnabled(1), S_OK);
    EXPECT_EQ(model->SetStrainEnergyPotentialOrder(1), S_OK);
    EXPECT_EQ(model->SetPropertyData(ZELTableOf({{0.5e6, 0.1e6, 2e-8}})), S_OK);
    Undo();

    elastic->SetElasticEnabled(0);
    KORGetImplementation<ZELMaterial>(material_.Get())->SetHeatGenerationEnabled(true);
    EXPECT_EQ(model->SetPropertyData(ZELTableOf({{1.0}, {2.0}})), E_FAIL);
    EXPECT_EQ(model->SetPropertyData(ZELTableOf({})), E_FAIL);
    EXPECT_EQ(model->SetStrainEnergyPotentialOrder(3), E_FAIL);
    EXPECT_EQ(model->SetPropertyTemperatureDependent(1), E_FAIL);
    EXPECT_EQ(model->SetPropertyDataFile("other.csv"), E_FAIL);

    ASSERT_TRUE(store_.MemoryDocument().Redo());
    EXPECT_TRUE(GetFlag(tree_->material, "ZELElasticFlag"));
    EXPECT_FALSE(GetFlag(tree_->material, "ZELHeatGenerationFlag"));
    EXPECT_EQ(GetWhole(tree_->model, "HyperelasticMatModelPotentialOrder"), 1);
    EXPECT_EQ(GetText(tree_->model, "HyperelasticMatModelDataFile"), "");
    ZELCftArrayZELCftArrayDouble rows;
    EXPECT_EQ(ZELIHyperelasticMaterialModel_var(tree_->model)->GetPropertyData(rows), S_OK);
    EXPECT_EQ(ZELRowsOf(rows), (ZELRows{{0.5e6, 0.1e6, 2e-8}}));
}

TEST_F(ZELFeaturesTakenAway, AreWrittenAgainAfterARedo) {
    const auto density = Held(&ZELIMaterial::GetDensityProperties);
    Undo();
    ASSERT_TRUE(store_.MemoryDocument().Redo());

    EXPECT_EQ(density->SetDensityDataArray(ZELTableOf({{7850.0}})), S_OK);

    EXPECT_THAT(List(tree_->density, "DensityData"), Optional(ElementsAre(7850.0)));
}

// Only undo takes away. What somebody removed is written to as before, as its attributes can be.
TEST_F(ZELFeaturesTakenAway, AreNotThoseThatWereRemoved) {
    const auto density = Held(&ZELIMaterial::GetDensityProperties);
    store_.Remove(tree_->density);

    EXPECT_EQ(density->SetDensityDataArray(ZELTableOf({{7850.0}})), S_OK);

    EXPECT_THAT(List(tree_->density, "DensityData"), Optional(ElementsAre(7850.0)));
}

TEST(ZELRememberedFeature, ThatIsNoneIsNeverTakenAway) {
    const ZELRememberedFeature none;

    EXPECT_FALSE(none);
    EXPECT_FALSE(none.IsTakenAway());
    EXPECT_EQ(none.ForWriting(), nullptr);
}

TEST(ZELRememberedFeature, ComesBackWithARedo) {
    ZELPlatformStore store;
    KORISpecObject_var feature;
    {
        KORStep step(store.MemoryDocument(), "density");
        feature = store.Make("ZELDensityLT");
        step.Commit();
    }
    const ZELRememberedFeature remembered(feature);

    ASSERT_TRUE(store.MemoryDocument().Undo());
    EXPECT_TRUE(remembered.IsTakenAway());
    EXPECT_EQ(remembered.ForWriting(), nullptr);
    EXPECT_EQ(remembered.Get(), feature.Get());

    ASSERT_TRUE(store.MemoryDocument().Redo());
    EXPECT_FALSE(remembered.IsTakenAway());
    EXPECT_EQ(remembered.ForWriting(), feature.Get());
}

// The features that an upgrade made while the material's interface was built go when that step is undone;
// the material, and the interface that somebody holds, stay.
TEST(ZELRememberedFeature, OfAnUpgradeThatWasUndoneIsNotWritten) {
    ZELPlatformStore store;
    const ZELMaterialTree tree(store);
    ZELIMaterial_var held;
    {
        KORStep step(store.MemoryDocument(), "upgrade");
        held = tree.material;
        step.Commit();
    }
    const auto taken = Component(tree.material, "ZELUserMaterial");
    ASSERT_TRUE(taken);
    ZELGenHeapObjectProxy<ZELUserMaterial> user;
    held->GetUserMaterialProperties(user);

    ASSERT_TRUE(store.MemoryDocument().Undo());
    EXPECT_EQ(user->SetUserMaterialDataArray(ZELTableOf({{210000.0}})), E_FAIL);

    EXPECT_EQ(List(taken, "UserMaterialData"), std::nullopt);
    EXPECT_EQ(Component(tree.material, "ZELUserMaterial"), nullptr);
}
