#pragma once

#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"
#include "zelmat/pictures/Picture.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// Several materials in one picture, for every property that at least two of them have: over temperature
/// where one of them depends on it (those that do not are level lines), else as bars; and their hardening
/// curves at the temperature next to 20 degC. `block`: by its name on the card; empty: all. A block that
/// cannot be drawn is a finding.
std::vector<Picture> ComparedPictures(const std::vector<Material>& materials, const std::string& block,
                                      const UnitChoice& units, Findings& findings);

}  // namespace zelmat
