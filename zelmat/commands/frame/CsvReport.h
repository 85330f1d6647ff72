#pragma once

#include <ostream>

#include "zelmat/materials/StoredMaterial.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// The tables of a material as CSV, for programs: for each a comment line "# material: table", a header that
/// names column and unit ("youngs_modulus [Pa],temperature [K]"), its rows, an empty line between tables.
/// Every number reads back as exactly the same double; the place of one that the store does not have is
/// empty.
void PrintTablesAsCsv(std::ostream& out, const StoredMaterial& material, const UnitChoice& units);

}  // namespace zelmat
