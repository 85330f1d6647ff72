#pragma once

#include <ostream>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/StoredMaterial.h"

namespace zelmat {

/// A material for reading on a terminal: where it comes from, which behaviors are switched on, then one
/// section per behavior with its values and aligned tables.
void PrintMaterial(std::ostream& out, const StoredMaterial& material);

/// The same for scripts, as one JSON object, with the findings in it. `material` is null when its card could
/// not be read.
void PrintMaterialJson(std::ostream& out, const StoredMaterial* material, const Findings& findings);

}  // namespace zelmat
