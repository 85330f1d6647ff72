#pragma once

#include <nlohmann/json.hpp>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/StoredMaterial.h"

namespace zelmat {

/// What the commands print with --json. Numbers are SI, each with its unit beside it.
nlohmann::ordered_json ToJson(const StoredMaterial& material);
nlohmann::ordered_json ToJson(const Findings& findings);

}  // namespace zelmat
