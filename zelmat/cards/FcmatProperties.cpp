#include "zelmat/cards/FcmatProperties.h"

#include <algorithm>
#include <array>

namespace zelmat {

namespace {

constexpr std::array<FcmatModel, 8> kModels = {{
    {"Father", "9cdda8b6-b606-4778-8f13-3934d8668e67"},
    {"MaterialStandard", "1e2c0088-904a-4537-925f-64064c07d700"},
    {"Density", "454661e5-265b-4320-8e6f-fcf6223ac3af"},
    {"LinearElastic", "7b561d1d-fb9b-44f6-9da9-56a4f74d7536"},
    {"OrthotropicLinearElastic", "b19ccc6b-a431-418e-91c2-0ac8c649d146"},
    {"Thermal", "9959d007-a970-4ea7-bae4-3eb1b8b883c7"},
    {"Electromagnetic", "b2eb5f48-74b3-4193-9fbb-948674f427f3"},
    {"Costs", "881df808-8726-4c2e-be38-688bb6cce466"},
}};

constexpr std::array<FcmatProperty, 35> kProperties = {{
    {"Father", "Father", "", "", ""},
    {"KindOfMaterial", "MaterialStandard", "", "", ""},
    {"MaterialNumber", "MaterialStandard", "", "", ""},
    {"Norm", "MaterialStandard", "", "", ""},
    {"StandardCode", "MaterialStandard", "", "", ""},
    {"Density", "Density", "", "density", "density"},
    {"YoungsModulus", "LinearElastic", "MPa", "elastic", "youngs_modulus"},
    {"PoissonRatio", "LinearElastic", "-", "elastic", "poissons_ratio"},
    {"ShearModulus", "LinearElastic", "MPa", "", ""},
    {"BulkModulus", "LinearElastic", "MPa", "", ""},
    {"YieldStrength", "LinearElastic", "MPa", "", ""},
    {"UltimateTensileStrength", "LinearElastic", "MPa", "", ""},
    {"CompressiveStrength", "LinearElastic", "MPa", "", ""},
    {"UltimateStrain", "LinearElastic", "%", "", ""},
    {"AngleOfFriction", "LinearElastic", "", "", ""},
    {"FractureToughness", "LinearElastic", "", "", ""},
    {"YoungsModulusX", "OrthotropicLinearElastic", "", "", ""},
    {"YoungsModulusY", "OrthotropicLinearElastic", "", "", ""},
    {"YoungsModulusZ", "OrthotropicLinearElastic", "", "", ""},
    {"PoissonRatioXY", "OrthotropicLinearElastic", "", "", ""},
    {"PoissonRatioXZ", "OrthotropicLinearElastic", "", "", ""},
    {"PoissonRatioYZ", "OrthotropicLinearElastic", "", "", ""},
    {"ShearModulusXY", "OrthotropicLinearElastic", "", "", ""},
    {"ShearModulusXZ", "OrthotropicLinearElastic", "", "", ""},
    {"ShearModulusYZ", "OrthotropicLinearElastic", "", "", ""},
    {"ThermalExpansionCoefficient", "Thermal", "1/K", "thermal_expansion", "thermal_expansion"},
    {"ThermalExpansionReferenceTemperature", "Thermal", "", "thermal_expansion", "reference_temperature"},
    {"ThermalConductivity", "Thermal", "", "conductivity", "conductivity"},
    {"SpecificHeat", "Thermal", "", "specific_heat", "specific_heat"},
    {"ElectricalConductivity", "Electromagnetic", "", "", ""},
    {"RelativePermittivity", "Electromagnetic", "", "", ""},
    {"RelativePermeability", "Electromagnetic", "", "", ""},
    {"ProductURL", "Costs", "", "", ""},
    {"SpecificPrice", "Costs", "", "", ""},
    {"Vendor", "Costs", "", "", ""},
}};

template <class Range, class Test>
auto Find(const Range& range, Test test) {
    const auto found = std::find_if(range.begin(), range.end(), test);
    return found == range.end() ? nullptr : &*found;
}

}  // namespace

std::span<const FcmatProperty> FcmatProperties() {
    return kProperties;
}

const FcmatProperty* FindFcmatProperty(std::string_view name) {
    return Find(kProperties, [&](const FcmatProperty& property) { return property.name == name; });
}

std::span<const FcmatModel> FcmatModels() {
    return kModels;
}

const FcmatModel* FindFcmatModelById(std::string_view uuid) {
    return Find(kModels, [&](const FcmatModel& model) { return model.uuid == uuid; });
}

}  // namespace zelmat
