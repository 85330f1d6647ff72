#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"

namespace zelmat {

/// Calls `visit` for every table of a hyperelastic block, alternatives included.
void ForEachFit(const Material& material, const std::function<void(const Block&, const Table&)>& visit);

using EnergyOutcome = mechanics::Outcome<std::shared_ptr<const mechanics::StrainEnergy>>;

/// The potential of a row's coefficients, which are in the meaning that documents have; nothing when the
/// table lacks one of them.
std::optional<EnergyOutcome> EnergyOfRow(const Block& fit, const Table& table, std::size_t row);

}  // namespace zelmat
