#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// E1, E2, E3, nu12, nu13, nu23, G12, G13, G23, of 12 digits, from the stiffness D1111, D1122, D2222, D1133,
/// D2233, D3333, D1212, D1313, D2323 (*ELASTIC, TYPE=ORTHO). Nothing where that does not resist every strain.
std::optional<std::vector<double>> EngineeringConstants(const std::vector<double>& stiffness);

/// Puts a ply constant, with its unit, among a material's other properties. False when it replaces one.
bool KeepPlyConstant(Material& material, const std::string& name, double number, const std::string& unit,
                     int line);

}  // namespace zelmat
