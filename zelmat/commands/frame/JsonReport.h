#pragma once

#include <nlohmann/json.hpp>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/StoredMaterial.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What the commands print with --json. Numbers are in the units chosen, each with its unit beside it.
nlohmann::ordered_json ToJson(const StoredMaterial& material, const UnitChoice& units);
nlohmann::ordered_json ToJson(const Findings& findings);

}  // namespace zelmat
