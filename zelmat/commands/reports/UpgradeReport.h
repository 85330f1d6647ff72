#pragma once

#include <nlohmann/json.hpp>
#include <ostream>

#include "zelmat/documents/UpgradeMaterials.h"

namespace zelmat {

void PrintUpgrade(std::ostream& out, const UpgradeReport& report);
nlohmann::ordered_json ToJson(const UpgradeReport& report);

}  // namespace zelmat
