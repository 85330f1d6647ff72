#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/InUnits.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Something that a stored block means, though it is not stored itself.
struct DerivedValue {
    std::string name;   ///< "initial_shear_modulus"
    std::string title;  ///< "initial shear modulus mu0"
    Value value;
    std::string unit = {};
    std::optional<double> temperature = std::nullopt;  ///< K; of the row that it belongs to

    ShownValue In(const UnitChoice& units) const;
    std::optional<ShownValue> TemperatureIn(const UnitChoice& units) const;
};

/// What a block read from a document means: of hyperelasticity the strain energy as a formula, the convention
/// of Ogden's coefficients, and the initial shear and bulk modulus row by row; of a hardening curve its
/// stress and strain. Coefficients from which no potential can be made get a text that says why in the place
/// of the number.
std::vector<DerivedValue> DerivedValues(const Block& stored);

}  // namespace zelmat
