#pragma once

#include "framework/KORUnicodeString.h"

/// The module's one set of named strings. Every source file has its own copy, which costs nothing to make.

/// Late types of the features that the module makes and extends.
namespace ZELLateType {

constexpr KORUnicodeString ZELMaterialLT = KORUnicodeString::Literal("ZELMaterialLT");
constexpr KORUnicodeString ZELElasticLT = KORUnicodeString::Literal("ZELElasticLT");
constexpr KORUnicodeString ZELPlasticLT = KORUnicodeString::Literal("ZELPlasticLT");
constexpr KORUnicodeString ZELPlasticJohnsonCookLT = KORUnicodeString::Literal("ZELPlasticJohnsonCookLT");
constexpr KORUnicodeString ZELDensityLT = KORUnicodeString::Literal("ZELDensityLT");
constexpr KORUnicodeString ZELThermalExpansionLT = KORUnicodeString::Literal("ZELThermalExpansionLT");
constexpr KORUnicodeString ZELConductivityLT = KORUnicodeString::Literal("ZELConductivityLT");
constexpr KORUnicodeString ZELSpecificHeatLT = KORUnicodeString::Literal("ZELSpecificHeatLT");
constexpr KORUnicodeString MRVUserMaterialLT =
    KORUnicodeString::Literal("MRVUserMaterialLT");  ///< its prefix differs from all others, and has to
constexpr KORUnicodeString MRVHyperelasticityLT = KORUnicodeString::Literal("MRVHyperelasticityLT");
constexpr KORUnicodeString ZELHyperelasticMaterialModelLT =
    KORUnicodeString::Literal("ZELHyperelasticMaterialModelLT");
constexpr KORUnicodeString ZELMaterialModelRowDataLT = KORUnicodeString::Literal("ZELMaterialModelRowDataLT");
constexpr KORUnicodeString ZELGasketThicknessBehaviorLT =
    KORUnicodeString::Literal("ZELGasketThicknessBehaviorLT");
constexpr KORUnicodeString ZELGasketThicknessBehaviorLoadingLT =
    KORUnicodeString::Literal("ZELGasketThicknessBehaviorLoadingLT");
constexpr KORUnicodeString ZELGasketThicknessBehaviorUnLoadingEPLT =
    KORUnicodeString::Literal("ZELGasketThicknessBehaviorUnLoadingEPLT");
constexpr KORUnicodeString ZELGasketThicknessBehaviorUnLoadingDamageLT =
    KORUnicodeString::Literal("ZELGasketThicknessBehaviorUnLoadingDamageLT");
constexpr KORUnicodeString ZELGasketTransverseShearElasticLT =
    KORUnicodeString::Literal("ZELGasketTransverseShearElasticLT");
constexpr KORUnicodeString ZELGasketMembraneElasticLT =
    KORUnicodeString::Literal("ZELGasketMembraneElasticLT");
constexpr KORUnicodeString ZELLayupLT = KORUnicodeString::Literal("ZELLayupLT");
constexpr KORUnicodeString ZELLayupLayerLT = KORUnicodeString::Literal("ZELLayupLayerLT");
constexpr KORUnicodeString ZELZelmarPropertySetLT = KORUnicodeString::Literal("ZELZelmarPropertySetLT");
constexpr KORUnicodeString ZELShellSectionEnhLT = KORUnicodeString::Literal("ZELShellSectionEnhLT");

}  // namespace ZELLateType

/// Attribute keys.
namespace ZELKey {

// On the material: the enabled flags, the behaviors' own features, and heat generation.
constexpr KORUnicodeString ZELElasticFlag = KORUnicodeString::Literal("ZELElasticFlag");
constexpr KORUnicodeString ZELElastic = KORUnicodeString::Literal("ZELElastic");
constexpr KORUnicodeString ZELPlasticFlag = KORUnicodeString::Literal("ZELPlasticFlag");
constexpr KORUnicodeString ZELPlastic = KORUnicodeString::Literal("ZELPlastic");
constexpr KORUnicodeString ZELDensityFlag = KORUnicodeString::Literal("ZELDensityFlag");
constexpr KORUnicodeString ZELDensity = KORUnicodeString::Literal("ZELDensity");
constexpr KORUnicodeString ZELThermalExpansionFlag = KORUnicodeString::Literal("ZELThermalExpansionFlag");
constexpr KORUnicodeString ZELThermalExpansion = KORUnicodeString::Literal("ZELThermalExpansion");
constexpr KORUnicodeString ZELConductivityFlag = KORUnicodeString::Literal("ZELConductivityFlag");
constexpr KORUnicodeString ZELConductivity = KORUnicodeString::Literal("ZELConductivity");
constexpr KORUnicodeString ZELSpecificHeatFlag = KORUnicodeString::Literal("ZELSpecificHeatFlag");
constexpr KORUnicodeString ZELSpecificHeat = KORUnicodeString::Literal("ZELSpecificHeat");
constexpr KORUnicodeString ZELUserMaterialFlag = KORUnicodeString::Literal("ZELUserMaterialFlag");
constexpr KORUnicodeString ZELUserMaterial = KORUnicodeString::Literal("ZELUserMaterial");
constexpr KORUnicodeString ZELHyperelasticFlag = KORUnicodeString::Literal("ZELHyperelasticFlag");
constexpr KORUnicodeString ZELHyperelasticity = KORUnicodeString::Literal("ZELHyperelasticity");
constexpr KORUnicodeString ZELGasketFlag = KORUnicodeString::Literal("ZELGasketFlag");
constexpr KORUnicodeString ZELGasketThicknessBehavior =
    KORUnicodeString::Literal("ZELGasketThicknessBehavior");
constexpr KORUnicodeString ZELGasketTransverseShearElastic =
    KORUnicodeString::Literal("ZELGasketTransverseShearElastic");
constexpr KORUnicodeString ZELGasketMembraneElastic = KORUnicodeString::Literal("ZELGasketMembraneElastic");
constexpr KORUnicodeString ZELHeatGenerationFlag = KORUnicodeString::Literal("ZELHeatGenerationFlag");

// On the features of the table behaviors.
constexpr KORUnicodeString ElasticTemperatureDependent =
    KORUnicodeString::Literal("ElasticTemperatureDependent");
constexpr KORUnicodeString PlasticTemperatureDependent =
    KORUnicodeString::Literal("PlasticTemperatureDependent");
constexpr KORUnicodeString TemperatureDependent = KORUnicodeString::Literal("TemperatureDependent");
constexpr KORUnicodeString DataFile = KORUnicodeString::Literal("DataFile");
constexpr KORUnicodeString YoungData = KORUnicodeString::Literal("YoungData");
constexpr KORUnicodeString PoissonData = KORUnicodeString::Literal("PoissonData");
constexpr KORUnicodeString DensityData = KORUnicodeString::Literal("DensityData");
constexpr KORUnicodeString ConductivityData = KORUnicodeString::Literal("ConductivityData");
constexpr KORUnicodeString SpecificHeatData = KORUnicodeString::Literal("SpecificHeatData");
constexpr KORUnicodeString ThermalExpansionData = KORUnicodeString::Literal("ThermalExpansionData");
constexpr KORUnicodeString TemperatureData = KORUnicodeString::Literal("TemperatureData");
constexpr KORUnicodeString ReferenceTemperature = KORUnicodeString::Literal("ReferenceTemperature");

}  // namespace ZELKey
