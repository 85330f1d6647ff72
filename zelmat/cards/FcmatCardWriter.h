#pragma once

#include <string>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// A card in the newest FCMat form, YAML with models, with numbers and units as they were written. That form
/// holds one number a property: whatever else a material has (tables, hardening, fits, gaskets, notes) is a
/// warning each, and so is a unit that the form cannot name; its number is then in the stored unit.
std::string FcmatCardText(const Material& material, Findings& findings);

}  // namespace zelmat
