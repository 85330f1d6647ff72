#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// The hyperelastic fits that a material has: the alternatives of a card, the one of a document.
std::vector<const Block*> FitsOf(const Material& material);

/// A material's block as the formulas take it: there, switched on, and in the stored meaning, with every
/// conversion told as a note. `block`: "elastic"; of several hyperelastic fits the first. Nothing, and an
/// error that names the blocks that there are, otherwise.
std::optional<Block> UsedBlock(const Material& material, const std::string& block, Findings& findings);

/// The same for a block in hand.
std::optional<Block> UsedBlock(const Material& material, const Block& block, Findings& findings);

}  // namespace zelmat
