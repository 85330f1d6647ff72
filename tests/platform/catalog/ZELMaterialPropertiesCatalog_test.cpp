#include <gtest/gtest.h>

#include "platform/catalog/KORCatalogFile.h"

namespace {

constexpr auto kBoolean = KORAttributeKind::Boolean;
constexpr auto kInteger = KORAttributeKind::Integer;
constexpr auto kDouble = KORAttributeKind::Double;
constexpr auto kString = KORAttributeKind::String;
constexpr auto kDoubles = KORAttributeKind::ListOfDoubles;
constexpr auto kComponent = KORAttributeKind::Component;
constexpr auto kComponents = KORAttributeKind::ListOfComponents;

/// Everything that documents may hold: late type, attribute, kind.
constexpr struct {
    const char* lateType;
    const char* attribute;
    KORAttributeKind kind;
} kDeclared[] = {
    {"ZELMaterialLT", "ZELElasticFlag", kBoolean},
    {"ZELMaterialLT", "ZELPlasticFlag", kBoolean},
    {"ZELMaterialLT", "ZELDensityFlag", kBoolean},
    {"ZELMaterialLT", "ZELThermalExpansionFlag", kBoolean},
    {"ZELMaterialLT", "ZELConductivityFlag", kBoolean},
    {"ZELMaterialLT", "ZELSpecificHeatFlag", kBoolean},
    {"ZELMaterialLT", "ZELUserMaterialFlag", kBoolean},
    {"ZELMaterialLT", "ZELHyperelasticFlag", kBoolean},
    {"ZELMaterialLT", "ZELGasketFlag", kBoolean},
    {"ZELMaterialLT", "ZELHeatGenerationFlag", kBoolean},
    {"ZELMaterialLT", "ZELElastic", kComponent},
    {"ZELMaterialLT", "ZELPlastic", kComponent},
    {"ZELMaterialLT", "ZELDensity", kComponent},
    {"ZELMaterialLT", "ZELThermalExpansion", kComponent},
    {"ZELMaterialLT", "ZELConductivity", kComponent},
    {"ZELMaterialLT", "ZELSpecificHeat", kComponent},
    {"ZELMaterialLT", "ZELUserMaterial", kComponent},
    {"ZELMaterialLT", "ZELHyperelasticity", kComponent},
    {"ZELMaterialLT", "ZELGasketThicknessBehavior", kComponent},
    {"ZELMaterialLT", "ZELGasketTransverseShearElastic", kComponent},
    {"ZELMaterialLT", "ZELGasketMembraneElastic", kComponent},
    {"ZELMaterialLT", "Father", kComponent},
    {"ZELElasticLT", "ElasticTemperatureDependent", kBoolean},
    {"ZELElasticLT", "DataFile", kString},
    {"ZELElasticLT", "YoungData", kDoubles},
    {"ZELElasticLT", "PoissonData", kDoubles},
    {"ZELElasticLT", "TemperatureData", kDoubles},
    {"ZELPlasticLT", "PlasticHardeningType", kString},
    {"ZELPlasticLT", "PlasticTemperatureDependent", kBoolean},
    {"ZELPlasticLT", "DataFile", kString},
    {"ZELPlasticLT", "StressData", kDoubles},
    {"ZELPlasticLT", "StrainData", kDoubles},
    {"ZELPlasticLT", "TemperatureData", kDoubles},
    {"ZELPlasticLT", "JohnsonCookData", kComponent},
    {"ZELPlasticLT", "JohnsonCookData_v2", kComponent},
    {"ZELPlasticJohnsonCookLT", "CoeffA", kDouble},
    {"ZELPlasticJohnsonCookLT", "CoeffB", kDouble},
    {"ZELPlasticJohnsonCookLT", "CoeffN", kDouble},
    {"ZELPlasticJohnsonCookLT", "CoeffM", kDouble},
    {"ZELPlasticJohnsonCookLT", "MeltingTemperature", kDouble},
    {"ZELPlasticJohnsonCookLT", "TransitionTemperature", kDouble},
    {"ZELDensityLT", "TemperatureDependent", kBoolean},
    {"ZELDensityLT", "DataFile", kString},
    {"ZELDensityLT", "DensityData", kDoubles},
    {"ZELDensityLT", "TemperatureData", kDoubles},
    {"ZELThermalExpansionLT", "TemperatureDependent", kBoolean},
    {"ZELThermalExpansionLT", "DataFile", kString},
    {"ZELThermalExpansionLT", "ReferenceTemperature", kDouble},
    {"ZELThermalExpansionLT", "ThermalExpansionData", kDoubles},
    {"ZELThermalExpansionLT", "TemperatureData", kDoubles},
    {"ZELConductivityLT", "TemperatureDependent", kBoolean},
    {"ZELConductivityLT", "DataFile", kString},
    {"ZELConductivityLT", "ConductivityData", kDoubles},
    {"ZELConductivityLT", "TemperatureData", kDoubles},
    {"ZELSpecificHeatLT", "TemperatureDependent", kBoolean},
    {"ZELSpecificHeatLT", "DataFile", kString},
    {"ZELSpecificHeatLT", "SpecificHeatData", kDoubles},
    {"ZELSpecificHeatLT", "TemperatureData", kDoubles},
    {"MRVUserMaterialLT", "UserMaterialType", kString},
    {"MRVUserMaterialLT", "UnsymmStiffnessMatrix", kBoolean},
    {"MRVUserMaterialLT", "UserMaterialDepVar", kInteger},
    {"MRVUserMaterialLT", "UserMaterialData", kDoubles},
    {"MRVUserMaterialLT", "UserMaterialDataFile", kString},
    {"MRVHyperelasticityLT", "HyperelasticMatModelType", kString},
    {"MRVHyperelasticityLT", "HyperelasticModel", kComponent},
    {"MRVHyperelasticityLT", "HyperelasticModel_v2", kComponent},
    {"MRVHyperelasticityLT", "HyperelasticUnitUpgradeRequired", kBoolean},
    {"ZELHyperelasticMaterialModelLT", "HyperelasticMatModelPotentialOrder", kInteger},
    {"ZELHyperelasticMaterialModelLT", "HyperelasticMatModelTempDependentFlag", kBoolean},
    {"ZELHyperelasticMaterialModelLT", "HyperelasticMatModelDataFile", kString},
    {"ZELHyperelasticMaterialModelLT", "HyperelasticMatModelData", kComponents},
    {"ZELMaterialModelRowDataLT", "MaterialModelRowData", kDoubles},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessBehaviorType", kInteger},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketYieldOnsetMethodType", kInteger},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketYieldOnsetMethodRelativeValue", kDouble},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketYieldOnsetMethodClosureValue", kDouble},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketTensileStiffnessFactor", kDouble},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessUnLoadingFlag", kBoolean},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessBehaviorLoading", kComponent},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessBehaviorUnLoadingElasticPlastic", kComponent},
    {"ZELGasketThicknessBehaviorLT", "ZELGasketThicknessBehaviorUnLoadingDamage", kComponent},
    {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingDataFile", kString},
    {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingTemperatureDepFlag", kBoolean},
    {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingPressureData", kDoubles},
    {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingClosureData", kDoubles},
    {"ZELGasketThicknessBehaviorLoadingLT", "ZELGasketLoadingTemperatureData", kDoubles},
    {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPDataFile", kString},
    {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPTemperatureDepFlag", kBoolean},
    {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPPressureData", kDoubles},
    {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPClosureData", kDoubles},
    {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPPlasticClosureData", kDoubles},
    {"ZELGasketThicknessBehaviorUnLoadingEPLT", "ZELGasketUnLoadingEPTemperatureData", kDoubles},
    {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageDataFile", kString},
    {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageTemperatureDepFlag", kBoolean},
    {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamagePressureData", kDoubles},
    {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageClosureData", kDoubles},
    {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageMaxClosureData", kDoubles},
    {"ZELGasketThicknessBehaviorUnLoadingDamageLT", "ZELGasketUnLoadingDamageTemperatureData", kDoubles},
    {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticFlag", kBoolean},
    {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticDataFile", kString},
    {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticTemperatureDepFlag", kBoolean},
    {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticShearStiffnessData", kDoubles},
    {"ZELGasketTransverseShearElasticLT", "ZELGasketTransverseShearElasticTemperatureData", kDoubles},
    {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticFlag", kBoolean},
    {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticDataFile", kString},
    {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticTemperatureDepFlag", kBoolean},
    {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticYoungsModulusData", kDoubles},
    {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticPoissonsRatioData", kDoubles},
    {"ZELGasketMembraneElasticLT", "ZELGasketMembraneElasticTemperatureData", kDoubles},
    {"ZELLayupLT", "LayerList", kComponents},
    {"ZELLayupLayerLT", "UserMaterial", kComponent},
    {"ZELLayupLayerLT", "Thickness", kDouble},
    {"ZELLayupLayerLT", "OrientationAngle", kDouble},
};

/// The module's own catalog file.
class ZELMaterialPropertiesCatalog : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(catalog) << error.Text(); }

    const KORLayout& Layout(const char* lateType) const {
        return *catalog->Find(KORName::Intern(lateType))->layout;
    }
    const KORValue& Initial(const char* lateType, const char* attribute) const {
        const KORLayout& layout = Layout(lateType);
        return layout.Initial(layout.Find(KORName::Intern(attribute)).slot);
    }

    KORFileError error;
    const std::shared_ptr<const KORCatalogFile> catalog =
        KORCatalogFile::Open(ZEL_CATALOG_FOLDER "/ZELMaterialPropertiesCatalog.KORfct", error);
};

TEST_F(ZELMaterialPropertiesCatalog, DeclaresEveryAttributeOfEveryLateType) {
    for (const auto& [lateType, attribute, kind] : kDeclared) {
        const KORCatalogType* type = catalog->Find(KORName::Intern(lateType));
        ASSERT_NE(nullptr, type) << lateType;
        const KORLayout::Place place = type->layout->Find(KORName::Intern(attribute));
        EXPECT_NE(0, place.slot) << lateType << " " << attribute;
        EXPECT_EQ(kind, place.kind) << lateType << " " << attribute;
    }
}

TEST_F(ZELMaterialPropertiesCatalog, StartsFlagsOffScalarsAtZeroAndStringsEmpty) {
    for (const KORCatalogType& type : catalog->Types()) {
        for (const KORAttribute& attribute : type.layout->Attributes()) {
            EXPECT_FALSE(attribute.initial.Kind() == kBoolean && attribute.initial.Boolean());
            EXPECT_FALSE(attribute.initial.Kind() == kInteger && attribute.initial.Integer() != 0);
            EXPECT_FALSE(attribute.initial.Kind() == kDouble && attribute.initial.Double() != 0.0);
            EXPECT_FALSE(attribute.initial.Kind() == kString && !attribute.initial.String().empty());
        }
    }
    EXPECT_EQ(KORValueState::Valued, Initial("ZELMaterialLT", "ZELElasticFlag").State());
    EXPECT_EQ(KORValueState::Valued, Initial("ZELElasticLT", "DataFile").State());
}

TEST_F(ZELMaterialPropertiesCatalog, StartsListsAndComponentsNeverValued) {
    EXPECT_EQ(KORValueState::NeverValued, Initial("ZELElasticLT", "YoungData").State());
    EXPECT_EQ(KORValueState::NeverValued, Initial("ZELMaterialLT", "ZELElastic").State());
    EXPECT_EQ(KORValueState::NeverValued, Initial("ZELLayupLT", "LayerList").State());
}

TEST_F(ZELMaterialPropertiesCatalog, StartsTheUnitUpgradeFlagNeverValuedSoThatItReadsFalse) {
    const KORValue& flag = Initial("MRVHyperelasticityLT", "HyperelasticUnitUpgradeRequired");

    EXPECT_EQ(KORValueState::NeverValued, flag.State());
    EXPECT_FALSE(flag.Boolean());
}

TEST_F(ZELMaterialPropertiesCatalog, KeepsOldKeysAndNamesTheirSuccessors) {
    const auto successor = [this](const char* lateType, const char* attribute) {
        const KORCatalogType& type = *catalog->Find(KORName::Intern(lateType));
        const auto slot = type.layout->Find(KORName::Intern(attribute)).slot;
        return type.attributes[static_cast<std::size_t>(slot - KORLayout::kFirstAttribute)].supersededBy;
    };

    EXPECT_EQ("JohnsonCookData_v2", successor("ZELPlasticLT", "JohnsonCookData"));
    EXPECT_EQ("HyperelasticModel_v2", successor("MRVHyperelasticityLT", "HyperelasticModel"));
    EXPECT_EQ("", successor("ZELPlasticLT", "JohnsonCookData_v2"));
}

TEST_F(ZELMaterialPropertiesCatalog, SaysTheUnitOfEveryQuantity) {
    const auto unit = [this](const char* lateType, const char* attribute) {
        const KORCatalogType& type = *catalog->Find(KORName::Intern(lateType));
        const auto slot = type.layout->Find(KORName::Intern(attribute)).slot;
        return type.attributes[static_cast<std::size_t>(slot - KORLayout::kFirstAttribute)].unit;
    };

    EXPECT_EQ("Pa", unit("ZELElasticLT", "YoungData"));
    EXPECT_EQ("-", unit("ZELElasticLT", "PoissonData"));
    EXPECT_EQ("K", unit("ZELElasticLT", "TemperatureData"));
    EXPECT_EQ("kg/m3", unit("ZELDensityLT", "DensityData"));
    EXPECT_EQ("1/K", unit("ZELThermalExpansionLT", "ThermalExpansionData"));
    EXPECT_EQ("K", unit("ZELThermalExpansionLT", "ReferenceTemperature"));
    EXPECT_EQ("W/(m K)", unit("ZELConductivityLT", "ConductivityData"));
    EXPECT_EQ("J/(kg K)", unit("ZELSpecificHeatLT", "SpecificHeatData"));
    EXPECT_EQ("m", unit("ZELLayupLayerLT", "Thickness"));
    EXPECT_EQ("deg", unit("ZELLayupLayerLT", "OrientationAngle"));
}

}  // namespace
