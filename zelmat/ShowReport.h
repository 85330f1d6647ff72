#pragma once

#include <ostream>
#include <vector>

#include "zelmat/Findings.h"
#include "zelmat/MaterialCard.h"

namespace zelmat {

/// A material for reading on a terminal: where it comes from, then one aligned table per behavior.
void PrintMaterial(std::ostream& out, const MaterialCard& card, const std::vector<StoredTable>& tables);

/// The same for scripts, as one JSON object, with the findings in it. `card` is null when it could not be
/// read.
void PrintMaterialJson(std::ostream& out, const MaterialCard* card, const std::vector<StoredTable>& tables,
                       const Findings& findings);

}  // namespace zelmat
