#pragma once

#include <optional>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// Isotropic or kinematic hardening whose curve is not true stress over plastic strain.
bool IsOtherHardening(const Block& block);

/// The same hardening as it is stored. See ToStoredMeaning.
std::optional<Block> ToTrueOverPlastic(const Block& block, const Material& material, Findings& findings);

}  // namespace zelmat
