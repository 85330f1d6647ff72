#pragma once

#include <string_view>

#include "zelmat/quantities/Quantity.h"

namespace zelmat {

/// What a column or a setting measures: of the quantities that are stored in its unit the one that its name
/// ends in ("youngs_modulus" is a modulus, "plastic_strain" a strain), else the usual one ("Pa" is a stress).
/// Null for what has no unit.
const Quantity* QuantityOf(std::string_view name, std::string_view unit);

}  // namespace zelmat
