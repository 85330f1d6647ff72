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
    KORUnicodeString::Literal("MRVUserMaterialLT");  ///< its prefix and the next one's have to differ
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

/// Components: those that the module makes and asks for, and what a class extends that extends nothing.
namespace ZELComponent {

constexpr KORUnicodeString None = KORUnicodeString::Literal("KORnull");
constexpr KORUnicodeString ZELMaterialPropertiesFact = KORUnicodeString::Literal("ZELMaterialPropertiesFact");
constexpr KORUnicodeString ZELKqcAnalysisCaseFact = KORUnicodeString::Literal("ZELKqcAnalysisCaseFact");

}  // namespace ZELComponent

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

// On the plastic feature, and on the Johnson-Cook feature that it holds.
constexpr KORUnicodeString PlasticHardeningType = KORUnicodeString::Literal("PlasticHardeningType");
constexpr KORUnicodeString StressData = KORUnicodeString::Literal("StressData");
constexpr KORUnicodeString StrainData = KORUnicodeString::Literal("StrainData");
constexpr KORUnicodeString JohnsonCookData =
    KORUnicodeString::Literal("JohnsonCookData");  ///< written by older releases; read by the upgrade only
constexpr KORUnicodeString JohnsonCookData_v2 = KORUnicodeString::Literal("JohnsonCookData_v2");
constexpr KORUnicodeString CoeffA = KORUnicodeString::Literal("CoeffA");
constexpr KORUnicodeString CoeffB = KORUnicodeString::Literal("CoeffB");
constexpr KORUnicodeString CoeffN = KORUnicodeString::Literal("CoeffN");
constexpr KORUnicodeString CoeffM = KORUnicodeString::Literal("CoeffM");
constexpr KORUnicodeString MeltingTemperature = KORUnicodeString::Literal("MeltingTemperature");
constexpr KORUnicodeString TransitionTemperature = KORUnicodeString::Literal("TransitionTemperature");

// On the user material's feature.
constexpr KORUnicodeString UserMaterialType = KORUnicodeString::Literal("UserMaterialType");
constexpr KORUnicodeString UnsymmStiffnessMatrix = KORUnicodeString::Literal("UnsymmStiffnessMatrix");
constexpr KORUnicodeString UserMaterialDepVar = KORUnicodeString::Literal("UserMaterialDepVar");
constexpr KORUnicodeString UserMaterialData = KORUnicodeString::Literal("UserMaterialData");
constexpr KORUnicodeString UserMaterialDataFile = KORUnicodeString::Literal("UserMaterialDataFile");

// On the hyperelastic feature, its model and the model's rows.
constexpr KORUnicodeString HyperelasticMatModelType = KORUnicodeString::Literal("HyperelasticMatModelType");
constexpr KORUnicodeString HyperelasticModel =
    KORUnicodeString::Literal("HyperelasticModel");  ///< written by older releases; read by the upgrade only
constexpr KORUnicodeString HyperelasticModel_v2 = KORUnicodeString::Literal("HyperelasticModel_v2");
constexpr KORUnicodeString HyperelasticUnitUpgradeRequired = KORUnicodeString::Literal(
    "HyperelasticUnitUpgradeRequired");  ///< true once the conversion is done, against its name
constexpr KORUnicodeString HyperelasticMatModelPotentialOrder =
    KORUnicodeString::Literal("HyperelasticMatModelPotentialOrder");
constexpr KORUnicodeString HyperelasticMatModelTempDependentFlag =
    KORUnicodeString::Literal("HyperelasticMatModelTempDependentFlag");
constexpr KORUnicodeString HyperelasticMatModelDataFile =
    KORUnicodeString::Literal("HyperelasticMatModelDataFile");
constexpr KORUnicodeString HyperelasticMatModelData = KORUnicodeString::Literal("HyperelasticMatModelData");
constexpr KORUnicodeString MaterialModelRowData = KORUnicodeString::Literal("MaterialModelRowData");

// On the gasket thickness feature and its three table features.
constexpr KORUnicodeString ZELGasketThicknessBehaviorType =
    KORUnicodeString::Literal("ZELGasketThicknessBehaviorType");
constexpr KORUnicodeString ZELGasketYieldOnsetMethodType =
    KORUnicodeString::Literal("ZELGasketYieldOnsetMethodType");
constexpr KORUnicodeString ZELGasketYieldOnsetMethodRelativeValue =
    KORUnicodeString::Literal("ZELGasketYieldOnsetMethodRelativeValue");
constexpr KORUnicodeString ZELGasketYieldOnsetMethodClosureValue =
    KORUnicodeString::Literal("ZELGasketYieldOnsetMethodClosureValue");
constexpr KORUnicodeString ZELGasketTensileStiffnessFactor =
    KORUnicodeString::Literal("ZELGasketTensileStiffnessFactor");
constexpr KORUnicodeString ZELGasketThicknessUnLoadingFlag =
    KORUnicodeString::Literal("ZELGasketThicknessUnLoadingFlag");
constexpr KORUnicodeString ZELGasketThicknessBehaviorLoading =
    KORUnicodeString::Literal("ZELGasketThicknessBehaviorLoading");
constexpr KORUnicodeString ZELGasketThicknessBehaviorUnLoadingElasticPlastic =
    KORUnicodeString::Literal("ZELGasketThicknessBehaviorUnLoadingElasticPlastic");
constexpr KORUnicodeString ZELGasketThicknessBehaviorUnLoadingDamage =
    KORUnicodeString::Literal("ZELGasketThicknessBehaviorUnLoadingDamage");
constexpr KORUnicodeString ZELGasketLoadingDataFile = KORUnicodeString::Literal("ZELGasketLoadingDataFile");
constexpr KORUnicodeString ZELGasketLoadingTemperatureDepFlag =
    KORUnicodeString::Literal("ZELGasketLoadingTemperatureDepFlag");
constexpr KORUnicodeString ZELGasketLoadingPressureData =
    KORUnicodeString::Literal("ZELGasketLoadingPressureData");
constexpr KORUnicodeString ZELGasketLoadingClosureData =
    KORUnicodeString::Literal("ZELGasketLoadingClosureData");
constexpr KORUnicodeString ZELGasketLoadingTemperatureData =
    KORUnicodeString::Literal("ZELGasketLoadingTemperatureData");
constexpr KORUnicodeString ZELGasketUnLoadingEPDataFile =
    KORUnicodeString::Literal("ZELGasketUnLoadingEPDataFile");
constexpr KORUnicodeString ZELGasketUnLoadingEPTemperatureDepFlag =
    KORUnicodeString::Literal("ZELGasketUnLoadingEPTemperatureDepFlag");
constexpr KORUnicodeString ZELGasketUnLoadingEPPressureData =
    KORUnicodeString::Literal("ZELGasketUnLoadingEPPressureData");
constexpr KORUnicodeString ZELGasketUnLoadingEPClosureData =
    KORUnicodeString::Literal("ZELGasketUnLoadingEPClosureData");
constexpr KORUnicodeString ZELGasketUnLoadingEPPlasticClosureData =
    KORUnicodeString::Literal("ZELGasketUnLoadingEPPlasticClosureData");
constexpr KORUnicodeString ZELGasketUnLoadingEPTemperatureData =
    KORUnicodeString::Literal("ZELGasketUnLoadingEPTemperatureData");
constexpr KORUnicodeString ZELGasketUnLoadingDamageDataFile =
    KORUnicodeString::Literal("ZELGasketUnLoadingDamageDataFile");
constexpr KORUnicodeString ZELGasketUnLoadingDamageTemperatureDepFlag =
    KORUnicodeString::Literal("ZELGasketUnLoadingDamageTemperatureDepFlag");
constexpr KORUnicodeString ZELGasketUnLoadingDamagePressureData =
    KORUnicodeString::Literal("ZELGasketUnLoadingDamagePressureData");
constexpr KORUnicodeString ZELGasketUnLoadingDamageClosureData =
    KORUnicodeString::Literal("ZELGasketUnLoadingDamageClosureData");
constexpr KORUnicodeString ZELGasketUnLoadingDamageMaxClosureData =
    KORUnicodeString::Literal("ZELGasketUnLoadingDamageMaxClosureData");
constexpr KORUnicodeString ZELGasketUnLoadingDamageTemperatureData =
    KORUnicodeString::Literal("ZELGasketUnLoadingDamageTemperatureData");

// On the features of the elastic gasket behaviors.
constexpr KORUnicodeString ZELGasketMembraneElasticFlag =
    KORUnicodeString::Literal("ZELGasketMembraneElasticFlag");
constexpr KORUnicodeString ZELGasketMembraneElasticDataFile =
    KORUnicodeString::Literal("ZELGasketMembraneElasticDataFile");
constexpr KORUnicodeString ZELGasketMembraneElasticTemperatureDepFlag =
    KORUnicodeString::Literal("ZELGasketMembraneElasticTemperatureDepFlag");
constexpr KORUnicodeString ZELGasketMembraneElasticYoungsModulusData =
    KORUnicodeString::Literal("ZELGasketMembraneElasticYoungsModulusData");
constexpr KORUnicodeString ZELGasketMembraneElasticPoissonsRatioData =
    KORUnicodeString::Literal("ZELGasketMembraneElasticPoissonsRatioData");
constexpr KORUnicodeString ZELGasketMembraneElasticTemperatureData =
    KORUnicodeString::Literal("ZELGasketMembraneElasticTemperatureData");
constexpr KORUnicodeString ZELGasketTransverseShearElasticFlag =
    KORUnicodeString::Literal("ZELGasketTransverseShearElasticFlag");
constexpr KORUnicodeString ZELGasketTransverseShearElasticDataFile =
    KORUnicodeString::Literal("ZELGasketTransverseShearElasticDataFile");
constexpr KORUnicodeString ZELGasketTransverseShearElasticTemperatureDepFlag =
    KORUnicodeString::Literal("ZELGasketTransverseShearElasticTemperatureDepFlag");
constexpr KORUnicodeString ZELGasketTransverseShearElasticShearStiffnessData =
    KORUnicodeString::Literal("ZELGasketTransverseShearElasticShearStiffnessData");
constexpr KORUnicodeString ZELGasketTransverseShearElasticTemperatureData =
    KORUnicodeString::Literal("ZELGasketTransverseShearElasticTemperatureData");

// On layups and layers. "UserMaterial" is the material a layer is made of, of whatever kind.
constexpr KORUnicodeString LayerList = KORUnicodeString::Literal("LayerList");
constexpr KORUnicodeString UserMaterial = KORUnicodeString::Literal("UserMaterial");
constexpr KORUnicodeString Thickness = KORUnicodeString::Literal("Thickness");
constexpr KORUnicodeString OrientationAngle = KORUnicodeString::Literal("OrientationAngle");

}  // namespace ZELKey

/// Values of string attributes.
namespace ZELKeyword {

constexpr KORUnicodeString IsotropicHardening = KORUnicodeString::Literal("IsotropicHardening");
constexpr KORUnicodeString KinematicHardening = KORUnicodeString::Literal("KinematicHardening");
constexpr KORUnicodeString JohnsonCookHardening = KORUnicodeString::Literal("JohnsonCookHardening");

// Kinds of user routine.
constexpr KORUnicodeString MECHANICAL = KORUnicodeString::Literal("MECHANICAL");
constexpr KORUnicodeString THERMAL = KORUnicodeString::Literal("THERMAL");

// Hyperelastic material models.
constexpr KORUnicodeString ARRUDA_BOYCE = KORUnicodeString::Literal("ARRUDA_BOYCE");
constexpr KORUnicodeString MOONEY_RIVLIN = KORUnicodeString::Literal("MOONEY_RIVLIN");
constexpr KORUnicodeString NEO_HOOKE = KORUnicodeString::Literal("NEO_HOOKE");
constexpr KORUnicodeString OGDEN = KORUnicodeString::Literal("OGDEN");
constexpr KORUnicodeString POLYNOMIAL = KORUnicodeString::Literal("POLYNOMIAL");
constexpr KORUnicodeString REDUCED_POLYNOMIAL = KORUnicodeString::Literal("REDUCED_POLYNOMIAL");
constexpr KORUnicodeString VAN_DER_WAALS = KORUnicodeString::Literal("VAN_DER_WAALS");
constexpr KORUnicodeString YEOH = KORUnicodeString::Literal("YEOH");

}  // namespace ZELKeyword

/// The module's catalog and the containers of its data.
namespace ZELCatalog {

constexpr KORUnicodeString FileName = KORUnicodeString::Literal("ZELMaterialPropertiesCatalog.KORfct");
constexpr KORUnicodeString Client = KORUnicodeString::Literal("ZELMAR");
constexpr KORUnicodeString OldApplicativeContainer = KORUnicodeString::Literal("VRBMatAppliCont");

}  // namespace ZELCatalog

/// Material kinds by which callers classify a layer's material; no operation of the module reads or writes
/// them.
namespace ZELMaterialKind {

constexpr KORUnicodeString ISOTROPIC = KORUnicodeString::Literal("ISOTROPIC");
constexpr KORUnicodeString ORTHOTROPIC2D = KORUnicodeString::Literal("ORTHOTROPIC2D");
constexpr KORUnicodeString IMPORTEDMATERIAL = KORUnicodeString::Literal("IMPORTEDMATERIAL");
constexpr KORUnicodeString ORTHOTROPIC3D = KORUnicodeString::Literal("ORTHOTROPIC3D");
constexpr KORUnicodeString UNDEFINED = KORUnicodeString::Literal("UNDEFINED");
constexpr KORUnicodeString UNDEFINED2 =
    KORUnicodeString::Literal("UNDEFINED");  ///< a constant of its own to its users

}  // namespace ZELMaterialKind

/// Unit types of the platform's units service. The module itself converts pressures only; the others are for
/// callers that show the stored quantities.
namespace ZELUnit {

constexpr KORUnicodeString Pressure = KORUnicodeString::Literal("PRESSURE");
constexpr KORUnicodeString Acceleration = KORUnicodeString::Literal("ACCELERATION");
constexpr KORUnicodeString Angle = KORUnicodeString::Literal("ANGLE");
constexpr KORUnicodeString AngularAcceleration = KORUnicodeString::Literal("ANGULAR ACCELERATION");
constexpr KORUnicodeString AngularStiffness = KORUnicodeString::Literal("ANGULAR STIFFNESS");
constexpr KORUnicodeString AngularVelocity = KORUnicodeString::Literal("ANGULAR VELOCITY");
constexpr KORUnicodeString TranslationalVelocity = KORUnicodeString::Literal("TRANSLATIONAL VELOCITY");
constexpr KORUnicodeString ConvectiveFilmCoeff = KORUnicodeString::Literal("CONVECTIVE FILM COEFF");
constexpr KORUnicodeString Density = KORUnicodeString::Literal("DENSITY");
constexpr KORUnicodeString Force = KORUnicodeString::Literal("FORCE");
constexpr KORUnicodeString HeatCapacity = KORUnicodeString::Literal("HEAT CAPACITY");
constexpr KORUnicodeString HeatFlux = KORUnicodeString::Literal("HEAT FLUX");
constexpr KORUnicodeString BodyHeatFlux = KORUnicodeString::Literal("BODY HEAT FLUX");
constexpr KORUnicodeString HeatRate = KORUnicodeString::Literal("HEAT RATE");
constexpr KORUnicodeString InverseTemperature = KORUnicodeString::Literal("INVERSE TEMPERATURE");
constexpr KORUnicodeString Length = KORUnicodeString::Literal("LENGTH");
constexpr KORUnicodeString Mass = KORUnicodeString::Literal("MASS");
constexpr KORUnicodeString MassLinearDensity = KORUnicodeString::Literal("MASS LINEAR DENSITY");
constexpr KORUnicodeString MassSurfaceDensity = KORUnicodeString::Literal("MASS SURFACE DENSITY");
constexpr KORUnicodeString MassVolumeDensity = KORUnicodeString::Literal("MASS VOLUME DENSITY");
constexpr KORUnicodeString Moment = KORUnicodeString::Literal("MOMENT");
constexpr KORUnicodeString StiffnessConstant = KORUnicodeString::Literal("STIFFNESS CONSTANT");
constexpr KORUnicodeString Temprtre =
    KORUnicodeString::Literal("TEMPRTRE");  ///< spelled this way by the units service
constexpr KORUnicodeString TemperatureDifference = KORUnicodeString::Literal("TEMPERATURE DIFFERENCE");
constexpr KORUnicodeString ThermalConductivity = KORUnicodeString::Literal("THERMAL CONDUCTIVITY");
constexpr KORUnicodeString Time = KORUnicodeString::Literal("TIME");
constexpr KORUnicodeString Frequency = KORUnicodeString::Literal("FREQUENCY");
constexpr KORUnicodeString HertzSquare = KORUnicodeString::Literal("HERTZSQUARE");
constexpr KORUnicodeString Area = KORUnicodeString::Literal("AREA");
constexpr KORUnicodeString Inertia = KORUnicodeString::Literal("INERTIA");
constexpr KORUnicodeString InertiaMoment = KORUnicodeString::Literal("INERTIAMOMENT");
constexpr KORUnicodeString DampingConstant = KORUnicodeString::Literal("DAMPING CONSTANT");
constexpr KORUnicodeString AngularDamping = KORUnicodeString::Literal("ANGULAR DAMPING");
constexpr KORUnicodeString Speed = KORUnicodeString::Literal("SPEED");
constexpr KORUnicodeString InversePressure = KORUnicodeString::Literal("INVERSE PRESSURE");
constexpr KORUnicodeString VolForce = KORUnicodeString::Literal("VOLFORCE");
constexpr KORUnicodeString Meter = KORUnicodeString::Literal("METER");
constexpr KORUnicodeString Kilogram = KORUnicodeString::Literal("KILOGRAM");
constexpr KORUnicodeString Second = KORUnicodeString::Literal("SECOND");
constexpr KORUnicodeString Kelvin = KORUnicodeString::Literal("KELVIN");
constexpr KORUnicodeString Energy = KORUnicodeString::Literal("ENERGY");
constexpr KORUnicodeString Volume = KORUnicodeString::Literal("VOLUME");

}  // namespace ZELUnit
