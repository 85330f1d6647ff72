#pragma once

#include <memory>

#include "zelmat/files/PlacedJson.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A card's tree under the house's names, with the short forms that people write put into tables:
///
///     "rho": "7850 kg/m3"                             a property beside the blocks: the table `density`
///     "E": "210 GPa", "nu": 0.3                       those of one block together: the table `elastic`
///     "Thermal Conductivity": {"columns": ...}        a block under a name of the field
///     "elastic": {"E": "210 GPa", "nu": 0.3}          a table of one row, value by value
///     "thermal_expansion": {"Tref": "20 degC", ...}   a setting under a name of the field
///
/// The same tree when there is nothing to do. Null, and a finding, when two keys mean the same.
std::shared_ptr<const PlacedJson> UnderHouseNames(std::shared_ptr<const PlacedJson> card, Findings& findings);

}  // namespace zelmat
