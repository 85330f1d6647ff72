#pragma once

#include <ostream>

#include "zelmat/materials/StoredMaterial.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// A material for reading on a terminal: where it comes from, which behaviors are switched on, then one
/// section per behavior with its values and aligned tables, numbers in the units chosen.
void PrintMaterial(std::ostream& out, const StoredMaterial& material, const UnitChoice& units);

}  // namespace zelmat
