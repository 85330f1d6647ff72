#pragma once

#include <optional>
#include <string>
#include <variant>

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/plastic/HardeningTable.h"
#include "zelmat/mechanics/plastic/JohnsonCook.h"

namespace zelmat {

/// The flow stress of a metal as the formulas take it: stresses in Pa, temperatures in K.
struct HardeningProperty {
    std::string hardening;  ///< "isotropic", "kinematic", "johnson-cook"
    /// True stress over plastic strain, or Johnson and Cook's law; the latter with a strain rate where the
    /// block keeps C and the reference rate, which no document has a behavior for.
    std::variant<mechanics::HardeningTable, mechanics::JohnsonCook> law;
    bool temperatureDependent = false;
};

/// `plastic`: a block in the stored meaning, as UsedBlock gives it. C is kept by the block as `C` or
/// `strain_rate_coefficient`, the reference rate as `reference_strain_rate` ("1 1/s"). Refused as
/// HardeningTable::Over refuses, and where the block says no hardening or a number is missing.
mechanics::Outcome<HardeningProperty> HardeningOf(const Block& plastic);

/// The stress at a plastic strain and a temperature in K, which may be left out where nothing depends on it.
/// Without a strain rate (1/s) that of the law at its reference rate. A table is constant beyond its points
/// and temperatures, and says so; REFUSE refuses there, LINEAR always. Refused for a strain rate where the
/// material has no law with one.
mechanics::Outcome<mechanics::FlowStress> FlowStressAt(
    const HardeningProperty& property, double plasticStrain, std::optional<double> temperature,
    std::optional<double> strainRate = {},
    mechanics::OutsidePolicy policy = mechanics::OutsidePolicy::CONSTANT);

}  // namespace zelmat
